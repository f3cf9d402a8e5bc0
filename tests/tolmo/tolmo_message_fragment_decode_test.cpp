/* From bytes to fragments: rows, a comparison with a second decoder, and real traffic. */
#include "corpus.h"
#include "head_reference.h"

#include <map>
#include <random>

namespace {

using namespace std::string_literals;
using reference::Dump;
using reference::DumpOfDecode;
using reference::DumpOfDecodeHead;
using reference::DumpOfTryDecode;
using reference::DumpOfTryDecodeHeaders;
using test::Buf;
using test::Own;
using test::Text;

constexpr char path[] = "source/tolmo/tolmo_message_fragment_decode.cpp";

class Decode : public test::TolmoFixture {};

struct Row {
    std::string bytes;
    const char *dump; // "refused", or what it holds
};

void Expect( const std::vector<Row> &rows )
{
    for ( const Row &row : rows ) {
        EXPECT_EQ( DumpOfTryDecode( row.bytes ), row.dump ) << testing::PrintToString( row.bytes );
        EXPECT_EQ( DumpOfDecode( row.bytes ), row.dump ) << "the reference: " << testing::PrintToString( row.bytes );
    }
}

TEST_F( Decode, StartLines )
{
    Expect( {
        { "SIP/2.0 200 OK\r\n\r\n", "response SIP/2.0 200 OK\nno body" },
        { "SIP/2.0 200 OK", "response SIP/2.0 200 OK\nno body" }, // neither line end nor empty line is needed
        { "SIP/2.0 200 OK\r\n", "response SIP/2.0 200 OK\nno body" },
        { "SIP/2.0 200\r\n\r\n", "response SIP/2.0 200 \nno body" }, // the phrase may be missing with its blank
        { "SIP/2.0 200 \r\n\r\n", "response SIP/2.0 200 \nno body" },
        { "SIP/2.0 200  OK\r\n\r\n", "response SIP/2.0 200  OK\nno body" }, // the third part holds the rest
        { "SIP/2.0 200 OK then more\r\n\r\n", "response SIP/2.0 200 OK then more\nno body" },
        { "SIP/2.0 200 OK: x\r\n\r\n", "response SIP/2.0 200 OK: x\nno body" },
        { "SIP/2.0 200 \t\r\n\r\n", "response SIP/2.0 200 \t\nno body" },  // a phrase is not trimmed
        { "sip/2.0 0200 OK\r\n\r\n", "response SIP/2.0 200 OK\nno body" }, // any case, any number of digits
        { "SIP/2.0B 200 OK\r\n\r\n", "response SIP/2.0b 200 OK\nno body" },
        { "SIP/2.0 100 x", "response SIP/2.0 100 x\nno body" },
        { "SIP/2.0 999 x", "response SIP/2.0 999 x\nno body" },
        { "HTTP/1.1 200 OK\r\n\r\n", "response HTTP/1.1 200 OK\nno body" },         // any two tokens are a version
        { "SIP\t/\t2.0 200 OK", "response SIP/2.0 200 OK\nno body" },               // a tab stays in its part
        { "SIP/2.0 200 %C3%A9%25", "response SIP/2.0 200 \u00C3\u00A9%\nno body" }, // characters, not UTF-8
        { "SIP/2.0 200 100%", "response SIP/2.0 200 100%\nno body" },
        { "SIP/2.0 200 %zz%4", "response SIP/2.0 200 %zz%4\nno body" },
        { "SIP/2.0 200 \u00E9", "response SIP/2.0 200 \u00E9\nno body" },
        { "SIP/2.0 ", "refused" },        // an empty code
        { "SIP/2.0  200 OK", "refused" }, // likewise
        { "SIP/2.0", "refused" },         // one part is no start line, and no header line either
        { "SIP/2.0 99 x", "refused" },
        { "SIP/2.0 1000 x", "refused" },
        { "SIP/2.0 +200 x", "refused" },
        { "SIP/2.0 -200 x", "refused" },
        { "SIP/2.0 2OO x", "refused" },
        { "SIP/2.0 200x", "refused" },
        { "SIP/2.0 18446744073709551816 x", "refused" }, // 200 and 2 to the 64
        { "A/1 x y", "refused" },                        // a version makes it a status line, and it stays one
        { "SIP/2.0\t200 OK", "refused" },                // only blanks separate
        { "SIP/2.0 200\tOK", "refused" },
        { " SIP/2.0 200 OK", "refused" }, // the empty first part is no version: a header line
        { "INVITE sip:a SIP/2.0\r\n\r\n", "request INVITE sip:a SIP/2.0\nno body" },
        { "invite sip:a sip/2.0", "request invite sip:a SIP/2.0\nno body" }, // the method keeps its case
        { "% a: A/B", "request % a: A/b\nno body" },
        { "INVITE sip:a SIP / 2.0\r\n\r\n", "request INVITE sip:a SIP/2.0\nno body" }, // the third part is the rest
        { "INVITE sip:a SIP\t/ 2.0", "request INVITE sip:a SIP/2.0\nno body" },
        { "INVITE sip:%C3%A9@a SIP/2.0", "request INVITE sip:\u00E9@a SIP/2.0\nno body" }, // the target is an IRI
        { "INVITE sip:a SIP/2.0 ", "refused" },
        { "INVITE sip:a  SIP/2.0", "refused" },
        { "INVITE  sip:a SIP/2.0", "refused" },
        { "INVITE sip:a@b c SIP/2.0", "refused" },
        { "INVITE a SIP/2.0", "refused" }, // no scheme
        { "INVITE sip:a\tSIP/2.0", "refused" },
        { "INVITE sip:a", "refused" },
        { "INVITE <sip:a> SIP/2.0", "refused" },
        { "INVITE sip:a SIP", "refused" },
        { "INVITE sip:a /2.0", "refused" },
        { "Subject : hello", "refused" }, // three parts, of which the first is a method: a request line
        { "Via : x", "refused" },
        { "Subject:  hello", "neither\nSubject=5=hello\nno body" },
        { "Subject :hello", "neither\nSubject=5=hello\nno body" }, // two parts only
        { "INV(TE sip:a SIP/2.0", "refused" },                     // no method, so a header line: with a bad name
        { "Via: a b c", "neither\nVia=5=a b c\nno body" },
    } );
    // The row with the zero character, whole.
    EXPECT_EQ( DumpOfTryDecode( "SIP/2.0 200 a%00b" ), "response SIP/2.0 200 a\0b\nno body"s );
}

TEST_F( Decode, HeaderLines )
{
    const std::string start = "OPTIONS sip:a SIP/2.0\r\n";
    const std::vector<Row> rows = {
        { "", "" },
        { "Via: x\r\n y\r\n", "Via=3=x y\n" },
        { "Via: x\r\n\t \ty\r\n", "Via=3=x y\n" }, // a fold is one blank, with all whitespace around it
        { "Via: x \t\r\n y\r\n", "Via=3=x y\n" },
        { "Via: \"x\r\n y\"\r\n", "Via=5=\"x y\"\n" }, // in quoted strings too
        { "Via: x\r\n y\r\n  z\r\n", "Via=5=x y z\n" },
        { "Via: x\r\n \r\n y\r\n", "Via=3=x y\n" }, // a line of whitespace does not end the header
        { "To: a\r\n\t\r\n b\r\n", "To=3=a b\n" },
        { "To\r\n : a\r\n", "To=1=a\n" }, // a fold may split a name from its colon
        { "To:\r\n a\r\n", "To=1=a\n" },
        { "T\r\n o: a\r\n", nullptr }, // ... but not a name: the blank stays
        { " To: x\r\n", "To=1=x\n" },  // right behind the start line it begins a header
        { " \r\n To: x\r\n", "To=1=x\n" },
        { "\tTo: x\r\n y\r\n", "To=3=x y\n" },
        { "Max-Forwards: 1\r\nTo: a\r\nmax-forwards:2\r\n", "Max-Forwards=1=1\nMax-Forwards=1=2\nTo=1=a\n" },
        { "v: 1\r\nVia: 2\r\nVIA: 3\r\n", "Via=1=1\nVia=1=2\nVia=1=3\n" },
        { "X-a: 1\r\nW:2\r\nx-A: 3\r\n", "X-A=1=1\nX-A=1=3\nW=1=2\n" },
        { "To: a, b\r\n", "To=4=a, b\n" }, // lists are left as they are
        { "To:\r\n", "To=0=\n" },
        { "To: \t \r\n", "To=0=\n" },
        { "To:a\r\n", "To=1=a\n" },
        { "To \t:\t a \t\r\n", "To=1=a\n" },
        { "To::\r\n", "To=1=:\n" }, // the first colon counts
        { "To: a:b\r\n", "To=3=a:b\n" },
        { "To: \"a\r\n", "To=2=\"a\n" },                       // quotes are not looked at
        { "Subject: a\nVia: x\r\n", "Subject=8=a\nVia: x\n" }, // a lone line feed is data
        { "Subject: a\rb\r\n", "Subject=3=a\rb\n" },
        { "Subject: a\r\r\n", "Subject=2=a\r\n" },   // the first of two CR is data
        { "Subject: \x0B\r\n", "Subject=1=\x0B\n" }, // whitespace is blank and tab only
        { "Subject: \u00A0\r\n", "Subject=2=\u00A0\n" },
        { "Subject: \u4E2D\U0001F600\r\n", "Subject=7=\u4E2D\U0001F600\n" },
        { "%: x\r\n", "%=1=x\n" },
        { "I: x\r\nz: y\r\n", "Call-Id=1=x\nZ=1=y\n" },
        { "WWW-Authenticate: x\r\n", "Www-Authenticate=1=x\n" },
        { ": x\r\n", nullptr }, // no name
        { " : x\r\n", nullptr },
        { "Vi a: x\r\n", nullptr },
        { "Vi\xC3\xA9: x\r\n", nullptr },
        { "Vi(a): x\r\n", nullptr },
        { "Vi\x0B: x\r\n", nullptr },
        { "Via x\r\n", nullptr }, // no colon
        { "Via\r\n", nullptr },
        { "x\r\nVia: y\r\n", nullptr },
        { "Via: y\r\nx\r\n", nullptr },
        { "To: a\xFF\r\n", nullptr }, // the whole head must be UTF-8
        { "To: \xC0\xAF\r\n", nullptr },
        { "To: \xED\xA0\x80\r\n", nullptr },
        { "To: \xF4\x90\x80\x80\r\n", nullptr },
        { "To: \xE4\xB8\r\n", nullptr },
        { "Subject : hello\r\n", "Subject=5=hello\n" }, // what fails as a first line is good further down
    };
    for ( const Row &row : rows ) {
        const std::string bytes = start + row.bytes + "\r\nbody";
        const std::string dump =
            row.dump ? "request OPTIONS sip:a SIP/2.0\n" + std::string( row.dump ) + "body body" : "refused";
        EXPECT_EQ( DumpOfTryDecode( bytes ), dump ) << testing::PrintToString( row.bytes );
        EXPECT_EQ( DumpOfDecode( bytes ), dump ) << "the reference: " << testing::PrintToString( row.bytes );
        // Without the empty line, and without the last line end.
        const std::string noBody = row.dump ? dump.substr( 0, dump.size() - 9 ) + "no body" : "refused";
        EXPECT_EQ( DumpOfTryDecode( start + row.bytes ), noBody ) << testing::PrintToString( row.bytes );
        if ( !row.bytes.empty() ) {
            EXPECT_EQ( DumpOfTryDecode( ( start + row.bytes ).substr( 0, start.size() + row.bytes.size() - 2 ) ),
                       noBody )
                << testing::PrintToString( row.bytes );
        }
    }
    // An empty line ends a header, and what goes on behind it begins one. (Inside of a head handed over alone.)
    EXPECT_EQ( DumpOfTryDecodeHeaders( start + "To: a\r\n\r\n b: c\r\n", true ),
               "-1request OPTIONS sip:a SIP/2.0\nTo=1=a\nReferred-By=1=c\nno body" );
    EXPECT_EQ( DumpOfTryDecodeHeaders( "To: a\r\n\r\nTo: b", true ), "-1neither\nTo=1=a\nTo=1=b\nno body" );
    EXPECT_EQ( DumpOfTryDecodeHeaders( start + "Subject: a\0b"s, true ),
               "-1request OPTIONS sip:a SIP/2.0\nSubject=3=a\0b\nno body"s );
}

TEST_F( Decode, HeadAndBody )
{
    Expect( {
        { "", "neither\nno body" },
        { "\r\n", "neither\nno body" },
        { "\r\n\r\n", "neither\nno body" },
        { "\r\n\r\n\r\n", "neither\nbody \r\n" },
        { "\r\n\r\nOPTIONS sip:a SIP/2.0\r\n\r\n", "neither\nbody OPTIONS sip:a SIP/2.0\r\n\r\n" },
        { "\r\nOPTIONS sip:a SIP/2.0\r\n\r\n", "refused" }, // line 0 is empty, and the next one no header line
        { "\r\nTo: a\r\n\r\n", "neither\nTo=1=a\nno body" },
        { "To: a\r\n\r\nb", "neither\nTo=1=a\nbody b" },
        { "To: a\r\n\r\n\r\n\r\n", "neither\nTo=1=a\nbody \r\n\r\n" }, // the first empty line
        { "To: a\r\r\n\r\nb", "neither\nTo=2=a\r\nbody b" },
        { "To: a\n\nb", "neither\nTo=4=a\n\nb\nno body" },         // line feeds alone are no empty line
        { "To: a\r\n\r\n\xFF\x00", "neither\nTo=1=a\nbody \xFF" }, // a body may be anything
        { "To: a\r\n\r", "refused" },                              // a lone CR is a line, and no header line
        { "l: 0\r\n\r\n", "neither\nContent-Length=1=0\nno body" },
        { "l: 0\r\n\r\nabc", "neither\nContent-Length=1=0\nno body" }, // dropped
        { "l: 1\r\n\r\n", "refused" },
        { "l: 1", "refused" },
        { "l: 2\r\n\r\nabc", "neither\nContent-Length=1=2\nbody ab" },
        { "l: 3\r\n\r\nabc", "neither\nContent-Length=1=3\nbody abc" },
        { "l: 4\r\n\r\nabc", "refused" },
        { "l: 9223372036854775807\r\n\r\nabc", "refused" },
        { "l: 9223372036854775808\r\n\r\nabc", "refused" }, // no number
        { "l: -1\r\n\r\nabc", "refused" },
        { "l: -0\r\n\r\nabc", "neither\nContent-Length=2=-0\nno body" },
        { "l: +3\r\n\r\nabc", "refused" },
        { "l: 3x\r\n\r\nabc", "refused" },
        { "l: 3 3\r\n\r\nabc", "refused" },
        { "l: 3,3\r\n\r\nabc", "refused" },
        { "l: x\r\n\r\nabc", "refused" },
        { "l: \u0663\r\n\r\nabc", "refused" }, // a digit, but no ASCII digit
        { "l:\r\n\r\nabc", "refused" },
        { "l: 00000000000000000000000003\r\n\r\nabc",
          "neither\nContent-Length=26=00000000000000000000000003\nbody abc" },
        { "Content-Length: 5\r\nl: 0\r\n\r\nabc",
          "neither\nContent-Length=1=5\nContent-Length=1=0\nno body" }, // the last line counts
        { "l: x\r\nCONTENT-LENGTH: 3\r\n\r\nabc", "neither\nContent-Length=1=x\nContent-Length=1=3\nbody abc" },
        { "l: 3\r\nl: x\r\n\r\nabc", "refused" },
        { "l: 1\r\n 0\r\n\r\nabcdefghij", "refused" }, // a fold is a blank
        { "Content-Length: 10\r\n\r\n01234567890123456789", "neither\nContent-Length=2=10\nbody 0123456789" },
        { "Content-Length: 10\r\n\r\n01234", "refused" },
        { "Content-Length: abc\r\n\r\n", "refused" },
        { "Content-Length: -1\r\n\r\n", "refused" },
    } );
    EXPECT_EQ( DumpOfTryDecode( "To: a\r\n\r\n\0b"s ), "neither\nTo=1=a\nbody \0b"s );
}

TEST_F( Decode, Headers )
{
    const auto decode = []( std::string_view bytes, KoInt *contentLength ) {
        return Own( tolmoMessageFragmentTryDecodeHeaders( Buf( bytes ).Get(), contentLength ) );
    };
    KoInt contentLength = 7;
    EXPECT_TRUE( decode( "To: a", &contentLength ) );
    EXPECT_EQ( contentLength, -1 );
    EXPECT_TRUE( decode( "l: 12", &contentLength ) );
    EXPECT_EQ( contentLength, 12 );
    EXPECT_TRUE( decode( "l: 9223372036854775807", &contentLength ) );
    EXPECT_EQ( contentLength, INT64_MAX );
    EXPECT_FALSE( decode( "l: abc", &contentLength ) );
    EXPECT_TRUE( decode( "l: abc", nullptr ) ); // not asked for, so not looked at
    contentLength = 7;
    EXPECT_FALSE( decode( "x", &contentLength ) );
    EXPECT_EQ( contentLength, -1 ); // stored on entry
    contentLength = 7;
    EXPECT_FALSE( decode( "\xFF", &contentLength ) );
    EXPECT_EQ( contentLength, -1 );
    EXPECT_FALSE( decode( "SIP/2.0 99 x", nullptr ) );

    EXPECT_ABORT( tolmoMessageFragmentTryDecode( nullptr ), path, "buf" );
    EXPECT_ABORT( tolmoMessageFragmentTryDecodeHeaders( nullptr, &contentLength ), path, "buf" );
    EXPECT_ABORT( tolmoMessageFragmentTryDecodeHeaders( nullptr, nullptr ), path, "buf" );
}

TEST_F( Decode, KeepsNothingOfTheBuffer )
{
    auto buf = Buf( "OPTIONS sip:a SIP/2.0\r\nTo: a\r\n\r\nbody" );
    const auto frag = Own( tolmoMessageFragmentTryDecode( buf.Get() ) );
    EXPECT_EQ( test::Count( buf.Get() ), 1 );
    buf = {};
    EXPECT_EQ( Dump( frag.Get() ), "request OPTIONS sip:a SIP/2.0\nTo=1=a\nbody body" );
}

/** Buffers end with their block, so that a sanitizer sees reads behind the end of each of them. */
TEST_F( Decode, EveryPrefixOfARichMessage )
{
    const std::string bytes = "OPTIONS sip:%C3%A9@a SIP/2.0\r\nVia: x\r\n\ty\r\nv:z\r\nX-\xC3\xA4 : \xE4\xB8\xAD\r\n"
                              "Foo-Bar:\r\nL:3\r\n\r\nabcd";
    const std::string good = "OPTIONS sip:%C3%A9@a SIP/2.0\r\nVia: x\r\n\ty\r\nv:z\r\nX-a : \xE4\xB8\xAD\r\n"
                             "Foo-Bar:\r\nL:3\r\n\r\nabcd";
    for ( const std::string &all : { bytes, good } ) {
        for ( size_t length = 0; length <= all.size(); ++length ) {
            const std::string prefix = all.substr( 0, length );
            EXPECT_EQ( DumpOfTryDecode( prefix ), DumpOfDecode( prefix ) ) << testing::PrintToString( prefix );
            EXPECT_EQ( DumpOfTryDecodeHeaders( prefix, true ), DumpOfDecodeHead( prefix, true ) );
        }
    }
}

/** A fragment that is written and read again is the same, but for the Content-Length line; once more, and it is all the same. */
std::string WithoutLength( const std::string &dump )
{
    std::string kept;
    size_t begin = 0;
    while ( dump.compare( begin, 5, "body " ) != 0 && dump.compare( begin, 7, "no body" ) != 0 ) {
        // Values may hold line feeds: their lengths tell where they end. The start line holds none that matter here.
        size_t end = dump.find( '\n', begin );
        if ( begin > 0 ) {
            const size_t number = dump.find( '=', begin ) + 1;
            const size_t value = dump.find( '=', number ) + 1;
            end = value + std::stoul( dump.substr( number ) );
        }
        if ( begin == 0 || dump.compare( begin, 15, "Content-Length=" ) != 0 ) {
            kept += dump.substr( begin, end + 1 - begin );
        }
        begin = end + 1;
    }
    return kept + dump.substr( begin );
}

void ExpectRoundTrip( const std::string &bytes )
{
    const auto frag = Own( tolmoMessageFragmentTryDecode( Buf( bytes ).Get() ) );
    if ( !frag ) {
        return;
    }
    const auto encoded = Own( tolmoMessageFragmentEncode( frag.Get() ) );
    const auto again = Own( tolmoMessageFragmentTryDecode( encoded.Get() ) );
    ASSERT_TRUE( again ) << testing::PrintToString( bytes );
    // A phrase may hold a line end, which stands in the dump of the start line.
    const auto phrase = Text( Own( tolmoMessageFragmentResponseReasonPhrase( frag.Get() ) ) );
    if ( phrase.find( '\n' ) == std::string::npos ) {
        EXPECT_EQ( WithoutLength( Dump( again.Get() ) ), WithoutLength( Dump( frag.Get() ) ) )
            << testing::PrintToString( bytes );
    }
    EXPECT_EQ( test::TakeBytes( tolmoMessageFragmentEncode( again.Get() ) ), test::Bytes( encoded.Get() ) )
        << testing::PrintToString( bytes );
}

void ExpectSameAsReference( const std::string &bytes )
{
    ASSERT_EQ( DumpOfTryDecode( bytes ), DumpOfDecode( bytes ) ) << testing::PrintToString( bytes );
    ASSERT_EQ( DumpOfTryDecodeHeaders( bytes, true ), DumpOfDecodeHead( bytes, true ) )
        << testing::PrintToString( bytes );
    ASSERT_EQ( DumpOfTryDecodeHeaders( bytes, false ), DumpOfDecodeHead( bytes, false ) )
        << testing::PrintToString( bytes );
}

/** What means something in a head, and pieces of it. */
const std::string pieces[] = { "\r\n",
                               "\r\n",
                               "\r\n ",
                               "\r\n\t",
                               "\r\n\r\n",
                               "\r",
                               "\n",
                               " ",
                               " ",
                               "\t",
                               ":",
                               ": ",
                               "a",
                               "To",
                               "x-Y",
                               "v",
                               "l",
                               "Content-Length",
                               "SIP/2.0",
                               "SIP/2.0 200 ",
                               "/",
                               "2.0",
                               "200",
                               "0",
                               "3",
                               "-1",
                               "%41",
                               "%",
                               "%zz",
                               "INVITE ",
                               "INVITE sip:a SIP/2.0\r\n",
                               "sip:a",
                               "\"",
                               "(",
                               ",",
                               ";",
                               "\0"s,
                               "\x7F",
                               "\u00E9",
                               "\U0001F600",
                               "\xFF",
                               "\xC3",
                               "@" };

TEST_F( Decode, RandomTextsLikeTheReference )
{
    std::mt19937 random( 20260101 );
    size_t good = 0;
    for ( int i = 0; i < 150000; ++i ) {
        std::string bytes;
        for ( size_t count = random() % 12; count > 0; --count ) {
            bytes += pieces[random() % std::size( pieces )];
        }
        ExpectSameAsReference( bytes );
        if ( HasFatalFailure() ) {
            return;
        }
        if ( i % 8 == 0 ) {
            ExpectRoundTrip( bytes );
        }
        good += DumpOfDecode( bytes ) != "refused";
    }
    EXPECT_GT( good, 10000u ); // so that the comparison is about something
}

TEST_F( Decode, MutatedTrafficLikeTheReference )
{
    std::mt19937 random( 4711 );
    size_t good = 0;
    size_t bad = 0;
    for ( const test::CorpusFile &file : test::Corpus() ) {
        const size_t headLength = std::min( file.bytes.find( "\r\n\r\n" ), file.bytes.size() ) + 4;
        for ( int i = 0; i < 40; ++i ) {
            std::string bytes = file.bytes;
            for ( size_t changes = 1 + random() % 3; changes > 0 && !bytes.empty(); --changes ) {
                const size_t at = random() % std::min( bytes.size(), random() % 4 ? headLength : bytes.size() );
                const std::string &piece = pieces[random() % std::size( pieces )];
                switch ( random() % 6 ) {
                case 0:
                    bytes.insert( at, piece );
                    break;
                case 1:
                    bytes.replace( at, piece.size(), piece );
                    break;
                case 2:
                    bytes.erase( at, 1 + random() % 4 );
                    break;
                case 3:
                    bytes[at] = static_cast<char>( random() );
                    break;
                case 4: // a piece of the message itself
                    bytes.insert( at, bytes.substr( random() % bytes.size(), random() % 64 ) );
                    break;
                default:
                    bytes.resize( random() % 8 ? bytes.size() : at );
                    break;
                }
            }
            ExpectSameAsReference( bytes );
            if ( HasFatalFailure() ) {
                return;
            }
            ( DumpOfDecode( bytes ) == "refused" ? bad : good ) += 1;
        }
    }
    EXPECT_GT( good, 1000u );
    EXPECT_GT( bad, 1000u );
}

/** corpus_verdicts.tsv names the files that are not one good message, as a datagram and as a stream, and says why. */
TEST_F( Decode, Corpus )
{
    std::map<std::string, std::vector<std::string>> verdicts;
    for ( const auto &row : test::ReadRows( TEST_DATA "/corpus_verdicts.tsv" ) ) {
        verdicts[row.at( 0 )] = row;
    }
    size_t refusals = 0;
    for ( const test::CorpusFile &file : test::Corpus() ) {
        ASSERT_FALSE( file.bytes.empty() ) << file.path;
        std::string why = "good";
        try {
            if ( reference::Decode( file.bytes ).start == "neither" ) {
                why = "no start line"; // a good fragment, and no message
            }
        } catch ( const reference::Refused &refused ) {
            why = refused.why;
            ++refusals;
        }
        const auto verdict = verdicts.find( file.path );
        EXPECT_EQ( why, verdict == verdicts.end() ? "good" : verdict->second.at( 1 ) ) << file.path;
        EXPECT_EQ( test::IsNull( tolmoMessageTryDecode( Buf( file.bytes ).Get() ) ), why != "good" ) << file.path;
        ExpectSameAsReference( file.bytes );
        ExpectRoundTrip( file.bytes );
    }
    EXPECT_GE( test::Corpus().size(), 1000u );
    EXPECT_GT( refusals, 0u );
}

/** Heads of every size up to a few hundred lines: what is kept of the first ones, and found anew of later ones. */
TEST_F( Decode, EveryNumberOfLines )
{
    for ( size_t count = 0; count < 300; ++count ) {
        std::string bytes = count % 2 ? "OPTIONS sip:a SIP/2.0\r\n" : "";
        for ( size_t i = 0; i < count; ++i ) {
            const std::string number = std::to_string( i * 7 % 101 );
            bytes +=
                i % 5 ? "X-" + number + ":" + std::string( i % 40, 'x' ) + "\r\n" : "v: " + number + "\r\n  fold\r\n";
        }
        for ( const std::string &all : { bytes, bytes + "\r\n", bytes + "\r\nbody", bytes + "To: a" } ) {
            ExpectSameAsReference( all );
            if ( HasFatalFailure() ) {
                return;
            }
        }
    }
}

TEST_F( Decode, LargeShapes )
{
    const std::string start = "OPTIONS sip:a SIP/2.0\r\n";
    const auto decode = [&]( const std::string &headers ) {
        return Own( tolmoMessageFragmentTryDecode( Buf( start + headers + "\r\n" ).Get() ) );
    };
    const auto header = []( const KoRef<TolmoMessageFragment> &frag, const char *name ) {
        return Own( tolmoMessageFragmentHeaderCstr( frag.Get(), name, -1 ) );
    };
    const auto count = []( const KoRef<TolmoMessageFragment> &frag ) {
        return koVectorLength( Own( tolmoMessageFragmentHeadersVector( frag.Get() ) ).Get() );
    };
    constexpr KoInt million = 1000000;
    {
        std::string lines;
        for ( KoInt i = 0; i < million; ++i ) {
            lines += "v:" + std::to_string( i ) + "\r\n";
        }
        const auto frag = decode( lines );
        ASSERT_TRUE( frag );
        const auto via = header( frag, "Via" );
        EXPECT_EQ( tolmoMessageHeaderLinesLength( via.Get() ), million );
        EXPECT_EQ( test::Take( tolmoMessageHeaderLineAt( via.Get(), 765432 ) ), "765432" );
        EXPECT_EQ( test::Take( tolmoMessageHeaderLastLine( via.Get() ) ), "999999" );
    }
    {
        std::string lines;
        for ( int i = 0; i < 100000; ++i ) {
            lines += "X-" + std::to_string( i % 50000 ) + "-y: " + std::to_string( i ) + "\r\n";
        }
        const auto frag = decode( lines );
        ASSERT_TRUE( frag );
        EXPECT_EQ( count( frag ), 50000 );
        const auto last = header( frag, "x-49999-Y" );
        EXPECT_EQ( test::Take( tolmoMessageHeaderLineAt( last.Get(), 0 ) ), "49999" );
        EXPECT_EQ( test::Take( tolmoMessageHeaderLineAt( last.Get(), 1 ) ), "99999" );
        EXPECT_FALSE( header( frag, "X-50000-Y" ) );
    }
    {
        std::string folds = "Subject: a\r\n";
        for ( int i = 0; i < 100000; ++i ) {
            folds += " \t b\r\n";
        }
        const auto frag = decode( folds );
        const auto subject = test::Take( tolmoMessageHeaderLastLine( header( frag, "Subject" ).Get() ) );
        EXPECT_EQ( subject.size(), 200001u );
        EXPECT_EQ( subject.substr( 0, 7 ), "a b b b" );
    }
    {
        const std::string megabyte( million, 'x' );
        const auto frag = decode( "Subject: " + megabyte + "\r\n" + megabyte + ": y\r\n" );
        EXPECT_EQ( test::Take( tolmoMessageHeaderLastLine( header( frag, "s" ).Get() ) ), megabyte );
        EXPECT_EQ( test::Take( tolmoMessageHeaderLastLine( header( frag, megabyte.c_str() ).Get() ) ), "y" );
    }
    { // a comment nested deep is text like any other
        const std::string nested = std::string( 100000, '(' ) + std::string( 100000, ')' );
        EXPECT_EQ( test::Take(
                       tolmoMessageHeaderLastLine( header( decode( "Server: " + nested + "\r\n" ), "Server" ).Get() ) ),
                   nested );
    }
    { // a megabyte of empty lines, in front of all and as a head
        std::string pairs;
        for ( KoInt i = 0; i < million / 2; ++i ) {
            pairs += "\r\n";
        }
        const auto frag = Own( tolmoMessageFragmentTryDecode( Buf( pairs + start ).Get() ) );
        EXPECT_EQ( koBufferLength( Own( tolmoMessageFragmentBody( frag.Get() ) ).Get() ),
                   million - 4 + static_cast<KoInt>( start.size() ) );
        KoInt contentLength = 0;
        const auto empty = Own( tolmoMessageFragmentTryDecodeHeaders( Buf( pairs ).Get(), &contentLength ) );
        EXPECT_EQ( count( empty ), 0 );
        // Lone CRs, each of which might begin a line end.
        EXPECT_EQ(
            test::Take( tolmoMessageHeaderLastLine(
                            header( decode( "Subject: " + std::string( million, '\r' ) + "\r\n" ), "s" ).Get() ) )
                .size(),
            static_cast<size_t>( million ) );
    }
}

} // namespace
