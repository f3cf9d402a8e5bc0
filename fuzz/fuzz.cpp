/* What all fuzz targets share. */
#include "fuzz.hpp"

#include <cstdio>
#include <cstdlib>

namespace fuzz {

void Run( Target target, std::string_view input )
{
    static const KoModuleScope started( tolmoModule() );
    const KoInt before = ko___ObjLiveCount();
    target( input );
    CHECK( ko___ObjLiveCount() == before );
}

void Fail( const char *file, int line, const char *expression, const std::string &detail )
{
    std::fprintf( stderr, "%s:%d: %s\n%s\n", file, line, expression, detail.c_str() );
    std::abort();
}

void CheckSame( const char *file, int line, const char *expression, const std::string &a, const std::string &b )
{
    if ( a != b ) {
        Fail( file, line, expression, "  <" + a + ">\n  <" + b + ">" );
    }
}

KoRef<KoString> Str( std::string_view text )
{
    return Own( koStringCreateFromCstr( text.data(), static_cast<KoInt>( text.size() ) ) );
}

std::string Text( KoString s )
{
    if ( !s ) {
        return "(null)";
    }
    const KoInt need = koCharsConvertToUtf8( nullptr, 0, koStringBacking( s ), koStringLength( s ), KO_FALSE );
    std::string text( static_cast<size_t>( need ), '\0' );
    koCharsConvertToUtf8( text.data(), need, koStringBacking( s ), koStringLength( s ), KO_FALSE );
    return text;
}

std::string Take( KoString s )
{
    return Text( Own( s ).Get() );
}

std::string Lower( std::string text )
{
    for ( char &c : text ) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>( c + 32 ) : c;
    }
    return text;
}

std::string TakeBytes( KoBuffer b )
{
    const auto owned = Own( b );
    return b ? std::string( reinterpret_cast<const char *>( koBufferBacking( b ) ),
                            static_cast<size_t>( koBufferLength( b ) ) )
             : "(null)";
}

KoRef<KoBuffer> Buf( std::string_view bytes )
{
    return Own( koBufferCreateFromBytesCopy( bytes.data(), static_cast<KoInt>( bytes.size() ) ) );
}

Exact::Exact( const KoChar *chs, KoInt length ) : chars( new KoChar[static_cast<size_t>( length )] ), count( length )
{
    for ( KoInt i = 0; i < length; ++i ) {
        chars[static_cast<size_t>( i )] = chs[i];
    }
}

KoRef<KoString> StringAt( KoVector v, KoInt index )
{
    return Own( koStringFrom( koVectorObjAt( v, index ) ) );
}

std::vector<std::string_view> Lines( std::string_view input, size_t limit )
{
    std::vector<std::string_view> lines;
    for ( size_t end; lines.size() + 1 < limit && ( end = input.find( '\n' ) ) != std::string_view::npos; ) {
        lines.push_back( input.substr( 0, end ) );
        input.remove_prefix( end + 1 );
    }
    lines.push_back( input );
    return lines;
}

uint8_t Choices::Byte()
{
    const std::string_view next = Bytes( 1 );
    return next.empty() ? 0 : static_cast<uint8_t>( next[0] );
}

std::string_view Choices::Bytes( size_t length )
{
    const std::string_view next = bytes.substr( 0, length );
    bytes.remove_prefix( next.size() );
    return next;
}

uint64_t Hash( std::string_view bytes )
{
    uint64_t hash = 0xcbf29ce484222325U; // FNV-1a
    for ( const char byte : bytes ) {
        hash = ( hash ^ static_cast<uint8_t>( byte ) ) * 0x100000001b3U;
    }
    return hash;
}

std::vector<std::string> TakeLines( TolmoMessageHeader header )
{
    const auto owned = Own( header );
    const std::string name = Take( tolmoMessageHeaderName( header ) );
    const KoInt length = tolmoMessageHeaderLinesLength( header );
    std::vector<std::string> lines;
    for ( KoInt i = 0; i < length; ++i ) {
        lines.push_back( name + ": " + Take( tolmoMessageHeaderLineAt( header, i ) ) );
    }
    return lines;
}

std::string Describe( TolmoMessageFragment frag, bool withContentLength )
{
    const auto version = Own( tolmoMessageFragmentVersion( frag ) );
    std::string text = Take( tolmoMessageFragmentRequestMethod( frag ) ) + "\n" +
                       Take( tolmoMessageFragmentRequestIri( frag ) ) + "\n" +
                       std::to_string( tolmoMessageFragmentResponseStatusCode( frag ) ) + "\n" +
                       Take( tolmoMessageFragmentResponseReasonPhrase( frag ) ) + "\n" +
                       ( version ? Take( tolmo___VersionEncode( version.Get() ) ) : "(null)" ) + "\n";
    const auto headers = Own( tolmoMessageFragmentHeadersVector( frag ) );
    for ( KoInt i = 0; i < koVectorLength( headers.Get() ); ++i ) {
        const auto header = Own( tolmoMessageHeaderFrom( koVectorObjAt( headers.Get(), i ) ) );
        const std::string name = Take( tolmoMessageHeaderName( header.Get() ) );
        if ( withContentLength || name != "Content-Length" ) {
            text += name + "\n";
            for ( const std::string &line : TakeLines( tolmoMessageHeaderRetain( header.Get() ) ) ) {
                text += line + "\r\n";
            }
        }
    }
    return text + "\n" + TakeBytes( tolmoMessageFragmentBody( frag ) );
}

std::string Describe( TolmoMessage msg, bool withContentLength )
{
    return Describe( Own( tolmoMessageFragment( msg ) ).Get(), withContentLength );
}

} // namespace fuzz
