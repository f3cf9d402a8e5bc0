/* Texts of a warning, without quotes and escapes (RFC 3261 section 25.1). */
#ifndef TOLMO_WARN_TEXT_H
#define TOLMO_WARN_TEXT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a text of a warning: it may be empty, and holds neither CR nor LF.
 *
 *     warn-text = quoted-string    ; on the wire
 *
 * @param warnText shared, the caller keeps its reference.
 * @pre warnText
 */
KO_API KoBool tolmoWarnTextOk( KoString warnText );

KO_END_DECLS

#endif
