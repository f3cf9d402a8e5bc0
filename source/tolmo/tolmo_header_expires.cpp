/* The header Expires (RFC 3261 section 20.19). */
#include <tolmo/tolmo_header_expires.h>

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_header.hpp>

struct tolmo___HeaderExpires {
    ko___Obj head;
    KoInt deltaSeconds;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderExpires::deltaSeconds>;
static_assert( tolmo::namesAllFields<tolmo___HeaderExpires, AllFields> );

TOLMO_COMPARE( HeaderExpires, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Expires )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_EXPIRES =
    TOLMO_SORT( "TOLMO_HEADER_EXPIRES", nullptr, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderExpires, TOLMO_HEADER_EXPIRES )
TOLMO_CREATE_FROM( HeaderExpires, AllFields )
TOLMO_HEADER_NAME( Expires, Expires, "Expires" )

TolmoHeaderExpires tolmoHeaderExpiresCreate( KoInt deltaSeconds )
{
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    auto hdr = tolmo::CreateObject<tolmo___HeaderExpires>( &tolmo___sort_TOLMO_HEADER_EXPIRES );
    hdr.Get()->deltaSeconds = deltaSeconds;
    return hdr.Leak();
}

KoInt tolmoHeaderExpiresDeltaSeconds( TolmoHeaderExpires hdr )
{
    KO_REQUIRE( hdr );
    return hdr->deltaSeconds;
}

void tolmoHeaderExpiresSetDeltaSeconds( TolmoHeaderExpires *hdr, KoInt deltaSeconds )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    tolmo::MakeUnique( hdr, tolmoHeaderExpiresCreateFrom );
    ( *hdr )->deltaSeconds = deltaSeconds;
}

TolmoMessageHeader tolmoHeaderExpiresEncode( TolmoHeaderExpires hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( tolmo___DeltaSecondsEncode( hdr->deltaSeconds ) ) );
}

namespace {

// A whole line of digits; a minus sign passes in front of 0.
KoRef<TolmoHeaderExpires> DecodeLine( tolmo::Text line )
{
    const KoInt deltaSeconds = tolmo___DeltaSecondsTryDecode( line.chs, line.length );
    return tolmo::Adopt( tolmoDeltaSecondsOk( deltaSeconds ) ? tolmoHeaderExpiresCreate( deltaSeconds ) : nullptr );
}

KoRef<TolmoHeaderExpires> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Expires, Expires )
