/* One item of a P-Asserted-Identity or P-Preferred-Identity header: an address without parameters (RFC 3325 section 9). */
#ifndef TOLMO_IDENTITY_VALUE_H
#define TOLMO_IDENTITY_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of an identity. */
typedef struct tolmo___IdentityValue *TolmoIdentityValue;

/** @name Standard operations
 * See docs/objects.md. The sort has no to-string function: the wire text comes from tolmo___IdentityValueEncode alone. @{ */
KO_API KoSort tolmoIdentityValueSort( void );
KO_API KoObj tolmoIdentityValueObj( TolmoIdentityValue id );
KO_API TolmoIdentityValue tolmoIdentityValueFrom( KoObj obj );
KO_API TolmoIdentityValue tolmoIdentityValueRetain( TolmoIdentityValue id );
KO_API void tolmoIdentityValueRelease( TolmoIdentityValue id );
KO_API KoInt tolmoIdentityValueCompare( TolmoIdentityValue a, TolmoIdentityValue b );
KO_API KoBool tolmoIdentityValueEquals( TolmoIdentityValue a, TolmoIdentityValue b );
KO_API KoString tolmoIdentityValueToString( TolmoIdentityValue id );
KO_API TolmoIdentityValue tolmoIdentityValueCreateFrom( TolmoIdentityValue source );
/** @} */

/**
 * An address without a display name.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoIdentityValue tolmoIdentityValueCreate( KoString iri );

/** @name Address
 * Always there: an IRI, of any scheme. The getter returns a new reference; what the setter gets is shared, the caller keeps
 * its reference.
 * @param id for the setter: address of the caller's handle, which may be replaced.
 * @pre id, for the setter then *id
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoIdentityValueIri( TolmoIdentityValue id );
KO_API void tolmoIdentityValueSetIri( TolmoIdentityValue *id, KoString iri );
/** @} */

/** @name Display name
 * Optional, without quotes and escapes; may be present and empty. It is stored as it is given: the setter shares it, the
 * caller keeps its reference. The getter returns a new reference, or null.
 * @param id for a setter: address of the caller's handle, which may be replaced.
 * @pre id, for a setter then *id
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoIdentityValueHasDisplayName( TolmoIdentityValue id );
KO_API KoString tolmoIdentityValueDisplayName( TolmoIdentityValue id );
KO_API void tolmoIdentityValueSetDisplayName( TolmoIdentityValue *id, KoString displayName );
KO_API void tolmoIdentityValueDelDisplayName( TolmoIdentityValue *id );
/** @} */

/** The wire text, always in angle brackets. @return new reference. @pre id */
KO_API KoString tolmo___IdentityValueEncode( TolmoIdentityValue id );

/**
 * Decodes exactly one item: `[ display-name ] "<" URI ">"`, or a bare URI. Parameters are refused behind either.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoIdentityValue tolmo___IdentityValueTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
