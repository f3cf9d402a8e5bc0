/* Status codes and their default reason phrases (RFC 3261 section 21). */
#ifndef TOLMO_STATUS_CODE_H
#define TOLMO_STATUS_CODE_H

#include <runtime/ko_string.h>

/** Stands for no status code. */
#define TOLMO_STATUS_CODE_INVALID ( (KoInt)-1 )

KO_BEGIN_DECLS

/** True for a status code: 100 to 999. A code from 700 on belongs to no class. */
KO_API KoBool tolmoStatusCodeOk( KoInt sc );

/** True for provisional responses: 100 to 199. @pre tolmoStatusCodeOk( sc ) */
KO_API KoBool tolmoStatusCodeInformational( KoInt sc );
/** True for success: 200 to 299. @pre tolmoStatusCodeOk( sc ) */
KO_API KoBool tolmoStatusCodeSuccess( KoInt sc );
/** True for redirection: 300 to 399. @pre tolmoStatusCodeOk( sc ) */
KO_API KoBool tolmoStatusCodeRedirection( KoInt sc );
/** True for a fault of the client: 400 to 499. @pre tolmoStatusCodeOk( sc ) */
KO_API KoBool tolmoStatusCodeClientError( KoInt sc );
/** True for a fault of the server: 500 to 599. @pre tolmoStatusCodeOk( sc ) */
KO_API KoBool tolmoStatusCodeServerError( KoInt sc );
/** True for failure everywhere: 600 to 699. @pre tolmoStatusCodeOk( sc ) */
KO_API KoBool tolmoStatusCodeGlobalFailure( KoInt sc );

/**
 * The default reason phrase of a status code; `Unknown reason "199"` for a code that has none.
 *
 * @return new reference.
 * @pre tolmoStatusCodeOk( sc )
 */
KO_API KoString tolmoStatusCodeReasonPhrase( KoInt sc );

KO_END_DECLS

#endif
