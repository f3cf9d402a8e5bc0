/* One item of a Call-Info header: where more on a party is (RFC 3261 section 20.9). */
#ifndef TOLMO_CALL_INFO_H
#define TOLMO_CALL_INFO_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a call info. */
typedef struct tolmo___CallInfo *TolmoCallInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoCallInfoSort( void );
KO_API KoObj tolmoCallInfoObj( TolmoCallInfo callInfo );
KO_API TolmoCallInfo tolmoCallInfoFrom( KoObj obj );
KO_API TolmoCallInfo tolmoCallInfoRetain( TolmoCallInfo callInfo );
KO_API void tolmoCallInfoRelease( TolmoCallInfo callInfo );
KO_API KoInt tolmoCallInfoCompare( TolmoCallInfo a, TolmoCallInfo b );
KO_API KoBool tolmoCallInfoEquals( TolmoCallInfo a, TolmoCallInfo b );
KO_API KoString tolmoCallInfoToString( TolmoCallInfo callInfo );
KO_API TolmoCallInfo tolmoCallInfoCreateFrom( TolmoCallInfo source );
/** @} */

/**
 * Without parameters.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoCallInfo tolmoCallInfoCreate( KoString iri );

/** @name Address
 * Always there. The getter returns a new reference; what the setter gets is shared, the caller keeps its reference.
 * @param callInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre callInfo, for a setter then *callInfo
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoCallInfoIri( TolmoCallInfo callInfo );
KO_API void tolmoCallInfoSetIri( TolmoCallInfo *callInfo, KoString iri );
/** @} */

/** @name Parameter purpose
 * Optional: what the address leads to, in small letters. The getter returns a new reference, or null; of what the
 * setter gets the normal form is stored.
 * @param callInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre callInfo, for a setter then *callInfo
 * @pre tolmoPurposeOk( purpose ) (the normaliser's, behind the copy on write) @{ */
KO_API KoBool tolmoCallInfoHasPurpose( TolmoCallInfo callInfo );
KO_API KoString tolmoCallInfoPurpose( TolmoCallInfo callInfo );
KO_API void tolmoCallInfoSetPurpose( TolmoCallInfo *callInfo, KoString purpose );
KO_API void tolmoCallInfoDelPurpose( TolmoCallInfo *callInfo );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference; what
 * the setter gets is shared, the caller keeps its reference.
 * @param callInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre callInfo, for a setter then *callInfo
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoCallInfoGenericParams( TolmoCallInfo callInfo );
KO_API void tolmoCallInfoSetGenericParams( TolmoCallInfo *callInfo, TolmoGenericParams genericParams );
/** @} */

/** The wire text: the address, the purpose, then all other parameters. @return new reference. @pre callInfo */
KO_API KoString tolmo___CallInfoEncode( TolmoCallInfo callInfo );

/**
 * Decodes exactly one item. The angle brackets are required; there is no display name.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoCallInfo tolmo___CallInfoTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
