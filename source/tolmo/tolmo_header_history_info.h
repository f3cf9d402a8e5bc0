/* The header History-Info (RFC 7044 section 5). */
#ifndef TOLMO_HEADER_HISTORY_INFO_H
#define TOLMO_HEADER_HISTORY_INFO_H

#include <tolmo/tolmo_history_info.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a History-Info header. */
typedef struct tolmo___HeaderHistoryInfo *TolmoHeaderHistoryInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderHistoryInfoSort( void );
KO_API KoObj tolmoHeaderHistoryInfoObj( TolmoHeaderHistoryInfo hdr );
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoFrom( KoObj obj );
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoRetain( TolmoHeaderHistoryInfo hdr );
KO_API void tolmoHeaderHistoryInfoRelease( TolmoHeaderHistoryInfo hdr );
KO_API KoInt tolmoHeaderHistoryInfoCompare( TolmoHeaderHistoryInfo a, TolmoHeaderHistoryInfo b );
KO_API KoBool tolmoHeaderHistoryInfoEquals( TolmoHeaderHistoryInfo a, TolmoHeaderHistoryInfo b );
KO_API KoString tolmoHeaderHistoryInfoToString( TolmoHeaderHistoryInfo hdr );
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoCreateFrom( TolmoHeaderHistoryInfo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoHistoryInfo over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderHistoryInfoEncode( TolmoHeaderHistoryInfo hdr );
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderHistoryInfoEncodeToMessage( TolmoHeaderHistoryInfo hdr, TolmoMessage *msg );
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderHistoryInfoPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderHistoryInfoRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderHistoryInfoStore( TolmoHeaderHistoryInfo hdr );
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoTryRestore( KoStore store );
KO_API void tolmo___HeaderHistoryInfoStartup( void );
KO_API void tolmo___HeaderHistoryInfoShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderHistoryInfo tolmoHeaderHistoryInfoCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderHistoryInfoHistoryInfosLength( TolmoHeaderHistoryInfo hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoHistoryInfo tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( TolmoHeaderHistoryInfo hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param hi shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre hi (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderHistoryInfoSetHistoryInfoAt( TolmoHeaderHistoryInfo *hdr, KoInt index, TolmoHistoryInfo hi );
KO_API void tolmoHeaderHistoryInfoInsertHistoryInfo( TolmoHeaderHistoryInfo *hdr, KoInt index, TolmoHistoryInfo hi );
KO_API void tolmoHeaderHistoryInfoPrependHistoryInfo( TolmoHeaderHistoryInfo *hdr, TolmoHistoryInfo hi );
KO_API void tolmoHeaderHistoryInfoAppendHistoryInfo( TolmoHeaderHistoryInfo *hdr, TolmoHistoryInfo hi );
KO_API void tolmoHeaderHistoryInfoDelHistoryInfoAt( TolmoHeaderHistoryInfo *hdr, KoInt index );
KO_API void tolmoHeaderHistoryInfoClearHistoryInfos( TolmoHeaderHistoryInfo *hdr );
/** @} */

KO_END_DECLS

#endif
