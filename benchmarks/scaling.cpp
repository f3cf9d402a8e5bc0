/*
 * Work on hostile shapes of two sizes, for an instruction counter: run by scaling.py, which compares them.
 *
 *     scaling [PATTERN]       under valgrind --tool=callgrind --instr-atstart=no
 */
#include <guarantees/shapes.h>

#include <tolmo/tolmo.h>

#include <valgrind/callgrind.h>

#include <cstdlib>

namespace {

using shapes::Times;

/** Counts instructions as long as it lives. */
class Counted {
public:
    Counted() { CALLGRIND_START_INSTRUMENTATION; }
    Counted( const Counted & ) = delete;
    Counted &operator=( const Counted & ) = delete;
    ~Counted() { CALLGRIND_STOP_INSTRUMENTATION; }
};

/** A count means nothing unless the work was done. */
void Check( bool done, const char *what )
{
    if ( !done ) {
        std::fprintf( stderr, "scaling: %s does not hold\n", what );
        std::exit( 1 );
    }
}
#define CHECK( condition ) Check( condition, #condition )

template <class Handle>
KoRef<Handle> Own( Handle handle )
{
    return KoRef<Handle>::Adopt( handle );
}

KoRef<KoString> Str( std::string_view text )
{
    return Own( koStringCreateFromCstr( text.data(), static_cast<KoInt>( text.size() ) ) );
}

KoRef<KoBuffer> Buf( std::string_view bytes )
{
    return Own( koBufferCreateFromBytesCopy( bytes.data(), static_cast<KoInt>( bytes.size() ) ) );
}

KoRef<TolmoMessage> Decoded( const std::string &text )
{
    return Own( tolmoMessageTryDecode( Buf( text ).Get() ) );
}

KoRef<TolmoVia> AVia( KoInt port = 5060 )
{
    const auto version = Own( tolmoVersionCreateSip20() );
    auto via = Own( tolmoViaCreate( version.Get(), Str( "udp" ).Get(), Str( "a" ).Get() ) );
    tolmoViaSetPort( via.Address(), port );
    return via;
}

/** A list of n Vias. */
KoRef<TolmoHeaderVia> Vias( KoInt n )
{
    auto vias = Own( tolmoHeaderViaCreate() );
    for ( KoInt i = 0; i < n; ++i ) {
        tolmoHeaderViaAppendVia( vias.Address(), AVia( i ).Get() );
    }
    return vias;
}

/** What every typed header can do, on the header lines of a message. Returns how many of the types decode. */
int WorkOnTypes( TolmoMessage msg )
{
    int decoded = 0;
#define TOLMO_HEADER( Type, headerName )                                                                               \
    if ( const auto hdr = Own( tolmoHeader##Type##TryDecodeFromMessage( msg ) ) ) {                                    \
        ++decoded;                                                                                                     \
        const auto raw = Own( tolmoHeader##Type##Encode( hdr.Get() ) );                                                \
        const auto again = Own( tolmoHeader##Type##TryDecode( raw.Get() ) );                                           \
        CHECK( again || std::string_view( #Type ) == "Accept" );                                                       \
        if ( again ) {                                                                                                 \
            tolmoHeader##Type##Compare( hdr.Get(), again.Get() );                                                      \
        }                                                                                                              \
        Own( tolmoHeader##Type##ToString( hdr.Get() ) );                                                               \
        const auto stored = Own( tolmoHeader##Type##Store( hdr.Get() ) );                                              \
        Own( tolmoHeader##Type##TryRestore( stored.Get() ) );                                                          \
    }
#include <tolmo/tolmo_headers.def>
#undef TOLMO_HEADER
    return decoded;
}

/** Decodes all items of the lists whose items have parameters. */
void WorkOnItems( TolmoMessage msg )
{
#define ITEMS( Type, Word, Item )                                                                                      \
    if ( const auto hdr = Own( tolmoHeader##Type##TryDecodeFromMessage( msg ) ) ) {                                    \
        for ( KoInt i = 0; i < tolmoHeader##Type##Word##sLength( hdr.Get() ); ++i ) {                                  \
            const auto item = Own( tolmoHeader##Type##TryDecode##Word##At( hdr.Get(), i ) );                           \
            if ( item ) {                                                                                              \
                const auto copy = Own( tolmo##Item##CreateFrom( item.Get() ) );                                        \
                tolmo##Item##Compare( item.Get(), copy.Get() );                                                        \
                Own( tolmo##Item##ToString( item.Get() ) );                                                            \
            }                                                                                                          \
        }                                                                                                              \
    }
    ITEMS( Via, Via, Via )
    ITEMS( Contact, Contact, Contact )
    ITEMS( Route, Route, Route )
    ITEMS( Warning, Warning, WarningValue )
    ITEMS( HistoryInfo, HistoryInfo, HistoryInfo )
    ITEMS( Reason, Reason, Reason )
    ITEMS( PAssertedIdentity, IdentityValue, IdentityValue )
#undef ITEMS
}

struct Work {
    const char *name;
    KoInt size;
    void ( *run )( KoInt n );
};

/** Reads all messages that a stream decoder has. */
KoInt ReadAll( TolmoMessageStreamDecoder decoder )
{
    KoInt count = 0;
    while ( Own( tolmoMessageStreamDecoderRead( decoder ) ) ) {
        ++count;
    }
    return count;
}

/** Writes a text to a stream decoder byte by byte, and reads behind each. */
KoInt StreamBytes( const std::string &text )
{
    const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
    KoInt count = 0;
    for ( const char &byte : text ) {
        tolmoMessageStreamDecoderWrite( decoder.Get(), Own( koBufferCreateFromBytesCopy( &byte, 1 ) ).Get() );
        count += ReadAll( decoder.Get() );
    }
    CHECK( !tolmoMessageStreamDecoderError( decoder.Get() ) );
    return count;
}

const std::string smallMessage = "A a: B/1\r\nl: 1\r\n\r\nx";

/** A dictionary of n different keys; `key` makes them. */
template <class Key>
KoRef<KoDict> Dict( KoInt n, Key key )
{
    auto dict = Own( koDictCreate() );
    for ( KoInt i = 0; i < n; ++i ) {
        const auto text = key( i );
        koDictSetStringKey( dict.Address(), text.Get(), koStringObj( text.Get() ) );
    }
    return dict;
}

KoRef<KoString> Number( KoInt i )
{
    return Str( std::to_string( i ) );
}

KoRef<KoString> CollidingKey( KoInt i )
{
    return Str( shapes::Colliding( static_cast<size_t>( i ) ) );
}

KoRef<KoVector> Vector( KoInt n )
{
    auto vector = Own( koVectorCreate() );
    for ( KoInt i = 0; i < n; ++i ) {
        koVectorAppendString( vector.Address(), Number( i ).Get() );
    }
    return vector;
}

const Work works[] = {
    // Streams
    { "stream: line ends in front", 200000,
      []( KoInt n ) {
          const auto bytes = Buf( Times( static_cast<size_t>( n ), "\r\n" ) + smallMessage );
          const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
          const Counted counted;
          tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
          CHECK( ReadAll( decoder.Get() ) == 1 );
      } },
    { "stream: a line end a write", 10000,
      []( KoInt n ) {
          const auto pair = Buf( "\r\n" );
          const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoMessageStreamDecoderWrite( decoder.Get(), pair.Get() );
              CHECK( ReadAll( decoder.Get() ) == 0 );
          }
          CHECK( tolmoMessageStreamDecoderLength( decoder.Get() ) == 0 );
      } },
    { "stream: small messages in one write", 5000,
      []( KoInt n ) {
          const auto bytes = Buf( Times( static_cast<size_t>( n ), smallMessage ) );
          const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
          const Counted counted;
          tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
          CHECK( ReadAll( decoder.Get() ) == n );
      } },
    { "stream: small messages with another holder of the bytes", 5000,
      []( KoInt n ) {
          const auto bytes = Buf( Times( static_cast<size_t>( n ), smallMessage ) );
          const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
          const Counted counted;
          tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
          for ( KoInt i = 0; i < n; ++i ) {
              CHECK( bool( Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) );
          }
      } },
    { "stream: small messages, one behind in the buffer", 5000,
      []( KoInt n ) {
          const auto bytes = Buf( smallMessage );
          const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
          tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoMessageStreamDecoderWrite( decoder.Get(), bytes.Get() );
              CHECK( bool( Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) );
          }
      } },
    { "stream: a head, a byte a write", 20000,
      []( KoInt n ) {
          const std::string text =
              shapes::Message( shapes::Header( "x", Times( static_cast<size_t>( n ), "a" ) ) + "l: 0\r\n" );
          const Counted counted;
          CHECK( StreamBytes( text ) == 1 );
      } },
    { "stream: lines, a byte a write", 5000,
      []( KoInt n ) {
          const std::string text = shapes::Message( Times( static_cast<size_t>( n ), "a:\r\n" ) + "l: 0\r\n" );
          const Counted counted;
          CHECK( StreamBytes( text ) == 1 );
      } },
    { "stream: a body, a byte a write", 20000,
      []( KoInt n ) {
          const std::string text =
              shapes::Message( "l: " + std::to_string( n ) + "\r\n", Times( static_cast<size_t>( n ), "a" ) );
          const Counted counted;
          CHECK( StreamBytes( text ) == 1 );
      } },
    { "stream: carriage returns, a byte a write", 20000,
      []( KoInt n ) {
          const std::string text = "x" + Times( static_cast<size_t>( n ), "\r" );
          const Counted counted;
          CHECK( StreamBytes( text ) == 0 );
      } },

    // Messages that are changed
    { "message: headers set", 5000,
      []( KoInt n ) {
          auto msg = Decoded( shapes::Message( "" ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              const auto header = Own( tolmoMessageHeaderCreate( Number( i ).Get() ) );
              tolmoMessageSetHeader( msg.Address(), header.Get() );
          }
      } },
    { "message: headers deleted from the front", 5000,
      []( KoInt n ) {
          auto msg = Decoded( shapes::Message( shapes::Numbered( static_cast<size_t>( n ), "#: a\r\n" ) ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoMessageDelHeader( msg.Address(), Number( i ).Get() );
          }
          CHECK( koVectorLength( Own( tolmoMessageHeadersVector( msg.Get() ) ).Get() ) == 0 );
      } },
    { "message: headers deleted from the end", 5000,
      []( KoInt n ) {
          auto msg = Decoded( shapes::Message( shapes::Numbered( static_cast<size_t>( n ), "#: a\r\n" ) ) );
          const Counted counted;
          for ( KoInt i = n; i-- > 0; ) {
              tolmoMessageDelHeader( msg.Address(), Number( i ).Get() );
          }
      } },
    { "message: headers deleted behind the first", 5000,
      []( KoInt n ) {
          auto msg = Decoded(
              shapes::Message( "v:\r\n" + shapes::Numbered( static_cast<size_t>( n ), "#: a\r\n" ) + "k:\r\n" ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoMessageDelHeader( msg.Address(), Number( i ).Get() );
          }
      } },
    { "message: headers asked for", 5000,
      []( KoInt n ) {
          const auto msg = Decoded( shapes::Message( shapes::Numbered( static_cast<size_t>( n ), "#: a\r\n" ) ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              CHECK( bool( Own( tolmoMessageHeader( msg.Get(), Number( i ).Get() ) ) ) );
          }
      } },
    { "message: copies of one with many headers", 5000,
      []( KoInt n ) {
          const auto msg = Decoded( shapes::Message( shapes::Numbered( static_cast<size_t>( n ), "#: a\r\n" ) ) );
          const Counted counted;
          for ( int i = 0; i < 10; ++i ) {
              auto copy = Own( tolmoMessageCreateFrom( msg.Get() ) );
              tolmoMessageDelHeader( copy.Address(), Number( i ).Get() );
          }
      } },
    { "message: lines appended to a header", 10000,
      []( KoInt n ) {
          auto header = Own( tolmoMessageHeaderCreate( Str( "a" ).Get() ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoMessageHeaderAppendLine( header.Address(), Number( i ).Get() );
          }
      } },
    { "message: lines deleted from the front of a header", 10000,
      []( KoInt n ) {
          auto header = Own( tolmoMessageHeaderCreate( Str( "a" ).Get() ) );
          tolmoMessageHeaderSetLinesVector( header.Address(), Vector( n ).Get() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoMessageHeaderDelLineAt( header.Address(), 0 );
          }
      } },

    // Lists, sets and parameters that are changed
    { "list: items in front", 5000,
      []( KoInt n ) {
          auto vias = Own( tolmoHeaderViaCreate() );
          const auto via = AVia();
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoHeaderViaPrependVia( vias.Address(), via.Get() );
          }
      } },
    { "list: items put in behind the first", 5000,
      []( KoInt n ) {
          auto vias = Vias( 2 );
          const auto via = AVia();
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoHeaderViaInsertVia( vias.Address(), 1, via.Get() );
          }
      } },
    { "list: items put in one behind the other", 5000,
      []( KoInt n ) {
          auto vias = Vias( 2 );
          const auto via = AVia();
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoHeaderViaInsertVia( vias.Address(), 1 + i, via.Get() );
          }
      } },
    { "list: items deleted from the front", 20000,
      []( KoInt n ) {
          auto vias = Vias( n );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoHeaderViaDelViaAt( vias.Address(), 0 );
          }
      } },
    { "list: items deleted from the end", 20000,
      []( KoInt n ) {
          auto vias = Vias( n );
          const Counted counted;
          for ( KoInt i = n; i-- > 0; ) {
              tolmoHeaderViaDelViaAt( vias.Address(), i );
          }
      } },
    { "list: top item of a message replaced", 2000,
      []( KoInt n ) {
          auto msg = Decoded( shapes::Message( Times( static_cast<size_t>( n ), "v: SIP/2.0/UDP a\r\n" ) ) );
          const Counted counted;
          auto vias = Own( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
          auto top = Own( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
          tolmoViaSetRportNumeric( top.Address(), 5060 );
          tolmoHeaderViaSetViaAt( vias.Address(), 0, top.Get() );
          tolmoHeaderViaEncodeToMessage( vias.Get(), msg.Address() );
      } },
    { "set: words set", 5000,
      []( KoInt n ) {
          auto tags = Own( tolmoHeaderSupportedCreate() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoHeaderSupportedSetOptionTag( tags.Address(), Number( i ).Get() );
          }
          CHECK( tolmoHeaderSupportedOptionTagsLength( tags.Get() ) == n );
      } },
    { "set: words deleted from the front", 5000,
      []( KoInt n ) {
          const auto words = Vector( n );
          auto tags = Own( tolmoHeaderSupportedCreate() );
          tolmoHeaderSupportedSetOptionTagsVector( tags.Address(), words.Get() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoHeaderSupportedDelOptionTag( tags.Address(), Number( i ).Get() );
          }
      } },
    { "set: words deleted behind the first", 5000,
      []( KoInt n ) {
          auto tags = Own( tolmoHeaderSupportedCreate() );
          tolmoHeaderSupportedSetOptionTagsVector( tags.Address(), Vector( n ).Get() );
          const Counted counted;
          for ( KoInt i = 1; i < n; ++i ) {
              tolmoHeaderSupportedDelOptionTag( tags.Address(), Number( i ).Get() );
          }
          CHECK( tolmoHeaderSupportedOptionTagsLength( tags.Get() ) == 1 );
      } },
    { "set: words deleted from the end", 5000,
      []( KoInt n ) {
          auto tags = Own( tolmoHeaderSupportedCreate() );
          tolmoHeaderSupportedSetOptionTagsVector( tags.Address(), Vector( n ).Get() );
          const Counted counted;
          for ( KoInt i = n; i-- > 0; ) {
              tolmoHeaderSupportedDelOptionTag( tags.Address(), Number( i ).Get() );
          }
      } },
    { "parameters: set and deleted from the front", 5000,
      []( KoInt n ) {
          auto params = Own( tolmoGenericParamsCreate() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              const auto param = Own( tolmoGenericParamCreate( Number( i ).Get() ) );
              tolmoGenericParamsSetParam( params.Address(), param.Get() );
          }
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoGenericParamsDelParam( params.Address(), Number( i ).Get() );
          }
      } },
    { "parameters: compared in another order", 20000,
      []( KoInt n ) {
          auto a = Own( tolmoGenericParamsCreate() );
          auto b = Own( tolmoGenericParamsCreate() );
          for ( KoInt i = 0; i < n; ++i ) {
              tolmoGenericParamsSetParam( a.Address(), Own( tolmoGenericParamCreate( Number( i ).Get() ) ).Get() );
              tolmoGenericParamsSetParam( b.Address(),
                                          Own( tolmoGenericParamCreate( Number( n - 1 - i ).Get() ) ).Get() );
          }
          const Counted counted;
          CHECK( tolmoGenericParamsEquals( a.Get(), b.Get() ) );
      } },

    // The runtime
    { "dictionary: keys that a weak hash confuses", 5000,
      []( KoInt n ) {
          const Counted counted;
          CHECK( koDictLength( Dict( n, CollidingKey ).Get() ) == n );
      } },
    { "dictionary: copies", 5000,
      []( KoInt n ) {
          const auto dict = Dict( n, Number );
          const auto key = Str( "a" );
          const Counted counted;
          for ( int i = 0; i < 10; ++i ) {
              auto copy = KoRef<KoDict>::Share( dict.Get() );
              koDictSetStringKey( copy.Address(), key.Get(), koStringObj( key.Get() ) );
          }
      } },
    { "vector: text", 10000,
      []( KoInt n ) {
          const auto vector = Vector( n );
          const Counted counted;
          Own( koVectorToString( vector.Get() ) );
      } },
    { "vector: elements in front and behind", 10000,
      []( KoInt n ) {
          auto vector = Own( koVectorCreate() );
          const auto text = Str( "a" );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              koVectorPrependString( vector.Address(), text.Get() );
              koVectorAppendString( vector.Address(), text.Get() );
          }
          for ( KoInt i = 0; i < n; ++i ) {
              koVectorDelLeading( vector.Address(), 1 );
              koVectorDelAt( vector.Address(), koVectorLength( vector.Get() ) - 1 );
          }
      } },
    { "buffer: bytes deleted from the front", 20000,
      []( KoInt n ) {
          auto buffer = Own( ko___BufferCreateOfLength( n ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              koBufferDelLeading( buffer.Address(), 1 );
          }
      } },
    { "buffer: bytes appended and deleted by turns", 20000,
      []( KoInt n ) {
          auto buffer = Own( ko___BufferCreateOfLength( n ) );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              koBufferAppendByte( buffer.Address(), 1 );
              koBufferDelLeading( buffer.Address(), 1 );
          }
      } },
    { "string: characters appended", 20000,
      []( KoInt n ) {
          auto text = Own( koStringCreate() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              koStringAppendChar( text.Address(), 'a' );
          }
      } },
    { "string: parts", 10000,
      []( KoInt n ) {
          const auto text = Str( Times( static_cast<size_t>( n ), "a," ) );
          const Counted counted;
          CHECK( koVectorLength( Own( koStringSplitChar( text.Get(), ',', -1 ) ).Get() ) == n + 1 );
      } },
    { "string: a pattern that almost fits", 20000,
      []( KoInt n ) {
          const auto text = Str( Times( static_cast<size_t>( n ), "a" ) );
          const auto pattern = Str( Times( static_cast<size_t>( n / 2 ), "a" ) + "b" );
          const Counted counted;
          CHECK( koStringFindChars( text.Get(), 0, koStringBacking( pattern.Get() ),
                                    koStringLength( pattern.Get() ) ) == -1 );
      } },
    { "string: small and capital letters", 20000,
      []( KoInt n ) {
          auto text = Str( Times( static_cast<size_t>( n ), "\xC3\xA9" ) );
          const Counted counted;
          koStringToUpper( text.Address() );
          koStringToLower( text.Address() );
      } },
    { "store: values", 5000,
      []( KoInt n ) {
          auto store = Own( koStoreCreate() );
          const Counted counted;
          for ( KoInt i = 0; i < n; ++i ) {
              const auto key = Number( i );
              koStoreSetValue( store.Address(), key.Get(), key.Get() );
          }
          for ( KoInt i = 0; i < n; ++i ) {
              CHECK( bool( Own( koStoreValue( store.Get(), Number( i ).Get() ) ) ) );
          }
      } },
    { "store: a header and back", 5000,
      []( KoInt n ) {
          auto header = Own( tolmoMessageHeaderCreate( Str( "a" ).Get() ) );
          tolmoMessageHeaderSetLinesVector( header.Address(), Vector( n ).Get() );
          const Counted counted;
          const auto stored = Own( tolmoMessageHeaderStore( header.Get() ) );
          const auto restored = Own( tolmoMessageHeaderTryRestore( stored.Get() ) );
          CHECK( tolmoMessageHeaderEquals( header.Get(), restored.Get() ) );
      } },
    { "host: labels to ASCII and back", 5000,
      []( KoInt n ) {
          const auto name = Str( Times( static_cast<size_t>( n ), "\xC3\xA9." ) );
          const Counted counted;
          Own( wenDnsIdnaDomainNameToAscii( name.Get() ) );
          Own( wenDnsIdnaDomainNameToUnicode( name.Get() ) );
      } },
    { "host: one label of marks", 5000,
      []( KoInt n ) {
          const auto name = Str( "a" + Times( static_cast<size_t>( n ), "\xCC\x81\xCC\xA3" ) );
          const Counted counted;
          Own( wenDnsIdnaDomainNameToAscii( name.Get() ) );
      } },
    { "address: to IRI and back", 5000,
      []( KoInt n ) {
          const auto uri = Str( "sip:" + Times( static_cast<size_t>( n ), "%C3%A9%E2%82%AC%F0%9F" ) + "@a" );
          const Counted counted;
          const auto iri = Own( ulmTryConvertFromUri( uri.Get() ) );
          CHECK( bool( iri ) );
          Own( ulmTryConvertToUri( iri.Get() ) );
      } },
};

/** The elements of a shape: so that about as many bytes are looked at in all. */
size_t SizeOfShape( const std::string &one )
{
    return one.size() > 4000 ? 2000 : 10000;
}

std::string_view pattern;

/** Runs a piece of work at both sizes, and has the counter write what each took. */
template <class Run>
void Measure( const std::string &name, KoInt size, Run run )
{
    if ( name.find( pattern ) == std::string::npos ) {
        return;
    }
    for ( const KoInt n : { size, 2 * size } ) {
        CALLGRIND_ZERO_STATS;
        run( n );
        const std::string label = name + " = " + std::to_string( n );
        CALLGRIND_DUMP_STATS_AT( label.c_str() );
    }
}

} // namespace

int main( int argc, char **argv )
{
    pattern = argc > 1 ? argv[1] : "";
    const KoModuleScope scope( tolmoModule() );
    const auto message = []( const std::string &name, bool good, size_t size, auto text ) {
        Measure( "decode, encode: " + name, static_cast<KoInt>( size ), [&]( KoInt n ) {
            const std::string bytes = text( static_cast<size_t>( n ) );
            const auto buffer = Buf( bytes );
            const Counted counted;
            const auto fragment = Own( tolmoMessageFragmentTryDecode( buffer.Get() ) );
            CHECK( bool( fragment ) == good );
            if ( good ) {
                Own( tolmoMessageFragmentEncode( fragment.Get() ) );
            }
        } );
        Measure( "types: " + name, static_cast<KoInt>( size ), [&]( KoInt n ) {
            const auto msg = Decoded( text( static_cast<size_t>( n ) ) );
            if ( msg ) {
                const Counted counted;
                WorkOnTypes( msg.Get() );
                WorkOnItems( msg.Get() );
            }
        } );
    };
    for ( const auto &shape : shapes::headerShapes ) {
        message( shape.name, shape.good, SizeOfShape( shape.headers( 100 ) ),
                 [&]( size_t n ) { return shapes::Message( shape.headers( n ) ); } );
    }
    for ( const auto &shape : shapes::messageShapes ) {
        message( shape.name, shape.good, SizeOfShape( shape.text( 100 ) ),
                 [&]( size_t n ) { return shape.text( n ); } );
    }
    for ( const Work &work : works ) {
        Measure( work.name, work.size, work.run );
    }
}
