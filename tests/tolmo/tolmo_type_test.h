/* What tests of types share: decoders on exact blocks, names of raw headers, the standard operations. */
#ifndef TOLMO_TYPE_TEST_H
#define TOLMO_TYPE_TEST_H

#include "tolmo_test.h"

namespace test {

/** The name of a raw header. */
inline std::string NameOf( TolmoMessageHeader header )
{
    return Take( tolmoMessageHeaderName( header ) );
}

/** What a decoder makes of a text, in a block of exactly its size. */
template <class Handle>
KoRef<Handle> DecodeWith( Handle ( *tryDecode )( const KoChar *, KoInt ), std::string_view text )
{
    const Exact chs( text );
    return KoRef<Handle>::Adopt( tryDecode( chs.Chars(), chs.Length() ) );
}

/** Gives every beginning of a text to a decoder, in blocks of exactly their sizes. */
template <class Handle>
void DecodeEveryPrefix( Handle ( *tryDecode )( const KoChar *, KoInt ), std::string_view text )
{
    const auto s = Str( text );
    for ( KoInt length = 0; length <= koStringLength( s.Get() ); ++length ) {
        const Exact chs( s.Get(), length );
        static_cast<void>( KoRef<Handle>::Adopt( tryDecode( chs.Chars(), chs.Length() ) ) );
    }
}

/** A list of parameters from its text. */
inline KoRef<TolmoGenericParams> ParamsOf( std::string_view text )
{
    return DecodeWith( tolmo___GenericParamsTryDecode, text );
}

/** The functions that all types have, as members of a structure. */
#define TEST_STANDARD_FUNCTIONS( Type )                                                                                \
    using Handle = Tolmo##Type;                                                                                        \
    static constexpr auto Sort = tolmo##Type##Sort;                                                                    \
    static constexpr auto Obj = tolmo##Type##Obj;                                                                      \
    static constexpr auto From = tolmo##Type##From;                                                                    \
    static constexpr auto Retain = tolmo##Type##Retain;                                                                \
    static constexpr auto Release = tolmo##Type##Release;                                                              \
    static constexpr auto Compare = tolmo##Type##Compare;                                                              \
    static constexpr auto Equals = tolmo##Type##Equals;                                                                \
    static constexpr auto ToString = tolmo##Type##ToString;                                                            \
    static constexpr auto CreateFrom = tolmo##Type##CreateFrom;

/**
 * The standard operations on an object that has a count of 1. `name`, `nameA` and `nameB` stand in the abort lines of
 * the sort's free and compare functions, in the file `path`.
 */
template <class Type>
void ExpectStandardOperations( typename Type::Handle object, const std::string &sort, const std::string &path,
                               const std::string &name, const std::string &nameA, const std::string &nameB )
{
    const auto string = Str( "another sort" );
    const KoSort record = Type::Sort();
    EXPECT_EQ( record->name, sort );
    EXPECT_EQ( koObjSort( Type::Obj( object ) ), record );

    EXPECT_EQ( Type::From( nullptr ), nullptr );
    EXPECT_EQ( Type::From( Type::Obj( object ) ), object );
    EXPECT_ABORT_MESSAGE( Type::From( koStringObj( string.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_" + sort );

    EXPECT_EQ( Type::Retain( object ), object );
    EXPECT_EQ( Count( object ), 2 );
    Type::Release( object );
    EXPECT_EQ( Count( object ), 1 );
    EXPECT_ABORT_MESSAGE( Type::Retain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( Type::Release( nullptr ), "stdfunc release", path, "obj" );

    const auto copy = KoRef<typename Type::Handle>::Adopt( Type::CreateFrom( object ) );
    EXPECT_NE( copy.Get(), object );
    EXPECT_EQ( Count( copy.Get() ), 1 );
    EXPECT_EQ( Type::Compare( copy.Get(), object ), 0 );
    EXPECT_TRUE( Type::Equals( copy.Get(), object ) );
    EXPECT_ABORT( Type::CreateFrom( nullptr ), path, "source" );

    EXPECT_TRUE( Type::Equals( nullptr, nullptr ) );
    EXPECT_FALSE( Type::Equals( object, nullptr ) );
    EXPECT_FALSE( Type::Equals( nullptr, object ) );
    EXPECT_ABORT_MESSAGE( Type::Compare( nullptr, object ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( Type::Compare( object, nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT( record->compare( nullptr, Type::Obj( object ) ), path, nameA );
    EXPECT_ABORT( record->compare( Type::Obj( object ), nullptr ), path, nameB );
    EXPECT_ABORT_MESSAGE( record->compare( Type::Obj( object ), koStringObj( string.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_" + sort );

    EXPECT_ABORT_MESSAGE( Type::ToString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT( record->free( nullptr ), path, name );
    EXPECT_ABORT_MESSAGE( record->free( koStringObj( string.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_" + sort );
}

} // namespace test

#endif
