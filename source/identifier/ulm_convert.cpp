/* Conversion between URIs and IRIs (RFC 3987, section 3). */
#include <identifier/ulm.h>

#include <address/wen_dns.h>
#include <identifier/ulm_iri.hpp>
#include <runtime/ko_inner.hpp>

namespace ulm {
namespace {

/** Characters that somebody else owns. */
struct Text {
    const KoChar *chs = nullptr;
    KoInt length = 0;

    [[nodiscard]] Text Part( KoInt begin, KoInt end ) const { return { chs + begin, end - begin }; }
};

/** Appends runs of characters and single ones; runs are copied when they end. */
class Output {
public:
    void Add( Text text ) { koStringAppendChars( string.Address(), text.chs, text.length ); }

    /** Appends the escapes of the UTF-8 form of a character that is not ASCII. */
    void AddEscaped( KoChar ch )
    {
        uint8_t bytes[4];
        const KoInt count = koCharsConvertToUtf8( bytes, sizeof bytes, &ch, 1, KO_FALSE );
        KoChar escapes[3 * sizeof bytes];
        for ( KoInt i = 0; i < count; ++i ) {
            escapes[3 * i] = '%';
            escapes[3 * i + 1] = "0123456789ABCDEF"[bytes[i] >> 4];
            escapes[3 * i + 2] = "0123456789ABCDEF"[bytes[i] & 0xF];
        }
        Add( { escapes, 3 * count } );
    }

    [[nodiscard]] Text Written() const { return { ko::Chars( string.Get() ), string.Get()->length }; }
    [[nodiscard]] KoString Leak() { return string.Leak(); }

private:
    KoRef<KoString> string = KoRef<KoString>::Adopt( koStringCreate() );
};

bool IsAscii( KoChar ch )
{
    return ch < 0x80;
}

bool IsAscii( Text text )
{
    for ( KoInt i = 0; i < text.length; ++i ) {
        if ( !IsAscii( text.chs[i] ) ) {
            return false;
        }
    }
    return true;
}

/** What a reader would not see or be misled by: it stays escaped. */
bool IsHidden( KoChar ch )
{
    return ch == 0xA0 || ch == 0x1680 || ( ch >= 0x2000 && ch <= 0x200F ) || ( ch >= 0x2028 && ch <= 0x202F ) ||
           ch == 0x205F || ( ch >= 0x2066 && ch <= 0x2069 ) || ch == 0x3000 || ch == 0xFEFF;
}

/** True when a character stands unescaped in what FromUri gives. */
bool IsShown( KoChar ch )
{
    return IsUcschar( ch ) && !IsHidden( ch );
}

unsigned HexValue( KoChar digit )
{
    return static_cast<unsigned>( digit <= '9' ? digit - '0' : ( digit | 0x20 ) - 'a' + 10 );
}

/** The byte of an escape at a place of a text; what is no byte when there is none. */
unsigned EscapedByte( Text text, KoInt place )
{
    constexpr unsigned noByte = 0x100;
    return IsEscape( text.chs, text.length, place )
               ? HexValue( text.chs[place + 1] ) << 4 | HexValue( text.chs[place + 2] )
               : noByte;
}

/** How many characters of escapes at a place of a text are one character that is to be shown; 0 if they are not. */
KoInt ReadEscaped( Text text, KoInt place, KoChar *ch )
{
    const unsigned lead = EscapedByte( text, place );
    const int bytes = lead >= 0xC2 && lead <= 0xDF   ? 2
                      : lead >= 0xE0 && lead <= 0xEF ? 3
                      : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                     : 0;
    if ( bytes == 0 ) {
        return 0;
    }
    unsigned value = lead & ( 0x7Fu >> bytes );
    for ( int i = 1; i < bytes; ++i ) {
        const unsigned byte = EscapedByte( text, place + 3 * i );
        if ( ( byte & ~0x3Fu ) != 0x80 ) {
            return 0;
        }
        value = value << 6 | ( byte & 0x3F );
    }
    constexpr unsigned leastOfForm[] = { 0, 0, 0x80, 0x800, 0x10000 };
    *ch = static_cast<KoChar>( value );
    return value >= leastOfForm[bytes] && IsShown( *ch ) ? 3 * bytes : 0;
}

/** Appends a text with the escapes of characters to be shown undone; all others are escaped if `escapeOthers` is set. */
void Unescape( Text text, bool escapeOthers, Output &out )
{
    KoInt begin = 0; // of the run that is copied as it is
    for ( KoInt i = 0; i < text.length; ) {
        KoChar ch = text.chs[i];
        KoInt taken = 0;
        if ( ch == '%' ) {
            taken = ReadEscaped( text, i, &ch );
        } else if ( escapeOthers && !IsAscii( ch ) && !IsShown( ch ) ) {
            taken = 1;
        }
        if ( taken == 0 ) {
            ++i;
            continue;
        }
        out.Add( text.Part( begin, i ) );
        if ( taken == 1 ) {
            out.AddEscaped( ch );
        } else {
            out.Add( { &ch, 1 } );
        }
        i += taken;
        begin = i;
    }
    out.Add( text.Part( begin, text.length ) );
}

/** Appends a text with everything escaped that is not ASCII. */
void Escape( Text text, Output &out )
{
    KoInt begin = 0;
    for ( KoInt i = 0; i < text.length; ++i ) {
        if ( !IsAscii( text.chs[i] ) ) {
            out.Add( text.Part( begin, i ) );
            out.AddEscaped( text.chs[i] );
            begin = i + 1;
        }
    }
    out.Add( text.Part( begin, text.length ) );
}

/** The host of an identifier; empty when it has none that is known. */
struct Host {
    KoInt begin = 0;
    KoInt end = 0;
    bool encoded = false; // a label begins with xn--

    Host( const Iri &iri, const KoChar *chs )
    {
        const auto small = [&]( KoInt i ) { return chs[i] | 0x20; };
        const bool sip = ( iri.colon == 3 || ( iri.colon == 4 && small( 3 ) == 's' ) ) && small( 0 ) == 's' &&
                         small( 1 ) == 'i' && small( 2 ) == 'p';
        if ( !sip || iri.secondAt ) {
            return;
        }
        begin = ( iri.at >= 0 ? iri.at : iri.colon ) + 1;
        const auto isEncoded = [&]( KoInt i ) {
            return iri.length - i >= 4 && small( i ) == 'x' && small( i + 1 ) == 'n' && chs[i + 2] == '-' &&
                   chs[i + 3] == '-';
        };
        encoded = isEncoded( begin );
        for ( end = begin; end < iri.length; ++end ) {
            if ( Is( chs[end], charHostMark ) ) {
                if ( chs[end] != '.' ) {
                    break;
                }
                encoded = encoded || isEncoded( end + 1 );
            }
        }
    }
};

/** Appends the Unicode form of a host. */
void AddUnicodeHost( Text host, Output &out )
{
    Output unescaped;
    Unescape( host, false, unescaped );
    Text name = unescaped.Written();
    KoChar ascii[WEN_DNS_NAME_LIMIT];
    KoChar unicode[WEN_DNS_NAME_LIMIT];
    const bool international = !IsAscii( name );
    if ( international ) {
        name = { ascii, wen___DnsIdnaToAscii( name.chs, name.length, ascii ) };
    }
    const Text shown{ unicode, wen___DnsIdnaToUnicode( name.chs, name.length, unicode ) };
    if ( shown.length > 0 ) {
        out.Add( shown );
    } else if ( international && name.length > 0 ) {
        out.Add( name ); // a name of letters that are ASCII in another shape
    } else {
        Unescape( host, true, out );
    }
}

/** The IRI form of an identifier that was read. `same` is the string of the text, or null if there is none. */
KoString ConvertFromUri( const Iri &iri, Text uri, KoString same )
{
    const bool plain = iri.ascii && iri.asciiEscapes;
    if ( plain && !iri.hyphens ) {
        return same ? koStringRetain( same ) : koStringCreateFromCharsCopy( uri.chs, uri.length );
    }
    const Host host( iri, uri.chs );
    if ( plain && !host.encoded ) {
        return same ? koStringRetain( same ) : koStringCreateFromCharsCopy( uri.chs, uri.length );
    }
    Output out;
    Unescape( uri.Part( 0, host.begin ), true, out );
    AddUnicodeHost( uri.Part( host.begin, host.end ), out );
    Unescape( uri.Part( host.end, uri.length ), true, out );
    return out.Leak();
}

} // namespace
} // namespace ulm

KoString ulmTryConvertFromUri( KoString uri )
{
    KO_REQUIRE( uri );
    const ulm::Iri iri = ulm::Read( ko::Chars( uri ), uri->length );
    const bool whole = iri.length > 0 && iri.length == uri->length;
    return whole ? ulm::ConvertFromUri( iri, { ko::Chars( uri ), uri->length }, uri ) : nullptr;
}

KoInt ulm___TakeIri( const KoChar *chs, KoInt length, KoString *taken )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( taken );
    const ulm::Iri iri = ulm::Read( chs, length );
    *taken = iri.length > 0 ? ulm::ConvertFromUri( iri, { chs, iri.length }, nullptr ) : nullptr;
    return iri.length;
}

KoString ulmTryConvertToUri( KoString iri )
{
    KO_REQUIRE( iri );
    const ulm::Text text{ ko::Chars( iri ), iri->length };
    const ulm::Iri read = ulm::Read( text.chs, text.length );
    if ( read.length == 0 || read.length != text.length ) {
        return nullptr;
    }
    if ( read.ascii ) {
        return koStringRetain( iri );
    }
    const ulm::Host host( read, text.chs );
    const ulm::Text name = text.Part( host.begin, host.end );
    ulm::Output out;
    ulm::Escape( text.Part( 0, host.begin ), out );
    KoChar ascii[WEN_DNS_NAME_LIMIT];
    const KoInt length = ulm::IsAscii( name ) ? 0 : wen___DnsIdnaToAscii( name.chs, name.length, ascii );
    if ( length > 0 ) {
        out.Add( { ascii, length } );
    } else {
        ulm::Escape( name, out );
    }
    ulm::Escape( text.Part( host.end, text.length ), out );
    return out.Leak();
}
