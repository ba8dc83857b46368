// SPDX-License-Identifier: MIT
//
// Morse as samples.
//
// A tone is computed once, when the sound buffer is made, and cut into pieces of one dot length. From then on each Morse
// element is a copy of a piece, so that a fill costs next to nothing and can never fall behind the card. Speed, pitch and
// volume are thereby fixed in the pieces: a change of one of them makes new pieces.
//
// The sound buffer is one second of 16-bit samples that plays round and round. While one half sounds, the other one is
// filled. A stepper walks through the text and gives one element for each dot length:
//
//   element   piece
//   1 2 3     CWStart CWMidte CWSlut    first, middle and last third of a dash
//   4         CWPrik                    a dot
//   blank     CWPause
//   0         CWPause                   the text is over
//   -         CWStreg                   the tone alone; no character is made of it
//
// Between the elements of a character there is one dot length of silence, after a character 3 + Farnsworth; a blank is
// 4 + Farnsworth, and behind the last character 3 + Farnsworth pass before the end mark.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sound.h"

namespace vatro {

inline constexpr int kSamplesPerSecond = 44100;
/// The buffer holds one second.
inline constexpr int kBufferSamples = kSamplesPerSecond;

/// Of each piece the first Priklen samples are sent; there is one more behind them.
using Stykke = std::vector<std::int16_t>;

/// The length of a dot in samples.
extern std::int32_t Priklen;
/// The tone, three dots long.
extern Stykke CWStreg;
extern Stykke CWStart;
extern Stykke CWMidte;
extern Stykke CWSlut;
extern Stykke CWPrik;
extern Stykke CWPause;
/// A picture of the sound buffer, sample by sample. Twice as long as it, so that a piece that is longer
/// than a half may run over its end.
extern std::vector<std::int16_t> CWBillede;

/// The text that is sent: expanded, in upper case, a blank at its end. Set by DanCWTekst. All below is moved on by NæsteElement
/// and the fills, and cleared by NulstilStilling, save glCWSlat.
extern std::string gsCWTekst;
/// Characters of gsCWTekst that are done with.
extern std::int32_t glTegnPos;
/// Elements of the character that is being sent; empty between two.
extern std::string gscwtegn;
/// Place in gscwtegn, from 1; 0 between two characters.
extern std::int32_t glElementPos;
/// The present element; empty before the first one of a text. Emptied by StartCW.
extern std::string gsElement;
/// Samples of the present element that stand at the end of the other half already; 0 if none was cut. Set to 0 by StartCW.
extern std::int32_t glCWSlat;

/// Sets Priklen from the speed: 1.2 seconds divided by the words per minute. Fails with 11 at speed 0.
void BeregnPriklen();
/// Makes room for CWBillede and CWStreg, all silence. Fails with 9 where a dot would be shorter than its ramp.
void TildelPladser();
/// The tone into CWStreg, from giCWTone and glCWVolume. Fails with 6 where it is too loud for 16 bits.
void DanTone();
/// Cuts CWStreg into the five pieces, with ramps at the ends of dots and dashes. To be called after DanTone.
void DanElementer();

/// The element of the next dot length; "0", and everything at its beginning, when the text is over.
void NæsteElement(std::string& element);

/// Fills the first (second) half of the picture and writes it into the buffer. `aktiv` tells whether anything but the
/// end mark has gone into it.
void FyldDel1(bool& aktiv, SoundBuffer& buffer);
void FyldDel2(bool& aktiv, SoundBuffer& buffer);

/// The next text starts from its beginning.
void NulstilStilling();
/// No text, no pieces.
void NulstilSyntese();

}  // namespace vatro
