// SPDX-License-Identifier: MIT
#include "words.h"

#include <gtest/gtest.h>

namespace vatro {

TEST(Words, KeyHasItsNameAndWhatIsHeldWithIt) {
    const KeyStroke tab = ReadKey("Shift+Tab");
    EXPECT_EQ(tab.name, "Tab");
    EXPECT_TRUE(tab.shift);
    EXPECT_FALSE(tab.ctrl);
    EXPECT_FALSE(tab.alt);
    const KeyStroke letter = ReadKey("Alt+C");
    EXPECT_EQ(letter.name, "");
    EXPECT_EQ(letter.character, 'C');
    EXPECT_TRUE(letter.alt);
    EXPECT_EQ(ReadKey("F12").name, "F12");
    EXPECT_EQ(ReadKey("+").character, '+');
}

TEST(Words, UnknownKeyIsRefused) {
    for (const char* name : {"", "Return", "F0", "F13", "F1x", "enter", "Hyper+A", "Ctrl+"})
        EXPECT_THROW(ReadKey(name), CannotDeliver) << name;
}

TEST(Words, CharactersAreTypedByTheirKeys) {
    EXPECT_EQ(KeyOf(' ').name, "Space");
    EXPECT_EQ(KeyOf('\r').name, "Enter");
    EXPECT_EQ(KeyOf('\t').name, "Tab");
    EXPECT_EQ(KeyOf('a').character, 'a');
}

TEST(Words, ShortcutIsNamedAsInTheMenu) {
    EXPECT_EQ(ShortcutOf(ReadKey("Ctrl+n")), "Ctrl+N");
    EXPECT_EQ(ShortcutOf(ReadKey("Shift+F5")), "Shift+F5");
    EXPECT_EQ(ShortcutOf(ReadKey("Shift+Ctrl+F1")), "Ctrl+Shift+F1");
}

TEST(Words, SecondsMayHaveFractions) {
    EXPECT_EQ(ReadSeconds("60"), 60000);
    EXPECT_EQ(ReadSeconds("0.1"), 100);
    EXPECT_EQ(ReadSeconds("30.0995"), 30100);
    for (const char* text : {"", "-1", "1s", "nan", "1e3"}) EXPECT_THROW(ReadSeconds(text), CannotDeliver) << text;
}

TEST(Words, TimeIsReadWhole) {
    EXPECT_EQ(ReadDateTime("2026-09-05", "14:05:30"), (DateTime{2026, 9, 5, 14, 5, 30, 0}));
    EXPECT_EQ(ReadDateTime("2026-09-05", "14:05:30.25"), (DateTime{2026, 9, 5, 14, 5, 30, 250}));
    EXPECT_THROW(ReadDateTime("2026-02-29", "14:05:30"), CannotDeliver);
    EXPECT_THROW(ReadDateTime("2026-09-05", "24:00:00"), CannotDeliver);
    EXPECT_THROW(ReadDateTime("2026-09-05", "14:05"), CannotDeliver);
    EXPECT_THROW(ReadDateTime("2026-09-05", "14:05:30."), CannotDeliver);
}

TEST(Words, SwitchIsOnOrOff) {
    EXPECT_TRUE(ReadSwitch("on"));
    EXPECT_FALSE(ReadSwitch("off"));
    EXPECT_THROW(ReadSwitch("On"), CannotDeliver);
}

}  // namespace vatro
