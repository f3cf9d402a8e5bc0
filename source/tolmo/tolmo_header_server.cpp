/* The header Server (RFC 3261 section 20.35). */
#include <tolmo/tolmo_header_server.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_server.h>
#include <tolmo/tolmo_skip.hpp>

struct tolmo___HeaderServer {
    ko___Obj head;
    KoString server;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderServer::server>;
static_assert( tolmo::namesAllFields<tolmo___HeaderServer, AllFields> );

TOLMO_FREE( HeaderServer, hdr, AllFields )
TOLMO_COMPARE( HeaderServer, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Server )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_SERVER = TOLMO_SORT( "TOLMO_HEADER_SERVER", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderServer, TOLMO_HEADER_SERVER )
TOLMO_CREATE_FROM( HeaderServer, AllFields )
TOLMO_HEADER_NAME( Server, Server, "Server" )

namespace {

// Takes over a string that is valid.
KoRef<TolmoHeaderServer> Create( KoRef<KoString> server )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderServer>( &tolmo___sort_TOLMO_HEADER_SERVER );
    hdr.Get()->server = server.Leak();
    return hdr;
}

} // namespace

TolmoHeaderServer tolmoHeaderServerCreate( KoString server )
{
    KO_REQUIRE( tolmoServerOk( server ) );
    return Create( tolmo::Share( server ) ).Leak();
}

KoString tolmoHeaderServerServer( TolmoHeaderServer hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->server );
}

void tolmoHeaderServerSetServer( TolmoHeaderServer *hdr, KoString server )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoServerOk( server ) );
    tolmo::MakeUnique( hdr, tolmoHeaderServerCreateFrom );
    tolmo::Store( ( *hdr )->server, tolmo::Share( server ) );
}

TolmoMessageHeader tolmoHeaderServerEncode( TolmoHeaderServer hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->server ) );
}

namespace {

// The line is kept as it stands.
KoRef<TolmoHeaderServer> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    return w.Need( tolmo::skip::Server ) && w.AtEnd() ? Create( line.Copy() ) : KoRef<TolmoHeaderServer>();
}

KoRef<TolmoHeaderServer> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Server, Server )
