// SPDX-License-Identifier: MIT
//
// Windows that only show something: start information, Quick Info, About, help.
#include "exchange/FormQuickInfo.h"
#include "exchange/frmAbout.h"
#include "exchange/frmVisTekst.h"
#include "frame/state.h"
#include "frame/station.h"
#include "running_program.h"

namespace vatro {
namespace {

class Windows : public RunningProgram {
protected:
    void Choose(MenuItem& item) {
        Dispatch([&] { item.Choose(); });
    }
};

TEST_F(Windows, StartInformationComesAtTheStartUntilItIsUnticked) {
    settings.texts.erase("SETTINGS/VISINFO2002");
    bool shown = false;
    front.modal["frmVisTekst"] = [&](Form& form) {
        shown = true;
        EXPECT_TRUE(form.Modal());
        EXPECT_EQ(form.Caption(), "Information til Fieldday 2004");
        EXPECT_TRUE(frmVisTekst->showAgain.Value());
        // The rest of the start has already been done.
        EXPECT_EQ(frmMain->fields[kNumberSentField].Text(), "0001");
        frmVisTekst->showAgain.Flip();
        frmVisTekst->closeButton.Press();
    };
    Start();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(desk().gbVisInfo);
    EXPECT_FALSE(frmVisTekst.Loaded());
    Dispatch([] { frmMain->Unload(); });
    EXPECT_EQ(settings.texts["SETTINGS/VISINFO2002"], "False");
    Start();
    EXPECT_TRUE(ProgramRuns());
}

TEST_F(Windows, StartInformationOfTheMenuOffersTheBoxAgain) {
    Start();
    front.modal["frmVisTekst"] = [](Form&) {
        EXPECT_FALSE(frmVisTekst->showAgain.Value());
        frmVisTekst->showAgain.Flip();
        frmVisTekst->closeButton.Press();
    };
    Choose(frmMain->mnuHelpStartInfo);
    EXPECT_TRUE(desk().gbVisInfo);
}

TEST_F(Windows, StartInformationClosedByItsFrameChangesNothing) {
    Start();
    front.modal["frmVisTekst"] = [](Form& form) {
        frmVisTekst->showAgain.Flip();
        form.UserClosed();
    };
    Choose(frmMain->mnuHelpStartInfo);
    EXPECT_FALSE(desk().gbVisInfo);
}

TEST_F(Windows, StartInformationHasTwentyLinesAndCannotBeEdited) {
    Start();
    front.modal["frmVisTekst"] = [](Form& form) {
        const std::string& text = frmVisTekst->text.Text();
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 19);
        EXPECT_TRUE(text.starts_with("Info fra FD manager:\r\n\r\nDet er tilladt at "));
        EXPECT_NE(ToUtf8(text).find("eller Hellschreiber. \r\nDet vil sige"), std::string::npos);
        EXPECT_NE(ToUtf8(text).find("efter denne regel.\r\n\r\n\r\nInfo til contestdeltagere:\r\n\r\nUdskriv"), std::string::npos);
        EXPECT_NE(ToUtf8(text).find("\r\nHjælp:\r\n   Se under 'Hurtig hjælp oversigt' i onlinedokumentationen."), std::string::npos);
        EXPECT_TRUE(frmVisTekst->text.Locked());
        form.UserClosed();
    };
    Choose(frmMain->mnuHelpStartInfo);
}

TEST_F(Windows, StartInformationIsClosedByEnterAndByEsc) {
    Start();
    for (const KeyCode key : {kEnter, kEsc}) {
        front.modal["frmVisTekst"] = [key](Form& form) { EXPECT_TRUE(form.UserDefaultKey(key)); };
        Choose(frmMain->mnuHelpStartInfo);
        EXPECT_FALSE(frmVisTekst.Loaded());
    }
}

TEST_F(Windows, QuickInfoIsHiddenByAClickAndByEscAndByNoOtherKey) {
    Start();
    int shown = 0;
    const auto shows = [&](const std::function<void(FormQuickInfo&)>& use) {
        front.modal["FormQuickInfo"] = [&shown, use](Form& form) {
            ++shown;
            EXPECT_EQ(form.Caption(), "Quick Info");
            use(dynamic_cast<FormQuickInfo&>(form));
            EXPECT_FALSE(form.Visible());
        };
        Choose(frmMain->mnuHjælpQuickInfo);
        EXPECT_TRUE(formQuickInfo.Loaded());
    };
    shows([](FormQuickInfo& form) { form.picture.UserClicked(); });
    shows([](FormQuickInfo& form) { form.UserClicked(); });
    shows([](FormQuickInfo& form) {
        form.UserKey(kEnter);
        form.UserKey('q');
        EXPECT_TRUE(form.Visible());
        form.UserKey(kEsc);
    });
    EXPECT_EQ(shown, 3);
}

TEST_F(Windows, AboutTellsTheVersion) {
    Start();
    front.modal["frmAbout"] = [](Form&) {
        EXPECT_EQ(frmAbout->title.Caption(), "Vatro");
        EXPECT_EQ(frmAbout->version.Caption(), "Version 1.2.3");
        EXPECT_FALSE(frmAbout->description.Caption().empty());
        frmAbout->okButton.Press();
    };
    Choose(frmMain->mnuHelpAbout);
    EXPECT_FALSE(frmAbout.Loaded());
}

TEST_F(Windows, HelpOpensTheHandbookAtItsContents) {
    Start();
    Choose(frmMain->mnuHjælpIndhold);
    EXPECT_EQ(help.shown, std::vector<std::string>{"Vatro.chm"});
}

TEST_F(Windows, HelpThatIsNotThereIsTold) {
    Start();
    help.failure = Failure::FileNotFound;
    dialogs.Expect("Kan ikke vise hjælp indhold. Der er ingen hjælp knyttet til dette program.");
    Choose(frmMain->mnuHjælpIndhold);
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::Information);
}

TEST_F(Windows, FailureOfTheViewerIsTold) {
    Start();
    help.failure = Failure::PermissionDenied;
    dialogs.Expect("Adgang nægtet");
    Choose(frmMain->mnuHjælpIndhold);
    EXPECT_EQ(dialogs.boxes.back().icon, Icon::None);
}

}  // namespace
}  // namespace vatro
