/* The header P-Called-Party-Id (RFC 7315 section 4.2). */
#include <tolmo/tolmo_header_p_called_party_id.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_iri.h>

struct tolmo___HeaderPCalledPartyId {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    TolmoGenericParams genericParams;
};

namespace {

using HeaderPCalledPartyId = tolmo___HeaderPCalledPartyId;
using AllFields =
    tolmo::Fields<&HeaderPCalledPartyId::iri, &HeaderPCalledPartyId::displayName, &HeaderPCalledPartyId::genericParams>;
static_assert( tolmo::namesAllFields<HeaderPCalledPartyId, AllFields> );

TOLMO_FREE( HeaderPCalledPartyId, hdr, AllFields )
TOLMO_COMPARE( HeaderPCalledPartyId, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( PCalledPartyId )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_P_CALLED_PARTY_ID =
    TOLMO_SORT( "TOLMO_HEADER_P_CALLED_PARTY_ID", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderPCalledPartyId, TOLMO_HEADER_P_CALLED_PARTY_ID )
TOLMO_CREATE_FROM( HeaderPCalledPartyId, AllFields )
TOLMO_HEADER_NAME( PCalledPartyId, PCalledPartyId, "P-Called-Party-Id" )

TolmoHeaderPCalledPartyId tolmoHeaderPCalledPartyIdCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderPCalledPartyId>( &tolmo___sort_TOLMO_HEADER_P_CALLED_PARTY_ID, tolmo::Share( iri ) )
        .Leak();
}

KoString tolmoHeaderPCalledPartyIdIri( TolmoHeaderPCalledPartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderPCalledPartyIdSetIri( TolmoHeaderPCalledPartyId *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderPCalledPartyIdCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderPCalledPartyIdHasDisplayName( TolmoHeaderPCalledPartyId hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderPCalledPartyIdDisplayName( TolmoHeaderPCalledPartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderPCalledPartyIdSetDisplayName( TolmoHeaderPCalledPartyId *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderPCalledPartyIdCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderPCalledPartyIdDelDisplayName( TolmoHeaderPCalledPartyId *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderPCalledPartyIdCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

TolmoGenericParams tolmoHeaderPCalledPartyIdGenericParams( TolmoHeaderPCalledPartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderPCalledPartyIdSetGenericParams( TolmoHeaderPCalledPartyId *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderPCalledPartyIdCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderPCalledPartyIdEncode( TolmoHeaderPCalledPartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::EncodeParty( hdr ) );
}

namespace {

KoRef<TolmoHeaderPCalledPartyId> DecodeLine( tolmo::Text line )
{
    return tolmo::DecodeParty<HeaderPCalledPartyId>( line, &tolmo___sort_TOLMO_HEADER_P_CALLED_PARTY_ID );
}

KoRef<TolmoHeaderPCalledPartyId> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( PCalledPartyId, PCalledPartyId )
