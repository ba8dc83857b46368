// SPDX-License-Identifier: MIT
#include "country/import.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "codepage.h"
#include "country/cty_file.h"
#include "country/prefix_order.h"
#include "country/tables.h"
#include "entry/frmMain.h"
#include "entry/validation.h"
#include "frame/log_file.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"
#include "tables/frmCtyDat.h"

namespace vatro {

using namespace literals;

namespace {

/// "-" or a blank, the number in its shortest form, a blank.
std::string TableNumber(float number) {
    // The smallest float has 45 decimals.
    std::array<char, 64> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), std::fabs(number), std::chars_format::fixed).ptr;
    return (number < 0 ? "-" : " ") + std::string(digits.data(), end) + " ";
}

void ShowOverflow(int count) {
    MessageBox message;
    message.title = "Tabeloverløb"_t;
    message.text = "Der er " + PlainNumber(count);
    message.text += " præfixer, men der er kun plads til "_t;
    message.text += PlainNumber(kPrefixRows);
    message.text += " i tabellen. \r\n";
    message.text += "Kontakt programleverandøren om fejlen. \r\n"_t;
    message.text += "I kan køre videre, men der vil være fejl i jeres præfixberegning. \r\n"_t;
    message.text += "Det kan rettes op senere med en korrekt fil.";
    message.icon = Icon::Information;
    MsgBox(message);
}

/// Takes the country file into the tables. The rows in use are not counted there before the whole file is read.
class CtyImport {
public:
    void Import() {
        Files& files = platform().files;
        files.Open(1, PathIn(gsFDLib, "cty.dat"), FileMode::Input);
        while (!files.EndOfFile(1)) ImportCountry(files);
        files.Close(1);
        giLande = ToInt16(countries_);
        giRefPfx = ToInt16(prefixes_);
    }

private:
    void ImportCountry(Files& files) {
        std::string line = files.LineInput(1);
        CtyHeader header = ReadCtyHeader(line);
        if (header.IsOmitted()) {
            do line = files.LineInput(1);
            while (!line.ends_with(':'));
            // Not looked at for a mark again: of two left out one behind the other the second one is kept. That is meant so.
            header = ReadCtyHeader(line);
        }
        StoreCountry(header);
        std::string prefixLine;
        do {
            prefixLine = files.LineInput(1);
            CtyEntryReader entries(prefixLine, header);
            while (entries.HasMore()) StorePrefix(entries.Next());
        } while (!prefixLine.ends_with(';'));
    }

    void StoreCountry(const CtyHeader& header) {
        if (++countries_ > kCountryRows) throw RunTimeError(Failure::IndexOutOfRange);
        LandRec& country = Lande[static_cast<std::size_t>(countries_)];
        country.Pfx = header.prefix;
        country.Navn = header.name;
        country.Kontinent = header.continent;
        country.Bredde = ReadCtyNumber(header.latitude);
        country.Laengde = ReadCtyNumber(header.longitude);
        country.TidsZone = ReadCtyNumber(header.utcOffset);
    }

    void StorePrefix(const CtyEntry& entry) {
        if (++prefixes_ > kPrefixRows) {
            ShowOverflow(prefixes_);
            throw RunTimeError(Failure::IndexOutOfRange);
        }
        PfxRec& row = RefPfx[static_cast<std::size_t>(prefixes_)];
        row.Land = Lande[static_cast<std::size_t>(countries_)].Pfx;
        row.Pfx.Fill(entry.text, kCtyFiller);
        row.ITUzone = entry.ituZone;
        row.CQzone = entry.cqZone;
    }

    int countries_ = 0;
    int prefixes_ = 0;
};

/// Takes the filler off and finds the first row of each first character. A prefix of full length has no filler and is
/// passed over by both; that is meant so.
void CleanUp(int row, std::optional<char>& last) {
    FixedText<kPrefixLength>& prefix = RefPfx[static_cast<std::size_t>(row)].Pfx;
    const FixedText<kPrefixLength> key = prefix;
    const std::string_view characters = key.Padded();
    if (characters.back() != kCtyFiller) return;
    prefix = std::string_view(characters.begin(), std::ranges::find(characters, kCtyFiller));
    const char first = prefix.Padded().front();
    if (first == last) return;
    last = first;
    gaPfxStart[static_cast<unsigned char>(first)] = static_cast<std::int16_t>(row);
}

template <class MakeLine>
void WriteTable(FrmCtyDat& form, std::string_view name, std::string_view stage, int count, MakeLine line) {
    Files& files = platform().files;
    form.ShowStage(stage);
    files.Open(1, PathIn(gsFDLib, name), FileMode::Output);
    form.Begin(count);
    for (int i = 1; i <= count; ++i) {
        form.Advance(i);
        files.PrintLine(1, line(static_cast<std::size_t>(i)));
    }
    files.Close(1);
}

std::string CountryLine(std::size_t row) {
    const LandRec& country = Lande[row];
    std::string line;
    line.append(country.Pfx.Padded()).append(country.Navn.Padded()).append(country.Kontinent.Padded()).append(" ");
    return line + TableNumber(country.TidsZone);
}

/// Six thousand of them: in place, column by column.
std::string_view PrefixLine(std::size_t row) {
    static std::array<char, 2 * kPrefixLength + 5> line{};
    const PfxRec& prefix = RefPfx[row];
    char* end = line.data();
    const auto append = [&end](std::string_view text) { end += text.copy(end, text.size()); };
    append(prefix.Pfx.Padded());
    append(prefix.Land.Padded());
    append(prefix.CQzone.Padded());
    append(" ");
    append(prefix.ITUzone.Padded());
    return {line.data(), line.size()};
}

}  // namespace

void ImporterCty() {
    FrmCtyDat& form = *frmCtyDat;
    form.ShowStage("Indlæser Cty.dat"_t);
    CtyImport().Import();

    form.ShowStage("Sorterer Præfix-referencetabel"_t);
    form.Begin(giRefPfx);
    SortPrefixes(RefPfx, giRefPfx, [&form](int row) { form.Advance(row); });

    form.ShowStage("Rydder op i Præfix-referencetabel"_t);
    form.Begin(giRefPfx);
    std::optional<char> last;
    for (int i = 1; i <= giRefPfx; ++i) {
        form.Advance(i);
        CleanUp(i, last);
    }
    IndexPrefixes();

    WriteTable(form, "lande.txt", "Skriver Lande.txt fil", giLande, CountryLine);
    WriteTable(form, "refpfx.txt", "Skriver RefPfx.txt fil", giRefPfx, PrefixLine);
}

void ImportCtyFromMenu() {
    MessageBox question;
    question.title = "Import af CTY.DAT";
    question.text = "Det tager nogle minutter. Er du sikker?";
    question.buttons = Buttons::YesNo;
    if (MsgBox(question) == Answer::Yes) {
        frmMain->SetEnabled(false);
        frmCtyDat->Show();
        ImporterCty();
        frmCtyDat.Unload();
        frmMain->SetEnabled(true);
    }
    IndlæsLogfil();
    ResetQSO();
}

}  // namespace vatro
