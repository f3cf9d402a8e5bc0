/* The header Reply-To (RFC 3261 section 20.31). */
#ifndef TOLMO_HEADER_REPLY_TO_H
#define TOLMO_HEADER_REPLY_TO_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Reply-To header. */
typedef struct tolmo___HeaderReplyTo *TolmoHeaderReplyTo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderReplyToSort( void );
KO_API KoObj tolmoHeaderReplyToObj( TolmoHeaderReplyTo hdr );
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToFrom( KoObj obj );
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToRetain( TolmoHeaderReplyTo hdr );
KO_API void tolmoHeaderReplyToRelease( TolmoHeaderReplyTo hdr );
KO_API KoInt tolmoHeaderReplyToCompare( TolmoHeaderReplyTo a, TolmoHeaderReplyTo b );
KO_API KoBool tolmoHeaderReplyToEquals( TolmoHeaderReplyTo a, TolmoHeaderReplyTo b );
KO_API KoString tolmoHeaderReplyToToString( TolmoHeaderReplyTo hdr );
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToCreateFrom( TolmoHeaderReplyTo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderReplyToEncode( TolmoHeaderReplyTo hdr );
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderReplyToEncodeToMessage( TolmoHeaderReplyTo hdr, TolmoMessage *msg );
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderReplyToPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderReplyToRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderReplyToStore( TolmoHeaderReplyTo hdr );
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToTryRestore( KoStore store );
KO_API void tolmo___HeaderReplyToStartup( void );
KO_API void tolmo___HeaderReplyToShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderReplyTo tolmoHeaderReplyToCreate( KoString iri );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderReplyToIri( TolmoHeaderReplyTo hdr );
KO_API void tolmoHeaderReplyToSetIri( TolmoHeaderReplyTo *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderReplyToHasDisplayName( TolmoHeaderReplyTo hdr );
KO_API KoString tolmoHeaderReplyToDisplayName( TolmoHeaderReplyTo hdr );
KO_API void tolmoHeaderReplyToSetDisplayName( TolmoHeaderReplyTo *hdr, KoString displayName );
KO_API void tolmoHeaderReplyToDelDisplayName( TolmoHeaderReplyTo *hdr );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderReplyToGenericParams( TolmoHeaderReplyTo hdr );
KO_API void tolmoHeaderReplyToSetGenericParams( TolmoHeaderReplyTo *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
