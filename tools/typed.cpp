/* The typed headers of a message, for the reader's eye. */
#include "typed.hpp"

#include <algorithm>

namespace tools {
namespace {

template <class Handle>
void Release( Handle object )
{
    koObjRelease( reinterpret_cast<KoObj>( object ) );
}

/** A header that is one value: its text, as the library would write it. */
template <auto tryDecode, auto toString>
Typed Single( TolmoMessage msg )
{
    const auto hdr = tryDecode( msg );
    if ( !hdr ) {
        return {};
    }
    Typed typed{ true, { Take( toString( hdr ) ) } };
    Release( hdr );
    return typed;
}

/** A list of values: the text of each, or that it does not decode. */
template <auto tryDecode, auto length, auto tryDecodeAt, auto encode>
Typed List( TolmoMessage msg )
{
    const auto hdr = tryDecode( msg );
    if ( !hdr ) {
        return {};
    }
    Typed typed{ true, {} };
    for ( KoInt i = 0; i < length( hdr ); ++i ) {
        if ( const auto value = tryDecodeAt( hdr, i ) ) {
            typed.items.push_back( Take( encode( value ) ) );
            Release( value );
        } else {
            typed.items.push_back( "item " + std::to_string( i ) + " does not decode" );
        }
    }
    Release( hdr );
    return typed;
}

/** A list or a set of words. */
template <auto tryDecode, auto length, auto at>
Typed Words( TolmoMessage msg )
{
    const auto hdr = tryDecode( msg );
    if ( !hdr ) {
        return {};
    }
    Typed typed{ true, {} };
    for ( KoInt i = 0; i < length( hdr ); ++i ) {
        typed.items.push_back( Take( at( hdr, i ) ) );
    }
    Release( hdr );
    return typed;
}

#define SINGLE( Type, name, reference )                                                                                \
    {                                                                                                                  \
        name, reference, Single<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##ToString>                  \
    }
#define LIST( Type, name, Item, Value, reference )                                                                     \
    {                                                                                                                  \
        name, reference,                                                                                               \
            List<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##Item##sLength,                            \
                 tolmoHeader##Type##TryDecode##Item##At, tolmo___##Value##Encode>                                      \
    }
#define WORDS( Type, name, Item, reference )                                                                           \
    {                                                                                                                  \
        name, reference,                                                                                               \
            Words<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##Item##sLength,                           \
                  tolmoHeader##Type##Item##At>                                                                         \
    }

} // namespace

const std::vector<KnownHeader> &KnownHeaders()
{
    static const std::vector<KnownHeader> headers = {
        LIST( Accept, "Accept", Accept, Accept, "RFC 3261 section 20.1" ),
        LIST( AcceptEncoding, "Accept-Encoding", AcceptEncoding, AcceptEncoding, "RFC 3261 section 20.2" ),
        WORDS( AcceptResourcePriority, "Accept-Resource-Priority", Rvalue, "RFC 4412" ),
        LIST( AlertInfo, "Alert-Info", AlertInfo, AlertInfo, "RFC 3261 section 20.4" ),
        WORDS( Allow, "Allow", Method, "RFC 3261 section 20.5" ),
        WORDS( AllowEvents, "Allow-Events", EventType, "RFC 6665" ),
        SINGLE( CallId, "Call-Id", "RFC 3261 section 20.8" ),
        LIST( CallInfo, "Call-Info", CallInfo, CallInfo, "RFC 3261 section 20.9" ),
        LIST( Contact, "Contact", Contact, Contact, "RFC 3261 section 20.10" ),
        SINGLE( ContentDisposition, "Content-Disposition", "RFC 3261 section 20.11" ),
        WORDS( ContentEncoding, "Content-Encoding", ContentCoding, "RFC 3261 section 20.12" ),
        SINGLE( Cseq, "Cseq", "RFC 3261 section 20.16" ),
        SINGLE( Date, "Date", "RFC 3261 section 20.17" ),
        LIST( Diversion, "Diversion", Diversion, Diversion, "RFC 5806" ),
        LIST( ErrorInfo, "Error-Info", ErrorInfo, ErrorInfo, "RFC 3261 section 20.18" ),
        SINGLE( Event, "Event", "RFC 6665" ),
        SINGLE( Expires, "Expires", "RFC 3261 section 20.19" ),
        SINGLE( From, "From", "RFC 3261 section 20.20" ),
        LIST( HistoryInfo, "History-Info", HistoryInfo, HistoryInfo, "RFC 7044" ),
        WORDS( InReplyTo, "In-Reply-To", CallId, "RFC 3261 section 20.21" ),
        SINGLE( InfoPackage, "Info-Package", "RFC 6086" ),
        SINGLE( MaxForwards, "Max-Forwards", "RFC 3261 section 20.22" ),
        SINGLE( MinExpires, "Min-Expires", "RFC 3261 section 20.23" ),
        SINGLE( MinSe, "Min-Se", "RFC 4028" ),
        SINGLE( Organization, "Organization", "RFC 3261 section 20.25" ),
        LIST( PAssertedIdentity, "P-Asserted-Identity", IdentityValue, IdentityValue, "RFC 3325" ),
        SINGLE( PCalledPartyId, "P-Called-Party-Id", "RFC 7315" ),
        WORDS( PEarlyMedia, "P-Early-Media", EmParam, "RFC 5009" ),
        LIST( PPreferredIdentity, "P-Preferred-Identity", IdentityValue, IdentityValue, "RFC 3325" ),
        SINGLE( Priority, "Priority", "RFC 3261 section 20.26" ),
        WORDS( Privacy, "Privacy", PrivValue, "RFC 3323" ),
        WORDS( ProxyRequire, "Proxy-Require", OptionTag, "RFC 3261 section 20.29" ),
        SINGLE( Rack, "Rack", "RFC 3262" ),
        LIST( Reason, "Reason", Reason, Reason, "RFC 3326" ),
        LIST( RecordRoute, "Record-Route", Route, Route, "RFC 3261 section 20.30" ),
        LIST( RecvInfo, "Recv-Info", InfoPackageType, InfoPackageType, "RFC 6086" ),
        SINGLE( ReferTo, "Refer-To", "RFC 3515" ),
        SINGLE( ReferredBy, "Referred-By", "RFC 3892" ),
        SINGLE( RemotePartyId, "Remote-Party-Id", "draft-ietf-sip-privacy-04" ),
        SINGLE( Replaces, "Replaces", "RFC 3891" ),
        SINGLE( ReplyTo, "Reply-To", "RFC 3261 section 20.31" ),
        WORDS( Require, "Require", OptionTag, "RFC 3261 section 20.32" ),
        WORDS( ResourcePriority, "Resource-Priority", Rvalue, "RFC 4412" ),
        SINGLE( RetryAfter, "Retry-After", "RFC 3261 section 20.33" ),
        LIST( Route, "Route", Route, Route, "RFC 3261 section 20.34" ),
        SINGLE( Rseq, "Rseq", "RFC 3262" ),
        SINGLE( Server, "Server", "RFC 3261 section 20.35" ),
        LIST( ServiceRoute, "Service-Route", Route, Route, "RFC 3608" ),
        SINGLE( SessionExpires, "Session-Expires", "RFC 4028" ),
        SINGLE( SessionId, "Session-Id", "RFC 7989" ),
        SINGLE( Subject, "Subject", "RFC 3261 section 20.36" ),
        SINGLE( SubscriptionState, "Subscription-State", "RFC 6665" ),
        WORDS( Supported, "Supported", OptionTag, "RFC 3261 section 20.37" ),
        SINGLE( Timestamp, "Timestamp", "RFC 3261 section 20.38" ),
        SINGLE( To, "To", "RFC 3261 section 20.39" ),
        WORDS( Unsupported, "Unsupported", OptionTag, "RFC 3261 section 20.40" ),
        SINGLE( UserAgent, "User-Agent", "RFC 3261 section 20.41" ),
        LIST( UserToUser, "User-To-User", UuiValue, UuiValue, "RFC 7433" ),
        LIST( Via, "Via", Via, Via, "RFC 3261 section 20.42" ),
        LIST( Warning, "Warning", Warning, WarningValue, "RFC 3261 section 20.43" ),
    };
    return headers;
}

std::optional<Typed> DecodeTyped( TolmoMessage msg, const std::string &name )
{
    const auto &headers = KnownHeaders();
    const auto found =
        std::find_if( headers.begin(), headers.end(), [&]( const KnownHeader &h ) { return name == h.name; } );
    return found == headers.end() ? std::nullopt : std::optional( found->decode( msg ) );
}

} // namespace tools
