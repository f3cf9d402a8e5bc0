/* tolmo, through its public headers.
 *
 * parse: koBufferCreateFromBytesCopy, tolmoMessageTryDecode, release of both. The start line is decoded (method, IRI,
 * version), all header lines are found, their names recognised and merged, Content-Length obeyed and the body copied;
 * values of headers stay text until they are asked for.
 */
#include "peer_api.h"

#include <tolmo/tolmo.h>

#include <cstring>
#include <string_view>

namespace {

/* Room for the bytes of what a message hands out, taken anew for each message. */
struct Context {
    char room[16384];
    size_t used;
};

int Init()
{
    return koModuleStart( tolmoModule() ) ? 0 : -1;
}

void *NewContext()
{
    return new Context;
}

template <class Handle>
using Ref = KoRef<Handle>;

/* The bytes of a string that is handed over, if there is one and they find room. */
std::string_view TakeText( Context *context, KoString fresh )
{
    const auto s = Ref<KoString>::Adopt( fresh );
    if ( !s ) {
        return {};
    }
    char *const to = context->room + context->used;
    const KoInt room = static_cast<KoInt>( sizeof context->room - context->used );
    const KoInt length =
        koCharsConvertToUtf8( to, room, koStringBacking( s.Get() ), koStringLength( s.Get() ), KO_FALSE );
    if ( length > room ) {
        return {};
    }
    context->used += static_cast<size_t>( length );
    return { to, static_cast<size_t>( length ) };
}

sview View( std::string_view text )
{
    return { text.data(), text.size() };
}

sview TakeBytes( Context *context, KoString fresh )
{
    return View( TakeText( context, fresh ) );
}

/* User and host of a SIP IRI: the library leaves these to the layers above. */
void TakeUserAndHost( Context *context, KoString fresh, sview *user, sview *host )
{
    std::string_view text = TakeText( context, fresh );
    text.remove_prefix( text.find( ':' ) + 1 );
    if ( const size_t at = text.find( '@' ); at != text.npos ) {
        *user = View( text.substr( 0, at ) );
        text.remove_prefix( at + 1 );
    }
    const size_t behindLiteral = text.starts_with( '[' ) ? text.find( ']' ) : 0;
    for ( const char mark : { ';', '?', ':' } ) {
        text = text.substr( 0, text.find( mark, behindLiteral ) );
    }
    *host = View( text );
}

Ref<TolmoMessage> Decode( const char *bytes, size_t length )
{
    const auto buffer = Ref<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( bytes, static_cast<KoInt>( length ) ) );
    return Ref<TolmoMessage>::Adopt( tolmoMessageTryDecode( buffer.Get() ) );
}

int Parse( void *, const char *bytes, size_t length )
{
    return Decode( bytes, length ) ? 0 : -1;
}

int Core( void *ctx, const char *bytes, size_t length, core_sink sink )
{
    auto *const context = static_cast<Context *>( ctx );
    context->used = 0;
    const auto msg = Decode( bytes, length );
    if ( !msg ) {
        return -1;
    }
    core_out out;
    memset( &out, 0, sizeof out );
    const auto vias = Ref<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    if ( !vias ) {
        return -1;
    }
    const auto via = Ref<TolmoVia>::Adopt( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
    out.via_host = TakeBytes( context, tolmoViaHost( via.Get() ) );
    out.via_port = static_cast<long>( tolmoViaPort( via.Get() ) );
    out.via_branch = TakeBytes( context, tolmoViaBranch( via.Get() ) );
    const auto from = Ref<TolmoHeaderFrom>::Adopt( tolmoHeaderFromTryDecodeFromMessage( msg.Get() ) );
    TakeUserAndHost( context, tolmoHeaderFromIri( from.Get() ), &out.from_user, &out.from_host );
    out.from_tag = TakeBytes( context, tolmoHeaderFromTag( from.Get() ) );
    const auto to = Ref<TolmoHeaderTo>::Adopt( tolmoHeaderToTryDecodeFromMessage( msg.Get() ) );
    TakeUserAndHost( context, tolmoHeaderToIri( to.Get() ), &out.to_user, &out.to_host );
    out.to_tag = TakeBytes( context, tolmoHeaderToTag( to.Get() ) );
    const auto callId = Ref<TolmoHeaderCallId>::Adopt( tolmoHeaderCallIdTryDecodeFromMessage( msg.Get() ) );
    out.call_id = TakeBytes( context, tolmoHeaderCallIdCallId( callId.Get() ) );
    const auto cseq = Ref<TolmoHeaderCseq>::Adopt( tolmoHeaderCseqTryDecodeFromMessage( msg.Get() ) );
    out.cseq = static_cast<long>( tolmoHeaderCseqCseq( cseq.Get() ) );
    out.cseq_method = TakeBytes( context, tolmoHeaderCseqMethod( cseq.Get() ) );
    if ( const auto contacts = Ref<TolmoHeaderContact>::Adopt( tolmoHeaderContactTryDecodeFromMessage( msg.Get() ) );
         contacts && tolmoHeaderContactContactsLength( contacts.Get() ) > 0 ) {
        const auto contact = Ref<TolmoContact>::Adopt( tolmoHeaderContactTryDecodeContactAt( contacts.Get(), 0 ) );
        TakeUserAndHost( context, tolmoContactIri( contact.Get() ), &out.contact_user, &out.contact_host );
    }
    const auto hops = Ref<TolmoHeaderMaxForwards>::Adopt( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
    out.max_forwards = hops ? static_cast<long>( tolmoHeaderMaxForwardsMaxForwards( hops.Get() ) ) : -1;
    const auto route = Ref<TolmoHeaderRoute>::Adopt( tolmoHeaderRouteTryDecodeFromMessage( msg.Get() ) );
    out.n_route = route ? static_cast<long>( tolmoHeaderRouteRoutesLength( route.Get() ) ) : 0;
    const auto record = Ref<TolmoHeaderRecordRoute>::Adopt( tolmoHeaderRecordRouteTryDecodeFromMessage( msg.Get() ) );
    out.n_record_route = record ? static_cast<long>( tolmoHeaderRecordRouteRoutesLength( record.Get() ) ) : 0;
    sink( &out );
    return 0;
}

long Write( TolmoMessage msg, char *to, size_t capacity )
{
    const auto encoded = Ref<KoBuffer>::Adopt( tolmoMessageEncode( msg ) );
    const auto length = static_cast<size_t>( koBufferLength( encoded.Get() ) );
    if ( to ) {
        memcpy( to, koBufferBacking( encoded.Get() ), length < capacity ? length : capacity );
    }
    return static_cast<long>( length );
}

long Round( void *, const char *bytes, size_t length, char *to, size_t capacity )
{
    const auto msg = Decode( bytes, length );
    return msg ? Write( msg.Get(), to, capacity ) : -1;
}

long Hop( void *, const char *bytes, size_t length, char *to, size_t capacity )
{
    auto msg = Decode( bytes, length );
    if ( !msg ) {
        return -1;
    }
    if ( tolmoMessageIsRequest( msg.Get() ) ) {
        auto hops = Ref<TolmoHeaderMaxForwards>::Adopt( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
        if ( !hops || tolmoHeaderMaxForwardsMaxForwards( hops.Get() ) == 0 ) {
            return -1;
        }
        tolmoHeaderMaxForwardsSetMaxForwards( hops.Address(), tolmoHeaderMaxForwardsMaxForwards( hops.Get() ) - 1 );
        tolmoHeaderMaxForwardsEncodeToMessage( hops.Get(), msg.Address() );
    }
    const auto version = Ref<TolmoVersion>::Adopt( tolmoVersionCreateSip20() );
    const auto transport = Ref<KoString>::Adopt( koStringCreateFromCstr( "udp", 3 ) );
    const auto host = Ref<KoString>::Adopt( koStringCreateFromCstr( HOP_VIA_HOST, -1 ) );
    const auto branch = Ref<KoString>::Adopt( koStringCreateFromCstr( HOP_VIA_BRANCH, -1 ) );
    auto via =
        Ref<TolmoVia>::Adopt( tolmoViaCreateWithPort( version.Get(), transport.Get(), host.Get(), HOP_VIA_PORT ) );
    tolmoViaSetBranch( via.Address(), branch.Get() );
    auto vias = Ref<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderViaPrependVia( vias.Address(), via.Get() );
    tolmoHeaderViaEncodeToMessage( vias.Get(), msg.Address() );
    return Write( msg.Get(), to, capacity );
}

const peer_api api = { "tolmo", "0.1.0", 1, Init, NewContext, Parse, Core, Round, Hop };

} // namespace

extern "C" __attribute__( ( visibility( "default" ) ) ) const peer_api *peer_get( int index )
{
    return index == 0 ? &api : nullptr;
}
