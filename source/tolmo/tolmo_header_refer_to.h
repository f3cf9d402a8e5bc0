/* The header Refer-To (RFC 3515 section 2.1). */
#ifndef TOLMO_HEADER_REFER_TO_H
#define TOLMO_HEADER_REFER_TO_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Refer-To header. */
typedef struct tolmo___HeaderReferTo *TolmoHeaderReferTo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderReferToSort( void );
KO_API KoObj tolmoHeaderReferToObj( TolmoHeaderReferTo hdr );
KO_API TolmoHeaderReferTo tolmoHeaderReferToFrom( KoObj obj );
KO_API TolmoHeaderReferTo tolmoHeaderReferToRetain( TolmoHeaderReferTo hdr );
KO_API void tolmoHeaderReferToRelease( TolmoHeaderReferTo hdr );
KO_API KoInt tolmoHeaderReferToCompare( TolmoHeaderReferTo a, TolmoHeaderReferTo b );
KO_API KoBool tolmoHeaderReferToEquals( TolmoHeaderReferTo a, TolmoHeaderReferTo b );
KO_API KoString tolmoHeaderReferToToString( TolmoHeaderReferTo hdr );
KO_API TolmoHeaderReferTo tolmoHeaderReferToCreateFrom( TolmoHeaderReferTo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderReferToEncode( TolmoHeaderReferTo hdr );
KO_API TolmoHeaderReferTo tolmoHeaderReferToTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderReferToEncodeToMessage( TolmoHeaderReferTo hdr, TolmoMessage *msg );
KO_API TolmoHeaderReferTo tolmoHeaderReferToTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderReferToPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderReferToRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderReferToStore( TolmoHeaderReferTo hdr );
KO_API TolmoHeaderReferTo tolmoHeaderReferToTryRestore( KoStore store );
KO_API void tolmo___HeaderReferToStartup( void );
KO_API void tolmo___HeaderReferToShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderReferTo tolmoHeaderReferToCreate( KoString iri );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderReferToIri( TolmoHeaderReferTo hdr );
KO_API void tolmoHeaderReferToSetIri( TolmoHeaderReferTo *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderReferToHasDisplayName( TolmoHeaderReferTo hdr );
KO_API KoString tolmoHeaderReferToDisplayName( TolmoHeaderReferTo hdr );
KO_API void tolmoHeaderReferToSetDisplayName( TolmoHeaderReferTo *hdr, KoString displayName );
KO_API void tolmoHeaderReferToDelDisplayName( TolmoHeaderReferTo *hdr );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderReferToGenericParams( TolmoHeaderReferTo hdr );
KO_API void tolmoHeaderReferToSetGenericParams( TolmoHeaderReferTo *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
