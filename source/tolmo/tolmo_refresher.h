/* Refreshers of a session (RFC 4028 section 4). */
#ifndef TOLMO_REFRESHER_H
#define TOLMO_REFRESHER_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a refresher.
 *
 *     refresher = "uac" / "uas"    ; any ASCII case
 *
 * @param refresher shared, the caller keeps its reference.
 * @pre refresher
 */
KO_API KoBool tolmoRefresherOk( KoString refresher );

/**
 * The normal form of a refresher: small letters.
 *
 * @param refresher shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoRefresherOk( refresher )
 */
KO_API KoString tolmoRefresherNormalize( KoString refresher );

KO_END_DECLS

#endif
