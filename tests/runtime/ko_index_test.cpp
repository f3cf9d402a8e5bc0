/* The index of a dictionary: a model, with hashes that collide as they please. */
#include "test.h"

#include <runtime/ko_index.hpp>

#include <map>
#include <random>

namespace {

class Index : public test::Fixture {
protected:
    void SetUp() override
    {
        test::Fixture::SetUp();
        index = ko::Index::Create( room );
    }
    void TearDown() override
    {
        index.Free();
        test::Fixture::TearDown();
    }
    /** Every position must be found under its hash, and nothing else. */
    void Check( uint32_t hashes )
    {
        for ( const auto &[position, hash] : model ) {
            ASSERT_EQ( index.Find( hash, [wanted = position]( KoInt at ) { return at == wanted; } ), position );
        }
        for ( uint32_t hash = 0; hash < hashes; ++hash ) {
            size_t seen = 0;
            const KoInt found = index.Find( hash, [&]( KoInt at ) {
                EXPECT_EQ( model.at( at ), hash ) << "a position of another hash was offered";
                ++seen;
                return false;
            } );
            size_t expected = 0;
            for ( const auto &entry : model ) {
                expected += entry.second == hash;
            }
            ASSERT_EQ( found, -1 );
            ASSERT_EQ( seen, expected );
        }
    }

    static constexpr KoInt room = 64;
    ko::Index index;
    std::map<KoInt, uint32_t> model;
};

TEST_F( Index, AllZerosIsNotThere )
{
    EXPECT_FALSE( ko::Index() );
    EXPECT_TRUE( index );
}

TEST_F( Index, RandomChangesAgreeWithAModel )
{
    std::mt19937 random( 5 );
    for ( const uint32_t hashes : { 1U, 3U, 40U, 1000U } ) {
        for ( int step = 0; step < 2000; ++step ) {
            const auto size = static_cast<KoInt>( model.size() );
            const uint32_t hash = static_cast<uint32_t>( random() ) % hashes;
            switch ( random() % 8 ) {
            case 0:
            case 1:
            case 2:
            case 3:
                if ( size < room ) {
                    const KoInt position = model.empty() ? 0 : model.rbegin()->first + 1;
                    index.Add( hash, position );
                    model[position] = hash;
                }
                break;
            case 4:
            case 5:
                if ( size > 0 ) {
                    const auto at = std::next( model.begin(), static_cast<KoInt>( random() ) % size );
                    index.Remove( at->second, at->first );
                    model.erase( at );
                }
                break;
            case 6:
                if ( size > 0 ) { // as if an entry in the middle were removed
                    const auto at = std::next( model.begin(), static_cast<KoInt>( random() ) % size );
                    const KoInt position = at->first;
                    index.Remove( at->second, position );
                    model.erase( at );
                    index.Shift( position + 1, -1 );
                    std::map<KoInt, uint32_t> shifted;
                    for ( const auto &[old, oldHash] : model ) {
                        shifted[old > position ? old - 1 : old] = oldHash;
                    }
                    model = shifted;
                }
                break;
            default:
                if ( size > 0 ) { // as if the entries moved to the start of another array
                    const KoInt first = model.begin()->first;
                    const ko::Index moved = index.Moved( room, -first );
                    index.Free();
                    index = moved;
                    std::map<KoInt, uint32_t> shifted;
                    for ( const auto &[old, oldHash] : model ) {
                        shifted[old - first] = oldHash;
                    }
                    model = shifted;
                }
            }
            if ( step % 50 == 0 ) {
                Check( hashes );
            }
        }
        Check( hashes );
        for ( const auto &[position, hash] : model ) {
            index.Remove( hash, position );
        }
        model.clear();
        Check( hashes );
    }
}

} // namespace
