/* Messages out of files: one as a whole, or a stream of them, read in blocks. */
#include "input.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string_view>
#include <vector>

namespace tools {
namespace {

constexpr size_t blockSize = 64 * 1024;
constexpr size_t shownText = 60;

KoRef<KoBuffer> Buffer( std::string_view bytes )
{
    return KoRef<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( bytes.data(), static_cast<KoInt>( bytes.size() ) ) );
}

class File {
public:
    explicit File( const std::string &path ) : file( path == "-" ? stdin : std::fopen( path.c_str(), "rb" ) )
    {
        error = file ? 0 : errno;
    }
    File( const File & ) = delete;
    File &operator=( const File & ) = delete;
    ~File()
    {
        if ( file && file != stdin ) {
            std::fclose( file );
        }
    }
    /** Why it could not be read, as errno; 0 when it could. */
    [[nodiscard]] int Error() const { return error; }
    /** Appends the next block; false at the end and on an error. */
    bool Read( std::string &to )
    {
        if ( error ) {
            return false;
        }
        const size_t before = to.size();
        to.resize( before + blockSize );
        const size_t count = std::fread( to.data() + before, 1, blockSize, file );
        if ( count < blockSize && std::ferror( file ) ) {
            error = errno;
        }
        to.resize( before + count );
        return count > 0;
    }

private:
    std::FILE *file;
    int error = 0;
};

/** The head at the start of bytes, with the line end of its last line; all of them where no empty line ends it. */
std::string_view Head( std::string_view bytes )
{
    const size_t end = bytes.find( "\r\n\r\n" );
    return end == std::string_view::npos ? bytes : bytes.substr( 0, end + 2 );
}

/** True when a head decodes; its Content-Length is looked at only where it is asked for. */
bool Decodes( std::string_view head, KoInt *contentLength )
{
    const auto buffer = Buffer( head );
    return static_cast<bool>(
        KoRef<TolmoMessageFragment>::Adopt( tolmoMessageFragmentTryDecodeHeaders( buffer.Get(), contentLength ) ) );
}

/** Where the lines of a head end, each with the ones that go on with it. */
std::vector<size_t> LineEnds( std::string_view head )
{
    std::vector<size_t> ends;
    for ( size_t end = head.find( "\r\n" ); end != std::string_view::npos; end = head.find( "\r\n", end + 2 ) ) {
        const size_t next = end + 2;
        if ( next < head.size() && head[next] != ' ' && head[next] != '\t' ) {
            ends.push_back( next );
        }
    }
    ends.push_back( head.size() );
    return ends;
}

/** Where the line begins with which a head ceases to decode. */
size_t FindBadLine( std::string_view head, bool withContentLength )
{
    const std::vector<size_t> ends = LineEnds( head );
    size_t good = 0;          // so many lines decode
    size_t bad = ends.size(); // so many do not
    while ( bad - good > 1 ) {
        const size_t middle = good + ( bad - good ) / 2;
        KoInt contentLength = 0;
        const bool decodes =
            Decodes( head.substr( 0, ends[middle - 1] ), withContentLength ? &contentLength : nullptr );
        ( decodes ? good : bad ) = middle;
    }
    return good == 0 ? 0 : ends[good - 1];
}

/** What is wrong with bytes that begin with a message which was refused. */
Refusal Refuse( std::string_view bytes, int64_t offset, bool stream )
{
    const std::string_view head = Head( bytes );
    const size_t bodyBegin = std::min( head.size() + 2, bytes.size() );
    size_t line = 0;
    const char *reason = nullptr;
    KoInt contentLength = 0;
    if ( !Decodes( head, nullptr ) ) {
        line = FindBadLine( head, false );
        reason = "does not decode";
    } else if ( !Decodes( head, &contentLength ) ) {
        line = FindBadLine( head, true );
        reason = "is no length";
    } else if ( stream && contentLength == -1 ) {
        reason = "begins a message without Content-Length";
    } else if ( !stream && contentLength > static_cast<KoInt>( bytes.substr( bodyBegin ).size() ) ) {
        reason = "begins a message with less body than its Content-Length says";
    } else {
        reason = "is no start line";
    }
    const std::string_view text = bytes.substr( line, bytes.find( "\r\n", line ) - line );
    return { offset + static_cast<int64_t>( line ), std::string( text.substr( 0, shownText ) ), reason };
}

/** True when the start of a file, or all of it, is more than one message, or what a stream of messages begins with. */
bool LooksLikeStream( std::string_view bytes, bool whole )
{
    const auto decoder = KoRef<TolmoMessageStreamDecoder>::Adopt( tolmoMessageStreamDecoderCreate() );
    tolmoMessageStreamDecoderWrite( decoder.Get(), Buffer( bytes ).Get() );
    int messages = 0;
    while ( messages < 2 && KoRef<TolmoMessage>::Adopt( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) {
        ++messages;
    }
    return messages == 2 || ( !tolmoMessageStreamDecoderError( decoder.Get() ) &&
                              !( whole && tolmoMessageStreamDecoderLength( decoder.Get() ) > 0 ) );
}

/** The number of bytes that a stream decoder skips in front of a message: CR LF pairs. */
size_t SkippedLineEnds( std::string_view bytes )
{
    size_t count = 0;
    while ( bytes.substr( count, 2 ) == "\r\n" ) {
        count += 2;
    }
    return count;
}

Outcome ReadDatagram( File &file, std::string bytes, const Events &events )
{
    while ( file.Read( bytes ) ) {
        events.progress( static_cast<int64_t>( bytes.size() ) );
    }
    if ( file.Error() ) {
        return Outcome::unreadable;
    }
    const auto message = KoRef<TolmoMessage>::Adopt( tolmoMessageTryDecode( Buffer( bytes ).Get() ) );
    if ( !message ) {
        events.refusal( Refuse( bytes, 0, false ) );
        return Outcome::refused;
    }
    events.message( message.Get(), 0 );
    return Outcome::good;
}

Outcome ReadStream( File &file, std::string block, const Events &events )
{
    const auto decoder = KoRef<TolmoMessageStreamDecoder>::Adopt( tolmoMessageStreamDecoderCreate() );
    int64_t written = 0;
    std::string kept; // ends with what the decoder has not consumed yet, for the places of messages and refusals
    const auto left = [&] { return static_cast<size_t>( tolmoMessageStreamDecoderLength( decoder.Get() ) ); };
    const auto offset = [&] { return written - static_cast<int64_t>( left() ); };
    do {
        written += static_cast<int64_t>( block.size() );
        kept += block;
        tolmoMessageStreamDecoderWrite( decoder.Get(), Buffer( block ).Get() );
        for ( ;; ) {
            const std::string_view rest = std::string_view( kept ).substr( kept.size() - left() );
            const int64_t begin = offset() + static_cast<int64_t>( SkippedLineEnds( rest ) );
            const auto message = KoRef<TolmoMessage>::Adopt( tolmoMessageStreamDecoderRead( decoder.Get() ) );
            if ( !message ) {
                break;
            }
            events.message( message.Get(), begin );
        }
        kept.erase( 0, kept.size() - left() );
        if ( tolmoMessageStreamDecoderError( decoder.Get() ) ) {
            events.refusal( Refuse( kept, offset(), true ) );
            return Outcome::refused;
        }
        events.progress( written );
        block.clear();
    } while ( file.Read( block ) );
    if ( file.Error() ) {
        return Outcome::unreadable;
    }
    if ( left() > 0 && kept != "\r" ) {
        const std::string text = kept.substr( 0, std::min( kept.find( "\r\n" ), shownText ) );
        events.refusal( { offset(), text, "begins a message that ends too early" } );
        return Outcome::refused;
    }
    return Outcome::good;
}

} // namespace

Outcome ReadMessages( const std::string &path, Framing framing, const Events &events )
{
    File file( path );
    std::string block;
    file.Read( block );
    const bool whole = block.size() < blockSize;
    const bool stream =
        framing == Framing::stream || ( framing == Framing::guessed && LooksLikeStream( block, whole ) );
    const Outcome outcome =
        stream ? ReadStream( file, std::move( block ), events ) : ReadDatagram( file, std::move( block ), events );
    if ( outcome == Outcome::unreadable ) {
        events.unreadable( file.Error() );
    }
    return outcome;
}

} // namespace tools
