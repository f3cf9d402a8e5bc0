/* The header Reason (RFC 3326 section 2). */
#ifndef TOLMO_HEADER_REASON_H
#define TOLMO_HEADER_REASON_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_reason.h>

KO_BEGIN_DECLS

/** Handle of a Reason header. */
typedef struct tolmo___HeaderReason *TolmoHeaderReason;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderReasonSort( void );
KO_API KoObj tolmoHeaderReasonObj( TolmoHeaderReason hdr );
KO_API TolmoHeaderReason tolmoHeaderReasonFrom( KoObj obj );
KO_API TolmoHeaderReason tolmoHeaderReasonRetain( TolmoHeaderReason hdr );
KO_API void tolmoHeaderReasonRelease( TolmoHeaderReason hdr );
KO_API KoInt tolmoHeaderReasonCompare( TolmoHeaderReason a, TolmoHeaderReason b );
KO_API KoBool tolmoHeaderReasonEquals( TolmoHeaderReason a, TolmoHeaderReason b );
KO_API KoString tolmoHeaderReasonToString( TolmoHeaderReason hdr );
KO_API TolmoHeaderReason tolmoHeaderReasonCreateFrom( TolmoHeaderReason source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoReason over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderReasonEncode( TolmoHeaderReason hdr );
KO_API TolmoHeaderReason tolmoHeaderReasonTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderReasonEncodeToMessage( TolmoHeaderReason hdr, TolmoMessage *msg );
KO_API TolmoHeaderReason tolmoHeaderReasonTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderReasonPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderReasonRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderReasonStore( TolmoHeaderReason hdr );
KO_API TolmoHeaderReason tolmoHeaderReasonTryRestore( KoStore store );
KO_API void tolmo___HeaderReasonStartup( void );
KO_API void tolmo___HeaderReasonShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderReason tolmoHeaderReasonCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderReasonReasonsLength( TolmoHeaderReason hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoReason tolmoHeaderReasonTryDecodeReasonAt( TolmoHeaderReason hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param reason shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre reason (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderReasonSetReasonAt( TolmoHeaderReason *hdr, KoInt index, TolmoReason reason );
KO_API void tolmoHeaderReasonInsertReason( TolmoHeaderReason *hdr, KoInt index, TolmoReason reason );
KO_API void tolmoHeaderReasonPrependReason( TolmoHeaderReason *hdr, TolmoReason reason );
KO_API void tolmoHeaderReasonAppendReason( TolmoHeaderReason *hdr, TolmoReason reason );
KO_API void tolmoHeaderReasonDelReasonAt( TolmoHeaderReason *hdr, KoInt index );
KO_API void tolmoHeaderReasonClearReasons( TolmoHeaderReason *hdr );
/** @} */

KO_END_DECLS

#endif
