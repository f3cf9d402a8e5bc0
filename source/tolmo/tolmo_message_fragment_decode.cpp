/* From bytes to fragments: start line, header lines, Content-Length (RFC 3261 section 7). */
#include <tolmo/tolmo_message_fragment.hpp>

#include <tolmo/tolmo_char.hpp>
#include <tolmo/tolmo_reason_phrase.h>
#include <tolmo/tolmo_skip.hpp>
#include <tolmo/tolmo_wide.hpp>

#include <algorithm>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace skip = tolmo::skip;

namespace tolmo {
namespace {

constexpr uint8_t cr = 0x0D;
constexpr uint8_t lf = 0x0A;

/**
 * Calls `take( i )` for each place i where CR LF stands, from `from` on, as long as it returns true. Returns true when all
 * bytes that were looked at are ASCII; that may be some more than up to the last place.
 */
template <class Take>
bool ForEachLineEnd( const uint8_t *bytes, KoInt from, KoInt length, Take take )
{
    bool ascii = true;
#if defined( __SSE2__ )
    const __m128i crs = _mm_set1_epi8( cr );
    // So many blocks of 16 bytes, and behind them at least one byte more. False when that was enough.
    const auto look = [&]<int blocks>() {
        uint64_t found = 0;
        __m128i all = _mm_setzero_si128();
        for ( int part = 0; part < blocks; ++part ) {
            const __m128i block = _mm_loadu_si128( reinterpret_cast<const __m128i *>( bytes + from ) + part );
            const auto mask = static_cast<unsigned>( _mm_movemask_epi8( _mm_cmpeq_epi8( block, crs ) ) );
            found |= uint64_t{ mask } << ( 16 * part );
            all = _mm_or_si128( all, block );
        }
        ascii = ascii && _mm_movemask_epi8( all ) == 0;
        for ( ; found; found &= found - 1 ) {
            const KoInt place = from + std::countr_zero( found );
            if ( bytes[place + 1] == lf && !take( place ) ) {
                return false;
            }
        }
        from += 16 * blocks;
        return true;
    };
    while ( length - from > 64 ) {
        if ( !look.template operator()<4>() ) {
            return ascii;
        }
    }
    while ( length - from > 16 ) {
        if ( !look.template operator()<1>() ) {
            return ascii;
        }
    }
#endif
    for ( ; from < length; ++from ) {
        ascii = ascii && bytes[from] < 0x80;
        if ( length - from >= 2 && bytes[from] == cr && bytes[from + 1] == lf && !take( from ) ) {
            break;
        }
    }
    return ascii;
}

/** Where a byte stands from `from` on, or `length`. Up to 15 bytes behind the text must be readable. */
KoInt FindByte( const uint8_t *bytes, KoInt from, KoInt length, uint8_t byte )
{
#if defined( __SSE2__ )
    const __m128i wanted = _mm_set1_epi8( static_cast<char>( byte ) );
    for ( ; from < length; from += 16 ) {
        const __m128i block = _mm_loadu_si128( reinterpret_cast<const __m128i *>( bytes + from ) );
        const auto found = static_cast<unsigned>( _mm_movemask_epi8( _mm_cmpeq_epi8( block, wanted ) ) );
        if ( found ) {
            return std::min( from + std::countr_zero( found ), length );
        }
    }
    return length;
#else
    while ( from < length && bytes[from] != byte ) {
        ++from;
    }
    return from;
#endif
}

/** Where the line that goes through `from` ends: at its CR LF, or with the text. */
KoInt FindLineEnd( const uint8_t *bytes, KoInt from, KoInt length )
{
    ForEachLineEnd( bytes, from, length, [&]( KoInt place ) {
        length = place;
        return false;
    } );
    return length;
}

/** The lines of a head, from one pass over its bytes. */
class LineEnds {
public:
    /** Looks through bytes up to their end or, with `wholeMessage`, up to the first empty line. */
    LineEnds( const uint8_t *bytes, KoInt length, bool wholeMessage )
    {
        ascii = ForEachLineEnd( bytes, 0, length, [&]( KoInt place ) {
            if ( place == last + 2 && wholeMessage && count > 0 ) {
                emptyLine = place;
                return false;
            }
            if ( count < kept ) {
                ends[count] = place;
            }
            ++count;
            last = place;
            return true;
        } );
    }

    /** Where the empty line begins, -1 when there is none. */
    [[nodiscard]] KoInt EmptyLine() const { return emptyLine; }

    /** True when the head is known to be ASCII. */
    [[nodiscard]] bool IsAscii() const { return ascii; }

    /** How many lines there are at most: those with a CR LF, and what stands behind the last. */
    [[nodiscard]] KoInt Lines() const { return count + 1; }

    /** Where line `line` ends, which begins at `begin`. The first ones are remembered. */
    [[nodiscard]] KoInt EndOf( KoInt line, const uint8_t *bytes, KoInt begin, KoInt length ) const
    {
        if ( line >= count ) {
            return length;
        }
        return line < kept ? ends[line] : FindLineEnd( bytes, begin, length );
    }

private:
    static constexpr KoInt kept = 64;

    KoInt count = 0; // of CR LF
    KoInt last = -2;
    KoInt emptyLine = -1;
    bool ascii = false;
    KoInt ends[kept]; // NOLINT: only the first `count` are set, and read
};

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
    return byte <= ' ' && ( byte == ' ' || byte == '\t' ); // most bytes are told by the first test
}

bool IsToken( const uint8_t *bytes, KoInt length )
{
    return std::all_of( bytes, bytes + length, []( uint8_t byte ) { return Is( byte, charToken ); } );
}

constexpr bool IsBlank( KoChar ch )
{
    return ch == ' ';
}

enum class StartLine { none, good, bad };

/** Line 0: a status line, a request line, or no start line at all, so that it is a header line. */
StartLine DecodeStartLine( TolmoMessageFragment frag, Text line )
{
    // At most three parts; the last one holds the rest, blanks included.
    Text parts[3];
    size_t count = 0;
    KoInt begin = 0;
    while ( count < 2 ) {
        const KoInt length = ko::RunUntil<IsBlank>( line.chs + begin, line.length - begin );
        if ( begin + length == line.length ) {
            break;
        }
        parts[count++] = { line.chs + begin, length };
        begin += length + 1;
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
    KoRef<KoString> iri;
    if ( ulm___TakeIri( parts[1].chs, parts[1].length, iri.Address() ) != parts[1].length || !iri ) {
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
    bool Take( KoInt at, KoInt length, const LineEnds &ends, KoInt line )
    {
        while ( at < length ) {
            KoInt end = ends.EndOf( line++, text, at, length );
            KoInt next = end + 2;
            Trim( at, end );
            if ( at == end ) {
                at = next;
                continue;
            }
            while ( next < length && IsLws( text[next] ) ) {
                KoInt begin = next;
                KoInt more = ends.EndOf( line++, text, begin, length );
                next = more + 2;
                Trim( begin, more );
                if ( begin < more ) {
                    text[end] = ' ';
                    memmove( text + end + 1, text + begin, static_cast<size_t>( more - begin ) );
                    end += 1 + more - begin;
                }
            }
            if ( !TakeHeader( at, end ) ) {
                return false;
            }
            at = next;
        }
        return true;
    }

    /** The last line of `Content-Length`, or null when there is none. */
    [[nodiscard]] const RawLine *ContentLength() const
    {
        const HeaderEntry *const entry = FindEntry( frag->headers, contentLengthName );
        return entry ? lines + entry->lines.last : nullptr;
    }

private:
    // header-line = name [ LWS ] ":" [ LWS ] [ value ]
    bool TakeHeader( KoInt begin, KoInt end )
    {
        KoInt at = FindByte( text, begin, end, ':' );
        if ( at == end ) {
            return false;
        }
        KoInt nameLength = at - begin;
        while ( nameLength > 0 && IsLws( text[begin + nameLength - 1] ) ) {
            --nameLength;
        }
        ++at;
        while ( at < end && IsLws( text[at] ) ) {
            ++at;
        }
        const uint32_t line = count++;
        lines[line] = { .offset = static_cast<uint32_t>( at ), .length = static_cast<uint32_t>( end - at ), .next = 0 };
        HeaderEntry *const entry = FindOrAppend( begin, nameLength, line );
        if ( !entry ) {
            return false;
        }
        lines[entry->lines.last].next = line; // of a new entry, its own line's, which is not looked at
        entry->lines.last = line;
        return true;
    }

    /** The entry of a name; null when it is none. */
    HeaderEntry *FindOrAppend( KoInt name, KoInt nameLength, uint32_t line )
    {
        const NameId known = RecognizeName( text + name, nameLength );
        if ( known != unknownName ) {
            HeaderEntry *const entry = FindEntry( frag->headers, known );
            return entry ? entry : Append( known, 0, line );
        }
        if ( nameLength == 0 || !IsToken( text + name, nameLength ) ) {
            return nullptr;
        }
        CapitalizeName( text + name, nameLength );
        HeaderEntry *const entry = FindUnknownEntry( frag->headers, text + name, nameLength );
        return entry ? entry : Append( name, nameLength, line );
    }

    HeaderEntry *Append( KoInt name, KoInt nameLength, uint32_t line )
    {
        return AppendEntry( &frag->headers, { .lines = { line, line },
                                              .name = static_cast<uint32_t>( name ),
                                              .isObject = 0,
                                              .nameLength = static_cast<uint32_t>( nameLength ) & INT32_MAX } );
    }

    /** Takes the whitespace at both ends off a piece of the text. */
    void Trim( KoInt &begin, KoInt &end ) const
    {
        while ( begin < end && IsLws( text[begin] ) ) {
            ++begin;
        }
        while ( begin < end && IsLws( text[end - 1] ) ) {
            --end;
        }
    }

    TolmoMessageFragment frag;
    RawLine *lines;
    uint8_t *text;
    uint32_t count = 0;
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

KoRef<TolmoMessageFragment> Decode( const uint8_t *bytes, KoInt length, const LineEnds &ends, KoInt *contentLength )
{
    if ( contentLength ) {
        *contentLength = -1;
    }
    if ( length > longestHead || !( ends.IsAscii() || IsUtf8( bytes, length ) ) ) {
        return {};
    }
    auto decoded = CreateDecodedHead( ends.Lines(), length );
    DecodedHead *const head = decoded.Get();
    if ( length > 0 ) {
        memcpy( head->Text(), bytes, static_cast<size_t>( length ) );
    }
    auto frag = CreateFragment( CreateHeaderTable( std::min<KoInt>( ends.Lines() + 2, 40 ), std::move( decoded ) ) );
    const KoInt lineEnd = ends.EndOf( 0, bytes, 0, length );
    KoInt headers = 0;
    switch ( DecodeStartLine( frag.Get(), Wide( head->Text(), lineEnd ).Text() ) ) {
    case StartLine::bad:
        return {};
    case StartLine::good:
        headers = lineEnd + 2;
        break;
    case StartLine::none:
        break;
    }
    HeaderLines lines( frag.Get(), head );
    if ( !lines.Take( headers, length, ends, headers > 0 ? 1 : 0 ) ) {
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

} // namespace

KoInt FindHeadEnd( const uint8_t *bytes, KoInt from, KoInt length )
{
    KoInt end = -1;
    ForEachLineEnd( bytes, from, length, [&]( KoInt place ) {
        if ( length - place >= 4 && bytes[place + 2] == cr && bytes[place + 3] == lf ) {
            end = place;
        }
        return end < 0;
    } );
    return end;
}

KoRef<TolmoMessageFragment> DecodeHead( const uint8_t *bytes, KoInt length, KoInt *contentLength )
{
    return Decode( bytes, length, LineEnds( bytes, length, false ), contentLength );
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
    const tolmo::LineEnds ends( ko::Bytes( buf ), buf->length, true );
    const KoInt emptyLine = ends.EmptyLine();
    const KoInt headLength = emptyLine < 0 ? buf->length : emptyLine;
    const KoInt body = emptyLine < 0 ? buf->length : emptyLine + 2;
    const KoInt bodyLength = buf->length - body;
    KoInt contentLength = -1;
    auto frag = tolmo::Decode( ko::Bytes( buf ), headLength, ends, &contentLength );
    if ( !frag || contentLength > bodyLength ) {
        return nullptr;
    }
    if ( bodyLength > 0 && contentLength != 0 ) {
        frag.Get()->body = koBufferRead( buf, body, contentLength < 0 ? bodyLength : contentLength );
    }
    return frag.Leak();
}
