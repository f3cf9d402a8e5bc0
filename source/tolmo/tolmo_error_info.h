/* One item of an Error-Info header: where more on an error is (RFC 3261 section 20.18). */
#ifndef TOLMO_ERROR_INFO_H
#define TOLMO_ERROR_INFO_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of an error info. */
typedef struct tolmo___ErrorInfo *TolmoErrorInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoErrorInfoSort( void );
KO_API KoObj tolmoErrorInfoObj( TolmoErrorInfo errorInfo );
KO_API TolmoErrorInfo tolmoErrorInfoFrom( KoObj obj );
KO_API TolmoErrorInfo tolmoErrorInfoRetain( TolmoErrorInfo errorInfo );
KO_API void tolmoErrorInfoRelease( TolmoErrorInfo errorInfo );
KO_API KoInt tolmoErrorInfoCompare( TolmoErrorInfo a, TolmoErrorInfo b );
KO_API KoBool tolmoErrorInfoEquals( TolmoErrorInfo a, TolmoErrorInfo b );
KO_API KoString tolmoErrorInfoToString( TolmoErrorInfo errorInfo );
KO_API TolmoErrorInfo tolmoErrorInfoCreateFrom( TolmoErrorInfo source );
/** @} */

/**
 * Without parameters.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoErrorInfo tolmoErrorInfoCreate( KoString iri );

/** @name Address
 * Always there. The getter returns a new reference; what the setter gets is shared, the caller keeps its reference.
 * @param errorInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre errorInfo, for a setter then *errorInfo
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoErrorInfoIri( TolmoErrorInfo errorInfo );
KO_API void tolmoErrorInfoSetIri( TolmoErrorInfo *errorInfo, KoString iri );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. The getter returns a new reference; what the setter gets is shared, the caller keeps its
 * reference.
 * @param errorInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre errorInfo, for a setter then *errorInfo
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoErrorInfoGenericParams( TolmoErrorInfo errorInfo );
KO_API void tolmoErrorInfoSetGenericParams( TolmoErrorInfo *errorInfo, TolmoGenericParams genericParams );
/** @} */

/** The wire text: the address and the parameters. @return new reference. @pre errorInfo */
KO_API KoString tolmo___ErrorInfoEncode( TolmoErrorInfo errorInfo );

/**
 * Decodes exactly one item. The angle brackets are required; there is no display name.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoErrorInfo tolmo___ErrorInfoTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
