/*
 * Streams: any split into writes, in any of their forms, gives the messages that one write gives, and these are what the
 * datagram decoder makes of the bytes, one message behind the other.
 */
#include "fuzz.hpp"

#include <algorithm>

namespace fuzz {
namespace {

struct Result {
    std::vector<std::string> messages;
    bool error = false;
    KoInt length = 0;
};

void ReadAll( TolmoMessageStreamDecoder decoder, Result &result )
{
    while ( const auto msg = Own( tolmoMessageStreamDecoderRead( decoder ) ) ) {
        CHECK( tolmoMessageHasBody( msg.Get() ) );
        result.messages.push_back( Describe( msg.Get(), true ) );
    }
    CHECK( !tolmoMessageStreamDecoderRead( decoder ) );
    result.error = tolmoMessageStreamDecoderError( decoder ) != KO_FALSE;
    result.length = tolmoMessageStreamDecoderLength( decoder );
    CHECK( tolmoMessageStreamDecoderSpace( decoder ) == INT64_MAX - result.length );
}

// Writes a part of the input in one of the five forms.
bool Write( TolmoMessageStreamDecoder decoder, std::string_view part, uint64_t form )
{
    const auto length = static_cast<KoInt>( part.size() );
    const std::string text( part );
    switch ( form % 5 ) {
    case 0:
        return tolmoMessageStreamDecoderWrite( decoder, Buf( part ).Get() );
    case 1:
        return tolmoMessageStreamDecoderWriteLeading( decoder, Buf( text + "\r\nx" ).Get(), length );
    case 2:
        return tolmoMessageStreamDecoderWriteTrailing( decoder, Buf( "\r\n\r\n" + text ).Get(), length );
    case 3:
        return tolmoMessageStreamDecoderWriteInner( decoder, Buf( "a\r\n" + text + "\r\n" ).Get(), 3, length );
    default:
        return tolmoMessageStreamDecoderWriteOuter(
            decoder, Buf( text.substr( 0, text.size() / 2 ) + "\r\n" + text.substr( text.size() / 2 ) ).Get(),
            length / 2, 2 );
    }
}

// Writes all of the input in parts of at most `most` bytes; reads behind each part, or only at the end.
Result Split( std::string_view input, size_t most, bool readBetween )
{
    const auto decoder = Own( tolmoMessageStreamDecoderCreate() );
    Result result;
    uint64_t random = Hash( input ) | 1;
    while ( !input.empty() ) {
        random = random * 6364136223846793005U + 1442695040888963407U;
        const std::string_view part = input.substr( 0, 1 + ( random >> 33 ) % most );
        input.remove_prefix( part.size() );
        const bool written = Write( decoder.Get(), part, random >> 60 );
        CHECK( written != result.error );
        if ( readBetween ) {
            ReadAll( decoder.Get(), result );
        }
    }
    ReadAll( decoder.Get(), result );
    return result;
}

void CheckSplit( const Result &whole, const Result &split )
{
    CHECK( whole.messages.size() == split.messages.size() );
    for ( size_t i = 0; i < whole.messages.size(); ++i ) {
        CHECK_SAME( whole.messages[i], split.messages[i] );
    }
    CHECK( whole.error == split.error );
    CHECK( whole.error || whole.length == split.length ); // behind an error, writes are refused
}

// True when a head, with the end of its last line, is one that a stream needs: a start line and a Content-Length.
bool IsFramed( std::string_view head )
{
    KoInt contentLength = -1;
    const auto frag = Own( tolmoMessageFragmentTryDecodeHeaders( Buf( head ).Get(), &contentLength ) );
    return frag && contentLength != -1 && !tolmoMessageFragmentIsNeitherRequestNorResponse( frag.Get() );
}

// The messages of a stream are the datagrams that follow one another in it, but for a body that is always there.
void CheckDatagrams( std::string_view input, const Result &whole )
{
    for ( size_t i = 0;; ++i ) {
        while ( input.substr( 0, 2 ) == "\r\n" ) {
            input.remove_prefix( 2 );
        }
        const size_t end = input.find( "\r\n\r\n" );
        const bool framed = end != std::string_view::npos && IsFramed( input.substr( 0, end + 2 ) );
        auto msg = Own( tolmoMessageTryDecode( Buf( input ).Get() ) );
        if ( !framed || !msg ) { // a head that is not complete or not good, or a body that is not complete
            CHECK( i == whole.messages.size() );
            CHECK( whole.error == ( end != std::string_view::npos && !framed ) );
            CHECK( whole.length == static_cast<KoInt>( input.size() ) );
            return;
        }
        if ( !tolmoMessageHasBody( msg.Get() ) ) {
            tolmoMessageSetBody( msg.Address(), Own( koBufferCreate() ).Get() );
        }
        CHECK( i < whole.messages.size() );
        CHECK_SAME( Describe( msg.Get(), true ), whole.messages[i] );
        input.remove_prefix( end + 4 + TakeBytes( tolmoMessageBody( msg.Get() ) ).size() );
    }
}

} // namespace

void StreamTarget( std::string_view input )
{
    const Result whole = Split( input, SIZE_MAX, false );
    CheckSplit( whole, Split( input, 3, true ) );
    CheckSplit( whole, Split( input, 64, false ) );
    CheckSplit( whole, Split( input, 200, true ) );
    if ( input.size() <= 1024 ) {
        CheckSplit( whole, Split( input, 1, true ) );
    }
    CheckDatagrams( input, whole );
}

} // namespace fuzz
