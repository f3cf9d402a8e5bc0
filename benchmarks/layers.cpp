/* What the layers cost, one by one, through the public headers. */
#include <tolmo/tolmo.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

const char request[] = "INVITE sip:bob@biloxi.example.com SIP/2.0\r\n"
                       "Via: SIP/2.0/UDP pc33.atlanta.example.com:5060;branch=z9hG4bK74bf9;rport\r\n"
                       "Max-Forwards: 70\r\n"
                       "From: Alice <sip:alice@atlanta.example.com>;tag=9fxced76sl\r\n"
                       "To: Bob <sip:bob@biloxi.example.com>\r\n"
                       "Call-ID: 3848276298220188511@atlanta.example.com\r\n"
                       "CSeq: 1 INVITE\r\n"
                       "Contact: <sip:alice@pc33.atlanta.example.com;transport=udp>;expires=3600\r\n"
                       "Supported: 100rel, timer, replaces\r\n"
                       "User-Agent: Softphone 4.2\r\n"
                       "Content-Length: 0\r\n\r\n";

template <class Handle>
using Ref = KoRef<Handle>;

Ref<KoString> Str( const char *text )
{
    return Ref<KoString>::Adopt( koStringCreateFromCstr( text, -1 ) );
}

Ref<KoBuffer> Buf( const std::string &bytes )
{
    return Ref<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( bytes.data(), static_cast<KoInt>( bytes.size() ) ) );
}

Ref<TolmoMessage> Message()
{
    return Ref<TolmoMessage>::Adopt( tolmoMessageTryDecode( Buf( request ).Get() ) );
}

void WidenUtf8( benchmark::State &state )
{
    const auto bytes = Buf( std::string( static_cast<size_t>( state.range( 0 ) ), 'a' ) );
    for ( auto _ : state ) {
        koStringRelease( koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, bytes.Get(), 1 ) );
    }
    state.SetBytesProcessed( state.iterations() * state.range( 0 ) );
}
BENCHMARK( WidenUtf8 )->Arg( 50 )->Arg( 1000 )->Arg( 100000 );

void FindLineEnds( benchmark::State &state )
{
    const auto text = Str( request );
    const KoChar lineEnd[] = { KO_CHAR_CARRIAGE_RETURN, KO_CHAR_LINE_FEED };
    for ( auto _ : state ) {
        for ( KoInt at = 0; ( at = koStringFindChars( text.Get(), at, lineEnd, 2 ) ) >= 0; at += 2 ) {
            benchmark::DoNotOptimize( at );
        }
    }
    state.SetBytesProcessed( state.iterations() * koStringLength( text.Get() ) );
}
BENCHMARK( FindLineEnds );

void NormalizeName( benchmark::State &state, const char *name )
{
    const auto text = Str( name );
    for ( auto _ : state ) {
        koStringRelease( tolmoMessageHeaderNameNormalize( text.Get() ) );
    }
}
BENCHMARK_CAPTURE( NormalizeName, known, "max-forwards" );
BENCHMARK_CAPTURE( NormalizeName, compact, "v" );
BENCHMARK_CAPTURE( NormalizeName, unknown, "X-Private-Header" );

void Skip( benchmark::State &state, KoInt ( *skip )( const KoChar *, KoInt ), const char *text )
{
    const auto s = Str( text );
    for ( auto _ : state ) {
        benchmark::DoNotOptimize( skip( koStringBacking( s.Get() ), koStringLength( s.Get() ) ) );
    }
}
BENCHMARK_CAPTURE( Skip, token, tolmo___SkipToken, "z9hG4bK74bf9b1a2c3d" );
BENCHMARK_CAPTURE( Skip, quoted, tolmo___SkipQuotedString, "\"Alice of Atlanta\"" );
BENCHMARK_CAPTURE( Skip, host, tolmo___SkipHost, "pc33.atlanta.example.com" );
BENCHMARK_CAPTURE( Skip, iri, tolmo___SkipUri, "sip:alice@pc33.atlanta.example.com;transport=udp" );
BENCHMARK_CAPTURE( Skip, nameAddr, tolmo___SkipNameAddr, "Alice <sip:alice@atlanta.example.com>" );
BENCHMARK_CAPTURE( Skip, via, tolmo___SkipVia, "SIP/2.0/UDP pc33.atlanta.example.com:5060;branch=z9hG4bK74bf9;rport" );
BENCHMARK_CAPTURE( Skip, params, tolmo___SkipGenericParams, ";a=b;lr;q=0.5;x=\"y\"" );

void Dictionary( benchmark::State &state )
{
    std::vector<Ref<KoString>> keys;
    for ( int64_t i = 0; i < state.range( 0 ); ++i ) {
        keys.push_back( Str( ( "key" + std::to_string( i ) ).c_str() ) );
    }
    for ( auto _ : state ) {
        auto dict = Ref<KoDict>::Adopt( koDictCreate() );
        for ( const auto &key : keys ) {
            koDictSetStringKey( dict.Address(), key.Get(), koStringObj( key.Get() ) );
        }
        for ( const auto &key : keys ) {
            benchmark::DoNotOptimize( koDictHasStringKey( dict.Get(), key.Get() ) );
        }
    }
    state.SetItemsProcessed( state.iterations() * state.range( 0 ) );
}
BENCHMARK( Dictionary )->Arg( 4 )->Arg( 100 )->Arg( 10000 );

void AppendChars( benchmark::State &state )
{
    for ( auto _ : state ) {
        auto text = Ref<KoString>::Adopt( koStringCreate() );
        for ( int64_t i = 0; i < state.range( 0 ); ++i ) {
            koStringAppendChar( text.Address(), 'a' );
        }
    }
    state.SetItemsProcessed( state.iterations() * state.range( 0 ) );
}
BENCHMARK( AppendChars )->Arg( 20 )->Arg( 10000 );

void DecodeMessage( benchmark::State &state )
{
    const auto bytes = Buf( request );
    for ( auto _ : state ) {
        tolmoMessageRelease( tolmoMessageTryDecode( bytes.Get() ) );
    }
    state.SetBytesProcessed( state.iterations() * koBufferLength( bytes.Get() ) );
}
BENCHMARK( DecodeMessage );

void EncodeMessage( benchmark::State &state )
{
    const auto msg = Message();
    for ( auto _ : state ) {
        koBufferRelease( tolmoMessageEncode( msg.Get() ) );
    }
}
BENCHMARK( EncodeMessage );

template <auto tryDecode, auto encode, auto release>
void TypedHeader( benchmark::State &state )
{
    const auto msg = Message();
    for ( auto _ : state ) {
        const auto hdr = tryDecode( msg.Get() );
        if ( state.range( 0 ) ) {
            tolmoMessageHeaderRelease( encode( hdr ) );
        }
        release( hdr );
    }
}
#define TYPED( Type )                                                                                                  \
    BENCHMARK(                                                                                                         \
        (TypedHeader<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##Encode, tolmoHeader##Type##Release>)) \
        ->Name( "Header" #Type )                                                                                       \
        ->ArgName( "encode" )                                                                                          \
        ->Arg( 0 )                                                                                                     \
        ->Arg( 1 )
TYPED( Via );
TYPED( From );
TYPED( CallId );
TYPED( Cseq );
TYPED( Contact );
TYPED( MaxForwards );
TYPED( Supported );

void Stream( benchmark::State &state )
{
    std::string bytes;
    for ( int i = 0; i < 200; ++i ) {
        bytes += request;
    }
    const auto chunk = static_cast<size_t>( state.range( 0 ) );
    std::vector<Ref<KoBuffer>> chunks;
    for ( size_t at = 0; at < bytes.size(); at += chunk ) {
        chunks.push_back( Buf( bytes.substr( at, chunk ) ) );
    }
    for ( auto _ : state ) {
        const auto decoder = Ref<TolmoMessageStreamDecoder>::Adopt( tolmoMessageStreamDecoderCreate() );
        for ( const auto &part : chunks ) {
            tolmoMessageStreamDecoderWrite( decoder.Get(), part.Get() );
            while ( const TolmoMessage msg = tolmoMessageStreamDecoderRead( decoder.Get() ) ) {
                tolmoMessageRelease( msg );
            }
        }
    }
    state.SetBytesProcessed( state.iterations() * static_cast<int64_t>( bytes.size() ) );
}
BENCHMARK( Stream )->ArgName( "chunk" )->Arg( 1 )->Arg( 64 )->Arg( 1460 )->Arg( 65536 );

} // namespace

int main( int argc, char **argv )
{
    const KoModuleScope scope( tolmoModule() );
    benchmark::Initialize( &argc, argv );
    benchmark::RunSpecifiedBenchmarks();
}
