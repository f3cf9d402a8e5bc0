/* The header Accept-Resource-Priority (RFC 4412 section 3.2). */
#ifndef TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY_H
#define TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Accept-Resource-Priority header. */
typedef struct tolmo___HeaderAcceptResourcePriority *TolmoHeaderAcceptResourcePriority;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderAcceptResourcePrioritySort( void );
KO_API KoObj tolmoHeaderAcceptResourcePriorityObj( TolmoHeaderAcceptResourcePriority hdr );
KO_API TolmoHeaderAcceptResourcePriority tolmoHeaderAcceptResourcePriorityFrom( KoObj obj );
KO_API TolmoHeaderAcceptResourcePriority
tolmoHeaderAcceptResourcePriorityRetain( TolmoHeaderAcceptResourcePriority hdr );
KO_API void tolmoHeaderAcceptResourcePriorityRelease( TolmoHeaderAcceptResourcePriority hdr );
KO_API KoInt tolmoHeaderAcceptResourcePriorityCompare( TolmoHeaderAcceptResourcePriority a,
                                                       TolmoHeaderAcceptResourcePriority b );
KO_API KoBool tolmoHeaderAcceptResourcePriorityEquals( TolmoHeaderAcceptResourcePriority a,
                                                       TolmoHeaderAcceptResourcePriority b );
KO_API KoString tolmoHeaderAcceptResourcePriorityToString( TolmoHeaderAcceptResourcePriority hdr );
KO_API TolmoHeaderAcceptResourcePriority
tolmoHeaderAcceptResourcePriorityCreateFrom( TolmoHeaderAcceptResourcePriority source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of resource values over all lines, printed on a line each; without a line there is no
 * header. @{ */
KO_API TolmoMessageHeader tolmoHeaderAcceptResourcePriorityEncode( TolmoHeaderAcceptResourcePriority hdr );
KO_API TolmoHeaderAcceptResourcePriority tolmoHeaderAcceptResourcePriorityTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderAcceptResourcePriorityEncodeToMessage( TolmoHeaderAcceptResourcePriority hdr,
                                                              TolmoMessage *msg );
KO_API TolmoHeaderAcceptResourcePriority tolmoHeaderAcceptResourcePriorityTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderAcceptResourcePriorityPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderAcceptResourcePriorityRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderAcceptResourcePriorityStore( TolmoHeaderAcceptResourcePriority hdr );
KO_API TolmoHeaderAcceptResourcePriority tolmoHeaderAcceptResourcePriorityTryRestore( KoStore store );
KO_API void tolmo___HeaderAcceptResourcePriorityStartup( void );
KO_API void tolmo___HeaderAcceptResourcePriorityShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderAcceptResourcePriority tolmoHeaderAcceptResourcePriorityCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderAcceptResourcePriorityRvaluesLength( TolmoHeaderAcceptResourcePriority hdr );

/** An item. @return new reference. @pre hdr @pre the index is inside the list (the runtime's) */
KO_API KoString tolmoHeaderAcceptResourcePriorityRvalueAt( TolmoHeaderAcceptResourcePriority hdr, KoInt index );

/** @name Changing
 * Insertion is before the item at the index. Items are stored as they stand.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param rvalue shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoRvalueOk( rvalue )
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderAcceptResourcePrioritySetRvalueAt( TolmoHeaderAcceptResourcePriority *hdr, KoInt index,
                                                          KoString rvalue );
KO_API void tolmoHeaderAcceptResourcePriorityInsertRvalue( TolmoHeaderAcceptResourcePriority *hdr, KoInt index,
                                                           KoString rvalue );
KO_API void tolmoHeaderAcceptResourcePriorityPrependRvalue( TolmoHeaderAcceptResourcePriority *hdr, KoString rvalue );
KO_API void tolmoHeaderAcceptResourcePriorityAppendRvalue( TolmoHeaderAcceptResourcePriority *hdr, KoString rvalue );
KO_API void tolmoHeaderAcceptResourcePriorityDelRvalueAt( TolmoHeaderAcceptResourcePriority *hdr, KoInt index );
KO_API void tolmoHeaderAcceptResourcePriorityClearRvalues( TolmoHeaderAcceptResourcePriority *hdr );
/** @} */

KO_END_DECLS

#endif
