/* The headers CSeq and RAck. */
#include "tolmo_header_party_test.h"

namespace {

using test::Own;
using test::Str;

const test::HeaderType<TolmoHeaderCseq> cseq = TEST_HEADER( Cseq, "cseq", "Cseq" );
const test::HeaderType<TolmoHeaderRack> rack = TEST_HEADER( Rack, "rack", "Rack" );

constexpr char cseqOk[] = "tolmoCseqOk( cseq )";
constexpr char methodOk[] = "tolmoMethodOk( method )";
constexpr char responseNumOk[] = "tolmoResponseNumOk( responseNum )";

class CseqRack : public test::TolmoFixture {};

TEST_F( CseqRack, SingleValue )
{
    test::ExpectSingleValue( cseq, "1 INVITE", "INVITE" );
    test::ExpectSingleValue( rack, "1 2 INVITE", "1 INVITE" );
}

const test::Row cseqRows[] = {
    { "1 INVITE", "1 INVITE" },
    { "1 \t  INVITE", "1 INVITE" },
    { "0001 INVITE", "1 INVITE" },
    { "0 INVITE", "0 INVITE" },
    { "2147483647 INVITE", "2147483647 INVITE" },
    { "2147483648 INVITE", test::null },
    { "9223372036854775807 INVITE", test::null },
    { "9223372036854775808 INVITE", test::null },
    { "18446744073709551617 INVITE", test::null },
    { "00000000000000000000000000000001 INVITE", "1 INVITE" },
    { "1 invite", "1 invite" }, // no case is folded
    { "1 x-.!%*_+`'~9", "1 x-.!%*_+`'~9" },
    { "1 1", "1 1" },
    { "", test::null },
    { "1", test::null },
    { "1 ", test::null },
    { "INVITE", test::null },
    { "INVITE 1", test::null },
    { "1INVITE", test::null },
    { "+1 INVITE", test::null },
    { "-1 INVITE", test::null },
    { "-0 INVITE", test::null },
    { "0x1 INVITE", test::null },
    { "1. INVITE", test::null },
    { " 1 INVITE", test::null },
    { "1 INVITE ", test::null },
    { "1 INVITE x", test::null },
    { "1 INVITE;x", test::null },
    { "1 INVITE, 2 ACK", test::null },
    { "\u0661 INVITE", test::null },
    { "1 INV\u00CFTE", test::null },
    { "1\u00A0INVITE", test::null },
};

const test::Row rackRows[] = {
    { "1 2 INVITE", "1 2 INVITE" },
    { "1\t 2  \tINVITE", "1 2 INVITE" },
    { "01 002 invite", "1 2 invite" },
    { "0 1 INVITE", test::null },
    { "1 0 INVITE", "1 0 INVITE" },
    { "4294967295 2147483647 INVITE", "4294967295 2147483647 INVITE" },
    { "4294967296 1 INVITE", test::null },
    { "1 2147483648 INVITE", test::null },
    { "18446744073709551617 1 INVITE", test::null },
    { "1 18446744073709551617 INVITE", test::null },
    { "", test::null },
    { "1", test::null },
    { "1 2", test::null },
    { "1 2 ", test::null },
    { "1 INVITE", test::null },
    { "1 2INVITE", test::null },
    { "+1 2 INVITE", test::null },
    { "1 +2 INVITE", test::null },
    { "-1 2 INVITE", test::null },
    { "1 -2 INVITE", test::null },
    { " 1 2 INVITE", test::null },
    { "1 2 INVITE ", test::null },
    { "1 2 INVITE x", test::null },
    { "1 2 3 INVITE", test::null },
};

TEST_F( CseqRack, Rows )
{
    for ( const test::Row &row : cseqRows ) {
        test::ExpectRow( cseq, row );
    }
    for ( const test::Row &row : rackRows ) {
        test::ExpectRow( rack, row );
    }
    const std::string zeros( 100000, '0' );
    EXPECT_EQ( test::Recode( cseq, zeros + "7 " + zeros ), "7 " + zeros );
    EXPECT_EQ( test::Recode( cseq, zeros ), test::null );
    EXPECT_EQ( test::Recode( cseq, "7" + zeros + " X" ), test::null );
}

TEST_F( CseqRack, CseqFields )
{
    using H = TolmoHeaderCseq;
    const auto method = Str( "Invite" );
    auto hdr = Own( tolmoHeaderCseqCreate( 7, method.Get() ) );
    EXPECT_EQ( tolmoHeaderCseqCseq( hdr.Get() ), 7 );
    EXPECT_EQ( Own( tolmoHeaderCseqMethod( hdr.Get() ) ).Get(), method.Get() );
    EXPECT_EQ( test::Encode( cseq, hdr ), "7 Invite" );
    hdr = test::Decode( cseq, "0012 ack" );
    EXPECT_EQ( tolmoHeaderCseqCseq( hdr.Get() ), 12 );
    EXPECT_EQ( test::Take( tolmoHeaderCseqMethod( hdr.Get() ) ), "ack" );

    test::ExpectChanges<H>( cseq, "1 INVITE",
                            { { "2147483647 INVITE", []( H *h ) { tolmoHeaderCseqSetCseq( h, 2147483647 ); } },
                              { "0 INVITE", []( H *h ) { tolmoHeaderCseqSetCseq( h, 0 ); } },
                              { "1 ack", []( H *h ) { tolmoHeaderCseqSetMethod( h, Str( "ack" ).Get() ); } },
                              { "1 ACK", []( H *h ) { tolmoHeaderCseqSetMethodCstr( h, "ACKx", 3 ); } },
                              { "1 BYE", []( H *h ) { tolmoHeaderCseqSetMethodCstr( h, "BYE", -1 ); } },
                              { "1 PRACK", []( H *h ) {
                                   static constexpr uint16_t prack[] = { 'P', 'R', 'A', 'C', 'K', 0 };
                                   tolmoHeaderCseqSetMethodWcstr( h, prack, -1 );
                               } } } );

    const std::string &path = cseq.path;
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoHeaderCseqCreate( -1, bad.Get() ), path, cseqOk );
    EXPECT_ABORT( tolmoHeaderCseqCreate( 2147483648, method.Get() ), path, cseqOk );
    EXPECT_ABORT( tolmoHeaderCseqCreate( 1, bad.Get() ), path, methodOk );
    EXPECT_ABORT( tolmoHeaderCseqCreate( 1, Str( "" ).Get() ), path, methodOk );
    EXPECT_ABORT( tolmoHeaderCseqCreate( 1, nullptr ), "source/tolmo/tolmo_method.cpp", "method" );
    EXPECT_ABORT( tolmoHeaderCseqCseq( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( cseq, tolmoHeaderCseqSetCseq, -1 );
    EXPECT_ABORT( tolmoHeaderCseqSetCseq( hdr.Address(), -1 ), path, cseqOk );
    EXPECT_ABORT( tolmoHeaderCseqSetCseq( hdr.Address(), 2147483648 ), path, cseqOk );
    EXPECT_ABORT( tolmoHeaderCseqMethod( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( cseq, tolmoHeaderCseqSetMethod, nullptr );
    EXPECT_HANDLE_ABORTS( cseq, tolmoHeaderCseqSetMethodCstr, "a b", -1 );
    EXPECT_ABORT( tolmoHeaderCseqSetMethod( hdr.Address(), bad.Get() ), path, methodOk );
    EXPECT_ABORT( tolmoHeaderCseqSetMethodCstr( hdr.Address(), "a b", -1 ), path, methodOk );
    static constexpr uint16_t blank[] = { ' ', 0 };
    EXPECT_ABORT( tolmoHeaderCseqSetMethodWcstr( hdr.Address(), blank, -1 ), path, methodOk );
}

TEST_F( CseqRack, RackFields )
{
    using H = TolmoHeaderRack;
    const auto method = Str( "Invite" );
    auto hdr = Own( tolmoHeaderRackCreate( 4294967295, 7, method.Get() ) );
    EXPECT_EQ( tolmoHeaderRackResponseNum( hdr.Get() ), 4294967295 );
    EXPECT_EQ( tolmoHeaderRackCseq( hdr.Get() ), 7 );
    EXPECT_EQ( Own( tolmoHeaderRackMethod( hdr.Get() ) ).Get(), method.Get() );
    EXPECT_EQ( test::Encode( rack, hdr ), "4294967295 7 Invite" );

    test::ExpectChanges<H>( rack, "1 2 INVITE",
                            { { "4294967295 2 INVITE", []( H *h ) { tolmoHeaderRackSetResponseNum( h, 4294967295 ); } },
                              { "1 0 INVITE", []( H *h ) { tolmoHeaderRackSetCseq( h, 0 ); } },
                              { "1 2 ack", []( H *h ) { tolmoHeaderRackSetMethod( h, Str( "ack" ).Get() ); } } } );

    const std::string &path = rack.path;
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoHeaderRackCreate( 0, -1, bad.Get() ), path, responseNumOk );
    EXPECT_ABORT( tolmoHeaderRackCreate( 4294967296, 1, method.Get() ), path, responseNumOk );
    EXPECT_ABORT( tolmoHeaderRackCreate( 1, -1, bad.Get() ), path, cseqOk );
    EXPECT_ABORT( tolmoHeaderRackCreate( 1, 1, bad.Get() ), path, methodOk );
    EXPECT_ABORT( tolmoHeaderRackResponseNum( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( rack, tolmoHeaderRackSetResponseNum, 0 );
    EXPECT_ABORT( tolmoHeaderRackSetResponseNum( hdr.Address(), 0 ), path, responseNumOk );
    EXPECT_ABORT( tolmoHeaderRackCseq( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( rack, tolmoHeaderRackSetCseq, -1 );
    EXPECT_ABORT( tolmoHeaderRackSetCseq( hdr.Address(), -1 ), path, cseqOk );
    EXPECT_ABORT( tolmoHeaderRackMethod( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( rack, tolmoHeaderRackSetMethod, nullptr );
    EXPECT_ABORT( tolmoHeaderRackSetMethod( hdr.Address(), bad.Get() ), path, methodOk );
}

TEST_F( CseqRack, OrderOfCseq )
{
    test::ExpectAscending( cseq, { "0 Z", "1 A", "1 AA", "1 B", "1 a", "2 A", "10 A" } ); // the number first
}

// Methods of RAck compare by the string object.
TEST_F( CseqRack, OrderOfRack )
{
    const auto method = Str( "INVITE" );
    const auto same = Str( "INVITE" );
    const auto create = [&]( KoInt responseNum, KoInt number, KoString text ) {
        return Own( tolmoHeaderRackCreate( responseNum, number, text ) );
    };
    const auto order = [&]( const auto &a, const auto &b ) {
        const KoInt there = tolmoHeaderRackCompare( a.Get(), b.Get() );
        EXPECT_EQ( there, -tolmoHeaderRackCompare( b.Get(), a.Get() ) );
        EXPECT_EQ( there == 0, tolmoHeaderRackEquals( a.Get(), b.Get() ) );
        return there;
    };
    EXPECT_EQ( order( create( 1, 2, method.Get() ), create( 1, 2, method.Get() ) ), 0 );
    EXPECT_EQ( order( create( 1, 2, method.Get() ), create( 1, 2, same.Get() ) ),
               reinterpret_cast<uintptr_t>( method.Get() ) < reinterpret_cast<uintptr_t>( same.Get() ) ? -1 : 1 );
    EXPECT_EQ( order( create( 1, 9, method.Get() ), create( 2, 1, method.Get() ) ), -1 );
    EXPECT_EQ( order( create( 1, 9, method.Get() ), create( 2, 1, same.Get() ) ), -1 );
    EXPECT_EQ( order( create( 1, 1, method.Get() ), create( 1, 2, method.Get() ) ), -1 );
    EXPECT_EQ( order( create( 1, 1, same.Get() ), create( 1, 2, method.Get() ) ), -1 );

    const auto line = test::RawHeader( "RAck", { "1 2 INVITE" } );
    const auto hdr = Own( tolmoHeaderRackTryDecode( line.Get() ) );
    EXPECT_NE( order( hdr, Own( tolmoHeaderRackTryDecode( line.Get() ) ) ), 0 );
    EXPECT_EQ( order( hdr, Own( tolmoHeaderRackCreateFrom( hdr.Get() ) ) ), 0 );
    EXPECT_NE( order( hdr, Own( tolmoHeaderRackTryRestore( Own( tolmoHeaderRackStore( hdr.Get() ) ).Get() ) ) ), 0 );
    const auto msg = test::Received( "RAck: 1 2 INVITE\r\n" );
    EXPECT_NE( order( Own( tolmoHeaderRackTryDecodeFromMessage( msg.Get() ) ),
                      Own( tolmoHeaderRackTryDecodeFromMessage( msg.Get() ) ) ),
               0 );
    EXPECT_TRUE(
        tolmoHeaderCseqEquals( test::Decode( cseq, "1 INVITE" ).Get(), test::Decode( cseq, "01  INVITE" ).Get() ) );
}

TEST_F( CseqRack, Generated )
{
    test::Generator generate( 4 );
    for ( int i = 0; i < 1000; ++i ) {
        const auto method = Str( generate.Token() );
        const auto number = static_cast<KoInt>( generate.Below( 2147483648u ) );
        test::ExpectRoundTrip( cseq, Own( tolmoHeaderCseqCreate( number, method.Get() ) ) );
        const auto hdr = Own( tolmoHeaderRackCreate( 2 * number + 1, number, method.Get() ) );
        EXPECT_EQ( test::Recode( rack, test::Encode( rack, hdr ) ), test::Encode( rack, hdr ) );
    }
}

} // namespace
