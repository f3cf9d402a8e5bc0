/* The module of the library. */
#include <address/wen.h>
#include <identifier/ulm.h>
#include <ko_build.hpp>

namespace ulm {
namespace {

const KoModuleRecord record = KO_BUILD_RECORD( "libulm.so", "ulm", "Resource Identifiers", "0.0", "wen ko" );

ko___ModuleObject module = KO_MODULE( &record, nullptr, nullptr );

} // namespace
} // namespace ulm

KoModule ulmModule( void )
{
    wenModule();
    ko___ModuleRegister( &ulm::module );
    return &ulm::module;
}
