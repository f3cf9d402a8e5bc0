/* One item of an Accept header: a media range (RFC 3261 section 20.1). */
#ifndef TOLMO_ACCEPT_H
#define TOLMO_ACCEPT_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a media range. */
typedef struct tolmo___Accept *TolmoAccept;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoAcceptSort( void );
KO_API KoObj tolmoAcceptObj( TolmoAccept accept );
KO_API TolmoAccept tolmoAcceptFrom( KoObj obj );
KO_API TolmoAccept tolmoAcceptRetain( TolmoAccept accept );
KO_API void tolmoAcceptRelease( TolmoAccept accept );
KO_API KoInt tolmoAcceptCompare( TolmoAccept a, TolmoAccept b );
KO_API KoBool tolmoAcceptEquals( TolmoAccept a, TolmoAccept b );
KO_API KoString tolmoAcceptToString( TolmoAccept accept );
KO_API TolmoAccept tolmoAcceptCreateFrom( TolmoAccept source );
/** @} */

/** The media range of all types, without parameters. @return new reference. */
KO_API TolmoAccept tolmoAcceptCreate( void );

/** @name Media type
 * Absent in the range of all types. In small letters. The getter returns a new reference, or null; of what the setter
 * gets the normal form is stored.
 * @param accept for a setter: address of the caller's handle, which may be replaced.
 * @pre accept, for a setter then *accept
 * @pre tolmoMediaTypeOk( mediaType ) (the normaliser's, behind the copy on write) @{ */
KO_API KoBool tolmoAcceptHasMediaType( TolmoAccept accept );
KO_API KoString tolmoAcceptMediaType( TolmoAccept accept );
KO_API void tolmoAcceptSetMediaType( TolmoAccept *accept, KoString mediaType );
KO_API void tolmoAcceptDelMediaType( TolmoAccept *accept );
/** @} */

/** @name Media subtype
 * Absent in the range of all subtypes of a type. In small letters. Without a type it is kept, but does not go out. The
 * getter returns a new reference, or null; of what the setter gets the normal form is stored.
 * @param accept for a setter: address of the caller's handle, which may be replaced.
 * @pre accept, for a setter then *accept
 * @pre tolmoMediaSubtypeOk( mediaSubtype ) (the normaliser's, behind the copy on write) @{ */
KO_API KoBool tolmoAcceptHasMediaSubtype( TolmoAccept accept );
KO_API KoString tolmoAcceptMediaSubtype( TolmoAccept accept );
KO_API void tolmoAcceptSetMediaSubtype( TolmoAccept *accept, KoString mediaSubtype );
KO_API void tolmoAcceptDelMediaSubtype( TolmoAccept *accept );
/** @} */

/** @name Parameter q
 * Optional: thousandths, 0 to 1000; -1 when absent.
 * @param accept for a setter: address of the caller's handle, which may be replaced.
 * @pre accept, for a setter then *accept
 * @pre tolmoQvalueOk( qvalue ) @{ */
KO_API KoBool tolmoAcceptHasQvalue( TolmoAccept accept );
KO_API KoInt tolmoAcceptQvalue( TolmoAccept accept );
KO_API void tolmoAcceptSetQvalue( TolmoAccept *accept, KoInt qvalue );
KO_API void tolmoAcceptDelQvalue( TolmoAccept *accept );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference; what
 * the setter gets is shared, the caller keeps its reference.
 * @param accept for a setter: address of the caller's handle, which may be replaced.
 * @pre accept, for a setter then *accept
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoAcceptGenericParams( TolmoAccept accept );
KO_API void tolmoAcceptSetGenericParams( TolmoAccept *accept, TolmoGenericParams genericParams );
/** @} */

/** The wire text: the range, `q` with three decimal places, then all other parameters. @return new reference.
 * @pre accept */
KO_API KoString tolmo___AcceptEncode( TolmoAccept accept );

/**
 * Decodes exactly one media range.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoAccept tolmo___AcceptTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
