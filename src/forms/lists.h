// SPDX-License-Identifier: MIT
//
// Controls with rows of text to choose from.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "control.h"
#include "font.h"
#include "text_controls.h"

namespace vatro {

/// Where an added row of a list box goes.
enum class ListOrder {
    /// To the end.
    AsAdded,
    /// Before the first row that is greater by character code.
    Sorted
};

/// Rows of text of which one may be selected. Row numbers start at 0; no selection is -1.
class ListBox : public Control {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    explicit ListBox(Form& form, std::string_view name, Font font = {}, int columns = 0);
    ListBox(Form& form, std::string_view name, Font font, ListOrder order);
    bool TakesFocus() const override { return true; }
    const Font& ListFont() const { return font_; }
    /// Number of columns in which the rows run on, 0 for one row under the other.
    int ColumnCount() const { return columns_; }

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    /// Fails with 5 if there is no such row.
    const std::string& List(int row) const;
    /// Another number after every change of the rows; no two lists ever have the same.
    unsigned Revision() const { return revision_; }
    /// Fails with 5 if there is no such row. It stays in its place, in a sorted list too.
    void SetList(int row, std::string_view text);
    /// The selection stays on its item.
    void AddItem(std::string text);
    /// Fails with 5 if there is no such row. The selection stays on its item; it is gone if its item is.
    void RemoveItem(int row);
    void Clear();
    /// Keeps the mirror still until the end of a run of changes; a guard object of one procedure.
    class Filling {
    public:
        explicit Filling(ListBox& list);
        ~Filling();
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;

    private:
        ListBox& list_;
        bool outer_;
    };

    int ListIndex() const { return listIndex_; }
    /// Fails with 5 if there is no such row; -1 is no selection. Brings the row into view; runs Click if the selection has
    /// become another one.
    void SetListIndex(int row);

    std::function<void()> DblClick;

    // From the front.
    void UserSelected(int row);
    void UserDoubleClicked(int row);

private:
    void Revise();

    std::vector<std::string> items_;
    unsigned revision_ = 0;
    Font font_;
    int columns_;
    ListOrder order_ = ListOrder::AsAdded;
    int listIndex_ = -1;
    bool filling_ = false;
};

/// Whether the text of a combo box can be edited or only be chosen.
enum class ComboStyle { DropDown, DropDownList };

/// A text field with a list of texts to choose from.
class ComboBox : public TextControl {
public:
    ControlKind Kind() override { return this; }
    ReadOnlyControlKind Kind() const override { return this; }
    explicit ComboBox(Form& form, std::string_view name, ComboStyle style = ComboStyle::DropDown) : TextControl(form, name), style_(style) {
        SetLocked(style == ComboStyle::DropDownList);
    }
    ComboStyle Style() const { return style_; }

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int row) const;
    void AddItem(std::string text);
    /// Removes the items and the text; Change runs if there was one.
    void Clear();
    int ListIndex() const { return listIndex_; }
    /// Fails with 5 if there is no such row; -1 leaves the text. Takes the item over as the text without a Change and runs Click.
    void SetListIndex(int row);

    // From the front.
    void UserPicked(int row) { SetListIndex(row); }

private:
    /// Its text is selected, so that what is typed takes its place; a click only sets the caret.
    void Entered(FocusWay way) override {
        if (way == FocusWay::Key) SelectAll();
    }

    std::vector<std::string> items_;
    int listIndex_ = -1;
    ComboStyle style_;
};

}  // namespace vatro
