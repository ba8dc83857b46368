// SPDX-License-Identifier: MIT
#include "numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

#include "errors.h"

namespace vatro {
namespace {

template <class Call>
int FailureOfCall(Call call) {
    try {
        call();
    } catch (const RunTimeError& failure) {
        return failure.Number();
    }
    return 0;
}

TEST(NumericValue, IsTheLeadingNumber) {
    EXPECT_EQ(NumericValue("0345"), 345);
    EXPECT_EQ(NumericValue("12QSO"), 12);
    EXPECT_EQ(NumericValue("-11"), -11);
    EXPECT_EQ(NumericValue("+7"), 7);
    EXPECT_EQ(NumericValue("1.5"), 1.5);
    EXPECT_EQ(NumericValue(".5"), 0.5);
    EXPECT_EQ(NumericValue("5."), 5);
    EXPECT_EQ(NumericValue("-010.07"), -10.07);
    EXPECT_EQ(NumericValue("  - 1.30"), -1.3);
    EXPECT_EQ(NumericValue("-.00000003"), -3e-8);
}

TEST(NumericValue, OfAShortTextIsThatOfALongOne) {
    // With blanks added, the text is too long for the fast path.
    for (int number = 0; number < 100'000; number += 7) {
        std::string text = std::to_string(number);
        text.insert(text.size() / 2, ".");
        EXPECT_EQ(NumericValue(text), NumericValue(text + "          ")) << text;
    }
}

TEST(NumericValue, IsZeroWithoutALeadingNumber) {
    for (const char* text : {"", "   ", "OZ1AB", "TT1", "-", "-0", "+-5", "--5", ".", "-.", "e5", "inf", "nan", "-inf", "&H10"})
        EXPECT_EQ(NumericValue(text), 0) << text;
}

TEST(NumericValue, SkipsBlanksWhereverTheyStand) {
    EXPECT_EQ(NumericValue("  3"), 3);
    EXPECT_EQ(NumericValue("1 2 3"), 123);
    EXPECT_EQ(NumericValue(" - 1 . 5 e 2 "), -150);
    EXPECT_EQ(NumericValue("\t1\n2"), 12);
}

TEST(NumericValue, TakesExponentsWithEitherLetter) {
    EXPECT_EQ(NumericValue("1e3"), 1000);
    EXPECT_EQ(NumericValue("1E+3"), 1000);
    EXPECT_EQ(NumericValue("25d-1"), 2.5);
    EXPECT_EQ(NumericValue("25D1x"), 250);
    // An exponent without digits is ignored.
    EXPECT_EQ(NumericValue("5e"), 5);
    EXPECT_EQ(NumericValue("5e+"), 5);
    EXPECT_EQ(NumericValue("5E-+2"), 5);
}

TEST(NumericValue, StopsAtASecondPointAndAtTheComma) {
    EXPECT_EQ(NumericValue("1.2.3"), 1.2);
    EXPECT_EQ(NumericValue("1,5"), 1);
    EXPECT_EQ(NumericValue("5-3"), 5);
}

TEST(NumericValue, NeverFailsOnNumbersBeyondTheRange) {
    EXPECT_TRUE(std::isinf(NumericValue("1e999")));
    EXPECT_LT(NumericValue("-1e999"), -1e308);
    EXPECT_EQ(NumericValue("1e-999"), 0);
    EXPECT_EQ(NumericValue("0." + std::string(400, '0') + "1"), 0);
    EXPECT_TRUE(std::isinf(NumericValue(std::string(400, '9'))));
    EXPECT_EQ(NumericValue("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_TRUE(std::isinf(NumericValue("1e99999999999999999999")));
    EXPECT_EQ(NumericValue("1e-99999999999999999999"), 0);
}

TEST(NumericValue, KnowsOnlyThePointWhateverTheLocaleOfTheProcess) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "da_DK.UTF-8") == nullptr) std::setlocale(LC_ALL, "C.UTF-8");
    EXPECT_EQ(NumericValue("1.5"), 1.5);
    EXPECT_EQ(NumericValue("1,5"), 1);
    EXPECT_EQ(ZeroPadded(1234567.0, 4), "1234567");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(IsNumeric, TakesWholeNumbersInEveryForm) {
    for (const char* text : {"0", "0012", " 12 ", "1 2", "-5", "+5", "- 5", "1.5", ".5", "5.", "1e3", "1E-3", "1d2", "1 e - 3"})
        EXPECT_TRUE(IsNumeric(text)) << text;
}

TEST(IsNumeric, RefusesEverythingElse) {
    for (const char* text : {"",      " ",   "-",   "+",   ".",     "-.",  "1e",  "1e+", "e3",   "12a",  "5-",   "5+",   "5 -",
                             "1.2.3", "-5-", "--5", "1,5", "1,000", "TT1", "inf", "nan", "0x10", "&H10", "1e3-", "1e999"})
        EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_FALSE(IsNumeric(std::string_view("1\0", 2)));
}

TEST(ToNumber, IsTheNumberOrATypeMismatch) {
    EXPECT_EQ(ToNumber(" 0012 "), 12);
    EXPECT_EQ(ToNumber(" - 5"), -5);
    EXPECT_EQ(FailureOfCall([] { ToNumber("5-"); }), 13);
    EXPECT_EQ(ToNumber("1e3"), 1000);
    EXPECT_EQ(ToNumber("-2.5"), -2.5);
    EXPECT_EQ(FailureOfCall([] { ToNumber("12 QSO"); }), 13);
    EXPECT_EQ(FailureOfCall([] { ToNumber(""); }), 13);
}

TEST(ToInt, RoundsAHalfToTheEvenNeighbour) {
    EXPECT_EQ(ToInt16(0.5), 0);
    EXPECT_EQ(ToInt16(1.5), 2);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(-0.5), 0);
    EXPECT_EQ(ToInt16(-1.5), -2);
    EXPECT_EQ(ToInt16(-2.5), -2);
    EXPECT_EQ(ToInt16(2.51), 3);
    EXPECT_EQ(ToInt32(-2.49), -2);
}

TEST(ToInt, OverflowsOutsideTheTypesRange) {
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(FailureOfCall([] { ToInt16(32767.5); }), 6);
    EXPECT_EQ(FailureOfCall([] { ToInt16(-32768.6); }), 6);
    EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(FailureOfCall([] { ToInt32(2147483648.0); }), 6);
    EXPECT_EQ(FailureOfCall([] { ToInt32(NumericValue("1e999")); }), 6);
    // The largest 32-bit float is a little more than 3.4e38.
    EXPECT_EQ(ToFloat32(-1.5), -1.5F);
    EXPECT_EQ(ToFloat32(3.4e38), 3.4e38F);
    for (const double large : {3.5e38, -3.5e38, NumericValue("1e999")}) EXPECT_EQ(FailureOfCall([=] { ToFloat32(large); }), 6);
    EXPECT_EQ(FailureOfCall([] { ToInt16(std::nan("")); }), 6);
}

TEST(PlainNumber, IsDecimalWithoutOrnament) {
    EXPECT_EQ(PlainNumber(0), "0");
    EXPECT_EQ(PlainNumber(-12), "-12");
    EXPECT_EQ(PlainNumber(-9223372036854775807LL - 1), "-9223372036854775808");
}

TEST(ZeroPadded, FillsWithZerosAndKeepsAllDigits) {
    EXPECT_EQ(ZeroPadded(12.0, 4), "0012");
    EXPECT_EQ(ZeroPadded(0.0, 4), "0000");
    EXPECT_EQ(ZeroPadded(10000.0, 4), "10000");
    EXPECT_EQ(ZeroPadded(-5.0, 4), "-0005");
    EXPECT_EQ(ZeroPadded(7.0, 1), "7");
    EXPECT_EQ(ZeroPadded(999999999.0, 4), "999999999");
    EXPECT_EQ(ZeroPadded(-1e9, 4), "-1000000000");
    EXPECT_EQ(ZeroPadded(1e21, 4), "1000000000000000000000");
}

TEST(ZeroPadded, RoundsAHalfAwayFromZero) {
    EXPECT_EQ(ZeroPadded(2.5, 4), "0003");
    EXPECT_EQ(ZeroPadded(-2.5, 1), "-3");
    EXPECT_EQ(ZeroPadded(0.4, 2), "00");
    EXPECT_EQ(ZeroPadded(-0.4, 2), "00");
}

TEST(ZeroPadded, OfATextLeavesWhatIsNoNumber) {
    EXPECT_EQ(ZeroPadded(" 12", 4), "0012");
    EXPECT_EQ(ZeroPadded("1e3", 4), "1000");
    EXPECT_EQ(ZeroPadded("TT1", 4), "TT1");
    EXPECT_EQ(ZeroPadded("", 4), "");
}

TEST(NumberText, StandsBehindABlankOrItsSign) {
    EXPECT_EQ(NumberText(0), " 0");
    EXPECT_EQ(NumberText(120), " 120");
    EXPECT_EQ(NumberText(-7), "-7");
}

TEST(InTemplate, RightAlignsTheNumberWithItsLeadingBlank) {
    EXPECT_EQ(InTemplate("@@@@@", 120), "  120");
    EXPECT_EQ(InTemplate("@@@@@@", 0), "     0");
    EXPECT_EQ(InTemplate("@@@@@", -120), " -120");
    EXPECT_EQ(InTemplate("@@@@", 120), " 120");
}

TEST(InTemplate, LeavesEveryOtherCharacterInItsPlace) {
    EXPECT_EQ(InTemplate("       @@@@@ x ", 12), "          12 x ");
    EXPECT_EQ(InTemplate("@@@@@@ = ", 4711), "  4711 = ");
    EXPECT_EQ(InTemplate("@-@@", 12), " -12");
}

TEST(InTemplate, KeepsAllCharactersOfANumberThatIsTooLong) {
    EXPECT_EQ(InTemplate("@@@", 120), " 120");
    EXPECT_EQ(InTemplate("@@@ x ", 123456), " 123456 x ");
    EXPECT_EQ(InTemplate("  @@", 123), "   123");
    EXPECT_EQ(InTemplate("x", 1), "x 1");
}

}  // namespace
}  // namespace vatro
