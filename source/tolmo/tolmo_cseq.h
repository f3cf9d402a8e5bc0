/* Numbers of a CSeq (RFC 3261 section 8.1.1.5). */
#ifndef TOLMO_CSEQ_H
#define TOLMO_CSEQ_H

#include <runtime/ko_base.h>

KO_BEGIN_DECLS

/** True for a sequence number: 0 to 2^31 - 1. */
KO_API KoBool tolmoCseqOk( KoInt cseq );

/** True when one more fits: below 2^31 - 1. @pre tolmoCseqOk( cseq ) */
KO_API KoBool tolmoCseqIncrementOk( KoInt cseq );

/** True when fewer than 100 further numbers remain. @pre tolmoCseqOk( cseq ) */
KO_API KoBool tolmoCseqScarce( KoInt cseq );

KO_END_DECLS

#endif
