/* The header User-to-User (RFC 7433 section 4). */
#ifndef TOLMO_HEADER_USER_TO_USER_H
#define TOLMO_HEADER_USER_TO_USER_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_uui_value.h>

KO_BEGIN_DECLS

/** Handle of a User-to-User header. */
typedef struct tolmo___HeaderUserToUser *TolmoHeaderUserToUser;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderUserToUserSort( void );
KO_API KoObj tolmoHeaderUserToUserObj( TolmoHeaderUserToUser hdr );
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserFrom( KoObj obj );
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserRetain( TolmoHeaderUserToUser hdr );
KO_API void tolmoHeaderUserToUserRelease( TolmoHeaderUserToUser hdr );
KO_API KoInt tolmoHeaderUserToUserCompare( TolmoHeaderUserToUser a, TolmoHeaderUserToUser b );
KO_API KoBool tolmoHeaderUserToUserEquals( TolmoHeaderUserToUser a, TolmoHeaderUserToUser b );
KO_API KoString tolmoHeaderUserToUserToString( TolmoHeaderUserToUser hdr );
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserCreateFrom( TolmoHeaderUserToUser source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoUuiValue over all lines; without a line it is empty. @{ */
KO_API TolmoMessageHeader tolmoHeaderUserToUserEncode( TolmoHeaderUserToUser hdr );
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderUserToUserEncodeToMessage( TolmoHeaderUserToUser hdr, TolmoMessage *msg );
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderUserToUserPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderUserToUserRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderUserToUserStore( TolmoHeaderUserToUser hdr );
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserTryRestore( KoStore store );
KO_API void tolmo___HeaderUserToUserStartup( void );
KO_API void tolmo___HeaderUserToUserShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderUserToUser tolmoHeaderUserToUserCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderUserToUserUuiValuesLength( TolmoHeaderUserToUser hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoUuiValue tolmoHeaderUserToUserTryDecodeUuiValueAt( TolmoHeaderUserToUser hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param value shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre value (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderUserToUserSetUuiValueAt( TolmoHeaderUserToUser *hdr, KoInt index, TolmoUuiValue value );
KO_API void tolmoHeaderUserToUserInsertUuiValue( TolmoHeaderUserToUser *hdr, KoInt index, TolmoUuiValue value );
KO_API void tolmoHeaderUserToUserPrependUuiValue( TolmoHeaderUserToUser *hdr, TolmoUuiValue value );
KO_API void tolmoHeaderUserToUserAppendUuiValue( TolmoHeaderUserToUser *hdr, TolmoUuiValue value );
KO_API void tolmoHeaderUserToUserDelUuiValueAt( TolmoHeaderUserToUser *hdr, KoInt index );
KO_API void tolmoHeaderUserToUserClearUuiValues( TolmoHeaderUserToUser *hdr );
/** @} */

KO_END_DECLS

#endif
