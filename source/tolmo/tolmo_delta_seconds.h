/* Spans of seconds (RFC 3261 section 25.1). */
#ifndef TOLMO_DELTA_SECONDS_H
#define TOLMO_DELTA_SECONDS_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a span of seconds: 0 to the largest KoInt. */
KO_API KoBool tolmoDeltaSecondsOk( KoInt deltaSeconds );

/**
 * The digits of a span of seconds.
 *
 * @return new reference.
 * @pre tolmoDeltaSecondsOk( deltaSeconds )
 */
KO_API KoString tolmo___DeltaSecondsEncode( KoInt deltaSeconds );

/**
 * The span of seconds that a text tells; -1 when it is none, or does not fit.
 *
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt tolmo___DeltaSecondsTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
