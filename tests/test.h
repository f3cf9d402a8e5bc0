/* What every test file uses: GoogleTest, strings from literals, abort rows, and the count of live objects. */
#ifndef TEST_H
#define TEST_H

#include <gtest/gtest.h>

#include <runtime/ko.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace test {

/** A new string with the characters of a UTF-8 text (embedded zeros included). */
inline KoRef<KoString> Str( std::string_view text )
{
    return KoRef<KoString>::Adopt( koStringCreateFromCstr( text.data(), static_cast<KoInt>( text.size() ) ) );
}

/** The UTF-8 text of a string that stays the caller's; "(null)" for null. */
inline std::string Text( KoString s )
{
    if ( !s ) {
        return "(null)";
    }
    const KoInt need = koCharsConvertToUtf8( nullptr, 0, koStringBacking( s ), koStringLength( s ), KO_FALSE );
    std::string text( static_cast<size_t>( need ), '\0' );
    koCharsConvertToUtf8( text.data(), need, koStringBacking( s ), koStringLength( s ), KO_FALSE );
    return text;
}
inline std::string Text( const KoRef<KoString> &s )
{
    return Text( s.Get() );
}

/** The text of a string that is released: for fresh results. */
inline std::string Take( KoString s )
{
    return Text( KoRef<KoString>::Adopt( s ) );
}

/** A new buffer with the bytes of a text. */
inline KoRef<KoBuffer> Buf( std::string_view bytes )
{
    return KoRef<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( bytes.data(), static_cast<KoInt>( bytes.size() ) ) );
}

/** The bytes of a buffer; of a fresh one, which is released. */
inline std::string Bytes( KoBuffer b )
{
    return { reinterpret_cast<const char *>( koBufferBacking( b ) ), static_cast<size_t>( koBufferLength( b ) ) };
}
inline std::string TakeBytes( KoBuffer b )
{
    const auto owned = KoRef<KoBuffer>::Adopt( b );
    return Bytes( b );
}

/**
 * The characters of a text in a heap block of exactly their size, so that a sanitizer or valgrind sees every read behind
 * the end.
 */
class Exact {
public:
    explicit Exact( std::string_view text ) : Exact( Str( text ).Get(), -1 ) {}
    /** The first `count` characters of a string; -1: all. */
    Exact( KoString s, KoInt count )
        : length( count < 0 ? koStringLength( s ) : count ),
          block( static_cast<KoChar *>( koMemAllocN( length, sizeof( KoChar ) ) ) )
    {
        for ( KoInt i = 0; i < length; ++i ) {
            block[i] = koStringCharAt( s, i );
        }
    }
    Exact( const Exact & ) = delete;
    Exact &operator=( const Exact & ) = delete;
    ~Exact() { koMemFree( block ); }
    [[nodiscard]] const KoChar *Chars() const { return block; }
    [[nodiscard]] KoInt Length() const { return length; }

private:
    KoInt length;
    KoChar *block;
};

/** How a statement ended that ran in a child process. */
struct Ending {
    bool aborted = false;
    std::string line; // what it wrote to standard error, without the line end
};

/** Runs a statement in a child process. */
Ending RunInChild( const std::function<void()> &statement );

/** True when `line` is the abort line of `expression` in the file `path`, with `message`, whatever its line number. */
bool IsAbortLine( const std::string &line, std::string_view message, std::string_view path,
                  std::string_view expression );

/**
 * Success when a statement aborts with exactly the line of `expression` in the file `path` (whatever the line number),
 * with `message` in front. `text` is the statement, for the report.
 */
testing::AssertionResult Aborts( const char *text, const std::function<void()> &statement, std::string_view message,
                                 std::string_view path, std::string_view expression );

/** The reference count of an object that is no constant. */
template <class Handle>
int32_t Count( Handle object )
{
    return reinterpret_cast<KoObj>( object )->count;
}

/** The base of all fixtures: a test leaves as many live objects as it found. */
class Fixture : public testing::Test {
protected:
    void SetUp() override { before = ko___ObjLiveCount(); }
    void TearDown() override { EXPECT_EQ( ko___ObjLiveCount(), before ) << "objects leaked (or released twice)"; }

private:
    KoInt before = 0;
};

} // namespace test

/** The statement must abort with exactly this expression in exactly this file (as "source/runtime/ko_string.cpp"). */
#define EXPECT_ABORT( statement, path, expression ) EXPECT_ABORT_MESSAGE( statement, "", path, expression )

/** EXPECT_ABORT with the message in front of the line. */
#define EXPECT_ABORT_MESSAGE( statement, message, path, expression )                                                   \
    EXPECT_TRUE( test::Aborts(                                                                                         \
        #statement, [&] { statement; }, message, path, expression ) )

#endif
