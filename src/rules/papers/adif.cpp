// SPDX-License-Identifier: MIT
#include "papers/adif.h"

#include <utility>

#include "codepage.h"
#include "datetime.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// A record as it grows.
class Record {
public:
    Record() { text_.reserve(kUsualLength); }

    /// A date that is none adds nothing.
    void AddDate(std::string_view date) {
        const auto day = ParseDate(date);
        if (!day) return;
        text_.append("<QSO_DATE:8:d>");
        for (const int number : {day->year / 100, day->year % 100, day->month, day->day}) AddTwoDigits(number);
        text_.append(kLineEnd);
    }

    /// The time of a contact line; one that is none adds nothing.
    void AddTime(std::string_view line) {
        const auto timeOfDay = ParseTime(std::string(Columns(line, 1, 2)).append(1, ':').append(Columns(line, 4, 2)));
        if (!timeOfDay) return;
        text_.append("<TIME_ON:4>");
        AddTwoDigits(timeOfDay->hour);
        AddTwoDigits(timeOfDay->minute);
        text_.append(kLineEnd);
    }

    /// `value` has at most as many characters as the widest field of a line.
    void AddField(std::string_view tag, std::string_view value) {
        const int length = static_cast<int>(value.size());
        text_.append(tag);
        if (length < 10)
            text_ += static_cast<char>('0' + length);
        else
            AddTwoDigits(length);
        text_ += '>';
        text_.append(value).append(kLineEnd);
    }

    std::string End() && {
        text_.append("<EOR>").append(kLineEnd);
        return std::move(text_);
    }

private:
    /// Of the longest record, and of the line end that separates it from the next one.
    static constexpr std::size_t kUsualLength = 300;

    void AddTwoDigits(int number) {
        text_ += static_cast<char>('0' + number / 10);
        text_ += static_cast<char>('0' + number % 10);
    }

    std::string text_;
};

}  // namespace

void WriteAdifHead(LineSink& file) {
    file.Write("Genereret af QQ9ZZZ's Logprogram (RT60)<EOH>\r\n");
}

void DanAdifKrop(LineSource& lines, LineSink& file, const LogId& log) {
    while (!lines.AtEnd()) {
        const std::string line = lines.Next();
        if (!IsNoteLine(line)) file.Write(AdifRecord(line, log.band).append(kLineEnd));
    }
}

std::string AdifRecord(std::string_view line, std::string_view band) {
    Record record;
    record.AddDate(kDate.Of(line));
    record.AddTime(line);
    record.AddField("<BAND:", UpperText(band));
    record.AddField("<MODE:", kQsoMode.TrimmedOf(line));
    record.AddField("<CALL:", kCall.TrimmedOf(line));
    record.AddField("<RST_SENT:", kReportSent.TrimmedOf(line));
    record.AddField("<SRL_SENT:", kNumberSent.TrimmedOf(line));
    record.AddField("<RST_RCVD:", kReportReceived.TrimmedOf(line));
    record.AddField("<SRL_RCVD:", kNumberReceived.TrimmedOf(line));
    record.AddField("<POINTS:", kPoint.TrimmedOf(line));
    record.AddField("<MULT:", kMultiplier.TrimmedOf(line));
    record.AddField("<OPERATOR:", kOperatorAsRead.TrimmedOf(line));
    return std::move(record).End();
}

}  // namespace vatro
