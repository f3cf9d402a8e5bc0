/* Strings: sequences of code points, immutable unless unique. */
#ifndef KO_STRING_H
#define KO_STRING_H

#include <runtime/ko_object.h>

KO_BEGIN_DECLS

typedef struct ko___Vector *KoVector;

/** A string is one block: this head and, right behind it, room for `capacity` characters. */
struct ko___String {
    struct ko___Obj head;
    KoInt length;
    KoInt capacity;
};

/** @name Sort, casts, references
 * The casts change no count. koStringFrom gives null for null and ends the process for an object of another sort. @{ */
KO_API KoSort koStringSort( void );
KO_API KoString koStringFrom( KoObj obj );
KO_API KoObj koStringObj( KoString s );
KO_API KoString koStringRetain( KoString s );
KO_API void koStringRelease( KoString s );
/** @} */

/** @name Creation
 * Each returns a new reference. A length of -1 takes a text up to its terminating zero, an array or a string up to its
 * end; a null pointer goes with length 0 only. Cstr text is UTF-8, in which each ill-formed sequence becomes one U+FFFD;
 * Wcstr text is UTF-16, in which a lone surrogate becomes U+FFFD. Lengths count units. @{ */
KO_API KoString koStringCreate( void );
KO_API KoString koStringCreateFromCstr( const char *chs, KoInt length );
KO_API KoString koStringCreateFromWcstr( const uint16_t *chs, KoInt length );
KO_API KoString koStringCreateFromCharsCopy( const KoChar *chs, KoInt length );
KO_API KoString koStringCreateFromInner( KoString s, KoInt offset, KoInt length );
KO_API KoString koStringCreateFromLeading( KoString s, KoInt length );
/** A new unique string of the length whose characters are not set: for code that fills it at once. @pre length >= 0 */
KO_API KoString ko___StringCreateOfLength( KoInt length );
/**
 * The constant string with a text: made at the first call for the text, the same handle at every later one. It is kept for
 * the rest of the process and never counted, so that threads can share it for nothing. Thread-safe.
 *
 * @param literal UTF-8 text with a terminating zero.
 * @pre literal
 */
KO_API KoString koStringConstant( const char *literal );
/** @} */

/** @name Formatted creation
 * Directives: `%s` a KoString, kept by the caller; `%~s` a KoString, taken over and released; `%i` a KoInt (64 bits: in
 * C, cast to KoInt); `%%`. Between `%` and `i` may stand, in this order: `^` for capital digits, `0N` for at least N
 * digits with zeros in front, `!B` for base B (2 to 36). A null string or an unknown directive ends the process. @{ */
KO_API KoString koStringCreateFromFormatCstr( const char *format, KoInt length, ... );
KO_API KoString koStringCreateFromFormatArgList( KoString format, va_list arguments );
KO_API KoString koStringCreateFromFormatCstrArgList( const char *format, KoInt length, va_list arguments );
KO_API KoString koStringCreateFromFormatWcstrArgList( const uint16_t *format, KoInt length, va_list arguments );
/** @} */

/** @name Reading @{ */
/** Number of characters. @pre s */
KO_API KoInt koStringLength( KoString s );
/** The characters; not terminated; valid until the string changes or ends. @pre s */
KO_API const KoChar *koStringBacking( KoString s );
/** @pre s @pre index >= 0 && index < koStringLength( s ) */
KO_API KoChar koStringCharAt( KoString s, KoInt index );
/** False on the empty string. */
KO_API KoBool koStringBeginsWithChar( KoString s, KoChar ch );
KO_API KoBool koStringEquals( KoString a, KoString b );
KO_API KoBool koStringEqualsChars( KoString s, const KoChar *chs, KoInt length );
/** Index of the first place from `start` on where the whole array stands, or -1. Linear in the string's length. */
KO_API KoInt koStringFindChars( KoString s, KoInt start, const KoChar *chs, KoInt length );
/**
 * Reads an optional single `-` and digits. False, with the outputs left alone, when there is no digit or the value does
 * not fit. `consumed` may be fewer than there are: callers compare.
 */
KO_API KoBool koStringScanInt( KoString s, KoInt offset, KoInt length, KoInt base, KoInt *value, KoInt *consumed );
/** Splits at a character into at most `maximum` parts (-1: no limit); the last part keeps its delimiters. At least one
 * part. @return new reference. */
KO_API KoVector koStringSplitChar( KoString s, KoChar ch, KoInt maximum );
/** The same at each place where the whole array stands. */
KO_API KoVector koStringSplitChars( KoString s, const KoChar *chs, KoInt length, KoInt maximum );
/** @} */

/** @name Changing
 * Each takes the address of the caller's handle, which may be replaced. Appending is linear in what is appended. @{ */
KO_API void koStringAppend( KoString *s, KoString other );
KO_API void koStringAppendChar( KoString *s, KoChar ch );
KO_API void koStringAppendChars( KoString *s, const KoChar *chs, KoInt length );
KO_API void koStringAppendCstr( KoString *s, const char *chs, KoInt length );
KO_API void koStringAppendFormatCstr( KoString *s, const char *format, KoInt length, ... );
/** Appends the character when the string is not empty, then the other string. */
KO_API void koStringDelimitedAppendCharDelimiter( KoString *s, KoString other, KoChar delimiter );
KO_API void koStringSetCharAt( KoString *s, KoInt index, KoChar ch );
/** Simple one-to-one case mappings of the Unicode Character Database; never the locale. */
KO_API void koStringToLower( KoString *s );
KO_API void koStringToUpper( KoString *s );
/** @} */

/**
 * The full upper-case mapping of a character (SpecialCasing included): U+00DF has the count 2.
 *
 * @param count Receives the number of characters; untouched when the result is null.
 * @return The mapping, in static memory; null where a character has none.
 */
KO_API const KoChar *ko___UnicodeUpperCaseDbLookup( KoChar ch, KoInt *count );

/** @name Number text @{ */
/** A new string with the digits of a number; `width` is the least number of digits, flag 2 pads with zeros (otherwise
 * blanks), flag 1 takes capital digits. @pre base >= 2 && base <= 36 */
KO_API KoString koFormatEncodeInt( KoInt value, KoInt base, KoInt width, KoInt flags );
/** koStringScanInt on an array. */
KO_API KoBool koFormatTryDecodeIntChars( const KoChar *chs, KoInt length, KoInt base, KoInt *value, KoInt *consumed );
/** @} */

KO_END_DECLS

#endif
