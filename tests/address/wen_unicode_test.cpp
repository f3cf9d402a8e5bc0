/* Tests of the tables and of normalisation, each code point against ICU, which has the same version of Unicode. */
#include <address/wen_unicode.hpp>

#include "test.h"

#include <unicode/uchar.h>
#include <unicode/uidna.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <random>

namespace {

using Points = std::vector<KoChar>;

std::u16string ToUtf16( const Points &points )
{
    std::u16string text;
    for ( const KoChar ch : points ) {
        UChar units[2];
        int32_t count = 0;
        U16_APPEND_UNSAFE( units, count, ch );
        text.append( units, static_cast<size_t>( count ) );
    }
    return text;
}

Points ToPoints( const std::u16string &text )
{
    Points points;
    for ( int32_t i = 0; i < static_cast<int32_t>( text.size() ); ) {
        UChar32 ch;
        U16_NEXT( text.data(), i, static_cast<int32_t>( text.size() ), ch );
        points.push_back( ch );
    }
    return points;
}

Points IcuNormalise( const Points &points )
{
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2 *const nfc = unorm2_getNFCInstance( &error );
    const std::u16string in = ToUtf16( points );
    std::u16string out( in.size() * 4 + 4, u'\0' );
    const int32_t count = unorm2_normalize( nfc, in.data(), static_cast<int32_t>( in.size() ), out.data(),
                                            static_cast<int32_t>( out.size() ), &error );
    EXPECT_TRUE( U_SUCCESS( error ) );
    out.resize( static_cast<size_t>( count ) );
    return ToPoints( out );
}

Points Normalise( Points points )
{
    const auto length = static_cast<int>( points.size() );
    points.resize( wen::normaliseLimit );
    const int count = wen::Normalise( points.data(), length );
    EXPECT_GE( count, 0 );
    points.resize( static_cast<size_t>( std::max( count, 0 ) ) );
    return points;
}

bool Valid( KoChar ch )
{
    return wen::PropertiesOf( ch ).status == wen::Status::Valid;
}

class IcuMapping {
public:
    IcuMapping() { idna = uidna_openUTS46( UIDNA_NONTRANSITIONAL_TO_UNICODE | UIDNA_USE_STD3_RULES, &error ); }
    IcuMapping( const IcuMapping & ) = delete;
    IcuMapping &operator=( const IcuMapping & ) = delete;
    ~IcuMapping() { uidna_close( idna ); }

    /** What the text becomes as one label with letters around it; `disallowed` tells of a character that is refused. */
    Points Map( KoChar ch, bool *disallowed )
    {
        const std::u16string in = ToUtf16( { 'a', ch, 'a' } );
        std::u16string out( 64, u'\0' );
        UIDNAInfo info = UIDNA_INFO_INITIALIZER;
        error = U_ZERO_ERROR;
        const int32_t count = uidna_nameToUnicode( idna, in.data(), static_cast<int32_t>( in.size() ), out.data(),
                                                   static_cast<int32_t>( out.size() ), &info, &error );
        EXPECT_TRUE( U_SUCCESS( error ) );
        *disallowed = ( info.errors & UIDNA_ERROR_DISALLOWED ) != 0;
        out.resize( static_cast<size_t>( count ) );
        return ToPoints( out );
    }

private:
    UErrorCode error = U_ZERO_ERROR;
    UIDNA *idna;
};

TEST( WenUnicode, StatusAndMappingOfEachCodePoint )
{
    IcuMapping icu;
    int mappedCount = 0;
    for ( KoChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        if ( U_IS_SURROGATE( ch ) ) { // not to be said in UTF-16
            ASSERT_EQ( wen::PropertiesOf( ch ).status, wen::Status::Disallowed );
            continue;
        }
        bool disallowed = false;
        const Points wanted = icu.Map( ch, &disallowed );
        Points mapped = { 'a' };
        KoChar target[wen::mappingLimit];
        switch ( wen::PropertiesOf( ch ).status ) {
        case wen::Status::Valid:
            mapped.push_back( ch );
            break;
        case wen::Status::Ignored:
            break;
        case wen::Status::Mapped:
            mapped.insert( mapped.end(), target, target + wen::Map( ch, target ) );
            ++mappedCount;
            break;
        case wen::Status::Disallowed:
            ASSERT_TRUE( disallowed ) << std::hex << ch;
            continue;
        }
        ASSERT_FALSE( disallowed ) << std::hex << ch;
        mapped.push_back( 'a' );
        ASSERT_EQ( Normalise( mapped ), wanted ) << std::hex << ch;
    }
    EXPECT_EQ( mappedCount, 5935 );
}

TEST( WenUnicode, PropertiesOfEachValidCodePoint )
{
    static const struct {
        int32_t icu;
        wen::Bidi ours;
    } bidiRows[] = {
        { U_LEFT_TO_RIGHT, wen::Bidi::L },
        { U_RIGHT_TO_LEFT, wen::Bidi::R },
        { U_RIGHT_TO_LEFT_ARABIC, wen::Bidi::AL },
        { U_EUROPEAN_NUMBER, wen::Bidi::EN },
        { U_EUROPEAN_NUMBER_SEPARATOR, wen::Bidi::ES },
        { U_EUROPEAN_NUMBER_TERMINATOR, wen::Bidi::ET },
        { U_ARABIC_NUMBER, wen::Bidi::AN },
        { U_COMMON_NUMBER_SEPARATOR, wen::Bidi::CS },
        { U_DIR_NON_SPACING_MARK, wen::Bidi::NSM },
        { U_BOUNDARY_NEUTRAL, wen::Bidi::BN },
        { U_OTHER_NEUTRAL, wen::Bidi::ON },
    };
    static const struct {
        int32_t icu;
        wen::Joining ours;
    } joiningRows[] = {
        { U_JT_NON_JOINING, wen::Joining::U },   { U_JT_LEFT_JOINING, wen::Joining::L },
        { U_JT_RIGHT_JOINING, wen::Joining::R }, { U_JT_DUAL_JOINING, wen::Joining::D },
        { U_JT_TRANSPARENT, wen::Joining::T },   { U_JT_JOIN_CAUSING, wen::Joining::C },
    };
    int validCount = 0;
    for ( KoChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        const wen::Properties &properties = wen::PropertiesOf( ch );
        if ( !Valid( ch ) ) {
            continue;
        }
        ++validCount;
        ASSERT_EQ( properties.combiningClass, u_getCombiningClass( ch ) ) << std::hex << ch;
        ASSERT_EQ( properties.mark, ( U_GET_GC_MASK( ch ) & U_GC_M_MASK ) != 0 ) << std::hex << ch;
        const int32_t quick = u_getIntPropertyValue( ch, UCHAR_NFC_QUICK_CHECK );
        ASSERT_EQ( properties.composed, quick == UNORM_YES ) << std::hex << ch;
        ASSERT_NE( quick, UNORM_NO ) << std::hex << ch;
        for ( const auto &row : bidiRows ) {
            ASSERT_EQ( properties.bidi == row.ours, u_charDirection( ch ) == row.icu ) << std::hex << ch;
        }
        for ( const auto &row : joiningRows ) {
            ASSERT_EQ( properties.joining == row.ours, u_getIntPropertyValue( ch, UCHAR_JOINING_TYPE ) == row.icu )
                << std::hex << ch;
        }
    }
    EXPECT_EQ( validCount, 142'379 + 4 ); // valid, and the four deviations
}

TEST( WenUnicode, WhatIsNoCodePointIsDisallowed )
{
    for ( const KoChar ch : { -1, INT32_MIN, 0x110000, INT32_MAX } ) {
        EXPECT_EQ( wen::PropertiesOf( ch ).status, wen::Status::Disallowed ) << ch;
    }
}

TEST( WenUnicode, NormalisesEachValidCodePoint )
{
    for ( KoChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        if ( Valid( ch ) ) {
            ASSERT_EQ( Normalise( { ch } ), IcuNormalise( { ch } ) ) << std::hex << ch;
        }
    }
}

TEST( WenUnicode, NormalisesWhatComposes )
{
    static const struct {
        Points in;
        Points out;
    } rows[] = {
        { {}, {} },
        { { 'u', 0x308 }, { 0xFC } },
        { { 'u', 0x308, 0x301 }, { 0x1D8 } },
        { { 0x1D8, 0x323 }, { 0x1EE5, 0x308, 0x301 } }, // grows: the mark below goes first and takes the letter
        { { 'a', 0x323, 0x302 }, { 0x1EAD } },
        { { 'a', 0x302, 0x323 }, { 0x1EAD } },
        { { 'q', 0x307, 0x323 }, { 'q', 0x323, 0x307 } },
        { { 'a', 0x301, 0x301 }, { 0xE1, 0x301 } }, // blocked by its like
        { { 'a', 'b', 0x301 }, { 'a', 'b', 0x301 } },
        { { 0x301, 'a' }, { 0x301, 'a' } },
        { { 0x1100, 0x1161 }, { 0xAC00 } }, // Hangul
        { { 0x1100, 0x1161, 0x11A8 }, { 0xAC01 } },
        { { 0xAC00, 0x11A8 }, { 0xAC01 } },
        { { 0xAC01, 0x11A8 }, { 0xAC01, 0x11A8 } },
        { { 0x1100, 0x1100, 0x1161 }, { 0x1100, 0xAC00 } },
        { { 0xAC00, 0x11A7 }, { 0xAC00, 0x11A7 } }, // one in front of the first trail
        { { 0x1112, 0x1175, 0x11C2 }, { 0xD7A3 } },
        { { 0x09C7, 0x09BE }, { 0x09CB } }, // both are starters
        { { 0x09C7, 0x0327, 0x09BE }, { 0x09C7, 0x0327, 0x09BE } },
        { { 0x11099, 0x110BA }, { 0x1109A } },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Normalise( row.in ), row.out );
        EXPECT_EQ( IcuNormalise( row.in ), row.out );
    }
}

TEST( WenUnicode, RefusesWhatDecomposesToTooMuch )
{
    static const struct {
        const char *name;
        KoChar last;
        int parts; // of the last character
    } rows[] = {
        { "a letter", 'a', 1 },
        { "a letter with two marks", 0x1D8, 3 },
        { "a syllable of two", 0xAC00, 2 },
        { "a syllable of three", 0xAC01, 3 },
    };
    for ( const auto &row : rows ) {
        for ( int room = 0; room <= row.parts; ++room ) {
            // Half as many letters as decompose to two each, and plain ones, leave just so much room.
            const int filled = wen::normaliseLimit - room;
            Points points( static_cast<size_t>( filled / 2 ), 0xFC );
            points.insert( points.end(), static_cast<size_t>( filled % 2 ), 'a' );
            points.push_back( row.last );
            const auto length = static_cast<int>( points.size() );
            points.resize( wen::normaliseLimit );
            EXPECT_EQ( wen::Normalise( points.data(), length ) == -1, room < row.parts ) << row.name << ", " << room;
        }
    }
}

TEST( WenUnicode, NormalisesAsIcu )
{
    // Characters that do something: marks, what composes, Hangul.
    Points active;
    for ( KoChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        const wen::Properties &properties = wen::PropertiesOf( ch );
        if ( Valid( ch ) && ( properties.combiningClass != 0 || !properties.composed || ch < 0x250 ||
                              ( ch >= 0x1E00 && ch < 0x2000 ) || ( ch >= 0xAC00 && ch < 0xAC20 ) ) ) {
            active.push_back( ch );
        }
    }
    std::mt19937 random( 5 );
    for ( int i = 0; i < 200'000; ++i ) {
        Points points( random() % 10 );
        for ( KoChar &ch : points ) {
            switch ( random() % 4 ) {
            case 0:
                ch = "aeiouAsdy"[random() % 5];
                break;
            case 1:
                ch = 0x300 + static_cast<KoChar>( random() % 0x30 );
                ch = Valid( ch ) ? ch : 0x301;
                break;
            default:
                ch = active[random() % active.size()];
            }
        }
        ASSERT_EQ( Normalise( points ), IcuNormalise( points ) );
    }
}

TEST( WenUnicode, RefusesWhatIsTooLong )
{
    KoChar chs[wen::normaliseLimit];
    std::fill( std::begin( chs ), std::end( chs ), 'a' );
    EXPECT_EQ( wen::Normalise( chs, wen::normaliseLimit ), wen::normaliseLimit );
    chs[7] = 0xE4; // two when decomposed
    EXPECT_EQ( wen::Normalise( chs, wen::normaliseLimit ), -1 );
    EXPECT_EQ( wen::Normalise( chs, wen::normaliseLimit - 1 ), wen::normaliseLimit - 1 );
    std::fill( std::begin( chs ), std::end( chs ), 0xAC01 );
    EXPECT_EQ( wen::Normalise( chs, wen::normaliseLimit / 3 ), wen::normaliseLimit / 3 );
    EXPECT_EQ( wen::Normalise( chs, wen::normaliseLimit / 3 + 1 ), -1 );
}

} // namespace
