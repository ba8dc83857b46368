// SPDX-License-Identifier: MIT
#include "clock_watch.h"

#include <cstdlib>
#include <string>

#include "codepage.h"
#include "joined.h"

namespace vatro {

using namespace literals;
using namespace std::chrono_literals;

namespace {

constexpr long long kMinute = 60'000;
/// A difference or jump up to this is not told: clocks that are set by hand are never exact.
constexpr long long kTold = 2 * kMinute;
/// How far the clock may move between two looks without having been set. The steady clock is read a moment later than the others.
constexpr long long kSteady = 1500;
/// Two looks are further apart than this only if the computer has slept or the program has been stopped.
constexpr long long kSlept = 10'000;
constexpr auto kShown = 60s;

/// A length of time for the operator, such as "12 min." or "3 t. 5 min.".
std::string LengthText(long long milliseconds) {
    const long long minutes = (std::llabs(milliseconds) + kMinute / 2) / kMinute;
    constexpr long long kHour = 60;
    if (minutes < kHour) return std::to_string(minutes) + " min.";
    const long long rest = minutes % kHour;
    return std::to_string(minutes / kHour) + " t." + (rest == 0 ? "" : " " + std::to_string(rest) + " min.");
}

}  // namespace

bool ClockWatch::Look(const Reading& reading) {
    const auto zone = [](const Reading& of) { return Milliseconds(of.local) - Milliseconds(of.universal); };
    bool jumped = false;
    if (last_) {
        const long long passed = Milliseconds(reading.universal) - Milliseconds(last_->universal);
        const long long set = passed - (reading.steady - last_->steady).count();
        // While the computer sleeps, the steady clock of some systems stands and that of others goes on.
        const long long jump = passed > kSlept ? passed : set;
        jumped = std::llabs(jump) > kSteady || std::llabs(zone(reading) - zone(*last_)) > kSteady;
        if (std::llabs(jump) > kTold) {
            jump_ = jump;
            jumpShownUntil_ = reading.steady + kShown;
        }
    }
    last_ = reading;
    logged_.reset();
    if (reading.offset) logged_ = AddHours(reading.local, *reading.offset);
    differs_ = !logged_ || std::llabs(Milliseconds(*logged_) - Milliseconds(reading.universal)) > kTold;
    return jumped;
}

Lamp ClockWatch::Shown() const {
    if (!last_) return {};
    const std::string computer = FormatTime(last_->universal);
    if (!logged_)
        return {Lamp::State::Bad, "UTC er " + computer + ", loggen har ingen tid",
                std::string("UTC offset er ikke et tal. Vælg det i Indstillinger, UTC offset..."_t)};
    const std::string logged = FormatTime(*logged_);
    if (differs_)
        return {Lamp::State::Bad, Joined({"UTC er ", computer, ", loggen siger ", logged}),
                Joined({"Computeren siger, at UTC er ", computer, ", men kontakterne bliver logget med ", logged,
                        ". Ret UTC offset eller computerens ur. Klik her for at rette UTC offset."}),
                logged};
    if (jump_ != 0 && last_->steady < jumpShownUntil_)
        return {Lamp::State::Notice, Joined({"Uret sprang ", LengthText(jump_), jump_ > 0 ? " frem" : " tilbage"_t, ": UTC ", logged}),
                "Computerens ur er stillet, eller computeren har været i dvale. Se efter, at klokken passer."};
    return {Lamp::State::Good, "UTC " + logged, Joined({"Klokken i loggen er ", logged, " UTC. Det passer med computerens UTC."})};
}

}  // namespace vatro
