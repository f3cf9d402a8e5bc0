/* One item of an Alert-Info header: where another ring tone is (RFC 3261 section 20.4). */
#ifndef TOLMO_ALERT_INFO_H
#define TOLMO_ALERT_INFO_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of an alert info. */
typedef struct tolmo___AlertInfo *TolmoAlertInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoAlertInfoSort( void );
KO_API KoObj tolmoAlertInfoObj( TolmoAlertInfo alertInfo );
KO_API TolmoAlertInfo tolmoAlertInfoFrom( KoObj obj );
KO_API TolmoAlertInfo tolmoAlertInfoRetain( TolmoAlertInfo alertInfo );
KO_API void tolmoAlertInfoRelease( TolmoAlertInfo alertInfo );
KO_API KoInt tolmoAlertInfoCompare( TolmoAlertInfo a, TolmoAlertInfo b );
KO_API KoBool tolmoAlertInfoEquals( TolmoAlertInfo a, TolmoAlertInfo b );
KO_API KoString tolmoAlertInfoToString( TolmoAlertInfo alertInfo );
KO_API TolmoAlertInfo tolmoAlertInfoCreateFrom( TolmoAlertInfo source );
/** @} */

/**
 * Without parameters.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoAlertInfo tolmoAlertInfoCreate( KoString iri );

/** @name Address
 * Always there. The getter returns a new reference; what the setter gets is shared, the caller keeps its reference.
 * @param alertInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre alertInfo, for a setter then *alertInfo
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoAlertInfoIri( TolmoAlertInfo alertInfo );
KO_API void tolmoAlertInfoSetIri( TolmoAlertInfo *alertInfo, KoString iri );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. The getter returns a new reference; what the setter gets is shared, the caller keeps its
 * reference.
 * @param alertInfo for a setter: address of the caller's handle, which may be replaced.
 * @pre alertInfo, for a setter then *alertInfo
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoAlertInfoGenericParams( TolmoAlertInfo alertInfo );
KO_API void tolmoAlertInfoSetGenericParams( TolmoAlertInfo *alertInfo, TolmoGenericParams genericParams );
/** @} */

/** The wire text: the address and the parameters. @return new reference. @pre alertInfo */
KO_API KoString tolmo___AlertInfoEncode( TolmoAlertInfo alertInfo );

/**
 * Decodes exactly one item. The angle brackets are required; there is no display name.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoAlertInfo tolmo___AlertInfoTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
