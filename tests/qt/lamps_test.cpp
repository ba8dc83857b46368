// SPDX-License-Identifier: MIT
//
// The lamps in the menu bar, with clocks that the test controls.
#include "lamps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <fstream>
#include <map>

#include "copy_keeper.h"
#include "deliver.h"
#include "disk_files.h"
#include "entry/frmUTC.h"
#include "entry/qso_fields.h"
#include "frame/state.h"
#include "keyer/frmCWTX.h"
#include "morse_tries.h"
#include "qt/all_schemes.h"
#include "qt/contrast.h"
#include "qt/window_program.h"
#include "qt_text.h"
#include "safety.h"
#include "temporary_directory.h"

namespace vatro {
namespace {

using namespace std::chrono_literals;
using namespace literals;
using testing::HasSubstr;

/// The greatest contrast of any pixel against the commonest colour.
double ContrastOfText(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
    const auto commonest = std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    double best = 1;
    for (const auto& [colour, count] : counts) best = std::max(best, ContrastOf(colour, commonest->first));
    return best;
}

const Lamp kGood{Lamp::State::Good, "0034 SM7AA gemt 17:53", "tip"};
const Lamp kBad{Lamp::State::Bad, "INGEN KOPI siden 12:07", "tip"};
const Lamp kNotice{Lamp::State::Notice, "kopien har mere", "tip"};

class ALampRow : public ::testing::Test {
protected:
    ALampRow() {
        for (const char* menu : {"Filer", "Vis", "Indstillinger"}) window.menuBar()->addMenu(QString::fromLatin1(menu));
        row = new LampRow(*window.menuBar());
        window.resize(1000, 300);
        window.show();
    }
    ~ALampRow() override { QApplication::setPalette(QPalette()); }
    static void Settle() { QTest::qWait(1); }
    /// No menu has gone into the list of those that do not fit.
    bool AllMenusAreShown() {
        for (const QAction* menu : window.menuBar()->actions()) {
            const QRect place = window.menuBar()->actionGeometry(const_cast<QAction*>(menu));
            if (place.isEmpty() || place.right() > row->x()) return false;
        }
        return true;
    }

    QMainWindow window;
    LampRow* row = nullptr;
};

TEST_F(ALampRow, StandsFromRightToLeftInTheCorner) {
    for (const LampKind kind : {LampKind::Utc, LampKind::Copy, LampKind::LastContact}) row->Show(kind, kGood);
    Settle();
    EXPECT_GT(row->Button(LampKind::Utc).x(), row->Button(LampKind::Copy).x());
    EXPECT_GT(row->Button(LampKind::Copy).x(), row->Button(LampKind::LastContact).x());
    EXPECT_GT(row->x(), window.menuBar()->actionGeometry(window.menuBar()->actions().constLast()).right());
    EXPECT_LE(row->geometry().right(), window.width());
}

TEST_F(ALampRow, ShrinksWordsToSignsWhereThereIsNoRoomButNotThoseOfWhatIsWrong) {
    row->Show(LampKind::Utc, kGood);
    row->Show(LampKind::Copy, kBad);
    row->Show(LampKind::LastContact, kGood);
    Settle();
    EXPECT_FALSE(row->Button(LampKind::Utc).Brief());
    EXPECT_FALSE(row->Button(LampKind::Copy).Brief());
    EXPECT_FALSE(row->Button(LampKind::LastContact).Brief());
    int width = 1000;
    for (; width > 300 && !row->Button(LampKind::LastContact).Brief(); width -= 10) {
        window.resize(width, 300);
        Settle();
        EXPECT_FALSE(row->Button(LampKind::Copy).Brief());
    }
    EXPECT_TRUE(row->Button(LampKind::Utc).Brief());
    EXPECT_TRUE(AllMenusAreShown());
    window.resize(1000, 300);
    Settle();
    EXPECT_FALSE(row->Button(LampKind::LastContact).Brief());
}

TEST_F(ALampRow, LeavesTheMenusTheirRoomAtEveryWidth) {
    for (const LampKind kind : {LampKind::Utc, LampKind::Copy, LampKind::LastContact}) row->Show(kind, kBad);
    for (int width = 1000; width > 400; width -= 7) {
        window.resize(width, 300);
        Settle();
        EXPECT_TRUE(AllMenusAreShown()) << width;
    }
}

TEST_F(ALampRow, AWrongTimeKeepsItsWordsLongerThanAMissingCopy) {
    for (const LampKind kind : {LampKind::Utc, LampKind::Copy}) row->Show(kind, kBad);
    int width = 1000;
    for (; width > 300 && !row->Button(LampKind::Copy).Brief(); width -= 10) {
        window.resize(width, 300);
        Settle();
    }
    EXPECT_TRUE(row->Button(LampKind::Copy).Brief());
    EXPECT_FALSE(row->Button(LampKind::Utc).Brief());
}

TEST_F(ALampRow, NothingGoodHasWordsWhileSomethingWrongHasNone) {
    row->Show(LampKind::Utc, {Lamp::State::Good, "UTC 08:50", "tip"});
    row->Show(LampKind::Copy, kBad);
    for (int width = 1000; width > 300; width -= 10) {
        window.resize(width, 300);
        Settle();
        EXPECT_TRUE(!row->Button(LampKind::Copy).Brief() || row->Button(LampKind::Utc).Brief()) << width;
    }
}

TEST_F(ALampRow, WhatIsWrongKeepsAShortFormLongest) {
    Lamp bad = kBad;
    bad.brief = "12:07";
    row->Show(LampKind::Copy, bad);
    row->Show(LampKind::Utc, kGood);
    LampButton& lamp = row->Button(LampKind::Copy);
    int brief = 0;
    for (int width = 1000; width > 400; width -= 10) {
        window.resize(width, 300);
        Settle();
        EXPECT_NE(lamp.ShownWords(), LampButton::Words::None) << width;
        if (lamp.ShownWords() != LampButton::Words::Short) continue;
        ++brief;
        EXPECT_TRUE(AllMenusAreShown()) << width;
        EXPECT_EQ(row->Button(LampKind::Utc).ShownWords(), LampButton::Words::None) << width;
    }
    EXPECT_GT(brief, 0);
}

TEST_F(ALampRow, AShortFormIsShownBesideTheSign) {
    Lamp bad = kBad;
    bad.brief = "12:07";
    row->Show(LampKind::Copy, bad);
    LampButton& lamp = row->Button(LampKind::Copy);
    const auto inked = [&lamp](LampButton::Words words) {
        lamp.SetWords(words);
        lamp.resize(lamp.sizeHint());
        const QImage image = lamp.grab().toImage();
        // How many columns differ from the ground within themselves; the outermost belong to the frame.
        const int edge = qCeil(4 * image.devicePixelRatio());
        int columns = 0;
        for (int x = edge; x < image.width() - edge; ++x) {
            bool plain = true;
            for (int y = edge; y < image.height() - edge; ++y) plain = plain && image.pixel(x, y) == image.pixel(x, edge);
            columns += plain ? 0 : 1;
        }
        return columns;
    };
    const int sign = inked(LampButton::Words::None);
    const int brief = inked(LampButton::Words::Short);
    EXPECT_GT(brief, sign);
    EXPECT_GT(inked(LampButton::Words::All), brief);
}

TEST_F(ALampRow, ACopyLosesItsShortFormFirstAndTheLastContactLast) {
    const Lamp bad{Lamp::State::Bad, kBad.text, "tip", "12:07"};
    for (const LampKind kind : {LampKind::Utc, LampKind::Copy, LampKind::LastContact}) row->Show(kind, bad);
    const auto words = [this](LampKind kind) { return row->Button(kind).ShownWords(); };
    int different = 0;
    for (int width = 1000; width > 300; width -= 10) {
        window.resize(width, 300);
        Settle();
        EXPECT_GE(words(LampKind::LastContact), words(LampKind::Utc)) << width;
        EXPECT_GE(words(LampKind::Utc), words(LampKind::Copy)) << width;
        if (words(LampKind::Copy) == LampButton::Words::None && words(LampKind::LastContact) == LampButton::Words::Short) ++different;
    }
    EXPECT_GT(different, 0);
}

TEST_F(ALampRow, AShortFormTakesNoRoomFromTheWholeText) {
    const auto leastWidth = [this](const std::string& brief) {
        row->Show(LampKind::Copy, {Lamp::State::Bad, kBad.text, brief, brief});
        for (int width = 1000; width > 300; width -= 3) {
            window.resize(width, 300);
            Settle();
            if (row->Button(LampKind::Copy).Brief()) return width;
        }
        return 0;
    };
    const int without = leastWidth("");
    EXPECT_GT(without, 0);
    EXPECT_EQ(leastWidth("12:07"), without);
}

TEST_F(ALampRow, WhatIsWrongHasAnOutlineAtNight) {
    QApplication::setPalette(NightPalette());
    const auto across = [this](const Lamp& lamp) {
        row->Show(LampKind::Copy, lamp);
        Settle();
        const QImage image = row->Button(LampKind::Copy).grab().toImage();
        // From the left edge, in the middle: how often the colour changes between lit and dark before the sign begins.
        int changes = 0;
        for (int x = 1; x < 6 * image.devicePixelRatio(); ++x)
            changes += (qRed(image.pixel(x, image.height() / 2)) > 100) != (qRed(image.pixel(x - 1, image.height() / 2)) > 100) ? 1 : 0;
        return changes;
    };
    EXPECT_GE(across(kBad), 2);
    EXPECT_LE(across(kNotice), 1);
}

TEST_F(ALampRow, GivesRoomBackWhenWordsGetShorter) {
    row->Show(LampKind::LastContact, {Lamp::State::Good, std::string(300, 'x'), "tip"});
    Settle();
    EXPECT_TRUE(row->Button(LampKind::LastContact).Brief());
    row->Show(LampKind::LastContact, kGood);
    Settle();
    EXPECT_FALSE(row->Button(LampKind::LastContact).Brief());
    EXPECT_GE(row->Button(LampKind::LastContact).width(), row->Button(LampKind::LastContact).WidthOf(LampButton::Words::All));
}

TEST_F(ALampRow, IsLegibleInEveryScheme) {
    for (const auto& [scheme, palette] : AllSchemes()) {
        QApplication::setPalette(palette);
        for (const Lamp& lamp : {kGood, kNotice, kBad}) {
            row->Show(LampKind::Copy, lamp);
            Settle();
            EXPECT_GE(ContrastOfText(row->Button(LampKind::Copy)), 4.5) << scheme << ", " << lamp.text;
        }
    }
}

TEST_F(ALampRow, TellsItselfToAScreenReader) {
    row->Show(LampKind::Copy, kBad);
    EXPECT_EQ(row->Button(LampKind::Copy).accessibleName(), QStringLiteral("Løbende kopi: INGEN KOPI siden 12:07"));
    EXPECT_EQ(row->Button(LampKind::Copy).accessibleDescription(), QStringLiteral("tip"));
    EXPECT_EQ(row->Button(LampKind::Copy).toolTip(), QStringLiteral("tip"));
}

TEST_F(ALampRow, ShowsNothingThatIsOff) {
    row->Show(LampKind::Utc, kGood);
    Settle();
    EXPECT_TRUE(row->Button(LampKind::Utc).isVisible());
    EXPECT_FALSE(row->Button(LampKind::Copy).isVisible());
}

class LampsOfTheProgram : public WindowProgram {
protected:
    explicit LampsOfTheProgram(const char* mode = "SSB") {
        settings.texts["SETTINGS/GSUTC"] = "-2";
        for (const char* key : {"SETTINGS/MODE", "SETTINGS/QSOMODE"}) settings.texts[key] = mode;
        lamps.clocks = [this] {
            ClockWatch::Reading reading;
            reading.local = clock.now;
            reading.universal = AddHours(clock.now, zone);
            reading.steady = steady;
            return reading;
        };
        WatchMorseTries(qtFront, [this](bool sent) { lamps.MorseTried(sent); });
        StartVatro();
        Deliver([this] { lamps.Begin(); });
    }
    /// Lets the computer's clock jump.
    void Jump(long long milliseconds, int hours = 0) {
        clock.now = AddMilliseconds(AddHours(clock.now, hours), milliseconds);
        steady += 100ms;
    }
    void Pass(std::chrono::milliseconds time) {
        clock.now = AddMilliseconds(clock.now, time.count());
        steady += time;
    }
    void Key(char c) {
        driver.Press({.name = {}, .character = c});
        driver.Settle();
    }
    LampButton& Button(LampKind kind) {
        return *WindowOf(*frmMain).Top()->findChild<LampButton*>(QStringLiteral("lamp%1").arg(static_cast<int>(kind)));
    }
    std::string Time() const { return frmMain->fields[kUtcField].Text(); }

    QtFront& qtFront = dynamic_cast<QtFront&>(driver.ProgramFront());
    DiskFiles disk;
    Safety safety{disk, clock, settings, instance};
    CopyKeeper copy{qtFront, safety, settings};
    Lamps lamps{qtFront, safety, copy};
    int zone = -2;
    std::chrono::milliseconds steady{1000};
};

TEST_F(LampsOfTheProgram, ShowTheTimeOfTheLog) {
    EXPECT_EQ(Button(LampKind::Utc).Shown().text, "UTC 13:00");
    EXPECT_FALSE(Button(LampKind::LastContact).isVisible());
    EXPECT_FALSE(Button(LampKind::Copy).isVisible());
}

TEST_F(LampsOfTheProgram, TheFirstKeyAfterAJumpFindsTheNewTime) {
    EXPECT_EQ(Time(), "13:00");
    Jump(0, 7);
    Key('D');
    EXPECT_EQ(Time(), "20:00");
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "D");
    EXPECT_EQ(Button(LampKind::Utc).Shown().state, Lamp::State::Notice);
    Pass(61s);
    Key('L');
    EXPECT_EQ(Button(LampKind::Utc).Shown().text, "UTC 20:01");
}

TEST_F(LampsOfTheProgram, TheFirstClickAfterAJumpFindsTheNewTime) {
    Jump(0, 7);
    QTest::mouseClick(&WidgetOf<QWidget>(frmMain->fields[kCallField]), Qt::LeftButton);
    EXPECT_EQ(Time(), "20:00");
}

TEST_F(LampsOfTheProgram, AJumpDoesNotTouchATimeThatIsBeingTyped) {
    Deliver([] { frmMain->fields[kUtcField].SetFocus(); });
    driver.Settle();
    frmMain->fields[kUtcField].SetText("12:5");
    Jump(0, 7);
    driver.Press({.name = "Left"});
    driver.Settle();
    EXPECT_EQ(Time(), "12:5");
}

TEST_F(LampsOfTheProgram, AJumpDoesNothingWhileTheTimeIsTypedByHand) {
    Deliver([] { frmMain->mnuIndstillingerKlokken.Choose(); });
    const std::string before = Time();
    Jump(0, 7);
    Key('D');
    EXPECT_EQ(Time(), before);
}

TEST_F(LampsOfTheProgram, AClickOpensTheOffsetIfItIsWrong) {
    QTest::mouseClick(&Button(LampKind::Utc), Qt::LeftButton);
    zone = -1;
    Key('D');
    EXPECT_EQ(Button(LampKind::Utc).Shown().text, "UTC er 14:00, loggen siger 13:00");
    bool opened = false;
    driver.playUntil = [&](const std::function<bool()>&) {
        opened = true;
        EXPECT_TRUE(frmUTC->Visible());
        Dispatch([] { frmUTC->Hide(); });
    };
    QTest::mouseClick(&Button(LampKind::Utc), Qt::LeftButton);
    EXPECT_TRUE(opened);
}

TEST_F(LampsOfTheProgram, TellAnOffsetThatTheWindowCannotShow) {
    desk().gsUTC = "40";
    dialogs.Expect(
        "UTC offset er \"40\" og står ikke i listen (-11 til 12).\r\n\r\nAfslut Vatro, slet linjen UTC i "
        "indstillingsfilen, og start igen. Se Indstillingsfilen i håndbogen.");
    Key('D');
    EXPECT_EQ(Button(LampKind::Utc).Shown().state, Lamp::State::Bad);
    QTest::mouseClick(&Button(LampKind::Utc), Qt::LeftButton);
    EXPECT_TRUE(dialogs.expected.empty());
}

TEST_F(LampsOfTheProgram, TellAnOffsetThatIsNoNumber) {
    desk().gsUTC = "x";
    dialogs.Expect(
        "UTC offset er \"x\" og står ikke i listen (-11 til 12).\r\n\r\nAfslut Vatro, slet linjen UTC i indstillingsfilen, og start igen. "
        "Se Indstillingsfilen i håndbogen.");
    Key('D');
    QTest::mouseClick(&Button(LampKind::Utc), Qt::LeftButton);
    EXPECT_TRUE(dialogs.expected.empty());
    EXPECT_TRUE(dialogs.failures.empty());
}

class LampsWithoutASoundCard : public LampsOfTheProgram {
protected:
    LampsWithoutASoundCard() : LampsOfTheProgram("CW") { sound.there = false; }
    void Send() {
        driver.Press({.name = "F5"});
        driver.Settle();
    }
};

TEST_F(LampsWithoutASoundCard, TellEachTimeThatNothingWasSent) {
    LampButton& lamp = Button(LampKind::Morse);
    EXPECT_FALSE(lamp.isVisible());
    dialogs.Expect("Lydkort findes ikke.");
    Send();
    EXPECT_TRUE(dialogs.expected.empty());
    EXPECT_TRUE(lamp.isVisible());
    EXPECT_EQ(lamp.Shown().text, "CW ikke sendt");
    const QImage once = lamp.grab().toImage();
    Send();
    EXPECT_NE(lamp.grab().toImage(), once) << "blinks";
    EXPECT_TRUE(QTest::qWaitFor([&] { return lamp.grab().toImage() == once; }, 3000));
}

TEST_F(LampsWithoutASoundCard, TellNoLongerWhenATextIsSent) {
    dialogs.Expect("Lydkort findes ikke.");
    Send();
    sound.there = true;
    Deliver([] {
        frmCWTX.Unload();
        frmMain->SetFocus();
    });
    driver.Settle();
    Send();
    EXPECT_FALSE(Button(LampKind::Morse).isVisible());
}

TEST_F(LampsOfTheProgram, TellOfACorrection) {
    safety.saved("17:52 SM7AA           59 -0034 59 -0012  3 SM         OZ1AB      SSB   05-09-26");
    safety.corrected("17:52 SM7AB           59 -0034 59 -0012  3 SM         OZ1AB      SSB   05-09-26");
    EXPECT_THAT(Button(LampKind::LastContact).Shown().text, HasSubstr("0034 SM7AB rettet"));
}

TEST_F(LampsOfTheProgram, TellWhatBecameOfTheLastContact) {
    safety.saved("17:52 SM7AA           59 -0034 59 -0012  3 SM         OZ1AB      SSB   05-09-26");
    EXPECT_THAT(Button(LampKind::LastContact).Shown().text, HasSubstr("0034 SM7AA gemt"));
    safety.notSaved("/log/FD80mSSB.txt", Failure::DiskFull);
    EXPECT_EQ(Button(LampKind::LastContact).Shown().state, Lamp::State::Bad);
    EXPECT_THAT(Button(LampKind::LastContact).Shown().tip, HasSubstr("FD80mSSB.txt"));
}

TEST_F(LampsOfTheProgram, NeverTakeTheKeyboard) {
    safety.saved("17:52 SM7AA           59 -0034 59 -0012  3 SM         OZ1AB      SSB   05-09-26");
    QTest::mouseClick(&Button(LampKind::LastContact), Qt::LeftButton);
    Key('D');
    EXPECT_EQ(frmMain->fields[kCallField].Text(), "D");
}

/// The program's own files on the disk, with a log and a stick.
class TheCopyOfTheProgram : public LampsOfTheProgram {
protected:
    TheCopyOfTheProgram() {
        for (const char* folder : {"log", "stick"}) std::filesystem::create_directory(root / folder);
        desk().gsLogLib = NativeText(root / "log");
    }
    ~TheCopyOfTheProgram() override { copy.End(); }
    void Choose(const std::string& folder) {
        dialogs.chosen = NativeText(root / folder) + files.Separator() + "vatro.kopi";
        Deliver([this] { copy.Choose(); });
    }
    bool Shows(const std::string& start) {
        return QTest::qWaitFor([&] {
            copy.Look();
            return copy.Shown().text.starts_with(start);
        });
    }

    TemporaryDirectory directory;
    const std::filesystem::path& root = directory.Path();
};

TEST_F(TheCopyOfTheProgram, FollowsTheLogFromTheMomentItIsChosen) {
    Choose("stick");
    EXPECT_TRUE(Shows("kopi"));
    SafeFiles& safeFiles = safety.ProgramFiles();
    safeFiles.Open(1, NativeText(root / "log/FD80mSSB.txt"), FileMode::Append);
    safeFiles.PrintLine(1, "17:52 SM7AA           59 -0034 59 -0012  3 SM         OZ1AB      SSB   05-09-26");
    safeFiles.Close(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(root / "stick/FD80mSSB.txt"); }));
    EXPECT_TRUE(std::filesystem::exists(root / "stick/vatro.kopi"));
    EXPECT_EQ(settings.Read("Settings", "KopiBib"), NativeText(root / "stick"));
    EXPECT_TRUE(copy.End());
    EXPECT_EQ(copy.LastWord(), "");
}

TEST_F(TheCopyOfTheProgram, IsNotTakenInUseAgainAtTheNextStart) {
    settings.Write("Settings", "KopiBib", NativeText(root / "stick"));
    settings.Write("Settings", "KopiId", "id");
    copy.Begin();
    EXPECT_TRUE(Shows("INGEN KOPI"));
    EXPECT_TRUE(std::filesystem::is_empty(root / "stick"));
    copy.End();
    EXPECT_THAT(copy.LastWord(), HasSubstr("vatro.kopi mangler"));
}

TEST_F(TheCopyOfTheProgram, IsRefusedWhereTheLogIs) {
    dialogs.Expect("Det er selve logbiblioteket. Vælg et andet bibliotek, helst på en USB-nøgle.");
    Choose("log");
    EXPECT_FALSE(settings.Read("Settings", "KopiBib").has_value());
    EXPECT_EQ(copy.Shown().state, Lamp::State::Off);
}

TEST_F(TheCopyOfTheProgram, FollowsTheLogDirectory) {
    Choose("stick");
    EXPECT_TRUE(Shows("kopi"));
    std::filesystem::create_directory(root / "other");
    std::ofstream(root / "other/FD40mCW.txt") << "17:52 SM7AA           599-0034 599-0012  3 SM         OZ1AB      CW    05-09-26\r\n";
    desk().gsLogLib = NativeText(root / "other");
    copy.Look();
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(root / "stick/FD40mCW.txt"); }));
}

TEST_F(TheCopyOfTheProgram, StaysAsItIsIfTheOperatorCancels) {
    dialogs.chosen.reset();
    Deliver([this] { copy.Choose(); });
    EXPECT_FALSE(settings.Read("Settings", "KopiBib").has_value());
    EXPECT_TRUE(dialogs.failures.empty());
}

}  // namespace
}  // namespace vatro
