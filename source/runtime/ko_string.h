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
 * @{ */

/** The sort of strings. */
KO_API KoSort koStringSort( void );

/**
 * Casts an object to a string. Changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 * @pre !obj || koObjSort( obj ) == koStringSort()
 */
KO_API KoString koStringFrom( KoObj obj );

/**
 * Casts a string to an object. Changes no count.
 *
 * @param s shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 */
KO_API KoObj koStringObj( KoString s );

/**
 * Adds a reference.
 *
 * @param s shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre s
 */
KO_API KoString koStringRetain( KoString s );

/**
 * Drops a reference; the last one ends the string.
 *
 * @param s taken over.
 * @pre s
 */
KO_API void koStringRelease( KoString s );

/** @} */

/** @name Creation
 * A text of a caller has a length in units, or -1 for a text that ends before its terminating zero.
 * @{ */

/** An empty string. @return new reference. */
KO_API KoString koStringCreate( void );

/**
 * A string with the characters of a UTF-8 text. What is ill-formed becomes U+FFFD, one for each maximal subpart (The
 * Unicode Standard, 3.9).
 *
 * @param chs The text; may be null when the length is 0.
 * @param length Its length in bytes, or -1.
 * @return new reference.
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API KoString koStringCreateFromCstr( const char *chs, KoInt length );

/**
 * A string with the characters of a UTF-16 text. A lone surrogate becomes U+FFFD.
 *
 * @param chs The text; may be null when the length is 0.
 * @param length Its length in 16-bit units, or -1.
 * @return new reference.
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API KoString koStringCreateFromWcstr( const uint16_t *chs, KoInt length );

/**
 * A string with a copy of characters.
 *
 * @param chs The characters; may be null when the length is 0.
 * @param length Their number, or -1.
 * @return new reference.
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API KoString koStringCreateFromCharsCopy( const KoChar *chs, KoInt length );

/**
 * A string with a range of another one.
 *
 * @param s shared, the caller keeps its reference.
 * @param offset Where the range begins.
 * @param length Its length, or -1 for up to the end.
 * @return new reference; the string itself when the range is all of it.
 * @pre s
 * @pre offset >= 0 && offset <= koStringLength( s )
 * @pre length >= -1 && length <= koStringLength( s ) - offset
 */
KO_API KoString koStringCreateFromInner( KoString s, KoInt offset, KoInt length );

/**
 * A string with the first characters of another one.
 *
 * @param s shared, the caller keeps its reference.
 * @param length How many, or -1 for all.
 * @return new reference; the string itself when these are all of it.
 * @pre s
 * @pre length >= -1 && length <= koStringLength( s )
 */
KO_API KoString koStringCreateFromLeading( KoString s, KoInt length );

/**
 * A string whose characters are not set, for code that fills it at once.
 *
 * @param length The number of characters.
 * @return new reference, with a count of 1 also when the length is 0.
 * @pre length >= 0
 */
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
 * The directives of a format are
 *
 * - `%s`: a KoString (shared, the caller keeps its reference);
 * - `%~s`: a KoString (taken over);
 * - `%i`: a KoInt (64 bits: in C, cast what is no KoInt). Between `%` and `i` may stand, in this order: `^` for capital
 *   digits; `0N` for at least N digits with zeros in front; `!B` for the base B, 2 to 36. N and B have one to three
 *   digits, and a minus sign is no digit: `%02i` of -5 is `-05`;
 * - `%%`: a percent sign.
 *
 * Everything else stands for itself. A null string, or a directive that is none of these, ends the process.
 * @{ */

/**
 * A string by a format.
 *
 * @param format UTF-8 text; may be null when the length is 0.
 * @param length Its length in bytes, or -1.
 * @return new reference.
 * @pre format || length == 0
 * @pre length >= -1
 */
KO_API KoString koStringCreateFromFormatCstr( const char *format, KoInt length, ... );

/**
 * A string by a format that is a string.
 *
 * @param format shared, the caller keeps its reference.
 * @param arguments What the directives need; the caller ends the list.
 * @return new reference.
 * @pre format
 */
KO_API KoString koStringCreateFromFormatArgList( KoString format, va_list arguments );

/**
 * A string by a format.
 *
 * @param format UTF-8 text; may be null when the length is 0.
 * @param length Its length in bytes, or -1.
 * @param arguments What the directives need; the caller ends the list.
 * @return new reference.
 * @pre format || length == 0
 * @pre length >= -1
 */
KO_API KoString koStringCreateFromFormatCstrArgList( const char *format, KoInt length, va_list arguments );

/**
 * A string by a format.
 *
 * @param format UTF-16 text; may be null when the length is 0.
 * @param length Its length in 16-bit units, or -1.
 * @param arguments What the directives need; the caller ends the list.
 * @return new reference.
 * @pre format || length == 0
 * @pre length >= -1
 */
KO_API KoString koStringCreateFromFormatWcstrArgList( const uint16_t *format, KoInt length, va_list arguments );

/** @} */

/** @name Reading
 * @{ */

/**
 * The number of characters.
 *
 * @param s shared, the caller keeps its reference.
 * @pre s
 */
KO_API KoInt koStringLength( KoString s );

/**
 * The characters, without a zero behind them. They stay as long as the string lives and is not changed.
 *
 * @param s shared, the caller keeps its reference.
 * @pre s
 */
KO_API const KoChar *koStringBacking( KoString s );

/**
 * The character at an index.
 *
 * @param s shared, the caller keeps its reference.
 * @param index Which character, from 0.
 * @pre s
 * @pre index >= 0 && index < koStringLength( s )
 */
KO_API KoChar koStringCharAt( KoString s, KoInt index );

/**
 * True when the first character is this one; so false for the empty string.
 *
 * @param s shared, the caller keeps its reference.
 * @param ch The character.
 * @pre s
 */
KO_API KoBool koStringBeginsWithChar( KoString s, KoChar ch );

/**
 * True when two strings have the same characters.
 *
 * @param a shared, the caller keeps its reference.
 * @param b shared, the caller keeps its reference.
 * @pre a
 * @pre b
 */
KO_API KoBool koStringEquals( KoString a, KoString b );

/**
 * True when a string has these characters.
 *
 * @param s shared, the caller keeps its reference.
 * @param chs The characters; may be null when the length is 0.
 * @param length Their number, or -1 when a zero ends them.
 * @pre s
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API KoBool koStringEqualsChars( KoString s, const KoChar *chs, KoInt length );

/**
 * Finds characters in a string. The time is linear in the lengths of the two, whatever they hold.
 *
 * @param s shared, the caller keeps its reference.
 * @param start Where the search begins.
 * @param chs The characters; may be null when the length is 0.
 * @param length Their number, or -1 when a zero ends them.
 * @return Index of the first place from `start` on where all of them stand, or -1. No characters stand everywhere.
 * @pre s
 * @pre start >= 0 && start <= koStringLength( s )
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API KoInt koStringFindChars( KoString s, KoInt start, const KoChar *chs, KoInt length );

/**
 * Reads a number at the start of a range: an optional minus sign, then as many digits of the base as there are, letters
 * in any case.
 *
 * @param s shared, the caller keeps its reference.
 * @param offset Where the range begins.
 * @param length Its length, or -1 for up to the end.
 * @param base 2 to 36.
 * @param value Receives the number.
 * @param consumed Receives how many characters were read; what stands behind them is no fault.
 * @return False, with the outputs left alone, when there is no digit or the number does not fit.
 * @pre s
 * @pre offset >= 0 && offset <= koStringLength( s )
 * @pre length >= -1 && length <= koStringLength( s ) - offset
 * @pre base >= 2 && base <= 36
 * @pre value
 * @pre consumed
 */
KO_API KoBool koStringScanInt( KoString s, KoInt offset, KoInt length, KoInt base, KoInt *value, KoInt *consumed );

/**
 * Splits a string at each place where a character stands.
 *
 * @param s shared, the caller keeps its reference.
 * @param ch The delimiter.
 * @param maximum The largest number of parts, the last of which keeps its delimiters; -1 for no limit.
 * @return new reference: a vector of at least one string. Parts may be empty.
 * @pre s
 * @pre maximum == -1 || maximum > 0
 */
KO_API KoVector koStringSplitChar( KoString s, KoChar ch, KoInt maximum );

/**
 * Splits a string at each place where characters stand.
 *
 * @param s shared, the caller keeps its reference.
 * @param chs The characters; may be null when the length is 0. No characters split nothing.
 * @param length Their number, or -1 when a zero ends them.
 * @param maximum The largest number of parts, the last of which keeps its delimiters; -1 for no limit.
 * @return new reference: a vector of at least one string. Parts may be empty.
 * @pre s
 * @pre chs || length == 0
 * @pre length >= -1
 * @pre maximum == -1 || maximum > 0
 */
KO_API KoVector koStringSplitChars( KoString s, const KoChar *chs, KoInt length, KoInt maximum );

/** @} */

/** @name Changing
 * A string that is not unique is copied first. Appending many times takes time that is linear in
 * what is appended. What is appended may be, or may lie inside, the string itself.
 * @{ */

/**
 * Appends a string.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @pre s
 * @pre *s
 * @pre other
 */
KO_API void koStringAppend( KoString *s, KoString other );

/**
 * Appends a character.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param ch The character.
 * @pre s
 * @pre *s
 */
KO_API void koStringAppendChar( KoString *s, KoChar ch );

/**
 * Appends characters.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param chs The characters; may be null when the length is 0.
 * @param length Their number, or -1 when a zero ends them.
 * @pre s
 * @pre *s
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API void koStringAppendChars( KoString *s, const KoChar *chs, KoInt length );

/**
 * Appends the characters of a UTF-8 text, as koStringCreateFromCstr takes it.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param chs The text; may be null when the length is 0.
 * @param length Its length in bytes, or -1.
 * @pre s
 * @pre *s
 * @pre chs || length == 0
 * @pre length >= -1
 */
KO_API void koStringAppendCstr( KoString *s, const char *chs, KoInt length );

/**
 * Appends a text by a format, as koStringCreateFromFormatCstr makes it.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param format UTF-8 text; may be null when the length is 0.
 * @param length Its length in bytes, or -1.
 * @pre s
 * @pre *s
 * @pre format || length == 0
 * @pre length >= -1
 */
KO_API void koStringAppendFormatCstr( KoString *s, const char *format, KoInt length, ... );

/**
 * Appends a character, unless the string is empty, and then a string.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @param delimiter The character between the two.
 * @pre s
 * @pre *s
 * @pre other
 */
KO_API void koStringDelimitedAppendCharDelimiter( KoString *s, KoString other, KoChar delimiter );

/**
 * Replaces a character.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @param index Which character, from 0.
 * @param ch The new character.
 * @pre s
 * @pre *s
 * @pre index >= 0 && index < koStringLength( *s )
 */
KO_API void koStringSetCharAt( KoString *s, KoInt index, KoChar ch );

/**
 * Maps each character to lower case: the simple, one-to-one mappings of the Unicode Character Database, whatever the
 * locale.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @pre s
 * @pre *s
 */
KO_API void koStringToLower( KoString *s );

/**
 * Maps each character to upper case, as koStringToLower does to lower case: U+00DF stays as it is.
 *
 * @param s address of the caller's handle, which may be replaced.
 * @pre s
 * @pre *s
 */
KO_API void koStringToUpper( KoString *s );

/** @} */

/**
 * The full upper-case mapping of a character by the Unicode Character Database: U+00DF has two characters.
 *
 * @param ch Any character.
 * @param count Receives the number of characters; left alone when the result is null.
 * @return The characters, which stay for ever; null when the mapping is the character itself.
 * @pre count
 */
KO_API const KoChar *ko___UnicodeUpperCaseDbLookup( KoChar ch, KoInt *count );

/** @name Number text
 * @{ */

/** Flag of koFormatEncodeInt: the digits above 9 are capitals. */
#define KO_FORMAT_CAPITALS 1
/** Flag of koFormatEncodeInt: zeros fill the width, not blanks. */
#define KO_FORMAT_ZEROS 2

/**
 * A string with the digits of a number.
 *
 * @param value The number.
 * @param base 2 to 36.
 * @param width The least number of digits. What is missing is made up by blanks in front of the text, or by zeros behind
 * a minus sign.
 * @param flags Any of the two above.
 * @return new reference.
 * @pre base >= 2 && base <= 36
 * @pre width >= 0 && width <= INT32_MAX
 * @pre ( flags & ~( KO_FORMAT_CAPITALS | KO_FORMAT_ZEROS ) ) == 0
 */
KO_API KoString koFormatEncodeInt( KoInt value, KoInt base, KoInt width, KoInt flags );

/**
 * Reads a number at the start of characters, as koStringScanInt does.
 *
 * @param chs The characters; may be null when the length is 0.
 * @param length Their number, or -1 when a zero ends them.
 * @param base 2 to 36.
 * @param value Receives the number.
 * @param consumed Receives how many characters were read; what stands behind them is no fault.
 * @return False, with the outputs left alone, when there is no digit or the number does not fit.
 * @pre chs || length == 0
 * @pre length >= -1
 * @pre base >= 2 && base <= 36
 * @pre value
 * @pre consumed
 */
KO_API KoBool koFormatTryDecodeIntChars( const KoChar *chs, KoInt length, KoInt base, KoInt *value, KoInt *consumed );

/** @} */

KO_END_DECLS

#endif
