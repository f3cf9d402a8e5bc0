/* The header Alert-Info (RFC 3261 section 20.4). */
#ifndef TOLMO_HEADER_ALERT_INFO_H
#define TOLMO_HEADER_ALERT_INFO_H

#include <tolmo/tolmo_alert_info.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Alert-Info header. */
typedef struct tolmo___HeaderAlertInfo *TolmoHeaderAlertInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderAlertInfoSort( void );
KO_API KoObj tolmoHeaderAlertInfoObj( TolmoHeaderAlertInfo hdr );
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoFrom( KoObj obj );
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoRetain( TolmoHeaderAlertInfo hdr );
KO_API void tolmoHeaderAlertInfoRelease( TolmoHeaderAlertInfo hdr );
KO_API KoInt tolmoHeaderAlertInfoCompare( TolmoHeaderAlertInfo a, TolmoHeaderAlertInfo b );
KO_API KoBool tolmoHeaderAlertInfoEquals( TolmoHeaderAlertInfo a, TolmoHeaderAlertInfo b );
KO_API KoString tolmoHeaderAlertInfoToString( TolmoHeaderAlertInfo hdr );
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoCreateFrom( TolmoHeaderAlertInfo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoAlertInfo over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderAlertInfoEncode( TolmoHeaderAlertInfo hdr );
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderAlertInfoEncodeToMessage( TolmoHeaderAlertInfo hdr, TolmoMessage *msg );
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderAlertInfoPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderAlertInfoRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderAlertInfoStore( TolmoHeaderAlertInfo hdr );
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoTryRestore( KoStore store );
KO_API void tolmo___HeaderAlertInfoStartup( void );
KO_API void tolmo___HeaderAlertInfoShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderAlertInfo tolmoHeaderAlertInfoCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderAlertInfoAlertInfosLength( TolmoHeaderAlertInfo hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoAlertInfo tolmoHeaderAlertInfoTryDecodeAlertInfoAt( TolmoHeaderAlertInfo hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param alertInfo shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre alertInfo (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderAlertInfoSetAlertInfoAt( TolmoHeaderAlertInfo *hdr, KoInt index, TolmoAlertInfo alertInfo );
KO_API void tolmoHeaderAlertInfoInsertAlertInfo( TolmoHeaderAlertInfo *hdr, KoInt index, TolmoAlertInfo alertInfo );
KO_API void tolmoHeaderAlertInfoPrependAlertInfo( TolmoHeaderAlertInfo *hdr, TolmoAlertInfo alertInfo );
KO_API void tolmoHeaderAlertInfoAppendAlertInfo( TolmoHeaderAlertInfo *hdr, TolmoAlertInfo alertInfo );
KO_API void tolmoHeaderAlertInfoDelAlertInfoAt( TolmoHeaderAlertInfo *hdr, KoInt index );
KO_API void tolmoHeaderAlertInfoClearAlertInfos( TolmoHeaderAlertInfo *hdr );
/** @} */

KO_END_DECLS

#endif
