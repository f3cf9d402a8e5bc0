/* Causes of a Reason (RFC 3326 section 2). */
#include <tolmo/tolmo_reason_cause.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoReasonCauseOk( KoString cause )
{
    KO_REQUIRE( cause );
    return tolmo::IsWhole( cause, tolmo::skip::ReasonCause );
}
