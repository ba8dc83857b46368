// SPDX-License-Identifier: MIT
#include "entry/operators.h"
#include "frame/state.h"

#include "running_program.h"

namespace vatro {
namespace {

using namespace literals;
using Lines = std::vector<std::string>;

class Operators : public RunningProgram {
protected:
    Operators() { files.files["DATA\\OPERATOR.TXT"] = {"OZ1DEF Anders", "", "OZ2GHI"}; }

    ComboBox& Box() { return frmMain->operatorBox; }
    /// The key that remains after the box has handled it.
    KeyCode Press(KeyCode key) { return Box().PressKey(key); }
};

TEST_F(Operators, OfALongLineCountOnlySixCharacters) {
    Start();
    EXPECT_EQ(Box().Items(), (Lines{"OZ1DEF", "", "OZ2GHI"}));
    GemOperatører(Box());
    EXPECT_EQ(LinesOf("data\\operator.txt"), (Lines{"OZ1DEF", "", "OZ2GHI"}));
}

TEST_F(Operators, AreShownOnlyWhenAskedFor) {
    Start();
    LæsOperatører(Box(), "");
    EXPECT_EQ(Box().Text(), "");
    LæsOperatører(Box(), "x");
    EXPECT_EQ(Box().Text(), "OZ1DEF");
}

TEST_F(Operators, TheOneShownHasSixCharactersWithItsBlanks) {
    Start();
    desk().gsOperatør = "OZ1A";
    LæsOperatører(Box(), "x");
    EXPECT_EQ(Box().Text(), "OZ1A  ");
}

TEST_F(Operators, AListThatFailsOnTheWayStaysAsFarAsItGot) {
    Start();
    files.FailFrom("read", 2, Failure::DiskNotReady);
    dialogs.Expect("OperatørIndlæsning i fejl.");
    LæsOperatører(Box(), "x");
    EXPECT_EQ(Box().Items(), Lines{"OZ1DEF"});
    EXPECT_EQ(Box().Text(), "");
    EXPECT_FALSE(files.IsOpen());
}

TEST_F(Operators, ANewNameJoinsAtTheEnd) {
    Start();
    Box().SetText("OZ3JKL");
    OperatørTjek(Box(), false);
    EXPECT_EQ(Box().Items(), (Lines{"OZ1DEF", "", "OZ2GHI", "OZ3JKL"}));
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ1DEF");
    OperatørTjek(Box(), true);
    EXPECT_EQ(Box().ListCount(), 4);
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ3JKL");
}

TEST_F(Operators, AnEmptyTextChangesNothing) {
    Start();
    Box().SetText("");
    OperatørTjek(Box(), true);
    EXPECT_EQ(Box().ListCount(), 3);
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ1DEF");
}

TEST_F(Operators, AreComparedByCase) {
    Start();
    Box().SetText("oz1def");
    OperatørTjek(Box(), true);
    EXPECT_EQ(Box().ListCount(), 4);
}

TEST_F(Operators, TheChosenOneIsCutToSixCharacters) {
    Start();
    Box().SetText("OZ3JKLM");
    OperatørValgt(Box());
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ3JKL");
}

TEST_F(Operators, KeysAreTurnedToCapitalsAndFiltered) {
    Start();
    Box().SetText("");
    EXPECT_EQ(Press('a'), 'A');
    EXPECT_EQ(Press(static_cast<unsigned char>("ø"_t[0])), static_cast<unsigned char>("Ø"_t[0]));
    EXPECT_EQ(Press('4'), '4');
    EXPECT_EQ(Press('/'), '/');
    EXPECT_EQ(Press(kBackspace), kBackspace);
    EXPECT_EQ(Press(kEnter), kEnter);
    for (const KeyCode key : {kSpace, kEsc, static_cast<KeyCode>('-'), static_cast<KeyCode>('.')}) EXPECT_EQ(Press(key), kNoKey);
}

TEST_F(Operators, ASeventhKeyPassesAndNoneAfterIt) {
    Start();
    Box().SetText("OZ3JKL");
    EXPECT_EQ(Press('m'), 'M');
    Box().SetText("OZ3JKLM");
    for (const KeyCode key : {static_cast<KeyCode>('N'), kBackspace, kEnter}) EXPECT_EQ(Press(key), kNoKey);
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ1DEF");
}

TEST_F(Operators, EnterTakesTheTextOver) {
    Start();
    Box().SetText("OZ3JKL");
    Press(kEnter);
    EXPECT_EQ(Box().ListCount(), 4);
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ3JKL");
    Box().SetText("");
    Press(kEnter);
    EXPECT_EQ(desk().gsOperatør.Padded(), "OZ3JKL");
}

TEST_F(Operators, AFailureToWriteIsNotCaught) {
    Start();
    files.FailFrom("open", 1, Failure::PermissionDenied);
    EXPECT_THROW(GemOperatører(Box()), RunTimeError);
}

}  // namespace
}  // namespace vatro
