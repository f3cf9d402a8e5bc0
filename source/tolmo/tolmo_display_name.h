/* Display names (RFC 3261 section 25.1). */
#ifndef TOLMO_DISPLAY_NAME_H
#define TOLMO_DISPLAY_NAME_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a display name: it holds neither CR nor LF. Any other text is one, also the empty one.
 *
 * @param displayName shared, the caller keeps its reference.
 * @pre displayName
 */
KO_API KoBool tolmoDisplayNameOk( KoString displayName );

/**
 * Replaces each run of blanks and tabs by one blank, at both ends too. A name that needs no change stays the same object.
 *
 * @param displayName address of the caller's handle, which may be replaced.
 * @pre displayName
 * @pre *displayName
 * @pre tolmoDisplayNameOk( *displayName )
 */
KO_API void tolmoDisplayNameNormalizeWhitespace( KoString *displayName );

/**
 * The wire form of a display name: always a quoted string.
 *
 * @param displayName shared, the caller keeps its reference.
 * @return new reference.
 * @pre displayName
 * @pre tolmoDisplayNameOk( displayName )
 */
KO_API KoString tolmo___DisplayNameEncode( KoString displayName );

/**
 * The name that a display name on the wire tells: the text of a quoted string, or tokens, with one blank for the
 * whitespace between two of them.
 *
 *     display-name = quoted-string / *( token LWS )
 *
 * @return new reference; null when the text is no display name. The empty text is one.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___DisplayNameTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
