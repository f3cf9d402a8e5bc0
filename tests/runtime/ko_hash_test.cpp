/* The hash of keys: SipHash against published values, and the key of the process. */
#include "test.h"

#include <runtime/ko_hash.hpp>

#include <cerrno>
#include <cstring>
#include <set>
#include <sys/auxv.h>
#include <sys/random.h>

// The system call that this program's runtime makes its key with: here it fails, as on a machine that has just started.
extern "C" __attribute__( ( visibility( "default" ) ) ) ssize_t getrandom( void *, size_t, unsigned )
{
    errno = EAGAIN;
    return -1;
}

namespace {

constexpr const char *path = "source/runtime/ko_hash.cpp";

class HashTest : public test::Fixture {};

// The key and the messages are those of the paper: the bytes 0, 1, 2 and so on.
TEST_F( HashTest, SipHash )
{
    struct Row {
        KoInt length;
        uint64_t hash24;
        uint64_t hash13;
    };
    const Row rows[] = {
        { 0, 0x726fdb47dd0e0e31, 0xabac0158050fc4dc }, { 1, 0xcf2794e0277187b7, 0xcf75576088d38328 },
        { 2, 0x93f5f5799a932462, 0x369095118d299a8e }, { 3, 0x751e8fbc860ee5fb, 0x78a384b157b4d9a2 },
        { 4, 0x3f2acc7f57c29bdb, 0xcc4fdd1a7d908b66 }, { 5, 0xbed65cf21aa2ee98, 0xc0dc2f46a6cce040 },
    };
    const ko::HashKey key = { { 0x0706050403020100, 0x0f0e0d0c0b0a0908 } };
    const KoChar chs[] = { 0x03020100, 0x07060504, 0x0b0a0908, 0x0f0e0d0c, 0x13121110 };
    for ( const Row &row : rows ) {
        EXPECT_EQ( ( ko::SipHash<2, 4>( key, chs, row.length ) ), row.hash24 ) << row.length;
        EXPECT_EQ( ( ko::SipHash<1, 3>( key, chs, row.length ) ), row.hash13 ) << row.length;
    }
}

TEST_F( HashTest, SameCharactersSameHash )
{
    std::set<KoInt> hashes;
    for ( int i = 0; i < 1000; ++i ) {
        const auto a = test::Str( std::to_string( i ) );
        const auto b = test::Str( std::to_string( i ) );
        const KoInt hash = ko___CharsHash( koStringBacking( a.Get() ), koStringLength( a.Get() ) );
        EXPECT_EQ( ko___CharsHash( koStringBacking( b.Get() ), koStringLength( b.Get() ) ), hash );
        hashes.insert( hash );
    }
    EXPECT_EQ( hashes.size(), 1000U );
    EXPECT_EQ( ko___CharsHash( nullptr, 0 ), ko___CharsHash( nullptr, 0 ) );
}

TEST_F( HashTest, WithoutTheSystemCallTheKeyIsWhatTheKernelGaveTheProcess )
{
    ko::HashKey key;
    memcpy( &key, reinterpret_cast<const void *>( getauxval( AT_RANDOM ) ), sizeof key );
    const KoChar chs[] = { 'k', 'e', 'y' };
    EXPECT_EQ( static_cast<uint64_t>( ko___CharsHash( chs, 3 ) ), ( ko::SipHash<1, 3>( key, chs, 3 ) ) );
}

TEST_F( HashTest, Preconditions )
{
    const KoChar ch = 'a';
    EXPECT_ABORT( ko___CharsHash( nullptr, 1 ), path, "chs || length == 0" );
    EXPECT_ABORT( ko___CharsHash( &ch, -1 ), path, "length >= 0" );
}

} // namespace
