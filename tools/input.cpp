/* Messages out of files: one as a whole, or a stream of them, read in blocks. */
#include "input.hpp"

#include <cstdio>
#include <memory>
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
    explicit File( const std::string &path ) : file( path == "-" ? stdin : std::fopen( path.c_str(), "rb" ) ) {}
    File( const File & ) = delete;
    File &operator=( const File & ) = delete;
    ~File()
    {
        if ( file && file != stdin ) {
            std::fclose( file );
        }
    }
    [[nodiscard]] bool Good() const { return file && !std::ferror( file ); }
    /** Appends the next block; false at the end and on an error. */
    bool Read( std::string &to ) const
    {
        const size_t before = to.size();
        to.resize( before + blockSize );
        const size_t count = std::fread( to.data() + before, 1, blockSize, file );
        to.resize( before + count );
        return count > 0;
    }

private:
    std::FILE *file;
};

/** The head at the start of bytes, with the line end of its last line; all of them where no empty line ends it. */
std::string_view Head( std::string_view bytes )
{
    const size_t end = bytes.find( "\r\n\r\n" );
    return end == std::string_view::npos ? bytes : bytes.substr( 0, end + 2 );
}

/** Where the first line stands with which a head does not decode: a search over the ends of its lines. */
size_t FindBadLine( std::string_view head )
{
    std::vector<size_t> ends;
    for ( size_t end = head.find( "\r\n" ); end != std::string_view::npos; end = head.find( "\r\n", end + 2 ) ) {
        ends.push_back( end + 2 );
    }
    if ( ends.empty() || ends.back() != head.size() ) {
        ends.push_back( head.size() );
    }
    const auto decodes = [&]( size_t lines ) {
        KoInt contentLength = 0;
        const auto head2 = Buffer( head.substr( 0, lines == 0 ? 0 : ends[lines - 1] ) );
        return static_cast<bool>(
            KoRef<TolmoMessageFragment>::Adopt( tolmoMessageFragmentTryDecodeHeaders( head2.Get(), &contentLength ) ) );
    };
    size_t good = 0;          // so many lines decode
    size_t bad = ends.size(); // so many do not
    if ( decodes( bad ) ) {
        return 0; // it is not a line that is wrong
    }
    while ( bad - good > 1 ) {
        const size_t middle = good + ( bad - good ) / 2;
        ( decodes( middle ) ? good : bad ) = middle;
    }
    return good == 0 ? 0 : ends[good - 1];
}

Refusal Refuse( std::string_view bytes, int64_t offset, const char *reason )
{
    const size_t line = FindBadLine( Head( bytes ) );
    const std::string_view text = bytes.substr( line, bytes.find( "\r\n", line ) - line );
    return { offset + static_cast<int64_t>( line ), std::string( text.substr( 0, shownText ) ), reason };
}

/** True when the start of a file, or all of it, is what a stream of messages begins with, or is. */
bool LooksLikeStream( std::string_view bytes, bool whole )
{
    const auto decoder = KoRef<TolmoMessageStreamDecoder>::Adopt( tolmoMessageStreamDecoderCreate() );
    tolmoMessageStreamDecoderWrite( decoder.Get(), Buffer( bytes ).Get() );
    while ( KoRef<TolmoMessage>::Adopt( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) {
    }
    return !tolmoMessageStreamDecoderError( decoder.Get() ) &&
           !( whole && tolmoMessageStreamDecoderLength( decoder.Get() ) > 0 );
}

Outcome ReadDatagram( const File &file, std::string bytes, const Events &events )
{
    while ( file.Read( bytes ) ) {
        events.progress( static_cast<int64_t>( bytes.size() ) );
    }
    if ( !file.Good() ) {
        return Outcome::unreadable;
    }
    const auto message = KoRef<TolmoMessage>::Adopt( tolmoMessageTryDecode( Buffer( bytes ).Get() ) );
    if ( !message ) {
        events.refusal( Refuse( bytes, 0, "is no SIP message" ) );
        return Outcome::refused;
    }
    events.message( message.Get(), 0 );
    return Outcome::good;
}

Outcome ReadStream( const File &file, std::string block, const Events &events )
{
    const auto decoder = KoRef<TolmoMessageStreamDecoder>::Adopt( tolmoMessageStreamDecoderCreate() );
    int64_t written = 0;
    std::string head; // what the decoder has not consumed yet, for the report of a refusal
    const auto left = [&] { return static_cast<size_t>( tolmoMessageStreamDecoderLength( decoder.Get() ) ); };
    do {
        written += static_cast<int64_t>( block.size() );
        head += block;
        tolmoMessageStreamDecoderWrite( decoder.Get(), Buffer( block ).Get() );
        for ( ;; ) {
            const int64_t begin = written - static_cast<int64_t>( left() );
            const auto message = KoRef<TolmoMessage>::Adopt( tolmoMessageStreamDecoderRead( decoder.Get() ) );
            if ( !message ) {
                break;
            }
            events.message( message.Get(), begin );
        }
        head.erase( 0, head.size() - left() );
        if ( tolmoMessageStreamDecoderError( decoder.Get() ) ) {
            events.refusal( Refuse( head, written - static_cast<int64_t>( left() ), "is no message of a stream" ) );
            return Outcome::refused;
        }
        events.progress( written );
        block.clear();
    } while ( file.Read( block ) );
    if ( !file.Good() ) {
        return Outcome::unreadable;
    }
    if ( left() > 0 && head != "\r" ) {
        const int64_t offset = written - static_cast<int64_t>( left() );
        events.refusal( { offset, head.substr( 0, std::min( head.find( "\r\n" ), shownText ) ), "ends too early" } );
        return Outcome::refused;
    }
    return Outcome::good;
}

} // namespace

Outcome ReadMessages( const std::string &path, Framing framing, const Events &events )
{
    const File file( path );
    std::string block;
    if ( !file.Good() || ( !file.Read( block ) && !file.Good() ) ) {
        return Outcome::unreadable;
    }
    const bool whole = block.size() < blockSize;
    const bool stream =
        framing == Framing::stream || ( framing == Framing::guessed && LooksLikeStream( block, whole ) );
    return stream ? ReadStream( file, std::move( block ), events ) : ReadDatagram( file, std::move( block ), events );
}

} // namespace tools
