// SPDX-License-Identifier: MIT
#include "papers/printing.h"

#include <algorithm>

#include "numbers.h"
#include "paper_lines.h"

namespace vatro {
namespace {

/// Records the texts printed, each with its font: "Arial 36 u: text". Pages never overflow.
class NotedPages : public PageSink {
public:
    void SetFont(std::string_view name, double size) override {
        name_ = name;
        size_ = size;
    }
    void SetBold(bool bold) override { bold_ = bold; }
    void SetUnderline(bool underline) override { underline_ = underline; }
    void PrintLine(std::string_view text) override { Note(text); }
    void PrintPart(std::string_view text) override { Note(std::string(text) + "..."); }
    void EndLine() override { Note("(line)"); }
    void PrintCentred(std::string_view text) override { Note("> " + std::string(text)); }
    void GoToLastLine() override { notes.emplace_back("(last line)"); }
    void NewPage() override {
        notes.emplace_back("(page)");
        ++page_;
    }
    int Page() const override { return page_; }
    Lines notes;

private:
    void Note(std::string_view text) {
        notes.push_back(name_ + " " + PlainNumber(ToInt32(size_)) + (bold_ ? " b" : "") + (underline_ ? " u" : "") + ": " + ToUtf8(text));
    }
    std::string name_;
    double size_ = 0;
    bool bold_ = false;
    bool underline_ = false;
    int page_ = 1;
};

const std::string kPrintedColumns = "         Dato    UTC  Call            Sendt    Modt.    Pt Præfix     Oper.  QSL Mode";
const std::string kPrintedRow = "Courier New 10:        05-09-26 13:05 DL1AA           599-0012 579-0034  3            OZ1AB      CW   ";
const std::string kGap = "Courier New 10:  ";

class PrintedPapers : public Papers {
protected:
    static Lines Head(const std::string& title) {
        return {"Arial 36 u: > Fieldday log for OZ1AB/P 2026", "Arial 18 b: > " + title, "Courier New 10 b: (line)"};
    }
    static Lines LogHead() { return Head("80m CW") + Lines{"Courier New 10 b: " + kPrintedColumns}; }
    static Lines Foot(int page) { return {"(last line)", "Arial 11: > Side  " + std::to_string(page) + ", (Vatro version 1.2.3)"}; }
    NotedPages pages;
};

TEST_F(PrintedPapers, AreHeadedAndLeaveTheFontOfTheBody) {
    PrintHoved(pages, context, "80m", "CW");
    pages.PrintLine("x");
    EXPECT_EQ(pages.notes, LogHead() + Lines{"Courier New 10: x"});
    for (const char* other : {"Summary", "ukendt", "Multiplier"}) {
        pages.notes.clear();
        PrintHoved(pages, context, other, {});
        EXPECT_EQ(pages.notes, Head(std::string(other) + " "));
    }
}

TEST_F(PrintedPapers, HaveTheNumberOfThePageAtItsFoot) {
    pages.NewPage();
    pages.notes.clear();
    PrintFod(pages, context);
    EXPECT_EQ(pages.notes, Foot(2));
}

TEST_F(PrintedPapers, OfALogStandInGroupsOfTenAndBreakBehindFifty) {
    ListedLines lines(Times(50, Contact({})));
    PrintKrop(lines, pages, context, k80mCW);
    Lines wanted;
    for (int group = 0; group < 5; ++group) wanted = wanted + Lines{kGap} + Times(10, kPrintedRow);
    wanted = wanted +
             Lines{kGap, "Courier New 10:        Ialt denne side:                                150         0            0", kGap,
                   "Courier New 10:        Ialt akkumuleret:                               150         0            0"} +
             Foot(1) + Lines{"(page)"} + LogHead() +
             Lines{kGap, "Courier New 10:        Ialt denne side:                                  0         0            0", kGap,
                   "Courier New 10:        Ialt akkumuleret:                               150         0            0"};
    EXPECT_EQ(pages.notes, wanted);
}

TEST_F(PrintedPapers, OfUnknownPrefixesHaveFortyNineLinesOnTheFirstPage) {
    PrintHoved(pages, context, "ukendt", {});
    pages.notes.clear();
    ListedLines lines(Times(51, "x"));
    PrintUnknownLines(lines, pages, context);
    const std::string line = "Courier New 10:        x";
    const std::string gap = "Courier New 10: (line)";
    Lines wanted;
    for (int group = 0; group < 4; ++group) wanted = wanted + Lines{gap} + Times(10, line);
    wanted = wanted + Lines{gap} + Times(9, line) + Foot(1) + Lines{"(page)"} + Head("ukendt ") + Lines{line, gap, line};
    EXPECT_EQ(pages.notes, wanted);
}

TEST_F(PrintedPapers, OfTheMultipliersBreakBehindFiftyOneRows) {
    PrintHoved(pages, context, "Multiplier", "Checksheet");
    pages.notes.clear();
    Multipliers multipliers;
    multipliers.count[0] = 51;
    for (std::size_t row = 1; row <= 51; ++row) multipliers.table[0][row] = "DL     ";
    PrintMult(pages, context, multipliers);
    ASSERT_EQ(pages.notes.size(), 4U + 51 + 2 + 1 + 3 + 3);
    const auto behind = pages.notes.begin() + 4 + 51;
    EXPECT_EQ(Lines(behind, behind + 6), Foot(1) + Lines{"(page)"} + Head("Multiplier Checksheet"));
}

TEST_F(PrintedPapers, OfTheSummaryTellThePagesSoFarAndTheTelephone) {
    pages.NewPage();
    context.phone = "87654321";
    Log("80mCW", {Contact({.points = 2, .mult = "DL"})});
    PrintSheet(pages, context, TallyLogs(logs, stations, context.call));
    const auto row = [this](std::size_t i) { return pages.notes[i + 1].substr(pages.notes[i + 1].find(": ") + 2); };
    EXPECT_EQ(row(2), "       Kaldesignal: OZ1AB/P          Kategori: A              Antal logsider:  2");
    EXPECT_EQ(row(8), "       OZ1AB");
    EXPECT_EQ(row(13), "       3,5 MHz CW      1      1 x      2 =         2" + std::string(29, ' '));
    ASSERT_EQ(pages.notes.size(), 1U + 13 + 15 + 7);
    EXPECT_EQ(row(33), "       Telefon (hvis der er spørgsmål): ...");
    EXPECT_EQ(row(34), "87654321");
}

}  // namespace
}  // namespace vatro
