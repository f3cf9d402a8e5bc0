/* The header Remote-Party-Id (draft-ietf-sip-privacy-04 section 5). */
#ifndef TOLMO_HEADER_REMOTE_PARTY_ID_H
#define TOLMO_HEADER_REMOTE_PARTY_ID_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Remote-Party-Id header. */
typedef struct tolmo___HeaderRemotePartyId *TolmoHeaderRemotePartyId;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderRemotePartyIdSort( void );
KO_API KoObj tolmoHeaderRemotePartyIdObj( TolmoHeaderRemotePartyId hdr );
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdFrom( KoObj obj );
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdRetain( TolmoHeaderRemotePartyId hdr );
KO_API void tolmoHeaderRemotePartyIdRelease( TolmoHeaderRemotePartyId hdr );
KO_API KoInt tolmoHeaderRemotePartyIdCompare( TolmoHeaderRemotePartyId a, TolmoHeaderRemotePartyId b );
KO_API KoBool tolmoHeaderRemotePartyIdEquals( TolmoHeaderRemotePartyId a, TolmoHeaderRemotePartyId b );
KO_API KoString tolmoHeaderRemotePartyIdToString( TolmoHeaderRemotePartyId hdr );
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdCreateFrom( TolmoHeaderRemotePartyId source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderRemotePartyIdEncode( TolmoHeaderRemotePartyId hdr );
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRemotePartyIdEncodeToMessage( TolmoHeaderRemotePartyId hdr, TolmoMessage *msg );
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRemotePartyIdPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRemotePartyIdRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRemotePartyIdStore( TolmoHeaderRemotePartyId hdr );
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdTryRestore( KoStore store );
KO_API void tolmo___HeaderRemotePartyIdStartup( void );
KO_API void tolmo___HeaderRemotePartyIdShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdCreate( KoString iri );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderRemotePartyIdIri( TolmoHeaderRemotePartyId hdr );
KO_API void tolmoHeaderRemotePartyIdSetIri( TolmoHeaderRemotePartyId *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderRemotePartyIdHasDisplayName( TolmoHeaderRemotePartyId hdr );
KO_API KoString tolmoHeaderRemotePartyIdDisplayName( TolmoHeaderRemotePartyId hdr );
KO_API void tolmoHeaderRemotePartyIdSetDisplayName( TolmoHeaderRemotePartyId *hdr, KoString displayName );
KO_API void tolmoHeaderRemotePartyIdDelDisplayName( TolmoHeaderRemotePartyId *hdr );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderRemotePartyIdGenericParams( TolmoHeaderRemotePartyId hdr );
KO_API void tolmoHeaderRemotePartyIdSetGenericParams( TolmoHeaderRemotePartyId *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
