/* The header Max-Forwards (RFC 3261 section 20.22). */
#include <tolmo/tolmo_header_max_forwards.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_max_forwards.h>

struct tolmo___HeaderMaxForwards {
    ko___Obj head;
    KoInt maxForwards;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderMaxForwards::maxForwards>;
static_assert( tolmo::namesAllFields<tolmo___HeaderMaxForwards, AllFields> );

TOLMO_COMPARE( HeaderMaxForwards, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( MaxForwards )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_MAX_FORWARDS =
    TOLMO_SORT( "TOLMO_HEADER_MAX_FORWARDS", nullptr, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderMaxForwards, TOLMO_HEADER_MAX_FORWARDS )
TOLMO_CREATE_FROM( HeaderMaxForwards, AllFields )
TOLMO_HEADER_NAME( MaxForwards, MaxForwards, "Max-Forwards" )

TolmoHeaderMaxForwards tolmoHeaderMaxForwardsCreate( KoInt maxForwards )
{
    KO_REQUIRE( tolmoMaxForwardsOk( maxForwards ) );
    auto hdr = tolmo::CreateObject<tolmo___HeaderMaxForwards>( &tolmo___sort_TOLMO_HEADER_MAX_FORWARDS );
    hdr.Get()->maxForwards = maxForwards;
    return hdr.Leak();
}

KoInt tolmoHeaderMaxForwardsMaxForwards( TolmoHeaderMaxForwards hdr )
{
    KO_REQUIRE( hdr );
    return hdr->maxForwards;
}

void tolmoHeaderMaxForwardsSetMaxForwards( TolmoHeaderMaxForwards *hdr, KoInt maxForwards )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoMaxForwardsOk( maxForwards ) );
    tolmo::MakeUnique( hdr, tolmoHeaderMaxForwardsCreateFrom );
    ( *hdr )->maxForwards = maxForwards;
}

TolmoMessageHeader tolmoHeaderMaxForwardsEncode( TolmoHeaderMaxForwards hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( koFormatEncodeInt( hdr->maxForwards, 10, 0, 0 ) ) );
}

namespace {

// A whole line of digits; a minus sign passes in front of 0.
KoRef<TolmoHeaderMaxForwards> DecodeLine( tolmo::Text line )
{
    KoInt value = 0;
    KoInt consumed = 0;
    if ( !koFormatTryDecodeIntChars( line.chs, line.length, 10, &value, &consumed ) || consumed != line.length ||
         !tolmoMaxForwardsOk( value ) ) {
        return {};
    }
    return tolmo::Adopt( tolmoHeaderMaxForwardsCreate( value ) );
}

KoRef<TolmoHeaderMaxForwards> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( MaxForwards, MaxForwards )
