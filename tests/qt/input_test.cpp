// SPDX-License-Identifier: MIT
//
// Ways of input that the scenarios do not cover: input methods, undo, paste from the context menu, the keypad.
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "item_list.h"
#include "qt/window_program.h"

namespace vatro {

class WaysIn : public WindowProgram {
protected:
    WaysIn() { StartRules(); }
    QLineEdit& Field(std::size_t index) const { return WidgetOf<QLineEdit>(frmRules->Text1[index]); }
    QWindow* Window() const { return WindowOf(*frmRules).Top()->windowHandle(); }
    void Commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&Field(0), &event);
    }
    using Lines = std::vector<std::string>;
};

TEST_F(WaysIn, MethodsBringEachCharacterAsAKey) {
    Commit(QStringLiteral("aæ"));
    EXPECT_EQ(happenings.lines, (Lines{"KeyPress Text1(0) 97", "Change Text1(0) a", "KeyPress Text1(0) 230", "Change Text1(0) a\xE6"}));
    EXPECT_EQ(Field(0).text(), QStringLiteral("aæ"));
}

TEST_F(WaysIn, MethodsBringNothingThatKeyPressRefuses) {
    happenings.keyFilter = [](KeyCode& key) { key = kNoKey; };
    Commit(QStringLiteral("ab"));
    EXPECT_EQ(Field(0).text(), QString());
}

TEST_F(WaysIn, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    Commit(QStringLiteral("Ж"));
    QApplication::clipboard()->setText(QStringLiteral("x→y"));
    QTest::keyClick(Window(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(frmRules->Text1[0].Text(), "?x?y");
    EXPECT_EQ(Field(0).text(), QStringLiteral("?x?y"));
}

TEST_F(WaysIn, PasteTakesTheFirstLineAlone) {
    QApplication::clipboard()->setText(QStringLiteral("one\r\ntwo"));
    QTest::keyClick(Window(), Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(frmRules->Text1[0].Text(), "one");
}

TEST_F(WaysIn, PasteOfTheContextMenuKeepsTheLimit) {
    QApplication::clipboard()->setText(QStringLiteral("123456789"));
    Field(1).paste();
    EXPECT_EQ(frmRules->Text1[1].Text(), "12345");
}

TEST_F(WaysIn, UndoIsAChange) {
    QTest::keyClicks(&Field(0), QStringLiteral("a"));
    happenings.lines.clear();
    QTest::keyClick(Window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(happenings.lines, (Lines{"Change Text1(0) "}));
}

TEST_F(WaysIn, EnterOfTheKeypadIsEnter) {
    QTest::keyClick(Window(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(happenings.lines, (Lines{"Click Command1"}));
}

TEST_F(WaysIn, KeysThatLeadNowhereTypeNothing) {
    for (const Qt::KeyboardModifier held : {Qt::AltModifier, Qt::MetaModifier}) {
        QTest::sendKeyEvent(QTest::Click, &Field(0), Qt::Key_J, QStringLiteral("j"), held);
        EXPECT_EQ(Field(0).text(), QString());
    }
    EXPECT_EQ(happenings.lines, Lines{});
}

TEST_F(WaysIn, CopyingFromAListWithoutACurrentRowCopiesNothing) {
    ItemList list;
    ListBox& control = frmRules->List1;
    control.Clear();
    ItemModel model(control, nullptr);
    list.setModel(&model);
    EXPECT_FALSE(model.data(QModelIndex(), Qt::DisplayRole).isValid());
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
}

TEST_F(WaysIn, SelectionByTheUserIsTheControls) {
    QTest::keyClicks(&Field(0), QStringLiteral("abcd"));
    QTest::keyClick(Window(), Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(Window(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(frmRules->Text1[0].SelStart(), 2);
    EXPECT_EQ(frmRules->Text1[0].SelLength(), 2);
    QTest::keyClick(Window(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(frmRules->Text1[0].SelStart(), 1);
    EXPECT_EQ(frmRules->Text1[0].SelLength(), 3);
}

TEST_F(WaysIn, ComingByTabSelectsNothingByItself) {
    Dispatch([] { frmRules->Text1[1].SetText("abc"); });
    QTest::keyClick(Window(), Qt::Key_Tab);
    EXPECT_EQ(Field(1).selectedText(), QString());
    EXPECT_EQ(frmRules->Text1[1].SelLength(), 0);
}

TEST_F(WaysIn, SelectionOfTheHandlerOutlivesTheClickThatBroughtTheFocus) {
    Dispatch([] { frmRules->Text1[1].SetText("abc"); });
    happenings.reactions["GotFocus Text1(1)"] = [] { frmRules->Text1[1].SelectAll(); };
    driver.Focus(frmRules->Text1[1]);
    EXPECT_EQ(Field(1).selectedText(), QStringLiteral("abc"));
    driver.Focus(frmRules->Text1[1]);
    EXPECT_EQ(Field(1).selectedText(), QString());
}

TEST_F(WaysIn, AnotherProgramInFrontIsNoLossOfFocus) {
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&Field(0), &out);
    QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&Field(0), &in);
    EXPECT_EQ(happenings.lines, (Lines{}));
    EXPECT_EQ(frmRules->ActiveControl(), &frmRules->Text1[0]);
}

TEST_F(WaysIn, ListAddsARowWithoutShowingTheOthersAnew) {
    auto& list = WidgetOf<ItemList>(frmRules->List1);
    const QObject here;
    int resets = 0;
    int added = 0;
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &here, [&] { ++resets; });
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &here,
                     [&](const QModelIndex&, int first, int last) { added += last - first + 1; });
    Dispatch([] { frmRules->List1.AddItem("four"); });
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(added, 1);
    EXPECT_EQ(list.model()->index(3, 0).data().toString(), QStringLiteral("four"));
}

TEST_F(WaysIn, ListShowsAChangedRowWithoutShowingTheOthersAnew) {
    auto& list = WidgetOf<ItemList>(frmRules->List1);
    const auto rows = std::make_shared<std::vector<std::string>>(3, "row");
    Dispatch([&] { frmRules->List1.ShowRowsOf(rows); });
    const QObject here;
    int resets = 0;
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &here, [&] { ++resets; });
    Dispatch([&] {
        rows->front() = "ONE";
        frmRules->List1.OwnerReplaced(0);
        rows->emplace_back("four");
        frmRules->List1.OwnerAppended();
    });
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), QStringLiteral("ONE"));
    EXPECT_EQ(list.model()->index(3, 0).data().toString(), QStringLiteral("four"));
}

TEST_F(WaysIn, ListIsFilledAsAWhole) {
    auto& list = WidgetOf<ItemList>(frmRules->List1);
    const QObject here;
    int changes = 0;
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &here, [&] { ++changes; });
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &here, [&] { ++changes; });
    Dispatch([] {
        const ListBox::Filling filling(frmRules->List1);
        frmRules->List1.Clear();
        for (int i = 0; i < 1000; ++i) frmRules->List1.AddItem(std::to_string(i));
        frmRules->List1.SetListIndex(999);
    });
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(list.currentIndex().row(), 999);
    EXPECT_TRUE(list.viewport()->rect().intersects(list.visualRect(list.currentIndex())));
}

}  // namespace vatro
