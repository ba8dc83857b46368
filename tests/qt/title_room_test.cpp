// SPDX-License-Identifier: MIT
#include "title_room.h"

#include "desktop.h"
#include "qt/window_program.h"
#include "services.h"

namespace vatro {
namespace {

class TitleRoom : public WindowProgram {
protected:
    /// Shows the dialogue and returns its window.
    QWidget& Shown(const char* name) {
        FormSlotBase& slot = *FindFormSlot(name);
        Dispatch([&slot] {
            slot.Load();
            slot.Peek()->Show();
        });
        driver.Settle();
        return *WindowOf(*slot.Peek()).Top();
    }

    QtHelp handbook;
    Desktop desktop{dynamic_cast<QtFront&>(driver.ProgramFront()), handbook};
};

constexpr const char* kDialogs[]{"frmNytQSOnr", "frmUTC",   "frmCall",      "frmNote",  "frmRetQSO",
                                 "FormRigAnt",  "frmAbout", "frmTilFloppy", "frmCtyDat"};

TEST_F(TitleRoom, IsLeftForTheTitleOfEveryDialogue) {
    StartVatro();
    for (const char* name : kDialogs) {
        const QWidget& window = Shown(name);
        EXPECT_FALSE(window.windowTitle().isEmpty()) << name;
        EXPECT_GE(window.width(), WidthForTitle(window.windowTitle())) << name;
    }
}

TEST_F(TitleRoom, GrowsWithTheTitle) {
    EXPECT_GT(WidthForTitle(QStringLiteral("Nyt QSO nummer")), WidthForTitle(QStringLiteral("Note")));
}

}  // namespace
}  // namespace vatro
