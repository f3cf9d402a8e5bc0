/* Messages out of a stream, however it is cut. */
#include "corpus.h"
#include "head_reference.h"

#include <map>

namespace {

using namespace std::string_literals;
using test::Buf;
using test::Own;

constexpr char path[] = "source/tolmo/tolmo_message_stream_decoder.cpp";

class Stream : public test::TolmoFixture {};

/** A decoder, and what it has given. */
class Reader {
public:
    void Write( const std::string &bytes )
    {
        EXPECT_EQ( tolmoMessageStreamDecoderWrite( decoder.Get(), Buf( bytes ).Get() ), !failed );
        Read();
    }
    void Read()
    {
        while ( const auto msg = Own( tolmoMessageStreamDecoderRead( decoder.Get() ) ) ) {
            given += reference::Dump( Own( tolmoMessageFragment( msg.Get() ) ).Get() ) + "\n--\n";
        }
        failed = tolmoMessageStreamDecoderError( decoder.Get() );
    }
    /** Everything that can be seen. */
    [[nodiscard]] std::string State() const
    {
        return given + ( failed ? "failed, " : "" ) + std::to_string( Left() ) + " left";
    }
    [[nodiscard]] KoInt Left() const { return tolmoMessageStreamDecoderLength( decoder.Get() ); }
    [[nodiscard]] TolmoMessageStreamDecoder Get() const { return decoder.Get(); }

private:
    KoRef<TolmoMessageStreamDecoder> decoder = Own( tolmoMessageStreamDecoderCreate() );
    std::string given;
    bool failed = false;
};

std::string StateOfReference( const std::string &bytes )
{
    const reference::Stream stream = reference::DecodeStream( bytes );
    std::string state;
    for ( const reference::Message &message : stream.messages ) {
        state += reference::Dump( message ) + "\n--\n";
    }
    return state + ( stream.error ? "failed, " : "" ) + std::to_string( stream.left ) + " left";
}

std::string StateOf( const std::string &bytes )
{
    Reader reader;
    reader.Write( bytes );
    return reader.State();
}

const std::string ok = "SIP/2.0 200 OK\r\nl: 0\r\n\r\n";
const std::string okDump = "response SIP/2.0 200 OK\nContent-Length=1=0\nbody \n--\n";

TEST_F( Stream, Rows )
{
    const struct {
        std::string bytes, state;
    } rows[] = {
        { "", "0 left" },
        { ok, okDump + "0 left" }, // an empty body, but a body: unlike in a datagram
        { ok + ok, okDump + okDump + "0 left" },
        { "\r\n\r\n" + ok, okDump + "0 left" },
        { "\r\n" + ok + "\r\n\r\n\r\n" + ok + "\r\n", okDump + okDump + "0 left" },
        { "\r", "1 left" }, // may become a pair
        { "\r\n\r", "1 left" },
        { "\r" + ok, "failed, 25 left" }, // a lone CR is the start of a bad head
        { "\n" + ok, "failed, 25 left" },
        { "\r\r\n" + ok, "failed, 27 left" },
        { "SIP/2.0 200 OK\r\nl: 3\r\n\r\nab", "26 left" },
        { "SIP/2.0 200 OK\r\nl: 3\r\n\r\nabc", "response SIP/2.0 200 OK\nContent-Length=1=3\nbody abc\n--\n0 left" },
        { "SIP/2.0 200 OK\r\nl: 2\r\n\r\n\r\n" + ok,
          "response SIP/2.0 200 OK\nContent-Length=1=2\nbody \r\n\n--\n" + okDump + "0 left" }, // a body, no keep-alive
        { "SIP/2.0 200 OK\r\nl: 9223372036854775807\r\n\r\nabc", "45 left" }, // waits, and allots nothing
        { "SIP/2.0 200 OK\r\nl: 9223372036854775808\r\n\r\nabc", "failed, 45 left" },
        { "SIP/2.0 200 OK\r\n\r\n" + ok, "failed, 42 left" }, // Content-Length is needed
        { "SIP/2.0 200 OK\r\nl: x\r\n\r\n", "failed, 24 left" },
        { "SIP/2.0 200 OK\r\nl: -1\r\n\r\n", "failed, 25 left" },
        { "SIP/2.0 200 OK\r\nl:\r\n\r\n", "failed, 22 left" },
        { "SIP/2.0 200 OK\r\nl: 5\r\nl: 0\r\n\r\n",
          "response SIP/2.0 200 OK\nContent-Length=1=5\nContent-Length=1=0\nbody \n--\n0 left" },
        { "l: 0\r\n\r\n", "failed, 8 left" }, // no start line
        { "To: a\r\nl: 0\r\n\r\n", "failed, 15 left" },
        { "x\r\n\r\n", "failed, 5 left" },
        { ok + "x\r\n\r\n" + ok, okDump + "failed, 29 left" }, // what was good is given before
        { "SIP/2.0 200 OK\r\nl: 0\r\n", "22 left" },           // no blank line yet
        { "SIP/2.0 200 OK\r\nTo: \xFF\r\nl: 0\r\n\r\n", "failed, 31 left" },
        { std::string( 1000, 'x' ), "1000 left" }, // a head that never ends is only kept
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( StateOf( row.bytes ), row.state ) << testing::PrintToString( row.bytes );
        EXPECT_EQ( StateOfReference( row.bytes ), row.state ) << "reference: " << testing::PrintToString( row.bytes );
        // Byte by byte, with a read behind each.
        Reader reader;
        for ( const char byte : row.bytes ) {
            if ( tolmoMessageStreamDecoderError( reader.Get() ) ) {
                break;
            }
            reader.Write( std::string( 1, byte ) );
        }
        if ( row.state.find( "failed" ) == std::string::npos ) {
            EXPECT_EQ( reader.State(), row.state );
        } else {
            EXPECT_TRUE( tolmoMessageStreamDecoderError( reader.Get() ) );
        }
    }
}

TEST_F( Stream, OneReadOneMessage )
{
    Reader reader;
    ASSERT_TRUE( tolmoMessageStreamDecoderWrite( reader.Get(), Buf( ok + ok ).Get() ) );
    EXPECT_EQ( reader.Left(), 48 ); // a write decodes nothing
    EXPECT_FALSE( test::IsNull( tolmoMessageStreamDecoderRead( reader.Get() ) ) );
    EXPECT_EQ( reader.Left(), 24 );
    EXPECT_FALSE( test::IsNull( tolmoMessageStreamDecoderRead( reader.Get() ) ) );
    EXPECT_EQ( reader.Left(), 0 );
    EXPECT_TRUE( test::IsNull( tolmoMessageStreamDecoderRead( reader.Get() ) ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderError( reader.Get() ) );
    EXPECT_EQ( tolmoMessageStreamDecoderSpace( reader.Get() ), INT64_MAX );
}

TEST_F( Stream, MessagesAreTheCallers )
{
    Reader reader;
    auto bytes = Buf( "SIP/2.0 200 OK\r\nl: 1\r\n\r\nx" + ok );
    ASSERT_TRUE( tolmoMessageStreamDecoderWrite( reader.Get(), bytes.Get() ) );
    koBufferAppendByte( bytes.Address(), '!' ); // the caller's buffer is its own again
    EXPECT_EQ( reader.Left(), koBufferLength( bytes.Get() ) - 1 );
    auto first = Own( tolmoMessageStreamDecoderRead( reader.Get() ) );
    EXPECT_EQ( test::Count( first.Get() ), 1 );
    EXPECT_EQ( test::Count( Own( tolmoMessageFragment( first.Get() ) ).Get() ), 2 );
    const auto body = Own( tolmoMessageBody( first.Get() ) );
    reader.Read();
    EXPECT_EQ( reader.State(), okDump + "0 left" );
    EXPECT_EQ( test::Bytes( body.Get() ), "x" );
    EXPECT_EQ( test::Bytes( bytes.Get() ).size(), 50u );
}

TEST_F( Stream, WriteForms )
{
    const auto bytes = Buf( "??" + ok + "!!" );
    const KoInt length = koBufferLength( bytes.Get() );
    Reader reader;
    EXPECT_TRUE( tolmoMessageStreamDecoderWriteLeading( reader.Get(), Buf( ok + "!!" ).Get(), length - 4 ) );
    EXPECT_TRUE( tolmoMessageStreamDecoderWriteTrailing( reader.Get(), Buf( "??" + ok ).Get(), length - 4 ) );
    EXPECT_TRUE( tolmoMessageStreamDecoderWriteInner( reader.Get(), bytes.Get(), 2, length - 4 ) );
    EXPECT_TRUE( tolmoMessageStreamDecoderWriteOuter( reader.Get(),
                                                      Buf( ok.substr( 0, 9 ) + "??" + ok.substr( 9 ) ).Get(), 9, 2 ) );
    EXPECT_TRUE( tolmoMessageStreamDecoderWrite( reader.Get(), Buf( "" ).Get() ) );
    EXPECT_TRUE( tolmoMessageStreamDecoderWriteInner( reader.Get(), bytes.Get(), 2, 0 ) );
    reader.Read();
    EXPECT_EQ( reader.State(), okDump + okDump + okDump + okDump + "0 left" );
}

TEST_F( Stream, AFailureIsFinal )
{
    Reader reader;
    reader.Write( "x\r\n\r\n" );
    ASSERT_TRUE( tolmoMessageStreamDecoderError( reader.Get() ) );
    const auto bytes = Buf( ok );
    const TolmoMessageStreamDecoder d = reader.Get();
    EXPECT_FALSE( tolmoMessageStreamDecoderWrite( d, bytes.Get() ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteLeading( d, bytes.Get(), 1 ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteTrailing( d, bytes.Get(), 1 ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteInner( d, bytes.Get(), 1, 1 ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteOuter( d, bytes.Get(), 1, 1 ) );
    // Refused before the other arguments are looked at.
    EXPECT_FALSE( tolmoMessageStreamDecoderWrite( d, nullptr ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteLeading( d, nullptr, 99 ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteTrailing( d, nullptr, 99 ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteInner( d, nullptr, -9, 99 ) );
    EXPECT_FALSE( tolmoMessageStreamDecoderWriteOuter( d, nullptr, -9, 99 ) );
    EXPECT_EQ( tolmoMessageStreamDecoderRead( d ), nullptr );
    EXPECT_EQ( reader.Left(), 5 );
    EXPECT_EQ( tolmoMessageStreamDecoderSpace( d ), INT64_MAX - 5 );
}

/** A decoder that is dropped takes what is in it along: nothing, a head, a head that waits for its body, a failure. */
TEST_F( Stream, DroppedHalfway )
{
    for ( const std::string &bytes : { ""s, "SIP/2.0 2"s, "SIP/2.0 200 OK\r\nl: 9\r\n\r\nabc"s, "x\r\n\r\n"s } ) {
        Reader reader;
        reader.Write( bytes );
    }
}

TEST_F( Stream, Preconditions )
{
    const auto bytes = Buf( "abc" );
    const char decoder[] = "decoder";
    EXPECT_ABORT( tolmoMessageStreamDecoderWrite( nullptr, nullptr ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderWriteLeading( nullptr, nullptr, 9 ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderWriteTrailing( nullptr, nullptr, 9 ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderWriteInner( nullptr, nullptr, 9, 9 ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderWriteOuter( nullptr, nullptr, 9, 9 ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderRead( nullptr ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderError( nullptr ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderLength( nullptr ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderSpace( nullptr ), path, decoder );
    EXPECT_ABORT( tolmoMessageStreamDecoderSort()->free( nullptr ), path, decoder );
    Reader reader;
    EXPECT_ABORT( tolmoMessageStreamDecoderWrite( reader.Get(), nullptr ), "source/runtime/ko_buffer.cpp", "other" );
    EXPECT_ABORT( tolmoMessageStreamDecoderWriteLeading( reader.Get(), bytes.Get(), 4 ), "source/runtime/ko_buffer.cpp",
                  "length >= -1 && length <= koBufferLength( other )" );
    EXPECT_ABORT( tolmoMessageStreamDecoderWriteInner( reader.Get(), bytes.Get(), 4, 0 ),
                  "source/runtime/ko_buffer.cpp", "offset >= 0 && offset <= koBufferLength( other )" );
    EXPECT_EQ( test::Take( tolmoMessageStreamDecoderToString( reader.Get() ) ), "<TOLMO_MESSAGE_STREAM_DECODER>" );
}

/** At most two messages and some line ends, cut in two and in three at every place. */
TEST_F( Stream, EverySplit )
{
    const std::string streams[] = {
        "\r\n" + ok + "\r\n\r\nINVITE sip:a SIP/2.0\r\nl: 6\r\nTo: x\r\n y\r\n\r\nab\r\n\r\n" + ok,
        "SIP/2.0 200 OK\r\nl: 4\r\n\r\n\r\n\r\n\r\n" + ok,
        ok + "\r\nx\r\n\r\n" + ok,
    };
    for ( const std::string &bytes : streams ) {
        const std::string whole = StateOf( bytes );
        EXPECT_EQ( whole, StateOfReference( bytes ) );
        const bool fails = whole.find( "failed" ) != std::string::npos;
        for ( size_t a = 0; a <= bytes.size(); ++a ) {
            for ( size_t b = a; b <= bytes.size(); ++b ) {
                Reader reader;
                for ( const std::string &part :
                      { bytes.substr( 0, a ), bytes.substr( a, b - a ), bytes.substr( b ) } ) {
                    if ( !tolmoMessageStreamDecoderError( reader.Get() ) ) {
                        reader.Write( part );
                    }
                }
                if ( fails ) { // later bytes are not taken any more: fewer are left
                    ASSERT_EQ( reader.State().substr( 0, whole.find( "failed" ) + 6 ),
                               whole.substr( 0, whole.find( "failed" ) + 6 ) );
                } else {
                    ASSERT_EQ( reader.State(), whole ) << a << " " << b;
                }
            }
        }
    }
}

/** corpus_verdicts.tsv tells what the files that are not one good message are as streams. */
TEST_F( Stream, Corpus )
{
    std::map<std::string, std::vector<std::string>> verdicts;
    for ( const auto &row : test::ReadRows( TEST_DATA "/corpus_verdicts.tsv" ) ) {
        verdicts[row.at( 0 )] = row;
    }
    size_t splits = 0;
    size_t both = 0;
    std::string all;
    std::string allState;
    for ( const test::CorpusFile &file : test::Corpus() ) {
        const reference::Stream stream = reference::DecodeStream( file.bytes );
        const std::string end = stream.error ? stream.error : stream.left > 0 ? "incomplete" : "good";
        const auto verdict = verdicts.find( file.path );
        EXPECT_EQ( std::to_string( stream.messages.size() ), verdict == verdicts.end() ? "1" : verdict->second.at( 2 ) )
            << file.path;
        EXPECT_EQ( end, verdict == verdicts.end() ? "good" : verdict->second.at( 3 ) ) << file.path;

        const std::string whole = StateOf( file.bytes );
        EXPECT_EQ( whole, StateOfReference( file.bytes ) ) << file.path;
        if ( !stream.error ) {
            Reader bytewise;
            for ( const char byte : file.bytes ) {
                bytewise.Write( std::string( 1, byte ) );
            }
            EXPECT_EQ( bytewise.State(), whole ) << file.path;
            if ( file.bytes.size() < 500 ) {
                for ( size_t at = 1; at < file.bytes.size(); ++at, ++splits ) {
                    Reader reader;
                    reader.Write( file.bytes.substr( 0, at ) );
                    reader.Write( file.bytes.substr( at ) );
                    ASSERT_EQ( reader.State(), whole ) << file.path << " at " << at;
                }
            }
        }
        // Where a datagram and a stream of one message agree that it is good, they agree on all but the empty body.
        const auto datagram = Own( tolmoMessageTryDecode( Buf( file.bytes ).Get() ) );
        if ( datagram && end == "good" && stream.messages.size() == 1 && file.bytes[0] != '\r' ) {
            ++both;
            std::string dump = reference::Dump( Own( tolmoMessageFragment( datagram.Get() ) ).Get() );
            if ( dump.size() >= 7 && dump.substr( dump.size() - 7 ) == "no body" ) {
                dump = dump.substr( 0, dump.size() - 7 ) + "body ";
            }
            EXPECT_EQ( whole, dump + "\n--\n0 left" ) << file.path;
            all += file.bytes;
            allState += dump + "\n--\n";
        }
    }
    EXPECT_GT( splits, 1000u );
    EXPECT_GT( both, 500u );
    // All of them in one stream.
    EXPECT_TRUE( StateOf( all ) == allState + "0 left" );
}

TEST_F( Stream, LargeShapes )
{
    { // a hundred thousand small messages in one write
        std::string bytes;
        for ( int i = 0; i < 100000; ++i ) {
            bytes += ok;
        }
        Reader reader;
        ASSERT_TRUE( tolmoMessageStreamDecoderWrite( reader.Get(), Buf( bytes ).Get() ) );
        int count = 0;
        while ( !test::IsNull( tolmoMessageStreamDecoderRead( reader.Get() ) ) ) {
            ++count;
        }
        EXPECT_EQ( count, 100000 );
        EXPECT_EQ( reader.Left(), 0 );
    }
    { // a megabyte of line ends in front, with a read for each two bytes and at once
        std::string pairs;
        for ( int i = 0; i < 500000; ++i ) {
            pairs += "\r\n";
        }
        EXPECT_EQ( StateOf( pairs + ok ), okDump + "0 left" );
        Reader reader;
        const auto pair = Buf( "\r\n" );
        for ( int i = 0; i < 500000; ++i ) {
            tolmoMessageStreamDecoderWrite( reader.Get(), pair.Get() );
            ASSERT_EQ( tolmoMessageStreamDecoderRead( reader.Get() ), nullptr );
        }
        EXPECT_EQ( reader.Left(), 0 );
    }
    { // head and body of a megabyte, a byte at a time, with a read behind each
        const std::string megabyte( 500000, 'x' );
        const std::string bytes = "SIP/2.0 200 OK\r\nSubject: " + megabyte + "\r\nl: 500000\r\n\r\n" + megabyte;
        Reader reader;
        std::vector<KoRef<KoBuffer>> single( 256 );
        for ( int byte = 0; byte < 256; ++byte ) {
            single[static_cast<size_t>( byte )] = Buf( std::string( 1, static_cast<char>( byte ) ) );
        }
        for ( const char byte : bytes.substr( 0, bytes.size() - 1 ) ) {
            tolmoMessageStreamDecoderWrite( reader.Get(), single[static_cast<unsigned char>( byte )].Get() );
            ASSERT_EQ( tolmoMessageStreamDecoderRead( reader.Get() ), nullptr );
        }
        reader.Write( "x" );
        EXPECT_EQ( reader.State(), "response SIP/2.0 200 OK\nSubject=500000=" + megabyte +
                                       "\nContent-Length=6=500000\nbody " + megabyte + "\n--\n0 left" );
    }
    { // a megabyte of CR: each of them may begin the end of the head
        Reader reader;
        const std::string crs = "SIP/2.0 200 OK\r\nSubject: " + std::string( 1000000, '\r' );
        reader.Write( crs );
        reader.Write( "\nl: 0\r\n\r\n" );
        EXPECT_EQ( reader.State(), "response SIP/2.0 200 OK\nSubject=999999=" + std::string( 999999, '\r' ) +
                                       "\nContent-Length=1=0\nbody \n--\n0 left" );
    }
}

} // namespace
