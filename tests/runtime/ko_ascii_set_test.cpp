/* Runs of the members of a set of ASCII characters. */
#include <runtime/ko_ascii_set.hpp>

#include <test.h>

#include <string_view>
#include <vector>

namespace {

consteval ko::AsciiSet SetOf( std::string_view members )
{
    ko::AsciiSet set;
    for ( const char ch : members ) {
        set.Add( ch );
    }
    return set;
}

constexpr std::string_view members = "\x01\tAZaz09-~\x7F /";
constexpr ko::AsciiSet set = SetOf( members );

bool IsMember( KoChar ch )
{
    return ch > 0 && ch < 0x80 && members.find( static_cast<char>( ch ) ) != std::string_view::npos;
}

TEST( AsciiSet, HasItsMembersOnly )
{
    for ( KoChar ch = -0x100; ch < 0x300; ++ch ) {
        EXPECT_EQ( set.Has( ch ), IsMember( ch ) ) << ch;
    }
}

// Each length around the blocks of eight, with something else at each place, in a block of its own of that size.
TEST( AsciiSet, ARunEndsAtTheFirstOther )
{
    std::vector<KoChar> others = { 0x20AC, 0xD7FF, 0x7FFF, 0x8000, 0x8041, 0xFFFF, 0x10041, 0x10FFFF, -1, INT32_MIN };
    for ( KoChar ch = 0; ch < 0x180; ++ch ) {
        others.push_back( ch );
    }
    for ( size_t length = 0; length <= 40; ++length ) {
        std::vector<KoChar> text( length );
        for ( size_t i = 0; i < length; ++i ) {
            text[i] = members[i % members.size()];
        }
        EXPECT_EQ( ko::RunOf( set, text.data(), static_cast<KoInt>( length ) ), static_cast<KoInt>( length ) );
        for ( size_t place = 0; place < length; ++place ) {
            const KoChar before = text[place];
            for ( const KoChar other : others ) {
                text[place] = other;
                EXPECT_EQ( ko::RunOf( set, text.data(), static_cast<KoInt>( length ) ),
                           static_cast<KoInt>( IsMember( other ) ? length : place ) )
                    << length << " characters, " << other << " at " << place;
            }
            text[place] = before;
        }
    }
}

TEST( AsciiSet, AnEmptySetHasNoRun )
{
    constexpr ko::AsciiSet nothing;
    const std::vector<KoChar> text( 20, 0 );
    EXPECT_EQ( ko::RunOf( nothing, text.data(), 20 ), 0 );
    EXPECT_EQ( ko::RunOf( nothing, nullptr, 0 ), 0 );
}

} // namespace
