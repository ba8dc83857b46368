// SPDX-License-Identifier: MIT
#include "lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListForm : public Form {
public:
    ListForm() : Form("frmList", FormKind::Dialog, "List") {}
    ListBox list{*this, "List1"};
};

/// A list of two rows, of which the second is selected, and what its mirror is told.
class FillingAList : public testing::Test {
protected:
    FillingAList() {
        list.AddItem("OZ1AB");
        list.AddItem("OZ2CD");
        list.SetListIndex(1);
        list.mirror = [this](Aspect aspect, int /*row*/) { told.push_back(aspect); };
    }
    void Fill(const std::vector<std::string>& rows) {
        const ListBox::Filling filling(list);
        list.Clear();
        for (const std::string& row : rows) list.AddItem(row);
    }

    ListForm form;
    ListBox& list = form.list;
    std::vector<Aspect> told;
};

TEST_F(FillingAList, WithOtherRowsIsToldOnce) {
    Fill({"OZ1AB", "OZ3EF"});
    EXPECT_THAT(told, ElementsAre(Aspect::Items, Aspect::ListIndex));
    told.clear();
    Fill({"OZ1AB"});
    EXPECT_THAT(told, ElementsAre(Aspect::Items, Aspect::ListIndex));
    told.clear();
    Fill({});
    EXPECT_THAT(told, ElementsAre(Aspect::Items, Aspect::ListIndex));
}

TEST_F(FillingAList, WithTheRowsThatItHadTellsOnlyThatNoneIsSelected) {
    Fill({"OZ1AB", "OZ2CD"});
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THAT(told, ElementsAre(Aspect::ListIndex));
    told.clear();
    Fill({"OZ1AB", "OZ2CD"});
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(FillingAList, ThatWasAndStaysEmptyTellsNothing) {
    list.Clear();
    told.clear();
    Fill({});
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(FillingAList, TellsOfASelectedRowThatIsToBeSeen) {
    {
        const ListBox::Filling filling(list);
        list.SetListIndex(1);
    }
    EXPECT_THAT(told, ElementsAre(Aspect::ListIndex));
}

TEST_F(FillingAList, ComparesWithTheRowsThatAreShown) {
    {
        const ListBox::Filling filling(list);
        list.AddItem("OZ3EF");
        list.Clear();
        for (const char* row : {"OZ1AB", "OZ2CD", "OZ3EF"}) list.AddItem(row);
    }
    EXPECT_THAT(told, ElementsAre(Aspect::Items, Aspect::ListIndex)) << "three rows where two are shown";
    told.clear();
    {
        const ListBox::Filling filling(list);
        list.RemoveItem(0);
        const ListBox::Filling inner(list);
        list.Clear();
        list.AddItem("OZ2CD");
        list.AddItem("OZ3EF");
    }
    EXPECT_THAT(told, ElementsAre(Aspect::Items, Aspect::ListIndex)) << "two rows where three are shown";
}

TEST_F(FillingAList, WithRowsOfAnotherOwnerIsAlwaysTold) {
    const auto rows = std::make_shared<std::vector<std::string>>(1, "OZ1AB");
    list.ShowRowsOf(rows);
    told.clear();
    {
        const ListBox::Filling filling(list);
        list.OwnerCleared();
    }
    EXPECT_THAT(told, ElementsAre(Aspect::Items, Aspect::ListIndex));
}

}  // namespace
}  // namespace vatro
