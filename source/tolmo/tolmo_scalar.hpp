/* What the scalars of the grammar share: elements that have no object type, and are plain strings. */
#ifndef TOLMO_SCALAR_HPP
#define TOLMO_SCALAR_HPP

#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_skip.hpp>

namespace tolmo {

/** True when a string is not empty and a skip function takes all of it. */
template <class Skip>
bool IsWhole( KoString s, Skip skip )
{
    return s->length > 0 && skip( ko::Chars( s ), s->length ) == s->length;
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

} // namespace tolmo

#endif
