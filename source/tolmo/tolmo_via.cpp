/* One item of a Via header: the sent protocol, the sent-by address, the parameters (RFC 3261 section 20.42, RFC 3581). */
#include <tolmo/tolmo_via.h>

#include <tolmo/tolmo_branch.h>
#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_host.h>
#include <tolmo/tolmo_host.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_port.h>
#include <tolmo/tolmo_scalar.hpp>
#include <tolmo/tolmo_transport.h>
#include <tolmo/tolmo_ttl.h>
#include <tolmo/tolmo_version.hpp>

namespace skip = tolmo::skip;

struct tolmo___Via {
    ko___Obj head;
    TolmoVersion version;
    KoString transport; // in small letters
    KoString host;
    KoInt port;
    KoInt ttl;
    KoString maddr;
    WenAddress received;
    KoBool rportEmpty; // this one and the next exclude each other
    KoInt rportNumeric;
    KoString branch;
    TolmoGenericParams genericParams;
};

namespace {

using Via = tolmo___Via;
using AllFields =
    tolmo::Fields<&Via::version, &Via::transport, &Via::host, &Via::port, &Via::ttl, &Via::maddr, &Via::received,
                  &Via::rportEmpty, &Via::rportNumeric, &Via::branch, &Via::genericParams>;
static_assert( tolmo::namesAllFields<Via, AllFields> );

// Without the two forms of rport: a request and what a server made of it are the same via.
using ComparedFields = tolmo::Fields<&Via::version, &Via::transport, &Via::host, &Via::port, &Via::ttl, &Via::maddr,
                                     &Via::received, &Via::branch, &Via::genericParams>;

TOLMO_FREE( Via, via, AllFields )
TOLMO_COMPARE( Via, viaA, viaB, ComparedFields )

KoString ToString( KoObj obj )
{
    return tolmo___ViaEncode( tolmoViaFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_VIA = TOLMO_SORT( "TOLMO_VIA", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( Via, TOLMO_VIA )
TOLMO_CREATE_FROM( Via, AllFields )

namespace {

// The names of the parameters, for the encoder.
KoString kosTtl = nullptr;
KoString kosMaddr = nullptr;
KoString kosReceived = nullptr;
KoString kosRport = nullptr;
KoString kosBranch = nullptr;
KoString kosLocalhost = nullptr; // part of what the module starts with; nothing reads it

/** A via without parameters, of parts that are good. */
KoRef<TolmoVia> Create( KoRef<TolmoVersion> version, KoRef<KoString> transport, KoRef<KoString> host )
{
    auto via = tolmo::CreateObject<Via>( &tolmo___sort_TOLMO_VIA );
    via.Get()->version = version.Leak();
    via.Get()->transport = transport.Leak();
    via.Get()->host = host.Leak();
    via.Get()->port = -1;
    via.Get()->ttl = -1;
    via.Get()->rportNumeric = -1;
    via.Get()->genericParams = tolmo::EmptyParams();
    return via;
}

void StoreRport( TolmoVia via, KoBool empty, KoInt numeric )
{
    via->rportEmpty = empty;
    via->rportNumeric = numeric;
}

} // namespace

void tolmo___ViaStartup( void )
{
    tolmo::Start( kosTtl, "ttl" );
    tolmo::Start( kosMaddr, "maddr" );
    tolmo::Start( kosReceived, "received" );
    tolmo::Start( kosRport, "rport" );
    tolmo::Start( kosBranch, "branch" );
    tolmo::Start( kosLocalhost, "localhost" );
}

void tolmo___ViaShutdown( void )
{
    tolmo::Stop( kosTtl );
    tolmo::Stop( kosMaddr );
    tolmo::Stop( kosReceived );
    tolmo::Stop( kosRport );
    tolmo::Stop( kosBranch );
    tolmo::Stop( kosLocalhost );
}

TolmoVia tolmoViaCreate( TolmoVersion version, KoString transport, KoString host )
{
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoTransportOk( transport ) );
    KO_REQUIRE( tolmoHostOk( host ) );
    auto normal = tolmo::Adopt( tolmo::Lowered( transport ) );
    return Create( tolmo::Share( version ), std::move( normal ), tolmo::Share( host ) ).Leak();
}

TolmoVia tolmoViaCreateWithPort( TolmoVersion version, KoString transport, KoString host, KoInt port )
{
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoTransportOk( transport ) );
    KO_REQUIRE( tolmoHostOk( host ) );
    KO_REQUIRE( tolmoPortOk( port ) );
    auto normal = tolmo::Adopt( tolmo::Lowered( transport ) );
    auto via = Create( tolmo::Share( version ), std::move( normal ), tolmo::Share( host ) );
    via.Get()->port = port;
    return via.Leak();
}

TolmoVersion tolmoViaVersion( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->version );
}

void tolmoViaSetVersion( TolmoVia *via, TolmoVersion version )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( version );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->version, tolmo::Share( version ) );
}

KoString tolmoViaTransport( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->transport );
}

void tolmoViaSetTransport( TolmoVia *via, KoString transport )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( tolmoTransportOk( transport ) );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->transport, tolmo::Adopt( tolmo::Lowered( transport ) ) );
}

KoString tolmoViaHost( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->host );
}

void tolmoViaSetHost( TolmoVia *via, KoString host )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( tolmoHostOk( host ) );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->host, tolmo::Share( host ) );
}

KoBool tolmoViaHasPort( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->port != -1;
}

KoInt tolmoViaPort( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->port;
}

void tolmoViaSetPort( TolmoVia *via, KoInt port )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( tolmoPortOk( port ) );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    ( *via )->port = port;
}

void tolmoViaDelPort( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    ( *via )->port = -1;
}

KoBool tolmoViaHasTtl( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->ttl != -1;
}

KoInt tolmoViaTtl( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->ttl;
}

void tolmoViaSetTtl( TolmoVia *via, KoInt ttl )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( tolmoTtlOk( ttl ) );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    ( *via )->ttl = ttl;
}

void tolmoViaDelTtl( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    ( *via )->ttl = -1;
}

KoBool tolmoViaHasMaddr( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->maddr != nullptr;
}

KoString tolmoViaMaddr( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->maddr );
}

void tolmoViaSetMaddr( TolmoVia *via, KoString maddr )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE_AS( tolmoHostOk( maddr ), "tolmoHostOk( host )" ); // this text, though the argument has another name
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->maddr, tolmo::Share( maddr ) );
}

void tolmoViaDelMaddr( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->maddr, {} );
}

KoBool tolmoViaHasReceived( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->received != nullptr;
}

WenAddress tolmoViaReceived( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->received );
}

void tolmoViaSetReceived( TolmoVia *via, WenAddress received )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( received );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->received, tolmo::Share( received ) );
}

void tolmoViaDelReceived( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->received, {} );
}

KoBool tolmoViaHasRport( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->rportEmpty || via->rportNumeric != -1;
}

KoBool tolmoViaHasRportEmpty( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->rportEmpty;
}

KoBool tolmoViaHasRportNumeric( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->rportNumeric != -1;
}

KoInt tolmoViaRportNumeric( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->rportNumeric;
}

void tolmoViaSetRportEmpty( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    StoreRport( *via, KO_TRUE, -1 );
}

void tolmoViaSetRportNumeric( TolmoVia *via, KoInt rport )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( tolmoPortOk( rport ) );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    StoreRport( *via, KO_FALSE, rport );
}

void tolmoViaDelRport( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    StoreRport( *via, KO_FALSE, -1 );
}

KoBool tolmoViaHasBranch( TolmoVia via )
{
    KO_REQUIRE( via );
    return via->branch != nullptr;
}

KoString tolmoViaBranch( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->branch );
}

void tolmoViaSetBranch( TolmoVia *via, KoString branch )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( tolmoBranchOk( branch ) );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->branch, tolmo::Share( branch ) );
}

void tolmoViaDelBranch( TolmoVia *via )
{
    KO_REQUIRE_HANDLE( via );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->branch, {} );
}

TolmoGenericParams tolmoViaGenericParams( TolmoVia via )
{
    KO_REQUIRE( via );
    return tolmo::Retained( via->genericParams );
}

void tolmoViaSetGenericParams( TolmoVia *via, TolmoGenericParams params )
{
    KO_REQUIRE_HANDLE( via );
    KO_REQUIRE( params );
    tolmo::MakeUnique( via, tolmoViaCreateFrom );
    tolmo::Store( ( *via )->genericParams, tolmo::Share( params ) );
}

// sent-protocol LWS sent-by *( SEMI via-params ), the parameters in the order of the fields and without whitespace
KoString tolmo___ViaEncode( TolmoVia via )
{
    KO_REQUIRE( via );
    tolmo::Builder text;
    text.Take( tolmo___VersionEncode( via->version ) );
    text.Add( '/' );
    text.AddRaised( via->transport );
    text.Add( ' ' );
    text.Take( tolmo___HostEncode( via->host ) );
    if ( via->port != -1 ) {
        text.Add( ':' );
        text.AddNumber( via->port );
    }
    if ( via->ttl != -1 ) {
        tolmo::AddParamName( text, kosTtl );
        text.AddNumber( via->ttl );
    }
    if ( via->maddr ) {
        tolmo::AddParamName( text, kosMaddr );
        text.Take( tolmo___HostEncode( via->maddr ) );
    }
    if ( via->received ) {
        tolmo::AddParamName( text, kosReceived );
        text.Take( wenAddressToStringShrink( via->received ) );
    }
    if ( via->rportEmpty ) {
        text.Add( ';' );
        text.Add( kosRport );
    } else if ( via->rportNumeric != -1 ) {
        tolmo::AddParamName( text, kosRport );
        text.AddNumber( via->rportNumeric );
    }
    if ( via->branch ) {
        tolmo::AddParamName( text, kosBranch );
        text.Add( via->branch );
    }
    tolmo::AddParams( text, via->genericParams,
                      { tolmo::Hidden( via->ttl != -1, "ttl" ), tolmo::Hidden( via->maddr, "maddr" ),
                        tolmo::Hidden( via->received, "received" ),
                        tolmo::Hidden( via->rportEmpty || via->rportNumeric != -1, "rport" ),
                        tolmo::Hidden( via->branch, "branch" ) } );
    return text.Finish();
}

namespace {

KoInt SkipReceivedAddress( const KoChar *chs, KoInt length )
{
    tolmo::Walk w( chs, length );
    return w.Taken( w.Need( skip::IpV6Address ) || w.Need( skip::IpV4Address ) );
}

// The name alone is the form without a value, whatever stands behind it: of `rportal=1`, too, five letters are taken.
bool TakeRport( tolmo::Walk &w, TolmoVia via )
{
    const KoInt place = w.Place();
    if ( !w.Need( skip::Literal, "rport" ) ) {
        return false;
    }
    if ( !w.Need( skip::Equal ) ) {
        StoreRport( via, KO_TRUE, -1 );
        return true;
    }
    if ( w.Need( skip::Port ) ) {
        StoreRport( via, KO_FALSE, tolmo___PortTryDecode( w.Last().chs, w.Last().length ) );
        return true;
    }
    w.Return( place );
    return false;
}

/** One parameter, by the parsers in their order. */
bool TakeParam( tolmo::Walk &w, TolmoVia via )
{
    using tolmo::Adopt;
    using tolmo::Text;
    return tolmo::TakeLifted( w, "ttl", skip::Ttl,
                              [=]( Text value ) {
                                  return tolmo::StoreNumber( via->ttl,
                                                             tolmo___TtlTryDecode( value.chs, value.length ) );
                              } ) ||
           tolmo::TakeLifted(
               w, "maddr", skip::Host,
               [=]( Text value ) { return tolmo::StoreGood( via->maddr, tolmo::DecodeHost( value ) ); } ) ||
           tolmo::TakeLifted( w, "received", SkipReceivedAddress,
                              [=]( Text value ) {
                                  return tolmo::StoreGood(
                                      via->received, Adopt( wenAddressTryCreateFromChars( value.chs, value.length ) ) );
                              } ) ||
           TakeRport( w, via ) ||
           tolmo::TakeLifted( w, "branch", skip::Branch,
                              [=]( Text value ) { return tolmo::StoreText( via->branch, value ); } ) ||
           tolmo::TakeGeneric( w, via->genericParams );
}

} // namespace

TolmoVia tolmo___ViaTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    auto version = tolmo::TakeVersion( w );
    if ( !version || !w.Need( skip::Slash ) || !w.Need( skip::Transport ) ) {
        return nullptr;
    }
    auto transport = w.Last().CopyLowered();
    if ( !w.Need( skip::Lws ) || !w.Need( skip::Host ) ) {
        return nullptr;
    }
    auto via = Create( std::move( version ), std::move( transport ), tolmo::DecodeHost( w.Last() ) );
    if ( w.Need( skip::Colon ) ) {
        if ( !w.Need( skip::Port ) ) {
            return nullptr;
        }
        via.Get()->port = tolmo___PortTryDecode( w.Last().chs, w.Last().length ); // what skip::Port takes, decodes
    }
    return tolmo::TakeParams( w, [&] { return TakeParam( w, via.Get() ); } ) ? via.Leak() : nullptr;
}
