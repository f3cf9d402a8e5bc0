/* The headers of a session: Replaces, Session-ID, Event, Content-Disposition, Priority. */
#include "tolmo_header_fields_test.h"

namespace {

using test::null;
using test::Own;
using test::Str;
using test::Take;

class Session : public test::TolmoFixture {};

constexpr char token[] = "source/tolmo/tolmo_token.cpp";

/* Replaces */

struct Replaces {
    TEST_HEADER_AS_VALUE( Replaces, "replaces", "Replaces" )
    TEST_HEADER_PARAMS( Replaces )
};
const test::HeaderType<TolmoHeaderReplaces> replaces = TEST_HEADER( Replaces, "replaces", "Replaces" );

KoRef<TolmoHeaderReplaces> CreateReplaces()
{
    return Own( tolmoHeaderReplacesCreate( Str( "a@b" ).Get() ) );
}

TEST_F( Session, ReplacesSingleValue )
{
    test::ExpectSingleValue( replaces, "a;from-tag=b;to-tag=c", "a b" );
}

// Alone among all headers: without a line there is no header, but the end of the process.
TEST_F( Session, ReplacesWithoutALine )
{
    const char *const string = "source/runtime/ko_string.cpp";
    const auto header = test::RawHeader( "Replaces", {} );
    EXPECT_ABORT( tolmoHeaderReplacesTryDecode( header.Get() ), string, "s" );
    auto msg = test::Received( "" );
    tolmoMessageSetHeader( msg.Address(), header.Get() );
    EXPECT_TRUE( tolmoHeaderReplacesPresentInMessage( msg.Get() ) );
    EXPECT_ABORT( tolmoHeaderReplacesTryDecodeFromMessage( msg.Get() ), string, "s" );
    auto store = Own( koStoreCreateArray() );
    EXPECT_ABORT( tolmoHeaderReplacesTryRestore( store.Get() ), string, "s" );
    koStoreAppendValue( store.Address(), Str( "a\r\nb" ).Get() ); // no line, and left out
    EXPECT_ABORT( tolmoHeaderReplacesTryRestore( store.Get() ), string, "s" );

    // What is received has a line, if an empty one.
    const auto received = test::Received( "Replaces:\r\n" );
    EXPECT_EQ( tolmoHeaderReplacesTryDecodeFromMessage( received.Get() ), nullptr );
    EXPECT_EQ( tolmoHeaderReplacesTryDecodeFromMessage( test::Received( "" ).Get() ), nullptr );
    EXPECT_ABORT( tolmoHeaderReplacesTryDecodeFromMessage( nullptr ), Replaces::path, "msg" );
}

TEST_F( Session, ReplacesCreate )
{
    const auto callId = Str( "A@b" );
    const auto hdr = Own( tolmoHeaderReplacesCreate( callId.Get() ) );
    EXPECT_EQ( Own( tolmoHeaderReplacesCallId( hdr.Get() ) ).Get(), callId.Get() );
    EXPECT_FALSE( tolmoHeaderReplacesHasFromTag( hdr.Get() ) );
    EXPECT_FALSE( tolmoHeaderReplacesHasToTag( hdr.Get() ) );
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( hdr.Get() ), KO_FALSE );
    EXPECT_EQ( test::Generic<Replaces>( hdr ), "" );
    EXPECT_ABORT( tolmoHeaderReplacesCreate( nullptr ), "source/tolmo/tolmo_call_id.cpp", "callId" );
    EXPECT_ABORT( tolmoHeaderReplacesCreate( Str( "a@" ).Get() ), Replaces::path, "tolmoCallIdOk( callId )" );
}

TEST_F( Session, ReplacesFields )
{
    test::ExpectStringField<Replaces>( { nullptr,
                                         tolmoHeaderReplacesCallId,
                                         tolmoHeaderReplacesSetCallId,
                                         nullptr,
                                         "A@b",
                                         "A@b",
                                         "{c}",
                                         { { nullptr, "source/tolmo/tolmo_call_id.cpp", "callId" },
                                           { "", Replaces::path, "tolmoCallIdOk( callId )" },
                                           { "a;b", Replaces::path, "tolmoCallIdOk( callId )" } } },
                                       CreateReplaces );
    test::ExpectStringField<Replaces>( { tolmoHeaderReplacesHasFromTag,
                                         tolmoHeaderReplacesFromTag,
                                         tolmoHeaderReplacesSetFromTag,
                                         tolmoHeaderReplacesDelFromTag,
                                         "Ab",
                                         "Ab",
                                         "c",
                                         { { nullptr, token, "token" },
                                           { "", Replaces::path, "tolmoTagOk( fromTag )" },
                                           { "a b", Replaces::path, "tolmoTagOk( fromTag )" } } },
                                       CreateReplaces );
    test::ExpectStringField<Replaces>( { tolmoHeaderReplacesHasToTag,
                                         tolmoHeaderReplacesToTag,
                                         tolmoHeaderReplacesSetToTag,
                                         tolmoHeaderReplacesDelToTag,
                                         "Ab",
                                         "Ab",
                                         "c",
                                         { { nullptr, token, "token" },
                                           { "", Replaces::path, "tolmoTagOk( toTag )" },
                                           { "a b", Replaces::path, "tolmoTagOk( toTag )" } } },
                                       CreateReplaces );
    test::ExpectGenericParams<Replaces>( CreateReplaces );
}

TEST_F( Session, ReplacesEarlyOnly )
{
    auto hdr = CreateReplaces();
    const TolmoHeaderReplaces object = hdr.Get();
    tolmoHeaderReplacesSetEarlyOnly( hdr.Address(), 256 ); // any true value
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( hdr.Get() ), KO_TRUE );
    EXPECT_EQ( hdr.Get(), object );
    const auto other = KoRef<TolmoHeaderReplaces>::Share( hdr.Get() );
    tolmoHeaderReplacesSetEarlyOnly( hdr.Address(), KO_FALSE );
    EXPECT_NE( hdr.Get(), other.Get() );
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( hdr.Get() ), KO_FALSE );
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( other.Get() ), KO_TRUE );
    tolmoHeaderReplacesSetEarlyOnly( hdr.Address(), -1 );
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( hdr.Get() ), KO_TRUE );
    EXPECT_EQ( test::Encode<Replaces>( hdr ), "a@b;early-only" );
    EXPECT_ABORT( tolmoHeaderReplacesEarlyOnly( nullptr ), Replaces::path, "hdr" );
    EXPECT_HANDLE_ABORTS( replaces, tolmoHeaderReplacesSetEarlyOnly, KO_TRUE );
}

const test::Row replacesRows[] = {
    { "98732@sip.example.com;from-tag=r33th4x0r;to-tag=ff87ff",
      "98732@sip.example.com;from-tag=r33th4x0r;to-tag=ff87ff" },
    { "a@b;to-tag=1;from-tag=2", "a@b;from-tag=2;to-tag=1" },
    { "a;x;early-only;TO-TAG=B;y;From-Tag = C", "a;from-tag=C;to-tag=B;early-only;x;y" },
    { "<(a)>@[b]{c}", "<(a)>@[b]{c}" },
    { "a;from-tag=a;from-tag=b", "a;from-tag=b" },
    { "a;early-only", "a;early-only" },
    { "a;Early-ONLY;x", "a;early-only;x" },
    { "a;early-only;early-only", "a;early-only" },
    { "a;early-only ;x", "a;early-only;x" },
    { "", null },
    { " a", null },
    { "a ", null },
    { "a@", null },
    { "@a", null },
    { "a b", null },
    { "a, b", null },
    { "a;", null },
    { "a;;x", null },
    { "a;x;", null },
    { "a;from-tag=a b", null },
    { "a;from-tag=a@b", null },
    { "a;x y", null },
    { "\u00FC", null },
    // With a value, early-only is a parameter like any other.
    { "a;early-only=x", "a;early-only=x" },
    { "a;early-only = 1", "a;early-only=1" },
    { "a;early-only =", null },
    { "a;early-onlyx", null }, // the name sets the flag, and then a semicolon has to follow
    { "a;early-only x", null },
    { "a;early-only ", null },
    { "a;early-on", "a;early-on" },
    // What does not fit a field is a generic parameter.
    { "a;from-tag", "a;from-tag" },
    { "a;to-tag=\"b\"", "a;to-tag=\"b\"" },
    { "a;to-tags=b", "a;to-tags=b" },
    { "a;to-tag=[::1]", "a;to-tag=[::1]" },
    { "a;to-tag=", null },
    // And no field hides it.
    { "a;from-tag=a;from-tag=\"b\"", "a;from-tag=a;from-tag=\"b\"" },
    { "a;to-tag;x;to-tag=b", "a;to-tag=b;to-tag;x" },
    { "a;early-only;early-only=1", "a;early-only;early-only=1" },
};

TEST_F( Session, ReplacesRows )
{
    for ( const auto &row : replacesRows ) {
        test::ExpectRow( replaces, row );
    }
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( test::Decode<Replaces>( "a;early-only=1" ).Get() ), KO_FALSE );
    EXPECT_EQ( tolmoHeaderReplacesEarlyOnly( test::Decode<Replaces>( "a;EARLY-ONLY" ).Get() ), KO_TRUE );
}

TEST_F( Session, ReplacesPrintsItsOwnSet )
{
    auto hdr = CreateReplaces();
    tolmoHeaderReplacesSetFromTag( hdr.Address(), Str( "f" ).Get() );
    tolmoHeaderReplacesSetToTag( hdr.Address(), Str( "t" ).Get() );
    tolmoHeaderReplacesSetEarlyOnly( hdr.Address(), KO_TRUE );
    tolmoHeaderReplacesSetGenericParams( hdr.Address(), test::ParamsOf( ";to-tag=1;early-only;x;from-tag=2" ).Get() );
    EXPECT_EQ( test::Encode<Replaces>( hdr ), "a@b;from-tag=f;to-tag=t;early-only;to-tag=1;early-only;x;from-tag=2" );
    EXPECT_EQ( test::Generic<Replaces>( hdr ), ";to-tag=1;early-only;x;from-tag=2" );
}

TEST_F( Session, ReplacesCompareOrder )
{
    test::ExpectAscending<Replaces>( { "A", "a", "a;x", "a;early-only", "a;to-tag=A", "a;to-tag=a",
                                       "a;to-tag=a;early-only", "a;to-tag=b", "a;from-tag=a", "a;from-tag=a;to-tag=a",
                                       "a;from-tag=b", "b" } );
}

/* Session-ID */

struct SessionId {
    TEST_HEADER_AS_VALUE( SessionId, "session_id", "Session-Id" )
    TEST_HEADER_PARAMS( SessionId )
};
const test::HeaderType<TolmoHeaderSessionId> sessionId = TEST_HEADER( SessionId, "session_id", "Session-Id" );

const std::string local = "ab30317f1a784dc48ff824d0d3715d86";
const std::string remote = "47755a9de7794ba387653f2099600ef2";
const std::string capital = "47755A9DE7794BA387653F2099600EF2";

TEST_F( Session, SessionIdSingleValue )
{
    test::ExpectSingleValue( sessionId, local + ";remote=" + remote, capital );
}

TEST_F( Session, SessionIdCreate )
{
    const auto uuid = Str( local );
    const auto hdr = Own( tolmoHeaderSessionIdCreate( uuid.Get() ) );
    EXPECT_EQ( Own( tolmoHeaderSessionIdLocalUuid( hdr.Get() ) ).Get(), uuid.Get() );
    EXPECT_FALSE( tolmoHeaderSessionIdHasRemoteUuid( hdr.Get() ) );
    EXPECT_EQ( test::Generic<SessionId>( hdr ), "" );
    EXPECT_ABORT( tolmoHeaderSessionIdCreate( nullptr ), "source/tolmo/tolmo_sess_uuid.cpp", "sessUuid" );
    EXPECT_ABORT( tolmoHeaderSessionIdCreate( Str( capital ).Get() ), SessionId::path, "tolmoSessUuidOk( localUuid )" );
}

TEST_F( Session, SessionIdFields )
{
    const auto create = [] { return Own( tolmoHeaderSessionIdCreate( Own( tlomoSessUuidNil() ).Get() ) ); };
    const std::string longer = local + "0";
    test::ExpectStringField<SessionId>( { nullptr,
                                          tolmoHeaderSessionIdLocalUuid,
                                          tolmoHeaderSessionIdSetLocalUuid,
                                          nullptr,
                                          local.c_str(),
                                          local.c_str(),
                                          remote.c_str(),
                                          { { nullptr, "source/tolmo/tolmo_sess_uuid.cpp", "sessUuid" },
                                            { "", SessionId::path, "tolmoSessUuidOk( localUuid )" },
                                            { longer.c_str(), SessionId::path, "tolmoSessUuidOk( localUuid )" } } },
                                        create );
    test::ExpectStringField<SessionId>( { tolmoHeaderSessionIdHasRemoteUuid,
                                          tolmoHeaderSessionIdRemoteUuid,
                                          tolmoHeaderSessionIdSetRemoteUuid,
                                          tolmoHeaderSessionIdDelRemoteUuid,
                                          remote.c_str(),
                                          remote.c_str(),
                                          local.c_str(),
                                          { { nullptr, "source/tolmo/tolmo_sess_uuid.cpp", "sessUuid" },
                                            { "0", SessionId::path, "tolmoSessUuidOk( remoteUuid )" },
                                            { capital.c_str(), SessionId::path, "tolmoSessUuidOk( remoteUuid )" } } },
                                        create );
    test::ExpectGenericParams<SessionId>( create );
}

TEST_F( Session, SessionIdRows )
{
    const struct {
        std::string in;
        std::string out;
    } rows[] = {
        { local, local },
        { local + ";remote=" + remote, local + ";remote=" + remote },
        { local + " ; x ; REMOTE = " + remote + ";y", local + ";remote=" + remote + ";x;y" },
        { local + ";remote=" + remote + ";remote=" + local, local + ";remote=" + local },
        { "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz" },
        // What no semicolon opens is ignored, the 33rd character of an identifier included.
        { local + "0", local },
        { local + "0;remote=" + remote, local },
        { local + " x;y", local },
        { local + "-", local },
        { local + ";remote=" + remote + "0", local + ";remote=" + remote },
        { local + ";remote=" + remote + "0;x", local + ";remote=" + remote },
        { local + ";x y", local + ";x" },
        { local + ", " + remote, local },
        { local + ";", "(null)" },
        { local + " ; ", "(null)" },
        { local + ";;x", "(null)" },
        { local + ";x=", "(null)" },
        { "", "(null)" },
        { " " + local, "(null)" },
        { local.substr( 1 ), "(null)" },
        { capital, "(null)" },
        { local.substr( 1 ) + "\u00FC", "(null)" },
        // What is no identifier is a generic parameter.
        { local + ";remote=" + capital, local + ";remote=" + capital },
        { local + ";remote=" + remote.substr( 1 ), local + ";remote=" + remote.substr( 1 ) },
        { local + ";remote", local + ";remote" },
        { local + ";remote=\"" + remote + "\"", local + ";remote=\"" + remote + "\"" },
        { local + ";remotes=" + remote, local + ";remotes=" + remote },
        // And hidden while there is an identifier.
        { local + ";remote=" + capital + ";x;remote=" + remote, local + ";remote=" + remote + ";x" },
        { local + ";remote=" + remote + ";remote=x", local + ";remote=" + remote },
    };
    for ( const auto &row : rows ) {
        test::ExpectRow( sessionId, { row.in, row.out } );
    }
    const auto hdr = test::Decode<SessionId>( local + ";remote=" + capital );
    EXPECT_FALSE( tolmoHeaderSessionIdHasRemoteUuid( hdr.Get() ) );
    EXPECT_EQ( test::Generic<SessionId>( hdr ), ";remote=" + capital );
}

TEST_F( Session, SessionIdCompareOrder )
{
    const std::string a = remote;
    const std::string b = local;
    ASSERT_LT( a, b );
    const std::string lines[] = {
        a, a + ";x", a + ";remote=" + a, a + ";remote=" + a + ";x", a + ";remote=" + b, b,
    };
    for ( size_t i = 0; i + 1 < std::size( lines ); ++i ) {
        const auto less = test::Decode<SessionId>( lines[i] );
        const auto more = test::Decode<SessionId>( lines[i + 1] );
        EXPECT_LT( tolmoHeaderSessionIdCompare( less.Get(), more.Get() ), 0 ) << lines[i];
        EXPECT_GT( tolmoHeaderSessionIdCompare( more.Get(), less.Get() ), 0 ) << lines[i];
    }
}

/* Event */

struct Event {
    TEST_HEADER_AS_VALUE( Event, "event", "Event" )
    TEST_HEADER_PARAMS( Event )
};
const test::HeaderType<TolmoHeaderEvent> event = TEST_HEADER( Event, "event", "Event" );

TEST_F( Session, EventSingleValue )
{
    test::ExpectSingleValue( event, "presence;id=1", "presence;" );
    const auto compact = test::Received( "o: presence;id=1\r\n" );
    EXPECT_EQ( test::Encode( event, Own( tolmoHeaderEventTryDecodeFromMessage( compact.Get() ) ) ), "presence;id=1" );
}

TEST_F( Session, EventCreate )
{
    constexpr char chars[] = "Presence.winfo;no more of it";
    constexpr uint16_t wide[] = { 'd', 'i', 'a', 'l', 'o', 'g', 0 };
    const auto eventType = Str( "Presence.winfo" );
    const auto hdr = Own( tolmoHeaderEventCreate( eventType.Get() ) );
    EXPECT_EQ( Own( tolmoHeaderEventEventType( hdr.Get() ) ).Get(), eventType.Get() );
    EXPECT_FALSE( tolmoHeaderEventHasId( hdr.Get() ) );
    EXPECT_EQ( test::Generic<Event>( hdr ), "" );
    EXPECT_EQ( test::Encode<Event>( Own( tolmoHeaderEventCreateCstr( chars, 14 ) ) ), "Presence.winfo" );
    EXPECT_EQ( test::Encode<Event>( Own( tolmoHeaderEventCreateCstr( "dialog", -1 ) ) ), "dialog" );
    EXPECT_EQ( test::Encode<Event>( Own( tolmoHeaderEventCreateWcstr( wide, -1 ) ) ), "dialog" );
    EXPECT_EQ( test::Encode<Event>( Own( tolmoHeaderEventCreateWcstr( wide, 4 ) ) ), "dial" );
    EXPECT_ABORT( tolmoHeaderEventCreate( nullptr ), "source/tolmo/tolmo_event_type.cpp", "eventType" );
    EXPECT_ABORT( tolmoHeaderEventCreate( Str( "presence." ).Get() ), Event::path, "tolmoEventTypeOk( eventType )" );
    EXPECT_ABORT( tolmoHeaderEventCreateCstr( "", -1 ), Event::path, "tolmoEventTypeOk( eventType )" );
    EXPECT_ABORT( tolmoHeaderEventCreateWcstr( nullptr, 0 ), Event::path, "tolmoEventTypeOk( eventType )" );

    auto changed = Own( tolmoHeaderEventCreate( eventType.Get() ) );
    tolmoHeaderEventSetEventTypeCstr( changed.Address(), chars, 8 );
    EXPECT_EQ( test::Encode<Event>( changed ), "Presence" );
    tolmoHeaderEventSetEventTypeWcstr( changed.Address(), wide, -1 );
    EXPECT_EQ( test::Encode<Event>( changed ), "dialog" );
    EXPECT_HANDLE_ABORTS( event, tolmoHeaderEventSetEventTypeCstr, "a b", -1 );
    EXPECT_HANDLE_ABORTS( event, tolmoHeaderEventSetEventTypeWcstr, wide, -1 );
    EXPECT_ABORT( tolmoHeaderEventSetEventTypeCstr( changed.Address(), "a b", -1 ), Event::path,
                  "tolmoEventTypeOk( eventType )" );
    EXPECT_ABORT( tolmoHeaderEventSetEventTypeWcstr( changed.Address(), wide, 0 ), Event::path,
                  "tolmoEventTypeOk( eventType )" );
}

TEST_F( Session, EventFields )
{
    const auto create = [] { return Own( tolmoHeaderEventCreateCstr( "presence", -1 ) ); };
    test::ExpectStringField<Event>( { nullptr,
                                      tolmoHeaderEventEventType,
                                      tolmoHeaderEventSetEventType,
                                      nullptr,
                                      "Dialog",
                                      "Dialog",
                                      "presence.winfo",
                                      { { nullptr, "source/tolmo/tolmo_event_type.cpp", "eventType" },
                                        { "", Event::path, "tolmoEventTypeOk( eventType )" },
                                        { ".a", Event::path, "tolmoEventTypeOk( eventType )" } } },
                                    create );
    test::ExpectStringField<Event>( { tolmoHeaderEventHasId,
                                      tolmoHeaderEventId,
                                      tolmoHeaderEventSetId,
                                      tolmoHeaderEventDelId,
                                      "A1",
                                      "A1",
                                      "b.c",
                                      { { nullptr, token, "token" },
                                        { "", Event::path, "tolmoTokenOk( id )" },
                                        { "a b", Event::path, "tolmoTokenOk( id )" } } },
                                    create );
    test::ExpectGenericParams<Event>( create );
}

const test::Row eventRows[] = {
    { "presence", "presence" },
    { "Presence.winfo.x;id=1", "Presence.winfo.x;id=1" },
    { "presence;ID=A", "presence;id=A" },
    { "presence ; x = 1 ; Id = a ; y", "presence;id=a;x=1;y" },
    { "presence;id=1;id=2", "presence;id=2" },
    { "", null },
    { " presence", null },
    { "presence ", null },
    { "presence x", null },
    { "presence.", null },
    { "presence.;id=1", null },
    { ".a", null },
    { "a..b", null },
    { "presence;", null },
    { "presence;;x", null },
    { "presence;x;", null },
    { "presence;x y", null },
    { "presence;id=a@b", null }, // a good beginning is taken, and then a semicolon has to follow
    { "presence;id=1 ", null },
    { "presence, dialog", null },
    { "\u00FC", null },
    // What does not fit the field is a generic parameter.
    { "presence;identity=x", "presence;identity=x" },
    { "presence;id", "presence;id" },
    { "presence;id=\"x\"", "presence;id=\"x\"" },
    { "presence;id=[::1]", "presence;id=[::1]" },
    { "presence;id=", null },
    // One that did not fit is hidden while there is one that did.
    { "presence;id;x;id=1", "presence;id=1;x" },
    { "presence;id=1;id=\"2\"", "presence;id=1" },
};

TEST_F( Session, EventRows )
{
    for ( const auto &row : eventRows ) {
        test::ExpectRow( event, row );
    }
    auto hdr = test::Decode<Event>( "presence;ID=1;id=\"2\"" );
    EXPECT_EQ( Take( tolmoHeaderEventId( hdr.Get() ) ), "1" );
    EXPECT_EQ( test::Generic<Event>( hdr ), ";id=\"2\"" );
    tolmoHeaderEventDelId( hdr.Address() );
    EXPECT_EQ( test::Encode<Event>( hdr ), "presence;id=\"2\"" );
}

TEST_F( Session, EventCompareOrder )
{
    test::ExpectAscending<Event>( { "A", "a", "a;x", "a;id=A", "a;id=a", "a;id=a;x", "a;id=b", "a.b", "b" } );
}

/* Content-Disposition */

struct ContentDisposition {
    TEST_HEADER_AS_VALUE( ContentDisposition, "content_disposition", "Content-Disposition" )
    TEST_HEADER_PARAMS( ContentDisposition )
};
const test::HeaderType<TolmoHeaderContentDisposition> contentDisposition =
    TEST_HEADER( ContentDisposition, "content_disposition", "Content-Disposition" );

TEST_F( Session, ContentDispositionSingleValue )
{
    test::ExpectSingleValue( contentDisposition, "session;handling=optional", "session optional" );
}

TEST_F( Session, ContentDispositionCreate )
{
    const char *const path = "source/tolmo/tolmo_disposition_type.cpp"; // the normaliser tests
    const auto type = Str( "Session" );
    const auto hdr = Own( tolmoHeaderContentDispositionCreate( type.Get() ) );
    EXPECT_EQ( Take( tolmoHeaderContentDispositionDispositionType( hdr.Get() ) ), "session" );
    EXPECT_EQ( test::Text( type ), "Session" );
    EXPECT_FALSE( tolmoHeaderContentDispositionHasHandling( hdr.Get() ) );
    EXPECT_EQ( test::Generic<ContentDisposition>( hdr ), "" );
    EXPECT_ABORT( tolmoHeaderContentDispositionCreate( nullptr ), path, "dispositionType" );
    EXPECT_ABORT( tolmoHeaderContentDispositionCreate( Str( "a b" ).Get() ), path,
                  "tolmoDispositionTypeOk( dispositionType )" );
}

TEST_F( Session, ContentDispositionFields )
{
    const auto create = [] { return Own( tolmoHeaderContentDispositionCreate( Str( "x" ).Get() ) ); };
    const char *const type = "source/tolmo/tolmo_disposition_type.cpp";
    const char *const handling = "source/tolmo/tolmo_handling.cpp";
    test::ExpectStringField<ContentDisposition>( { nullptr,
                                                   tolmoHeaderContentDispositionDispositionType,
                                                   tolmoHeaderContentDispositionSetDispositionType,
                                                   nullptr,
                                                   "Render",
                                                   "render",
                                                   "icon",
                                                   { { nullptr, type, "dispositionType" },
                                                     { "", type, "tolmoDispositionTypeOk( dispositionType )" },
                                                     { "a;b", type, "tolmoDispositionTypeOk( dispositionType )" } } },
                                                 create );
    test::ExpectStringField<ContentDisposition>( { tolmoHeaderContentDispositionHasHandling,
                                                   tolmoHeaderContentDispositionHandling,
                                                   tolmoHeaderContentDispositionSetHandling,
                                                   tolmoHeaderContentDispositionDelHandling,
                                                   "REQUIRED",
                                                   "required",
                                                   "optional",
                                                   { { nullptr, handling, "handling" },
                                                     { "", handling, "tolmoHandlingOk( handling )" },
                                                     { "a b", handling, "tolmoHandlingOk( handling )" } } },
                                                 create );
    test::ExpectGenericParams<ContentDisposition>( create );
}

const test::Row contentDispositionRows[] = {
    { "session", "session" },
    { "Render;Handling=REQUIRED", "render;handling=required" },
    { "alert ; x = 1 ; handling = a ; y", "alert;handling=a;x=1;y" },
    { "session;handling=a;handling=b", "session;handling=b" },
    { "", null },
    { " session", null },
    { "session ", null },
    { "session x", null },
    { "session;", null },
    { "session;;x", null },
    { "session;x;", null },
    { "session;handling=a b", null },
    { "session;handling=a@b", null },
    { "session, render", null },
    { "\u00FC", null },
    // What does not fit the field is a generic parameter.
    { "session;handling", "session;handling" },
    { "session;handling=\"A\"", "session;handling=\"A\"" },
    { "session;handlings=A", "session;handlings=A" },
    { "session;handling=", null },
    // One that did not fit is hidden while there is one that did.
    { "session;handling;x;handling=a", "session;handling=a;x" },
    { "session;handling=a;handling=\"b\"", "session;handling=a" },
};

TEST_F( Session, ContentDispositionRows )
{
    for ( const auto &row : contentDispositionRows ) {
        test::ExpectRow( contentDisposition, row );
    }
    const auto hdr = test::Decode<ContentDisposition>( "Session;Handling=Optional;handling=\"x\"" );
    EXPECT_EQ( Take( tolmoHeaderContentDispositionHandling( hdr.Get() ) ), "optional" );
    EXPECT_EQ( test::Generic<ContentDisposition>( hdr ), ";handling=\"x\"" );
}

TEST_F( Session, ContentDispositionCompareOrder )
{
    test::ExpectAscending<ContentDisposition>( { "a", "a;x", "a;handling=a", "a;handling=a;x", "a;handling=b", "b" } );
}

/* Priority */

struct Priority {
    TEST_HEADER_AS_VALUE( Priority, "priority", "Priority" )
};
const test::HeaderType<TolmoHeaderPriority> priority = TEST_HEADER( Priority, "priority", "Priority" );

struct KnownPriority {
    const char *value;
    TolmoHeaderPriority ( *create )();
    KoBool ( *is )( TolmoHeaderPriority );
    void ( *set )( TolmoHeaderPriority * );
};

#define KNOWN_PRIORITY( value, Name )                                                                                  \
    {                                                                                                                  \
        value, tolmoHeaderPriorityCreate##Name, tolmoHeaderPriorityIs##Name, tolmoHeaderPrioritySet##Name              \
    }

const KnownPriority knownPriorities[] = {
    KNOWN_PRIORITY( "emergency", Emergency ),
    KNOWN_PRIORITY( "urgent", Urgent ),
    KNOWN_PRIORITY( "normal", Normal ),
    KNOWN_PRIORITY( "non-urgent", NonUrgent ),
    KNOWN_PRIORITY( "psap-callback", PsapCallback ),
};

TEST_F( Session, PrioritySingleValue )
{
    test::ExpectSingleValue( priority, "urgent", "urgent x" );
}

TEST_F( Session, PriorityCreate )
{
    const auto value = Str( "My-Own" );
    const auto hdr = Own( tolmoHeaderPriorityCreate( value.Get() ) );
    EXPECT_EQ( Take( tolmoHeaderPriorityPriorityValue( hdr.Get() ) ), "my-own" );
    EXPECT_EQ( test::Text( value ), "My-Own" );
    EXPECT_ABORT( tolmoHeaderPriorityCreate( nullptr ), "source/tolmo/tolmo_priority_value.cpp", "priority" );
    EXPECT_ABORT( tolmoHeaderPriorityCreate( Str( "" ).Get() ), Priority::path,
                  "tolmoPriorityValueOk( priorityValue )" );
}

TEST_F( Session, PriorityFields )
{
    test::ExpectStringField<Priority>( { nullptr,
                                         tolmoHeaderPriorityPriorityValue,
                                         tolmoHeaderPrioritySetPriorityValue,
                                         nullptr,
                                         "URGENT",
                                         "urgent",
                                         "x",
                                         { { nullptr, "source/tolmo/tolmo_priority_value.cpp", "priority" },
                                           { "", Priority::path, "tolmoPriorityValueOk( priorityValue )" },
                                           { "a b", Priority::path, "tolmoPriorityValueOk( priorityValue )" } } },
                                       [] { return Own( tolmoHeaderPriorityCreateNormal() ); } );
}

TEST_F( Session, PriorityKnownValues )
{
    for ( const KnownPriority &known : knownPriorities ) {
        EXPECT_EQ( test::Encode<Priority>( Own( known.create() ) ), known.value );
        auto hdr = Own( tolmoHeaderPriorityCreate( Str( "other" ).Get() ) );
        EXPECT_FALSE( known.is( hdr.Get() ) );
        const auto other = KoRef<TolmoHeaderPriority>::Share( hdr.Get() );
        known.set( hdr.Address() );
        EXPECT_EQ( test::Encode<Priority>( hdr ), known.value );
        EXPECT_EQ( test::Encode<Priority>( other ), "other" );
        EXPECT_HANDLE_ABORTS( priority, known.set );
        EXPECT_DEATH( known.is( nullptr ), "" ); // not tested for, and an end all the same
        for ( const KnownPriority &tested : knownPriorities ) {
            EXPECT_EQ( tested.is( hdr.Get() ), tested.value == known.value ) << tested.value;
        }
        std::string text = known.value;
        text[0] = static_cast<char>( text[0] - 0x20 );
        EXPECT_TRUE( known.is( test::Decode<Priority>( text ).Get() ) ); // stored in small letters
        EXPECT_FALSE( known.is( test::Decode<Priority>( text + "x" ).Get() ) );
        EXPECT_FALSE( known.is( test::Decode<Priority>( text.substr( 1 ) ).Get() ) );
    }
}

const test::Row priorityRows[] = {
    { "Emergency", "emergency" },
    { "NON-URGENT", "non-urgent" },
    { "x", "x" },
    { "", null },
    { " ", null },
    { " urgent", null },
    { "urgent ", null },
    { "a b", null },
    { "urgent;x", null },
    { "a,b", null },
    { "\u00FC", null },
    { "urgent\u00E9", null },
};

TEST_F( Session, PriorityRows )
{
    for ( const auto &row : priorityRows ) {
        test::ExpectRow( priority, row );
    }
    test::ExpectAscending<Priority>( { "a", "ab", "b" } );
}

/* All of them. */

TEST_F( Session, Huge )
{
    test::ExpectHuge<Replaces>( "a;from-tag=b" );
    test::ExpectHuge<SessionId>( local + ";remote=" + remote );
    test::ExpectHuge<Event>( "a;id=b" );
    test::ExpectHuge<ContentDisposition>( "a;handling=b" );
    const std::string word( 100000, 'a' );
    EXPECT_EQ( test::Recode( priority, word ), word );
}

TEST_F( Session, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 59 );
    for ( int i = 0; i < 1000; ++i ) {
        auto dialog = Own( tolmoHeaderReplacesCreate( draw.One( { "a", "A@b", "{}" } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderReplacesSetFromTag( dialog.Address(), draw.One( { "a", "B" } ).Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoHeaderReplacesSetToTag( dialog.Address(), draw.One( { "a", "B" } ).Get() );
        }
        tolmoHeaderReplacesSetEarlyOnly( dialog.Address(), draw.Perhaps() );
        tolmoHeaderReplacesSetGenericParams( dialog.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<Replaces>( dialog );

        auto session = Own( tolmoHeaderSessionIdCreate( draw.One( { local, remote } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderSessionIdSetRemoteUuid( session.Address(), draw.One( { local, remote } ).Get() );
        }
        tolmoHeaderSessionIdSetGenericParams( session.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<SessionId>( session );

        auto package = Own( tolmoHeaderEventCreate( draw.One( { "a", "B.c" } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderEventSetId( package.Address(), draw.One( { "1", "A" } ).Get() );
        }
        tolmoHeaderEventSetGenericParams( package.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<Event>( package );

        auto disposition = Own( tolmoHeaderContentDispositionCreate( draw.One( { "session", "Icon" } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderContentDispositionSetHandling( disposition.Address(), draw.One( { "a", "B" } ).Get() );
        }
        tolmoHeaderContentDispositionSetGenericParams( disposition.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<ContentDisposition>( disposition );
    }
}

} // namespace
