/* The module of the library: its description, and how it is started. */
#ifndef TOLMO_MODULE_H
#define TOLMO_MODULE_H

#include <runtime/ko_module.h>

KO_BEGIN_DECLS

/** The module object. Callers use tolmoModule(). */
extern KO_API struct ko___ModuleObject tolmo___module;
/** The description of the module, which the module object points to. */
extern KO_API const KoModuleRecord tolmo___module_record;
/** Product and version, in brackets the operating system, the processor and the build kind, module and version. */
extern KO_API const char *const tolmo___module_version_string;

/**
 * The module of the library, for koModuleStart and koModuleStop. Between its start and its stop any number of threads
 * may call the library; outside of that nobody may.
 *
 * @return The address of tolmo___module.
 */
KO_API KoModule tolmoModule( void );

KO_END_DECLS

#endif
