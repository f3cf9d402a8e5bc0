/* Constant strings: one object for each text, kept for the rest of the process. */
#include <runtime/ko_ref.h>
#include <runtime/ko_string.h>

#include <pthread.h>
#include <utility>

namespace {

struct Constant {
    Constant *next;
    KoString text;
};

pthread_mutex_t constantsLock = PTHREAD_MUTEX_INITIALIZER;
Constant *constants = nullptr;

KoString FindOrKeep( KoRef<KoString> text )
{
    // A program has a hundred or two, and asks for them when it starts.
    for ( const Constant *constant = constants; constant; constant = constant->next ) {
        if ( koStringEquals( constant->text, text.Get() ) ) {
            return constant->text;
        }
    }
    const auto constant = static_cast<Constant *>( koMemAllocN( 1, sizeof( Constant ) ) );
    *constant = { constants, text.Leak() };
    if ( ko___IsUnique( koStringObj( constant->text ) ) ) { // the empty string is a constant already
        ko___ObjMakeConstant( koStringObj( constant->text ) );
    }
    constants = constant;
    return constant->text;
}

} // namespace

KoString koStringConstant( const char *literal )
{
    KO_REQUIRE( literal );
    auto text = KoRef<KoString>::Adopt( koStringCreateFromCstr( literal, -1 ) );
    pthread_mutex_lock( &constantsLock );
    const KoString constant = FindOrKeep( std::move( text ) );
    pthread_mutex_unlock( &constantsLock );
    return constant;
}
