/* Protocols of a Reason (RFC 3326 section 2). */
#include <tolmo/tolmo_reason_protocol.h>

#include <tolmo/tolmo_token.h>

KoBool tolmoReasonProtocolOk( KoString protocol )
{
    return tolmoTokenOk( protocol );
}
