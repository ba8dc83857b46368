// SPDX-License-Identifier: MIT
#include "row_view.h"

#include <QAbstractItemDelegate>
#include <QHoverEvent>
#include <QItemSelectionModel>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace vatro {

void RowView::Settle() const {
    // Qt's own views do the same: asking for a place completes the layout.
    const_cast<RowView*>(this)->executeDelayedItemsLayout();
}

QRect RowView::visualRect(const QModelIndex& index) const {
    if (!Plain()) return QListView::visualRect(index);
    Settle();
    if (!index.isValid() || index.row() >= Rows() || index.column() != modelColumn()) return {};
    const int width = qMax(row_.width(), viewport()->width());
    return {-horizontalOffset(), index.row() * row_.height() - verticalOffset(), width, row_.height()};
}

void RowView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!Plain()) return QListView::scrollTo(index, hint);
    const QRect place = visualRect(index);
    if (!place.isValid()) return;
    const QRect area = viewport()->rect();
    if (hint == EnsureVisible) {
        if (place.top() < area.top())
            hint = PositionAtTop;
        else if (place.bottom() > area.bottom())
            hint = PositionAtBottom;
        else
            return viewport()->update(place);
    }
    int top = index.row();
    // At the beginning there are fewer rows above.
    const int above = qMin(RowsInSight(), index.row() + 1);
    if (hint == PositionAtBottom) top -= above - 1;
    if (hint == PositionAtCenter) top -= above / 2;
    verticalScrollBar()->setValue(top);
}

QModelIndex RowView::indexAt(const QPoint& at) const {
    if (!Plain()) return QListView::indexAt(at);
    Settle();
    const int y = at.y() + verticalOffset();
    if (y < 0 || Rows() == 0) return {};
    const QModelIndex index = RowAt(y) < Rows() ? Row(RowAt(y)) : QModelIndex();
    return visualRect(index).contains(at) ? index : QModelIndex();
}

QSize RowView::RowSize() const {
    if (Rows() == 0) return {};
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    // Any row has the size of all.
    return itemDelegate()->sizeHint(option, Row(0));
}

void RowView::rowsInserted(const QModelIndex& parent, int start, int end) {
    Settle();
    if (!Plain() || RowSize() != row_) return QListView::rowsInserted(parent, start, end);
    updateGeometries();
    const int top = qMax(0, visualRect(Row(start)).top());
    viewport()->update(viewport()->rect().adjusted(0, top, 0, 0));
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::rowsInserted(parent, start, end);
}

void RowView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
    Settle();
    if (!Plain() || RowSize() != row_) return QListView::dataChanged(first, last, roles);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::dataChanged(first, last, roles);
}

void RowView::doItemsLayout() {
    if (!Plain()) return QListView::doItemsLayout();
    // A scroll bar that appears resizes the viewport, which must not start another layout.
    const State before = state();
    setState(ExpandingState);
    row_ = RowSize();
    // Calls updateGeometries and repaints the viewport.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::doItemsLayout();
    stale_ = true;
    setState(before);
}

int RowView::horizontalOffset() const {
    return Plain() ? horizontalScrollBar()->value() : QListView::horizontalOffset();
}

int RowView::verticalOffset() const {
    return Plain() ? verticalScrollBar()->value() * row_.height() : QListView::verticalOffset();
}

QModelIndex RowView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (!Plain()) return QListView::moveCursor(action, modifiers);
    Settle();
    const int last = Rows() - 1;
    if (last < 0) return {};
    if (!currentIndex().isValid()) return Row(0);
    int row = currentIndex().row();
    switch (action) {
        case MoveUp:
        case MovePrevious:
            --row;
            break;
        case MoveDown:
        case MoveNext:
            ++row;
            break;
        case MovePageUp:
            // The row at the bottom moves to the top.
            row -= qMax(1, RowsInSight() - 1);
            break;
        case MovePageDown:
            row += qMax(1, RowsInSight() - 1);
            break;
        case MoveHome:
            row = 0;
            break;
        case MoveEnd:
            row = last;
            break;
        case MoveLeft:
        case MoveRight:
            break;
    }
    return Row(qBound(0, row, last));
}

void RowView::setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) {
    if (!Plain()) return QListView::setSelection(area, command);
    const QModelIndex index = indexAt(area.topLeft());
    selectionModel()->select(index.isValid() ? QItemSelection(index, index) : QItemSelection(), command);
}

QRegion RowView::visualRegionForSelection(const QItemSelection& selection) const {
    if (!Plain()) return QListView::visualRegionForSelection(selection);
    QRegion region;
    for (const QItemSelectionRange& range : selection)
        if (range.isValid()) region += visualRect(range.topLeft()).united(visualRect(range.bottomRight())) & viewport()->rect();
    return region;
}

void RowView::FitScrollBars() {
    QScrollBar& down = *verticalScrollBar();
    QScrollBar& across = *horizontalScrollBar();
    if (Rows() == 0 || row_.isEmpty()) {
        across.setRange(0, 0);
        down.setRange(0, 0);
        return;
    }
    // The room without scroll bars. What fits beside the other one needs none; otherwise each could be shown only because of the other.
    const QSize all = contentsRect().size();
    const int height = Rows() * row_.height();
    const int width = all.width() - (height > all.height() ? down.width() : 0);
    const bool fits = row_.width() <= width || horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
    across.setSingleStep(row_.width());
    across.setPageStep(viewport()->width());
    across.setRange(0, fits ? 0 : row_.width() - viewport()->width());
    down.setSingleStep(1);
    down.setPageStep(RowsInSight());
    down.setRange(0, height > viewport()->height() ? Rows() - RowsInSight() : 0);
}

void RowView::updateGeometries() {
    if (!Plain()) return QListView::updateGeometries();
    FitScrollBars();
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::updateGeometries();
    // If one bar goes while the other one is being placed, Qt shows the other one again. Setting the margins places both anew.
    const auto astray = [](const QScrollBar& bar, Qt::ScrollBarPolicy policy) {
        return policy == Qt::ScrollBarAsNeeded && bar.parentWidget()->isHidden() == (bar.maximum() > bar.minimum());
    };
    if (astray(*verticalScrollBar(), verticalScrollBarPolicy()) || astray(*horizontalScrollBar(), horizontalScrollBarPolicy()))
        setViewportMargins(viewportMargins());
}

void RowView::scrollContentsBy(int across, int down) {
    if (!Plain()) return QListView::scrollContentsBy(across, down);
    // Only ends a scroll that a click has announced.
    QListView::scrollContentsBy(0, 0);
    if (stale_) return;
    if (moved_) {
        stale_ = true;
        return viewport()->update();
    }
    moved_ = true;
    scrollDirtyRegion(across, down * row_.height());
    viewport()->scroll(across, down * row_.height());
}

bool RowView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        hovered_ = indexAt(static_cast<QHoverEvent*>(event)->position().toPoint());
    if (event->type() == QEvent::HoverLeave || event->type() == QEvent::Leave) hovered_ = QModelIndex();
    return QListView::viewportEvent(event);
}

void RowView::paintEvent(QPaintEvent* event) {
    moved_ = false;
    stale_ = false;
    if (!Plain()) return QListView::paintEvent(event);
    Settle();
    if (Rows() == 0 || row_.isEmpty()) return;
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State state = option.state;
    const QModelIndex current = hasFocus() || viewport()->hasFocus() ? currentIndex() : QModelIndex();
    if (state.testFlag(QStyle::State_Enabled)) option.palette.setCurrentColorGroup(QPalette::Normal);
    const QRect damaged = event->region().boundingRect().translated(0, verticalOffset());
    const int last = qMin(RowAt(damaged.bottom()), Rows() - 1);
    for (int row = RowAt(qMax(0, damaged.top())); row <= last; ++row) {
        const QModelIndex index = Row(row);
        option.rect = visualRect(index);
        // The damage may be two rows far apart.
        if (!event->region().intersects(option.rect)) continue;
        option.state = state;
        option.state.setFlag(QStyle::State_HasFocus, current.isValid() && index == current);
        option.state.setFlag(QStyle::State_MouseOver, index == hovered_);
        if (alternatingRowColors()) {
            option.features.setFlag(QStyleOptionViewItem::Alternate, row % 2 != 0);
            style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
        }
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
        itemDelegate()->paint(&painter, option, index);
    }
}

}  // namespace vatro
