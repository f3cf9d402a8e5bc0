#include "tolmo_test.h"

#include <tolmo/tolmo_builder.hpp>

namespace {

using test::Str;

class Builder : public test::Fixture {};

TEST_F( Builder, NothingAdded )
{
    const tolmo::Builder text{};
    EXPECT_EQ( test::Take( text.Finish() ), "" );
}

TEST_F( Builder, EveryKindOfText )
{
    tolmo::Builder text;
    text.Add( 'a' );
    text.Add( KoChar{ 0x1F600 } );
    text.Add( std::string_view( "bc" ) );
    text.Add( std::string_view() );
    const test::Exact chs( "d\u00E9" );
    text.Add( tolmo::Text( chs.Chars(), chs.Length() ) );
    text.Add( tolmo::Text() );
    const auto kept = Str( "e" );
    text.Add( kept.Get() );
    EXPECT_EQ( test::Count( kept.Get() ), 1 );
    text.Take( Str( "fg" ).Leak() ); // is released
    EXPECT_EQ( test::Take( text.Finish() ), "a\U0001F600bcd\u00E9efg" );
}

TEST_F( Builder, AddRaised )
{
    tolmo::Builder text;
    text.AddRaised( Str( "" ).Get() );
    text.AddRaised( Str( "aZz`{@[-.!%*_+'~09" ).Get() );
    text.AddRaised( Str( "\u00E9" ).Get() ); // ASCII letters only
    EXPECT_EQ( test::Take( text.Finish() ), "AZZ`{@[-.!%*_+'~09\u00E9" );
}

TEST_F( Builder, AddNumber )
{
    for ( const KoInt number : { KoInt{ 0 }, KoInt{ 7 }, KoInt{ 10 }, KoInt{ 5060 }, INT64_MAX } ) {
        tolmo::Builder text;
        text.Add( '<' );
        text.AddNumber( number );
        text.Add( '>' );
        EXPECT_EQ( test::Take( text.Finish() ), "<" + std::to_string( number ) + ">" );
    }
}

// The result is a string of its own: more can be added, and finished again.
TEST_F( Builder, FinishTwice )
{
    tolmo::Builder text;
    text.Add( 'a' );
    const auto first = KoRef<KoString>::Adopt( text.Finish() );
    text.Add( 'b' );
    EXPECT_EQ( test::Take( text.Finish() ), "ab" );
    EXPECT_EQ( test::Text( first ), "a" );
}

// Sizes around the room in place (256 characters) and around each growth, in steps of every size.
TEST_F( Builder, Growth )
{
    for ( const size_t step : { 1u, 2u, 3u, 7u, 100u, 255u, 256u, 257u, 1000u } ) {
        for ( const size_t size : { 255u, 256u, 257u, 511u, 512u, 513u, 768u, 769u, 3000u } ) {
            tolmo::Builder text;
            std::string expected;
            while ( expected.size() < size ) {
                const std::string piece( std::min( step, size - expected.size() ),
                                         static_cast<char>( 'a' + expected.size() % 26 ) );
                text.Add( std::string_view( piece ) );
                expected += piece;
            }
            EXPECT_EQ( test::Take( text.Finish() ), expected ) << step << " " << size;
        }
    }
}

TEST_F( Builder, Megabytes )
{
    tolmo::Builder text;
    const auto piece = Str( std::string( 1000, 'x' ) );
    for ( int i = 0; i < 4000; ++i ) {
        text.Add( piece.Get() );
        text.Add( ';' );
    }
    const auto whole = KoRef<KoString>::Adopt( text.Finish() );
    EXPECT_EQ( koStringLength( whole.Get() ), 4000 * 1001 );
    EXPECT_EQ( koStringCharAt( whole.Get(), 4000 * 1001 - 1 ), ';' );
}

} // namespace
