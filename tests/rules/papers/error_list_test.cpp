// SPDX-License-Identifier: MIT
#include "papers/error_list.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "paper_lines.h"

namespace vatro {
namespace {

using ::testing::ElementsAre;

const std::string kFaultless = "       - Der er ikke fundet fejl i denne log.";
const std::string kErrorColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";

class ErrorLists : public Papers {
protected:
    ErrorLists() {
        tables.BeginCountries();
        for (const char* line : {"DL        Fed. Rep. of Germany     EU -1 ", "G         England                  EU 0  ",
                                 "OZ        Denmark                  EU -1 ", "VK        Australia                OC -10"})
            tables.ReadCountry(line);
        tables.BeginPrefixes();
        for (const char* line :
             {"DL        DL        14 28", "G         G         14 27", "OZ        OZ        14 18", "VK        VK        30 59"})
            tables.ReadPrefix(line);
        tables.IndexPrefixes();
        stations.Read("OZ1ABC Test, formand");
    }

    /// The part of the error list for a log that is checked after the earlier ones.
    Lines SectionOf(std::string_view band, std::string_view mode) {
        ErrorList checker(WorkedCountries(tables), stations);
        WrittenLines section;
        for (const LogId& log : kPaperOrder) {
            section.lines.clear();
            ListedLines lines(logs.logs[std::string(log.band).append(log.mode)]);
            try {
                checker.DanFejlListKrop(lines, section, context, log);
            } catch (const RunTimeError&) {
                section.lines.emplace_back("failed");
            }
            if (log.band == band && log.mode == mode) break;
        }
        return section.lines;
    }
    /// The messages for these lines in the CW or SSB log of 80 metres.
    Lines FaultsIn(const std::string& mode, const Lines& log) {
        Log("80m" + mode, log);
        Lines faults;
        for (const std::string& line : SectionOf("80m", mode))
            if (line.starts_with("       - ") && line != kFaultless) faults.push_back(line.substr(9));
        return faults;
    }
    Lines FaultsOf(const Told& told) { return FaultsIn("CW", {Contact(told)}); }
    /// The fields of a contact without errors; a test changes one of them.
    static Told Good() { return {.call = "DL1AA", .points = 3, .mult = "DL"}; }
    static Told GoodSsb() { return {.call = "DL1AA", .points = 3, .mult = "DL", .mode = "SSB", .sent = "59", .received = "57"}; }

    CountryTables tables;
};

TEST_F(ErrorLists, SaysThatALogIsFaultless) {
    Log("80mCW", {Contact(Good())});
    EXPECT_THAT(SectionOf("80m", "CW"), ElementsAre(" ", kFaultless));
}

TEST_F(ErrorLists, ShowsNotesAndJudgesThemNot) {
    Log("80mCW", {"NOTE: pause", "NOTE: " + std::string(90, 'x')});
    EXPECT_THAT(SectionOf("80m", "CW"),
                ElementsAre(" ", "       NOTE: pause", " ", "       NOTE: " + std::string(90, 'x'), " ", kFaultless));
}

TEST_F(ErrorLists, ShowsAFaultyContactAsInTheWorkedExample) {
    // England was worked before, and a Danish station is worth one point.
    Log("80mCW", {Contact({.call = "G3AA", .points = 3, .mult = "G"}), Contact({.call = "OZ8AA", .points = 1, .mult = "OZ"}),
                  "13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW    05-09-26"});
    EXPECT_THAT(SectionOf("80m", "CW"),
                ElementsAre(" ", kErrorColumns, "       05-09-26 13:05 OZ9XYZ/P        599-0012 579-0034 10 G          OZ1AB  QSL CW   ",
                            " ", "       - OZ station giver 1 point.",
                            "       - QSO er ikke første qso for land: G. Flyt markeringen til den første QSO for landet."));
}

TEST_F(ErrorLists, ShowsALineOnceForAllItsErrors) {
    WrittenLines list;
    EXPECT_TRUE(DanFejlQSO(list, "abc", false));
    EXPECT_TRUE(DanFejlQSO(list, "abc", true));
    EXPECT_EQ(list.lines, Lines({" ", kErrorColumns, "        abc", " "}));
}

TEST_F(ErrorLists, JudgesTheDateOfEveryContact) {
    Lines log;
    int number = 0;
    for (const char* date : {"31-02-26", "05-09-26", "05-09-26", "31-02-26", "31-02-26", "", "05-09-26"}) {
        Told told = Good();
        const std::string call = "DL" + std::to_string(++number) + "AA";
        told.call = call.c_str();
        if (number > 1) told.mult = "";
        told.date = date;
        log.push_back(Contact(told));
    }
    EXPECT_EQ(FaultsIn("CW", log), Lines(4, "Dato skal være i formatet dd-mm-åå."));
}

TEST_F(ErrorLists, RunsAllRulesInTheirOrder) {
    EXPECT_EQ(FaultsIn("CW", {Contact(Good()), "25x00 0               67 -abcd 0  -x     1 G                     SSB"}),
              Lines({"Fejl i tidspunkt. Tidspunkt skal angives som: '15:00'.", "Et kaldesignal skal være på mindst 3 tegn.",
                     "Der skal være både tal og bogstaver i et kaldesignal.", "Første tegn i call'et er et nul.",
                     "Sendt RST skal være på 3 cifre.", "Første ciffer i sendt sendt RST skal være mellem 1 og 5.",
                     "Sendt QSOnr skal være numerisk.", "Modtaget RST skal være på 3 cifre.",
                     "Første ciffer i modtaget RST skal være mellem 1 og 5.", "Modtaget QSOnr er nul.", "EU station giver 3 point.",
                     "QSO er ikke første qso for land: G. Flyt markeringen til den første QSO for landet.", "Operatør skal udfyldes.",
                     "Mode skal være CW, PSK31, RTTY eller HELL i CW-log.", "Dato skal være i formatet dd-mm-åå."}));
}

TEST_F(ErrorLists, ChecksTheTime) {
    const Lines fault{"Fejl i tidspunkt. Tidspunkt skal angives som: '15:00'."};
    for (const char* good : {"13:05", "13.05", "13x05", "00:00", "23:59"}) {
        Told told = Good();
        told.time = good;
        EXPECT_EQ(FaultsOf(told), Lines{}) << good;
    }
    for (const char* bad : {"25:00", "13:60", "ab:cd", "1305", " 1:05", ""}) {
        Told told = Good();
        told.time = bad;
        EXPECT_EQ(FaultsOf(told), fault) << bad;
    }
    const DateTime now{2026, 9, 5, 7, 9, 0, 0};
    EXPECT_FALSE(ValiderTid("12345", now));
    EXPECT_EQ(ToUtf8(ValiderTid("12 7x", now).value_or("")), "Fejl i tidspunkt. Tidspunkt skal angives som: '07:09'.");
}

TEST_F(ErrorLists, ChecksTheBaseCall) {
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL/P", .points = 5, .mult = "DL"})}),
              Lines({"Et kaldesignal skal være på mindst 3 tegn.", "Der skal være både tal og bogstaver i et kaldesignal."}));
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DLABC", .points = 3, .mult = "DL"})}),
              Lines({"Der skal være både tal og bogstaver i et kaldesignal."}));
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "0L1AA", .points = 3})}), Lines({"Første tegn i call'et er et nul."}));
    // Æ sorts after Å and is not a letter here.
    std::string line = Contact({.call = "1*23", .points = 3});
    EXPECT_EQ(FaultsIn("CW", {line.replace(7, 1, "Æ")}), Lines({"Der skal være både tal og bogstaver i et kaldesignal."}));
    line = Contact({.call = "1*23", .points = 3});
    EXPECT_EQ(FaultsIn("CW", {line.replace(7, 1, "Å")}), Lines{});
}

TEST_F(ErrorLists, FindsDuplicatesByTheBaseCallEvenIfTheyAreMarked) {
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1AA/P", .points = 5, .mult = "DL"}),
                              Contact({.call = "DL1AA", .points = 0, .mult = "-DUPE-"})}),
              Lines{"DL1AA er en dublet!"});
    EXPECT_EQ(FaultsIn("CW", {Contact(Good()), Contact({.call = "DL1AA", .points = 3})}),
              Lines({"DL1AA er en dublet!", "Dublet station giver 0 point."}));
}

TEST_F(ErrorLists, NeverFindsACallOfElevenCharactersAgain) {
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1ABCDEFGH", .points = 3, .mult = "DL"}), Contact({.call = "DL1ABCDEFGH", .points = 3})}),
              Lines{});
    // A call that equals its first ten characters, however, counts as the same call.
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1ABCDEFGH", .points = 3, .mult = "DL"}), Contact({.call = "DL1ABCDEFG", .points = 0})}),
              Lines{"DL1ABCDEFG er en dublet!"});
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1ABCDEFG", .points = 3, .mult = "DL"}), Contact({.call = "DL1ABCDEFG", .points = 0})}),
              Lines{"DL1ABCDEFG er en dublet!"});
}

TEST_F(ErrorLists, ForgetsCallsAndCountriesBetweenLogs) {
    Log("80mCW", {Contact(Good())});
    Log("80mSSB", {Contact(GoodSsb())});
    EXPECT_EQ(SectionOf("80m", "SSB"), Lines({" ", kFaultless}));
}

TEST_F(ErrorLists, ChecksReportsInACwLog) {
    struct Case {
        const char* sent;
        Lines faults;
    };
    for (const Case& told :
         {Case{"599", {}},
          {"111", {}},
          {"59", {"Sendt RST skal være på 3 cifre."}},
          {"", {"Sendt RST skal være på 3 cifre."}},
          {"699", {"Første ciffer i sendt sendt RST skal være mellem 1 og 5."}},
          {"509", {"Andet ciffer i sendt RST skal være mellem 1 og 9."}},
          {"590", {"Sidste ciffer i sendt RST skal være mellem 1 og 9."}},
          {"0", {"Sendt RST skal være på 3 cifre.", "Første ciffer i sendt sendt RST skal være mellem 1 og 5."}},
          {"abc",
           {"Første ciffer i sendt sendt RST skal være mellem 1 og 5.", "Andet ciffer i sendt RST skal være mellem 1 og 9.",
            "Sidste ciffer i sendt RST skal være mellem 1 og 9."}}}) {
        Told line = Good();
        line.sent = told.sent;
        EXPECT_EQ(FaultsOf(line), told.faults) << told.sent;
    }
    for (const Case& told :
         {Case{"579", {}},
          {"57", {"Modtaget RST skal være på 3 cifre."}},
          {"0", {"Modtaget RST skal være på 3 cifre.", "Første ciffer i modtaget RST skal være mellem 1 og 5.", "Modtaget QSOnr er nul."}},
          {"", {"Modtaget RST skal være på 3 cifre.", "Modtaget QSOnr er nul.", "Modtaget QSOnr skal være numerisk."}},
          {"5x9", {"Andet ciffer i modtaget RST skal være mellem 1 og 9.", "Modtaget QSOnr skal være numerisk."}},
          {"57x", {"Sidste ciffer i modtaget RST skal være mellem 1 og 9.", "Modtaget QSOnr skal være numerisk."}}}) {
        Told line = Good();
        line.received = told.sent;
        EXPECT_EQ(FaultsOf(line), told.faults) << told.sent;
    }
}

TEST_F(ErrorLists, ChecksReportsInAnSsbLog) {
    const auto faults = [this](const char* sent, const char* received) {
        Told line = GoodSsb();
        line.sent = sent;
        line.received = received;
        return FaultsIn("SSB", {Contact(line)});
    };
    EXPECT_EQ(faults("59", "57"), Lines{});
    EXPECT_EQ(faults("", "57"), Lines{"Sendt RST skal være på 2 cifre."});
    EXPECT_EQ(faults("590", "57"), Lines{"Sendt RST skal være på 2 cifre."});
    EXPECT_EQ(faults("50", "57"), Lines{"Andet ciffer i sendt RST skal være mellem 1 og 9."});
    EXPECT_EQ(faults("59", "599"), Lines{"Modtaget RST skal være på 2 cifre."});
    EXPECT_EQ(faults("59", "00"), Lines({"Første ciffer i modtaget RST skal være mellem 1 og 5.",
                                         "Andet ciffer i modtaget RST skal være mellem 1 og 9.", "Modtaget QSOnr er nul."}));
}

TEST_F(ErrorLists, ChecksTheSentNumberAndNeverReadsTheReceivedOne) {
    std::string line = Contact(Good());
    line.replace(35, 4, "abcd");
    EXPECT_EQ(FaultsIn("CW", {line}), Lines{});
    line = Contact(Good());
    line.replace(26, 4, "abcd");
    EXPECT_EQ(FaultsIn("CW", {line}), Lines{"Sendt QSOnr skal være numerisk."});
    line.replace(26, 4, "    ");
    EXPECT_EQ(FaultsIn("CW", {line}), Lines{"Sendt QSOnr skal være numerisk."});
    line.replace(26, 4, " 12 ");
    EXPECT_EQ(FaultsIn("CW", {line}), Lines{});
}

TEST_F(ErrorLists, ChecksThePointsOfEachKindOfStation) {
    struct Case {
        const char* call;
        const char* mult;
        int points;
        const char* fault;
    };
    for (const Case& told : {Case{"DL1AA", "DL", 3, "EU station giver 3 point."},
                             {"DL1AA/P", "DL", 5, "EU/P station giver 5 point."},
                             {"OZ9AA", "OZ", 1, "OZ station giver 1 point."},
                             {"OZ9AA/P", "OZ", 1, "OZ station giver 1 point."},
                             {"VK2AA", "VK", 6, "DX station giver 6 point."},
                             {"VK2AA/P", "VK", 6, "DX station giver 6 point."},
                             {"OZ1ABC", "OZ", 10, "EDR station giver 10 point."},
                             {"OZ1ABC/P", "OZ", 10, "EDR station giver 10 point."},
                             // The society's list goes by the base call, the country by the call as logged.
                             {"DL/OZ1ABC", "DL", 10, "EDR station giver 10 point."},
                             // An unknown prefix counts as any European station.
                             {"QQ1AA", "", 3, "EU station giver 3 point."},
                             {"QQ1AA/P", "", 5, "EU/P station giver 5 point."}}) {
        EXPECT_EQ(FaultsIn("CW", {Contact({.call = told.call, .points = told.points, .mult = told.mult})}), Lines{}) << told.call;
        EXPECT_EQ(FaultsIn("CW", {Contact({.call = told.call, .points = 0, .mult = told.mult})}), Lines{told.fault}) << told.call;
    }
}

TEST_F(ErrorLists, ChecksMultipliersAgainstTheLogSoFar) {
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1AA", .points = 3, .mult = ""}), Contact({.call = "DL2AA", .points = 3, .mult = "DL"})}),
              Lines({"QSO er første multiplier for land: DL, men er ikke markeret.",
                     "QSO er ikke første qso for land: DL. Flyt markeringen til den første QSO for landet."}));
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1AA", .points = 3, .mult = "G"})}),
              Lines{"QSO er første multiplier for land: DL, men er ikke markeret."});
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "QQ1AA", .points = 3, .mult = "QQ"})}),
              Lines{"QSO er ikke første qso for land: QQ. Flyt markeringen til den første QSO for landet."});
    // A line marked as a duplicate claims no multiplier, wherever it is in the log.
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "DL1AA", .points = 3, .mult = "-DUPE-"})}), Lines{});
}

TEST_F(ErrorLists, ChecksOperatorModeAndDate) {
    Told told = Good();
    told.operatorCall = "";
    EXPECT_EQ(FaultsOf(told), Lines{"Operatør skal udfyldes."});
    for (const char* mode : {"CW", "PSK31", "RTTY", "HELL"}) {
        told = Good();
        told.mode = mode;
        EXPECT_EQ(FaultsOf(told), Lines{}) << mode;
        Told ssb = GoodSsb();
        ssb.mode = mode;
        EXPECT_EQ(FaultsIn("SSB", {Contact(ssb)}), Lines{"Mode skal være SSB i SSB-log."}) << mode;
    }
    for (const char* mode : {"SSB", "", "cw"}) {
        told = Good();
        told.mode = mode;
        EXPECT_EQ(FaultsOf(told), Lines{"Mode skal være CW, PSK31, RTTY eller HELL i CW-log."}) << mode;
    }
    for (const char* date : {"31-02-26", "", "abc", "05-13-26"}) {
        told = Good();
        told.date = date;
        EXPECT_EQ(FaultsOf(told), Lines{"Dato skal være i formatet dd-mm-åå."}) << date;
    }
    EXPECT_TRUE(GyldigDato("05-09-26"));
    EXPECT_TRUE(GyldigDato("29-02-96"));
    EXPECT_FALSE(GyldigDato("29-02-97"));
}

TEST_F(ErrorLists, PassesAContactWithTheOwnCall) {
    EXPECT_EQ(FaultsIn("CW", {Contact({.call = "OZ1AB/P", .points = 1, .mult = "OZ"})}), Lines{});
}

TEST_F(ErrorLists, FailAtALogWithoutALineAndAtALineWithoutACall) {
    ErrorList checker(WorkedCountries(tables), stations);
    WrittenLines list;
    ListedLines none({});
    EXPECT_THROW(checker.DanFejlListKrop(none, list, context, k80mCW), RunTimeError);
    EXPECT_EQ(list.lines, Lines{});
    ListedLines lines({"13:05", Contact({.call = "bad"})});
    EXPECT_THROW(checker.DanFejlListKrop(lines, list, context, k80mCW), RunTimeError);
    // The line is listed with the errors found up to that of the call. The next line is not listed.
    EXPECT_EQ(std::count(list.lines.begin(), list.lines.end(), kErrorColumns), 1);
    EXPECT_TRUE(list.lines.back().starts_with("       - "));
}

TEST_F(ErrorLists, LeaveBehindTheMarksOfTheLastLog) {
    WorkedCountries before(tables);
    before.LandWkd("G3AAA", MarkAction::Mark);
    ErrorList checker(before, stations);
    constexpr int kGermany = 1;
    constexpr int kEngland = 2;
    WrittenLines list;
    ListedLines none({});
    // A log without a line fails after the marks have been cleared.
    EXPECT_TRUE(checker.Countries().Wkd(kEngland));
    EXPECT_THROW(checker.DanFejlListKrop(none, list, context, k80mCW), RunTimeError);
    EXPECT_FALSE(checker.Countries().Wkd(kEngland));
    ListedLines lines({Contact({.call = "DL1AA"}), Contact({.call = "OZ1ABC"})});
    checker.DanFejlListKrop(lines, list, context, k80mCW);
    EXPECT_TRUE(checker.Countries().Wkd(kGermany));
    EXPECT_FALSE(checker.Countries().Wkd(kEngland));
    EXPECT_TRUE(checker.CheckedStations().EDRstn[1].Wkd);
}

TEST_F(ErrorLists, LeaveBehindWhatTheLastContactWas) {
    ErrorList checker(WorkedCountries(tables), stations);
    EXPECT_FALSE(checker.Left().gsCall);
    EXPECT_FALSE(checker.Left().giQSOPoint);
    const auto check = [&](const Lines& log) {
        WrittenLines list;
        ListedLines lines(log);
        checker.DanFejlListKrop(lines, list, context, k80mCW);
        return checker.Left();
    };
    auto left = check({Contact({.call = "DL1AA"}), Contact({.call = "VK2ABCD/P"})});
    // Only six characters, because the station list holds calls of six characters.
    EXPECT_EQ(left.gsCall, "VK2ABC");
    EXPECT_EQ(left.giQSOPoint, 6);
    EXPECT_EQ(left.newCountries, 2);
    // A duplicate is not searched for in the station list, so its call stays as it is, with the points of its country.
    left = check({Contact({.call = "G3ABCDE"}), Contact({.call = "G3ABCDE/P"})});
    EXPECT_EQ(left.gsCall, "G3ABCDE");
    EXPECT_EQ(left.giQSOPoint, 5);
    EXPECT_EQ(left.newCountries, 3);
    left = check({Contact({.call = "OZ1ABC"}), "NOTE: pause"});
    EXPECT_EQ(left.gsCall, "OZ1ABC");
    EXPECT_EQ(left.giQSOPoint, 10);
    // Notes are not contacts.
    left = check({"NOTE: pause"});
    EXPECT_EQ(left.gsCall, "OZ1ABC");
}

TEST_F(ErrorLists, AreHeadedWithCallAndDay) {
    WrittenLines list;
    WriteErrorListHead(list, context);
    DanFejlListHoved(list, k80mCW);
    WriteLogNotFound(list);
    EXPECT_EQ(list.lines, Lines({"       Vatro fejlliste for OZ1AB/P. Dannet d. 05.09.2026", " ",
                                 "       ================================   80m CW    ==================================", " ",
                                 "       - Log ikke fundet.", " "}));
}

}  // namespace
}  // namespace vatro
