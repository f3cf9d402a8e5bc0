/* Privacy of a Diversion (RFC 5806). */
#ifndef TOLMO_DIVERSION_PRIVACY_H
#define TOLMO_DIVERSION_PRIVACY_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is the privacy of a diversion as the wire has it: a token, or a quoted string with its quotes.
 *
 *     privacy = token / quoted-string
 *
 * @param privacy shared, the caller keeps its reference.
 * @pre privacy
 */
KO_API KoBool tolmoDiversionPrivacyOk( KoString privacy );

/**
 * The normal form of any string: small letters. The validator is not asked, since the text inside of quotes, which an
 * object holds, need not be valid by it.
 *
 * @param privacy shared, the caller keeps its reference.
 * @return new reference.
 * @pre privacy
 */
KO_API KoString tolmoDiversionPrivacyNormalize( KoString privacy );

/**
 * The wire form: a token as it is, any other text in quotes.
 *
 * @param privacy shared, the caller keeps its reference.
 * @return new reference.
 * @pre privacy
 * @pre tolmoTokenOk( privacy ) or tolmoQuotableStringOk( privacy )
 */
KO_API KoString tolmo___DiversionPrivacyEncode( KoString privacy );

/**
 * The text of a token, or the text inside of the quotes.
 *
 * @return new reference; null when the text is neither.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___DiversionPrivacyTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
