/* One info package: its name, and parameters (RFC 6086 section 9). */
#ifndef TOLMO_INFO_PACKAGE_TYPE_H
#define TOLMO_INFO_PACKAGE_TYPE_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of an info package. */
typedef struct tolmo___InfoPackageType *TolmoInfoPackageType;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoInfoPackageTypeSort( void );
KO_API KoObj tolmoInfoPackageTypeObj( TolmoInfoPackageType type );
KO_API TolmoInfoPackageType tolmoInfoPackageTypeFrom( KoObj obj );
KO_API TolmoInfoPackageType tolmoInfoPackageTypeRetain( TolmoInfoPackageType type );
KO_API void tolmoInfoPackageTypeRelease( TolmoInfoPackageType type );
KO_API KoInt tolmoInfoPackageTypeCompare( TolmoInfoPackageType a, TolmoInfoPackageType b );
KO_API KoBool tolmoInfoPackageTypeEquals( TolmoInfoPackageType a, TolmoInfoPackageType b );
KO_API KoString tolmoInfoPackageTypeToString( TolmoInfoPackageType type );
KO_API TolmoInfoPackageType tolmoInfoPackageTypeCreateFrom( TolmoInfoPackageType source );
/** @} */

/**
 * A new package without parameters.
 *
 * @param infoPackageName shared, the caller keeps its reference; its normal form is stored.
 * @return new reference.
 * @pre tolmoInfoPackageNameOk( infoPackageName )
 */
KO_API TolmoInfoPackageType tolmoInfoPackageTypeCreate( KoString infoPackageName );

/** @name Name
 * Always there, in small letters. The getter returns a new reference.
 * @param type for a setter: address of the caller's handle, which may be replaced.
 * @param name shared, the caller keeps its reference; its normal form is stored.
 * @pre type, for a setter then *type
 * @pre tolmoInfoPackageNameOk( name ) @{ */
KO_API KoString tolmoInfoPackageTypeName( TolmoInfoPackageType type );
KO_API void tolmoInfoPackageTypeSetName( TolmoInfoPackageType *type, KoString name );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty. The getter returns a new reference.
 * @param type for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre type, for the setter then *type
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoInfoPackageTypeGenericParams( TolmoInfoPackageType type );
KO_API void tolmoInfoPackageTypeSetGenericParams( TolmoInfoPackageType *type, TolmoGenericParams genericParams );
/** @} */

/** The wire text.
 * @return new reference. @pre type */
KO_API KoString tolmo___InfoPackageTypeEncode( TolmoInfoPackageType type );

/**
 * Decodes exactly one package.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoInfoPackageType tolmo___InfoPackageTypeTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
