/* The header From (RFC 3261 section 20.20). */
#ifndef TOLMO_HEADER_FROM_H
#define TOLMO_HEADER_FROM_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

typedef struct tolmo___HeaderTo *TolmoHeaderTo;

/** Handle of a From header. */
typedef struct tolmo___HeaderFrom *TolmoHeaderFrom;

/** @name Standard operations
 * See docs/objects.md. Addresses compare as text: `sip:A@b` is not `sip:a@b`. @{ */
KO_API KoSort tolmoHeaderFromSort( void );
KO_API KoObj tolmoHeaderFromObj( TolmoHeaderFrom hdr );
KO_API TolmoHeaderFrom tolmoHeaderFromFrom( KoObj obj );
KO_API TolmoHeaderFrom tolmoHeaderFromRetain( TolmoHeaderFrom hdr );
KO_API void tolmoHeaderFromRelease( TolmoHeaderFrom hdr );
KO_API KoInt tolmoHeaderFromCompare( TolmoHeaderFrom a, TolmoHeaderFrom b );
KO_API KoBool tolmoHeaderFromEquals( TolmoHeaderFrom a, TolmoHeaderFrom b );
KO_API KoString tolmoHeaderFromToString( TolmoHeaderFrom hdr );
KO_API TolmoHeaderFrom tolmoHeaderFromCreateFrom( TolmoHeaderFrom source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderFromEncode( TolmoHeaderFrom hdr );
KO_API TolmoHeaderFrom tolmoHeaderFromTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderFromEncodeToMessage( TolmoHeaderFrom hdr, TolmoMessage *msg );
KO_API TolmoHeaderFrom tolmoHeaderFromTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderFromPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderFromRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderFromStore( TolmoHeaderFrom hdr );
KO_API TolmoHeaderFrom tolmoHeaderFromTryRestore( KoStore store );
KO_API void tolmo___HeaderFromStartup( void );
KO_API void tolmo___HeaderFromShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderFrom tolmoHeaderFromCreate( KoString iri );

/**
 * A new header with all that a To header holds, its tag too: nothing is swapped, nothing is dropped.
 *
 * @param hdrTo shared, the caller keeps its reference.
 * @return new reference.
 * @pre hdrTo
 */
KO_API TolmoHeaderFrom tolmoHeaderFromCreateFromHeaderTo( TolmoHeaderTo hdrTo );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderFromIri( TolmoHeaderFrom hdr );
KO_API void tolmoHeaderFromSetIri( TolmoHeaderFrom *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderFromHasDisplayName( TolmoHeaderFrom hdr );
KO_API KoString tolmoHeaderFromDisplayName( TolmoHeaderFrom hdr );
KO_API void tolmoHeaderFromSetDisplayName( TolmoHeaderFrom *hdr, KoString displayName );
KO_API void tolmoHeaderFromDelDisplayName( TolmoHeaderFrom *hdr );
/** @} */

/** @name Parameter tag
 * Optional: a token in its case. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoTagOk( tag ) @{ */
KO_API KoBool tolmoHeaderFromHasTag( TolmoHeaderFrom hdr );
KO_API KoString tolmoHeaderFromTag( TolmoHeaderFrom hdr );
KO_API void tolmoHeaderFromSetTag( TolmoHeaderFrom *hdr, KoString tag );
KO_API void tolmoHeaderFromDelTag( TolmoHeaderFrom *hdr );
/** @} */

/** @name Parameter epid
 * Optional: up to 16 characters of a token. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoEpidOk( epid ) @{ */
KO_API KoBool tolmoHeaderFromHasEpid( TolmoHeaderFrom hdr );
KO_API KoString tolmoHeaderFromEpid( TolmoHeaderFrom hdr );
KO_API void tolmoHeaderFromSetEpid( TolmoHeaderFrom *hdr, KoString epid );
KO_API void tolmoHeaderFromDelEpid( TolmoHeaderFrom *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderFromGenericParams( TolmoHeaderFrom hdr );
KO_API void tolmoHeaderFromSetGenericParams( TolmoHeaderFrom *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
