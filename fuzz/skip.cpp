/*
 * Skip functions, all of them: the result lies between 0 and the length, is the same on a block of exactly the length,
 * and is the same when nothing but the element is there.
 */
#include "tables.hpp"

#include <cstring>

namespace fuzz {
namespace {

// True for the one function whose result is not the length of what it took: it counts the parameters of an element only.
bool CountsPartOnly( const char *name )
{
    return std::strcmp( name, "tolmo___SkipAccept" ) == 0;
}

template <class Run>
void CheckSkip( const char *name, KoString text, const Exact &exact, Run run )
{
    const KoInt length = koStringLength( text );
    const KoInt taken = run( koStringBacking( text ), length );
    CHECK_TELL( taken >= 0 && taken <= length, name );
    CHECK_TELL( run( exact.Chars(), length ) == taken, name );
    if ( !CountsPartOnly( name ) ) {
        CHECK_TELL( run( Exact( exact.Chars(), taken ).Chars(), taken ) == taken, name );
        CHECK_TELL( run( exact.Chars(), taken ) == taken, name );
    }
}

} // namespace

void SkipTarget( std::string_view input )
{
    const auto text = Str( input.substr( 0, 512 ) );
    const Exact exact( text.Get() );
    for ( const Skip &skip : All().skips ) {
        CheckSkip( skip.name, text.Get(), exact, skip.run );
    }
    // A character or a prefix is looked for as it stands at the front, and as something else.
    const KoInt length = exact.Length();
    const KoChar first = length > 0 ? exact.Chars()[0] : ' ';
    for ( const SkipOfChar &skip : All().skipsOfChar ) {
        for ( const KoChar ch : { first, KoChar( ';' ), KoChar( ' ' ) } ) {
            CheckSkip( skip.name, text.Get(), exact,
                       [&]( const KoChar *chs, KoInt count ) { return skip.run( chs, count, ch ); } );
        }
    }
    const Exact prefix( exact.Chars(), length / 2 );
    const Exact word( "Received" );
    for ( const SkipOfChars &skip : All().skipsOfChars ) {
        for ( const Exact *what : { &prefix, &word } ) {
            CheckSkip( skip.name, text.Get(), exact, [&]( const KoChar *chs, KoInt count ) {
                return skip.run( chs, count, what->Chars(), what->Length() );
            } );
        }
        CHECK( skip.run( exact.Chars(), length, prefix.Chars(), prefix.Length() ) == prefix.Length() );
    }
    for ( const SkipOfWord &skip : All().skipsOfWord ) {
        CheckSkip( skip.name, text.Get(), exact, [&]( const KoChar *chs, KoInt count ) {
            KoInt value = -7;
            const KoInt taken = skip.run( chs, count, &value );
            CHECK( skip.run( chs, count, nullptr ) == taken );
            CHECK_TELL( taken == 0 ? value == -7 : taken == 3 && value >= 0 && value <= 12, skip.name );
            return taken;
        } );
    }
}

} // namespace fuzz
