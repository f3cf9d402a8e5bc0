/* Blocks for objects. No library exports them, so the unit itself is part of this test. */
#include "test.h"

#include <runtime/ko_memory.cpp>

#include <atomic>
#include <cstring>
#include <mutex>
#include <random>
#include <set>
#include <thread>

namespace {

class MemoryTest : public test::Fixture {};

TEST_F( MemoryTest, EverySizeGetsABlockOfItsSize )
{
    for ( size_t size = 1; size <= 70000; ++size ) {
        const ko::Block block = ko::Allocate( size );
        ASSERT_NE( block.memory, nullptr );
        ASSERT_GE( block.usable, size );
        ASSERT_LE( block.usable, size <= 1024 ? size + 15 : size + size / 4 ) << "next to nothing is wasted";
        ASSERT_EQ( reinterpret_cast<uintptr_t>( block.memory ) % 16, 0U ) << size;
        memset( block.memory, 0xa5, block.usable );
        ko::Free( block.memory, block.blockClass );
    }
}

TEST_F( MemoryTest, ClassesHoldTheirSizes )
{
    for ( int32_t i = ko::noClass + 1; i < ko::classes; ++i ) {
        EXPECT_EQ( ko::ClassOf( ko::SizeOf( i ) ), i );
        EXPECT_EQ( ko::ClassOf( ko::SizeOf( i - 1 ) + 1 ), i );
    }
}

TEST_F( MemoryTest, LivingBlocksDoNotOverlap )
{
    std::mt19937 random( 7 );
    struct Living {
        ko::Block block;
        size_t size;
        unsigned char mark;
    };
    std::vector<Living> living;
    const auto end = [&]( size_t at ) {
        const Living ended = living[at];
        const auto *const bytes = static_cast<const unsigned char *>( ended.block.memory );
        for ( size_t i = 0; i < ended.size; ++i ) {
            ASSERT_EQ( bytes[i], ended.mark );
        }
        ko::Free( ended.block.memory, ended.block.blockClass );
        living[at] = living.back();
        living.pop_back();
    };
    for ( int step = 0; step < 20000; ++step ) {
        if ( living.size() < 200 && random() % 2 ) {
            const size_t size = 1 + random() % ( random() % 4 ? 300 : 70000 );
            const ko::Block block = ko::Allocate( size );
            const Living made{ block, block.usable, static_cast<unsigned char>( random() ) };
            memset( made.block.memory, made.mark, made.size );
            living.push_back( made );
        } else if ( !living.empty() ) {
            end( random() % living.size() );
        }
    }
    while ( !living.empty() ) {
        end( living.size() - 1 );
    }
}

TEST_F( MemoryTest, ABlockComesBackAtOnce )
{
    if ( !ko::keepsBlocks ) {
        GTEST_SKIP() << "a sanitizer wants to see each block end";
    }
    const ko::Block first = ko::Allocate( 100 );
    ko::Free( first.memory, first.blockClass );
    const ko::Block second = ko::Allocate( 105 );
    EXPECT_EQ( second.memory, first.memory );
    ko::Free( second.memory, second.blockClass );
}

TEST_F( MemoryTest, AThreadTakesWhatItHasKept )
{
    if ( !ko::keepsBlocks ) {
        GTEST_SKIP() << "a sanitizer wants to see each block end";
    }
    std::thread( [] {
        EXPECT_EQ( ko::TakeKept( 100 ).memory, nullptr ) << "the thread is new";
        const ko::Block first = ko::Allocate( 100 );
        EXPECT_EQ( ko::TakeKept( 100 ).memory, nullptr );
        ko::Free( first.memory, first.blockClass );
        EXPECT_EQ( ko::TakeKept( 96 ).memory, nullptr );
        EXPECT_EQ( ko::TakeKept( 113 ).memory, nullptr );
        const ko::Block second = ko::TakeKept( 97 );
        EXPECT_EQ( second.memory, first.memory );
        EXPECT_EQ( second.usable, first.usable );
        EXPECT_EQ( second.blockClass, first.blockClass );
        ko::Free( second.memory, second.blockClass );
        const ko::Block large = ko::Allocate( 1025 );
        ko::Free( large.memory, large.blockClass );
        EXPECT_EQ( ko::TakeKept( 1025 ).memory, nullptr ) << "large blocks are for Allocate";
    } ).join();
}

TEST_F( MemoryTest, AThreadKeepsNoMoreThanItsLimit )
{
    if ( !ko::keepsBlocks ) {
        GTEST_SKIP() << "a sanitizer wants to see each block end";
    }
    std::thread( [] {
        for ( const size_t size : { size_t{ 16 }, size_t{ 1024 }, size_t{ 40000 } } ) {
            std::vector<ko::Block> blocks;
            for ( int i = 0; i < 5000; ++i ) {
                blocks.push_back( ko::Allocate( size ) );
            }
            for ( const ko::Block &block : blocks ) {
                ko::Free( block.memory, block.blockClass );
            }
            const ko::FreeList &list = ko::here->lists[ko::ClassOf( size )];
            EXPECT_EQ( list.room, 0 );
            size_t length = 0;
            for ( const ko::FreeBlock *block = list.first; block; block = block->next ) {
                ++length;
            }
            EXPECT_EQ( length, std::max<size_t>( 32768 / ko::SizeOf( ko::ClassOf( size ) ), 4 ) );
        }
    } ).join();
}

TEST_F( MemoryTest, AnotherThreadFreesABlock )
{
    const auto sizeOf = []( size_t i ) { return 1 + i * 37 % 3000; };
    for ( int round = 0; round < 50; ++round ) {
        std::vector<ko::Block> blocks;
        for ( size_t i = 0; i < 500; ++i ) {
            blocks.push_back( ko::Allocate( sizeOf( i ) ) );
            memset( blocks.back().memory, 1, sizeOf( i ) );
        }
        std::thread( [&] {
            for ( size_t i = 0; i < blocks.size(); ++i ) {
                ko::Free( blocks[i].memory, blocks[i].blockClass );
                blocks[i] = ko::Allocate( sizeOf( i ) );
                memset( blocks[i].memory, 2, sizeOf( i ) );
            }
        } ).join();
        for ( size_t i = 0; i < blocks.size(); ++i ) { // the thread that made them is gone
            EXPECT_EQ( static_cast<const unsigned char *>( blocks[i].memory )[sizeOf( i ) - 1], 2 );
            ko::Free( blocks[i].memory, blocks[i].blockClass );
        }
    }
}

TEST_F( MemoryTest, CountsOutliveTheirThreads )
{
    const int64_t earlier = ko::ObjectCount();
    const ko::Block here = ko::Allocate( 10 );
    EXPECT_EQ( ko::ObjectCount(), earlier + 1 );
    ko::Block there{};
    std::thread( [&] { there = ko::Allocate( 10 ); } ).join();
    EXPECT_EQ( ko::ObjectCount(), earlier + 2 );
    std::thread( [&] {
        ko::Free( here.memory, here.blockClass );
        ko::Free( there.memory, there.blockClass );
    } ).join();
    EXPECT_EQ( ko::ObjectCount(), earlier );
    const ko::Block constant = ko::Allocate( 10 );
    ko::UncountObject();
    EXPECT_EQ( ko::ObjectCount(), earlier );
    ko::Free( constant.memory, constant.blockClass );
    EXPECT_EQ( ko::ObjectCount(), earlier - 1 );
    ++ko::Here()->blocks; // as it was
}

TEST_F( MemoryTest, ManyThreadsComeAndGo )
{
    const int64_t earlier = ko::ObjectCount();
    std::mutex lock;
    std::vector<ko::Block> kept;
    for ( int round = 0; round < 50; ++round ) {
        std::vector<std::thread> threads;
        for ( int i = 0; i < 8; ++i ) {
            threads.emplace_back( [&, i] {
                for ( int32_t j = 0; j < 100; ++j ) {
                    const auto size = static_cast<size_t>( 1 + i * 100 + j );
                    const ko::Block block = ko::Allocate( size );
                    memset( block.memory, i, size );
                    if ( j < i ) {
                        const std::lock_guard guard( lock );
                        kept.push_back( block );
                    } else {
                        ko::Free( block.memory, block.blockClass );
                    }
                }
            } );
        }
        for ( std::thread &thread : threads ) {
            thread.join();
        }
        EXPECT_EQ( ko::ObjectCount(), earlier + static_cast<int64_t>( kept.size() ) );
    }
    for ( const ko::Block &block : kept ) {
        ko::Free( block.memory, block.blockClass );
    }
    EXPECT_EQ( ko::ObjectCount(), earlier );
}

// The counts of the library itself, which are others than those of this test's own unit.
TEST_F( MemoryTest, ObjectsOfAllThreadsAreCounted )
{
    const KoInt earlier = ko___ObjLiveCount();
    KoString kept = nullptr;
    std::thread( [&] {
        kept = koStringCreateFromCstr( "kept", -1 );
        koStringRelease( koStringCreateFromCstr( "not kept", -1 ) );
    } ).join();
    EXPECT_EQ( ko___ObjLiveCount(), earlier + 1 );
    koStringRelease( kept );
    EXPECT_EQ( ko___ObjLiveCount(), earlier );
    static KoString constant = nullptr; // lives as long as the process
    constant = koStringCreateFromCstr( "constant", -1 );
    ko___ObjMakeConstant( koStringObj( constant ) );
    EXPECT_EQ( ko___ObjLiveCount(), earlier ) << "a constant does not count";
    koStringRelease( constant );
    EXPECT_EQ( koStringLength( constant ), 8 ) << "and does not end";
}

} // namespace
