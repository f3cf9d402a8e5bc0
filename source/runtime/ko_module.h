/* Modules: what a library tells of itself, and how it is started and stopped. */
#ifndef KO_MODULE_H
#define KO_MODULE_H

#include <runtime/ko_object.h>

KO_BEGIN_DECLS

/** The description of a module. */
typedef struct {
    KoInt format; /* 2 */
    const char *productFileName;
    const char *productName;
    KoInt productVersionMajor;
    KoInt productVersionMinor;
    KoInt productVersionPatch;
    const char *buildTime; /* UTC: year-month-day hours:minutes:seconds (weekday) */
    const char *vendor;
    const char *legalNotice;
    const char *name;
    const char *description;
    const char *version;
    const char *needs; /* names of modules, separated by blanks */
    const char *reserved;
} KoModuleRecord;

/** A module: the same frame as a sort, with the kind 2. */
struct ko___ModuleObject {
    intptr_t frame[10]; /* 2 (a module), 0, -1, 1, six zeros */
    const KoModuleRecord *record;
    KoBool ( *start )( void );
    intptr_t zero;
    void ( *stop )( void );
    intptr_t runtime[6]; /* the runtime's: see ko_module.cpp */
};

/** The initialiser of a module. */
#define KO_MODULE( record, start, stop )                                                                               \
    {                                                                                                                  \
        { 2, 0, -1, 1, 0, 0, 0, 0, 0, 0 }, record, start, 0, stop,                                                     \
        {                                                                                                              \
            0, 0, 0, 0, 0, 0                                                                                           \
        }                                                                                                              \
    }

/**
 * Starts a module, after the modules that it needs, in the order of its list. Counted: each further start needs one
 * more stop. Thread-safe: when it returns, the module runs.
 *
 * @param module The module. What it needs has been registered: its accessor sees to that.
 * @return KO_FALSE when the module, or one that it needs, could not start; then nothing is left started by this call.
 * @pre module
 * @pre needed (a module of that name is registered)
 */
KO_API KoBool koModuleStart( KoModule module );

/**
 * Undoes one start. The last one stops the module, then the modules that it needs, in reverse order.
 *
 * @param module The module.
 * @pre module
 * @pre module->runtime[Starts] > 0 (it was started)
 */
KO_API void koModuleStop( KoModule module );

/**
 * Makes a module known by its name, so that others can need it; once is enough. A module's accessor calls this for the
 * modules that it needs and for itself:
 *
 *     KoModule wenModule( void )
 *     {
 *         koModule();
 *         ko___ModuleRegister( &module );
 *         return &module;
 *     }
 *
 * @param module The module, for the rest of the process: its library must not be unloaded.
 * @pre module
 */
KO_API void ko___ModuleRegister( KoModule module );

/** The module of the runtime itself. */
KO_API KoModule koModule( void );

KO_END_DECLS

#endif
