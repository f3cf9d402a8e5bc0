/* From bytes to fragments: start line, header lines, Content-Length (RFC 3261 section 7). */
#include <tolmo/tolmo_message_fragment.hpp>

#include <tolmo/tolmo_char.hpp>
#include <tolmo/tolmo_reason_phrase.h>
#include <tolmo/tolmo_skip.hpp>
#include <tolmo/tolmo_wide.hpp>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace skip = tolmo::skip;

namespace tolmo {
namespace {

constexpr uint8_t cr = 0x0D;
constexpr uint8_t lf = 0x0A;

/** The first place from `from` on where a CR stands, or `length`. */
KoInt FindCr( const uint8_t *bytes, KoInt from, KoInt length )
{
#if defined( __SSE2__ )
    const __m128i crs = _mm_set1_epi8( cr );
    for ( ; length - from >= 16; from += 16 ) {
        const __m128i block = _mm_loadu_si128( reinterpret_cast<const __m128i *>( bytes + from ) );
        if ( const int found = _mm_movemask_epi8( _mm_cmpeq_epi8( block, crs ) ) ) {
            return from + std::countr_zero( static_cast<unsigned>( found ) );
        }
    }
#endif
    while ( from < length && bytes[from] != cr ) {
        ++from;
    }
    return from;
}

/** Where the line that goes through `from` ends: at the CR of its CR LF, or with the text. */
KoInt FindLineEnd( const uint8_t *bytes, KoInt from, KoInt length )
{
    while ( ( from = FindCr( bytes, from, length ) ) < length ) {
        if ( from + 1 < length && bytes[from + 1] == lf ) {
            return from;
        }
        ++from;
    }
    return length;
}

/** The number of lines: the CR LF, and one for what stands behind the last. */
KoInt CountLines( const uint8_t *bytes, KoInt length )
{
    KoInt count = 1;
    for ( KoInt end = FindLineEnd( bytes, 0, length ); end < length; end = FindLineEnd( bytes, end + 2, length ) ) {
        ++count;
    }
    return count;
}

bool IsUtf8( const uint8_t *bytes, KoInt length )
{
    KoInt at = ko::AsciiLength( bytes, length );
    while ( at < length ) {
        KoChar ch = 0;
        const KoInt count = ko::DecodeUtf8( bytes + at, length - at, &ch );
        if ( count < 0 ) {
            return false;
        }
        at += count;
    }
    return true;
}

bool IsLws( uint8_t byte )
{
    return byte == ' ' || byte == '\t';
}

enum class StartLine { none, good, bad };

/** Line 0: a status line, a request line, or no start line at all, so that it is a header line. */
StartLine DecodeStartLine( TolmoMessageFragment frag, Text line )
{
    // At most three parts; the last one holds the rest, blanks included.
    Text parts[3];
    size_t count = 0;
    KoInt begin = 0;
    for ( KoInt i = 0; i < line.length && count < 2; ++i ) {
        if ( line.chs[i] == ' ' ) {
            parts[count++] = { line.chs + begin, i - begin };
            begin = i + 1;
        }
    }
    parts[count++] = { line.chs + begin, line.length - begin };
    if ( count < 2 ) {
        return StartLine::none;
    }
    auto version = Adopt( tolmo___VersionTryDecode( parts[0].chs, parts[0].length ) );
    if ( version ) {
        KoInt code = 0;
        KoInt consumed = 0;
        if ( !koFormatTryDecodeIntChars( parts[1].chs, parts[1].length, 10, &code, &consumed ) ||
             consumed != parts[1].length || !tolmoStatusCodeOk( code ) ) {
            return StartLine::bad;
        }
        frag->version = version.Leak();
        frag->responseStatusCode = code;
        frag->responseReasonPhrase = tolmo___ReasonPhraseDecode( parts[2].chs, parts[2].length );
        return StartLine::good;
    }
    if ( count < 3 || parts[0].length == 0 || skip::Method( parts[0].chs, parts[0].length ) != parts[0].length ) {
        return StartLine::none;
    }
    auto iri = Adopt( ulm___TryConvertFromUriChars( parts[1].chs, parts[1].length ) );
    if ( !iri ) {
        return StartLine::bad;
    }
    version = Adopt( tolmo___VersionTryDecode( parts[2].chs, parts[2].length ) );
    if ( !version ) {
        return StartLine::bad;
    }
    frag->version = version.Leak();
    frag->requestMethod = parts[0].Copy().Leak();
    frag->requestIri = iri.Leak();
    return StartLine::good;
}

/** Puts the header lines of a head into a fragment's table. */
class HeaderLines {
public:
    HeaderLines( TolmoMessageFragment filled, DecodedHead *decoded )
        : frag( filled ), lines( decoded->Lines() ), text( decoded->Text() )
    {
    }

    /**
     * Takes the lines from `at` on. A line that begins with whitespace goes on with the one before it: the two are
     * joined by one blank, in place, since that is never longer than what was there. An empty line ends a header too.
     */
    bool Take( KoInt at, KoInt length )
    {
        KoInt pending = -1; // where the header that is being collected begins, and where it ends
        KoInt pendingEnd = 0;
        for ( KoInt next = 0; at < length; at = next ) {
            const KoInt lineEnd = FindLineEnd( text, at, length );
            next = lineEnd + 2;
            if ( pending >= 0 && !( at < lineEnd && IsLws( text[at] ) ) ) {
                if ( !TakeHeader( pending, pendingEnd ) ) {
                    return false;
                }
                pending = -1;
            }
            KoInt end = lineEnd;
            while ( at < end && IsLws( text[at] ) ) {
                ++at;
            }
            while ( at < end && IsLws( text[end - 1] ) ) {
                --end;
            }
            if ( at == end ) {
                continue;
            }
            if ( pending < 0 ) {
                pending = at;
                pendingEnd = end;
            } else {
                text[pendingEnd] = ' ';
                memmove( text + pendingEnd + 1, text + at, static_cast<size_t>( end - at ) );
                pendingEnd += 1 + end - at;
            }
        }
        return pending < 0 || TakeHeader( pending, pendingEnd );
    }

    /** The last line of `Content-Length`, or null when there is none. */
    [[nodiscard]] const RawLine *ContentLength() const
    {
        const KoInt entry = entryOf[contentLengthName];
        return entry ? lines + frag->headers->Entries()[entry - 1].lastLine : nullptr;
    }

private:
    // header-line = name [ LWS ] ":" [ LWS ] [ value ]
    bool TakeHeader( KoInt begin, KoInt end )
    {
        KoInt at = begin;
        while ( at < end && Is( text[at], charToken ) ) {
            ++at;
        }
        const KoInt nameLength = at - begin;
        while ( at < end && IsLws( text[at] ) ) {
            ++at;
        }
        if ( nameLength == 0 || at == end || text[at] != ':' ) {
            return false;
        }
        ++at;
        while ( at < end && IsLws( text[at] ) ) {
            ++at;
        }
        const KoInt line = count++;
        lines[line] = { .offset = at, .length = end - at, .next = 0 };
        HeaderEntry *const entry = FindOrAppend( begin, nameLength, line );
        lines[entry->lastLine].next = line; // of a new entry, its own line's, which is not looked at
        entry->lastLine = line;
        return true;
    }

    HeaderEntry *FindOrAppend( KoInt name, KoInt nameLength, KoInt line )
    {
        const NameId known = RecognizeName( text + name, nameLength );
        if ( known != unknownName ) {
            KoInt &entry = entryOf[known];
            if ( entry == 0 ) {
                Append( known, 0, 0, line );
                entry = frag->headers->count;
            }
            return frag->headers->Entries() + entry - 1;
        }
        CapitalizeName( text + name, nameLength );
        HeaderEntry *const entry = FindUnknownEntry( frag->headers, text + name, nameLength );
        return entry ? entry : Append( unknownName, name, nameLength, line );
    }

    HeaderEntry *Append( NameId known, KoInt name, KoInt nameLength, KoInt line )
    {
        return AppendEntry( &frag->headers, { .header = nullptr,
                                              .firstLine = line,
                                              .lastLine = line,
                                              .nameOffset = name,
                                              .nameLength = static_cast<uint64_t>( nameLength ) & 0xFFFFFFFFFFFF,
                                              .known = known } );
    }

    TolmoMessageFragment frag;
    RawLine *lines;
    uint8_t *text;
    KoInt count = 0;
    KoInt entryOf[knownNameCount] = {}; // for a known name, the position of its entry and 1
};

/** The value of a `Content-Length` line, or -1. */
KoInt DecodeContentLength( const uint8_t *bytes, KoInt length )
{
    const Wide line( bytes, length );
    KoInt value = 0;
    KoInt consumed = 0;
    const bool good = koFormatTryDecodeIntChars( line.Text().chs, line.Text().length, 10, &value, &consumed ) &&
                      consumed == line.Text().length && value >= 0;
    return good ? value : -1;
}

} // namespace

KoInt FindHeadEnd( const uint8_t *bytes, KoInt from, KoInt length )
{
    while ( ( from = FindCr( bytes, from, length ) ) <= length - 4 ) {
        if ( memcmp( bytes + from, "\r\n\r\n", 4 ) == 0 ) {
            return from;
        }
        ++from;
    }
    return -1;
}

KoRef<TolmoMessageFragment> DecodeHead( const uint8_t *bytes, KoInt length, KoInt *contentLength )
{
    if ( contentLength ) {
        *contentLength = -1;
    }
    if ( !IsUtf8( bytes, length ) ) {
        return {};
    }
    const KoInt lineCount = CountLines( bytes, length );
    auto decoded = CreateDecodedHead( lineCount, length );
    DecodedHead *const head = decoded.Get();
    if ( length > 0 ) {
        memcpy( head->Text(), bytes, static_cast<size_t>( length ) );
    }
    auto frag = CreateFragment( CreateHeaderTable( koIntMin( lineCount + 2, 20 ), std::move( decoded ) ) );
    const KoInt lineEnd = FindLineEnd( bytes, 0, length );
    KoInt headers = 0;
    switch ( DecodeStartLine( frag.Get(), Wide( bytes, lineEnd ).Text() ) ) {
    case StartLine::bad:
        return {};
    case StartLine::good:
        headers = lineEnd + 2;
        break;
    case StartLine::none:
        break;
    }
    HeaderLines lines( frag.Get(), head );
    if ( !lines.Take( headers, length ) ) {
        return {};
    }
    const RawLine *const line = lines.ContentLength();
    if ( contentLength && line ) {
        *contentLength = DecodeContentLength( head->Text() + line->offset, line->length );
        if ( *contentLength < 0 ) {
            return {};
        }
    }
    return frag;
}

} // namespace tolmo

TolmoMessageFragment tolmoMessageFragmentTryDecodeHeaders( KoBuffer buf, KoInt *contentLength )
{
    KO_REQUIRE( buf );
    return tolmo::DecodeHead( ko::Bytes( buf ), buf->length, contentLength ).Leak();
}

TolmoMessageFragment tolmoMessageFragmentTryDecode( KoBuffer buf )
{
    KO_REQUIRE( buf );
    const KoInt found = tolmo::FindHeadEnd( ko::Bytes( buf ), 0, buf->length );
    const KoInt headLength = found < 0 ? buf->length : found + 2;
    const KoInt body = found < 0 ? buf->length : found + 4;
    const KoInt bodyLength = buf->length - body;
    KoInt contentLength = -1;
    auto frag = tolmo::DecodeHead( ko::Bytes( buf ), headLength, &contentLength );
    if ( !frag || contentLength > bodyLength ) {
        return nullptr;
    }
    if ( bodyLength > 0 && contentLength != 0 ) {
        frag.Get()->body = koBufferRead( buf, body, contentLength < 0 ? bodyLength : contentLength );
    }
    return frag.Leak();
}
