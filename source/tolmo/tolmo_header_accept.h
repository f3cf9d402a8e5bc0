/* The header Accept (RFC 3261 section 20.1). */
#ifndef TOLMO_HEADER_ACCEPT_H
#define TOLMO_HEADER_ACCEPT_H

#include <tolmo/tolmo_accept.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Accept header. */
typedef struct tolmo___HeaderAccept *TolmoHeaderAccept;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderAcceptSort( void );
KO_API KoObj tolmoHeaderAcceptObj( TolmoHeaderAccept hdr );
KO_API TolmoHeaderAccept tolmoHeaderAcceptFrom( KoObj obj );
KO_API TolmoHeaderAccept tolmoHeaderAcceptRetain( TolmoHeaderAccept hdr );
KO_API void tolmoHeaderAcceptRelease( TolmoHeaderAccept hdr );
KO_API KoInt tolmoHeaderAcceptCompare( TolmoHeaderAccept a, TolmoHeaderAccept b );
KO_API KoBool tolmoHeaderAcceptEquals( TolmoHeaderAccept a, TolmoHeaderAccept b );
KO_API KoString tolmoHeaderAcceptToString( TolmoHeaderAccept hdr );
KO_API TolmoHeaderAccept tolmoHeaderAcceptCreateFrom( TolmoHeaderAccept source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoAccept over all lines; without a line there is none. The decoders refuse each
 * line that is not empty, also those of the encoder: items come into a list by the functions that change it. @{ */
KO_API TolmoMessageHeader tolmoHeaderAcceptEncode( TolmoHeaderAccept hdr );
KO_API TolmoHeaderAccept tolmoHeaderAcceptTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderAcceptEncodeToMessage( TolmoHeaderAccept hdr, TolmoMessage *msg );
KO_API TolmoHeaderAccept tolmoHeaderAcceptTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderAcceptPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderAcceptRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderAcceptStore( TolmoHeaderAccept hdr );
KO_API TolmoHeaderAccept tolmoHeaderAcceptTryRestore( KoStore store );
KO_API void tolmo___HeaderAcceptStartup( void );
KO_API void tolmo___HeaderAcceptShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderAccept tolmoHeaderAcceptCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderAcceptAcceptsLength( TolmoHeaderAccept hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoAccept tolmoHeaderAcceptTryDecodeAcceptAt( TolmoHeaderAccept hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param accept shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre accept (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderAcceptSetAcceptAt( TolmoHeaderAccept *hdr, KoInt index, TolmoAccept accept );
KO_API void tolmoHeaderAcceptInsertAccept( TolmoHeaderAccept *hdr, KoInt index, TolmoAccept accept );
KO_API void tolmoHeaderAcceptPrependAccept( TolmoHeaderAccept *hdr, TolmoAccept accept );
KO_API void tolmoHeaderAcceptAppendAccept( TolmoHeaderAccept *hdr, TolmoAccept accept );
KO_API void tolmoHeaderAcceptDelAcceptAt( TolmoHeaderAccept *hdr, KoInt index );
KO_API void tolmoHeaderAcceptClearAccepts( TolmoHeaderAccept *hdr );
/** @} */

KO_END_DECLS

#endif
