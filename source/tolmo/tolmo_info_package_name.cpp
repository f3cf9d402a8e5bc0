/* Names of info packages (RFC 6086 section 9). */
#include <tolmo/tolmo_info_package_name.h>

#include <tolmo/tolmo_token.h>

KoBool tolmoInfoPackageNameOk( KoString infoPackageName )
{
    return tolmoTokenOk( infoPackageName );
}

KoString tolmoInfoPackageNameNormalize( KoString infoPackageName )
{
    return tolmoTokenNormalize( infoPackageName );
}
