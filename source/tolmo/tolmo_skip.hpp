/*
 * The grammar of SIP, once: a skip function for every element, without the preconditions of its exported form
 * (RFC 3261 section 25.1, and the RFCs named below).
 *
 * A skip function says how many characters at the start of a text form its element, 0 when it is not there. It stops
 * where the element stops, never reads behind `length`, and builds nothing. Alternatives are ordered: the first that is
 * there is taken, without going back. Whitespace is blank and tab; folded lines have been joined before.
 *
 * The rules above the functions are those that hold, also where they are not the RFC's; the public header says where
 * they differ. SWS stands for *( SP / HTAB ), LWS for 1*( SP / HTAB ); the separators bring their whitespace with them.
 */
#ifndef TOLMO_SKIP_HPP
#define TOLMO_SKIP_HPP

#include <tolmo/tolmo_char.hpp>
#include <tolmo/tolmo_walk.hpp>

#include <identifier/ulm.h>

#include <algorithm>

namespace tolmo::skip {

/* Runs of characters. */

/** The longest run of characters of some classes. */
template <uint32_t classes>
inline KoInt Run( const KoChar *chs, KoInt length )
{
    return ko::RunOf( setOf<classes>, chs, length );
}

/** The run among the first `most` characters. */
template <uint32_t classes, KoInt most>
inline KoInt ShortRun( const KoChar *chs, KoInt length )
{
    return Run<classes>( chs, length < most ? length : most );
}

// escape = "%" HEXDIG HEXDIG
inline KoInt Escape( const KoChar *chs, KoInt length )
{
    return length >= 3 && chs[0] == '%' && Is( chs[1], charHexdig ) && Is( chs[2], charHexdig ) ? 3 : 0;
}

/** The longest run of characters of some classes and of escapes. */
template <uint32_t classes>
inline KoInt EscapedRun( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    while ( w.Need( Run<classes> ) || w.Need( Escape ) ) {
    }
    return w.Taken();
}

inline constexpr auto Token = Run<charToken>;
inline constexpr auto TokenNodot = Run<charTokenNodot>;
inline constexpr auto Atom = Run<charAtom>;
inline constexpr auto Word = Run<charWord>;
inline constexpr auto Digits = Run<charDigit>;

// SWS. Most often there is none.
inline KoInt Sws( const KoChar *chs, KoInt length )
{
    KoInt taken = 0;
    while ( taken < length && chs[taken] <= ' ' && Is( chs[taken], charLws ) ) {
        ++taken;
    }
    return taken;
}

inline constexpr auto Lws = Sws; // need it where one character is needed

/* Characters and fixed texts. */

inline KoInt Char( const KoChar *chs, KoInt length, KoChar ch )
{
    return length > 0 && chs[0] == ch;
}

// ch SWS
inline KoInt CharSws( const KoChar *chs, KoInt length, KoChar ch )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Char, ch ) && w.Maybe( Sws ) );
}

// SWS ch
inline KoInt SwsChar( const KoChar *chs, KoInt length, KoChar ch )
{
    Walk w( chs, length );
    return w.Taken( w.Maybe( Sws ) && w.Need( Char, ch ) );
}

/** SwsCharSws where there is whitespace. */
[[gnu::noinline]] inline KoInt SpacedChar( const KoChar *chs, KoInt length, KoChar ch )
{
    const KoInt before = Sws( chs, length );
    const KoInt taken = before + Char( chs + before, length - before, ch );
    return taken > before ? taken + Sws( chs + taken, length - taken ) : 0;
}

// SWS ch SWS
[[gnu::always_inline]] inline KoInt SwsCharSws( const KoChar *chs, KoInt length, KoChar ch )
{
    if ( length > 0 && chs[0] > ' ' ) { // most often there is no whitespace
        if ( chs[0] != ch ) {
            return 0;
        }
        if ( length == 1 || chs[1] > ' ' ) {
            return 1;
        }
    }
    return SpacedChar( chs, length, ch );
}

inline KoInt Chars( const KoChar *chs, KoInt length, const KoChar *skipChs, KoInt skipLength )
{
    return skipLength <= length && ko::SameChars( chs, skipChs, skipLength ) ? skipLength : 0;
}

/** The characters of `fixed`, in any case of the letters A to Z. `Unit` is KoChar, or char for ASCII text. */
template <class Unit>
inline KoInt AsciiCaseFold( const KoChar *chs, KoInt length, const Unit *fixed, KoInt fixedLength )
{
    if ( fixedLength > length ) {
        return 0;
    }
    for ( KoInt i = 0; i < fixedLength; ++i ) {
        const KoChar wanted = fixed[i];
        if ( chs[i] != wanted && ( ( chs[i] ^ wanted ) != ( 'a' ^ 'A' ) || !Is( wanted, charAlpha ) ) ) {
            return 0;
        }
    }
    return fixedLength;
}

inline constexpr auto CharsAsciiCaseFold = AsciiCaseFold<KoChar>;

/** CharsAsciiCaseFold for a literal: w.Need( Literal, "branch" ). The first letter tells most others. */
[[gnu::always_inline]] inline KoInt Literal( const KoChar *chs, KoInt length, std::string_view literal )
{
    if ( length > 0 && ( ( chs[0] ^ literal[0] ) & ~( 'a' ^ 'A' ) ) != 0 ) {
        return 0;
    }
    return AsciiCaseFold( chs, length, literal.data(), static_cast<KoInt>( literal.size() ) );
}

/** One of the names, of three letters each, exactly; its index, counted from `first`, goes to `value` unless null. */
inline KoInt Name( const KoChar *chs, KoInt length, std::string_view names, KoInt first, KoInt *value )
{
    for ( size_t i = 0; i < names.size() && length >= 3; i += 3 ) {
        if ( chs[0] == names[i] && chs[1] == names[i + 1] && chs[2] == names[i + 2] ) {
            if ( value ) {
                *value = first + static_cast<KoInt>( i / 3 );
            }
            return 3;
        }
    }
    return 0;
}

/* Separators. */

// SWS ":" SWS
inline KoInt Colon( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, ':' );
}

inline constexpr auto Hcolon = Colon;

// SWS "," SWS
inline KoInt Comma( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, ',' );
}

// SWS ";" SWS
inline KoInt Semi( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, ';' );
}

// SWS "=" SWS
inline KoInt Equal( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, '=' );
}

// SWS "/" SWS
inline KoInt Slash( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, '/' );
}

// SWS "*" SWS
inline KoInt Star( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, '*' );
}

// SWS "(" SWS
inline KoInt Lparen( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, '(' );
}

// SWS ")" SWS
inline KoInt Rparen( const KoChar *chs, KoInt length )
{
    return SwsCharSws( chs, length, ')' );
}

// SWS "<"
inline KoInt Laquot( const KoChar *chs, KoInt length )
{
    return SwsChar( chs, length, '<' );
}

// ">" SWS
inline KoInt Raquot( const KoChar *chs, KoInt length )
{
    return CharSws( chs, length, '>' );
}

// SWS DQUOTE
inline KoInt Ldquot( const KoChar *chs, KoInt length )
{
    return SwsChar( chs, length, '"' );
}

// DQUOTE SWS
inline KoInt Rdquot( const KoChar *chs, KoInt length )
{
    return CharSws( chs, length, '"' );
}

/* Quoted strings and comments. */

// quoted-pair = "\" any character but CR and LF
inline KoInt QuotedPair( const KoChar *chs, KoInt length )
{
    return length >= 2 && chs[0] == '\\' && chs[1] != KO_CHAR_CARRIAGE_RETURN && chs[1] != KO_CHAR_LINE_FEED ? 2 : 0;
}

/** True for what ends a piece of quoted text. */
constexpr bool EndsQuotedText( KoChar ch )
{
    return ch == '"' || ch == '\\' || ch == KO_CHAR_CARRIAGE_RETURN || ch == KO_CHAR_LINE_FEED;
}

// qdtext = 1*( any character but DQUOTE, "\", CR and LF )
inline KoInt QuotedText( const KoChar *chs, KoInt length )
{
    return ko::RunUntil<EndsQuotedText>( chs, length );
}

// quoted-string = LDQUOT *( qdtext / quoted-pair ) DQUOTE
inline KoInt QuotedString( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    if ( !w.Need( Ldquot ) ) {
        return 0;
    }
    while ( w.Need( QuotedText ) || w.Need( QuotedPair ) ) {
    }
    return w.Taken( w.Need( Char, '"' ) );
}

/** True for 0x21 and above but 0x7F: neither a control nor a blank, and non-ASCII included. */
inline bool IsText( KoChar ch )
{
    return ch > 0x20 && ch != 0x7F;
}

// ctext = 1*( text but "(", ")" and "\" / SP / HTAB )
inline KoInt CommentText( const KoChar *chs, KoInt length )
{
    KoInt taken = 0;
    while ( taken < length && chs[taken] != '(' && chs[taken] != ')' && chs[taken] != '\\' &&
            ( IsText( chs[taken] ) || Is( chs[taken], charLws ) ) ) {
        ++taken;
    }
    return taken;
}

// comment = LPAREN *( ctext / quoted-pair / comment ) RPAREN
// The nesting is counted, so that its depth costs nothing.
inline KoInt Comment( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    if ( !w.Need( Lparen ) ) {
        return 0;
    }
    for ( KoInt depth = 1; depth > 0; ) {
        if ( w.Need( Lparen ) ) {
            ++depth;
        } else if ( w.Need( Rparen ) ) {
            --depth;
        } else if ( !w.Need( CommentText ) && !w.Need( QuotedPair ) ) {
            return 0;
        }
    }
    return w.Taken();
}

/* Addresses and identifiers. */

inline constexpr auto IpV4Address = ulm___SkipIpV4Address;
inline constexpr auto IpV6Address = ulm___SkipIpV6Address;
inline constexpr auto Port = ulm___SkipPort;
inline constexpr auto Iri = ulm___SkipIri;
inline constexpr auto Uri = Iri;

/** Domain labels: one, or with `dotted` as many as there are, with dots between them and perhaps one at the end. */
template <bool dotted>
[[gnu::noinline]] inline KoInt Labels( const KoChar *chs, KoInt length )
{
    KoInt taken = 0; // not the hyphens at the end of a label
    for ( KoInt at = 0, label = 0; at < length; ) {
        if ( const KoInt plain = Run<charAlphanum>( chs + at, length - at ); plain > 0 ) {
            taken = at += plain;
            if ( at == length ) {
                break;
            }
        }
        if ( dotted && chs[at] == '.' && label < taken && taken == at ) {
            taken = label = ++at;
        } else if ( chs[at] == '-' && at > label ) {
            ++at;
        } else if ( const KoInt escape = Escape( chs + at, length - at ); escape > 0 ) {
            taken = at += escape;
        } else {
            break;
        }
    }
    return taken;
}

// domainlabel = ( alphanum / escape ) *( alphanum / escape / "-" ), without the hyphens at its end
inline constexpr auto DomainLabel = Labels<false>;

/** True for a dot and a hyphen among the characters of a hostname. */
constexpr bool SeparatesLabels( KoChar ch )
{
    return ch < '0';
}

// hostname = domainlabel *( "." domainlabel ) [ "." ]
// Most often it is one run, without escapes, and no two of its dots and hyphens are neighbours.
inline KoInt Hostname( const KoChar *chs, KoInt length )
{
    const KoInt run = Run<charHostname>( chs, length );
    if ( run == 0 || SeparatesLabels( chs[0] ) || chs[run - 1] == '-' || ( run < length && chs[run] == '%' ) ) {
        return Labels<true>( chs, length );
    }
    KoChar least = 'a'; // of each two neighbours the greater
    for ( KoInt i = 1; i < run; ++i ) {
        least = std::min( least, std::max( chs[i - 1], chs[i] ) );
    }
    return SeparatesLabels( least ) ? Labels<true>( chs, length ) : run;
}

// IPv6reference = "[" IPv6address "]"
inline KoInt IpV6Reference( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Char, '[' ) && w.Need( IpV6Address ) && w.Need( Char, ']' ) );
}

// host = the longest of hostname, IPv4address and IPv6reference
// An IPv4 address is a hostname as well, and no hostname begins with a bracket: so there is nothing to compare.
inline KoInt Host( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Hostname ) || w.Need( IpV6Reference ) );
}

// ":" port
inline KoInt ColonPort( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Char, ':' ) && w.Need( Port ) );
}

// hostport = host [ ":" port ]
inline KoInt HostPort( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Host ) && w.Maybe( ColonPort ) );
}

inline constexpr auto User = EscapedRun<charUnreserved | charUserUnreserved>;
inline constexpr auto Password = EscapedRun<charUnreserved | charPasswordUnreserved>;
inline constexpr auto Uric = EscapedRun<charReserved | charUnreserved>;
inline constexpr auto Pvalue = EscapedRun<charUnreserved | charParamUnreserved>;

/** How far an addr-spec may go: to the first semicolon. No IRI holds whitespace, so the search for the semicolon stops
 * there; otherwise a list of bare addresses would take square time. */
inline KoInt AddrSpecExtent( const KoChar *chs, KoInt length )
{
    KoInt end = 0;
    while ( end < length && chs[end] != ';' && !Is( chs[end], charLws ) ) {
        ++end;
    }
    return end;
}

// addr-spec = an IRI in the text before the first ";"
inline KoInt AddrSpec( const KoChar *chs, KoInt length )
{
    return Iri( chs, AddrSpecExtent( chs, length ) );
}

// display-name = quoted-string / *( token SWS )
inline KoInt DisplayName( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    if ( length > 0 && chs[0] == '<' ) {
        return 0; // most often there is no name
    }
    if ( !w.Need( QuotedString ) ) {
        while ( w.Need( Token ) && w.Maybe( Sws ) ) {
        }
    }
    return w.Taken();
}

// LAQUOT IRI RAQUOT
inline KoInt BracketedIri( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Laquot ) && w.Need( Iri ) && w.Need( Raquot ) );
}

// name-addr = [ display-name ] LAQUOT IRI RAQUOT
inline KoInt NameAddr( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Maybe( DisplayName ) && w.Need( BracketedIri ) );
}

/* Tokens by the names of what they stand for. */

inline constexpr auto Branch = Token;
inline constexpr auto ContentCoding = Token;
inline constexpr auto DispositionType = Token;
inline constexpr auto EmParam = Token;
inline constexpr auto EventReasonValue = Token;
inline constexpr auto Handling = Token;
inline constexpr auto MessageHeaderName = Token;
inline constexpr auto Method = Token;
inline constexpr auto OptionTag = Token;
inline constexpr auto PriorityValue = Token;
inline constexpr auto PrivValue = Token;
inline constexpr auto ProtocolName = Token;
inline constexpr auto ProtocolVersion = Token;
inline constexpr auto Pseudonym = Token;
inline constexpr auto Purpose = Token;
inline constexpr auto ReasonProtocol = Token;
inline constexpr auto SubstateValue = Token;
inline constexpr auto Tag = Token;
inline constexpr auto Transport = Token;

/* Small elements. */

// "." atom
inline KoInt DotThenAtom( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Char, '.' ) && w.Need( Atom ) );
}

// dot-atom = atom *( "." atom )
inline KoInt DotAtom( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Atom ) && w.Many( DotThenAtom ) );
}

// event-type = token-nodot *( "." token-nodot ) (RFC 6665); an atom is a token-nodot
inline constexpr auto EventType = DotAtom;

// r-value = token-nodot "." token-nodot (RFC 4412)
inline KoInt Rvalue( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( TokenNodot ) && w.Need( Char, '.' ) && w.Need( TokenNodot ) );
}

// callid = word [ "@" word ]
inline KoInt CallId( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Word ) && ( !w.Need( Char, '@' ) || w.Need( Word ) ) );
}

// m-type = token, but not "*"
inline KoInt MediaType( const KoChar *chs, KoInt length )
{
    const KoInt taken = Token( chs, length );
    return taken == 1 && chs[0] == '*' ? 0 : taken;
}

inline constexpr auto MediaSubtype = MediaType;

// epid = 1*16( a character of token )
inline constexpr auto Epid = ShortRun<charToken, 16>;

// refresher = "uac" / "uas" (RFC 4028)
inline KoInt Refresher( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Literal, "uac" ) || w.Need( Literal, "uas" ) );
}

// instance-val = "<" 1*uric ">" (RFC 5626)
inline KoInt SipInstance( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Char, '<' ) && w.Need( Uric ) && w.Need( Char, '>' ) );
}

/** The longer of a dot-atom and a host. */
inline KoInt DotAtomOrHost( const KoChar *chs, KoInt length )
{
    const KoInt dotAtom = DotAtom( chs, length );
    const KoInt host = Host( chs, length );
    return dotAtom > host ? dotAtom : host;
}

// sip-clean-msg-id = dot-atom "@" ( dot-atom / host ) (RFC 3892)
inline KoInt SipCleanMsgId( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( DotAtom ) && w.Need( Char, '@' ) && w.Need( DotAtomOrHost ) );
}

// sess-uuid = 32( DIGIT / %x61-7A ) (RFC 7989)
inline KoInt SessUuid( const KoChar *chs, KoInt length )
{
    return ShortRun<charSessUuid, 32>( chs, length ) == 32 ? 32 : 0;
}

inline constexpr auto DeltaSeconds = Digits;
inline constexpr auto Ttl = Digits;

// qvalue = "0" [ "." *3DIGIT ] / "1" [ "." *3"0" ]
inline KoInt Qvalue( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    if ( w.Need( Char, '0' ) ) {
        return w.Taken( !w.Need( Char, '.' ) || w.Maybe( ShortRun<charDigit, 3> ) );
    }
    return w.Taken( w.Need( Char, '1' ) && ( !w.Need( Char, '.' ) || ( w.Maybe( Char, '0' ) && w.Maybe( Char, '0' ) &&
                                                                       w.Maybe( Char, '0' ) ) ) );
}

inline constexpr std::string_view wkdayNames = "MonTueWedThuFriSatSun";
inline constexpr std::string_view monthNames = "JanFebMarAprMayJunJulAugSepOctNovDec";

// wkday = "Mon" / "Tue" / "Wed" / "Thu" / "Fri" / "Sat" / "Sun"; Monday is 0
inline KoInt Wkday( const KoChar *chs, KoInt length, KoInt *value )
{
    return Name( chs, length, wkdayNames, 0, value );
}

// month = "Jan" / "Feb" / "Mar" / "Apr" / "May" / "Jun" / "Jul" / "Aug" / "Sep" / "Oct" / "Nov" / "Dec"; January is 1
inline KoInt Month( const KoChar *chs, KoInt length, KoInt *value )
{
    return Name( chs, length, monthNames, 1, value );
}

// "." *DIGIT
inline KoInt Fraction( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Char, '.' ) && w.Maybe( Digits ) );
}

// timestamp-value = 1*DIGIT [ fraction ] [ LWS *DIGIT [ fraction ] ]
inline KoInt TimestampValue( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Digits ) && w.Maybe( Fraction ) &&
                    ( !w.Need( Lws ) || ( w.Maybe( Digits ) && w.Maybe( Fraction ) ) ) );
}

// server-val = token [ SLASH token ] / comment
inline KoInt ServerVal( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Token ) ? !w.Need( Slash ) || w.Need( Token ) : w.Need( Comment ) );
}

// server = server-val *( LWS server-val )
// Whitespace at the end fails the whole; but a comment takes the whitespace behind it, and so ends the list.
inline KoInt Server( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    do {
        if ( !w.Need( ServerVal ) ) {
            return 0;
        }
    } while ( w.Need( Lws ) );
    return w.Taken();
}

inline constexpr auto UserAgent = Server;

inline KoInt TextWord( const KoChar *chs, KoInt length )
{
    KoInt taken = 0;
    while ( taken < length && IsText( chs[taken] ) ) {
        ++taken;
    }
    return taken;
}

// LWS text-word
inline KoInt LwsTextWord( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Lws ) && w.Need( TextWord ) );
}

// TEXT-UTF8-TRIM = text-word *( LWS text-word )
inline KoInt Subject( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( TextWord ) && w.Many( LwsTextWord ) );
}

inline constexpr auto Organization = Subject;

/* Parameters. */

// generic-param = token [ EQUAL ( token / host / quoted-string ) ]
inline KoInt GenericParam( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Token ) &&
                    ( !w.Need( Equal ) || w.Need( Token ) || w.Need( Host ) || w.Need( QuotedString ) ) );
}

// SEMI generic-param
inline KoInt SemiGenericParam( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Semi ) && w.Need( GenericParam ) );
}

// generic-params = *( SEMI generic-param )
inline KoInt GenericParams( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Many( SemiGenericParam ) );
}

/* Values of headers. */

/** SIP/2.0, exactly, and no token that goes on. */
inline KoInt Sip20( const KoChar *chs, KoInt length )
{
    static constexpr KoChar sip20[] = { 'S', 'I', 'P', '/', '2', '.', '0' };
    constexpr KoInt count = std::size( sip20 );
    const KoInt taken = Chars( chs, length, sip20, count );
    return taken == length || !Is( chs[taken], charToken ) ? taken : 0;
}

// version = token SLASH token
inline KoInt Version( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    if ( w.Need( Sip20 ) ) { // nearly always
        return w.Taken();
    }
    return w.Taken( w.Need( ProtocolName ) && w.Need( Slash ) && w.Need( ProtocolVersion ) );
}

// via-received = "received" EQUAL ( IPv6address / IPv4address )
inline KoInt ViaReceived( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Literal, "received" ) && w.Need( Equal ) &&
                    ( w.Need( IpV6Address ) || w.Need( IpV4Address ) ) );
}

// via-params = via-received / generic-param
inline KoInt ViaParams( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( ViaReceived ) || w.Need( GenericParam ) );
}

// SEMI via-params
inline KoInt SemiViaParams( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Semi ) && w.Need( ViaParams ) );
}

// via-parm = version SLASH transport LWS host [ COLON port ] *( SEMI via-params )
inline KoInt Via( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Version ) && w.Need( Slash ) && w.Need( Transport ) && w.Need( Lws ) && // sent-protocol
                    w.Need( Host ) && ( !w.Need( Colon ) || w.Need( Port ) ) &&                     // sent-by
                    w.Many( SemiViaParams ) );
}

// identity-value = name-addr / addr-spec (RFC 3325)
inline KoInt IdentityValue( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( NameAddr ) || w.Need( AddrSpec ) );
}

// contact-param = ( name-addr / addr-spec ) generic-params
inline KoInt Contact( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( ( w.Need( NameAddr ) || w.Need( AddrSpec ) ) && w.Maybe( GenericParams ) );
}

// route-param = name-addr generic-params
inline KoInt Route( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( NameAddr ) && w.Maybe( GenericParams ) );
}

inline constexpr auto Diversion = Route;   // RFC 5806
inline constexpr auto HistoryInfo = Route; // RFC 7044

// info = LAQUOT IRI RAQUOT generic-params
inline KoInt AlertInfo( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( BracketedIri ) && w.Maybe( GenericParams ) );
}

inline constexpr auto CallInfo = AlertInfo;
inline constexpr auto ErrorInfo = AlertInfo;

// reason-value = token generic-params (RFC 3326)
inline KoInt Reason( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Token ) && w.Maybe( GenericParams ) );
}

inline constexpr auto AcceptEncoding = Reason;  // the "*" of the RFC is a token
inline constexpr auto InfoPackageType = Reason; // RFC 6086

// media-range = "*" SLASH "*" / m-type SLASH ( "*" / m-subtype )
inline KoInt MediaRange( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( MediaType )
                        ? w.Need( Slash ) && ( w.Need( MediaSubtype ) || w.Need( Char, '*' ) )
                        : w.Need( Char, '*' ) && w.Need( Slash ) && !w.Need( MediaSubtype ) && w.Need( Char, '*' ) );
}

// accept-range = media-range generic-params
// What is counted are the parameters alone: callers rely on it, and so it stays.
inline KoInt Accept( const KoChar *chs, KoInt length )
{
    const KoInt range = MediaRange( chs, length );
    return range > 0 ? GenericParams( chs + range, length - range ) : 0;
}

// diversion-reason = token / quoted-string
inline KoInt DiversionReason( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( Token ) || w.Need( QuotedString ) );
}

inline constexpr auto DiversionPrivacy = DiversionReason;
inline constexpr auto DiversionScreen = DiversionReason;

// diversion-counter = 1*2DIGIT
inline constexpr auto DiversionCounter = ShortRun<charDigit, 2>;
inline constexpr auto DiversionLimit = DiversionCounter;

// uui-value = ( token / quoted-string ) generic-params (RFC 7433)
inline KoInt UuiValue( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( ( w.Need( Token ) || w.Need( QuotedString ) ) && w.Maybe( GenericParams ) );
}

// "0" / %x31-39 *DIGIT
inline KoInt IndexNumber( const KoChar *chs, KoInt length )
{
    const KoInt taken = Digits( chs, length );
    return taken > 1 && chs[0] == '0' ? 0 : taken;
}

// hi-index = index-number *( "." index-number ) (RFC 7044); a dot without a number behind it voids the whole
inline KoInt HistoryInfoIndex( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    do {
        if ( !w.Need( IndexNumber ) ) {
            return 0;
        }
    } while ( w.Need( Char, '.' ) );
    return w.Taken();
}

inline constexpr auto ReasonCause = Digits;
inline constexpr auto ReasonText = QuotedString;

// warn-code = 3DIGIT, and no digit behind it
inline KoInt WarnCode( const KoChar *chs, KoInt length )
{
    return ShortRun<charDigit, 4>( chs, length ) == 3 ? 3 : 0;
}

// warn-agent = hostport / token
inline KoInt WarnAgent( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( HostPort ) || w.Need( Token ) );
}

inline constexpr auto WarnText = QuotedString;

// warning-value = warn-code LWS warn-agent LWS warn-text
inline KoInt WarningValue( const KoChar *chs, KoInt length )
{
    Walk w( chs, length );
    return w.Taken( w.Need( WarnCode ) && w.Need( Lws ) && w.Need( WarnAgent ) && w.Need( Lws ) && w.Need( WarnText ) );
}

} // namespace tolmo::skip

#endif
