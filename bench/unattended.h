// SPDX-License-Identifier: MIT
//
// The services of a program that nobody sits at.
#pragma once

#include <stdexcept>
#include <string>

#include "platform/platform.h"
#include "text/codepage.h"

namespace vatro::bench {

/// The operator stays the same when the band changes. Any other box would stop a run for ever, so it ends it. No other copy
/// runs.
class Unattended : public Dialogs, public Instance {
public:
    Answer Show(const MessageBox& box) override {
        if (box.title == "Bånd/modeskift"_t && box.buttons == Buttons::YesNo) return Answer::Yes;
        throw std::runtime_error("a benchmark meets a box: " + ToUtf8(box.text));
    }
    std::string SaveFile(const FileDialog&) override { throw RunTimeError(Failure::Cancelled); }
    std::string OpenFile(const FileDialog&) override { throw RunTimeError(Failure::Cancelled); }
    void SetUpPrinter() override { throw RunTimeError(Failure::Cancelled); }
    void ShowFailure(const RunTimeError& failure) override {
        throw std::runtime_error("a benchmark meets failure " + std::to_string(failure.Number()));
    }
    bool AnotherCopyRuns() override { return false; }
};

class NoHelp : public Help {
public:
    void Show(std::string_view) override {}
};

}  // namespace vatro::bench
