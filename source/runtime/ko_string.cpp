/* Strings: sequences of code points, immutable unless unique. */
#include <runtime/ko_string.h>

#include <runtime/ko_create.hpp>
#include <runtime/ko_string.hpp>
#include <runtime/ko_vector.h>

namespace {

KoInt Compare( KoObj a, KoObj b )
{
    const KoString left = koStringFrom( a );
    const KoString right = koStringFrom( b );
    const KoChar *const leftChs = ko::Chars( left );
    const KoChar *const rightChs = ko::Chars( right );
    const KoInt shorter = koIntMin( left->length, right->length );
    for ( KoInt i = 0; i < shorter; ++i ) {
        if ( leftChs[i] != rightChs[i] ) {
            return leftChs[i] < rightChs[i] ? -1 : 1;
        }
    }
    return left->length < right->length ? -1 : left->length > right->length;
}

KoString ToString( KoObj obj )
{
    return koStringRetain( koStringFrom( obj ) );
}

const ko___Sort sort = KO_SORT( &ko::runtimeModule, "KO_STRING", nullptr, Compare, ToString );

// The string of all empty strings. It is never written to: a constant is neither counted nor unique.
const ko___String emptyString = { { &sort, KO_COUNT_CONSTANT, 0 }, 0, 0 };

KoString Empty()
{
    return const_cast<KoString>( &emptyString );
}

bool IsUnique( KoString s )
{
    return ko___IsUnique( koStringObj( s ) );
}

constexpr KoInt charSize = sizeof( KoChar );
constexpr KoInt maximalLength = ( PTRDIFF_MAX - static_cast<KoInt>( sizeof( ko___String ) ) ) / charSize;

// What the first append to a small string makes room for: a block of 128 bytes.
constexpr KoInt leastGrownCapacity = ( 128 - static_cast<KoInt>( sizeof( ko___String ) ) ) / charSize;

/** A new string whose characters are not set, with room for at least `capacity` of them. */
inline KoString CreateWithCapacity( KoInt capacity, KoInt length )
{
    KO_REQUIRE_MESSAGE( capacity <= maximalLength, "out of memory", "block" );
    const size_t size = sizeof( ko___String ) + static_cast<size_t>( capacity * charSize );
    const auto [obj, usable] = ko::CreateObject( size, &sort );
    const auto s = reinterpret_cast<KoString>( obj );
    s->length = length;
    s->capacity = static_cast<KoInt>( ( usable - sizeof( ko___String ) ) / charSize );
    return s;
}

/** A new string with a copy of the characters; the caller has checked them. */
KoString Copy( const KoChar *chs, KoInt length )
{
    if ( length == 0 ) {
        return Empty();
    }
    KoChar *const to = ko::Chars( CreateWithCapacity( length, length ) );
    return static_cast<KoString>( memcpy( to, chs, static_cast<size_t>( length ) * sizeof( KoChar ) ) ) - 1;
}

/** A new string with a range; the string itself where the range is all of it. */
KoString Inner( KoString s, KoInt offset, KoInt length )
{
    return length == s->length ? koStringRetain( s ) : Copy( ko::Chars( s ) + offset, length );
}

/** A new string with the characters of a text of a caller. */
template <class Unit>
KoString CreateDecoded( const Unit *units, KoInt length )
{
    if ( length == 0 ) {
        return Empty();
    }
    // As many characters as units, unless the text is far from ASCII.
    KoString s = ko::CreateUninitialised( length );
    KoChar *const chs = ko::Chars( s );
    const KoInt decoded = ko::Decode( chs, units, length ) - chs;
    if ( decoded < length ) {
        ko::Trim( &s, decoded );
    }
    return s;
}

// The search of Crochemore and Perrin ("Two-way string-matching"): linear also on hostile texts, without memory.

struct Suffix {
    KoInt before; // index of the character before it
    KoInt period;
};

/** The maximal suffix of a pattern in the order of the characters, or in the opposite order. */
Suffix MaximalSuffix( const KoChar *pattern, KoInt length, bool opposite )
{
    Suffix best = { -1, 1 };
    KoInt other = 0; // the character before the suffix that competes
    KoInt k = 1;
    while ( other + k < length ) {
        const KoChar a = pattern[other + k];
        const KoChar b = pattern[best.before + k];
        if ( a == b ) {
            if ( k == best.period ) {
                other += k;
                k = 1;
            } else {
                ++k;
            }
        } else if ( ( a < b ) != opposite ) {
            other += k;
            k = 1;
            best.period = other - best.before;
        } else {
            best = { other, 1 };
            ++other;
            k = 1;
        }
    }
    return best;
}

KoInt FindTwoWay( const KoChar *chs, KoInt length, KoInt start, const KoChar *pattern, KoInt patternLength )
{
    const Suffix forward = MaximalSuffix( pattern, patternLength, false );
    const Suffix backward = MaximalSuffix( pattern, patternLength, true );
    const Suffix right = forward.before > backward.before ? forward : backward;
    const KoInt left = right.before + 1; // the pattern is cut before this character
    const bool periodic = ko::SameChars( pattern, pattern + right.period, left );
    const KoInt period = periodic ? right.period : koIntMax( left, patternLength - left ) + 1;

    KoInt known = 0; // so many characters at the start of a periodic pattern are known to stand at `at`
    for ( KoInt at = start; length - at >= patternLength; ) {
        KoInt i = koIntMax( left, known );
        while ( i < patternLength && pattern[i] == chs[at + i] ) {
            ++i;
        }
        if ( i < patternLength ) {
            at += i - left + 1;
            known = 0;
            continue;
        }
        i = left;
        while ( i > known && pattern[i - 1] == chs[at + i - 1] ) {
            --i;
        }
        if ( i <= known ) {
            return at;
        }
        at += period;
        known = periodic ? patternLength - period : 0;
    }
    return -1;
}

/** Splits at the places where the pattern stands. */
KoVector Split( KoString s, const KoChar *pattern, KoInt patternLength, KoInt maximum )
{
    KoVector parts = koVectorCreate();
    const auto append = [&parts, s]( KoInt from, KoInt to ) {
        const auto part = KoRef<KoString>::Adopt( Inner( s, from, to - from ) );
        koVectorAppendObj( &parts, koStringObj( part.Get() ) );
    };
    KoInt from = 0;
    for ( KoInt left = maximum; left != 1 && patternLength > 0; --left ) {
        const KoInt found = ko::FindChars( ko::Chars( s ), s->length, from, pattern, patternLength );
        if ( found < 0 ) {
            break;
        }
        append( from, found );
        from = found + patternLength;
    }
    append( from, s->length );
    return parts;
}

void AppendOther( KoString *s, KoString other )
{
    if ( ( *s )->length == 0 && !IsUnique( *s ) ) {
        const KoString before = *s;
        *s = koStringRetain( other );
        koStringRelease( before );
        return;
    }
    koStringAppendChars( s, ko::Chars( other ), other->length );
}

} // namespace

namespace ko {

KoString CreateUninitialised( KoInt length )
{
    return CreateWithCapacity( length, length );
}

void Trim( KoString *s, KoInt length )
{
    const KoString whole = *s;
    const KoInt cut = whole->length - length;
    whole->length = length;
    if ( cut > whole->capacity / 4 ) {
        *s = Copy( Chars( whole ), length );
        koStringRelease( whole );
    }
}

KoChar *MakeUnique( KoString *s )
{
    if ( !IsUnique( *s ) ) {
        const KoString before = *s;
        *s = Copy( Chars( before ), before->length );
        koStringRelease( before );
    }
    return Chars( *s );
}

KoChar *Reserve( KoString *s, KoInt more, KoRef<KoString> *before )
{
    const KoString old = *s;
    const KoInt length = old->length;
    if ( more > 0 && !( IsUnique( old ) && old->capacity - length >= more ) ) {
        KO_REQUIRE_MESSAGE( more <= maximalLength - length, "out of memory", "block" );
        const KoInt grown = koIntMax( length + length / 2, leastGrownCapacity );
        *s = CreateWithCapacity( koIntMax( length + more, grown ), length );
        CopyChars( Chars( *s ), Chars( old ), length );
        *before = KoRef<KoString>::Adopt( old );
    }
    return Chars( *s ) + length;
}

KoInt FindChars( const KoChar *chs, KoInt length, KoInt start, const KoChar *pattern, KoInt patternLength )
{
    if ( patternLength > 2 ) {
        return FindTwoWay( chs, length, start, pattern, patternLength );
    }
    if ( patternLength == 0 ) {
        return start;
    }
    KoInt found = FindChar( chs, length, start, pattern[0] );
    while ( found >= 0 && patternLength == 2 && ( length - found < 2 || chs[found + 1] != pattern[1] ) ) {
        found = FindChar( chs, length, found + 1, pattern[0] );
    }
    return found;
}

} // namespace ko

KO_TYPE_OPERATIONS( KoString, koString, sort )

KoString koStringCreate( void )
{
    return Empty();
}

KoString koStringCreateFromCstr( const char *chs, KoInt length )
{
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    return CreateDecoded( chs, ko::TextLength( chs, length ) );
}

KoString koStringCreateFromWcstr( const uint16_t *chs, KoInt length )
{
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    return CreateDecoded( chs, ko::TextLength( chs, length ) );
}

KoString koStringCreateFromCharsCopy( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    return Copy( chs, ko::TextLength( chs, length ) );
}

KoString koStringCreateFromInner( KoString s, KoInt offset, KoInt length )
{
    KO_REQUIRE( s );
    KO_REQUIRE( offset >= 0 && offset <= koStringLength( s ) );
    KO_REQUIRE( length >= -1 && length <= koStringLength( s ) - offset );
    return Inner( s, offset, length < 0 ? s->length - offset : length );
}

KoString koStringCreateFromLeading( KoString s, KoInt length )
{
    KO_REQUIRE( s );
    KO_REQUIRE( length >= -1 && length <= koStringLength( s ) );
    return Inner( s, 0, length < 0 ? s->length : length );
}

KoString ko___StringCreateOfLength( KoInt length )
{
    KO_REQUIRE( length >= 0 );
    return ko::CreateUninitialised( length );
}

KoInt koStringLength( KoString s )
{
    KO_REQUIRE( s );
    return s->length;
}

const KoChar *koStringBacking( KoString s )
{
    KO_REQUIRE( s );
    return ko::Chars( s );
}

KoChar koStringCharAt( KoString s, KoInt index )
{
    KO_REQUIRE( s );
    KO_REQUIRE( index >= 0 && index < koStringLength( s ) );
    return ko::Chars( s )[index];
}

KoBool koStringBeginsWithChar( KoString s, KoChar ch )
{
    KO_REQUIRE( s );
    return s->length > 0 && ko::Chars( s )[0] == ch;
}

KoBool koStringEquals( KoString a, KoString b )
{
    KO_REQUIRE( a );
    KO_REQUIRE( b );
    return a == b || ( a->length == b->length && ko::SameChars( ko::Chars( a ), ko::Chars( b ), a->length ) );
}

KoBool koStringEqualsChars( KoString s, const KoChar *chs, KoInt length )
{
    KO_REQUIRE( s );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    return s->length == ko::TextLength( chs, length ) && ko::SameChars( ko::Chars( s ), chs, s->length );
}

KoInt koStringFindChars( KoString s, KoInt start, const KoChar *chs, KoInt length )
{
    KO_REQUIRE( s );
    KO_REQUIRE( start >= 0 && start <= koStringLength( s ) );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    return ko::FindChars( ko::Chars( s ), s->length, start, chs, ko::TextLength( chs, length ) );
}

KoVector koStringSplitChar( KoString s, KoChar ch, KoInt maximum )
{
    KO_REQUIRE( s );
    KO_REQUIRE( maximum == -1 || maximum > 0 );
    return Split( s, &ch, 1, maximum );
}

KoVector koStringSplitChars( KoString s, const KoChar *chs, KoInt length, KoInt maximum )
{
    KO_REQUIRE( s );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    KO_REQUIRE( maximum == -1 || maximum > 0 );
    return Split( s, chs, ko::TextLength( chs, length ), maximum );
}

void koStringAppend( KoString *s, KoString other )
{
    KO_REQUIRE_HANDLE( s );
    KO_REQUIRE( other );
    AppendOther( s, other );
}

void koStringAppendChar( KoString *s, KoChar ch )
{
    KO_REQUIRE_HANDLE( s );
    KoRef<KoString> before;
    *ko::Extend( s, 1, &before ) = ch;
}

void koStringAppendChars( KoString *s, const KoChar *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( s );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    const KoInt count = ko::TextLength( chs, length );
    KoRef<KoString> before;
    ko::CopyChars( ko::Extend( s, count, &before ), chs, count );
}

void koStringAppendCstr( KoString *s, const char *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( s );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    const KoInt count = ko::TextLength( chs, length );
    KoRef<KoString> before;
    ko::Decode( ko::Extend( s, ko::DecodedLength( chs, count ), &before ), chs, count );
}

void koStringDelimitedAppendCharDelimiter( KoString *s, KoString other, KoChar delimiter )
{
    KO_REQUIRE_HANDLE( s );
    KO_REQUIRE( other );
    if ( ( *s )->length == 0 ) {
        AppendOther( s, other );
        return;
    }
    const KoInt length = other->length; // `other` may be the string itself
    KoRef<KoString> before;
    KoChar *const to = ko::Extend( s, length + 1, &before );
    to[0] = delimiter;
    ko::CopyChars( to + 1, ko::Chars( other ), length );
}

void koStringSetCharAt( KoString *s, KoInt index, KoChar ch )
{
    KO_REQUIRE_HANDLE( s );
    KO_REQUIRE( index >= 0 && index < koStringLength( *s ) );
    ko::MakeUnique( s )[index] = ch;
}
