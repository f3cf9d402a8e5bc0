/* The header RAck (RFC 3262 section 7.2). */
#ifndef TOLMO_HEADER_RACK_H
#define TOLMO_HEADER_RACK_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a RAck header. */
typedef struct tolmo___HeaderRack *TolmoHeaderRack;

/** @name Standard operations
 * See docs/objects.md. Methods compare by the string object, not by its text: a header equals its copies,
 * but not another header that was decoded from the same line. @{ */
KO_API KoSort tolmoHeaderRackSort( void );
KO_API KoObj tolmoHeaderRackObj( TolmoHeaderRack hdr );
KO_API TolmoHeaderRack tolmoHeaderRackFrom( KoObj obj );
KO_API TolmoHeaderRack tolmoHeaderRackRetain( TolmoHeaderRack hdr );
KO_API void tolmoHeaderRackRelease( TolmoHeaderRack hdr );
KO_API KoInt tolmoHeaderRackCompare( TolmoHeaderRack a, TolmoHeaderRack b );
KO_API KoBool tolmoHeaderRackEquals( TolmoHeaderRack a, TolmoHeaderRack b );
KO_API KoString tolmoHeaderRackToString( TolmoHeaderRack hdr );
KO_API TolmoHeaderRack tolmoHeaderRackCreateFrom( TolmoHeaderRack source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderRackEncode( TolmoHeaderRack hdr );
KO_API TolmoHeaderRack tolmoHeaderRackTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRackEncodeToMessage( TolmoHeaderRack hdr, TolmoMessage *msg );
KO_API TolmoHeaderRack tolmoHeaderRackTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRackPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRackRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRackStore( TolmoHeaderRack hdr );
KO_API TolmoHeaderRack tolmoHeaderRackTryRestore( KoStore store );
KO_API void tolmo___HeaderRackStartup( void );
KO_API void tolmo___HeaderRackShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param method shared, the caller keeps its reference; it is stored in its case.
 * @return new reference.
 * @pre tolmoResponseNumOk( responseNum )
 * @pre tolmoCseqOk( cseq )
 * @pre tolmoMethodOk( method )
 */
KO_API TolmoHeaderRack tolmoHeaderRackCreate( KoInt responseNum, KoInt cseq, KoString method );

/** @name Response number
 * 1 to 2^32 - 1: the RSeq of the response that is acknowledged.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoResponseNumOk( responseNum ) @{ */
KO_API KoInt tolmoHeaderRackResponseNum( TolmoHeaderRack hdr );
KO_API void tolmoHeaderRackSetResponseNum( TolmoHeaderRack *hdr, KoInt responseNum );
/** @} */

/** @name Sequence number
 * 0 to 2^31 - 1: the number of the request that was answered.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoCseqOk( cseq ) @{ */
KO_API KoInt tolmoHeaderRackCseq( TolmoHeaderRack hdr );
KO_API void tolmoHeaderRackSetCseq( TolmoHeaderRack *hdr, KoInt cseq );
/** @} */

/** @name Method
 * A token in its case. The getter returns a new reference; what the setter gets is shared, the
 * caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoMethodOk( method ) @{ */
KO_API KoString tolmoHeaderRackMethod( TolmoHeaderRack hdr );
KO_API void tolmoHeaderRackSetMethod( TolmoHeaderRack *hdr, KoString method );
/** @} */

KO_END_DECLS

#endif
