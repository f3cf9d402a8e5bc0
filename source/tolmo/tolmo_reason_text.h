/* Texts of a Reason, without quotes and escapes (RFC 3326 section 2). */
#ifndef TOLMO_REASON_TEXT_H
#define TOLMO_REASON_TEXT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a text of a Reason: it may be empty, and holds neither CR nor LF.
 *
 *     reason-text = quoted-string    ; on the wire
 *
 * @param text shared, the caller keeps its reference.
 * @pre quotableString
 */
KO_API KoBool tolmoReasonTextOk( KoString text );

KO_END_DECLS

#endif
