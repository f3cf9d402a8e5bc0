/* What the scalars of the grammar share: elements that have no object type, and are plain strings. */
#ifndef TOLMO_SCALAR_HPP
#define TOLMO_SCALAR_HPP

#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_skip.hpp>

namespace tolmo {

/** True when a text is not empty and a skip function takes all of it. */
template <class Skip>
bool IsWhole( Text text, Skip skip )
{
    return text.length > 0 && skip( text.chs, text.length ) == text.length;
}

template <class Skip>
bool IsWhole( KoString s, Skip skip )
{
    return IsWhole( Text( s ), skip );
}

/** A new reference to the string in small letters; the string itself stays as it is. */
inline KoString Lowered( KoString s )
{
    KoRef<KoString> lowered = Share( s );
    koStringToLower( lowered.Address() );
    return lowered.Leak();
}

/** The same in capitals. */
inline KoString Raised( KoString s )
{
    KoRef<KoString> raised = Share( s );
    koStringToUpper( raised.Address() );
    return raised.Leak();
}

/** The number that digits tell; -1 when a text is no number, or one below 0 or above the largest one. */
inline KoInt TryDecodeNumber( const KoChar *chs, KoInt length, KoInt largest )
{
    KoInt value = 0;
    KoInt consumed = 0;
    const bool whole = koFormatTryDecodeIntChars( chs, length, 10, &value, &consumed ) && consumed == length;
    return whole && value >= 0 && value <= largest ? value : -1;
}

/** Takes a run of digits whose number a validator accepts. */
inline bool TakeNumber( Walk &w, KoBool ( *isGood )( KoInt ), KoInt &number )
{
    if ( !w.Need( skip::Digits ) ) {
        return false;
    }
    number = TryDecodeNumber( w.Last().chs, w.Last().length, INT64_MAX );
    return isGood( number );
}

} // namespace tolmo

#endif
