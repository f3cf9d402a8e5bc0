/* What the code of this system uses of the runtime's objects without a call. Not installed. */
#ifndef KO_INNER_HPP
#define KO_INNER_HPP

#include <runtime/ko_buffer.h>
#include <runtime/ko_module.h>
#include <runtime/ko_ref.h>
#include <runtime/ko_string.h>

#include <cstring>

namespace ko {

/** The module that the sorts of the runtime belong to: see ko_module.cpp. Inside libko only. */
extern struct ko___ModuleObject runtimeModule;

/** The characters of a string that is not null. */
inline KoChar *Chars( KoString s )
{
    return reinterpret_cast<KoChar *>( s + 1 );
}

/** The bytes of a buffer that is not null. */
inline uint8_t *Bytes( KoBuffer b )
{
    return reinterpret_cast<uint8_t *>( b + 1 ) + b->offset;
}

/** Copies characters that do not overlap. `from` may be null when there are none. */
inline void CopyChars( KoChar *to, const KoChar *from, KoInt length )
{
    if ( length > 0 ) {
        memcpy( to, from, static_cast<size_t>( length ) * sizeof( KoChar ) );
    }
}

/** True when two arrays of one length hold the same characters. */
inline bool SameChars( const KoChar *a, const KoChar *b, KoInt length )
{
    return length <= 0 || memcmp( a, b, static_cast<size_t>( length ) * sizeof( KoChar ) ) == 0;
}

} // namespace ko

/** The standard casts, references and sort of a runtime type. */
#define KO_TYPE_OPERATIONS( Type, prefix, sortRecord )                                                                 \
    KoSort prefix##Sort( void )                                                                                        \
    {                                                                                                                  \
        return &( sortRecord );                                                                                        \
    }                                                                                                                  \
    Type prefix##From( KoObj obj )                                                                                     \
    {                                                                                                                  \
        KO_REQUIRE_AS( !obj || obj->sort == &( sortRecord ), "!obj || koObjSort( obj ) == " #prefix "Sort()" );        \
        return reinterpret_cast<Type>( obj );                                                                          \
    }                                                                                                                  \
    KoObj prefix##Obj( Type object )                                                                                   \
    {                                                                                                                  \
        return reinterpret_cast<KoObj>( object );                                                                      \
    }                                                                                                                  \
    Type prefix##Retain( Type object )                                                                                 \
    {                                                                                                                  \
        KO_REQUIRE( object );                                                                                          \
        return reinterpret_cast<Type>( ko___Retain( reinterpret_cast<KoObj>( object ) ) );                             \
    }                                                                                                                  \
    void prefix##Release( Type object )                                                                                \
    {                                                                                                                  \
        KO_REQUIRE( object );                                                                                          \
        ko___Release( reinterpret_cast<KoObj>( object ) );                                                             \
    }

#endif
