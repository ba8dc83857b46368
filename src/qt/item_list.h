// SPDX-License-Identifier: MIT
//
// The widget of a list box: a view of the control's own rows, without copying them.
#pragma once

#include <QAbstractListModel>
#include <QFont>

#include "controls.h"
#include "row_view.h"

namespace vatro {

/// A model of the rows of a list box; the binding updates it row by row.
class ItemModel : public QAbstractListModel {
    Q_OBJECT

public:
    ItemModel(const ListBox& list, QObject* parent);
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// The control now has a different set of rows.
    void Reset();
    /// The control has gained this row.
    void Added(int row);
    /// The control has lost this row.
    void Removed(int row);
    /// The text of this row has changed.
    void RowChanged(int row);
    /// To be called before the control is destroyed; shows an empty list from then on.
    void Release();
    /// Number of characters in the longest row since the last reset, not counting trailing blanks.
    int WidestRow() const { return widest_; }

private:
    void Measure(int row);

    const ListBox* list_;
    int rows_ = 0;
    int widest_ = 0;
};

class ItemList : public RowView {
    Q_OBJECT
    /// Where the second part of a row begins: the column after the blanks that fill up the first one. 0 in lists without such parts.
    Q_PROPERTY(int second MEMBER second_)

public:
    explicit ItemList(QWidget* parent = nullptr);
    /// Distributes the rows over this number of columns side by side; 0 means a plain list.
    void SetColumns(int columns);
    /// Where a column of the text begins in the viewport, in pixels. Columns are counted from 1, in characters of the list's font.
    int ColumnLeft(int column) const;
    /// The width that rows of this many characters need in the list's own font, with the frame.
    int WidthFor(int columns) const;
    /// Makes rows of `columns` characters fit into this width, with the frame, as far as they stay legible: fewer of the blanks before the
    /// second part of a row, then smaller letters. A width of 0 shows the rows as they are.
    void FitRows(int width, int columns);
    /// A row as FitRows lets it be shown.
    QString Shown(const QString& row) const;
    /// The height of a row that needs `least` pixels: as much more as it takes for whole rows to fill the list.
    int RowHeight(int least) const;
    void keyboardSearch(const QString& /*search*/) override {}

Q_SIGNALS:
    /// The columns of the rows are in other places.
    void RowsFitted();

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QModelIndex Selected() const;
    /// The list has another size, or its rows have.
    void KeepSelectedInSight();
    void FitGrid();
    QFont RowFont() const;

    int columns_ = 0;
    int second_ = 0;
    /// The number of blanks before the second part of a row that are not shown, and the size of the letters.
    int dropped_ = 0;
    double letters_ = 1;
    /// The height that the rows had when the list was last resized.
    int rowHeight_ = 0;
    /// Whether the selected row was in sight when the list was last painted.
    bool selectedSeen_ = false;
};

}  // namespace vatro
