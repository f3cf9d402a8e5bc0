/* The header From (RFC 3261 section 20.20). Header To is its twin. */
#include <tolmo/tolmo_header_from.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_epid.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_header_to.h>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_tag.h>

struct tolmo___HeaderFrom {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    KoString tag;
    KoString epid;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderFrom = tolmo___HeaderFrom;
using AllFields = tolmo::Fields<&HeaderFrom::iri, &HeaderFrom::displayName, &HeaderFrom::tag, &HeaderFrom::epid,
                                &HeaderFrom::genericParams>;
static_assert( tolmo::namesAllFields<HeaderFrom, AllFields> );

TOLMO_FREE( HeaderFrom, hdr, AllFields )
TOLMO_COMPARE( HeaderFrom, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( From )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_FROM = TOLMO_SORT( "TOLMO_HEADER_FROM", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderFrom, TOLMO_HEADER_FROM )
TOLMO_CREATE_FROM( HeaderFrom, AllFields )

static constexpr tolmo::NameId headerName = tolmo::KnownName( "From" );
static KoString tolmo___KosFrom = nullptr;

namespace {

// The names of the parameters, for the encoder.
KoString kosTag = nullptr;
KoString kosEpid = nullptr;

} // namespace

void tolmo___HeaderFromStartup( void )
{
    tolmo::Start( tolmo___KosFrom, "From" );
    tolmo::Start( kosTag, "tag" );
    tolmo::Start( kosEpid, "epid" );
}

void tolmo___HeaderFromShutdown( void )
{
    tolmo::Stop( tolmo___KosFrom );
    tolmo::Stop( kosTag );
    tolmo::Stop( kosEpid );
}

TolmoHeaderFrom tolmoHeaderFromCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderFrom>( &tolmo___sort_TOLMO_HEADER_FROM, tolmo::Share( iri ) ).Leak();
}

TolmoHeaderFrom tolmoHeaderFromCreateFromHeaderTo( TolmoHeaderTo hdrTo )
{
    KO_REQUIRE( hdrTo );
    auto hdr = tolmo::CreateObject<HeaderFrom>( &tolmo___sort_TOLMO_HEADER_FROM );
    hdr.Get()->iri = tolmoHeaderToIri( hdrTo );
    hdr.Get()->displayName = tolmoHeaderToDisplayName( hdrTo );
    hdr.Get()->tag = tolmoHeaderToTag( hdrTo );
    hdr.Get()->epid = tolmoHeaderToEpid( hdrTo );
    hdr.Get()->genericParams = tolmoHeaderToGenericParams( hdrTo );
    return hdr.Leak();
}

KoString tolmoHeaderFromIri( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderFromSetIri( TolmoHeaderFrom *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderFromHasDisplayName( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderFromDisplayName( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderFromSetDisplayName( TolmoHeaderFrom *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderFromDelDisplayName( TolmoHeaderFrom *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

KoBool tolmoHeaderFromHasTag( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return hdr->tag != nullptr;
}

KoString tolmoHeaderFromTag( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->tag );
}

void tolmoHeaderFromSetTag( TolmoHeaderFrom *hdr, KoString tag )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoTagOk( tag ) );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->tag, tolmo::Share( tag ) );
}

void tolmoHeaderFromDelTag( TolmoHeaderFrom *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->tag, {} );
}

KoBool tolmoHeaderFromHasEpid( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return hdr->epid != nullptr;
}

KoString tolmoHeaderFromEpid( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->epid );
}

void tolmoHeaderFromSetEpid( TolmoHeaderFrom *hdr, KoString epid )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoEpidOk( epid ) );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->epid, tolmo::Share( epid ) );
}

void tolmoHeaderFromDelEpid( TolmoHeaderFrom *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->epid, {} );
}

TolmoGenericParams tolmoHeaderFromGenericParams( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderFromSetGenericParams( TolmoHeaderFrom *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderFromCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderFromEncode( TolmoHeaderFrom hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::EncodeTaggedParty( hdr, kosTag, kosEpid ) );
}

namespace {

KoRef<TolmoHeaderFrom> DecodeLine( tolmo::Text line )
{
    return tolmo::DecodeTaggedParty<HeaderFrom>( line, &tolmo___sort_TOLMO_HEADER_FROM );
}

KoRef<TolmoHeaderFrom> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( From, From )
