// SPDX-License-Identifier: MIT
//
// Controls with rows of text to choose from.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control.h"
#include "font.h"
#include "text_controls.h"

namespace vatro {

/// Where a list box inserts a new row.
enum class ListOrder {
    /// At the end.
    AsAdded,
    /// Before the first row that is greater by character code.
    Sorted
};

/// Rows of text, of which one may be selected. Rows are numbered from 0; -1 means no selection.
class ListBox : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    explicit ListBox(Form& form, std::string_view name, Font font = {}, int columns = 0);
    /// A list box of one column whose new rows are inserted in this order.
    ListBox(Form& form, std::string_view name, Font font, ListOrder order);
    bool TakesFocus() const override { return true; }
    const Font& ListFont() const { return font_; }
    /// Number of columns over which the rows are distributed; 0 for a plain list with one row per line.
    int ColumnCount() const { return columns_; }

    const std::vector<std::string>& Items() const { return shown_ != nullptr ? *shown_ : items_; }
    int ListCount() const { return static_cast<int>(Items().size()); }
    /// Fails with 5 if there is no such row.
    const std::string& List(int row) const;
    /// Changes with every edit; unique across lists.
    unsigned Revision() const { return revision_; }
    /// Adds a row at the place that ListOrder gives it. The selection stays on the same item.
    void AddItem(std::string text);
    /// Removes a row. The selection stays on the same item, or is cleared if that item is removed. Fails with 5 if there is no such row.
    void RemoveItem(int row);
    void Clear();

    /// Shows rows that another object owns, in their order, instead of rows of its own. The owner reports each change with one of the
    /// three procedures below; those above that change rows are not for such a list.
    void ShowRowsOf(std::shared_ptr<const std::vector<std::string>> rows);
    /// A row was added at the end.
    void OwnerAppended();
    /// The text of a row has changed.
    void OwnerReplaced(int row);
    /// All rows are gone.
    void OwnerCleared();

    /// Suspends the mirror while rows are added or removed; a guard object for use inside one procedure. The mirror is told once, when
    /// the outermost guard is destroyed. It is told nothing if a list that was cleared has been filled with the rows that it had, so that
    /// a list that looks the same after each key is not painted again.
    class Filling {
    public:
        explicit Filling(ListBox& list);
        ~Filling();
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;

    private:
        ListBox& list_;
        bool outer_;
        int listIndex_;
    };

    int ListIndex() const { return listIndex_; }
    /// Selects the row and brings it into view; -1 clears the selection. Runs Click if the selection changes. Fails with 5 if
    /// there is no such row.
    void SetListIndex(int row);

    /// Runs when the user double-clicks a row.
    std::function<void()> DblClick;

    // Called by the front.
    /// The user has selected a row: selects it unless it is selected already. Does nothing if there is no such row.
    void UserSelected(int row);
    void UserDoubleClicked(int row);

private:
    void Revise();

    std::vector<std::string> items_;
    /// The rows of another owner, or none.
    std::shared_ptr<const std::vector<std::string>> shown_;
    unsigned revision_ = 0;
    Font font_;
    int columns_;
    ListOrder order_ = ListOrder::AsAdded;
    int listIndex_ = -1;
    bool filling_ = false;
    /// While filling: the revision that the mirror shows; its rows, if they were cleared; and whether a row has been selected since.
    unsigned told_ = 0;
    std::optional<std::vector<std::string>> cleared_;
    bool selected_ = false;
};

/// Whether the text of a combo box can be edited, or only chosen from the list.
enum class ComboStyle { DropDown, DropDownList };

/// A text field with a list of texts to choose from.
class ComboBox : public TextControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    explicit ComboBox(Form& form, std::string_view name, ComboStyle style = ComboStyle::DropDown) : TextControl(form, name), style_(style) {
        SetLocked(style == ComboStyle::DropDownList);
    }
    /// Whether the text can be edited.
    ComboStyle Style() const { return style_; }

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    /// Fails with 5 if there is no such row.
    const std::string& List(int row) const;
    void AddItem(std::string text);
    /// Removes the items and the text; runs Change if there was any text.
    void Clear();
    int ListIndex() const { return listIndex_; }
    /// Selects the row, takes its item as the text without running Change, then runs Click. -1 clears the selection, keeps the text and
    /// runs Click too. Fails with 5 if there is no such row.
    void SetListIndex(int row);

    // Called by the front.
    void UserPicked(int row) { SetListIndex(row); }

private:
    /// Entering by key selects the text, so that typing replaces it; a click only sets the caret.
    void Entered(FocusWay way) override {
        if (way == FocusWay::Key) SelectAll();
    }

    std::vector<std::string> items_;
    int listIndex_ = -1;
    ComboStyle style_;
};

}  // namespace vatro
