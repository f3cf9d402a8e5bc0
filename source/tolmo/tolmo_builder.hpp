/* A text under construction: what encoders write to. */
#ifndef TOLMO_BUILDER_HPP
#define TOLMO_BUILDER_HPP

#include <tolmo/tolmo_walk.hpp>

#include <string_view>

namespace tolmo {

/** Collects characters, at first in place, and makes one string of them at the end. */
class Builder {
public:
    Builder() = default;
    Builder( const Builder & ) = delete;
    Builder &operator=( const Builder & ) = delete;
    ~Builder()
    {
        if ( block ) {
            koMemFree( block );
        }
    }

    void Add( KoChar ch ) { *Room( 1 ) = ch; }
    /** ASCII text. */
    void Add( std::string_view ascii )
    {
        KoChar *to = Room( static_cast<KoInt>( ascii.size() ) );
        for ( const char ch : ascii ) {
            *to++ = ch;
        }
    }
    void Add( Text text ) { ko::CopyChars( Room( text.length ), text.chs, text.length ); }
    void Add( KoString s ) { Add( Text( s ) ); }
    /** ASCII text in capitals. */
    void AddRaised( KoString s )
    {
        KoChar *const to = Room( s->length );
        for ( KoInt i = 0; i < s->length; ++i ) {
            const KoChar ch = ko::Chars( s )[i];
            to[i] = ch >= 'a' && ch <= 'z' ? ch - 0x20 : ch;
        }
    }
    /** A number that is not negative, in decimal. */
    void AddNumber( KoInt number )
    {
        KoChar digits[19];
        KoInt first = std::size( digits );
        do {
            digits[--first] = '0' + static_cast<KoChar>( number % 10 );
            number /= 10;
        } while ( number > 0 );
        Add( Text( digits + first, static_cast<KoInt>( std::size( digits ) ) - first ) );
    }
    /** A fresh string: `text.Take( tolmo___HostEncode( host ) )`. */
    void Take( KoString s ) { Add( KoRef<KoString>::Adopt( s ).Get() ); }

    /** A new string of what has been added. */
    [[nodiscard]] KoString Finish() const { return koStringCreateFromCharsCopy( chs, length ); }

private:
    /** Room for more characters, which count as added. */
    KoChar *Room( KoInt more )
    {
        if ( capacity - length < more ) {
            Grow( more );
        }
        length += more;
        return chs + length - more;
    }

    [[gnu::noinline]] void Grow( KoInt more )
    {
        capacity = 2 * capacity + more;
        auto *const grown = static_cast<KoChar *>( koMemAllocN( capacity, sizeof( KoChar ) ) );
        ko::CopyChars( grown, chs, length );
        koMemFree( block );
        chs = block = grown;
    }

    static constexpr KoInt roomHere = 256;

    KoChar here[roomHere];
    KoChar *block = nullptr;
    KoChar *chs = here;
    KoInt length = 0;
    KoInt capacity = roomHere;
};

} // namespace tolmo

#endif
