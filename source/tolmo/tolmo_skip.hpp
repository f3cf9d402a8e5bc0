/*
 * The grammar of SIP, once: a skip function for every element, without the preconditions of its exported form.
 *
 * A skip function says how many characters at the start of a text form its element, 0 when it is not there. It stops
 * where the element stops, never reads behind `length`, and builds nothing. Alternatives are ordered: the first that is
 * there is taken, without going back. Whitespace is blank and tab; folded lines have been joined before.
 */
#ifndef TOLMO_SKIP_HPP
#define TOLMO_SKIP_HPP

#include <tolmo/tolmo_char.hpp>
#include <tolmo/tolmo_walk.hpp>

#include <identifier/ulm.h>

namespace tolmo::skip {

/** The longest run of characters of some classes. */
template <uint32_t classes>
inline KoInt Run( const KoChar *chs, KoInt length )
{
    KoInt taken = 0;
    while ( taken < length && Is( chs[taken], classes ) ) {
        ++taken;
    }
    return taken;
}

// *( SP / HTAB )
inline KoInt Sws( const KoChar *chs, KoInt length )
{
    return Run<charLws>( chs, length );
}

inline KoInt Char( const KoChar *chs, KoInt length, KoChar ch )
{
    return length > 0 && chs[0] == ch;
}

// SWS ch
inline KoInt SwsChar( const KoChar *chs, KoInt length, KoChar ch )
{
    Walk w( chs, length );
    return w.Taken( w.Maybe( Sws ) && w.Need( Char, ch ) );
}

// SWS ch SWS
inline KoInt SwsCharSws( const KoChar *chs, KoInt length, KoChar ch )
{
    Walk w( chs, length );
    return w.Taken( w.Maybe( Sws ) && w.Need( Char, ch ) && w.Maybe( Sws ) );
}

} // namespace tolmo::skip

#endif
