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

/** Calls `take( i )` for each place i where CR LF stands, from `from` on, as long as it returns true. */
template <class Take>
void ForEachLineEnd( const uint8_t *bytes, KoInt from, KoInt length, Take take )
{
#if defined( __SSE2__ )
    const __m128i crs = _mm_set1_epi8( cr );
    for ( ; length - from > 64; from += 64 ) {
        uint64_t found = 0;
        for ( int part = 0; part < 4; ++part ) {
            const __m128i block = _mm_loadu_si128( reinterpret_cast<const __m128i *>( bytes + from ) + part );
            const auto mask = static_cast<unsigned>( _mm_movemask_epi8( _mm_cmpeq_epi8( block, crs ) ) );
            found |= uint64_t{ mask } << ( 16 * part );
        }
        for ( ; found; found &= found - 1 ) {
            const KoInt place = from + std::countr_zero( found );
            if ( bytes[place + 1] == lf && !take( place ) ) {
                return;
            }
        }
    }
#endif
    for ( ; length - from >= 2; ++from ) {
        if ( bytes[from] == cr && bytes[from + 1] == lf && !take( from ) ) {
            return;
        }
    }
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
            return koIntMin( from + std::countr_zero( found ), length );
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
        ForEachLineEnd( bytes, 0, length, [&]( KoInt place ) {
            if ( wholeMessage && count > 0 && place == last + 2 ) {
                emptyLine = place;
                return false;
            }
            if ( count < kept ) {
                ends[count] = place;
            }
            ++count;
            filled += place > last + 2;
            last = place;
            return true;
        } );
    }

    /** Where the empty line begins, -1 when there is none. */
    [[nodiscard]] KoInt EmptyLine() const { return emptyLine; }

    /** How many lines there are at most that are not empty: those with a CR LF, and what stands behind the last. */
    [[nodiscard]] KoInt FilledLines() const { return filled + 1; }

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

    KoInt count = 0;  // of CR LF
    KoInt filled = 0; // of those that do not end an empty line
    KoInt last = -2;
    KoInt emptyLine = -1;
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
    return byte == ' ' || byte == '\t';
}

bool IsToken( const uint8_t *bytes, KoInt length )
{
    return std::all_of( bytes, bytes + length, []( uint8_t byte ) { return Is( byte, charToken ); } );
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
    bool Take( KoInt at, KoInt length, const LineEnds &ends, KoInt firstLine )
    {
        KoInt pending = -1; // where the header that is being collected begins, and where it ends
        KoInt pendingEnd = 0;
        KoInt line = firstLine;
        for ( KoInt next = 0; at < length; at = next ) {
            const KoInt lineEnd = ends.EndOf( line++, text, at, length );
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
        const uint32_t entry = entryOf[contentLengthName];
        return entry ? lines + frag->headers->Entries()[entry - 1].lastLine : nullptr;
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
        const KoInt line = count++;
        lines[line] = { .offset = at, .length = end - at, .next = 0 };
        HeaderEntry *const entry = FindOrAppend( begin, nameLength, line );
        if ( !entry ) {
            return false;
        }
        lines[entry->lastLine].next = line; // of a new entry, its own line's, which is not looked at
        entry->lastLine = line;
        return true;
    }

    /** The entry of a name; null when it is none. */
    HeaderEntry *FindOrAppend( KoInt name, KoInt nameLength, KoInt line )
    {
        const NameId known = RecognizeName( text + name, nameLength );
        if ( known != unknownName ) {
            uint32_t &entry = entryOf[known];
            if ( entry == 0 ) {
                Append( known, 0, 0, line );
                entry = static_cast<uint32_t>( frag->headers->count );
            }
            return frag->headers->Entries() + entry - 1;
        }
        if ( nameLength == 0 || !IsToken( text + name, nameLength ) ) {
            return nullptr;
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
    uint32_t entryOf[knownNameCount] = {}; // for a known name, the position of its entry and 1
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
    if ( !IsUtf8( bytes, length ) ) {
        return {};
    }
    auto decoded = CreateDecodedHead( ends.FilledLines(), length );
    DecodedHead *const head = decoded.Get();
    if ( length > 0 ) {
        memcpy( head->Text(), bytes, static_cast<size_t>( length ) );
    }
    auto frag = CreateFragment( CreateHeaderTable( koIntMin( ends.FilledLines() + 2, 20 ), std::move( decoded ) ) );
    const KoInt lineEnd = ends.EndOf( 0, bytes, 0, length );
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
