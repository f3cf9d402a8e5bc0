/* The header P-Preferred-Identity (RFC 3325 section 9.2). */
#ifndef TOLMO_HEADER_P_PREFERRED_IDENTITY_H
#define TOLMO_HEADER_P_PREFERRED_IDENTITY_H

#include <tolmo/tolmo_identity_value.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a P-Preferred-Identity header. */
typedef struct tolmo___HeaderPPreferredIdentity *TolmoHeaderPPreferredIdentity;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderPPreferredIdentitySort( void );
KO_API KoObj tolmoHeaderPPreferredIdentityObj( TolmoHeaderPPreferredIdentity hdr );
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityFrom( KoObj obj );
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityRetain( TolmoHeaderPPreferredIdentity hdr );
KO_API void tolmoHeaderPPreferredIdentityRelease( TolmoHeaderPPreferredIdentity hdr );
KO_API KoInt tolmoHeaderPPreferredIdentityCompare( TolmoHeaderPPreferredIdentity a, TolmoHeaderPPreferredIdentity b );
KO_API KoBool tolmoHeaderPPreferredIdentityEquals( TolmoHeaderPPreferredIdentity a, TolmoHeaderPPreferredIdentity b );
KO_API KoString tolmoHeaderPPreferredIdentityToString( TolmoHeaderPPreferredIdentity hdr );
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityCreateFrom( TolmoHeaderPPreferredIdentity source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoIdentityValue over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderPPreferredIdentityEncode( TolmoHeaderPPreferredIdentity hdr );
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderPPreferredIdentityEncodeToMessage( TolmoHeaderPPreferredIdentity hdr, TolmoMessage *msg );
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderPPreferredIdentityPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderPPreferredIdentityRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderPPreferredIdentityStore( TolmoHeaderPPreferredIdentity hdr );
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityTryRestore( KoStore store );
KO_API void tolmo___HeaderPPreferredIdentityStartup( void );
KO_API void tolmo___HeaderPPreferredIdentityShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderPPreferredIdentity tolmoHeaderPPreferredIdentityCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderPPreferredIdentityIdentityValuesLength( TolmoHeaderPPreferredIdentity hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoIdentityValue tolmoHeaderPPreferredIdentityTryDecodeIdentityValueAt( TolmoHeaderPPreferredIdentity hdr,
                                                                                 KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param id shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre id (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderPPreferredIdentitySetIdentityValueAt( TolmoHeaderPPreferredIdentity *hdr, KoInt index,
                                                             TolmoIdentityValue id );
KO_API void tolmoHeaderPPreferredIdentityInsertIdentityValue( TolmoHeaderPPreferredIdentity *hdr, KoInt index,
                                                              TolmoIdentityValue id );
KO_API void tolmoHeaderPPreferredIdentityPrependIdentityValue( TolmoHeaderPPreferredIdentity *hdr,
                                                               TolmoIdentityValue id );
KO_API void tolmoHeaderPPreferredIdentityAppendIdentityValue( TolmoHeaderPPreferredIdentity *hdr,
                                                              TolmoIdentityValue id );
KO_API void tolmoHeaderPPreferredIdentityDelIdentityValueAt( TolmoHeaderPPreferredIdentity *hdr, KoInt index );
KO_API void tolmoHeaderPPreferredIdentityClearIdentityValues( TolmoHeaderPPreferredIdentity *hdr );
/** @} */

KO_END_DECLS

#endif
