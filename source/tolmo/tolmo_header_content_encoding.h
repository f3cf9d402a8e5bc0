/* The header Content-Encoding (RFC 3261 section 20.12). */
#ifndef TOLMO_HEADER_CONTENT_ENCODING_H
#define TOLMO_HEADER_CONTENT_ENCODING_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Content-Encoding header. */
typedef struct tolmo___HeaderContentEncoding *TolmoHeaderContentEncoding;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderContentEncodingSort( void );
KO_API KoObj tolmoHeaderContentEncodingObj( TolmoHeaderContentEncoding hdr );
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingFrom( KoObj obj );
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingRetain( TolmoHeaderContentEncoding hdr );
KO_API void tolmoHeaderContentEncodingRelease( TolmoHeaderContentEncoding hdr );
KO_API KoInt tolmoHeaderContentEncodingCompare( TolmoHeaderContentEncoding a, TolmoHeaderContentEncoding b );
KO_API KoBool tolmoHeaderContentEncodingEquals( TolmoHeaderContentEncoding a, TolmoHeaderContentEncoding b );
KO_API KoString tolmoHeaderContentEncodingToString( TolmoHeaderContentEncoding hdr );
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingCreateFrom( TolmoHeaderContentEncoding source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of content codings, printed on one line. It is never decoded: a raw header with a line
 * gives null, one without a line an empty list. @{ */
KO_API TolmoMessageHeader tolmoHeaderContentEncodingEncode( TolmoHeaderContentEncoding hdr );
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderContentEncodingEncodeToMessage( TolmoHeaderContentEncoding hdr, TolmoMessage *msg );
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderContentEncodingPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderContentEncodingRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderContentEncodingStore( TolmoHeaderContentEncoding hdr );
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingTryRestore( KoStore store );
KO_API void tolmo___HeaderContentEncodingStartup( void );
KO_API void tolmo___HeaderContentEncodingShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderContentEncoding tolmoHeaderContentEncodingCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderContentEncodingContentCodingsLength( TolmoHeaderContentEncoding hdr );

/** An item. @return new reference. @pre hdr @pre the index is inside the list (the runtime's) */
KO_API KoString tolmoHeaderContentEncodingContentCodingAt( TolmoHeaderContentEncoding hdr, KoInt index );

/** The items: a vector of strings. @return new reference. @pre hdr */
KO_API KoVector tolmoHeaderContentEncodingContentCodingsVector( TolmoHeaderContentEncoding hdr );

/** @name Changing
 * Insertion is before the item at the index. An item is stored as it stands, but for SetContentCodingAt, which stores
 * its normal form: small letters. All of them test the word behind the copy of a shared list.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param contentCoding shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoContentCodingOk( contentCoding ) (the normaliser's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderContentEncodingSetContentCodingAt( TolmoHeaderContentEncoding *hdr, KoInt index,
                                                          KoString contentCoding );
KO_API void tolmoHeaderContentEncodingInsertContentCoding( TolmoHeaderContentEncoding *hdr, KoInt index,
                                                           KoString contentCoding );
KO_API void tolmoHeaderContentEncodingPrependContentCoding( TolmoHeaderContentEncoding *hdr, KoString contentCoding );
KO_API void tolmoHeaderContentEncodingAppendContentCoding( TolmoHeaderContentEncoding *hdr, KoString contentCoding );
KO_API void tolmoHeaderContentEncodingDelContentCodingAt( TolmoHeaderContentEncoding *hdr, KoInt index );
KO_API void tolmoHeaderContentEncodingClearContentCodings( TolmoHeaderContentEncoding *hdr );
/** @} */

/**
 * Replaces the list by the strings of a vector, as they stand. One that is no content coding ends the process midway.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param vec shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre vec
 * @pre tolmoContentCodingOk( contentCoding ) for each of them (the normaliser's)
 */
KO_API void tolmoHeaderContentEncodingSetContentCodingsVector( TolmoHeaderContentEncoding *hdr, KoVector vec );

KO_END_DECLS

#endif
