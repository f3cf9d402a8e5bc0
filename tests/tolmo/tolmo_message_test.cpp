/* Messages: a fragment with a start line. */
#include "head_reference.h"

#include <functional>

namespace {

using test::Buf;
using test::Own;
using test::Str;
using test::Take;

constexpr char path[] = "source/tolmo/tolmo_message.cpp";
constexpr char fragmentPath[] = "source/tolmo/tolmo_message_fragment.cpp";

using Msg = KoRef<TolmoMessage>;

std::string Dump( const Msg &msg )
{
    return reference::Dump( Own( tolmoMessageFragment( msg.Get() ) ).Get() );
}

class Message : public test::TolmoFixture {
protected:
    void SetUp() override
    {
        TolmoFixture::SetUp();
        version = Own( tolmoVersionCreateSip20() );
        method = Str( "INVITE" );
        iri = Str( "sip:a" );
        phrase = Str( "Fine" );
        name = Str( "t" );
        body = Buf( "new" );
        header = Own( tolmoMessageHeaderCreateCstr( "From", -1 ) );
        tolmoMessageHeaderAppendLineCstr( header.Address(), "x", -1 );
    }
    void TearDown() override
    {
        version = {};
        method = {};
        iri = {};
        phrase = {};
        name = {};
        body = {};
        header = {};
        TolmoFixture::TearDown();
    }
    static Msg Decode( std::string_view bytes ) { return Own( tolmoMessageTryDecode( Buf( bytes ).Get() ) ); }

    KoRef<TolmoVersion> version;
    KoRef<KoString> method, iri, phrase, name;
    KoRef<KoBuffer> body;
    KoRef<TolmoMessageHeader> header;
    const uint16_t wide[3] = { 'A', 'B', 0 };
    const uint16_t wideIri[3] = { 's', ':', 0 };
    const uint16_t wideName[2] = { 't', 0 };
};

TEST_F( Message, Create )
{
    const auto v = version.Get();
    const struct {
        TolmoMessage msg;
        const char *dump;
    } rows[] = {
        { tolmoMessageCreateRequest( v, method.Get(), iri.Get() ), "request INVITE sip:a SIP/2.0" },
        { tolmoMessageCreateRequestCstr( v, "ABC", 2, iri.Get() ), "request AB sip:a SIP/2.0" },
        { tolmoMessageCreateRequestWcstr( v, wide, -1, iri.Get() ), "request AB sip:a SIP/2.0" },
        { tolmoMessageCreateResponse( v, 180 ), "response SIP/2.0 180 Ringing" },
        { tolmoMessageCreateResponseWithReasonPhrase( v, 180, phrase.Get() ), "response SIP/2.0 180 Fine" },
        { tolmoMessageCreateResponseWithReasonPhraseCstr( v, 180, "x y", -1 ), "response SIP/2.0 180 x y" },
        { tolmoMessageCreateResponseWithReasonPhraseWcstr( v, 180, wide, -1 ), "response SIP/2.0 180 AB" },
    };
    for ( const auto &row : rows ) {
        const Msg msg = Own( row.msg );
        EXPECT_EQ( Dump( msg ), std::string( row.dump ) + "\nno body" );
        EXPECT_EQ( test::Count( msg.Get() ), 1 );
        EXPECT_EQ( test::Count( Own( tolmoMessageFragment( msg.Get() ) ).Get() ), 2 ); // the message's and ours
    }
    const auto fragment = Own( tolmoMessageFragmentCreateResponse( v, 200 ) );
    const Msg msg = Own( tolmoMessageCreate( fragment.Get() ) );
    EXPECT_EQ( Own( tolmoMessageFragment( msg.Get() ) ).Get(), fragment.Get() );
    EXPECT_EQ( test::Count( fragment.Get() ), 2 );

    const auto neither = Own( tolmoMessageFragmentCreate() );
    EXPECT_ABORT( tolmoMessageCreate( nullptr ), path, "fragment" );
    EXPECT_ABORT( tolmoMessageCreate( neither.Get() ), path,
                  "tolmoMessageFragmentIsRequest( fragment ) || tolmoMessageFragmentIsResponse( fragment )" );
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoMessageCreateRequest( nullptr, bad.Get(), bad.Get() ), fragmentPath, "version" );
    EXPECT_ABORT( tolmoMessageCreateRequest( v, bad.Get(), bad.Get() ), fragmentPath, "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageCreateRequest( v, method.Get(), bad.Get() ), fragmentPath, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoMessageCreateResponse( nullptr, 0 ), fragmentPath, "version" );
    EXPECT_ABORT( tolmoMessageCreateResponse( v, 0 ), fragmentPath, "tolmoStatusCodeOk( sc )" );
}

TEST_F( Message, TryDecode )
{
    EXPECT_EQ( Dump( Decode( "SIP/2.0 200 OK\r\n\r\n" ) ), "response SIP/2.0 200 OK\nno body" ); // no header is needed
    EXPECT_EQ( Dump( Decode( "A s: B/c\r\nl: 1\r\n\r\nxy" ) ), "request A s: B/c\nContent-Length=1=1\nbody x" );
    for ( const char *bytes : { "", "\r\n\r\n", "To: a\r\n\r\n", "x", "\r\n\r\nOPTIONS sip:a SIP/2.0\r\n\r\n",
                                "\r\nOPTIONS sip:a SIP/2.0\r\n\r\n", "SIP/2.0 200 OK\r\nl: 1\r\n\r\n" } ) {
        EXPECT_FALSE( Decode( bytes ) ) << bytes;
    }
    const auto block = Buf( "To: a\r\n\r\n" );
    EXPECT_FALSE( test::IsNull( tolmoMessageFragmentTryDecode( block.Get() ) ) ); // a fragment, but no message
    EXPECT_ABORT( tolmoMessageTryDecode( nullptr ), path, "buf" );
}

TEST_F( Message, Getters )
{
    const Msg request = Decode( "INVITE sip:a SIP/2.0\r\nt: x\r\n\r\nbody" );
    EXPECT_TRUE( tolmoMessageIsRequest( request.Get() ) );
    EXPECT_FALSE( tolmoMessageIsResponse( request.Get() ) );
    EXPECT_EQ( Take( tolmoMessageRequestMethod( request.Get() ) ), "INVITE" );
    EXPECT_EQ( Take( tolmoMessageRequestIri( request.Get() ) ), "sip:a" );
    EXPECT_EQ( tolmoMessageResponseStatusCode( request.Get() ), -1 );
    EXPECT_EQ( tolmoMessageResponseReasonPhrase( request.Get() ), nullptr );
    EXPECT_TRUE( tolmoVersionIsSip20( Own( tolmoMessageVersion( request.Get() ) ).Get() ) );
    EXPECT_EQ( koVectorLength( Own( tolmoMessageHeadersVector( request.Get() ) ).Get() ), 1 );
    EXPECT_TRUE( tolmoMessageHasHeader( request.Get(), name.Get() ) );
    EXPECT_TRUE( tolmoMessageHasHeaderCstr( request.Get(), "to", -1 ) );
    EXPECT_TRUE( tolmoMessageHasHeaderWcstr( request.Get(), wideName, -1 ) );
    EXPECT_FALSE( tolmoMessageHasHeaderCstr( request.Get(), "v", -1 ) );
    for ( const TolmoMessageHeader found :
          { tolmoMessageHeader( request.Get(), name.Get() ), tolmoMessageHeaderCstr( request.Get(), "TO", -1 ),
            tolmoMessageHeaderWcstr( request.Get(), wideName, 1 ) } ) {
        EXPECT_EQ( Take( tolmoMessageHeaderLastLine( Own( found ).Get() ) ), "x" );
    }
    EXPECT_EQ( tolmoMessageHeaderCstr( request.Get(), "v", -1 ), nullptr );
    EXPECT_EQ( test::TakeBytes( tolmoMessageBody( request.Get() ) ), "body" );
    EXPECT_TRUE( tolmoMessageHasBody( request.Get() ) );
    EXPECT_EQ( test::TakeBytes( tolmoMessageEncode( request.Get() ) ),
               test::TakeBytes( tolmoMessageFragmentEncode( Own( tolmoMessageFragment( request.Get() ) ).Get() ) ) );

    const Msg response = Decode( "SIP/2.0 404 x" );
    EXPECT_TRUE( tolmoMessageIsResponse( response.Get() ) );
    EXPECT_FALSE( tolmoMessageIsRequest( response.Get() ) );
    EXPECT_EQ( tolmoMessageResponseStatusCode( response.Get() ), 404 );
    EXPECT_EQ( Take( tolmoMessageResponseReasonPhrase( response.Get() ) ), "x" );
    EXPECT_EQ( tolmoMessageRequestMethod( response.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageRequestIri( response.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageBody( response.Get() ), nullptr );
    EXPECT_FALSE( tolmoMessageHasBody( response.Get() ) );

    const char msg[] = "msg";
    EXPECT_ABORT( tolmoMessageFragment( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageIsRequest( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageIsResponse( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageRequestMethod( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageRequestIri( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageResponseStatusCode( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageResponseReasonPhrase( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageVersion( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageHeadersVector( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageHasHeader( nullptr, nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageHasHeaderCstr( nullptr, "a", -1 ), path, msg );
    EXPECT_ABORT( tolmoMessageHasHeaderWcstr( nullptr, wide, -1 ), path, msg );
    EXPECT_ABORT( tolmoMessageHeader( nullptr, nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageHeaderCstr( nullptr, "a", -1 ), path, msg );
    EXPECT_ABORT( tolmoMessageHeaderWcstr( nullptr, wide, -1 ), path, msg );
    EXPECT_ABORT( tolmoMessageBody( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageHasBody( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageEncode( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageCreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT( tolmoMessageSort()->free( nullptr ), path, msg );
    EXPECT_ABORT( tolmoMessageHasHeaderCstr( request.Get(), "a b", -1 ), "source/tolmo/tolmo_message_header.cpp",
                  "tolmoMessageHeaderNameOk( name )" );
}

/** All mutators: on a message of its own, on a shared one, on one whose fragment somebody holds. */
TEST_F( Message, Mutators )
{
    using Change = std::function<void( TolmoMessage * )>;
    const TolmoVersion v = version.Get();
    const std::string request = "INVITE sip:a SIP/2.0\r\nTo: a\r\n\r\nbody";
    const std::string response = "SIP/2.0 200 OK\r\nTo: a\r\n\r\nbody";
    const auto http = Own( tolmoVersionCreate( Str( "HTTP" ).Get(), Str( "1.1" ).Get() ) );
    const struct {
        std::string bytes;
        Change change;
        const char *dump;
    } rows[] = {
        { response, [&]( auto m ) { tolmoMessageSetRequest( m, v, method.Get(), iri.Get() ); },
          "request INVITE sip:a SIP/2.0\nTo=1=a\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetRequestCstr( m, v, "X", -1, iri.Get() ); },
          "request X sip:a SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestWcstr( m, v, wide, -1, iri.Get() ); },
          "request AB sip:a SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestMethod( m, Str( "BYE" ).Get() ); },
          "request BYE sip:a SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestMethodCstr( m, "ACK", -1 ); },
          "request ACK sip:a SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestMethodWcstr( m, wide, -1 ); },
          "request AB sip:a SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestIri( m, Str( "tel:1" ).Get() ); },
          "request INVITE tel:1 SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestIriCstr( m, "tel:2", -1 ); },
          "request INVITE tel:2 SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetRequestIriWcstr( m, wideIri, -1 ); },
          "request INVITE s: SIP/2.0\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetResponse( m, v, 486 ); },
          "response SIP/2.0 486 Busy here\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetResponseWithReasonPhrase( m, v, 486, phrase.Get() ); },
          "response SIP/2.0 486 Fine\nTo=1=a\nbody body" },
        { request, [&]( auto m ) { tolmoMessageSetResponseWithReasonPhraseCstr( m, v, 486, "y", -1 ); },
          "response SIP/2.0 486 y\nTo=1=a\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetResponseWithReasonPhraseWcstr( m, v, 486, wide, -1 ); },
          "response SIP/2.0 486 AB\nTo=1=a\nbody body" },
        { response, []( auto m ) { tolmoMessageSetResponseStatusCode( m, 404, KO_TRUE ); },
          "response SIP/2.0 404 Not found\nTo=1=a\nbody body" },
        { response, []( auto m ) { tolmoMessageSetResponseStatusCode( m, 404, KO_FALSE ); },
          "response SIP/2.0 404 OK\nTo=1=a\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetResponseReasonPhrase( m, phrase.Get() ); },
          "response SIP/2.0 200 Fine\nTo=1=a\nbody body" },
        { response, []( auto m ) { tolmoMessageSetResponseReasonPhraseCstr( m, "", -1 ); },
          "response SIP/2.0 200 \nTo=1=a\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetResponseReasonPhraseWcstr( m, wide, -1 ); },
          "response SIP/2.0 200 AB\nTo=1=a\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetVersion( m, http.Get() ); },
          "response HTTP/1.1 200 OK\nTo=1=a\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetHeader( m, header.Get() ); },
          "response SIP/2.0 200 OK\nTo=1=a\nFrom=1=x\nbody body" },
        { response, [&]( auto m ) { tolmoMessageDelHeader( m, name.Get() ); }, "response SIP/2.0 200 OK\nbody body" },
        { response, []( auto m ) { tolmoMessageDelHeaderCstr( m, "TO", -1 ); }, "response SIP/2.0 200 OK\nbody body" },
        { response, [&]( auto m ) { tolmoMessageDelHeaderWcstr( m, wideName, -1 ); },
          "response SIP/2.0 200 OK\nbody body" },
        { response, [&]( auto m ) { tolmoMessageSetBody( m, body.Get() ); },
          "response SIP/2.0 200 OK\nTo=1=a\nbody new" },
        { response, []( auto m ) { tolmoMessageDelBody( m ); }, "response SIP/2.0 200 OK\nTo=1=a\nno body" },
    };
    for ( const auto &row : rows ) {
        Msg own = Decode( row.bytes );
        const std::string old = Dump( own );
        const TolmoMessage object = own.Get();
        const TolmoMessageFragment inner = Own( tolmoMessageFragment( object ) ).Get();
        row.change( own.Address() );
        EXPECT_EQ( own.Get(), object ) << row.dump;
        EXPECT_EQ( Own( tolmoMessageFragment( object ) ).Get(), inner ) << row.dump;
        EXPECT_EQ( Dump( own ), row.dump );

        Msg shared = Decode( row.bytes );
        const Msg other = Msg::Share( shared.Get() );
        row.change( shared.Address() );
        EXPECT_NE( shared.Get(), other.Get() );
        EXPECT_EQ( test::Count( other.Get() ), 1 );
        EXPECT_EQ( test::Count( Own( tolmoMessageFragment( other.Get() ) ).Get() ), 2 );
        EXPECT_EQ( Dump( other ), old );
        EXPECT_EQ( Dump( shared ), row.dump );

        // A fragment that was handed out is a snapshot.
        Msg third = Decode( row.bytes );
        const auto held = Own( tolmoMessageFragment( third.Get() ) );
        row.change( third.Address() );
        EXPECT_EQ( test::Count( held.Get() ), 1 );
        EXPECT_EQ( reference::Dump( held.Get() ), old );
        EXPECT_EQ( Dump( third ), row.dump );

        TolmoMessage null = nullptr;
        EXPECT_ABORT( row.change( nullptr ), path, "msg" );
        EXPECT_ABORT( row.change( &null ), path, "*msg" );
    }
}

/** Values and states are looked at by the fragment. */
TEST_F( Message, MutatorsRefuse )
{
    Msg response = Decode( "SIP/2.0 200 OK" );
    Msg request = Decode( "A s: B/c" );
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoMessageSetRequestMethod( response.Address(), method.Get() ), fragmentPath,
                  "(*frag)->requestMethod" );
    EXPECT_ABORT( tolmoMessageSetRequestIri( response.Address(), iri.Get() ), fragmentPath, "(*frag)->requestMethod" );
    EXPECT_ABORT( tolmoMessageSetRequestMethod( response.Address(), bad.Get() ), fragmentPath,
                  "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageSetResponseStatusCode( request.Address(), 200, KO_TRUE ), fragmentPath,
                  "(*frag)->responseStatusCode != TOLMO_STATUS_CODE_INVALID" );
    EXPECT_ABORT( tolmoMessageSetResponseReasonPhrase( request.Address(), phrase.Get() ), fragmentPath,
                  "(*frag)->responseReasonPhrase" );
    EXPECT_ABORT( tolmoMessageSetVersion( request.Address(), nullptr ), fragmentPath, "version" );
    EXPECT_ABORT( tolmoMessageSetHeader( request.Address(), nullptr ), fragmentPath, "header" );
    EXPECT_ABORT( tolmoMessageSetBody( request.Address(), nullptr ), fragmentPath, "body" );
    EXPECT_ABORT( tolmoMessageSetResponse( request.Address(), version.Get(), 0 ), fragmentPath,
                  "tolmoStatusCodeOk( sc )" );
}

/** A caller's fragment and the message's go apart. */
TEST_F( Message, TheFragmentOfACaller )
{
    auto fragment = Own( tolmoMessageFragmentCreateResponse( version.Get(), 200 ) );
    const Msg msg = Own( tolmoMessageCreate( fragment.Get() ) );
    tolmoMessageFragmentSetNeitherRequestNorResponse( fragment.Address() );
    EXPECT_TRUE( tolmoMessageIsResponse( msg.Get() ) );
    auto got = Own( tolmoMessageFragment( msg.Get() ) );
    tolmoMessageFragmentSetHeader( got.Address(), header.Get() );
    EXPECT_FALSE( tolmoMessageHasHeaderCstr( msg.Get(), "f", -1 ) );
}

TEST_F( Message, StandardOperations )
{
    const Msg a = Decode( "SIP/2.0 200 OK" );
    const Msg b = Decode( "SIP/2.0 200 OK" );
    EXPECT_FALSE( tolmoMessageEquals( a.Get(), b.Get() ) ); // not compared by what they hold
    EXPECT_TRUE( tolmoMessageEquals( a.Get(), a.Get() ) );
    EXPECT_EQ( Take( tolmoMessageToString( a.Get() ) ), "<TOLMO_MESSAGE>" );
    const Msg copy = Own( tolmoMessageCreateFrom( a.Get() ) );
    EXPECT_NE( copy.Get(), a.Get() );
    EXPECT_EQ( Own( tolmoMessageFragment( copy.Get() ) ).Get(), Own( tolmoMessageFragment( a.Get() ) ).Get() );
}

} // namespace
