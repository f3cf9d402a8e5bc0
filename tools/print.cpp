/* A message as a tree of lines. */
#include "print.hpp"

#include "typed.hpp"

#include <algorithm>
#include <cstdio>

namespace tools {

namespace {

/** True for what acts on a terminal instead of being shown: controls, and what turns the direction of text. */
bool IsControl( KoChar ch )
{
    return ch < 0x20 || ( ch >= 0x7F && ch < 0xA0 ) || ch == 0x200E || ch == 0x200F ||
           ( ch >= 0x2028 && ch <= 0x202E ) || ( ch >= 0x2066 && ch <= 0x2069 );
}

KoRef<KoString> TryDecodeUtf8( KoBuffer bytes )
{
    return KoRef<KoString>::Adopt( koCharsetTryConvertBufferToStringWithFlags( KO_CHARSET_UTF8, bytes, 1 ) );
}

void AppendEscape( std::string &to, const char *format, unsigned value )
{
    char escape[16];
    std::snprintf( escape, sizeof escape, format, value );
    to += escape;
}

} // namespace

std::string Printable( const std::string &text )
{
    const auto bytes =
        KoRef<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( text.data(), static_cast<KoInt>( text.size() ) ) );
    const auto decoded = TryDecodeUtf8( bytes.Get() );
    std::string shown;
    if ( !decoded ) {
        for ( const char ch : text ) {
            const auto byte = static_cast<unsigned char>( ch );
            if ( byte < 0x80 && !IsControl( byte ) ) {
                shown += ch;
            } else {
                AppendEscape( shown, "\\x%02X", byte );
            }
        }
        return shown;
    }
    for ( KoInt i = 0; i < koStringLength( decoded.Get() ); ++i ) {
        const KoChar ch = koStringCharAt( decoded.Get(), i );
        if ( !IsControl( ch ) ) {
            shown += Text( &ch, 1 );
        } else {
            AppendEscape( shown, ch < 0x80 ? "\\x%02X" : "\\u%04X", static_cast<unsigned>( ch ) );
        }
    }
    return shown;
}

namespace {

/** The roles of text, and how each looks. */
struct Style {
    const char *title = "", *name = "", *typed = "", *bad = "", *end = "";
};
constexpr Style plain;
constexpr Style colors = { "\033[1m", "\033[36m", "\033[32m", "\033[31m", "\033[0m" };

void Put( const std::string &line )
{
    std::fwrite( line.data(), 1, line.size(), stdout );
    std::fputc( '\n', stdout );
}

/** True for text: good UTF-8 without controls other than tabs and line ends. */
bool IsText( KoBuffer body )
{
    const auto text = TryDecodeUtf8( body );
    if ( !text ) {
        return false;
    }
    for ( KoInt i = 0; i < koStringLength( text.Get() ); ++i ) {
        const KoChar ch = koStringCharAt( text.Get(), i );
        if ( ( ch < 0x20 && ch != '\t' && ch != '\r' && ch != '\n' ) || ch == 0x7F ) {
            return false;
        }
    }
    return true;
}

std::string StartLine( TolmoMessage msg )
{
    const auto version = KoRef<TolmoVersion>::Adopt( tolmoMessageVersion( msg ) );
    const std::string versionText = Take( tolmoVersionToString( version.Get() ) );
    if ( tolmoMessageIsRequest( msg ) ) {
        return "request   " + Take( tolmoMessageRequestMethod( msg ) ) + " " + Take( tolmoMessageRequestIri( msg ) ) +
               " " + versionText;
    }
    return "response  " + versionText + " " + std::to_string( tolmoMessageResponseStatusCode( msg ) ) + " " +
           Take( tolmoMessageResponseReasonPhrase( msg ) );
}

void PrintHeader( TolmoMessage msg, TolmoMessageHeader header, const Style &style )
{
    const std::string name = Take( tolmoMessageHeaderName( header ) );
    for ( KoInt i = 0; i < tolmoMessageHeaderLinesLength( header ); ++i ) {
        Put( "  " + std::string( style.name ) + name + style.end + ": " +
             Printable( Take( tolmoMessageHeaderLineAt( header, i ) ) ) );
    }
    const std::optional<Typed> typed = DecodeTyped( msg, name );
    if ( !typed ) {
        return;
    }
    if ( !typed->good ) {
        Put( "    " + std::string( style.bad ) + "does not decode as " + name + style.end );
    }
    for ( const std::string &item : typed->items ) {
        Put( "    " + std::string( style.typed ) + "= " + Printable( item ) + style.end );
    }
}

void PrintBody( KoBuffer body )
{
    Put( "  body      " + std::to_string( koBufferLength( body ) ) + " bytes" );
    if ( !IsText( body ) ) {
        return;
    }
    const std::string text = Bytes( body );
    for ( size_t begin = 0; begin < text.size(); ) {
        const size_t end = std::min( text.find( '\n', begin ), text.size() );
        const size_t shown = end > begin && text[end - 1] == '\r' ? end - 1 : end;
        Put( "    | " + Printable( text.substr( begin, shown - begin ) ) );
        begin = end + 1;
    }
}

} // namespace

void PrintMessage( TolmoMessage msg, const std::string &title, bool colored )
{
    const Style &style = colored ? colors : plain;
    Put( style.title + title + style.end );
    Put( "  " + Printable( StartLine( msg ) ) );
    const auto headers = KoRef<KoVector>::Adopt( tolmoMessageHeadersVector( msg ) );
    for ( KoInt i = 0; i < koVectorLength( headers.Get() ); ++i ) {
        const auto obj = KoRef<KoObj>::Adopt( koVectorObjAt( headers.Get(), i ) );
        PrintHeader( msg, tolmoMessageHeaderFrom( obj.Get() ), style );
    }
    if ( const auto body = KoRef<KoBuffer>::Adopt( tolmoMessageBody( msg ) ) ) {
        PrintBody( body.Get() );
    }
}

} // namespace tools
