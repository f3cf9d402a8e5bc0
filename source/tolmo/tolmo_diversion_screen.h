/* Screenings of a Diversion (RFC 5806). */
#ifndef TOLMO_DIVERSION_SCREEN_H
#define TOLMO_DIVERSION_SCREEN_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is the screening of a diversion as the wire has it: a token, or a quoted string with its quotes.
 *
 *     screen = token / quoted-string
 *
 * @param screen shared, the caller keeps its reference.
 * @pre screen
 */
KO_API KoBool tolmoDiversionScreenOk( KoString screen );

/**
 * The normal form of any string: small letters. The validator is not asked, since the text inside of quotes, which an
 * object holds, need not be valid by it.
 *
 * @param screen shared, the caller keeps its reference.
 * @return new reference.
 * @pre screen
 */
KO_API KoString tolmoDiversionScreenNormalize( KoString screen );

/**
 * The wire form: a token as it is, any other text in quotes.
 *
 * @param screen shared, the caller keeps its reference.
 * @return new reference.
 * @pre screen
 * @pre tolmoTokenOk( screen ) or tolmoQuotableStringOk( screen )
 */
KO_API KoString tolmo___DiversionScreenEncode( KoString screen );

/**
 * The text of a token, or the text inside of the quotes.
 *
 * @return new reference; null when the text is neither.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___DiversionScreenTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
