// SPDX-License-Identifier: MIT
//
// What a screen reader hears about each form. Every form of the program is tested, including new ones.
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <map>

#include "dialogs.h"
#include "help_window.h"
#include "item_list.h"
#include "keyer/frmCW.h"
#include "qt/window_program.h"
#include "stations/frmEDR.h"

namespace vatro {
namespace {

using Interfaces = std::vector<QAccessibleInterface*>;

class Accessibility : public WindowProgram {
protected:
    Accessibility() {
        StartVatro();
        Dispatch([] {
            for (FormSlotBase* slot : FormSlots())
                if (!slot->Name().starts_with("frmRules") && slot->Name() != "frmWrong") slot->Load();
            // This form has no caption until it is used.
            VisEDRstns(true);
        });
        driver.Settle();
        for (const Form* form : LoadedForms()) WindowOf(*form).Top()->show();
    }

    /// Everything in the window that can have the focus, except the inner widgets of lists and combo boxes.
    static Interfaces Focusable(QAccessibleInterface& in) {
        Interfaces found;
        if (in.state().focusable && !in.state().invisible) found.push_back(&in);
        if (in.role() == QAccessible::List || in.role() == QAccessible::ComboBox) return found;
        for (int i = 0; i < in.childCount(); ++i) {
            if (in.child(i) == nullptr) continue;
            const Interfaces below = Focusable(*in.child(i));
            found.insert(found.end(), below.begin(), below.end());
        }
        return found;
    }
    Interfaces FocusableOf(const Form& form) const { return Focusable(*QAccessible::queryAccessibleInterface(WindowOf(form).Top())); }
    QAccessibleInterface& Of(const Control& control) const { return *QAccessible::queryAccessibleInterface(&WidgetOf<QWidget>(control)); }
    static std::string NameOf(const QAccessibleInterface& one) { return one.text(QAccessible::Name).toStdString(); }
};

QAccessible::Role RoleOf(const QObject& widget) {
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QPlainTextEdit*>(&widget) != nullptr)
        return QAccessible::EditableText;
    if (qobject_cast<const QComboBox*>(&widget) != nullptr) return QAccessible::ComboBox;
    if (qobject_cast<const ItemList*>(&widget) != nullptr) return QAccessible::List;
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr) return QAccessible::CheckBox;
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr) return QAccessible::RadioButton;
    if (qobject_cast<const QPushButton*>(&widget) != nullptr) return QAccessible::PushButton;
    if (qobject_cast<const QScrollBar*>(&widget) != nullptr) return QAccessible::ScrollBar;
    return QAccessible::NoRole;
}

/// What is announced as a thing of its own, and so needs a name.
bool NeedsName(const QAccessibleInterface& one) {
    switch (one.role()) {
        case QAccessible::Dialog:
        case QAccessible::Window:
        case QAccessible::AlertMessage:
        case QAccessible::Grouping:
        case QAccessible::MenuBar:
        case QAccessible::ToolBar:
        case QAccessible::StatusBar:
        case QAccessible::List:
        case QAccessible::Tree:
        case QAccessible::ComboBox:
        case QAccessible::EditableText:
        case QAccessible::PushButton:
        case QAccessible::CheckBox:
        case QAccessible::RadioButton:
        case QAccessible::MenuItem:
            return true;
        default:
            return one.state().focusable;
    }
}

/// Describes everything in the tree that a test does not want to find.
template <class Unwanted>
std::string Search(QAccessibleInterface& in, const Unwanted& unwanted, const std::string& road = {}) {
    const std::string here =
        road + "/" + (in.object() != nullptr ? in.object()->metaObject()->className() : "?") + in.text(QAccessible::Name).toStdString();
    std::string found = unwanted(in) ? here + "\n" : "";
    for (int i = 0; i < in.childCount(); ++i)
        if (in.child(i) != nullptr) found += Search(*in.child(i), unwanted, here);
    return found;
}

bool Nameless(const QAccessibleInterface& one) {
    return !one.state().invisible && NeedsName(one) && one.text(QAccessible::Name).trimmed().isEmpty();
}

std::string NamelessIn(QWidget& window) {
    return Search(*QAccessible::queryAccessibleInterface(&window), Nameless);
}

TEST_F(Accessibility, NamesEverythingThatIsAnnounced) {
    for (const Form* form : LoadedForms()) EXPECT_EQ(NamelessIn(*WindowOf(*form).Top()), "") << form->Name();
}

TEST_F(Accessibility, NamesEveryBoxAndEverythingInIt) {
    for (const Buttons buttons : {Buttons::Ok, Buttons::YesNo}) {
        MessageBox box;
        box.text = "?";
        box.buttons = buttons;
        box.icon = Icon::Question;
        const std::unique_ptr<QMessageBox> made(MakeBox(box, nullptr));
        made->show();
        EXPECT_EQ(NamelessIn(*made), "");
    }
}

TEST_F(Accessibility, NamesEverythingOfTheHandbook) {
    HelpWindow handbook;
    handbook.ShowPage(QStringLiteral("indhold.html"));
    EXPECT_EQ(NamelessIn(handbook), "");
}

TEST_F(Accessibility, NamesNothingAfterTheHiddenBand) {
    const auto hidden = [](const QAccessibleInterface& one) { return one.text(QAccessible::Name) == QStringLiteral("XXm"); };
    for (const Form* form : LoadedForms())
        EXPECT_EQ(Search(*QAccessible::queryAccessibleInterface(WindowOf(*form).Top()), hidden), "") << form->Name();
    // Qt lists the entries of a menu only while something asks for them.
    const auto menus = WindowOf(*frmMain).Top()->findChildren<QMenu*>();
    EXPECT_GT(menus.size(), 7);
    for (QMenu* menu : menus) EXPECT_EQ(Search(*QAccessible::queryAccessibleInterface(menu), hidden), "");
}

TEST_F(Accessibility, FramesAreGroupsNamedAfterTheirCaption) {
    EXPECT_EQ(Of(frmMain->operatorFrame).role(), QAccessible::Grouping);
    EXPECT_EQ(NameOf(Of(frmMain->operatorFrame)), "Operatør Call:");
}

TEST_F(Accessibility, FindsEveryControlThatTakesTheFocus) {
    std::size_t forms = 0;
    for (const Form* form : LoadedForms()) {
        std::map<const QObject*, int> found;
        for (const QAccessibleInterface* one : FocusableOf(*form)) ++found[one->object()];
        std::size_t controls = 0;
        for (const Control* control : form->Controls()) {
            if (!control->TakesFocus() || !control->Visible() || !control->Enabled()) continue;
            ++controls;
            EXPECT_EQ(found[&WidgetOf<QWidget>(*control)], 1) << form->Name() << "." << control->FullName();
        }
        EXPECT_EQ(found.size(), controls) << form->Name();
        ++forms;
    }
    EXPECT_GE(forms, 22U);
}

TEST_F(Accessibility, NamesEveryControlThatTakesTheFocus) {
    for (const Form* form : LoadedForms())
        for (const QAccessibleInterface* one : FocusableOf(*form)) {
            const std::string name = NameOf(*one);
            EXPECT_NE(name, "") << form->Name() << "." << one->object()->objectName().toStdString();
            EXPECT_EQ(name.find('&'), std::string::npos) << name;
            EXPECT_FALSE(name.ends_with(':')) << name;
        }
}

TEST_F(Accessibility, NamesNoTwoControlsOfAFormAlike) {
    for (const Form* form : LoadedForms()) {
        std::map<std::string, std::string> owners;
        for (const QAccessibleInterface* one : FocusableOf(*form)) {
            const std::string object = one->object()->objectName().toStdString();
            const auto [at, fresh] = owners.emplace(NameOf(*one), object);
            EXPECT_TRUE(fresh) << form->Name() << ": " << object << " and " << at->second << " are both called " << at->first;
        }
    }
}

TEST_F(Accessibility, TellsWhatKindEachControlIs) {
    for (const Form* form : LoadedForms())
        for (const QAccessibleInterface* one : FocusableOf(*form)) {
            EXPECT_NE(RoleOf(*one->object()), QAccessible::NoRole) << one->object()->objectName().toStdString();
            EXPECT_EQ(one->role(), RoleOf(*one->object())) << form->Name() << "." << one->object()->objectName().toStdString();
        }
}

TEST_F(Accessibility, ComboBoxTellsItsNameAndItsText) {
    Dispatch([] { frmMain->operatorBox.SetText("OZ7XYZ"); });
    const QAccessibleInterface& combo = Of(frmMain->operatorBox);
    EXPECT_EQ(NameOf(combo), "Operatør Call");
    EXPECT_EQ(combo.text(QAccessible::Value), QStringLiteral("OZ7XYZ"));
    EXPECT_TRUE(combo.state().editable);
    ASSERT_EQ(combo.childCount(), 2);
    EXPECT_EQ(NameOf(*combo.child(1)), "Operatør Call");
    EXPECT_EQ(combo.child(0)->role(), QAccessible::List);
    EXPECT_EQ(combo.indexOfChild(combo.child(1)), 1);
}

TEST_F(Accessibility, OptionIsTurnedOnByTheReader) {
    Dispatch([] { frmCW->Show(); });
    EXPECT_TRUE(Of(frmCW->reportOptions[0]).state().checked);
    QAccessibleInterface& other = Of(frmCW->reportOptions[1]);
    EXPECT_FALSE(other.state().checked);
    other.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(frmCW->reportOptions[1].Value());
    EXPECT_TRUE(other.state().checked);
    EXPECT_FALSE(Of(frmCW->reportOptions[0]).state().checked);
}

TEST_F(Accessibility, ReadOnlyFieldsSaySo) {
    EXPECT_TRUE(Of(frmMain->fields[kNumberSentField]).state().readOnly);
    EXPECT_FALSE(Of(frmMain->fields[kCallField]).state().readOnly);
}

}  // namespace
}  // namespace vatro
