// SPDX-License-Identifier: MIT
#include "column_head.h"

#include <QEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyle>

#include "item_list.h"
#include "signal_colours.h"

namespace vatro {

namespace {

/// How far a line between two heads is from the text colour towards the background.
constexpr double kLine = 0.6;
/// The largest error of a width that is not measured but calculated from the width in another size: letters are rounded to pixels.
constexpr double kRounding = 0.05;

/// Whether each text has room before the place of the next, if it is `scale` times as wide as by these metrics.
bool FitBetween(const QStringList& texts, const QList<int>& places, const QFontMetrics& metrics, double scale = 1) {
    for (qsizetype i = 0; i + 1 < qMin(texts.size(), places.size()); ++i) {
        const int width = metrics.size(Qt::TextShowMnemonic, texts[i]).width() + metrics.horizontalAdvance(u' ');
        if (width * scale > places[i + 1] - places[i]) return false;
    }
    return true;
}

}  // namespace

ColumnHead::ColumnHead(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ColumnHead::SetCaption(const QString& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    QString plain = caption;
    setAccessibleName(plain.remove(u'&').simplified());
    updateGeometry();
    update();
}

QSize ColumnHead::sizeHint() const {
    // Over a list or several fields the width is given by them; beside a single field the caption needs its own width.
    const bool alone = columns_.isEmpty() && !fields_.contains(u' ');
    const int width = alone ? fontMetrics().size(Qt::TextShowMnemonic, caption_).width() + 2 : fontMetrics().averageCharWidth() * 4;
    return {width, fontMetrics().height() + fontMetrics().leading() + 2};
}

QWidget* ColumnHead::Sibling(const QString& name) const {
    // A window of another form that is docked in this one may have a widget of the same name.
    QWidget* found = nullptr;
    for (const QWidget* around = parentWidget(); around != nullptr && found == nullptr; around = around->parentWidget())
        found = around->findChild<QWidget*>(name);
    return found;
}

QList<int> ColumnHead::Places() const {
    QList<int> places;
    if (const auto* list = qobject_cast<ItemList*>(Sibling(list_))) {
        for (const QString& column : columns_.split(u' ', Qt::SkipEmptyParts))
            places.append(mapFromGlobal(list->viewport()->mapToGlobal(QPoint(list->ColumnLeft(column.toInt()), 0))).x());
    } else {
        for (const QString& field : fields_.split(u' ', Qt::SkipEmptyParts))
            if (const QWidget* widget = Sibling(field)) places.append(mapFromGlobal(widget->mapToGlobal(QPoint())).x() + 2);
    }
    return places;
}

QList<int> ColumnHead::SpreadPlaces(const QStringList& texts, const QFontMetrics& metrics) const {
    int room = width();
    for (const QString& text : texts) room -= metrics.size(Qt::TextShowMnemonic, text).width();
    const int gap = texts.size() < 2 ? 0 : room / static_cast<int>(texts.size() - 1);
    QList<int> places;
    int at = 0;
    for (const QString& text : texts) {
        places.append(at);
        at += metrics.size(Qt::TextShowMnemonic, text).width() + gap;
    }
    return places;
}

QStringList ColumnHead::Texts() const {
    static const QRegularExpression blank(QStringLiteral(" +"));
    static const QRegularExpression blanks(QStringLiteral("  +"));
    return caption_.split(words_ ? blank : blanks, Qt::SkipEmptyParts);
}

QFont ColumnHead::HeadFont(const QStringList& texts, const QList<int>& places) const {
    if (list_.isEmpty()) return font();
    constexpr double kLargest = 0.9;
    constexpr double kSmallest = 0.6;
    constexpr double kStep = 0.05;
    const QFontMetrics own(font());
    QFont head = font();
    for (double part = kLargest; part > kSmallest; part -= kStep) {
        head.setPointSizeF(font().pointSizeF() * part);
        // A font that is made only to be measured costs as much as one that is used.
        if (FitBetween(texts, places, own, part * (1 - kRounding)) && FitBetween(texts, places, QFontMetrics(head))) break;
    }
    return head;
}

QList<ColumnHead::Piece> ColumnHead::Pieces() const {
    return LaidOut().pieces;
}

ColumnHead::Layout ColumnHead::LaidOut() const {
    const QStringList texts = Texts();
    QList<int> places = Places();
    const QFont head = HeadFont(texts, places);
    const QFontMetrics metrics(head);
    if (spread_) places = SpreadPlaces(texts, metrics);
    QList<Piece> pieces;
    int end = 0;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        // A piece that has no place of its own, or whose place is taken by a long piece before it, follows after a blank.
        const int x = i < places.size() ? qMax(places[i], end) : end;
        pieces.append({texts[i], x});
        end = x + metrics.size(Qt::TextShowMnemonic, texts[i]).width() + metrics.horizontalAdvance(u' ');
    }
    return {head, pieces};
}

void ColumnHead::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Layout layout = LaidOut();
    const QList<Piece>& pieces = layout.pieces;
    painter.setFont(layout.font);
    int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextShowMnemonic;
    if (style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) == 0) flags |= Qt::TextHideMnemonic;
    if (!list_.isEmpty()) {
        // Heads of narrow columns stand close to each other.
        const int half = painter.fontMetrics().horizontalAdvance(u' ') / 2 + 1;
        painter.setPen(Mixed(palette().color(foregroundRole()), palette().color(backgroundRole()), kLine));
        for (qsizetype i = 1; i < pieces.size(); ++i)
            painter.drawLine(pieces[i].x - half, height() / 5, pieces[i].x - half, height() * 4 / 5);
    }
    for (const Piece& piece : pieces) {
        const QRect place(piece.x, 0, qMax(0, width() - piece.x), height());
        style()->drawItemText(&painter, place, flags, palette(), isEnabled(), piece.text, foregroundRole());
    }
}

bool ColumnHead::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize || event->type() == QEvent::FontChange) update();
    return QWidget::eventFilter(watched, event);
}

void ColumnHead::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (watching_) return;
    watching_ = true;
    if (auto* list = qobject_cast<ItemList*>(Sibling(list_))) {
        list->installEventFilter(this);
        connect(list->horizontalScrollBar(), &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
        connect(list, &ItemList::RowsFitted, this, qOverload<>(&QWidget::update));
    }
    for (const QString& field : fields_.split(u' ', Qt::SkipEmptyParts))
        if (QWidget* widget = Sibling(field)) widget->installEventFilter(this);
}

}  // namespace vatro
