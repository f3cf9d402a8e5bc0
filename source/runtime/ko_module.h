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
 * Starts a module, after the modules that it needs. Counted: each further start needs one more stop. Thread-safe.
 *
 * @pre module
 * @return KO_TRUE when the module runs.
 */
KO_API KoBool koModuleStart( KoModule module );

/** Undoes one koModuleStart. The last one stops the module, then what it needed. @pre module @pre it was started */
KO_API void koModuleStop( KoModule module );

/** Makes a module known by its name, so that others can need it. A module's own accessor calls this. */
KO_API void ko___ModuleRegister( KoModule module );

/** The module of the runtime itself. */
KO_API KoModule koModule( void );

KO_END_DECLS

#endif
