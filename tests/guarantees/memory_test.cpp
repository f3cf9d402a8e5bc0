/* What decoding takes of the heap. */
#include "heap.h"
#include "shapes.h"

#include <test.h>

#include <tolmo/tolmo.h>

namespace {

using test::Buf;
using test::Str;

template <class Handle>
KoRef<Handle> Own( Handle handle )
{
    return KoRef<Handle>::Adopt( handle );
}

class MemoryTest : public test::Fixture {
    void SetUp() override
    {
        static const KoModuleScope started( tolmoModule() );
        Fixture::SetUp();
    }
};

/* The peak. Small messages have small fixed parts of their own, as every thread has. */

constexpr int64_t timesAtMost = 10;
constexpr int64_t fixedPart = 16384;

void ExpectSmall( const std::string &name, const std::string &text, bool good )
{
    const auto bytes = Buf( text );
    const auto datagram = heap::Watched( [&] {
        const auto fragment = Own( tolmoMessageFragmentTryDecode( bytes.Get() ) );
        EXPECT_EQ( bool( fragment ), good ) << name;
    } );
    EXPECT_LE( datagram.peak, timesAtMost * static_cast<int64_t>( text.size() ) + fixedPart ) << name;

    const auto stream = heap::Watched( [&] {
        const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
        tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
        Own( tolmoMessageStreamDecoderRead( decoder.Get() ) );
    } );
    EXPECT_LE( stream.peak, timesAtMost * static_cast<int64_t>( text.size() ) + fixedPart ) << name << ", as a stream";

    const auto head = heap::Watched( [&] {
        KoInt length = 0;
        Own( tolmoMessageFragmentTryDecodeHeaders( bytes.Get(), &length ) );
    } );
    EXPECT_LE( head.peak, timesAtMost * static_cast<int64_t>( text.size() ) + fixedPart ) << name << ", as a head";
    if ( getenv( "TOLMO_PRINT_PEAKS" ) ) {
        std::printf( "%6.2f %6.2f %6.2f  %s\n", double( datagram.peak ) / double( text.size() ),
                     double( stream.peak ) / double( text.size() ), double( head.peak ) / double( text.size() ),
                     name.c_str() );
    }
}

TEST_F( MemoryTest, DecodingTakesAtMostTenTimesTheMessage )
{
    for ( const size_t n : { size_t{ 1000 }, size_t{ 20000 } } ) {
        for ( const auto &shape : shapes::headerShapes ) {
            ExpectSmall( shape.name, shapes::Message( shape.headers( n ) ), shape.good );
        }
        for ( const auto &shape : shapes::messageShapes ) {
            ExpectSmall( shape.name, shape.text( n ), shape.good );
        }
    }
}

TEST_F( MemoryTest, NothingIsAllocatedForADeclaredLength )
{
    for ( const char *length : { "9223372036854775807", "1000000000000", "2147483648" } ) {
        const auto bytes = Buf( shapes::Message( shapes::Header( "l", length ), "x" ) );
        const auto watch = heap::Watched( [&] {
            EXPECT_FALSE( bool( Own( tolmoMessageTryDecode( bytes.Get() ) ) ) );
            const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
            for ( int i = 0; i < 100; ++i ) {
                EXPECT_TRUE( tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() ) );
                EXPECT_FALSE( bool( Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) );
                EXPECT_FALSE( tolmoMessageStreamDecoderError( decoder.Get() ) ) << "it waits for its body";
            }
        } );
        EXPECT_LE( watch.peak, timesAtMost * 100 * koBufferLength( bytes.Get() ) + fixedPart ) << length;
    }
}

TEST_F( MemoryTest, AStreamKeepsNoMoreThanWhatIsNotReadYet )
{
    const auto bytes = Buf( "A a: B/1\r\nl: 1\r\n\r\nx" );
    const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
    const auto watch = heap::Watched( [&] {
        for ( int i = 0; i < 20000; ++i ) {
            tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
            EXPECT_TRUE( bool( Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) );
        }
    } );
    EXPECT_LE( watch.peak, fixedPart );
}

} // namespace
