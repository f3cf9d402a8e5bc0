/* Tests of the skip functions. */
#include "test.h"

#include <tolmo/tolmo_skip.h>

#include <arpa/inet.h>

#include <algorithm>
#include <deque>
#include <random>
#include <set>

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

using Skip = KoInt ( * )( const KoChar *, KoInt );

/** A text in two pieces: what the function takes, and what it leaves. */
struct Row {
    std::string_view taken;
    std::string_view left;
};

using Rows = std::vector<Row>;

struct Function {
    std::string name;
    Skip skip;
    Rows rows;
};

#define SKIP( Element ) "Skip" #Element, tolmo___Skip##Element

/* Wrappers of the functions with more arguments. */

KoInt CharSemi( const KoChar *chs, KoInt length )
{
    return tolmo___SkipChar( chs, length, ';' );
}

KoInt CharHighest( const KoChar *chs, KoInt length )
{
    return tolmo___SkipChar( chs, length, 0x10FFFF );
}

KoInt CharSwsSemi( const KoChar *chs, KoInt length )
{
    return tolmo___SkipCharSws( chs, length, ';' );
}

KoInt SwsCharSemi( const KoChar *chs, KoInt length )
{
    return tolmo___SkipSwsChar( chs, length, ';' );
}

KoInt SwsCharBlank( const KoChar *chs, KoInt length )
{
    return tolmo___SkipSwsChar( chs, length, ' ' );
}

KoInt SwsCharSwsSemi( const KoChar *chs, KoInt length )
{
    return tolmo___SkipSwsCharSws( chs, length, ';' );
}

KoInt CharsOf( const KoChar *chs, KoInt length, std::string_view fixed )
{
    const test::Exact other( fixed );
    return tolmo___SkipChars( chs, length, other.Chars(), other.Length() );
}

KoInt FoldOf( const KoChar *chs, KoInt length, std::string_view fixed )
{
    const test::Exact other( fixed );
    return tolmo___SkipCharsAsciiCaseFold( chs, length, other.Chars(), other.Length() );
}

KoInt CharsComma( const KoChar *chs, KoInt length )
{
    return CharsOf( chs, length, ", " );
}

KoInt CharsRport( const KoChar *chs, KoInt length )
{
    return CharsOf( chs, length, "rport" );
}

KoInt CharsNone( const KoChar *chs, KoInt length )
{
    return tolmo___SkipChars( chs, length, nullptr, 0 );
}

KoInt FoldRport( const KoChar *chs, KoInt length )
{
    return FoldOf( chs, length, "rport" );
}

KoInt FoldCapitals( const KoChar *chs, KoInt length )
{
    return FoldOf( chs, length, "RpOrT" );
}

KoInt FoldInstance( const KoChar *chs, KoInt length )
{
    return FoldOf( chs, length, "+sip.instance" );
}

KoInt FoldEdges( const KoChar *chs, KoInt length )
{
    return FoldOf( chs, length, "`az{" );
}

KoInt FoldKelvin( const KoChar *chs, KoInt length )
{
    return FoldOf( chs, length, "k" );
}

KoInt FoldNonAscii( const KoChar *chs, KoInt length )
{
    return FoldOf( chs, length, "é" );
}

KoInt FoldNone( const KoChar *chs, KoInt length )
{
    return tolmo___SkipCharsAsciiCaseFold( chs, length, nullptr, 0 );
}

KoInt Wkday( const KoChar *chs, KoInt length )
{
    return tolmo___SkipWkday( chs, length, nullptr );
}

KoInt Month( const KoChar *chs, KoInt length )
{
    return tolmo___SkipMonth( chs, length, nullptr );
}

const std::string digits40( 40, '7' );
const std::string letters16( 16, 'x' );
const std::string uuid = "0123456789abcdefghijklmnopqrstuv";

/* Rows of several functions. */

const Rows whitespaceRows = {
    { "", "" },       { " ", "" },  { "   ", "" }, { "\t \t", "a" }, { " ", "\r\n " }, // folds have been joined before
    { "", "\r\n " },  { "", "a " }, { "", "\v" },  { "", "\u00A0" },                   // no blank of ours
    { "", "\u3000" },
};

const Rows tokenRows = {
    { "", "" },
    { "a", "" },
    { "*", "" },
    { "%", "" },
    { "a%zz", "" }, // the percent sign is an ordinary character
    { "-.!%*_+`'~09azAZ", "" },
    { "a.b.", " c" },
    { "", " a" },
    { "", "\ta" },
    { "a", "\"" },
    { "a", "#" },
    { "a", "$" },
    { "a", "&" },
    { "a", "/" },
    { "a", "=" },
    { "a", "?" },
    { "a", "@" },
    { "a", "^" },
    { "a", "{" },
    { "a", "|" },
    { "a", "}" },
    { "a", "(" },
    { "a", ")" },
    { "a", "<" },
    { "a", ">" },
    { "a", ":" },
    { "a", ";" },
    { "a", "," },
    { "a", "[" },
    { "a", "\\" },
    { "a", "]" },
    { "a", "\x7F" },
    { "a", "\0"sv },
    { "a", "\u00E9" },
    { "", "\u00E9" },
    { "a", "\u212A" },
    { "a", "\U0010FFFF" },
};

const Rows nodotRows = {
    { "", "" },  { "a", ".b" },         { "", ".a" },      { "-!%*_+`'~09azAZ", "." },
    { "a", "" }, { "a", "/=?#$&^{|}" }, { "", "\u00E9a" },
};

const Rows dottedRows = {
    { "", "" },      { "a", "" },    { "a.b", "" },  { "presence.winfo", "" }, { "presence", "." },
    { "a", ".." },   { "a", "..b" }, { "a.b", "." }, { "a.b", ".;" },          { "a.b", ". c" },
    { "a.b.c", "" }, { "", ".a" },   { "", "." },    { "!%'*.+-_`~", "@" },    { "a", "/b" },
};

const Rows digitRows = {
    { "", "" },   { "0", "" },      { "007", "" },      { "0123456789", "a" }, { digits40, "" },
    { "", "-5" }, { "", "+5" },     { "", " 5" },       { "5", " 6" },         { "5", ".5" },
    { "", "a" },  { "", "\u0661" }, { "12", "\u0661" },
};

const Rows quotedRows = {
    { "", "" },
    { "", "\"" }, // nothing was wrong yet, but nothing follows either
    { "", "\"a" },
    { "\"\"", "" },
    { "\"a\"", "" },
    { "\"a\"", "b" },
    { "  \"a\"", "b" },
    { "  \"a\"", " " }, // whitespace in front counts, behind it does not
    { "\t \"\"", "\"" },
    { "", "  " },
    { "", "a\"b\"" },
    { "", "\"a\\\"" }, // the last quote is escaped
    { "\"a\\\"\"", "" },
    { "\"\\\\\"", "" },
    { "", "\"a\\" },
    { "", "\"\\" },
    { "\"\\a\"", "" },
    { "\"\\\u00E9\"", "" },
    { "\"\\\0\""sv, "" },
    { "\"\0\x01\t\x1F\x7F\""sv, "x" }, // controls pass unescaped
    { "\"J\u00FCrgen \U0001F600\"", "" },
    { "", "\"a\nb\"" },
    { "", "\"a\rb\"" },
    { "", "\"a\r\n b\"" },
    { "", "\"a\\\nb\"" }, // not even escaped
    { "", "\"a\\\rb\"" },
    { "", "\"a\\\r\nb\"" },
    { "\"a\"", "\n" },
    { "", "\n\"a\"" },
    { "\"<sip:a>;,()'\"", "," },
};

const Rows serverRows = {
    { "", "" },
    { "a", "" },
    { "a/1 b/2 (c)", "" },
    { "a/1 b/2 (c) ", "" }, // the blank belongs to the comment
    { "Foo/1.0 (Linux) ", "Bar" },
    { "(a) ", "(b)" },
    { "(c) ", "x" },
    { "(c) ", "" },
    { "(c)", "x" },
    { "x (c)", "" },
    { "x\t (c)", "" },
    { "a", "(b)" }, // no whitespace between them
    { "a", ",b" },
    { "a / b", "" },
    { "a/ b", "" },
    { "a /b c", "" },
    { "a/b", "/c" },
    { "", "a/" },
    { "", "a/ " },
    { "", "a / (c)" },
    { "", "b a/" },
    { "", "a " }, // something must follow whitespace
    { "", "a\t" },
    { "", "a/1 b/2  " },
    { "", "a ,b" },
    { "", "a (b" },
    { "", " a" },
    { "  (a)", "" }, // a comment brings the whitespace in front of it
    { "", "\u00E9" },
    { "(\u00E9)", "" },
};

const Rows textRows = {
    { "", "" },
    { "a", "" },
    { "a", " " },
    { "a b", "" },
    { "a \t b", "\t " },
    { "", " a" },
    { "", " " },
    { "", "\x7F" },
    { "a", "\x7F" },
    { "a", " \x7F" },
    { "a b", "\x01" },
    { "a", "\n b" },
    { "a", "\0"sv },
    { "\u00C5 \U0001F600 \u00A0 \u0085", "" },
    { "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~", "" },
};

const Rows nameAddrRows = {
    { "", "" },
    { "<sip:a>", "" },
    { "<sip:a> ", "x" },
    { "<sip:a>\t ", "" },
    { " <sip:a>", "" },
    { "\t<sip:a>", "" },
    { "Alice <sip:a>", "" },
    { "Alice<sip:a>", "" },
    { "Alice \t B  <sip:a>", "" },
    { "\"Alice\" <sip:a>", "" },
    { "\"Alice\"<sip:a>", "" },
    { " \"Alice\"  <sip:a>", ",<sip:b>" },
    { "\"\"<sip:a>", "" },
    { "\"J\u00FCrgen\" <sip:a>", "" },
    { "\"a<\\\">\" <sip:a>", "" },
    { "<sip:a;x=1?y=2> ", ",z" },
    { "<sip:bob@[2001:db8::1]:5060>", "" },
    { "<mailto:a@b>", "" }, // nothing looks at the scheme
    { "<http://a/#b>", "" },
    { "<sip:\u00FC@\u4E2D>", "" },
    { "<sip:>", "" },
    { "* <sip:a>", "" },
    { "", " Alice <sip:a>" }, // whitespace in front of a token name
    { "", "J\u00FCrgen <sip:a>" },
    { "", "\"A\" B <sip:a>" },
    { "", "A \"B\" <sip:a>" },
    { "", "Bob Smith" },
    { "", "<sip:a" },
    { "", "<sip:a b>" },
    { "", "<sip:a >" },
    { "", "< sip:a>" },
    { "", "<>" },
    { "", "<a>" },
    { "", "<sip:a\">" },
    { "", "<sip:%4>" },
    { "", "<sip:a#b#c>" },
    { "", "\"Alice <sip:a>" },
    { "", "\"Alice\"" },
    { "", "\"Alice\"sip:a>" },
    { "", "a.b@c <sip:a>" },
    { "", "," },
};

const Rows bareAddrRows = {
    { "sip:a@b", "" },
    { "sip:a@b", ";x=1>" },
    { "sip:a@b,sip:c@d", "" }, // the comma is a character of the address
    { "sip:a@b,", " sip:c@d" },
    { "sip:a@b", " , sip:c@d" },
    { "sip:a?b=c", "" },
    { "sip:", "" },
    { "tel:+1-2", "" },
    { "sip:\u00FC", "" },
    { "sip:a%41", "%4" },
    { "", "a" },
    { "", ":a" },
    { "", "1:a" },
    { "", ";sip:a" },
    { "", " sip:a" },
};

/** The rows of name-addr with parameters behind them. */
const Rows paramsBehindNameAddr = {
    { "<sip:a>;x=1", "" }, { "<sip:a> ; x = 1 ;y", " ,<sip:b>" }, { "<sip:a>;x=\"a,b;c\"", ";" },
    { "<sip:a> ", ";" },   { "A <sip:a>;x=[::1];y", ";z=" },      { "", ";x=1" },
};

const Rows infoRows = {
    { "", "" },
    { "<sip:a>", "" },
    { " <sip:a>", "" },
    { "<sip:a> ", "" },
    { "<http://a/b> ;purpose=icon", ", <sip:b>" },
    { "\t<sip:a>\t;a;b=c", ";" },
    { "", "a <sip:a>" }, // no display name here
    { "", "sip:a" },
    { "", "sip:a>" },
    { "", ";x" },
    { "", "<sip:a" },
    { "", "<>" },
};

const Rows paramsRows = {
    { "", "" },           { "", "a=b" },          { "", ";" },         { "", " ; " },
    { ";a", "" },         { " ; a", " " },        { ";a=1;a=2", "" },  { "; a = b ;c", "" },
    { ";a;b=c", "" },     { ";b", ";a=" },        { "", ";a=" },       { "", ";a=,b" },
    { ";a", ";;b" },      { ";a=b", ";" },        { ";a=b", ";;c" },   { ";a=b", " ;" },
    { ";a=b", "  , ;c" }, { ";a=\"b;c\";d", "" }, { ";a", ";\u00E9" }, { "", ";a=\"b" },
    { ";x=[::1];y", "" },
};

const Rows tokenParamsRows = {
    { "", "" },        { "a", "" },
    { "*", "" },       { "SIP ;cause=200 ;text=\"Call completed elsewhere\"", ", Q.850" },
    { "a;q=0.5", "" }, { "a", " " },
    { "a", ";" },      { "a;b", ";" },
    { "a", ";b=" },    { "a ; b = c", " " },
    { "", ";a" },      { "", "\"a\"" },
    { "", " a" },
};

const Rows tokenOrQuotedRows = {
    { "", "" },        { "unknown", "" }, { "a", "\"b\"" }, { "\"a b\"", "c" },
    { " \"a\"", " " }, { "", " a" },      { "", "\"a" },    { "", ";" },
};

const Rows mediaRows = {
    { "", "" },  { "text", "/plain" }, { "**", "" }, { "*x", "" }, { "x*", "" },
    { "", "*" }, { "", "*/*" },        { "", "* " }, { "", "/" },  { "", " a" },
};

const Rows counterRows = {
    { "", "" }, { "1", "" }, { "12", "" }, { "12", "3" }, { "00", "0" }, { "", "-1" }, { "1", "x2" }, { "", " 1" },
};

const Rows timeRows = {
    { "", "" },      { "1", "" },       { "1.", "" },  { "1.5", "" },  { "54.21 1.5", "" }, { "1.5 2.5", "" },
    { "1 ", "" }, // the whitespace counts, even with no delay behind it
    { "1 \t", "" },  { "1. ", "x" },    { "1 .", "" }, { "1 .5", "" }, { "1 5.", "" },      { "1 2", " 3" },
    { "1.2", ".3" }, { "1 2.3", ".4" }, { "", ".5" },  { "", " 1" },   { "", "-1" },        { "1 ", "-1" },
};

const Rows hostRows = {
    { "", "" },
    { "a", "" },
    { "a.b", "" },
    { "a.b.", "" }, // the dot at the end belongs to the host
    { "a.b.", ":1" },
    { "a.", "-b" },
    { "a.", ".b" },
    { "a.", "." },
    { "a", "-.b" },
    { "ab", "-.cd" },
    { "ab", "--" },
    { "a-b", "" },
    { "a--b", "" },
    { "", ".a" },
    { "", "-a" },
    { "", "-" },
    { "", "." },
    { "a", "_b" }, // an underscore ends a host
    { "my", "_host:5060" },
    { "%41", "" }, // escapes, also in front
    { "%41-%5a.%C3%bC", "" },
    { "a-%41", "" },
    { "a", "%4g" },
    { "a", "%4" },
    { "a", "%" },
    { "a", "-%" },
    { "", "%4" },
    { "example.123", "" }, // the last label may be a number
    { "123", "" },
    { "1.2.3.4", "" },
    { "1.2.3.4x", "" }, // a hostname, and longer than the address in it
    { "1.2.3.4.5", "" },
    { "999.1.2.3", "" },
    { "a", " b" },
    { "a", "\u00E9" },
    { "", "\u00E9" },
    { "A.Example", "/x" },
};

const Rows bracketRows = {
    { "[::1]", "" },
    { "[::1]", ":5060" },
    { "[::]", "" },
    { "[2001:db8::1]", "." },
    { "[1:2:3:4:5:6:7:8]", "" },
    { "[::ffff:1.2.3.4]", "" },
    { "", "[::1" },
    { "", "[" },
    { "", "[]" },
    { "", "[1.2.3.4]" },
    { "", "[::1%25e]" },
    { "", "[ ::1]" },
    { "", "[::1 ]" },
    { "", "[a]" },
    { "", "[1:2:3:4:5:6:7:8:9]" },
    { "", " [::1]" },
};

const Rows hostPortRows = {
    { "host:5060", "" },
    { "host", ":" },
    { "host", ":abc" },
    { "host", " :5060" },
    { "host", ": 5060" },
    { "h:5060", "x" },
    { "[::1]:5060", "" },
    { "a.:1", ":2" },
    { "[::1]", "5060" },

    { "a:99999", "" }, // no bound but that of the number type
    { "a:9223372036854775807", "" },
    { "a", ":9223372036854775808" },
    { "", ":5060" },
};

const Rows portRows = {
    { "", "" },
    { "0", "" },
    { "5060", "" },
    { "5060", "x" },
    { "70000", "" },
    { "9223372036854775807", "" },
    { "", "9223372036854775808" }, // more than a number can hold
    { "00000000000000000000000000005060", "" },
    { "", "-1" },
    { "", " 1" },
    { "", "x" },
};

const Rows ipV4Rows = {
    { "1.2.3.4", "" },  { "1.2.3.4", "x" }, { "1.2.3.4", ".5" }, { "255.255.255.255", "" }, { "0.0.0.0", ";" },
    { "", "" },         { "", "1.2.3" },    { "", "1.2.3." },    { "", "1.2.3.256" },       { "", "1.2.3.x" },
    { "", "01.2.3.4" }, { "", " 1.2.3.4" }, { "", "::1" },
};

const Rows ipV6Rows = {
    { "::", "" },
    { "::1", "" },
    { "::1", "]" },
    { "::1", "%25e" },
    { "2001:db8::1", " " },
    { "1:2:3:4:5:6:7:8", "" },
    { "::ffff:1.2.3.4", "" },
    { "fe80::1", ";x" },
    { "", "" },
    { "", "1" },
    { "", "1.2.3.4" },
    { "", "[::1]" },
    { "", ":" },
    { "", "1:2" },
    { "", "g::" },
    { "", " ::1" },
};

const Rows uriRows = {
    { "sip:a@b;x=1?y=z", "" },
    { "sip:a", ">" },
    { "sip:a", " " },
    { "sip:a", "\"" },
    { "sip:a", "\\" },
    { "a+b-c.d:", "" },
    { "http://[::1]/#f", "#" },
    { "sip:%41", "%4" },
    { "sip:\u00FC\u4E2D", "\u0085" },
    { "", "" },
    { "", "sip" },
    { "", "1a:" },
    { "", "\u00FC:" },
};

const Rows receivedRows = {
    { "received=1.2.3.4", "" },   { "received=::1", ";x" },    { "RECEIVED \t=\t 2001:db8::1", "" },
    { "rEcEiVeD=1.2.3.4", ".5" }, { "received=1.2.3.4", "x" }, // what follows does not matter
};

const Rows notReceivedRows = {
    { "", "" },
    { "", "received" },
    { "", "received=" },
    { "", "received::1" },
    { "", "=::1" },
    { "", "received=host" },
    { "", "received=[::1]" },
    { "", "received=1.2.3.256" },
    { "", "receivedx=::1" },
    { "", " received=::1" },
    { "", "receive=::1" },
    { "", "received;=::1" },
};

const Rows paramRows = {
    { "", "" },
    { "a", "" },
    { "a", "  " }, // whitespace is taken only in front of an equals sign
    { "a", "  b" },
    { "a", "  ;b" },
    { "a=b", "" },
    { "a = b", " " },
    { "a\t=\tb", ";c" },
    { "a=1.2.3.4", ":5" },
    { "a=example.com", "" },
    { "a=a", "@b" },
    { "a=b", "=c" },
    { "a=[::1]", "" },
    { "a=[::1]", ":5060" },
    { "a=\"b c\"", "d" },
    { "a= \"b\"", " " },
    { "a=\"\"", "" },
    { "%zz=%", "" },
    { "", "a=" },
    { "", "a=," },
    { "", "a= ;" },
    { "", "a=\"b" },
    { "", "a=[::1" },
    { "", "a=::1" },
    { "", "a=\u00E9" },
    { "", "=b" },
    { "", ";a" },
    { "", " a" },
    { "", "\"a\"=b" },
    { "", "\u00E9" },
};

const Rows viaRows = {
    { "", "" },
    { "SIP/2.0/UDP a", "" },
    { "SIP/2.0/UDP a", " " },
    { "SIP/2.0/UDP a", " , SIP/2.0/TCP b" },
    { "sip / 2.0 / udp  a : 5060 ; Branch = z", " " },
    { "SIP/2.0/UDP\t[::1]:5060;rport", "" },
    { "SIP/2.0/TLS host.:5061;branch=z9hG4bK-x;ttl=300", ";" },
    { "SIP/2.0/UDP a;received=::1;x", "" },
    { "SIP/2.0/UDP a;received=1.2.3.4", ".5" }, // as a generic parameter it would have passed
    { "SIP/2.0/UDP a;received=host;b", "" },
    { "SIP/2.0/UDP a;received=[::1]", "" },
    { "SIP/2.0/UDP a;received=\"x\"", "" },
    { "SIP/2.0/UDP a ; ttl=1x", "" },
    { "SIP/2.0/UDP a", ";" },
    { "SIP/2.0/UDP a;b", " ; " },
    { "SIP/2.0/UDP a;b", ";rport=" },
    { "SIP/2.0/UDP a", ";;b" },
    { "SIP/2.0/UDP my", "_host:5060" },
    { "SIP/2.0/UDP a:5060", "x" },
    { "SIP/2.0/UDP a:5", " 6" },
    { "SIP/2.0/UDP a", " (c)" },
    { "a/b/c d", "" }, // any three tokens
    { "SIP/2.0/UDP 1.2.3.4x", "" },
    { "", "SIP/2.0/UDPa" }, // whitespace has to stand in front of the host
    { "", "SIP/2.0/UDP[::1]" },
    { "", "/UDP a" },
    { "", "SIP/2.0/UDP :5060" },
    { "", "SIP/2.0/UDP" },
    { "", "SIP/2.0/UDP " },
    { "", "SIP/2.0/UDP a:" },
    { "", "SIP/2.0/UDP a : " },
    { "", "SIP/2.0/UDP a:b" },
    { "", "SIP/2.0/UDP a:;b" },
    { "", "SIP/2.0/UDP a:9223372036854775808" },
    { "", "SIP/2.0/UDP ::1" },
    { "", "SIP/2.0/UDP -a" },
    { "", "SIP/2.0/UDP ;a" },
    { "", "SIP/2.0 UDP a" },
    { "", "SIP//UDP a" },
    { "", "/2.0/UDP a" },
    { "", "SIP/2.0/ a" },
    { "", " SIP/2.0/UDP a" },
};

/** Two tables of rows one behind the other. */
Rows operator+( Rows a, const Rows &b )
{
    a.insert( a.end(), b.begin(), b.end() );
    return a;
}

/** The rows of a separator: a character, with whitespace before it, behind it, or both. */
Rows SeparatorRows( char ch, bool before, bool behind )
{
    static std::deque<std::string> texts; // what the rows look at
    const auto keep = []( const std::string &text ) -> std::string_view { return texts.emplace_back( text ); };
    const std::string s( 1, ch );
    Rows rows = {
        { "", "" },           { "", "  " },      { "", "  x" },      { "", "x" },
        { "", "\r\n" },       { keep( s ), "" }, { keep( s ), "x" }, { keep( s ), keep( s ) },
        { keep( s ), "\n " },
    };
    const auto add = [&]( const std::string &front, const std::string &back, const std::string &left ) {
        if ( !before && !front.empty() ) {
            rows.push_back( { "", keep( front + s + back + left ) } );
        } else if ( behind ) {
            rows.push_back( { keep( front + s + back ), keep( left ) } );
        } else {
            rows.push_back( { keep( front + s ), keep( back + left ) } );
        }
    };
    add( "  ", "", "" );
    add( "\t", "", "x" );
    add( " \t", " \t", s );
    add( "", " \t", "" );
    add( "", "\t ", "x" );
    return rows;
}

const std::vector<Function> &Functions()
{
    static const std::vector<Function> all = {
        { SKIP( Sws ), whitespaceRows },
        { SKIP( Lws ), whitespaceRows }, // by another name; it may be empty

        { "SkipChar( ; )", CharSemi, SeparatorRows( ';', false, false ) },
        { "SkipChar( U+10FFFF )", CharHighest, { { "", "" }, { "\U0010FFFF", "a" }, { "", "a\U0010FFFF" } } },
        { "SkipCharSws( ; )", CharSwsSemi, SeparatorRows( ';', false, true ) },
        { "SkipSwsChar( ; )", SwsCharSemi, SeparatorRows( ';', true, false ) },
        { "SkipSwsChar( SP )", SwsCharBlank, { { "", "" }, { "", "  " } } }, // the whitespace in front takes it
        { "SkipSwsCharSws( ; )", SwsCharSwsSemi, SeparatorRows( ';', true, true ) },
        { "SkipChars( comma blank )",
          CharsComma,
          { { ", ", "01" }, { "", "," }, { "", " ," }, { "", ",\t" }, { "", "" }, { ", ", ", " } } },
        { "SkipChars( rport )", CharsRport, { { "rport", "x" }, { "rport", "" }, { "", "Rport" }, { "", "rpor" } } },
        { "SkipChars( none )", CharsNone, { { "", "" }, { "", "a" } } },
        { "SkipCharsAsciiCaseFold( rport )",
          FoldRport,
          { { "RPORT", "x" }, // a prefix; what follows does not matter
            { "rport", "" },
            { "rPoRt", "=5" },
            { "", "rpor" },
            { "", "" },
            { "", " rport" },
            { "", "rp\u00F6rt" } } },
        { "SkipCharsAsciiCaseFold( RpOrT )", FoldCapitals, { { "rport", "" }, { "RPORT", "al=1" }, { "", "RPOR" } } },
        { "SkipCharsAsciiCaseFold( +sip.instance )",
          FoldInstance,
          { { "+SIP.Instance", "=" },
            { "", "\x0Bsip\x0Einstance" }, // what a fold by one bit would take
            { "", "\x0BSIP.INSTANCE" },
            { "", "+sip\x0Einstance" } } },
        { "SkipCharsAsciiCaseFold( `az{ )",
          FoldEdges,
          { { "`az{", "" }, { "`AZ{", "" }, { "", "@az{" }, { "", "`az[" }, { "", "@AZ[" } } },
        { "SkipCharsAsciiCaseFold( k )", FoldKelvin, { { "K", "" }, { "k", "" }, { "", "\u212A" } } },
        { "SkipCharsAsciiCaseFold( U+E9 )", FoldNonAscii, { { "\u00E9", "" }, { "", "\u00C9" } } },
        { "SkipCharsAsciiCaseFold( none )", FoldNone, { { "", "" }, { "", "a" } } },

        { SKIP( Hcolon ), SeparatorRows( ':', true, true ) },
        { SKIP( Colon ), SeparatorRows( ':', true, true ) },
        { SKIP( Comma ), SeparatorRows( ',', true, true ) },
        { SKIP( Semi ), SeparatorRows( ';', true, true ) },
        { SKIP( Equal ), SeparatorRows( '=', true, true ) },
        { SKIP( Slash ), SeparatorRows( '/', true, true ) },
        { SKIP( Star ), SeparatorRows( '*', true, true ) },
        { SKIP( Lparen ), SeparatorRows( '(', true, true ) },
        { SKIP( Rparen ), SeparatorRows( ')', true, true ) },
        { SKIP( Laquot ), SeparatorRows( '<', true, false ) },
        { SKIP( Raquot ), SeparatorRows( '>', false, true ) },
        { SKIP( Ldquot ), SeparatorRows( '"', true, false ) },
        { SKIP( Rdquot ), SeparatorRows( '"', false, true ) },

        { SKIP( Token ), tokenRows },
        { SKIP( TokenNodot ), nodotRows },
        { SKIP( Atom ), nodotRows },
        { SKIP( DotAtom ), dottedRows },
        { SKIP( Word ),
          { { "", "" },
            { "a\"<>b", "" },
            { "-.!%*_+`'~()<>:\\\"/[]?{}09azAZ", "@x" },
            { "", "@" },
            { "a", "=" },
            { "a", "#" },
            { "a", " b" },
            { "a", "," },
            { "a", ";" },
            { "a", "\u00E9" } } },
        { SKIP( Digits ), digitRows },
        { SKIP( QuotedString ), quotedRows },
        { SKIP( Comment ),
          { { "", "" },
            { "()", "" },
            { "(a(b)c)", "" },
            { "(a(b)c) ", "" }, // whitespace on both sides counts
            { " \t(a)\t ", "x" },
            { "( ( ) ( ) ) ", "(" },
            { "(())", ")" },
            { "(a) ", "(b)" },
            { "", "(a" },
            { "", "(" },
            { "", "( " },
            { "", "((a)" },
            { "", "a" },
            { "", ")" },
            { "", "  " },
            { "(\\))", "" },
            { "(\\()", "" },
            { "(\\\\)", "" },
            { "", "(\\)" }, // the escape ate the bracket
            { "", "(\\" },
            { "", "(a\\" },
            { "(\\\0)"sv, "" }, // an escaped control passes ...
            { "(\\\x7F)", "" },
            { "(\\\t)", "" },
            { "(\\\u00E9)", "" },
            { "", "(\0)"sv }, // ... and a bare one does not
            { "", "(\x01)" },
            { "", "(\x7F)" },
            { "", "(a\r)" },
            { "", "(a\n)" },
            { "", "(\\\r)" },
            { "", "(\\\n)" },
            { "", "(\r\n )" },
            { "(\t)", "" },
            { "(\u00E9 \U0010FFFF \u0085)", "" },
            { "(\"')", "" }, // quotes mean nothing here
            { "(\")", "\")" } } },

        { SKIP( DomainLabel ),
          { { "", "" },
            { "ab", "--" },
            { "a-b", "" },
            { "a", "-" },
            { "a", "-.b" },
            { "", "-a" },
            { "123", ".4" },
            { "%41", "" },
            { "a-%41", "-" },
            { "a", "%4g" },
            { "a", "%4" },
            { "a", "%" },
            { "", "%4" },
            { "", "%zz" },
            { "a%41%5Ab", "%" },
            { "a", "_b" },
            { "", "." },
            { "a", "\u00E9" } } },
        { SKIP( Hostname ), hostRows + Rows{ { "", "[::1]" } } },
        { SKIP( IpV4Address ), ipV4Rows },
        { SKIP( IpV6Address ), ipV6Rows },
        { SKIP( IpV6Reference ), bracketRows },
        { SKIP( Host ), hostRows + bracketRows },
        { SKIP( Port ), portRows },
        { SKIP( HostPort ), hostPortRows },
        { SKIP( User ),
          { { "", "" },
            { "a", "%4" },
            { "a%41b", "" },
            { "-_.!~*'()&=+$,;?/09azAZ", "@host" },
            { "a", ":pw" },
            { "a", "[" },
            { "a", "%" },
            { "", "%zz" },
            { "", "@" },
            { "a", "\u00E9" },
            { "a", " " } } },
        { SKIP( Password ),
          { { "", "" },
            { "-_.!~*'()&=+$,09azAZ", "@" },
            { "a", ";" },
            { "a", "?" },
            { "a", "/" },
            { "a", ":" },
            { "%41", "%4" },
            { "a", "%g1" } } },
        { SKIP( Uric ),
          { { "", "" },
            { ";/?:@&=+$,-_.!~*'()09azAZ%00", "" },
            { "a", "[" },
            { "a", "#" },
            { "a", "%" },
            { "a", "%1" },
            { "a", "<" },
            { "", "\u00E9" } } },
        { SKIP( Pvalue ),
          { { "", "" },
            { "[]/:&+$-_.!~*'()09azAZ%fF", "" },
            { "a", "=" },
            { "a", ";" },
            { "a", "?" },
            { "a", "@" },
            { "a", "," },
            { "a", "%f" } } },
        { SKIP( Uri ), uriRows + Rows{ { "sip:a;b", "" } } },
        { SKIP( AddrSpec ),
          bareAddrRows + Rows{ { "", "" }, { "", "<sip:a;x>" }, { "http://a/#b", "#c;d" }, { "sip:a", "\t;b" } } },
        { SKIP( NameAddr ), nameAddrRows + Rows{ { "", "sip:a" }, { "<sip:a>", ";x=1" } } },
        { SKIP( DisplayName ),
          { { "", "" },
            { "Bob", "" },
            { "Bob  Smith ", "" },
            { "Bob \t Smith ", "<sip:a>" },
            { "\"Bob\"", " <sip:a>" },
            { "  \"Bob\"", "\"Smith\"" },
            { "\"\"", "" },
            { "Bob ", "\"Smith\"" },
            { "Bob", ":x" },
            { "", " Bob" },
            { "", "\"Bob" },
            { "", "<sip:a>" },
            { "", "\u00FCrgen" },
            { "J", "\u00FCrgen" },
            { "*", "" } } },

        { SKIP( Branch ), tokenRows },
        { SKIP( CallId ),
          { { "", "" },
            { "abc", "" },
            { "abc@def", "" },
            { "a@b", "@c" },
            { "a\"<>b", "" },
            { "a<(:@[\\]{}", " " },
            { "a", " @b" },
            { "a", ",b" },
            { "", "abc@" },
            { "", "a@@b" },
            { "", "a@ b" },
            { "", "@b" },
            { "", "\u00E9" } } },
        { SKIP( ContentCoding ), tokenRows },
        { SKIP( DeltaSeconds ), digitRows },
        { SKIP( DispositionType ), tokenRows },
        { SKIP( EmParam ), tokenRows },
        { SKIP( Epid ),
          { { "", "" },
            { letters16, "" },
            { letters16, "x" },
            { std::string_view( letters16 ).substr( 1 ), "@" },
            { std::string_view( letters16 ).substr( 1 ), "@x" },
            { "", "@" },
            { "a.b", " " } } },
        { SKIP( EventReasonValue ), tokenRows },
        { SKIP( EventType ), dottedRows },
        { SKIP( Handling ), tokenRows },
        { SKIP( MediaSubtype ), mediaRows },
        { SKIP( MediaType ), mediaRows },
        { SKIP( MessageHeaderName ), tokenRows },
        { SKIP( Method ), tokenRows },
        { "SkipMonth",
          Month,
          { { "", "" },
            { "", "De" },
            { "Jan", "" },
            { "Dec", "em" },
            { "", "dec" },
            { "", "DEC" },
            { "", " Dec" },
            { "", "anF" },
            { "", "D\u00E9c" } } },
        { SKIP( OptionTag ), tokenRows },
        { SKIP( Organization ), textRows },
        { SKIP( PriorityValue ), tokenRows },
        { SKIP( PrivValue ), tokenRows },
        { SKIP( ProtocolName ), tokenRows },
        { SKIP( ProtocolVersion ), tokenRows },
        { SKIP( Pseudonym ), tokenRows },
        { SKIP( Purpose ), tokenRows },
        { SKIP( Qvalue ), { { "", "" },       { "0", "" },      { "1", "" },     { "0.", "" },   { "1.", "" },
                            { "0.5", "" },    { "0.123", "4" }, // it stops, and does not fail
                            { "1.000", "0" }, { "1.", "5" },    { "1.00", "1" }, { "0", "0" },   { "0", "1" },
                            { "1", "0" },     { "0.", "x" },    { "0.1", " " },  { "0.", "-1" }, { "0", " .5" },
                            { "", ".5" },     { "", "2" },      { "", " 1" },    { "", "-0" } } },
        { SKIP( Refresher ),
          { { "", "" },
            { "uac", "" },
            { "UAS", "" },
            { "uAc", "x" }, // what follows does not matter
            { "uas", "uac" },
            { "", "ua" },
            { "", "uax" },
            { "", " uac" } } },
        { SKIP( Rvalue ),
          { { "", "" },
            { "wps.1", "" },
            { "a.b", ".c" },
            { "a.b", " " },
            { "", "wps" },
            { "", "wps." },
            { "", ".1" },
            { "", "a..b" },
            { "", "a .b" } } },
        { SKIP( Server ), serverRows },
        { SKIP( ServerVal ),
          { { "", "" },
            { "a", "" },
            { "a/1", "" },
            { "a / 1", " " },
            { "a", " b" },
            { "a/1", "/2" },
            { "(c) ", "a" },
            { "a", "(c)" },
            { "", "a/" },
            { "", "a/(c)" },
            { "", "/1" },
            { "", "(c" },
            { "", " a" } } },
        { SKIP( SessUuid ),
          { { "", "" },
            { uuid, "" },
            { uuid, "w" }, // what follows does not matter
            { "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", ";" },
            { "", "0123456789abcdefghijklmnopqrstu" },
            { "", "0123456789abcdefghijklmnopqrstu;" },
            { "", "0123456789abcdefghijklmnopqrstuV" },
            { "", "Z123456789abcdefghijklmnopqrstuv" },
            { "", "0123456789abcde-ghijklmnopqrstuv" } } },
        { SKIP( SipCleanMsgId ),
          { { "", "" },
            { "a@b", "" },
            { "a.b@c.d", ">" },
            { "a@[::1]", "" },
            { "a@b.", "" },  // the host is longer here ...
            { "a@b_c", "" }, // ... and the dot-atom here
            { "a@b_c", "." },
            { "a@%41", "" },
            { "", "a@" },
            { "", "a@@" },
            { "", "a" },
            { "", "@b" },
            { "", "a.@b" },
            { "", "a @b" },
            { "", "a[::1]" },
            { "", "a@[::1" } } },
        { SKIP( SipInstance ),
          { { "", "" },
            { "<urn:uuid:00000000-0000-1000-8000-000A95A0E128>", "\"" },
            { "<a>", ">" },
            { "<%3E>", "" },
            { "<;/?:@&=+$,->", "" },
            { "", "<>" },
            { "", "<a b>" },
            { "", "<a" },
            { "", "<a%4>" },
            { "", "<a%>" },
            { "", " <a>" },
            { "", "a>" },
            { "", "<\u00E9>" },
            { "", "<a<b>" } } },
        { SKIP( Subject ), textRows },
        { SKIP( SubstateValue ), tokenRows },
        { SKIP( Tag ), tokenRows },
        { SKIP( TimestampValue ), timeRows },
        { SKIP( Transport ), tokenRows },
        { SKIP( Ttl ), digitRows },
        { SKIP( UserAgent ), serverRows },
        { "SkipWkday",
          Wkday,
          { { "", "" },
            { "", "Mo" },
            { "Mon", "" },
            { "Mon", "d" },
            { "Sun", "," },
            { "", "mon" },
            { "", "MON" },
            { "", " Mon" },
            { "", "onT" } } },

        { SKIP( GenericParam ), paramRows },
        { SKIP( GenericParams ), paramsRows },

        { SKIP( Accept ), // what it counts stands in a test of its own
          { { "", "" },
            { "", "text/plain" },
            { "", "*/*" },
            { "", "text/*" },
            { "", "*/plain;a" },
            { "", "*/plain" },
            { "", "*" },
            { "", "text" },
            { "", "text/" },
            { "", "/plain;a" },
            { "", "text;a" },
            { "", "text/plain;" },
            { "", "text/plain;a=" } } },
        { SKIP( AcceptEncoding ), tokenParamsRows },
        { SKIP( AlertInfo ), infoRows },
        { SKIP( CallInfo ), infoRows },
        { SKIP( Contact ), nameAddrRows + paramsBehindNameAddr +
                               Rows{ { "sip:a@b", "" },
                                     { "sip:a@b;q=1", ",sip:c@d" },
                                     { "sip:a@b,sip:c@d", "" }, // the comma is a character of the address
                                     { "sip:a@b,", " sip:c@d" },
                                     { "sip:a@b", " , sip:c@d" },
                                     { "sip:c@d,", " sip:a@b;q=1" },
                                     { "sip:a ; x = 1", " ;" },
                                     { "sip:a", ";" },
                                     { "sip:a", ";x=" },
                                     { "*foo <sip:a>", "" },
                                     { "", "*" },
                                     { "", "a" },
                                     { "", ";x" } } },
        { SKIP( Diversion ), nameAddrRows + paramsBehindNameAddr + Rows{ { "", "sip:a" } } },
        { SKIP( DiversionCounter ), counterRows },
        { SKIP( DiversionLimit ), counterRows },
        { SKIP( DiversionPrivacy ), tokenOrQuotedRows },
        { SKIP( DiversionReason ), tokenOrQuotedRows },
        { SKIP( DiversionScreen ), tokenOrQuotedRows },
        { SKIP( ErrorInfo ), infoRows },
        { SKIP( HistoryInfo ), nameAddrRows + paramsBehindNameAddr + Rows{ { "", "sip:a" } } },
        { SKIP( HistoryInfoIndex ), { { "", "" },        { "0", "" },      { "1.2.3", "" },
                                      { "0.1", "" },     { "1.0", "" },    { "0.10.3", "" },
                                      { "10.2.33", "" }, { "1.2", "x" }, // a good index with something behind it
                                      { "1", " .2" },    { digits40, "" }, { "", "00" },
                                      { "", "01" },      { "", "1.02" }, // one bad number voids all
                                      { "", "1.00" },    { "", "1." },     { "", "1.x" },
                                      { "", "1.2.x" },   { "", "1..2" },   { "", ".1" },
                                      { "", "-1" },      { "", "x" } } },
        { SKIP( IdentityValue ), nameAddrRows + bareAddrRows },
        { SKIP( InfoPackageType ), tokenParamsRows },
        { SKIP( Reason ), tokenParamsRows },
        { SKIP( ReasonCause ), digitRows },
        { SKIP( ReasonProtocol ), tokenRows },
        { SKIP( ReasonText ), quotedRows },
        { SKIP( Route ), nameAddrRows + paramsBehindNameAddr + Rows{ { "", "sip:a" } } },
        { SKIP( UuiValue ),
          { { "", "" },
            { "56a390f3", "" },
            { "56a390f3 ; encoding = hex;purpose=x", " ," },
            { "\"abc\";encoding=hex", "" },
            { " \"a\"", " " },
            { "a", ";" },
            { "a;b", " ; " },
            { "a;b", ";c=" },
            { "a", "\"b\"" },
            { "", ";a" },
            { "", "\"a" },
            { "", " a" } } },
        { SKIP( Version ),
          { { "", "" },
            { "SIP/2.0", "" },
            { "SIP / 2.0", " " },
            { "SIP\t/2.0", "" },
            { "HTTP/1.1", " 200" },
            { "a/b", "/c" },
            { "", "SIP" },
            { "", "SIP/" },
            { "", "SIP/ " },
            { "", "/2.0" },
            { "", " SIP/2.0" } } },
        { SKIP( Via ), viaRows },
        { SKIP( ViaParams ), receivedRows + paramRows +
                                 Rows{ { "received", "" },
                                       { "received=host", "" },
                                       { "received=[::1]", "" },
                                       { "received=1.2.3.256", "" },
                                       { "received=\"x\"", "" },
                                       { "receivedx=1", "" },
                                       { "receive", "" },
                                       { "", "received=" },
                                       { "", "receivedx=::1" } } },
        { SKIP( ViaReceived ), receivedRows + notReceivedRows },
        { SKIP( WarnAgent ),
          { { "", "" },
            { "host:5060", "" },
            { "host", ":" },
            { "[::1]:5060", " " },
            { "a", "_b" }, // the host goes first, though a_b is a token
            { "_a.b", "" },
            { "-a", ":5060" },
            { "%4", " " },
            { "", ":5060" },
            { "", "\"a\"" },
            { "", "[::1" } } },
        { SKIP( WarnCode ),
          { { "", "" },
            { "399", "" },
            { "000", " " },
            { "399", "x" },
            { "", "3991" },
            { "", "39" },
            { "", "39 9" },
            { "", "x99" },
            { "", " 399" } } },
        { SKIP( WarnText ), quotedRows },
        { SKIP( WarningValue ),
          { { "", "" },
            { "399 a \"x\"", "" },
            { "399\t a:5060  \"x\"", " , 300" },
            { "300 [::1] \"\"", "" },
            { "399 _a \"x\"", "" },
            { "", "399 a_b \"x\"" },
            { "", "3991 a \"x\"" },
            { "", "39 a \"x\"" },
            { "", "399a \"x\"" },
            { "", "399 a\"x\"" },
            { "", "399 a" },
            { "", "399 a " },
            { "", "399 a x" },
            { "", "399 a \"x" },
            { "", "399  \"x\"" },
            { "", " a \"x\"" },
            { "", " 399 a \"x\"" } } },
    };
    return all;
}

std::u32string Wide( std::string_view text )
{
    const test::Exact exact( text );
    return { reinterpret_cast<const char32_t *>( exact.Chars() ), static_cast<size_t>( exact.Length() ) };
}

std::string Shown( std::u32string_view text )
{
    std::string shown;
    for ( const char32_t ch : text ) {
        shown += ch >= 0x20 && ch < 0x7F ? std::string( 1, static_cast<char>( ch ) ) : "<" + std::to_string( ch ) + ">";
    }
    return shown;
}

KoInt Apply( Skip skip, std::u32string_view text )
{
    return skip( reinterpret_cast<const KoChar *>( text.data() ), static_cast<KoInt>( text.size() ) );
}

class SkipTest : public test::Fixture {};

TEST_F( SkipTest, Rows )
{
    for ( const Function &f : Functions() ) {
        for ( const Row &row : f.rows ) {
            const std::string whole = std::string( row.taken ) + std::string( row.left );
            const test::Exact text( whole );
            EXPECT_EQ( f.skip( text.Chars(), text.Length() ), static_cast<KoInt>( Wide( row.taken ).size() ) )
                << f.name << " of " << Shown( Wide( whole ) );
        }
    }
}

TEST_F( SkipTest, AcceptCountsTheParametersAlone )
{
    const struct {
        const char *text;
        KoInt expected;
    } rows[] = {
        { "text/plain;q=1", 4 },
        { "text/plain ; q = 1 ", 8 },
        { "*/*;a", 2 },
        { "text/*;a;b=c", 6 },
        { "** / *x;a", 2 },
        { "text/plain;a;", 2 },
        { "text/plain;a,*/*;bc", 2 },
        { "*/plain;a", 0 },
        { "*/**;a", 0 },
        { "*/;a", 0 },
        { "text/;a", 0 },
        { "/*;a", 0 },
        { "/plain;a", 0 },
        { "text/plain", 0 },
    };
    for ( const auto &row : rows ) {
        const test::Exact text( row.text );
        EXPECT_EQ( tolmo___SkipAccept( text.Chars(), text.Length() ), row.expected ) << row.text;
    }
}

TEST_F( SkipTest, NullIsAnEmptyText )
{
    for ( const Function &f : Functions() ) {
        EXPECT_EQ( f.skip( nullptr, 0 ), 0 ) << f.name;
    }
}

/**
 * Every function on every beginning of every row, in a block that ends where the text ends: the result lies in the
 * text, and the characters that were taken are the element by themselves. That does not hold of Accept, whose result is
 * not the length of its element.
 */
TEST_F( SkipTest, EveryFunctionOnEveryBeginningOfEveryRow )
{
    std::set<std::string> texts;
    for ( const Function &f : Functions() ) {
        for ( const Row &row : f.rows ) {
            texts.insert( std::string( row.taken ) + std::string( row.left ) );
        }
    }
    std::set<std::u32string> beginnings;
    for ( const std::string &text : texts ) {
        const std::u32string wide = Wide( text );
        for ( size_t count = 0; count <= wide.size(); ++count ) {
            beginnings.insert( wide.substr( 0, count ) );
        }
    }
    EXPECT_GT( beginnings.size(), 1000u );
    for ( const std::u32string &beginning : beginnings ) {
        const KoInt length = static_cast<KoInt>( beginning.size() );
        const std::unique_ptr<KoChar[]> block( new KoChar[beginning.size()] );
        std::copy( beginning.begin(), beginning.end(), block.get() );
        for ( const Function &f : Functions() ) {
            const KoInt taken = f.skip( block.get(), length );
            ASSERT_GE( taken, 0 ) << f.name << " of " << Shown( beginning );
            ASSERT_LE( taken, length ) << f.name << " of " << Shown( beginning );
            if ( f.skip != tolmo___SkipAccept ) {
                ASSERT_EQ( f.skip( block.get(), taken ), taken ) << f.name << " of " << Shown( beginning );
            }
        }
    }
}

/* Names with a value. */

TEST_F( SkipTest, WkdayAndMonthGiveTheirNumbers )
{
    const char *const days[] = { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" };
    for ( KoInt i = 0; i < 7; ++i ) {
        KoInt value = -7;
        const test::Exact text( days[i] + "d"s );
        EXPECT_EQ( tolmo___SkipWkday( text.Chars(), text.Length(), &value ), 3 ) << days[i];
        EXPECT_EQ( value, i ) << days[i];
    }
    const char *const months[] = { "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec" };
    for ( KoInt i = 0; i < 12; ++i ) {
        KoInt value = -7;
        const test::Exact text( months[i] + "em"s );
        EXPECT_EQ( tolmo___SkipMonth( text.Chars(), text.Length(), &value ), 3 ) << months[i];
        EXPECT_EQ( value, i + 1 ) << months[i];
    }
}

TEST_F( SkipTest, WkdayAndMonthLeaveTheValueAloneWithoutAMatch )
{
    for ( const char *const row : { "", "M", "Mo", "mon", "MON", " Mon", "onT", "dec", "De", "ecJ", "J\u00E4n" } ) {
        KoInt value = -7;
        const test::Exact text( row );
        EXPECT_EQ( tolmo___SkipWkday( text.Chars(), text.Length(), &value ), 0 ) << row;
        EXPECT_EQ( tolmo___SkipMonth( text.Chars(), text.Length(), &value ), 0 ) << row;
        EXPECT_EQ( value, -7 ) << row;
    }
}

/* Long texts. */

std::string Repeated( size_t count, std::string_view part )
{
    std::string all;
    for ( size_t i = 0; i < count; ++i ) {
        all += part;
    }
    return all;
}

void ExpectTaken( Skip skip, std::string_view taken, std::string_view left )
{
    const std::u32string whole = Wide( std::string( taken ) + std::string( left ) );
    EXPECT_EQ( Apply( skip, whole ), static_cast<KoInt>( Wide( taken ).size() ) );
}

TEST_F( SkipTest, CommentsNestWithoutLimit )
{
    const std::string open( 100000, '(' );
    const std::string closed( 100000, ')' );
    ExpectTaken( tolmo___SkipComment, open + closed, "" );
    ExpectTaken( tolmo___SkipComment, open + closed, ")" );
    ExpectTaken( tolmo___SkipComment, "", open );
    ExpectTaken( tolmo___SkipComment, "", open + closed.substr( 1 ) );
    ExpectTaken( tolmo___SkipComment, Repeated( 100000, " ( a" ) + Repeated( 100000, "\\) ) " ), "x" );
    ExpectTaken( tolmo___SkipServer, "a " + open + closed, "" );
}

TEST_F( SkipTest, LongTexts )
{
    const std::string blanks( 1000000, ' ' );
    const std::string letters( 1000000, 'a' );
    ExpectTaken( tolmo___SkipSws, blanks, "x" );
    ExpectTaken( SwsCharSwsSemi, blanks + ";" + blanks, "x" );
    ExpectTaken( SwsCharSwsSemi, "", blanks );
    ExpectTaken( tolmo___SkipToken, letters, " " );
    ExpectTaken( tolmo___SkipQuotedString, blanks + '"' + letters + Repeated( 100000, "\\\"" ) + '"', letters );
    ExpectTaken( tolmo___SkipQuotedString, "", '"' + letters );
    ExpectTaken( tolmo___SkipHost, Repeated( 100000, "a-b." ), "." );
    ExpectTaken( tolmo___SkipHost, "a", std::string( 1000000, '-' ) );
    ExpectTaken( tolmo___SkipHost, "", "[" + Repeated( 100000, "1:" ) );
    ExpectTaken( tolmo___SkipDotAtom, Repeated( 100000, "a." ) + "a", "." );
    ExpectTaken( tolmo___SkipHistoryInfoIndex, Repeated( 100000, "10." ) + "1", "" );
    ExpectTaken( tolmo___SkipHistoryInfoIndex, "", Repeated( 100000, "10." ) );
    ExpectTaken( tolmo___SkipDisplayName, Repeated( 100000, "Bob \t " ), "<" );
    ExpectTaken( tolmo___SkipNameAddr, "", Repeated( 100000, "Bob \t " ) );
    ExpectTaken( tolmo___SkipSubject, Repeated( 100000, "a \t " ) + "a", blanks );
    ExpectTaken( tolmo___SkipServer, Repeated( 100000, "a / 1 " ) + "b", "" );
    ExpectTaken( tolmo___SkipServer, "", Repeated( 100000, "a / 1 " ) );
    ExpectTaken( tolmo___SkipGenericParams, Repeated( 100000, ";a=b;c ; d = \"e;f\"" ), " ; " );
    ExpectTaken( tolmo___SkipVia, "SIP/2.0/UDP a" + Repeated( 100000, ";received=::1;received=x" ), ";" );
    ExpectTaken( tolmo___SkipWarnCode, "", std::string( 1000000, '1' ) );
    ExpectTaken( tolmo___SkipPort, "", std::string( 1000000, '1' ) );
}

/* With a search to the end of the line for each address this would look at 10^11 characters. */
TEST_F( SkipTest, AListOfBareAddressesIsNotSearchedToItsEndForEachOfThem )
{
    const std::u32string list = Wide( Repeated( 200000, "sip:a , " ) );
    const KoChar *const chs = reinterpret_cast<const KoChar *>( list.data() );
    const KoInt length = static_cast<KoInt>( list.size() );
    KoInt at = 0;
    KoInt items = 0;
    for ( KoInt taken = 0; ( taken = tolmo___SkipContact( chs + at, length - at ) ) > 0; ++items ) {
        at += taken;
        at += tolmo___SkipComma( chs + at, length - at );
    }
    EXPECT_EQ( at, length );
    EXPECT_EQ( items, 200000 );
}

/*
 * Some functions once more, slowly and in another way: an element is what a whole text is tested for, and the result is
 * the longest beginning that is one.
 */

using WholeTest = bool ( * )( const std::u32string & );

KoInt Longest( WholeTest isWhole, const std::u32string &text )
{
    for ( size_t count = text.size(); count > 0; --count ) {
        if ( isWhole( text.substr( 0, count ) ) ) {
            return static_cast<KoInt>( count );
        }
    }
    return 0;
}

bool IsBlank( char32_t ch )
{
    return ch == U' ' || ch == U'\t';
}

bool IsAlnum( char32_t ch )
{
    return ( ch >= U'0' && ch <= U'9' ) || ( ch >= U'A' && ch <= U'Z' ) || ( ch >= U'a' && ch <= U'z' );
}

std::u32string WithoutBlanksInFront( const std::u32string &text )
{
    return { std::find_if_not( text.begin(), text.end(), IsBlank ), text.end() };
}

std::u32string WithoutBlanksAround( const std::u32string &text )
{
    std::u32string back = WithoutBlanksInFront( text );
    while ( !back.empty() && IsBlank( back.back() ) ) {
        back.pop_back();
    }
    return back;
}

std::vector<std::u32string> SplitAt( char32_t separator, const std::u32string &text )
{
    std::vector<std::u32string> parts( 1 );
    for ( const char32_t ch : text ) {
        if ( ch == separator ) {
            parts.emplace_back();
        } else {
            parts.back() += ch;
        }
    }
    return parts;
}

/** The text with each pair of backslash and character made one "x"; with a line end, good nowhere, for a bad pair. */
std::u32string WithoutPairs( const std::u32string &text )
{
    const size_t pair = text.find( U'\\' );
    if ( pair == std::u32string::npos ) {
        return text;
    }
    if ( pair + 1 == text.size() || text[pair + 1] == U'\r' || text[pair + 1] == U'\n' ) {
        return U"\n";
    }
    return text.substr( 0, pair ) + U"x" + WithoutPairs( text.substr( pair + 2 ) );
}

bool IsQuotedString( const std::u32string &text )
{
    const std::u32string plain = WithoutPairs( WithoutBlanksInFront( text ) );
    return plain.size() >= 2 && plain.front() == U'"' && plain.find( U'"', 1 ) == plain.size() - 1 &&
           plain.find_first_of( U"\r\n" ) == std::u32string::npos;
}

bool IsComment( const std::u32string &text )
{
    std::u32string plain = WithoutBlanksAround( WithoutPairs( text ) );
    if ( plain.empty() || plain.front() != U'(' ) {
        return false;
    }
    for ( const char32_t ch : plain ) {
        if ( ( ch < 0x20 && ch != U'\t' ) || ch == 0x7F ) {
            return false;
        }
    }
    // The innermost pair of brackets goes, until one is left that holds all.
    for ( ;; ) {
        const size_t close = plain.find( U')' );
        if ( close == std::u32string::npos ) {
            return false;
        }
        const size_t open = plain.rfind( U'(', close );
        if ( open == std::u32string::npos ) {
            return false;
        }
        if ( open == 0 ) {
            return close == plain.size() - 1;
        }
        plain.erase( open, close - open + 1 );
    }
}

/** The text with each escape made a letter: what is left of "%" is bad. */
std::u32string WithoutEscapes( const std::u32string &text )
{
    const std::u32string hex = U"0123456789ABCDEFabcdef";
    const size_t escape = text.find( U'%' );
    if ( escape == std::u32string::npos || escape + 3 > text.size() || hex.find( text[escape + 1] ) == hex.npos ||
         hex.find( text[escape + 2] ) == hex.npos ) {
        return text;
    }
    return text.substr( 0, escape ) + U"x" + WithoutEscapes( text.substr( escape + 3 ) );
}

bool IsHostname( const std::u32string &text )
{
    std::vector<std::u32string> labels = SplitAt( U'.', WithoutEscapes( text ) );
    if ( labels.size() > 1 && labels.back().empty() ) {
        labels.pop_back();
    }
    return std::all_of( labels.begin(), labels.end(), []( const std::u32string &label ) {
        return !label.empty() && label.front() != U'-' && label.back() != U'-' &&
               std::all_of( label.begin(), label.end(), []( char32_t ch ) { return IsAlnum( ch ) || ch == U'-'; } );
    } );
}

bool IsHost( const std::u32string &text )
{
    if ( text.size() < 2 || text.front() != U'[' || text.back() != U']' ) {
        return IsHostname( text );
    }
    const std::string address( text.begin() + 1, text.end() - 1 );
    in6_addr ignored;
    return inet_pton( AF_INET6, address.c_str(), &ignored ) == 1;
}

bool IsDotAtom( const std::u32string &text )
{
    const std::vector<std::u32string> atoms = SplitAt( U'.', text );
    return std::all_of( atoms.begin(), atoms.end(), []( const std::u32string &atom ) {
        return !atom.empty() && std::all_of( atom.begin(), atom.end(), []( char32_t ch ) {
            return IsAlnum( ch ) || ( ch != 0 && std::u32string( U"!%'*+-_`~" ).find( ch ) != std::u32string::npos );
        } );
    } );
}

bool IsHistoryInfoIndex( const std::u32string &text )
{
    const std::vector<std::u32string> numbers = SplitAt( U'.', text );
    return std::all_of( numbers.begin(), numbers.end(), []( const std::u32string &number ) {
        return !number.empty() && ( number.size() == 1 || number.front() != U'0' ) &&
               number.find_first_not_of( U"0123456789" ) == std::u32string::npos;
    } );
}

/** All or nothing: the longest run of digits and dots has to be an index. */
KoInt HistoryInfoIndexOf( const std::u32string &text )
{
    const size_t end = text.find_first_not_of( U"0123456789." );
    const std::u32string run = text.substr( 0, end );
    return IsHistoryInfoIndex( run ) ? static_cast<KoInt>( run.size() ) : 0;
}

/** All values that there are. */
KoInt QvalueOf( const std::u32string &text )
{
    static const std::set<std::u32string> values = [] {
        std::set<std::u32string> all = { U"0", U"0.", U"1", U"1.", U"1.0", U"1.00", U"1.000" };
        for ( int i = 0; i < 1000; ++i ) {
            const std::string places = std::to_string( 1000 + i ).substr( 1 );
            const std::u32string value = U"0." + std::u32string( places.begin(), places.end() );
            all.insert( { value, value.substr( 0, 3 ), value.substr( 0, 4 ) } );
        }
        return all;
    }();
    for ( size_t count = std::min<size_t>( text.size(), 5 ); count > 0; --count ) {
        if ( values.count( text.substr( 0, count ) ) > 0 ) {
            return static_cast<KoInt>( count );
        }
    }
    return 0;
}

/** As the rule has it: the search for the semicolon takes the whole text. */
KoInt AddrSpecOf( const std::u32string &text )
{
    return Apply( tolmo___SkipUri, text.substr( 0, text.find( U';' ) ) );
}

struct Reference {
    const char *name;
    Skip skip;
    KoInt ( *slow )( const std::u32string & );
    std::u32string alphabet;
};

const Reference references[] = {
    { SKIP( QuotedString ), []( const std::u32string &text ) { return Longest( IsQuotedString, text ); },
      U"\"\"\\ a\n\r\t\u00E9"s + U'\0' },
    { SKIP( Comment ), []( const std::u32string &text ) { return Longest( IsComment, text ); },
      U"(()) \\a\n\t\x7F\u00E9" },
    { SKIP( Host ), []( const std::u32string &text ) { return Longest( IsHost, text ); }, U"a4..--%_Z" },
    { SKIP( Host ), []( const std::u32string &text ) { return Longest( IsHost, text ); }, U"[:::1f.]" },
    { SKIP( Hostname ), []( const std::u32string &text ) { return Longest( IsHostname, text ); }, U"a.-%4f" },
    { SKIP( Hostname ), []( const std::u32string &text ) { return Longest( IsHostname, text ); }, U"aaaa0099zzZZ.-%" },
    { SKIP( DotAtom ), []( const std::u32string &text ) { return Longest( IsDotAtom, text ); }, U"a..~@ \u00E9" },
    { SKIP( EventType ), []( const std::u32string &text ) { return Longest( IsDotAtom, text ); }, U"1..%;" },
    { SKIP( HistoryInfoIndex ), HistoryInfoIndexOf, U"0017.. x" },
    { SKIP( Qvalue ), QvalueOf, U"00.17 x" },
    { SKIP( AddrSpec ), AddrSpecOf, U"ss::;; \t,%4#" },
};

TEST_F( SkipTest, AllShortTextsAsTheSlowFormsHaveThem )
{
    for ( const Reference &r : references ) {
        std::u32string alphabet = r.alphabet;
        std::sort( alphabet.begin(), alphabet.end() );
        alphabet.erase( std::unique( alphabet.begin(), alphabet.end() ), alphabet.end() );
        std::vector<std::u32string> texts = { U"" };
        for ( size_t i = 0; i < texts.size(); ++i ) {
            const std::u32string text = texts[i]; // no reference: the vector grows
            ASSERT_EQ( Apply( r.skip, text ), r.slow( text ) ) << r.name << " of " << Shown( text );
            if ( text.size() < 5 ) {
                for ( const char32_t ch : alphabet ) {
                    texts.push_back( text + ch );
                }
            }
        }
    }
}

TEST_F( SkipTest, RandomTextsAsTheSlowFormsHaveThem )
{
    std::mt19937_64 random( 20240607 );
    for ( const Reference &r : references ) {
        int found = 0;
        for ( int i = 0; i < 20000; ++i ) {
            std::u32string text( random() % 24, U' ' );
            for ( char32_t &ch : text ) {
                ch = r.alphabet[random() % r.alphabet.size()];
            }
            const KoInt taken = Apply( r.skip, text );
            ASSERT_EQ( taken, r.slow( text ) ) << r.name << " of " << Shown( text );
            found += taken > 2;
        }
        EXPECT_GT( found, 20 ) << r.name << ": the texts say too little";
    }
}

/* Preconditions. */

const char *const path = "source/tolmo/tolmo_skip.cpp";
const KoChar oneChar[] = { 'a' };

TEST( SkipAbortTest, LengthThenText )
{
    for ( const Function &f : Functions() ) {
        SCOPED_TRACE( f.name );
        EXPECT_ABORT( f.skip( nullptr, -1 ), path, "length >= 0" );
        EXPECT_ABORT( f.skip( nullptr, 1 ), path, "chs || length == 0" );
    }
}

TEST( SkipAbortTest, Char )
{
    for ( const auto skip : { tolmo___SkipChar, tolmo___SkipCharSws, tolmo___SkipSwsChar, tolmo___SkipSwsCharSws } ) {
        EXPECT_ABORT( skip( oneChar, 1, 0x110000 ), path, "KO_CHAR_OK( ch )" );
        EXPECT_ABORT( skip( oneChar, 1, -1 ), path, "KO_CHAR_OK( ch )" );
        EXPECT_ABORT( skip( nullptr, 0, -1 ), path, "KO_CHAR_OK( ch )" );
        EXPECT_ABORT( skip( nullptr, 1, -1 ), path, "chs || length == 0" );
        EXPECT_ABORT( skip( nullptr, -1, -1 ), path, "length >= 0" );
        EXPECT_EQ( skip( nullptr, 0, 0 ), 0 );
        EXPECT_EQ( skip( oneChar, 1, 0x10FFFF ), 0 );
    }
}

TEST( SkipAbortTest, SecondArray )
{
    for ( const auto skip : { tolmo___SkipChars, tolmo___SkipCharsAsciiCaseFold } ) {
        EXPECT_ABORT( skip( oneChar, 1, oneChar, -1 ), path, "skipLength >= 0" );
        EXPECT_ABORT( skip( oneChar, 1, nullptr, -1 ), path, "skipLength >= 0" );
        EXPECT_ABORT( skip( oneChar, 1, nullptr, 1 ), path, "skipChs || skipLength == 0" );
        EXPECT_ABORT( skip( nullptr, 0, nullptr, 1 ), path, "skipChs || skipLength == 0" );
        EXPECT_ABORT( skip( nullptr, 1, nullptr, -1 ), path, "chs || length == 0" );
        EXPECT_ABORT( skip( nullptr, -1, nullptr, -1 ), path, "length >= 0" );
        EXPECT_EQ( skip( oneChar, 1, oneChar, 1 ), 1 );
        EXPECT_EQ( skip( nullptr, 0, oneChar, 1 ), 0 );
    }
}

} // namespace
