/* Times to live (RFC 3261 section 25.1). */
#ifndef TOLMO_TTL_H
#define TOLMO_TTL_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a time to live: 0 to 255. */
KO_API KoBool tolmoTtlOk( KoInt ttl );

/**
 * The digits of a time to live.
 *
 * @return new reference.
 * @pre tolmoTtlOk( ttl )
 */
KO_API KoString tolmo___TtlEncode( KoInt ttl );

/**
 * The time to live that a text tells; -1 when it is none, or above 255.
 *
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt tolmo___TtlTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
