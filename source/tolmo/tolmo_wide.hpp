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

/** Characters for a while: short ones need no block. */
class Wide {
public:
    Wide( const uint8_t *bytes, KoInt length )
    {
        KoChar *chs = here;
        if ( length > static_cast<KoInt>( std::size( here ) ) ) {
            chs = block = static_cast<KoChar *>( koMemAllocN( length, sizeof( KoChar ) ) );
        }
        text = { chs, Widen( chs, bytes, length ) };
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
    KoChar here[256];
    KoChar *block = nullptr;
    tolmo::Text text;
};

/** A new string of good UTF-8. */
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
