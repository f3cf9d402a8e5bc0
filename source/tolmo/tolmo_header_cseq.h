/* The header CSeq (RFC 3261 section 20.16). */
#ifndef TOLMO_HEADER_CSEQ_H
#define TOLMO_HEADER_CSEQ_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a CSeq header. */
typedef struct tolmo___HeaderCseq *TolmoHeaderCseq;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderCseqSort( void );
KO_API KoObj tolmoHeaderCseqObj( TolmoHeaderCseq hdr );
KO_API TolmoHeaderCseq tolmoHeaderCseqFrom( KoObj obj );
KO_API TolmoHeaderCseq tolmoHeaderCseqRetain( TolmoHeaderCseq hdr );
KO_API void tolmoHeaderCseqRelease( TolmoHeaderCseq hdr );
KO_API KoInt tolmoHeaderCseqCompare( TolmoHeaderCseq a, TolmoHeaderCseq b );
KO_API KoBool tolmoHeaderCseqEquals( TolmoHeaderCseq a, TolmoHeaderCseq b );
KO_API KoString tolmoHeaderCseqToString( TolmoHeaderCseq hdr );
KO_API TolmoHeaderCseq tolmoHeaderCseqCreateFrom( TolmoHeaderCseq source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderCseqEncode( TolmoHeaderCseq hdr );
KO_API TolmoHeaderCseq tolmoHeaderCseqTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderCseqEncodeToMessage( TolmoHeaderCseq hdr, TolmoMessage *msg );
KO_API TolmoHeaderCseq tolmoHeaderCseqTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderCseqPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderCseqRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderCseqStore( TolmoHeaderCseq hdr );
KO_API TolmoHeaderCseq tolmoHeaderCseqTryRestore( KoStore store );
KO_API void tolmo___HeaderCseqStartup( void );
KO_API void tolmo___HeaderCseqShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param method shared, the caller keeps its reference; it is stored in its case.
 * @return new reference.
 * @pre tolmoCseqOk( cseq )
 * @pre tolmoMethodOk( method )
 */
KO_API TolmoHeaderCseq tolmoHeaderCseqCreate( KoInt cseq, KoString method );

/** @name Sequence number
 * 0 to 2^31 - 1.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoCseqOk( cseq ) @{ */
KO_API KoInt tolmoHeaderCseqCseq( TolmoHeaderCseq hdr );
KO_API void tolmoHeaderCseqSetCseq( TolmoHeaderCseq *hdr, KoInt cseq );
/** @} */

/** @name Method
 * A token in its case. The getter returns a new reference; what the setter gets is shared, the
 * caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoMethodOk( method ) @{ */
KO_API KoString tolmoHeaderCseqMethod( TolmoHeaderCseq hdr );
KO_API void tolmoHeaderCseqSetMethod( TolmoHeaderCseq *hdr, KoString method );
KO_API void tolmoHeaderCseqSetMethodCstr( TolmoHeaderCseq *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderCseqSetMethodWcstr( TolmoHeaderCseq *hdr, const uint16_t *chs, KoInt length );
/** @} */

KO_END_DECLS

#endif
