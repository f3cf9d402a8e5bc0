/* Media subtypes (RFC 3261 section 25.1). */
#ifndef TOLMO_MEDIA_SUBTYPE_H
#define TOLMO_MEDIA_SUBTYPE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a media subtype: a token, but not the lone `*`.
 *
 *     m-subtype = token
 *
 * @param mediaSubtype shared, the caller keeps its reference.
 * @pre mediaSubtype
 */
KO_API KoBool tolmoMediaSubtypeOk( KoString mediaSubtype );

/**
 * The normal form of a media subtype: small letters.
 *
 * @param mediaSubtype shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoMediaSubtypeOk( mediaSubtype )
 */
KO_API KoString tolmoMediaSubtypeNormalize( KoString mediaSubtype );

KO_END_DECLS

#endif
