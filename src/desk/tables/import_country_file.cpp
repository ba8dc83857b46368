// SPDX-License-Identifier: MIT
#include "tables/import_country_file.h"

#include <string>
#include <string_view>

#include "codepage.h"
#include "country/import.h"
#include "entry/frmMain.h"
#include "entry/next_contact.h"
#include "file_lines.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "frame/station.h"
#include "numbers.h"
#include "platform.h"
#include "tables/frmCtyDat.h"

namespace vatro {

using namespace literals;

namespace {

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

/// Writes rows 1 to `count` of a table to its file, each as the text that `line` returns.
template <class MakeLine>
void WriteTable(FrmCtyDat& form, std::string_view name, std::string_view stage, int count, MakeLine line) {
    Files& files = platform().files;
    form.ShowStage(stage);
    files.Open(1, PathIn(desk().gsFDLib, name), FileMode::Output);
    form.Begin(count);
    for (int i = 1; i <= count; ++i) {
        form.Advance(i);
        const auto text = line(static_cast<std::size_t>(i));
        files.PrintLine(1, std::string_view(text.data(), text.size()));
    }
    files.Close(1);
}

}  // namespace

void ImporterCty() {
    FrmCtyDat& form = *frmCtyDat;
    CountryImport countryImport(desk().tables);
    const auto advance = [&form](int row) { form.Advance(row); };
    form.ShowStage("Indlæser Cty.dat"_t);
    Files& files = platform().files;
    files.Open(1, PathIn(desk().gsFDLib, "cty.dat"), FileMode::Input);
    FileLines lines(files, 1);
    countryImport.Read(lines, ShowOverflow);
    files.Close(1);

    form.ShowStage("Sorterer Præfix-referencetabel"_t);
    form.Begin(countryImport.Rows().giRefPfx);
    countryImport.Sort(advance);

    form.ShowStage("Rydder op i Præfix-referencetabel"_t);
    form.Begin(countryImport.Rows().giRefPfx);
    countryImport.CleanUp(advance);
    desk().tables.Take(countryImport.Rows());

    const CountryRows& rows = countryImport.Rows();
    WriteTable(form, "lande.txt", "Skriver Lande.txt fil", rows.giLande, [&rows](std::size_t row) { return CountryLine(rows.Lande[row]); });
    WriteTable(form, "refpfx.txt", "Skriver RefPfx.txt fil", rows.giRefPfx,
               [&rows](std::size_t row) { return PrefixLine(rows.RefPfx[row]); });
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
