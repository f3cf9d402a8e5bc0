/* The header Referred-By (RFC 3892 section 3). */
#ifndef TOLMO_HEADER_REFERRED_BY_H
#define TOLMO_HEADER_REFERRED_BY_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Referred-By header. */
typedef struct tolmo___HeaderReferredBy *TolmoHeaderReferredBy;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderReferredBySort( void );
KO_API KoObj tolmoHeaderReferredByObj( TolmoHeaderReferredBy hdr );
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByFrom( KoObj obj );
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByRetain( TolmoHeaderReferredBy hdr );
KO_API void tolmoHeaderReferredByRelease( TolmoHeaderReferredBy hdr );
KO_API KoInt tolmoHeaderReferredByCompare( TolmoHeaderReferredBy a, TolmoHeaderReferredBy b );
KO_API KoBool tolmoHeaderReferredByEquals( TolmoHeaderReferredBy a, TolmoHeaderReferredBy b );
KO_API KoString tolmoHeaderReferredByToString( TolmoHeaderReferredBy hdr );
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByCreateFrom( TolmoHeaderReferredBy source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderReferredByEncode( TolmoHeaderReferredBy hdr );
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderReferredByEncodeToMessage( TolmoHeaderReferredBy hdr, TolmoMessage *msg );
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderReferredByPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderReferredByRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderReferredByStore( TolmoHeaderReferredBy hdr );
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByTryRestore( KoStore store );
KO_API void tolmo___HeaderReferredByStartup( void );
KO_API void tolmo___HeaderReferredByShutdown( void );
/** @} */

/**
 * A new header with an address alone.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoHeaderReferredBy tolmoHeaderReferredByCreate( KoString iri );

/** @name Address
 * Always there: an IRI, whatever form of it stands on the wire. The getter returns a new reference; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHeaderReferredByIri( TolmoHeaderReferredBy hdr );
KO_API void tolmoHeaderReferredBySetIri( TolmoHeaderReferredBy *hdr, KoString iri );
/** @} */

/** @name Display name
 * Optional, and perhaps empty: decoded, without quotes. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHeaderReferredByHasDisplayName( TolmoHeaderReferredBy hdr );
KO_API KoString tolmoHeaderReferredByDisplayName( TolmoHeaderReferredBy hdr );
KO_API void tolmoHeaderReferredBySetDisplayName( TolmoHeaderReferredBy *hdr, KoString displayName );
KO_API void tolmoHeaderReferredByDelDisplayName( TolmoHeaderReferredBy *hdr );
/** @} */

/** @name Parameter cid
 * Optional: the identifier of a body part, without the quotes of the wire. The getter returns a new reference, or null.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoSipCleanMsgIdOk( cid ) @{ */
KO_API KoBool tolmoHeaderReferredByHasCid( TolmoHeaderReferredBy hdr );
KO_API KoString tolmoHeaderReferredByCid( TolmoHeaderReferredBy hdr );
KO_API void tolmoHeaderReferredBySetCid( TolmoHeaderReferredBy *hdr, KoString cid );
KO_API void tolmoHeaderReferredByDelCid( TolmoHeaderReferredBy *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderReferredByGenericParams( TolmoHeaderReferredBy hdr );
KO_API void tolmoHeaderReferredBySetGenericParams( TolmoHeaderReferredBy *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
