/* Between bytes and characters, compared with ICU. */
#include "test.h"

#include <runtime/ko_utf8.hpp>

#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <memory>
#include <random>

namespace {

constexpr const char *path = "source/runtime/ko_charset.cpp";

/** The UTF-8 text of the characters that the bytes convert to, or nothing. */
std::string Convert( std::string_view bytes )
{
    const auto s = KoRef<KoString>::Adopt(
        koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, test::Buf( bytes ).Get(), 1 ) );
    return test::Text( s );
}

/** What ICU makes of the bytes; U+FFFD for what is ill-formed. */
std::vector<KoChar> IcuChars( std::string_view bytes )
{
    const icu::UnicodeString units =
        icu::UnicodeString::fromUTF8( icu::StringPiece( bytes.data(), static_cast<int32_t>( bytes.size() ) ) );
    std::vector<KoChar> chs( static_cast<size_t>( units.countChar32() ) );
    UErrorCode error = U_ZERO_ERROR;
    units.toUTF32( chs.data(), static_cast<int32_t>( chs.size() ), error );
    return chs;
}

/** True when ICU finds nothing ill-formed. */
bool IcuAccepts( std::string_view bytes )
{
    UErrorCode error = U_ZERO_ERROR;
    int32_t length = 0;
    u_strFromUTF8( nullptr, 0, &length, bytes.data(), static_cast<int32_t>( bytes.size() ), &error );
    return error == U_BUFFER_OVERFLOW_ERROR || U_SUCCESS( error );
}

/** Both directions of some bytes, against ICU: the strict conversion of a buffer and the lenient one of a text. */
void CompareWithIcu( std::string_view bytes )
{
    const auto strict = KoRef<KoString>::Adopt(
        koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, test::Buf( bytes ).Get(), 1 ) );
    const auto lenient = test::Str( bytes );
    const std::vector<KoChar> expected = IcuChars( bytes );
    const auto count = static_cast<KoInt>( expected.size() );
    ASSERT_TRUE( koStringEqualsChars( lenient.Get(), expected.data(), count ) ) << testing::PrintToString( bytes );
    ASSERT_EQ( static_cast<bool>( strict ), IcuAccepts( bytes ) ) << testing::PrintToString( bytes );
    if ( strict ) {
        ASSERT_TRUE( koStringEqualsChars( strict.Get(), expected.data(), count ) );
        ASSERT_EQ( test::Text( strict ), bytes );
    }
}

class KoCharset : public test::Fixture {};

// From UTF-8

TEST_F( KoCharset, FromUtf8 )
{
    const std::string good[] = {
        "",
        "a",
        std::string( "\0", 1 ), // U+0000 is a character
        "\x7F",
        "\u0080",
        "\u07FF",
        "\u0800",
        "\uD7FF",
        "\uE000",
        "\uFFFD",
        "\uFFFE", // a noncharacter passes
        "\uFFFF",
        "\uFDD0",
        "\U00010000",
        "\U0010FFFF",
        "\uFEFFa", // a byte order mark is an ordinary character
        "INVITE sip:bob@example.com SIP/2.0\r\n",
        "0123456789abcde\u00FC0123456789abcdef\u20AC\U0001F600",
    };
    for ( const std::string &text : good ) {
        EXPECT_EQ( Convert( text ), text );
    }
}

TEST_F( KoCharset, IllFormed )
{
    const std::string_view bad[] = {
        "\x80",                     // a byte of the inside at the start
        "\xBF",                     //
        "a\x80",                    // ... behind a whole character
        "\xC3\xBC\xBC",             //
        "\xC0\x80",                 // overlong U+0000
        "\xC0\xAF",                 // overlong
        "\xC1\xBF",                 // overlong U+007F
        "\xE0\x80\x80",             // overlong
        "\xE0\x9F\xBF",             // overlong U+07FF
        "\xF0\x80\x80\x80",         // overlong
        "\xF0\x8F\xBF\xBF",         // overlong U+FFFF
        "\xED\xA0\x80",             // U+D800
        "\xED\xBF\xBF",             // U+DFFF
        "\xED\xA0\xBD\xED\xB8\x80", // a pair of surrogates
        "\xF4\x90\x80\x80",         // U+110000
        "\xF5\x80\x80\x80",         // no such first byte
        "\xF8\x88\x80\x80\x80",
        "\xFC\x84\x80\x80\x80\x80",
        "\xFE",
        "\xFF",
        "\xC3", // cut off
        "\xE2",
        "\xE2\x82",
        "\xF0",
        "\xF0\x9F",
        "\xF0\x9F\x98",
        "\xC3\x28", // broken
        "\xE2\x28\xA1",
        "\xE2\x82\x28",
        "\xF0\x28\x98\x80",
        "\xF0\x9F\x28\x80",
        "\xF0\x9F\x98\x28",
        "\xC3\xC3\xBC",
        "\xE2\x82\xE2\x82\xAC",
    };
    for ( const std::string_view bytes : bad ) {
        EXPECT_EQ( Convert( bytes ), "(null)" ) << testing::PrintToString( bytes );
        // Wherever it stands in a block.
        for ( size_t lead = 1; lead < 40; ++lead ) {
            const std::string text = std::string( lead, 'a' ) + std::string( bytes );
            EXPECT_EQ( Convert( text ), "(null)" );
            EXPECT_EQ( Convert( text + std::string( 40 - lead, 'z' ) ), "(null)" );
        }
    }
}

TEST_F( KoCharset, EveryPlaceInABlock )
{
    for ( size_t length = 0; length < 70; ++length ) {
        const std::string ascii( length, 'a' );
        EXPECT_EQ( Convert( ascii ), ascii );
        for ( size_t at = 0; at <= length; ++at ) {
            for ( const char *const ch : { "\u00FC", "\u20AC", "\U0001F600" } ) {
                std::string text = ascii;
                text.insert( at, ch );
                ASSERT_EQ( Convert( text ), text );
            }
        }
    }
}

TEST_F( KoCharset, ShortSequencesLikeIcu )
{
    for ( int a = 0; a < 256; ++a ) {
        const char one[] = { static_cast<char>( a ) };
        CompareWithIcu( { one, 1 } );
        for ( int b = 0; b < 256; ++b ) {
            const char two[] = { static_cast<char>( a ), static_cast<char>( b ), 'z' };
            CompareWithIcu( { two, 2 } );
            CompareWithIcu( { two, 3 } );
        }
    }
}

// Bytes at the ends of the ranges of Table 3-7 of The Unicode Standard.
constexpr uint8_t edges[] = { 0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2,
                              0xDF, 0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5 };

TEST_F( KoCharset, EdgesLikeIcu )
{
    for ( const uint8_t a : edges ) {
        for ( const uint8_t b : edges ) {
            for ( const uint8_t c : edges ) {
                for ( const int d : { 0x41, 0x7F, 0x80, 0xBF, 0xC2, 0xF0 } ) {
                    const uint8_t bytes[] = { a, b, c, static_cast<uint8_t>( d ) };
                    CompareWithIcu( { reinterpret_cast<const char *>( bytes ), sizeof bytes } );
                }
            }
        }
    }
}

TEST_F( KoCharset, RandomBytesLikeIcu )
{
    std::mt19937 random( 2 );
    for ( int i = 0; i < 40000; ++i ) {
        std::string bytes( random() % 50, 'a' );
        const unsigned damage = random() % 8;
        for ( char &byte : bytes ) {
            if ( random() % 8 < damage ) {
                byte = static_cast<char>( edges[random() % std::size( edges )] );
            }
        }
        CompareWithIcu( bytes );
    }
}

TEST_F( KoCharset, ResultIsUniqueAndTight )
{
    std::string euros;
    for ( int i = 0; i < 1000; ++i ) {
        euros += "\u20AC";
    }
    const auto s = KoRef<KoString>::Adopt(
        koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, test::Buf( euros ).Get(), 1 ) );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
    EXPECT_EQ( koStringLength( s.Get() ), 1000 );
    EXPECT_LE( s.Get()->capacity, 1334 ) << "not a character for each of the 3000 bytes";
}

TEST_F( KoCharset, BufferWithoutItsFront )
{
    auto b = test::Buf( "\x80\x80text" );
    koBufferDelLeading( b.Address(), 2 );
    EXPECT_EQ( test::Take( koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, b.Get(), 1 ) ), "text" );
}

// To UTF-8

TEST_F( KoCharset, ToUtf8 )
{
    struct Row {
        KoChar ch;
        std::string bytes;
    };
    const Row rows[] = {
        { 0, std::string( "\0", 1 ) },
        { 'a', "a" },
        { 0x7F, "\x7F" },
        { 0x80, "\xC2\x80" },
        { 0x7FF, "\xDF\xBF" },
        { 0x800, "\xE0\xA0\x80" },
        { 0xD7FF, "\xED\x9F\xBF" },
        { 0xD800, "\uFFFD" }, // no scalar value: what goes out is always valid
        { 0xDBFF, "\uFFFD" },
        { 0xDC00, "\uFFFD" },
        { 0xDFFF, "\uFFFD" },
        { 0xE000, "\xEE\x80\x80" },
        { 0xFFFF, "\xEF\xBF\xBF" },
        { 0x10000, "\xF0\x90\x80\x80" },
        { 0x10FFFF, "\xF4\x8F\xBF\xBF" },
        { 0x110000, "\uFFFD" },
        { 0x7FFFFFFF, "\uFFFD" },
        { -1, "\uFFFD" },
        { INT32_MIN, "\uFFFD" },
        { INT32_MIN + 'a', "\uFFFD" }, // not its low byte
        { 0x10061, "\xF0\x90\x81\xA1" },
    };
    for ( const Row &row : rows ) {
        // At each place of a block, behind and in front of ASCII.
        for ( size_t lead = 0; lead < 34; ++lead ) {
            std::vector<KoChar> chs( 34, 'x' );
            chs[lead] = row.ch;
            const std::string expected = std::string( lead, 'x' ) + row.bytes + std::string( 33 - lead, 'x' );
            const auto capacity = static_cast<KoInt>( expected.size() );
            const auto out = std::make_unique<char[]>( expected.size() ); // of this size, for sanitizers
            EXPECT_EQ( koCharsConvertToUtf8( out.get(), capacity, chs.data(), 34, KO_FALSE ), capacity );
            EXPECT_EQ( std::string_view( out.get(), expected.size() ), expected ) << std::hex << row.ch;
        }
    }
}

TEST_F( KoCharset, CountIsThatOfTheNeed )
{
    const test::Exact chs( "a\u00FC\u20AC\U0001F600" );
    std::string out( 12, '*' );
    const auto convert = [&]( KoInt capacity ) {
        return koCharsConvertToUtf8( out.data(), capacity, chs.Chars(), chs.Length(), KO_FALSE );
    };
    EXPECT_EQ( koCharsConvertToUtf8( nullptr, 0, chs.Chars(), chs.Length(), KO_FALSE ), 10 );
    EXPECT_EQ( convert( 0 ), 10 );
    EXPECT_EQ( convert( 9 ), 10 );
    EXPECT_EQ( out, std::string( 12, '*' ) ) << "nothing is written unless all fits";
    EXPECT_EQ( convert( 10 ), 10 );
    EXPECT_EQ( out, "a\u00FC\u20AC\U0001F600**" );
    EXPECT_EQ( convert( 12 ), 10 );
    EXPECT_EQ( koCharsConvertToUtf8( nullptr, 0, nullptr, 0, KO_FALSE ), 0 );
    const KoChar ended[] = { 'a', 0xFC, 0, 'z' };
    EXPECT_EQ( koCharsConvertToUtf8( nullptr, 0, ended, -1, KO_FALSE ), 3 );

    // The callers have a block of 512 bytes on their stack.
    const std::vector<KoChar> many( 513, 'm' );
    std::string block( 512, '*' );
    EXPECT_EQ( koCharsConvertToUtf8( block.data(), 512, many.data(), 513, KO_FALSE ), 513 );
    EXPECT_EQ( block, std::string( 512, '*' ) );
    EXPECT_EQ( koCharsConvertToUtf8( block.data(), 512, many.data(), 512, KO_FALSE ), 512 );
    EXPECT_EQ( block, std::string( 512, 'm' ) );
}

TEST_F( KoCharset, EveryCodePointLikeIcu )
{
    std::vector<KoChar> chs;
    for ( KoChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        if ( ch < 0xD800 || ch > 0xDFFF ) {
            chs.push_back( ch );
        }
    }
    std::string expected;
    icu::UnicodeString::fromUTF32( chs.data(), static_cast<int32_t>( chs.size() ) ).toUTF8String( expected );
    const auto s =
        KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs.data(), static_cast<KoInt>( chs.size() ) ) );
    const std::string bytes = test::Text( s );
    EXPECT_TRUE( bytes == expected );
    const auto back = KoRef<KoString>::Adopt(
        koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, test::Buf( bytes ).Get(), 1 ) );
    ASSERT_TRUE( back );
    EXPECT_TRUE( koStringEquals( back.Get(), s.Get() ) );
}

// The kernels, on blocks of exactly the size that they may touch

TEST_F( KoCharset, RunsOfAscii )
{
    for ( size_t length = 0; length < 70; ++length ) {
        for ( size_t run = 0; run <= length; ++run ) {
            const auto bytes = std::make_unique<uint8_t[]>( length );
            const auto chs = std::make_unique<KoChar[]>( length );
            for ( size_t i = 0; i < length; ++i ) {
                bytes[i] = static_cast<uint8_t>( i == run ? 0x80 + i : i );
                chs[i] = static_cast<KoChar>( i == run ? 0x80 + ( i << 8 ) : i );
            }
            const auto size = static_cast<KoInt>( length );
            const auto expected = static_cast<KoInt>( run );
            ASSERT_EQ( ko::AsciiLength( bytes.get(), size ), expected );

            const auto wide = std::make_unique<KoChar[]>( length );
            ASSERT_EQ( ko::WidenAscii( wide.get(), bytes.get(), size ), expected );
            ASSERT_TRUE( std::equal( chs.get(), chs.get() + run, wide.get() ) );

            const auto narrow = std::make_unique<uint8_t[]>( length );
            ASSERT_EQ( ko::NarrowAscii( narrow.get(), chs.get(), size ), expected );
            ASSERT_TRUE( std::equal( bytes.get(), bytes.get() + run, narrow.get() ) );
        }
    }
    // A character whose low bytes look like ASCII is none.
    for ( const KoChar ch : { 0x80, 0x161, 0x7FFF, 0x8000, 0x8061, 0xFFFF, 0x10061, 0x1000061, INT32_MAX, INT32_MIN,
                              INT32_MIN + 'a', -1, -0x8000, -0x7FFF } ) {
        for ( size_t length = 1; length <= 40; ++length ) {
            const auto narrow = std::make_unique<uint8_t[]>( length );
            std::vector<KoChar> chs( length, 'a' );
            for ( size_t place = 0; place < length; ++place ) {
                chs[place] = ch;
                const KoInt taken = ko::NarrowAscii( narrow.get(), chs.data(), static_cast<KoInt>( length ) );
                ASSERT_EQ( taken, place ) << std::hex << ch;
                chs[place] = 'a';
            }
        }
    }
}

TEST_F( KoCharset, OneStepReadsNoFurther )
{
    for ( const std::string_view text : { "a", "\u00FC", "\u20AC", "\U0001F600" } ) {
        for ( size_t length = 1; length <= text.size(); ++length ) {
            const auto bytes = std::make_unique<uint8_t[]>( length );
            std::copy_n( text.begin(), length, bytes.get() );
            KoChar ch = -7;
            const KoInt taken = ko::DecodeUtf8( bytes.get(), static_cast<KoInt>( length ), &ch );
            if ( length == text.size() ) {
                EXPECT_EQ( taken, static_cast<KoInt>( length ) );
                uint8_t again[4];
                EXPECT_EQ( ko::EncodeUtf8( again, ch ), taken );
                EXPECT_TRUE( std::equal( again, again + taken, bytes.get() ) );
            } else {
                EXPECT_EQ( taken, -static_cast<KoInt>( length ) ); // all of it is one maximal subpart
                EXPECT_EQ( ch, -7 );
            }
        }
    }
}

// What ends the process

TEST_F( KoCharset, Preconditions )
{
    const auto b = test::Buf( "a" );
    const KoChar ch = 'a';
    char out = 0;
    EXPECT_ABORT( koCharsetTryConvertBufferToStringWithFlags( 43, nullptr, 0 ), path, "charset == KO_CHARSET_UTF8" );
    EXPECT_ABORT( koCharsetTryConvertBufferToStringWithFlags( 44, nullptr, 0 ), path, "b" );
    EXPECT_ABORT( koCharsetTryConvertBufferToStringWithFlags( 44, b.Get(), 0 ), path, "flags == 1" );
    EXPECT_ABORT( koCharsConvertToUtf8( nullptr, -1, nullptr, -2, KO_TRUE ), path, "out || capacity == 0" );
    EXPECT_ABORT( koCharsConvertToUtf8( &out, -1, nullptr, -2, KO_TRUE ), path, "capacity >= 0" );
    EXPECT_ABORT( koCharsConvertToUtf8( &out, 1, nullptr, -2, KO_TRUE ), path, "chs || length == 0" );
    EXPECT_ABORT( koCharsConvertToUtf8( &out, 1, &ch, -2, KO_TRUE ), path, "length >= -1" );
    EXPECT_ABORT( koCharsConvertToUtf8( &out, 1, &ch, 1, KO_TRUE ), path, "!reserved" );
}

} // namespace
