/* The header Session-ID (RFC 7989 section 5). */
#include <tolmo/tolmo_header_session_id.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_sess_uuid.h>

namespace skip = tolmo::skip;

struct tolmo___HeaderSessionId {
    ko___Obj head;
    KoString localUuid;
    KoString remoteUuid;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderSessionId = tolmo___HeaderSessionId;
using AllFields =
    tolmo::Fields<&HeaderSessionId::localUuid, &HeaderSessionId::remoteUuid, &HeaderSessionId::genericParams>;
static_assert( tolmo::namesAllFields<HeaderSessionId, AllFields> );

TOLMO_FREE( HeaderSessionId, hdr, AllFields )
TOLMO_COMPARE( HeaderSessionId, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( SessionId )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_SESSION_ID =
    TOLMO_SORT( "TOLMO_HEADER_SESSION_ID", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderSessionId, TOLMO_HEADER_SESSION_ID )
TOLMO_CREATE_FROM( HeaderSessionId, AllFields )

static constexpr tolmo::NameId headerName = tolmo::KnownName( "Session-Id" );
static KoString tolmo___KosSessionId = nullptr;
static KoString kosRemote = nullptr; // the name of the parameter, for the encoder

void tolmo___HeaderSessionIdStartup( void )
{
    tolmo::Start( tolmo___KosSessionId, "Session-Id" );
    tolmo::Start( kosRemote, "remote" );
}

void tolmo___HeaderSessionIdShutdown( void )
{
    tolmo::Stop( tolmo___KosSessionId );
    tolmo::Stop( kosRemote );
}

namespace {

/** A header without parameters, of an identifier that is good. */
KoRef<TolmoHeaderSessionId> Create( KoRef<KoString> localUuid )
{
    auto hdr = tolmo::CreateObject<HeaderSessionId>( &tolmo___sort_TOLMO_HEADER_SESSION_ID );
    hdr.Get()->localUuid = localUuid.Leak();
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr;
}

} // namespace

TolmoHeaderSessionId tolmoHeaderSessionIdCreate( KoString localUuid )
{
    KO_REQUIRE( tolmoSessUuidOk( localUuid ) );
    return Create( tolmo::Share( localUuid ) ).Leak();
}

KoString tolmoHeaderSessionIdLocalUuid( TolmoHeaderSessionId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->localUuid );
}

void tolmoHeaderSessionIdSetLocalUuid( TolmoHeaderSessionId *hdr, KoString localUuid )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoSessUuidOk( localUuid ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionIdCreateFrom );
    tolmo::Store( ( *hdr )->localUuid, tolmo::Share( localUuid ) );
}

KoBool tolmoHeaderSessionIdHasRemoteUuid( TolmoHeaderSessionId hdr )
{
    KO_REQUIRE( hdr );
    return hdr->remoteUuid != nullptr;
}

KoString tolmoHeaderSessionIdRemoteUuid( TolmoHeaderSessionId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->remoteUuid );
}

void tolmoHeaderSessionIdSetRemoteUuid( TolmoHeaderSessionId *hdr, KoString remoteUuid )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoSessUuidOk( remoteUuid ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionIdCreateFrom );
    tolmo::Store( ( *hdr )->remoteUuid, tolmo::Share( remoteUuid ) );
}

void tolmoHeaderSessionIdDelRemoteUuid( TolmoHeaderSessionId *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionIdCreateFrom );
    tolmo::Store( ( *hdr )->remoteUuid, {} );
}

TolmoGenericParams tolmoHeaderSessionIdGenericParams( TolmoHeaderSessionId hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderSessionIdSetGenericParams( TolmoHeaderSessionId *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderSessionIdCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderSessionIdEncode( TolmoHeaderSessionId hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.Add( hdr->localUuid );
    if ( hdr->remoteUuid ) {
        tolmo::AddParamName( text, kosRemote );
        text.Add( hdr->remoteUuid );
    }
    tolmo::AddParams( text, hdr->genericParams, { tolmo::Hidden( hdr->remoteUuid, "remote" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

bool TakeParam( tolmo::Walk &w, TolmoHeaderSessionId hdr )
{
    return tolmo::TakeLifted( w, "remote", skip::SessUuid,
                              [=]( tolmo::Text value ) { return tolmo::StoreText( hdr->remoteUuid, value ); } ) ||
           tolmo::TakeGeneric( w, hdr->genericParams );
}

// sess-uuid *( SEMI sess-id-param )
// What no semicolon opens is ignored, the 33rd character of an identifier included: that is meant.
KoRef<TolmoHeaderSessionId> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    if ( !w.Need( skip::SessUuid ) ) {
        return {};
    }
    auto hdr = Create( w.Last().Copy() );
    const bool good = tolmo::TakeLeadingParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderSessionId>();
}

KoRef<TolmoHeaderSessionId> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( SessionId, SessionId )
