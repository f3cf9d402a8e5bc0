/* From fragments to bytes (RFC 3261 section 7). */
#include <tolmo/tolmo_message_fragment.hpp>

#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_reason_phrase.h>
#include <tolmo/tolmo_wide.hpp>

#include <identifier/ulm.h>

namespace tolmo {
namespace {

/** Counts the bytes that are written to it. */
class Counter {
public:
    void Write( const void *, KoInt length ) { count += length; }
    void Write( KoString s ) { count += ko::Utf8Length( ko::Chars( s ), s->length ); }
    void Write( const WireName &name ) { count += name.length; }
    void WritePadded( const void *, KoInt length ) { count += length; }
    [[nodiscard]] KoInt Count() const { return count; }

private:
    KoInt count = 0;
};

/** Writes to room that is known to suffice, with `slack` bytes more. */
class Writer {
public:
    static constexpr KoInt slack = 32;

    explicit Writer( uint8_t *room ) : to( room ) {}
    void Write( const void *bytes, KoInt length )
    {
        memcpy( to, bytes, static_cast<size_t>( length ) );
        to += length;
    }
    void Write( KoString s )
    {
        const KoInt ascii = ko::NarrowAscii( to, ko::Chars( s ), s->length );
        to += ascii;
        for ( KoInt i = ascii; i < s->length; ++i ) {
            to += ko::EncodeUtf8( to, ko::Chars( s )[i] );
        }
    }
    void Write( const WireName &name )
    {
        memcpy( to, name.text, slack );
        to += name.length;
    }
    /** Bytes behind which `slack` more can be read: copied in blocks, without a call and with next to no branch. */
    void WritePadded( const void *bytes, KoInt length )
    {
        const auto *const from = static_cast<const uint8_t *>( bytes );
        for ( KoInt i = 0; i < length; i += slack ) {
            memcpy( to + i, from + i, slack );
        }
        to += length;
    }

private:
    uint8_t *to;
};
static_assert( sizeof( WireName ) == Writer::slack );

/** A number that is not negative, in decimal. */
class Decimal {
public:
    explicit Decimal( KoInt number )
    {
        do {
            digits[--first] = static_cast<char>( '0' + number % 10 );
            number /= 10;
        } while ( number > 0 );
    }

    template <class Output>
    void WriteTo( Output &output ) const
    {
        output.Write( digits + first, most - first );
    }

private:
    static constexpr KoInt most = 19;

    char digits[most]; // NOLINT: from `first` on
    KoInt first = most;
};

/** What the pieces of an encoded fragment are made of, made once and written twice: to be counted, and to be kept. */
class Pieces {
public:
    explicit Pieces( TolmoMessageFragment encoded )
        : frag( encoded ), bodyLength( encoded->body ? encoded->body->length : 0 )
    {
        if ( tolmoMessageFragmentIsRequest( frag ) ) {
            uri = Adopt( ulmTryConvertToUri( frag->requestIri ) );
            KO_REQUIRE_AS( uri, "uri" ); // an IRI that a fragment holds has a URI form
        } else if ( tolmoMessageFragmentIsResponse( frag ) ) {
            phrase = Adopt( tolmo___ReasonPhraseEncode( frag->responseReasonPhrase ) );
        }
        if ( frag->version ) {
            version = Adopt( tolmo___VersionEncode( frag->version ) );
        }
    }

    template <class Output>
    void WriteTo( Output &output ) const
    {
        WriteStartLine( output );
        bool lengthWritten = false;
        HeaderTable *const table = frag->headers;
        for ( KoInt i = 0; i < table->count; ++i ) {
            const HeaderEntry &entry = table->Entries()[i];
            if ( entry.IsKnown( contentLengthName ) ) {
                WriteContentLength( output );
                lengthWritten = true;
            } else if ( entry.isObject ) {
                WriteHeader( output, entry.header );
            } else if ( !entry.IsKnown( deletedName ) ) {
                WriteRawHeader( output, table->decoded, entry );
            }
        }
        if ( !lengthWritten ) {
            WriteContentLength( output );
        }
        output.Write( "\r\n", 2 );
        if ( frag->body ) {
            output.Write( ko::Bytes( frag->body ), frag->body->length );
        }
    }

private:
    template <class Output>
    void WriteStartLine( Output &output ) const
    {
        if ( uri ) {
            output.Write( frag->requestMethod );
            output.Write( " ", 1 );
            output.Write( uri.Get() );
            output.Write( " ", 1 );
            output.Write( version.Get() );
            output.Write( "\r\n", 2 );
        } else if ( phrase ) {
            output.Write( version.Get() );
            output.Write( " ", 1 );
            Decimal( frag->responseStatusCode ).WriteTo( output ); // it has three digits
            output.Write( " ", 1 );
            output.Write( phrase.Get() );
            output.Write( "\r\n", 2 );
        }
    }

    // The stored lines do not count: what is sent has the length that it has.
    template <class Output>
    void WriteContentLength( Output &output ) const
    {
        output.Write( "Content-Length: ", 16 );
        bodyLength.WriteTo( output );
        output.Write( "\r\n", 2 );
    }

    template <class Output>
    static void WriteHeader( Output &output, TolmoMessageHeader header )
    {
        const KoInt length = koVectorLength( header->lines );
        for ( KoInt i = 0; i < length; ++i ) {
            output.Write( header->name );
            output.Write( ": ", 2 );
            output.Write( LentStringAt( header->lines, i ) );
            output.Write( "\r\n", 2 );
        }
    }

    template <class Output>
    static void WriteRawHeader( Output &output, DecodedHead *decoded, const HeaderEntry &entry )
    {
        decoded->ForEach( entry.lines, [&]( const RawLine &line ) {
            if ( entry.IsKnown() ) {
                output.Write( wireNames[entry.name] );
            } else {
                output.WritePadded( decoded->Text() + entry.name, entry.nameLength );
                output.Write( ": ", 2 );
            }
            output.WritePadded( decoded->Text() + line.offset, line.length );
            output.Write( "\r\n", 2 );
            return true;
        } );
    }

    TolmoMessageFragment frag;
    Decimal bodyLength;
    KoRef<KoString> uri;    // of a request
    KoRef<KoString> phrase; // of a response
    KoRef<KoString> version;
};

} // namespace
} // namespace tolmo

KoBuffer tolmoMessageFragmentEncode( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    const tolmo::Pieces pieces( frag );
    tolmo::Counter counter;
    pieces.WriteTo( counter );
    auto encoded = tolmo::Adopt( ko___BufferCreateOfLength( counter.Count() + tolmo::Writer::slack ) );
    tolmo::Writer writer( ko::Bytes( encoded.Get() ) );
    pieces.WriteTo( writer );
    encoded.Get()->length = counter.Count();
    return encoded.Leak();
}
