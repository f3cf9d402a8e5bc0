/* Reason phrases: any text, with escapes on the wire (RFC 3261 section 25.1). */
#ifndef TOLMO_REASON_PHRASE_H
#define TOLMO_REASON_PHRASE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True for every string, also the empty one: what the wire cannot hold is escaped.
 *
 * @param reasonPhrase shared, the caller keeps its reference.
 * @pre reasonPhrase
 */
KO_API KoBool tolmoReasonPhraseOk( KoString reasonPhrase );

/**
 * The wire form of a reason phrase. ASCII characters that are neither reserved, unreserved nor whitespace become `%` and
 * two hexadecimal digits; non-ASCII characters stay.
 *
 * @param reasonPhrase shared, the caller keeps its reference.
 * @return new reference.
 * @pre reasonPhrase
 */
KO_API KoString tolmo___ReasonPhraseEncode( KoString reasonPhrase );

/**
 * The reason phrase of a wire form: each `%` with two hexadecimal digits becomes the character of that value. Escapes of
 * UTF-8 are not put together. All other characters stay, also a `%` without two digits.
 *
 * @return new reference.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___ReasonPhraseDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
