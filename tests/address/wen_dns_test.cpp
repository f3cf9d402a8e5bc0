/* Tests of international domain names: rows, ICU and libidn2 on generated names, and what hosts rely on. */
#include <address/wen.h>

#include "test.h"

#include <idn2.h>
#include <unicode/uidna.h>
#include <unicode/ustring.h>

#include <optional>
#include <random>

namespace {

using test::Str;
using test::Take;
using test::Text;

constexpr const char *path = "source/address/wen_dns.cpp";

class WenDns : public test::Fixture {};

bool Ok( std::string_view name )
{
    return wenDnsIdnaDomainNameOk( Str( name ).Get() ) == KO_TRUE;
}

std::string ToAscii( std::string_view name )
{
    return Take( wenDnsIdnaDomainNameToAscii( Str( name ).Get() ) );
}

std::string ToUnicode( std::string_view name )
{
    return Take( wenDnsIdnaDomainNameToUnicode( Str( name ).Get() ) );
}

std::string ToLower( std::string text )
{
    for ( char &ch : text ) {
        ch = ch >= 'A' && ch <= 'Z' ? static_cast<char>( ch | 0x20 ) : ch;
    }
    return text;
}

std::string Repeat( std::string_view text, int count )
{
    std::string all;
    for ( int i = 0; i < count; ++i ) {
        all += text;
    }
    return all;
}

/** How long a host name is at the start of a text: labels, a place at a time, as the grammar of SIP tells. */
size_t SkipHostname( const std::string &text )
{
    const auto hex = [&]( size_t i ) { return i < text.size() && isxdigit( static_cast<unsigned char>( text[i] ) ); };
    size_t at = 0;
    while ( true ) {
        size_t good = at;
        for ( size_t i = at; i < text.size(); ) {
            if ( static_cast<unsigned char>( text[i] ) < 0x80 && isalnum( static_cast<unsigned char>( text[i] ) ) ) {
                good = ++i;
            } else if ( text[i] == '-' && i > at ) {
                ++i;
            } else if ( text[i] == '%' && hex( i + 1 ) && hex( i + 2 ) ) {
                good = i += 3;
            } else {
                break;
            }
        }
        if ( good == at || good == text.size() || text[good] != '.' ) {
            return good;
        }
        at = good + 1;
    }
}

bool IsHostname( const std::string &text )
{
    return !text.empty() && SkipHostname( text ) == text.size();
}

// Hosts of the grammar of SIP are accepted and go through as they are, byte for byte.
TEST_F( WenDns, HostsGoThrough )
{
    static const char *const hosts[] = {
        "a",
        "example.com",
        "Example.COM", // case included
        "a.b.",        // a dot at the end
        "127.0.0.1",
        "1.2.3.4.5",
        "999",
        "example.123",
        "[::1]",
        "[2001:db8::1]",
        "[::ffff:192.0.2.1]",
        "a%41",
        "%41",
        "%C3%BC",
        "a-%41",
        "a--b",
        "ab--cd", // not even hyphens in the third and fourth place
        "r3---sn-apo3qvuoxuxbt-j5pe",
        "xn--bcher-kva",
        "XN--BCHER-KVA",
        "xn--a", // no Punycode
    };
    for ( const char *const host : hosts ) {
        const auto name = Str( host );
        EXPECT_TRUE( Ok( host ) ) << host;
        const auto ascii = KoRef<KoString>::Adopt( wenDnsIdnaDomainNameToAscii( name.Get() ) );
        EXPECT_EQ( ascii.Get(), name.Get() ) << host;
        EXPECT_EQ( Text( ascii ), host );
    }
    const std::string longLabel( 1000, 'a' ); // the grammar has no bounds
    EXPECT_TRUE( Ok( longLabel ) );
    EXPECT_EQ( ToAscii( longLabel ), longLabel );
}

TEST_F( WenDns, TextsThatAreNoHostsAreRefused )
{
    static const char *const names[] = {
        "",    ".",    "..",        "a..b",      ".a",         "-a",     "a-",     "a.-b", "a-.b", "ab-.cd", "a_b",
        "a b", "a\tb", "a@b",       "a:1",       "a/b",        "a%",     "a%4",    "a%4g", "[::1", "::1]",   "[]",
        "[",   "]",    "[1.2.3.4]", "[::1%25e]", "[::1]:5060", "[::1].", "a[::1]", "*",    "\x01", "\x7F",
    };
    for ( const char *const name : names ) {
        EXPECT_FALSE( Ok( name ) ) << name;
        EXPECT_EQ( ToAscii( name ), name );
        EXPECT_EQ( ToUnicode( name ), name );
    }
    const auto zero = Str( std::string_view( "a\0b", 3 ) );
    EXPECT_FALSE( wenDnsIdnaDomainNameOk( zero.Get() ) );
}

TEST_F( WenDns, GrammarAgreesWithItsReference )
{
    std::mt19937 random( 6 );
    int hosts = 0;
    for ( int i = 0; i < 200'000; ++i ) {
        std::string text( random() % 8, ' ' );
        for ( char &ch : text ) {
            ch = "aZ09--..%%4g_[]:"[random() % 16];
        }
        ASSERT_EQ( Ok( text ), IsHostname( text ) || text == "[::]" ) << text;
        hosts += IsHostname( text );
    }
    EXPECT_GT( hosts, 5000 );
}

struct NameRow {
    const char *name;
    const char *ascii;   // null: refused
    const char *unicode; // of the ASCII form; null: as the name
};

const NameRow nameRows[] = {
    { "b\u00FCcher.example", "xn--bcher-kva.example", nullptr },
    { "B\u00DCCHER.Example", "xn--bcher-kva.example", "b\u00FCcher.example" },
    { "bu\u0308cher", "xn--bcher-kva", "b\u00FCcher" }, // composed
    { "b\u00FCcher.example.", "xn--bcher-kva.example.", nullptr },
    { "b\u00FCcher\u3002example\uFF0Ecom\uFF61", "xn--bcher-kva.example.com.", "b\u00FCcher.example.com." },
    { "stra\u00DFe", "xn--strae-oqa", nullptr }, // non-transitional: kept
    { "STRA\u1E9EE", "strasse", "strasse" },
    { "fa\u00DF.de", "xn--fa-hia.de", nullptr },
    { "\u03B2\u03CC\u03BB\u03BF\u03C2.com", "xn--nxasmm1c.com", nullptr },     // final sigma
    { "\u0DC1\u0DCA\u200D\u0DBB\u0DD3.com", "xn--10cl1a0b660p.com", nullptr }, // a joiner behind a virama
    { "\u0646\u0627\u0645\u0647\u200C\u0627\u06CC.com", "xn--mgba3gch31f060k.com", nullptr }, // between joining letters
    { "\u65E5\u672C\u8A9E.jp", "xn--wgv71a119e.jp", nullptr },
    { "\uD55C\uAD6D.kr", "xn--3e0b707e.kr", nullptr },
    { "\u1112\u1161\u11AB\u1100\u116E\u11A8.kr", "xn--3e0b707e.kr", "\uD55C\uAD6D.kr" },
    { "\u05D0\u05D1\u05D2.com", "xn--4dbcd.com", nullptr },
    { "\u2603.net", "xn--n3h.net", nullptr },
    { "\U0001F4A9.la", "xn--ls8h.la", nullptr },
    { "\uFF45\uFF58\uFF41\uFF4D\uFF50\uFF4C\uFF45", "example", "example" }, // letters of another shape
    { "\u2460\u2461", "12", "12" },
    { "ex\u00ADample\u200B", "example", "example" }, // what is ignored
    { "\u00AD", nullptr, nullptr },                  // nothing is left
    { "a.\u00AD.b", nullptr, nullptr },
    { "a\u3002\u3002b", nullptr, nullptr },
    { "\u3002a", nullptr, nullptr },
    { "\u212A", "k", "k" }, // the sign of the unit kelvin
    { "\uFB01", "fi", "fi" },
    { "\uFDFA", nullptr, nullptr }, // becomes a text with blanks
    { "xn--bcher-kva.b\u00FCcher", "xn--bcher-kva.xn--bcher-kva", "b\u00FCcher.b\u00FCcher" },
    { "\uFF58\uFF4E--bcher-kva", "xn--bcher-kva", "b\u00FCcher" },
    { "b\u00FCcher.xn--a", nullptr, nullptr },    // no Punycode
    { "b\u00FCcher.xn--", nullptr, nullptr },     // of nothing
    { "b\u00FCcher.xn--abc-", nullptr, nullptr }, // of ASCII
    { "b\u00FCcher.xn--B\u00FCcher-kva", nullptr, nullptr },
    { "b\u00FCcher.xn--99999999", nullptr, nullptr },
    { "b\u00FCcher.xn--u-ccb", nullptr, nullptr }, // decodes to u and a diaeresis that is not composed
    { "b\u00FCcher.xn--fiq4mo5s", "xn--bcher-kva.xn--fiq4mo5s", "b\u00FCcher.\u4E2D\u56FD\u4EBA" },
    { "b\u00FCcher.a_b", nullptr, nullptr }, // STD 3
    { "b\u00FCcher.%41", nullptr, nullptr }, // escapes are of the grammar of SIP
    { "a\u2260b", nullptr, nullptr },        // decomposes to an equals sign and a stroke
    { "b\u00FCcher.a b", nullptr, nullptr },
    { "\u00FC:1", nullptr, nullptr },
    { "\u00FC\uFF0F", nullptr, nullptr },
    { "[\u00FC]", nullptr, nullptr },
    { "-\u00FC", nullptr, nullptr }, // hyphens
    { "\u00FC-", nullptr, nullptr },
    { "\u00FC.a-", nullptr, nullptr },
    { "\u00FC.-a", nullptr, nullptr },
    { "\u00FC.ab--cd", nullptr, nullptr },
    { "ab--\u00FC", nullptr, nullptr },
    { "a-\u00FC", "xn--a--yka", nullptr },
    { "\u0301a", nullptr, nullptr }, // a mark in front
    { "\u00FC.\u0301a", nullptr, nullptr },
    { "a\u200Cb", nullptr, nullptr }, // joiners
    { "a\u200Db", nullptr, nullptr },
    { "\u200D", nullptr, nullptr },
    { "\u0915\u094D\u200D", "xn--11b6iy14e", nullptr },
    { "\u0646\u200C", nullptr, nullptr },
    { "\u0628\u064E\u200C\u064E\u0628", "xn--ngba7ia3604a", nullptr }, // transparent marks on both sides
    { "\u0627\u200C\u0628", nullptr, nullptr },                        // alef joins on its right side only
    { "\uA872\u200C\uA840", "xn--0ug4674ciea", nullptr },              // a letter that joins on its left side only
    { "\u05D0a", nullptr, nullptr },                                   // right to left, bidi
    { "a\u05D0", nullptr, nullptr },
    { "\u05D01", "xn--1-zhc", nullptr },
    { "1\u05D0", nullptr, nullptr },
    { "\u05D0.1", nullptr, nullptr }, // the other labels too
    { "\u05D0.a1", "xn--4db.a1", nullptr },
    { "\u05D01\u0661", nullptr, nullptr }, // both kinds of numbers
    { "\u05D0\u0661", "xn--4db40a", nullptr },
    { "\u0661a", nullptr, nullptr },
    { "\u05D0\u05BF", "xn--ndb7a", nullptr }, // a mark at the end
    { "\u05D0-\u05D0", "xn----zhcb", nullptr },
    { "\u202Ea", nullptr, nullptr }, // disallowed
    { "\u2028", nullptr, nullptr },
    { "\uE000", nullptr, nullptr },
    { "\uFFFD", nullptr, nullptr },
    { "\u0378", nullptr, nullptr }, // not assigned
    { "\u2F00", "xn--4gq", "\u4E00" },
    { "\U0010FFFF", nullptr, nullptr },
};

TEST_F( WenDns, Names )
{
    for ( const NameRow &row : nameRows ) {
        EXPECT_EQ( Ok( row.name ), row.ascii != nullptr ) << row.name;
        EXPECT_EQ( ToAscii( row.name ), row.ascii ? row.ascii : row.name );
        if ( row.ascii ) {
            EXPECT_EQ( ToUnicode( row.ascii ), row.unicode ? row.unicode : row.name );
        }
    }
}

TEST_F( WenDns, ToUnicodeKeepsWhatItCannotConvert )
{
    static const char *const hosts[] = {
        "example.com",
        "Example.COM",
        "127.0.0.1",
        "[::1]",
        "a.b.",
        "%41.xn--bcher-kva", // escapes are no part of a domain name
        "xn--a",
        "xn--",
        "xn---",
        "xn--abc-",
        "XN--ABC-",
        "xn--99999999",
        "xn--u-ccb",           // not composed
        "xn--bcher-kva.xn--a", // all labels or none
        "xn--bcher-kva.ab--cd",
        "xn--bcher-kva.a-%41",
        "axn--bcher-kva",
        "a-xn--bcher-kva",
        "xn--BcHeR-Kvb1x",
        "b\u00FCcher", // Unicode already
        "b\u00FCcher.xn--bcher-kva",
        "xn--4db.1",  // bidi
        "xn--1ug",    // a lone joiner
        "xn--0ca24w", // two labels of ... see below
    };
    for ( const char *const host : hosts ) {
        const auto name = Str( host );
        const auto unicode = KoRef<KoString>::Adopt( wenDnsIdnaDomainNameToUnicode( name.Get() ) );
        EXPECT_EQ( unicode.Get(), name.Get() ) << host << " " << Text( unicode );
    }
    EXPECT_EQ( ToUnicode( "XN--BCHER-KVA" ), "b\u00FCcher" ); // ASCII case aside
    EXPECT_EQ( ToUnicode( "Example.Xn--bChEr-kVA.COM." ), "example.b\u00FCcher.com." );
    EXPECT_EQ( ToUnicode( "www.xn--strae-oqa.de" ), "www.stra\u00DFe.de" );
    for ( const std::string front : { "", "a.", "ab.", "abc.", "a-b.", "abcd.e." } ) {
        EXPECT_EQ( ToUnicode( front + "xn--bcher-kva" ), front + "b\u00FCcher" ) << "wherever the label begins";
        EXPECT_EQ( ToUnicode( front + "0xn--bcher-kva" ), front + "0xn--bcher-kva" );
    }
}

TEST_F( WenDns, Lengths )
{
    const std::string u = "\u00FC";
    // 59 characters behind the prefix: 63.
    EXPECT_EQ( ToAscii( u + Repeat( "a", 55 ) ).size(), 63u );
    EXPECT_FALSE( Ok( u + Repeat( "a", 56 ) ) );
    EXPECT_TRUE( Ok( u + "." + Repeat( "a", 63 ) ) );
    EXPECT_FALSE( Ok( u + "." + Repeat( "a", 64 ) ) );
    // 253 characters, and a dot.
    const std::string half = Repeat( "a", 61 ) + ".";
    const std::string name = half + half + half + Repeat( "a", 59 ) + ".";
    ASSERT_EQ( name.size() + 7, 253u );
    EXPECT_EQ( ToAscii( u ), "xn--tda" );
    EXPECT_TRUE( Ok( name + u ) );
    EXPECT_TRUE( Ok( name + u + "." ) );
    EXPECT_EQ( ToUnicode( ToAscii( name + u + "." ) ), name + u + "." );
    EXPECT_FALSE( Ok( "a" + name + u ) );
    EXPECT_FALSE( Ok( u + "." + name + "aaaaaaaa" ) );
    // A host that is longer is a host all the same, and stays as it is.
    const std::string host = name + "aaaaaaaaa.xn--tda";
    EXPECT_TRUE( Ok( host ) );
    EXPECT_EQ( ToUnicode( host ), host );
    // Labels over 63 characters are not decoded.
    const std::string label = "xn--" + Repeat( "a", 56 ) + "-0ca";
    EXPECT_TRUE( Ok( label ) );
    EXPECT_EQ( ToUnicode( label ), label );
    // A label that is not composed, and is too long to be.
    EXPECT_FALSE( Ok( Repeat( "\u1EC7", 100 ) + "\u0301" ) );
    // The longest text that one label can come from.
    EXPECT_TRUE( Ok( Repeat( "\u00AD", 100'000 ) + u ) );
    EXPECT_EQ( ToAscii( Repeat( "\u1F82", 3 ) ), ToAscii( Repeat( "\u03B1\u0313\u0300\u0345", 3 ) ) );
}

// A million of anything is refused, or mapped, without a wait.
TEST_F( WenDns, HugeNames )
{
    constexpr int many = 1'000'000;
    for ( const char *const piece :
          { "\u00FC", "\u0301", "\u0323\u0301", "a\u0301", "\uFDFA", "\u2603.", "\uAC01", "a.", "\u00FC.",
            "xn--bcher-kva.", "-", "\u3002", "\u200D", "\u0628\u200C", "\u05D0" } ) {
        const std::string name = Repeat( piece, many / 4 ) + "\u2603";
        EXPECT_FALSE( Ok( name ) ) << piece;
        EXPECT_EQ( ToAscii( name ), name );
        EXPECT_EQ( ToUnicode( name ), name );
    }
    EXPECT_EQ( ToUnicode( "xn--" + Repeat( "9", many ) ).size(), 4u + many );
    EXPECT_EQ( ToUnicode( Repeat( "xn--bcher-kva.", many / 10 ) ).size(), 14u * many / 10 );
}

TEST_F( WenDns, Arrays )
{
    KoChar out[WEN_DNS_NAME_LIMIT];
    const test::Exact name( "B\u00FCcher" );
    EXPECT_EQ( wen___DnsIdnaToAscii( name.Chars(), name.Length(), out ), 13 );
    EXPECT_EQ( Take( koStringCreateFromCharsCopy( out, 13 ) ), "xn--bcher-kva" );
    const test::Exact ascii( "XN--bcher-kva" );
    EXPECT_EQ( wen___DnsIdnaToUnicode( ascii.Chars(), ascii.Length(), out ), 6 );
    EXPECT_EQ( Take( koStringCreateFromCharsCopy( out, 6 ) ), "b\u00FCcher" );
    EXPECT_EQ( wen___DnsIdnaToAscii( nullptr, 0, out ), 0 );
    EXPECT_EQ( wen___DnsIdnaToUnicode( nullptr, 0, out ), 0 );
    const test::Exact host( "a%41" );
    EXPECT_EQ( wen___DnsIdnaToAscii( host.Chars(), host.Length(), out ), 0 );
    for ( const NameRow &row : nameRows ) { // each prefix, with nothing behind it
        const auto whole = Str( row.name );
        for ( KoInt count = 0; count <= koStringLength( whole.Get() ); ++count ) {
            const test::Exact part( whole.Get(), count );
            EXPECT_LE( wen___DnsIdnaToAscii( part.Chars(), count, out ), WEN_DNS_NAME_LIMIT );
            EXPECT_LE( wen___DnsIdnaToUnicode( part.Chars(), count, out ), WEN_DNS_NAME_LIMIT );
        }
    }
}

TEST_F( WenDns, Preconditions )
{
    EXPECT_ABORT( wenDnsIdnaDomainNameOk( nullptr ), path, "name" );
    EXPECT_ABORT( wenDnsIdnaDomainNameToAscii( nullptr ), path, "name" );
    EXPECT_ABORT( wenDnsIdnaDomainNameToUnicode( nullptr ), path, "name" );
}

/** ICU's UTS #46, with the checks that ours has. */
class Icu {
public:
    Icu()
    {
        UErrorCode error = U_ZERO_ERROR;
        idna = uidna_openUTS46( UIDNA_NONTRANSITIONAL_TO_ASCII | UIDNA_NONTRANSITIONAL_TO_UNICODE | UIDNA_CHECK_BIDI |
                                    UIDNA_CHECK_CONTEXTJ | UIDNA_USE_STD3_RULES,
                                &error );
        EXPECT_TRUE( U_SUCCESS( error ) );
    }
    Icu( const Icu & ) = delete;
    Icu &operator=( const Icu & ) = delete;
    ~Icu() { uidna_close( idna ); }

    uint32_t errors = 0; // of the last name

    using Convert = int32_t ( * )( const UIDNA *, const char *, int32_t, char *, int32_t, UIDNAInfo *, UErrorCode * );

    std::optional<std::string> Run( Convert convert, const std::string &name )
    {
        std::string out( 16'384, '\0' );
        UIDNAInfo info = UIDNA_INFO_INITIALIZER;
        UErrorCode error = U_ZERO_ERROR;
        const int32_t count = convert( idna, name.data(), static_cast<int32_t>( name.size() ), out.data(),
                                       static_cast<int32_t>( out.size() ), &info, &error );
        EXPECT_TRUE( U_SUCCESS( error ) ) << name;
        out.resize( static_cast<size_t>( count ) );
        errors = info.errors;
        return info.errors ? std::nullopt : std::optional( out );
    }

    std::optional<std::string> ToAscii( const std::string &name ) { return Run( uidna_nameToASCII_UTF8, name ); }
    std::optional<std::string> ToUnicode( const std::string &name ) { return Run( uidna_nameToUnicodeUTF8, name ); }

private:
    UIDNA *idna = nullptr;
};

void AppendUtf8( std::string &text, UChar32 ch )
{
    const auto s = KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( &ch, 1 ) );
    text += Text( s );
}

/** Names of a few labels, of letters and of what the rules are about. Most are almost good. */
class Names {
public:
    explicit Names( unsigned seed ) : random( seed ) {}

    std::string Next()
    {
        std::string name;
        const unsigned script = Below( 8 );
        for ( unsigned labels = 1 + Below( 3 ); labels > 0; --labels ) {
            name += Label( script );
            if ( labels > 1 ) {
                name += Below( 20 ) ? "." : "\u3002";
            }
        }
        if ( Below( 10 ) == 0 ) {
            name += '.';
        }
        return name;
    }

private:
    std::mt19937 random;
    Icu icu;

    unsigned Below( unsigned limit ) { return static_cast<unsigned>( random() % limit ); }

    UChar32 Between( UChar32 first, UChar32 last )
    {
        return first + static_cast<UChar32>( Below( static_cast<unsigned>( last - first + 1 ) ) );
    }

    UChar32 Letter( unsigned script )
    {
        switch ( script ) {
        case 0:
            return Between( 'a', 'z' );
        case 1:
            return Between( 0xC0, 0x17F );
        case 2:
            return Between( 0x370, 0x52F );
        case 3:
            return Between( 0x5D0, 0x5EA );
        case 4:
            return Between( 0x620, 0x64A );
        case 5:
            return Between( 0x915, 0x939 );
        case 6:
            return Between( 0x4E00, 0x9FFF );
        default:
            return Between( 0xAC00, 0xD7A3 );
        }
    }

    UChar32 Odd()
    {
        static const UChar32 some[] = { '-',    '-',    '1',    'A',    '_',    '%',    0xDF,   0x3C2,  0x200C,
                                        0x200D, 0x94D,  0xAD,   0x301,  0x323,  0x308,  0x661,  0x6F1,  0x5B4,
                                        0x64E,  0xFF41, 0x212A, 0x1100, 0x1161, 0x11A8, 0x2260, 0x2603, 0x1F600,
                                        0xFE0F, 0x640,  0x2D,   0x387,  0x30FB, 0x200B, 0x0345, 0x1FB3 };
        switch ( Below( 6 ) ) {
        case 0:
            return Between( 0x80, 0x24FF );
        case 1:
            return Between( 0xF900, 0xFFEF );
        case 2:
            return Between( 0x10000, 0x1FFFF );
        default:
            return some[Below( std::size( some ) )];
        }
    }

    std::string Label( unsigned script )
    {
        std::string label;
        for ( unsigned count = Below( 6 ) ? 1 + Below( 6 ) : Below( 70 ); count > 0; --count ) {
            AppendUtf8( label, Below( 8 ) ? Letter( Below( 6 ) ? script : Below( 8 ) ) : Odd() );
        }
        switch ( Below( 8 ) ) {
        case 0: // its ASCII form, which may be of no good label
            return icu.ToAscii( label ).value_or( "xn--" + label );
        case 1: { // nearly an ASCII form
            std::string code = icu.ToAscii( label ).value_or( "xn--a" );
            if ( !code.empty() ) {
                code[Below( static_cast<unsigned>( code.size() ) )] = "ab-z09"[Below( 6 )];
            }
            return code;
        }
        default:
            return label;
        }
    }
};

bool IsAscii( const std::string &text )
{
    for ( const char ch : text ) {
        if ( static_cast<unsigned char>( ch ) >= 0x80 ) {
            return false;
        }
    }
    return true;
}

TEST_F( WenDns, AgreesWithIcu )
{
    Icu icu;
    Names names( 7 );
    int accepted = 0;
    int refused = 0;
    int shown = 0;
    for ( int i = 0; i < 200'000; ++i ) {
        const std::string name = names.Next();
        const auto ascii = icu.ToAscii( name );
        if ( IsHostname( name ) ) { // goes through as it is, whatever UTS #46 would do
            ASSERT_TRUE( Ok( name ) );
            ASSERT_EQ( ToAscii( name ), name );
            const auto unicode = icu.ToUnicode( name );
            const bool shows = unicode && ascii && !IsAscii( *unicode ) && *ascii == ToLower( name );
            ASSERT_EQ( ToUnicode( name ), shows ? *unicode : name );
            shown += shows;
            continue;
        }
        // ICU finds an empty label where characters that are ignored stand behind the last dot of an ASCII name.
        if ( icu.errors == UIDNA_ERROR_EMPTY_LABEL && Ok( name ) ) {
            ASSERT_EQ( ToAscii( name ).back(), '.' ) << name;
            continue;
        }
        ASSERT_EQ( Ok( name ), ascii.has_value() ) << name;
        ASSERT_EQ( ToAscii( name ), ascii.value_or( name ) );
        ( ascii ? accepted : refused ) += 1;
    }
    EXPECT_GT( accepted, 20'000 );
    EXPECT_GT( refused, 20'000 );
    EXPECT_GT( shown, 1'000 );
}

// libidn2 knows the narrower rules of IDNA 2008 and an older Unicode. What it takes must be taken too and become the
// same, but for the rules that it does not have here: those of STD 3 and of bidi.
TEST_F( WenDns, AgreesWithLibidn2 )
{
    Names names( 8 );
    Icu icu;
    int accepted = 0;
    int refused = 0;
    for ( int i = 0; i < 100'000; ++i ) {
        const std::string name = names.Next();
        char *out = nullptr;
        if ( IsHostname( name ) || idn2_to_ascii_8z( name.c_str(), &out, IDN2_NONTRANSITIONAL ) != IDN2_OK ) {
            continue;
        }
        const std::string ascii = out;
        idn2_free( out );
        // U+2260, U+226E and U+226F decompose to ASCII signs.
        const bool signs = ascii.find( '%' ) != std::string::npos || name.find( "\u2260" ) != std::string::npos ||
                           name.find( "\u226E" ) != std::string::npos || name.find( "\u226F" ) != std::string::npos;
        if ( !IsHostname( ascii ) || signs ) {
            ASSERT_FALSE( Ok( name ) ) << name;
        } else if ( Ok( name ) ) {
            ++accepted;
            ASSERT_EQ( ToAscii( name ), ascii ) << name;
        } else {
            ++refused;
            icu.ToAscii( name );
            ASSERT_EQ( icu.errors, UIDNA_ERROR_BIDI ) << name;
        }
    }
    EXPECT_GT( accepted, 20'000 );
    EXPECT_GT( refused, 10 );
}

// What hosts rely on: the result of ToUnicode is a host, and the ASCII form of whatever is one is text of the grammar.
TEST_F( WenDns, Laws )
{
    Names names( 9 );
    for ( int i = 0; i < 200'000; ++i ) {
        const std::string name = names.Next();
        const std::string ascii = ToAscii( name );
        const std::string unicode = ToUnicode( name );
        if ( !Ok( name ) ) {
            ASSERT_EQ( ascii, name );
            ASSERT_EQ( unicode, name );
            continue;
        }
        ASSERT_TRUE( IsHostname( ascii ) ) << name;
        ASSERT_TRUE( Ok( unicode ) ) << name;
        if ( unicode != name ) {
            ASSERT_EQ( ToAscii( unicode ), ToLower( name ) );
            ASSERT_EQ( ToUnicode( unicode ), unicode );
        }
        // Once more changes nothing.
        ASSERT_EQ( ToAscii( ascii ), ascii );
        ASSERT_EQ( ToAscii( ToUnicode( ascii ) ),
                   IsHostname( name ) && ToUnicode( ascii ) != name ? ToLower( ascii ) : ascii );
    }
}

} // namespace
