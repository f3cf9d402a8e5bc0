/* Modules: the order of starts and stops, their counts, and threads that start at once. */
#include "test.h"

#include <atomic>
#include <thread>

namespace {

constexpr const char *path = "source/runtime/ko_module.cpp";

std::string events;
bool baseStarts = true;
bool otherStarts = true;
bool topStarts = true;

/** A module that writes down what happens to it. */
#define TEST_MODULE( module, name, needs, starts )                                                                     \
    const KoModuleRecord module##Record = { 2, "", "", 0, 0, 0, "", "", "", name, "", "0.0", needs, "" };              \
    KoBool module##Start( void )                                                                                       \
    {                                                                                                                  \
        events += "+" name " ";                                                                                        \
        return starts;                                                                                                 \
    }                                                                                                                  \
    void module##Stop( void )                                                                                          \
    {                                                                                                                  \
        events += "-" name " ";                                                                                        \
    }                                                                                                                  \
    struct ko___ModuleObject module = KO_MODULE( &module##Record, module##Start, module##Stop );

TEST_MODULE( base, "base", "", baseStarts )
TEST_MODULE( middle, "middle", "base", true )
TEST_MODULE( other, "other", "  base ko ", otherStarts )
TEST_MODULE( top, "top", "middle other base", topStarts )
TEST_MODULE( lost, "lost", "base nobody", true )

class ModuleTest : public test::Fixture {
protected:
    void SetUp() override
    {
        test::Fixture::SetUp();
        koModule();
        for ( const KoModule module : { &base, &middle, &other, &top, &lost } ) {
            ko___ModuleRegister( module );
        }
        events.clear();
        baseStarts = otherStarts = topStarts = true;
    }
};

TEST_F( ModuleTest, TheRuntimeIsAModule )
{
    const KoModule module = koModule();
    EXPECT_EQ( koModule(), module );
    EXPECT_EQ( module->frame[0], 2 );
    EXPECT_EQ( module->frame[1], 0 );
    EXPECT_EQ( module->frame[2], -1 );
    EXPECT_EQ( module->frame[3], 1 );
    EXPECT_EQ( module->zero, 0 );
    const KoModuleRecord &record = *module->record;
    EXPECT_EQ( record.format, 2 );
    EXPECT_STREQ( record.name, "ko" );
    EXPECT_STREQ( record.description, "Base Runtime" );
    EXPECT_STREQ( record.version, "0.0" );
    EXPECT_STREQ( record.needs, "" );
    EXPECT_STREQ( record.reserved, "" );
    EXPECT_TRUE( koModuleStart( module ) );
    koModuleStop( module );
}

TEST_F( ModuleTest, WhatIsNeededStartsFirstAndStopsLast )
{
    EXPECT_EQ( koModuleStart( &top ), KO_TRUE );
    EXPECT_EQ( events, "+base +middle +other +top " );
    events.clear();
    koModuleStop( &top );
    EXPECT_EQ( events, "-top -other -middle -base " );
    events.clear();
    EXPECT_EQ( koModuleStart( &top ), KO_TRUE ) << "and once more";
    EXPECT_EQ( events, "+base +middle +other +top " );
    koModuleStop( &top );
}

TEST_F( ModuleTest, StartsAreCounted )
{
    EXPECT_TRUE( koModuleStart( &middle ) );
    EXPECT_TRUE( koModuleStart( &middle ) );
    EXPECT_TRUE( koModuleStart( &other ) );
    EXPECT_EQ( events, "+base +middle +other " );
    events.clear();
    koModuleStop( &middle );
    EXPECT_EQ( events, "" );
    koModuleStop( &middle );
    EXPECT_EQ( events, "-middle " ) << "another module needs the base";
    koModuleStop( &other );
    EXPECT_EQ( events, "-middle -other -base " );
    EXPECT_ABORT( koModuleStop( &middle ), path, "module->runtime[Starts] > 0" );
}

TEST_F( ModuleTest, AFailedStartLeavesNothingStarted )
{
    topStarts = false;
    EXPECT_EQ( koModuleStart( &top ), KO_FALSE );
    EXPECT_EQ( events, "+base +middle +other +top -other -middle -base " );
    events.clear();
    topStarts = true;
    otherStarts = false;
    EXPECT_EQ( koModuleStart( &top ), KO_FALSE ) << "what was needed before the one that fails is stopped";
    EXPECT_EQ( events, "+base +middle +other -middle -base " );
    events.clear();
    otherStarts = true;
    baseStarts = false;
    EXPECT_EQ( koModuleStart( &top ), KO_FALSE );
    EXPECT_EQ( events, "+base " );
    for ( const KoModule module : { &base, &middle, &other, &top } ) {
        EXPECT_ABORT( koModuleStop( module ), path, "module->runtime[Starts] > 0" );
    }
    events.clear();
    baseStarts = true;
    EXPECT_EQ( koModuleStart( &top ), KO_TRUE );
    koModuleStop( &top );
}

TEST_F( ModuleTest, ScopesStartAndStop )
{
    {
        const KoModuleScope outer( &middle );
        const KoModuleScope inner( &middle );
        EXPECT_EQ( events, "+base +middle " );
    }
    EXPECT_EQ( events, "+base +middle -middle -base " );
}

TEST_F( ModuleTest, RegistrationIsIdempotent )
{
    for ( int i = 0; i < 3; ++i ) { // a list that was linked twice would have no end
        ko___ModuleRegister( &base );
        ko___ModuleRegister( &middle );
    }
    EXPECT_ABORT( koModuleStart( &lost ), path, "needed" );
}

TEST_F( ModuleTest, ThreadsStartAtOnce )
{
    constexpr int rounds = 2000;
    std::atomic<int> wrong = 0;
    const auto run = [&] {
        for ( int i = 0; i < rounds; ++i ) {
            const KoModuleScope scope( &top );
            // Whoever has started the module finds all of it started, exactly once.
            wrong += events != "+base +middle +other +top ";
        }
    };
    const KoModuleScope outer( &top );
    std::vector<std::thread> threads;
    for ( int i = 0; i < 4; ++i ) {
        threads.emplace_back( run );
    }
    for ( std::thread &thread : threads ) {
        thread.join();
    }
    EXPECT_EQ( wrong, 0 );
}

std::atomic<int> starts = 0;
std::atomic<int> stops = 0;
std::atomic<bool> running = false;
KoBool CountStart( void )
{
    ++starts;
    std::this_thread::yield();
    return !running.exchange( true );
}
void CountStop( void )
{
    std::this_thread::yield();
    running = false;
    ++stops;
}
const KoModuleRecord countedRecord = { 2, "", "", 0, 0, 0, "", "", "", "counted", "", "0.0", "base", "" };
struct ko___ModuleObject counted = KO_MODULE( &countedRecord, CountStart, CountStop );

TEST_F( ModuleTest, ThreadsStartAndStopForGood )
{
    ko___ModuleRegister( &counted );
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for ( int i = 0; i < 4; ++i ) {
        threads.emplace_back( [&] {
            for ( int j = 0; j < 2000; ++j ) {
                wrong += !koModuleStart( &counted );
                wrong += !running;
                koModuleStop( &counted );
            }
        } );
    }
    for ( std::thread &thread : threads ) {
        thread.join();
    }
    EXPECT_EQ( wrong, 0 );
    EXPECT_FALSE( running );
    EXPECT_GE( starts, 1 );
    EXPECT_EQ( starts, stops );
}

TEST_F( ModuleTest, Preconditions )
{
    EXPECT_ABORT( koModuleStart( nullptr ), path, "module" );
    EXPECT_ABORT( koModuleStop( nullptr ), path, "module" );
    EXPECT_ABORT( koModuleStop( &base ), path, "module->runtime[Starts] > 0" );
    EXPECT_ABORT( ko___ModuleRegister( nullptr ), path, "module" );
}

} // namespace
