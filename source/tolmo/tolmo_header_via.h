/* The header Via (RFC 3261 section 20.42). */
#ifndef TOLMO_HEADER_VIA_H
#define TOLMO_HEADER_VIA_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_via.h>

KO_BEGIN_DECLS

/** Handle of a Via header. */
typedef struct tolmo___HeaderVia *TolmoHeaderVia;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderViaSort( void );
KO_API KoObj tolmoHeaderViaObj( TolmoHeaderVia hdr );
KO_API TolmoHeaderVia tolmoHeaderViaFrom( KoObj obj );
KO_API TolmoHeaderVia tolmoHeaderViaRetain( TolmoHeaderVia hdr );
KO_API void tolmoHeaderViaRelease( TolmoHeaderVia hdr );
KO_API KoInt tolmoHeaderViaCompare( TolmoHeaderVia a, TolmoHeaderVia b );
KO_API KoBool tolmoHeaderViaEquals( TolmoHeaderVia a, TolmoHeaderVia b );
KO_API KoString tolmoHeaderViaToString( TolmoHeaderVia hdr );
KO_API TolmoHeaderVia tolmoHeaderViaCreateFrom( TolmoHeaderVia source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoVia over all lines; without a line it is empty. @{ */
KO_API TolmoMessageHeader tolmoHeaderViaEncode( TolmoHeaderVia hdr );
KO_API TolmoHeaderVia tolmoHeaderViaTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderViaEncodeToMessage( TolmoHeaderVia hdr, TolmoMessage *msg );
KO_API TolmoHeaderVia tolmoHeaderViaTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderViaPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderViaRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderViaStore( TolmoHeaderVia hdr );
KO_API TolmoHeaderVia tolmoHeaderViaTryRestore( KoStore store );
KO_API void tolmo___HeaderViaStartup( void );
KO_API void tolmo___HeaderViaShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderVia tolmoHeaderViaCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderViaViasLength( TolmoHeaderVia hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoVia tolmoHeaderViaTryDecodeViaAt( TolmoHeaderVia hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param via shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre via (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderViaSetViaAt( TolmoHeaderVia *hdr, KoInt index, TolmoVia via );
KO_API void tolmoHeaderViaInsertVia( TolmoHeaderVia *hdr, KoInt index, TolmoVia via );
KO_API void tolmoHeaderViaPrependVia( TolmoHeaderVia *hdr, TolmoVia via );
KO_API void tolmoHeaderViaAppendVia( TolmoHeaderVia *hdr, TolmoVia via );
KO_API void tolmoHeaderViaDelViaAt( TolmoHeaderVia *hdr, KoInt index );
KO_API void tolmoHeaderViaClearVias( TolmoHeaderVia *hdr );
/** @} */

KO_END_DECLS

#endif
