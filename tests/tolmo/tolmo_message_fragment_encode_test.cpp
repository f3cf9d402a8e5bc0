/* From fragments to bytes. */
#include "tolmo_test.h"

namespace {

using namespace std::string_literals;
using test::Buf;
using test::Own;
using test::Str;
using test::TakeBytes;

using Frag = KoRef<TolmoMessageFragment>;

class Encode : public test::TolmoFixture {
protected:
    static std::string Bytes( const Frag &frag ) { return TakeBytes( tolmoMessageFragmentEncode( frag.Get() ) ); }
    static Frag Decode( std::string_view bytes ) { return Own( tolmoMessageFragmentTryDecode( Buf( bytes ).Get() ) ); }
    static Frag Request( std::string_view method, std::string_view iri )
    {
        const auto version = Own( tolmoVersionCreateSip20() );
        return Own( tolmoMessageFragmentCreateRequest( version.Get(), Str( method ).Get(), Str( iri ).Get() ) );
    }
    static Frag Response( KoInt sc, std::string_view phrase )
    {
        const auto version = Own( tolmoVersionCreateSip20() );
        return Own( tolmoMessageFragmentCreateResponseWithReasonPhrase( version.Get(), sc, Str( phrase ).Get() ) );
    }
    static void Set( Frag &frag, std::string_view name, const std::vector<std::string> &lines )
    {
        auto header = Own( tolmoMessageHeaderCreate( Str( name ).Get() ) );
        for ( const std::string &line : lines ) {
            tolmoMessageHeaderAppendLine( header.Address(), Str( line ).Get() );
        }
        tolmoMessageFragmentSetHeader( frag.Address(), header.Get() );
    }
};

const std::string noLength = "Content-Length: 0\r\n\r\n";

TEST_F( Encode, StartLines )
{
    EXPECT_EQ( Bytes( Own( tolmoMessageFragmentCreate() ) ), noLength );
    EXPECT_EQ( Bytes( Request( "OPTIONS", "sip:a" ) ), "OPTIONS sip:a SIP/2.0\r\n" + noLength );
    EXPECT_EQ( Bytes( Request( "%", "sip:\u00E9\u4E2D@a?x#y" ) ),
               "% sip:%C3%A9%E4%B8%AD@a?x#y SIP/2.0\r\n" + noLength );
    EXPECT_EQ( Bytes( Request( "a", "sip:a%41" ) ), "a sip:a%41 SIP/2.0\r\n" + noLength ); // an escape stays one
    const struct {
        KoInt sc;
        const char *phrase, *line;
    } rows[] = {
        { 200, "OK", "SIP/2.0 200 OK\r\n" },
        { 200, "", "SIP/2.0 200 \r\n" }, // the blank stays
        { 100, " ", "SIP/2.0 100  \r\n" },
        { 999, "100%", "SIP/2.0 999 100%25\r\n" },
        { 199, "Unknown reason \"199\"", "SIP/2.0 199 Unknown reason %22199%22\r\n" },
        { 200, "a\r\nVia: x", "SIP/2.0 200 a%0D%0AVia: x\r\n" }, // no line can be put in
        { 200, "\t\x01\x7F", "SIP/2.0 200 \t%01%7F\r\n" },
        { 200, "\"#%<>[\\]^`{|}", "SIP/2.0 200 %22%23%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D\r\n" },
        { 200, ";/?:@&=+$,-_.!~*'()", "SIP/2.0 200 ;/?:@&=+$,-_.!~*'()\r\n" },
        { 200, "\u0080\u00E9\u4E2D\U0001F600", "SIP/2.0 200 \u0080\u00E9\u4E2D\U0001F600\r\n" },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Bytes( Response( row.sc, row.phrase ) ), std::string( row.line ) + noLength );
    }
    EXPECT_ABORT( tolmoMessageFragmentEncode( nullptr ), "source/tolmo/tolmo_message_fragment_encode.cpp", "frag" );
}

TEST_F( Encode, Version )
{
    const auto version = Own( tolmoVersionCreate( Str( "http" ).Get(), Str( "1.1B" ).Get() ) );
    const auto response = Own( tolmoMessageFragmentCreateResponse( version.Get(), 404 ) );
    EXPECT_EQ( Bytes( response ), "HTTP/1.1b 404 Not found\r\n" + noLength );
}

TEST_F( Encode, Headers )
{
    Frag frag = Own( tolmoMessageFragmentCreate() );
    Set( frag, "v", { "1", "2, 3", "" } );
    Set( frag, "x-FOO", { " a " } );
    Set( frag, "Supported", {} );                  // no lines, nothing written
    Set( frag, "Subject", { "a\nVia: x", "\r" } ); // lines are written as they stand
    Set( frag, "To", { "\u00E9" } );
    EXPECT_EQ( Bytes( frag ), "Via: 1\r\nVia: 2, 3\r\nVia: \r\nX-Foo:  a \r\nSubject: a\nVia: x\r\nSubject: \r\r\n"
                              "To: \u00E9\r\n" +
                                  noLength );
}

TEST_F( Encode, ContentLength )
{
    Frag frag = Request( "MESSAGE", "sip:a" );
    Set( frag, "To", { "a" } );
    Set( frag, "l", { "99", "nonsense" } ); // stored lines do not count, their place does
    Set( frag, "From", { "b" } );
    const std::string start = "MESSAGE sip:a SIP/2.0\r\nTo: a\r\n";
    EXPECT_EQ( Bytes( frag ), start + "Content-Length: 0\r\nFrom: b\r\n\r\n" );
    tolmoMessageFragmentSetBody( frag.Address(), Buf( "12345" ).Get() );
    EXPECT_EQ( Bytes( frag ), start + "Content-Length: 5\r\nFrom: b\r\n\r\n12345" );
    tolmoMessageFragmentSetBody( frag.Address(), Buf( "" ).Get() );
    EXPECT_EQ( Bytes( frag ), start + "Content-Length: 0\r\nFrom: b\r\n\r\n" );
    tolmoMessageFragmentSetBody( frag.Address(), Buf( std::string( 100000, 'x' ) ).Get() );
    EXPECT_EQ( Bytes( frag ), start + "Content-Length: 100000\r\nFrom: b\r\n\r\n" + std::string( 100000, 'x' ) );
    // Without lines it still has its place; without the header it comes last.
    Set( frag, "l", {} );
    tolmoMessageFragmentSetBody( frag.Address(), Buf( "\0\xFF"s ).Get() );
    EXPECT_EQ( Bytes( frag ), start + "Content-Length: 2\r\nFrom: b\r\n\r\n\0\xFF"s );
    tolmoMessageFragmentDelHeaderCstr( frag.Address(), "l", -1 );
    EXPECT_EQ( Bytes( frag ), start + "From: b\r\nContent-Length: 2\r\n\r\n\0\xFF"s );
    tolmoMessageFragmentDelBody( frag.Address() );
    EXPECT_EQ( Bytes( frag ), start + "From: b\r\n" + noLength );
    // Also without a start line. A header with the same text is another header.
    tolmoMessageFragmentSetNeitherRequestNorResponse( frag.Address() );
    Set( frag, "X-Length", { "5" } );
    EXPECT_EQ( Bytes( frag ), "To: a\r\nFrom: b\r\nX-Length: 5\r\n" + noLength );
}

/** What a decoded fragment looks like: the normal form of names, lines of one name together, unfolded. */
TEST_F( Encode, AfterDecoding )
{
    const struct {
        std::string bytes, encoded;
    } rows[] = {
        { "SIP/2.0 200\r\nf:a\r\nV : 1\r\nCSEQ:1\r\n  INVITE\r\nx-y:\r\nvia: 2\r\nL:00\r\nt: b\r\n\r\n",
          "SIP/2.0 200 \r\nFrom: a\r\nVia: 1\r\nVia: 2\r\nCseq: 1 INVITE\r\nX-Y: \r\nContent-Length: 0\r\nTo: "
          "b\r\n\r\n" },
        { "INVITE sip:%c3%a9@a sip / 2.0\r\n\r\nbody", "INVITE sip:%C3%A9@a SIP/2.0\r\nContent-Length: 4\r\n\r\nbody" },
        { "SIP/2.0 200 %41%zz%e9\r\nl: 9\r\nl: 1\r\nTo: a\r\n\r\nbody",
          "SIP/2.0 200 A%25zz\u00E9\r\nContent-Length: 1\r\nTo: a\r\n\r\nb" },
        { "", noLength },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Bytes( Decode( row.bytes ) ), row.encoded );
    }
    // With some headers set and some as they came.
    Frag frag = Decode( "v: 1\r\nx-y: 2\r\nTo: 3\r\nl: 0\r\n\r\n" );
    Set( frag, "X-Y", { "new", "\u4E2D" } );
    Set( frag, "l", { "5" } );
    Set( frag, "z", { "last" } );
    EXPECT_EQ( Bytes( frag ), "Via: 1\r\nX-Y: new\r\nX-Y: \u4E2D\r\nTo: 3\r\nContent-Length: 0\r\nZ: last\r\n\r\n" );
}

/** Lengths around those of buffers on the stack, in one, two, three and four bytes a character. */
TEST_F( Encode, LongTexts )
{
    for ( const std::string &piece : { "x"s, "\u00E9"s, "\u4E2D"s, "\U0001F600"s } ) {
        for ( const size_t length : { 510u, 511u, 512u, 513u, 514u, 1023u, 1024u, 1025u, 70000u } ) {
            std::string line( length % piece.size(), 'a' );
            while ( line.size() < length ) {
                line += piece;
            }
            Frag frag = Own( tolmoMessageFragmentCreate() );
            Set( frag, "To", { line, line } );
            EXPECT_EQ( Bytes( frag ), "To: " + line + "\r\nTo: " + line + "\r\n" + noLength );
        }
    }
}

/** What is no character goes out as U+FFFD. */
TEST_F( Encode, NoScalarValues )
{
    const KoChar chs[] = { 'a', 0xD800, 0x110000, -1, 'b' };
    auto header = Own( tolmoMessageHeaderCreateCstr( "To", -1 ) );
    tolmoMessageHeaderAppendLine( header.Address(), Own( koStringCreateFromCharsCopy( chs, 5 ) ).Get() );
    Frag frag = Own( tolmoMessageFragmentCreate() );
    tolmoMessageFragmentSetHeader( frag.Address(), header.Get() );
    EXPECT_EQ( Bytes( frag ), "To: a\uFFFD\uFFFD\uFFFDb\r\n" + noLength );
}

TEST_F( Encode, ChangesNothing )
{
    const Frag frag = Decode( "SIP/2.0 200 OK\r\nTo: a\r\n\r\nbody" );
    const auto body = Own( tolmoMessageFragmentBody( frag.Get() ) );
    const auto first = Own( tolmoMessageFragmentEncode( frag.Get() ) );
    EXPECT_EQ( Bytes( frag ), test::Bytes( first.Get() ) );
    EXPECT_EQ( test::Count( frag.Get() ), 1 );
    EXPECT_EQ( test::Count( body.Get() ), 2 );
    EXPECT_EQ( test::Count( first.Get() ), 1 );
}

} // namespace
