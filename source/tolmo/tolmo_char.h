/* The character classes of the grammar (RFC 3261 section 25.1). */
#ifndef TOLMO_CHAR_H
#define TOLMO_CHAR_H

#include <runtime/ko_base.h>

KO_BEGIN_DECLS

/** @name Character classes
 * Each tells whether a character is in a class. All are ASCII: any other value, a negative one too, is in none. @{ */

/** ALPHA. */
KO_API KoBool tolmo___CharIsAlpha( KoChar ch );
/** DIGIT. */
KO_API KoBool tolmo___CharIsDigit( KoChar ch );
/** ALPHA / DIGIT. */
KO_API KoBool tolmo___CharIsAlphanum( KoChar ch );
/**
 * HEXDIG, in both cases.
 *
 * @param value may be null; receives the value of the digit, -1 if it is none.
 */
KO_API KoBool tolmo___CharIsHexdig( KoChar ch, KoInt *value );
/** SP / HTAB. Neither CR nor LF: folded lines have been joined before. */
KO_API KoBool tolmo___CharIsLws( KoChar ch );
/** alphanum / any of - . ! % * _ + ` ' ~ */
KO_API KoBool tolmo___CharIsToken( KoChar ch );
/** token without the dot (RFC 6665). */
KO_API KoBool tolmo___CharIsTokenNodot( KoChar ch );
/** token without the dot. This is not the atext of RFC 5322, which is wider. */
KO_API KoBool tolmo___CharIsAtom( KoChar ch );
/** alphanum / any of - . ! % * _ + ` ' ~ ( ) < > : \ " / [ ] ? { } */
KO_API KoBool tolmo___CharIsWord( KoChar ch );
/** Any of - _ . ! ~ * ' ( ) */
KO_API KoBool tolmo___CharIsMark( KoChar ch );
/** alphanum / mark. */
KO_API KoBool tolmo___CharIsUnreserved( KoChar ch );
/** Any of ; / ? : @ & = + $ , */
KO_API KoBool tolmo___CharIsReserved( KoChar ch );
/** Any of & = + $ , ; ? / */
KO_API KoBool tolmo___CharIsUserUnreserved( KoChar ch );
/** Any of [ ] / ? : + $ */
KO_API KoBool tolmo___CharIsHnvUnreserved( KoChar ch );
/** unreserved / any of [ ] / : & + $ %. The RFC has the percent sign at the head of an escape only. */
KO_API KoBool tolmo___CharIsParamChar( KoChar ch );
/** HTAB / SP / any of ( ) < > @ , ; : \ " / [ ] ? = { } */
KO_API KoBool tolmo___CharIsSeparator( KoChar ch );

/** @} */

KO_END_DECLS

#endif
