/* Reasons of a Diversion (RFC 5806). */
#ifndef TOLMO_DIVERSION_REASON_H
#define TOLMO_DIVERSION_REASON_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is the reason of a diversion as the wire has it: a token, or a quoted string with its quotes.
 *
 *     reason = token / quoted-string
 *
 * @param reason shared, the caller keeps its reference.
 * @pre reason
 */
KO_API KoBool tolmoDiversionReasonOk( KoString reason );

/**
 * The normal form of any string: small letters. The validator is not asked, since the text inside of quotes, which an
 * object holds, need not be valid by it.
 *
 * @param reason shared, the caller keeps its reference.
 * @return new reference.
 * @pre reason
 */
KO_API KoString tolmoDiversionReasonNormalize( KoString reason );

/**
 * The wire form: a token as it is, any other text in quotes.
 *
 * @param reason shared, the caller keeps its reference.
 * @return new reference.
 * @pre reason
 * @pre tolmoTokenOk( reason ) or tolmoQuotableStringOk( reason )
 */
KO_API KoString tolmo___DiversionReasonEncode( KoString reason );

/**
 * The text of a token, or the text inside of the quotes.
 *
 * @return new reference; null when the text is neither.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___DiversionReasonTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
