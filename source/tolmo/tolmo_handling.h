/* Handlings of a body, the parameter `handling` (RFC 3261 section 25.1). */
#ifndef TOLMO_HANDLING_H
#define TOLMO_HANDLING_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a handling.
 *
 *     handling = token
 *
 * @param handling shared, the caller keeps its reference.
 * @pre handling
 */
KO_API KoBool tolmoHandlingOk( KoString handling );

/**
 * The normal form of a handling: small letters.
 *
 * @param handling shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoHandlingOk( handling )
 */
KO_API KoString tolmoHandlingNormalize( KoString handling );

KO_END_DECLS

#endif
