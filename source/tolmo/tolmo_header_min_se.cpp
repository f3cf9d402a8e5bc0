/* The header Min-SE (RFC 4028 section 5). */
#include <tolmo/tolmo_header_min_se.h>

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_scalar.hpp>

struct tolmo___HeaderMinSe {
    ko___Obj head;
    KoInt deltaSeconds;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderMinSe = tolmo___HeaderMinSe;
using AllFields = tolmo::Fields<&HeaderMinSe::deltaSeconds, &HeaderMinSe::genericParams>;
static_assert( tolmo::namesAllFields<HeaderMinSe, AllFields> );

TOLMO_FREE( HeaderMinSe, hdr, AllFields )
TOLMO_COMPARE( HeaderMinSe, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( MinSe )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_MIN_SE = TOLMO_SORT( "TOLMO_HEADER_MIN_SE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderMinSe, TOLMO_HEADER_MIN_SE )
TOLMO_CREATE_FROM( HeaderMinSe, AllFields )
TOLMO_HEADER_NAME( MinSe, MinSe, "Min-Se" )

TolmoHeaderMinSe tolmoHeaderMinSeCreate( KoInt deltaSeconds )
{
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    auto hdr = tolmo::CreateObject<HeaderMinSe>( &tolmo___sort_TOLMO_HEADER_MIN_SE );
    hdr.Get()->deltaSeconds = deltaSeconds;
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr.Leak();
}

KoInt tolmoHeaderMinSeDeltaSeconds( TolmoHeaderMinSe hdr )
{
    KO_REQUIRE( hdr );
    return hdr->deltaSeconds;
}

void tolmoHeaderMinSeSetDeltaSeconds( TolmoHeaderMinSe *hdr, KoInt deltaSeconds )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    tolmo::MakeUnique( hdr, tolmoHeaderMinSeCreateFrom );
    ( *hdr )->deltaSeconds = deltaSeconds;
}

TolmoGenericParams tolmoHeaderMinSeGenericParams( TolmoHeaderMinSe hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderMinSeSetGenericParams( TolmoHeaderMinSe *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderMinSeCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderMinSeEncode( TolmoHeaderMinSe hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.AddNumber( hdr->deltaSeconds );
    tolmo::AddParams( text, hdr->genericParams, {} );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

// delta-seconds generic-params
// What no semicolon opens is ignored, and that is meant.
KoRef<TolmoHeaderMinSe> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    KoInt deltaSeconds = 0;
    if ( !tolmo::TakeNumber( w, tolmoDeltaSecondsOk, deltaSeconds ) ) {
        return {};
    }
    auto hdr = tolmo::Adopt( tolmoHeaderMinSeCreate( deltaSeconds ) );
    const bool good = tolmo::TakeLeadingParams( w, [&] { return tolmo::TakeGeneric( w, hdr.Get()->genericParams ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderMinSe>();
}

KoRef<TolmoHeaderMinSe> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( MinSe, MinSe )
