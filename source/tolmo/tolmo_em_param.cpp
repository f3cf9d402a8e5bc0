/* Early-media parameters (RFC 5009). */
#include <tolmo/tolmo_em_param.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoEmParamOk( KoString emParam )
{
    KO_REQUIRE( emParam );
    return tolmo::IsWhole( emParam, tolmo::skip::EmParam );
}
