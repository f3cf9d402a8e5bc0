/* The exported skip functions: the preconditions, then the grammar of tolmo_skip.hpp. */
#include <tolmo/tolmo_skip.h>

#include <tolmo/tolmo_skip.hpp>

#define TOLMO_SKIP( function, Element )                                                                                \
    KoInt function( const KoChar *chs, KoInt length )                                                                  \
    {                                                                                                                  \
        KO_REQUIRE( length >= 0 );                                                                                     \
        KO_REQUIRE( chs || length == 0 );                                                                              \
        return tolmo::skip::Element( chs, length );                                                                    \
    }

#define TOLMO_SKIP_CHAR( function, Element )                                                                           \
    KoInt function( const KoChar *chs, KoInt length, KoChar ch )                                                       \
    {                                                                                                                  \
        KO_REQUIRE( length >= 0 );                                                                                     \
        KO_REQUIRE( chs || length == 0 );                                                                              \
        KO_REQUIRE( KO_CHAR_OK( ch ) );                                                                                \
        return tolmo::skip::Element( chs, length, ch );                                                                \
    }

#define TOLMO_SKIP_CHARS( function, Element )                                                                          \
    KoInt function( const KoChar *chs, KoInt length, const KoChar *skipChs, KoInt skipLength )                         \
    {                                                                                                                  \
        KO_REQUIRE( length >= 0 );                                                                                     \
        KO_REQUIRE( chs || length == 0 );                                                                              \
        KO_REQUIRE( skipLength >= 0 );                                                                                 \
        KO_REQUIRE( skipChs || skipLength == 0 );                                                                      \
        return tolmo::skip::Element( chs, length, skipChs, skipLength );                                               \
    }

#define TOLMO_SKIP_NAME( function, Element )                                                                           \
    KoInt function( const KoChar *chs, KoInt length, KoInt *value )                                                    \
    {                                                                                                                  \
        KO_REQUIRE( length >= 0 );                                                                                     \
        KO_REQUIRE( chs || length == 0 );                                                                              \
        return tolmo::skip::Element( chs, length, value );                                                             \
    }

TOLMO_SKIP( tolmo___SkipSws, Sws )
TOLMO_SKIP( tolmo___SkipLws, Lws )

TOLMO_SKIP_CHAR( tolmo___SkipChar, Char )
TOLMO_SKIP_CHAR( tolmo___SkipCharSws, CharSws )
TOLMO_SKIP_CHAR( tolmo___SkipSwsChar, SwsChar )
TOLMO_SKIP_CHAR( tolmo___SkipSwsCharSws, SwsCharSws )
TOLMO_SKIP_CHARS( tolmo___SkipChars, Chars )
TOLMO_SKIP_CHARS( tolmo___SkipCharsAsciiCaseFold, CharsAsciiCaseFold )

TOLMO_SKIP( tolmo___SkipHcolon, Hcolon )
TOLMO_SKIP( tolmo___SkipColon, Colon )
TOLMO_SKIP( tolmo___SkipComma, Comma )
TOLMO_SKIP( tolmo___SkipSemi, Semi )
TOLMO_SKIP( tolmo___SkipEqual, Equal )
TOLMO_SKIP( tolmo___SkipSlash, Slash )
TOLMO_SKIP( tolmo___SkipStar, Star )
TOLMO_SKIP( tolmo___SkipLparen, Lparen )
TOLMO_SKIP( tolmo___SkipRparen, Rparen )
TOLMO_SKIP( tolmo___SkipLaquot, Laquot )
TOLMO_SKIP( tolmo___SkipRaquot, Raquot )
TOLMO_SKIP( tolmo___SkipLdquot, Ldquot )
TOLMO_SKIP( tolmo___SkipRdquot, Rdquot )

TOLMO_SKIP( tolmo___SkipToken, Token )
TOLMO_SKIP( tolmo___SkipTokenNodot, TokenNodot )
TOLMO_SKIP( tolmo___SkipAtom, Atom )
TOLMO_SKIP( tolmo___SkipDotAtom, DotAtom )
TOLMO_SKIP( tolmo___SkipWord, Word )
TOLMO_SKIP( tolmo___SkipDigits, Digits )
TOLMO_SKIP( tolmo___SkipQuotedString, QuotedString )
TOLMO_SKIP( tolmo___SkipComment, Comment )

TOLMO_SKIP( tolmo___SkipDomainLabel, DomainLabel )
TOLMO_SKIP( tolmo___SkipHostname, Hostname )
TOLMO_SKIP( tolmo___SkipIpV4Address, IpV4Address )
TOLMO_SKIP( tolmo___SkipIpV6Address, IpV6Address )
TOLMO_SKIP( tolmo___SkipIpV6Reference, IpV6Reference )
TOLMO_SKIP( tolmo___SkipHost, Host )
TOLMO_SKIP( tolmo___SkipPort, Port )
TOLMO_SKIP( tolmo___SkipHostPort, HostPort )
TOLMO_SKIP( tolmo___SkipUser, User )
TOLMO_SKIP( tolmo___SkipPassword, Password )
TOLMO_SKIP( tolmo___SkipUric, Uric )
TOLMO_SKIP( tolmo___SkipPvalue, Pvalue )
TOLMO_SKIP( tolmo___SkipUri, Uri )
TOLMO_SKIP( tolmo___SkipAddrSpec, AddrSpec )
TOLMO_SKIP( tolmo___SkipNameAddr, NameAddr )
TOLMO_SKIP( tolmo___SkipDisplayName, DisplayName )

TOLMO_SKIP( tolmo___SkipBranch, Branch )
TOLMO_SKIP( tolmo___SkipCallId, CallId )
TOLMO_SKIP( tolmo___SkipContentCoding, ContentCoding )
TOLMO_SKIP( tolmo___SkipDeltaSeconds, DeltaSeconds )
TOLMO_SKIP( tolmo___SkipDispositionType, DispositionType )
TOLMO_SKIP( tolmo___SkipEmParam, EmParam )
TOLMO_SKIP( tolmo___SkipEpid, Epid )
TOLMO_SKIP( tolmo___SkipEventReasonValue, EventReasonValue )
TOLMO_SKIP( tolmo___SkipEventType, EventType )
TOLMO_SKIP( tolmo___SkipHandling, Handling )
TOLMO_SKIP( tolmo___SkipMediaSubtype, MediaSubtype )
TOLMO_SKIP( tolmo___SkipMediaType, MediaType )
TOLMO_SKIP( tolmo___SkipMessageHeaderName, MessageHeaderName )
TOLMO_SKIP( tolmo___SkipMethod, Method )
TOLMO_SKIP_NAME( tolmo___SkipMonth, Month )
TOLMO_SKIP( tolmo___SkipOptionTag, OptionTag )
TOLMO_SKIP( tolmo___SkipOrganization, Organization )
TOLMO_SKIP( tolmo___SkipPriorityValue, PriorityValue )
TOLMO_SKIP( tolmo___SkipPrivValue, PrivValue )
TOLMO_SKIP( tolmo___SkipProtocolName, ProtocolName )
TOLMO_SKIP( tolmo___SkipProtocolVersion, ProtocolVersion )
TOLMO_SKIP( tolmo___SkipPseudonym, Pseudonym )
TOLMO_SKIP( tolmo___SkipPurpose, Purpose )
TOLMO_SKIP( tolmo___SkipQvalue, Qvalue )
TOLMO_SKIP( tolmo___SkipRefresher, Refresher )
TOLMO_SKIP( tolmo___SkipRvalue, Rvalue )
TOLMO_SKIP( tolmo___SkipServer, Server )
TOLMO_SKIP( tolmo___SkipServerVal, ServerVal )
TOLMO_SKIP( tolmo___SkipSessUuid, SessUuid )
TOLMO_SKIP( tolmo___SkipSipCleanMsgId, SipCleanMsgId )
TOLMO_SKIP( tolmo___SkipSipInstance, SipInstance )
TOLMO_SKIP( tolmo___SkipSubject, Subject )
TOLMO_SKIP( tolmo___SkipSubstateValue, SubstateValue )
TOLMO_SKIP( tolmo___SkipTag, Tag )
TOLMO_SKIP( tolmo___SkipTimestampValue, TimestampValue )
TOLMO_SKIP( tolmo___SkipTransport, Transport )
TOLMO_SKIP( tolmo___SkipTtl, Ttl )
TOLMO_SKIP( tolmo___SkipUserAgent, UserAgent )
TOLMO_SKIP_NAME( tolmo___SkipWkday, Wkday )

TOLMO_SKIP( tolmo___SkipGenericParam, GenericParam )
TOLMO_SKIP( tolmo___SkipGenericParams, GenericParams )

TOLMO_SKIP( tolmo___SkipAccept, Accept )
TOLMO_SKIP( tolmo___SkipAcceptEncoding, AcceptEncoding )
TOLMO_SKIP( tolmo___SkipAlertInfo, AlertInfo )
TOLMO_SKIP( tolmo___SkipCallInfo, CallInfo )
TOLMO_SKIP( tolmo___SkipContact, Contact )
TOLMO_SKIP( tolmo___SkipDiversion, Diversion )
TOLMO_SKIP( tolmo___SkipDiversionCounter, DiversionCounter )
TOLMO_SKIP( tolmo___SkipDiversionLimit, DiversionLimit )
TOLMO_SKIP( tolmo___SkipDiversionPrivacy, DiversionPrivacy )
TOLMO_SKIP( tolmo___SkipDiversionReason, DiversionReason )
TOLMO_SKIP( tolmo___SkipDiversionScreen, DiversionScreen )
TOLMO_SKIP( tolmo___SkipErrorInfo, ErrorInfo )
TOLMO_SKIP( tolmo___SkipHistoryInfo, HistoryInfo )
TOLMO_SKIP( tolmo___SkipHistoryInfoIndex, HistoryInfoIndex )
TOLMO_SKIP( tolmo___SkipIdentityValue, IdentityValue )
TOLMO_SKIP( tolmo___SkipInfoPackageType, InfoPackageType )
TOLMO_SKIP( tolmo___SkipReason, Reason )
TOLMO_SKIP( tolmo___SkipReasonCause, ReasonCause )
TOLMO_SKIP( tolmo___SkipReasonProtocol, ReasonProtocol )
TOLMO_SKIP( tolmo___SkipReasonText, ReasonText )
TOLMO_SKIP( tolmo___SkipRoute, Route )
TOLMO_SKIP( tolmo___SkipUuiValue, UuiValue )
TOLMO_SKIP( tolmo___SkipVersion, Version )
TOLMO_SKIP( tolmo___SkipVia, Via )
TOLMO_SKIP( tolmo___SkipViaParams, ViaParams )
TOLMO_SKIP( tolmo___SkipViaReceived, ViaReceived )
TOLMO_SKIP( tolmo___SkipWarnAgent, WarnAgent )
TOLMO_SKIP( tolmo___SkipWarnCode, WarnCode )
TOLMO_SKIP( tolmo___SkipWarnText, WarnText )
TOLMO_SKIP( tolmo___SkipWarningValue, WarningValue )
