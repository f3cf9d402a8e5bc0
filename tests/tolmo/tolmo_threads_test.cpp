/* Threads: what is shared is shared by handles of one's own, and nobody sees another one's change. For the sanitizer. */
#include "tolmo_test.h"

#include <atomic>
#include <fstream>
#include <iterator>
#include <thread>

namespace {

using test::Own;
using test::Str;

constexpr int threadCount = 8;
constexpr int rounds = 100;

/** Runs a function in eight threads, which begin together. It gets the number of its thread. */
void InThreads( const std::function<void( int )> &run )
{
    std::atomic<int> waiting = threadCount;
    std::vector<std::thread> threads;
    for ( int i = 0; i < threadCount; ++i ) {
        threads.emplace_back( [&, i] {
            --waiting;
            while ( waiting > 0 ) {
                std::this_thread::yield();
            }
            run( i );
        } );
    }
    for ( std::thread &thread : threads ) {
        thread.join();
    }
}

std::string Read( const std::string &name )
{
    std::ifstream file( TEST_CORPUS "/wire/" + name, std::ios::binary );
    return { std::istreambuf_iterator<char>( file ), {} };
}

/* The module. Without the fixture that keeps it started, so that the last stop of a round stops it. */

class ModuleThreads : public test::Fixture {
protected:
    void SetUp() override
    {
        const KoModuleScope once( tolmoModule() ); // what a first start keeps is no leak
        Fixture::SetUp();
    }
};

TEST_F( ModuleThreads, StartAndStop )
{
    const std::string text = "SIP/2.0/UDP a;ttl=1;branch=z;x=y";
    InThreads( [&]( int ) {
        for ( int round = 0; round < rounds; ++round ) {
            const KoModuleScope scope( tolmoModule() );
            const test::Exact chs( text );
            const auto via = Own( tolmo___ViaTryDecode( chs.Chars(), chs.Length() ) );
            EXPECT_EQ( test::Take( tolmo___ViaEncode( via.Get() ) ), text );
            const auto header = Own( tolmoMessageHeaderCreateCstr( "v", -1 ) );
            EXPECT_EQ( test::Take( tolmoMessageHeaderName( header.Get() ) ), "Via" );
        }
    } );
}

/* One message for all threads */

class Threads : public test::TolmoFixture {};

constexpr char request[] = "INVITE sip:bob@example.com SIP/2.0\r\n"
                           "v: SIP/2.0/TCP one.example.com;branch=z1, SIP/2.0/UDP two.example.com;branch=z2\r\n"
                           "Max-Forwards: 70\r\n"
                           "f: \"Alice\" <sip:alice@example.com>;tag=a\r\n"
                           "t: <sip:bob@example.com>\r\n"
                           "Call-ID: call@example.com\r\n"
                           "CSeq: 1 INVITE\r\n"
                           "s: Greetings\r\n"
                           "X-Other: left\r\n"
                           "X-Other: alone\r\n"
                           "Content-Length: 4\r\n"
                           "\r\n"
                           "body";

/** The request as thread number `i` makes it. */
std::string Changed( int i )
{
    const std::string number = std::to_string( i );
    return "INVITE sip:bob@example.com SIP/2.0\r\n"
           "Via: SIP/2.0/UDP thread" +
           number +
           ".example.com\r\n"
           "Via: SIP/2.0/TCP one.example.com;received=192.0.2." +
           number +
           ";branch=z1\r\n"
           "Via: SIP/2.0/UDP two.example.com;branch=z2\r\n"
           "Max-Forwards: " +
           number +
           "\r\n"
           "From: \"Alice\" <sip:alice@example.com>;tag=a\r\n"
           "To: <sip:bob@example.com>;tag=t" +
           number +
           "\r\n"
           "Call-Id: call@example.com\r\n"
           "Cseq: 1" +
           number +
           " INVITE\r\n"
           "Subject: Thread " +
           number +
           "\r\n"
           "X-Other: left\r\n"
           "X-Other: alone\r\n"
           "Content-Length: 4\r\n"
           "X-Thread: " +
           number +
           "\r\n"
           "\r\n"
           "body";
}

/** Reads everything, changes it through handles of its own, and encodes. */
std::string Change( TolmoMessage shared, int i )
{
    const std::string number = std::to_string( i );
    auto msg = KoRef<TolmoMessage>::Share( shared );

    auto vias = Own( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    auto top = Own( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
    const test::Exact address( "192.0.2." + number );
    tolmoViaSetReceived( top.Address(),
                         Own( wenAddressTryCreateFromChars( address.Chars(), address.Length() ) ).Get() );
    tolmoHeaderViaSetViaAt( vias.Address(), 0, top.Get() );
    const auto own = Own( tolmoViaCreate( Own( tolmoVersionCreateSip20() ).Get(), Str( "udp" ).Get(),
                                          Str( "thread" + number + ".example.com" ).Get() ) );
    tolmoHeaderViaPrependVia( vias.Address(), own.Get() );
    tolmoHeaderViaEncodeToMessage( vias.Get(), msg.Address() );

    auto hops = Own( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderMaxForwardsSetMaxForwards( hops.Address(), i );
    tolmoHeaderMaxForwardsEncodeToMessage( hops.Get(), msg.Address() );

    auto to = Own( tolmoHeaderToTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderToSetTag( to.Address(), Str( "t" + number ).Get() );
    tolmoHeaderToEncodeToMessage( to.Get(), msg.Address() );

    auto cseq = Own( tolmoHeaderCseqTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderCseqSetCseq( cseq.Address(), 10 + i );
    tolmoHeaderCseqEncodeToMessage( cseq.Get(), msg.Address() );

    auto subject = Own( tolmoHeaderSubjectTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderSubjectSetSubject( subject.Address(), Str( "Thread " + number ).Get() );
    tolmoHeaderSubjectEncodeToMessage( subject.Get(), msg.Address() );

    auto other = Own( tolmoMessageHeaderCreate( Str( "x-thread" ).Get() ) );
    tolmoMessageHeaderAppendLine( other.Address(), Str( number ).Get() );
    tolmoMessageSetHeader( msg.Address(), other.Get() );
    return test::TakeBytes( tolmoMessageEncode( msg.Get() ) );
}

TEST_F( Threads, OneMessage )
{
    const auto msg = Own( tolmoMessageTryDecode( test::Buf( request ).Get() ) );
    ASSERT_TRUE( msg );
    const std::string original = test::TakeBytes( tolmoMessageEncode( msg.Get() ) );
    InThreads( [&]( int i ) {
        for ( int round = 0; round < rounds; ++round ) {
            EXPECT_EQ( Change( msg.Get(), i ), Changed( i ) );
        }
    } );
    EXPECT_EQ( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ), original );
    EXPECT_EQ( test::Count( msg.Get() ), 1 );
}

TEST_F( Threads, OneMessageIsReadInEveryWay )
{
    const auto msg = Own( tolmoMessageTryDecode( test::Buf( request ).Get() ) );
    ASSERT_TRUE( msg );
    InThreads( [&]( int ) {
        for ( int round = 0; round < rounds; ++round ) {
            EXPECT_TRUE( tolmoMessageIsRequest( msg.Get() ) );
            EXPECT_EQ( test::Take( tolmoMessageRequestMethod( msg.Get() ) ), "INVITE" );
            EXPECT_EQ( test::Take( tolmoMessageRequestIri( msg.Get() ) ), "sip:bob@example.com" );
            EXPECT_EQ( test::TakeBytes( tolmoMessageBody( msg.Get() ) ), "body" );
            EXPECT_TRUE( tolmoMessageHasHeaderCstr( msg.Get(), "x-OTHER", -1 ) );
            const auto other = Own( tolmoMessageHeaderCstr( msg.Get(), "x-OTHER", -1 ) );
            EXPECT_EQ( test::Take( tolmoMessageHeaderLineAt( other.Get(), 1 ) ), "alone" );
            EXPECT_EQ( koVectorLength( Own( tolmoMessageHeadersVector( msg.Get() ) ).Get() ), 9 );
            const auto fragment = Own( tolmoMessageFragment( msg.Get() ) );
            EXPECT_TRUE( tolmoMessageFragmentIsRequest( fragment.Get() ) );
            const auto copy = Own( tolmoMessageCreateFrom( msg.Get() ) );
            EXPECT_TRUE( tolmoHeaderFromPresentInMessage( copy.Get() ) );
        }
    } );
}

// Raw headers that were set are objects, which all threads share.
TEST_F( Threads, OneMessageOfSetHeaders )
{
    auto msg = Own( tolmoMessageTryDecode( test::Buf( request ).Get() ) );
    const auto headers = Own( tolmoMessageHeadersVector( msg.Get() ) );
    for ( KoInt i = 0; i < koVectorLength( headers.Get() ); ++i ) {
        const auto header = Own( koVectorObjAt( headers.Get(), i ) );
        tolmoMessageSetHeader( msg.Address(), tolmoMessageHeaderFrom( header.Get() ) );
    }
    InThreads( [&]( int i ) {
        for ( int round = 0; round < rounds; ++round ) {
            EXPECT_EQ( Change( msg.Get(), i ), Changed( i ) );
        }
    } );
}

/* Other objects that are shared */

TEST_F( Threads, OneStringVectorAndDictionary )
{
    const auto string = Str( "shared" );
    auto vector = Own( koVectorCreate() );
    koVectorAppendString( vector.Address(), string.Get() );
    auto dict = Own( koDictCreate() );
    for ( int i = 0; i < 40; ++i ) { // enough for an index
        koDictSetStringKey( dict.Address(), Str( std::to_string( i ) ).Get(), koStringObj( string.Get() ) );
    }
    InThreads( [&]( int i ) {
        const std::string number = std::to_string( i );
        for ( int round = 0; round < rounds; ++round ) {
            auto ownString = KoRef<KoString>::Share( string.Get() );
            koStringAppendCstr( ownString.Address(), number.c_str(), -1 );
            EXPECT_EQ( test::Text( ownString ), "shared" + number );

            auto ownVector = KoRef<KoVector>::Share( vector.Get() );
            koVectorAppendString( ownVector.Address(), ownString.Get() );
            EXPECT_EQ( test::Take( koVectorToString( ownVector.Get() ) ), "[shared, shared" + number + "]" );

            auto ownDict = KoRef<KoDict>::Share( dict.Get() );
            koDictSetStringKey( ownDict.Address(), ownString.Get(), koStringObj( ownString.Get() ) );
            koDictDelStringKey( ownDict.Address(), Str( number ).Get() );
            EXPECT_FALSE( koDictHasStringKey( ownDict.Get(), Str( number ).Get() ) );
            EXPECT_TRUE( koDictHasStringKey( ownDict.Get(), ownString.Get() ) );
            EXPECT_TRUE( koDictHasStringKey( dict.Get(), Str( number ).Get() ) );
        }
    } );
    EXPECT_EQ( test::Text( string ), "shared" );
    EXPECT_EQ( koVectorLength( vector.Get() ), 1 );
    EXPECT_EQ( koDictLength( dict.Get() ), 40 );
}

TEST_F( Threads, OneListOfParameters )
{
    const test::Exact chs( ";a=1;b=\"2\";c" );
    const auto params = Own( tolmo___GenericParamsTryDecode( chs.Chars(), chs.Length() ) );
    const auto value = Str( "v" );
    InThreads( [&]( int i ) {
        const auto name = Str( "p" + std::to_string( i ) );
        for ( int round = 0; round < rounds; ++round ) {
            // By a second handle, and by a list that shares the dictionary.
            auto own = round % 2 == 0 ? KoRef<TolmoGenericParams>::Share( params.Get() )
                                      : Own( tolmoGenericParamsCreateFrom( params.Get() ) );
            tolmoGenericParamsSetParamValue( own.Address(), name.Get(), TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN,
                                             value.Get() );
            tolmoGenericParamsDelParamCstr( own.Address(), "b", -1 );
            EXPECT_EQ( test::Take( tolmo___GenericParamsEncode( own.Get() ) ), ";a=1;c;" + test::Text( name ) + "=v" );
            auto param = Own( tolmoGenericParamsParamAt( own.Get(), 0 ) );
            tolmoGenericParamSetName( param.Address(), name.Get() );
        }
    } );
    EXPECT_EQ( test::Take( tolmo___GenericParamsEncode( params.Get() ) ), ";a=1;b=\"2\";c" );
}

// The last reference of an object may be dropped by any thread.
TEST_F( Threads, LastReference )
{
    for ( int round = 0; round < rounds; ++round ) {
        const TolmoMessage msg = tolmoMessageTryDecode( test::Buf( request ).Get() );
        for ( int i = 1; i < threadCount; ++i ) {
            tolmoMessageRetain( msg );
        }
        InThreads( [&]( int ) {
            EXPECT_TRUE( tolmoHeaderViaPresentInMessage( msg ) );
            tolmoMessageRelease( msg );
        } );
    }
}

/* Stream decoders: one for each thread, the bytes are shared */

TEST_F( Threads, StreamDecoders )
{
    const auto bytes = test::Buf( Read( "proxy-tcp-conn3-s2c.stream" ) );
    ASSERT_GT( koBufferLength( bytes.Get() ), 0 );
    const auto decode = [&]( KoInt block ) {
        const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
        std::string encoded;
        for ( KoInt at = 0; at < koBufferLength( bytes.Get() ); at += block ) {
            const KoInt length = std::min( block, koBufferLength( bytes.Get() ) - at );
            EXPECT_TRUE( tolmoMessageStreamDecoderWriteInner( decoder.Get(), bytes.Get(), at, length ) );
            while ( const auto msg = Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) {
                encoded += test::TakeBytes( tolmoMessageEncode( msg.Get() ) );
            }
        }
        EXPECT_FALSE( tolmoMessageStreamDecoderError( decoder.Get() ) );
        EXPECT_EQ( tolmoMessageStreamDecoderLength( decoder.Get() ), 0 );
        return encoded;
    };
    const std::string expected = decode( koBufferLength( bytes.Get() ) );
    ASSERT_FALSE( expected.empty() );
    InThreads( [&]( int i ) {
        for ( int round = 0; round < 3; ++round ) {
            EXPECT_EQ( decode( 100 + 331 * i ), expected );
        }
    } );
}

// A decoder may go from thread to thread, one at a time.
TEST_F( Threads, StreamDecoderThatMoves )
{
    const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
    const std::string_view text = request;
    const size_t block = text.size() / 5 + 1;
    for ( size_t at = 0; at < text.size(); at += block ) {
        std::thread( [&] {
            EXPECT_TRUE( tolmoMessageStreamDecoderWrite( decoder.Get(), test::Buf( text.substr( at, block ) ).Get() ) );
        } ).join();
    }
    KoRef<TolmoMessage> msg;
    std::thread( [&] { msg = Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ); } ).join();
    ASSERT_TRUE( msg );
    EXPECT_EQ( test::TakeBytes( tolmoMessageBody( msg.Get() ) ), "body" );
}

} // namespace
