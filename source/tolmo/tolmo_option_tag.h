/* Option tags (RFC 3261 section 25.1). */
#ifndef TOLMO_OPTION_TAG_H
#define TOLMO_OPTION_TAG_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an option tag.
 *
 *     option-tag = token
 *
 * @param optionTag shared, the caller keeps its reference.
 * @pre optionTag
 */
KO_API KoBool tolmoOptionTagOk( KoString optionTag );

/**
 * The normal form of an option tag: small letters.
 *
 * @param optionTag shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoOptionTagOk( optionTag )
 */
KO_API KoString tolmoOptionTagNormalize( KoString optionTag );

KO_END_DECLS

#endif
