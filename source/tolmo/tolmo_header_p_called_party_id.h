/* The header P-Called-Party-Id (RFC 7315 section 4.2). */
#ifndef TOLMO_HEADER_P_CALLED_PARTY_ID_H
#define TOLMO_HEADER_P_CALLED_PARTY_ID_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a P-Called-Party-Id header. */
typedef struct tolmo___HeaderPCalledPartyId *TolmoHeaderPCalledPartyId;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderPCalledPartyIdSort( void );
KO_API KoObj tolmoHeaderPCalledPartyIdObj( TolmoHeaderPCalledPartyId hdr );
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdFrom( KoObj obj );
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdRetain( TolmoHeaderPCalledPartyId hdr );
KO_API void tolmoHeaderPCalledPartyIdRelease( TolmoHeaderPCalledPartyId hdr );
KO_API KoInt tolmoHeaderPCalledPartyIdCompare( TolmoHeaderPCalledPartyId a, TolmoHeaderPCalledPartyId b );
KO_API KoBool tolmoHeaderPCalledPartyIdEquals( TolmoHeaderPCalledPartyId a, TolmoHeaderPCalledPartyId b );
KO_API KoString tolmoHeaderPCalledPartyIdToString( TolmoHeaderPCalledPartyId hdr );
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdCreateFrom( TolmoHeaderPCalledPartyId source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderPCalledPartyIdEncode( TolmoHeaderPCalledPartyId hdr );
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderPCalledPartyIdEncodeToMessage( TolmoHeaderPCalledPartyId hdr, TolmoMessage *msg );
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderPCalledPartyIdPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderPCalledPartyIdRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderPCalledPartyIdStore( TolmoHeaderPCalledPartyId hdr );
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdTryRestore( KoStore store );
KO_API void tolmo___HeaderPCalledPartyIdStartup( void );
KO_API void tolmo___HeaderPCalledPartyIdShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdCreate( KoString iri );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderPCalledPartyIdIri( TolmoHeaderPCalledPartyId hdr );
KO_API void tolmoHeaderPCalledPartyIdSetIri( TolmoHeaderPCalledPartyId *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderPCalledPartyIdHasDisplayName( TolmoHeaderPCalledPartyId hdr );
KO_API KoString tolmoHeaderPCalledPartyIdDisplayName( TolmoHeaderPCalledPartyId hdr );
KO_API void tolmoHeaderPCalledPartyIdSetDisplayName( TolmoHeaderPCalledPartyId *hdr, KoString displayName );
KO_API void tolmoHeaderPCalledPartyIdDelDisplayName( TolmoHeaderPCalledPartyId *hdr );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderPCalledPartyIdGenericParams( TolmoHeaderPCalledPartyId hdr );
KO_API void tolmoHeaderPCalledPartyIdSetGenericParams( TolmoHeaderPCalledPartyId *hdr,
                                                       TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
