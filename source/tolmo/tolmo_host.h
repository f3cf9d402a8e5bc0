/* Hosts: ASCII on the wire, Unicode in the objects (RFC 3261 section 25.1, UTS #46). */
#ifndef TOLMO_HOST_H
#define TOLMO_HOST_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a host, or a domain name whose ASCII form is one.
 *
 *     host = hostname / IPv4address / "[" IPv6address "]"    ; the longest one
 *
 * @param host shared, the caller keeps its reference.
 * @pre host
 */
KO_API KoBool tolmoHostOk( KoString host );

/**
 * The ASCII form of a host. An ASCII host comes back as it is, its case included.
 *
 * @param host shared, the caller keeps its reference.
 * @return new reference.
 * @pre host
 * @pre tolmoHostOk( host ), with the text "length && length == tolmo___SkipHost( koStringBacking( result ), length )"
 */
KO_API KoString tolmo___HostEncode( KoString host );

/**
 * The Unicode form of a host.
 *
 * @return new reference; null when the text is no host.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoString tolmo___HostTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
