/* Limits of a Diversion (RFC 5806). */
#ifndef TOLMO_DIVERSION_LIMIT_H
#define TOLMO_DIVERSION_LIMIT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a number of diversions that are allowed: 0 to 99. */
KO_API KoBool tolmoDiversionLimitOk( KoInt limit );

/**
 * The digits of a number of diversions that are allowed: `7`, never `07`.
 *
 * @return new reference.
 * @pre tolmoDiversionLimitOk( limit )
 */
KO_API KoString tolmo___DiversionLimitEncode( KoInt limit );

/**
 * The number of diversions that are allowed that a text tells; -1 when it is none, or above 99.
 *
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt tolmo___DiversionLimitTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
