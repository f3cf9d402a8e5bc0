/* Resource values (RFC 4412 section 3.1). */
#include <tolmo/tolmo_rvalue.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoRvalueOk( KoString rvalue )
{
    KO_REQUIRE( rvalue );
    return tolmo::IsWhole( rvalue, tolmo::skip::Rvalue );
}
