/* The header To (RFC 3261 section 20.39). Header From is its twin. */
#include <tolmo/tolmo_header_to.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_epid.h>
#include <tolmo/tolmo_header_from.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_tag.h>

struct tolmo___HeaderTo {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    KoString tag;
    KoString epid;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderTo = tolmo___HeaderTo;
using AllFields =
    tolmo::Fields<&HeaderTo::iri, &HeaderTo::displayName, &HeaderTo::tag, &HeaderTo::epid, &HeaderTo::genericParams>;
static_assert( tolmo::namesAllFields<HeaderTo, AllFields> );

TOLMO_FREE( HeaderTo, hdr, AllFields )
TOLMO_COMPARE( HeaderTo, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( To )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_TO = TOLMO_SORT( "TOLMO_HEADER_TO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderTo, TOLMO_HEADER_TO )
TOLMO_CREATE_FROM( HeaderTo, AllFields )

static constexpr tolmo::NameId headerName = tolmo::KnownName( "To" );
static KoString tolmo___KosTo = nullptr;

namespace {

// The names of the parameters, for the encoder.
KoString kosTag = nullptr;
KoString kosEpid = nullptr;

} // namespace

void tolmo___HeaderToStartup( void )
{
    tolmo::Start( tolmo___KosTo, "To" );
    tolmo::Start( kosTag, "tag" );
    tolmo::Start( kosEpid, "epid" );
}

void tolmo___HeaderToShutdown( void )
{
    tolmo::Stop( tolmo___KosTo );
    tolmo::Stop( kosTag );
    tolmo::Stop( kosEpid );
}

TolmoHeaderTo tolmoHeaderToCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderTo>( &tolmo___sort_TOLMO_HEADER_TO, tolmo::Share( iri ) ).Leak();
}

TolmoHeaderTo tolmoHeaderToCreateFromHeaderFrom( TolmoHeaderFrom hdrFrom )
{
    KO_REQUIRE( hdrFrom );
    auto hdr = tolmo::CreateObject<HeaderTo>( &tolmo___sort_TOLMO_HEADER_TO );
    hdr.Get()->iri = tolmoHeaderFromIri( hdrFrom );
    hdr.Get()->displayName = tolmoHeaderFromDisplayName( hdrFrom );
    hdr.Get()->tag = tolmoHeaderFromTag( hdrFrom );
    hdr.Get()->epid = tolmoHeaderFromEpid( hdrFrom );
    hdr.Get()->genericParams = tolmoHeaderFromGenericParams( hdrFrom );
    return hdr.Leak();
}

KoString tolmoHeaderToIri( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderToSetIri( TolmoHeaderTo *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderToHasDisplayName( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderToDisplayName( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderToSetDisplayName( TolmoHeaderTo *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderToDelDisplayName( TolmoHeaderTo *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

KoBool tolmoHeaderToHasTag( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return hdr->tag != nullptr;
}

KoString tolmoHeaderToTag( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->tag );
}

void tolmoHeaderToSetTag( TolmoHeaderTo *hdr, KoString tag )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoTagOk( tag ) );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->tag, tolmo::Share( tag ) );
}

void tolmoHeaderToDelTag( TolmoHeaderTo *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->tag, {} );
}

KoBool tolmoHeaderToHasEpid( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return hdr->epid != nullptr;
}

KoString tolmoHeaderToEpid( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->epid );
}

void tolmoHeaderToSetEpid( TolmoHeaderTo *hdr, KoString epid )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoEpidOk( epid ) );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->epid, tolmo::Share( epid ) );
}

void tolmoHeaderToDelEpid( TolmoHeaderTo *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->epid, {} );
}

TolmoGenericParams tolmoHeaderToGenericParams( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderToSetGenericParams( TolmoHeaderTo *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderToCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderToEncode( TolmoHeaderTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::EncodeTaggedParty( hdr, kosTag, kosEpid ) );
}

namespace {

KoRef<TolmoHeaderTo> DecodeLine( tolmo::Text line )
{
    return tolmo::DecodeTaggedParty<HeaderTo>( line, &tolmo___sort_TOLMO_HEADER_TO );
}

KoRef<TolmoHeaderTo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( To, To )
