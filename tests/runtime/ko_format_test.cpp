/* Format directives and the text of numbers. */
#include "test.h"

namespace {

constexpr const char *path = "source/runtime/ko_format.cpp";

KoString FormatString( KoString format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    const KoString s = koStringCreateFromFormatArgList( format, arguments );
    va_end( arguments );
    return s;
}

KoString FormatCstr( const char *format, KoInt length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    const KoString s = koStringCreateFromFormatCstrArgList( format, length, arguments );
    va_end( arguments );
    return s;
}

KoString FormatWcstr( const uint16_t *format, KoInt length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    const KoString s = koStringCreateFromFormatWcstrArgList( format, length, arguments );
    va_end( arguments );
    return s;
}

const uint16_t *Units( const char16_t *text )
{
    return reinterpret_cast<const uint16_t *>( text );
}

class KoFormat : public test::Fixture {};

// Directives

TEST_F( KoFormat, IntDirectives )
{
    struct Row {
        const char *format;
        KoInt value;
        std::string text;
    };
    const Row rows[] = {
        { "%i", 0, "0" },
        { "%i", 7, "7" },
        { "%i", -1, "-1" },
        { "%i", INT64_MAX, "9223372036854775807" },
        { "%i", INT64_MIN, "-9223372036854775808" }, // its magnitude is no KoInt
        { "a%ib", 12, "a12b" },
        { "%01i", 0, "0" },
        { "%02i", 5, "05" },
        { "%02i", 100, "100" }, // at least so many digits
        { "%03i", 7, "007" },
        { "%04i", 12345, "12345" },
        { "%04i", 0, "0000" },
        { "%02i", -5, "-05" }, // a minus sign is no digit
        { "%00i", 3, "3" },
        { "%0100i", 1, std::string( 99, '0' ) + "1" },
        { "%!16i", 255, "ff" },
        { "%^!16i", 255, "FF" },
        { "%^02!16i", 10, "0A" },
        { "%02!16i", 10, "0a" },
        { "%^i", 10, "10" },
        { "%!2i", 5, "101" },
        { "%!2i", INT64_MIN, "-1" + std::string( 63, '0' ) },
        { "%!36i", 35, "z" },
        { "%^!36i", 36 * 36 - 1, "ZZ" },
        { "%%%^02!16i", 0x0D, "%0D" },
        { "%i%%", 50, "50%" },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( row.format, -1, row.value ) ), row.text ) << row.format;
    }
}

TEST_F( KoFormat, TextStandsForItself )
{
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "", -1 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( nullptr, 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "plain i s ~s", -1 ) ), "plain i s ~s" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "cut off%x", 7 ) ), "cut off" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%%", -1 ) ), "%" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%%%%s", -1 ) ), "%%s" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "a\0b", 3 ) ), std::string( "a\0b", 3 ) );
    // UTF-8, in which what is ill-formed is replaced.
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "\xC3\xBC\xFF%i\xC3", -1, KoInt{ 1 } ) ), "\u00FC\uFFFD"
                                                                                                   "1\uFFFD" );
}

TEST_F( KoFormat, StringsAreKept )
{
    const auto s = test::Str( "one" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "<%s> <%s>", -1, s.Get(), s.Get() ) ), "<one> <one>" );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
}

TEST_F( KoFormat, StringsAreTakenOverOnce )
{
    // A fresh result with a count of 1: the fixture sees a leak and a second release.
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "<%~s>", -1, test::Str( "fresh" ).Leak() ) ), "<fresh>" );
    const auto s = test::Str( "kept" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%~s", -1, koStringRetain( s.Get() ) ) ), "kept" );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%~s %s %~s", -1, test::Str( "a" ).Leak(), s.Get(),
                                                         test::Str( "c" ).Leak() ) ),
               "a kept c" );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%~s%s", -1, koStringRetain( s.Get() ), s.Get() ) ),
               "keptkept" );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%~s", -1, ko___StringCreateOfLength( 0 ) ) ), "" );
}

TEST_F( KoFormat, ManyArguments )
{
    // More than there are registers, so that the list goes on in memory.
    const auto s = test::Str( "s" );
    EXPECT_EQ( test::Take( koStringCreateFromFormatCstr( "%i%s%i%s%i%s%i%s%i%s%i", -1, KoInt{ 1 }, s.Get(), KoInt{ 2 },
                                                         s.Get(), KoInt{ 3 }, s.Get(), KoInt{ 4 }, s.Get(), KoInt{ 5 },
                                                         s.Get(), KoInt{ 6 } ) ),
               "1s2s3s4s5s6" );
}

TEST_F( KoFormat, ArgumentLists )
{
    const auto s = test::Str( "s" );
    const auto format = test::Str( "\u00FC%s %~s %i%%" );
    EXPECT_EQ( test::Take( FormatString( format.Get(), s.Get(), test::Str( "t" ).Leak(), KoInt{ -3 } ) ),
               "\u00FCs t -3%" );
    EXPECT_EQ( test::Count( format.Get() ), 1 );
    EXPECT_EQ( test::Take( FormatCstr( "%s %~s %03i", -1, s.Get(), test::Str( "t" ).Leak(), KoInt{ 3 } ) ), "s t 003" );
    EXPECT_EQ( test::Take( FormatCstr( "%s%s", 2, s.Get() ) ), "s" );
    EXPECT_EQ( test::Take( FormatCstr( nullptr, 0 ) ), "" );
    EXPECT_EQ( test::Take(
                   FormatWcstr( Units( u"\u00FC%s %~s %^!16i" ), -1, s.Get(), test::Str( "t" ).Leak(), KoInt{ 255 } ) ),
               "\u00FCs t FF" );
    EXPECT_EQ( test::Take( FormatWcstr( Units( u"%s%s" ), 2, s.Get() ) ), "s" );
    EXPECT_EQ( test::Take( FormatWcstr( nullptr, 0 ) ), "" );
    // Pairs are joined; a directive between two surrogates leaves both alone.
    EXPECT_EQ( test::Take( FormatWcstr( Units( u"\U0001F600" ), -1 ) ), "\U0001F600" );
    const uint16_t parted[] = { 0xD83D, '%', '%', 0xDE00, 0 };
    EXPECT_EQ( test::Take( FormatWcstr( parted, -1 ) ), "\uFFFD%\uFFFD" );
    // Only ASCII is part of a directive: the low byte of U+0173 is that of "s".
    EXPECT_ABORT( FormatWcstr( Units( u"%\u0173" ), -1, s.Get() ), path, "directive" );
}

TEST_F( KoFormat, Append )
{
    auto s = test::Str( "a" );
    koStringAppendFormatCstr( s.Address(), "-%02i-%~s", -1, KoInt{ 7 }, test::Str( "z" ).Leak() );
    EXPECT_EQ( test::Text( s ), "a-07-z" );
    koStringAppendFormatCstr( s.Address(), "", -1 );
    koStringAppendFormatCstr( s.Address(), nullptr, 0 );
    koStringAppendFormatCstr( s.Address(), "%~s", -1, ko___StringCreateOfLength( 0 ) );
    EXPECT_EQ( test::Text( s ), "a-07-z" );
    koStringAppendFormatCstr( s.Address(), "xyz", 1 );
    EXPECT_EQ( test::Text( s ), "a-07-zx" );
}

TEST_F( KoFormat, AppendOfTheStringItself )
{
    auto s = test::Str( "ab" );
    std::string expected = "ab";
    for ( int i = 0; i < 8; ++i ) {
        koStringAppendFormatCstr( s.Address(), "%s,%s", -1, s.Get(), s.Get() );
        expected += expected + "," + expected;
        ASSERT_EQ( test::Text( s ), expected );
        koStringAppendFormatCstr( s.Address(), "+", -1 ); // there is room in the block now
        expected += "+";
    }
    auto small = KoRef<KoString>::Adopt( koStringCreate() );
    koStringAppendChar( small.Address(), 'x' ); // a block with room for more
    koStringAppendFormatCstr( small.Address(), "%s%s", -1, small.Get(), small.Get() );
    EXPECT_EQ( test::Text( small ), "xxx" );
    koStringAppendFormatCstr( small.Address(), "%~s", -1, koStringRetain( small.Get() ) );
    EXPECT_EQ( test::Text( small ), "xxxxxx" );
    EXPECT_EQ( test::Count( small.Get() ), 1 );
}

TEST_F( KoFormat, AppendCopiesWhatIsShared )
{
    auto s = test::Str( "a" );
    const auto other = KoRef<KoString>::Share( s.Get() );
    koStringAppendFormatCstr( s.Address(), "%i", -1, KoInt{ 1 } );
    EXPECT_EQ( test::Text( s ), "a1" );
    EXPECT_EQ( test::Text( other ), "a" );
    EXPECT_EQ( test::Count( other.Get() ), 1 );
}

TEST_F( KoFormat, UnknownDirectives )
{
    const char *const formats[] = {
        "%",     "100%",   "%x",      "%d",    "%S",     "%I",      "% i",     "%-i",  "%li", "%2i",
        "%~",    "%~i",    "%~%",     "%~~s",  "%^",     "%^s",     "%^%",     "%02s", "%0i", // how many digits?
        "%!i",   "%!0i",   "%!1i",    "%!37i", "%!999i", "%!1602i", "%01000i",                // beyond what they may be
        "%02^i", "%!16^i", "%!1602i", "%0!2i",                                                // out of order
        "%!",    "%!1",    "%02",     "%^0",                                                  // ends too early
    };
    const auto s = test::Str( "s" );
    for ( const char *const format : formats ) {
        SCOPED_TRACE( format );
        EXPECT_ABORT( koStringCreateFromFormatCstr( format, -1, s.Get() ), path, "directive" );
    }
    EXPECT_ABORT( koStringCreateFromFormatCstr( "%s", 1, s.Get() ), path, "directive" );
}

TEST_F( KoFormat, NullStrings )
{
    const KoString null = nullptr;
    EXPECT_ABORT( koStringCreateFromFormatCstr( "%s", -1, null ), path, "string" );
    EXPECT_ABORT( koStringCreateFromFormatCstr( "%~s", -1, null ), path, "string" );
}

// Number text

TEST_F( KoFormat, EncodeInt )
{
    struct Row {
        KoInt value, base, width, flags;
        const char *text;
    };
    const Row rows[] = {
        { 7, 10, 3, 2, "007" },
        { 7, 10, 0, 0, "7" },
        { 0, 10, 0, 0, "0" },
        { 1234, 10, 3, KO_FORMAT_ZEROS, "1234" },
        { -7, 10, 3, KO_FORMAT_ZEROS, "-007" },
        { 7, 10, 3, 0, "  7" },
        { -7, 10, 3, 0, "  -7" }, // the width counts digits
        { 255, 16, 0, 0, "ff" },
        { 255, 16, 0, 1, "FF" },
        { 255, 16, 4, KO_FORMAT_CAPITALS | KO_FORMAT_ZEROS, "00FF" },
        { 5, 2, 8, KO_FORMAT_ZEROS, "00000101" },
        { INT64_MIN, 10, 0, 0, "-9223372036854775808" },
        { INT64_MIN, 16, 0, 0, "-8000000000000000" },
        { INT64_MIN, 36, 0, 0, "-1y2p0ij32e8e8" },
        { INT64_MAX, 36, 0, 0, "1y2p0ij32e8e7" },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( test::Take( koFormatEncodeInt( row.value, row.base, row.width, row.flags ) ), row.text );
    }
}

struct NumberRow {
    const char *text;
    KoInt base;
    bool good;
    KoInt value;
    KoInt consumed;
};

const NumberRow numberRows[] = {
    { "0", 10, true, 0, 1 },
    { "12", 10, true, 12, 2 },
    { "12x", 10, true, 12, 2 }, // what follows is no fault
    { "12 ", 10, true, 12, 2 },
    { "1-2", 10, true, 1, 1 },
    { "-12", 10, true, -12, 3 },
    { "-0", 10, true, 0, 2 },
    { "007", 10, true, 7, 3 },
    { "00000000000000000000000000000000000000001", 10, true, 1, 41 }, // zeros in front do not overflow
    { "9223372036854775807", 10, true, INT64_MAX, 19 },
    { "-9223372036854775808", 10, true, INT64_MIN, 20 },
    { "9223372036854775808", 10, false, 0, 0 },  // one too many
    { "-9223372036854775809", 10, false, 0, 0 }, // one too few
    { "18446744073709551617", 10, false, 0, 0 }, // 1 when it wraps
    { "99999999999999999999999999999999999999999999", 10, false, 0, 0 },
    { "", 10, false, 0, 0 },
    { "-", 10, false, 0, 0 },   // no digit
    { "--1", 10, false, 0, 0 }, // a single sign
    { "-x", 10, false, 0, 0 },
    { "+1", 10, false, 0, 0 }, // no plus sign
    { " 1", 10, false, 0, 0 }, // no blank in front
    { "x1", 10, false, 0, 0 },
    { "0x10", 16, true, 0, 1 }, // no prefix
    { "ff", 16, true, 255, 2 },
    { "Ff", 16, true, 255, 2 },
    { "fg", 16, true, 15, 1 },
    { "-8000000000000000", 16, true, INT64_MIN, 17 },
    { "8000000000000000", 16, false, 0, 0 },
    { "zz", 36, true, 1295, 2 },
    { "ZZ{", 36, true, 1295, 2 },
    { "1012", 2, true, 5, 3 },
    { "2", 2, false, 0, 0 },
    { "9", 8, false, 0, 0 },
    { "\u0661", 10, false, 0, 0 }, // a digit, but not an ASCII one
    { "1\u0661", 10, true, 1, 1 },
    { "\uFF11", 10, false, 0, 0 },
};

TEST_F( KoFormat, DecodeInt )
{
    for ( const NumberRow &row : numberRows ) {
        const test::Exact exact( row.text );
        KoInt value = 77;
        KoInt consumed = 88;
        const KoBool good = koFormatTryDecodeIntChars( exact.Chars(), exact.Length(), row.base, &value, &consumed );
        EXPECT_EQ( good, row.good ? KO_TRUE : KO_FALSE ) << row.text;
        EXPECT_EQ( value, row.good ? row.value : 77 ) << row.text;
        EXPECT_EQ( consumed, row.good ? row.consumed : 88 ) << row.text;
    }
    KoInt value = 0;
    KoInt consumed = 0;
    EXPECT_FALSE( koFormatTryDecodeIntChars( nullptr, 0, 10, &value, &consumed ) );
    const KoChar ended[] = { '4', '2', 0, '1' };
    EXPECT_TRUE( koFormatTryDecodeIntChars( ended, -1, 10, &value, &consumed ) );
    EXPECT_EQ( value, 42 );
}

TEST_F( KoFormat, ScanInt )
{
    for ( const NumberRow &row : numberRows ) {
        const auto s = test::Str( row.text );
        KoInt value = 77;
        KoInt consumed = 88;
        EXPECT_EQ( koStringScanInt( s.Get(), 0, -1, row.base, &value, &consumed ), row.good ? KO_TRUE : KO_FALSE );
        EXPECT_EQ( value, row.good ? row.value : 77 ) << row.text;
        EXPECT_EQ( consumed, row.good ? row.consumed : 88 ) << row.text;
    }
    // Ranges.
    const auto s = test::Str( "ab123cd" );
    KoInt value = 0;
    KoInt consumed = 0;
    EXPECT_TRUE( koStringScanInt( s.Get(), 2, -1, 10, &value, &consumed ) );
    EXPECT_EQ( value, 123 );
    EXPECT_EQ( consumed, 3 );
    EXPECT_TRUE( koStringScanInt( s.Get(), 3, 1, 10, &value, &consumed ) );
    EXPECT_EQ( value, 2 );
    EXPECT_EQ( consumed, 1 );
    EXPECT_FALSE( koStringScanInt( s.Get(), 2, 0, 10, &value, &consumed ) );
    EXPECT_FALSE( koStringScanInt( s.Get(), 7, -1, 10, &value, &consumed ) );
}

TEST_F( KoFormat, TextOfNumbersReadsBack )
{
    const KoInt numbers[] = { 0,   1,     -1,     9,         10,        35,        36,       99,
                              100, 65535, -65536, INT32_MAX, INT32_MIN, INT64_MAX, INT64_MIN };
    for ( const KoInt number : numbers ) {
        for ( KoInt base = 2; base <= 36; ++base ) {
            const auto s = KoRef<KoString>::Adopt( koFormatEncodeInt( number, base, 5, KO_FORMAT_ZEROS ) );
            KoInt value = 0;
            KoInt consumed = 0;
            EXPECT_TRUE( koStringScanInt( s.Get(), 0, -1, base, &value, &consumed ) );
            EXPECT_EQ( value, number );
            EXPECT_EQ( consumed, koStringLength( s.Get() ) );
        }
    }
}

// What ends the process

TEST_F( KoFormat, Preconditions )
{
    const auto s = test::Str( "12" );
    const KoString null = nullptr;
    KoString handle = nullptr;
    const KoChar ch = '1';
    KoInt number = 0;
    EXPECT_ABORT( koStringCreateFromFormatCstr( nullptr, 1 ), path, "format || length == 0" );
    EXPECT_ABORT( koStringCreateFromFormatCstr( nullptr, -2 ), path, "format || length == 0" );
    EXPECT_ABORT( koStringCreateFromFormatCstr( "", -2 ), path, "length >= -1" );
    EXPECT_ABORT( FormatString( null ), path, "format" );
    EXPECT_ABORT( FormatCstr( nullptr, -2 ), path, "format || length == 0" );
    EXPECT_ABORT( FormatCstr( "", -2 ), path, "length >= -1" );
    EXPECT_ABORT( FormatWcstr( nullptr, -2 ), path, "format || length == 0" );
    EXPECT_ABORT( FormatWcstr( Units( u"" ), -2 ), path, "length >= -1" );

    EXPECT_ABORT( koStringAppendFormatCstr( nullptr, nullptr, -2 ), path, "s" );
    EXPECT_ABORT( koStringAppendFormatCstr( &handle, nullptr, -2 ), path, "*s" );
    handle = s.Get();
    EXPECT_ABORT( koStringAppendFormatCstr( &handle, nullptr, -2 ), path, "format || length == 0" );
    EXPECT_ABORT( koStringAppendFormatCstr( &handle, "", -2 ), path, "length >= -1" );

    const char *const offsetText = "offset >= 0 && offset <= koStringLength( s )";
    const char *const lengthText = "length >= -1 && length <= koStringLength( s ) - offset";
    const char *const baseText = "base >= 2 && base <= 36";
    EXPECT_ABORT( koStringScanInt( nullptr, -1, -2, 1, nullptr, nullptr ), path, "s" );
    EXPECT_ABORT( koStringScanInt( s.Get(), -1, -2, 1, nullptr, nullptr ), path, offsetText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 3, -1, 10, &number, &number ), path, offsetText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 1, -2, 1, nullptr, nullptr ), path, lengthText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 1, 2, 10, &number, &number ), path, lengthText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 1, INT64_MAX, 10, &number, &number ), path, lengthText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 0, -1, 1, nullptr, nullptr ), path, baseText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 0, -1, 37, &number, &number ), path, baseText );
    EXPECT_ABORT( koStringScanInt( s.Get(), 0, -1, 10, nullptr, nullptr ), path, "value" );
    EXPECT_ABORT( koStringScanInt( s.Get(), 0, -1, 10, &number, nullptr ), path, "consumed" );

    EXPECT_ABORT( koFormatEncodeInt( 1, 1, -1, 4 ), path, baseText );
    EXPECT_ABORT( koFormatEncodeInt( 1, 37, 0, 0 ), path, baseText );
    EXPECT_ABORT( koFormatEncodeInt( 1, 10, -1, 4 ), path, "width >= 0 && width <= INT32_MAX" );
    EXPECT_ABORT( koFormatEncodeInt( -1, 10, INT64_MAX, 0 ), path, "width >= 0 && width <= INT32_MAX" );
    EXPECT_ABORT( koFormatEncodeInt( 1, 10, 0, 4 ), path,
                  "( flags & ~( KO_FORMAT_CAPITALS | KO_FORMAT_ZEROS ) ) == 0" );

    EXPECT_ABORT( koFormatTryDecodeIntChars( nullptr, -2, 1, nullptr, nullptr ), path, "chs || length == 0" );
    EXPECT_ABORT( koFormatTryDecodeIntChars( &ch, -2, 1, nullptr, nullptr ), path, "length >= -1" );
    EXPECT_ABORT( koFormatTryDecodeIntChars( &ch, 1, 1, nullptr, nullptr ), path, baseText );
    EXPECT_ABORT( koFormatTryDecodeIntChars( &ch, 1, 37, &number, &number ), path, baseText );
    EXPECT_ABORT( koFormatTryDecodeIntChars( &ch, 1, 10, nullptr, nullptr ), path, "value" );
    EXPECT_ABORT( koFormatTryDecodeIntChars( &ch, 1, 10, &number, nullptr ), path, "consumed" );
}

} // namespace
