/* The header Retry-After (RFC 3261 section 20.33). */
#include <tolmo/tolmo_header_retry_after.h>

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_scalar.hpp>
#include <tolmo/tolmo_seconds.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderRetryAfter {
    ko___Obj head;
    KoInt deltaSeconds;
    KoInt duration; // -1: absent
    TolmoGenericParams genericParams;
};

namespace {

using HeaderRetryAfter = tolmo___HeaderRetryAfter;
using AllFields =
    tolmo::Fields<&HeaderRetryAfter::deltaSeconds, &HeaderRetryAfter::duration, &HeaderRetryAfter::genericParams>;
static_assert( tolmo::namesAllFields<HeaderRetryAfter, AllFields> );

TOLMO_FREE( HeaderRetryAfter, hdr, AllFields )
TOLMO_COMPARE( HeaderRetryAfter, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( RetryAfter )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_RETRY_AFTER =
    TOLMO_SORT( "TOLMO_HEADER_RETRY_AFTER", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderRetryAfter, TOLMO_HEADER_RETRY_AFTER )
TOLMO_CREATE_FROM( HeaderRetryAfter, AllFields )
TOLMO_HEADER_NAME( RetryAfter, RetryAfter, "Retry-After" )

TolmoHeaderRetryAfter tolmoHeaderRetryAfterCreate( KoInt deltaSeconds )
{
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    auto hdr = tolmo::CreateObject<HeaderRetryAfter>( &tolmo___sort_TOLMO_HEADER_RETRY_AFTER );
    hdr.Get()->deltaSeconds = deltaSeconds;
    hdr.Get()->duration = -1;
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr.Leak();
}

KoInt tolmoHeaderRetryAfterDeltaSeconds( TolmoHeaderRetryAfter hdr )
{
    KO_REQUIRE( hdr );
    return hdr->deltaSeconds;
}

void tolmoHeaderRetryAfterSetDeltaSeconds( TolmoHeaderRetryAfter *hdr, KoInt deltaSeconds )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRetryAfterCreateFrom );
    ( *hdr )->deltaSeconds = deltaSeconds;
}

KoBool tolmoHeaderRetryAfterHasDuration( TolmoHeaderRetryAfter hdr )
{
    KO_REQUIRE( hdr );
    return hdr->duration != -1;
}

KoInt tolmoHeaderRetryAfterDuration( TolmoHeaderRetryAfter hdr )
{
    KO_REQUIRE( hdr );
    return hdr->duration;
}

void tolmoHeaderRetryAfterSetDuration( TolmoHeaderRetryAfter *hdr, KoInt duration )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( duration ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRetryAfterCreateFrom );
    ( *hdr )->duration = duration;
}

void tolmoHeaderRetryAfterDelDuration( TolmoHeaderRetryAfter *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderRetryAfterCreateFrom );
    ( *hdr )->duration = -1;
}

TolmoGenericParams tolmoHeaderRetryAfterGenericParams( TolmoHeaderRetryAfter hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderRetryAfterSetGenericParams( TolmoHeaderRetryAfter *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderRetryAfterCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderRetryAfterEncode( TolmoHeaderRetryAfter hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.AddNumber( hdr->deltaSeconds );
    tolmo::AddSeconds( text, "duration", hdr->duration );
    tolmo::AddParams( text, hdr->genericParams, { tolmo::Hidden( hdr->duration != -1, "duration" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

bool TakeParam( tolmo::Walk &w, TolmoHeaderRetryAfter hdr )
{
    return tolmo::TakeSeconds( w, "duration", hdr->duration ) || tolmo::TakeGeneric( w, hdr->genericParams );
}

// delta-seconds [ LWS ] [ comment ] *( SEMI retry-param )
// The comment has no field. What no semicolon opens is ignored, a comment that is not closed included: that is meant.
KoRef<TolmoHeaderRetryAfter> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    KoInt deltaSeconds = 0;
    if ( !tolmo::TakeNumber( w, tolmoDeltaSecondsOk, deltaSeconds ) ) {
        return {};
    }
    auto hdr = tolmo::Adopt( tolmoHeaderRetryAfterCreate( deltaSeconds ) );
    w.Maybe( skip::Lws );
    w.Maybe( skip::Comment );
    const bool good = tolmo::TakeLeadingParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderRetryAfter>();
}

KoRef<TolmoHeaderRetryAfter> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( RetryAfter, RetryAfter )
