/* The header Via. */
#include "tolmo_value_list_test.h"

namespace {

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( Via, Via, Via, ClearVias )
    static constexpr char header[] = "Via";
    static constexpr char sort[] = "TOLMO_HEADER_VIA";
    static constexpr char path[] = "source/tolmo/tolmo_header_via.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosVia )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_via.cpp";
    static constexpr char value[] = "via";
    static constexpr bool emptyWithoutLines = true;
    static constexpr const char *items[] = { "SIP/2.0/UDP a;branch=z9hG4bKa", "SIP/2.0/TCP [::1]:5060;rport;x=\",\"",
                                             "SIP/2.0/TLS b;received=192.0.2.1" };
    static constexpr char otherSpelling[] = "SIP / 2.0 / udp\ta;Branch=z9hG4bKa";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderVia, ValueList, Member );

KoRef<TolmoHeaderVia> Decode( const test::Strings &lines )
{
    const auto header = test::RawHeader( Member::header, lines );
    return KoRef<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecode( header.Get() ) );
}

test::Strings Items( const test::Strings &lines )
{
    const auto hdr = Decode( lines );
    return test::TakeLines( hdr ? tolmoHeaderViaEncode( hdr.Get() ) : nullptr );
}

class HeaderVia : public test::TolmoFixture {};

TEST_F( HeaderVia, Rows )
{
    using test::Strings;
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "SIP/2.0/UDP a, SIP/2.0/TCP b", { "SIP/2.0/UDP a", "SIP/2.0/TCP b" } },
        { "SIP/2.0/UDP a, SIP/2.0/TCP b,", null },
        { "SIP/2.0/UDP a ,\tSIP/2.0/TCP b", { "SIP/2.0/UDP a", "SIP/2.0/TCP b" } }, // blanks at a comma are of no item
        { "SIP / 2.0 / UDP  a : 1 ; x = y", { "SIP / 2.0 / UDP  a : 1 ; x = y" } }, // those inside are
        { "SIP/2.0/UDP a;x=\"b, c\",SIP/2.0/TCP b", { "SIP/2.0/UDP a;x=\"b, c\"", "SIP/2.0/TCP b" } },
        { "SIP/2.0/UDP a;received=::1", { "SIP/2.0/UDP a;received=::1" } },
        { "SIP/2.0/UDP a ", null }, // a blank at the end
        { " SIP/2.0/UDP a", null }, // and at the beginning
        { "SIP/2.0/UDP a;", null },
        { "SIP/2.0/UDP a (c)", null }, // no comments
        { "SIP/2.0/UDP ::1", null },
        { "SIP/2.0/UDPa", null },
        { "SIP/2.0", null },
        { "SIP/2.0/UDP a SIP/2.0/UDP b", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

TEST_F( HeaderVia, WithoutLines )
{
    const auto hdr = Decode( {} );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( tolmoHeaderViaViasLength( hdr.Get() ), 0 );
    auto msg = test::Received( "" );
    tolmoMessageSetHeader( msg.Address(), test::RawHeader( "Via", {} ).Get() );
    EXPECT_TRUE( tolmoHeaderViaPresentInMessage( msg.Get() ) );
    EXPECT_EQ( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ), nullptr ); // its decoder is not asked
}

// The list looks at an item with its skip function alone, which is less strict than the decoder of the value.
TEST_F( HeaderVia, ItemThatDoesNotDecode )
{
    const auto hdr = Decode( { "SIP/2.0/UDP a;ttl=1x, SIP/2.0/UDP b;rportal=1,SIP/2.0/UDP c;rport=,SIP/2.0/UDP d" } );
    EXPECT_FALSE( hdr ); // a parameter without its value is none for the skip function, either
    const auto passed = Decode( { "SIP/2.0/UDP a;ttl=1x, SIP/2.0/UDP b;rportal=1,SIP/2.0/UDP d" } );
    ASSERT_EQ( tolmoHeaderViaViasLength( passed.Get() ), 3 );
    EXPECT_EQ( tolmoHeaderViaTryDecodeViaAt( passed.Get(), 0 ), nullptr );
    EXPECT_EQ( tolmoHeaderViaTryDecodeViaAt( passed.Get(), 1 ), nullptr );
    const auto via = KoRef<TolmoVia>::Adopt( tolmoHeaderViaTryDecodeViaAt( passed.Get(), 2 ) );
    EXPECT_EQ( test::Take( tolmo___ViaEncode( via.Get() ) ), "SIP/2.0/UDP d" );
}

TEST_F( HeaderVia, SnapshotOfTheValue )
{
    auto hdr = KoRef<TolmoHeaderVia>::Adopt( tolmoHeaderViaCreate() );
    auto via = test::DecodeWith( tolmo___ViaTryDecode, "SIP / 2.0 / udp a" );
    tolmoHeaderViaAppendVia( hdr.Address(), via.Get() );
    tolmoViaSetPort( via.Address(), 5060 );
    EXPECT_EQ( test::Take( tolmoHeaderViaToString( hdr.Get() ) ), "SIP/2.0/UDP a" );
}

// The stack of a proxy: the compact name is the same header, the top item is the first of the first line.
TEST_F( HeaderVia, PushAndPop )
{
    auto msg = test::Received( "v: SIP/2.0/UDP b;branch=1, SIP/2.0/UDP c\r\nVIA: SIP/2.0/TCP d\r\n" );
    auto hdr = KoRef<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    ASSERT_EQ( tolmoHeaderViaViasLength( hdr.Get() ), 3 );
    const auto own = test::DecodeWith( tolmo___ViaTryDecode, "SIP/2.0/TLS a;branch=0" );
    tolmoHeaderViaPrependVia( hdr.Address(), own.Get() );
    tolmoHeaderViaEncodeToMessage( hdr.Get(), msg.Address() );
    EXPECT_NE( test::TakeBytes( tolmoMessageEncode( msg.Get() ) )
                   .find( "Via: SIP/2.0/TLS a;branch=0\r\nVia: SIP/2.0/UDP b;branch=1\r\n"
                          "Via: SIP/2.0/UDP c\r\nVia: SIP/2.0/TCP d\r\n" ),
               std::string::npos );
    tolmoHeaderViaDelViaAt( hdr.Address(), 0 );
    tolmoHeaderViaEncodeToMessage( hdr.Get(), msg.Address() );
    const auto top = KoRef<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    const auto via = KoRef<TolmoVia>::Adopt( tolmoHeaderViaTryDecodeViaAt( top.Get(), 0 ) );
    EXPECT_EQ( test::Take( tolmoViaBranch( via.Get() ) ), "1" );
}

} // namespace
