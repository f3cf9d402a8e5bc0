/* International domain names: UTS #46 of Unicode 15.0. */
#ifndef WEN_DNS_H
#define WEN_DNS_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * @file
 * A host is one of two things. Text of the host grammar of SIP is a host as it stands and is never touched: labels of
 * ASCII letters, digits, hyphens inside and escapes (`%41`), with dots between them and perhaps one at the end; an
 * IPv4 address is such a text; or an IPv6 address in brackets.
 *
 * Everything else is a domain name if UTS #46 (revision 29) takes it. Processing is non-transitional, so that `ß`, the
 * final sigma and the two joiners are kept, and all checks are on:
 *  - UseSTD3ASCIIRules: of ASCII only letters, digits and hyphens; what comes out must be a host name;
 *  - CheckHyphens: no hyphen at either end of a label, and none in both the third and the fourth place;
 *  - CheckBidi: the rule of RFC 5893 for all labels of a name that has a right-to-left one;
 *  - CheckJoiners: the rules of RFC 5892, appendix A.1 and A.2;
 *  - VerifyDnsLength: at most 63 characters for a label and 253 for a name in ASCII form, and no empty label but the
 *    root: a dot at the end is allowed, as in the grammar of SIP, and counts for nothing.
 *
 * An `xn--` label must be the encoding of what it decodes to. No label of more than 63 characters is decoded or encoded.
 */

/**
 * True when a string is a host: text of the host grammar of SIP, or a domain name that UTS #46 takes.
 *
 * @param name shared, the caller keeps its reference.
 * @return KO_TRUE when wenDnsIdnaDomainNameToAscii gives a host in ASCII.
 * @pre name
 */
KO_API KoBool wenDnsIdnaDomainNameOk( KoString name );

/**
 * The ASCII form of a host, with A-labels (`xn--`) in place of labels that are not ASCII.
 *
 * @param name shared, the caller keeps its reference.
 * @return new reference: the same string when it needs no conversion, and when wenDnsIdnaDomainNameOk refuses it.
 * @pre name
 */
KO_API KoString wenDnsIdnaDomainNameToAscii( KoString name );

/**
 * The Unicode form of a host.
 *
 * @param name shared, the caller keeps its reference.
 * @return new reference: the same string, case included, unless it has an `xn--` label and is, ASCII case aside, the
 * ASCII form of another name, which is then the result. wenDnsIdnaDomainNameOk accepts that name.
 * @pre name
 */
KO_API KoString wenDnsIdnaDomainNameToUnicode( KoString name );

/** Room for either form of a domain name that UTS #46 takes, with the dot at its end. */
#define WEN_DNS_NAME_LIMIT 254

/**
 * The ASCII form of a domain name by UTS #46 alone, on arrays. The grammar of SIP is not looked at.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many; not negative. The caller checks.
 * @param out Room for WEN_DNS_NAME_LIMIT characters; undefined when the result is 0.
 * @return The number of characters; 0 when UTS #46 refuses the name.
 */
KO_API KoInt wen___DnsIdnaToAscii( const KoChar *chs, KoInt length, KoChar *out );

/**
 * The Unicode form of a host, on arrays.
 *
 * @param chs The characters; may be null when there are none.
 * @param length How many; not negative. The caller checks.
 * @param out Room for WEN_DNS_NAME_LIMIT characters; undefined when the result is 0.
 * @return The number of characters; 0 when the host stays as it is.
 */
KO_API KoInt wen___DnsIdnaToUnicode( const KoChar *chs, KoInt length, KoChar *out );

KO_END_DECLS

#endif
