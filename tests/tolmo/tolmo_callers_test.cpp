/* What one careless call does with bytes from a peer, and the way to write it right: docs/callers.md shows these. */
#include "tolmo_test.h"

namespace {

using test::Buf;
using test::Own;
using test::Received;
using test::Str;
using test::Take;
using test::TakeBytes;

class CallersTest : public test::TolmoFixture {};

TEST_F( CallersTest, TheFirstItemOfAList )
{
    const auto msg = Received( "Via:\r\n" );
    const auto vias = Own( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    ASSERT_TRUE( vias );
    EXPECT_ABORT( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ), "source/runtime/ko_vector.cpp",
                  "index >= 0 && index < koVectorLength( v )" );

    KoRef<TolmoVia> top;
    if ( tolmoHeaderViaViasLength( vias.Get() ) > 0 ) {
        top = Own( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
    }
    EXPECT_FALSE( top );
}

TEST_F( CallersTest, AnItemThatDoesNotDecode )
{
    const auto msg = Received( "Via: SIP/2.0/UDP a;ttl=1x\r\n" );
    const auto vias = Own( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    ASSERT_TRUE( vias );
    const auto top = Own( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
    EXPECT_ABORT( tolmoViaHost( top.Get() ), "source/tolmo/tolmo_via.cpp", "via" );

    const auto host = top ? Own( tolmoViaHost( top.Get() ) ) : KoRef<KoString>();
    EXPECT_FALSE( host );
}

TEST_F( CallersTest, AHeaderThatIsThereAndDoesNotDecode )
{
    const auto msg = Received( "Max-Forwards: many\r\n" );
    ASSERT_TRUE( tolmoHeaderMaxForwardsPresentInMessage( msg.Get() ) );
    const auto hops = Own( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
    EXPECT_ABORT( tolmoHeaderMaxForwardsMaxForwards( hops.Get() ), "source/tolmo/tolmo_header_max_forwards.cpp",
                  "hdr" );

    const KoInt left = hops ? tolmoHeaderMaxForwardsMaxForwards( hops.Get() ) : 70;
    EXPECT_EQ( left, 70 );
}

TEST_F( CallersTest, AnOptionalFieldThatIsAbsent )
{
    const auto msg = Received( "From: <sip:a>\r\n" );
    const auto from = Own( tolmoHeaderFromTryDecodeFromMessage( msg.Get() ) );
    const auto tag = Own( tolmoHeaderFromTag( from.Get() ) );
    EXPECT_ABORT( koStringLength( tag.Get() ), "source/runtime/ko_string.cpp", "s" );

    EXPECT_FALSE( tolmoHeaderFromHasTag( from.Get() ) );
}

TEST_F( CallersTest, TheMethodOfAResponse )
{
    auto msg = Own( tolmoMessageTryDecode( Buf( "SIP/2.0 200 OK\r\n\r\n" ).Get() ) );
    const auto method = Own( tolmoMessageRequestMethod( msg.Get() ) );
    EXPECT_ABORT( koStringEquals( method.Get(), Str( "INVITE" ).Get() ), "source/runtime/ko_string.cpp", "a" );
    EXPECT_ABORT( tolmoMessageSetRequestIri( msg.Address(), Str( "sip:a" ).Get() ),
                  "source/tolmo/tolmo_message_fragment.cpp", "(*frag)->requestMethod" );

    EXPECT_FALSE( tolmoMessageIsRequest( msg.Get() ) && koStringEquals( method.Get(), Str( "INVITE" ).Get() ) );
}

TEST_F( CallersTest, TheClassOfARequest )
{
    const auto msg = Received( "" );
    const KoInt code = tolmoMessageResponseStatusCode( msg.Get() );
    EXPECT_ABORT( tolmoStatusCodeSuccess( code ), "source/tolmo/tolmo_status_code.cpp", "tolmoStatusCodeOk( sc )" );

    EXPECT_FALSE( tolmoMessageIsResponse( msg.Get() ) && tolmoStatusCodeSuccess( code ) );
}

TEST_F( CallersTest, AHeadWithoutStartLine )
{
    const auto frag = Own( tolmoMessageFragmentTryDecode( Buf( "To: a\r\n\r\n" ).Get() ) );
    ASSERT_TRUE( frag );
    EXPECT_ABORT( tolmoMessageCreate( frag.Get() ), "source/tolmo/tolmo_message.cpp",
                  "tolmoMessageFragmentIsRequest( fragment ) || tolmoMessageFragmentIsResponse( fragment )" );

    EXPECT_TRUE( tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) );
}

TEST_F( CallersTest, ANameThatIsNoName )
{
    // Headers of a URI (RFC 3261 section 19.1.1) name header fields, in whatever words the peer likes.
    const auto msg = Received( "Refer-To: <sip:a?No%20name=1>\r\n" );
    const auto name = Str( "No name" );
    EXPECT_ABORT( tolmoMessageHasHeader( msg.Get(), name.Get() ), "source/tolmo/tolmo_message_header.cpp",
                  "tolmoMessageHeaderNameOk( name )" );

    EXPECT_FALSE( tolmoMessageHeaderNameOk( name.Get() ) && tolmoMessageHasHeader( msg.Get(), name.Get() ) );
}

TEST_F( CallersTest, AWordThatIsNoParameter )
{
    const auto msg = Received( "From: \"a b\" <sip:a>;x\r\n" );
    const auto from = Own( tolmoHeaderFromTryDecodeFromMessage( msg.Get() ) );
    const auto params = Own( tolmoHeaderFromGenericParams( from.Get() ) );
    const auto word = Own( tolmoHeaderFromDisplayName( from.Get() ) );
    EXPECT_ABORT( tolmoGenericParamsHasParam( params.Get(), word.Get() ), "source/tolmo/tolmo_token.cpp",
                  "tolmoTokenOk( token )" );

    EXPECT_FALSE( tolmoGenericParamNameOk( word.Get() ) && tolmoGenericParamsHasParam( params.Get(), word.Get() ) );
}

TEST_F( CallersTest, AWordThatIsNoOptionTag )
{
    const auto msg = Received( "Supported: timer\r\nSubject: path; 100rel\r\n" );
    const auto tags = Own( tolmoHeaderSupportedTryDecodeFromMessage( msg.Get() ) );
    const auto subject = Own( tolmoHeaderSubjectTryDecodeFromMessage( msg.Get() ) );
    const auto word = Own( tolmoHeaderSubjectSubject( subject.Get() ) );
    EXPECT_ABORT( tolmoHeaderSupportedHasOptionTag( tags.Get(), word.Get() ), "source/tolmo/tolmo_header_supported.cpp",
                  "tolmoOptionTagOk( optionTag )" );

    EXPECT_FALSE( tolmoOptionTagOk( word.Get() ) && tolmoHeaderSupportedHasOptionTag( tags.Get(), word.Get() ) );
}

TEST_F( CallersTest, ANumberThatHasCountedDown )
{
    const auto msg = Received( "Max-Forwards: 0\r\n" );
    auto hops = Own( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
    const KoInt left = tolmoHeaderMaxForwardsMaxForwards( hops.Get() );
    EXPECT_ABORT( tolmoHeaderMaxForwardsSetMaxForwards( hops.Address(), left - 1 ),
                  "source/tolmo/tolmo_header_max_forwards.cpp", "tolmoMaxForwardsOk( maxForwards )" );

    if ( left > 0 ) {
        tolmoHeaderMaxForwardsSetMaxForwards( hops.Address(), left - 1 );
    }
    EXPECT_EQ( left, 0 ) << "483 Too Many Hops";
}

TEST_F( CallersTest, ANumberThatHasCountedUp )
{
    const auto msg = Received( "CSeq: 2147483647 INVITE\r\n" );
    auto cseq = Own( tolmoHeaderCseqTryDecodeFromMessage( msg.Get() ) );
    ASSERT_TRUE( cseq );
    const KoInt next = tolmoHeaderCseqCseq( cseq.Get() ) + 1;
    EXPECT_ABORT( tolmoHeaderCseqSetCseq( cseq.Address(), next ), "source/tolmo/tolmo_header_cseq.cpp",
                  "tolmoCseqOk( cseq )" );

    EXPECT_FALSE( tolmoCseqOk( next ) );
}

TEST_F( CallersTest, ALineWithSingleLineEnds )
{
    const auto msg = Received( "Subject: a\nVia: SIP/2.0/UDP evil\r\n" );
    const auto raw = Own( tolmoMessageHeaderCstr( msg.Get(), "Subject", -1 ) );
    const auto line = Own( tolmoMessageHeaderLastLine( raw.Get() ) );
    EXPECT_ABORT_MESSAGE( tolmoHeaderSubjectCreate( line.Get() ), "subject invalid", "source/tolmo/tolmo_subject.cpp",
                          "tolmoSubjectOk( subject )" );
    EXPECT_NE( TakeBytes( tolmoMessageEncode( msg.Get() ) ).find( "\nVia: SIP/2.0/UDP evil\r\n" ), std::string::npos )
        << "what a peer that ends lines with LF takes for a Via";

    EXPECT_FALSE( tolmoSubjectOk( line.Get() ) );
    const KoChar ends[] = { KO_CHAR_LINE_FEED, KO_CHAR_CARRIAGE_RETURN };
    const bool clean =
        koStringFindChars( line.Get(), 0, ends, 1 ) < 0 && koStringFindChars( line.Get(), 0, ends + 1, 1 ) < 0;
    EXPECT_FALSE( clean );
}

TEST_F( CallersTest, ATextThatIsNoLine )
{
    const auto msg = Own( tolmoMessageTryDecode( Buf( "SIP/2.0 200 OK\r\n\r\nv=0\r\ns=-\r\n" ).Get() ) );
    const auto body = Own( tolmoMessageBody( msg.Get() ) );
    const auto text = Own( koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, body.Get(), 1 ) );
    auto header = Own( tolmoMessageHeaderCreateCstr( "X-Body", -1 ) );
    EXPECT_ABORT( tolmoMessageHeaderAppendLine( header.Address(), text.Get() ), "source/tolmo/tolmo_message_header.cpp",
                  "tolmoMessageHeaderLineOk( value )" );

    EXPECT_FALSE( tolmoMessageHeaderLineOk( text.Get() ) );
}

TEST_F( CallersTest, ABodyThatIsNoText )
{
    const auto msg = Own( tolmoMessageTryDecode( Buf( "SIP/2.0 200 OK\r\n\r\n\xFF" ).Get() ) );
    const auto body = Own( tolmoMessageBody( msg.Get() ) );
    const auto text = Own( koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, body.Get(), 1 ) );
    EXPECT_ABORT( koStringBacking( text.Get() ), "source/runtime/ko_string.cpp", "s" );

    EXPECT_FALSE( text ) << "no message needs a body, and no body need be text";
}

TEST_F( CallersTest, ASubscriptionStateThatIsSharedAndChanged )
{
    const auto msg = Received( "Subscription-State: active;x=y\r\n" );
    const auto received = Own( tolmoHeaderSubscriptionStateTryDecodeFromMessage( msg.Get() ) );

    auto wrong = KoRef<TolmoHeaderSubscriptionState>::Share( received.Get() );
    tolmoHeaderSubscriptionStateSetExpires( wrong.Address(), 60 ); // a copy, without parameters
    EXPECT_ABORT( tolmoHeaderSubscriptionStateEncode( wrong.Get() ), "source/tolmo/tolmo_generic_params.cpp",
                  "params" );

    auto right = KoRef<TolmoHeaderSubscriptionState>::Share( received.Get() );
    const auto params = Own( tolmoHeaderSubscriptionStateGenericParams( right.Get() ) );
    tolmoHeaderSubscriptionStateSetExpires( right.Address(), 60 );
    tolmoHeaderSubscriptionStateSetGenericParams( right.Address(), params.Get() );
    EXPECT_EQ( Take( tolmoHeaderSubscriptionStateToString( right.Get() ) ), "active;expires=60;x=y" );
}

TEST_F( CallersTest, AReplacesWithoutLines )
{
    auto msg = Received( "Replaces: a@b\r\n" );
    auto raw = Own( tolmoMessageHeaderCstr( msg.Get(), "Replaces", -1 ) );
    tolmoMessageHeaderDelLineAt( raw.Address(), 0 );
    tolmoMessageSetHeader( msg.Address(), raw.Get() );
    EXPECT_ABORT( tolmoHeaderReplacesTryDecodeFromMessage( msg.Get() ), "source/runtime/ko_string.cpp", "s" );
    EXPECT_ABORT( tolmoHeaderReplacesTryDecode( raw.Get() ), "source/runtime/ko_string.cpp", "s" );

    KoRef<TolmoHeaderReplaces> replaces;
    if ( tolmoMessageHeaderLinesLength( raw.Get() ) > 0 ) {
        replaces = Own( tolmoHeaderReplacesTryDecode( raw.Get() ) );
    }
    EXPECT_FALSE( replaces );
}

TEST_F( CallersTest, AStoreWithoutLines )
{
    auto store = Own( koStoreCreate() );
    koStoreSetValue( store.Address(), Str( "name" ).Get(), Str( "Via" ).Get() );
    EXPECT_ABORT( tolmoMessageHeaderTryRestore( store.Get() ), "source/tolmo/tolmo_message_header.cpp", "store" );

    KoRef<TolmoMessageHeader> header;
    if ( Own( koStoreStore( store.Get(), Str( "lines" ).Get() ) ) ) {
        header = Own( tolmoMessageHeaderTryRestore( store.Get() ) );
    }
    EXPECT_FALSE( header );

    const auto noLines = Own( koStoreCreateArray() );
    EXPECT_ABORT( tolmoHeaderReplacesTryRestore( noLines.Get() ), "source/runtime/ko_string.cpp", "s" );

    KoRef<TolmoHeaderReplaces> replaces;
    if ( koStoreLength( noLines.Get() ) > 0 ) {
        replaces = Own( tolmoHeaderReplacesTryRestore( noLines.Get() ) );
    }
    EXPECT_FALSE( replaces );
}

// Not in the document: what looks as if it could end the process, and does not.
TEST_F( CallersTest, APortOfManyDigits )
{
    const auto msg = Received( "Via: SIP/2.0/UDP a;rport=9223372036854775808\r\n" );
    const auto vias = Own( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    const auto via = Own( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
    ASSERT_TRUE( via );
    EXPECT_FALSE( tolmoViaHasRportNumeric( via.Get() ) );
    const auto params = Own( tolmoViaGenericParams( via.Get() ) );
    EXPECT_TRUE( tolmoGenericParamsHasParamCstr( params.Get(), "rport", -1 ) );
}

} // namespace
