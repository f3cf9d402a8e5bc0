/* Strings. */
#include "test.h"

#include <random>

namespace {

constexpr const char *path = "source/runtime/ko_string.cpp";

const uint16_t *Units( const char16_t *text )
{
    return reinterpret_cast<const uint16_t *>( text );
}

/** The texts of a fresh vector of strings, which is released. */
std::vector<std::string> Parts( KoVector fresh )
{
    const auto v = KoRef<KoVector>::Adopt( fresh );
    std::vector<std::string> parts;
    for ( KoInt i = 0; i < koVectorLength( v.Get() ); ++i ) {
        parts.push_back( test::Take( koStringFrom( koVectorObjAt( v.Get(), i ) ) ) );
    }
    return parts;
}

KoInt Compare( std::string_view a, std::string_view b )
{
    return koObjCompare( koStringObj( test::Str( a ).Get() ), koStringObj( test::Str( b ).Get() ) );
}

KoInt Find( std::string_view text, KoInt start, std::string_view pattern )
{
    const test::Exact chs( pattern );
    return koStringFindChars( test::Str( text ).Get(), start, chs.Chars(), chs.Length() );
}

class KoStringTest : public test::Fixture {};

// Sort, casts, references

TEST_F( KoStringTest, CastsChangeNoCount )
{
    const auto s = test::Str( "abc" );
    const KoObj obj = koStringObj( s.Get() );
    EXPECT_EQ( koObjSort( obj ), koStringSort() );
    EXPECT_EQ( koStringFrom( obj ), s.Get() );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
    EXPECT_EQ( koStringFrom( nullptr ), nullptr );
    EXPECT_EQ( koStringObj( nullptr ), nullptr );
    const auto v = KoRef<KoVector>::Adopt( koVectorCreate() );
    EXPECT_ABORT( koStringFrom( koVectorObj( v.Get() ) ), path, "!obj || koObjSort( obj ) == koStringSort()" );
}

TEST_F( KoStringTest, References )
{
    const auto s = test::Str( "abc" );
    EXPECT_EQ( koStringRetain( s.Get() ), s.Get() );
    EXPECT_EQ( test::Count( s.Get() ), 2 );
    koStringRelease( s.Get() );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
}

TEST_F( KoStringTest, SortRecord )
{
    EXPECT_STREQ( koStringSort()->name, "KO_STRING" );
    EXPECT_EQ( koStringSort()->frame[0], 1 );
    EXPECT_EQ( koStringSort()->module, koModule() );
    EXPECT_EQ( test::Take( koObjToString( koStringObj( test::Str( "text" ).Get() ) ) ), "text" );
}

TEST_F( KoStringTest, CompareIsLexicographic )
{
    EXPECT_EQ( Compare( "", "" ), 0 );
    EXPECT_EQ( Compare( "abc", "abc" ), 0 );
    EXPECT_LT( Compare( "", "a" ), 0 );
    EXPECT_GT( Compare( "a", "" ), 0 );
    EXPECT_LT( Compare( "ab", "abc" ), 0 );
    EXPECT_LT( Compare( "abc", "abd" ), 0 );
    EXPECT_GT( Compare( "b", "abc" ), 0 );
    EXPECT_LT( Compare( "A", "a" ), 0 );
    // By code point, not by the bytes or units of any form.
    EXPECT_LT( Compare( "\uFFFD", "\U00010000" ), 0 );
    EXPECT_LT( Compare( "\u00FF", "\u0100" ), 0 );
    EXPECT_LT( Compare( "a\u0100", "a\u0201" ), 0 );
}

// Creation

TEST_F( KoStringTest, Empty )
{
    const auto s = KoRef<KoString>::Adopt( koStringCreate() );
    EXPECT_EQ( koStringLength( s.Get() ), 0 );
    EXPECT_NE( koStringBacking( s.Get() ), nullptr );
    // It is the same for all, so each change has to leave it alone.
    auto changed = KoRef<KoString>::Adopt( koStringCreate() );
    koStringAppendChar( changed.Address(), 'x' );
    EXPECT_EQ( test::Text( changed ), "x" );
    EXPECT_EQ( koStringLength( s.Get() ), 0 );
    koStringToLower( changed.Address() );
    auto still = KoRef<KoString>::Adopt( koStringCreate() );
    koStringToLower( still.Address() );
    koStringAppendChars( still.Address(), nullptr, 0 );
    koStringAppendCstr( still.Address(), "", -1 );
    EXPECT_EQ( koStringLength( still.Get() ), 0 );
}

TEST_F( KoStringTest, FromCstr )
{
    struct Row {
        std::string in;
        std::string out;
    };
    const Row rows[] = {
        { "", "" },
        { "a", "a" },
        { "sixteen letters.", "sixteen letters." },
        { "more than sixteen letters", "more than sixteen letters" },
        { std::string( "a\0b", 3 ), std::string( "a\0b", 3 ) },
        { "J\u00FCrgen", "J\u00FCrgen" },
        { "\u20AC\U0001F600", "\u20AC\U0001F600" },
        { "\x7F", "\x7F" },
        // One U+FFFD for each maximal subpart.
        { "\x80", "\uFFFD" },
        { "a\xFFz", "a\uFFFDz" },
        { "\xC3", "\uFFFD" },
        { "\xC3z", "\uFFFDz" },
        { "\xC0\xAF", "\uFFFD\uFFFD" },           // overlong
        { "\xE0\x80\x80", "\uFFFD\uFFFD\uFFFD" }, // overlong
        { "\xE2\x82", "\uFFFD" },                 // cut off
        { "\xE2\x82z", "\uFFFDz" },
        { "\xF0\x9F\x98", "\uFFFD" },
        { "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD" },           // surrogate
        { "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD" }, // above U+10FFFF
        { "\xF0\x80\x80\x41", "\uFFFD\uFFFD\uFFFD\x41" },
        { "sixteen letters.\xC3\xBC\xFF sixteen letters.", "sixteen letters.\u00FC\uFFFD sixteen letters." },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( test::Take( koStringCreateFromCstr( row.in.data(), static_cast<KoInt>( row.in.size() ) ) ),
                   row.out );
        auto s = test::Str( "<" );
        koStringAppendCstr( s.Address(), row.in.data(), static_cast<KoInt>( row.in.size() ) );
        EXPECT_EQ( test::Text( s ), "<" + row.out );
        if ( row.in.find( '\0' ) == std::string::npos ) {
            EXPECT_EQ( test::Take( koStringCreateFromCstr( row.in.c_str(), -1 ) ), row.out );
            koStringAppendCstr( s.Address(), row.in.c_str(), -1 );
            EXPECT_EQ( test::Text( s ), "<" + row.out + row.out );
        }
    }
    EXPECT_EQ( test::Take( koStringCreateFromCstr( nullptr, 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromCstr( "abc", 2 ) ), "ab" );
}

TEST_F( KoStringTest, FromCstrLeavesLittleUnused )
{
    const std::string euros = [] {
        std::string text;
        for ( int i = 0; i < 1000; ++i ) {
            text += "\u20AC";
        }
        return text;
    }();
    const auto s = test::Str( euros );
    EXPECT_EQ( koStringLength( s.Get() ), 1000 );
    EXPECT_LE( s.Get()->capacity, 1334 ) << "not a character for each of the 3000 bytes";
}

TEST_F( KoStringTest, FromWcstr )
{
    struct Row {
        std::u16string in;
        const char *out;
    };
    const Row rows[] = {
        { u"", "" },
        { u"abc", "abc" },
        { u"\u00FC\u20AC", "\u00FC\u20AC" },
        { u"\uD7FF\uE000\uFFFF", "\uD7FF\uE000\uFFFF" },
        { u"\U0001F600", "\U0001F600" }, // a pair is one character
        { u"\U00010000\U0010FFFF", "\U00010000\U0010FFFF" },
        { { 0xD83D }, "\uFFFD" },               // lone
        { { 0xDE00 }, "\uFFFD" },               // lone
        { { 0xDE00, 0xD83D }, "\uFFFD\uFFFD" }, // the wrong way round
        { { 0xD83D, 'a' }, "\uFFFDa" },
        { { 0xD83D, 0xD83D, 0xDE00 }, "\uFFFD\U0001F600" },
        { { 0xDBFF, 0xDFFF }, "\U0010FFFF" },
    };
    for ( const Row &row : rows ) {
        const auto *const units = reinterpret_cast<const uint16_t *>( row.in.data() );
        EXPECT_EQ( test::Take( koStringCreateFromWcstr( units, static_cast<KoInt>( row.in.size() ) ) ), row.out );
        EXPECT_EQ( test::Take( koStringCreateFromWcstr( units, -1 ) ), row.out );
    }
    EXPECT_EQ( test::Take( koStringCreateFromWcstr( nullptr, 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromWcstr( Units( u"\U0001F600" ), 1 ) ), "\uFFFD" ); // a length in units
}

TEST_F( KoStringTest, FromChars )
{
    const KoChar chs[] = { 'a', 0xFC, 0x10FFFF, 0, 'z' };
    const auto s = KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs, 5 ) );
    EXPECT_TRUE( koStringEqualsChars( s.Get(), chs, 5 ) );
    EXPECT_NE( koStringBacking( s.Get() ), chs );
    EXPECT_EQ( test::Take( koStringCreateFromCharsCopy( chs, -1 ) ), "a\u00FC\U0010FFFF" );
    EXPECT_EQ( test::Take( koStringCreateFromCharsCopy( chs, 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromCharsCopy( nullptr, 0 ) ), "" );
}

TEST_F( KoStringTest, Ranges )
{
    const auto s = test::Str( "abcdef" );
    EXPECT_EQ( test::Take( koStringCreateFromInner( s.Get(), 1, 3 ) ), "bcd" );
    EXPECT_EQ( test::Take( koStringCreateFromInner( s.Get(), 2, -1 ) ), "cdef" );
    EXPECT_EQ( test::Take( koStringCreateFromInner( s.Get(), 0, 6 ) ), "abcdef" );
    EXPECT_EQ( test::Take( koStringCreateFromInner( s.Get(), 6, -1 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromInner( s.Get(), 6, 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromInner( s.Get(), 3, 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromLeading( s.Get(), 2 ) ), "ab" );
    EXPECT_EQ( test::Take( koStringCreateFromLeading( s.Get(), 0 ) ), "" );
    EXPECT_EQ( test::Take( koStringCreateFromLeading( s.Get(), -1 ) ), "abcdef" );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
}

TEST_F( KoStringTest, OfLength )
{
    for ( const KoInt length : { 0, 1, 100, 100000 } ) {
        auto s = KoRef<KoString>::Adopt( ko___StringCreateOfLength( length ) );
        EXPECT_EQ( test::Count( s.Get() ), 1 );
        EXPECT_EQ( koStringLength( s.Get() ), length );
        for ( KoInt i = 0; i < length; ++i ) {
            koStringSetCharAt( s.Address(), i, 'x' );
        }
        EXPECT_EQ( test::Text( s ), std::string( static_cast<size_t>( length ), 'x' ) );
    }
}

// Reading

TEST_F( KoStringTest, Characters )
{
    const auto s = test::Str( "a\u20AC" );
    EXPECT_EQ( koStringLength( s.Get() ), 2 );
    EXPECT_EQ( koStringCharAt( s.Get(), 0 ), 'a' );
    EXPECT_EQ( koStringCharAt( s.Get(), 1 ), 0x20AC );
    EXPECT_EQ( koStringBacking( s.Get() )[1], 0x20AC );
    EXPECT_TRUE( koStringBeginsWithChar( s.Get(), 'a' ) );
    EXPECT_FALSE( koStringBeginsWithChar( s.Get(), 'A' ) );
    const auto empty = test::Str( "" );
    EXPECT_FALSE( koStringBeginsWithChar( empty.Get(), 'a' ) );
    EXPECT_FALSE( koStringBeginsWithChar( empty.Get(), 0 ) );
}

TEST_F( KoStringTest, Equality )
{
    const auto s = test::Str( "abc" );
    EXPECT_EQ( koStringEquals( s.Get(), s.Get() ), KO_TRUE );
    EXPECT_EQ( koStringEquals( s.Get(), test::Str( "abc" ).Get() ), KO_TRUE );
    EXPECT_EQ( koStringEquals( s.Get(), test::Str( "abC" ).Get() ), KO_FALSE );
    EXPECT_EQ( koStringEquals( s.Get(), test::Str( "ab" ).Get() ), KO_FALSE );
    EXPECT_EQ( koStringEquals( s.Get(), test::Str( "abcd" ).Get() ), KO_FALSE );
    EXPECT_EQ( koStringEquals( test::Str( "" ).Get(), test::Str( "" ).Get() ), KO_TRUE );
    const test::Exact chs( "abc" );
    EXPECT_EQ( koStringEqualsChars( s.Get(), chs.Chars(), 3 ), KO_TRUE );
    EXPECT_EQ( koStringEqualsChars( s.Get(), chs.Chars(), 2 ), KO_FALSE );
    EXPECT_EQ( koStringEqualsChars( s.Get(), nullptr, 0 ), KO_FALSE );
    EXPECT_EQ( koStringEqualsChars( test::Str( "" ).Get(), nullptr, 0 ), KO_TRUE );
    const KoChar ended[] = { 'a', 'b', 'c', 0 };
    EXPECT_EQ( koStringEqualsChars( s.Get(), ended, -1 ), KO_TRUE );
}

TEST_F( KoStringTest, Find )
{
    struct Row {
        const char *text;
        KoInt start;
        const char *pattern;
        KoInt found;
    };
    const Row rows[] = {
        { "a\r\nb", 0, "\r\n", 1 },
        { "a\r\nb", 1, "\r\n", 1 },
        { "a\r\nb", 2, "\r\n", -1 }, // a lone LF
        { "a\rb\nc", 0, "\r\n", -1 },
        { "a\r", 0, "\r\n", -1 }, // cut off
        { "\r\r\n", 0, "\r\n", 1 },
        { "0123456789abcdef\r\n\r\n", 0, "\r\n\r\n", 16 },
        { "a\r\n\r\r\n\r\n", 0, "\r\n\r\n", 4 },
        { "abc", 0, "c", 2 },
        { "abc", 3, "c", -1 },
        { "abc", 0, "x", -1 },
        { "0123456789abcdefghij", 0, "j", 19 },
        { "0123456789abcdefghij", 0, "f", 15 },
        { "abc", 0, "abc", 0 },
        { "abc", 0, "abcd", -1 },
        { "", 0, "a", -1 },
        { "abc", 0, "", 0 }, // nothing stands everywhere
        { "abc", 3, "", 3 },
        { "", 0, "", 0 },
        { "\u0161a", 0, "a", 1 }, // U+0161 has the low byte of "a"
        { "\u6161\u6161", 0, "aa", -1 },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( Find( row.text, row.start, row.pattern ), row.found ) << row.text << " / " << row.pattern;
    }
    const KoChar ended[] = { 'b', 'c', 0, 'd' };
    EXPECT_EQ( koStringFindChars( test::Str( "abcd" ).Get(), 0, ended, -1 ), 1 );
    EXPECT_EQ( koStringFindChars( test::Str( "abcd" ).Get(), 2, nullptr, 0 ), 2 );
}

TEST_F( KoStringTest, FindAgreesWithTheStandardLibrary )
{
    // Few different letters, so that patterns have periods and nearly stand everywhere.
    std::mt19937 random( 1 );
    for ( int i = 0; i < 30000; ++i ) {
        const auto letters = [&random]( size_t length, unsigned kinds ) {
            std::string text( random() % length, 'a' );
            for ( char &letter : text ) {
                letter = static_cast<char>( 'a' + random() % kinds );
            }
            return text;
        };
        const auto kinds = static_cast<unsigned>( 1 + random() % 3 );
        const std::string text = letters( 60, kinds );
        const std::string pattern = letters( 14, kinds );
        const size_t start = random() % ( text.size() + 1 );
        const size_t expected = text.find( pattern, start );
        ASSERT_EQ( Find( text, static_cast<KoInt>( start ), pattern ),
                   expected == std::string::npos ? -1 : static_cast<KoInt>( expected ) )
            << text << " / " << pattern << " from " << start;
    }
}

TEST_F( KoStringTest, FindInHostileTexts )
{
    // Where a search that starts again at each place would need as many steps as a product of the two lengths.
    constexpr size_t length = 400000;
    const std::string as( length, 'a' );
    const std::string half( length / 2, 'a' );
    EXPECT_EQ( Find( as, 0, half + "b" ), -1 );
    EXPECT_EQ( Find( as, 0, "b" + half ), -1 );
    EXPECT_EQ( Find( as + "b", 0, half + "b" ), static_cast<KoInt>( length / 2 ) );
    EXPECT_EQ( Find( as, 0, half.substr( 1 ) + "ba" ), -1 );
    std::string pairs;
    while ( pairs.size() < length ) {
        pairs += "ab";
    }
    std::string pattern( pairs, 0, length / 2 );
    pattern += "aa";
    EXPECT_EQ( Find( pairs, 0, pattern ), -1 );
    pattern.replace( 0, 2, "bb" );
    pattern.resize( length / 2 );
    EXPECT_EQ( Find( pairs, 0, pattern ), -1 );
    EXPECT_EQ( Find( std::string( length, '\r' ), 0, "\r\n" ), -1 );
}

TEST_F( KoStringTest, SplitAtCharacter )
{
    using List = std::vector<std::string>;
    struct Row {
        const char *text;
        KoChar ch;
        KoInt maximum;
        List parts;
    };
    const Row rows[] = {
        { "", ' ', 3, { "" } }, // one empty part, never none
        { "", ' ', -1, { "" } },
        { "one", ' ', 3, { "one" } },
        { "one two", ' ', 3, { "one", "two" } },
        { "one two three four", ' ', 3, { "one", "two", "three four" } }, // the last part keeps its delimiters
        { "a b  c", ' ', 3, { "a", "b", " c" } },
        { "a  b", ' ', -1, { "a", "", "b" } }, // an empty part is kept
        { "Via:", ':', 2, { "Via", "" } },
        { ":", ':', 2, { "", "" } },
        { ":::", ':', -1, { "", "", "", "" } },
        { ":::", ':', 2, { "", "::" } },
        { "a:b", ':', 1, { "a:b" } },
        { "a\u20ACb", 0x20AC, -1, { "a", "b" } },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( Parts( koStringSplitChar( test::Str( row.text ).Get(), row.ch, row.maximum ) ), row.parts )
            << row.text;
    }
    const auto s = test::Str( "whole" );
    EXPECT_EQ( Parts( koStringSplitChar( s.Get(), ' ', -1 ) ), List{ "whole" } );
    EXPECT_EQ( test::Count( s.Get() ), 1 );
}

TEST_F( KoStringTest, SplitAtCharacters )
{
    using List = std::vector<std::string>;
    struct Row {
        const char *text;
        const char *pattern;
        KoInt maximum;
        List parts;
    };
    const Row rows[] = {
        { "", "\r\n", -1, { "" } },
        { "a\r\nb\r\nc", "\r\n", -1, { "a", "b", "c" } },
        { "a\r\nb\r\nc", "\r\n", 2, { "a", "b\r\nc" } },
        { "\r\r\n\n", "\r\n", -1, { "\r", "\n" } }, // the pair, neither of its halves
        { "a\r\n", "\r\n", -1, { "a", "" } },
        { "\r\n\r\n", "\r\n", -1, { "", "", "" } },
        { "aaaaa", "aa", -1, { "", "", "a" } }, // from the left, without overlap
        { "abcabcabcx", "abcabc", -1, { "", "abcx" } },
        { "abc", "", -1, { "abc" } }, // nothing splits nothing
        { "a, b,c", ", ", 1, { "a, b,c" } },
    };
    for ( const Row &row : rows ) {
        const test::Exact chs( row.pattern );
        EXPECT_EQ( Parts( koStringSplitChars( test::Str( row.text ).Get(), chs.Chars(), chs.Length(), row.maximum ) ),
                   row.parts )
            << row.text;
    }
    const KoChar ended[] = { ',', ' ', 0 };
    EXPECT_EQ( Parts( koStringSplitChars( test::Str( "a, b,c" ).Get(), ended, -1, -1 ) ), ( List{ "a", "b,c" } ) );
    EXPECT_EQ( Parts( koStringSplitChars( test::Str( "a" ).Get(), nullptr, 0, -1 ) ), List{ "a" } );
}

TEST_F( KoStringTest, SplitOfManyParts )
{
    std::string text;
    for ( int i = 0; i < 100000; ++i ) {
        text += "x\r\n";
    }
    const KoChar lineEnd[] = { '\r', '\n' };
    const auto parts = KoRef<KoVector>::Adopt( koStringSplitChars( test::Str( text ).Get(), lineEnd, 2, -1 ) );
    EXPECT_EQ( koVectorLength( parts.Get() ), 100001 );
}

// Changing

TEST_F( KoStringTest, Append )
{
    auto s = test::Str( "a" );
    koStringAppend( s.Address(), test::Str( "bc" ).Get() );
    koStringAppendChar( s.Address(), 0x20AC );
    const test::Exact chs( "de" );
    koStringAppendChars( s.Address(), chs.Chars(), chs.Length() );
    koStringAppendChars( s.Address(), nullptr, 0 );
    koStringAppend( s.Address(), test::Str( "" ).Get() );
    koStringAppendCstr( s.Address(), "f\u00FC", -1 );
    koStringAppendCstr( s.Address(), "xyz", 1 );
    koStringAppendCstr( s.Address(), nullptr, 0 );
    const KoChar ended[] = { '!', 0 };
    koStringAppendChars( s.Address(), ended, -1 );
    EXPECT_EQ( test::Text( s ), "abc\u20ACdef\u00FCx!" );
}

TEST_F( KoStringTest, DelimitedAppend )
{
    auto s = KoRef<KoString>::Adopt( koStringCreate() );
    koStringDelimitedAppendCharDelimiter( s.Address(), test::Str( "a" ).Get(), ',' );
    EXPECT_EQ( test::Text( s ), "a" ); // no delimiter in front of the first
    koStringDelimitedAppendCharDelimiter( s.Address(), test::Str( "b" ).Get(), ',' );
    koStringDelimitedAppendCharDelimiter( s.Address(), test::Str( "" ).Get(), ',' );
    koStringDelimitedAppendCharDelimiter( s.Address(), s.Get(), ';' );
    EXPECT_EQ( test::Text( s ), "a,b,;a,b," );
}

TEST_F( KoStringTest, ChangeOfASharedStringCopies )
{
    const auto change = []( const std::function<void( KoString * )> &mutate, const char *expected ) {
        auto s = test::Str( "abc" );
        const auto other = KoRef<KoString>::Share( s.Get() );
        mutate( s.Address() );
        EXPECT_EQ( test::Text( s ), expected );
        EXPECT_NE( s.Get(), other.Get() );
        EXPECT_EQ( test::Text( other ), "abc" );
        EXPECT_EQ( test::Count( other.Get() ), 1 );
        EXPECT_EQ( test::Count( s.Get() ), 1 );
    };
    change( []( KoString *s ) { koStringAppend( s, test::Str( "x" ).Get() ); }, "abcx" );
    change( []( KoString *s ) { koStringAppendChar( s, 'x' ); }, "abcx" );
    change( []( KoString *s ) { koStringAppendCstr( s, "x", 1 ); }, "abcx" );
    change( []( KoString *s ) { koStringAppendChars( s, koStringBacking( *s ), 1 ); }, "abca" );
    change( []( KoString *s ) { koStringAppend( s, *s ); }, "abcabc" );
    change( []( KoString *s ) { koStringDelimitedAppendCharDelimiter( s, *s, ',' ); }, "abc,abc" );
    change( []( KoString *s ) { koStringSetCharAt( s, 1, 'x' ); }, "axc" );
    change( []( KoString *s ) { koStringToUpper( s ); }, "ABC" );
}

TEST_F( KoStringTest, ChangeOfAUniqueStringKeepsIt )
{
    auto s = test::Str( "ABC" );
    const KoString handle = s.Get();
    koStringSetCharAt( s.Address(), 0, 'X' );
    koStringToLower( s.Address() );
    EXPECT_EQ( s.Get(), handle );
    EXPECT_EQ( test::Text( s ), "xbc" );
    koStringAppendCstr( s.Address(), "defgh", -1 ); // makes room for more than that
    const KoString grown = s.Get();
    koStringAppendChar( s.Address(), 'i' );
    koStringAppend( s.Address(), test::Str( "jk" ).Get() );
    EXPECT_EQ( s.Get(), grown );
    EXPECT_EQ( test::Text( s ), "xbcdefghijk" );
}

TEST_F( KoStringTest, AppendOfAnEmptyStringChangesNothing )
{
    auto s = test::Str( "abc" );
    const auto other = KoRef<KoString>::Share( s.Get() );
    koStringAppend( s.Address(), test::Str( "" ).Get() );
    koStringAppendChars( s.Address(), nullptr, 0 );
    koStringAppendCstr( s.Address(), "", -1 );
    EXPECT_EQ( s.Get(), other.Get() );
}

TEST_F( KoStringTest, AppendToAnEmptyStringDoesNotTie )
{
    // What an empty string gets may be shared until one of the two is changed.
    const auto other = test::Str( "abc" );
    auto s = KoRef<KoString>::Adopt( koStringCreate() );
    koStringAppend( s.Address(), other.Get() );
    koStringAppendChar( s.Address(), 'd' );
    EXPECT_EQ( test::Text( s ), "abcd" );
    EXPECT_EQ( test::Text( other ), "abc" );
    EXPECT_EQ( test::Count( other.Get() ), 1 );
}

TEST_F( KoStringTest, AppendToAnEmptyStringOfOneHolderCopies )
{
    // It has room of its own, or was meant to get some.
    const auto other = test::Str( "abc" );
    auto s = KoRef<KoString>::Adopt( ko___StringCreateOfLength( 0 ) );
    ASSERT_EQ( test::Count( s.Get() ), 1 );
    koStringAppend( s.Address(), other.Get() );
    EXPECT_NE( s.Get(), other.Get() );
    EXPECT_EQ( test::Text( s ), "abc" );
    EXPECT_EQ( test::Count( other.Get() ), 1 );
}

TEST_F( KoStringTest, AppendOfItself )
{
    auto s = test::Str( "ab" );
    std::string expected = "ab";
    for ( int i = 0; i < 4; ++i ) {
        koStringAppend( s.Address(), s.Get() );
        expected += expected;
        koStringAppendChars( s.Address(), koStringBacking( s.Get() ) + 1, koStringLength( s.Get() ) - 1 );
        expected += expected.substr( 1 );
        koStringDelimitedAppendCharDelimiter( s.Address(), s.Get(), '-' );
        expected += "-" + expected;
        koStringAppendChar( s.Address(), '+' );
        expected += '+';
        ASSERT_EQ( test::Text( s ), expected );
    }
}

TEST_F( KoStringTest, AppendGrowsGeometrically )
{
    auto s = KoRef<KoString>::Adopt( koStringCreate() );
    int moves = 0;
    for ( KoInt i = 0; i < 1000000; ++i ) {
        const KoString old = s.Get();
        koStringAppendChar( s.Address(), static_cast<KoChar>( i ) );
        moves += s.Get() != old;
    }
    EXPECT_LE( moves, 40 );
    EXPECT_LE( s.Get()->capacity, 1600000 );
    EXPECT_EQ( koStringLength( s.Get() ), 1000000 );
    for ( KoInt i = 0; i < 1000000; i += 997 ) {
        ASSERT_EQ( koStringCharAt( s.Get(), i ), i );
    }
}

// What ends the process

TEST_F( KoStringTest, Preconditions )
{
    const auto s = test::Str( "abc" );
    const KoString null = nullptr;
    const KoChar ch = 'a';
    const uint16_t unit = 'a';
    const char *const chsText = "chs || length == 0";
    const char *const lengthText = "length >= -1";
    EXPECT_ABORT( koStringRetain( null ), path, "object" );
    EXPECT_ABORT( koStringRelease( null ), path, "object" );

    EXPECT_ABORT( koStringCreateFromCstr( nullptr, 1 ), path, chsText );
    EXPECT_ABORT( koStringCreateFromCstr( nullptr, -1 ), path, chsText );
    EXPECT_ABORT( koStringCreateFromCstr( "", -2 ), path, lengthText );
    EXPECT_ABORT( koStringCreateFromWcstr( nullptr, -1 ), path, chsText );
    EXPECT_ABORT( koStringCreateFromWcstr( &unit, -2 ), path, lengthText );
    EXPECT_ABORT( koStringCreateFromCharsCopy( nullptr, -2 ), path, chsText );
    EXPECT_ABORT( koStringCreateFromCharsCopy( &ch, -2 ), path, lengthText );

    const char *const offsetText = "offset >= 0 && offset <= koStringLength( s )";
    const char *const innerText = "length >= -1 && length <= koStringLength( s ) - offset";
    EXPECT_ABORT( koStringCreateFromInner( null, -1, -2 ), path, "s" );
    EXPECT_ABORT( koStringCreateFromInner( s.Get(), -1, -2 ), path, offsetText );
    EXPECT_ABORT( koStringCreateFromInner( s.Get(), 4, 0 ), path, offsetText );
    EXPECT_ABORT( koStringCreateFromInner( s.Get(), 1, -2 ), path, innerText );
    EXPECT_ABORT( koStringCreateFromInner( s.Get(), 1, 3 ), path, innerText );
    EXPECT_ABORT( koStringCreateFromInner( s.Get(), 1, INT64_MAX ), path, innerText );
    EXPECT_ABORT( koStringCreateFromLeading( null, -2 ), path, "s" );
    EXPECT_ABORT( koStringCreateFromLeading( s.Get(), -2 ), path, "length >= -1 && length <= koStringLength( s )" );
    EXPECT_ABORT( koStringCreateFromLeading( s.Get(), 4 ), path, "length >= -1 && length <= koStringLength( s )" );
    EXPECT_ABORT( ko___StringCreateOfLength( -1 ), path, "length >= 0" );
    EXPECT_ABORT_MESSAGE( ko___StringCreateOfLength( INT64_MAX ), "out of memory", path, "block" );
    EXPECT_ABORT_MESSAGE( ko___StringCreateOfLength( KoInt{ 1 } << 62 ), "out of memory", path, "block" );

    EXPECT_ABORT( koStringLength( null ), path, "s" );
    EXPECT_ABORT( koStringBacking( null ), path, "s" );
    EXPECT_ABORT( koStringCharAt( null, -1 ), path, "s" );
    EXPECT_ABORT( koStringCharAt( s.Get(), -1 ), path, "index >= 0 && index < koStringLength( s )" );
    EXPECT_ABORT( koStringCharAt( s.Get(), 3 ), path, "index >= 0 && index < koStringLength( s )" );
    EXPECT_ABORT( koStringBeginsWithChar( null, 'a' ), path, "s" );
    EXPECT_ABORT( koStringEquals( null, null ), path, "a" );
    EXPECT_ABORT( koStringEquals( s.Get(), null ), path, "b" );
    EXPECT_ABORT( koStringEqualsChars( null, nullptr, -2 ), path, "s" );
    EXPECT_ABORT( koStringEqualsChars( s.Get(), nullptr, -2 ), path, chsText );
    EXPECT_ABORT( koStringEqualsChars( s.Get(), &ch, -2 ), path, lengthText );

    const char *const startText = "start >= 0 && start <= koStringLength( s )";
    EXPECT_ABORT( koStringFindChars( null, -1, nullptr, -2 ), path, "s" );
    EXPECT_ABORT( koStringFindChars( s.Get(), -1, nullptr, -2 ), path, startText );
    EXPECT_ABORT( koStringFindChars( s.Get(), 4, nullptr, -2 ), path, startText );
    EXPECT_ABORT( koStringFindChars( s.Get(), 0, nullptr, -2 ), path, chsText );
    EXPECT_ABORT( koStringFindChars( s.Get(), 0, &ch, -2 ), path, lengthText );
    EXPECT_ABORT( koStringSplitChar( null, 'a', 0 ), path, "s" );
    EXPECT_ABORT( koStringSplitChar( s.Get(), 'a', 0 ), path, "maximum == -1 || maximum > 0" );
    EXPECT_ABORT( koStringSplitChar( s.Get(), 'a', -2 ), path, "maximum == -1 || maximum > 0" );
    EXPECT_ABORT( koStringSplitChars( null, nullptr, -2, 0 ), path, "s" );
    EXPECT_ABORT( koStringSplitChars( s.Get(), nullptr, -2, 0 ), path, chsText );
    EXPECT_ABORT( koStringSplitChars( s.Get(), &ch, -2, 0 ), path, lengthText );
    EXPECT_ABORT( koStringSplitChars( s.Get(), &ch, 1, 0 ), path, "maximum == -1 || maximum > 0" );
}

TEST_F( KoStringTest, PreconditionsOfChanges )
{
    const auto s = test::Str( "abc" );
    KoString handle = nullptr;
    EXPECT_ABORT( koStringAppend( nullptr, nullptr ), path, "s" );
    EXPECT_ABORT( koStringAppend( &handle, nullptr ), path, "*s" );
    EXPECT_ABORT( koStringAppendChar( nullptr, 'a' ), path, "s" );
    EXPECT_ABORT( koStringAppendChar( &handle, 'a' ), path, "*s" );
    EXPECT_ABORT( koStringAppendChars( nullptr, nullptr, -2 ), path, "s" );
    EXPECT_ABORT( koStringAppendChars( &handle, nullptr, -2 ), path, "*s" );
    EXPECT_ABORT( koStringAppendCstr( nullptr, nullptr, -2 ), path, "s" );
    EXPECT_ABORT( koStringAppendCstr( &handle, nullptr, -2 ), path, "*s" );
    EXPECT_ABORT( koStringDelimitedAppendCharDelimiter( nullptr, nullptr, ',' ), path, "s" );
    EXPECT_ABORT( koStringDelimitedAppendCharDelimiter( &handle, nullptr, ',' ), path, "*s" );
    EXPECT_ABORT( koStringSetCharAt( nullptr, -1, 'a' ), path, "s" );
    EXPECT_ABORT( koStringSetCharAt( &handle, -1, 'a' ), path, "*s" );
    handle = s.Get();
    const KoChar ch = 'a';
    EXPECT_ABORT( koStringAppend( &handle, nullptr ), path, "other" );
    EXPECT_ABORT( koStringAppendChars( &handle, nullptr, -2 ), path, "chs || length == 0" );
    EXPECT_ABORT( koStringAppendChars( &handle, &ch, -2 ), path, "length >= -1" );
    EXPECT_ABORT_MESSAGE( koStringAppendChars( &handle, &ch, INT64_MAX ), "out of memory", path, "block" );
    EXPECT_ABORT( koStringAppendCstr( &handle, nullptr, -2 ), path, "chs || length == 0" );
    EXPECT_ABORT( koStringAppendCstr( &handle, "", -2 ), path, "length >= -1" );
    EXPECT_ABORT( koStringDelimitedAppendCharDelimiter( &handle, nullptr, ',' ), path, "other" );
    EXPECT_ABORT( koStringSetCharAt( &handle, -1, 'a' ), path, "index >= 0 && index < koStringLength( *s )" );
    EXPECT_ABORT( koStringSetCharAt( &handle, 3, 'a' ), path, "index >= 0 && index < koStringLength( *s )" );
}

} // namespace
