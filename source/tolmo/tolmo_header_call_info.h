/* The header Call-Info (RFC 3261 section 20.9). */
#ifndef TOLMO_HEADER_CALL_INFO_H
#define TOLMO_HEADER_CALL_INFO_H

#include <tolmo/tolmo_call_info.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Call-Info header. */
typedef struct tolmo___HeaderCallInfo *TolmoHeaderCallInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderCallInfoSort( void );
KO_API KoObj tolmoHeaderCallInfoObj( TolmoHeaderCallInfo hdr );
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoFrom( KoObj obj );
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoRetain( TolmoHeaderCallInfo hdr );
KO_API void tolmoHeaderCallInfoRelease( TolmoHeaderCallInfo hdr );
KO_API KoInt tolmoHeaderCallInfoCompare( TolmoHeaderCallInfo a, TolmoHeaderCallInfo b );
KO_API KoBool tolmoHeaderCallInfoEquals( TolmoHeaderCallInfo a, TolmoHeaderCallInfo b );
KO_API KoString tolmoHeaderCallInfoToString( TolmoHeaderCallInfo hdr );
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoCreateFrom( TolmoHeaderCallInfo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoCallInfo over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderCallInfoEncode( TolmoHeaderCallInfo hdr );
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderCallInfoEncodeToMessage( TolmoHeaderCallInfo hdr, TolmoMessage *msg );
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderCallInfoPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderCallInfoRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderCallInfoStore( TolmoHeaderCallInfo hdr );
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoTryRestore( KoStore store );
KO_API void tolmo___HeaderCallInfoStartup( void );
KO_API void tolmo___HeaderCallInfoShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderCallInfo tolmoHeaderCallInfoCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderCallInfoCallInfosLength( TolmoHeaderCallInfo hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoCallInfo tolmoHeaderCallInfoTryDecodeCallInfoAt( TolmoHeaderCallInfo hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param callInfo shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre callInfo (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderCallInfoSetCallInfoAt( TolmoHeaderCallInfo *hdr, KoInt index, TolmoCallInfo callInfo );
KO_API void tolmoHeaderCallInfoInsertCallInfo( TolmoHeaderCallInfo *hdr, KoInt index, TolmoCallInfo callInfo );
KO_API void tolmoHeaderCallInfoPrependCallInfo( TolmoHeaderCallInfo *hdr, TolmoCallInfo callInfo );
KO_API void tolmoHeaderCallInfoAppendCallInfo( TolmoHeaderCallInfo *hdr, TolmoCallInfo callInfo );
KO_API void tolmoHeaderCallInfoDelCallInfoAt( TolmoHeaderCallInfo *hdr, KoInt index );
KO_API void tolmoHeaderCallInfoClearCallInfos( TolmoHeaderCallInfo *hdr );
/** @} */

KO_END_DECLS

#endif
