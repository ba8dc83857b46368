// SPDX-License-Identifier: MIT
//
// The program without a mouse: every form is operated with real keys on its window. A new form must be added to this list with
// the keys that close it.
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <set>

#include "by_kind.h"
#include "correction/frmRetQSO.h"
#include "keyer/frmCW.h"
#include "qt/window_program.h"
#include "qt_text.h"

namespace vatro {
namespace {

using namespace literals;

using Letters = std::set<char>;

/// Which keys close a form: Esc, Enter in its first control, or neither.
struct Leaving {
    bool byEsc = false;
    bool byEnter = false;
};

const std::map<std::string, Leaving> kLeaving{
    {"FormQuickInfo", {.byEsc = true}},
    // None of its buttons is the default or the cancel button.
    {"FormRigAnt", {}},
    {"frmAbout", {.byEsc = true, .byEnter = true}},
    {"frmAfslut", {}},
    {"frmB4", {}},
    {"frmCW", {.byEsc = true, .byEnter = true}},
    {"frmCWTX", {.byEsc = true, .byEnter = true}},
    {"frmCall", {.byEsc = true, .byEnter = true}},
    {"frmContestCall", {}},
    {"frmCtyDat", {}},
    {"frmEDR", {}},
    {"frmInfo", {.byEsc = true, .byEnter = true}},
    {"frmMain", {}},
    {"frmNote", {.byEsc = true, .byEnter = true}},
    {"frmNytQSOnr", {.byEsc = true, .byEnter = true}},
    {"frmQSOnr", {}},
    // Esc empties the fields, and Enter logs the contact, which must be complete.
    {"frmRetQSO", {}},
    {"frmSplash", {}},
    {"frmStregP", {}},
    {"frmTilFloppy", {}},
    // OK is not a default button.
    {"frmUTC", {.byEsc = true}},
    {"frmVisTekst", {.byEsc = true, .byEnter = true}},
};

/// Access keys that two controls of a form share, because their captions are prescribed.
const std::map<std::string, Letters> kShared{
    // "F&5:" and "Shift+F&5:", and so on.
    {"frmCW", {'5', '6', '7', '8'}},
    // "&Operatør Call:" and "M&ode:".
    {"frmRetQSO", {'O'}},
};

/// Access keys that entries of a menu share, by the menu's caption. The two logs of a band begin with the same digit.
const std::map<std::string, Letters> kSharedInMenu{
    {"Dan &log", {'1', '2', '4', '5', '8'}},
    {"&Udskriv log...", {'1', '2', '4', '5', '8'}},
};

/// The letters that occur more than once.
Letters Twice(const std::vector<char>& letters) {
    Letters once;
    Letters twice;
    for (const char letter : letters)
        if (letter != 0 && !once.insert(letter).second) twice.insert(letter);
    return twice;
}

Letters Allowed(const std::map<std::string, Letters>& shared, const std::string& name) {
    const auto found = shared.find(name);
    return found == shared.end() ? Letters() : found->second;
}

class Keyboard : public WindowProgram {
protected:
    Keyboard() { StartVatro(); }
    static std::vector<FormSlotBase*> Slots() {
        std::vector<FormSlotBase*> slots;
        for (FormSlotBase* slot : FormSlots())
            if (!slot->Name().starts_with("frmRules") && slot->Name() != "frmWrong") slots.push_back(slot);
        return slots;
    }
    /// Shows the form with texts that let the focus leave every field.
    Form& Open(FormSlotBase& slot) {
        Dispatch([&] {
            slot.Load();
            if (slot.Name() == "frmRetQSO") frmRetQSO->fields[kCallField].SetText("DL1ABC");
            slot.Peek()->Show();
        });
        driver.Settle();
        return *slot.Peek();
    }
    void Leave(FormSlotBase& slot) {
        if (slot.Name() != "frmMain") Dispatch([&] { slot.Unload(); });
        driver.Settle();
    }
    void Press(KeyStroke key) {
        driver.Press(key);
        driver.Settle();
    }
    static bool Usable(const Control& control) { return control.TakesFocus() && control.Enabled() && control.Visible(); }
    static bool Shown(const FormSlotBase& slot) { return slot.Loaded() && slot.Peek()->Visible(); }
};

TEST_F(Keyboard, EveryFormIsToldHowItIsLeft) {
    std::set<std::string> forms;
    for (const FormSlotBase* slot : Slots()) forms.insert(slot->Name());
    std::set<std::string> told;
    for (const auto& [name, leaving] : kLeaving) told.insert(name);
    EXPECT_EQ(forms, told);
}

TEST_F(Keyboard, TabComesByEveryControlAndShiftTabGoesBack) {
    int walked = 0;
    for (FormSlotBase* slot : Slots()) {
        const Form& form = Open(*slot);
        std::vector<const Control*> stops;
        for (const Control* control : form.TabOrder())
            if (Usable(*control) && control->TabStop()) stops.push_back(control);
        // Begins where the form itself puts the focus.
        const auto begin = std::find(stops.begin(), stops.end(), form.ActiveControl());
        if (stops.empty()) {
            Leave(*slot);
            continue;
        }
        ASSERT_NE(begin, stops.end()) << form.Name();
        std::rotate(stops.begin(), begin, stops.end());
        for (std::size_t i = 1; i <= stops.size(); ++i) {
            Press({.name = "Tab"});
            EXPECT_EQ(form.ActiveControl(), stops[i % stops.size()]) << form.Name() << " after " << i << " times Tab";
            EXPECT_TRUE(WidgetOf<QWidget>(*stops[i % stops.size()]).hasFocus()) << stops[i % stops.size()]->FullName();
        }
        for (std::size_t i = stops.size(); i > 0; --i) {
            Press({.name = "Tab", .shift = true});
            EXPECT_EQ(form.ActiveControl(), stops[i - 1]) << form.Name();
        }
        ++walked;
        Leave(*slot);
    }
    EXPECT_GE(walked, 15);
}

TEST_F(Keyboard, WhateverTakesTheFocusIsReached) {
    for (FormSlotBase* slot : Slots()) {
        const Form& form = Open(*slot);
        const std::set<const Control*> order(form.TabOrder().begin(), form.TabOrder().end());
        for (const Control* control : form.Controls()) {
            if (!Usable(*control) || (order.contains(control) && control->TabStop())) continue;
            // Options that are off are reached with the arrow keys, and the sent number is read-only.
            const bool option = As<OptionButton>(control) != nullptr && order.contains(control);
            EXPECT_TRUE(option || control == &frmMain->fields[kNumberSentField]) << form.Name() << "." << control->FullName();
        }
        Leave(*slot);
    }
}

TEST_F(Keyboard, ArrowsLeadToTheOptionsThatAreOff) {
    Open(*FindFormSlot("frmCW"));
    Dispatch([] { frmCW->reportOptions[0].SetFocus(); });
    driver.Settle();
    Press({.name = "Down"});
    EXPECT_EQ(frmCW->ActiveControl(), &frmCW->reportOptions[1]);
    EXPECT_TRUE(frmCW->reportOptions[1].Value());
    Press({.name = "Up"});
    EXPECT_EQ(frmCW->ActiveControl(), &frmCW->reportOptions[0]);
}

TEST_F(Keyboard, EscLeavesWhereItShould) {
    for (FormSlotBase* slot : Slots()) {
        if (slot->Name() == "frmSplash" || slot->Name() == "frmAfslut") continue;
        Open(*slot);
        Press({.name = "Esc"});
        EXPECT_EQ(Shown(*slot), !kLeaving.at(slot->Name()).byEsc) << slot->Name();
        Leave(*slot);
    }
}

TEST_F(Keyboard, EnterLeavesWhereItShould) {
    for (FormSlotBase* slot : Slots()) {
        // In these forms Enter checks the content of the fields first.
        if (slot->Name() == "frmMain" || slot->Name() == "frmRetQSO") continue;
        if (slot->Name() == "frmSplash" || slot->Name() == "frmAfslut") continue;
        Open(*slot);
        Press({.name = "Enter"});
        EXPECT_EQ(Shown(*slot), !kLeaving.at(slot->Name()).byEnter) << slot->Name();
        Leave(*slot);
    }
}

TEST_F(Keyboard, NoTwoControlsOfAFormShareAnAccessKey) {
    for (FormSlotBase* slot : Slots()) {
        Dispatch([&] { slot->Load(); });
        std::vector<char> letters;
        for (const Control* control : slot->Peek()->Controls()) {
            const auto* item = As<MenuItem>(control);
            if (item != nullptr && (item->Menu() != nullptr || !item->Visible())) continue;
            letters.push_back(item != nullptr ? AccessKey(item->Caption()) : control->AccessLetter());
        }
        EXPECT_EQ(Twice(letters), Allowed(kShared, slot->Name())) << slot->Name();
    }
}

TEST_F(Keyboard, NoTwoEntriesOfAMenuShareAnAccessKey) {
    const auto& main = dynamic_cast<QMainWindow&>(*WindowOf(*frmMain).Top());
    int menus = 0;
    // The menus as the window has them, including entries that the front adds.
    for (const QMenu* menu : main.menuBar()->findChildren<QMenu*>()) {
        // Skips Qt's own menu for entries without room, and the menu whose texts the operator writes.
        if (menu->title().isEmpty() || menu->title() == QStringLiteral("C&W")) continue;
        std::vector<char> letters;
        for (const QAction* action : menu->actions())
            if (action->isVisible() && !action->isSeparator()) letters.push_back(AccessKey(FromQt(action->text())));
        EXPECT_EQ(Twice(letters), Allowed(kSharedInMenu, menu->title().toStdString())) << menu->title().toStdString();
        ++menus;
    }
    EXPECT_EQ(menus, 10);
}

TEST_F(Keyboard, EveryMenuOfTheBarOpensByItsLetterAndClosesByEsc) {
    const auto& main = dynamic_cast<QMainWindow&>(*WindowOf(*frmMain).Top());
    for (const auto& [letter, caption] : std::map<char, const char*>{
             {'f', "&Filer"}, {'v', "&Vis"}, {'b', "&Bånd/mode"}, {'i', "&Indstillinger"}, {'k', "Fun&ktioner"}, {'h', "&Hjælp"}}) {
        Press({.name = {}, .character = letter, .alt = true});
        const QWidget* open = QApplication::activePopupWidget();
        ASSERT_NE(open, nullptr) << caption;
        EXPECT_EQ(dynamic_cast<const QMenu&>(*open).title(), QString::fromUtf8(caption));
        Press({.name = "Esc"});
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << caption;
    }
    EXPECT_TRUE(main.isActiveWindow());
    EXPECT_EQ(frmMain->ActiveControl(), &frmMain->fields[kCallField]);
    EXPECT_TRUE(WidgetOf<QWidget>(frmMain->fields[kCallField]).hasFocus());
}

}  // namespace
}  // namespace vatro
