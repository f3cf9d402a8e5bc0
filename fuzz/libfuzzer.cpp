/* The entry of libFuzzer: the program runs the target that it is named after. */
#include "fuzz.hpp"

#include <cstdio>
#include <cstdlib>

namespace {

fuzz::Target target;

} // namespace

extern "C" int LLVMFuzzerInitialize( int *, char ***argv )
{
    const std::string_view path = ( *argv )[0];
    const std::string_view name = path.substr( path.rfind( '_' ) + 1 );
    for ( const fuzz::NamedTarget &named : fuzz::Targets() ) {
        if ( name == named.name ) {
            target = named.run;
        }
    }
    if ( !target ) {
        std::fprintf( stderr, "%s: there is no such target\n", ( *argv )[0] );
        std::exit( 2 );
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Run( target, { reinterpret_cast<const char *>( data ), size } );
    return 0;
}
