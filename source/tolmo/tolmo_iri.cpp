/* Resource identifiers (RFC 3987). */
#include <tolmo/tolmo_iri.h>

#include <identifier/ulm.h>

KoBool tolmoIriOk( KoString iri )
{
    KO_REQUIRE( iri );
    return ulmGensValidatePart( 0, iri );
}
