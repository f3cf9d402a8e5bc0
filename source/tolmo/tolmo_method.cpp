/* Methods (RFC 3261 section 25.1). */
#include <tolmo/tolmo_method.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoMethodOk( KoString method )
{
    KO_REQUIRE( method );
    return tolmo::IsWhole( method, tolmo::skip::Method );
}
