#include "tolmo_test.h"

#include <random>

namespace {

using test::Own;
using test::Str;
using Version = KoRef<TolmoVersion>;
using Via = KoRef<TolmoVia>;
using Params = KoRef<TolmoGenericParams>;
using namespace std::string_view_literals;

class ViaValue : public test::TolmoFixture {};

constexpr char path[] = "source/tolmo/tolmo_via.cpp";

Version Sip20()
{
    return Own( tolmoVersionCreateSip20() );
}

KoRef<WenAddress> Address( std::string_view text )
{
    const test::Exact chs( text );
    return Own( wenAddressTryCreateFromChars( chs.Chars(), chs.Length() ) );
}

Params List( std::string_view text )
{
    const test::Exact chs( text );
    return Own( tolmo___GenericParamsTryDecode( chs.Chars(), chs.Length() ) );
}

Via Decode( std::string_view text )
{
    const test::Exact chs( text );
    return Own( tolmo___ViaTryDecode( chs.Chars(), chs.Length() ) );
}

std::string Encode( const Via &via )
{
    return test::Take( tolmo___ViaEncode( via.Get() ) );
}

/** A via without parameters. */
Via Create()
{
    return Own( tolmoViaCreate( Sip20().Get(), Str( "UDP" ).Get(), Str( "a" ).Get() ) );
}

/** A via with a value in every field, numeric rport. */
Via Full()
{
    return Decode( "SIP/2.0/UDP host:5060;x=y;branch=z;rport=5;received=192.0.2.1;maddr=m;ttl=1" );
}

constexpr char full[] = "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y";

/* Standard operations */

TEST_F( ViaValue, StandardOperations )
{
    const Via via = Full();
    const KoObj obj = tolmoViaObj( via.Get() );
    EXPECT_STREQ( tolmoViaSort()->name, "TOLMO_VIA" );
    EXPECT_EQ( koObjSort( obj ), tolmoViaSort() );
    EXPECT_EQ( tolmoViaFrom( obj ), via.Get() );
    EXPECT_EQ( tolmoViaFrom( nullptr ), nullptr );
    EXPECT_EQ( tolmoViaRetain( via.Get() ), via.Get() );
    EXPECT_EQ( test::Count( via.Get() ), 2 );
    tolmoViaRelease( via.Get() );
    EXPECT_EQ( test::Take( tolmoViaToString( via.Get() ) ), full );
    EXPECT_TRUE( tolmoViaEquals( nullptr, nullptr ) );
    EXPECT_FALSE( tolmoViaEquals( via.Get(), nullptr ) );

    const Via copy = Own( tolmoViaCreateFrom( via.Get() ) );
    EXPECT_NE( copy.Get(), via.Get() );
    EXPECT_TRUE( tolmoViaEquals( copy.Get(), via.Get() ) );
    EXPECT_EQ( Encode( copy ), full );
    EXPECT_EQ( Own( tolmoViaHost( copy.Get() ) ).Get(), Own( tolmoViaHost( via.Get() ) ).Get() ); // shared

    constexpr char from[] = "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_VIA";
    const auto text = Str( "x" );
    const KoObj other = koStringObj( text.Get() );
    EXPECT_ABORT_MESSAGE( tolmoViaFrom( other ), "stdfunc from", path, from );
    EXPECT_ABORT_MESSAGE( tolmoViaRetain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoViaRelease( nullptr ), "stdfunc release", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoViaCompare( nullptr, via.Get() ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( tolmoViaCompare( via.Get(), nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT_MESSAGE( tolmoViaToString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT( tolmoViaCreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT( tolmoViaSort()->free( nullptr ), path, "via" );
    EXPECT_ABORT_MESSAGE( tolmoViaSort()->free( other ), "stdfunc from", path, from );
    EXPECT_ABORT( tolmoViaSort()->compare( nullptr, obj ), path, "viaA" );
    EXPECT_ABORT( tolmoViaSort()->compare( obj, nullptr ), path, "viaB" );
    EXPECT_ABORT_MESSAGE( tolmoViaSort()->compare( obj, other ), "stdfunc from", path, from );
    EXPECT_ABORT( tolmoViaSort()->toString( nullptr ), path, "via" );
}

/* Creation */

TEST_F( ViaValue, Create )
{
    const Via via = Create();
    EXPECT_TRUE( tolmoVersionIsSip20( Own( tolmoViaVersion( via.Get() ) ).Get() ) );
    EXPECT_EQ( test::Take( tolmoViaTransport( via.Get() ) ), "udp" );
    EXPECT_EQ( test::Take( tolmoViaHost( via.Get() ) ), "a" );
    EXPECT_FALSE( tolmoViaHasPort( via.Get() ) );
    EXPECT_EQ( tolmoViaPort( via.Get() ), -1 );
    EXPECT_FALSE( tolmoViaHasTtl( via.Get() ) );
    EXPECT_EQ( tolmoViaTtl( via.Get() ), -1 );
    EXPECT_FALSE( tolmoViaHasMaddr( via.Get() ) );
    EXPECT_EQ( tolmoViaMaddr( via.Get() ), nullptr );
    EXPECT_FALSE( tolmoViaHasReceived( via.Get() ) );
    EXPECT_EQ( tolmoViaReceived( via.Get() ), nullptr );
    EXPECT_FALSE( tolmoViaHasRport( via.Get() ) );
    EXPECT_FALSE( tolmoViaHasRportEmpty( via.Get() ) );
    EXPECT_FALSE( tolmoViaHasRportNumeric( via.Get() ) );
    EXPECT_EQ( tolmoViaRportNumeric( via.Get() ), -1 );
    EXPECT_FALSE( tolmoViaHasBranch( via.Get() ) );
    EXPECT_EQ( tolmoViaBranch( via.Get() ), nullptr );
    EXPECT_EQ( tolmoGenericParamsLength( Own( tolmoViaGenericParams( via.Get() ) ).Get() ), 0 );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a" );

    const auto host = Str( "H.example" );
    const Via withPort = Own( tolmoViaCreateWithPort( Sip20().Get(), Str( "tls" ).Get(), host.Get(), 70000 ) );
    EXPECT_EQ( tolmoViaPort( withPort.Get() ), 70000 );
    EXPECT_EQ( Own( tolmoViaHost( withPort.Get() ) ).Get(), host.Get() ); // itself
    EXPECT_EQ( Encode( withPort ), "SIP/2.0/TLS H.example:70000" );
}

TEST_F( ViaValue, CreateAborts )
{
    const Version version = Sip20();
    const auto transport = Str( "UDP" );
    const auto host = Str( "a" );
    const auto bad = Str( "a b" );
    constexpr char transportPath[] = "source/tolmo/tolmo_transport.cpp";
    constexpr char hostPath[] = "source/tolmo/tolmo_host.cpp";
    const struct {
        TolmoVersion version;
        KoString transport;
        KoString host;
        const char *path;
        const char *expression;
    } rows[] = {
        { nullptr, nullptr, nullptr, path, "version" },
        { version.Get(), nullptr, nullptr, transportPath, "transport" },
        { version.Get(), bad.Get(), nullptr, path, "tolmoTransportOk( transport )" },
        { version.Get(), transport.Get(), nullptr, hostPath, "host" },
        { version.Get(), transport.Get(), bad.Get(), path, "tolmoHostOk( host )" },
    };
    for ( const auto &row : rows ) {
        EXPECT_ABORT( tolmoViaCreate( row.version, row.transport, row.host ), row.path, row.expression );
        EXPECT_ABORT( tolmoViaCreateWithPort( row.version, row.transport, row.host, -1 ), row.path, row.expression );
    }
    EXPECT_ABORT( tolmoViaCreateWithPort( version.Get(), transport.Get(), host.Get(), -1 ), path,
                  "tolmoPortOk( port )" );
}

/* Accessors */

/** What is asked of every setter: null address, null handle; copy on write at two references, in place at one. */
void ExpectMutator( const std::function<void( TolmoVia * )> &change, std::string_view changed )
{
    TolmoVia null = nullptr;
    EXPECT_ABORT( change( nullptr ), path, "via" );
    EXPECT_ABORT( change( &null ), path, "*via" );

    const Via first = Full();
    Via second = Via::Share( first.Get() );
    change( second.Address() );
    EXPECT_NE( second.Get(), first.Get() );
    EXPECT_EQ( Encode( first ), full );
    EXPECT_EQ( Encode( second ), changed );
    EXPECT_EQ( test::Count( first.Get() ), 1 );

    Via only = Full();
    const TolmoVia object = only.Get();
    change( only.Address() );
    EXPECT_EQ( only.Get(), object );
    EXPECT_EQ( Encode( only ), changed );
}

TEST_F( ViaValue, Mutators )
{
    const auto version = Own( tolmoVersionCreate( Str( "X" ).Get(), Str( "1" ).Get() ) );
    const auto transport = Str( "TlS" );
    const auto host = Str( "b\u00FCcher.example" );
    const auto address = Address( "0:0:0:0:0:0:0:1" );
    const auto branch = Str( "z9hG4bK" );
    const auto params = List( ";p;q=1" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetVersion( via, version.Get() ); },
                   "X/1/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetTransport( via, transport.Get() ); },
                   "SIP/2.0/TLS host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetHost( via, host.Get() ); },
                   "SIP/2.0/UDP xn--bcher-kva.example:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetPort( via, 0 ); },
                   "SIP/2.0/UDP host:0;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaDelPort( via ); },
                   "SIP/2.0/UDP host;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetTtl( via, 255 ); },
                   "SIP/2.0/UDP host:5060;ttl=255;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaDelTtl( via ); },
                   "SIP/2.0/UDP host:5060;maddr=m;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetMaddr( via, host.Get() ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=xn--bcher-kva.example;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaDelMaddr( via ); },
                   "SIP/2.0/UDP host:5060;ttl=1;received=192.0.2.1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetReceived( via, address.Get() ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=::1;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaDelReceived( via ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;rport=5;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetRportEmpty( via ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetRportNumeric( via, 70000 ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=70000;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaDelRport( via ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;branch=z;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetBranch( via, branch.Get() ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z9hG4bK;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaDelBranch( via ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;x=y" );
    ExpectMutator( [&]( auto via ) { tolmoViaSetGenericParams( via, params.Get() ); },
                   "SIP/2.0/UDP host:5060;ttl=1;maddr=m;received=192.0.2.1;rport=5;branch=z;p;q=1" );
}

TEST_F( ViaValue, SetterPreconditions )
{
    const auto bad = Str( "a b" );
    // No copy is made by a setter that ends the process: it looks at the values first.
    const Via first = Full();
    Via via = Via::Share( first.Get() );
    TolmoVia *const address = via.Address();
    EXPECT_ABORT( tolmoViaSetVersion( address, nullptr ), path, "version" );
    EXPECT_ABORT( tolmoViaSetTransport( address, nullptr ), "source/tolmo/tolmo_transport.cpp", "transport" );
    EXPECT_ABORT( tolmoViaSetTransport( address, bad.Get() ), path, "tolmoTransportOk( transport )" );
    EXPECT_ABORT( tolmoViaSetHost( address, nullptr ), "source/tolmo/tolmo_host.cpp", "host" );
    EXPECT_ABORT( tolmoViaSetHost( address, bad.Get() ), path, "tolmoHostOk( host )" );
    EXPECT_ABORT( tolmoViaSetPort( address, -1 ), path, "tolmoPortOk( port )" );
    EXPECT_ABORT( tolmoViaSetTtl( address, -1 ), path, "tolmoTtlOk( ttl )" );
    EXPECT_ABORT( tolmoViaSetTtl( address, 256 ), path, "tolmoTtlOk( ttl )" );
    EXPECT_ABORT( tolmoViaSetMaddr( address, nullptr ), "source/tolmo/tolmo_host.cpp", "host" );
    EXPECT_ABORT( tolmoViaSetMaddr( address, bad.Get() ), path, "tolmoHostOk( host )" ); // not "maddr"
    EXPECT_ABORT( tolmoViaSetReceived( address, nullptr ), path, "received" );
    EXPECT_ABORT( tolmoViaSetRportNumeric( address, -1 ), path, "tolmoPortOk( rport )" );
    EXPECT_ABORT( tolmoViaSetRportNumeric( address, INT64_MIN ), path, "tolmoPortOk( rport )" );
    EXPECT_ABORT( tolmoViaSetBranch( address, nullptr ), "source/tolmo/tolmo_branch.cpp", "branch" );
    EXPECT_ABORT( tolmoViaSetBranch( address, Str( "" ).Get() ), path, "tolmoBranchOk( branch )" );
    EXPECT_ABORT( tolmoViaSetGenericParams( address, nullptr ), path, "params" );
    EXPECT_EQ( via.Get(), first.Get() );
}

TEST_F( ViaValue, GetterPreconditions )
{
    EXPECT_ABORT( tolmoViaVersion( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaTransport( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHost( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasPort( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaPort( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasTtl( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaTtl( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasMaddr( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaMaddr( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasReceived( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaReceived( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasRport( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasRportEmpty( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasRportNumeric( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaRportNumeric( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaHasBranch( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaBranch( nullptr ), path, "via" );
    EXPECT_ABORT( tolmoViaGenericParams( nullptr ), path, "via" );
}

TEST_F( ViaValue, OptionalFieldsComeAndGo )
{
    Via via = Full();
    const TolmoVia *const v = via.Address();
    EXPECT_TRUE( tolmoViaHasPort( *v ) );
    EXPECT_TRUE( tolmoViaHasTtl( *v ) );
    EXPECT_EQ( tolmoViaTtl( *v ), 1 );
    EXPECT_TRUE( tolmoViaHasMaddr( *v ) );
    EXPECT_EQ( test::Take( tolmoViaMaddr( *v ) ), "m" );
    EXPECT_TRUE( tolmoViaHasReceived( *v ) );
    EXPECT_EQ( test::Take( wenAddressToStringShrink( Own( tolmoViaReceived( *v ) ).Get() ) ), "192.0.2.1" );
    EXPECT_TRUE( tolmoViaHasRport( *v ) );
    EXPECT_TRUE( tolmoViaHasBranch( *v ) );
    EXPECT_EQ( test::Take( tolmoViaBranch( *v ) ), "z" );
    tolmoViaDelPort( via.Address() );
    tolmoViaDelTtl( via.Address() );
    tolmoViaDelMaddr( via.Address() );
    tolmoViaDelReceived( via.Address() );
    tolmoViaDelRport( via.Address() );
    tolmoViaDelBranch( via.Address() );
    EXPECT_FALSE( tolmoViaHasPort( *v ) );
    EXPECT_EQ( tolmoViaPort( *v ), -1 );
    EXPECT_FALSE( tolmoViaHasTtl( *v ) );
    EXPECT_EQ( tolmoViaTtl( *v ), -1 );
    EXPECT_FALSE( tolmoViaHasMaddr( *v ) );
    EXPECT_EQ( tolmoViaMaddr( *v ), nullptr );
    EXPECT_FALSE( tolmoViaHasReceived( *v ) );
    EXPECT_EQ( tolmoViaReceived( *v ), nullptr );
    EXPECT_FALSE( tolmoViaHasRport( *v ) );
    EXPECT_FALSE( tolmoViaHasBranch( *v ) );
    EXPECT_EQ( tolmoViaBranch( *v ), nullptr );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP host;x=y" );
}

// The two forms exclude each other.
TEST_F( ViaValue, Rport )
{
    Via via = Create();
    tolmoViaSetRportEmpty( via.Address() );
    EXPECT_TRUE( tolmoViaHasRport( via.Get() ) );
    EXPECT_TRUE( tolmoViaHasRportEmpty( via.Get() ) );
    EXPECT_FALSE( tolmoViaHasRportNumeric( via.Get() ) );
    EXPECT_EQ( tolmoViaRportNumeric( via.Get() ), -1 );
    tolmoViaSetRportNumeric( via.Address(), 5 );
    EXPECT_TRUE( tolmoViaHasRport( via.Get() ) );
    EXPECT_FALSE( tolmoViaHasRportEmpty( via.Get() ) );
    EXPECT_TRUE( tolmoViaHasRportNumeric( via.Get() ) );
    EXPECT_EQ( tolmoViaRportNumeric( via.Get() ), 5 );
    tolmoViaSetRportNumeric( via.Address(), 0 );
    EXPECT_TRUE( tolmoViaHasRportNumeric( via.Get() ) );
    tolmoViaSetRportEmpty( via.Address() );
    EXPECT_FALSE( tolmoViaHasRportNumeric( via.Get() ) );
    tolmoViaDelRport( via.Address() );
    EXPECT_FALSE( tolmoViaHasRport( via.Get() ) );
}

TEST_F( ViaValue, SetterTakesItsOwnValue )
{
    Via via = Full();
    tolmoViaSetVersion( via.Address(), Own( tolmoViaVersion( via.Get() ) ).Get() );
    tolmoViaSetTransport( via.Address(), Own( tolmoViaTransport( via.Get() ) ).Get() );
    tolmoViaSetHost( via.Address(), Own( tolmoViaHost( via.Get() ) ).Get() );
    tolmoViaSetMaddr( via.Address(), Own( tolmoViaMaddr( via.Get() ) ).Get() );
    tolmoViaSetReceived( via.Address(), Own( tolmoViaReceived( via.Get() ) ).Get() );
    tolmoViaSetBranch( via.Address(), Own( tolmoViaBranch( via.Get() ) ).Get() );
    tolmoViaSetGenericParams( via.Address(), Own( tolmoViaGenericParams( via.Get() ) ).Get() );
    EXPECT_EQ( Encode( via ), full );
}

/* Encoding */

TEST_F( ViaValue, FieldsHideGenericParameters )
{
    Via via = Create();
    const Params params = List( ";branch=1;rport=2;received=3;maddr=4;ttl=5;x" );
    tolmoViaSetGenericParams( via.Address(), params.Get() );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;branch=1;rport=2;received=3;maddr=4;ttl=5;x" );
    tolmoViaSetTtl( via.Address(), 0 );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;ttl=0;branch=1;rport=2;received=3;maddr=4;x" );
    tolmoViaSetMaddr( via.Address(), Str( "m" ).Get() );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;ttl=0;maddr=m;branch=1;rport=2;received=3;x" );
    tolmoViaSetReceived( via.Address(), Address( "::1" ).Get() );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;ttl=0;maddr=m;received=::1;branch=1;rport=2;x" );
    tolmoViaSetRportEmpty( via.Address() );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;ttl=0;maddr=m;received=::1;rport;branch=1;x" );
    tolmoViaSetRportNumeric( via.Address(), 9 );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;ttl=0;maddr=m;received=::1;rport=9;branch=1;x" );
    tolmoViaSetBranch( via.Address(), Str( "z" ).Get() );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;ttl=0;maddr=m;received=::1;rport=9;branch=z;x" );
    // The list itself has been left alone.
    EXPECT_EQ( test::Take( tolmo___GenericParamsEncode( Own( tolmoViaGenericParams( via.Get() ) ).Get() ) ),
               ";branch=1;rport=2;received=3;maddr=4;ttl=5;x" );
    tolmoViaDelTtl( via.Address() );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP a;maddr=m;received=::1;rport=9;branch=z;ttl=5;x" );
    EXPECT_ABORT( tolmo___ViaEncode( nullptr ), path, "via" );
}

/* Decoding */

const struct DecodeRow {
    std::string_view text;
    std::string_view encoded; // null: refused
} decodeRows[] = {
    // sent-protocol and sent-by
    { "SIP/2.0/UDP a", "SIP/2.0/UDP a" },
    { "sip / 2.0 / udp  a : 5060 ; Branch = z", "SIP/2.0/UDP a:5060;branch=z" },
    { "SIP/2.0/TlS a", "SIP/2.0/TLS a" },
    { "sip/2.0/udp a", "SIP/2.0/UDP a" }, // the version goes out in its own form
    { "X/1/y a", "X/1/Y a" },
    { "SIP\t/ 2.0 /\tUDP\ta", "SIP/2.0/UDP a" },
    { "SIP/2.0/UDP a.", "SIP/2.0/UDP a." }, // with its dot
    { "SIP/2.0/UDP A.Example.COM", "SIP/2.0/UDP A.Example.COM" },
    { "SIP/2.0/UDP 192.0.2.1:5060", "SIP/2.0/UDP 192.0.2.1:5060" },
    { "SIP/2.0/UDP [2001:DB8::1]:5060", "SIP/2.0/UDP [2001:DB8::1]:5060" },
    { "SIP/2.0/UDP xn--bcher-kva.example", "SIP/2.0/UDP xn--bcher-kva.example" },
    { "SIP/2.0/UDP a:0", "SIP/2.0/UDP a:0" },
    { "SIP/2.0/UDP a:007", "SIP/2.0/UDP a:7" },
    { "SIP/2.0/UDP a:70000", "SIP/2.0/UDP a:70000" }, // no limit of 65535
    { "SIP/2.0/UDP a:9223372036854775807", "SIP/2.0/UDP a:9223372036854775807" },
    { "SIP/2.0/UDP a:9223372036854775808", {} }, // fits no number
    { "SIP/2.0/UDP a:99999999999999999999999999", {} },
    { "", {} },
    { "SIP", {} },
    { "SIP/", {} },
    { "SIP/2.0", {} },
    { "SIP/2.0/", {} },
    { "SIP/2.0/UDP", {} },
    { "SIP/2.0/UDP ", {} },
    { "SIP/2.0/UDPa", {} }, // whitespace is needed
    { "SIP/2.0 UDP a", {} },
    { " SIP/2.0/UDP a", {} },
    { "SIP/2.0/UDP a ", {} },
    { "SIP/2.0/UDP a b", {} },
    { "SIP/2.0/UDP a (c)", {} }, // the comments of RFC 2543
    { "SIP/2.0/UDP a,b", {} },
    { "SIP/2.0/UDP ::1", {} }, // brackets are needed
    { "SIP/2.0/UDP [::1", {} },
    { "SIP/2.0/UDP -a", {} },
    { "SIP/2.0/UDP a_b", {} },
    { "SIP/2.0/UDP \u00E9", {} },
    { "SIP/2.0/UDP a:", {} }, // a colon needs a port
    { "SIP/2.0/UDP a: ", {} },
    { "SIP/2.0/UDP a:;x", {} },
    { "SIP/2.0/UDP a:b", {} },
    { "SIP/2.0/UDP a:-1", {} },
    { "SIP/2.0/UDP a:5060x", {} },
    { "SIP/2.0/UDP a:5060 ", {} },

    // the frame of the parameters
    { "SIP/2.0/UDP a;x", "SIP/2.0/UDP a;x" },
    { "SIP/2.0/UDP a \t;\t x = y ; z", "SIP/2.0/UDP a;x=y;z" },
    { "SIP/2.0/UDP a;X=Y;x=Z", "SIP/2.0/UDP a;x=Z" },
    { "SIP/2.0/UDP a;x=\"; y\"", "SIP/2.0/UDP a;x=\"; y\"" },
    { "SIP/2.0/UDP a;", {} }, // there is no tolerance at the end
    { "SIP/2.0/UDP a; ", {} },
    { "SIP/2.0/UDP a;x;", {} },
    { "SIP/2.0/UDP a;;x", {} },
    { "SIP/2.0/UDP a;x ", {} },
    { "SIP/2.0/UDP a;x y", {} },
    { "SIP/2.0/UDP a;x=", {} },
    { "SIP/2.0/UDP a;=x", {} },
    { "SIP/2.0/UDP a;x,y", {} },
    { "SIP/2.0/UDP a;hidden", "SIP/2.0/UDP a;hidden" },

    // ttl
    { "SIP/2.0/UDP a;ttl=0", "SIP/2.0/UDP a;ttl=0" },
    { "SIP/2.0/UDP a;TTL = 255", "SIP/2.0/UDP a;ttl=255" },
    { "SIP/2.0/UDP a;ttl=007", "SIP/2.0/UDP a;ttl=7" },
    { "SIP/2.0/UDP a;ttl=1;ttl=2", "SIP/2.0/UDP a;ttl=2" },
    { "SIP/2.0/UDP a;ttl=300", "SIP/2.0/UDP a;ttl=300" },     // generic
    { "SIP/2.0/UDP a;ttl=1;ttl=300", "SIP/2.0/UDP a;ttl=1" }, // the generic one is hidden: the last does not win
    { "SIP/2.0/UDP a;ttl=300;ttl=1;x", "SIP/2.0/UDP a;ttl=1;x" },
    { "SIP/2.0/UDP a;ttl", "SIP/2.0/UDP a;ttl" },
    { "SIP/2.0/UDP a;ttl=x", "SIP/2.0/UDP a;ttl=x" },
    { "SIP/2.0/UDP a;ttl=\"1\"", "SIP/2.0/UDP a;ttl=\"1\"" },
    { "SIP/2.0/UDP a;ttlx=1", "SIP/2.0/UDP a;ttlx=1" }, // another name
    { "SIP/2.0/UDP a;ttl=-1", "SIP/2.0/UDP a;ttl=-1" },
    { "SIP/2.0/UDP a;ttl=", {} },
    { "SIP/2.0/UDP a;ttl=12x", {} }, // a value that is good in its first characters
    { "SIP/2.0/UDP a;ttl=0.5", {} },
    { "SIP/2.0/UDP a;ttl=1 ", {} },

    // maddr
    { "SIP/2.0/UDP a;maddr=M.example", "SIP/2.0/UDP a;maddr=M.example" },
    { "SIP/2.0/UDP a;mAddR=[::1]", "SIP/2.0/UDP a;maddr=[::1]" },
    { "SIP/2.0/UDP a;maddr=a;maddr=b", "SIP/2.0/UDP a;maddr=b" },
    { "SIP/2.0/UDP a;maddr=_b", "SIP/2.0/UDP a;maddr=_b" }, // generic
    { "SIP/2.0/UDP a;maddr=\"b\"", "SIP/2.0/UDP a;maddr=\"b\"" },
    { "SIP/2.0/UDP a;maddr", "SIP/2.0/UDP a;maddr" },
    { "SIP/2.0/UDP a;maddr=a_b", {} }, // the host `a`, and something behind it
    { "SIP/2.0/UDP a;maddr=a-", {} },
    { "SIP/2.0/UDP a;maddr=::1", {} },

    // received
    { "SIP/2.0/UDP a;received=192.0.2.1", "SIP/2.0/UDP a;received=192.0.2.1" },
    { "SIP/2.0/UDP a;received=0:0:0:0:0:0:0:1", "SIP/2.0/UDP a;received=::1" },
    { "SIP/2.0/UDP a;Received=::FFFF:192.0.2.1", "SIP/2.0/UDP a;received=::ffff:192.0.2.1" },
    { "SIP/2.0/UDP a;received=2001:DB8::0;x", "SIP/2.0/UDP a;received=2001:db8::;x" },
    { "SIP/2.0/UDP a;received=host", "SIP/2.0/UDP a;received=host" }, // generic
    { "SIP/2.0/UDP a;received=host.example", "SIP/2.0/UDP a;received=host.example" },
    { "SIP/2.0/UDP a;received=[::1]", "SIP/2.0/UDP a;received=[::1]" },
    { "SIP/2.0/UDP a;received=1.2.3.256", "SIP/2.0/UDP a;received=1.2.3.256" },
    { "SIP/2.0/UDP a;received", "SIP/2.0/UDP a;received" },
    { "SIP/2.0/UDP a;received=::1;received=host", "SIP/2.0/UDP a;received=::1" },
    { "SIP/2.0/UDP a;received=1.2.3.4x", {} },
    { "SIP/2.0/UDP a;received=1.2.3.4.5", {} }, // although a token
    { "SIP/2.0/UDP a;received=::1x", {} },

    // rport
    { "SIP/2.0/UDP a;rport", "SIP/2.0/UDP a;rport" },
    { "SIP/2.0/UDP a;RPORT;x", "SIP/2.0/UDP a;rport;x" },
    { "SIP/2.0/UDP a;rport ; x", "SIP/2.0/UDP a;rport;x" },
    { "SIP/2.0/UDP a;rport=5", "SIP/2.0/UDP a;rport=5" },
    { "SIP/2.0/UDP a;rport = 5 ;x", "SIP/2.0/UDP a;rport=5;x" },
    { "SIP/2.0/UDP a;rport=005", "SIP/2.0/UDP a;rport=5" },
    { "SIP/2.0/UDP a;rport;rport=5", "SIP/2.0/UDP a;rport=5" }, // one form clears the other
    { "SIP/2.0/UDP a;rport=5;rport", "SIP/2.0/UDP a;rport" },
    { "SIP/2.0/UDP a;rport=x", "SIP/2.0/UDP a;rport=x" }, // generic
    { "SIP/2.0/UDP a;rport=\"5\"", "SIP/2.0/UDP a;rport=\"5\"" },
    { "SIP/2.0/UDP a;rport=9223372036854775807", "SIP/2.0/UDP a;rport=9223372036854775807" },
    { "SIP/2.0/UDP a;rport=9223372036854775808", "SIP/2.0/UDP a;rport=9223372036854775808" }, // no port: generic
    { "SIP/2.0/UDP a;rport=99999999999999999999999999", "SIP/2.0/UDP a;rport=99999999999999999999999999" },
    { "SIP/2.0/UDP a;rport=", {} },
    { "SIP/2.0/UDP a;rport= ", {} },
    { "SIP/2.0/UDP a;rport ", {} },
    { "SIP/2.0/UDP a;rportal=1", {} }, // five letters are taken, whatever follows
    { "SIP/2.0/UDP a;rport1", {} },
    { "SIP/2.0/UDP a;rport-", {} },
    { "SIP/2.0/UDP a;rport=5x", {} },

    // branch
    { "SIP/2.0/UDP a;branch=Z9hG4bK", "SIP/2.0/UDP a;branch=Z9hG4bK" }, // in its case
    { "SIP/2.0/UDP a;BRANCH=z", "SIP/2.0/UDP a;branch=z" },
    { "SIP/2.0/UDP a;branch=a;branch=b", "SIP/2.0/UDP a;branch=b" },
    { "SIP/2.0/UDP a;branch=\"z\"", "SIP/2.0/UDP a;branch=\"z\"" }, // generic
    { "SIP/2.0/UDP a;branch=[::1]", "SIP/2.0/UDP a;branch=[::1]" },
    { "SIP/2.0/UDP a;branch=z;branch=\"y\"", "SIP/2.0/UDP a;branch=z" },
    { "SIP/2.0/UDP a;branch", "SIP/2.0/UDP a;branch" },
    { "SIP/2.0/UDP a;branch=", {} },
    { "SIP/2.0/UDP a;branch=z@b", {} },
    { "SIP/2.0/UDP a;branch=z\"y\"", {} },

    // order
    { "SIP/2.0/UDP host:5060;x=y;branch=z;rport=5;received=192.0.2.1;maddr=m;ttl=1", full },
    { "SIP/2.0/UDP a;p;branch=z;q", "SIP/2.0/UDP a;branch=z;p;q" },
    { "SIP/2.0/UDP a;x=\0"sv, {} },
    { "SIP/2.0/UDP a\0"sv, {} },
};

TEST_F( ViaValue, TryDecode )
{
    for ( const auto &row : decodeRows ) {
        const Via via = Decode( row.text );
        ASSERT_EQ( static_cast<bool>( via ), row.encoded.data() != nullptr ) << "text: " << row.text;
        if ( via ) {
            EXPECT_EQ( Encode( via ), row.encoded ) << "text: " << row.text;
        }
    }
    EXPECT_EQ( tolmo___ViaTryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( tolmo___ViaTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___ViaTryDecode( nullptr, 1 ), path, "chs || length == 0" );
}

/** Where the values of the lifted names went. */
struct Fields {
    KoInt ttl = -1;
    bool maddr = false;
    bool received = false;
    bool rportEmpty = false;
    KoInt rport = -1;
    bool branch = false;
    std::string generic = {};
};

TEST_F( ViaValue, WhereParametersGo )
{
    const struct {
        std::string_view text;
        Fields fields;
    } rows[] = {
        { "ttl=12", { .ttl = 12 } },
        { "ttl=300", { .generic = ";ttl=300" } },
        { "ttl=1;ttl=300", { .ttl = 1, .generic = ";ttl=300" } }, // it is there, though it is not printed
        { "ttl", { .generic = ";ttl" } },
        { "ttlx=1", { .generic = ";ttlx=1" } },
        { "maddr=m", { .maddr = true } },
        { "maddr=_", { .generic = ";maddr=_" } },
        { "received=1.2.3.4", { .received = true } },
        { "received=::", { .received = true } },
        { "received=[::1]", { .generic = ";received=[::1]" } },
        { "received=1.2.3.256", { .generic = ";received=1.2.3.256" } },
        { "rport", { .rportEmpty = true } },
        { "rport=0", { .rport = 0 } },
        { "rport=5;rport", { .rportEmpty = true } },
        { "rport;rport=5", { .rport = 5 } },
        { "rport;rport=x", { .rportEmpty = true, .generic = ";rport=x" } },
        { "rport=9223372036854775807", { .rport = INT64_MAX } },
        { "rport=9223372036854775808", { .generic = ";rport=9223372036854775808" } },
        { "branch=z", { .branch = true } },
        { "branch=\"z\"", { .generic = ";branch=\"z\"" } },
        { "X=Y", { .generic = ";x=Y" } },
    };
    for ( const auto &row : rows ) {
        const Via via = Decode( "SIP/2.0/UDP a;" + std::string( row.text ) );
        ASSERT_TRUE( via ) << row.text;
        EXPECT_EQ( tolmoViaTtl( via.Get() ), row.fields.ttl ) << row.text;
        EXPECT_EQ( tolmoViaHasMaddr( via.Get() ), row.fields.maddr ) << row.text;
        EXPECT_EQ( tolmoViaHasReceived( via.Get() ), row.fields.received ) << row.text;
        EXPECT_EQ( tolmoViaHasRportEmpty( via.Get() ), row.fields.rportEmpty ) << row.text;
        EXPECT_EQ( tolmoViaRportNumeric( via.Get() ), row.fields.rport ) << row.text;
        EXPECT_EQ( tolmoViaHasBranch( via.Get() ), row.fields.branch ) << row.text;
        EXPECT_EQ( test::Take( tolmo___GenericParamsEncode( Own( tolmoViaGenericParams( via.Get() ) ).Get() ) ),
                   row.fields.generic )
            << row.text;
    }
}

TEST_F( ViaValue, DecodedForms )
{
    const Via via = Decode( "sip / 2.0 / UdP  xn--bcher-kva.example ; maddr=xn--bcher-kva.example" );
    ASSERT_TRUE( via );
    EXPECT_TRUE( tolmoVersionIsSip20( Own( tolmoViaVersion( via.Get() ) ).Get() ) );
    EXPECT_EQ( test::Take( tolmoViaTransport( via.Get() ) ), "udp" );
    EXPECT_EQ( test::Take( tolmoViaHost( via.Get() ) ), "b\u00FCcher.example" );
    EXPECT_EQ( test::Take( tolmoViaMaddr( via.Get() ) ), "b\u00FCcher.example" );
    EXPECT_EQ( Encode( via ), "SIP/2.0/UDP xn--bcher-kva.example;maddr=xn--bcher-kva.example" );
}

// The empty list that a new via holds is one for all of them, and stays empty.
TEST_F( ViaValue, ChangesOfTheEmptyListStayApart )
{
    const Via first = Create();
    Params params = Own( tolmoViaGenericParams( first.Get() ) );
    tolmoGenericParamsSetParamValueCstr( params.Address(), "x", -1, TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN,
                                         Str( "y" ).Get() );
    EXPECT_EQ( Encode( first ), "SIP/2.0/UDP a" );
    EXPECT_EQ( Encode( Create() ), "SIP/2.0/UDP a" );
    Decode( "SIP/2.0/UDP a;p=q" );
    EXPECT_EQ( Encode( Create() ), "SIP/2.0/UDP a" );
}

// In exact-size blocks. What is decoded is a whole item for the skip function, too; not the other way round.
TEST_F( ViaValue, EveryPrefix )
{
    for ( const auto &row : decodeRows ) {
        const auto text = Str( row.text );
        for ( KoInt length = 0; length <= koStringLength( text.Get() ); ++length ) {
            const test::Exact chs( text.Get(), length );
            const Via via = Own( tolmo___ViaTryDecode( chs.Chars(), length ) );
            if ( via ) {
                EXPECT_EQ( tolmo___SkipVia( chs.Chars(), length ), length ) << row.text << ", prefix " << length;
            }
        }
    }
    // Items that the list passes, and the decoder refuses.
    for ( const auto text : { "SIP/2.0/UDP a;ttl=1x", "SIP/2.0/UDP a;rportal=1", "SIP/2.0/UDP a;maddr=a_b",
                              "SIP/2.0/UDP a;ttl=0.5", "SIP/2.0/UDP a;rport=5x" } ) {
        const test::Exact chs( text );
        EXPECT_EQ( tolmo___SkipVia( chs.Chars(), chs.Length() ), chs.Length() ) << text;
        EXPECT_FALSE( Decode( text ) ) << text;
    }
}

/* Comparison */

TEST_F( ViaValue, Compare )
{
    // In ascending order, field by field in the order in which they count; those of a group are equal.
    const std::vector<std::vector<std::string_view>> groups = {
        { "SIP/1.0/UDP z:9;ttl=9" },
        { "SIP/2.0/TCP z:9;ttl=9" },
        { "SIP/2.0/UDP A" },
        { "SIP/2.0/UDP a", "sip/2.0/udp a", "SIP/2.0/UDP a;rport", "SIP/2.0/UDP a;rport=5" }, // rport does not count
        { "SIP/2.0/UDP a;x=y", "SIP/2.0/UDP a;X=Y" },
        { "SIP/2.0/UDP a;branch=A" },
        { "SIP/2.0/UDP a;branch=a", "SIP/2.0/UDP a;branch=a;rport" },
        { "SIP/2.0/UDP a;received=1.2.3.4;branch=a" },
        { "SIP/2.0/UDP a;received=::1", "SIP/2.0/UDP a;received=0::1" },
        { "SIP/2.0/UDP a;maddr=m" },
        { "SIP/2.0/UDP a;maddr=n" },
        { "SIP/2.0/UDP a;ttl=0" },
        { "SIP/2.0/UDP a;ttl=10", "SIP/2.0/UDP a;TTL=010" },
        { "SIP/2.0/UDP a:0" },
        { "SIP/2.0/UDP a:5060" },
        { "SIP/2.0/UDP a:5061;ttl=1" },
        { "SIP/2.0/UDP b" },
    };
    for ( size_t a = 0; a < groups.size(); ++a ) {
        for ( size_t b = 0; b < groups.size(); ++b ) {
            for ( const auto textA : groups[a] ) {
                for ( const auto textB : groups[b] ) {
                    const Via viaA = Decode( textA );
                    const Via viaB = Decode( textB );
                    const KoInt result = tolmoViaCompare( viaA.Get(), viaB.Get() );
                    EXPECT_EQ( result < 0, a < b ) << textA << " " << textB;
                    EXPECT_EQ( result > 0, a > b ) << textA << " " << textB;
                    EXPECT_EQ( tolmoViaEquals( viaA.Get(), viaB.Get() ), a == b );
                }
            }
        }
    }
    // A generic rport does count.
    EXPECT_FALSE( tolmoViaEquals( Decode( "SIP/2.0/UDP a;rport=x" ).Get(), Decode( "SIP/2.0/UDP a" ).Get() ) );
}

/* Generated values */

TEST_F( ViaValue, DecodeOfEncodeOfAny )
{
    static constexpr std::string_view hosts[] = { "a",  "a.example.com",       "192.0.2.1", "[2001:db8::1]",
                                                  "a.", "b\u00FCcher.example", "A-b%41" };
    static constexpr std::string_view addresses[] = { "192.0.2.1", "::1", "2001:db8::7", "::ffff:1.2.3.4" };
    static constexpr std::string_view params[] = { "", ";x", ";x=Y;z=\"a  \\\" b\"", ";h=[::1];lr", ";ttl=300" };
    static constexpr std::string_view branches[] = { "z9hG4bK77ef4c2312983.1", "Z", "a-b_c~d" };
    std::mt19937 random( 33 );
    const auto pick = [&]( const auto &from ) { return from[random() % std::size( from )]; };
    const auto often = [&] { return random() % 2 == 0; };
    for ( int i = 0; i < 5000; ++i ) {
        Via via =
            Own( tolmoViaCreate( Sip20().Get(), Str( often() ? "udp" : "TLS" ).Get(), Str( pick( hosts ) ).Get() ) );
        TolmoVia *const v = via.Address();
        tolmoViaSetGenericParams( v, List( pick( params ) ).Get() );
        if ( often() ) {
            tolmoViaSetPort( v, static_cast<KoInt>( random() ) );
        }
        const bool hasTtl = often();
        if ( hasTtl ) {
            tolmoViaSetTtl( v, random() % 256 );
            // A hidden parameter would not come back.
            Params visible = Own( tolmoViaGenericParams( *v ) );
            tolmoGenericParamsDelParamCstr( visible.Address(), "ttl", -1 );
            tolmoViaSetGenericParams( v, visible.Get() );
        }
        if ( often() ) {
            tolmoViaSetMaddr( v, Str( pick( hosts ) ).Get() );
        }
        if ( often() ) {
            tolmoViaSetReceived( v, Address( pick( addresses ) ).Get() );
        }
        switch ( random() % 3 ) {
        case 0:
            tolmoViaSetRportEmpty( v );
            break;
        case 1:
            tolmoViaSetRportNumeric( v, static_cast<KoInt>( random() ) );
            break;
        default:
            break;
        }
        if ( often() ) {
            tolmoViaSetBranch( v, Str( pick( branches ) ).Get() );
        }
        const std::string encoded = Encode( via );
        const Via back = Decode( encoded );
        ASSERT_TRUE( back ) << encoded;
        EXPECT_TRUE( tolmoViaEquals( back.Get(), via.Get() ) ) << encoded;
        EXPECT_EQ( tolmoViaHasRportEmpty( back.Get() ), tolmoViaHasRportEmpty( via.Get() ) );
        EXPECT_EQ( tolmoViaRportNumeric( back.Get() ), tolmoViaRportNumeric( via.Get() ) );
        EXPECT_EQ( Encode( back ), encoded );

        Via changed = Via::Share( via.Get() );
        tolmoViaSetHost( changed.Address(), Str( "changed" ).Get() );
        tolmoViaDelRport( changed.Address() );
        tolmoViaSetGenericParams( changed.Address(), List( ";changed" ).Get() );
        EXPECT_EQ( Encode( via ), encoded );
    }
}

// No text ends the process, and what is decoded is stable.
TEST_F( ViaValue, AnyText )
{
    static constexpr std::string_view pieces[] = { "SIP/2.0/UDP a",
                                                   ";",
                                                   "=",
                                                   " ",
                                                   "ttl",
                                                   "maddr",
                                                   "received",
                                                   "rport",
                                                   "branch",
                                                   "1.2.3.4",
                                                   "::1",
                                                   "[::1]",
                                                   "\"x\"",
                                                   "255",
                                                   "99999999999999999999",
                                                   ":",
                                                   "\t",
                                                   "x" };
    std::mt19937 random( 34 );
    for ( int i = 0; i < 50000; ++i ) {
        std::string text( pieces[0] );
        for ( auto count = random() % 12; count > 0; --count ) {
            text += pieces[1 + random() % ( std::size( pieces ) - 1 )];
        }
        const Via via = Decode( text );
        if ( via ) {
            const std::string encoded = Encode( via );
            const Via back = Decode( encoded );
            ASSERT_TRUE( back ) << text << "\n" << encoded;
            EXPECT_EQ( Encode( back ), encoded ) << text;
        }
    }
}

TEST_F( ViaValue, HundredThousandParameters )
{
    constexpr int count = 100000;
    std::string text = "SIP/2.0/UDP a;branch=z";
    for ( int i = 0; i < count; ++i ) {
        text += ";p" + std::to_string( i );
    }
    const Via via = Decode( text );
    ASSERT_TRUE( via );
    EXPECT_EQ( tolmoGenericParamsLength( Own( tolmoViaGenericParams( via.Get() ) ).Get() ), count );
    EXPECT_EQ( Encode( via ), text );

    std::string same = "SIP/2.0/UDP a";
    for ( int i = 0; i < count; ++i ) {
        same += ";rport;branch=b;ttl=1;received=::1;maddr=m";
    }
    EXPECT_EQ( Encode( Decode( same ) ), "SIP/2.0/UDP a;ttl=1;maddr=m;received=::1;rport;branch=b" );

    const std::string megabyte( 1 << 20, 'x' );
    const std::string quoted = "SIP/2.0/UDP a;x=\"" + megabyte + "\"";
    EXPECT_EQ( Encode( Decode( quoted ) ), quoted );
    const std::string branch = "SIP/2.0/UDP a;branch=" + megabyte;
    EXPECT_EQ( Encode( Decode( branch ) ), branch );
}

} // namespace
