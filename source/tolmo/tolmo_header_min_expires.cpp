/* The header Min-Expires (RFC 3261 section 20.23). */
#include <tolmo/tolmo_header_min_expires.h>

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_header.hpp>

struct tolmo___HeaderMinExpires {
    ko___Obj head;
    KoInt deltaSeconds;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderMinExpires::deltaSeconds>;
static_assert( tolmo::namesAllFields<tolmo___HeaderMinExpires, AllFields> );

TOLMO_COMPARE( HeaderMinExpires, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( MinExpires )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_MIN_EXPIRES =
    TOLMO_SORT( "TOLMO_HEADER_MIN_EXPIRES", nullptr, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderMinExpires, TOLMO_HEADER_MIN_EXPIRES )
TOLMO_CREATE_FROM( HeaderMinExpires, AllFields )
TOLMO_HEADER_NAME( MinExpires, MinExpires, "Min-Expires" )

TolmoHeaderMinExpires tolmoHeaderMinExpiresCreate( KoInt deltaSeconds )
{
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    auto hdr = tolmo::CreateObject<tolmo___HeaderMinExpires>( &tolmo___sort_TOLMO_HEADER_MIN_EXPIRES );
    hdr.Get()->deltaSeconds = deltaSeconds;
    return hdr.Leak();
}

KoInt tolmoHeaderMinExpiresDeltaSeconds( TolmoHeaderMinExpires hdr )
{
    KO_REQUIRE( hdr );
    return hdr->deltaSeconds;
}

void tolmoHeaderMinExpiresSetDeltaSeconds( TolmoHeaderMinExpires *hdr, KoInt deltaSeconds )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    tolmo::MakeUnique( hdr, tolmoHeaderMinExpiresCreateFrom );
    ( *hdr )->deltaSeconds = deltaSeconds;
}

TolmoMessageHeader tolmoHeaderMinExpiresEncode( TolmoHeaderMinExpires hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( tolmo___DeltaSecondsEncode( hdr->deltaSeconds ) ) );
}

namespace {

// A whole line of digits; a minus sign passes in front of 0.
KoRef<TolmoHeaderMinExpires> DecodeLine( tolmo::Text line )
{
    const KoInt deltaSeconds = tolmo___DeltaSecondsTryDecode( line.chs, line.length );
    return tolmo::Adopt( tolmoDeltaSecondsOk( deltaSeconds ) ? tolmoHeaderMinExpiresCreate( deltaSeconds ) : nullptr );
}

KoRef<TolmoHeaderMinExpires> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( MinExpires, MinExpires )
