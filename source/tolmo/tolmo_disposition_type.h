/* Disposition types of a body (RFC 3261 section 25.1). */
#ifndef TOLMO_DISPOSITION_TYPE_H
#define TOLMO_DISPOSITION_TYPE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a disposition type.
 *
 *     disp-type = token
 *
 * @param dispositionType shared, the caller keeps its reference.
 * @pre dispositionType
 */
KO_API KoBool tolmoDispositionTypeOk( KoString dispositionType );

/**
 * The normal form of a disposition type: small letters.
 *
 * @param dispositionType shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoDispositionTypeOk( dispositionType )
 */
KO_API KoString tolmoDispositionTypeNormalize( KoString dispositionType );

KO_END_DECLS

#endif
