/* Messages in the shapes that cost a careless parser most, in any size: what is promised is measured on them. */
#ifndef SHAPES_H
#define SHAPES_H

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace shapes {

/** The same text `n` times. */
inline std::string Times( size_t n, std::string_view text )
{
    std::string all;
    all.reserve( n * text.size() );
    for ( size_t i = 0; i < n; ++i ) {
        all += text;
    }
    return all;
}

/** A text `n` times, with its number in place of '#': different names and words. */
inline std::string Numbered( size_t n, std::string_view text )
{
    std::string all;
    for ( size_t i = 0; i < n; ++i ) {
        const size_t at = text.find( '#' );
        all += text.substr( 0, at );
        all += std::to_string( i );
        all += text.substr( at + 1 );
    }
    return all;
}

/** A token of 40 characters that has one value under the hash that multiplies by 33, whatever its number is. */
inline std::string Colliding( size_t number )
{
    std::string token;
    for ( int bit = 0; bit < 20; ++bit ) {
        token += ( number >> bit & 1 ) ? "as" : "c1"; // 33 * 'a' + 's' = 33 * 'c' + '1'
    }
    return token;
}

/** n of these tokens, each followed by `end`. */
inline std::string Collisions( size_t n, std::string_view end )
{
    std::string all;
    for ( size_t i = 0; i < n; ++i ) {
        all += Colliding( i );
        all += end;
    }
    return all;
}

/** One header with this value. */
inline std::string Header( std::string_view name, std::string_view value )
{
    return std::string( name ) + ": " + std::string( value ) + "\r\n";
}

/** A list with commas: without the comma behind the last item. */
inline std::string List( std::string items )
{
    items.pop_back();
    return items;
}

struct Shape {
    const char *name;
    bool good; // true when the message decodes
    std::string ( *headers )( size_t n );
};

/** The header lines of hostile messages, with n of what they repeat. */
inline const std::vector<Shape> headerShapes{
    { "lines of one name", true, []( size_t n ) { return Times( n, "x: a\r\n" ); } },
    { "lines of a name that is known", true, []( size_t n ) { return Times( n, "v: SIP/2.0/UDP a\r\n" ); } },
    { "empty lines of a name", true, []( size_t n ) { return Times( n, "v:\r\n" ); } },
    { "lines of a list", true, []( size_t n ) { return Times( n, "Supported: a, b\r\n" ); } },
    { "two names by turns", true, []( size_t n ) { return Times( n, "a: 1\r\nb: 2\r\n" ); } },
    { "names", true, []( size_t n ) { return Numbered( n, "#: a\r\n" ); } },
    { "names of three letters", true,
      []( size_t n ) {
          std::string all;
          for ( size_t i = 0; i < n; ++i ) {
              for ( const size_t place : { size_t{ 900 }, size_t{ 30 }, size_t{ 1 } } ) {
                  all += "abcdefghijklmnopqrstuvwxyz0123"[i / place % 30];
              }
              all += ":\r\n";
          }
          return all;
      } },
    { "names that a weak hash confuses", true, []( size_t n ) { return Collisions( n, ": a\r\n" ); } },
    { "a long name", true, []( size_t n ) { return Header( Times( n, "a" ), "b" ); } },
    { "a long name of hyphens", true, []( size_t n ) { return Header( Times( n, "a-" ), "b" ); } },
    { "a name without colon", false, []( size_t n ) { return Times( n, "a" ) + "\r\n"; } },
    { "lines of blanks", true, []( size_t n ) { return "x: y\r\n" + Times( n, " \r\n" ); } },
    { "folds", true, []( size_t n ) { return "Subject: a" + Times( n, "\r\n b" ) + "\r\n"; } },
    { "blanks", true, []( size_t n ) { return Header( "Subject", "a" + Times( n, " " ) + "b" ); } },
    { "blanks in front", true, []( size_t n ) { return "Subject:" + Times( n, " " ) + "b\r\n"; } },
    { "single carriage returns", true, []( size_t n ) { return Header( "Subject", "a" + Times( n, "\r" ) + "b" ); } },
    { "single line feeds", true, []( size_t n ) { return Header( "Subject", "a" + Times( n, "\n" ) + "b" ); } },
    { "zeros", true, []( size_t n ) { return Header( "Subject", std::string( n, '\0' ) ); } },
    { "a long value", true, []( size_t n ) { return Header( "Subject", Times( n, "a" ) ); } },
    { "a long value that is not ASCII", true, []( size_t n ) { return Header( "Subject", Times( n, "\xC3\xA9" ) ); } },
    { "a byte that is no UTF-8 at the end", false,
      []( size_t n ) { return Header( "Subject", Times( n, "\xC3\xA9" ) + "\xFF" ); } },
    { "digits of a length", true, []( size_t n ) { return Header( "Content-Length", Times( n, "0" ) ); } },
    { "digits of a number", true, []( size_t n ) { return Header( "Max-Forwards", Times( n, "0" ) + "1" ); } },
    { "digits of a number that is too large", true, []( size_t n ) { return Header( "Expires", Times( n, "9" ) ); } },
    { "a long call identifier", true, []( size_t n ) { return Header( "i", Times( n, "a" ) + "@b" ); } },
    { "items", true, []( size_t n ) { return Header( "Route", List( Times( n, "<sip:a>," ) ) ); } },
    { "items with parameters", true,
      []( size_t n ) { return Header( "v", List( Times( n, "SIP/2.0/UDP a;branch=b;c," ) ) ); } },
    { "items that are bad at the end", true,
      []( size_t n ) { return Header( "Route", Times( n, "<sip:a>," ) + "<" ); } },
    { "contacts", true, []( size_t n ) { return Header( "m", List( Times( n, "\"a\" <sip:b>;q=0.5," ) ) ); } },
    { "commas", true, []( size_t n ) { return Header( "Route", Times( n, "," ) ); } },
    { "words", true, []( size_t n ) { return Header( "k", List( Numbered( n, "w#," ) ) ); } },
    { "one word again and again", true, []( size_t n ) { return Header( "Allow", List( Times( n, "ACK," ) ) ); } },
    { "words that a weak hash confuses", true,
      []( size_t n ) { return Header( "Require", List( Collisions( n, "," ) ) ); } },
    { "parameters", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP a" + Numbered( n, ";p#=x" ) ); } },
    { "one parameter again and again", true,
      []( size_t n ) { return Header( "v", "SIP/2.0/UDP a" + Times( n, ";ttl=1" ) ); } },
    { "a known parameter that is bad", true,
      []( size_t n ) { return Header( "v", "SIP/2.0/UDP a" + Times( n, ";ttl=300" ) ); } },
    { "parameters that a weak hash confuses", true,
      []( size_t n ) { return Header( "From", "<sip:a>;" + Collisions( n, ";" ) + "z" ); } },
    { "semicolons", true, []( size_t n ) { return Header( "t", "<sip:a>" + Times( n, ";" ) ); } },
    { "parameters of a header value", true,
      []( size_t n ) { return Header( "Event", "a" + Numbered( n, ";b#=\"c\"" ) ); } },
    { "a quoted string", true, []( size_t n ) { return Header( "f", '"' + Times( n, "a " ) + "\" <sip:a>" ); } },
    { "a quoted string of escapes", true,
      []( size_t n ) { return Header( "f", '"' + Times( n, "\\\"" ) + "\" <sip:a>" ); } },
    { "a quoted string of blanks", true,
      []( size_t n ) { return Header( "f", '"' + Times( n, "  " ) + "\" <sip:a>" ); } },
    { "a quoted string without end", true,
      []( size_t n ) { return Header( "f", '"' + Times( n, "a " ) + "<sip:a>" ); } },
    { "quotes", true, []( size_t n ) { return Header( "m", Times( n, "\"" ) ); } },
    { "quoted strings without end", true, []( size_t n ) { return Header( "m", Times( n, "<sip:a>;b=\"," ) ); } },
    { "warnings", true, []( size_t n ) { return Header( "Warning", List( Times( n, "399 a \"b\"," ) ) ); } },
    { "words of a display name", true, []( size_t n ) { return Header( "f", Times( n, "a " ) + "<sip:a>" ); } },
    { "words of no display name", true, []( size_t n ) { return Header( "f", Times( n, "a " ) + "@" ); } },
    { "comments in comments", true,
      []( size_t n ) { return Header( "Server", Times( n, "(" ) + "a" + Times( n, ")" ) ); } },
    { "comments without end", true, []( size_t n ) { return Header( "Server", Times( n, "(" ) ); } },
    { "comments side by side", true, []( size_t n ) { return Header( "Retry-After", "5 " + Times( n, "()" ) ); } },
    { "products", true, []( size_t n ) { return Header( "User-Agent", List( Times( n, "a/1 " ) ) ); } },
    { "angle brackets", true, []( size_t n ) { return Header( "Refer-To", Times( n, "<" ) ); } },
    { "a bare address with parameters", true,
      []( size_t n ) { return Header( "Refer-To", "sip:a" + Times( n, ";b=c" ) ); } },
    { "a bare address with question marks", true,
      []( size_t n ) { return Header( "Refer-To", "sip:a" + Times( n, "?b=c" ) + "," ); } },
    { "an address in brackets that go on", true,
      []( size_t n ) { return Header( "Refer-To", "<sip:a" + Times( n, ";b" ) ); } },
    { "labels of a host", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP " + Times( n, "a." ) ); } },
    { "hyphens of a host", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP a" + Times( n, "-" ) ); } },
    { "escapes of a host", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP " + Times( n, "%41" ) ); } },
    { "encoded labels", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP " + Times( n, "xn--nxa." ) ); } },
    { "a long encoded label", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP xn--" + Times( n, "9a" ) ); } },
    { "square brackets", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP " + Times( n, "[" ) ); } },
    { "groups of an address", true,
      []( size_t n ) { return Header( "v", "SIP/2.0/UDP [" + Times( n, "1:" ) + ":1]" ); } },
    { "digits of a port", true, []( size_t n ) { return Header( "v", "SIP/2.0/UDP a:" + Times( n, "0" ) + "5" ); } },
    { "escapes of an address", true, []( size_t n ) { return Header( "f", "<sip:" + Times( n, "%C3%A9" ) + "@a>" ); } },
    { "escapes that are cut", true, []( size_t n ) { return Header( "f", "<sip:" + Times( n, "%C3%C3" ) + "@a>" ); } },
    { "characters of an address", true,
      []( size_t n ) { return Header( "f", "<sip:" + Times( n, "\xC3\xA9" ) + "@\xC3\xA9>" ); } },
    { "at signs", true, []( size_t n ) { return Header( "f", "<sip:" + Times( n, "@" ) + ">" ); } },
    { "a long host in an address", true,
      []( size_t n ) { return Header( "f", "<sip:a@" + Times( n, "\xC3\xA9" ) + ">" ); } },
    { "labels in an address", true,
      []( size_t n ) { return Header( "f", "<sip:a@" + Times( n, "xn--nxa." ) + ">" ); } },
    { "runs of an index", true,
      []( size_t n ) { return Header( "History-Info", "<sip:a>;index=1" + Times( n, ".1" ) ); } },
    { "media types", true, []( size_t n ) { return Header( "Accept", List( Times( n, "a/b;q=0.5," ) ) ); } },
    { "reasons", true, []( size_t n ) { return Header( "Reason", List( Times( n, "SIP;cause=200;text=\"a\"," ) ) ); } },
    { "privacy values", true, []( size_t n ) { return Header( "Privacy", List( Numbered( n, "p#;" ) ) ); } },
    { "replaced calls", true,
      []( size_t n ) { return Header( "Replaces", "a" + Times( n, ";to-tag=a;from-tag=b;early-only" ) ); } },
    { "identities", true, []( size_t n ) { return Header( "P-Asserted-Identity", List( Times( n, "sip:a ," ) ) ); } },
    { "numbers with points", true,
      []( size_t n ) { return Header( "Timestamp", Times( n, "1" ) + "." + Times( n, "1" ) ); } },
};

constexpr std::string_view startLine = "OPTIONS sip:a SIP/2.0\r\n";

/** The message with these header lines. */
inline std::string Message( std::string_view headers, std::string_view body = {} )
{
    return std::string( startLine ) + std::string( headers ) + "\r\n" + std::string( body );
}

/** Whole messages, in which something else than the header lines grows. */
struct MessageShape {
    const char *name;
    bool good;
    std::string ( *text )( size_t n );
};

inline const std::vector<MessageShape> messageShapes{
    { "a body", true, []( size_t n ) { return Message( "", Times( n, "a" ) ); } },
    { "a body of line ends", true, []( size_t n ) { return Message( "", Times( n, "\r\n" ) ); } },
    { "a body that is not wanted", true, []( size_t n ) { return Message( "l: 0\r\n", Times( n, "a" ) ); } },
    { "a method", true, []( size_t n ) { return Times( n, "A" ) + " sip:a SIP/2.0\r\n\r\n"; } },
    { "an address", true, []( size_t n ) { return "A sip:" + Times( n, "%C3%A9" ) + " SIP/2.0\r\n\r\n"; } },
    { "a version", true, []( size_t n ) { return "A sip:a SIP/" + Times( n, "2" ) + "\r\n\r\n"; } },
    { "blanks in a start line", false, []( size_t n ) { return "A" + Times( n, " " ) + "\r\n\r\n"; } },
    { "a status code", true, []( size_t n ) { return "SIP/2.0 " + Times( n, "0" ) + "200 OK\r\n\r\n"; } },
    { "a reason phrase", true, []( size_t n ) { return "SIP/2.0 200 " + Times( n, "%41" ) + "\r\n\r\n"; } },
    { "percent signs of a phrase", true, []( size_t n ) { return "SIP/2.0 200 " + Times( n, "%" ) + "\r\n\r\n"; } },
    { "line ends alone", true, []( size_t n ) { return Times( n, "\r\n" ); } },
    { "carriage returns alone", false, []( size_t n ) { return Times( n, "\r" ); } },
};

} // namespace shapes

#endif
