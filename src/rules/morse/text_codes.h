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
/// How the report 599 is sent, as the settings store it: in digits, or in its short form.
inline constexpr std::string_view kReportInFigures = "599";
inline constexpr std::string_view kReportWithN = "5nn";

/// Returns the number as it is sent: with kNumberWithT each leading zero becomes a T; with any other format it is unchanged.
std::string NumberAsSent(std::string_view number, std::string_view format);
/// Returns the report as it is sent: with kReportWithN, 599 becomes "5NN"; otherwise it is unchanged.
std::string ReportAsSent(std::string_view report, std::string_view format);

/// The values of the codes, each in the form in which it is sent.
struct CodeValues {
    std::string_view call;
    std::string_view report;
    /// The serial number. Below 1000 its last three characters are sent, from 1000 on all of them.
    std::string_view number;
    std::string_view ownCall;
};

/// Returns the text to be sent: in upper case, with the codes replaced and a blank at its end. Values are inserted as they are; codes
/// inside them are replaced too. If no code follows a "#", or the code occurs inside its own value, only the "#" is dropped and the text
/// continues after it, so the expansion always ends.
std::string DanCWTekst(std::string_view raw, const CodeValues& values);

}  // namespace vatro
