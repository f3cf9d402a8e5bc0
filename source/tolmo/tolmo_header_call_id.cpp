/* The header Call-Id (RFC 3261 section 20.8). */
#include <tolmo/tolmo_header_call_id.h>

#include <tolmo/tolmo_call_id.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_skip.hpp>

struct tolmo___HeaderCallId {
    ko___Obj head;
    KoString callId;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderCallId::callId>;
static_assert( tolmo::namesAllFields<tolmo___HeaderCallId, AllFields> );

TOLMO_FREE( HeaderCallId, hdr, AllFields )
TOLMO_COMPARE( HeaderCallId, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( CallId )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_CALL_ID =
    TOLMO_SORT( "TOLMO_HEADER_CALL_ID", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderCallId, TOLMO_HEADER_CALL_ID )
TOLMO_CREATE_FROM( HeaderCallId, AllFields )
TOLMO_HEADER_NAME( CallId, CallId, "Call-Id" )

namespace {

// Takes over a string that is valid.
KoRef<TolmoHeaderCallId> Create( KoRef<KoString> callId )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderCallId>( &tolmo___sort_TOLMO_HEADER_CALL_ID );
    hdr.Get()->callId = callId.Leak();
    return hdr;
}

} // namespace

TolmoHeaderCallId tolmoHeaderCallIdCreate( KoString callId )
{
    KO_REQUIRE( tolmoCallIdOk( callId ) );
    return Create( tolmo::Share( callId ) ).Leak();
}

KoString tolmoHeaderCallIdCallId( TolmoHeaderCallId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->callId );
}

void tolmoHeaderCallIdSetCallId( TolmoHeaderCallId *hdr, KoString callId )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoCallIdOk( callId ) );
    tolmo::MakeUnique( hdr, tolmoHeaderCallIdCreateFrom );
    tolmo::Store( ( *hdr )->callId, tolmo::Share( callId ) );
}

TolmoMessageHeader tolmoHeaderCallIdEncode( TolmoHeaderCallId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->callId ) );
}

namespace {

// The line is kept as it stands.
KoRef<TolmoHeaderCallId> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    return w.Need( tolmo::skip::CallId ) && w.AtEnd() ? Create( line.Copy() ) : KoRef<TolmoHeaderCallId>();
}

KoRef<TolmoHeaderCallId> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( CallId, CallId )
