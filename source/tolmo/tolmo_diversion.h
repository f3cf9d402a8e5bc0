/* One item of a Diversion header: who diverted a call, and why (RFC 5806). */
#ifndef TOLMO_DIVERSION_H
#define TOLMO_DIVERSION_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a diversion. */
typedef struct tolmo___Diversion *TolmoDiversion;

/** @name Standard operations
 * See docs/objects.md. Diversions do not compare, so that one equals itself alone, and have no text of their own:
 * `ToString` does not give the wire text. @{ */
KO_API KoSort tolmoDiversionSort( void );
KO_API KoObj tolmoDiversionObj( TolmoDiversion diversion );
KO_API TolmoDiversion tolmoDiversionFrom( KoObj obj );
KO_API TolmoDiversion tolmoDiversionRetain( TolmoDiversion diversion );
KO_API void tolmoDiversionRelease( TolmoDiversion diversion );
KO_API KoInt tolmoDiversionCompare( TolmoDiversion a, TolmoDiversion b );
KO_API KoBool tolmoDiversionEquals( TolmoDiversion a, TolmoDiversion b );
KO_API KoString tolmoDiversionToString( TolmoDiversion diversion );
KO_API TolmoDiversion tolmoDiversionCreateFrom( TolmoDiversion source );
/** @} */

/** @name Creation
 * Without parameters. What goes in is shared, the caller keeps its references.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API TolmoDiversion tolmoDiversionCreate( KoString iri );
KO_API TolmoDiversion tolmoDiversionCreateWithDisplayName( KoString iri, KoString displayName );
/** @} */

/** @name Address
 * Always there. The getter returns a new reference; what the setter gets is shared, the caller keeps its reference.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoDiversionIri( TolmoDiversion diversion );
KO_API void tolmoDiversionSetIri( TolmoDiversion *diversion, KoString iri );
/** @} */

/** @name Display name
 * Optional; may be empty, goes out in quotes. The getter returns a new reference, or null; what the setter gets is
 * shared, the caller keeps its reference.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoDiversionHasDisplayName( TolmoDiversion diversion );
KO_API KoString tolmoDiversionDisplayName( TolmoDiversion diversion );
KO_API void tolmoDiversionSetDisplayName( TolmoDiversion *diversion, KoString displayName );
KO_API void tolmoDiversionDelDisplayName( TolmoDiversion *diversion );
/** @} */

/** @name Parameter reason
 * Optional: why the call was diverted. The getter returns a new reference, or null; of what the setter gets the small
 * letters are stored. The text goes out as it is stored, and never in quotes: one that is no token is read as something
 * else by the receiver, or not at all, so that a setter should get what tolmoDiversionReasonOk accepts.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre reason @{ */
KO_API KoBool tolmoDiversionHasReason( TolmoDiversion diversion );
KO_API KoString tolmoDiversionReason( TolmoDiversion diversion );
KO_API void tolmoDiversionSetReason( TolmoDiversion *diversion, KoString reason );
KO_API void tolmoDiversionDelReason( TolmoDiversion *diversion );
/** @} */

/** @name Parameter counter
 * Optional: the number of diversions that the entry stands for, 0 to 99; -1 when absent.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre tolmoDiversionCounterOk( counter ) @{ */
KO_API KoBool tolmoDiversionHasCounter( TolmoDiversion diversion );
KO_API KoInt tolmoDiversionCounter( TolmoDiversion diversion );
KO_API void tolmoDiversionSetCounter( TolmoDiversion *diversion, KoInt counter );
KO_API void tolmoDiversionDelCounter( TolmoDiversion *diversion );
/** @} */

/** @name Parameter limit
 * Optional: the number of diversions that are allowed, 0 to 99; -1 when absent.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre tolmoDiversionLimitOk( limit ) @{ */
KO_API KoBool tolmoDiversionHasLimit( TolmoDiversion diversion );
KO_API KoInt tolmoDiversionLimit( TolmoDiversion diversion );
KO_API void tolmoDiversionSetLimit( TolmoDiversion *diversion, KoInt limit );
KO_API void tolmoDiversionDelLimit( TolmoDiversion *diversion );
/** @} */

/** @name Parameter privacy
 * Optional: whether the address is to be kept from the called party. The getter returns a new reference, or null; of
 * what the setter gets the small letters are stored. The text goes out as it is stored, and never in quotes: one that
 * is no token is read as something else by the receiver, or not at all, so that a setter should get what
 * tolmoDiversionPrivacyOk accepts.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre privacy @{ */
KO_API KoBool tolmoDiversionHasPrivacy( TolmoDiversion diversion );
KO_API KoString tolmoDiversionPrivacy( TolmoDiversion diversion );
KO_API void tolmoDiversionSetPrivacy( TolmoDiversion *diversion, KoString privacy );
KO_API void tolmoDiversionDelPrivacy( TolmoDiversion *diversion );
/** @} */

/** @name Parameter screen
 * Optional: whether the address was verified. The getter returns a new reference, or null; of what the setter gets the
 * small letters are stored. The text goes out as it is stored, and never in quotes: one that is no token is read as
 * something else by the receiver, or not at all, so that a setter should get what tolmoDiversionScreenOk accepts.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre screen @{ */
KO_API KoBool tolmoDiversionHasScreen( TolmoDiversion diversion );
KO_API KoString tolmoDiversionScreen( TolmoDiversion diversion );
KO_API void tolmoDiversionSetScreen( TolmoDiversion *diversion, KoString screen );
KO_API void tolmoDiversionDelScreen( TolmoDiversion *diversion );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference; what
 * the setter gets is shared, the caller keeps its reference.
 * @param diversion for a setter: address of the caller's handle, which may be replaced.
 * @pre diversion, for a setter then *diversion
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoDiversionGenericParams( TolmoDiversion diversion );
KO_API void tolmoDiversionSetGenericParams( TolmoDiversion *diversion, TolmoGenericParams genericParams );
/** @} */

/** The wire text; the parameters that have a field come first, in the order of this file. @return new reference.
 * @pre diversion */
KO_API KoString tolmo___DiversionEncode( TolmoDiversion diversion );

/**
 * Decodes exactly one diversion, with a bare address or one in angle brackets.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoDiversion tolmo___DiversionTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
