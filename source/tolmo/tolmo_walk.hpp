/* A walk over a text: the cursor that skip functions and decoders are written with. */
#ifndef TOLMO_WALK_HPP
#define TOLMO_WALK_HPP

#include <runtime/ko_inner.hpp>
#include <tolmo/tolmo_char.hpp>

namespace tolmo {

/** Characters that somebody else owns. */
struct Text {
    const KoChar *chs = nullptr;
    KoInt length = 0;

    Text() = default;
    Text( const KoChar *first, KoInt count ) : chs( first ), length( count ) {}
    explicit Text( KoString s ) : chs( ko::Chars( s ) ), length( s->length ) {}

    /** True when the characters are exactly those of an array. */
    template <size_t count>
    [[nodiscard]] bool Is( const KoChar ( &other )[count] ) const
    {
        return length == static_cast<KoInt>( count ) && ko::SameChars( chs, other, length );
    }

    [[nodiscard]] KoRef<KoString> Copy() const
    {
        auto copy = KoRef<KoString>::Adopt( ko___StringCreateOfLength( length ) );
        ko::CopyChars( ko::Chars( copy.Get() ), chs, length );
        return copy;
    }

    /** A copy in small letters, of ASCII text. */
    [[nodiscard]] KoRef<KoString> CopyLowered() const
    {
        auto copy = KoRef<KoString>::Adopt( ko___StringCreateOfLength( length ) );
        for ( KoInt i = 0; i < length; ++i ) {
            ko::Chars( copy.Get() )[i] = AsciiLower( chs[i] );
        }
        return copy;
    }
};

/**
 * A place in a text, and its bounds. A rule of the grammar becomes one expression, an element a line:
 *
 *     Walk w( chs, length );
 *     return w.Taken( w.Need( skip::Token ) && w.Need( skip::Slash ) && w.Need( skip::Token ) );
 *
 * An element is a skip function: it gets the characters from the present place on, and says how many belong to it. What
 * is not there takes nothing, so that alternatives are `w.Need( A ) || w.Need( B )`, and an option that must be finished
 * once it has begun is `( !w.Need( Colon ) || w.Need( Port ) )`.
 */
class Walk {
public:
    Walk( const KoChar *chs, KoInt length ) : text( chs, length ) {}
    explicit Walk( Text whole ) : text( whole ) {}

    /**
     * Takes an element that has to be there. `arguments` go to the skip function behind the text. Always inline: so the
     * skip function is known to the compiler, and can be inline as well.
     */
    template <class Skip, class... Arguments>
    [[gnu::always_inline]] bool Need( Skip skip, Arguments... arguments )
    {
        const KoInt taken = skip( text.chs + at, text.length - at, arguments... );
        begin = at;
        at += taken;
        return taken > 0;
    }

    /** Takes an element if it is there. Always true, so that it can stand in a chain. */
    template <class Skip, class... Arguments>
    bool Maybe( Skip skip, Arguments... arguments )
    {
        Need( skip, arguments... );
        return true;
    }

    /** Takes an element as often as it is there. */
    template <class Skip>
    bool Many( Skip skip )
    {
        while ( Need( skip ) ) {
        }
        return true;
    }

    /** The text of the element that was tried last; empty when it was not there. */
    [[nodiscard]] Text Last() const { return { text.chs + begin, at - begin }; }
    /** What is left. */
    [[nodiscard]] Text Rest() const { return { text.chs + at, text.length - at }; }
    [[nodiscard]] bool AtEnd() const { return at == text.length; }
    /** The present place, to come back to. */
    [[nodiscard]] KoInt Place() const { return at; }
    /** Takes so many characters, which somebody else has looked at. */
    void Take( KoInt count )
    {
        begin = at;
        at += count;
    }
    /** Goes back to a place. */
    void Return( KoInt place ) { at = begin = place; }
    /** The result of a skip function: what was taken, or 0 unless `good`. */
    [[nodiscard]] KoInt Taken( bool good = true ) const { return good ? at : 0; }

private:
    Text text;
    KoInt at = 0;
    KoInt begin = 0;
};

} // namespace tolmo

#endif
