/* The header Resource-Priority (RFC 4412 section 3.1). */
#ifndef TOLMO_HEADER_RESOURCE_PRIORITY_H
#define TOLMO_HEADER_RESOURCE_PRIORITY_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Resource-Priority header. */
typedef struct tolmo___HeaderResourcePriority *TolmoHeaderResourcePriority;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderResourcePrioritySort( void );
KO_API KoObj tolmoHeaderResourcePriorityObj( TolmoHeaderResourcePriority hdr );
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityFrom( KoObj obj );
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityRetain( TolmoHeaderResourcePriority hdr );
KO_API void tolmoHeaderResourcePriorityRelease( TolmoHeaderResourcePriority hdr );
KO_API KoInt tolmoHeaderResourcePriorityCompare( TolmoHeaderResourcePriority a, TolmoHeaderResourcePriority b );
KO_API KoBool tolmoHeaderResourcePriorityEquals( TolmoHeaderResourcePriority a, TolmoHeaderResourcePriority b );
KO_API KoString tolmoHeaderResourcePriorityToString( TolmoHeaderResourcePriority hdr );
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityCreateFrom( TolmoHeaderResourcePriority source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of resource values over all lines, printed on a line each; without a line it is empty. @{
 * */
KO_API TolmoMessageHeader tolmoHeaderResourcePriorityEncode( TolmoHeaderResourcePriority hdr );
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderResourcePriorityEncodeToMessage( TolmoHeaderResourcePriority hdr, TolmoMessage *msg );
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderResourcePriorityPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderResourcePriorityRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderResourcePriorityStore( TolmoHeaderResourcePriority hdr );
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityTryRestore( KoStore store );
KO_API void tolmo___HeaderResourcePriorityStartup( void );
KO_API void tolmo___HeaderResourcePriorityShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderResourcePriority tolmoHeaderResourcePriorityCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderResourcePriorityRvaluesLength( TolmoHeaderResourcePriority hdr );

/** An item. @return new reference. @pre hdr @pre the index is inside the list (the runtime's) */
KO_API KoString tolmoHeaderResourcePriorityRvalueAt( TolmoHeaderResourcePriority hdr, KoInt index );

/** @name Changing
 * Insertion is before the item at the index. Items are stored as they stand.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param rvalue shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoRvalueOk( rvalue )
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderResourcePrioritySetRvalueAt( TolmoHeaderResourcePriority *hdr, KoInt index, KoString rvalue );
KO_API void tolmoHeaderResourcePriorityInsertRvalue( TolmoHeaderResourcePriority *hdr, KoInt index, KoString rvalue );
KO_API void tolmoHeaderResourcePriorityPrependRvalue( TolmoHeaderResourcePriority *hdr, KoString rvalue );
KO_API void tolmoHeaderResourcePriorityAppendRvalue( TolmoHeaderResourcePriority *hdr, KoString rvalue );
KO_API void tolmoHeaderResourcePriorityDelRvalueAt( TolmoHeaderResourcePriority *hdr, KoInt index );
KO_API void tolmoHeaderResourcePriorityClearRvalues( TolmoHeaderResourcePriority *hdr );
/** @} */

KO_END_DECLS

#endif
