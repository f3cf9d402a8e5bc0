/* The header Warning (RFC 3261 section 20.43). */
#ifndef TOLMO_HEADER_WARNING_H
#define TOLMO_HEADER_WARNING_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_warning_value.h>

KO_BEGIN_DECLS

/** Handle of a Warning header. */
typedef struct tolmo___HeaderWarning *TolmoHeaderWarning;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderWarningSort( void );
KO_API KoObj tolmoHeaderWarningObj( TolmoHeaderWarning hdr );
KO_API TolmoHeaderWarning tolmoHeaderWarningFrom( KoObj obj );
KO_API TolmoHeaderWarning tolmoHeaderWarningRetain( TolmoHeaderWarning hdr );
KO_API void tolmoHeaderWarningRelease( TolmoHeaderWarning hdr );
KO_API KoInt tolmoHeaderWarningCompare( TolmoHeaderWarning a, TolmoHeaderWarning b );
KO_API KoBool tolmoHeaderWarningEquals( TolmoHeaderWarning a, TolmoHeaderWarning b );
KO_API KoString tolmoHeaderWarningToString( TolmoHeaderWarning hdr );
KO_API TolmoHeaderWarning tolmoHeaderWarningCreateFrom( TolmoHeaderWarning source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoWarningValue over all lines; without a line it is empty. @{ */
KO_API TolmoMessageHeader tolmoHeaderWarningEncode( TolmoHeaderWarning hdr );
KO_API TolmoHeaderWarning tolmoHeaderWarningTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderWarningEncodeToMessage( TolmoHeaderWarning hdr, TolmoMessage *msg );
KO_API TolmoHeaderWarning tolmoHeaderWarningTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderWarningPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderWarningRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderWarningStore( TolmoHeaderWarning hdr );
KO_API TolmoHeaderWarning tolmoHeaderWarningTryRestore( KoStore store );
KO_API void tolmo___HeaderWarningStartup( void );
KO_API void tolmo___HeaderWarningShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderWarning tolmoHeaderWarningCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderWarningWarningsLength( TolmoHeaderWarning hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoWarningValue tolmoHeaderWarningTryDecodeWarningAt( TolmoHeaderWarning hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param warning shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre warning
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderWarningSetWarningAt( TolmoHeaderWarning *hdr, KoInt index, TolmoWarningValue warning );
KO_API void tolmoHeaderWarningInsertWarning( TolmoHeaderWarning *hdr, KoInt index, TolmoWarningValue warning );
KO_API void tolmoHeaderWarningPrependWarning( TolmoHeaderWarning *hdr, TolmoWarningValue warning );
KO_API void tolmoHeaderWarningAppendWarning( TolmoHeaderWarning *hdr, TolmoWarningValue warning );
KO_API void tolmoHeaderWarningDelWarningAt( TolmoHeaderWarning *hdr, KoInt index );
KO_API void tolmoHeaderWarningWarningsClear( TolmoHeaderWarning *hdr );
/** @} */

KO_END_DECLS

#endif
