/* The header Contact (RFC 3261 section 20.10). */
#ifndef TOLMO_HEADER_CONTACT_H
#define TOLMO_HEADER_CONTACT_H

#include <tolmo/tolmo_contact.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Contact header. */
typedef struct tolmo___HeaderContact *TolmoHeaderContact;

/** @name Standard operations
 * See docs/objects.md. The star form and an empty list are equal. @{ */
KO_API KoSort tolmoHeaderContactSort( void );
KO_API KoObj tolmoHeaderContactObj( TolmoHeaderContact hdr );
KO_API TolmoHeaderContact tolmoHeaderContactFrom( KoObj obj );
KO_API TolmoHeaderContact tolmoHeaderContactRetain( TolmoHeaderContact hdr );
KO_API void tolmoHeaderContactRelease( TolmoHeaderContact hdr );
KO_API KoInt tolmoHeaderContactCompare( TolmoHeaderContact a, TolmoHeaderContact b );
KO_API KoBool tolmoHeaderContactEquals( TolmoHeaderContact a, TolmoHeaderContact b );
KO_API KoString tolmoHeaderContactToString( TolmoHeaderContact hdr );
KO_API TolmoHeaderContact tolmoHeaderContactCreateFrom( TolmoHeaderContact source );
/** @} */

/** @name Header operations
 * See docs/headers.md. Either `*` or a list of TolmoContact over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderContactEncode( TolmoHeaderContact hdr );
KO_API TolmoHeaderContact tolmoHeaderContactTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderContactEncodeToMessage( TolmoHeaderContact hdr, TolmoMessage *msg );
KO_API TolmoHeaderContact tolmoHeaderContactTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderContactPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderContactRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderContactStore( TolmoHeaderContact hdr );
KO_API TolmoHeaderContact tolmoHeaderContactTryRestore( KoStore store );
KO_API void tolmo___HeaderContactStartup( void );
KO_API void tolmo___HeaderContactShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderContact tolmoHeaderContactCreate( void );

/** @name Star form
 * `*` in place of a list: all contacts (RFC 3261 section 10.2.2). A header in star form has no items.
 *
 * The setter always takes all items away, also with KO_FALSE: it resets the header to an empty one of either form. Any
 * number but 0 is true.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for the setter then *hdr @{ */
KO_API KoBool tolmoHeaderContactIsStarForm( TolmoHeaderContact hdr );
KO_API void tolmoHeaderContactSetStarForm( TolmoHeaderContact *hdr, KoBool starForm );
/** @} */

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderContactContactsLength( TolmoHeaderContact hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoContact tolmoHeaderContactTryDecodeContactAt( TolmoHeaderContact hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index. Whatever puts a value in, and
 * Clear, ends the star form.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param contact shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre contact (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderContactSetContactAt( TolmoHeaderContact *hdr, KoInt index, TolmoContact contact );
KO_API void tolmoHeaderContactInsertContact( TolmoHeaderContact *hdr, KoInt index, TolmoContact contact );
KO_API void tolmoHeaderContactPrependContact( TolmoHeaderContact *hdr, TolmoContact contact );
KO_API void tolmoHeaderContactAppendContact( TolmoHeaderContact *hdr, TolmoContact contact );
KO_API void tolmoHeaderContactDelContactAt( TolmoHeaderContact *hdr, KoInt index );
KO_API void tolmoHeaderContactClear( TolmoHeaderContact *hdr );
/** @} */

KO_END_DECLS

#endif
