// SPDX-License-Identifier: MIT
#include "country/cty_fit.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

#include "call/call_analysis.h"
#include "codepage.h"
#include "country/cty_file.h"
#include "country/tables.h"
#include "errors.h"

namespace vatro {

namespace {

constexpr std::size_t kLineLength = 78;

bool IsStarred(const CtyCountry& country) {
    return country.prefix.starts_with('*');
}

/// An item of the file, and its country.
struct KeptItem {
    const CtyCountry* country = nullptr;
    CtyItem* item = nullptr;
};

bool SameZones(const CtyItem& a, const CtyItem& b) {
    return a.cqZone == b.cqZone && a.ituZone == b.ituZone;
}

/// The country text of the item's call. It is looked up when the whole call is not in the table.
std::string CountryText(const CtyItem& item) {
    return findPfxCall(item.bare);
}

/// Whether looking up the item's own call can find the item's row.
bool IsReachable(const CtyItem& item) {
    return item.bare.size() <= kPrefixLength || CountryText(item).starts_with(item.prefix);
}

/// The items that stay, keyed by prefix.
class KeptItems {
public:
    /// Returns false, and adds nothing, if the prefix is there already.
    bool Add(const KeptItem& place) { return items_.emplace(place.item->prefix, place).second; }
    void Remove(const KeptItem& place) {
        place.item->stays = false;
        items_.erase(place.item->prefix);
    }
    std::size_t Count() const { return items_.size(); }
    const KeptItem* Find(const std::string& prefix) const {
        const auto found = items_.find(prefix);
        return found == items_.end() ? nullptr : &found->second;
    }
    /// The item that decides the country of this call once its own row is gone: that of the longest other prefix with which the country
    /// text begins, or nullptr.
    const KeptItem* Fallback(const CtyItem& item) const {
        const std::string text = CountryText(item);
        for (std::size_t length = std::min(text.size(), kPrefixLength) + 1; length-- > 0;)
            if (const KeptItem* place = Find(text.substr(0, length)); place != nullptr && place->item->prefix != item.prefix) return place;
        return nullptr;
    }

private:
    std::unordered_map<std::string, KeptItem> items_;
};

[[noreturn]] void FailInLine(std::size_t number, const std::string& what) {
    throw CtyError{"linje " + std::to_string(number) + ": " + what};
}

/// Whether the other item exists and belongs to the same country.
bool SameCountry(const KeptItem& place, const KeptItem* other) {
    return other != nullptr && other->country->prefix == place.country->prefix;
}

/// Whether the item still gets its country without its own row. A fallback that is itself a call does not count, whether marked with
/// "=" or recognised by its slash, since it may be removed later.
bool Supported(const KeptItem& place, const KeptItem* fallback) {
    return SameCountry(place, fallback) && !fallback->item->isExactCall && fallback->item->bare.find('/') == std::string::npos;
}

/// A single run of FitCty. KeptItem points into the countries, which must not move during the run.
class Fitting {
public:
    Fitting(std::vector<CtyCountry> countries, std::size_t room) : countries_(std::move(countries)), room_(room) {}

    FittedCty Fit() {
        LeaveOutStarred();
        CollectItems();
        LeaveOutRepeated();
        LeaveOutMisled();
        LeaveOut(room_, [](const KeptItem& place, const KeptItem*) { return !IsReachable(*place.item); });
        LeaveOut(room_, [](const KeptItem& place, const KeptItem* fallback) {
            return Supported(place, fallback) && SameZones(*place.item, *fallback->item);
        });
        LeaveOut(room_, Supported);
        LeaveOut(room_, [](const KeptItem& place, const KeptItem*) { return place.item->isExactCall; });
        if (kept_.Count() > room_)
            throw CtyError{std::to_string(kept_.Count()) + " præfixer kan ikke undværes, der er plads til " + std::to_string(room_)};
        LeaveOutForemost();
        // Once more: the prefix that gave an overlong call its country may have been removed since.
        LeaveOutMisled();
        RecordCosts();
        return {std::move(countries_), std::move(omissions_)};
    }

private:
    void LeaveOutStarred() {
        for (const CtyCountry& country : countries_)
            if (IsStarred(country)) omissions_.countries.push_back(country.prefix);
        std::erase_if(countries_, IsStarred);
    }

    /// Collects the items, sorted by length of prefix, the shortest first; items of equal length keep the order of the file. An item
    /// whose prefix occurred earlier under the same country goes to repeated_, items with the same zones first; one that occurred
    /// under another country is left out.
    void CollectItems() {
        std::vector<KeptItem> otherZones;
        for (CtyCountry& country : countries_)
            for (CtyItem& item : country.items) {
                const KeptItem place{&country, &item};
                if (kept_.Add(place)) {
                    places_.push_back(place);
                    continue;
                }
                const KeptItem& first = *kept_.Find(item.prefix);
                if (first.country->prefix == country.prefix) {
                    (SameZones(*first.item, item) ? repeated_ : otherZones).push_back(place);
                    continue;
                }
                item.stays = false;
                omissions_.duplicates.push_back(item.text);
            }
        repeated_.insert(repeated_.end(), otherZones.begin(), otherZones.end());
        std::stable_sort(places_.begin(), places_.end(),
                         [](const KeptItem& a, const KeptItem& b) { return a.item->prefix.size() < b.item->prefix.size(); });
    }

    void LeaveOutRepeated() {
        for (std::size_t i = 0; i < repeated_.size() && kept_.Count() + repeated_.size() - i > room_; ++i) repeated_[i].item->stays = false;
    }

    /// Removes items for which `mayGo` is true until at most `room` are left.
    template <class MayGo>
    void LeaveOut(std::size_t room, MayGo mayGo) {
        for (const KeptItem& place : places_) {
            if (kept_.Count() <= room) return;
            if (place.item->stays && mayGo(place, kept_.Fallback(*place.item))) kept_.Remove(place);
        }
    }

    /// Removes calls that are too long to be found, unless another prefix gives them the right country anyway.
    void LeaveOutMisled() {
        LeaveOut(
            0, [](const KeptItem& place, const KeptItem* fallback) { return !IsReachable(*place.item) && !SameCountry(place, fallback); });
    }

    /// Removes calls of full length that sort before all other prefixes with their first character, unless another prefix gives them
    /// their country. The index that the import builds skips such calls, so they would not be found until the program is started again.
    void LeaveOutForemost() {
        std::map<std::string, KeptItem> rows;
        for (const KeptItem& place : places_) {
            std::string key = place.item->prefix;
            key.resize(kPrefixLength, kCtyFiller);
            if (place.item->stays) rows.emplace(key, place);
        }
        char indexed = '\0';
        for (const auto& [key, place] : rows) {
            if (key.front() == indexed) continue;
            if (key.back() == kCtyFiller) {
                indexed = key.front();
                continue;
            }
            if (!SameCountry(place, kept_.Fallback(*place.item))) kept_.Remove(place);
        }
    }

    /// Records what each omission costs. This is done at the end, because an item that supplied the zones of another one may have
    /// been removed after it.
    void RecordCosts() {
        for (const KeptItem& place : repeated_) {
            const KeptItem* first = kept_.Find(place.item->prefix);
            if (first == nullptr) place.item->stays = false;
            if (!place.item->stays) RecordCost(place, first != nullptr ? first : kept_.Fallback(*place.item));
        }
        for (const KeptItem& place : places_)
            if (!place.item->stays) RecordCost(place, kept_.Fallback(*place.item));
    }

    /// Records the cost of leaving out an item whose country is now decided by `source`.
    void RecordCost(const KeptItem& place, const KeptItem* source) {
        const CtyItem& item = *place.item;
        std::vector<std::string>* list = &omissions_.nothingLost;
        if (!IsReachable(item))
            list = &omissions_.unreachable;
        else if (!SameCountry(place, source))
            list = &omissions_.lostCalls;
        else if (!SameZones(*source->item, item))
            list = &omissions_.zones;
        list->push_back(item.text);
    }

    std::vector<CtyCountry> countries_;
    std::size_t room_;
    KeptItems kept_;
    std::vector<KeptItem> places_;
    /// Items whose prefix occurs more than once under one country, without the first occurrence.
    std::vector<KeptItem> repeated_;
    CtyOmissions omissions_;
};

}  // namespace

std::vector<std::string> CtyLines(std::string_view content) {
    std::vector<std::string> lines;
    while (!content.empty()) {
        const std::size_t end = std::min(content.find_first_of("\r\n"), content.size());
        lines.emplace_back(content.substr(0, end));
        content.remove_prefix(end);
        if (content.empty()) break;
        content.remove_prefix(content.starts_with("\r\n") ? 2 : 1);
    }
    return lines;
}

std::vector<CtyCountry> ReadCtyFile(const std::vector<std::string>& lines) {
    std::vector<CtyCountry> countries;
    for (std::size_t number = 0; number < lines.size(); ++number) {
        CtyCountry country;
        country.header = lines[number];
        try {
            const CtyHeader header = ReadCtyHeader(country.header);
            country.prefix = header.prefix.substr(0, kPrefixLength);
            if (!header.IsOmitted())
                for (const std::string_view figure : {header.latitude, header.longitude, header.utcOffset}) ReadCtyNumber(figure);
            do {
                if (++number == lines.size()) FailInLine(number, "filen holder op midt i et land");
                CtyEntryReader rest(lines[number], header);
                while (rest.HasMore()) {
                    const std::string_view text = rest.NextText();
                    if (text.empty()) FailInLine(number + 1, "en post er tom");
                    // The import takes such a ";" as part of the item. At the end of a line the item could not be written back.
                    if (text.find(';') != std::string_view::npos) FailInLine(number + 1, "';' står inde i en post");
                    const CtyEntry item = CtyEntryReader::TakeApart(text, header);
                    country.items.push_back({std::string(text), std::string(item.text), std::string(item.text.substr(0, kPrefixLength)),
                                             item.cqZone, item.ituZone, item.isExactCall, true});
                }
            } while (!lines[number].ends_with(';'));
        } catch (const RunTimeError&) {
            FailInLine(number + 1, "kan ikke læses");
        }
        countries.push_back(std::move(country));
    }
    return countries;
}

std::vector<std::string> CheckCty(const std::vector<CtyCountry>& countries) {
    std::vector<std::string> errors;
    std::size_t countryCount = 0;
    std::size_t items = 0;
    bool omitted = false;
    const CtyCountry* previous = nullptr;
    std::unordered_map<std::string, std::string> countryOf;
    for (const CtyCountry& country : countries) {
        if (IsStarred(country) && !omitted) {
            omitted = true;
            continue;
        }
        if (omitted && IsStarred(country))
            errors.push_back("to lande med * efter hinanden: " + ToUtf8(country.prefix) + " bliver taget med");
        // The import recognises the header after an omitted country by the ":" at its end.
        if (omitted && !country.header.ends_with(':'))
            errors.push_back("overskriften efter et land med * slutter ikke med ':': " + ToUtf8(country.header));
        omitted = false;
        ++countryCount;
        items += country.items.size();
        if (previous != nullptr && previous->prefix >= country.prefix)
            errors.push_back(ToUtf8(country.prefix) + " står ikke i rækkefølge efter " + ToUtf8(previous->prefix));
        previous = &country;
        for (const CtyItem& item : country.items) {
            const auto [place, added] = countryOf.emplace(item.prefix, country.prefix);
            if (!added && place->second != country.prefix)
                errors.push_back(ToUtf8(item.prefix) + " står under både " + ToUtf8(place->second) + " og " + ToUtf8(country.prefix));
        }
    }
    if (omitted) errors.emplace_back("det sidste land er mærket med *");
    if (countryCount == 0) errors.emplace_back("filen har ingen lande");
    if (countryCount > static_cast<std::size_t>(kCountryRows))
        errors.push_back(std::to_string(countryCount) + " lande, der er plads til " + std::to_string(kCountryRows));
    if (items > kPrefixRoom) errors.push_back(std::to_string(items) + " præfixer, der er plads til " + std::to_string(kPrefixRoom));
    return errors;
}

FittedCty FitCty(std::vector<CtyCountry> countries, std::size_t room) {
    return Fitting(std::move(countries), room).Fit();
}

std::vector<std::string> WriteCty(const std::vector<CtyCountry>& countries) {
    std::vector<std::string> lines;
    for (const CtyCountry& country : countries) {
        lines.push_back(country.header);
        std::string line(4, ' ');
        bool first = true;
        for (const CtyItem& item : country.items) {
            if (!item.stays) continue;
            if (!first) line += ',';
            if (line.size() > 4 && line.size() + item.text.size() + 1 > kLineLength) {
                lines.push_back(line);
                line.assign(4, ' ');
            }
            line += item.text;
            first = false;
        }
        lines.push_back(line + ';');
    }
    return lines;
}

}  // namespace vatro
