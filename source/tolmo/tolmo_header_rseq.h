/* The header Rseq (RFC 3262 section 7.1). */
#ifndef TOLMO_HEADER_RSEQ_H
#define TOLMO_HEADER_RSEQ_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Rseq header. */
typedef struct tolmo___HeaderRseq *TolmoHeaderRseq;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderRseqSort( void );
KO_API KoObj tolmoHeaderRseqObj( TolmoHeaderRseq hdr );
KO_API TolmoHeaderRseq tolmoHeaderRseqFrom( KoObj obj );
KO_API TolmoHeaderRseq tolmoHeaderRseqRetain( TolmoHeaderRseq hdr );
KO_API void tolmoHeaderRseqRelease( TolmoHeaderRseq hdr );
KO_API KoInt tolmoHeaderRseqCompare( TolmoHeaderRseq a, TolmoHeaderRseq b );
KO_API KoBool tolmoHeaderRseqEquals( TolmoHeaderRseq a, TolmoHeaderRseq b );
KO_API KoString tolmoHeaderRseqToString( TolmoHeaderRseq hdr );
KO_API TolmoHeaderRseq tolmoHeaderRseqCreateFrom( TolmoHeaderRseq source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderRseqEncode( TolmoHeaderRseq hdr );
KO_API TolmoHeaderRseq tolmoHeaderRseqTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRseqEncodeToMessage( TolmoHeaderRseq hdr, TolmoMessage *msg );
KO_API TolmoHeaderRseq tolmoHeaderRseqTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRseqPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRseqRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRseqStore( TolmoHeaderRseq hdr );
KO_API TolmoHeaderRseq tolmoHeaderRseqTryRestore( KoStore store );
KO_API void tolmo___HeaderRseqStartup( void );
KO_API void tolmo___HeaderRseqShutdown( void );
/** @} */

/** A new header. @return new reference. @pre tolmoResponseNumOk( responseNum ) */
KO_API TolmoHeaderRseq tolmoHeaderRseqCreate( KoInt responseNum );

/** The number of the reliable response, 1 to 2^32 - 1. @pre hdr */
KO_API KoInt tolmoHeaderRseqResponseNum( TolmoHeaderRseq hdr );

/**
 * Sets the number of the reliable response.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoResponseNumOk( responseNum )
 */
KO_API void tolmoHeaderRseqSetResponseNum( TolmoHeaderRseq *hdr, KoInt responseNum );

KO_END_DECLS

#endif
