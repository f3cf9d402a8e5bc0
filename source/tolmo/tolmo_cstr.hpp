/* The temporary strings of the Cstr and Wcstr forms, and strings out of vectors. */
#ifndef TOLMO_CSTR_HPP
#define TOLMO_CSTR_HPP

#include <runtime/ko_ref.h>
#include <runtime/ko_vector.hpp>

#include <utility>

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

/** The same, lent: valid as long as the vector stays as it is. */
inline KoString LentStringAt( KoVector strings, KoInt index )
{
    if ( index < 0 || index >= strings->length ) {
        koVectorObjAt( strings, index ); // ends the process
    }
    return reinterpret_cast<KoString>( ko::At( strings, index ) );
}

/** Puts a fresh string into a vector. */
inline void InsertString( KoVector &strings, KoInt index, KoRef<KoString> fresh )
{
    ko___VectorInsertTaken( &strings, index, koStringObj( fresh.Leak() ) );
}

/** Puts a fresh string behind the others. */
inline void AppendString( KoVector &strings, KoRef<KoString> fresh )
{
    InsertString( strings, strings->length, std::move( fresh ) );
}

} // namespace tolmo

#endif
