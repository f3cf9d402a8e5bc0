/* Subjects (RFC 3261 section 25.1). */
#ifndef TOLMO_SUBJECT_H
#define TOLMO_SUBJECT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a subject: words of any characters but controls, with whitespace between and around them. The
 * empty string is one too.
 *
 *     subject = [ TEXT-UTF8-TRIM ]
 *
 * @param subject shared, the caller keeps its reference.
 * @pre subject
 */
KO_API KoBool tolmoSubjectOk( KoString subject );

/**
 * The normal form of a subject: its words with one blank between them, and none around them. The abort on a string that
 * is none has the message "subject invalid".
 *
 * @param subject shared, the caller keeps its reference.
 * @return new reference.
 * @pre subject
 * @pre tolmoSubjectOk( subject )
 */
KO_API KoString tolmoSubjectNormalize( KoString subject );

KO_END_DECLS

#endif
