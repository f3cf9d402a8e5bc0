/* Branches of a Via (RFC 3261 section 25.1). */
#include <tolmo/tolmo_branch.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoBranchOk( KoString branch )
{
    KO_REQUIRE( branch );
    return tolmo::IsWhole( branch, tolmo::skip::Branch );
}
