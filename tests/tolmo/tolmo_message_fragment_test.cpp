/* Fragments: the states, the start line, the headers, the body. */
#include "head_reference.h"

#include <functional>

namespace {

using reference::Dump;
using test::Buf;
using test::Own;
using test::Str;
using test::Take;
using test::Text;

constexpr char path[] = "source/tolmo/tolmo_message_fragment.cpp";

using Frag = KoRef<TolmoMessageFragment>;

class MessageFragment : public test::TolmoFixture {
protected:
    void SetUp() override
    {
        TolmoFixture::SetUp();
        version = Own( tolmoVersionCreateSip20() );
        method = Str( "INVITE" );
        iri = Str( "sip:\u00E9@a" );
        phrase = Str( "Fine" );
        bad = Str( "a b\r\n" );
        empty = Str( "" );
    }
    void TearDown() override
    {
        version = {};
        for ( KoRef<KoString> *string : { &method, &iri, &phrase, &bad, &empty } ) {
            *string = {};
        }
        TolmoFixture::TearDown();
    }

    Frag Request() { return Own( tolmoMessageFragmentCreateRequest( version.Get(), method.Get(), iri.Get() ) ); }
    Frag Response( KoInt sc = 200 ) { return Own( tolmoMessageFragmentCreateResponse( version.Get(), sc ) ); }
    static KoRef<TolmoMessageHeader> Header( std::string_view name, const std::vector<std::string> &lines )
    {
        auto header = Own( tolmoMessageHeaderCreate( Str( name ).Get() ) );
        for ( const std::string &line : lines ) {
            tolmoMessageHeaderAppendLine( header.Address(), Str( line ).Get() );
        }
        return header;
    }
    static void Set( Frag &frag, std::string_view name, const std::vector<std::string> &lines )
    {
        tolmoMessageFragmentSetHeader( frag.Address(), Header( name, lines ).Get() );
    }
    static Frag Decode( std::string_view bytes ) { return Own( tolmoMessageFragmentTryDecode( Buf( bytes ).Get() ) ); }

    KoRef<TolmoVersion> version;
    KoRef<KoString> method, iri, phrase, bad, empty;
    const uint16_t wide[3] = { 'A', 'B', 0 };
};

TEST_F( MessageFragment, Create )
{
    const Frag frag = Own( tolmoMessageFragmentCreate() );
    EXPECT_TRUE( tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) );
    EXPECT_FALSE( tolmoMessageFragmentIsRequest( frag.Get() ) );
    EXPECT_FALSE( tolmoMessageFragmentIsResponse( frag.Get() ) );
    EXPECT_FALSE( tolmoMessageFragmentHasVersion( frag.Get() ) );
    EXPECT_EQ( tolmoMessageFragmentResponseStatusCode( frag.Get() ), TOLMO_STATUS_CODE_INVALID );
    EXPECT_EQ( TOLMO_STATUS_CODE_INVALID, -1 );
    EXPECT_EQ( tolmoMessageFragmentVersion( frag.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageFragmentRequestMethod( frag.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageFragmentRequestIri( frag.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageFragmentResponseReasonPhrase( frag.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageFragmentBody( frag.Get() ), nullptr );
    EXPECT_FALSE( tolmoMessageFragmentHasBody( frag.Get() ) );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nno body" );
    EXPECT_EQ( test::Count( frag.Get() ), 1 );
}

TEST_F( MessageFragment, CreateRequest )
{
    const Frag frag = Request();
    EXPECT_FALSE( tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) );
    EXPECT_TRUE( tolmoMessageFragmentIsRequest( frag.Get() ) );
    EXPECT_FALSE( tolmoMessageFragmentIsResponse( frag.Get() ) );
    EXPECT_TRUE( tolmoMessageFragmentHasVersion( frag.Get() ) );
    EXPECT_EQ( tolmoMessageFragmentResponseStatusCode( frag.Get() ), -1 );
    EXPECT_EQ( tolmoMessageFragmentResponseReasonPhrase( frag.Get() ), nullptr );
    EXPECT_EQ( Own( tolmoMessageFragmentRequestMethod( frag.Get() ) ).Get(), method.Get() );
    EXPECT_EQ( Own( tolmoMessageFragmentRequestIri( frag.Get() ) ).Get(), iri.Get() );
    EXPECT_EQ( Own( tolmoMessageFragmentVersion( frag.Get() ) ).Get(), version.Get() );
    EXPECT_EQ( Dump( Own( tolmoMessageFragmentCreateRequestCstr( version.Get(), "ABC", 2, iri.Get() ) ).Get() ),
               "request AB sip:\u00E9@a SIP/2.0\nno body" );
    EXPECT_EQ( Dump( Own( tolmoMessageFragmentCreateRequestWcstr( version.Get(), wide, -1, iri.Get() ) ).Get() ),
               "request AB sip:\u00E9@a SIP/2.0\nno body" );

    EXPECT_ABORT( tolmoMessageFragmentCreateRequest( nullptr, bad.Get(), bad.Get() ), path, "version" );
    EXPECT_ABORT( tolmoMessageFragmentCreateRequest( version.Get(), bad.Get(), bad.Get() ), path,
                  "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageFragmentCreateRequest( version.Get(), empty.Get(), iri.Get() ), path,
                  "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageFragmentCreateRequest( version.Get(), method.Get(), bad.Get() ), path,
                  "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoMessageFragmentCreateRequest( version.Get(), method.Get(), method.Get() ), path,
                  "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoMessageFragmentCreateRequestCstr( version.Get(), "", -1, iri.Get() ), path,
                  "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageFragmentCreateRequestWcstr( version.Get(), wide, 0, iri.Get() ), path,
                  "tolmoMethodOk( method )" );
}

TEST_F( MessageFragment, CreateResponse )
{
    const Frag frag = Response( 404 );
    EXPECT_FALSE( tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) );
    EXPECT_FALSE( tolmoMessageFragmentIsRequest( frag.Get() ) );
    EXPECT_TRUE( tolmoMessageFragmentIsResponse( frag.Get() ) );
    EXPECT_EQ( tolmoMessageFragmentRequestMethod( frag.Get() ), nullptr );
    EXPECT_EQ( tolmoMessageFragmentRequestIri( frag.Get() ), nullptr );
    EXPECT_EQ( Dump( frag.Get() ), "response SIP/2.0 404 Not found\nno body" );
    EXPECT_EQ( Dump( Response( 199 ).Get() ), "response SIP/2.0 199 Unknown reason \"199\"\nno body" );
    const auto create = tolmoMessageFragmentCreateResponseWithReasonPhrase;
    EXPECT_EQ( Dump( Own( create( version.Get(), 999, phrase.Get() ) ).Get() ), "response SIP/2.0 999 Fine\nno body" );
    EXPECT_EQ( Dump( Own( create( version.Get(), 100, empty.Get() ) ).Get() ), "response SIP/2.0 100 \nno body" );
    EXPECT_EQ( Dump( Own( create( version.Get(), 100, bad.Get() ) ).Get() ), "response SIP/2.0 100 a b\r\n\nno body" );
    EXPECT_EQ(
        Dump( Own( tolmoMessageFragmentCreateResponseWithReasonPhraseCstr( version.Get(), 100, "x", -1 ) ).Get() ),
        "response SIP/2.0 100 x\nno body" );
    EXPECT_EQ(
        Dump( Own( tolmoMessageFragmentCreateResponseWithReasonPhraseWcstr( version.Get(), 100, wide, 1 ) ).Get() ),
        "response SIP/2.0 100 A\nno body" );

    EXPECT_ABORT( tolmoMessageFragmentCreateResponse( nullptr, 99 ), path, "version" );
    EXPECT_ABORT( tolmoMessageFragmentCreateResponse( version.Get(), 99 ), path, "tolmoStatusCodeOk( sc )" );
    EXPECT_ABORT( tolmoMessageFragmentCreateResponse( version.Get(), -1 ), path, "tolmoStatusCodeOk( sc )" );
    EXPECT_ABORT( create( nullptr, 1000, nullptr ), path, "version" );
    EXPECT_ABORT( create( version.Get(), 1000, nullptr ), path, "tolmoStatusCodeOk( sc )" );
    EXPECT_ABORT( create( version.Get(), 999, nullptr ), "source/tolmo/tolmo_reason_phrase.cpp", "reasonPhrase" );
}

/** From every state to every other, with headers and body that stay. */
TEST_F( MessageFragment, States )
{
    using Change = std::function<void( TolmoMessageFragment * )>;
    const struct {
        Change change;
        const char *start;
    } changes[] = {
        { []( auto f ) { tolmoMessageFragmentSetNeitherRequestNorResponse( f ); }, "neither\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetRequest( f, version.Get(), method.Get(), iri.Get() ); },
          "request INVITE sip:\u00E9@a SIP/2.0\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetRequestCstr( f, version.Get(), "X", -1, iri.Get() ); },
          "request X sip:\u00E9@a SIP/2.0\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetRequestWcstr( f, version.Get(), wide, -1, iri.Get() ); },
          "request AB sip:\u00E9@a SIP/2.0\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetResponse( f, version.Get(), 486 ); },
          "response SIP/2.0 486 Busy here\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetResponseWithReasonPhrase( f, version.Get(), 486, phrase.Get() ); },
          "response SIP/2.0 486 Fine\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetResponseWithReasonPhraseCstr( f, version.Get(), 486, "y", -1 ); },
          "response SIP/2.0 486 y\n" },
        { [&]( auto f ) { tolmoMessageFragmentSetResponseWithReasonPhraseWcstr( f, version.Get(), 486, wide, 2 ); },
          "response SIP/2.0 486 AB\n" },
    };
    for ( const auto &from : changes ) {
        for ( const auto &to : changes ) {
            Frag frag = Own( tolmoMessageFragmentCreate() );
            Set( frag, "To", { "a" } );
            tolmoMessageFragmentSetBody( frag.Address(), Buf( "b" ).Get() );
            from.change( frag.Address() );
            const TolmoMessageFragment object = frag.Get();
            to.change( frag.Address() );
            EXPECT_EQ( frag.Get(), object );
            EXPECT_EQ( Dump( frag.Get() ), std::string( to.start ) + "To=1=a\nbody b" );
            const bool neither = to.start[0] == 'n';
            const bool request = to.start[2] == 'q';
            EXPECT_EQ( tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() ), neither );
            EXPECT_EQ( tolmoMessageFragmentIsRequest( frag.Get() ), request );
            EXPECT_EQ( tolmoMessageFragmentIsResponse( frag.Get() ), !neither && !request );
            EXPECT_EQ( tolmoMessageFragmentHasVersion( frag.Get() ), !neither );
            EXPECT_EQ( test::IsNull( tolmoMessageFragmentRequestMethod( frag.Get() ) ), !request );
            EXPECT_EQ( test::IsNull( tolmoMessageFragmentRequestIri( frag.Get() ) ), !request );
            EXPECT_EQ( test::IsNull( tolmoMessageFragmentResponseReasonPhrase( frag.Get() ) ), neither || request );
            EXPECT_EQ( tolmoMessageFragmentResponseStatusCode( frag.Get() ), neither || request ? -1 : 486 );

            // A shared one stays as it was.
            Frag shared = Own( tolmoMessageFragmentCreate() );
            from.change( shared.Address() );
            const Frag other = Frag::Share( shared.Get() );
            to.change( shared.Address() );
            EXPECT_NE( shared.Get(), other.Get() );
            EXPECT_EQ( test::Count( other.Get() ), 1 );
            EXPECT_EQ( Dump( other.Get() ), std::string( from.start ) + "no body" );
        }
        TolmoMessageFragment null = nullptr;
        EXPECT_ABORT( from.change( nullptr ), path, "frag" );
        EXPECT_ABORT( from.change( &null ), path, "*frag" );
    }
    Frag frag = Own( tolmoMessageFragmentCreate() );
    TolmoMessageFragment *const f = frag.Address();
    TolmoMessageFragment null = nullptr;
    EXPECT_ABORT( tolmoMessageFragmentSetRequest( &null, nullptr, bad.Get(), bad.Get() ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequest( f, nullptr, bad.Get(), bad.Get() ), path, "version" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequest( f, version.Get(), bad.Get(), bad.Get() ), path,
                  "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequest( f, version.Get(), method.Get(), bad.Get() ), path,
                  "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequestCstr( f, version.Get(), "", 0, bad.Get() ), path,
                  "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponse( &null, nullptr, 0 ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponse( f, nullptr, 0 ), path, "version" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponse( f, version.Get(), 0 ), path, "tolmoStatusCodeOk( sc )" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseWithReasonPhrase( f, nullptr, 0, nullptr ), path, "version" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseWithReasonPhrase( f, version.Get(), 0, nullptr ), path,
                  "tolmoStatusCodeOk( sc )" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseWithReasonPhrase( f, version.Get(), 200, nullptr ),
                  "source/tolmo/tolmo_reason_phrase.cpp", "reasonPhrase" );
}

TEST_F( MessageFragment, SettersOfTheStartLine )
{
    Frag request = Request();
    tolmoMessageFragmentSetRequestMethod( request.Address(), Str( "ACK" ).Get() );
    tolmoMessageFragmentSetRequestIri( request.Address(), Str( "tel:+1" ).Get() );
    EXPECT_EQ( Dump( request.Get() ), "request ACK tel:+1 SIP/2.0\nno body" );
    tolmoMessageFragmentSetRequestMethodCstr( request.Address(), "BYE", -1 );
    tolmoMessageFragmentSetRequestIriCstr( request.Address(), "sip:b", -1 );
    EXPECT_EQ( Dump( request.Get() ), "request BYE sip:b SIP/2.0\nno body" );
    const uint16_t wideIri[] = { 's', ':', 0x4E2D, 0 };
    tolmoMessageFragmentSetRequestMethodWcstr( request.Address(), wide, -1 );
    tolmoMessageFragmentSetRequestIriWcstr( request.Address(), wideIri, -1 );
    EXPECT_EQ( Dump( request.Get() ), "request AB s:\u4E2D SIP/2.0\nno body" );
    const auto http = Own( tolmoVersionCreate( Str( "http" ).Get(), Str( "1.1" ).Get() ) );
    tolmoMessageFragmentSetVersion( request.Address(), http.Get() );
    EXPECT_EQ( Dump( request.Get() ), "request AB s:\u4E2D HTTP/1.1\nno body" );
    // What it holds already, with no other reference to it.
    tolmoMessageFragmentSetRequestMethod( request.Address(),
                                          Own( tolmoMessageFragmentRequestMethod( request.Get() ) ).Get() );
    tolmoMessageFragmentSetVersion( request.Address(), Own( tolmoMessageFragmentVersion( request.Get() ) ).Get() );
    EXPECT_EQ( Dump( request.Get() ), "request AB s:\u4E2D HTTP/1.1\nno body" );

    Frag response = Own( tolmoMessageFragmentCreateResponse( version.Get(), 200 ) );
    tolmoMessageFragmentSetResponseStatusCode( response.Address(), 404, KO_FALSE );
    EXPECT_EQ( Dump( response.Get() ), "response SIP/2.0 404 OK\nno body" );
    tolmoMessageFragmentSetResponseStatusCode( response.Address(), 404, KO_TRUE );
    EXPECT_EQ( Dump( response.Get() ), "response SIP/2.0 404 Not found\nno body" );
    tolmoMessageFragmentSetResponseReasonPhrase( response.Address(), empty.Get() );
    EXPECT_EQ( Dump( response.Get() ), "response SIP/2.0 404 \nno body" );
    tolmoMessageFragmentSetResponseReasonPhraseCstr( response.Address(), "x\r\n", -1 );
    EXPECT_EQ( Dump( response.Get() ), "response SIP/2.0 404 x\r\n\nno body" );
    tolmoMessageFragmentSetResponseReasonPhraseWcstr( response.Address(), wide, -1 );
    EXPECT_EQ( Dump( response.Get() ), "response SIP/2.0 404 AB\nno body" );
    tolmoMessageFragmentSetVersion( response.Address(), http.Get() );
    EXPECT_EQ( Dump( response.Get() ), "response HTTP/1.1 404 AB\nno body" );
}

TEST_F( MessageFragment, SettersNeedTheirState )
{
    Frag neither = Own( tolmoMessageFragmentCreate() );
    Frag request = Request();
    Frag response = Response();
    constexpr char hasMethod[] = "(*frag)->requestMethod";
    constexpr char hasCode[] = "(*frag)->responseStatusCode != TOLMO_STATUS_CODE_INVALID";
    constexpr char hasPhrase[] = "(*frag)->responseReasonPhrase";
    for ( Frag *const frag : { &neither, &response } ) {
        TolmoMessageFragment *const f = frag->Address();
        EXPECT_ABORT( tolmoMessageFragmentSetRequestMethod( f, method.Get() ), path, hasMethod );
        EXPECT_ABORT( tolmoMessageFragmentSetRequestMethodCstr( f, "A", -1 ), path, hasMethod );
        EXPECT_ABORT( tolmoMessageFragmentSetRequestMethodWcstr( f, wide, -1 ), path, hasMethod );
        EXPECT_ABORT( tolmoMessageFragmentSetRequestIri( f, iri.Get() ), path, hasMethod ); // the method, not the IRI
        EXPECT_ABORT( tolmoMessageFragmentSetRequestIriCstr( f, "sip:a", -1 ), path, hasMethod );
    }
    for ( Frag *const frag : { &neither, &request } ) {
        TolmoMessageFragment *const f = frag->Address();
        EXPECT_ABORT( tolmoMessageFragmentSetResponseStatusCode( f, 200, KO_TRUE ), path, hasCode );
        EXPECT_ABORT( tolmoMessageFragmentSetResponseStatusCode( f, 200, KO_FALSE ), path, hasCode );
        EXPECT_ABORT( tolmoMessageFragmentSetResponseReasonPhrase( f, phrase.Get() ), path, hasPhrase );
        EXPECT_ABORT( tolmoMessageFragmentSetResponseReasonPhraseCstr( f, "x", -1 ), path, hasPhrase );
        EXPECT_ABORT( tolmoMessageFragmentSetResponseReasonPhraseWcstr( f, wide, -1 ), path, hasPhrase );
    }
    EXPECT_ABORT( tolmoMessageFragmentSetVersion( neither.Address(), version.Get() ), path, "(*frag)->version" );

    // Address, handle and value come first.
    TolmoMessageFragment *const f = neither.Address();
    TolmoMessageFragment null = nullptr;
    EXPECT_ABORT( tolmoMessageFragmentSetRequestMethod( nullptr, bad.Get() ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequestMethod( &null, bad.Get() ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequestMethod( f, bad.Get() ), path, "tolmoMethodOk( method )" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequestIri( nullptr, bad.Get() ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequestIri( &null, bad.Get() ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetRequestIri( f, bad.Get() ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseStatusCode( nullptr, 0, KO_TRUE ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseStatusCode( &null, 0, KO_TRUE ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseStatusCode( f, 0, KO_TRUE ), path, "tolmoStatusCodeOk( sc )" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseReasonPhrase( nullptr, nullptr ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseReasonPhrase( &null, nullptr ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetResponseReasonPhrase( f, nullptr ), "source/tolmo/tolmo_reason_phrase.cpp",
                  "reasonPhrase" );
    EXPECT_ABORT( tolmoMessageFragmentSetVersion( nullptr, nullptr ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetVersion( &null, nullptr ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetVersion( f, nullptr ), path, "version" );
}

TEST_F( MessageFragment, Getters )
{
    const char frag[] = "frag";
    EXPECT_ABORT( tolmoMessageFragmentIsNeitherRequestNorResponse( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentIsRequest( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentIsResponse( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentRequestMethod( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentRequestIri( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentResponseStatusCode( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentResponseReasonPhrase( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentVersion( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHasVersion( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHeadersVector( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHasHeader( nullptr, nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHeader( nullptr, nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHasHeaderCstr( nullptr, "a", -1 ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHeaderWcstr( nullptr, wide, -1 ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHeaderContentLength( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentBody( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentHasBody( nullptr ), path, frag );
    EXPECT_ABORT( tolmoMessageFragmentCreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT( tolmoMessageFragmentSort()->free( nullptr ), path, frag );
}

TEST_F( MessageFragment, Headers )
{
    Frag frag = Own( tolmoMessageFragmentCreate() );
    Set( frag, "l", { "99" } );
    Set( frag, "x-A", { "1", "2" } );
    Set( frag, "VIA", { "v" } );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nContent-Length=2=99\nX-A=1=1\nX-A=1=2\nVia=1=v\nno body" );
    for ( const char *name : { "l", "L", "content-length", "CONTENT-LENGTH", "v", "via", "X-a" } ) {
        EXPECT_TRUE( tolmoMessageFragmentHasHeader( frag.Get(), Str( name ).Get() ) ) << name;
        EXPECT_TRUE( tolmoMessageFragmentHasHeaderCstr( frag.Get(), name, -1 ) ) << name;
        EXPECT_FALSE( test::IsNull( tolmoMessageFragmentHeaderCstr( frag.Get(), name, -1 ) ) ) << name;
    }
    for ( const char *name : { "t", "x", "X-AA", "Vi", "Via-" } ) {
        EXPECT_FALSE( tolmoMessageFragmentHasHeader( frag.Get(), Str( name ).Get() ) ) << name;
        EXPECT_TRUE( test::IsNull( tolmoMessageFragmentHeaderCstr( frag.Get(), name, -1 ) ) ) << name;
    }
    const uint16_t v[] = { 'v', 0 };
    EXPECT_TRUE( tolmoMessageFragmentHasHeaderWcstr( frag.Get(), v, -1 ) );
    EXPECT_FALSE( tolmoMessageFragmentHasHeaderWcstr( frag.Get(), wide, -1 ) );
    EXPECT_EQ( Take( tolmoMessageHeaderLastLine( Own( tolmoMessageFragmentHeaderWcstr( frag.Get(), v, 1 ) ).Get() ) ),
               "v" );
    EXPECT_EQ( Take( tolmoMessageHeaderLastLine( Own( tolmoMessageFragmentHeaderContentLength( frag.Get() ) ).Get() ) ),
               "99" );
    EXPECT_EQ( tolmoMessageFragmentHeaderContentLength( Request().Get() ), nullptr );

    // Another one of a name replaces it whole, in its place.
    Set( frag, "X-a", { "3" } );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nContent-Length=2=99\nX-A=1=3\nVia=1=v\nno body" );
    tolmoMessageFragmentDelHeader( frag.Address(), Str( "L" ).Get() );
    tolmoMessageFragmentDelHeader( frag.Address(), Str( "missing" ).Get() ); // no fault
    EXPECT_EQ( Dump( frag.Get() ), "neither\nX-A=1=3\nVia=1=v\nno body" );
    Set( frag, "l", { "7" } ); // deleted and set again: at the end
    tolmoMessageFragmentDelHeaderCstr( frag.Address(), "x-a", -1 );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nVia=1=v\nContent-Length=1=7\nno body" );
    tolmoMessageFragmentDelHeaderWcstr( frag.Address(), v, -1 );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nContent-Length=1=7\nno body" );
    tolmoMessageFragmentClearHeaders( frag.Address() );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nno body" );
    Set( frag, "a-b", {} ); // a header without lines is a header
    EXPECT_TRUE( tolmoMessageFragmentHasHeaderCstr( frag.Get(), "A-B", -1 ) );

    TolmoMessageFragment null = nullptr;
    TolmoMessageFragment *const f = frag.Address();
    constexpr char headerPath[] = "source/tolmo/tolmo_message_header.cpp";
    constexpr char nameOk[] = "tolmoMessageHeaderNameOk( name )";
    EXPECT_ABORT( tolmoMessageFragmentHasHeader( frag.Get(), bad.Get() ), headerPath, nameOk );
    EXPECT_ABORT( tolmoMessageFragmentHasHeaderCstr( frag.Get(), "", -1 ), headerPath, nameOk );
    EXPECT_ABORT( tolmoMessageFragmentHeader( frag.Get(), bad.Get() ), headerPath, nameOk );
    EXPECT_ABORT( tolmoMessageFragmentHeaderWcstr( frag.Get(), wide, 0 ), headerPath, nameOk );
    EXPECT_ABORT( tolmoMessageFragmentDelHeader( f, bad.Get() ), headerPath, nameOk );
    EXPECT_ABORT( tolmoMessageFragmentDelHeader( nullptr, bad.Get() ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentDelHeader( &null, bad.Get() ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentDelHeaderCstr( nullptr, "", -1 ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentDelHeaderWcstr( &null, wide, 0 ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetHeader( nullptr, nullptr ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetHeader( &null, nullptr ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetHeader( f, nullptr ), path, "header" );
    EXPECT_ABORT( tolmoMessageFragmentClearHeaders( nullptr ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentClearHeaders( &null ), path, "*frag" );
}

TEST_F( MessageFragment, HeadersAreShared )
{
    Frag frag = Own( tolmoMessageFragmentCreate() );
    auto header = Header( "To", { "a" } );
    tolmoMessageFragmentSetHeader( frag.Address(), header.Get() );
    EXPECT_EQ( Own( tolmoMessageFragmentHeaderCstr( frag.Get(), "t", -1 ) ).Get(), header.Get() );
    const auto vector = Own( tolmoMessageFragmentHeadersVector( frag.Get() ) );
    EXPECT_EQ( Own( koVectorObjAt( vector.Get(), 0 ) ).Get(), tolmoMessageHeaderObj( header.Get() ) );
    tolmoMessageHeaderAppendLineCstr( header.Address(), "later", -1 ); // the caller's gets an object of its own
    EXPECT_EQ( Dump( frag.Get() ), "neither\nTo=1=a\nno body" );
    // What a getter gave can be changed without a trace, too, and be set again.
    auto got = Own( tolmoMessageFragmentHeaderCstr( frag.Get(), "t", -1 ) );
    tolmoMessageHeaderAppendLineCstr( got.Address(), "b", -1 );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nTo=1=a\nno body" );
    tolmoMessageFragmentSetHeader( frag.Address(), got.Get() );
    tolmoMessageFragmentSetHeader( frag.Address(), got.Get() );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nTo=1=a\nTo=1=b\nno body" );
    EXPECT_EQ( test::Count( got.Get() ), 2 );
    // A later name of the object does not count.
    tolmoMessageHeaderSetName( got.Address(), Str( "From" ).Get() );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nTo=1=a\nTo=1=b\nno body" );
}

TEST_F( MessageFragment, HeadersOfADecodedFragment )
{
    const char bytes[] = "v: 1\r\nX-a: 2\r\nFrom: f\r\nv: 3\r\nX-b: \u00E9\r\nx-A: 4\r\nl: 0\r\n\r\n";
    Frag frag = Decode( bytes );
    const std::string dump = Dump( frag.Get() );
    EXPECT_EQ( dump,
               "neither\nVia=1=1\nVia=1=3\nX-A=1=2\nX-A=1=4\nFrom=1=f\nX-B=2=\u00E9\nContent-Length=1=0\nno body" );
    auto via = Own( tolmoMessageFragmentHeaderCstr( frag.Get(), "v", -1 ) );
    tolmoMessageHeaderAppendLineCstr( via.Address(), "5", -1 );
    EXPECT_EQ( Dump( frag.Get() ), dump );
    const Frag untouched = Frag::Share( frag.Get() );
    tolmoMessageFragmentSetHeader( frag.Address(), via.Get() );
    EXPECT_EQ(
        Dump( frag.Get() ),
        "neither\nVia=1=1\nVia=1=3\nVia=1=5\nX-A=1=2\nX-A=1=4\nFrom=1=f\nX-B=2=\u00E9\nContent-Length=1=0\nno body" );
    Set( frag, "x-b", { "new" } );
    Set( frag, "To", { "t" } );
    Set( frag, "X-c", { "c" } );
    tolmoMessageFragmentDelHeaderCstr( frag.Address(), "X-A", -1 );
    tolmoMessageFragmentDelHeaderCstr( frag.Address(), "f", -1 );
    EXPECT_EQ( Dump( frag.Get() ),
               "neither\nVia=1=1\nVia=1=3\nVia=1=5\nX-B=3=new\nContent-Length=1=0\nTo=1=t\nX-C=1=c\nno body" );
    EXPECT_EQ( Dump( untouched.Get() ), dump );
    tolmoMessageFragmentClearHeaders( frag.Address() );
    EXPECT_EQ( Dump( frag.Get() ), "neither\nno body" );
}

/** Two copies that share their headers go apart with the first change of either. */
TEST_F( MessageFragment, CreateFrom )
{
    for ( const bool decoded : { false, true } ) {
        Frag frag = decoded ? Decode( "SIP/2.0 200 OK\r\nTo: a\r\n\r\nb" ) : Response();
        if ( !decoded ) {
            Set( frag, "To", { "a" } );
            tolmoMessageFragmentSetBody( frag.Address(), Buf( "b" ).Get() );
        }
        const std::string dump = "response SIP/2.0 200 OK\nTo=1=a\nbody b";
        Frag copy = Own( tolmoMessageFragmentCreateFrom( frag.Get() ) );
        EXPECT_EQ( test::Count( copy.Get() ), 1 );
        EXPECT_EQ( test::Count( frag.Get() ), 1 );
        EXPECT_EQ( Own( tolmoMessageFragmentBody( frag.Get() ) ).Get(),
                   Own( tolmoMessageFragmentBody( copy.Get() ) ).Get() );
        EXPECT_EQ( Dump( copy.Get() ), dump );
        Set( copy, "To", { "x" } );
        EXPECT_EQ( Dump( frag.Get() ), dump );
        EXPECT_EQ( Dump( copy.Get() ), "response SIP/2.0 200 OK\nTo=1=x\nbody b" );
        const Frag third = Own( tolmoMessageFragmentCreateFrom( frag.Get() ) );
        Set( frag, "From", { "y" } );
        tolmoMessageFragmentDelBody( frag.Address() );
        tolmoMessageFragmentSetRequest( frag.Address(), version.Get(), method.Get(), iri.Get() );
        EXPECT_EQ( Dump( third.Get() ), dump );
        const Frag fourth = Own( tolmoMessageFragmentCreateFrom( third.Get() ) );
        copy = Own( tolmoMessageFragmentCreateFrom( third.Get() ) );
        tolmoMessageFragmentDelHeaderCstr( copy.Address(), "missing", -1 );
        tolmoMessageFragmentDelHeaderCstr( copy.Address(), "To", -1 );
        tolmoMessageFragmentClearHeaders( copy.Address() );
        EXPECT_EQ( Dump( fourth.Get() ), dump );
    }
}

TEST_F( MessageFragment, Body )
{
    Frag frag = Own( tolmoMessageFragmentCreate() );
    auto body = Buf( "body" );
    tolmoMessageFragmentSetBody( frag.Address(), body.Get() );
    EXPECT_TRUE( tolmoMessageFragmentHasBody( frag.Get() ) );
    EXPECT_EQ( Own( tolmoMessageFragmentBody( frag.Get() ) ).Get(), body.Get() );
    koBufferAppendByte( body.Address(), 'x' );
    EXPECT_EQ( test::TakeBytes( tolmoMessageFragmentBody( frag.Get() ) ), "body" );
    tolmoMessageFragmentSetBody( frag.Address(), Own( tolmoMessageFragmentBody( frag.Get() ) ).Get() );
    EXPECT_EQ( test::TakeBytes( tolmoMessageFragmentBody( frag.Get() ) ), "body" );
    tolmoMessageFragmentSetBody( frag.Address(), Buf( "" ).Get() );
    EXPECT_TRUE( tolmoMessageFragmentHasBody( frag.Get() ) ); // an empty body is a body
    tolmoMessageFragmentDelBody( frag.Address() );
    EXPECT_FALSE( tolmoMessageFragmentHasBody( frag.Get() ) );
    tolmoMessageFragmentDelBody( frag.Address() );

    TolmoMessageFragment null = nullptr;
    EXPECT_ABORT( tolmoMessageFragmentSetBody( nullptr, nullptr ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetBody( &null, nullptr ), path, "*frag" );
    EXPECT_ABORT( tolmoMessageFragmentSetBody( frag.Address(), nullptr ), path, "body" );
    EXPECT_ABORT( tolmoMessageFragmentDelBody( nullptr ), path, "frag" );
    EXPECT_ABORT( tolmoMessageFragmentDelBody( &null ), path, "*frag" );
}

/** Not compared and not shown by what they hold. */
TEST_F( MessageFragment, CompareAndToString )
{
    const Frag a = Request();
    const Frag b = Request();
    EXPECT_TRUE( tolmoMessageFragmentEquals( a.Get(), a.Get() ) );
    EXPECT_FALSE( tolmoMessageFragmentEquals( a.Get(), b.Get() ) );
    EXPECT_EQ( tolmoMessageFragmentCompare( a.Get(), b.Get() ) < 0,
               tolmoMessageFragmentCompare( b.Get(), a.Get() ) > 0 );
    EXPECT_EQ( Take( tolmoMessageFragmentToString( a.Get() ) ), "<TOLMO_MESSAGE_FRAGMENT>" );
}

/** A table of headers against a plain list: set, replaced and deleted in any order, shared now and then. */
TEST_F( MessageFragment, RandomHeaders )
{
    unsigned seed = 12345;
    const auto random = [&]( unsigned below ) { return ( seed = seed * 1103515245 + 12345 ) / 65536 % below; };
    for ( const unsigned names : { 10u, 40u, 200u } ) {
        for ( const bool decoded : { false, true } ) {
            std::string bytes;
            reference::Message expected;
            const auto name = [&]( unsigned i ) {
                return i % 3 ? "X-" + std::to_string( i ) : std::string( 1, "aiutmvlfsk"[i / 3 % 10] );
            };
            if ( decoded ) {
                for ( unsigned i = 0; i < names; i += 2 ) {
                    bytes += name( i ) + ": 0\r\n";
                    reference::DecodeHeader( expected, name( i ) + ":0" );
                }
            }
            Frag frag = Own( tolmoMessageFragmentTryDecodeHeaders( Buf( bytes ).Get(), nullptr ) );
            std::vector<std::pair<Frag, std::string>> kept;
            for ( unsigned step = 0; step < 2000; ++step ) {
                const std::string changed = name( random( names ) );
                const std::string normal = reference::NormalName( changed );
                auto &list = expected.headers;
                const auto at =
                    std::find_if( list.begin(), list.end(), [&]( const auto &h ) { return h.name == normal; } );
                if ( random( 3 ) == 0 ) {
                    tolmoMessageFragmentDelHeaderCstr( frag.Address(), changed.c_str(), -1 );
                    if ( at != list.end() ) {
                        list.erase( at );
                    }
                } else {
                    const std::string line = std::to_string( step );
                    Set( frag, changed, { line } );
                    if ( at != list.end() ) {
                        at->lines = { line };
                    } else {
                        list.push_back( { normal, { line } } );
                    }
                }
                ASSERT_EQ( tolmoMessageFragmentHasHeaderCstr( frag.Get(), changed.c_str(), -1 ),
                           std::any_of( list.begin(), list.end(), [&]( const auto &h ) { return h.name == normal; } ) );
                if ( step % 100 == 0 ) {
                    ASSERT_EQ( Dump( frag.Get() ), Dump( expected ) );
                    kept.emplace_back( Frag::Share( frag.Get() ), Dump( expected ) );
                }
            }
            ASSERT_EQ( Dump( frag.Get() ), Dump( expected ) );
            for ( const auto &[old, dump] : kept ) {
                ASSERT_EQ( Dump( old.Get() ), dump );
            }
        }
    }
}

TEST_F( MessageFragment, ManyHeaders )
{
    Frag frag = Own( tolmoMessageFragmentCreate() );
    constexpr int many = 100000;
    for ( int i = 0; i < many; ++i ) {
        Set( frag, "X-" + std::to_string( i ), {} );
    }
    EXPECT_EQ( koVectorLength( Own( tolmoMessageFragmentHeadersVector( frag.Get() ) ).Get() ), many );
    for ( int i = 0; i < many; ++i ) {
        EXPECT_TRUE( tolmoMessageFragmentHasHeaderCstr( frag.Get(), ( "x-" + std::to_string( i ) ).c_str(), -1 ) );
    }
    EXPECT_FALSE( tolmoMessageFragmentHasHeaderCstr( frag.Get(), "X-100000", -1 ) );
}

} // namespace
