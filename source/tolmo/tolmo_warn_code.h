/* Codes of a warning (RFC 3261 section 20.43). */
#ifndef TOLMO_WARN_CODE_H
#define TOLMO_WARN_CODE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a code of a warning: 0 to 999. */
KO_API KoBool tolmoWarnCodeOk( KoInt warnCode );

/**
 * The default text of a code; `Warning "123"`, with quotes in the text, for a code that has none.
 *
 * @return new reference.
 * @pre tolmoWarnCodeOk( warnCode )
 */
KO_API KoString tolmoWarnCodeToString( KoInt warnCode );

/**
 * The digits of a code, without zeros in front: a code below 100 goes out with fewer than the three digits that the
 * grammar wants.
 *
 * @return new reference.
 * @pre tolmoWarnCodeOk( warnCode )
 */
KO_API KoString tolmo___WarnCodeEncode( KoInt warnCode );

/**
 * The number that a text consists of. For text that tolmo___SkipWarnCode took.
 *
 * @pre length >= 0
 * @pre chs || length == 0
 * @pre read && consumed == length
 */
KO_API KoInt tolmo___WarnCodeDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
