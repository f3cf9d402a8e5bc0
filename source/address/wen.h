/* The wen library: IP addresses and international domain names. */
#ifndef WEN_H
#define WEN_H

#include <runtime/ko_module.h>
#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of an IPv4 or IPv6 address. */
typedef struct wen___Address *WenAddress;

/** @name Sort, casts, references
 * As for strings. IPv4 orders before IPv6, then by the bytes. @{ */
KO_API KoSort wenAddressSort( void );
KO_API WenAddress wenAddressFrom( KoObj obj );
KO_API KoObj wenAddressObj( WenAddress address );
KO_API WenAddress wenAddressRetain( WenAddress address );
KO_API void wenAddressRelease( WenAddress address );
/** @} */

/**
 * An address from its text: four numbers up to 255 without leading zeros, or RFC 4291 text (an embedded IPv4 address is
 * allowed, a zone is not), without brackets and with nothing behind it.
 *
 * @return new reference, or null when the text is no address.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API WenAddress wenAddressTryCreateFromChars( const KoChar *chs, KoInt length );

/** The text of an address in its shortest form (RFC 5952). @return new reference. @pre address */
KO_API KoString wenAddressToStringShrink( WenAddress address );

/** How many characters at the start of a text form an IPv4 address; 0 if none. Preconditions are the caller's. */
KO_API KoInt wen___SkipIpV4Address( const KoChar *chs, KoInt length );
/** The same for an IPv6 address without brackets. */
KO_API KoInt wen___SkipIpV6Address( const KoChar *chs, KoInt length );

/**
 * True when a string is a host that goes through IDNA: a name that UTS #46 (non-transitional, Unicode 15.0) takes, or
 * any text of the host grammar (an IPv4 address, a bracketed IPv6 address, a trailing dot, escapes, all-digit labels).
 *
 * @pre name
 */
KO_API KoBool wenDnsIdnaDomainNameOk( KoString name );
/** The A-label form; a name that needs no conversion comes back as it is. @return new reference. @pre name */
KO_API KoString wenDnsIdnaDomainNameToAscii( KoString name );
/**
 * The U-label form: the argument itself, unless an `xn--` label decodes to a name that converts back to the same text,
 * ASCII case aside.
 *
 * @return new reference.
 * @pre name
 */
KO_API KoString wenDnsIdnaDomainNameToUnicode( KoString name );

/** The module of the library. It needs ko. */
KO_API KoModule wenModule( void );

KO_END_DECLS

#endif
