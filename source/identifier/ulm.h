/* The ulm library: resource identifiers (RFC 3986, RFC 3987). */
#ifndef ULM_H
#define ULM_H

#include <address/wen.h>

KO_BEGIN_DECLS

/**
 * How many characters at the start of a text form a resource identifier (RFC 3987, section 2.2, without the structure
 * of single schemes), the longest prefix:
 *
 *     iri    = scheme ":" *ichar [ "#" *ichar ]
 *     scheme = ALPHA *( ALPHA / DIGIT / "+" / "-" / "." )
 *     ichar  = ALPHA / DIGIT / any of - . _ ~ ! $ & ' ( ) * + , ; = : @ / ? [ ]
 *            / "%" HEXDIG HEXDIG / ucschar / iprivate
 *
 * Square brackets stand anywhere, since to RFC 3986 `sip:bob@[2001:db8::1]` is a path, which has none. iprivate stands
 * behind the first `?` only. Nothing but the scheme and the colon has to be there. A second `#`, or a `%` without two
 * hexadecimal digits, ends the identifier.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many may be read.
 * @return The number of characters; 0 without scheme and colon.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt ulm___SkipIri( const KoChar *chs, KoInt length );

/**
 * How many characters at the start of a text form an IPv4 address: see wen___SkipIpV4Address.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many may be read.
 * @return The number of characters; 0 when there is no address.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt ulm___SkipIpV4Address( const KoChar *chs, KoInt length );

/**
 * How many characters at the start of a text form an IPv6 address, without brackets: see wen___SkipIpV6Address.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many may be read.
 * @return The number of characters; 0 when there is no address.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt ulm___SkipIpV6Address( const KoChar *chs, KoInt length );

/**
 * How many characters at the start of a text form a port: the whole run of digits.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many may be read.
 * @return The number of characters; 0 without digits, and when their value does not fit a KoInt.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt ulm___SkipPort( const KoChar *chs, KoInt length );

/**
 * True when a string is a resource identifier: ulm___SkipIri takes it whole, and it is not empty.
 *
 * @param part Which piece is meant: 0 is the whole identifier, and nothing else is known.
 * @param iri shared, the caller keeps its reference.
 * @pre part == 0
 * @pre iri
 */
KO_API KoBool ulmGensValidatePart( KoInt part, KoString iri );

/**
 * The IRI form of a URI (RFC 3987, section 3.2). Escapes that are the UTF-8 form of a ucschar become that character,
 * except U+00A0, U+1680, U+2000 to U+200F, U+2028 to U+202F, U+205F, U+2066 to U+2069, U+3000 and U+FEFF, which a
 * reader would not see; those, and iprivate, are escaped where they stand as they are. No ASCII character is escaped or
 * unescaped, and escapes that stay keep their case.
 *
 * In a `sip` or `sips` identifier (in any case) the host is what stands behind the first `@`, or else behind the colon,
 * up to `:`, `;`, `?`, `#`, `/` or the end. A domain name that IDNA takes comes in its Unicode form, see
 * wenDnsIdnaDomainNameToUnicode, whether it came as `xn--` labels, escaped or as it is; a name in ASCII without such
 * labels is left alone. Where a second `@` makes the host doubtful, it is text like the rest.
 *
 * @param uri shared, the caller keeps its reference.
 * @return new reference: the same string when it is ASCII, escapes ASCII only and has no host with an `xn--` label;
 * null when ulm___SkipIri does not take the text whole. A result passes ulmGensValidatePart.
 * @pre uri
 */
KO_API KoString ulmTryConvertFromUri( KoString uri );

/**
 * Takes the longest URI at the start of an array, in its IRI form: ulm___SkipIri and ulmTryConvertFromUri in one pass.
 *
 * @param taken Receives a new reference, or null when there is no URI.
 * @return The number of characters taken; 0 when there is none.
 * @pre length >= 0
 * @pre chs || length == 0
 * @pre taken
 */
KO_API KoInt ulm___TakeIri( const KoChar *chs, KoInt length, KoString *taken );

/**
 * The URI form of an IRI (RFC 3987, section 3.1), which is ASCII only: other characters become the escapes of their
 * UTF-8 form, with capital digits. But the host of a `sip` or `sips` identifier, if it is not ASCII and IDNA takes it,
 * becomes its ASCII form, see wenDnsIdnaDomainNameToAscii.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference: the same string when it is ASCII; null only for what ulmGensValidatePart refuses. For every
 * result of ulmTryConvertFromUri, that function gives it back from here.
 * @pre iri
 */
KO_API KoString ulmTryConvertToUri( KoString iri );

/** The module of the library. It needs wen and ko. @return The module, which is a constant. */
KO_API KoModule ulmModule( void );

KO_END_DECLS

#endif
