/* The header To (RFC 3261 section 20.39). */
#ifndef TOLMO_HEADER_TO_H
#define TOLMO_HEADER_TO_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

typedef struct tolmo___HeaderFrom *TolmoHeaderFrom;

/** Handle of a To header. */
typedef struct tolmo___HeaderTo *TolmoHeaderTo;

/** @name Standard operations
 * See docs/objects.md. Addresses compare as text: `sip:A@b` is not `sip:a@b`. @{ */
KO_API KoSort tolmoHeaderToSort( void );
KO_API KoObj tolmoHeaderToObj( TolmoHeaderTo hdr );
KO_API TolmoHeaderTo tolmoHeaderToFrom( KoObj obj );
KO_API TolmoHeaderTo tolmoHeaderToRetain( TolmoHeaderTo hdr );
KO_API void tolmoHeaderToRelease( TolmoHeaderTo hdr );
KO_API KoInt tolmoHeaderToCompare( TolmoHeaderTo a, TolmoHeaderTo b );
KO_API KoBool tolmoHeaderToEquals( TolmoHeaderTo a, TolmoHeaderTo b );
KO_API KoString tolmoHeaderToToString( TolmoHeaderTo hdr );
KO_API TolmoHeaderTo tolmoHeaderToCreateFrom( TolmoHeaderTo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderToEncode( TolmoHeaderTo hdr );
KO_API TolmoHeaderTo tolmoHeaderToTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderToEncodeToMessage( TolmoHeaderTo hdr, TolmoMessage *msg );
KO_API TolmoHeaderTo tolmoHeaderToTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderToPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderToRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderToStore( TolmoHeaderTo hdr );
KO_API TolmoHeaderTo tolmoHeaderToTryRestore( KoStore store );
KO_API void tolmo___HeaderToStartup( void );
KO_API void tolmo___HeaderToShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderTo tolmoHeaderToCreate( KoString iri );

/**
 * A new header with all that a From header holds, its tag too: nothing is swapped, nothing is dropped.
 *
 * @param hdrFrom shared, the caller keeps its reference.
 * @return new reference.
 * @pre hdrFrom
 */
KO_API TolmoHeaderTo tolmoHeaderToCreateFromHeaderFrom( TolmoHeaderFrom hdrFrom );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderToIri( TolmoHeaderTo hdr );
KO_API void tolmoHeaderToSetIri( TolmoHeaderTo *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderToHasDisplayName( TolmoHeaderTo hdr );
KO_API KoString tolmoHeaderToDisplayName( TolmoHeaderTo hdr );
KO_API void tolmoHeaderToSetDisplayName( TolmoHeaderTo *hdr, KoString displayName );
KO_API void tolmoHeaderToDelDisplayName( TolmoHeaderTo *hdr );
/** @} */

/** @name Parameter tag
 * Optional: a token in its case. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoTagOk( tag ) @{ */
KO_API KoBool tolmoHeaderToHasTag( TolmoHeaderTo hdr );
KO_API KoString tolmoHeaderToTag( TolmoHeaderTo hdr );
KO_API void tolmoHeaderToSetTag( TolmoHeaderTo *hdr, KoString tag );
KO_API void tolmoHeaderToDelTag( TolmoHeaderTo *hdr );
/** @} */

/** @name Parameter epid
 * Optional: up to 16 characters of a token. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoEpidOk( epid ) @{ */
KO_API KoBool tolmoHeaderToHasEpid( TolmoHeaderTo hdr );
KO_API KoString tolmoHeaderToEpid( TolmoHeaderTo hdr );
KO_API void tolmoHeaderToSetEpid( TolmoHeaderTo *hdr, KoString epid );
KO_API void tolmoHeaderToDelEpid( TolmoHeaderTo *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderToGenericParams( TolmoHeaderTo hdr );
KO_API void tolmoHeaderToSetGenericParams( TolmoHeaderTo *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
