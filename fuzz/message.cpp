/*
 * Datagrams: what decodes, encodes, and decodes again to the same; a fragment and a message agree; each typed header that
 * is there decodes from the message as it does from the raw header, and prints, whatever its lines hold.
 */
#include "tables.hpp"

namespace fuzz {
namespace {

void CheckRawHeader( TolmoMessageFragment frag, TolmoMessageHeader header )
{
    const auto name = Own( tolmoMessageHeaderName( header ) );
    CHECK( tolmoMessageHeaderNameOk( name.Get() ) );
    CHECK_SAME( Take( tolmoMessageHeaderNameNormalize( name.Get() ) ), Text( name.Get() ) );
    CHECK( tolmoMessageFragmentHasHeader( frag, name.Get() ) );
    const auto found = Own( tolmoMessageFragmentHeader( frag, name.Get() ) );
    CHECK( found && tolmoMessageHeaderEquals( found.Get(), header ) );
    const auto store = Own( tolmoMessageHeaderStore( header ) );
    const auto restored = Own( tolmoMessageHeaderTryRestore( store.Get() ) );
    CHECK( restored && tolmoMessageHeaderEquals( restored.Get(), header ) );
}

void CheckTyped( TolmoMessage msg, const Header &type )
{
    const auto raw = Own( tolmoMessageHeaderCstr( msg, type.literal.c_str(), -1 ) );
    CHECK( type.present( msg ) == ( raw.Get() != nullptr ) );
    const auto hdr = Own( type.fromMessage( msg ) );
    if ( !raw ) {
        CHECK( !hdr );
        return;
    }
    const auto again = Own( type.decode( raw.Get() ) );
    CHECK_TELL( !hdr == !again, type.name );
    if ( hdr ) {
        CHECK_SAME( Joined( Snapshot( type, hdr.Get() ) ), Joined( Snapshot( type, again.Get() ) ) );
        CHECK_SAME( Joined( TakeLines( type.encode( hdr.Get() ) ) ),
                    Joined( TakeLines( type.encode( again.Get() ) ) ) );
        Take( type.toString( hdr.Get() ) );
        for ( KoInt i = 0; type.items.exist && i < type.items.length( hdr.Get() ); ++i ) {
            Own( type.items.item( hdr.Get(), i ) );
        }
    }
}

} // namespace

void MessageTarget( std::string_view input )
{
    const auto buf = Buf( input );
    const auto frag = Own( tolmoMessageFragmentTryDecode( buf.Get() ) );
    const auto msg = Own( tolmoMessageTryDecode( buf.Get() ) );
    KoInt contentLength = 0;
    Own( tolmoMessageFragmentTryDecodeHeaders( buf.Get(), &contentLength ) );
    CHECK( contentLength >= -1 );
    CHECK_SAME( TakeBytes( koBufferRetain( buf.Get() ) ), std::string( input ) );
    if ( !frag ) {
        CHECK( !msg );
        return;
    }
    const bool startLine = tolmoMessageFragmentIsRequest( frag.Get() ) || tolmoMessageFragmentIsResponse( frag.Get() );
    CHECK( startLine == !tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) );
    CHECK( startLine == ( msg.Get() != nullptr ) );

    // All raw headers first as the decoder left them, then all getters, which make objects of them.
    const std::string bytes = TakeBytes( tolmoMessageFragmentEncode( frag.Get() ) );
    const std::string described = Describe( frag.Get(), false );
    CHECK_SAME( TakeBytes( tolmoMessageFragmentEncode( frag.Get() ) ), bytes );
    const auto copy = Own( tolmoMessageFragmentCreateFrom( frag.Get() ) );
    CHECK_SAME( Describe( copy.Get(), true ), Describe( frag.Get(), true ) );

    const auto again = Own( tolmoMessageFragmentTryDecode( Buf( bytes ).Get() ) );
    CHECK_TELL( again, bytes );
    CHECK_SAME( TakeBytes( tolmoMessageFragmentEncode( again.Get() ) ), bytes );
    CHECK_SAME( Describe( again.Get(), false ), described );

    const auto headers = Own( tolmoMessageFragmentHeadersVector( frag.Get() ) );
    for ( KoInt i = 0; i < koVectorLength( headers.Get() ); ++i ) {
        const auto header = Own( tolmoMessageHeaderFrom( koVectorObjAt( headers.Get(), i ) ) );
        CheckRawHeader( frag.Get(), header.Get() );
    }
    if ( msg ) {
        for ( const Header &type : All().headers ) {
            CheckTyped( msg.Get(), type );
        }
        CHECK_SAME( Describe( msg.Get(), true ), Describe( frag.Get(), true ) );
        CHECK_SAME( TakeBytes( tolmoMessageEncode( msg.Get() ) ), bytes );
    }
}

} // namespace fuzz
