/* The header Accept-Encoding (RFC 3261 section 20.2). */
#ifndef TOLMO_HEADER_ACCEPT_ENCODING_H
#define TOLMO_HEADER_ACCEPT_ENCODING_H

#include <tolmo/tolmo_accept_encoding.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Accept-Encoding header. */
typedef struct tolmo___HeaderAcceptEncoding *TolmoHeaderAcceptEncoding;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderAcceptEncodingSort( void );
KO_API KoObj tolmoHeaderAcceptEncodingObj( TolmoHeaderAcceptEncoding hdr );
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingFrom( KoObj obj );
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingRetain( TolmoHeaderAcceptEncoding hdr );
KO_API void tolmoHeaderAcceptEncodingRelease( TolmoHeaderAcceptEncoding hdr );
KO_API KoInt tolmoHeaderAcceptEncodingCompare( TolmoHeaderAcceptEncoding a, TolmoHeaderAcceptEncoding b );
KO_API KoBool tolmoHeaderAcceptEncodingEquals( TolmoHeaderAcceptEncoding a, TolmoHeaderAcceptEncoding b );
KO_API KoString tolmoHeaderAcceptEncodingToString( TolmoHeaderAcceptEncoding hdr );
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingCreateFrom( TolmoHeaderAcceptEncoding source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoAcceptEncoding over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderAcceptEncodingEncode( TolmoHeaderAcceptEncoding hdr );
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderAcceptEncodingEncodeToMessage( TolmoHeaderAcceptEncoding hdr, TolmoMessage *msg );
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderAcceptEncodingPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderAcceptEncodingRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderAcceptEncodingStore( TolmoHeaderAcceptEncoding hdr );
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingTryRestore( KoStore store );
KO_API void tolmo___HeaderAcceptEncodingStartup( void );
KO_API void tolmo___HeaderAcceptEncodingShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderAcceptEncoding tolmoHeaderAcceptEncodingCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderAcceptEncodingAcceptEncodingsLength( TolmoHeaderAcceptEncoding hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoAcceptEncoding tolmoHeaderAcceptEncodingTryDecodeAcceptEncodingAt( TolmoHeaderAcceptEncoding hdr,
                                                                               KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param acceptEncoding shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre acceptEncoding (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderAcceptEncodingSetAcceptEncodingAt( TolmoHeaderAcceptEncoding *hdr, KoInt index,
                                                          TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoHeaderAcceptEncodingInsertAcceptEncoding( TolmoHeaderAcceptEncoding *hdr, KoInt index,
                                                           TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoHeaderAcceptEncodingPrependAcceptEncoding( TolmoHeaderAcceptEncoding *hdr,
                                                            TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoHeaderAcceptEncodingAppendAcceptEncoding( TolmoHeaderAcceptEncoding *hdr,
                                                           TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoHeaderAcceptEncodingDelAcceptEncodingAt( TolmoHeaderAcceptEncoding *hdr, KoInt index );
KO_API void tolmoHeaderAcceptEncodingClearAcceptEncodings( TolmoHeaderAcceptEncoding *hdr );
/** @} */

KO_END_DECLS

#endif
