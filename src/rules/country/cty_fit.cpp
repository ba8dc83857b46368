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

/// An item that stays, and its country.
struct KeptItem {
    const CtyCountry* country = nullptr;
    CtyItem* item = nullptr;
};

bool SameZones(const CtyItem& a, const CtyItem& b) {
    return a.cqZone == b.cqZone && a.ituZone == b.ituZone;
}

/// The text that is looked up where the call is not found whole.
std::string CountryText(const CtyItem& item) {
    return findPfxCall(item.bare);
}

/// Whether the row of the item is met by the item's own call.
bool IsReachable(const CtyItem& item) {
    return item.bare.size() <= kPrefixLength || CountryText(item).starts_with(item.prefix);
}

/// The items that stay, by prefix.
class KeptItems {
public:
    /// False if the prefix is there already.
    bool Add(const KeptItem& place) { return items_.emplace(place.item->prefix, place).second; }
    void Remove(CtyItem& item) {
        item.stays = false;
        items_.erase(item.prefix);
    }
    std::size_t Count() const { return items_.size(); }
    const KeptItem* Find(const std::string& prefix) const {
        const auto found = items_.find(prefix);
        return found == items_.end() ? nullptr : &found->second;
    }
    /// What gives the item its country without its own row: the longest other one that begins the text, or nothing.
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

/// All items but those that stand twice, the shortest first; of equal length in the order of the file. What stands twice under
/// one country goes to `repeated`, first those with the same zones.
std::vector<KeptItem> CollectItems(std::vector<CtyCountry>& countries, KeptItems& kept, std::vector<KeptItem>& repeated,
                                   CtyOmissions& omissions) {
    std::vector<KeptItem> places;
    std::vector<KeptItem> otherZones;
    for (CtyCountry& country : countries)
        for (CtyItem& item : country.items) {
            const KeptItem place{&country, &item};
            if (kept.Add(place)) {
                places.push_back(place);
                continue;
            }
            const KeptItem& first = *kept.Find(item.prefix);
            if (first.country->prefix == country.prefix) {
                (SameZones(*first.item, item) ? repeated : otherZones).push_back(place);
                continue;
            }
            item.stays = false;
            omissions.duplicates.push_back(item.text);
        }
    repeated.insert(repeated.end(), otherZones.begin(), otherZones.end());
    std::stable_sort(places.begin(), places.end(),
                     [](const KeptItem& a, const KeptItem& b) { return a.item->prefix.size() < b.item->prefix.size(); });
    return places;
}

/// Leaves out items that may go until the rest fits.
template <class MayGo>
void LeaveOut(const std::vector<KeptItem>& places, KeptItems& kept, std::size_t room, MayGo mayGo) {
    for (const KeptItem& place : places) {
        if (kept.Count() <= room) return;
        if (place.item->stays && mayGo(place, kept.Fallback(*place.item))) kept.Remove(*place.item);
    }
}

/// Leaves out calls that the program never finds, unless another prefix leads them home all the same.
void LeaveOutMisled(const std::vector<KeptItem>& places, KeptItems& kept) {
    LeaveOut(places, kept, 0, [](const KeptItem& place, const KeptItem* fallback) {
        return !IsReachable(*place.item) && (fallback == nullptr || fallback->country->prefix != place.country->prefix);
    });
}

/// Leaves out calls of full length that stand before all other prefixes of their first character and that no other one
/// gives: until the program is started again the import's index leads past them.
void LeaveOutForemost(const std::vector<KeptItem>& places, KeptItems& kept) {
    std::map<std::string, KeptItem> rows;
    for (const KeptItem& place : places) {
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
        const KeptItem* fallback = kept.Fallback(*place.item);
        if (fallback == nullptr || fallback->country->prefix != place.country->prefix) kept.Remove(*place.item);
    }
}

/// Enters what it costs that the item is left out, where `source` decides its country now.
void RecordCost(CtyOmissions& omissions, const KeptItem& place, const KeptItem* source) {
    const CtyItem& item = *place.item;
    std::vector<std::string>* list = &omissions.nothingLost;
    if (!IsReachable(item))
        list = &omissions.unreachable;
    else if (source == nullptr || source->country->prefix != place.country->prefix)
        list = &omissions.lostCalls;
    else if (!SameZones(*source->item, item))
        list = &omissions.zones;
    list->push_back(item.text);
}

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
                    // The import takes it for a part of the item, which at the end of a line could not be written so again.
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
        // The import looks for the next header by its last character.
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

CtyOmissions FitCty(std::vector<CtyCountry>& countries, std::size_t room) {
    CtyOmissions omissions;
    for (const CtyCountry& country : countries)
        if (IsStarred(country)) omissions.countries.push_back(country.prefix);
    std::erase_if(countries, IsStarred);

    KeptItems kept;
    std::vector<KeptItem> repeated;
    const std::vector<KeptItem> places = CollectItems(countries, kept, repeated, omissions);
    for (std::size_t i = 0; i < repeated.size() && kept.Count() + repeated.size() - i > room; ++i) repeated[i].item->stays = false;
    // A call is no support, with or without its mark: it may have to go itself.
    const auto supported = [](const KeptItem& place, const KeptItem* fallback) {
        return fallback != nullptr && !fallback->item->isExactCall && fallback->item->bare.find('/') == std::string::npos &&
               fallback->country->prefix == place.country->prefix;
    };
    LeaveOutMisled(places, kept);
    LeaveOut(places, kept, room, [](const KeptItem& place, const KeptItem*) { return !IsReachable(*place.item); });
    LeaveOut(places, kept, room, [&](const KeptItem& place, const KeptItem* fallback) {
        return supported(place, fallback) && SameZones(*place.item, *fallback->item);
    });
    LeaveOut(places, kept, room, supported);
    LeaveOut(places, kept, room, [](const KeptItem& place, const KeptItem*) { return place.item->isExactCall; });
    if (kept.Count() > room)
        throw CtyError{std::to_string(kept.Count()) + " præfixer kan ikke undværes, der er plads til " + std::to_string(room)};

    LeaveOutForemost(places, kept);
    // What led them home may have gone.
    LeaveOutMisled(places, kept);

    // What an item has lost shows only now: the one that gave its zones may have gone after it.
    for (const KeptItem& place : repeated) {
        const KeptItem* first = kept.Find(place.item->prefix);
        if (first == nullptr) place.item->stays = false;
        if (!place.item->stays) RecordCost(omissions, place, first != nullptr ? first : kept.Fallback(*place.item));
    }
    for (const KeptItem& place : places)
        if (!place.item->stays) RecordCost(omissions, place, kept.Fallback(*place.item));
    return omissions;
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
