/* Names of header fields: the ones that the library knows, and the normal form of all others (RFC 3261 section 7.3.3). */
#ifndef TOLMO_HEADER_NAME_HPP
#define TOLMO_HEADER_NAME_HPP

#include <runtime/ko_inner.hpp>

#include <array>
#include <string_view>

namespace tolmo {

/** Position of a known name in `knownNames`. */
using NameId = uint16_t;
inline constexpr NameId unknownName = 0xFFFF;

/** The names that are recognised on the received bytes, in their normal form. */
inline constexpr std::string_view knownNames[] = {
    "Accept",
    "Accept-Contact",
    "Accept-Encoding",
    "Accept-Language",
    "Accept-Resource-Priority",
    "Alert-Info",
    "Allow",
    "Allow-Events",
    "Authentication-Info",
    "Authorization",
    "Call-Id",
    "Call-Info",
    "Contact",
    "Content-Disposition",
    "Content-Encoding",
    "Content-Language",
    "Content-Length",
    "Content-Type",
    "Cseq",
    "Date",
    "Diversion",
    "Error-Info",
    "Event",
    "Expires",
    "From",
    "Geolocation",
    "History-Info",
    "Identity",
    "Identity-Info",
    "In-Reply-To",
    "Info-Package",
    "Join",
    "Max-Forwards",
    "Mime-Version",
    "Min-Expires",
    "Min-Se",
    "Organization",
    "P-Access-Network-Info",
    "P-Asserted-Identity",
    "P-Called-Party-Id",
    "P-Charging-Vector",
    "P-Early-Media",
    "P-Preferred-Identity",
    "Path",
    "Priority",
    "Privacy",
    "Proxy-Authenticate",
    "Proxy-Authorization",
    "Proxy-Require",
    "Rack",
    "Reason",
    "Record-Route",
    "Recv-Info",
    "Refer-To",
    "Referred-By",
    "Reject-Contact",
    "Remote-Party-Id",
    "Replaces",
    "Reply-To",
    "Request-Disposition",
    "Require",
    "Resource-Priority",
    "Retry-After",
    "Route",
    "Rseq",
    "Server",
    "Service-Route",
    "Session-Expires",
    "Session-Id",
    "Sip-Etag",
    "Sip-If-Match",
    "Subject",
    "Subscription-State",
    "Supported",
    "Timestamp",
    "To",
    "Unsupported",
    "User-Agent",
    "User-To-User",
    "Via",
    "Warning",
    "Www-Authenticate",
};
inline constexpr size_t knownNameCount = std::size( knownNames );

/** The position of a name that is in the list; a name that is not does not compile. */
consteval NameId KnownName( std::string_view name )
{
    NameId id = 0;
    while ( knownNames[id] != name ) {
        ++id;
    }
    return id;
}

/** What stands before a value on the wire: the name, a colon and a blank, in a block that can be copied whole. */
struct WireName {
    char text[31];
    uint8_t length;
};

consteval std::array<WireName, knownNameCount> MakeWireNames()
{
    std::array<WireName, knownNameCount> wire{};
    for ( size_t id = 0; id < knownNameCount; ++id ) {
        for ( const char ch : knownNames[id] ) {
            wire[id].text[wire[id].length++] = ch;
        }
        wire[id].text[wire[id].length++] = ':';
        wire[id].text[wire[id].length++] = ' ';
    }
    return wire;
}
inline constexpr std::array<WireName, knownNameCount> wireNames = MakeWireNames();

inline constexpr NameId contentLengthName = KnownName( "Content-Length" );

/** No known name is longer. RecognizeName reads so many bytes, however long the name is. */
inline constexpr KoInt longestKnownName = 24;

/**
 * Recognises a name, also in its compact form, in any case. What is recognised is a name; what is not, may hold any
 * bytes.
 *
 * @param bytes The name; `longestKnownName` bytes must be readable.
 * @return Its position, or unknownName.
 */
NameId RecognizeName( const uint8_t *bytes, KoInt length );

/** The same over characters, which need no room behind them: token characters only. */
NameId RecognizeName( const KoChar *chs, KoInt length );

/** The constant string of a known name. Between start and stop of the module only. */
KoString KnownNameString( NameId id );

/** Puts a name that is not known into its normal form, in place: each word between hyphens gets a capital. */
template <class Char>
void CapitalizeName( Char *chs, KoInt length )
{
    bool begins = true;
    for ( KoInt i = 0; i < length; ++i ) {
        const Char ch = chs[i];
        if ( begins && ch >= 'a' && ch <= 'z' ) {
            chs[i] = static_cast<Char>( ch - 0x20 );
        } else if ( !begins && ch >= 'A' && ch <= 'Z' ) {
            chs[i] = static_cast<Char>( ch + 0x20 );
        }
        begins = ch == '-';
    }
}

/** Makes and drops the constant strings, at start and stop of the module. */
void StartKnownNames();
void StopKnownNames();

} // namespace tolmo

#endif
