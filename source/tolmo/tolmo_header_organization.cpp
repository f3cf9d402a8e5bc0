/* The header Organization (RFC 3261 section 20.25). */
#include <tolmo/tolmo_header_organization.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_organization.h>

struct tolmo___HeaderOrganization {
    ko___Obj head;
    KoString organization; // in normal form
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderOrganization::organization>;
static_assert( tolmo::namesAllFields<tolmo___HeaderOrganization, AllFields> );

TOLMO_FREE( HeaderOrganization, hdr, AllFields )
TOLMO_COMPARE( HeaderOrganization, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Organization )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_ORGANIZATION =
    TOLMO_SORT( "TOLMO_HEADER_ORGANIZATION", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderOrganization, TOLMO_HEADER_ORGANIZATION )
TOLMO_CREATE_FROM( HeaderOrganization, AllFields )
TOLMO_HEADER_NAME( Organization, Organization, "Organization" )

// Only null is tested here: it is the normaliser that ends the process on text that is no organization.
TolmoHeaderOrganization tolmoHeaderOrganizationCreate( KoString organization )
{
    KO_REQUIRE( organization );
    auto hdr = tolmo::CreateObject<tolmo___HeaderOrganization>( &tolmo___sort_TOLMO_HEADER_ORGANIZATION );
    hdr.Get()->organization = tolmoOrganizationNormalize( organization );
    return hdr.Leak();
}

KoString tolmoHeaderOrganizationOrganization( TolmoHeaderOrganization hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->organization );
}

void tolmoHeaderOrganizationSetOrganization( TolmoHeaderOrganization *hdr, KoString organization )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( organization );
    auto normal = tolmo::Adopt( tolmoOrganizationNormalize( organization ) );
    tolmo::MakeUnique( hdr, tolmoHeaderOrganizationCreateFrom );
    tolmo::Store( ( *hdr )->organization, std::move( normal ) );
}

TolmoMessageHeader tolmoHeaderOrganizationEncode( TolmoHeaderOrganization hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->organization ) );
}

namespace {

KoRef<TolmoHeaderOrganization> DecodeLine( tolmo::Text line )
{
    const auto organization = line.Copy();
    return tolmo::Adopt( tolmoOrganizationOk( organization.Get() ) ? tolmoHeaderOrganizationCreate( organization.Get() )
                                                                   : nullptr );
}

KoRef<TolmoHeaderOrganization> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Organization, Organization )
