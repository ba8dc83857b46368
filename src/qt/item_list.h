// SPDX-License-Identifier: MIT
//
// The list box on the screen: a view on the control's own rows, which are never copied.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "controls.h"

namespace vatro {

/// The rows of a list box, changed row by row as the control tells it.
class ItemModel : public QAbstractListModel {
    Q_OBJECT

public:
    ItemModel(const ListBox& list, QObject* parent);
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// The control has another set of rows.
    void Reset();
    /// The control has one row more, and this is it.
    void Added(int row);
    /// The control has no longer the row that was this.
    void Removed(int row);
    void RowChanged(int row);
    /// The control is going away; what is shown of it goes too.
    void Release();
    /// Characters of the longest row there has been since the last reset, without blanks at its end.
    int WidestRow() const { return widest_; }

private:
    void Measure(int row);

    const ListBox* list_;
    int rows_ = 0;
    int widest_ = 0;
};

class ItemList : public QListView {
    Q_OBJECT

public:
    explicit ItemList(QWidget* parent = nullptr);
    /// Rows run on in so many columns side by side; 0 is one row under the other.
    void SetColumns(int columns);
    /// Where a column of the text begins, in the viewport, counted from 1 in characters of the list's font.
    int ColumnLeft(int column) const;
    void keyboardSearch(const QString& /*search*/) override {}

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FitGrid();

    int columns_ = 0;
};

}  // namespace vatro
