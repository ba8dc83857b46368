// SPDX-License-Identifier: MIT
#include "frame/settings.h"

#include <optional>

#include "codepage.h"
#include "forms.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

namespace {

template <class Value>
std::optional<std::string> Stored(const Setting<Value>& row) {
    return platform().settings.Read(row.section, row.readKey);
}

template <class Value>
void Store(const Setting<Value>& row, std::string_view text) {
    platform().settings.Write(row.section, row.writeKey, text);
}

}  // namespace

std::string ReadSetting(const TextSetting& row) {
    return Stored(row).value_or(std::string(row.fallback));
}

std::int16_t ReadSetting(const ShortSetting& row) {
    const auto text = Stored(row);
    return text ? ToInt16(ToNumber(*text)) : row.fallback;
}

std::int32_t ReadSetting(const LongSetting& row) {
    const auto text = Stored(row);
    return text ? ToInt32(ToNumber(*text)) : row.fallback;
}

bool ReadSetting(const FlagSetting& row) {
    const auto text = Stored(row);
    if (!text) return row.fallback;
    if (EqualNoCase(*text, "True")) return true;
    if (EqualNoCase(*text, "False")) return false;
    return ToNumber(*text) != 0;
}

void StoreSetting(const TextSetting& row, std::string_view text) {
    Store(row, text);
}

void StoreSetting(const ShortSetting& row, std::int16_t number) {
    Store(row, PlainNumber(number));
}

void StoreSetting(const LongSetting& row, std::int32_t number) {
    Store(row, PlainNumber(number));
}

void StoreSetting(const FlagSetting& row, bool flag) {
    Store(row, flag ? "True" : "False");
}

void RestorePlace(Form& form, const PlaceSetting& place) {
    const int left = ReadSetting(place.left);
    const int top = ReadSetting(place.top);
    const int width = ReadSetting(place.width);
    const int height = ReadSetting(place.height);
    form.Place(left, top, width, height);
    form.atUsualPlace = left == place.left.fallback && top == place.top.fallback;
}

void StorePlace(const Form& form, const PlaceSetting& place) {
    if (form.State() == WindowState::Minimised) return;
    StoreSetting(place.left, form.Left());
    StoreSetting(place.top, form.Top());
    StoreSetting(place.width, form.Width());
    StoreSetting(place.height, form.Height());
}

}  // namespace vatro
