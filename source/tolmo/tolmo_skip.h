/* The grammar of SIP as skip functions (RFC 3261 section 25.1). */
#ifndef TOLMO_SKIP_H
#define TOLMO_SKIP_H

#include <runtime/ko_base.h>

/**
 * @file
 * A skip function says how many characters at the start of a text form its element, 0 when it is not there. It stops
 * where the element stops and says nothing about what follows: a text is a whole element when the result is its length.
 * It never reads behind `length`, allocates nothing, and takes time linear in the length. An element that may be empty
 * gives 0 as well. Alternatives are tried in the order in which they stand here; the first that is there is taken.
 *
 * The text has no folded lines: whitespace is blank and tab. In the rules below SWS is *( SP / HTAB ), LWS is
 * 1*( SP / HTAB ), and the separators bring the whitespace that their own rules tell. Quoted words match in any ASCII
 * case, unless the rule says otherwise. A rule that differs from its RFC says so.
 *
 * All have these arguments and preconditions, and some have more behind them:
 *
 * @param chs The text; null only with length 0.
 * @param length How many characters may be read.
 * @return The length of the element, 0 to `length`.
 * @pre length >= 0
 * @pre chs || length == 0
 */

KO_BEGIN_DECLS

/** @name Whitespace @{ */

/** SWS, which may be empty. The RFC's rules also join folded lines. */
KO_API KoInt tolmo___SkipSws( const KoChar *chs, KoInt length );
/** The same. Whoever needs whitespace tests for 0. */
KO_API KoInt tolmo___SkipLws( const KoChar *chs, KoInt length );

/** @} @name Characters and fixed texts @{ */

/** The character `ch`, exactly. @pre KO_CHAR_OK( ch ) */
KO_API KoInt tolmo___SkipChar( const KoChar *chs, KoInt length, KoChar ch );
/** ch SWS. @pre KO_CHAR_OK( ch ) */
KO_API KoInt tolmo___SkipCharSws( const KoChar *chs, KoInt length, KoChar ch );
/** SWS ch. Without `ch` the whitespace does not count. @pre KO_CHAR_OK( ch ) */
KO_API KoInt tolmo___SkipSwsChar( const KoChar *chs, KoInt length, KoChar ch );
/** SWS ch SWS. Without `ch` the whitespace does not count. @pre KO_CHAR_OK( ch ) */
KO_API KoInt tolmo___SkipSwsCharSws( const KoChar *chs, KoInt length, KoChar ch );
/**
 * The characters of another array, exactly. An empty one is never there.
 *
 * @pre skipLength >= 0
 * @pre skipChs || skipLength == 0
 */
KO_API KoInt tolmo___SkipChars( const KoChar *chs, KoInt length, const KoChar *skipChs, KoInt skipLength );
/**
 * The characters of another array, in any case of the letters A to Z (of no other letters).
 *
 * @pre skipLength >= 0
 * @pre skipChs || skipLength == 0
 */
KO_API KoInt tolmo___SkipCharsAsciiCaseFold( const KoChar *chs, KoInt length, const KoChar *skipChs, KoInt skipLength );

/** @} @name Separators @{ */

/** HCOLON = SWS ":" SWS */
KO_API KoInt tolmo___SkipHcolon( const KoChar *chs, KoInt length );
/** COLON = SWS ":" SWS */
KO_API KoInt tolmo___SkipColon( const KoChar *chs, KoInt length );
/** COMMA = SWS "," SWS */
KO_API KoInt tolmo___SkipComma( const KoChar *chs, KoInt length );
/** SEMI = SWS ";" SWS */
KO_API KoInt tolmo___SkipSemi( const KoChar *chs, KoInt length );
/** EQUAL = SWS "=" SWS */
KO_API KoInt tolmo___SkipEqual( const KoChar *chs, KoInt length );
/** SLASH = SWS "/" SWS */
KO_API KoInt tolmo___SkipSlash( const KoChar *chs, KoInt length );
/** STAR = SWS "*" SWS */
KO_API KoInt tolmo___SkipStar( const KoChar *chs, KoInt length );
/** LPAREN = SWS "(" SWS */
KO_API KoInt tolmo___SkipLparen( const KoChar *chs, KoInt length );
/** RPAREN = SWS ")" SWS */
KO_API KoInt tolmo___SkipRparen( const KoChar *chs, KoInt length );
/** LAQUOT = SWS "<" */
KO_API KoInt tolmo___SkipLaquot( const KoChar *chs, KoInt length );
/** RAQUOT = ">" SWS */
KO_API KoInt tolmo___SkipRaquot( const KoChar *chs, KoInt length );
/** LDQUOT = SWS DQUOTE */
KO_API KoInt tolmo___SkipLdquot( const KoChar *chs, KoInt length );
/** RDQUOT = DQUOTE SWS */
KO_API KoInt tolmo___SkipRdquot( const KoChar *chs, KoInt length );

/** @} @name Runs of a character class, quoted strings, comments @{ */

/** token = 1*( alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" ) */
KO_API KoInt tolmo___SkipToken( const KoChar *chs, KoInt length );
/** token-nodot = a token without dots (RFC 6665) */
KO_API KoInt tolmo___SkipTokenNodot( const KoChar *chs, KoInt length );
/** atom = a token without dots. The atom of RFC 5322 has more characters. */
KO_API KoInt tolmo___SkipAtom( const KoChar *chs, KoInt length );
/** dot-atom = atom *( "." atom ) */
KO_API KoInt tolmo___SkipDotAtom( const KoChar *chs, KoInt length );
/** word, as in callid */
KO_API KoInt tolmo___SkipWord( const KoChar *chs, KoInt length );
/** 1*DIGIT */
KO_API KoInt tolmo___SkipDigits( const KoChar *chs, KoInt length );
/**
 * quoted-string = LDQUOT *( any character but DQUOTE, "\", CR, LF / "\" any character but CR, LF ) DQUOTE
 *
 * Whitespace in front counts, whitespace behind does not. The RFC has no controls here, and no non-ASCII characters
 * behind a backslash.
 */
KO_API KoInt tolmo___SkipQuotedString( const KoChar *chs, KoInt length );
/**
 * comment = LPAREN *( ctext / "\" any character but CR, LF / comment ) RPAREN
 *
 * ctext is whitespace and all characters from 0x21 up but "(", ")", "\" and 0x7F. Comments nest without limit. The RFC
 * has no non-ASCII characters behind a backslash.
 */
KO_API KoInt tolmo___SkipComment( const KoChar *chs, KoInt length );

/** @} @name Addresses and identifiers @{ */

/**
 * domainlabel = the longest run of alphanum, "-" and escape that does not begin or end with "-"
 *
 * escape = "%" HEXDIG HEXDIG. The RFC has no escapes here.
 */
KO_API KoInt tolmo___SkipDomainLabel( const KoChar *chs, KoInt length );
/** hostname = domainlabel *( "." domainlabel ) [ "." ]. In the RFC the last label begins with a letter. */
KO_API KoInt tolmo___SkipHostname( const KoChar *chs, KoInt length );
/** IPv4address, four decimal numbers up to 255 without leading zeros */
KO_API KoInt tolmo___SkipIpV4Address( const KoChar *chs, KoInt length );
/** IPv6address (RFC 4291), without brackets and zone */
KO_API KoInt tolmo___SkipIpV6Address( const KoChar *chs, KoInt length );
/** IPv6reference = "[" IPv6address "]" */
KO_API KoInt tolmo___SkipIpV6Reference( const KoChar *chs, KoInt length );
/** host = the longest of hostname, IPv4address and IPv6reference */
KO_API KoInt tolmo___SkipHost( const KoChar *chs, KoInt length );
/** port = 1*DIGIT, the whole run, its value at most the largest KoInt */
KO_API KoInt tolmo___SkipPort( const KoChar *chs, KoInt length );
/** hostport = host [ ":" port ] */
KO_API KoInt tolmo___SkipHostPort( const KoChar *chs, KoInt length );
/** user = 1*( unreserved / escape / user-unreserved ) */
KO_API KoInt tolmo___SkipUser( const KoChar *chs, KoInt length );
/** password = 1*( unreserved / escape / "&" / "=" / "+" / "$" / "," ) */
KO_API KoInt tolmo___SkipPassword( const KoChar *chs, KoInt length );
/** 1*uric, uric = reserved / unreserved / escape */
KO_API KoInt tolmo___SkipUric( const KoChar *chs, KoInt length );
/** pvalue = 1*( unreserved / escape / "[" / "]" / "/" / ":" / "&" / "+" / "$" ) */
KO_API KoInt tolmo___SkipPvalue( const KoChar *chs, KoInt length );
/** The longest IRI (RFC 3987), of any scheme. */
KO_API KoInt tolmo___SkipUri( const KoChar *chs, KoInt length );
/** addr-spec = the longest IRI in the text before the first ";", so that parameters stay with the header */
KO_API KoInt tolmo___SkipAddrSpec( const KoChar *chs, KoInt length );
/** name-addr = [ display-name ] LAQUOT IRI RAQUOT */
KO_API KoInt tolmo___SkipNameAddr( const KoChar *chs, KoInt length );
/** display-name = quoted-string / *( token SWS ). The RFC wants whitespace behind each token. */
KO_API KoInt tolmo___SkipDisplayName( const KoChar *chs, KoInt length );

/** @} @name Names and other small elements @{ */

/** branch = token, with or without a magic cookie */
KO_API KoInt tolmo___SkipBranch( const KoChar *chs, KoInt length );
/** callid = word [ "@" word ]. An "@" without a word behind it voids the whole. */
KO_API KoInt tolmo___SkipCallId( const KoChar *chs, KoInt length );
/** content-coding = token */
KO_API KoInt tolmo___SkipContentCoding( const KoChar *chs, KoInt length );
/** delta-seconds = 1*DIGIT */
KO_API KoInt tolmo___SkipDeltaSeconds( const KoChar *chs, KoInt length );
/** disp-type = token */
KO_API KoInt tolmo___SkipDispositionType( const KoChar *chs, KoInt length );
/** em-param = token (RFC 5009) */
KO_API KoInt tolmo___SkipEmParam( const KoChar *chs, KoInt length );
/** epid = 1*16( a character of token ): the first 16 of a longer run */
KO_API KoInt tolmo___SkipEpid( const KoChar *chs, KoInt length );
/** event-reason-value = token (RFC 6665) */
KO_API KoInt tolmo___SkipEventReasonValue( const KoChar *chs, KoInt length );
/** event-type = token-nodot *( "." token-nodot ) (RFC 6665) */
KO_API KoInt tolmo___SkipEventType( const KoChar *chs, KoInt length );
/** handling = token */
KO_API KoInt tolmo___SkipHandling( const KoChar *chs, KoInt length );
/** m-subtype = token, but not "*" alone */
KO_API KoInt tolmo___SkipMediaSubtype( const KoChar *chs, KoInt length );
/** m-type = token, but not "*" alone */
KO_API KoInt tolmo___SkipMediaType( const KoChar *chs, KoInt length );
/** header-name = token */
KO_API KoInt tolmo___SkipMessageHeaderName( const KoChar *chs, KoInt length );
/** Method = token */
KO_API KoInt tolmo___SkipMethod( const KoChar *chs, KoInt length );
/**
 * month = "Jan" / "Feb" / "Mar" / "Apr" / "May" / "Jun" / "Jul" / "Aug" / "Sep" / "Oct" / "Nov" / "Dec"; in this case
 * only
 *
 * @param value may be null; receives 1 to 12, and stays as it is when there is no month.
 */
KO_API KoInt tolmo___SkipMonth( const KoChar *chs, KoInt length, KoInt *value );
/** option-tag = token */
KO_API KoInt tolmo___SkipOptionTag( const KoChar *chs, KoInt length );
/** organization = text-word *( LWS text-word ), text-word = 1*( 0x21 and above but 0x7F ) */
KO_API KoInt tolmo___SkipOrganization( const KoChar *chs, KoInt length );
/** priority-value = token */
KO_API KoInt tolmo___SkipPriorityValue( const KoChar *chs, KoInt length );
/** priv-value = token (RFC 3323) */
KO_API KoInt tolmo___SkipPrivValue( const KoChar *chs, KoInt length );
/** protocol-name = token */
KO_API KoInt tolmo___SkipProtocolName( const KoChar *chs, KoInt length );
/** protocol-version = token */
KO_API KoInt tolmo___SkipProtocolVersion( const KoChar *chs, KoInt length );
/** pseudonym = token */
KO_API KoInt tolmo___SkipPseudonym( const KoChar *chs, KoInt length );
/** purpose = token */
KO_API KoInt tolmo___SkipPurpose( const KoChar *chs, KoInt length );
/** qvalue = "0" [ "." *3DIGIT ] / "1" [ "." *3"0" ]. It stops in front of what does not fit: "1.5" gives 2. */
KO_API KoInt tolmo___SkipQvalue( const KoChar *chs, KoInt length );
/** refresher = "uac" / "uas" (RFC 4028) */
KO_API KoInt tolmo___SkipRefresher( const KoChar *chs, KoInt length );
/** r-value = token-nodot "." token-nodot (RFC 4412) */
KO_API KoInt tolmo___SkipRvalue( const KoChar *chs, KoInt length );
/**
 * server = server-val *( LWS server-val )
 *
 * Whitespace at the end voids the whole, but for that behind a comment: it belongs to the comment, and ends the list.
 */
KO_API KoInt tolmo___SkipServer( const KoChar *chs, KoInt length );
/** server-val = token [ SLASH token ] / comment */
KO_API KoInt tolmo___SkipServerVal( const KoChar *chs, KoInt length );
/** sess-uuid = 32( DIGIT / %x61-7A ), the first 32 of a longer run. RFC 7989 has hexadecimal digits. */
KO_API KoInt tolmo___SkipSessUuid( const KoChar *chs, KoInt length );
/** sip-clean-msg-id = dot-atom "@" ( dot-atom / host ), the longer of the two (RFC 3892) */
KO_API KoInt tolmo___SkipSipCleanMsgId( const KoChar *chs, KoInt length );
/** instance-val = "<" 1*uric ">" (RFC 5626) */
KO_API KoInt tolmo___SkipSipInstance( const KoChar *chs, KoInt length );
/** subject = text-word *( LWS text-word ), as in organization */
KO_API KoInt tolmo___SkipSubject( const KoChar *chs, KoInt length );
/** substate-value = token (RFC 6665) */
KO_API KoInt tolmo___SkipSubstateValue( const KoChar *chs, KoInt length );
/** tag = token */
KO_API KoInt tolmo___SkipTag( const KoChar *chs, KoInt length );
/** timestamp-value = 1*DIGIT [ "." *DIGIT ] [ LWS *DIGIT [ "." *DIGIT ] ] */
KO_API KoInt tolmo___SkipTimestampValue( const KoChar *chs, KoInt length );
/** transport = token */
KO_API KoInt tolmo___SkipTransport( const KoChar *chs, KoInt length );
/** ttl = 1*DIGIT */
KO_API KoInt tolmo___SkipTtl( const KoChar *chs, KoInt length );
/** user-agent, the same as server */
KO_API KoInt tolmo___SkipUserAgent( const KoChar *chs, KoInt length );
/**
 * wkday = "Mon" / "Tue" / "Wed" / "Thu" / "Fri" / "Sat" / "Sun", in this case only
 *
 * @param value may be null; receives 0 (Monday) to 6, and stays as it is when there is no weekday.
 */
KO_API KoInt tolmo___SkipWkday( const KoChar *chs, KoInt length, KoInt *value );

/** @} @name Parameters @{ */

/** generic-param = token [ EQUAL ( token / host / quoted-string ) ] */
KO_API KoInt tolmo___SkipGenericParam( const KoChar *chs, KoInt length );
/** generic-params = *( SEMI generic-param ). It stops in front of a semicolon without parameter. */
KO_API KoInt tolmo___SkipGenericParams( const KoChar *chs, KoInt length );

/** @} @name Values of headers @{ */

/**
 * accept-range = ( "*" SLASH "*" / m-type SLASH ( "*" / m-subtype ) ) generic-params
 *
 * The result is the length of the parameters alone: it does not count what stands in front of them.
 */
KO_API KoInt tolmo___SkipAccept( const KoChar *chs, KoInt length );
/** encoding = token generic-params; "*" is a token */
KO_API KoInt tolmo___SkipAcceptEncoding( const KoChar *chs, KoInt length );
/** alert-param = LAQUOT IRI RAQUOT generic-params */
KO_API KoInt tolmo___SkipAlertInfo( const KoChar *chs, KoInt length );
/** info = LAQUOT IRI RAQUOT generic-params */
KO_API KoInt tolmo___SkipCallInfo( const KoChar *chs, KoInt length );
/** contact-param = ( name-addr / addr-spec ) generic-params */
KO_API KoInt tolmo___SkipContact( const KoChar *chs, KoInt length );
/** diversion = name-addr generic-params (RFC 5806) */
KO_API KoInt tolmo___SkipDiversion( const KoChar *chs, KoInt length );
/** diversion-counter = 1*2DIGIT: the first two of a longer run (RFC 5806) */
KO_API KoInt tolmo___SkipDiversionCounter( const KoChar *chs, KoInt length );
/** diversion-limit = 1*2DIGIT: the first two of a longer run (RFC 5806) */
KO_API KoInt tolmo___SkipDiversionLimit( const KoChar *chs, KoInt length );
/** diversion-privacy = token / quoted-string (RFC 5806) */
KO_API KoInt tolmo___SkipDiversionPrivacy( const KoChar *chs, KoInt length );
/** diversion-reason = token / quoted-string (RFC 5806) */
KO_API KoInt tolmo___SkipDiversionReason( const KoChar *chs, KoInt length );
/** diversion-screen = token / quoted-string (RFC 5806) */
KO_API KoInt tolmo___SkipDiversionScreen( const KoChar *chs, KoInt length );
/** error-uri = LAQUOT IRI RAQUOT generic-params */
KO_API KoInt tolmo___SkipErrorInfo( const KoChar *chs, KoInt length );
/** hi-entry = name-addr generic-params (RFC 7044) */
KO_API KoInt tolmo___SkipHistoryInfo( const KoChar *chs, KoInt length );
/**
 * hi-index = number *( "." number ), number = "0" / %x31-39 *DIGIT (RFC 7044)
 *
 * A dot without a number behind it voids the whole, as do leading zeros.
 */
KO_API KoInt tolmo___SkipHistoryInfoIndex( const KoChar *chs, KoInt length );
/** PAssertedID-value = name-addr / addr-spec (RFC 3325) */
KO_API KoInt tolmo___SkipIdentityValue( const KoChar *chs, KoInt length );
/** Info-package-type = token generic-params (RFC 6086) */
KO_API KoInt tolmo___SkipInfoPackageType( const KoChar *chs, KoInt length );
/** reason-value = token generic-params (RFC 3326) */
KO_API KoInt tolmo___SkipReason( const KoChar *chs, KoInt length );
/** cause = 1*DIGIT (RFC 3326) */
KO_API KoInt tolmo___SkipReasonCause( const KoChar *chs, KoInt length );
/** protocol = token (RFC 3326) */
KO_API KoInt tolmo___SkipReasonProtocol( const KoChar *chs, KoInt length );
/** reason-text = quoted-string (RFC 3326) */
KO_API KoInt tolmo___SkipReasonText( const KoChar *chs, KoInt length );
/** route-param = name-addr generic-params */
KO_API KoInt tolmo___SkipRoute( const KoChar *chs, KoInt length );
/** uui-value = ( token / quoted-string ) generic-params (RFC 7433) */
KO_API KoInt tolmo___SkipUuiValue( const KoChar *chs, KoInt length );
/** SIP-Version = token SLASH token. The RFC has no whitespace here. */
KO_API KoInt tolmo___SkipVersion( const KoChar *chs, KoInt length );
/**
 * via-parm = token SLASH token SLASH token LWS host [ COLON port ] *( SEMI via-params )
 *
 * A colon without port voids the whole; in front of a semicolon without parameter it stops.
 */
KO_API KoInt tolmo___SkipVia( const KoChar *chs, KoInt length );
/** via-params = via-received / generic-param */
KO_API KoInt tolmo___SkipViaParams( const KoChar *chs, KoInt length );
/** via-received = "received" EQUAL ( IPv6address / IPv4address ) */
KO_API KoInt tolmo___SkipViaReceived( const KoChar *chs, KoInt length );
/** warn-agent = hostport / token: a token that begins as a host gives the host */
KO_API KoInt tolmo___SkipWarnAgent( const KoChar *chs, KoInt length );
/** warn-code = 3DIGIT, 0 when a fourth digit follows */
KO_API KoInt tolmo___SkipWarnCode( const KoChar *chs, KoInt length );
/** warn-text = quoted-string */
KO_API KoInt tolmo___SkipWarnText( const KoChar *chs, KoInt length );
/** warning-value = warn-code LWS warn-agent LWS warn-text. The RFC has single blanks. */
KO_API KoInt tolmo___SkipWarningValue( const KoChar *chs, KoInt length );

/** @} */

KO_END_DECLS

#endif
