/* The characters of a piece of a decoded head: its bytes are known to be good UTF-8. */
#ifndef TOLMO_WIDE_HPP
#define TOLMO_WIDE_HPP

#include <runtime/ko_utf8.hpp>
#include <tolmo/tolmo_walk.hpp>

namespace tolmo {

/** Widens good UTF-8. `to` has room for as many characters as there are bytes. Returns how many there are. */
inline KoInt Widen( KoChar *to, const uint8_t *bytes, KoInt length )
{
    KoInt from = ko::WidenAscii( to, bytes, length );
    KoInt count = from;
    while ( from < length ) {
        from += ko::DecodeUtf8( bytes + from, length - from, to + count );
        ++count;
    }
    return count;
}

/** What is read at a time: so many bytes behind a piece that becomes a Wide must be readable, whatever they are. */
inline constexpr KoInt wideStep = 16;

/** Characters for a while, of a piece of a decoded head: short ones need no block. */
class Wide {
public:
    Wide( const uint8_t *bytes, KoInt length ) : text( here, length )
    {
        if ( length > mostHere || !WidenBlocks( bytes, length ) ) {
            WidenAny( bytes, length );
        }
    }
    Wide( const Wide & ) = delete;
    Wide &operator=( const Wide & ) = delete;
    ~Wide()
    {
        if ( block ) {
            koMemFree( block );
        }
    }

    [[nodiscard]] tolmo::Text Text() const { return text; }

private:
    /** Widens whole blocks, so that the last one needs no steps of its own, as long as they are ASCII. */
    bool WidenBlocks( [[maybe_unused]] const uint8_t *bytes, [[maybe_unused]] KoInt length )
    {
#if defined( __SSE4_1__ )
        KoInt i = 0;
        while ( i < length && ko::WidenSixteen( here + i, bytes + i ) ) {
            i += wideStep;
        }
        return i >= length;
#else
        return false;
#endif
    }

    [[gnu::noinline]] void WidenAny( const uint8_t *bytes, KoInt length )
    {
        KoChar *to = here;
        if ( length > mostHere ) {
            to = block = static_cast<KoChar *>( koMemAllocN( length, sizeof( KoChar ) ) );
        }
        text = { to, Widen( to, bytes, length ) };
    }

    static constexpr KoInt mostHere = 256;

    KoChar here[mostHere + wideStep];
    KoChar *block = nullptr;
    tolmo::Text text;
};

/** A new string of a piece of a decoded head. */
inline KoRef<KoString> WideString( const uint8_t *bytes, KoInt length )
{
    if ( ko::AsciiLength( bytes, length ) < length ) {
        return Wide( bytes, length ).Text().Copy();
    }
    auto string = KoRef<KoString>::Adopt( ko___StringCreateOfLength( length ) );
    ko::WidenAscii( ko::Chars( string.Get() ), bytes, length );
    return string;
}

} // namespace tolmo

#endif
