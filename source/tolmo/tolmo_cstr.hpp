/* The temporary strings of the Cstr and Wcstr forms, and strings out of vectors. */
#ifndef TOLMO_CSTR_HPP
#define TOLMO_CSTR_HPP

#include <runtime/ko_ref.h>
#include <runtime/ko_vector.h>

namespace tolmo {

inline KoRef<KoString> FromCstr( const char *chs, KoInt length )
{
    return KoRef<KoString>::Adopt( koStringCreateFromCstr( chs, length ) );
}

inline KoRef<KoString> FromWcstr( const uint16_t *chs, KoInt length )
{
    return KoRef<KoString>::Adopt( koStringCreateFromWcstr( chs, length ) );
}

/** A string of a vector that holds nothing but strings. The runtime tests the index. */
inline KoRef<KoString> StringAt( KoVector strings, KoInt index )
{
    return KoRef<KoString>::Adopt( reinterpret_cast<KoString>( koVectorObjAt( strings, index ) ) );
}

} // namespace tolmo

#endif
