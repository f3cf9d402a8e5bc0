/*
 * The runtime against naive models: UTF-8, search and split, number text, formats, and sequences of changes of strings,
 * buffers, vectors and dictionaries on handles that share objects.
 *
 * The first line of the input makes the choices, the rest is text, in UTF-8 or not.
 */
#include "fuzz.hpp"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <utility>

namespace fuzz {
namespace {

// UTF-8 by the table of the Unicode Standard (3-7).
std::optional<std::u32string> NaiveDecode( std::string_view bytes )
{
    std::u32string text;
    for ( size_t i = 0; i < bytes.size(); ) {
        const auto byte = [&]( size_t k ) { return i + k < bytes.size() ? static_cast<uint8_t>( bytes[i + k] ) : 0U; };
        const auto lead = byte( 0 );
        const size_t length = lead < 0x80   ? 1
                              : lead < 0xc2 ? 0
                              : lead < 0xe0 ? 2
                              : lead < 0xf0 ? 3
                              : lead < 0xf5 ? 4
                                            : 0;
        char32_t ch = length == 1 ? lead : lead & ( 0x7fU >> length );
        for ( size_t k = 1; k < length; ++k ) {
            if ( byte( k ) < 0x80 || byte( k ) > 0xbf ) {
                return {};
            }
            ch = ch << 6 | ( byte( k ) & 0x3f );
        }
        if ( length == 0 || ( length == 3 && ( ch < 0x800 || ( ch >= 0xd800 && ch < 0xe000 ) ) ) ||
             ( length == 4 && ( ch < 0x10000 || ch > 0x10ffff ) ) ) {
            return {};
        }
        text += ch;
        i += length;
    }
    return text;
}

std::u32string Chars( KoString s )
{
    return { reinterpret_cast<const char32_t *>( koStringBacking( s ) ), static_cast<size_t>( koStringLength( s ) ) };
}

const KoChar *Data( const std::u32string &text )
{
    return reinterpret_cast<const KoChar *>( text.data() );
}

KoInt Size( const std::u32string &text )
{
    return static_cast<KoInt>( text.size() );
}

KoRef<KoString> Wide( const std::u32string &text )
{
    return Own( koStringCreateFromCharsCopy( Data( text ), Size( text ) ) );
}

std::u32string CheckUtf8( std::string_view bytes )
{
    const auto decoded = Own( koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, Buf( bytes ).Get(), 1 ) );
    const auto naive = NaiveDecode( bytes );
    CHECK( ( decoded.Get() != nullptr ) == naive.has_value() );
    const auto lenient = Str( bytes );
    if ( naive ) {
        CHECK( Chars( decoded.Get() ) == *naive );
        CHECK( koStringEquals( lenient.Get(), decoded.Get() ) );
        CHECK_SAME( Text( decoded.Get() ), std::string( bytes ) );
    } else {
        CHECK( Chars( lenient.Get() ).find( U'\ufffd' ) != std::u32string::npos );
        CHECK( NaiveDecode( Text( lenient.Get() ) ) == Chars( lenient.Get() ) );
    }
    return Chars( lenient.Get() );
}

std::vector<std::u32string> NaiveSplit( std::u32string_view text, std::u32string_view at, KoInt maximum )
{
    std::vector<std::u32string> parts;
    for ( size_t end; !at.empty() && ( maximum < 0 || static_cast<KoInt>( parts.size() ) + 1 < maximum ) &&
                      ( end = text.find( at ) ) != std::u32string_view::npos; ) {
        parts.emplace_back( text.substr( 0, end ) );
        text.remove_prefix( end + at.size() );
    }
    parts.emplace_back( text );
    return parts;
}

void CheckParts( KoVector fresh, const std::vector<std::u32string> &parts )
{
    const auto vector = Own( fresh );
    CHECK( koVectorLength( fresh ) == static_cast<KoInt>( parts.size() ) );
    for ( size_t i = 0; i < parts.size(); ++i ) {
        CHECK( Chars( StringAt( fresh, static_cast<KoInt>( i ) ).Get() ) == parts[i] );
    }
}

void CheckSearch( const std::u32string &text, Choices choices )
{
    const auto s = Wide( text );
    const size_t begin = choices.Below( text.size() + 1 );
    const std::u32string needle = text.substr( begin, choices.Below( 5 ) );
    for ( size_t start = 0; start <= text.size() && start < 8; ++start ) {
        const size_t naive = text.find( needle, start );
        CHECK( koStringFindChars( s.Get(), static_cast<KoInt>( start ), Data( needle ), Size( needle ) ) ==
               ( naive == std::u32string::npos ? -1 : static_cast<KoInt>( naive ) ) );
    }
    for ( const KoInt maximum : { -1, 1, 2, 3 } ) {
        CheckParts( koStringSplitChars( s.Get(), Data( needle ), Size( needle ), maximum ),
                    NaiveSplit( text, needle, maximum ) );
        if ( !needle.empty() ) {
            CheckParts( koStringSplitChar( s.Get(), static_cast<KoChar>( needle[0] ), maximum ),
                        NaiveSplit( text, needle.substr( 0, 1 ), maximum ) );
        }
    }
}

__extension__ typedef __int128 Large;

void CheckNumbers( const std::u32string &text, Choices choices )
{
    const auto base = static_cast<KoInt>( 2 + choices.Below( 35 ) );
    const auto digit = [&]( char32_t c ) {
        const KoInt value = c >= '0' && c <= '9'   ? static_cast<KoInt>( c - '0' )
                            : c >= 'a' && c <= 'z' ? static_cast<KoInt>( c - 'a' + 10 )
                            : c >= 'A' && c <= 'Z' ? static_cast<KoInt>( c - 'A' + 10 )
                                                   : 99;
        return value < base ? value : -1;
    };
    const bool minus = !text.empty() && text[0] == '-';
    Large naive = 0;
    size_t at = minus ? 1 : 0;
    bool fits = at < text.size() && digit( text[at] ) >= 0;
    for ( ; at < text.size() && digit( text[at] ) >= 0; ++at ) {
        naive = std::min<Large>( naive * base + digit( text[at] ), static_cast<Large>( INT64_MAX ) * 4 );
    }
    naive = minus ? -naive : naive;
    fits = fits && naive >= INT64_MIN && naive <= INT64_MAX;
    KoInt value = 7;
    KoInt consumed = 7;
    const Exact exact( Data( text ), Size( text ) );
    CHECK( ( koFormatTryDecodeIntChars( exact.Chars(), exact.Length(), base, &value, &consumed ) != KO_FALSE ) ==
           fits );
    CHECK( value == ( fits ? static_cast<KoInt>( naive ) : 7 ) && consumed == ( fits ? static_cast<KoInt>( at ) : 7 ) );
    KoInt value2 = 7;
    KoInt consumed2 = 7;
    CHECK( ( koStringScanInt( Wide( text ).Get(), 0, -1, base, &value2, &consumed2 ) != KO_FALSE ) == fits );
    CHECK( value2 == value && consumed2 == consumed );
    if ( fits ) {
        const Exact printed( Own( koFormatEncodeInt( value, base, 0, 0 ) ).Get() );
        CHECK( koFormatTryDecodeIntChars( printed.Chars(), printed.Length(), base, &value2, &consumed2 ) );
        CHECK( value2 == value && consumed2 == printed.Length() );
        char expected[128];
        std::snprintf( expected, sizeof expected, "%lld%% %04lld", static_cast<long long>( value ),
                       static_cast<long long>( value < 0 ? -( value + 1 ) : value ) );
        CHECK_SAME( Take( koStringCreateFromFormatCstr( "%i%% %04i", -1, value, value < 0 ? -( value + 1 ) : value ) ),
                    expected );
    }
    const auto s = Wide( text );
    CHECK_SAME( Take( koStringCreateFromFormatCstr( "<%s|%~s>", -1, s.Get(), koStringRetain( s.Get() ) ) ),
                "<" + Text( s.Get() ) + "|" + Text( s.Get() ) + ">" );
}

void CheckCase( const std::u32string &text )
{
    for ( const auto change : { koStringToLower, koStringToUpper } ) {
        auto s = Wide( text );
        const auto shared = KoRef<KoString>::Share( s.Get() );
        change( s.Address() );
        CHECK( koStringLength( s.Get() ) == Size( text ) );
        CHECK( Chars( shared.Get() ) == text );
        for ( size_t i = 0; i < text.size(); ++i ) {
            const char32_t c = text[i];
            const char32_t first = change == koStringToLower ? 'A' : 'a';
            if ( c < 0x80 ) {
                const char32_t naive = c >= first && c < first + 26 ? c ^ 0x20 : c;
                CHECK( static_cast<char32_t>( koStringCharAt( s.Get(), static_cast<KoInt>( i ) ) ) == naive );
            }
        }
        auto again = KoRef<KoString>::Share( s.Get() );
        change( again.Address() );
        CHECK( koStringEquals( again.Get(), s.Get() ) );
    }
}

// Handles that share objects, each with a model of what it must hold.
template <class H, class M>
struct Shared {
    KoRef<H> handle;
    M model;
};

template <class H, class M, class ChangeOne, class CheckOne>
void RunShared( KoRef<H> first, M model, Choices choices, ChangeOne change, CheckOne check )
{
    std::vector<Shared<H, M>> all;
    all.push_back( { std::move( first ), std::move( model ) } );
    while ( choices.Left() ) {
        const size_t acted = choices.Below( all.size() );
        if ( choices.Below( 8 ) == 0 && all.size() < 5 ) {
            all.push_back( { KoRef<H>::Share( all[acted].handle.Get() ), all[acted].model } );
        } else {
            const size_t other = choices.Below( all.size() );
            const auto kept = KoRef<H>::Share( all[other].handle.Get() );
            const M keptModel = all[other].model;
            change( all[acted].handle.Address(), all[acted].model, kept.Get(), keptModel, choices );
        }
        for ( const auto &each : all ) {
            check( each.handle.Get(), each.model );
        }
    }
}

void RunStrings( const std::u32string &text, const Choices &choices )
{
    RunShared(
        Wide( text ), text, choices,
        []( KoString *s, std::u32string &model, KoString other, const std::u32string &otherModel, Choices &c ) {
            const size_t begin = c.Below( model.size() + 1 );
            const size_t count = c.Below( model.size() - begin + 1 );
            const auto offset = static_cast<KoInt>( begin );
            const auto length = static_cast<KoInt>( count );
            switch ( model.size() > 2000 ? 5 : c.Below( 8 ) ) {
            case 0:
                koStringAppend( s, other );
                model += otherModel;
                break;
            case 1:
                koStringAppendChar( s, 'x' );
                model += U'x';
                break;
            case 2: { // a part of itself
                const std::u32string part = model.substr( begin, count );
                koStringAppendChars( s, koStringBacking( *s ) + offset, length );
                model += part;
                break;
            }
            case 3:
                if ( begin < model.size() ) {
                    koStringSetCharAt( s, offset, 0x1F600 );
                    model[begin] = 0x1F600;
                }
                break;
            case 4:
                koStringDelimitedAppendCharDelimiter( s, other, ',' );
                model = model.empty() ? otherModel : model + U',' + otherModel;
                break;
            case 5:
            case 6: {
                const KoString part = koStringCreateFromInner( *s, offset, length );
                koStringRelease( std::exchange( *s, part ) );
                model = model.substr( begin, count );
                break;
            }
            default:
                koStringAppendFormatCstr( s, "%s;%i", -1, other, offset );
                model += otherModel + U';';
                for ( const char digit : std::to_string( offset ) ) {
                    model += static_cast<char32_t>( digit );
                }
            }
        },
        []( KoString s, const std::u32string &model ) { CHECK( Chars( s ) == model ); } );
}

void RunBuffers( std::string_view bytes, const Choices &choices )
{
    RunShared(
        Buf( bytes ), std::string( bytes ), choices,
        []( KoBuffer *b, std::string &model, KoBuffer other, const std::string &otherModel, Choices &c ) {
            const std::string &of = c.Below( 2 ) ? otherModel : model;
            const size_t begin = c.Below( of.size() + 1 );
            const size_t count = c.Below( of.size() - begin + 1 );
            const auto offset = static_cast<KoInt>( begin );
            const auto length = static_cast<KoInt>( count );
            const KoBuffer source = &of == &model ? *b : other;
            const auto kept = KoRef<KoBuffer>::Share( source );
            const std::string text = of;
            switch ( model.size() > 4000 ? 6 : c.Below( 9 ) ) {
            case 0:
                koBufferAppend( b, source );
                model += text;
                break;
            case 1:
                koBufferAppendLeading( b, source, offset );
                model += text.substr( 0, begin );
                break;
            case 2:
                koBufferAppendTrailing( b, source, offset );
                model += text.substr( text.size() - begin );
                break;
            case 3:
                koBufferAppendInner( b, source, offset, length );
                model += text.substr( begin, count );
                break;
            case 4:
                koBufferAppendOuter( b, source, offset, length );
                model += text.substr( 0, begin ) + text.substr( begin + count );
                break;
            case 5:
                koBufferAppendByte( b, 'x' );
                model += 'x';
                break;
            case 6:
                koBufferDelLeading( b, std::min( offset, static_cast<KoInt>( model.size() ) ) );
                model.erase( 0, begin );
                break;
            case 7:
                if ( begin + count <= model.size() ) {
                    koBufferDelOuter( b, offset, length );
                    model = model.substr( begin, count );
                }
                break;
            default:
                if ( begin + count <= model.size() ) {
                    CHECK_SAME( TakeBytes( koBufferRead( *b, offset, length ) ), model.substr( begin, count ) );
                }
            }
        },
        []( KoBuffer b, const std::string &model ) { CHECK_SAME( TakeBytes( koBufferRetain( b ) ), model ); } );
}

using Words = std::vector<std::string>;

void RunVectors( const Words &words, const Choices &choices )
{
    RunShared(
        Own( koVectorCreate() ), Words(), choices,
        [&]( KoVector *v, Words &model, KoVector, const Words &, Choices &c ) {
            const std::string &word = words[c.Below( words.size() )];
            const auto s = Str( word );
            const size_t place = c.Below( model.size() + 1 );
            const auto at = model.begin() + static_cast<std::ptrdiff_t>( place );
            switch ( c.Below( 8 ) ) {
            case 0:
            case 1:
                koVectorAppendString( v, s.Get() );
                model.push_back( Text( s.Get() ) );
                break;
            case 2:
                koVectorPrependString( v, s.Get() );
                model.insert( model.begin(), Text( s.Get() ) );
                break;
            case 3:
                koVectorInsertString( v, static_cast<KoInt>( place ), s.Get() );
                model.insert( at, Text( s.Get() ) );
                break;
            case 4:
                if ( at != model.end() ) {
                    koVectorSetStringAt( v, static_cast<KoInt>( place ), s.Get() );
                    *at = Text( s.Get() );
                }
                break;
            case 5:
                if ( at != model.end() ) {
                    koVectorDelAt( v, static_cast<KoInt>( place ) );
                    model.erase( at );
                }
                break;
            case 6:
                koVectorDelLeading( v, static_cast<KoInt>( place ) );
                model.erase( model.begin(), at );
                break;
            default:
                if ( c.Below( 4 ) == 0 ) {
                    koVectorClear( v );
                    model.clear();
                }
            }
        },
        []( KoVector v, const Words &model ) {
            std::string text;
            for ( const std::string &word : model ) {
                text += ( text.empty() ? "[" : ", " ) + word;
            }
            CHECK( koVectorLength( v ) == static_cast<KoInt>( model.size() ) );
            CHECK( koVectorContainsOnly( v, koStringSort() ) );
            CHECK_SAME( Take( koVectorToString( v ) ), ( text.empty() ? "[" : text ) + "]" );
        } );
}

using Pairs = std::vector<std::pair<std::string, std::string>>;

void RunDicts( const Words &words, const Choices &choices )
{
    RunShared(
        Own( koDictCreate() ), Pairs(), choices,
        [&]( KoDict *d, Pairs &model, KoDict, const Pairs &, Choices &c ) {
            const auto key = Str( words[c.Below( words.size() )] );
            const auto value = Str( words[c.Below( words.size() )] );
            const std::string name = Text( key.Get() );
            const auto place = std::find_if( model.begin(), model.end(), [&]( auto &p ) { return p.first == name; } );
            CHECK( ( koDictHasStringKey( *d, key.Get() ) != KO_FALSE ) == ( place != model.end() ) );
            const size_t operation = c.Below( 16 );
            if ( operation < 10 ) {
                koDictSetStringKey( d, key.Get(), koStringObj( value.Get() ) );
                if ( place != model.end() ) {
                    place->second = Text( value.Get() );
                } else {
                    model.push_back( { name, Text( value.Get() ) } );
                }
            } else if ( operation < 15 ) {
                koDictDelStringKey( d, key.Get() );
                if ( place != model.end() ) {
                    model.erase( place );
                }
            } else {
                koDictClear( d );
                model.clear();
            }
        },
        []( KoDict d, const Pairs &model ) {
            CHECK( koDictLength( d ) == static_cast<KoInt>( model.size() ) );
            const auto keys = Own( koDictKeysVector( d ) );
            const auto values = Own( koDictValuesVector( d ) );
            for ( size_t i = 0; i < model.size(); ++i ) {
                const auto index = static_cast<KoInt>( i );
                const auto key = Own( koDictKeyAt( d, index ) );
                CHECK_SAME( Text( key.Get() ), model[i].first );
                CHECK_SAME( Text( StringAt( keys.Get(), index ).Get() ), model[i].first );
                CHECK_SAME( Text( StringAt( values.Get(), index ).Get() ), model[i].second );
                CHECK_SAME( Take( koStringFrom( koDictValueAt( d, index ) ) ), model[i].second );
                CHECK_SAME( Take( koStringFrom( koDictStringKey( d, key.Get() ) ) ), model[i].second );
            }
        } );
}

} // namespace

void RuntimeTarget( std::string_view input )
{
    const std::vector<std::string_view> parts = Lines( input, 2 );
    const Choices choices( parts[0].substr( 0, 256 ) );
    const std::string_view bytes = parts.size() > 1 ? parts[1] : "";
    const std::u32string text = CheckUtf8( bytes );
    CheckSearch( text, choices );
    CheckNumbers( text, choices );
    CheckCase( text );
    RunStrings( text.substr( 0, 64 ), choices );
    RunBuffers( bytes.substr( 0, 64 ), choices );
    Words words( { "" } );
    for ( const std::string_view word : Lines( bytes, 40 ) ) {
        words.emplace_back( word );
    }
    for ( char c = 'a'; c <= 'z'; ++c ) {
        words.emplace_back( 1, c );
    }
    RunVectors( words, choices );
    RunDicts( words, choices );
}

} // namespace fuzz
