/* Case mappings, compared with ICU. */
#include "test.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <clocale>

namespace {

constexpr const char *path = "source/runtime/ko_unicode.cpp";

constexpr KoChar lastChar = 0x10FFFF;

std::string Lower( std::string_view text )
{
    auto s = test::Str( text );
    koStringToLower( s.Address() );
    return test::Text( s );
}

std::string Upper( std::string_view text )
{
    auto s = test::Str( text );
    koStringToUpper( s.Address() );
    return test::Text( s );
}

/** A string of all code points in their order, surrogates included. */
KoRef<KoString> AllChars()
{
    std::vector<KoChar> chs;
    for ( KoChar ch = 0; ch <= lastChar; ++ch ) {
        chs.push_back( ch );
    }
    return KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs.data(), static_cast<KoInt>( chs.size() ) ) );
}

class KoUnicode : public test::Fixture {
protected:
    /** ICU has to be of the same version of Unicode. */
    static bool IcuIsOfThisVersion()
    {
        UVersionInfo version;
        u_getUnicodeVersion( version );
        return version[0] == 15 && version[1] == 0;
    }
};

// Strings

TEST_F( KoUnicode, Strings )
{
    struct Row {
        const char *text;
        const char *lower;
        const char *upper;
    };
    const Row rows[] = {
        { "", "", "" },
        { "Content-Length", "content-length", "CONTENT-LENGTH" },
        { "@[`{09", "@[`{09", "@[`{09" }, // next to the letters
        { "TITLE", "title", "TITLE" },
        { "\u00C4\u00E4", "\u00E4\u00E4", "\u00C4\u00C4" },
        { "\u00DF", "\u00DF", "\u00DF" },                                     // has no simple upper case
        { "\u1E9E", "\u00DF", "\u1E9E" },                                     // ... but is the lower case of this
        { "\u0130", "i", "\u0130" },                                          // one to one
        { "\u0131", "\u0131", "I" },                                          //
        { "\u017F\u212A", "\u017Fk", "S\u212A" },                             // into ASCII
        { "\u03A3\u03C3\u03C2", "\u03C3\u03C3\u03C2", "\u03A3\u03A3\u03A3" }, // no context
        { "\u01C5", "\u01C6", "\u01C4" },                                     // title case
        { "\u1F80", "\u1F80", "\u1F88" },
        { "\uFB03", "\uFB03", "\uFB03" },
        { "\U00010400\U00010428", "\U00010428\U00010428", "\U00010400\U00010400" },
        { "\U0001E921\U0001E943", "\U0001E943\U0001E943", "\U0001E921\U0001E921" }, // the last ones
        { "\U0010FFFF", "\U0010FFFF", "\U0010FFFF" },
        { "ascii first, then \u00C9", "ascii first, then \u00E9", "ASCII FIRST, THEN \u00C9" },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( Lower( row.text ), row.lower );
        EXPECT_EQ( Upper( row.text ), row.upper );
    }
}

TEST_F( KoUnicode, EveryCodePointLikeIcu )
{
    if ( !IcuIsOfThisVersion() ) {
        GTEST_SKIP() << "ICU is not of Unicode 15.0";
    }
    auto lower = AllChars();
    auto upper = AllChars();
    koStringToLower( lower.Address() );
    koStringToUpper( upper.Address() );
    for ( KoChar ch = 0; ch <= lastChar; ++ch ) {
        ASSERT_EQ( koStringCharAt( lower.Get(), ch ), u_tolower( ch ) ) << std::hex << ch;
        ASSERT_EQ( koStringCharAt( upper.Get(), ch ), u_toupper( ch ) ) << std::hex << ch;
    }
}

TEST_F( KoUnicode, NoCodePoints )
{
    const KoChar chs[] = { -1, INT32_MIN, INT32_MIN + 'A', 0x110000, 0x1000041, INT32_MAX };
    auto s = KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs, std::size( chs ) ) );
    koStringToLower( s.Address() );
    koStringToUpper( s.Address() );
    EXPECT_TRUE( koStringEqualsChars( s.Get(), chs, std::size( chs ) ) );
}

TEST_F( KoUnicode, LocaleIsNotAsked )
{
    for ( const char *const locale : { "tr_TR.UTF-8", "az_AZ.UTF-8", "lt_LT.UTF-8", "C.UTF-8" } ) {
        std::setlocale( LC_ALL, locale ); // where it is installed
        EXPECT_EQ( Lower( "TITLE" ), "title" );
        EXPECT_EQ( Upper( "title" ), "TITLE" );
    }
    std::setlocale( LC_ALL, "C" );
}

TEST_F( KoUnicode, WhatStaysIsNotCopied )
{
    auto s = test::Str( "lower \u00E4 1" );
    const auto other = KoRef<KoString>::Share( s.Get() );
    koStringToLower( s.Address() );
    EXPECT_EQ( s.Get(), other.Get() );
    koStringToUpper( s.Address() );
    EXPECT_EQ( test::Text( s ), "LOWER \u00C4 1" );
    EXPECT_EQ( test::Text( other ), "lower \u00E4 1" );
}

// Full mappings

TEST_F( KoUnicode, FullUpperCase )
{
    struct Row {
        KoChar ch;
        std::vector<KoChar> upper;
    };
    const Row rows[] = {
        { 'a', { 'A' } },
        { 'z', { 'Z' } },
        { 0xDF, { 'S', 'S' } },
        { 0xE4, { 0xC4 } },
        { 0xFF, { 0x178 } },
        { 0x131, { 'I' } },
        { 0x149, { 0x2BC, 'N' } },
        { 0x17F, { 'S' } },
        { 0x1C5, { 0x1C4 } },
        { 0x390, { 0x399, 0x308, 0x301 } },
        { 0x1F80, { 0x1F08, 0x399 } }, // the simple mapping is another one
        { 0x1FB7, { 0x391, 0x342, 0x399 } },
        { 0xFB03, { 'F', 'F', 'I' } },
        { 0x1E943, { 0x1E921 } },
    };
    for ( const Row &row : rows ) {
        KoInt count = -7;
        const KoChar *const found = ko___UnicodeUpperCaseDbLookup( row.ch, &count );
        ASSERT_NE( found, nullptr ) << std::hex << row.ch;
        EXPECT_EQ( std::vector<KoChar>( found, found + count ), row.upper ) << std::hex << row.ch;
    }
    for ( const KoChar ch : { 0, 0x20, 0x41, 0x5A, 0x60, 0x7B, 0x7F, 0xC4, 0x130, 0xD800, 0x10FFFF, 0x110000, -1,
                              INT32_MIN, INT32_MAX } ) {
        KoInt count = -7;
        EXPECT_EQ( ko___UnicodeUpperCaseDbLookup( ch, &count ), nullptr ) << std::hex << ch;
        EXPECT_EQ( count, -7 ) << "left alone";
    }
}

TEST_F( KoUnicode, FullUpperCaseLikeIcu )
{
    if ( !IcuIsOfThisVersion() ) {
        GTEST_SKIP() << "ICU is not of Unicode 15.0";
    }
    for ( KoChar ch = 0; ch <= lastChar; ++ch ) {
        UChar in[2];
        int32_t inLength = 0;
        U16_APPEND_UNSAFE( in, inLength, ch );
        UChar out[16];
        UErrorCode error = U_ZERO_ERROR;
        const int32_t outLength = u_strToUpper( out, 16, in, inLength, "", &error );
        ASSERT_TRUE( U_SUCCESS( error ) );
        std::vector<KoChar> expected;
        for ( int32_t i = 0; i < outLength; ) {
            UChar32 mapped = 0;
            U16_NEXT( out, i, outLength, mapped );
            expected.push_back( mapped );
        }
        KoInt count = 1;
        const KoChar *const found = ko___UnicodeUpperCaseDbLookup( ch, &count );
        const KoChar *const mapping = found ? found : &ch; // none: the character itself
        ASSERT_EQ( std::vector<KoChar>( mapping, mapping + count ), expected ) << std::hex << ch;
        ASSERT_FALSE( found && count == 1 && *found == ch ) << std::hex << ch;
    }
}

// What ends the process

TEST_F( KoUnicode, Preconditions )
{
    KoString handle = nullptr;
    EXPECT_ABORT( koStringToLower( nullptr ), path, "s" );
    EXPECT_ABORT( koStringToLower( &handle ), path, "*s" );
    EXPECT_ABORT( koStringToUpper( nullptr ), path, "s" );
    EXPECT_ABORT( koStringToUpper( &handle ), path, "*s" );
    EXPECT_ABORT( ko___UnicodeUpperCaseDbLookup( 'a', nullptr ), path, "count" );
}

} // namespace
