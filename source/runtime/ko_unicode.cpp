/* Case mappings of the Unicode Character Database 15.0.0 (The Unicode Standard, 3.13 and 5.18), whatever the locale. */
#include <runtime/ko_string.h>

#include <runtime/ko_string.hpp>

#include <algorithm>
#include <iterator>

namespace {

/** What the simple mappings add to a character. */
struct CaseKind {
    int32_t lower;
    int32_t upper;
};

#include <runtime/ko_unicode_tables.inc>

const CaseKind &KindOf( KoChar ch )
{
    const auto value = static_cast<uint32_t>( ch ); // huge when negative
    const uint32_t block = value >> blockBits;
    return caseKinds[block < std::size( blockIndex )
                         ? kindBlocks[blockIndex[block]][value & ( ( uint32_t{ 1 } << blockBits ) - 1 )]
                         : 0];
}

KoChar ToLower( KoChar ch )
{
    if ( static_cast<uint32_t>( ch ) < 0x80 ) {
        return ch >= 'A' && ch <= 'Z' ? ch + ( 'a' - 'A' ) : ch;
    }
    return ch + KindOf( ch ).lower;
}

KoChar ToUpper( KoChar ch )
{
    if ( static_cast<uint32_t>( ch ) < 0x80 ) {
        return ch >= 'a' && ch <= 'z' ? ch - ( 'a' - 'A' ) : ch;
    }
    return ch + KindOf( ch ).upper;
}

/** Maps each character. A string that stays as it is is not copied. */
template <KoChar ( *Map )( KoChar )>
void MapChars( KoString *s )
{
    const KoInt length = ( *s )->length;
    const KoChar *const before = ko::Chars( *s );
    KoInt i = 0;
    while ( i < length && Map( before[i] ) == before[i] ) {
        ++i;
    }
    if ( i == length ) {
        return;
    }
    KoChar *const chs = ko::MakeUnique( s );
    for ( ; i < length; ++i ) {
        chs[i] = Map( chs[i] );
    }
}

} // namespace

void koStringToLower( KoString *s )
{
    KO_REQUIRE_HANDLE( s );
    MapChars<ToLower>( s );
}

void koStringToUpper( KoString *s )
{
    KO_REQUIRE_HANDLE( s );
    MapChars<ToUpper>( s );
}

const KoChar *ko___UnicodeUpperCaseDbLookup( KoChar ch, KoInt *count )
{
    KO_REQUIRE( count );
    if ( static_cast<uint32_t>( ch ) < 0x80 ) {
        static_assert( upperSources[0] == 'a' && upperSources[25] == 'z' && upperStarts[26] == 26 );
        if ( ch < 'a' || ch > 'z' ) {
            return nullptr;
        }
        *count = 1;
        return upperTargets + ( ch - 'a' );
    }
    const KoChar *const found = std::lower_bound( std::begin( upperSources ), std::end( upperSources ), ch );
    if ( found == std::end( upperSources ) || *found != ch ) {
        return nullptr;
    }
    const auto index = found - std::begin( upperSources );
    *count = upperStarts[index + 1] - upperStarts[index];
    return upperTargets + upperStarts[index];
}
