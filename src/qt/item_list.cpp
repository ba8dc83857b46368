// SPDX-License-Identifier: MIT
#include "item_list.h"

#include <QPainter>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <QTimer>
#include <cmath>

#include "qt_text.h"
#include "signal_colours.h"

namespace vatro {

namespace {

/// Longer lines are shown cut off. Logs have no such lines, but other files may, and laying out a million characters takes seconds.
constexpr std::size_t kMostShown = 4000;

/// What is left of rows that are made to fit: the first part, which is a call and a blank, and the size of the letters.
constexpr int kLeastFirst = 9;
constexpr double kLeastLetters = 0.8;

/// Makes every row as wide as the longest one, so that the scroll bar reaches all of it. Trailing blanks do not count.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (const auto* list = qobject_cast<const ItemList*>(option->widget)) option->text = list->Shown(option->text);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const auto* model = qobject_cast<const ItemModel*>(index.model());
        const int characters = model != nullptr ? model->WidestRow() : 0;
        const QStyle& style = *option.widget->style();
        if (measured_.style != &style || measured_.font != option.font || measured_.dotsPerInch != option.widget->logicalDpiY()) {
            const int height = QStyledItemDelegate::sizeHint(option, index).height();
            measured_ = {&style, option.font, option.widget->logicalDpiY(), height, -1, 0};
        }
        if (measured_.characters != characters) {
            measured_.characters = characters;
            const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
            const double text = QFontMetricsF(option.font).horizontalAdvance(QString(characters, u'0'));
            measured_.width = qRound(text) + 2 * margin;
        }
        const auto* list = qobject_cast<const ItemList*>(option.widget);
        return {measured_.width, list != nullptr ? list->RowHeight(measured_.height) : measured_.height};
    }
    /// To be called when the style has changed.
    void MeasureAnew() { measured_ = {}; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (!option.state.testFlag(QStyle::State_Selected) || option.widget == nullptr || option.widget->hasFocus())
            return QStyledItemDelegate::paint(painter, option, index);
        // While the keys go elsewhere, the selected row is only marked.
        QStyleOptionViewItem quiet = option;
        const QColor text = option.palette.color(QPalette::Text);
        const QColor edge = option.palette.color(QPalette::Highlight);
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            quiet.palette.setColor(group, QPalette::Highlight, PaleHighlight(option.palette));
            quiet.palette.setColor(group, QPalette::HighlightedText, text);
        }
        QStyledItemDelegate::paint(painter, quiet, index);
        painter->save();
        painter->setPen(QPen(edge, 1));
        painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
        painter->restore();
    }

private:
    /// The size of a row, and what it was measured with; all rows are of one size.
    struct Measured {
        const QStyle* style = nullptr;
        QFont font;
        int dotsPerInch = 0;
        int height = 0;
        int characters = -1;
        int width = 0;
    };

    /// Between the background and the colour of a selection, as strong as the text on it permits.
    static QColor PaleHighlight(const QPalette& palette) {
        constexpr double kStrongest = 0.25;
        constexpr double kStep = 0.05;
        constexpr double kLegible = 4.5;
        const QColor ground = palette.color(QPalette::Base);
        for (double part = kStrongest; part > 0; part -= kStep) {
            const QColor pale = Mixed(ground, palette.color(QPalette::Highlight), part);
            if (Contrast(palette.color(QPalette::Text), pale) >= kLegible) return pale;
        }
        return ground;
    }

    mutable Measured measured_;
};

}  // namespace

ItemModel::ItemModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) {
    Reset();
}

int ItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ItemModel::data(const QModelIndex& index, int role) const {
    // The row may be out of range: while the control is being refilled it may hold fewer rows than are shown, and when the user copies
    // without a current row, the view asks for row -1.
    if (role != Qt::DisplayRole || list_ == nullptr || index.row() < 0 || index.row() >= list_->ListCount()) return {};
    const std::string_view text = list_->Items()[static_cast<std::size_t>(index.row())];
    if (text.size() <= kMostShown) return ToQt(text);
    return ToQt(text.substr(0, kMostShown)) + QStringLiteral(" ...");
}

void ItemModel::Reset() {
    beginResetModel();
    rows_ = list_ != nullptr ? list_->ListCount() : 0;
    widest_ = 0;
    for (int row = 0; row < rows_; ++row) Measure(row);
    endResetModel();
}

void ItemModel::Measure(int row) {
    const std::string& text = list_->Items()[static_cast<std::size_t>(row)];
    if (text.size() <= static_cast<std::size_t>(widest_)) return;
    widest_ = qMax(widest_, static_cast<int>(qMin(text.find_last_not_of(' ') + 1, kMostShown)));
}

void ItemModel::Added(int row) {
    beginInsertRows({}, row, row);
    ++rows_;
    Measure(row);
    endInsertRows();
}

void ItemModel::Removed(int row) {
    beginRemoveRows({}, row, row);
    --rows_;
    endRemoveRows();
}

void ItemModel::RowChanged(int row) {
    Measure(row);
    Q_EMIT dataChanged(index(row), index(row), {Qt::DisplayRole});
}

void ItemModel::Release() {
    list_ = nullptr;
    Reset();
}

ItemList::ItemList(QWidget* parent) : RowView(parent) {
    setUniformItemSizes(true);
    setItemDelegate(new RowDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideNone);
}

void ItemList::SetColumns(int columns) {
    columns_ = columns;
    setAlternatingRowColors(columns == 0);
    setWrapping(columns > 0);
    setFlow(TopToBottom);
    setResizeMode(columns > 0 ? Adjust : Fixed);
    FitGrid();
}

int ItemList::ColumnLeft(int column) const {
    // The same margin as the style uses before the text of a row.
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const QFontMetricsF metrics(RowFont());
    const int before = column < second_ ? column - 1 : column - 1 - dropped_;
    return margin - horizontalOffset() + qRound(metrics.horizontalAdvance(QString(qMax(0, before), u'0')));
}

int ItemList::WidthFor(int columns) const {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return margin + qRound(QFontMetricsF(font()).horizontalAdvance(QString(columns, u'0'))) + 2 * frameWidth();
}

void ItemList::FitRows(int width, int columns) {
    const double letter = QFontMetricsF(font()).horizontalAdvance(u'0');
    const double room = (width - WidthFor(0)) / letter;
    int dropped = 0;
    double letters = 1;
    if (width > 0 && room < columns) {
        dropped = qBound(0, static_cast<int>(std::ceil(columns - room)), qMax(0, second_ - 1 - kLeastFirst));
        letters = qBound(kLeastLetters, room / (columns - dropped), 1.0);
    }
    if (dropped == dropped_ && letters == letters_) return;
    dropped_ = dropped;
    letters_ = letters;
    FitGrid();
    scheduleDelayedItemsLayout();
    viewport()->update();
    Q_EMIT RowsFitted();
}

QString ItemList::Shown(const QString& row) const {
    if (dropped_ == 0 || row.size() < second_) return row;
    QString first = row.left(second_ - 1);
    // A longer call keeps a blank after it.
    const QString second = row.mid(second_ - 1);
    while (!first.isEmpty() && first.back() == u' ') first.chop(1);
    return first.leftJustified(qMax(second_ - 1 - dropped_, static_cast<int>(first.size()) + 1)) + second;
}

QFont ItemList::RowFont() const {
    QFont rows = font();
    if (letters_ < 1) rows.setPointSizeF(rows.pointSizeF() * letters_);
    return rows;
}

void ItemList::initViewItemOption(QStyleOptionViewItem* option) const {
    RowView::initViewItemOption(option);
    if (letters_ == 1) return;
    option->font = RowFont();
    option->fontMetrics = QFontMetrics(option->font);
}

QItemSelectionModel::SelectionFlags ItemList::selectionCommand(const QModelIndex& index, const QEvent* /*event*/) const {
    // Never deselect a row without selecting another one, regardless of modifier keys.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ItemList::focusInEvent(QFocusEvent* event) {
    // Bypass the view's own handler, which would make the first row the current one.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void ItemList::resizeEvent(QResizeEvent* event) {
    FitGrid();
    RowView::resizeEvent(event);
    KeepSelectedInSight();
}

void ItemList::changeEvent(QEvent* event) {
    RowView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    if (auto* rows = dynamic_cast<RowDelegate*>(itemDelegate())) rows->MeasureAnew();
    FitGrid();
    KeepSelectedInSight();
}

void ItemList::paintEvent(QPaintEvent* event) {
    RowView::paintEvent(event);
    const QModelIndex selected = Selected();
    selectedSeen_ = selected.isValid() && viewport()->rect().contains(visualRect(selected).center());
}

QModelIndex ItemList::Selected() const {
    const QModelIndexList selected = selectionModel() != nullptr ? selectionModel()->selectedIndexes() : QModelIndexList();
    return selected.isEmpty() ? QModelIndex() : selected.constFirst();
}

void ItemList::KeepSelectedInSight() {
    if (!selectedSeen_) return;
    // The rows are laid out anew after this event.
    QTimer::singleShot(0, this, [this] {
        const QModelIndex selected = Selected();
        if (!selected.isValid()) return;
        scrollTo(selected);
        // The size may change again before the list is painted.
        selectedSeen_ = true;
    });
}

int ItemList::RowHeight(int least) const {
    const int room = viewport()->height();
    return columns_ > 0 || room < least ? least : room / (room / least);
}

void ItemList::FitGrid() {
    if (columns_ <= 0) {
        if (model() != nullptr && model()->rowCount() > 0 && sizeHintForRow(0) != rowHeight_) {
            rowHeight_ = sizeHintForRow(0);
            scheduleDelayedItemsLayout();
        }
        return;
    }
    // A call that runs into the next column would be another call.
    const auto* model = qobject_cast<const ItemModel*>(this->model());
    const int widest = fontMetrics().horizontalAdvance(QString((model != nullptr ? model->WidestRow() : 0) + 2, u'M'));
    const QSize cell(qMax(qMax(1, widest), viewport()->width() / columns_), fontMetrics().height() + 2);
    if (gridSize() != cell) setGridSize(cell);
}

}  // namespace vatro
