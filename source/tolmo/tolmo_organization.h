/* Organizations (RFC 3261 section 25.1). */
#ifndef TOLMO_ORGANIZATION_H
#define TOLMO_ORGANIZATION_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an organization: words of any characters but controls, with whitespace between and around them. The
 * empty string is one too.
 *
 *     organization = [ TEXT-UTF8-TRIM ]
 *
 * @param organization shared, the caller keeps its reference.
 * @pre organization
 */
KO_API KoBool tolmoOrganizationOk( KoString organization );

/**
 * The normal form of an organization: its words with one blank between them, and none around them. The abort on a string that
 * is none has the message "organization invalid".
 *
 * @param organization shared, the caller keeps its reference.
 * @return new reference.
 * @pre organization
 * @pre tolmoOrganizationOk( organization )
 */
KO_API KoString tolmoOrganizationNormalize( KoString organization );

KO_END_DECLS

#endif
