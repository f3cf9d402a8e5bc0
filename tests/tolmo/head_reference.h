/*
 * A second decoder of messages, for comparison: it cuts strings into strings, one step after the other, and cares for
 * nothing but being easily seen to be right. It tells why it refuses.
 */
#ifndef HEAD_REFERENCE_H
#define HEAD_REFERENCE_H

#include "tolmo_test.h"

#include <identifier/ulm.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <map>
#include <optional>
#include <utility>

namespace reference {

using std::string;
using Strings = std::vector<string>;

struct Refused {
    const char *why;
};

struct Header {
    string name;
    Strings lines;
};

struct Message {
    string start = "neither"; // "request M IRI NAME/VERSION" or "response NAME/VERSION CODE PHRASE"
    std::vector<Header> headers;
    std::optional<string> body;
};

inline bool IsUtf8( const string &text )
{
    size_t i = 0;
    const auto byte = [&]( size_t at ) { return at < text.size() ? static_cast<unsigned char>( text[at] ) : 0u; };
    while ( i < text.size() ) {
        const unsigned first = byte( i );
        size_t more = 0;
        unsigned value = 0;
        if ( first < 0x80 ) {
            ++i;
            continue;
        }
        if ( first >= 0xC0 && first < 0xE0 ) {
            more = 1;
            value = first & 0x1F;
        } else if ( first >= 0xE0 && first < 0xF0 ) {
            more = 2;
            value = first & 0x0F;
        } else if ( first >= 0xF0 && first < 0xF8 ) {
            more = 3;
            value = first & 0x07;
        } else {
            return false;
        }
        for ( size_t k = 1; k <= more; ++k ) {
            if ( ( byte( i + k ) & 0xC0 ) != 0x80 ) {
                return false;
            }
            value = value * 64 + ( byte( i + k ) & 0x3F );
        }
        const unsigned least[] = { 0, 0x80, 0x800, 0x10000 };
        if ( value < least[more] || value > 0x10FFFF || ( value >= 0xD800 && value <= 0xDFFF ) ) {
            return false;
        }
        i += more + 1;
    }
    return true;
}

/** With at most `maximum` parts (0: any number), of which the last one holds the rest. */
inline Strings Split( const string &text, const string &at, size_t maximum )
{
    Strings parts;
    size_t begin = 0;
    while ( parts.size() + 1 != maximum ) {
        const size_t end = text.find( at, begin );
        if ( end == string::npos ) {
            break;
        }
        parts.push_back( text.substr( begin, end - begin ) );
        begin = end + at.size();
    }
    parts.push_back( text.substr( begin ) );
    return parts;
}

inline string Trim( const string &text )
{
    const size_t begin = text.find_first_not_of( " \t" );
    return begin == string::npos ? "" : text.substr( begin, text.find_last_not_of( " \t" ) + 1 - begin );
}

inline bool IsToken( const string &text )
{
    return !text.empty() && text.find_first_not_of( "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                                                    "!%'*+-._`~" ) == string::npos;
}

inline string Lowered( string text )
{
    std::transform( text.begin(), text.end(), text.begin(),
                    []( char c ) { return c >= 'A' && c <= 'Z' ? static_cast<char>( c + 32 ) : c; } );
    return text;
}

inline string Raised( string text )
{
    std::transform( text.begin(), text.end(), text.begin(),
                    []( char c ) { return c >= 'a' && c <= 'z' ? static_cast<char>( c - 32 ) : c; } );
    return text;
}

/** A whole number with at most a minus sign in front, within 64 bits. */
inline std::optional<long long> Number( const string &text )
{
    const size_t digits = text.substr( 0, 1 ) == "-" ? 1 : 0;
    if ( text.size() == digits || text.find_first_not_of( "0123456789", digits ) != string::npos ) {
        return {};
    }
    errno = 0;
    const long long value = std::strtoll( text.c_str(), nullptr, 10 );
    return errno ? std::nullopt : std::optional( value );
}

/** `NAME/VERSION` in normal form. */
inline std::optional<string> Version( const string &text )
{
    const Strings parts = Split( text, "/", 2 );
    if ( parts.size() < 2 ) {
        return {};
    }
    // Whitespace is for the slash only: none before the name, none behind the version.
    const string name = parts[0].substr( 0, parts[0].find_last_not_of( " \t" ) + 1 );
    const size_t begin = parts[1].find_first_not_of( " \t" );
    const string version = begin == string::npos ? "" : parts[1].substr( begin );
    if ( !IsToken( name ) || !IsToken( version ) ) {
        return {};
    }
    return Raised( name ) + "/" + Lowered( version );
}

inline const std::map<string, string> &CompactForms()
{
    static const std::map<string, string> forms = {
        { "a", "Accept-Contact" },
        { "u", "Allow-Events" },
        { "i", "Call-Id" },
        { "m", "Contact" },
        { "e", "Content-Encoding" },
        { "l", "Content-Length" },
        { "c", "Content-Type" },
        { "o", "Event" },
        { "f", "From" },
        { "y", "Identity" },
        { "n", "Identity-Info" },
        { "r", "Refer-To" },
        { "b", "Referred-By" },
        { "j", "Reject-Contact" },
        { "d", "Request-Disposition" },
        { "x", "Session-Expires" },
        { "s", "Subject" },
        { "k", "Supported" },
        { "t", "To" },
        { "v", "Via" },
    };
    return forms;
}

inline string NormalName( const string &name )
{
    string normal = Lowered( name );
    const auto form = CompactForms().find( normal );
    if ( form != CompactForms().end() ) {
        normal = Lowered( form->second );
    }
    bool capital = true;
    for ( char &c : normal ) {
        const char was = c;
        if ( capital ) {
            c = Raised( string( 1, c ) )[0];
        }
        capital = was == '-';
    }
    return normal;
}

/** Escapes become the characters of their values, which are U+0000 to U+00FF. */
inline string DecodePhrase( const string &text )
{
    string phrase;
    const string digits = "0123456789abcdef";
    for ( size_t i = 0; i < text.size(); ++i ) {
        if ( text[i] == '%' && i + 2 < text.size() ) {
            const size_t high = digits.find( Lowered( text.substr( i + 1, 1 ) ) );
            const size_t low = digits.find( Lowered( text.substr( i + 2, 1 ) ) );
            if ( high != string::npos && low != string::npos ) {
                const size_t value = high * 16 + low;
                if ( value < 0x80 ) {
                    phrase += static_cast<char>( value );
                } else {
                    phrase += static_cast<char>( 0xC0 + value / 64 );
                    phrase += static_cast<char>( 0x80 + value % 64 );
                }
                i += 2;
                continue;
            }
        }
        phrase += text[i];
    }
    return phrase;
}

/** True when the line is a start line. */
inline bool DecodeStartLine( Message &message, const string &line )
{
    const Strings parts = Split( line, " ", 3 );
    if ( parts.size() < 2 ) {
        return false;
    }
    if ( const auto version = Version( parts[0] ) ) {
        const auto code = Number( parts[1] );
        if ( !code || *code < 100 || *code > 999 ) {
            throw Refused{ "status code" };
        }
        message.start = "response " + *version + " " + std::to_string( *code ) + " " +
                        ( parts.size() == 3 ? DecodePhrase( parts[2] ) : "" );
        return true;
    }
    if ( parts.size() < 3 || !IsToken( parts[0] ) ) {
        return false;
    }
    const auto iri = test::Own( ulmTryConvertFromUri( test::Str( parts[1] ).Get() ) );
    if ( !iri ) {
        throw Refused{ "request target" };
    }
    const auto version = Version( parts[2] );
    if ( !version ) {
        throw Refused{ "request version" };
    }
    message.start = "request " + parts[0] + " " + test::Text( iri ) + " " + *version;
    return true;
}

inline void DecodeHeader( Message &message, const string &line )
{
    const Strings parts = Split( line, ":", 2 );
    if ( parts.size() < 2 ) {
        throw Refused{ "header without colon" };
    }
    const string name = Trim( parts[0] );
    if ( !IsToken( name ) ) {
        throw Refused{ "header name" };
    }
    const string normal = NormalName( name );
    auto header = std::find_if( message.headers.begin(), message.headers.end(),
                                [&]( const Header &h ) { return h.name == normal; } );
    if ( header == message.headers.end() ) {
        header = message.headers.insert( header, { normal, {} } );
    }
    header->lines.push_back( Trim( parts[1] ) );
}

/** Throws Refused. `contentLength` may be null. */
inline Message DecodeHead( const string &head, long long *contentLength )
{
    if ( contentLength ) {
        *contentLength = -1;
    }
    if ( !IsUtf8( head ) ) {
        throw Refused{ "no UTF-8" };
    }
    Strings lines = Split( head, "\r\n", 0 );
    Message message;
    if ( DecodeStartLine( message, lines[0] ) ) {
        lines.erase( lines.begin() );
    }
    std::optional<string> pending;
    for ( const string &line : lines ) {
        const bool goesOn = !line.empty() && ( line[0] == ' ' || line[0] == '\t' );
        if ( !goesOn && pending ) {
            DecodeHeader( message, *pending );
            pending.reset();
        }
        const string trimmed = Trim( line );
        if ( !trimmed.empty() ) {
            pending = pending ? *pending + " " + trimmed : trimmed;
        }
    }
    if ( pending ) {
        DecodeHeader( message, *pending );
    }
    if ( contentLength ) {
        for ( const Header &header : message.headers ) {
            if ( header.name == "Content-Length" ) {
                const auto value = Number( header.lines.back() );
                if ( !value || *value < 0 ) {
                    throw Refused{ "Content-Length" };
                }
                *contentLength = *value;
            }
        }
    }
    return message;
}

/** A datagram. Throws Refused. */
inline Message Decode( const string &bytes )
{
    const size_t end = bytes.find( "\r\n\r\n" );
    long long contentLength = -1;
    Message message = DecodeHead( end == string::npos ? bytes : bytes.substr( 0, end + 2 ), &contentLength );
    const string body = end == string::npos ? "" : bytes.substr( end + 4 );
    if ( contentLength > static_cast<long long>( body.size() ) ) {
        throw Refused{ "short body" };
    }
    if ( !body.empty() && contentLength != 0 ) {
        message.body = contentLength < 0 ? body : body.substr( 0, static_cast<size_t>( contentLength ) );
    }
    return message;
}

/** What a stream gives. */
struct Stream {
    std::vector<Message> messages;
    const char *error = nullptr; // why it failed
    size_t left = 0;             // bytes that are still there
};

inline Stream DecodeStream( string bytes )
{
    Stream stream;
    for ( ;; ) {
        while ( bytes.substr( 0, 2 ) == "\r\n" ) {
            bytes.erase( 0, 2 );
        }
        stream.left = bytes.size();
        const size_t end = bytes.find( "\r\n\r\n" );
        if ( end == string::npos ) {
            return stream;
        }
        long long contentLength = -1;
        Message message;
        try {
            message = DecodeHead( bytes.substr( 0, end + 2 ), &contentLength );
        } catch ( const Refused &refused ) {
            stream.error = refused.why;
            return stream;
        }
        if ( contentLength == -1 || message.start == "neither" ) {
            stream.error = contentLength == -1 ? "no Content-Length" : "no start line";
            return stream;
        }
        if ( static_cast<long long>( bytes.size() - end - 4 ) < contentLength ) {
            return stream;
        }
        message.body = bytes.substr( end + 4, static_cast<size_t>( contentLength ) );
        stream.messages.push_back( message );
        bytes.erase( 0, end + 4 + static_cast<size_t>( contentLength ) );
    }
}

/** All that a message holds, as text. */
inline string Dump( const Message &message )
{
    string dump = message.start + "\n";
    for ( const Header &header : message.headers ) {
        for ( const string &line : header.lines ) {
            dump += header.name + "=" + std::to_string( line.size() ) + "=" + line + "\n";
        }
    }
    return dump + ( message.body ? "body " + *message.body : "no body" );
}

/** The same of a fragment, by its getters. */
inline string Dump( TolmoMessageFragment frag )
{
    Message message;
    const auto text = []( KoString s ) { return test::Take( s ); };
    if ( tolmoMessageFragmentIsRequest( frag ) ) {
        const auto version = test::Own( tolmoMessageFragmentVersion( frag ) );
        message.start = "request " + text( tolmoMessageFragmentRequestMethod( frag ) ) + " " +
                        text( tolmoMessageFragmentRequestIri( frag ) ) + " " +
                        text( tolmoVersionToString( version.Get() ) );
    } else if ( tolmoMessageFragmentIsResponse( frag ) ) {
        const auto version = test::Own( tolmoMessageFragmentVersion( frag ) );
        message.start = "response " + text( tolmoVersionToString( version.Get() ) ) + " " +
                        std::to_string( tolmoMessageFragmentResponseStatusCode( frag ) ) + " " +
                        text( tolmoMessageFragmentResponseReasonPhrase( frag ) );
    }
    const auto headers = test::Own( tolmoMessageFragmentHeadersVector( frag ) );
    for ( KoInt i = 0; i < koVectorLength( headers.Get() ); ++i ) {
        const auto obj = test::Own( koVectorObjAt( headers.Get(), i ) );
        const TolmoMessageHeader raw = tolmoMessageHeaderFrom( obj.Get() );
        const auto name = test::Own( tolmoMessageHeaderName( raw ) );
        Header header = { test::Text( name ), {} };
        for ( KoInt k = 0; k < tolmoMessageHeaderLinesLength( raw ); ++k ) {
            header.lines.push_back( text( tolmoMessageHeaderLineAt( raw, k ) ) );
        }
        message.headers.push_back( header );
        // What the name finds is the same.
        const auto found = test::Own( tolmoMessageFragmentHeader( frag, name.Get() ) );
        EXPECT_TRUE( found && tolmoMessageHeaderEquals( found.Get(), raw ) ) << header.name;
    }
    if ( const auto body = test::Own( tolmoMessageFragmentBody( frag ) ) ) {
        message.body = test::Bytes( body.Get() );
    }
    return Dump( message );
}

/** What Decode gives, or that it refuses. */
inline string DumpOfDecode( const string &bytes )
{
    try {
        return Dump( Decode( bytes ) );
    } catch ( const Refused & ) {
        return "refused";
    }
}

/** What tolmoMessageFragmentTryDecode gives, or that it refuses. */
inline string DumpOfTryDecode( const string &bytes )
{
    const auto frag = test::Own( tolmoMessageFragmentTryDecode( test::Buf( bytes ).Get() ) );
    return frag ? Dump( frag.Get() ) : "refused";
}

/** What tolmoMessageFragmentTryDecodeHeaders gives, with the length that it stores. */
inline string DumpOfTryDecodeHeaders( const string &bytes, bool asked )
{
    KoInt contentLength = 0;
    const auto frag =
        test::Own( tolmoMessageFragmentTryDecodeHeaders( test::Buf( bytes ).Get(), asked ? &contentLength : nullptr ) );
    return frag ? std::to_string( contentLength ) + Dump( frag.Get() ) : "refused";
}

inline string DumpOfDecodeHead( const string &bytes, bool asked )
{
    try {
        long long contentLength = 0;
        const Message message = DecodeHead( bytes, asked ? &contentLength : nullptr );
        return std::to_string( contentLength ) + Dump( message );
    } catch ( const Refused & ) {
        return "refused";
    }
}

} // namespace reference

#endif
