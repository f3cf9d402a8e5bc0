/* Tags of From and To (RFC 3261 section 25.1). */
#include <tolmo/tolmo_tag.h>

#include <tolmo/tolmo_token.h>

KoBool tolmoTagOk( KoString tag )
{
    return tolmoTokenOk( tag );
}
