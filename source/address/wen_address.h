/* IP addresses: IPv4, and IPv6 of RFC 4291. */
#ifndef WEN_ADDRESS_H
#define WEN_ADDRESS_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of an IPv4 or IPv6 address. An address never changes. */
typedef struct wen___Address *WenAddress;

/** The sort of addresses. IPv4 orders before IPv6, then the bytes decide. @return The sort, which is a constant. */
KO_API KoSort wenAddressSort( void );

/**
 * The same handle as an address; changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The handle; null for null.
 * @pre !obj || koObjSort( obj ) == wenAddressSort()
 */
KO_API WenAddress wenAddressFrom( KoObj obj );

/**
 * The same handle as an object; changes no count.
 *
 * @param address shared, the caller keeps its reference; may be null.
 * @return The handle; null for null.
 */
KO_API KoObj wenAddressObj( WenAddress address );

/**
 * Adds a reference.
 *
 * @param object shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre object
 */
KO_API WenAddress wenAddressRetain( WenAddress object );

/**
 * Drops a reference; the last one ends the address.
 *
 * @param object taken over.
 * @pre object
 */
KO_API void wenAddressRelease( WenAddress object );

/**
 * The address that a text tells, as wen___SkipIpV4Address and wen___SkipIpV6Address read it: without brackets, without
 * a zone and with nothing behind it.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many.
 * @return new reference; null when the text is no address.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API WenAddress wenAddressTryCreateFromChars( const KoChar *chs, KoInt length );

/**
 * The shortest text of an address (RFC 5952): small digits, no leading zeros, `::` for the longest run of two or more
 * zero groups, the first one of equals. An IPv4-mapped address ends in dotted form: `::ffff:192.0.2.1`.
 *
 * @param address shared, the caller keeps its reference.
 * @return new reference.
 * @pre address
 */
KO_API KoString wenAddressToStringShrink( WenAddress address );

/**
 * How many characters at the start of a text form an IPv4 address (RFC 3986, section 3.2.2): four numbers up to 255
 * with dots between them. A number is a whole run of digits, at most three and without a leading zero, so that
 * `1.2.3.256` is no address and not `1.2.3.25` with something behind it.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many may be read; not negative. The caller checks.
 * @return The number of characters; 0 when there is no address.
 */
KO_API KoInt wen___SkipIpV4Address( const KoChar *chs, KoInt length );

/**
 * How many characters at the start of a text form an IPv6 address (RFC 4291, section 2.2): the longest prefix that is
 * one. A group is a whole run of hexadecimal digits, at most four; the last two may be an IPv4 address; `::` stands for
 * at least one group. Neither brackets nor a zone belong to it.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many may be read; not negative. The caller checks.
 * @return The number of characters; 0 when there is no address.
 */
KO_API KoInt wen___SkipIpV6Address( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
