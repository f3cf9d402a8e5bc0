/* The module of the library. */
#include <address/wen_module.hpp>

#include <address/wen.h>
#include <ko_build.hpp>

namespace wen {
namespace {

const KoModuleRecord record = KO_BUILD_RECORD( "libwen.so", "wen", "Addresses", "0.0", "ko" );

} // namespace

ko___ModuleObject module = KO_MODULE( &record, nullptr, nullptr );

} // namespace wen

KoModule wenModule( void )
{
    ko___ModuleRegister( koModule() );
    ko___ModuleRegister( &wen::module );
    return &wen::module;
}
