// SPDX-License-Identifier: MIT
#include "ends.h"
#include "frame/state.h"

#include <QEvent>
#include <QTest>
#include <csignal>

#include "disk_settings.h"
#include "frame/band_mode.h"
#include "qt/window_program.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

class ProgramEnds : public WindowProgram {
protected:
    void SetUp() override { StartVatro(); }
    static bool HasEnded() {
        return QTest::qWaitFor([] { return !ProgramRuns(); });
    }

    TemporaryDirectory directory;
    DiskSettings stored{directory.Path() / "vatro.ini"};
};

TEST_F(ProgramEnds, WhenTheDesktopTellsItToQuit) {
    desk().gsBand = "20m";
    const Ends ends(stored);
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_FALSE(quit.isAccepted()) << "the windows are not Qt's to close";
    EXPECT_TRUE(HasEnded());
    EXPECT_TRUE(ends.Asked());
    EXPECT_EQ(settings.texts.at("SETTINGS/BAND"), "20m");
    EXPECT_TRUE(settings.texts.contains("SETTINGS/B4LEFT"));
}

TEST_F(ProgramEnds, BySignal) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        if (!ProgramRuns()) StartVatro();
        desk().gsBand = "20m";
        settings.texts.erase("SETTINGS/BAND");
        const Ends ends(stored);
        std::raise(number);
        EXPECT_TRUE(HasEnded()) << number;
        EXPECT_EQ(settings.texts["SETTINGS/BAND"], "20m") << number;
    }
}

TEST_F(ProgramEnds, OnlyWhenTheHandlerUnderWayIsOver) {
    Ends ends(stored);
    Dispatch([&ends] {
        ends.Close();
        QTest::qWait(100);
        EXPECT_TRUE(frmMain.Loaded());
    });
    EXPECT_TRUE(HasEnded());
}

TEST_F(ProgramEnds, LeavesTheQuitOfAnEndedProgramToQt) {
    Dispatch([] { frmMain->Unload(); });
    ASSERT_FALSE(ProgramRuns());
    Ends ends(stored);
    QEvent quit(QEvent::Quit);
    EXPECT_FALSE(ends.eventFilter(qApp, &quit));
}

}  // namespace
}  // namespace vatro
