/* What IDNA needs to know of characters: status, mapping, normalisation form C (UAX #15), bidi class, joining type. */
#ifndef WEN_UNICODE_HPP
#define WEN_UNICODE_HPP

#include <runtime/ko_base.h>

namespace wen {

/** What UTS #46 says of a character: non-transitional, with the ASCII rules of STD 3. */
enum class Status : uint8_t { Valid, Ignored, Mapped, Disallowed };

/** The bidi classes that valid characters have. */
enum class Bidi : uint8_t { L, R, AL, EN, ES, ET, AN, CS, NSM, BN, ON };

/** The joining types. */
enum class Joining : uint8_t { U, L, R, D, T, C };

/** The properties of a character. What is not valid has a status only. */
struct Properties {
    Status status;
    uint8_t combiningClass;
    Bidi bidi;
    Joining joining;
    bool mark;
    bool composed; // never changed by composition with what stands in front of it (NFC_Quick_Check)
};

/** What the mapped characters from `first` up to the next mapping become. */
struct Mapping {
    KoChar first;
    int32_t length : 4; // number of characters
    int32_t value : 28; // one character: its distance; several: where they stand in the table of targets
};

/** A character and its canonical decomposition. */
struct Composite {
    KoChar first;
    KoChar second;
    KoChar composite;
};

/** The properties of a character. What is no code point is disallowed. */
const Properties &PropertiesOf( KoChar ch );

/** The longest mapping. */
constexpr int mappingLimit = 6;

/** Writes what a mapped character becomes, and returns the number of characters. */
int Map( KoChar ch, KoChar *target );

/** The longest text that Normalise works on: what a label of 63 characters can decompose to. */
constexpr int normaliseLimit = 252;

/**
 * Brings valid characters into normalisation form C, in their place.
 *
 * @param chs Room for normaliseLimit characters: reordered marks can keep others from being composed again.
 * @return The number of characters; -1 when the decomposed text is longer than normaliseLimit.
 */
int Normalise( KoChar *chs, int length );

} // namespace wen

#endif
