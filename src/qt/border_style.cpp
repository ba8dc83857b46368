// SPDX-License-Identifier: MIT
#include "border_style.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QIconEngine>
#include <QLineEdit>
#include <QPainter>
#include <QResizeEvent>
#include <QStyleOption>

#include "signal_colours.h"

namespace vatro {

namespace {

constexpr int kEdgeWidth = 2;
/// A pixel with no more alpha than this does not count for how dark a picture is.
constexpr int kTransparent = 127;
/// A picture without a grey lighter than this is a dark sign.
constexpr int kDark = 100;

/// The control with the focus has a broader frame, in the colour of the text.
void DrawFrame(const QStyleOption& option, QPainter& painter, bool enabled, bool round = false) {
    const bool focus = enabled && option.state.testFlag(QStyle::State_HasFocus);
    const double width = focus ? kEdgeWidth + 1 : kEdgeWidth;
    const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, round);
    painter.setPen(
        QPen(option.palette.color(group, focus ? QPalette::WindowText : kFrameRole), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option.rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    if (round)
        painter.drawEllipse(edge);
    else
        painter.drawRect(edge);
    painter.restore();
}

/// Leaves the control with the focus to the style and to the mark of the field that receives the keys.
void DrawThinFrame(const QStyleOption& option, QPainter& painter, bool round) {
    if (!option.state.testFlag(QStyle::State_Enabled) || option.state.testFlag(QStyle::State_HasFocus)) return;
    constexpr double kHalf = 0.5;
    constexpr double kCorner = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(FadedInk(option.palette), 1));
    painter.setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option.rect).adjusted(kHalf, kHalf, -kHalf, -kHalf);
    if (round)
        painter.drawEllipse(edge);
    else
        painter.drawRoundedRect(edge, kCorner, kCorner);
    painter.restore();
}

constexpr QLatin1String kVeilName("caretVeil");

/// Covers a field. Qt draws the text cursor as the negative of the ground, which is white on black; at night the veil lets nothing
/// through that is brighter than the text.
class CaretVeil : public QWidget {
public:
    explicit CaretVeil(QLineEdit& field) : QWidget(&field) {
        setObjectName(QString(kVeilName));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        resize(field.size());
        field.installEventFilter(this);
        show();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) resize(static_cast<QResizeEvent*>(event)->size());
        return QWidget::eventFilter(watched, event);
    }
    void paintEvent(QPaintEvent* event) override {
        if (!IsNight(palette())) return;
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Darken);
        painter.fillRect(event->rect(), palette().color(QPalette::WindowText));
    }
};

/// The picture in shades of this colour. The shades of a dark sign are reversed, because it would not be seen on black.
QPixmap Tinted(const QPixmap& pixmap, const QColor& ink) {
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int lightest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > kTransparent) lightest = qMax(lightest, qGray(image.pixel(x, y)));
    const bool dark = lightest < kDark;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int light = dark ? 255 - qGray(pixel) : qGray(pixel);
            const QColor shade = Mixed(Qt::black, ink, light / 255.0);
            image.setPixel(x, y, qRgba(shade.red(), shade.green(), shade.blue(), qAlpha(pixel)));
        }
    return QPixmap::fromImage(image);
}

QIcon Tinted(const QIcon& icon, const QColor& ink) {
    QIcon tinted;
    constexpr int kSizes[]{16, 24, 32, 48, 64, 128};
    for (const int size : kSizes)
        if (const QPixmap pixmap = icon.pixmap(size, size); !pixmap.isNull()) tinted.addPixmap(Tinted(pixmap, ink));
    return tinted;
}

/// An icon of the application's style, made whenever it is shown, as it looks in the scheme of that moment.
class LateIcon : public QIconEngine {
public:
    explicit LateIcon(QStyle::StandardPixmap which) : which_(which) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        Made().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override { return Made().pixmap(size, 1, mode, state); }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        return Made().pixmap(size / scale, scale, mode, state);
    }
    // In pixels of the screen, of which the icon itself knows nothing.
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Made().pixmap(size, 1, mode, state).size();
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override { return Made().availableSizes(mode, state); }
    // Without asking the icon, which would make it.
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new LateIcon(*this); }

private:
    QIcon Made() const {
        const auto* style = qobject_cast<const BorderStyle*>(QApplication::style());
        return style != nullptr ? style->ReadyIcon(which_) : QIcon();
    }

    QStyle::StandardPixmap which_;
};

/// Whether the icon is that of the button for what has no room in a toolbar. Each toolbar has such a button, which is seldom seen.
bool IsOfExtension(QStyle::StandardPixmap which) {
    return which == QStyle::SP_ToolBarHorizontalExtensionButton || which == QStyle::SP_ToolBarVerticalExtensionButton;
}

}  // namespace

void BorderStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    auto* field = frames_ == Frames::Broad ? qobject_cast<QLineEdit*>(widget) : nullptr;
    if (field != nullptr && field->findChild<QWidget*>(QString(kVeilName), Qt::FindDirectChildrenOnly) == nullptr) new CaretVeil(*field);
}

void BorderStyle::unpolish(QWidget* widget) {
    QWidget* veil =
        qobject_cast<QLineEdit*>(widget) != nullptr ? widget->findChild<QWidget*>(QString(kVeilName), Qt::FindDirectChildrenOnly) : nullptr;
    if (veil != nullptr) {
        // Not deleted at once: the application is going through a list of all its widgets.
        veil->setObjectName(QString());
        veil->hide();
        veil->deleteLater();
    }
    QProxyStyle::unpolish(widget);
}

void BorderStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (frames_ == Frames::Thin) {
        const bool filledIn = element == PE_FrameLineEdit || element == PE_IndicatorCheckBox;
        const bool chosenFrom = element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
        if (filledIn || chosenFrom || element == PE_IndicatorRadioButton)
            DrawThinFrame(*option, *painter, element == PE_IndicatorRadioButton);
        return;
    }
    switch (element) {
        case PE_FrameLineEdit:
        case PE_Frame:
        case PE_PanelButtonCommand:
        case PE_IndicatorCheckBox:
            DrawFrame(*option, *painter, option->state.testFlag(State_Enabled));
            break;
        case PE_IndicatorRadioButton:
            DrawFrame(*option, *painter, option->state.testFlag(State_Enabled), true);
            break;
        case PE_FrameMenu:
        case PE_PanelTipLabel:
            // Qt leaves the state out.
            DrawFrame(*option, *painter, true);
            break;
        default:
            break;
    }
}

void BorderStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    if (!IsNight(option->palette)) return QProxyStyle::drawControl(element, option, painter, widget);
    // Some styles draw these with greys of their own.
    const QColor line = option->palette.color(QPalette::Dark);
    switch (element) {
        case CE_ToolBar:
        case CE_MenuBarEmptyArea:
            painter->fillRect(option->rect, option->palette.window());
            painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1), line);
            break;
        case CE_SizeGrip:
            break;
        case CE_MenuBarItem:
            QProxyStyle::drawControl(element, option, painter, widget);
            painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1), line);
            break;
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
            break;
    }
}

void BorderStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ScrollBar) {
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (bar == nullptr || bar->maximum <= bar->minimum || styleHint(SH_ScrollBar_Transient, option, widget) != 0) return;
        QStyleOption slider(*option);
        slider.rect = subControlRect(CC_ScrollBar, bar, SC_ScrollBarSlider, widget);
        slider.state.setFlag(State_HasFocus, false);
        DrawThinFrame(slider, *painter, false);
    }
    if (control != CC_ComboBox) return;
    if (frames_ == Frames::Thin)
        DrawThinFrame(*option, *painter, false);
    else
        DrawFrame(*option, *painter, option->state.testFlag(State_Enabled));
}

int BorderStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
        case PM_MenuPanelWidth:
            // Room for the frame beside the entries, which some styles fill from edge to edge.
            return frames_ == Frames::Broad ? qMax(usual, kEdgeWidth) : usual;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            // Most styles have one size for all texts.
            return widget != nullptr ? qMax(usual, widget->fontMetrics().ascent()) : usual;
        default:
            return usual;
    }
}

QIcon BorderStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
    if (IsOfExtension(which)) return QIcon(new LateIcon(which));
    return ReadyIcon(which, option, widget);
}

QIcon BorderStyle::ReadyIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
    const QIcon icon = QProxyStyle::standardIcon(which, option, widget);
    const QPalette palette = QApplication::palette();
    return IsNight(palette) ? Tinted(icon, palette.color(QPalette::WindowText)) : icon;
}

QPixmap BorderStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const {
    // What a style makes of the icon of a button that cannot be pressed is grey.
    if (mode == QIcon::Disabled && IsNight(option->palette))
        return Tinted(pixmap, option->palette.color(QPalette::Disabled, QPalette::ButtonText));
    return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

}  // namespace vatro
