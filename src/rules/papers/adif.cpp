// SPDX-License-Identifier: MIT
#include "papers/adif.h"

#include "codepage.h"
#include "datetime.h"
#include "lines.h"
#include "log/contact_line.h"

namespace vatro {

namespace {

/// Makes records one after the other and reuses its memory, since a contest has thousands of contacts.
class RecordMaker {
public:
    /// Makes the record of a contact line (see AdifRecord). The result is valid until the next call.
    const std::string& Make(std::string_view line, std::string_view band) {
        text_.clear();
        AddDate(kDate.Of(line));
        AddTime(line);
        AddField("<BAND:", UpperText(band));
        AddField("<MODE:", kQsoMode.TrimmedOf(line));
        AddField("<CALL:", kCall.TrimmedOf(line));
        AddField("<RST_SENT:", kReportSent.TrimmedOf(line));
        AddField("<SRL_SENT:", kNumberSent.TrimmedOf(line));
        AddField("<RST_RCVD:", kReportReceived.TrimmedOf(line));
        AddField("<SRL_RCVD:", kNumberReceived.TrimmedOf(line));
        AddField("<POINTS:", kPoint.TrimmedOf(line));
        AddField("<MULT:", kMultiplier.TrimmedOf(line));
        AddField("<OPERATOR:", kOperatorAsRead.TrimmedOf(line));
        text_.append("<EOR>").append(kLineEnd);
        return text_;
    }

    /// The record made last, with another line end, which makes an empty line after it.
    const std::string& WithGap() {
        text_.append(kLineEnd);
        return text_;
    }

private:
    /// Adds the date field; adds nothing if the text is not a date.
    void AddDate(std::string_view date) {
        const auto day = ParseDate(date);
        if (!day) return;
        text_.append("<QSO_DATE:8:d>");
        for (const int number : {day->year / 100, day->year % 100, day->month, day->day}) AddTwoDigits(number);
        text_.append(kLineEnd);
    }

    /// Adds the time field of a contact line; adds nothing if the text is not a time.
    void AddTime(std::string_view line) {
        const auto timeOfDay = ParseTime(std::string(Columns(line, 1, 2)).append(1, ':').append(Columns(line, 4, 2)));
        if (!timeOfDay) return;
        text_.append("<TIME_ON:4>");
        AddTwoDigits(timeOfDay->hour);
        AddTwoDigits(timeOfDay->minute);
        text_.append(kLineEnd);
    }

    /// Adds a field. `value` is at most as long as the widest field of a line.
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
    RecordMaker records;
    while (!lines.AtEnd()) {
        const std::string line = lines.Next();
        if (IsNoteLine(line)) continue;
        records.Make(line, log.band);
        file.Write(records.WithGap());
    }
}

std::string AdifRecord(std::string_view line, std::string_view band) {
    return RecordMaker().Make(line, band);
}

}  // namespace vatro
