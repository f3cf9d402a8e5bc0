/* The header User-Agent (RFC 3261 section 20.41). */
#include <tolmo/tolmo_header_user_agent.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_skip.hpp>
#include <tolmo/tolmo_user_agent.h>

struct tolmo___HeaderUserAgent {
    ko___Obj head;
    KoString userAgent;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderUserAgent::userAgent>;
static_assert( tolmo::namesAllFields<tolmo___HeaderUserAgent, AllFields> );

TOLMO_FREE( HeaderUserAgent, hdr, AllFields )
TOLMO_COMPARE( HeaderUserAgent, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( UserAgent )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_USER_AGENT =
    TOLMO_SORT( "TOLMO_HEADER_USER_AGENT", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderUserAgent, TOLMO_HEADER_USER_AGENT )
TOLMO_CREATE_FROM( HeaderUserAgent, AllFields )
TOLMO_HEADER_NAME( UserAgent, UserAgent, "User-Agent" )

namespace {

// Takes over a string that is valid.
KoRef<TolmoHeaderUserAgent> Create( KoRef<KoString> userAgent )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderUserAgent>( &tolmo___sort_TOLMO_HEADER_USER_AGENT );
    hdr.Get()->userAgent = userAgent.Leak();
    return hdr;
}

} // namespace

TolmoHeaderUserAgent tolmoHeaderUserAgentCreate( KoString userAgent )
{
    KO_REQUIRE( tolmoUserAgentOk( userAgent ) );
    return Create( tolmo::Share( userAgent ) ).Leak();
}

KoString tolmoHeaderUserAgentUserAgent( TolmoHeaderUserAgent hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->userAgent );
}

void tolmoHeaderUserAgentSetUserAgent( TolmoHeaderUserAgent *hdr, KoString userAgent )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoUserAgentOk( userAgent ) );
    tolmo::MakeUnique( hdr, tolmoHeaderUserAgentCreateFrom );
    tolmo::Store( ( *hdr )->userAgent, tolmo::Share( userAgent ) );
}

TolmoMessageHeader tolmoHeaderUserAgentEncode( TolmoHeaderUserAgent hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->userAgent ) );
}

namespace {

// The line is kept as it stands.
KoRef<TolmoHeaderUserAgent> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    return w.Need( tolmo::skip::UserAgent ) && w.AtEnd() ? Create( line.Copy() ) : KoRef<TolmoHeaderUserAgent>();
}

KoRef<TolmoHeaderUserAgent> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( UserAgent, UserAgent )
