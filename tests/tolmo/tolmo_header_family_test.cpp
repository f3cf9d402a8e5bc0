/* What all typed headers share, over the list of all of them: a header gets a line in the table of rows. */
#include "tolmo_test.h"

#include <algorithm>

namespace {

using test::Received;
using test::Str;
using test::Strings;
using test::TakeLines;

/* The operations of a header, for any of them. */

struct Operations {
    std::string type;
    std::string name;
    KoSort sort;
    KoObj ( *from )( KoObj obj );
    KoObj ( *retain )( KoObj hdr );
    void ( *release )( KoObj hdr );
    KoInt ( *compare )( KoObj a, KoObj b );
    KoBool ( *equals )( KoObj a, KoObj b );
    KoString ( *toString )( KoObj hdr );
    KoObj ( *createFrom )( KoObj source );
    TolmoMessageHeader ( *encode )( KoObj hdr );
    KoObj ( *tryDecode )( TolmoMessageHeader header );
    void ( *encodeToMessage )( KoObj hdr, TolmoMessage *msg );
    KoObj ( *tryDecodeFromMessage )( TolmoMessage msg );
    KoBool ( *presentInMessage )( TolmoMessage msg );
    void ( *removeFromMessage )( TolmoMessage *msg );
    KoStore ( *store )( KoObj hdr );
    KoObj ( *tryRestore )( KoStore store );
};

#define HANDLE( Type, hdr ) reinterpret_cast<TolmoHeader##Type>( hdr )
#define OBJ( Type, hdr ) tolmoHeader##Type##Obj( hdr )
#define TOLMO_HEADER( Type, name )                                                                                     \
    { #Type,                                                                                                           \
      name,                                                                                                            \
      tolmoHeader##Type##Sort(),                                                                                       \
      []( KoObj obj ) { return OBJ( Type, tolmoHeader##Type##From( obj ) ); },                                         \
      []( KoObj hdr ) { return OBJ( Type, tolmoHeader##Type##Retain( HANDLE( Type, hdr ) ) ); },                       \
      []( KoObj hdr ) { tolmoHeader##Type##Release( HANDLE( Type, hdr ) ); },                                          \
      []( KoObj a, KoObj b ) { return tolmoHeader##Type##Compare( HANDLE( Type, a ), HANDLE( Type, b ) ); },           \
      []( KoObj a, KoObj b ) { return tolmoHeader##Type##Equals( HANDLE( Type, a ), HANDLE( Type, b ) ); },            \
      []( KoObj hdr ) { return tolmoHeader##Type##ToString( HANDLE( Type, hdr ) ); },                                  \
      []( KoObj source ) { return OBJ( Type, tolmoHeader##Type##CreateFrom( HANDLE( Type, source ) ) ); },             \
      []( KoObj hdr ) { return tolmoHeader##Type##Encode( HANDLE( Type, hdr ) ); },                                    \
      []( TolmoMessageHeader header ) { return OBJ( Type, tolmoHeader##Type##TryDecode( header ) ); },                 \
      []( KoObj hdr, TolmoMessage *msg ) { tolmoHeader##Type##EncodeToMessage( HANDLE( Type, hdr ), msg ); },          \
      []( TolmoMessage msg ) { return OBJ( Type, tolmoHeader##Type##TryDecodeFromMessage( msg ) ); },                  \
      tolmoHeader##Type##PresentInMessage,                                                                             \
      tolmoHeader##Type##RemoveFromMessage,                                                                            \
      []( KoObj hdr ) { return tolmoHeader##Type##Store( HANDLE( Type, hdr ) ); },                                     \
      []( KoStore store ) { return OBJ( Type, tolmoHeader##Type##TryRestore( store ) ); } },

const std::vector<Operations> &AllOperations()
{
    static const std::vector<Operations> all{
#include <tolmo/tolmo_headers.def>
    };
    return all;
}
#undef TOLMO_HEADER

/* The rows: what differs from header to header. */

/** What a raw header without a line decodes to. */
enum class NoLine { isNull, isEmpty, aborts };

/** What some headers do unlike the others. */
enum Quirk {
    none = 0,
    copyDiffers = 1,     // a copy does not equal its source
    restoredDiffers = 2, // what was stored and restored does not equal the first
};

struct Row {
    std::string type;
    KoObj ( *create )();
    Strings created; // the lines that it prints then
    Strings lines;   // that decode; none: no line does
    Strings printed; // what was decoded prints these
    NoLine noLine;
    Quirk quirk = none;
};

/** The first second of 1970. */
KoRef<KoTime> ATime()
{
    auto tm = KoRef<KoTime>::Adopt( koTimeCreate() );
    koTimeSetYear( tm.Address(), 1970 );
    koTimeSetMonth( tm.Address(), 1 );
    koTimeSetDay( tm.Address(), 1 );
    return tm;
}

/** ROW( Type, a call that makes one, the lines it prints, lines that decode, the lines that these print, NoLine ) */
#define ROW( Type, create, ... )                                                                                       \
    {                                                                                                                  \
#Type, [] { return OBJ( Type, create ); }, __VA_ARGS__                                                         \
    }

const std::vector<Row> &Rows()
{
    using enum NoLine;
    // clang-format off
    static const std::vector<Row> rows{
        ROW( Accept, tolmoHeaderAcceptCreate(), {}, {}, {}, isNull ),
        ROW( AcceptEncoding, tolmoHeaderAcceptEncodingCreate(), {}, { "Gzip;q=0.5 , *", "identity" }, { "Gzip;q=0.5", "*", "identity" }, isNull ),
        ROW( AcceptResourcePriority, tolmoHeaderAcceptResourcePriorityCreate(), {}, { "q735.1, wps.0" }, { "q735.1", "wps.0" }, isNull ),
        ROW( AlertInfo, tolmoHeaderAlertInfoCreate(), {}, { "<http://a>;X , <urn:b>", "<sip:c,d>" }, { "<http://a>;X", "<urn:b>", "<sip:c,d>" }, isNull ),
        ROW( Allow, tolmoHeaderAllowCreate(), {}, { "INVITE , ack", "ACK,INVITE" }, { "INVITE,ack,ACK" }, isNull ),
        ROW( AllowEvents, tolmoHeaderAllowEventsCreate(), {}, { "presence.winfo, dialog" }, { "presence.winfo,dialog" }, isNull ),
        ROW( CallId, tolmoHeaderCallIdCreate( Str( "a@b" ).Get() ), { "a@b" }, { "\x01", "1{}@x" }, { "1{}@x" }, isNull ),
        ROW( CallInfo, tolmoHeaderCallInfoCreate(), {}, { "<http://a>;X , <urn:b>", "<sip:c,d>" }, { "<http://a>;X", "<urn:b>", "<sip:c,d>" }, isNull ),
        ROW( Contact, tolmoHeaderContactCreate(), {}, { "<sip:a> , \"b\" <sip:b>;q=1", "sip:c" }, { "<sip:a> ", "\"b\" <sip:b>;q=1", "sip:c" }, isNull ),
        ROW( ContentDisposition, tolmoHeaderContentDispositionCreate( Str( "Session" ).Get() ), { "session" }, { "/", "Alert;x;HANDLING=Optional" }, { "alert;handling=optional;x" }, isNull ),
        ROW( ContentEncoding, tolmoHeaderContentEncodingCreate(), {}, {}, {}, isEmpty ),
        ROW( Cseq, tolmoHeaderCseqCreate( 1, Str( "Ack" ).Get() ), { "1 Ack" }, { "1", "02 \t INVITE" }, { "2 INVITE" }, isNull ),
        ROW( Date, tolmoHeaderDateCreate( ATime().Get() ), { "Thu, 01 Jan 1970 00:00:00 GMT" }, { "now", "Thu, 21 Feb 2002 13:02:03 GMT" }, { "Thu, 21 Feb 2002 13:02:03 GMT" }, isNull ),
        ROW( Diversion, tolmoHeaderDiversionCreate(), {}, { "<sip:a>;reason=x , \"b,\" <sip:b>", "<sip:c>" }, { "<sip:a>;reason=x", "\"b,\" <sip:b>", "<sip:c>" }, isNull ),
        ROW( ErrorInfo, tolmoHeaderErrorInfoCreate(), {}, { "<http://a>;X , <urn:b>", "<sip:c,d>" }, { "<http://a>;X", "<urn:b>", "<sip:c,d>" }, isNull ),
        ROW( Event, tolmoHeaderEventCreate( Str( "presence.winfo" ).Get() ), { "presence.winfo" }, { ".a", "Dialog;x;ID=1" }, { "Dialog;id=1;x" }, isNull ),
        ROW( Expires, tolmoHeaderExpiresCreate( 60 ), { "60" }, { "soon", "0060" }, { "60" }, isNull ),
        ROW( From, tolmoHeaderFromCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;tag=1;y" }, { "\"B\" <sip:b>;tag=1;x;y" }, isNull ),
        ROW( HistoryInfo, tolmoHeaderHistoryInfoCreate(), {}, { "<sip:a>;index=1 , <sip:b>;index=1.1", "c <sip:c>;index=2" }, { "<sip:a>;index=1", "<sip:b>;index=1.1", "c <sip:c>;index=2" }, isNull ),
        ROW( InReplyTo, tolmoHeaderInReplyToCreate(), {}, { "a@b, c", "a@b" }, { "a@b,c" }, isNull ),
        ROW( InfoPackage, tolmoHeaderInfoPackageCreate( test::Own( tolmoInfoPackageTypeCreate( Str( "Foo" ).Get() ) ).Get() ), { "foo" }, { "a, b", "Bar;x" }, { "bar;x" }, isNull ),
        ROW( MaxForwards, tolmoHeaderMaxForwardsCreate( 70 ), { "70" }, { "", "069" }, { "69" }, isNull ),
        ROW( MinExpires, tolmoHeaderMinExpiresCreate( 60 ), { "60" }, { "soon", "0060" }, { "60" }, isNull ),
        ROW( MinSe, tolmoHeaderMinSeCreate( 60 ), { "60" }, { "soon", "0060;x" }, { "60;x" }, isNull ),
        ROW( Organization, tolmoHeaderOrganizationCreate( Str( " A \t B" ).Get() ), { "A B" }, { "\x01", "  C\t D " }, { "C D" }, isNull ),
        ROW( PAssertedIdentity, tolmoHeaderPAssertedIdentityCreate(), {}, { "<sip:a>, sip:b", "c <tel:1>" }, { "<sip:a>", "sip:b", "c <tel:1>" }, isNull ),
        ROW( PCalledPartyId, tolmoHeaderPCalledPartyIdCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;y" }, { "\"B\" <sip:b>;x;y" }, isNull ),
        ROW( PEarlyMedia, tolmoHeaderPEarlyMediaCreate(), {}, { "Supported , gated" }, { "Supported", "gated" }, isEmpty ),
        ROW( PPreferredIdentity, tolmoHeaderPPreferredIdentityCreate(), {}, { "<sip:a>, sip:b", "c <tel:1>" }, { "<sip:a>", "sip:b", "c <tel:1>" }, isNull ),
        ROW( Priority, tolmoHeaderPriorityCreate( Str( "Urgent" ).Get() ), { "urgent" }, { "very urgent", "Normal" }, { "normal" }, isNull ),
        ROW( Privacy, tolmoHeaderPrivacyCreate(), {}, { "ID ; header" }, { "id;header" }, isNull ),
        ROW( ProxyRequire, tolmoHeaderProxyRequireCreate(), {}, { "Foo, bar", "foo" }, { "foo,bar" }, isNull ),
        ROW( Rack, tolmoHeaderRackCreate( 1, 2, Str( "Ack" ).Get() ), { "1 2 Ack" }, { "1", "02 \t 3 INVITE" }, { "2 3 INVITE" }, isNull, restoredDiffers ),
        ROW( Reason, tolmoHeaderReasonCreate(), {}, { "SIP ;cause=200 , Q.850", "x;text=\",\"" }, { "SIP ;cause=200", "Q.850", "x;text=\",\"" }, isNull ),
        ROW( RecordRoute, tolmoHeaderRecordRouteCreate(), {}, { "<sip:a;lr>,<sip:b>", "c <sip:d>;x" }, { "<sip:a;lr>", "<sip:b>", "c <sip:d>;x" }, isNull ),
        ROW( RecvInfo, tolmoHeaderRecvInfoCreate(), {}, { "A;x , b", "c" }, { "A;x", "b", "c" }, isNull ),
        ROW( ReferTo, tolmoHeaderReferToCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;y" }, { "\"B\" <sip:b>;x;y" }, isNull ),
        ROW( ReferredBy, tolmoHeaderReferredByCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;cid=\"a@b\";y" }, { "\"B\" <sip:b>;cid=\"a@b\";x;y" }, isNull ),
        ROW( RemotePartyId, tolmoHeaderRemotePartyIdCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;y" }, { "\"B\" <sip:b>;x;y" }, isNull ),
        ROW( Replaces, tolmoHeaderReplacesCreate( Str( "a@b" ).Get() ), { "a@b" }, { "@", "c;x;early-only;to-tag=1;from-tag=2" }, { "c;from-tag=2;to-tag=1;early-only;x" }, aborts ),
        ROW( ReplyTo, tolmoHeaderReplyToCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;y" }, { "\"B\" <sip:b>;x;y" }, isNull ),
        ROW( Require, tolmoHeaderRequireCreate(), {}, { "Foo, bar", "foo" }, { "foo,bar" }, isNull ),
        ROW( ResourcePriority, tolmoHeaderResourcePriorityCreate(), {}, { "q735.1, wps.0" }, { "q735.1", "wps.0" }, isEmpty ),
        ROW( RetryAfter, tolmoHeaderRetryAfterCreate( 60 ), { "60" }, { "soon", "0060 (meeting) ;x;duration=5" }, { "60;duration=5;x" }, isNull ),
        ROW( Route, tolmoHeaderRouteCreate(), {}, { "<sip:a;lr>,<sip:b>", "c <sip:d>;x" }, { "<sip:a;lr>", "<sip:b>", "c <sip:d>;x" }, isNull ),
        ROW( Rseq, tolmoHeaderRseqCreate( 1 ), { "1" }, { "0", "007" }, { "7" }, isNull ),
        ROW( Server, tolmoHeaderServerCreate( Str( "A/1 (b)" ).Get() ), { "A/1 (b)" }, { "/", "C / 2" }, { "C / 2" }, isNull ),
        ROW( ServiceRoute, tolmoHeaderServiceRouteCreate(), {}, { "<sip:a;lr>,<sip:b>", "c <sip:d>;x" }, { "<sip:a;lr>", "<sip:b>", "c <sip:d>;x" }, isNull ),
        ROW( SessionExpires, tolmoHeaderSessionExpiresCreate( 60 ), { "60" }, { "soon", "0060;x;refresher=UAC" }, { "60;refresher=uac;x" }, isNull ),
        ROW( SessionId, tolmoHeaderSessionIdCreate( Str( "ab30317f1a784dc48ff824d0d3715d86" ).Get() ), { "ab30317f1a784dc48ff824d0d3715d86" }, { "x", "0123456789abcdefghijklmnopqrstuv;x;remote=ab30317f1a784dc48ff824d0d3715d86" }, { "0123456789abcdefghijklmnopqrstuv;remote=ab30317f1a784dc48ff824d0d3715d86;x" }, isNull ),
        ROW( Subject, tolmoHeaderSubjectCreate( Str( " A \t B" ).Get() ), { "A B" }, { "\x01", "  C\t D " }, { "C D" }, isNull ),
        ROW( SubscriptionState, tolmoHeaderSubscriptionStateCreate( Str( "Active" ).Get() ), { "active" }, { "/", "Active;x;expires=060;reason=Gone" }, { "active;reason=gone;expires=60;x" }, isNull, copyDiffers ),
        ROW( Supported, tolmoHeaderSupportedCreate(), {}, { "100rel", "Path" }, { "100rel,path" }, isNull ),
        ROW( Timestamp, tolmoHeaderTimestampCreate( Str( "54" ).Get() ), { "54" }, { "x", "54.1 0.2" }, { "54.1 0.2" }, isNull ),
        ROW( To, tolmoHeaderToCreate( Str( "sip:a" ).Get() ), { "<sip:a>" }, { "x", "B <sip:b>;x;tag=1;y" }, { "\"B\" <sip:b>;tag=1;x;y" }, isNull ),
        ROW( Unsupported, tolmoHeaderUnsupportedCreate(), {}, { "Foo, bar", "foo" }, { "foo,bar" }, isNull ),
        ROW( UserAgent, tolmoHeaderUserAgentCreate( Str( "A/1 (b)" ).Get() ), { "A/1 (b)" }, { "/", "C / 2" }, { "C / 2" }, isNull ),
        ROW( UserToUser, tolmoHeaderUserToUserCreate(), {}, { "00AA;encoding=hex , \"a\"", "b" }, { "00AA;encoding=hex", "\"a\"", "b" }, isEmpty ),
        ROW( Via, tolmoHeaderViaCreate(), {}, { "SIP/2.0/UDP a;x , SIP/2.0/TCP b", "SIP/2.0/TLS c" }, { "SIP/2.0/UDP a;x", "SIP/2.0/TCP b", "SIP/2.0/TLS c" }, isEmpty ),
        ROW( Warning, tolmoHeaderWarningCreate(), {}, { "399 a \"b\" , 301 [::1]:1 \",\"", "302 c \"\"" }, { "399 a \"b\"", "301 [::1]:1 \",\"", "302 c \"\"" }, isEmpty ),
    };
    // clang-format on
    return rows;
}

TEST( HeaderRows, EveryHeaderHasOne )
{
    for ( const auto &header : AllOperations() ) {
        EXPECT_EQ( std::count_if( Rows().begin(), Rows().end(), [&]( auto &row ) { return row.type == header.type; } ),
                   1 )
            << header.type;
    }
    EXPECT_EQ( Rows().size(), AllOperations().size() );
    EXPECT_EQ( AllOperations().size(), 60U );
}

/** The words of a type with underscores between them: `p_early_media`. */
std::string Underscored( const std::string &type )
{
    std::string words;
    for ( const char ch : type ) {
        if ( ch >= 'A' && ch <= 'Z' && !words.empty() ) {
            words += '_';
        }
        words += static_cast<char>( ch | 0x20 );
    }
    return words;
}

class HeaderFamily : public test::TolmoFixture, public testing::WithParamInterface<size_t> {
protected:
    using Obj = KoRef<KoObj>;

    const Row &row = Rows()[GetParam()];
    const Operations &header = *std::find_if( AllOperations().begin(), AllOperations().end(),
                                              [this]( auto &candidate ) { return candidate.type == row.type; } );
    const std::string path = "source/tolmo/tolmo_header_" + Underscored( header.type ) + ".cpp";
    // The constant has the capital letter that the normal form of a name asks for.
    const std::string normalName = header.name == "User-to-User" ? "User-To-User" : header.name;

    [[nodiscard]] Obj Decoded( const Strings &lines ) const
    {
        return Obj::Adopt( header.tryDecode( test::RawHeader( header.name, lines ).Get() ) );
    }
    /** What the row creates. */
    [[nodiscard]] Obj Created() const { return Obj::Adopt( row.create() ); }
    /** What the row's lines decode to, or what it creates where no line decodes. */
    [[nodiscard]] Obj Sample() const { return row.lines.empty() ? Created() : Decoded( row.lines ); }
    [[nodiscard]] const Strings &SampleLines() const { return row.lines.empty() ? row.created : row.printed; }
    [[nodiscard]] Strings Lines( const Obj &hdr ) const
    {
        return hdr ? TakeLines( header.encode( hdr.Get() ) ) : Strings{ "(null)" };
    }
    /** The header lines of a message that hold these values. */
    [[nodiscard]] std::string Wire( const Strings &lines ) const
    {
        std::string wire;
        for ( const auto &line : lines ) {
            wire += header.name + ": " + line + "\r\n";
        }
        return wire;
    }
    [[nodiscard]] Strings LinesIn( const KoRef<TolmoMessage> &msg ) const
    {
        return TakeLines( tolmoMessageHeader( msg.Get(), Str( header.name ).Get() ) );
    }
    /** A message that has the header without a line. */
    [[nodiscard]] KoRef<TolmoMessage> WithoutLine() const
    {
        auto msg = Received( "" );
        tolmoMessageSetHeader( msg.Address(), test::RawHeader( header.name, {} ).Get() );
        return msg;
    }
    /** Runs a decoding of nothing, and looks at what it gives. */
    void ExpectNoLine( const std::function<KoObj()> &decode, NoLine expected ) const
    {
        if ( expected == NoLine::aborts ) {
            EXPECT_TRUE( test::RunInChild( [&] { decode(); } ).aborted );
            return;
        }
        const auto hdr = Obj::Adopt( decode() );
        EXPECT_EQ( static_cast<bool>( hdr ), expected == NoLine::isEmpty );
        if ( hdr ) {
            EXPECT_EQ( Lines( hdr ), Strings() );
        }
    }
};

TEST_P( HeaderFamily, StandardOperations )
{
    std::string sortName = "TOLMO_HEADER_" + Underscored( header.type );
    std::transform( sortName.begin(), sortName.end(), sortName.begin(),
                    []( unsigned char ch ) { return static_cast<char>( std::toupper( ch ) ); } );
    EXPECT_EQ( header.sort->name, sortName );

    const auto hdr = Created();
    EXPECT_EQ( koObjSort( hdr.Get() ), header.sort );
    EXPECT_EQ( test::Count( hdr.Get() ), 1 );
    EXPECT_EQ( header.from( hdr.Get() ), hdr.Get() );
    EXPECT_EQ( header.from( nullptr ), nullptr );
    EXPECT_EQ( header.retain( hdr.Get() ), hdr.Get() );
    EXPECT_EQ( test::Count( hdr.Get() ), 2 );
    header.release( hdr.Get() );
    EXPECT_EQ( test::Count( hdr.Get() ), 1 );
    EXPECT_EQ( header.compare( hdr.Get(), hdr.Get() ), 0 );
    EXPECT_TRUE( header.equals( hdr.Get(), hdr.Get() ) );
    EXPECT_TRUE( header.equals( nullptr, nullptr ) );
    EXPECT_FALSE( header.equals( hdr.Get(), nullptr ) );

    const auto copy = Obj::Adopt( header.createFrom( hdr.Get() ) );
    EXPECT_NE( copy.Get(), hdr.Get() );
    EXPECT_EQ( test::Count( copy.Get() ), 1 );
    EXPECT_EQ( header.equals( copy.Get(), hdr.Get() ), !( row.quirk & copyDiffers ) );
}

TEST_P( HeaderFamily, Encode )
{
    const auto hdr = Created();
    const auto encoded = KoRef<TolmoMessageHeader>::Adopt( header.encode( hdr.Get() ) );
    EXPECT_EQ( test::Count( encoded.Get() ), 1 );
    EXPECT_EQ( test::Take( tolmoMessageHeaderName( encoded.Get() ) ), normalName );
    EXPECT_EQ( Lines( hdr ), row.created );
}

TEST_P( HeaderFamily, TryDecode )
{
    const auto hdr = Sample();
    ASSERT_TRUE( hdr );
    EXPECT_EQ( test::Count( hdr.Get() ), 1 );
    EXPECT_EQ( Lines( hdr ), SampleLines() );
    // Any line of a header of which none decodes.
    if ( row.lines.empty() ) {
        for ( const char *line : { "", "a", "gzip", "text/plain", "*" } ) {
            if ( const auto other = Decoded( { line } ) ) {
                EXPECT_EQ( Lines( other ), Strings() ) << line;
            }
        }
    }
}

TEST_P( HeaderFamily, ToString )
{
    for ( const auto &hdr : { Created(), Sample() } ) {
        const Strings lines = Lines( hdr );
        std::string expected;
        if ( lines.size() == 1 ) {
            expected = lines[0];
        } else if ( lines.size() > 1 ) {
            const auto header_ = test::RawHeader( header.name, lines );
            const auto vector = KoRef<KoVector>::Adopt( tolmoMessageHeaderLinesVector( header_.Get() ) );
            expected = test::Take( koVectorToString( vector.Get() ) );
        }
        EXPECT_EQ( test::Take( header.toString( hdr.Get() ) ), expected );
    }
}

TEST_P( HeaderFamily, NoLine )
{
    ExpectNoLine( [&] { return header.tryDecode( test::RawHeader( header.name, {} ).Get() ); }, row.noLine );
    // A store without lines goes to the decoder; a message's header without lines does not, but for one.
    const auto store = KoRef<KoStore>::Adopt( koStoreCreateArray() );
    ExpectNoLine( [&] { return header.tryRestore( store.Get() ); }, row.noLine );
    const auto msg = WithoutLine();
    EXPECT_TRUE( header.presentInMessage( msg.Get() ) );
    ExpectNoLine( [&] { return header.tryDecodeFromMessage( msg.Get() ); },
                  row.noLine == NoLine::aborts ? NoLine::aborts : NoLine::isNull );
}

TEST_P( HeaderFamily, AbsentFromMessage )
{
    auto msg = Received( "X-Other: a\r\n" );
    EXPECT_FALSE( header.presentInMessage( msg.Get() ) );
    EXPECT_EQ( header.tryDecodeFromMessage( msg.Get() ), nullptr );
    header.removeFromMessage( msg.Address() ); // no fault
    EXPECT_EQ( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ),
               test::TakeBytes( tolmoMessageEncode( Received( "X-Other: a\r\n" ).Get() ) ) );
}

TEST_P( HeaderFamily, FromReceivedMessage )
{
    const auto msg = Received( "X-Other: a\r\n" + Wire( row.lines.empty() ? Strings{ "a" } : row.lines ) );
    ASSERT_TRUE( msg );
    EXPECT_TRUE( header.presentInMessage( msg.Get() ) ); // also where it does not decode
    const auto hdr = Obj::Adopt( header.tryDecodeFromMessage( msg.Get() ) );
    const auto raw = KoRef<TolmoMessageHeader>::Adopt( tolmoMessageHeader( msg.Get(), Str( header.name ).Get() ) );
    const auto same = Obj::Adopt( header.tryDecode( raw.Get() ) );
    EXPECT_EQ( Lines( hdr ), Lines( same ) );
    if ( !row.lines.empty() ) {
        EXPECT_EQ( Lines( hdr ), row.printed );
    }
}

TEST_P( HeaderFamily, LineThatDoesNotDecode )
{
    // No header takes a line feed, and no list an empty item.
    const auto msg = WithoutLine();
    auto bad = KoRef<TolmoMessage>::Share( msg.Get() );
    tolmoMessageSetHeader( bad.Address(), test::RawHeader( header.name, { ",,\n" } ).Get() );
    EXPECT_TRUE( header.presentInMessage( bad.Get() ) );
    EXPECT_EQ( header.tryDecodeFromMessage( bad.Get() ), nullptr );
    EXPECT_EQ( Lines( Decoded( { ",,\n" } ) ), Strings{ "(null)" } );
    auto store = KoRef<KoStore>::Adopt( koStoreCreateArray() );
    koStoreAppendValue( store.Address(), Str( ",,\n" ).Get() );
    EXPECT_EQ( header.tryRestore( store.Get() ), nullptr );
}

TEST_P( HeaderFamily, EncodeToMessage )
{
    const auto hdr = Sample();
    const std::string old = Wire( { "a", "b" } );
    auto msg = Received( "X-First: 1\r\n" + old + "X-Last: 2\r\n" );
    const auto other = KoRef<TolmoMessage>::Share( msg.Get() );
    header.encodeToMessage( hdr.Get(), msg.Address() ); // shared: copied
    EXPECT_NE( msg.Get(), other.Get() );
    EXPECT_EQ( LinesIn( other ), ( Strings{ "a", "b" } ) );
    EXPECT_EQ( LinesIn( msg ), SampleLines() ); // replaced whole, also by nothing
    EXPECT_TRUE( header.presentInMessage( msg.Get() ) );

    // It keeps its place.
    const auto headers = KoRef<KoVector>::Adopt( tolmoMessageHeadersVector( msg.Get() ) );
    ASSERT_EQ( koVectorLength( headers.Get() ), 3 );
    const auto second = Obj::Adopt( koVectorObjAt( headers.Get(), 1 ) );
    EXPECT_EQ( test::Take( tolmoMessageHeaderName( tolmoMessageHeaderFrom( second.Get() ) ) ), normalName );

    const TolmoMessage same = msg.Get();
    header.encodeToMessage( hdr.Get(), msg.Address() ); // alone: kept
    EXPECT_EQ( msg.Get(), same );
    const auto again = Obj::Adopt( header.tryDecodeFromMessage( msg.Get() ) );
    EXPECT_EQ( Lines( again ), row.lines.empty() ? Strings{ "(null)" } : row.printed );
}

TEST_P( HeaderFamily, RemoveFromMessage )
{
    auto msg = Received( Wire( { "a" } ) + "X-Last: 2\r\n" );
    const auto other = KoRef<TolmoMessage>::Share( msg.Get() );
    header.removeFromMessage( msg.Address() );
    EXPECT_NE( msg.Get(), other.Get() );
    EXPECT_FALSE( header.presentInMessage( msg.Get() ) );
    EXPECT_TRUE( header.presentInMessage( other.Get() ) );
    EXPECT_EQ( LinesIn( other ), Strings{ "a" } );

    auto empty = WithoutLine();
    const TolmoMessage same = empty.Get();
    header.removeFromMessage( empty.Address() );
    EXPECT_EQ( empty.Get(), same );
    EXPECT_FALSE( header.presentInMessage( empty.Get() ) );
}

TEST_P( HeaderFamily, StoreAndRestore )
{
    const auto hdr = Sample();
    const auto store = KoRef<KoStore>::Adopt( header.store( hdr.Get() ) );
    Strings stored; // the lines alone
    for ( KoInt i = 0; i < koStoreLength( store.Get() ); ++i ) {
        stored.push_back( test::Take( koStoreValueAt( store.Get(), i ) ) );
    }
    EXPECT_EQ( stored, SampleLines() );
    if ( !row.lines.empty() ) {
        const auto restored = Obj::Adopt( header.tryRestore( store.Get() ) );
        ASSERT_TRUE( restored );
        EXPECT_EQ( header.equals( restored.Get(), hdr.Get() ), !( row.quirk & restoredDiffers ) );
        EXPECT_EQ( Lines( restored ), row.printed );
    }
}

// Every prefix of the last line, behind the others. What is decoded prints the same after it has been printed.
TEST_P( HeaderFamily, Prefixes )
{
    if ( row.lines.empty() ) {
        return;
    }
    Strings lines = row.lines;
    const std::string last = lines.back();
    for ( size_t length = 0; length <= last.size(); ++length ) {
        lines.back() = last.substr( 0, length );
        if ( const auto hdr = Decoded( lines ) ) {
            const Strings printed = Lines( hdr );
            if ( printed.empty() ) {
                continue;
            }
            if ( const auto again = Decoded( printed ) ) {
                EXPECT_EQ( Lines( again ), printed ) << lines.back();
            }
        }
    }
}

// Hostile lines give null, or something that can be printed; and they take no more time than others.
TEST_P( HeaderFamily, HostileLines )
{
    Strings hostile{ "",
                     " ",
                     "\t",
                     "*",
                     "* ",
                     "**",
                     "0",
                     "-1",
                     "-0",
                     "+1",
                     "99999999999999999999",
                     "%",
                     "\"",
                     "\"\\",
                     "\"\\\"",
                     "<",
                     "<>",
                     "<sip:",
                     "<sip:a>;",
                     "sip:",
                     "a b",
                     "\u00DF",
                     "\U0010FFFF",
                     "a\x7F",
                     "\n",
                     "\r",
                     "a=\n" };
    for ( const char *unit : { ",",        ";",     "(", ")",  "\"", "\\",  "<", ">", "a,",     "a;", "a=",    ";a=b",
                               "<sip:a>,", "\"\" ", "1", "1.", ".",  "%20", "[", " ", "\u00DF", "a/", "sip:a;" } ) {
        std::string line;
        while ( line.size() < 20000 ) {
            line += unit;
        }
        hostile.push_back( line );
        hostile.push_back( line + "x" );
    }
    for ( const auto &line : hostile ) {
        if ( const auto hdr = Decoded( { line } ) ) {
            EXPECT_EQ( test::Count( hdr.Get() ), 1 );
            const auto text = KoRef<KoString>::Adopt( header.toString( hdr.Get() ) );
            EXPECT_GE( koStringLength( text.Get() ), 0 );
        }
    }
}

TEST_P( HeaderFamily, AnotherName )
{
    // Both package headers call their constant the same.
    const std::string constant =
        header.type == "RecvInfo" || header.type == "InfoPackage" ? "InfoPackageType" : header.type;
    EXPECT_ABORT( header.tryDecode( test::RawHeader( "X-Other", { "a" } ).Get() ), path,
                  "tolmoMessageHeaderNameEquals( header, tolmo___Kos" + constant + " )" );
    EXPECT_ABORT( header.tryDecode( nullptr ), "source/tolmo/tolmo_message_header.cpp", "header" );
}

TEST_P( HeaderFamily, Null )
{
    const auto hdr = Created();
    auto msg = Received( "" );
    TolmoMessage noMessage = nullptr;
    EXPECT_ABORT( header.encode( nullptr ), path, "hdr" );
    EXPECT_ABORT( header.encodeToMessage( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( header.encodeToMessage( hdr.Get(), nullptr ), path, "msg" );
    EXPECT_ABORT( header.encodeToMessage( hdr.Get(), &noMessage ), path, "*msg" );
    EXPECT_ABORT( header.tryDecodeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( header.presentInMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( header.removeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( header.removeFromMessage( &noMessage ), path, "*msg" );
    EXPECT_ABORT( header.store( nullptr ), path, "hdr" );
    EXPECT_ABORT( header.tryRestore( nullptr ), path, "store" );
    EXPECT_ABORT( header.createFrom( nullptr ), path, "source" );
    EXPECT_ABORT_MESSAGE( header.retain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( header.release( nullptr ), "stdfunc release", path, "obj" );
    EXPECT_ABORT_MESSAGE( header.compare( nullptr, hdr.Get() ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( header.compare( hdr.Get(), nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT_MESSAGE( header.toString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT_MESSAGE( header.from( koStringObj( Str( "a" ).Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_" + std::string( header.sort->name ) );
}

INSTANTIATE_TEST_SUITE_P( All, HeaderFamily, testing::Range<size_t>( 0, Rows().size() ),
                          []( const auto &instance ) { return Rows()[instance.param].type; } );

} // namespace
