// SPDX-License-Identifier: MIT
#include "country/cty_file.h"

#include <string>

#include "errors.h"
#include "numbers.h"

namespace vatro {

namespace {

/// Where the character stands, from the offset `fra` on; it must stand somewhere.
std::size_t Find(std::string_view tekst, char tegn, std::size_t fra = 0) {
    const std::size_t plads = tekst.find(tegn, fra);
    if (plads == std::string_view::npos) throw RunTimeError(Failure::InvalidCall);
    return plads;
}

/// From the column up to the first ":" at or after the next column.
std::string_view TilKolon(std::string_view linje, std::size_t kolonne) {
    return linje.substr(kolonne - 1, Find(linje, ':', kolonne) - kolonne + 1);
}

/// The zone between two brackets with leading zeros, its last two characters; nothing without the opening one.
void LæsZone(std::string_view tekst, char fra, char til, FixedText<2>& zone) {
    const std::size_t start = tekst.find(fra);
    if (start == std::string_view::npos) return;
    const std::size_t slut = Find(tekst, til, start);
    std::string cifre = "00";
    cifre += tekst.substr(start + 1, slut - start - 1);
    zone = Right(cifre, 2);
}

void Fjern(std::string_view& tekst, char fra, char til) {
    if (tekst.ends_with(til)) tekst = tekst.substr(0, Find(tekst, fra));
}

}  // namespace

CtyHoved LæsCtyHoved(std::string_view linje) {
    CtyHoved hoved;
    hoved.navn = linje.substr(0, Find(linje, ':'));
    hoved.kontinent = TilKolon(linje, 37);
    hoved.pfx = TilKolon(linje, 70);
    hoved.cqZone = Columns(linje, 27, 2);
    hoved.ituZone = Columns(linje, 32, 2);
    hoved.bredde = Columns(linje, 41, 7);
    hoved.længde = Columns(linje, 51, 7);
    hoved.tidsZone = Columns(linje, 62, 5);
    return hoved;
}

float LæsCtyTal(std::string_view tekst) {
    return ToFloat32(NumericValue(tekst));
}

std::string_view CtyPoster::NæsteTekst() {
    const std::size_t start = plads_ - 1;
    std::size_t slut = linje_.find(',', start);
    if (slut == std::string_view::npos) slut = Find(linje_, ';', start);
    // Just behind the separator, as a column.
    plads_ = slut + 2;
    return linje_.substr(start, slut - start);
}

CtyPost CtyPoster::Opdel(std::string_view tekst, const CtyHoved& hoved) {
    CtyPost post{tekst, hoved.cqZone, hoved.ituZone, false};
    LæsZone(tekst, '(', ')', post.cqZone);
    LæsZone(tekst, '[', ']', post.ituZone);
    if (tekst.starts_with('=')) {
        post.kald = true;
        tekst.remove_prefix(1);
    }
    // The two may stand in either order.
    for (int gang = 0; gang < 2; ++gang) {
        Fjern(tekst, '(', ')');
        Fjern(tekst, '[', ']');
    }
    post.tekst = tekst;
    return post;
}

}  // namespace vatro
