// SPDX-License-Identifier: MIT
//
// A list view whose rows all have the same size. The place of a row is computed from its number, so that neither a new row nor a repaint
// costs more in a long list than in a short one; Qt's own view lays out every row again after each change.
//
// Looks and behaves as a QListView with uniform item sizes and one selected row. While wrapping is on, it is one.
#pragma once

#include <QListView>
#include <QPersistentModelIndex>

namespace vatro {

class RowView : public QListView {
    Q_OBJECT

public:
    explicit RowView(QWidget* parent = nullptr) : QListView(parent) {}

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& at) const override;
    void doItemsLayout() override;

protected:
    int horizontalOffset() const override;
    int verticalOffset() const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) override;
    void updateGeometries() override;
    void scrollContentsBy(int across, int down) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Whether rows are placed by number.
    bool Plain() const { return !isWrapping(); }
    /// Carries out a layout that is still to be done.
    void Settle() const;
    int Rows() const { return model() != nullptr ? model()->rowCount(rootIndex()) : 0; }
    QModelIndex Row(int row) const { return model()->index(row, modelColumn(), rootIndex()); }
    /// The number of the row at this distance from the top of the first one.
    int RowAt(int y) const { return row_.height() > 0 ? y / row_.height() : 0; }
    /// How many rows fit into the viewport, at least one.
    int RowsInSight() const { return qMax(1, RowAt(viewport()->height())); }
    /// The size that a row needs now; invalid without rows.
    QSize RowSize() const;
    void FitScrollBars();

    /// The size of a row at the last layout.
    QSize row_;
    QPersistentModelIndex hovered_;
    /// Since the last paint: whether the pixels have been moved once, and whether all of them are to be painted anyway. Moving them at
    /// each of a thousand new rows would cost more than painting.
    bool moved_ = false;
    bool stale_ = false;
};

}  // namespace vatro
