/* Session identifiers (RFC 7989 section 5). */
#ifndef TOLMO_SESS_UUID_H
#define TOLMO_SESS_UUID_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a session identifier. Letters up to `z` are taken, capitals are not.
 *
 *     sess-uuid = 32( DIGIT / %x61-7A )
 *
 * @param sessUuid shared, the caller keeps its reference.
 * @pre sessUuid
 */
KO_API KoBool tolmoSessUuidOk( KoString sessUuid );

/** The nil session identifier: 32 times the digit 0. The letters of the prefix stand as they are. @return new reference. */
KO_API KoString tlomoSessUuidNil( void );

/**
 * True when a string is the nil session identifier.
 *
 * @param sessUuid shared, the caller keeps its reference.
 * @pre sessUuid
 */
KO_API KoBool tolmoSessUuidIsNil( KoString sessUuid );

/** @name Start-up and shut-down
 * Make and drop the constants of this unit. Called by the module. @{ */
KO_API void tolmo___SessUuidStartup( void );
KO_API void tolmo___SessUuidShutdown( void );
/** @} */

KO_END_DECLS

#endif
