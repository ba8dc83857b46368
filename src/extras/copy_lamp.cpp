// SPDX-License-Identifier: MIT
#include "copy_lamp.h"

#include "codepage.h"
#include "joined.h"

namespace vatro {

using namespace literals;

namespace {

/// A stick may take a while to wake up. After this the operator is told.
constexpr std::chrono::milliseconds kPatience{5000};

Lamp NoCopy(const CopyStatus& status, std::string_view reason) {
    Lamp lamp;
    lamp.state = Lamp::State::Bad;
    lamp.text = status.good ? "INGEN KOPI siden " + FormatTime(*status.good) : "INGEN KOPI";
    if (status.good) lamp.brief = FormatTime(*status.good);
    lamp.tip = Joined({reason, " Loggen selv er gemt."});
    return lamp;
}

}  // namespace

Lamp CopyLamp(const CopyStatus& status, std::string_view directory) {
    if (!status.on) return {};
    if (status.busy >= kPatience)
        return NoCopy(status, Joined({directory,
                                      " svarer ikke. Tag USB-nøglen ud, og sæt den til igen, eller vælg et andet bibliotek med "
                                      "Ekstra, Løbende kopi."_t}));
    if (!status.reason.empty()) return NoCopy(status, status.reason);
    Lamp lamp;
    lamp.state = Lamp::State::Good;
    if (status.good) {
        const std::string time = FormatTime(*status.good);
        lamp.text = "kopi " + time;
        lamp.tip = Joined({"Den løbende kopi i "_t, directory, " er som loggene. Den blev sidst skrevet kl. "_t, time, " UTC."});
    } else {
        lamp.text = "kopi ..."_t;
        lamp.tip = Joined({"Den løbende kopi i "_t, directory, " sammenlignes med loggene."_t});
    }
    if (status.sameDisk)
        lamp.tip += " Den ligger på samme disk som loggen: går disken i stykker, er begge væk. Vælg hellere en USB-nøgle."_t;
    return lamp;
}

}  // namespace vatro
