/* Single-value headers with fields: what the tests of values ask is asked of them, too, over their one line. */
#ifndef TOLMO_HEADER_FIELDS_TEST_H
#define TOLMO_HEADER_FIELDS_TEST_H

#include "tolmo_header_test.h"
#include "tolmo_value_test.h"

namespace test {

/** The functions of a header as those of a value whose text is the line. */
#define TEST_HEADER_AS_VALUE( Type, unit, headerName )                                                                 \
    using Handle = TolmoHeader##Type;                                                                                  \
    [[maybe_unused]] static constexpr auto Compare = tolmoHeader##Type##Compare;                                       \
    [[maybe_unused]] static constexpr auto Equals = tolmoHeader##Type##Equals;                                         \
    static constexpr auto Encode = tolmoHeader##Type##ToString;                                                        \
    static Handle TryDecode( const KoChar *chs, KoInt length )                                                         \
    {                                                                                                                  \
        auto raw = Own( tolmoMessageHeaderCreateCstr( headerName, -1 ) );                                              \
        tolmoMessageHeaderAppendLine( raw.Address(), Own( koStringCreateFromCharsCopy( chs, length ) ).Get() );        \
        return tolmoHeader##Type##TryDecode( raw.Get() );                                                              \
    }                                                                                                                  \
    static constexpr char path[] = "source/tolmo/tolmo_header_" unit ".cpp";                                           \
    [[maybe_unused]] static constexpr char name[] = "hdr";

#define TEST_HEADER_PARAMS( Type )                                                                                     \
    static constexpr auto GenericParams = tolmoHeader##Type##GenericParams;                                            \
    static constexpr auto SetGenericParams = tolmoHeader##Type##SetGenericParams;

/** A field that holds seconds; a required one has neither `has` nor `del`. */
template <class Header>
struct SecondsField {
    KoBool ( *has )( typename Header::Handle );
    KoInt ( *get )( typename Header::Handle );
    void ( *set )( typename Header::Handle *, KoInt );
    void ( *del )( typename Header::Handle * );
    const char *expression;
};

/** A field over its whole life, in a header that `create` makes. */
template <class Header, class Create>
void ExpectSecondsField( const SecondsField<Header> &field, Create create )
{
    using Handle = typename Header::Handle;
    KoRef<Handle> hdr = create();
    const Handle object = hdr.Get();
    if ( field.has ) {
        EXPECT_EQ( field.has( hdr.Get() ), KO_FALSE );
        EXPECT_EQ( field.get( hdr.Get() ), -1 );
    }
    field.set( hdr.Address(), 0 );
    EXPECT_EQ( field.get( hdr.Get() ), 0 );
    EXPECT_EQ( hdr.Get(), object ); // the only holder: no copy

    auto shared = KoRef<Handle>::Share( hdr.Get() );
    field.set( shared.Address(), INT64_MAX );
    EXPECT_NE( shared.Get(), hdr.Get() );
    EXPECT_EQ( field.get( shared.Get() ), INT64_MAX );
    EXPECT_EQ( field.get( hdr.Get() ), 0 );

    Handle none = nullptr;
    EXPECT_ABORT( field.get( nullptr ), Header::path, "hdr" );
    EXPECT_ABORT( field.set( nullptr, -1 ), Header::path, "hdr" );
    EXPECT_ABORT( field.set( &none, -1 ), Header::path, "*hdr" );
    EXPECT_ABORT( field.set( hdr.Address(), -1 ), Header::path, field.expression );
    EXPECT_ABORT( field.set( hdr.Address(), INT64_MIN ), Header::path, field.expression );
    if ( !field.has ) {
        return;
    }
    EXPECT_EQ( field.has( hdr.Get() ), KO_TRUE ); // 0 is present
    auto without = KoRef<Handle>::Share( hdr.Get() );
    field.del( without.Address() );
    EXPECT_NE( without.Get(), hdr.Get() );
    EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
    EXPECT_EQ( field.get( without.Get() ), -1 );
    EXPECT_EQ( field.has( hdr.Get() ), KO_TRUE );
    field.del( without.Address() ); // what is not there, too
    EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
    EXPECT_ABORT( field.has( nullptr ), Header::path, "hdr" );
    EXPECT_ABORT( field.del( nullptr ), Header::path, "hdr" );
    EXPECT_ABORT( field.del( &none ), Header::path, "*hdr" );
}

/** A drawn header goes out as a line that decodes to an equal one. */
template <class Header>
void ExpectDecodesToEqual( const KoRef<typename Header::Handle> &hdr )
{
    const auto line = Encode<Header>( hdr );
    const auto decoded = Decode<Header>( line );
    ASSERT_TRUE( decoded ) << line;
    EXPECT_TRUE( Header::Equals( decoded.Get(), hdr.Get() ) ) << line;
    EXPECT_EQ( Encode<Header>( decoded ), line );
}

} // namespace test

#endif
