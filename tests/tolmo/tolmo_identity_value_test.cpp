/* One item of a P-Asserted-Identity or P-Preferred-Identity header. */
#include "tolmo_type_test.h"

#include <random>

namespace {

using test::Str;

class IdentityValue : public test::TolmoFixture {};

constexpr char path[] = "source/tolmo/tolmo_identity_value.cpp";
constexpr char null[] = "(null)";

KoRef<TolmoIdentityValue> Decode( std::string_view text )
{
    return test::DecodeWith( tolmo___IdentityValueTryDecode, text );
}

std::string Encode( const KoRef<TolmoIdentityValue> &id )
{
    return id ? test::Take( tolmo___IdentityValueEncode( id.Get() ) ) : null;
}

struct Functions {
    TEST_STANDARD_FUNCTIONS( IdentityValue )
};

TEST_F( IdentityValue, StandardOperations )
{
    const auto id = Decode( "A <sip:a>" );
    // The abort lines of a comparison speak of routes.
    test::ExpectStandardOperations<Functions>( id.Get(), "TOLMO_IDENTITY_VALUE", path, "id", "routeA", "routeB" );
    EXPECT_EQ( Encode( KoRef<TolmoIdentityValue>::Adopt( tolmoIdentityValueCreateFrom( id.Get() ) ) ), Encode( id ) );
    EXPECT_EQ( tolmoIdentityValueSort()->toString, nullptr );
    EXPECT_EQ( test::Take( tolmoIdentityValueToString( id.Get() ) ), "<TOLMO_IDENTITY_VALUE>" ); // not the wire text
}

TEST_F( IdentityValue, Create )
{
    const auto id = KoRef<TolmoIdentityValue>::Adopt( tolmoIdentityValueCreate( Str( "tel:+1" ).Get() ) );
    EXPECT_EQ( test::Take( tolmoIdentityValueIri( id.Get() ) ), "tel:+1" );
    EXPECT_FALSE( tolmoIdentityValueHasDisplayName( id.Get() ) );
    EXPECT_EQ( tolmoIdentityValueDisplayName( id.Get() ), nullptr );
    EXPECT_EQ( Encode( id ), "<tel:+1>" );
    EXPECT_ABORT( tolmoIdentityValueCreate( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( tolmoIdentityValueCreate( Str( "a" ).Get() ), path, "tolmoIriOk( iri )" );
}

const struct {
    std::string_view text;
    std::string_view out;
} rows[] = { { "<sip:a>", "<sip:a>" },
             { "sip:a", "<sip:a>" },
             { "tel:+14085264000", "<tel:+14085264000>" },
             { "<sip:a;user=phone>", "<sip:a;user=phone>" },
             { "\"Cullen, J.\" <sip:fluffy@cisco.com>", "\"Cullen, J.\" <sip:fluffy@cisco.com>" },
             { "A  B <sip:a>", "\"A B\" <sip:a>" },
             { "\"\" <sip:a>", "\"\" <sip:a>" },
             { "<sip:a> ", "<sip:a>" },
             { " <sip:a>", "<sip:a>" },
             { "<sip:a@xn--bcher-kva.example>", "<sip:a@xn--bcher-kva.example>" },
             { "<sip:host1>;x=1", null }, // no parameters, in neither form
             { "sip:host1;x=1", null },
             { "<sip:a>;", null },
             { "", null },
             { "<>", null },
             { "<sip:a", null },
             { "sip:a>", null },
             { "sip:a ", null },
             { " sip:a", null },
             { "A sip:a", null },
             { "<sip:a>,<sip:b>", null },
             { "<sip:a> x", null },
             { "*", null } };

TEST_F( IdentityValue, Rows )
{
    for ( const auto &[text, out] : rows ) {
        const auto id = Decode( text );
        EXPECT_EQ( Encode( id ), out ) << "text: " << text;
        if ( id ) {
            EXPECT_TRUE( tolmoIdentityValueEquals( Decode( out ).Get(), id.Get() ) ) << "text: " << text;
        }
        test::DecodeEveryPrefix( tolmo___IdentityValueTryDecode, text );
    }
    EXPECT_EQ( tolmo___IdentityValueTryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( tolmo___IdentityValueTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___IdentityValueTryDecode( nullptr, 1 ), path, "chs || length == 0" );
    EXPECT_ABORT( tolmo___IdentityValueEncode( nullptr ), path, "id" );
}

TEST_F( IdentityValue, Fields )
{
    auto id = Decode( "<sip:a>" );
    const TolmoIdentityValue object = id.Get();
    const auto iri = Str( "sip:\u00FC@h" );
    const auto name = Str( "B" );
    tolmoIdentityValueSetIri( id.Address(), iri.Get() );
    tolmoIdentityValueSetDisplayName( id.Address(), name.Get() );
    EXPECT_EQ( id.Get(), object ); // the only holder: no copy
    EXPECT_EQ( KoRef<KoString>::Adopt( tolmoIdentityValueIri( id.Get() ) ).Get(), iri.Get() );
    EXPECT_EQ( KoRef<KoString>::Adopt( tolmoIdentityValueDisplayName( id.Get() ) ).Get(), name.Get() );
    EXPECT_EQ( tolmoIdentityValueHasDisplayName( id.Get() ), KO_TRUE );

    auto copy = KoRef<TolmoIdentityValue>::Share( id.Get() );
    tolmoIdentityValueSetIri( copy.Address(), Str( "sip:c" ).Get() );
    EXPECT_NE( copy.Get(), id.Get() );
    EXPECT_EQ( Encode( copy ), "\"B\" <sip:c>" );
    copy = KoRef<TolmoIdentityValue>::Share( id.Get() );
    tolmoIdentityValueSetDisplayName( copy.Address(), Str( "" ).Get() );
    EXPECT_EQ( Encode( copy ), "\"\" <sip:%C3%BC@h>" );
    copy = KoRef<TolmoIdentityValue>::Share( id.Get() );
    tolmoIdentityValueDelDisplayName( copy.Address() );
    EXPECT_EQ( tolmoIdentityValueHasDisplayName( copy.Get() ), KO_FALSE );
    EXPECT_EQ( Encode( copy ), "<sip:%C3%BC@h>" );
    EXPECT_EQ( Encode( id ), "\"B\" <sip:%C3%BC@h>" ); // all the while

    TolmoIdentityValue none = nullptr;
    EXPECT_ABORT( tolmoIdentityValueIri( nullptr ), path, "id" );
    EXPECT_ABORT( tolmoIdentityValueSetIri( nullptr, nullptr ), path, "id" );
    EXPECT_ABORT( tolmoIdentityValueSetIri( &none, nullptr ), path, "*id" );
    EXPECT_ABORT( tolmoIdentityValueSetIri( id.Address(), Str( "" ).Get() ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoIdentityValueHasDisplayName( nullptr ), path, "id" );
    EXPECT_ABORT( tolmoIdentityValueDisplayName( nullptr ), path, "id" );
    EXPECT_ABORT( tolmoIdentityValueSetDisplayName( nullptr, nullptr ), path, "id" );
    EXPECT_ABORT( tolmoIdentityValueSetDisplayName( &none, nullptr ), path, "*id" );
    EXPECT_ABORT( tolmoIdentityValueSetDisplayName( id.Address(), Str( "\n" ).Get() ), path,
                  "tolmoDisplayNameOk( displayName )" );
    EXPECT_ABORT( tolmoIdentityValueDelDisplayName( nullptr ), path, "id" );
    EXPECT_ABORT( tolmoIdentityValueDelDisplayName( &none ), path, "*id" );
}

TEST_F( IdentityValue, CompareOrder )
{
    const std::string_view ascending[] = { "\"Z\" <sip:a>", "<sip:b>", "\"\" <sip:b>", "\"A\" <sip:b>", "<sip:c>" };
    for ( size_t a = 0; a < std::size( ascending ); ++a ) {
        for ( size_t b = 0; b < std::size( ascending ); ++b ) {
            const KoInt order = tolmoIdentityValueCompare( Decode( ascending[a] ).Get(), Decode( ascending[b] ).Get() );
            EXPECT_EQ( order < 0, a < b ) << ascending[a] << " and " << ascending[b];
            EXPECT_EQ( order > 0, a > b ) << ascending[a] << " and " << ascending[b];
        }
    }
}

TEST_F( IdentityValue, DecodeOfEncodeIsEqual )
{
    static constexpr KoChar alphabet[] = { ' ', ' ', '\t', '"', '\\', '<', ',', 'a', 0x00, 0x7F, 0xFC, 0x4E2D };
    std::mt19937 random( 36 );
    auto id = Decode( "tel:+1" );
    for ( int i = 0; i < 2000; ++i ) {
        auto name = Str( "" );
        for ( auto length = random() % 16; length > 0; --length ) {
            koStringAppendChar( name.Address(), alphabet[random() % std::size( alphabet )] );
        }
        tolmoIdentityValueSetDisplayName( id.Address(), name.Get() );
        const auto text = Encode( id );
        const auto decoded = Decode( text );
        ASSERT_TRUE( decoded ) << text;
        EXPECT_TRUE( tolmoIdentityValueEquals( decoded.Get(), id.Get() ) ) << text;
        EXPECT_EQ( Encode( decoded ), text );
        const test::Exact chs( text );
        EXPECT_EQ( tolmo___SkipIdentityValue( chs.Chars(), chs.Length() ), chs.Length() ) << text;
    }
}

} // namespace
