// SPDX-License-Identifier: MIT
#include "lists.h"

#include <algorithm>
#include <utility>

#include "errors.h"

namespace vatro {

ListBox::ListBox(Form& form, std::string_view name, Font font, int columns)
    : Control(form, name), font_(std::move(font)), columns_(columns) {
    Revise();
}

ListBox::ListBox(Form& form, std::string_view name, Font font, ListOrder order) : ListBox(form, name, std::move(font)) {
    order_ = order;
}

void ListBox::Revise() {
    static unsigned last = 0;
    revision_ = ++last;
}

const std::string& ListBox::List(int row) const {
    if (row < 0 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    return Items()[static_cast<std::size_t>(row)];
}

void ListBox::AddItem(std::string text) {
    // std::string compares characters as unsigned values.
    const auto place = order_ == ListOrder::Sorted ? std::upper_bound(items_.begin(), items_.end(), text) : items_.end();
    const int row = static_cast<int>(place - items_.begin());
    items_.insert(place, std::move(text));
    if (listIndex_ >= row) ++listIndex_;
    Revise();
    if (!filling_) Tell(Aspect::ItemAdded, row);
}

void ListBox::RemoveItem(int row) {
    if (row < 0 || row >= static_cast<int>(items_.size())) throw RunTimeError(Failure::InvalidCall);
    items_.erase(items_.begin() + row);
    if (listIndex_ == row)
        listIndex_ = -1;
    else if (listIndex_ > row)
        --listIndex_;
    Revise();
    if (!filling_) Tell(Aspect::ItemRemoved, row);
}

void ListBox::Clear() {
    if (items_.empty() && listIndex_ < 0) return;
    if (filling_ && revision_ == told_) cleared_ = std::move(items_);
    items_.clear();
    Revise();
    listIndex_ = -1;
    if (!filling_) Tell(Aspect::Items);
}

void ListBox::SetListIndex(int row) {
    if (row < -1 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    const bool another = row != listIndex_;
    listIndex_ = row;
    selected_ = filling_;
    if (!filling_) Tell(Aspect::ListIndex);
    if (another && Click) Click();
}

void ListBox::UserSelected(int row) {
    if (row >= 0 && row < ListCount() && row != listIndex_) SetListIndex(row);
}

void ListBox::UserDoubleClicked(int row) {
    UserSelected(row);
    if (Enabled() && DblClick) DblClick();
}

void ListBox::ShowRowsOf(std::shared_ptr<const std::vector<std::string>> rows) {
    shown_ = std::move(rows);
    listIndex_ = -1;
    Revise();
    if (!filling_) Tell(Aspect::Items);
}

void ListBox::OwnerAppended() {
    Revise();
    if (!filling_) Tell(Aspect::ItemAdded, ListCount() - 1);
}

void ListBox::OwnerReplaced(int row) {
    Revise();
    Tell(Aspect::ItemChanged, row);
}

void ListBox::OwnerCleared() {
    listIndex_ = -1;
    Revise();
    if (!filling_) Tell(Aspect::Items);
}

ListBox::Filling::Filling(ListBox& list) : list_(list), outer_(list.filling_), listIndex_(list.listIndex_) {
    if (!outer_) list.told_ = list.revision_;
    list.filling_ = true;
}

ListBox::Filling::~Filling() {
    list_.filling_ = outer_;
    if (outer_) return;
    const auto cleared = std::exchange(list_.cleared_, std::nullopt);
    const bool selected = std::exchange(list_.selected_, false);
    const bool same = list_.revision_ == list_.told_ || (cleared && list_.shown_ == nullptr && *cleared == list_.items_);
    if (!same) list_.Tell(Aspect::Items);
    if (!same || selected || list_.listIndex_ != listIndex_) list_.Tell(Aspect::ListIndex);
}

const std::string& ComboBox::List(int row) const {
    if (row < 0 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    return items_[static_cast<std::size_t>(row)];
}

void ComboBox::AddItem(std::string text) {
    items_.push_back(std::move(text));
    Tell(Aspect::Items);
}

void ComboBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    Tell(Aspect::Items);
    SetText({});
}

void ComboBox::SetListIndex(int row) {
    if (row < -1 || row >= ListCount()) throw RunTimeError(Failure::InvalidCall);
    listIndex_ = row;
    if (row >= 0) TakeText(items_[static_cast<std::size_t>(row)]);
    Tell(Aspect::ListIndex);
    if (Click) Click();
}

}  // namespace vatro
