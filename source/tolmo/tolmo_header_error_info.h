/* The header Error-Info (RFC 3261 section 20.18). */
#ifndef TOLMO_HEADER_ERROR_INFO_H
#define TOLMO_HEADER_ERROR_INFO_H

#include <tolmo/tolmo_error_info.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Error-Info header. */
typedef struct tolmo___HeaderErrorInfo *TolmoHeaderErrorInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderErrorInfoSort( void );
KO_API KoObj tolmoHeaderErrorInfoObj( TolmoHeaderErrorInfo hdr );
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoFrom( KoObj obj );
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoRetain( TolmoHeaderErrorInfo hdr );
KO_API void tolmoHeaderErrorInfoRelease( TolmoHeaderErrorInfo hdr );
KO_API KoInt tolmoHeaderErrorInfoCompare( TolmoHeaderErrorInfo a, TolmoHeaderErrorInfo b );
KO_API KoBool tolmoHeaderErrorInfoEquals( TolmoHeaderErrorInfo a, TolmoHeaderErrorInfo b );
KO_API KoString tolmoHeaderErrorInfoToString( TolmoHeaderErrorInfo hdr );
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoCreateFrom( TolmoHeaderErrorInfo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoErrorInfo over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderErrorInfoEncode( TolmoHeaderErrorInfo hdr );
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderErrorInfoEncodeToMessage( TolmoHeaderErrorInfo hdr, TolmoMessage *msg );
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderErrorInfoPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderErrorInfoRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderErrorInfoStore( TolmoHeaderErrorInfo hdr );
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoTryRestore( KoStore store );
KO_API void tolmo___HeaderErrorInfoStartup( void );
KO_API void tolmo___HeaderErrorInfoShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderErrorInfo tolmoHeaderErrorInfoCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderErrorInfoErrorInfosLength( TolmoHeaderErrorInfo hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoErrorInfo tolmoHeaderErrorInfoTryDecodeErrorInfoAt( TolmoHeaderErrorInfo hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param errorInfo shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre errorInfo (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderErrorInfoSetErrorInfoAt( TolmoHeaderErrorInfo *hdr, KoInt index, TolmoErrorInfo errorInfo );
KO_API void tolmoHeaderErrorInfoInsertErrorInfo( TolmoHeaderErrorInfo *hdr, KoInt index, TolmoErrorInfo errorInfo );
KO_API void tolmoHeaderErrorInfoPrependErrorInfo( TolmoHeaderErrorInfo *hdr, TolmoErrorInfo errorInfo );
KO_API void tolmoHeaderErrorInfoAppendErrorInfo( TolmoHeaderErrorInfo *hdr, TolmoErrorInfo errorInfo );
KO_API void tolmoHeaderErrorInfoDelErrorInfoAt( TolmoHeaderErrorInfo *hdr, KoInt index );
KO_API void tolmoHeaderErrorInfoClearErrorInfos( TolmoHeaderErrorInfo *hdr );
/** @} */

KO_END_DECLS

#endif
