/* What happens when the heap has nothing left: each allocation of some representative work fails once. */
#include "heap.h"
#include "shapes.h"

#include <test.h>

#include <tolmo/tolmo.h>

#include <sys/mman.h>

namespace {

using test::Buf;
using test::Str;

template <class Handle>
KoRef<Handle> Own( Handle handle )
{
    return KoRef<Handle>::Adopt( handle );
}

const char *const everyHeader =
    "INVITE sip:bob@example.com SIP/2.0\r\n"
    "Accept-Encoding: gzip;q=0.5;x=y\r\n"
    "Accept-Resource-Priority: q735.1, wps.0\r\n"
    "Accept:\r\n"
    "Alert-Info: <http://a>;x\r\n"
    "Allow-Events: presence.winfo, dialog\r\n"
    "Allow: INVITE, ACK\r\n"
    "Call-ID: a@b\r\n"
    "Call-Info: <http://a>;purpose=icon;x\r\n"
    "Contact: \"A\" <sip:a>;q=0.5;expires=5;+sip.instance=\"<urn:a>\";x, sip:b\r\n"
    "Content-Disposition: session;handling=optional;x\r\n"
    "Content-Encoding:\r\n"
    "CSeq: 1 INVITE\r\n"
    "Date: Thu, 21 Feb 2002 13:02:03 GMT\r\n"
    "Diversion: <sip:a>;reason=unknown;counter=1;limit=2;privacy=full;screen=no;x\r\n"
    "Error-Info: <http://a>;x\r\n"
    "Event: presence.winfo;id=1;x\r\n"
    "Expires: 60\r\n"
    "From: \"B\xC3\xA9\" <sip:b>;tag=1;x\r\n"
    "History-Info: <sip:a>;index=1.1;x\r\n"
    "Info-Package: foo;x\r\n"
    "In-Reply-To: a@b, c\r\n"
    "Max-Forwards: 70\r\n"
    "Min-Expires: 60\r\n"
    "Min-SE: 60;x\r\n"
    "Organization: A  B\r\n"
    "P-Asserted-Identity: \"A\" <sip:a>, <tel:1>\r\n"
    "P-Called-Party-ID: <sip:a>;x\r\n"
    "P-Early-Media: supported, gated\r\n"
    "P-Preferred-Identity: <sip:a>\r\n"
    "Priority: Urgent\r\n"
    "Privacy: id;header\r\n"
    "Proxy-Require: foo, bar\r\n"
    "RAck: 1 2 INVITE\r\n"
    "Reason: SIP;cause=200;text=\"OK\";x\r\n"
    "Record-Route: <sip:a;lr>, <sip:b;lr>;x\r\n"
    "Recv-Info: a;x, b\r\n"
    "Refer-To: <sip:%C3%A9@xn--nxa.example>;x\r\n"
    "Referred-By: <sip:a>;cid=\"a@b\";x\r\n"
    "Remote-Party-ID: \"A\" <sip:a>;x\r\n"
    "Replaces: a;from-tag=b;to-tag=c;early-only;x\r\n"
    "Reply-To: <sip:a>;x\r\n"
    "Require: foo, bar\r\n"
    "Resource-Priority: q735.1\r\n"
    "Retry-After: 60 (a);duration=5;x\r\n"
    "Route: <sip:a;lr>\r\n"
    "RSeq: 1\r\n"
    "Server: A/1 (b)\r\n"
    "Service-Route: <sip:a;lr>\r\n"
    "Session-ID: ab30317f1a784dc48ff824d0d3715d86;remote=47755a9de7794ba387653f2099600ef2;x\r\n"
    "Session-Expires: 60;refresher=uac;x\r\n"
    "Subject: A  B\r\n"
    "Subscription-State: active;reason=a;expires=5;retry-after=6;x\r\n"
    "Supported: foo, bar\r\n"
    "Timestamp: 1.5 2.5\r\n"
    "To: \"a\\\"b\" <sip:a>;tag=1;x\r\n"
    "Unsupported: foo\r\n"
    "User-Agent: A/1 (b)\r\n"
    "User-to-User: 0123;encoding=hex;x\r\n"
    "Via: SIP/2.0/UDP a:5060;ttl=1;maddr=b;received=1.2.3.4;rport=5;branch=z9hG4bK1;x=\"y\"\r\n"
    "Warning: 399 a \"b\"\r\n"
    "X-Unknown: a\r\n"
    "Content-Length: 4\r\n"
    "\r\n"
    "body";

/** What every typed header can do. Returns the types that did not decode. */
std::string WorkOnTypes( TolmoMessage msg )
{
    std::string missing;
#define TOLMO_HEADER( Type, headerName )                                                                               \
    if ( const auto hdr = Own( tolmoHeader##Type##TryDecodeFromMessage( msg ) ) ) {                                    \
        const auto copy = Own( tolmoHeader##Type##CreateFrom( hdr.Get() ) );                                           \
        tolmoHeader##Type##Compare( hdr.Get(), copy.Get() );                                                           \
        Own( tolmoHeader##Type##ToString( hdr.Get() ) );                                                               \
        const auto stored = Own( tolmoHeader##Type##Store( hdr.Get() ) );                                              \
        Own( tolmoHeader##Type##TryRestore( stored.Get() ) );                                                          \
        auto changed = KoRef<TolmoMessage>::Share( msg );                                                              \
        tolmoHeader##Type##EncodeToMessage( hdr.Get(), changed.Address() );                                            \
    } else {                                                                                                           \
        missing += #Type " ";                                                                                          \
    }
#include <tolmo/tolmo_headers.def>
#undef TOLMO_HEADER
    return missing;
}

void WorkOnItems( TolmoMessage msg )
{
#define ITEM( Type, Word, Item )                                                                                       \
    {                                                                                                                  \
        const auto hdr = Own( tolmoHeader##Type##TryDecodeFromMessage( msg ) );                                        \
        auto list = Own( tolmoHeader##Type##Create() );                                                                \
        const auto item = Own( tolmoHeader##Type##TryDecode##Word##At( hdr.Get(), 0 ) );                               \
        const auto copy = Own( tolmo##Item##CreateFrom( item.Get() ) );                                                \
        tolmo##Item##Compare( item.Get(), copy.Get() );                                                                \
        tolmoHeader##Type##Append##Word( list.Address(), item.Get() );                                                 \
        tolmoHeader##Type##Prepend##Word( list.Address(), item.Get() );                                                \
    }
    ITEM( Via, Via, Via )
    ITEM( Contact, Contact, Contact )
    ITEM( Route, Route, Route )
    ITEM( RecordRoute, Route, Route )
    ITEM( Warning, Warning, WarningValue )
    ITEM( HistoryInfo, HistoryInfo, HistoryInfo )
    ITEM( Diversion, Diversion, Diversion )
    ITEM( Reason, Reason, Reason )
    ITEM( PAssertedIdentity, IdentityValue, IdentityValue )
    ITEM( AcceptEncoding, AcceptEncoding, AcceptEncoding )
    ITEM( AlertInfo, AlertInfo, AlertInfo )
    ITEM( CallInfo, CallInfo, CallInfo )
    ITEM( ErrorInfo, ErrorInfo, ErrorInfo )
#undef ITEM
}

struct Flow {
    const char *name;
    bool started; // the module is started before
    void ( *run )();
};

const Flow flows[] = {
    { "the start of the module", false, [] { koModuleStart( tolmoModule() ); } },
    { "a datagram decoded", true, [] { Own( tolmoMessageTryDecode( Buf( everyHeader ).Get() ) ); } },
    { "many names and lines decoded", true,
      [] {
          Own( tolmoMessageTryDecode( Buf( shapes::Message( shapes::Numbered( 200, "#: a\r\n" ) ) ).Get() ) );
          Own( tolmoMessageTryDecode( Buf( shapes::Message( shapes::Times( 200, "a: b\r\n" ) ) ).Get() ) );
      } },
    { "a message encoded", true,
      [] {
          const auto msg = Own( tolmoMessageTryDecode( Buf( everyHeader ).Get() ) );
          Own( tolmoMessageEncode( msg.Get() ) );
      } },
    { "a message made and changed", true,
      [] {
          const auto version = Own( tolmoVersionCreateSip20() );
          auto msg = Own( tolmoMessageCreateRequest( version.Get(), Str( "INVITE" ).Get(),
                                                     Str( "sip:\xC3\xA9@\xC3\xA9.example" ).Get() ) );
          auto header = Own( tolmoMessageHeaderCreate( Str( "x-name" ).Get() ) );
          tolmoMessageHeaderAppendLineCstr( header.Address(), "a", -1 );
          tolmoMessageHeaderAppendLineFormatCstr( header.Address(), "%s %i", -1, Str( "a" ).Get(), KoInt{ 5 } );
          tolmoMessageSetHeader( msg.Address(), header.Get() );
          const auto other = KoRef<TolmoMessage>::Share( msg.Get() );
          tolmoMessageSetBody( msg.Address(), Buf( "body" ).Get() );
          tolmoMessageDelHeader( msg.Address(), Str( "x-name" ).Get() );
          tolmoMessageSetResponse( msg.Address(), version.Get(), 404 );
          Own( tolmoMessageEncode( other.Get() ) );
          Own( tolmoMessageEncode( msg.Get() ) );
      } },
    { "all types of headers", true,
      [] {
          const auto msg = Own( tolmoMessageTryDecode( Buf( everyHeader ).Get() ) );
          WorkOnTypes( msg.Get() );
      } },
    { "values", true,
      [] {
          const auto msg = Own( tolmoMessageTryDecode( Buf( everyHeader ).Get() ) );
          WorkOnItems( msg.Get() );
      } },
    { "a stream", true,
      [] {
          const std::string text = std::string( everyHeader ) + "\r\n" + everyHeader;
          const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
          for ( size_t at = 0; at < text.size(); at += 100 ) {
              tolmoMessageStreamDecoderWrite( decoder.Get(), Buf( text.substr( at, 100 ) ).Get() );
              while ( Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) {
              }
          }
      } },
    { "a message stored and restored", true,
      [] {
          const auto msg = Own( tolmoMessageTryDecode( Buf( everyHeader ).Get() ) );
          const auto header = Own( tolmoMessageHeader( msg.Get(), Str( "Via" ).Get() ) );
          const auto store = Own( tolmoMessageHeaderStore( header.Get() ) );
          Own( tolmoMessageHeaderTryRestore( store.Get() ) );
      } },
    { "containers that grow", true,
      [] {
          auto vector = Own( koVectorCreate() );
          auto dict = Own( koDictCreate() );
          auto text = Own( koStringCreate() );
          for ( int i = 0; i < 100; ++i ) {
              const auto key = Str( std::to_string( i ) );
              koVectorPrependString( vector.Address(), key.Get() );
              koDictSetStringKey( dict.Address(), key.Get(), koStringObj( key.Get() ) );
              koStringAppend( text.Address(), key.Get() );
          }
          const auto other = KoRef<KoDict>::Share( dict.Get() );
          koDictDelStringKey( dict.Address(), Str( "5" ).Get() );
          Own( koDictKeysVector( dict.Get() ) );
          koObjCompare( koDictObj( dict.Get() ), koDictObj( other.Get() ) );
          Own( koVectorToString( vector.Get() ) );
      } },
    { "names and addresses", true,
      [] {
          Own( wenDnsIdnaDomainNameToAscii( Str( "b\xC3\xBC"
                                                 "cher.example" )
                                                .Get() ) );
          Own( wenDnsIdnaDomainNameToUnicode( Str( "xn--bcher-kva.example" ).Get() ) );
          const auto iri = Own( ulmTryConvertFromUri( Str( "sip:%C3%A9@xn--bcher-kva.example" ).Get() ) );
          Own( ulmTryConvertToUri( iri.Get() ) );
      } },
};

/** Runs a flow in a child process of its own, in which an allocation fails. */
test::Ending RunFlow( const Flow &flow, int64_t failing, heap::Watch *watch )
{
    return test::RunInChild( [&] {
        if ( flow.started ) {
            koModuleStart( tolmoModule() );
        }
        *watch = heap::Watched( flow.run, failing );
    } );
}

// The module is not started in this process, so that each child can start it.
TEST( FailingAllocations, EachEndsTheProcessTheSameWay )
{
    auto *const shared = static_cast<heap::Watch *>(
        mmap( nullptr, sizeof( heap::Watch ), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0 ) );
    ASSERT_NE( shared, MAP_FAILED );
    for ( const Flow &flow : flows ) {
        const test::Ending whole = RunFlow( flow, 0, shared );
        ASSERT_FALSE( whole.aborted ) << flow.name << ": " << whole.line;
        const int64_t blocks = shared->blocks;
        EXPECT_GE( blocks, 5 ) << flow.name;
        int64_t tested = 0;
        for ( int64_t failing = 1; failing <= blocks; ++failing ) {
            const test::Ending ending = RunFlow( flow, failing, shared );
            EXPECT_TRUE( ending.aborted ) << flow.name << ", allocation " << failing;
            EXPECT_TRUE( test::IsAbortLine( ending.line, "out of memory", "source/runtime/ko_memory.cpp", "block" ) ||
                         test::IsAbortLine( ending.line, "out of memory", "source/runtime/ko_base.cpp", "block" ) )
                << flow.name << ", allocation " << failing << ": " << ending.line;
            ++tested;
        }
        std::printf( "%5d  %s\n", static_cast<int>( tested ), flow.name );
    }
    munmap( shared, sizeof( heap::Watch ) );
}

// The flows do what their names say.
TEST( FailingAllocations, TheMessageHasAllTypes )
{
    const KoModuleScope scope( tolmoModule() );
    const auto msg = Own( tolmoMessageTryDecode( Buf( everyHeader ).Get() ) );
    ASSERT_TRUE( bool( msg ) );
    EXPECT_EQ( WorkOnTypes( msg.Get() ), "ContentEncoding " ) << "which takes no line at all";
}

} // namespace
