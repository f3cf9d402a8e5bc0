/* The ulm library: resource identifiers (RFC 3986, RFC 3987). */
#ifndef ULM_H
#define ULM_H

#include <address/wen.h>

KO_BEGIN_DECLS

/**
 * The IRI form of a URI. Escapes that form a character of ucschar become that character (ASCII, bidi controls and
 * separators stay escaped); the host of a sip or sips URI comes in its Unicode form.
 *
 * @param uri shared, the caller keeps its reference.
 * @return new reference; null when the text is no resource identifier. A result passes ulmGensValidatePart( 0, result ).
 * @pre uri
 */
KO_API KoString ulmTryConvertFromUri( KoString uri );

/**
 * The URI form of an IRI: ASCII only. The non-ASCII host of a sip or sips IRI goes out in its A-label form.
 *
 * @return new reference; null only for a text that ulmGensValidatePart( 0, iri ) refuses.
 * @pre iri
 */
KO_API KoString ulmTryConvertToUri( KoString iri );

/** True when a string is a whole IRI. @param part 0: the whole identifier; nothing else is known. @pre part == 0 @pre iri */
KO_API KoBool ulmGensValidatePart( KoInt part, KoString iri );

/** @name Skip functions
 * How many characters at the start of an array form the element; 0 if none. They never read behind `length`.
 * @pre length >= 0
 * @pre chs || length == 0 @{ */
/** scheme ":" *ichar [ "#" *ichar ], the longest prefix; generic, blind to the scheme. */
KO_API KoInt ulm___SkipIri( const KoChar *chs, KoInt length );
KO_API KoInt ulm___SkipIpV4Address( const KoChar *chs, KoInt length );
KO_API KoInt ulm___SkipIpV6Address( const KoChar *chs, KoInt length );
/** The whole run of digits if its value fits a KoInt, else 0. */
KO_API KoInt ulm___SkipPort( const KoChar *chs, KoInt length );
/** @} */

/** The module of the library. It needs wen and ko. */
KO_API KoModule ulmModule( void );

KO_END_DECLS

#endif
