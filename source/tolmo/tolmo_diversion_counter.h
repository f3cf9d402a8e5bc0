/* Counters of a Diversion (RFC 5806). */
#ifndef TOLMO_DIVERSION_COUNTER_H
#define TOLMO_DIVERSION_COUNTER_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a number of diversions so far: 0 to 99. */
KO_API KoBool tolmoDiversionCounterOk( KoInt counter );

/**
 * The digits of a number of diversions so far: `7`, never `07`.
 *
 * @return new reference.
 * @pre tolmoDiversionCounterOk( counter )
 */
KO_API KoString tolmo___DiversionCounterEncode( KoInt counter );

/**
 * The number of diversions so far that a text tells; -1 when it is none, or above 99.
 *
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt tolmo___DiversionCounterTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
