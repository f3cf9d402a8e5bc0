/* Hop counters (RFC 3261 section 20.22). */
#ifndef TOLMO_MAX_FORWARDS_H
#define TOLMO_MAX_FORWARDS_H

#include <runtime/ko_base.h>

KO_BEGIN_DECLS

/** True for a hop counter: 0 to 255. */
KO_API KoBool tolmoMaxForwardsOk( KoInt maxForwards );

KO_END_DECLS

#endif
