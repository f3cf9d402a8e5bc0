/* Tests of Punycode: the samples of RFC 3492, section 7.1, and what hostile text does. */
#include <address/wen_punycode.hpp>

#include "test.h"

#include <random>

namespace {

using test::Exact;
using test::Str;

using Points = std::vector<KoChar>;

Points ToPoints( std::string_view text )
{
    const auto s = Str( text );
    const KoChar *const chs = koStringBacking( s.Get() );
    return { chs, chs + koStringLength( s.Get() ) };
}

/** The encoded text; "(null)" when it is longer than `room`. */
std::string Encode( const Points &points, int room = 200 )
{
    std::vector<KoChar> out( static_cast<size_t>( room ) );
    const int count = wen::PunycodeEncode( points.data(), static_cast<int>( points.size() ), out.data(), room );
    return count < 0 ? "(null)" : std::string( out.begin(), out.begin() + count );
}

/** The decoded text in UTF-8; "(null)" when there is none. */
std::string Decode( std::string_view text )
{
    const Exact in( text );
    std::vector<KoChar> out( static_cast<size_t>( in.Length() ) );
    const int count = wen::PunycodeDecode( in.Chars(), static_cast<int>( in.Length() ), out.data() );
    if ( count < 0 ) {
        return "(null)";
    }
    return test::Take( koStringCreateFromCharsCopy( out.data(), count ) );
}

struct Row {
    const char *name;
    const char *unicode;
    const char *ascii;
};

const Row rows[] = {
    { "Arabic",
      "\u0644\u064A\u0647\u0645\u0627\u0628\u062A\u0643\u0644\u0645\u0648\u0634\u0639\u0631\u0628\u064A\u061F",
      "egbpdaj6bu4bxfgehfvwxn" },
    { "Chinese, simplified", "\u4ED6\u4EEC\u4E3A\u4EC0\u4E48\u4E0D\u8BF4\u4E2D\u6587", "ihqwcrb4cv8a8dqg056pqjye" },
    { "Chinese, traditional", "\u4ED6\u5011\u7232\u4EC0\u9EBD\u4E0D\u8AAA\u4E2D\u6587", "ihqwctvzc91f659drss3x8bo0yb" },
    { "Czech", "Pro\u010Dprost\u011Bnemluv\u00ED\u010Desky", "Proprostnemluvesky-uyb24dma41a" },
    { "Hebrew",
      "\u05DC\u05DE\u05D4\u05D4\u05DD\u05E4\u05E9\u05D5\u05D8\u05DC\u05D0\u05DE\u05D3\u05D1\u05E8\u05D9\u05DD\u05E2"
      "\u05D1"
      "\u05E8\u05D9\u05EA",
      "4dbcagdahymbxekheh6e0a7fei0b" },
    { "Hindi",
      "\u092F\u0939\u0932\u094B\u0917\u0939\u093F\u0928\u094D\u0926\u0940\u0915\u094D\u092F\u094B\u0902\u0928\u0939"
      "\u0940"
      "\u0902\u092C\u094B\u0932\u0938\u0915\u0924\u0947\u0939\u0948\u0902",
      "i1baa7eci9glrd9b2ae1bj0hfcgg6iyaf8o0a1dig0cd" },
    { "Japanese",
      "\u306A\u305C\u307F\u3093\u306A\u65E5\u672C\u8A9E\u3092\u8A71\u3057\u3066\u304F\u308C\u306A\u3044\u306E\u304B",
      "n8jok5ay5dzabd5bym9f0cm5685rrjetr6pdxa" },
    { "Korean",
      "\uC138\uACC4\uC758\uBAA8\uB4E0\uC0AC\uB78C\uB4E4\uC774\uD55C\uAD6D\uC5B4\uB97C\uC774\uD574\uD55C\uB2E4\uBA74"
      "\uC5BC"
      "\uB9C8\uB098\uC88B\uC744\uAE4C",
      "989aomsvi5e83db1d2a355cv1e0vak1dwrv93d5xbh15a0dt30a5jpsd879ccm6fea98c" },
    { "Russian",
      "\u043F\u043E\u0447\u0435\u043C\u0443\u0436\u0435\u043E\u043D\u0438\u043D\u0435\u0433\u043E\u0432\u043E\u0440"
      "\u044F"
      "\u0442\u043F\u043E\u0440\u0443\u0441\u0441\u043A\u0438",
      "b1abfaaepdrnnbgefbadotcwatmq2g4l" },
    { "Spanish", "Porqu\u00E9nopuedensimplementehablarenEspa\u00F1ol",
      "PorqunopuedensimplementehablarenEspaol-fmd56a" },
    { "Vietnamese", "T\u1EA1isaoh\u1ECDkh\u00F4ngth\u1EC3ch\u1EC9n\u00F3iti\u1EBFngVi\u1EC7t",
      "TisaohkhngthchnitingVit-kjcr8268qyxafd2f1b9g" },
    { "3B", "3\u5E74B\u7D44\u91D1\u516B\u5148\u751F", "3B-ww4c5e180e575a65lsy2b" },
    { "amuro", "\u5B89\u5BA4\u5948\u7F8E\u6075-with-SUPER-MONKEYS", "-with-SUPER-MONKEYS-pc58ag80a8qai00g7n9n" },
    { "hello", "Hello-Another-Way-\u305D\u308C\u305E\u308C\u306E\u5834\u6240",
      "Hello-Another-Way--fc4qua05auwb3674vfr0b" },
    { "hitotsu", "\u3072\u3068\u3064\u5C4B\u6839\u306E\u4E0B2", "2-u9tlzr9756bt3uc0v" },
    { "maji", "Maji\u3067Koi\u3059\u308B5\u79D2\u524D", "MajiKoi5-783gue6qz075azm5e" },
    { "pafii", "\u30D1\u30D5\u30A3\u30FCde\u30EB\u30F3\u30D0", "de-jg4avhby1noc0d" },
    { "sono", "\u305D\u306E\u30B9\u30D4\u30FC\u30C9\u3067", "d9juau41awczczp" },
    { "ASCII breaks", "-> $1.00 <-", "-> $1.00 <--" },
    { "nothing", "", "" },
    { "one letter", "b\u00FCcher", "bcher-kva" },
    { "one character", "\u00FC", "tda" },
    { "the last code point", "\U0010FFFF", "dn32g" },
};

TEST( WenPunycode, Encodes )
{
    for ( const Row &row : rows ) {
        EXPECT_EQ( Encode( ToPoints( row.unicode ) ), row.ascii ) << row.name;
    }
}

TEST( WenPunycode, Decodes )
{
    for ( const Row &row : rows ) {
        EXPECT_EQ( Decode( row.ascii ), row.unicode ) << row.name;
    }
    EXPECT_EQ( Decode( "bcher-KVA" ), "b\u00FCcher" ); // digits have no case
    EXPECT_EQ( Decode( "abc-" ), "abc" );              // nothing but basic characters
}

TEST( WenPunycode, RefusesWhatIsNone )
{
    static const char *const texts[] = {
        "-", // a delimiter with nothing in front is a digit, and none
        "-kva",
        "bcher-kv", // ends inside a number
        "bcher-k",
        "bcher-kv!",
        "bcher-kv\u00E4",
        "b\u00FCcher-kva", // what stands in front of the delimiter is ASCII
        "b\u00FCcher-",
        "99999999", // beyond the last code point
        "zzzzzzzzzzzzzzzzzzzz",
        "a-9999999999999999999999999999999",
        "dn32h", // U+110000, at the last place
    };
    for ( const char *const text : texts ) {
        EXPECT_EQ( Decode( text ), "(null)" ) << text;
    }
    EXPECT_EQ( Decode( std::string( 1'000, '9' ) ), "(null)" );
    const KoChar negative[] = { 'a', -1, '-', 'k', 'v', 'a' }; // no character, in front of the delimiter
    KoChar out[std::size( negative )];
    EXPECT_EQ( wen::PunycodeDecode( negative, std::size( negative ), out ), -1 );
}

TEST( WenPunycode, KeepsTheRoom )
{
    const Points points = ToPoints( "b\u00FCcher" );
    EXPECT_EQ( Encode( points, 9 ), "bcher-kva" );
    for ( int room = 0; room < 9; ++room ) {
        EXPECT_EQ( Encode( points, room ), "(null)" ) << room;
    }
    EXPECT_EQ( Encode( ToPoints( "abc" ), 3 ), "(null)" ); // the delimiter
}

TEST( WenPunycode, IsReversible )
{
    std::mt19937 random( 3 );
    for ( int i = 0; i < 50'000; ++i ) {
        Points points( random() % 40 );
        for ( KoChar &ch : points ) {
            const unsigned limits[] = { 0x80, 0x180, 0x3000, 0x110000 };
            ch = static_cast<KoChar>( random() % limits[random() % 4] );
        }
        const std::string ascii = Encode( points, 1000 );
        std::vector<KoChar> code( ascii.begin(), ascii.end() );
        Points back( code.size() );
        const int count = wen::PunycodeDecode( code.data(), static_cast<int>( code.size() ), back.data() );
        ASSERT_EQ( count, static_cast<int>( points.size() ) ) << ascii;
        back.resize( points.size() );
        ASSERT_EQ( back, points ) << ascii;
    }
}

TEST( WenPunycode, RandomTextIsDecodedToCodePoints )
{
    std::mt19937 random( 4 );
    int decoded = 0;
    for ( int i = 0; i < 200'000; ++i ) {
        std::string text( random() % 20, ' ' );
        for ( char &ch : text ) {
            ch = "abckz0459-"[random() % 10];
        }
        const Exact in( text );
        std::vector<KoChar> out( text.size() );
        const int count = wen::PunycodeDecode( in.Chars(), static_cast<int>( in.Length() ), out.data() );
        ASSERT_LE( count, static_cast<int>( text.size() ) );
        for ( int k = 0; k < count; ++k ) {
            ASSERT_TRUE( KO_CHAR_OK( out[static_cast<size_t>( k )] ) ) << text;
        }
        decoded += count >= 0;
    }
    EXPECT_GT( decoded, 10'000 );
}

} // namespace
