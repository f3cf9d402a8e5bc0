/* Hosts and resource identifiers. */
#include "test.h"

#include <tolmo/tolmo_host.h>
#include <tolmo/tolmo_iri.h>

#include <random>

namespace {

using test::Str;
using test::Text;

class Host : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_host.cpp";
constexpr char wholeHost[] = "length && length == tolmo___SkipHost( koStringBacking( result ), length )";

std::string Decode( std::string_view text )
{
    const test::Exact chs( text );
    return test::Take( tolmo___HostTryDecode( chs.Chars(), chs.Length() ) );
}

// Hosts of the grammar: the decoder gives them back as they are, and so does the encoder.
const std::string_view asciiHosts[] = { "example.com",
                                        "A.Example", // case stays
                                        "a",
                                        "a.b.", // the dot behind the last label belongs to it
                                        "example.123", "1.2.3.4",
                                        "1.2.3.4.5", // a name
                                        "256.1.1.1",   "[::1]",   "[2001:DB8::1]", "[::ffff:1.2.3.4]",
                                        "%41",         "a-%41",   "a--b",          "12345" };

const std::string_view noHosts[] = { "",     " ",   "a b",       "a_b",       "-a",   "a-",  "a..b", ".a",    "a:5060",
                                     "[::1", "::1", "[1.2.3.4]", "[::1%25e]", "a%4g", "a/b", "a@b",  "a\r\n", "<a>" };

TEST_F( Host, Ascii )
{
    for ( const std::string_view text : asciiHosts ) {
        const auto host = Str( text );
        EXPECT_TRUE( tolmoHostOk( host.Get() ) ) << text;
        const auto encoded = KoRef<KoString>::Adopt( tolmo___HostEncode( host.Get() ) );
        EXPECT_EQ( encoded.Get(), host.Get() ) << text; // the same string, not a copy
        EXPECT_EQ( Decode( text ), text );
    }
}

TEST_F( Host, Refused )
{
    for ( const std::string_view text : noHosts ) {
        EXPECT_FALSE( tolmoHostOk( Str( text ).Get() ) ) << text;
        EXPECT_EQ( Decode( text ), "(null)" ) << text;
        EXPECT_ABORT( tolmo___HostEncode( Str( text ).Get() ), path, wholeHost );
    }
    EXPECT_EQ( tolmo___HostTryDecode( nullptr, 0 ), nullptr );
}

TEST_F( Host, International )
{
    const struct {
        std::string_view unicode;
        std::string_view ascii;
    } rows[] = { { "b\u00FCcher.example", "xn--bcher-kva.example" },
                 { "stra\u00DFe.example", "xn--strae-oqa.example" }, // non-transitional
                 { "\u4F8B\u3048.\u30C6\u30B9\u30C8", "xn--r8jz45g.xn--zckzah" } };
    for ( const auto &row : rows ) {
        const auto host = Str( row.unicode );
        EXPECT_TRUE( tolmoHostOk( host.Get() ) ) << row.unicode;
        EXPECT_EQ( test::Take( tolmo___HostEncode( host.Get() ) ), row.ascii );
        EXPECT_EQ( Decode( row.ascii ), row.unicode );
        EXPECT_EQ( Decode( row.unicode ), "(null)" ) << row.unicode; // the wire has the ASCII form only
    }
    EXPECT_EQ( test::Take( tolmo___HostEncode( Str( "B\u00DCCHER.Example" ).Get() ) ), "xn--bcher-kva.example" );
    EXPECT_FALSE( tolmoHostOk( Str( "\u00FC_" ).Get() ) );
    EXPECT_FALSE( tolmoHostOk( Str( "b\u00FC cher" ).Get() ) );
}

TEST_F( Host, Aborts )
{
    EXPECT_ABORT( tolmoHostOk( nullptr ), path, "host" );
    EXPECT_ABORT( tolmo___HostEncode( nullptr ), path, "host" );
    EXPECT_ABORT( tolmo___HostTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___HostTryDecode( nullptr, 1 ), path, "chs || length == 0" );
}

TEST_F( Host, DecodeOfEncodeOfAnyInternationalName )
{
    // Ranges of letters that their own mapping leaves alone.
    static constexpr KoChar ranges[][2] = {
        { 'a', 'z' }, { 0x00DF, 0x00F6 }, { 0x03B1, 0x03C9 }, { 0x0430, 0x044F }, { 0x4E00, 0x9FFF }
    };
    std::mt19937 random( 5 );
    int international = 0;
    for ( int i = 0; i < 5000; ++i ) {
        auto host = KoRef<KoString>::Adopt( koStringCreate() );
        for ( auto labels = 1 + random() % 3; labels > 0; --labels ) {
            const auto &range = ranges[random() % std::size( ranges )];
            for ( auto length = 1 + random() % 10; length > 0; --length ) {
                const auto count = static_cast<uint32_t>( range[1] - range[0] + 1 );
                koStringAppendChar( host.Address(), range[0] + static_cast<KoChar>( random() % count ) );
            }
            if ( labels > 1 ) {
                koStringAppendChar( host.Address(), '.' );
            }
        }
        ASSERT_TRUE( tolmoHostOk( host.Get() ) ) << Text( host );
        const auto ascii = KoRef<KoString>::Adopt( tolmo___HostEncode( host.Get() ) );
        international += ascii.Get() != host.Get();
        const test::Exact chs( ascii.Get(), -1 );
        EXPECT_EQ( test::Take( tolmo___HostTryDecode( chs.Chars(), chs.Length() ) ), Text( host ) );
    }
    EXPECT_GT( international, 2000 );
}

// Whatever text comes, what is decoded is a host, and can be encoded.
TEST_F( Host, WhatIsDecodedIsAHost )
{
    const char alphabet[] = "xn--abc.-%41[]:1";
    std::mt19937 random( 6 );
    int taken = 0;
    for ( int i = 0; i < 50000; ++i ) {
        std::string text = random() % 2 ? "xn--" : "";
        for ( auto length = random() % 12; length > 0; --length ) {
            text += alphabet[random() % ( sizeof alphabet - 1 )];
        }
        const test::Exact chs( text );
        const auto host = KoRef<KoString>::Adopt( tolmo___HostTryDecode( chs.Chars(), chs.Length() ) );
        if ( host ) {
            ++taken;
            EXPECT_TRUE( tolmoHostOk( host.Get() ) ) << text;
            EXPECT_NE( test::Take( tolmo___HostEncode( host.Get() ) ), "" );
        }
    }
    EXPECT_GT( taken, 1000 );
}

TEST_F( Host, Iri )
{
    for ( const std::string_view text : { "sip:bob@example.com", "sip:", "tel:+1-201-555-0123", "sip:b\u00FC@x",
                                          "sip:bob@[2001:db8::1]:5060;lr?a=b", "urn:service:sos", "a:" } ) {
        EXPECT_TRUE( tolmoIriOk( Str( text ).Get() ) ) << text;
    }
    for ( const std::string_view text :
          { "", "sip", "bob@example.com", ":a", "sip:a b", "<sip:a>", "sip:a%4", "1:a" } ) {
        EXPECT_FALSE( tolmoIriOk( Str( text ).Get() ) ) << text;
    }
    EXPECT_ABORT( tolmoIriOk( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
}

} // namespace
