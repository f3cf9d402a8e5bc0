#include "test.h"

#include <thread>

namespace {

class Constant : public test::Fixture {};

TEST_F( Constant, OneObjectForAText )
{
    char literal[] = "ko_constant_test";
    const KoString constant = koStringConstant( literal );
    EXPECT_EQ( test::Text( constant ), "ko_constant_test" );
    EXPECT_EQ( koStringConstant( std::string( literal ).c_str() ), constant );
    literal[0] = 'x'; // the text was copied
    EXPECT_EQ( test::Text( constant ), "ko_constant_test" );
    EXPECT_NE( koStringConstant( literal ), constant );
    EXPECT_EQ( test::Text( koStringConstant( "\u00E9" ) ), "\u00E9" );
    EXPECT_EQ( test::Text( koStringConstant( "" ) ), "" );
    EXPECT_EQ( koStringConstant( "" ), koStringConstant( "" ) );
    EXPECT_ABORT( koStringConstant( nullptr ), "source/runtime/ko_constant.cpp", "literal" );
}

TEST_F( Constant, IsNeitherCountedNorChanged )
{
    KoString s = koStringConstant( "constant" );
    EXPECT_EQ( test::Count( s ), KO_COUNT_CONSTANT );
    koStringRetain( s );
    koStringRelease( s );
    koStringRelease( s );
    EXPECT_EQ( test::Count( s ), KO_COUNT_CONSTANT );
    koStringAppendChar( &s, 's' );
    EXPECT_EQ( test::Text( s ), "constants" );
    EXPECT_EQ( test::Text( koStringConstant( "constant" ) ), "constant" );
    koStringRelease( s );
}

TEST_F( Constant, ThreadsGetOneObject )
{
    std::vector<KoString> found( 8 );
    std::vector<std::thread> threads;
    for ( KoString &constant : found ) {
        threads.emplace_back( [&] {
            for ( int i = 0; i < 100; ++i ) {
                constant = koStringConstant( ( "constant " + std::to_string( i ) ).c_str() );
            }
        } );
    }
    for ( std::thread &thread : threads ) {
        thread.join();
    }
    for ( const KoString constant : found ) {
        EXPECT_EQ( constant, koStringConstant( "constant 99" ) );
    }
}

} // namespace
