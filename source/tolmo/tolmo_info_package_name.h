/* Names of info packages (RFC 6086 section 9). */
#ifndef TOLMO_INFO_PACKAGE_NAME_H
#define TOLMO_INFO_PACKAGE_NAME_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a name of an info package.
 *
 *     Info-package-name = token
 *
 * @param infoPackageName shared, the caller keeps its reference.
 * @pre token
 */
KO_API KoBool tolmoInfoPackageNameOk( KoString infoPackageName );

/**
 * The normal form of a name of an info package: small letters.
 *
 * @param infoPackageName shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoTokenOk( token )
 */
KO_API KoString tolmoInfoPackageNameNormalize( KoString infoPackageName );

KO_END_DECLS

#endif
