/* Organizations (RFC 3261 section 25.1). */
#include <tolmo/tolmo_organization.h>

#include <tolmo/tolmo_text.hpp>

KoBool tolmoOrganizationOk( KoString organization )
{
    KO_REQUIRE( organization );
    return tolmo::IsFreeText( organization );
}

KoString tolmoOrganizationNormalize( KoString organization )
{
    KO_REQUIRE( organization );
    const KoString words = tolmo::TryNormalizeFreeText( organization );
    KO_REQUIRE_MESSAGE( words, "organization invalid", "tolmoOrganizationOk( organization )" );
    return words;
}
