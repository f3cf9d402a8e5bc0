/* The header Accept, whose decoder takes no item: so the list is made by what changes it. */
#include "tolmo_type_test.h"

namespace {

using test::Own;
using test::Str;
using test::Strings;

using List = KoRef<TolmoHeaderAccept>;
constexpr char path[] = "source/tolmo/tolmo_header_accept.cpp";

struct Functions {
    TEST_STANDARD_FUNCTIONS( HeaderAccept )
};

KoRef<TolmoAccept> Range( std::string_view text )
{
    return test::DecodeWith( tolmo___AcceptTryDecode, text );
}

List ListOf( std::initializer_list<std::string_view> ranges )
{
    auto hdr = Own( tolmoHeaderAcceptCreate() );
    for ( const auto range : ranges ) {
        tolmoHeaderAcceptAppendAccept( hdr.Address(), Range( range ).Get() );
    }
    return hdr;
}

List Decode( const Strings &lines )
{
    return Own( tolmoHeaderAcceptTryDecode( test::RawHeader( "Accept", lines ).Get() ) );
}

Strings Items( const List &hdr )
{
    return test::TakeLines( tolmoHeaderAcceptEncode( hdr.Get() ) );
}

class HeaderAccept : public test::TolmoFixture {};

TEST_F( HeaderAccept, StandardOperations )
{
    const auto hdr = ListOf( { "text/plain", "*/*;q=0.5" } );
    test::ExpectStandardOperations<Functions>( hdr.Get(), "TOLMO_HEADER_ACCEPT", path, "hdr", "hdrA", "hdrB" );
    EXPECT_EQ( test::Take( tolmoHeaderAcceptToString( ListOf( {} ).Get() ) ), "" );
    EXPECT_EQ( test::Take( tolmoHeaderAcceptToString( ListOf( { "a/b" } ).Get() ) ), "a/b" );
    EXPECT_EQ( test::Take( tolmoHeaderAcceptToString( hdr.Get() ) ), "[text/plain, */*;q=0.500]" );
}

// No line that holds an item is accepted, also none of those that the encoder writes: that is meant.
TEST_F( HeaderAccept, RefusesItsOwnLines )
{
    for ( const char *const line : { "text/plain", "text/plain;q=1", "*/*", "*/*;a", "a/b;x;y", "a/b,c/d", "a/b;x,;x",
                                     "a/b;x,c/d;y", ";q=1", ",", " ", "x" } ) {
        EXPECT_FALSE( Decode( { line } ) ) << line;
        EXPECT_FALSE( Decode( { "", line } ) ) << line;
        EXPECT_FALSE( Decode( { line, "" } ) ) << line;
    }
    const auto received = test::Received( "Accept: application/sdp\r\n" );
    EXPECT_TRUE( tolmoHeaderAcceptPresentInMessage( received.Get() ) );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryDecodeFromMessage( received.Get() ) ) );

    const auto hdr = ListOf( { "text/plain", "a/b;x" } );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryDecode( Own( tolmoHeaderAcceptEncode( hdr.Get() ) ).Get() ) ) );
    const auto store = Own( tolmoHeaderAcceptStore( hdr.Get() ) );
    EXPECT_EQ( koStoreLength( store.Get() ), 2 );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryRestore( store.Get() ) ) );
}

TEST_F( HeaderAccept, EmptyLinesAndNoLines )
{
    for ( const Strings &lines : { Strings{ "" }, Strings{ "", "" } } ) {
        const auto hdr = Decode( lines );
        ASSERT_TRUE( hdr );
        EXPECT_EQ( tolmoHeaderAcceptAcceptsLength( hdr.Get() ), 0 );
    }
    const auto received = test::Received( "Accept:\r\n" );
    const auto hdr = Own( tolmoHeaderAcceptTryDecodeFromMessage( received.Get() ) );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( tolmoHeaderAcceptAcceptsLength( hdr.Get() ), 0 );
    EXPECT_FALSE( Decode( {} ) );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryRestore( Own( tolmoHeaderAcceptStore( hdr.Get() ) ).Get() ) ) );
}

TEST_F( HeaderAccept, Changes )
{
    auto hdr = ListOf( { "b/b" } );
    const auto object = hdr.Get();
    const auto range = Range( "c/*;q=0" );
    tolmoHeaderAcceptPrependAccept( hdr.Address(), Range( "a/a" ).Get() );
    tolmoHeaderAcceptInsertAccept( hdr.Address(), 1, range.Get() );
    tolmoHeaderAcceptInsertAccept( hdr.Address(), 3, Range( "d/d" ).Get() ); // behind the last one
    EXPECT_EQ( Items( hdr ), ( Strings{ "a/a", "c/*;q=0.000", "b/b", "d/d" } ) );
    tolmoHeaderAcceptSetAcceptAt( hdr.Address(), 3, Range( "*/*" ).Get() );
    tolmoHeaderAcceptDelAcceptAt( hdr.Address(), 0 );
    const Strings items{ "c/*;q=0.000", "b/b", "*/*" };
    EXPECT_EQ( Items( hdr ), items );
    EXPECT_EQ( tolmoHeaderAcceptAcceptsLength( hdr.Get() ), 3 );
    EXPECT_EQ( hdr.Get(), object );             // the only holder: no copy
    EXPECT_EQ( test::Count( range.Get() ), 1 ); // the list holds texts only

    const auto raw = Own( tolmoHeaderAcceptEncode( hdr.Get() ) );
    EXPECT_EQ( test::NameOf( raw.Get() ), "Accept" );
    const std::function<void( TolmoHeaderAccept * )> changes[] = {
        [&]( auto *h ) { tolmoHeaderAcceptSetAcceptAt( h, 1, range.Get() ); },
        [&]( auto *h ) { tolmoHeaderAcceptInsertAccept( h, 1, range.Get() ); },
        [&]( auto *h ) { tolmoHeaderAcceptPrependAccept( h, range.Get() ); },
        [&]( auto *h ) { tolmoHeaderAcceptAppendAccept( h, range.Get() ); },
        [&]( auto *h ) { tolmoHeaderAcceptDelAcceptAt( h, 0 ); },
        [&]( auto *h ) { tolmoHeaderAcceptClearAccepts( h ); }
    };
    for ( const auto &change : changes ) {
        auto shared = List::Share( hdr.Get() );
        change( shared.Address() );
        EXPECT_NE( Items( shared ), items );
        EXPECT_EQ( Items( hdr ), items );
        EXPECT_EQ( test::LinesOf( raw.Get() ), items );
    }
    tolmoHeaderAcceptClearAccepts( hdr.Address() );
    EXPECT_EQ( Items( hdr ), Strings() );
    EXPECT_EQ( hdr.Get(), object );
}

TEST_F( HeaderAccept, Values )
{
    const auto hdr = ListOf( { "Text/Plain;q=1", "*/*" } );
    const auto plain = Own( tolmoHeaderAcceptTryDecodeAcceptAt( hdr.Get(), 0 ) );
    EXPECT_EQ( test::Take( tolmoAcceptMediaSubtype( plain.Get() ) ), "plain" );
    EXPECT_EQ( tolmoAcceptQvalue( plain.Get() ), 1000 );
    EXPECT_FALSE( tolmoAcceptHasMediaType( Own( tolmoHeaderAcceptTryDecodeAcceptAt( hdr.Get(), 1 ) ).Get() ) );
}

TEST_F( HeaderAccept, Compare )
{
    EXPECT_EQ( tolmoHeaderAcceptCompare( ListOf( { "A/b" } ).Get(), ListOf( { "a/B" } ).Get() ), 0 );
    EXPECT_LT( tolmoHeaderAcceptCompare( ListOf( {} ).Get(), ListOf( { "a/b" } ).Get() ), 0 );
    EXPECT_LT( tolmoHeaderAcceptCompare( ListOf( { "a/b" } ).Get(), ListOf( { "a/b", "a/a" } ).Get() ), 0 );
    EXPECT_FALSE( tolmoHeaderAcceptEquals( ListOf( { "a/a", "b/b" } ).Get(), ListOf( { "b/b", "a/a" } ).Get() ) );
}

TEST_F( HeaderAccept, InMessage )
{
    auto msg = test::Received( "Accept: x/x, y/y\r\nX-B: 2\r\n" );
    const auto other = KoRef<TolmoMessage>::Share( msg.Get() );
    tolmoHeaderAcceptEncodeToMessage( ListOf( { "a/a", "b/b" } ).Get(), msg.Address() );
    EXPECT_NE( msg.Get(), other.Get() );
    const auto bytes = test::TakeBytes( tolmoMessageEncode( msg.Get() ) );
    EXPECT_NE( bytes.find( "Accept: a/a\r\nAccept: b/b\r\nX-B: 2\r\n" ), std::string::npos ) << bytes;

    tolmoHeaderAcceptEncodeToMessage( ListOf( {} ).Get(), msg.Address() );
    EXPECT_TRUE( tolmoHeaderAcceptPresentInMessage( msg.Get() ) );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryDecodeFromMessage( msg.Get() ) ) );
    tolmoHeaderAcceptRemoveFromMessage( msg.Address() );
    EXPECT_FALSE( tolmoHeaderAcceptPresentInMessage( msg.Get() ) );
    EXPECT_TRUE( tolmoHeaderAcceptPresentInMessage( other.Get() ) );
}

TEST_F( HeaderAccept, Aborts )
{
    auto hdr = ListOf( { "a/a", "b/b" } );
    auto msg = test::Received( "" );
    TolmoHeaderAccept none = nullptr;
    TolmoMessage noMessage = nullptr;
    EXPECT_ABORT( tolmoHeaderAcceptEncode( nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptTryDecode( test::RawHeader( "Accept-Encoding", {} ).Get() ), path,
                  "tolmoMessageHeaderNameEquals( header, tolmo___KosAccept )" );
    EXPECT_ABORT( tolmoHeaderAcceptEncodeToMessage( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptEncodeToMessage( hdr.Get(), nullptr ), path, "msg" );
    EXPECT_ABORT( tolmoHeaderAcceptEncodeToMessage( hdr.Get(), &noMessage ), path, "*msg" );
    EXPECT_ABORT( tolmoHeaderAcceptTryDecodeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( tolmoHeaderAcceptPresentInMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( tolmoHeaderAcceptRemoveFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( tolmoHeaderAcceptRemoveFromMessage( &noMessage ), path, "*msg" );
    EXPECT_ABORT( tolmoHeaderAcceptStore( nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptTryRestore( nullptr ), path, "store" );

    EXPECT_ABORT( tolmoHeaderAcceptAcceptsLength( nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptTryDecodeAcceptAt( nullptr, 0 ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptSetAcceptAt( nullptr, 0, nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptSetAcceptAt( &none, 0, nullptr ), path, "*hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptInsertAccept( nullptr, 0, nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptInsertAccept( &none, 0, nullptr ), path, "*hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptPrependAccept( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptPrependAccept( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptAppendAccept( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptAppendAccept( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptDelAcceptAt( nullptr, 0 ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptDelAcceptAt( &none, 0 ), path, "*hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptClearAccepts( nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderAcceptClearAccepts( &none ), path, "*hdr" );

    // The value is the encoder's to test, the index the runtime's.
    const char value[] = "source/tolmo/tolmo_accept.cpp";
    EXPECT_ABORT( tolmoHeaderAcceptSetAcceptAt( hdr.Address(), 9, nullptr ), value, "accept" );
    EXPECT_ABORT( tolmoHeaderAcceptInsertAccept( hdr.Address(), 9, nullptr ), value, "accept" );
    EXPECT_ABORT( tolmoHeaderAcceptPrependAccept( hdr.Address(), nullptr ), value, "accept" );
    EXPECT_ABORT( tolmoHeaderAcceptAppendAccept( hdr.Address(), nullptr ), value, "accept" );
    const char vector[] = "source/runtime/ko_vector.cpp";
    const auto range = Range( "*/*" );
    for ( const KoInt index : { -1, 2 } ) {
        EXPECT_ABORT( tolmoHeaderAcceptTryDecodeAcceptAt( hdr.Get(), index ), vector,
                      "index >= 0 && index < koVectorLength( v )" );
        EXPECT_ABORT( tolmoHeaderAcceptSetAcceptAt( hdr.Address(), index, range.Get() ), vector,
                      "index >= 0 && index < koVectorLength( *v )" );
        EXPECT_ABORT( tolmoHeaderAcceptDelAcceptAt( hdr.Address(), index ), vector,
                      "index >= 0 && index < koVectorLength( *v )" );
    }
    for ( const KoInt index : { -1, 3 } ) {
        EXPECT_ABORT( tolmoHeaderAcceptInsertAccept( hdr.Address(), index, range.Get() ), vector,
                      "index >= 0 && index <= koVectorLength( *v )" );
    }
}

} // namespace
