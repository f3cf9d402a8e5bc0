/* The module: its description, its frame, and what start and stop leave. This program starts it by itself. */
#include "tolmo_test.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstring>

namespace {

using test::Own;
using test::Str;
using test::Text;

class Module : public test::Fixture {};

TEST_F( Module, Record )
{
    EXPECT_EQ( tolmoModule(), &tolmo___module );
    EXPECT_EQ( tolmo___module.record, &tolmo___module_record );
    const KoModuleRecord &record = *tolmoModule()->record;
    EXPECT_EQ( record.format, 2 );
    EXPECT_STRNE( record.productFileName, "" );
    EXPECT_STRNE( record.productName, "" );
    EXPECT_GE( record.productVersionMajor, 0 );
    EXPECT_GE( record.productVersionMinor, 0 );
    EXPECT_GE( record.productVersionPatch, 0 );
    EXPECT_STRNE( record.vendor, "" );
    EXPECT_STRNE( record.legalNotice, "" );
    EXPECT_STREQ( record.name, "tolmo" );
    EXPECT_STREQ( record.description, "SIP Syntax" );
    EXPECT_STREQ( record.version, "0.0" );
    EXPECT_STREQ( record.needs, "wen ulm ko" );
    EXPECT_STREQ( record.reserved, "" );
}

/** UTC: year-month-day hours:minutes:seconds, and the weekday's name in brackets. */
TEST_F( Module, BuildTime )
{
    const std::string time = tolmo___module_record.buildTime;
    std::string shape;
    for ( const char ch : time ) {
        const auto byte = static_cast<unsigned char>( ch );
        shape += std::isdigit( byte ) ? '0' : std::isalpha( byte ) ? 'a' : ch;
    }
    EXPECT_EQ( shape.find( "0000-00-00 00:00:00 (" ), 0u ) << time;
    const std::string day = time.substr( 20 );
    const std::string days[] = { "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday" };
    EXPECT_EQ( std::count( std::begin( days ), std::end( days ), day.substr( 1, day.size() - 2 ) ), 1 ) << time;
    EXPECT_EQ( day.back(), ')' );
}

TEST_F( Module, VersionString )
{
    const std::string stamp = tolmo___module_version_string;
    EXPECT_NE( stamp.find( tolmo___module_record.productName ), std::string::npos );
    const std::string version = std::to_string( tolmo___module_record.productVersionMajor ) + "." +
                                std::to_string( tolmo___module_record.productVersionMinor ) + "." +
                                std::to_string( tolmo___module_record.productVersionPatch );
    const size_t open = stamp.find( '(' );
    const size_t close = stamp.find( ')' );
    ASSERT_NE( open, std::string::npos ) << stamp;
    ASSERT_NE( close, std::string::npos ) << stamp;
    EXPECT_LT( stamp.find( version ), open ) << stamp;
    EXPECT_GT( close, open + 1 );
    EXPECT_EQ( stamp.substr( close + 1 ), " tolmo 0.0" ) << stamp;
}

/** The frame: the kind 2, then 0, -1, 1 and six zeros; the record, the start, 0 and the stop; six words of the runtime. */
TEST_F( Module, Frame )
{
    intptr_t words[20];
    static_assert( sizeof tolmo___module == sizeof words );
    memcpy( words, &tolmo___module, sizeof words );
    const intptr_t frame[] = { 2, 0, -1, 1, 0, 0, 0, 0, 0, 0 };
    EXPECT_EQ( memcmp( words, frame, sizeof frame ), 0 );
    EXPECT_EQ( words[10], reinterpret_cast<intptr_t>( &tolmo___module_record ) );
    EXPECT_NE( words[11], 0 );
    EXPECT_EQ( words[12], 0 );
    EXPECT_NE( words[13], 0 );
    EXPECT_NE( words[11], words[13] );
    KoModule module = tolmoModule();
    for ( const KoSort sort : { tolmoVersionSort(), tolmoMessageSort(), tolmoViaSort() } ) {
        EXPECT_EQ( sort->module, module );
    }
}

/** What a program does: decodes a message and asks for what rests on constants. */
void Use()
{
    const auto msg = Own( tolmoMessageTryDecode(
        test::Buf( "OPTIONS sip:a SIP/2.0\r\nv: SIP/2.0/UDP h\r\nMax-Forwards: 5\r\nSubject: x\r\nl: 0\r\n\r\n" )
            .Get() ) );
    ASSERT_TRUE( msg );
    EXPECT_TRUE( tolmoMessageHasHeaderCstr( msg.Get(), "Via", -1 ) );
    const auto via = Own( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    EXPECT_TRUE( via );
    const auto header = Own( tolmoMessageHeaderCstr( msg.Get(), "s", -1 ) );
    const auto store = Own( tolmoMessageHeaderStore( header.Get() ) );
    const auto restored = Own( tolmoMessageHeaderTryRestore( store.Get() ) );
    EXPECT_TRUE( tolmoMessageHeaderEquals( header.Get(), restored.Get() ) );
    EXPECT_FALSE( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ).empty() );
}

TEST_F( Module, StartStopStart )
{
    for ( int i = 0; i < 3; ++i ) {
        const KoModuleScope started( tolmoModule() );
        Use();
    }
    // Counted: the inner stop does not stop it.
    const KoModuleScope outer( tolmoModule() );
    {
        const KoModuleScope inner( tolmoModule() );
    }
    Use();
}

TEST_F( Module, WhatAHolderKeepsOutlivesTheStop )
{
    KoRef<TolmoVersion> version;
    KoRef<KoString> name;
    KoRef<KoString> normal;
    KoRef<TolmoMessage> msg;
    {
        const KoModuleScope started( tolmoModule() );
        version = Own( tolmoVersionCreateSip20() );
        const auto header = Own( tolmoMessageHeaderCreateCstr( "v", -1 ) );
        name = Own( tolmoMessageHeaderName( header.Get() ) );
        normal = Own( tolmoMessageHeaderNameNormalize( Str( "CALL-ID" ).Get() ) );
        msg = Own( tolmoMessageTryDecode( test::Buf( "SIP/2.0 200 OK\r\nTo: a" ).Get() ) );
    }
    EXPECT_EQ( Text( name ), "Via" );
    EXPECT_EQ( Text( normal ), "Call-Id" );
    KoRef<TolmoVersion> kept = std::move( version );
    const KoModuleScope again( tolmoModule() );
    EXPECT_TRUE( tolmoVersionIsSip20( kept.Get() ) );
    EXPECT_EQ( test::Take( tolmoVersionToString( kept.Get() ) ), "SIP/2.0" );
    EXPECT_EQ( Own( tolmoMessageVersion( msg.Get() ) ).Get(), kept.Get() );
    EXPECT_TRUE( tolmoMessageHasHeader( msg.Get(), Str( "t" ).Get() ) );
}

/** A second start may not leave objects, however often it happens. */
TEST_F( Module, RestartsLeaveNothing )
{
    koModuleStart( tolmoModule() );
    koModuleStop( tolmoModule() );
    const KoInt live = ko___ObjLiveCount();
    for ( int i = 0; i < 10; ++i ) {
        const KoModuleScope started( tolmoModule() );
        Use();
    }
    EXPECT_EQ( ko___ObjLiveCount(), live );
}

/** The units hold poison behind the stop, so that a use of them ends the process instead of reading what was freed. */
TEST_F( Module, ConstantsArePoisonedBehindTheStop )
{
    tolmo___VersionStartup();
    tolmo___VersionShutdown();
    const auto child =
        test::RunInChild( [] { std::fputs( tolmoVersionIsSip( tolmoVersionCreateSip20() ) ? "yes" : "no", stderr ); } );
    EXPECT_NE( child.line, "yes" );
    EXPECT_NE( child.line, "no" );
}

TEST_F( Module, Needs )
{
    // The modules that it needs run while it runs, and not longer.
    const KoModuleScope started( tolmoModule() );
    EXPECT_ABORT( ( koModuleStop( tolmoModule() ), koModuleStop( tolmoModule() ) ), "source/runtime/ko_module.cpp",
                  "module->runtime[Starts] > 0" );
}

/** The order in which the units of the headers start and stop. It is nearly that of the alphabet. */
const char *const headerOrder[] = { "AcceptEncoding",
                                    "AcceptResourcePriority",
                                    "Accept",
                                    "AlertInfo",
                                    "AllowEvents",
                                    "Allow",
                                    "CallId",
                                    "CallInfo",
                                    "Contact",
                                    "ContentDisposition",
                                    "ContentEncoding",
                                    "Cseq",
                                    "Date",
                                    "Diversion",
                                    "ErrorInfo",
                                    "Event",
                                    "Expires",
                                    "From",
                                    "HistoryInfo",
                                    "InfoPackage",
                                    "InReplyTo",
                                    "MaxForwards",
                                    "MinExpires",
                                    "MinSe",
                                    "Organization",
                                    "PAssertedIdentity",
                                    "PCalledPartyId",
                                    "PEarlyMedia",
                                    "PPreferredIdentity",
                                    "Priority",
                                    "Privacy",
                                    "ProxyRequire",
                                    "Rack",
                                    "Reason",
                                    "RecordRoute",
                                    "RecvInfo",
                                    "ReferTo",
                                    "ReferredBy",
                                    "RemotePartyId",
                                    "Replaces",
                                    "ReplyTo",
                                    "Require",
                                    "ResourcePriority",
                                    "RetryAfter",
                                    "Route",
                                    "Rseq",
                                    "Server",
                                    "ServiceRoute",
                                    "SessionId",
                                    "SessionExpires",
                                    "Subject",
                                    "SubscriptionState",
                                    "Supported",
                                    "Timestamp",
                                    "To",
                                    "Unsupported",
                                    "UserAgent",
                                    "UserToUser",
                                    "Via",
                                    "Warning" };

struct HeaderUnit {
    std::string type, name;
};
#define TOLMO_HEADER( Type, name ) { #Type, name },
const HeaderUnit headerUnits[] = {
#include <tolmo/tolmo_headers.def>
};
#undef TOLMO_HEADER

TEST_F( Module, HeaderUnitsStandInTheirOrder )
{
    const char *const *at = std::begin( headerOrder );
    for ( const HeaderUnit &unit : headerUnits ) {
        at = std::find( at, std::end( headerOrder ), unit.type );
        ASSERT_NE( at, std::end( headerOrder ) ) << unit.type << " stands in another place";
        ++at;
        // The name is that of the type with hyphens, and in normal form but for one.
        std::string joined = unit.name;
        joined.erase( std::remove( joined.begin(), joined.end(), '-' ), joined.end() );
        EXPECT_EQ( unit.type == "UserToUser" ? "UsertoUser" : unit.type, joined );
        const KoModuleScope started( tolmoModule() );
        EXPECT_EQ( test::Take( tolmoMessageHeaderNameNormalize( Str( unit.name ).Get() ) ) == unit.name,
                   unit.type != "UserToUser" );
    }
}

} // namespace
