/* The header Diversion (RFC 5806). */
#ifndef TOLMO_HEADER_DIVERSION_H
#define TOLMO_HEADER_DIVERSION_H

#include <tolmo/tolmo_diversion.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Diversion header. */
typedef struct tolmo___HeaderDiversion *TolmoHeaderDiversion;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderDiversionSort( void );
KO_API KoObj tolmoHeaderDiversionObj( TolmoHeaderDiversion hdr );
KO_API TolmoHeaderDiversion tolmoHeaderDiversionFrom( KoObj obj );
KO_API TolmoHeaderDiversion tolmoHeaderDiversionRetain( TolmoHeaderDiversion hdr );
KO_API void tolmoHeaderDiversionRelease( TolmoHeaderDiversion hdr );
KO_API KoInt tolmoHeaderDiversionCompare( TolmoHeaderDiversion a, TolmoHeaderDiversion b );
KO_API KoBool tolmoHeaderDiversionEquals( TolmoHeaderDiversion a, TolmoHeaderDiversion b );
KO_API KoString tolmoHeaderDiversionToString( TolmoHeaderDiversion hdr );
KO_API TolmoHeaderDiversion tolmoHeaderDiversionCreateFrom( TolmoHeaderDiversion source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoDiversion over all lines; without a line there is none.
 * @pre for Encode and what uses it: tolmoMessageHeaderLineOk( value ), no item has a line end in a word @{ */
KO_API TolmoMessageHeader tolmoHeaderDiversionEncode( TolmoHeaderDiversion hdr );
KO_API TolmoHeaderDiversion tolmoHeaderDiversionTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderDiversionEncodeToMessage( TolmoHeaderDiversion hdr, TolmoMessage *msg );
KO_API TolmoHeaderDiversion tolmoHeaderDiversionTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderDiversionPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderDiversionRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderDiversionStore( TolmoHeaderDiversion hdr );
KO_API TolmoHeaderDiversion tolmoHeaderDiversionTryRestore( KoStore store );
KO_API void tolmo___HeaderDiversionStartup( void );
KO_API void tolmo___HeaderDiversionShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderDiversion tolmoHeaderDiversionCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderDiversionDiversionsLength( TolmoHeaderDiversion hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoDiversion tolmoHeaderDiversionTryDecodeDiversionAt( TolmoHeaderDiversion hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param diversion shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre diversion (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderDiversionSetDiversionAt( TolmoHeaderDiversion *hdr, KoInt index, TolmoDiversion diversion );
KO_API void tolmoHeaderDiversionInsertDiversion( TolmoHeaderDiversion *hdr, KoInt index, TolmoDiversion diversion );
KO_API void tolmoHeaderDiversionPrependDiversion( TolmoHeaderDiversion *hdr, TolmoDiversion diversion );
KO_API void tolmoHeaderDiversionAppendDiversion( TolmoHeaderDiversion *hdr, TolmoDiversion diversion );
KO_API void tolmoHeaderDiversionDelDiversionAt( TolmoHeaderDiversion *hdr, KoInt index );
KO_API void tolmoHeaderDiversionClearDiversions( TolmoHeaderDiversion *hdr );
/** @} */

KO_END_DECLS

#endif
