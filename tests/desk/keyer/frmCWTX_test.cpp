// SPDX-License-Identifier: MIT
#include "keyer/frmCWTX.h"
#include "frame/state.h"

#include <algorithm>

#include "desk/keyer/sending_program.h"
#include "keyer/frmAfslut.h"

namespace vatro {
namespace {

using Calls = std::vector<std::string>;

class Sending : public SendingProgram {
protected:
    static bool Shown() { return frmCWTX.Loaded() && frmCWTX.Peek()->Visible(); }
    static void PressStop() {
        Dispatch([] { frmCWTX->stopButton.Press(); });
    }
    /// The index after the last audible sample.
    std::size_t LastTone() const {
        const auto last = std::find_if(heard.rbegin(), heard.rend(), [](std::int16_t sample) { return sample != 0; });
        return static_cast<std::size_t>(heard.rend() - last);
    }
};

TEST_F(Sending, TheBufferIsOneSecondWithAnEventAtTheEndOfEachHalf) {
    Start();
    SendText("E");
    ASSERT_NE(sound.buffer, nullptr);
    EXPECT_EQ(sound.buffer->format.samplesPerSecond, 44100);
    EXPECT_EQ(sound.buffer->format.samples, 44100);
    ASSERT_EQ(sound.buffer->positions.size(), 2U);
    EXPECT_EQ(sound.buffer->positions[0].sample, 22049);
    EXPECT_EQ(sound.buffer->positions[1].sample, 44099);
    EXPECT_EQ(sound.buffer->positions[0].event, frmCWTX->CWEvent[0]);
    EXPECT_EQ(sound.buffer->positions[1].event, frmCWTX->CWEvent[1]);
    EXPECT_NE(frmCWTX->CWEvent[0], frmCWTX->CWEvent[1]);
}

TEST_F(Sending, BothHalvesAreFilledBeforeThePlayBegins) {
    Start();
    SendText("PARIS");
    EXPECT_EQ(sound.calls, (Calls{"write 0 22050", "write 22050 22050", "position 0", "play"}));
    EXPECT_TRUE(Shown());
    EXPECT_EQ(ActiveForm(), frmCWTX.Peek());
    EXPECT_TRUE(frmMain->Enabled());
    EXPECT_EQ(frmCWTX->text.Text(), "PARIS ");
}

TEST_F(Sending, AnEventFillsTheHalfThatHasJustBeenPlayed) {
    Start();
    SendText("PARIS PARIS");
    sound.calls.clear();
    Pass(0);
    Pass(1);
    Pass(0);
    EXPECT_EQ(sound.calls, (Calls{"write 0 22050", "write 22050 22050", "write 0 22050"}));
    EXPECT_TRUE(Shown());
}

TEST_F(Sending, AShortTextStopsAtTheFirstEvent) {
    Start();
    // At 60 words a minute, "E" and the silence after it take 9702 samples.
    desk().cw.giCWWPM = 60;
    SendText("E");
    sound.calls.clear();
    Pass(0);
    EXPECT_EQ(sound.calls, (Calls{"write 0 22050", "stop", "position 0"}));
    EXPECT_FALSE(Shown());
    EXPECT_EQ(ActiveForm(), &*frmMain);
    EXPECT_TRUE(frmCWTX.Loaded());
}

TEST_F(Sending, AnEmptyTextIsHalfASecondOfSilence) {
    Start();
    desk().cw.giCWWPM = 60;
    Send(4);
    EXPECT_EQ(frmCWTX->text.Text(), " ");
    PlayOut();
    EXPECT_EQ(heard, std::vector<std::int16_t>(kHalf));
}

TEST_F(Sending, TheNextSendUsesTheSameBuffer) {
    Start();
    SendText("E");
    const FakeSound::Buffer* first = sound.buffer;
    PlayOut();
    SendText("T");
    EXPECT_EQ(sound.buffer, first);
    EXPECT_EQ(sound.events.size(), 2U);
    EXPECT_EQ(sound.buffer->samples[2646], CurrentPieces().CWMidte[0]);
}

TEST_F(Sending, UpTo24WordsAMinuteEveryToneIsHeard) {
    Start();
    for (const int wpm : {6, 13, 20, 23, 24}) {
        Dispatch([] { frmCWTX.Unload(); });
        desk().cw.giCWWPM = static_cast<std::int16_t>(wpm);
        // Texts of this many dots, counted to the end of the last tone.
        for (const auto& [text, dots] :
             {std::pair{"E", 1}, {"T", 3}, {"A", 5}, {"U", 7}, {"V", 9}, {"4", 11}, {"EEEE", 13}, {"EEET", 15}}) {
            heard.clear();
            SendText(text);
            PlayOut();
            const int end = dots * (52920 / wpm);
            // The last sample of a tone can be 0.
            EXPECT_GE(LastTone(), static_cast<std::size_t>(end - 2)) << text << " at " << wpm;
            EXPECT_LE(LastTone(), static_cast<std::size_t>(end)) << text << " at " << wpm;
        }
    }
}

TEST_F(Sending, Above24WordsAMinuteTheLastTonesCanBeCutOff) {
    Start();
    // 27 dots of 1764 samples up to the end of the last dash, and 10 dots of silence, are 65268 samples in three halves. When
    // the third half begins to sound, the next one is empty and sending stops. So two halves are heard, which is 25 dots.
    desk().cw.giCWWPM = 30;
    SendText("EEEEEET");
    PlayOut();
    EXPECT_EQ(heard.size(), 2U * kHalf);
    EXPECT_GE(LastTone(), 25U * 1764 - 2);
}

TEST_F(Sending, ATextThatEndsWithAHalfIsFollowedByOneMore) {
    Start();
    // 15 dots of text and 10 dots of silence are 44100 samples. The last slot ends exactly with its half, and the keyer treats
    // it as cut.
    desk().cw.giCWWPM = 30;
    SendText("EEET");
    PlayOut();
    EXPECT_EQ(heard.size(), 2U * kHalf);
    EXPECT_GE(LastTone(), 15U * 1764 - 2);
}

TEST_F(Sending, ALongTextIsHeardAsItIsComposed) {
    Start();
    SendText("E E");
    PlayOut();
    // A dot, a word gap, a dot.
    EXPECT_EQ(LastTone(), 9U * 2646);
    EXPECT_TRUE(std::all_of(heard.begin() + 2646, heard.begin() + 8 * 2646, [](std::int16_t sample) { return sample == 0; }));
    EXPECT_EQ(std::vector<std::int16_t>(heard.begin() + 8 * 2646, heard.begin() + 9 * 2646),
              std::vector<std::int16_t>(CurrentPieces().CWPrik.begin(), CurrentPieces().CWPrik.begin() + 2646));
}

// --- Stop, and a send during a send

TEST_F(Sending, StopIsSilenceAtOnceAndTheBeginningOfTheNextText) {
    Start();
    SendText("PARIS PARIS");
    Pass(0);
    sound.calls.clear();
    PressStop();
    EXPECT_EQ(sound.calls, (Calls{"stop", "position 0"}));
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Place().glTegnPos, 0);
    EXPECT_EQ(Place().glElementPos, 0);
    EXPECT_EQ(Place().gscwtegn, "");
    EXPECT_EQ(Place().gsElement, "");
    SendText("T");
    EXPECT_EQ(sound.buffer->samples[1], CurrentPieces().CWStart[1]);
    EXPECT_EQ(sound.buffer->samples[2646], CurrentPieces().CWMidte[0]);
}

TEST_F(Sending, StopIsDefaultAndCancelButton) {
    Start();
    SendText("PARIS");
    EXPECT_EQ(frmCWTX->ActiveControl(), &frmCWTX->text);
    Dispatch([] { frmCWTX->UserDefaultKey(kEnter); });
    EXPECT_FALSE(Shown());
    SendText("PARIS");
    Dispatch([] { frmCWTX->UserDefaultKey(kEsc); });
    EXPECT_FALSE(Shown());
}

TEST_F(Sending, AnEventThatComesAfterTheStopDoesNothing) {
    Start();
    SendText("PARIS PARIS");
    PressStop();
    sound.calls.clear();
    Pass(0);
    EXPECT_EQ(sound.calls, Calls{});
    EXPECT_EQ(Place().glTegnPos, 0);
    EXPECT_EQ(Place().gsElement, "");
}

TEST_F(Sending, ASecondTextComesInWhereTheFirstOneStood) {
    Start();
    SendText("EEEEEEEEEE");
    // Two halves hold 16.67 slots of 2646 samples: four dots, each with three slots of gap, and the cut 17th slot, the fifth dot.
    EXPECT_EQ(Place().glTegnPos, 4);
    EXPECT_EQ(Place().gscwtegn, "4");
    EXPECT_EQ(Place().glElementPos, 1);
    sound.calls.clear();
    SendText("TTTTTTTTTT");
    // Nothing stops and nothing rewinds: the keyer finishes the fifth "E" with its gap, and goes on with the sixth dash.
    EXPECT_EQ(sound.calls, (Calls{"write 0 22050", "write 22050 22050", "position 0", "play"}));
    const auto at = [this](int slot) { return sound.buffer->samples.begin() + static_cast<std::ptrdiff_t>(slot) * 2646; };
    EXPECT_TRUE(std::all_of(at(0), at(3), [](std::int16_t sample) { return sample == 0; }));
    EXPECT_EQ(std::vector<std::int16_t>(at(3), at(4)),
              std::vector<std::int16_t>(CurrentPieces().CWStart.begin(), CurrentPieces().CWStart.begin() + 2646));
    // Three slots of gap, and two dashes with their gaps, are 15 of the 16.67 slots.
    EXPECT_EQ(Place().glTegnPos, 7);
}

TEST_F(Sending, ASecondTextThatIsShorterEndsAtOnce) {
    Start();
    SendText("EEEEEEEEEE");
    SendText("T");
    EXPECT_EQ(Place().gsElement, "0");
    EXPECT_EQ(Place().glTegnPos, 0);
    PlayOut();
    EXPECT_EQ(heard, std::vector<std::int16_t>(kHalf));
}

TEST_F(Sending, TheButtonTXSendsTheTextOnFromWhereItStands) {
    Start();
    SendText("EEEEEEEEEE");
    Dispatch([] { frmCWTX->sendButton.Press(); });
    EXPECT_EQ(frmCWTX->text.Text(), "EEEEEEEEEE ");
    // 16.67 slots after the gap behind the fifth dot: three slots of gap, three dots with their gaps, and a dot.
    EXPECT_EQ(Place().glTegnPos, 8);
}

// --- A new buffer

TEST_F(Sending, ANewSpeedBreaksTheTextOffAndTheWindowWaitsForStop) {
    Start();
    SendText("PARIS PARIS");
    const SoundEvent first = frmCWTX->CWEvent[0];
    Dispatch([] {
        desk().cw.giCWWPM = 40;
        frmCWTX->DanLydBuffer();
    });
    EXPECT_EQ(CurrentPieces().Priklen, 1323);
    EXPECT_EQ(CurrentPieces().CWStreg.size(), 3U * 1323 + 1);
    EXPECT_TRUE(Shown());
    sound.calls.clear();
    // This event was already under way when the old buffer was deleted.
    Dispatch([&] { sound.events.at(first)(first); });
    EXPECT_EQ(sound.calls, Calls{});
    PressStop();
    EXPECT_FALSE(Shown());
    SendText("T");
    EXPECT_EQ(sound.buffer->samples[1323], CurrentPieces().CWMidte[0]);
}

// --- No sound card

TEST_F(Sending, WithoutACardTheMessageComesOnceAndNothingElseHappens) {
    sound.there = false;
    Start();
    Type(frmMain->fields[kCallField], "DL9XYZ");
    dialogs.Expect("Lydkort findes ikke.");
    SendText("#C");
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(dialogs.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(dialogs.boxes[0].title, "");
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(frmMain->Enabled());
    EXPECT_EQ(ActiveForm(), &*frmMain);
    EXPECT_EQ(Place().gsCWTekst, "");
    EXPECT_EQ(desk().cw.gsCWCall, "");
    SendText("#C");
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(frmMain->Reachable());
    EXPECT_EQ(sound.calls, Calls{});
    Dispatch([] { frmMain->Unload(); });
    EXPECT_TRUE(front.ended);
    EXPECT_EQ(dialogs.failures, std::vector<int>{});
}

TEST_F(Sending, ATooLoudVolumeIsToldAsAMissingCard) {
    settings.texts["CW/VOLUME"] = "40000";
    Start();
    dialogs.Expect("Lydkort findes ikke.");
    SendText("E");
    SendText("E");
    EXPECT_EQ(sound.calls, Calls{});
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(frmMain->Reachable());
}

// --- Ends

TEST_F(Sending, ClosingTheWindowGivesTheCardBackAndKeepsThePosition) {
    Start();
    SendText("EEEEEEEEEE");
    int rounds = 0;
    front.pending = [&] {
        ++rounds;
        EXPECT_TRUE(frmCWTX.Peek()->Hourglass());
        ASSERT_TRUE(frmAfslut.Loaded());
        EXPECT_TRUE(frmAfslut.Peek()->Visible());
        EXPECT_EQ(frmAfslut->waitNotice.Caption(), "Vent et øjeblik..."_t);
        EXPECT_EQ(frmAfslut->endNotice.Caption(), "Vatro afsluttes!");
        EXPECT_EQ(sound.buffer, nullptr);
        EXPECT_EQ(sound.events.size(), 3U - static_cast<std::size_t>(rounds));
    };
    sound.calls.clear();
    Dispatch([] { frmCWTX.Peek()->UserClosed(); });
    EXPECT_EQ(rounds, 2);
    EXPECT_EQ(sound.events.size(), 0U);
    EXPECT_FALSE(frmCWTX.Loaded());
    EXPECT_FALSE(frmAfslut.Loaded());
    EXPECT_EQ(ActiveForm(), &*frmMain);
    EXPECT_EQ(Place().glTegnPos, 4);
    front.pending = nullptr;

    SendText("EEEEEEEEEE");
    EXPECT_EQ(sound.events.size(), 2U);
    EXPECT_EQ(Place().glTegnPos, 8);
    EXPECT_TRUE(Shown());
}

TEST_F(Sending, WhatIsPressedWhileTheCardGoesIsNoSend) {
    Start();
    SendText("EEEEEEEEEE");
    front.pending = [&] {
        Send(0);
        Dispatch([] { frmCWTX.Peek()->UserClosed(); });
    };
    Dispatch([] { frmCWTX.Peek()->UserClosed(); });
    EXPECT_FALSE(frmCWTX.Loaded());
    EXPECT_EQ(sound.buffer, nullptr);
    EXPECT_EQ(sound.events.size(), 0U);
    EXPECT_TRUE(frmMain->Reachable());
    EXPECT_EQ(dialogs.failures, std::vector<int>{});
}

TEST_F(Sending, TheEndOfTheProgramGivesTheCardBack) {
    Start();
    SendText("PARIS");
    int rounds = 0;
    front.pending = [&] { ++rounds; };
    Dispatch([] { frmMain->Unload(); });
    EXPECT_TRUE(front.ended);
    EXPECT_EQ(rounds, 2);
    EXPECT_EQ(sound.buffer, nullptr);
    EXPECT_EQ(sound.events.size(), 0U);
}

TEST_F(Sending, WindowsMayBeClosedWhileTheProgramEnds) {
    Start();
    SendText("PARIS");
    front.pending = [] {
        Dispatch([] {
            for (const char* name : {"frmB4", "frmQSOnr", "frmContestCall", "frmMain"}) FindFormSlot(name)->Unload();
        });
    };
    Dispatch([] { frmMain->Unload(); });
    EXPECT_TRUE(front.ended);
    EXPECT_EQ(LoadedForms().size(), 0U);
    EXPECT_EQ(sound.events.size(), 0U);
}

TEST_F(Sending, AProgramThatEndsAtOnceLeavesNothingBehind) {
    Start();
    SendText("PARIS");
    EndProgram();
    EXPECT_EQ(sound.buffer, nullptr);
    EXPECT_EQ(sound.events.size(), 0U);
}

TEST_F(Sending, ANewRunBeginsWithNothingOfTheOldText) {
    Start();
    SendText("EEEEEEEEEE");
    EndProgram();
    Start();
    EXPECT_EQ(Place().glTegnPos, 0);
    EXPECT_EQ(Place().gsCWTekst, "");
    SendText("T");
    EXPECT_EQ(sound.buffer->samples[1], CurrentPieces().CWStart[1]);
}

TEST_F(Sending, OutsideCWTheMenuSendsNothing) {
    settings.texts["SETTINGS/QSOMODE"] = "RTTY";
    Start();
    SendText("E");
    EXPECT_FALSE(frmCWTX.Loaded());
}

}  // namespace
}  // namespace vatro
