/* The header P-Early-Media (RFC 5009 section 8). */
#ifndef TOLMO_HEADER_P_EARLY_MEDIA_H
#define TOLMO_HEADER_P_EARLY_MEDIA_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a P-Early-Media header. */
typedef struct tolmo___HeaderPEarlyMedia *TolmoHeaderPEarlyMedia;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderPEarlyMediaSort( void );
KO_API KoObj tolmoHeaderPEarlyMediaObj( TolmoHeaderPEarlyMedia hdr );
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaFrom( KoObj obj );
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaRetain( TolmoHeaderPEarlyMedia hdr );
KO_API void tolmoHeaderPEarlyMediaRelease( TolmoHeaderPEarlyMedia hdr );
KO_API KoInt tolmoHeaderPEarlyMediaCompare( TolmoHeaderPEarlyMedia a, TolmoHeaderPEarlyMedia b );
KO_API KoBool tolmoHeaderPEarlyMediaEquals( TolmoHeaderPEarlyMedia a, TolmoHeaderPEarlyMedia b );
KO_API KoString tolmoHeaderPEarlyMediaToString( TolmoHeaderPEarlyMedia hdr );
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaCreateFrom( TolmoHeaderPEarlyMedia source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of early-media parameters over all lines, printed on a line each; without a line it is
 * empty. @{ */
KO_API TolmoMessageHeader tolmoHeaderPEarlyMediaEncode( TolmoHeaderPEarlyMedia hdr );
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderPEarlyMediaEncodeToMessage( TolmoHeaderPEarlyMedia hdr, TolmoMessage *msg );
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderPEarlyMediaPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderPEarlyMediaRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderPEarlyMediaStore( TolmoHeaderPEarlyMedia hdr );
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaTryRestore( KoStore store );
KO_API void tolmo___HeaderPEarlyMediaStartup( void );
KO_API void tolmo___HeaderPEarlyMediaShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderPEarlyMediaEmParamsLength( TolmoHeaderPEarlyMedia hdr );

/** An item. @return new reference. @pre hdr @pre the index is inside the list (the runtime's) */
KO_API KoString tolmoHeaderPEarlyMediaEmParamAt( TolmoHeaderPEarlyMedia hdr, KoInt index );

/** @name Changing
 * Insertion is before the item at the index. Items are stored as they stand.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param emParam shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoEmParamOk( emParam )
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderPEarlyMediaSetEmParamAt( TolmoHeaderPEarlyMedia *hdr, KoInt index, KoString emParam );
KO_API void tolmoHeaderPEarlyMediaInsertEmParam( TolmoHeaderPEarlyMedia *hdr, KoInt index, KoString emParam );
KO_API void tolmoHeaderPEarlyMediaPrependEmParam( TolmoHeaderPEarlyMedia *hdr, KoString emParam );
KO_API void tolmoHeaderPEarlyMediaAppendEmParam( TolmoHeaderPEarlyMedia *hdr, KoString emParam );
KO_API void tolmoHeaderPEarlyMediaDelEmParamAt( TolmoHeaderPEarlyMedia *hdr, KoInt index );
KO_API void tolmoHeaderPEarlyMediaClearEmParams( TolmoHeaderPEarlyMedia *hdr );
/** @} */

KO_END_DECLS

#endif
