// SPDX-License-Identifier: MIT
#include "status_panel.h"

#include <QEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QTextLayout>
#include <QTextOption>
#include <cmath>
#include <numbers>
#include <optional>

#include "sign_lines.h"
#include "signal_colours.h"

namespace vatro {

namespace {

constexpr int kMargin = 2;
constexpr int kMostRows = 2;

bool IsLoud(PanelMark mark) {
    return mark == PanelMark::Duplicate || mark == PanelMark::NewCountry;
}

/// A country that has been worked is the usual case and has no colour.
std::optional<Signal> SignalOf(PanelMark mark) {
    switch (mark) {
        case PanelMark::Duplicate:
            return Signal::Duplicate;
        case PanelMark::NewCountry:
            return Signal::Gain;
        case PanelMark::Station:
            return Signal::Known;
        case PanelMark::Unknown:
            return Signal::Notice;
        case PanelMark::WorkedCountry:
        case PanelMark::None:
            break;
    }
    return std::nullopt;
}

QTextOption WrappedAnywhere() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

QPolygonF Star(const QRectF& place) {
    constexpr int kPoints = 10;
    constexpr double kInner = 0.2;
    constexpr double kOuter = 0.5;
    QPolygonF star;
    for (int i = 0; i < kPoints; ++i) {
        const double angle = (2.0 * i / kPoints - 0.5) * std::numbers::pi;
        const double radius = (i % 2 == 0 ? kOuter : kInner) * place.width();
        star << place.center() + QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    return star;
}

/// A cross, a star, a tick, a diamond or a question mark.
void PaintSign(QPainter& painter, PanelMark mark, const QRectF& place, const QColor& ink) {
    const auto at = [&](double x, double y) { return QPointF(place.x() + x * place.width(), place.y() + y * place.height()); };
    constexpr double kStroke = 0.16;
    painter.setPen(QPen(ink, place.width() * kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(ink);
    switch (mark) {
        case PanelMark::Duplicate:
            PaintCross(painter, place);
            break;
        case PanelMark::NewCountry:
            painter.setPen(Qt::NoPen);
            painter.drawPolygon(Star(place));
            break;
        case PanelMark::WorkedCountry:
            PaintTick(painter, place);
            break;
        case PanelMark::Station:
            painter.setPen(Qt::NoPen);
            painter.drawPolygon(QPolygonF({at(0.5, 0), at(1, 0.5), at(0.5, 1), at(0, 0.5)}));
            break;
        case PanelMark::Unknown: {
            QFont font = painter.font();
            font.setBold(true);
            painter.setFont(font);
            painter.drawText(place.adjusted(-place.width(), -place.height(), place.width(), place.height()), Qt::AlignCenter,
                             QStringLiteral("?"));
            break;
        }
        case PanelMark::None:
            break;
    }
}

}  // namespace

StatusPanel::StatusPanel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setMargin(kMargin);
    // With a ground of its own, a new text repaints the panel alone, and not what lies behind it too.
    setAutoFillBackground(true);
}

void StatusPanel::SetPanelText(const QString& text, const QString& toolTip, PanelMark mark) {
    whole_ = text;
    toolTip_ = toolTip;
    mark_ = mark;
    faded_ = false;
    setAccessibleName(text);
    LayOut(false);
    Q_EMIT Told();
}

void StatusPanel::SetGap(int gap) {
    gap_ = gap;
    updateGeometry();
    LayOut(true);
}

void StatusPanel::KeepRoomFor(const QString& text, PanelMark mark) {
    longest_ = text.trimmed();
    longestMark_ = mark;
    LayOut(true);
}

void StatusPanel::SetFaded(bool faded) {
    if (faded_ == faded) return;
    faded_ = faded;
    LayOut(false);
}

QSize StatusPanel::sizeHint() const {
    // A label remembers the minimum that it had when it was given its text.
    return {QLabel::sizeHint().width() + gap_, minimumHeight()};
}

QSize StatusPanel::minimumSizeHint() const {
    return {QLabel::minimumSizeHint().width() + gap_, minimumHeight()};
}

void StatusPanel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) LayOut(true);
}

void StatusPanel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOut(true);
}

QFont StatusPanel::TextFont(PanelMark mark) const {
    QFont its = font();
    if (IsLoud(mark) && !faded_) its.setBold(true);
    return its;
}

int StatusPanel::SignWidth(PanelMark mark) const {
    if (mark == PanelMark::None) return 0;
    return mark == PanelMark::Duplicate ? fontMetrics().height() * kMostRows : fontMetrics().height() * 3 / 2;
}

QRect StatusPanel::Inside() const {
    return contentsRect().adjusted(margin() + gap_, margin(), -margin(), -margin());
}

bool StatusPanel::Elastic() const {
    return sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

bool StatusPanel::LongestFits() const {
    const int room = Inside().width() - SignWidth(longestMark_);
    const int plain = fontMetrics().horizontalAdvance(longest_);
    // Bold letters are wider, but not by so much. The bold font is only made if that decides.
    constexpr double kBroadest = 1.4;
    if (!IsLoud(longestMark_) || plain > room || plain * kBroadest <= room) return plain <= room;
    QFont loud = font();
    loud.setBold(true);
    return QFontMetrics(loud).horizontalAdvance(longest_) <= room;
}

void StatusPanel::LayOut(bool anew) {
    const QFontMetrics metrics(TextFont(mark_));
    const int room = Inside().width() - SignWidth(mark_);
    // Some texts are padded with blanks.
    qsizetype length = whole_.size();
    while (Elastic() && length > 0 && whole_[length - 1] == u' ') --length;
    const QString words = whole_.left(length);
    lines_.clear();
    QString rest = words;
    if (Elastic() && metrics.horizontalAdvance(words) > room) {
        QTextLayout layout(words, TextFont(mark_));
        layout.setTextOption(WrappedAnywhere());
        layout.beginLayout();
        QTextLine first = layout.createLine();
        first.setLineWidth(qMax(0, room));
        layout.endLayout();
        lines_.append(words.left(first.textLength()).trimmed());
        rest = words.mid(first.textLength());
    }
    lines_.append(Elastic() ? metrics.elidedText(rest, Qt::ElideRight, room) : rest);
    const int least = anew && Elastic() && !LongestFits() ? kMostRows : 1;
    rows_ = qMax(anew ? least : rows_, Lines());
    setMinimumHeight(rows_ * metrics.lineSpacing() + 2 * margin());
    const bool cut = lines_.constLast() != rest;
    setToolTip(cut ? whole_ + u'\n' + toolTip_ : toolTip_);
    const QString shown = cut ? lines_.join(u' ') : whole_;
    if (text() != shown) setText(shown);
    update();
}

void StatusPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ink = faded_ ? FadedInk(palette()) : palette().color(foregroundRole());
    QColor signInk = ink;
    const QFontMetrics metrics(TextFont(mark_));
    // A duplicate has the largest sign that its panel has room for.
    const double chip = mark_ == PanelMark::Duplicate ? qMin(Inside().height(), SignWidth(mark_)) : metrics.height();
    const QRectF place(Inside().left(), (height() - chip) / 2, chip, chip);
    if (const auto signal = faded_ ? std::nullopt : SignalOf(mark_)) {
        const SignalColours colours = ColoursOf(*signal, palette());
        signInk = colours.ink;
        if (mark_ == PanelMark::Duplicate) {
            ink = colours.ink;
            painter.fillRect(rect(), colours.ground);
        } else {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colours.ground);
            painter.drawRoundedRect(place, chip / 5, chip / 5);
        }
    }
    painter.setFont(TextFont(mark_));
    constexpr double kInset = 0.2;
    PaintSign(painter, mark_, place.adjusted(chip * kInset, chip * kInset, -chip * kInset, -chip * kInset), signInk);
    painter.setFont(TextFont(mark_));
    painter.setPen(isEnabled() ? ink : palette().color(QPalette::Disabled, foregroundRole()));
    const QRect inside = Inside().adjusted(SignWidth(mark_), 0, 0, 0);
    int top = inside.top() + (inside.height() - Lines() * metrics.lineSpacing()) / 2;
    for (const QString& line : lines_) {
        painter.drawText(QRect(inside.left(), top, inside.width(), metrics.lineSpacing()), Qt::AlignVCenter | Qt::AlignLeft, line);
        top += metrics.lineSpacing();
    }
}

}  // namespace vatro
