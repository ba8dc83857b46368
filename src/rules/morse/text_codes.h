// SPDX-License-Identifier: MIT
//
// The #-codes of a Morse text, which stand for values of the contact in progress.
//
//   #C  call        #N  serial number        #R  the station's own call        #T  report
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// How a serial number is sent, as the settings store it: with its zeros, or with a T for each leading zero.
inline constexpr std::string_view kNumberWithZeros = "001";
inline constexpr std::string_view kNumberWithT = "--1";
/// How the report 599 is sent: in figures, or short.
inline constexpr std::string_view kReportInFigures = "599";
inline constexpr std::string_view kReportWithN = "5nn";

/// The number in the form of the settings. A number that has that form already, and one of an unknown form, stay as they are.
std::string NumberAsSent(std::string_view number, std::string_view format);
/// The same of the report. Only 599 has a short form.
std::string ReportAsSent(std::string_view report, std::string_view format);

/// What the codes stand for, each as it is to be sent.
struct CodeValues {
    std::string_view call;
    std::string_view report;
    /// Below 1000 its last three characters are sent, from 1000 on all of them.
    std::string_view number;
    std::string_view ownCall;
};

/// The text as it is sent: in upper case, codes replaced, a blank at its end. The values are put in as they are; codes in them are
/// replaced too. Of a "#" that no code follows, and of a code inside its own value, the "#" is dropped and the text behind it goes
/// on, so that every text has an end.
std::string DanCWTekst(std::string_view raw, const CodeValues& values);

}  // namespace vatro
