// SPDX-License-Identifier: MIT
#include "lamp_row.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QTimer>
#include <utility>

#include "qt_text.h"
#include "sign_lines.h"
#include "signal_colours.h"

namespace vatro {

namespace {

using namespace std::chrono_literals;

constexpr double kLineWidth = 0.12;
constexpr std::chrono::milliseconds kBlink = 300ms;
/// Qt measures angles in sixteenths.
constexpr int kDegree = 16;

QString NameOf(LampKind kind) {
    switch (kind) {
        case LampKind::Utc:
            return QStringLiteral("UTC");
        case LampKind::Copy:
            return QStringLiteral("Løbende kopi");
        case LampKind::LastContact:
            return QStringLiteral("Sidste kontakt");
        case LampKind::Morse:
            return QStringLiteral("Morse");
    }
    return {};
}

/// Which lamps get their words first, depending on whether they are good: a wrong time spoils every contact, while a good one is in its
/// field too.
constexpr std::array<std::pair<bool, LampKind>, 2 * kLampKinds> kWordsFirst{{{false, LampKind::LastContact},
                                                                             {false, LampKind::Utc},
                                                                             {false, LampKind::Copy},
                                                                             {false, LampKind::Morse},
                                                                             {true, LampKind::LastContact},
                                                                             {true, LampKind::Copy},
                                                                             {true, LampKind::Utc},
                                                                             {true, LampKind::Morse}}};

/// The room that all menus need side by side, whether they are shown now or not.
int WidthOfMenus(const QMenuBar& bar) {
    const QStyle& style = *bar.style();
    QStyleOptionMenuItem option;
    option.initFrom(&bar);
    int width =
        2 * (style.pixelMetric(QStyle::PM_MenuBarPanelWidth, nullptr, &bar) + style.pixelMetric(QStyle::PM_MenuBarHMargin, nullptr, &bar));
    for (const QAction* menu : bar.actions()) {
        if (!menu->isVisible()) continue;
        option.text = menu->text();
        const QSize words = bar.fontMetrics().size(Qt::TextShowMnemonic, menu->text());
        width += style.sizeFromContents(QStyle::CT_MenuBarItem, &option, words, &bar).width() +
                 style.pixelMetric(QStyle::PM_MenuBarItemSpacing, nullptr, &bar);
    }
    return width;
}

/// A good lamp has the colours of the menu bar.
SignalColours LampColours(Lamp::State state, const QPalette& palette) {
    switch (state) {
        case Lamp::State::Bad:
            return ColoursOf(Signal::Wrong, palette);
        case Lamp::State::Notice:
            return ColoursOf(Signal::Notice, palette);
        case Lamp::State::Off:
        case Lamp::State::Good:
            break;
    }
    return {palette.color(QPalette::Window), palette.color(QPalette::WindowText)};
}

}  // namespace

LampButton::LampButton(LampKind kind, QWidget* parent) : QAbstractButton(parent), kind_(kind) {
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("lamp%1").arg(static_cast<int>(kind)));
    setAccessibleName(NameOf(kind));
    blink_.setSingleShot(true);
    blink_.setInterval(kBlink);
    connect(&blink_, &QTimer::timeout, this, [this] { update(); });
    hide();
}

void LampButton::Blink() {
    blink_.start();
    update();
    QAccessibleEvent told(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void LampButton::Show(const Lamp& lamp) {
    if (lamp == lamp_) return;
    lamp_ = lamp;
    setText(ToQt(lamp.text));
    setToolTip(ToQt(lamp.tip));
    setAccessibleName(NameOf(kind_) + QStringLiteral(": ") + text());
    setAccessibleDescription(toolTip());
    setVisible(lamp.state != Lamp::State::Off);
    updateGeometry();
    update();
}

void LampButton::SetWords(Words words) {
    if (words == words_) return;
    words_ = words;
    updateGeometry();
    update();
}

QString LampButton::TextOf(Words words) const {
    return words == Words::All ? text() : words == Words::Short ? ToQt(lamp_.brief) : QString();
}

int LampButton::SignSize() const {
    return fontMetrics().ascent();
}

int LampButton::WidthOf(Words words) const {
    const int sign = SignSize();
    const QString shown = TextOf(words);
    return sign / 2 + sign + (shown.isEmpty() ? 0 : fontMetrics().horizontalAdvance(shown) + sign / 2) + sign / 2;
}

QSize LampButton::sizeHint() const {
    // No taller than the menus, which would move away from the lower edge of their bar.
    return {WidthOf(words_), fontMetrics().height() + 2};
}

void LampButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    SignalColours colours = LampColours(lamp_.state, palette());
    if (blink_.isActive()) std::swap(colours.ground, colours.ink);
    const QRectF whole(rect());
    const double sign = SignSize();
    if (lamp_.state != Lamp::State::Good) {
        const double corner = sign / 4;
        QRectF inside = whole.adjusted(1, 1, -1, -1);
        if (lamp_.state == Lamp::State::Bad && IsNight(palette())) {
            // At night the pressed buttons are filled with the same red.
            constexpr double kPen = 1;
            painter.setPen(QPen(colours.ground, kPen));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(whole.adjusted(kPen / 2, kPen / 2, -kPen / 2, -kPen / 2), corner, corner);
            inside = whole.adjusted(2 * kPen + 1, 2 * kPen + 1, -2 * kPen - 1, -2 * kPen - 1);
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours.ground);
        painter.drawRoundedRect(inside, corner, corner);
    }
    PaintSign(painter, QRectF(sign / 2, (height() - sign) / 2, sign, sign), colours.ink);
    painter.setPen(colours.ink);
    painter.drawText(whole.adjusted(2 * sign, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, TextOf(words_));
}

/// A clock, two sheets, a tick or a loudspeaker; crossed out, or a cross, if something is wrong.
void LampButton::PaintSign(QPainter& painter, const QRectF& place, const QColor& ink) const {
    const double unit = place.width();
    painter.setPen(QPen(ink, unit * kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const auto at = [&](double x, double y) { return QPointF(place.x() + x * unit, place.y() + y * unit); };
    const bool bad = lamp_.state == Lamp::State::Bad;
    switch (kind_) {
        case LampKind::Utc:
            painter.drawEllipse(place.adjusted(unit * 0.06, unit * 0.06, -unit * 0.06, -unit * 0.06));
            painter.drawPolyline(QPolygonF({at(0.5, 0.24), at(0.5, 0.5), at(0.7, 0.62)}));
            break;
        case LampKind::Copy:
            painter.drawRect(QRectF(at(0.06, 0.06), at(0.66, 0.66)));
            painter.drawPolyline(QPolygonF({at(0.86, 0.34), at(0.94, 0.34), at(0.94, 0.94), at(0.34, 0.94), at(0.34, 0.86)}));
            break;
        case LampKind::LastContact:
            if (bad)
                painter.drawLine(at(0.94, 0.06), at(0.06, 0.94));
            else
                PaintTick(painter, place);
            break;
        case LampKind::Morse:
            painter.drawPolygon(QPolygonF({at(0.06, 0.34), at(0.3, 0.34), at(0.56, 0.1), at(0.56, 0.9), at(0.3, 0.66), at(0.06, 0.66)}));
            painter.drawArc(QRectF(at(0.44, 0.24), at(0.94, 0.76)), -60 * kDegree, 120 * kDegree);
            break;
    }
    if (bad) painter.drawLine(at(0.06, 0.06), at(0.94, 0.94));
}

LampRow::LampRow(QMenuBar& bar) : QWidget(&bar), bar_(bar) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (const LampKind kind : {LampKind::Morse, LampKind::LastContact, LampKind::Copy, LampKind::Utc}) {
        auto* lamp = new LampButton(kind, this);
        lamps_[static_cast<std::size_t>(kind)] = lamp;
        row->addWidget(lamp);
        connect(lamp, &QAbstractButton::clicked, this, [this, kind] {
            if (clicked) clicked(kind);
        });
    }
    bar.setCornerWidget(this, Qt::TopRightCorner);
    bar.installEventFilter(this);
    show();
}

void LampRow::Show(LampKind kind, const Lamp& lamp) {
    if (Button(kind).Shown() == lamp) return;
    Button(kind).Show(lamp);
    FitIn();
}

/// Leaves out the words of as many lamps as necessary, so that the menus keep their room. Words of what is wrong stay longest.
void LampRow::FitIn() {
    using Words = LampButton::Words;
    int room = bar_.width() - WidthOfMenus(bar_);
    std::array<Words, kLampKinds> words{};
    for (const LampButton* lamp : lamps_)
        if (lamp->Shown().state != Lamp::State::Off) room -= lamp->WidthOf(Words::None) + layout()->spacing();
    /// Whether there was room.
    const auto give = [&](std::size_t i, Words more) {
        const int needed = lamps_[i]->WidthOf(more) - lamps_[i]->WidthOf(words[i]);
        if (needed > room) return false;
        room -= needed;
        words[i] = more;
        return true;
    };
    const auto isOf = [this](std::size_t i, bool good) {
        const Lamp::State state = lamps_[i]->Shown().state;
        return state != Lamp::State::Off && (state == Lamp::State::Good) == good;
    };
    for (const auto& [good, kind] : kWordsFirst)
        if (const auto i = static_cast<std::size_t>(kind); !good && isOf(i, good)) give(i, Words::Short);
    bool wrongIsBrief = false;
    for (const auto& [good, kind] : kWordsFirst) {
        const auto i = static_cast<std::size_t>(kind);
        if (!isOf(i, good)) continue;
        // What is good must not look more important than what is wrong.
        if (good && wrongIsBrief) break;
        if (!give(i, Words::All) && !good) wrongIsBrief = true;
    }
    for (std::size_t i = 0; i < lamps_.size(); ++i) lamps_[i]->SetWords(words[i]);
    // The menu bar asks for the size of its corner only when its own layout changes.
    bar_.setCornerWidget(this, Qt::TopRightCorner);
}

bool LampRow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &bar_ &&
        (event->type() == QEvent::Resize || event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        QTimer::singleShot(0, this, &LampRow::FitIn);
    return QWidget::eventFilter(watched, event);
}

}  // namespace vatro
