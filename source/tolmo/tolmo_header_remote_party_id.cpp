/* The header Remote-Party-Id (draft-ietf-sip-privacy-04 section 5). */
#include <tolmo/tolmo_header_remote_party_id.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_iri.h>

struct tolmo___HeaderRemotePartyId {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    TolmoGenericParams genericParams;
};

namespace {

using HeaderRemotePartyId = tolmo___HeaderRemotePartyId;
using AllFields =
    tolmo::Fields<&HeaderRemotePartyId::iri, &HeaderRemotePartyId::displayName, &HeaderRemotePartyId::genericParams>;
static_assert( tolmo::namesAllFields<HeaderRemotePartyId, AllFields> );

TOLMO_FREE( HeaderRemotePartyId, hdr, AllFields )
TOLMO_COMPARE( HeaderRemotePartyId, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( RemotePartyId )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_REMOTE_PARTY_ID =
    TOLMO_SORT( "TOLMO_HEADER_REMOTE_PARTY_ID", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderRemotePartyId, TOLMO_HEADER_REMOTE_PARTY_ID )
TOLMO_CREATE_FROM( HeaderRemotePartyId, AllFields )
TOLMO_HEADER_NAME( RemotePartyId, RemotePartyId, "Remote-Party-Id" )

TolmoHeaderRemotePartyId tolmoHeaderRemotePartyIdCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderRemotePartyId>( &tolmo___sort_TOLMO_HEADER_REMOTE_PARTY_ID, tolmo::Share( iri ) )
        .Leak();
}

KoString tolmoHeaderRemotePartyIdIri( TolmoHeaderRemotePartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderRemotePartyIdSetIri( TolmoHeaderRemotePartyId *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRemotePartyIdCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderRemotePartyIdHasDisplayName( TolmoHeaderRemotePartyId hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderRemotePartyIdDisplayName( TolmoHeaderRemotePartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderRemotePartyIdSetDisplayName( TolmoHeaderRemotePartyId *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRemotePartyIdCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderRemotePartyIdDelDisplayName( TolmoHeaderRemotePartyId *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderRemotePartyIdCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

TolmoGenericParams tolmoHeaderRemotePartyIdGenericParams( TolmoHeaderRemotePartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderRemotePartyIdSetGenericParams( TolmoHeaderRemotePartyId *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderRemotePartyIdCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderRemotePartyIdEncode( TolmoHeaderRemotePartyId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::EncodeParty( hdr ) );
}

namespace {

KoRef<TolmoHeaderRemotePartyId> DecodeLine( tolmo::Text line )
{
    return tolmo::DecodeParty<HeaderRemotePartyId>( line, &tolmo___sort_TOLMO_HEADER_REMOTE_PARTY_ID );
}

KoRef<TolmoHeaderRemotePartyId> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( RemotePartyId, RemotePartyId )
