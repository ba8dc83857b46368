// SPDX-License-Identifier: MIT
//
// Run-time failures, identified by number. A procedure catches the failures that it can handle. Any other failure reaches the event
// dispatcher, which shows the system's error box and ends the program.
#pragma once

#include <exception>
#include <string_view>

namespace vatro {

/// The failures and their numbers. Comments in the sources name a failure by its number, and some messages show it to the operator.
enum class Failure : int {
    InvalidCall = 5,
    Overflow = 6,
    IndexOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNumber = 52,
    FileNotFound = 53,
    BadFileMode = 54,
    FileAlreadyOpen = 55,
    FileExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
    /// The user left a file or printer dialogue with Cancel.
    Cancelled = 32755,
};

/// A short Danish description of the failure.
std::string_view Meaning(Failure failure);

/// A failure of the platform or of arithmetic.
class RunTimeError : public std::exception {
public:
    explicit RunTimeError(Failure failure) : failure_(failure) {}
    Failure Which() const { return failure_; }
    int Number() const { return static_cast<int>(failure_); }
    const char* what() const noexcept override { return "run-time failure"; }

private:
    Failure failure_;
};

}  // namespace vatro
