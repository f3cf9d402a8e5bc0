/* Texts of words with whitespace between them, where any whitespace means one blank. */
#ifndef TOLMO_TEXT_HPP
#define TOLMO_TEXT_HPP

#include <tolmo/tolmo_scalar.hpp>

namespace tolmo {

/** A new string of the words of a text, with one blank between them; null when there is anything else. */
template <class Skip>
KoString TryJoinWords( Text text, Skip word )
{
    KoRef<KoString> joined = Adopt( ko___StringCreateOfLength( text.length ) );
    KoChar *const begin = ko::Chars( joined.Get() );
    KoChar *to = begin;
    Walk w( text );
    while ( !w.AtEnd() ) {
        if ( !w.Need( word ) ) {
            return nullptr;
        }
        if ( to > begin ) {
            *to++ = ' ';
        }
        ko::CopyChars( to, w.Last().chs, w.Last().length );
        to += w.Last().length;
        w.Maybe( skip::Sws );
    }
    joined.Get()->length = to - begin;
    return joined.Leak();
}

/** True for the free text of Organization and Subject: nothing or words, with any whitespace around them. */
inline bool IsFreeText( KoString s )
{
    Walk w{ Text( s ) };
    return w.Maybe( skip::Sws ) && w.Maybe( skip::Subject ) && w.Maybe( skip::Sws ) && w.AtEnd();
}

/** The normal form of such a text; null when the string is none. */
inline KoString TryNormalizeFreeText( KoString s )
{
    Walk w{ Text( s ) };
    w.Maybe( skip::Sws );
    return TryJoinWords( w.Rest(), skip::TextWord );
}

} // namespace tolmo

#endif
