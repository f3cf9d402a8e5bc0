/* Tests of the conversion between URIs and IRIs: rows, and laws on hostile texts. */
#include <identifier/ulm.h>

#include "test.h"

#include <random>

namespace {

using test::Str;
using test::Take;
using test::Text;

constexpr const char *path = "source/identifier/ulm_convert.cpp";

class UlmConvert : public test::Fixture {};

/** "(null)" when refused. */
std::string FromUri( std::string_view uri )
{
    const test::Exact chs( uri );
    const std::string iri = Take( ulmTryConvertFromUri( Str( uri ).Get() ) );
    // In one pass: what ulm___SkipIri takes, in the form that ulmTryConvertFromUri gives it.
    KoString taken = nullptr;
    const KoInt length = ulm___TakeIri( chs.Chars(), chs.Length(), &taken );
    EXPECT_EQ( length, ulm___SkipIri( chs.Chars(), chs.Length() ) ) << uri;
    EXPECT_EQ( length > 0, taken != nullptr ) << uri;
    if ( length == chs.Length() ) {
        EXPECT_EQ( Text( taken ), iri ) << uri;
    } else {
        EXPECT_EQ( iri, "(null)" ) << uri;
    }
    if ( taken ) {
        koStringRelease( taken );
    }
    return iri;
}

std::string ToUri( std::string_view iri )
{
    return Take( ulmTryConvertToUri( Str( iri ).Get() ) );
}

bool Valid( std::string_view iri )
{
    return ulmGensValidatePart( 0, Str( iri ).Get() ) == KO_TRUE;
}

bool IsAscii( std::string_view text )
{
    for ( const char ch : text ) {
        if ( static_cast<unsigned char>( ch ) >= 0x80 ) {
            return false;
        }
    }
    return true;
}

/** What holds for every text. */
void CheckLaws( const std::string &text )
{
    const std::string iri = FromUri( text );
    const std::string uri = ToUri( text );
    ASSERT_EQ( iri != "(null)", Valid( text ) ) << text;
    ASSERT_EQ( uri != "(null)", Valid( text ) ) << text;
    if ( iri == "(null)" ) {
        return;
    }
    ASSERT_TRUE( Valid( iri ) ) << text << " -> " << iri;
    ASSERT_TRUE( IsAscii( uri ) ) << text << " -> " << uri;
    ASSERT_NE( FromUri( uri ), "(null)" ) << text << " -> " << uri;
    const std::string back = ToUri( iri );
    ASSERT_TRUE( IsAscii( back ) ) << text << " -> " << iri << " -> " << back;
    ASSERT_EQ( FromUri( back ), iri ) << text << " -> " << iri << " -> " << back;
    ASSERT_EQ( FromUri( iri ), iri ) << text << " -> " << iri;
}

struct Row {
    const char *uri;
    const char *iri; // null: as the URI
};

TEST_F( UlmConvert, FromUri )
{
    static const Row rows[] = {
        { "sip:alice@example.com", nullptr },
        { "sip:", nullptr },
        { "SIP:Alice@Example.COM;Transport=UDP", nullptr }, // case is kept
        { "sip:j%C3%BCrgen@a", "sip:j\u00FCrgen@a" },
        { "sip:j%c3%bcrgen@a", "sip:j\u00FCrgen@a" },
        { "sip:j\u00FCrgen@a", nullptr },
        { "sip:%E6%97%A5%E6%9C%AC@a", "sip:\u65E5\u672C@a" },
        { "sip:%F0%9F%98%80@a", "sip:\U0001F600@a" },
        { "sip:a%20b%40%3A%2F%25@a", nullptr }, // ASCII stays escaped
        { "sip:%41lice@a", nullptr },
        { "sip:%61@a", nullptr },
        { "sip:%00%7f@a", nullptr },
        { "sip:%7F%7e@a", nullptr }, // and in its case
        { "sip:%C3@a", nullptr },    // broken UTF-8
        { "sip:%C3%28@a", nullptr },
        { "sip:%C3%C3%BC@a", "sip:%C3\u00FC@a" },
        { "sip:%BC%C3%BC%BC@a", "sip:%BC\u00FC%BC@a" },
        { "sip:%E6%97@a", nullptr },
        { "sip:%E6%97x%A5@a", nullptr },
        { "sip:%C3\u00BC@a", "sip:%C3\u00BC@a" },
        { "sip:%C0%AF@a", nullptr }, // not the shortest form
        { "sip:%C1%BF@a", nullptr },
        { "sip:%E0%82%A9@a", nullptr },
        { "sip:%E0%9F%BF@a", nullptr },
        { "sip:%F0%82%82%AC@a", nullptr },
        { "sip:%F0%8F%BF%BF@a", nullptr },
        { "sip:%ED%A0%80@a", nullptr }, // surrogates
        { "sip:%ED%BF%BF@a", nullptr },
        { "sip:%F4%90%80%80@a", nullptr }, // behind the last character
        { "sip:%F5%80%80%80@a", nullptr },
        { "sip:%FF@a", nullptr },
        { "sip:%F8%88%80%80%80@a", nullptr },
        { "sip:%C2%80%C2%9F@a", nullptr }, // controls are no ucschar
        { "sip:%C2%A0@a", nullptr },       // what nobody sees
        { "sip:%C2%A1@a", "sip:\u00A1@a" },
        { "sip:%E1%9A%80@a", nullptr },
        { "sip:%E2%80%80%E2%80%8F@a", nullptr },
        { "sip:%E2%80%90@a", "sip:\u2010@a" },
        { "sip:%E2%80%a8%E2%80%AF@a", nullptr },
        { "sip:%E2%80%A7%E2%80%B0@a", "sip:\u2027\u2030@a" },
        { "sip:%E2%81%9F@a", nullptr },
        { "sip:%E2%81%A6%E2%81%A9@a", nullptr },
        { "sip:%E2%81%A5%E2%81%AA@a", "sip:\u2065\u206A@a" },
        { "sip:%E3%80%80@a", nullptr },
        { "sip:%EF%BB%BF@a", nullptr },
        { "sip:%C2%AD@a", "sip:\u00AD@a" },
        { "sip:%EE%80%80@a?%EE%80%80", nullptr }, // private use
        { "sip:%EF%B7%90@a", nullptr },           // noncharacters
        { "sip:%EF%BF%BD@a", nullptr },           // specials
        { "sip:%EF%BF%BE@a", nullptr },
        { "sip:%F3%A0%80%81@a", nullptr }, // tags
        { "sip:%F3%A1%80%80@a", "sip:\U000E1000@a" },
        { "sip:\u200E@a", "sip:%E2%80%8E@a" }, // and where it is not escaped, it becomes so
        { "sip:\u00A0\u3000\uFEFF@a", "sip:%C2%A0%E3%80%80%EF%BB%BF@a" },
        { "sip:a@b?\uE000", "sip:a@b?%EE%80%80" },
        { "http://a/%C3%BC?%C3%BC#%C3%BC", "http://a/\u00FC?\u00FC#\u00FC" },
        { "tel:%C3%BC", "tel:\u00FC" },
        // Hosts.
        { "sip:a@xn--bcher-kva", "sip:a@b\u00FCcher" },
        { "sips:a@xn--bcher-kva", "sips:a@b\u00FCcher" },
        { "SIP:a@xn--bcher-kva", "SIP:a@b\u00FCcher" },
        { "SiPs:a@xn--bcher-kva", "SiPs:a@b\u00FCcher" },
        { "sip:xn--bcher-kva", "sip:b\u00FCcher" },
        { "sip:a:b@www.xn--bcher-kva.example:5060;x=xn--bcher-kva",
          "sip:a:b@www.b\u00FCcher.example:5060;x=xn--bcher-kva" },
        { "sip:xn--bcher-kva:5060", "sip:b\u00FCcher:5060" },
        { "sip:xn--bcher-kva;x", "sip:b\u00FCcher;x" },
        { "sip:xn--bcher-kva?x", "sip:b\u00FCcher?x" },
        { "sip:xn--bcher-kva#x", "sip:b\u00FCcher#x" },
        { "sip:xn--bcher-kva/x", "sip:b\u00FCcher/x" },
        { "sip:xn--bcher-kva.", "sip:b\u00FCcher." },
        { "sip:a@XN--BCHER-KVA.Example", "sip:a@b\u00FCcher.example" }, // ASCII case aside
        { "sip:xn--bcher-kva@xn--bcher-kva", "sip:xn--bcher-kva@b\u00FCcher" },
        { "sip:a;b=xn--bcher-kva@xn--bcher-kva", "sip:a;b=xn--bcher-kva@b\u00FCcher" },
        { "sip:a@xn--a", nullptr },
        { "sip:a@xn--", nullptr },
        { "sip:a@xn--u-ccb", nullptr }, // not composed: another text
        { "sip:a@xn--bcher-kva.xn--a", nullptr },
        { "sip:a@[xn--bcher-kva]", nullptr },
        { "sip:a@[::1]", nullptr },
        { "sip:a@b@xn--bcher-kva", nullptr }, // which one is the host?
        { "sip:a@xn--bcher-kva@b", nullptr },
        { "sip:a@xn--bcher-kva;x=c@d", nullptr },
        { "tel:xn--bcher-kva", nullptr }, // sip and sips only
        { "sid:a@xn--bcher-kva", nullptr },
        { "sims:a@xn--bcher-kva", nullptr },
        { "sipx:a@xn--bcher-kva", nullptr },
        { "sip+s:a@xn--bcher-kva", nullptr },
        { "http://xn--bcher-kva", nullptr },
        { "sip:/xn--bcher-kva", nullptr },
        { "sip:a@b%C3%BCcher", "sip:a@b\u00FCcher" }, // escaped, and then as IDNA writes it
        { "sip:a@B%C3%9CCHER", "sip:a@b\u00FCcher" },
        { "sip:a@B\u00DCCHER", "sip:a@b\u00FCcher" },
        { "sip:a@b\u00FCcher.EXAMPLE", "sip:a@b\u00FCcher.example" },
        { "sip:a@xn--bcher-kva.b%C3%BCcher", "sip:a@b\u00FCcher.b\u00FCcher" },
        { "sip:a@\uFF45\uFF58.com", "sip:a@ex.com" },
        { "sip:a@b\u00FCcher%41", nullptr }, // no name for IDNA
        { "sip:a@B\u00FC_cher", nullptr },
        { "sip:a@\u0646\u0627\u0645\u0647\u200C\u0627\u06CC.com", nullptr }, // a joiner with a meaning
        { "sip:a@\u200Db", "sip:a@%E2%80%8Db" },                             // and one without
        { "sip:a@xn--mgba3gch31f060k.com", "sip:a@\u0646\u0627\u0645\u0647\u200C\u0627\u06CC.com" },
        { "sip:%C3%BC@xn--bcher-kva;x=%C3%BC", "sip:\u00FC@b\u00FCcher;x=\u00FC" },
        { "sip:%41@xn--bcher-kva", "sip:%41@b\u00FCcher" },
        { "sip:%41@xn--a", nullptr },
        { "sip:%41@", nullptr },
        { "sip:\u00FC@", nullptr },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( FromUri( row.uri ), row.iri ? row.iri : row.uri ) << row.uri;
        CheckLaws( row.uri );
        CheckLaws( row.iri ? row.iri : row.uri );
    }
}

TEST_F( UlmConvert, ToUri )
{
    static const struct {
        const char *iri;
        const char *uri;
    } rows[] = {
        { "sip:alice@example.com", "sip:alice@example.com" },
        { "sip:j\u00FCrgen@a", "sip:j%C3%BCrgen@a" },
        { "sip:\u65E5@a", "sip:%E6%97%A5@a" },
        { "sip:\U0001F600@a", "sip:%F0%9F%98%80@a" },
        { "sip:%c3%bc\u00FC%41", "sip:%c3%bc%C3%BC%41" }, // what is escaped is copied
        { "sip:a?\uE000\U0010FFFD", "sip:a?%EE%80%80%F4%8F%BF%BD" },
        { "sip:a@b\u00FCcher", "sip:a@xn--bcher-kva" },
        { "sip:a@B\u00DCCHER.Example:5060;x=\u00FC", "sip:a@xn--bcher-kva.example:5060;x=%C3%BC" },
        { "sips:b\u00FCcher", "sips:xn--bcher-kva" },
        { "sip:\u00FC@A.Example", "sip:%C3%BC@A.Example" }, // an ASCII host is copied
        { "sip:\u00FC@XN--BCHER-KVA", "sip:%C3%BC@XN--BCHER-KVA" },
        { "sip:a@\u00FC_", "sip:a@%C3%BC_" }, // IDNA refuses it
        { "sip:a@\u00FC.a%41", "sip:a@%C3%BC.a%41" },
        { "sip:a@\u200Db", "sip:a@%E2%80%8Db" },
        { "sip:a@b@\u00FC", "sip:a@b@%C3%BC" },
        { "sip:a@[\u00FC]", "sip:a@[%C3%BC]" },
        { "http://b\u00FCcher", "http://b%C3%BCcher" },
        { "sip:a@stra\u00DFe", "sip:a@xn--strae-oqa" },
        { "sip:a@\uFF11.\uFF12", "sip:a@1.2" },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( ToUri( row.iri ), row.uri );
        CheckLaws( row.iri );
    }
}

TEST_F( UlmConvert, RefusesWhatIsNoIdentifier )
{
    for ( const char *const text :
          { "", "a", "*", ":", "sip", "1:a", "sip:a b", "sip:a ", " sip:a", "<sip:a>", "sip:a%", "sip:a%4", "sip:a%zz",
            "sip:a#b#c", "sip:\uE000", "sip:\uFFFF", "sip:a\"", "\u00FC:a" } ) {
        EXPECT_EQ( FromUri( text ), "(null)" ) << text;
        EXPECT_EQ( ToUri( text ), "(null)" ) << text;
    }
    KoString taken = nullptr;
    EXPECT_EQ( ulm___TakeIri( nullptr, 0, &taken ), 0 );
    EXPECT_EQ( taken, nullptr );
    const KoChar surrogate[] = { 's', ':', 0xD800 };
    EXPECT_EQ( ulm___TakeIri( surrogate, 3, &taken ), 2 );
    EXPECT_EQ( Take( taken ), "s:" );
}

TEST_F( UlmConvert, NothingToConvertIsTheSameString )
{
    for ( const char *const text : { "sip:alice@example.com", "sip:a@[::1]", "tel:+1", "sip:%23%7F@a" } ) {
        const auto s = Str( text );
        const auto iri = KoRef<KoString>::Adopt( ulmTryConvertFromUri( s.Get() ) );
        const auto uri = KoRef<KoString>::Adopt( ulmTryConvertToUri( s.Get() ) );
        EXPECT_EQ( iri.Get(), s.Get() );
        EXPECT_EQ( uri.Get(), s.Get() );
        EXPECT_EQ( test::Count( s.Get() ), 3 );
    }
    const auto escaped = Str( "sip:%23@XN--BCHER-KVA" );
    const auto uri = KoRef<KoString>::Adopt( ulmTryConvertToUri( escaped.Get() ) );
    EXPECT_EQ( uri.Get(), escaped.Get() );
}

TEST_F( UlmConvert, Preconditions )
{
    EXPECT_ABORT( ulmTryConvertFromUri( nullptr ), path, "uri" );
    EXPECT_ABORT( ulmTryConvertToUri( nullptr ), path, "iri" );
    KoString taken = nullptr;
    EXPECT_ABORT( ulm___TakeIri( nullptr, -1, &taken ), path, "length >= 0" );
    EXPECT_ABORT( ulm___TakeIri( nullptr, 1, &taken ), path, "chs || length == 0" );
    EXPECT_ABORT( ulm___TakeIri( nullptr, 0, nullptr ), path, "taken" );
}

// Each character, escaped and as it is.
TEST_F( UlmConvert, EachCharacter )
{
    for ( KoChar ch = 0xA0; ch <= 0x10FFFF; ch += ch < 0x3100 || ch >= 0xD700 ? 1 : 37 ) {
        if ( ch >= 0xD800 && ch < 0xE000 ) {
            continue;
        }
        const std::string text = Take( koStringCreateFromCharsCopy( &ch, 1 ) );
        std::string escaped;
        for ( const char byte : text ) {
            char escape[4];
            snprintf( escape, sizeof escape, "%%%02X", static_cast<unsigned>( static_cast<unsigned char>( byte ) ) );
            escaped += escape;
        }
        const std::string iri = FromUri( "x:" + escaped );
        const KoChar plain[] = { 'x', ':', ch };
        if ( ulm___SkipIri( plain, 3 ) == 3 ) {
            ASSERT_EQ( FromUri( "x:" + text ), iri );
            ASSERT_EQ( ToUri( "x:" + text ), "x:" + escaped );
        } else {
            ASSERT_EQ( iri, "x:" + escaped );
        }
        ASSERT_TRUE( iri == "x:" + text || iri == "x:" + escaped ) << iri;
        if ( ch < 0x3100 ) {
            CheckLaws( "sip:a@b" + text + "c" );
            CheckLaws( "sip:a@b" + escaped + "c" );
        }
    }
}

// Each place at which an encoded label can begin in a block of characters, and end in the last.
TEST_F( UlmConvert, EncodedLabelAtEachPlace )
{
    for ( size_t count = 1; count < 40; ++count ) {
        const std::string user( count, 'u' );
        for ( size_t behind = 0; behind < 20; ++behind ) {
            const std::string rest = behind > 0 ? ";" + std::string( behind, 'r' ) : "";
            EXPECT_EQ( FromUri( "sip:" + user + "@xn--bcher-kva" + rest ), "sip:" + user + "@b\u00FCcher" + rest );
            EXPECT_EQ( FromUri( "sip:" + user + ".xn--bcher-kva" + rest ), "sip:" + user + ".b\u00FCcher" + rest );
        }
        EXPECT_EQ( FromUri( "sip:" + user + "@-a-b-.c" ), "sip:" + user + "@-a-b-.c" );
        EXPECT_EQ( FromUri( "sip:" + user + "@an--b" ), "sip:" + user + "@an--b" );
        EXPECT_EQ( FromUri( "sip:" + user + "--@axn--bcher-kva" ), "sip:" + user + "--@axn--bcher-kva" );
    }
}

// What ends an identifier is no part of it: the host that stands before is ASCII, and is left alone.
TEST_F( UlmConvert, WhatEndsAnIdentifierIsNotSeen )
{
    for ( const char *const end : { "\u0080", "\uE000", "%", "%F", ">%C3%BC", ">xn--a", " \u00FC" } ) {
        const test::Exact chs( std::string( "sip:A@B-C" ) + end );
        KoString taken = nullptr;
        ulm___TakeIri( chs.Chars(), chs.Length(), &taken );
        EXPECT_EQ( Take( taken ), "sip:A@B-C" ) << end;
    }
}

TEST_F( UlmConvert, Laws )
{
    static const char *const pieces[] = {
        "sip:",
        "sips:",
        "SIP:",
        "tel:",
        "a",
        "B",
        "@",
        "@",
        ".",
        ":",
        ";",
        "?",
        "#",
        "/",
        "[",
        "]",
        "%41",
        "%C3",
        "%BC",
        "%C3%BC",
        "%c3%9c",
        "\u00FC",
        "\u00DC",
        "\u00DF",
        "xn--bcher-kva",
        "XN--BCHER-KVA",
        "xn--",
        "xn--a",
        "xn--mgba3gch31f060k",
        "%E2%80%8E",
        "%E2%80%8C",
        "\u200E",
        "\u200C",
        "\u00AD",
        "\u3002",
        "%E3%80%82",
        "\uE000",
        "%EE%80%80",
        "\u05D0",
        "1",
        "%F0%9F%98%80",
        "\U0001F600",
        "\uFF05",
        "\u0301",
        "%CC%81",
        "-",
        "_",
        "\u2260",
        "\uFF20",
        "\uFF1A",
        "%E2%80",
        "\u0646\u0627\u0645\u0647\u200C\u0627\u06CC",
        "%D9%86%E2%80%8C",
        "\uFF58\uFF4E--bcher-kva",
        "%",
        "%4",
        " ",
        "\uFFFF",
    };
    std::mt19937 random( 11 );
    int valid = 0;
    int hosts = 0;
    for ( int i = 0; i < 300'000; ++i ) {
        std::string text = pieces[random() % 4];
        text += random() % 2 ? "a@" : "";
        // The last four pieces are in no identifier.
        const size_t count = std::size( pieces ) - ( random() % 8 ? 4 : 0 );
        for ( auto more = random() % 6; more > 0; --more ) {
            text += pieces[random() % count];
        }
        CheckLaws( text );
        if ( HasFatalFailure() ) {
            return;
        }
        valid += Valid( text );
        hosts += ToUri( text ).find( "xn--" ) != std::string::npos && text.find( "xn--" ) == std::string::npos;
    }
    EXPECT_GT( valid, 100'000 );
    EXPECT_GT( hosts, 5'000 );
}

TEST_F( UlmConvert, HugeTexts )
{
    constexpr int many = 50'000;
    for ( const char *const piece : { "a", "%C3%BC", "%C3", "%E2%80%8E", "\u00FC", "\u200E", "@", ":", "xn--bcher-kva.",
                                      "\u00FC.", "\u00AD", "\u0301", "%CC%81", "[", "#" } ) {
        for ( const char *const begin : { "sip:", "sip:a@", "x:" } ) {
            std::string text = begin;
            for ( int i = 0; i < many; ++i ) {
                text += piece;
            }
            CheckLaws( text );
        }
    }
}

} // namespace
