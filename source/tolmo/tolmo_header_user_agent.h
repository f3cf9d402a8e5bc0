/* The header User-Agent (RFC 3261 section 20.41). */
#ifndef TOLMO_HEADER_USER_AGENT_H
#define TOLMO_HEADER_USER_AGENT_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a User-Agent header. */
typedef struct tolmo___HeaderUserAgent *TolmoHeaderUserAgent;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderUserAgentSort( void );
KO_API KoObj tolmoHeaderUserAgentObj( TolmoHeaderUserAgent hdr );
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentFrom( KoObj obj );
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentRetain( TolmoHeaderUserAgent hdr );
KO_API void tolmoHeaderUserAgentRelease( TolmoHeaderUserAgent hdr );
KO_API KoInt tolmoHeaderUserAgentCompare( TolmoHeaderUserAgent a, TolmoHeaderUserAgent b );
KO_API KoBool tolmoHeaderUserAgentEquals( TolmoHeaderUserAgent a, TolmoHeaderUserAgent b );
KO_API KoString tolmoHeaderUserAgentToString( TolmoHeaderUserAgent hdr );
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentCreateFrom( TolmoHeaderUserAgent source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderUserAgentEncode( TolmoHeaderUserAgent hdr );
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderUserAgentEncodeToMessage( TolmoHeaderUserAgent hdr, TolmoMessage *msg );
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderUserAgentPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderUserAgentRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderUserAgentStore( TolmoHeaderUserAgent hdr );
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentTryRestore( KoStore store );
KO_API void tolmo___HeaderUserAgentStartup( void );
KO_API void tolmo___HeaderUserAgentShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param userAgent shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoUserAgentOk( userAgent )
 */
KO_API TolmoHeaderUserAgent tolmoHeaderUserAgentCreate( KoString userAgent );

/** The description of the user agent. @return new reference. @pre hdr */
KO_API KoString tolmoHeaderUserAgentUserAgent( TolmoHeaderUserAgent hdr );

/**
 * Sets the description of the user agent.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param userAgent shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoUserAgentOk( userAgent )
 */
KO_API void tolmoHeaderUserAgentSetUserAgent( TolmoHeaderUserAgent *hdr, KoString userAgent );

KO_END_DECLS

#endif
