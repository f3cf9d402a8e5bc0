/* Texts that go out as a quoted string (RFC 3261 section 25.1). */
#ifndef TOLMO_QUOTABLE_STRING_H
#define TOLMO_QUOTABLE_STRING_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string can stand in a quoted string: it holds neither CR nor LF. The empty string can.
 *
 * @param quotableString shared, the caller keeps its reference.
 * @pre quotableString
 */
KO_API KoBool tolmoQuotableStringOk( KoString quotableString );

/**
 * The quoted string of a text. A backslash stands before each quote, backslash and control character, and before every
 * second blank of a run.
 *
 * @param quotableString shared, the caller keeps its reference.
 * @return new reference.
 * @pre quotableString
 * @pre backing[i] != KO_CHAR_CARRIAGE_RETURN && backing[i] != KO_CHAR_LINE_FEED
 */
KO_API KoString tolmo___QuotableStringEncode( KoString quotableString );

/**
 * The text of a quoted string. Whitespace may stand before it, and nothing behind it.
 *
 * @return new reference; null when the text is no quoted string.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___QuotableStringTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
