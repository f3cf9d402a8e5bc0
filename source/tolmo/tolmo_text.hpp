/* Free text of Organization and Subject: words and whitespace (RFC 3261 section 25.1, TEXT-UTF8-TRIM). */
#ifndef TOLMO_TEXT_HPP
#define TOLMO_TEXT_HPP

#include <tolmo/tolmo_scalar.hpp>

namespace tolmo {

/** True when a string is the element of a skip function, or nothing, with any whitespace around it. */
template <class Skip>
bool IsPaddedText( KoString s, Skip skip )
{
    Walk w{ Text( s ) };
    return w.Maybe( skip::Sws ) && w.Maybe( skip ) && w.Maybe( skip::Sws ) && w.AtEnd();
}

/** A new string of the words, with one blank between them; null when there is a control character. */
inline KoString TryNormalizeText( KoString s )
{
    const KoChar *const chs = ko::Chars( s );
    KoRef<KoString> normal = Adopt( ko___StringCreateOfLength( s->length ) );
    KoChar *const begin = ko::Chars( normal.Get() );
    KoChar *to = begin;
    bool blank = false; // stands between the last word and the next one
    for ( KoInt i = 0; i < s->length; ++i ) {
        if ( Is( chs[i], charLws ) ) {
            blank = to > begin;
        } else if ( chs[i] < 0x21 || chs[i] == 0x7F ) {
            return nullptr;
        } else {
            if ( blank ) {
                *to++ = ' ';
                blank = false;
            }
            *to++ = chs[i];
        }
    }
    normal.Get()->length = to - begin;
    return normal.Leak();
}

} // namespace tolmo

#endif
