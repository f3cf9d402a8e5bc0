/* Modules: the registry by name, start and stop; and the module of the runtime itself. */
#include <runtime/ko_module.h>

#include <runtime/ko_inner.hpp>

#include <ko_build.hpp>

#include <cstring>
#include <pthread.h>

namespace {

// The runtime's words of a module. All of them are read and written under the lock only.
enum Word { Registered, Next, Starts };

// Recursive, because a module's start may ask for other modules. It is held while a module starts: who finds a module
// started may use it.
pthread_mutex_t lock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;
KoModule modules = nullptr;

class Locked {
public:
    Locked() { pthread_mutex_lock( &lock ); }
    ~Locked() { pthread_mutex_unlock( &lock ); }
    Locked( const Locked & ) = delete;
    Locked &operator=( const Locked & ) = delete;
};

/** The first name of a list that is separated by blanks; the length is 0 at the end of the list. */
struct Name {
    explicit Name( const char *names ) : begin( names + strspn( names, " " ) ), length( strcspn( begin, " " ) ) {}
    [[nodiscard]] const char *End() const { return begin + length; }

    const char *begin;
    size_t length;
};

/** The registered module of a name, or null. */
KoModule Find( const Name &name )
{
    KoModule module = modules;
    while ( module && ( strlen( module->record->name ) != name.length ||
                        memcmp( module->record->name, name.begin, name.length ) != 0 ) ) {
        module = reinterpret_cast<KoModule>( module->runtime[Next] );
    }
    return module;
}

/** Stops the modules of a list of names up to a place in it, the last one first. */
void StopAll( const char *names, const char *end )
{
    const Name name( names );
    if ( name.length > 0 && name.begin < end ) {
        StopAll( name.End(), end );
        koModuleStop( Find( name ) );
    }
}

const KoModuleRecord record = KO_BUILD_RECORD( "libko.so", "ko", "Base Runtime", "0.0", "" );

} // namespace

struct ko___ModuleObject ko::runtimeModule = KO_MODULE( &record, nullptr, nullptr );

KoBool koModuleStart( KoModule module )
{
    KO_REQUIRE( module );
    const Locked locked;
    if ( module->runtime[Starts]++ > 0 ) {
        return KO_TRUE;
    }
    const char *const needs = module->record->needs;
    bool started = true;
    Name name( needs );
    for ( ; started && name.length > 0; name = Name( name.End() ) ) {
        const KoModule needed = Find( name );
        KO_REQUIRE( needed );
        started = koModuleStart( needed );
        if ( !started ) {
            StopAll( needs, name.begin );
        }
    }
    if ( started && module->start && !module->start() ) {
        StopAll( needs, name.begin );
        started = false;
    }
    if ( !started ) {
        module->runtime[Starts] = 0;
    }
    return started;
}

void koModuleStop( KoModule module )
{
    KO_REQUIRE( module );
    const Locked locked;
    KO_REQUIRE( module->runtime[Starts] > 0 );
    if ( --module->runtime[Starts] > 0 ) {
        return;
    }
    if ( module->stop ) {
        module->stop();
    }
    StopAll( module->record->needs, module->record->needs + strlen( module->record->needs ) );
}

void ko___ModuleRegister( KoModule module )
{
    KO_REQUIRE( module );
    const Locked locked;
    if ( !module->runtime[Registered] ) {
        module->runtime[Registered] = 1;
        module->runtime[Next] = reinterpret_cast<intptr_t>( modules );
        modules = module;
    }
}

KoModule koModule( void )
{
    ko___ModuleRegister( &ko::runtimeModule );
    return &ko::runtimeModule;
}
