/* Numbers of a reliable response (RFC 3262 section 7.1). */
#ifndef TOLMO_RESPONSE_NUM_H
#define TOLMO_RESPONSE_NUM_H

#include <runtime/ko_base.h>

KO_BEGIN_DECLS

/** True for a number of a reliable response: 1 to 2^32 - 1. */
KO_API KoBool tolmoResponseNumOk( KoInt responseNum );

/** True when one more fits: below 2^32 - 1. @pre tolmoResponseNumOk( responseNum ) */
KO_API KoBool tolmoResponseNumIncrementOk( KoInt responseNum );

KO_END_DECLS

#endif
