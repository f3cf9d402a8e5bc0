/* The validators and normalisers of the elements that are plain strings, above all tokens. */
#include "test.h"

#include <tolmo/tolmo_branch.h>
#include <tolmo/tolmo_call_id.h>
#include <tolmo/tolmo_content_coding.h>
#include <tolmo/tolmo_disposition_type.h>
#include <tolmo/tolmo_em_param.h>
#include <tolmo/tolmo_epid.h>
#include <tolmo/tolmo_event_reason_value.h>
#include <tolmo/tolmo_event_type.h>
#include <tolmo/tolmo_handling.h>
#include <tolmo/tolmo_history_info_index.h>
#include <tolmo/tolmo_info_package_name.h>
#include <tolmo/tolmo_media_subtype.h>
#include <tolmo/tolmo_media_type.h>
#include <tolmo/tolmo_method.h>
#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_priority_value.h>
#include <tolmo/tolmo_priv_value.h>
#include <tolmo/tolmo_protocol_name.h>
#include <tolmo/tolmo_protocol_version.h>
#include <tolmo/tolmo_purpose.h>
#include <tolmo/tolmo_reason_cause.h>
#include <tolmo/tolmo_reason_protocol.h>
#include <tolmo/tolmo_reason_text.h>
#include <tolmo/tolmo_refresher.h>
#include <tolmo/tolmo_rvalue.h>
#include <tolmo/tolmo_server.h>
#include <tolmo/tolmo_sip_clean_msg_id.h>
#include <tolmo/tolmo_sip_instance.h>
#include <tolmo/tolmo_substate_value.h>
#include <tolmo/tolmo_tag.h>
#include <tolmo/tolmo_timestamp_value.h>
#include <tolmo/tolmo_token.h>
#include <tolmo/tolmo_token_nodot.h>
#include <tolmo/tolmo_transport.h>
#include <tolmo/tolmo_user_agent.h>
#include <tolmo/tolmo_warn_agent.h>
#include <tolmo/tolmo_warn_text.h>

namespace {

using test::Str;
using test::Text;
using namespace std::string_view_literals;

using Ok = KoBool ( * )( KoString );
using Normalize = KoString ( * )( KoString );

class TokenScalars : public test::Fixture {};

constexpr std::string_view tokenChars = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-.!%*_+`'~";

KoBool IsOk( Ok ok, std::string_view text )
{
    return ok( Str( text ).Get() );
}

struct Row {
    std::string_view text;
    bool ok;
};

void ExpectOk( Ok ok, const std::vector<Row> &rows )
{
    for ( const Row &row : rows ) {
        EXPECT_EQ( IsOk( ok, row.text ), row.ok ? KO_TRUE : KO_FALSE ) << "text: " << row.text;
    }
}

/** What holds for every element that is a token: each character alone and behind another one, and strange texts. */
void ExpectToken( Ok ok, std::string_view excluded = "" )
{
    for ( KoChar ch = 0; ch < 0x180; ++ch ) {
        const bool member = ch < 0x80 && tokenChars.find( static_cast<char>( ch ) ) != std::string_view::npos;
        const bool alone = member && excluded.find( static_cast<char>( ch ) ) == std::string_view::npos;
        const KoChar chs[] = { ch, 'a', ch };
        const auto one = KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs, 1 ) );
        const auto around = KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs, 3 ) );
        EXPECT_EQ( ok( one.Get() ), alone ) << "character " << ch;
        EXPECT_EQ( ok( around.Get() ), member ) << "character " << ch;
    }
    ExpectOk( ok, { { "", false },
                    { "a b", false }, // stops at the blank
                    { " a", false },
                    { "a ", false },
                    { "a\r\n", false },
                    { "a\0b"sv, false },
                    { "\u212A", false }, // the Kelvin sign is no k
                    { "\uFF41", false },
                    { "%zz", true }, // the percent sign is a character like others
                    { std::string( 100000, 'x' ), true },
                    { std::string( 100000, 'x' ) + '/', false } } );
}

struct NormalRow {
    std::string_view text;
    std::string_view normal;
};

/** The normal form, which is normal itself; the argument stays as it is, also when nobody else holds it. */
void ExpectNormal( Ok ok, Normalize normalize, const std::vector<NormalRow> &rows )
{
    for ( const NormalRow &row : rows ) {
        const auto s = Str( row.text );
        const auto normal = KoRef<KoString>::Adopt( normalize( s.Get() ) );
        EXPECT_EQ( Text( normal ), row.normal );
        EXPECT_EQ( Text( s ), row.text );
        EXPECT_TRUE( ok( normal.Get() ) );
        EXPECT_EQ( test::Take( normalize( normal.Get() ) ), row.normal );
    }
}

const std::vector<NormalRow> lower = { { "a", "a" }, { "aBC", "abc" }, { "SIP-2.0!%*_+`'~", "sip-2.0!%*_+`'~" } };

/** Abort rows of a validator, and of the normaliser that asks it. */
#define EXPECT_NULL_ABORT( type, unit, parameter )                                                                     \
    EXPECT_ABORT( tolmo##type##Ok( nullptr ), "source/tolmo/" unit ".cpp", parameter )
#define EXPECT_NORMALIZE_ABORTS( type, unit, parameter )                                                               \
    EXPECT_ABORT( tolmo##type##Normalize( nullptr ), "source/tolmo/" unit ".cpp", parameter );                         \
    EXPECT_ABORT( tolmo##type##Normalize( Str( "" ).Get() ), "source/tolmo/" unit ".cpp",                              \
                  "tolmo" #type "Ok( " parameter " )" );                                                               \
    EXPECT_ABORT( tolmo##type##Normalize( Str( "a b" ).Get() ), "source/tolmo/" unit ".cpp",                           \
                  "tolmo" #type "Ok( " parameter " )" )
/** Those of a normaliser that tests for null, and leaves the rest to that of tokens. */
#define EXPECT_TOKEN_NORMALIZE_ABORTS( type, unit, parameter )                                                         \
    EXPECT_ABORT( tolmo##type##Normalize( nullptr ), "source/tolmo/" unit ".cpp", parameter );                         \
    EXPECT_ABORT( tolmo##type##Normalize( Str( "a b" ).Get() ), "source/tolmo/tolmo_token.cpp",                        \
                  "tolmoTokenOk( token )" )

/** The whole of a token with a normaliser. */
#define EXPECT_TOKEN_TYPE( type, unit, parameter )                                                                     \
    ExpectToken( tolmo##type##Ok );                                                                                    \
    ExpectNormal( tolmo##type##Ok, tolmo##type##Normalize, lower );                                                    \
    EXPECT_NULL_ABORT( type, unit, parameter );                                                                        \
    EXPECT_NORMALIZE_ABORTS( type, unit, parameter )

// Tokens that are normalised to small letters.

TEST_F( TokenScalars, Token )
{
    EXPECT_TOKEN_TYPE( Token, "tolmo_token", "token" );
}

TEST_F( TokenScalars, ContentCoding )
{
    EXPECT_TOKEN_TYPE( ContentCoding, "tolmo_content_coding", "contentCoding" );
}

TEST_F( TokenScalars, DispositionType )
{
    EXPECT_TOKEN_TYPE( DispositionType, "tolmo_disposition_type", "dispositionType" );
}

TEST_F( TokenScalars, Handling )
{
    EXPECT_TOKEN_TYPE( Handling, "tolmo_handling", "handling" );
}

TEST_F( TokenScalars, OptionTag )
{
    EXPECT_TOKEN_TYPE( OptionTag, "tolmo_option_tag", "optionTag" );
}

TEST_F( TokenScalars, PrivValue )
{
    EXPECT_TOKEN_TYPE( PrivValue, "tolmo_priv_value", "privValue" );
}

TEST_F( TokenScalars, ProtocolVersion )
{
    EXPECT_TOKEN_TYPE( ProtocolVersion, "tolmo_protocol_version", "protocolVersion" );
}

TEST_F( TokenScalars, Purpose )
{
    EXPECT_TOKEN_TYPE( Purpose, "tolmo_purpose", "purpose" );
}

TEST_F( TokenScalars, Transport )
{
    EXPECT_TOKEN_TYPE( Transport, "tolmo_transport", "transport" );
    ExpectNormal( tolmoTransportOk, tolmoTransportNormalize, { { "UDP", "udp" }, { "TlS", "tls" } } );
}

TEST_F( TokenScalars, TokenNodot )
{
    ExpectOk( tolmoTokenNodotOk, { { "", false },
                                   { "a", true },
                                   { "-!%*_+`'~", true },
                                   { ".", false },
                                   { "a.b", false }, // the dot is what it lacks
                                   { "a.", false },
                                   { "a b", false } } );
    ExpectNormal( tolmoTokenNodotOk, tolmoTokenNodotNormalize, { { "a", "a" }, { "ABC", "abc" } } );
    EXPECT_NULL_ABORT( TokenNodot, "tolmo_token_nodot", "tokenNodot" );
    EXPECT_NORMALIZE_ABORTS( TokenNodot, "tolmo_token_nodot", "tokenNodot" );
}

TEST_F( TokenScalars, MediaType )
{
    ExpectToken( tolmoMediaTypeOk, "*" );
    ExpectOk( tolmoMediaTypeOk, { { "*", false }, { "**", true }, { "*x", true }, { "x*", true } } );
    ExpectNormal( tolmoMediaTypeOk, tolmoMediaTypeNormalize, lower );
    EXPECT_NULL_ABORT( MediaType, "tolmo_media_type", "mediaType" );
    EXPECT_NORMALIZE_ABORTS( MediaType, "tolmo_media_type", "mediaType" );
    EXPECT_ABORT( tolmoMediaTypeNormalize( Str( "*" ).Get() ), "source/tolmo/tolmo_media_type.cpp",
                  "tolmoMediaTypeOk( mediaType )" );
}

TEST_F( TokenScalars, MediaSubtype )
{
    ExpectToken( tolmoMediaSubtypeOk, "*" );
    ExpectOk( tolmoMediaSubtypeOk, { { "*", false }, { "**", true }, { "*x", true }, { "x*", true } } );
    ExpectNormal( tolmoMediaSubtypeOk, tolmoMediaSubtypeNormalize, lower );
    EXPECT_NULL_ABORT( MediaSubtype, "tolmo_media_subtype", "mediaSubtype" );
    EXPECT_NORMALIZE_ABORTS( MediaSubtype, "tolmo_media_subtype", "mediaSubtype" );
}

TEST_F( TokenScalars, Refresher )
{
    ExpectOk( tolmoRefresherOk, { { "uac", true },
                                  { "uas", true },
                                  { "UAS", true },
                                  { "uAc", true },
                                  { "", false },
                                  { "ua", false },
                                  { "uax", false },
                                  { "uacx", false }, // three characters are taken, one is left
                                  { " uac", false },
                                  { "\u0055A\u0441", false } } ); // ends in a Cyrillic es
    ExpectNormal( tolmoRefresherOk, tolmoRefresherNormalize, { { "UAS", "uas" }, { "uac", "uac" }, { "Uac", "uac" } } );
    EXPECT_NULL_ABORT( Refresher, "tolmo_refresher", "refresher" );
    EXPECT_NORMALIZE_ABORTS( Refresher, "tolmo_refresher", "refresher" );
}

// Normalised through the token.

TEST_F( TokenScalars, EventReasonValue )
{
    ExpectToken( tolmoEventReasonValueOk );
    ExpectNormal( tolmoEventReasonValueOk, tolmoEventReasonValueNormalize, lower );
    EXPECT_NULL_ABORT( EventReasonValue, "tolmo_event_reason_value", "eventReasonValue" );
    EXPECT_TOKEN_NORMALIZE_ABORTS( EventReasonValue, "tolmo_event_reason_value", "eventReasonValue" );
}

TEST_F( TokenScalars, PriorityValue )
{
    ExpectToken( tolmoPriorityValueOk );
    ExpectOk( tolmoPriorityValueOk, { { "non-urgent", true }, { "whatever", true } } );
    ExpectNormal( tolmoPriorityValueOk, tolmoPriorityValueNormalize, lower );
    EXPECT_NULL_ABORT( PriorityValue, "tolmo_priority_value", "priority" );
    EXPECT_TOKEN_NORMALIZE_ABORTS( PriorityValue, "tolmo_priority_value", "priority" );
}

TEST_F( TokenScalars, SubstateValue )
{
    ExpectToken( tolmoSubstateValueOk );
    ExpectNormal( tolmoSubstateValueOk, tolmoSubstateValueNormalize, lower );
    EXPECT_NULL_ABORT( SubstateValue, "tolmo_substate_value", "substateValue" );
    EXPECT_TOKEN_NORMALIZE_ABORTS( SubstateValue, "tolmo_substate_value", "substateValue" );
}

TEST_F( TokenScalars, InfoPackageName )
{
    ExpectToken( tolmoInfoPackageNameOk );
    ExpectNormal( tolmoInfoPackageNameOk, tolmoInfoPackageNameNormalize, lower );
    EXPECT_ABORT( tolmoInfoPackageNameOk( nullptr ), "source/tolmo/tolmo_token.cpp", "token" );
    EXPECT_ABORT( tolmoInfoPackageNameNormalize( Str( "a b" ).Get() ), "source/tolmo/tolmo_token.cpp",
                  "tolmoTokenOk( token )" );
}

// The only one in capitals.

TEST_F( TokenScalars, ProtocolName )
{
    ExpectToken( tolmoProtocolNameOk );
    ExpectNormal( tolmoProtocolNameOk, tolmoProtocolNameNormalize, { { "sip", "SIP" }, { "Sip-x", "SIP-X" } } );
    EXPECT_NULL_ABORT( ProtocolName, "tolmo_protocol_name", "protocolName" );
    EXPECT_NORMALIZE_ABORTS( ProtocolName, "tolmo_protocol_name", "protocolName" );
}

// Tokens whose case matters.

TEST_F( TokenScalars, Branch )
{
    ExpectToken( tolmoBranchOk );
    ExpectOk( tolmoBranchOk, { { "z9hG4bK77asjd", true }, { "1", true } } ); // no test of the magic cookie
    EXPECT_NULL_ABORT( Branch, "tolmo_branch", "branch" );
}

TEST_F( TokenScalars, EmParam )
{
    ExpectToken( tolmoEmParamOk );
    EXPECT_NULL_ABORT( EmParam, "tolmo_em_param", "emParam" );
}

TEST_F( TokenScalars, Method )
{
    ExpectToken( tolmoMethodOk );
    EXPECT_NULL_ABORT( Method, "tolmo_method", "method" );
}

TEST_F( TokenScalars, Tag )
{
    ExpectToken( tolmoTagOk );
    EXPECT_ABORT( tolmoTagOk( nullptr ), "source/tolmo/tolmo_token.cpp", "token" );
}

TEST_F( TokenScalars, ReasonProtocol )
{
    ExpectToken( tolmoReasonProtocolOk );
    ExpectOk( tolmoReasonProtocolOk, { { "Q.850", true }, { "SIP", true } } );
    EXPECT_ABORT( tolmoReasonProtocolOk( nullptr ), "source/tolmo/tolmo_token.cpp", "token" );
}

TEST_F( TokenScalars, Epid )
{
    ExpectOk( tolmoEpidOk, { { "", false },
                             { "a", true },
                             { "0123456789abcdeF", true },
                             { "0123456789abcdef0", false }, // one more than sixteen
                             { "a b", false },
                             { "\u00E9", false } } );
    EXPECT_NULL_ABORT( Epid, "tolmo_epid", "epid" );
}

// Made of tokens and words.

TEST_F( TokenScalars, CallId )
{
    ExpectOk( tolmoCallIdOk, { { "abc@def", true },
                               { "abc", true },
                               { "", false },
                               { "abc@", false },
                               { "@abc", false },
                               { "a@b@c", false }, // two words at most
                               { "a\"<>b", true }, // characters of a word
                               { "a(b):c/[d]{e}?\\", true },
                               { "a b", false },
                               { "a@b c", false },
                               { "a,b", false },
                               { "a;b", false },
                               { "a@\u00E9", false },
                               { std::string( 50000, 'a' ) + '@' + std::string( 50000, 'b' ), true } } );
    EXPECT_NULL_ABORT( CallId, "tolmo_call_id", "callId" );
}

TEST_F( TokenScalars, EventType )
{
    ExpectOk( tolmoEventTypeOk, { { "presence", true },
                                  { "presence.winfo", true },
                                  { "presence.winfo.winfo", true },
                                  { "", false },
                                  { "presence.", false },
                                  { "a.b.", false },
                                  { ".a", false },
                                  { "a..b", false },
                                  { "a .b", false } } );
    EXPECT_NULL_ABORT( EventType, "tolmo_event_type", "eventType" );
}

TEST_F( TokenScalars, Rvalue )
{
    ExpectOk( tolmoRvalueOk, { { "wps.1", true },
                               { "wps", false },
                               { "", false },
                               { "wps.", false },
                               { ".1", false },
                               { "a.b.c", false }, // exactly two parts
                               { "a..b", false },
                               { "a.b ", false } } );
    EXPECT_NULL_ABORT( Rvalue, "tolmo_rvalue", "rvalue" );
}

TEST_F( TokenScalars, SipCleanMsgId )
{
    ExpectOk( tolmoSipCleanMsgIdOk, { { "a@b", true },
                                      { "a.b@c.d", true },
                                      { "a@b_c", true },   // only a dot-atom
                                      { "a@[::1]", true }, // only a host
                                      { "a@b.c.", true },  // a host may end in a dot
                                      { "", false },
                                      { "a", false },
                                      { "a@", false },
                                      { "@b", false },
                                      { "a.@b", false },
                                      { "a@b_c.", false }, // a dot-atom may not
                                      { "\"a@b\"", false },
                                      { "a@b@c", false } } );
    EXPECT_NULL_ABORT( SipCleanMsgId, "tolmo_sip_clean_msg_id", "sipCleanMsgId" );
}

TEST_F( TokenScalars, SipInstance )
{
    ExpectOk( tolmoSipInstanceOk, { { "<urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6>", true },
                                    { "<a>", true },
                                    { "<%3E>", true }, // the closing bracket as an escape
                                    { "", false },
                                    { "<>", false }, // something must stand there
                                    { "<a", false },
                                    { "a>", false },
                                    { "<a b>", false },
                                    { "<a>>", false },
                                    { "<%3>", false },
                                    { "<\u00E9>", false },
                                    { "\"<a>\"", false } } );
    EXPECT_NULL_ABORT( SipInstance, "tolmo_sip_instance", "sipInstance" );
}

// Servers and user agents: one grammar.

const std::vector<Row> serverRows = { { "a", true },
                                      { "a/1", true },
                                      { "a/1 b/2 (c)", true },
                                      { "a/1 b/2 (c) ", true }, // the comment takes the blank
                                      { "a / b", true },
                                      { "a/ b", true },
                                      { "a\tb", true },
                                      { "(c)", true },
                                      { "(c) ", true },
                                      { "x (c)", true },
                                      { "(a (b) \\) \u00E9)", true },
                                      { "", false },
                                      { " ", false },
                                      { "a ", false }, // an element must follow whitespace
                                      { "a/1 b/2 ", false },
                                      { " a", false },
                                      { "a/", false },
                                      { "a/ ", false },
                                      { "/a", false },
                                      { "(c) x", false }, // the comment took the blank, so the list has ended
                                      { "Foo/1.0 (Linux) Bar", false },
                                      { "(a) (b)", false },
                                      { "a(b)", false }, // no whitespace between two elements
                                      { "(a", false },
                                      { "(\\)", false },
                                      { "a,b", false },
                                      { "a/b/c", false },
                                      { "\u00E9", false } };

TEST_F( TokenScalars, Server )
{
    ExpectOk( tolmoServerOk, serverRows );
    EXPECT_NULL_ABORT( Server, "tolmo_server", "server" );
}

TEST_F( TokenScalars, UserAgent )
{
    ExpectOk( tolmoUserAgentOk, serverRows );
    EXPECT_NULL_ABORT( UserAgent, "tolmo_user_agent", "userAgent" );
}

TEST_F( TokenScalars, ServerOfHostileTexts )
{
    const std::string open( 100000, '(' );
    const std::string close( 100000, ')' );
    ExpectOk( tolmoServerOk, { { open + close, true }, { open, false }, { open + close.substr( 1 ), false } } );
    std::string many = "a";
    for ( int i = 0; i < 50000; ++i ) {
        many += " a/b";
    }
    ExpectOk( tolmoUserAgentOk, { { many, true }, { many + ' ', false } } );
}

// Numbers that are kept as text.

TEST_F( TokenScalars, TimestampValue )
{
    ExpectOk( tolmoTimestampValueOk, { { "54", true },
                                       { "54.21", true },
                                       { "1.", true },
                                       { "1.5 2.5", true },
                                       { "1 ", true }, // whitespace is taken although no delay follows
                                       { "1 .", true },
                                       { "1\t.5", true },
                                       { "0001", true },
                                       { std::string( 100000, '9' ), true },
                                       { "", false },
                                       { ".5", false },
                                       { " 1", false },
                                       { "1 2 3", false },
                                       { "1.5.", false },
                                       { "-1", false },
                                       { "1x", false } } );
    EXPECT_NULL_ABORT( TimestampValue, "tolmo_timestamp_value", "timestampValue" );
}

TEST_F( TokenScalars, HistoryInfoIndex )
{
    ExpectOk( tolmoHistoryInfoIndexOk, { { "0", true },
                                         { "1", true },
                                         { "10.2.33", true },
                                         { "0.10.3", true },
                                         { "1.0", true },
                                         { "", false },
                                         { "01", false },
                                         { "00", false },
                                         { "1.", false },
                                         { ".1", false },
                                         { "1.02", false },
                                         { "1..2", false },
                                         { "1.2x", false },
                                         { "1.2 ", false },
                                         { "-1", false } } );
    EXPECT_NULL_ABORT( HistoryInfoIndex, "tolmo_history_info_index", "index" );
}

TEST_F( TokenScalars, ReasonCause )
{
    ExpectOk( tolmoReasonCauseOk, { { "200", true },
                                    { "016", true },
                                    { std::string( 1000, '9' ), true },
                                    { "", false },
                                    { "x", false },
                                    { "2x", false },
                                    { "0.5", false },
                                    { "-1", false },
                                    { "+1", false },
                                    { "\u0661", false } } ); // a digit of another script
    EXPECT_NULL_ABORT( ReasonCause, "tolmo_reason_cause", "cause" );
}

// Agent and texts.

TEST_F( TokenScalars, WarnAgent )
{
    ExpectOk( tolmoWarnAgentOk, { { "host1", true },
                                  { "host1:5060", true },
                                  { "[::1]:5060", true },
                                  { "1.2.3.4", true },
                                  { "!x", true },      // a token, as no host stands there
                                  { "a_b", false },    // a token, but the host comes first
                                  { "host1:", false }, // a colon without a port is not taken
                                  { "host1:x", false },
                                  { "", false },
                                  { " a", false },
                                  { "a b", false },
                                  { "\u00E9", false } } );
    EXPECT_NULL_ABORT( WarnAgent, "tolmo_warn_agent", "warnAgent" );
}

const std::vector<Row> textRows = { { "", true },           { "plain", true },  { "with \"quotes\" and \\", true },
                                    { "\t\x7F\0"sv, true }, { "\u00E9", true }, { "a\rb", false },
                                    { "a\n", false },       { "\r\n", false } };

TEST_F( TokenScalars, WarnText )
{
    ExpectOk( tolmoWarnTextOk, textRows );
    EXPECT_NULL_ABORT( WarnText, "tolmo_warn_text", "warnText" );
}

TEST_F( TokenScalars, ReasonText )
{
    ExpectOk( tolmoReasonTextOk, textRows );
    EXPECT_ABORT( tolmoReasonTextOk( nullptr ), "source/tolmo/tolmo_quotable_string.cpp", "quotableString" );
}

} // namespace
