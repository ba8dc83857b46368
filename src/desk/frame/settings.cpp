// SPDX-License-Identifier: MIT
#include "frame/settings.h"

#include "codepage.h"
#include "forms.h"
#include "numbers.h"
#include "platform.h"

namespace vatro {

namespace {

std::string PlaceKey(const WindowPlace& place, std::string_view dimension) {
    return std::string(place.name).append(dimension);
}

}  // namespace

std::string ReadText(std::string_view section, std::string_view key, std::string_view standard) {
    return platform().settings.Read(section, key).value_or(std::string(standard));
}

int ReadNumber(std::string_view section, std::string_view key, int standard) {
    const auto text = platform().settings.Read(section, key);
    return text ? ToInt16(ToNumber(*text)) : standard;
}

int ReadTwips(std::string_view key, int standard) {
    const auto text = platform().settings.Read(kSettings, key);
    return text ? ToInt32(ToNumber(*text)) : standard;
}

bool ReadFlag(std::string_view section, std::string_view key, bool standard) {
    const auto text = platform().settings.Read(section, key);
    if (!text) return standard;
    if (EqualNoCase(*text, "True")) return true;
    if (EqualNoCase(*text, "False")) return false;
    return ToNumber(*text) != 0;
}

void StoreText(std::string_view section, std::string_view key, std::string_view text) {
    platform().settings.Write(section, key, text);
}

void StoreNumber(std::string_view section, std::string_view key, int number) {
    StoreText(section, key, PlainNumber(number));
}

void StoreFlag(std::string_view section, std::string_view key, bool flag) {
    StoreText(section, key, flag ? "True" : "False");
}

void RestorePlace(Form& form, const WindowPlace& place) {
    const int left = ReadTwips(PlaceKey(place, "Left"), place.left);
    const int top = ReadTwips(PlaceKey(place, "Top"), place.top);
    const int width = ReadTwips(PlaceKey(place, "Width"), place.width);
    const int height = ReadTwips(PlaceKey(place, "Height"), place.height);
    form.Place(left, top, width, height);
}

void StorePlace(const Form& form, const WindowPlace& place) {
    if (form.State() == WindowState::Minimised) return;
    StoreNumber(kSettings, PlaceKey(place, "Left"), form.Left());
    StoreNumber(kSettings, PlaceKey(place, "Top"), form.Top());
    StoreNumber(kSettings, PlaceKey(place, "Width"), form.Width());
    StoreNumber(kSettings, PlaceKey(place, "Height"), form.Height());
}

}  // namespace vatro
