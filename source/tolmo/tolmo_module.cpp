/* The module of the library: its description, and how it is started. */
#include <tolmo/tolmo_module.h>

#include <ko_build.hpp>
#include <tolmo/tolmo.h>
#include <tolmo/tolmo_params.hpp>

namespace {

#define TOLMO_HEADER( Type, name ) tolmo___Header##Type##Startup,
void ( *const startHeader[] )( void ) = {
#include <tolmo/tolmo_headers.def>
};
#undef TOLMO_HEADER

#define TOLMO_HEADER( Type, name ) tolmo___Header##Type##Shutdown,
void ( *const stopHeader[] )( void ) = {
#include <tolmo/tolmo_headers.def>
};
#undef TOLMO_HEADER

KoBool Start( void )
{
    tolmo::StartParams();
    for ( const auto start : startHeader ) {
        start();
    }
    tolmo___MessageHeaderStartup();
    tolmo___SessUuidStartup();
    tolmo___UuiValueStartup();
    tolmo___VersionStartup();
    tolmo___ViaStartup();
    tolmo___MessageFragmentStartup();
    return KO_TRUE;
}

// The order is not that of the start turned round; no unit uses another one's constants while it stops.
void Stop( void )
{
    tolmo___MessageFragmentShutdown();
    tolmo___SessUuidShutdown();
    tolmo___UuiValueShutdown();
    tolmo___VersionShutdown();
    tolmo___ViaShutdown();
    tolmo___MessageHeaderShutdown();
    for ( const auto stop : stopHeader ) {
        stop();
    }
    tolmo::StopParams();
}

} // namespace

const KoModuleRecord tolmo___module_record = KO_BUILD_RECORD( "libtolmo", "tolmo", "SIP Syntax", "0.0", "wen ulm ko" );
const char *const tolmo___module_version_string = KO_BUILD_STAMP( "tolmo", "0.0" );
struct ko___ModuleObject tolmo___module = KO_MODULE( &tolmo___module_record, Start, Stop );

KoModule tolmoModule( void )
{
    ko___ModuleRegister( koModule() );
    ko___ModuleRegister( wenModule() );
    ko___ModuleRegister( ulmModule() );
    ko___ModuleRegister( &tolmo___module );
    return &tolmo___module;
}
