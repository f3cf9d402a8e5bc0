/* Branches of a Via (RFC 3261 section 25.1). */
#ifndef TOLMO_BRANCH_H
#define TOLMO_BRANCH_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a branch: a token, with or without the magic cookie.
 *
 *     branch = token
 *
 * @param branch shared, the caller keeps its reference.
 * @pre branch
 */
KO_API KoBool tolmoBranchOk( KoString branch );

KO_END_DECLS

#endif
