/* The header Content-Disposition (RFC 3261 section 20.11). */
#ifndef TOLMO_HEADER_CONTENT_DISPOSITION_H
#define TOLMO_HEADER_CONTENT_DISPOSITION_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Content-Disposition header. */
typedef struct tolmo___HeaderContentDisposition *TolmoHeaderContentDisposition;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderContentDispositionSort( void );
KO_API KoObj tolmoHeaderContentDispositionObj( TolmoHeaderContentDisposition hdr );
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionFrom( KoObj obj );
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionRetain( TolmoHeaderContentDisposition hdr );
KO_API void tolmoHeaderContentDispositionRelease( TolmoHeaderContentDisposition hdr );
KO_API KoInt tolmoHeaderContentDispositionCompare( TolmoHeaderContentDisposition a, TolmoHeaderContentDisposition b );
KO_API KoBool tolmoHeaderContentDispositionEquals( TolmoHeaderContentDisposition a, TolmoHeaderContentDisposition b );
KO_API KoString tolmoHeaderContentDispositionToString( TolmoHeaderContentDisposition hdr );
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionCreateFrom( TolmoHeaderContentDisposition source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderContentDispositionEncode( TolmoHeaderContentDisposition hdr );
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderContentDispositionEncodeToMessage( TolmoHeaderContentDisposition hdr, TolmoMessage *msg );
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderContentDispositionPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderContentDispositionRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderContentDispositionStore( TolmoHeaderContentDisposition hdr );
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionTryRestore( KoStore store );
KO_API void tolmo___HeaderContentDispositionStartup( void );
KO_API void tolmo___HeaderContentDispositionShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @param dispositionType shared, the caller keeps its reference; its normal form is stored.
 * @return new reference.
 * @pre tolmoDispositionTypeOk( dispositionType ) (the normaliser's)
 */
KO_API TolmoHeaderContentDisposition tolmoHeaderContentDispositionCreate( KoString dispositionType );

/** @name Type
 * Always there, in small letters. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param dispositionType shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDispositionTypeOk( dispositionType ) (the normaliser's) @{ */
KO_API KoString tolmoHeaderContentDispositionDispositionType( TolmoHeaderContentDisposition hdr );
KO_API void tolmoHeaderContentDispositionSetDispositionType( TolmoHeaderContentDisposition *hdr,
                                                             KoString dispositionType );
/** @} */

/** @name Parameter handling
 * Optional, in small letters. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param handling shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr, for a change then *hdr
 * @pre tolmoHandlingOk( handling ) (the normaliser's) @{ */
KO_API KoBool tolmoHeaderContentDispositionHasHandling( TolmoHeaderContentDisposition hdr );
KO_API KoString tolmoHeaderContentDispositionHandling( TolmoHeaderContentDisposition hdr );
KO_API void tolmoHeaderContentDispositionSetHandling( TolmoHeaderContentDisposition *hdr, KoString handling );
KO_API void tolmoHeaderContentDispositionDelHandling( TolmoHeaderContentDisposition *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderContentDispositionGenericParams( TolmoHeaderContentDisposition hdr );
KO_API void tolmoHeaderContentDispositionSetGenericParams( TolmoHeaderContentDisposition *hdr,
                                                           TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
