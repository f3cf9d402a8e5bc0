/* The header Server (RFC 3261 section 20.35). */
#ifndef TOLMO_HEADER_SERVER_H
#define TOLMO_HEADER_SERVER_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Server header. */
typedef struct tolmo___HeaderServer *TolmoHeaderServer;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderServerSort( void );
KO_API KoObj tolmoHeaderServerObj( TolmoHeaderServer hdr );
KO_API TolmoHeaderServer tolmoHeaderServerFrom( KoObj obj );
KO_API TolmoHeaderServer tolmoHeaderServerRetain( TolmoHeaderServer hdr );
KO_API void tolmoHeaderServerRelease( TolmoHeaderServer hdr );
KO_API KoInt tolmoHeaderServerCompare( TolmoHeaderServer a, TolmoHeaderServer b );
KO_API KoBool tolmoHeaderServerEquals( TolmoHeaderServer a, TolmoHeaderServer b );
KO_API KoString tolmoHeaderServerToString( TolmoHeaderServer hdr );
KO_API TolmoHeaderServer tolmoHeaderServerCreateFrom( TolmoHeaderServer source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderServerEncode( TolmoHeaderServer hdr );
KO_API TolmoHeaderServer tolmoHeaderServerTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderServerEncodeToMessage( TolmoHeaderServer hdr, TolmoMessage *msg );
KO_API TolmoHeaderServer tolmoHeaderServerTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderServerPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderServerRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderServerStore( TolmoHeaderServer hdr );
KO_API TolmoHeaderServer tolmoHeaderServerTryRestore( KoStore store );
KO_API void tolmo___HeaderServerStartup( void );
KO_API void tolmo___HeaderServerShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param server shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoServerOk( server )
 */
KO_API TolmoHeaderServer tolmoHeaderServerCreate( KoString server );

/** The description of the server. @return new reference. @pre hdr */
KO_API KoString tolmoHeaderServerServer( TolmoHeaderServer hdr );

/**
 * Sets the description of the server.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param server shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoServerOk( server )
 */
KO_API void tolmoHeaderServerSetServer( TolmoHeaderServer *hdr, KoString server );

KO_END_DECLS

#endif
