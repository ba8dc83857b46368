// SPDX-License-Identifier: MIT
#include "papers/error_list.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory_resource>
#include <unordered_set>
#include <utility>

#include "call/call_analysis.h"
#include "checks/field_checks.h"
#include "columns.h"
#include "datetime.h"
#include "log/contact_line.h"
#include "numbers.h"
#include "papers/layout.h"
#include "score/points.h"

namespace vatro {

namespace {

/// Calls seen in a log are remembered with ten characters, cut or padded with blanks. A longer call is therefore never reported as a
/// duplicate.
constexpr std::size_t kRememberedCall = 10;
using RememberedCall = FixedText<kRememberedCall>;
struct HashOfCall {
    std::size_t operator()(const RememberedCall& call) const { return std::hash<std::string_view>{}(call.Padded()); }
};

void WriteError(LineSink& list, std::string_view message) {
    list.Write(std::string(kIndent).append("- ").append(message));
}

/// Whether a digit of a report lies between 1 and `highest`. A missing digit counts as good.
bool IsGoodDigit(std::string_view report, std::size_t number, char highest) {
    return report.size() < number || (report[number - 1] >= '1' && report[number - 1] <= highest);
}

struct ReportMessages {
    std::string_view threeDigits;
    std::string_view twoDigits;
    std::string_view first;
    std::string_view second;
    std::string_view last;
};
constexpr ReportMessages kSent{
    "Sendt RST skal være på 3 cifre."_t, "Sendt RST skal være på 2 cifre."_t, "Første ciffer i sendt sendt RST skal være mellem 1 og 5."_t,
    "Andet ciffer i sendt RST skal være mellem 1 og 9."_t, "Sidste ciffer i sendt RST skal være mellem 1 og 9."_t};
constexpr ReportMessages kReceived{"Modtaget RST skal være på 3 cifre."_t, "Modtaget RST skal være på 2 cifre."_t,
                                   "Første ciffer i modtaget RST skal være mellem 1 og 5."_t,
                                   "Andet ciffer i modtaget RST skal være mellem 1 og 9."_t,
                                   "Sidste ciffer i modtaget RST skal være mellem 1 og 9."_t};

std::string_view PointsMessage(std::int32_t points) {
    switch (points) {
        case 10:
            return "EDR station giver 10 point.";
        case 1:
            return "OZ station giver 1 point.";
        case 6:
            return "DX station giver 6 point.";
        case 5:
            return "EU/P station giver 5 point.";
        default:
            return "EU station giver 3 point.";
    }
}

}  // namespace

/// The check of one log. All rules are applied to each line, in the order of HasError, so a line can have several errors.
class ErrorList::Check {
public:
    Check(ErrorList& of, LineSink& list, const DateTime& now, std::string_view logMode)
        : countries_(of.countries_),
          stations_(of.stations_),
          left_(of.left_),
          list_(list),
          now_(now),
          cw_(logMode == "CW"),
          ssb_(logMode == "SSB") {
        countries_.ResetLande();
        stations_.ResetEDR();
    }

    /// Checks a contact line and returns whether it has an error. Fails with 5 if it has no call, after listing the errors found so
    /// far.
    bool HasError(std::string_view line) {
        line_ = line;
        shown_ = false;
        CheckTime();
        CheckCall();
        CheckReport(kReportSent.TrimmedOf(line_), kSent);
        if (!IsNumeric(kNumberSent.TrimmedOf(line_))) Complain("Sendt QSOnr skal være numerisk."_t);
        const std::string_view received = kReportReceived.TrimmedOf(line_);
        CheckReport(received, kReceived);
        CheckReportAsNumber(received);
        CheckPoints();
        CheckMultiplier();
        CheckRest();
        return shown_;
    }

private:
    void Complain(std::string_view message) {
        shown_ = DanFejlQSO(list_, line_, shown_);
        WriteError(list_, message);
    }

    void CheckTime() {
        if (const auto message = ValiderTid(kTime.TrimmedOf(line_), now_)) Complain(*message);
    }

    void CheckCall() {
        const std::string call = StripCall(kCall.TrimmedOf(line_));
        left_.gsCall = call;
        if (call.size() < 3) Complain("Et kaldesignal skal være på mindst 3 tegn."_t);
        if (!HasDigitsAndLetters(call)) Complain("Der skal være både tal og bogstaver i et kaldesignal."_t);
        if (call.starts_with('0')) Complain("Første tegn i call'et er et nul."_t);
        const bool remembered = !seen_.emplace(call).second;
        duplicate_ = remembered && call.size() <= kRememberedCall;
        if (duplicate_) Complain(call + " er en dublet!");
    }

    void CheckReport(std::string_view report, const ReportMessages& messages) {
        if (cw_ && report.size() != 3) Complain(messages.threeDigits);
        if (!cw_ && report.size() != 2) Complain(messages.twoDigits);
        if (!IsGoodDigit(report, 1, '5')) Complain(messages.first);
        if (!IsGoodDigit(report, 2, '9')) Complain(messages.second);
        if (cw_ && !IsGoodDigit(report, 3, '9')) Complain(messages.last);
    }

    /// The messages name the received number, but the code tests the received report a second time; see the header.
    void CheckReportAsNumber(std::string_view report) {
        if (NumericValue(report) == 0) Complain("Modtaget QSOnr er nul.");
        if (!IsNumeric(report)) Complain("Modtaget QSOnr skal være numerisk."_t);
    }

    void CheckPoints() {
        const std::string_view call = kCall.TrimmedOf(line_);
        std::int32_t& worth = left_.giQSOPoint.emplace(EuropeanPoints(call));
        const WorkedCountries::Result country = countries_.LandWkd(call, MarkAction::Mark);
        newMultiplier_ = Trim(country.prefix);
        if (country.changed) ++left_.newCountries;
        worth = country.points.value_or(worth);
        const double points = NumericValue(kPoint.TrimmedOf(line_));
        if (duplicate_) {
            if (points != 0) Complain("Dublet station giver 0 point.");
            return;
        }
        worth = stations_.EDRstnWkd(*left_.gsCall, MarkAction::Mark).value_or(worth);
        left_.gsCall = StationCall(*std::move(left_.gsCall));
        if (points != worth) Complain(PointsMessage(worth));
    }

    void CheckMultiplier() {
        const std::string_view multiplier = kMultiplier.TrimmedOf(line_);
        if (multiplier == newMultiplier_ || multiplier == kDupeMark) return;
        if (newMultiplier_.empty())
            Complain(std::string("QSO er ikke første qso for land: "_t)
                         .append(multiplier)
                         .append(". Flyt markeringen til den første QSO for landet."_t));
        else
            Complain(std::string("QSO er første multiplier for land: "_t).append(newMultiplier_).append(", men er ikke markeret."));
    }

    void CheckRest() {
        if (kOperatorAsRead.TrimmedOf(line_).empty()) Complain("Operatør skal udfyldes."_t);
        const std::string_view mode = kQsoMode.TrimmedOf(line_);
        if (ssb_ && mode != "SSB") Complain("Mode skal være SSB i SSB-log."_t);
        if (cw_ && mode != "PSK31" && mode != "CW" && mode != "RTTY" && mode != "HELL")
            Complain("Mode skal være CW, PSK31, RTTY eller HELL i CW-log."_t);
        CheckDate();
    }

    void CheckDate() {
        const std::string_view date = kDate.TrimmedOf(line_);
        if (date == validDate_.Trimmed() && !date.empty()) return;
        if (GyldigDato(date))
            validDate_ = date;
        else
            Complain("Dato skal være i formatet dd-mm-åå."_t);
    }

    WorkedCountries& countries_;
    Stations& stations_;
    Leftovers& left_;
    LineSink& list_;
    DateTime now_;
    bool cw_;
    bool ssb_;
    /// Memory of the calls seen so far: a log has thousands of them, and all are freed together.
    std::pmr::monotonic_buffer_resource memory_;
    std::pmr::unordered_set<RememberedCall, HashOfCall> seen_{&memory_};
    /// The last date that was found valid. Nearly all contacts of a log have the same one.
    FixedText<kDate.width> validDate_;
    std::string_view line_;
    /// Whether the line has been written above its first error.
    bool shown_ = false;
    /// Whether an earlier line has the same call.
    bool duplicate_ = false;
    /// The multiplier that the contact should have by the tables, or empty.
    std::string_view newMultiplier_;
};

void WriteErrorListHead(LineSink& list, const PaperContext& context) {
    list.Write(Indented("Vatro fejlliste for " + context.call + ". Dannet d. " + FormatDate(context.now, "dd.mm.yyyy")));
    WriteBlank(list);
}

void DanFejlListHoved(LineSink& list, const LogId& log) {
    list.Write(Indented("================================   " + BandAndMode(log.band, LeftAligned(log.mode, 3)) +
                        "   =================================="));
}

void ErrorList::DanFejlListKrop(LineSource& lines, LineSink& list, const PaperContext& context, const LogId& log) {
    Check check(*this, list, context.now, log.mode);
    bool FileHasErrors = false;
    do {
        const std::string line = lines.Next();
        if (IsNoteLine(line)) {
            WriteBlank(list);
            list.Write(Indented(line));
        } else if (check.HasError(line)) {
            FileHasErrors = true;
        }
    } while (!lines.AtEnd());
    if (FileHasErrors) return;
    WriteBlank(list);
    WriteError(list, "Der er ikke fundet fejl i denne log.");
}

void WriteLogNotFound(LineSink& list) {
    WriteBlank(list);
    WriteError(list, "Log ikke fundet.");
    WriteBlank(list);
}

bool DanFejlQSO(LineSink& list, std::string_view line, bool QSOShown) {
    if (QSOShown) return true;
    WriteBlank(list);
    list.Write(Indented(kColumnNames));
    list.Write(ContactRow(line));
    WriteBlank(list);
    return true;
}

std::optional<std::string> ValiderTid(std::string_view text, const DateTime& now) {
    std::array<char, 5> time{};
    if (text.size() == time.size()) {
        std::ranges::copy(text, time.begin());
        time[2] = ':';
        if (ParseTime(std::string_view(time.data(), time.size()))) return std::nullopt;
    }
    return std::string("Fejl i tidspunkt. Tidspunkt skal angives som: '").append(FormatTime(now)).append("'.");
}

bool GyldigDato(std::string_view text) {
    return ParseDate(text).has_value();
}

}  // namespace vatro
