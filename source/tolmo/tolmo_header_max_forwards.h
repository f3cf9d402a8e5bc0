/* The header Max-Forwards (RFC 3261 section 20.22). */
#ifndef TOLMO_HEADER_MAX_FORWARDS_H
#define TOLMO_HEADER_MAX_FORWARDS_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Max-Forwards header. */
typedef struct tolmo___HeaderMaxForwards *TolmoHeaderMaxForwards;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderMaxForwardsSort( void );
KO_API KoObj tolmoHeaderMaxForwardsObj( TolmoHeaderMaxForwards hdr );
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsFrom( KoObj obj );
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsRetain( TolmoHeaderMaxForwards hdr );
KO_API void tolmoHeaderMaxForwardsRelease( TolmoHeaderMaxForwards hdr );
KO_API KoInt tolmoHeaderMaxForwardsCompare( TolmoHeaderMaxForwards a, TolmoHeaderMaxForwards b );
KO_API KoBool tolmoHeaderMaxForwardsEquals( TolmoHeaderMaxForwards a, TolmoHeaderMaxForwards b );
KO_API KoString tolmoHeaderMaxForwardsToString( TolmoHeaderMaxForwards hdr );
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsCreateFrom( TolmoHeaderMaxForwards source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderMaxForwardsEncode( TolmoHeaderMaxForwards hdr );
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderMaxForwardsEncodeToMessage( TolmoHeaderMaxForwards hdr, TolmoMessage *msg );
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderMaxForwardsPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderMaxForwardsRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderMaxForwardsStore( TolmoHeaderMaxForwards hdr );
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsTryRestore( KoStore store );
KO_API void tolmo___HeaderMaxForwardsStartup( void );
KO_API void tolmo___HeaderMaxForwardsShutdown( void );
/** @} */

/** A new header. @return new reference. @pre tolmoMaxForwardsOk( maxForwards ) */
KO_API TolmoHeaderMaxForwards tolmoHeaderMaxForwardsCreate( KoInt maxForwards );

/** The number of hops that are left, 0 to 255. @pre hdr */
KO_API KoInt tolmoHeaderMaxForwardsMaxForwards( TolmoHeaderMaxForwards hdr );

/**
 * Sets the number of hops that are left.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoMaxForwardsOk( maxForwards )
 */
KO_API void tolmoHeaderMaxForwardsSetMaxForwards( TolmoHeaderMaxForwards *hdr, KoInt maxForwards );

KO_END_DECLS

#endif
