#include "test.h"

#include <tolmo/tolmo_sess_uuid.h>

#include <thread>

namespace {

using test::Str;
using test::Text;

constexpr char path[] = "source/tolmo/tolmo_sess_uuid.cpp";
constexpr std::string_view zeros = "00000000000000000000000000000000";

class SessUuid : public test::Fixture {
protected:
    void SetUp() override
    {
        Fixture::SetUp();
        tolmo___SessUuidStartup();
    }
    void TearDown() override
    {
        tolmo___SessUuidShutdown();
        Fixture::TearDown();
    }
};

bool IsOk( std::string_view text )
{
    return tolmoSessUuidOk( Str( text ).Get() );
}

TEST_F( SessUuid, Ok )
{
    EXPECT_TRUE( IsOk( "ab30317f1a784dc48ff824d0d3715d86" ) );
    EXPECT_TRUE( IsOk( "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz" ) ); // more letters than hexadecimal digits
    EXPECT_TRUE( IsOk( zeros ) );
    EXPECT_FALSE( IsOk( "" ) );
    EXPECT_FALSE( IsOk( "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz" ) );   // 31
    EXPECT_FALSE( IsOk( "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz" ) ); // 33
    EXPECT_FALSE( IsOk( "ab30317f1a784dc48ff824d0d3715d8A" ) );  // a capital
    EXPECT_FALSE( IsOk( "Ab30317f1a784dc48ff824d0d3715d86" ) );
    EXPECT_FALSE( IsOk( "ab30317f-1a784dc48ff824d0d3715d8" ) );
    EXPECT_FALSE( IsOk( "ab30317f1a784dc48ff824d0d3715d8\u00E9" ) );
    EXPECT_ABORT( tolmoSessUuidOk( nullptr ), path, "sessUuid" );
}

TEST_F( SessUuid, Nil )
{
    const auto nil = KoRef<KoString>::Adopt( tlomoSessUuidNil() );
    EXPECT_EQ( Text( nil ), zeros );
    EXPECT_TRUE( tolmoSessUuidOk( nil.Get() ) );
    EXPECT_TRUE( tolmoSessUuidIsNil( nil.Get() ) );
    EXPECT_TRUE( tolmoSessUuidIsNil( Str( zeros ).Get() ) );
    EXPECT_FALSE( tolmoSessUuidIsNil( Str( "00000000000000000000000000000001" ).Get() ) );
    EXPECT_FALSE( tolmoSessUuidIsNil( Str( "" ).Get() ) );
    EXPECT_ABORT( tolmoSessUuidIsNil( nullptr ), path, "sessUuid" );
}

TEST_F( SessUuid, NilStaysWithItsHolderBeyondTheStop )
{
    auto nil = KoRef<KoString>::Adopt( tlomoSessUuidNil() );
    const KoString handle = nil.Get();
    tolmo___SessUuidShutdown();
    EXPECT_EQ( Text( nil ), zeros );
    tolmo___SessUuidStartup();
    EXPECT_EQ( KoRef<KoString>::Adopt( tlomoSessUuidNil() ).Get(), handle ); // the same constant is found again

    koStringSetCharAt( nil.Address(), 0, '1' ); // copies: nobody can change the constant
    EXPECT_NE( nil.Get(), handle );
    EXPECT_EQ( Text( handle ), zeros );
}

TEST_F( SessUuid, NilIsNotCounted )
{
    const auto nil = KoRef<KoString>::Adopt( tlomoSessUuidNil() );
    std::vector<std::thread> threads;
    for ( int i = 0; i < 4; ++i ) {
        threads.emplace_back( [&] {
            for ( int k = 0; k < 1000; ++k ) {
                EXPECT_EQ( KoRef<KoString>::Adopt( tlomoSessUuidNil() ).Get(), nil.Get() );
            }
        } );
    }
    for ( std::thread &thread : threads ) {
        thread.join();
    }
    EXPECT_EQ( test::Count( nil.Get() ), KO_COUNT_CONSTANT );
}

TEST( SessUuidStop, UseAfterTheStopCrashes )
{
    tolmo___SessUuidStartup();
    tolmo___SessUuidShutdown();
    EXPECT_DEATH( tlomoSessUuidNil(), "" ); // the handle holds the poison
}

} // namespace
