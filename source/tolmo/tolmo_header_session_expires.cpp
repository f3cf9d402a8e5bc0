/* The header Session-Expires (RFC 4028 section 4). */
#include <tolmo/tolmo_header_session_expires.h>

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_refresher.h>
#include <tolmo/tolmo_scalar.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderSessionExpires {
    ko___Obj head;
    KoInt deltaSeconds;
    KoString refresher; // in small letters
    TolmoGenericParams genericParams;
};

namespace {

using HeaderSessionExpires = tolmo___HeaderSessionExpires;
using AllFields = tolmo::Fields<&HeaderSessionExpires::deltaSeconds, &HeaderSessionExpires::refresher,
                                &HeaderSessionExpires::genericParams>;
static_assert( tolmo::namesAllFields<HeaderSessionExpires, AllFields> );

TOLMO_FREE( HeaderSessionExpires, hdr, AllFields )
TOLMO_COMPARE( HeaderSessionExpires, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( SessionExpires )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_SESSION_EXPIRES =
    TOLMO_SORT( "TOLMO_HEADER_SESSION_EXPIRES", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderSessionExpires, TOLMO_HEADER_SESSION_EXPIRES )
TOLMO_CREATE_FROM( HeaderSessionExpires, AllFields )

static constexpr tolmo::NameId headerName = tolmo::KnownName( "Session-Expires" );
static KoString tolmo___KosSessionExpires = nullptr;
static KoString kosRefresher = nullptr; // the name of the parameter, for the encoder

void tolmo___HeaderSessionExpiresStartup( void )
{
    tolmo::Start( tolmo___KosSessionExpires, "Session-Expires" );
    tolmo::Start( kosRefresher, "refresher" );
}

void tolmo___HeaderSessionExpiresShutdown( void )
{
    tolmo::Stop( tolmo___KosSessionExpires );
    tolmo::Stop( kosRefresher );
}

TolmoHeaderSessionExpires tolmoHeaderSessionExpiresCreate( KoInt deltaSeconds )
{
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    auto hdr = tolmo::CreateObject<HeaderSessionExpires>( &tolmo___sort_TOLMO_HEADER_SESSION_EXPIRES );
    hdr.Get()->deltaSeconds = deltaSeconds;
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr.Leak();
}

KoInt tolmoHeaderSessionExpiresDeltaSeconds( TolmoHeaderSessionExpires hdr )
{
    KO_REQUIRE( hdr );
    return hdr->deltaSeconds;
}

void tolmoHeaderSessionExpiresSetDeltaSeconds( TolmoHeaderSessionExpires *hdr, KoInt deltaSeconds )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionExpiresCreateFrom );
    ( *hdr )->deltaSeconds = deltaSeconds;
}

KoBool tolmoHeaderSessionExpiresHasRefresher( TolmoHeaderSessionExpires hdr )
{
    KO_REQUIRE( hdr );
    return hdr->refresher != nullptr;
}

KoString tolmoHeaderSessionExpiresRefresher( TolmoHeaderSessionExpires hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->refresher );
}

void tolmoHeaderSessionExpiresSetRefresher( TolmoHeaderSessionExpires *hdr, KoString refresher )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoRefresherOk( refresher ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionExpiresCreateFrom );
    tolmo::Store( ( *hdr )->refresher, tolmo::Adopt( tolmoRefresherNormalize( refresher ) ) );
}

void tolmoHeaderSessionExpiresDelRefresher( TolmoHeaderSessionExpires *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionExpiresCreateFrom );
    tolmo::Store( ( *hdr )->refresher, {} );
}

TolmoGenericParams tolmoHeaderSessionExpiresGenericParams( TolmoHeaderSessionExpires hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderSessionExpiresSetGenericParams( TolmoHeaderSessionExpires *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionExpiresCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderSessionExpiresEncode( TolmoHeaderSessionExpires hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.AddNumber( hdr->deltaSeconds );
    if ( hdr->refresher ) {
        tolmo::AddParamName( text, kosRefresher );
        text.Add( hdr->refresher );
    }
    tolmo::AddParams( text, hdr->genericParams, { tolmo::Hidden( hdr->refresher, "refresher" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

bool TakeParam( tolmo::Walk &w, TolmoHeaderSessionExpires hdr )
{
    return tolmo::TakeLifted(
               w, "refresher", skip::Refresher,
               [=]( tolmo::Text value ) { return tolmo::StoreGood( hdr->refresher, value.CopyLowered() ); } ) ||
           tolmo::TakeGeneric( w, hdr->genericParams );
}

// delta-seconds *( SEMI se-params )
// What no semicolon opens is ignored, and that is meant.
KoRef<TolmoHeaderSessionExpires> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    KoInt deltaSeconds = 0;
    if ( !tolmo::TakeNumber( w, tolmoDeltaSecondsOk, deltaSeconds ) ) {
        return {};
    }
    auto hdr = tolmo::Adopt( tolmoHeaderSessionExpiresCreate( deltaSeconds ) );
    const bool good = tolmo::TakeLeadingParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderSessionExpires>();
}

KoRef<TolmoHeaderSessionExpires> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( SessionExpires, SessionExpires )
