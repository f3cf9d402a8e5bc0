/*
 * Typed headers, all of them, over the lines of the input: what decodes, encodes; the lines decode to an equal header and
 * stay as they are from there on; it goes to a store, to a message and over the wire and comes back.
 */
#include "rules.hpp"

namespace fuzz {
namespace {

KoRef<TolmoMessageHeader> RawHeader( const Header &type, const std::vector<std::string_view> &lines )
{
    auto raw = Own( tolmoMessageHeaderCreateCstr( type.literal.c_str(), -1 ) );
    for ( const std::string_view line : lines ) {
        const auto text = Str( line );
        if ( tolmoMessageHeaderLineOk( text.Get() ) ) {
            tolmoMessageHeaderAppendLine( raw.Address(), text.Get() );
        }
    }
    return raw;
}

KoRef<TolmoMessage> NewMessage()
{
    const auto version = Own( tolmoVersionCreateSip20() );
    return Own( tolmoMessageCreateRequest( version.Get(), Str( "INFO" ).Get(), Str( "sip:a" ).Get() ) );
}

std::string ToStringOfLines( TolmoMessageHeader raw )
{
    switch ( tolmoMessageHeaderLinesLength( raw ) ) {
    case 0:
        return "";
    case 1:
        return Take( tolmoMessageHeaderLastLine( raw ) );
    default:
        return Take( koVectorToString( Own( tolmoMessageHeaderLinesVector( raw ) ).Get() ) );
    }
}

// The same header: by what it tells, and by its own comparison. Rack compares its method by handle.
void CheckSameHeader( const Header &type, KoObj a, KoObj b )
{
    CHECK_SAME( Joined( Snapshot( type, a ) ), Joined( Snapshot( type, b ) ) );
    CHECK_TELL( type.name == "HeaderRack" || koObjCompare( a, b ) == 0, type.name );
}

// Two prints of a header, line by line, with the whitespace at the ends of lines left out: an item may end in some, which
// is gone when it comes from a message.
void CheckSameLines( TolmoMessageHeader a, TolmoMessageHeader b )
{
    CHECK( tolmoMessageHeaderLinesLength( a ) == tolmoMessageHeaderLinesLength( b ) );
    for ( KoInt i = 0; i < tolmoMessageHeaderLinesLength( a ); ++i ) {
        std::string lineA = Take( tolmoMessageHeaderLineAt( a, i ) );
        std::string lineB = Take( tolmoMessageHeaderLineAt( b, i ) );
        for ( std::string *line : { &lineA, &lineB } ) {
            line->erase( 0, std::min( line->find_first_not_of( " \t" ), line->size() ) );
            line->erase( line->find_last_not_of( " \t" ) + 1 );
        }
        CHECK_SAME( lineA, lineB );
    }
}

// Through a message, as an object and as bytes.
void CheckMessage( const Header &type, KoObj hdr, TolmoMessageHeader printed )
{
    auto msg = NewMessage();
    CHECK( !type.present( msg.Get() ) && !type.fromMessage( msg.Get() ) );
    const auto other = Own( tolmoMessageRetain( msg.Get() ) );
    type.toMessage( hdr, msg.Address() );
    CHECK( type.present( msg.Get() ) && !type.present( other.Get() ) );
    const auto inMessage = Own( type.fromMessage( msg.Get() ) );

    const auto bytes = Own( tolmoMessageEncode( msg.Get() ) );
    const auto received = Own( tolmoMessageTryDecode( bytes.Get() ) );
    CHECK( received );
    const auto overWire = Own( type.fromMessage( received.Get() ) );
    if ( inMessage ) {
        CHECK_SAME( Joined( TakeLines( type.encode( inMessage.Get() ) ) ),
                    Joined( TakeLines( tolmoMessageHeaderRetain( printed ) ) ) );
        CHECK_TELL( overWire, type.name );
        CheckSameLines( Own( type.encode( overWire.Get() ) ).Get(), printed );
    }
    type.removeFrom( msg.Address() );
    CHECK( !type.present( msg.Get() ) );
}

void CheckHeader( const Header &type, const std::vector<std::string_view> &lines )
{
    const auto raw = RawHeader( type, lines );
    if ( tolmoMessageHeaderLinesLength( raw.Get() ) == 0 ) {
        return; // never received
    }
    const auto hdr = Own( type.decode( raw.Get() ) );
    if ( !hdr ) {
        return;
    }
    const std::string snapshot = Joined( Snapshot( type, hdr.Get() ) );
    const auto printed = Own( type.encode( hdr.Get() ) );
    CHECK_SAME( Take( type.toString( hdr.Get() ) ), ToStringOfLines( printed.Get() ) );
    CHECK_SAME( Joined( Snapshot( type, hdr.Get() ) ), snapshot );
    for ( KoInt i = 0; type.items.exist && i < type.items.length( hdr.Get() ); ++i ) {
        Own( type.items.item( hdr.Get(), i ) );
    }
    if ( type.name != "HeaderSubscriptionState" ) { // a copy of this one has lost its parameters
        const auto copy = Own( type.createFrom( hdr.Get() ) );
        CheckSameHeader( type, hdr.Get(), copy.Get() );
        CHECK( tolmoMessageHeaderEquals( Own( type.encode( copy.Get() ) ).Get(), printed.Get() ) );
    }
    // An empty list prints no line, and whether that decodes is up to the type.
    if ( tolmoMessageHeaderLinesLength( printed.Get() ) == 0 || !PrintsDecodable( type, hdr.Get() ) ) {
        return;
    }
    CHECK_TELL( PrintsNamesOnce( type, Take( tolmoMessageHeaderLastLine( printed.Get() ) ) ), type.name );
    const auto again = Own( type.decode( printed.Get() ) );
    CHECK_TELL( again, type.name );
    CHECK( tolmoMessageHeaderEquals( Own( type.encode( again.Get() ) ).Get(), printed.Get() ) );
    if ( !HidesParams( type, hdr.Get() ) ) {
        CheckSameHeader( type, hdr.Get(), again.Get() );
    }
    const auto store = Own( type.store( hdr.Get() ) );
    const auto restored = Own( type.restore( store.Get() ) );
    CHECK_TELL( restored, type.name );
    CheckSameHeader( type, restored.Get(), again.Get() );
    CheckMessage( type, hdr.Get(), printed.Get() );
}

} // namespace

void HeaderTarget( std::string_view input )
{
    const std::vector<std::string_view> lines = Lines( input );
    for ( const Header &type : All().headers ) {
        CheckHeader( type, lines );
    }
}

} // namespace fuzz
