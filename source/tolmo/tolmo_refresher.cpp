/* Refreshers of a session (RFC 4028 section 4). */
#include <tolmo/tolmo_refresher.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoRefresherOk( KoString refresher )
{
    KO_REQUIRE( refresher );
    return tolmo::IsWhole( refresher, tolmo::skip::Refresher );
}

KoString tolmoRefresherNormalize( KoString refresher )
{
    KO_REQUIRE( tolmoRefresherOk( refresher ) );
    return tolmo::Lowered( refresher );
}
