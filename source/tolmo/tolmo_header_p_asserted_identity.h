/* The header P-Asserted-Identity (RFC 3325 section 9.1). */
#ifndef TOLMO_HEADER_P_ASSERTED_IDENTITY_H
#define TOLMO_HEADER_P_ASSERTED_IDENTITY_H

#include <tolmo/tolmo_identity_value.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a P-Asserted-Identity header. */
typedef struct tolmo___HeaderPAssertedIdentity *TolmoHeaderPAssertedIdentity;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderPAssertedIdentitySort( void );
KO_API KoObj tolmoHeaderPAssertedIdentityObj( TolmoHeaderPAssertedIdentity hdr );
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityFrom( KoObj obj );
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityRetain( TolmoHeaderPAssertedIdentity hdr );
KO_API void tolmoHeaderPAssertedIdentityRelease( TolmoHeaderPAssertedIdentity hdr );
KO_API KoInt tolmoHeaderPAssertedIdentityCompare( TolmoHeaderPAssertedIdentity a, TolmoHeaderPAssertedIdentity b );
KO_API KoBool tolmoHeaderPAssertedIdentityEquals( TolmoHeaderPAssertedIdentity a, TolmoHeaderPAssertedIdentity b );
KO_API KoString tolmoHeaderPAssertedIdentityToString( TolmoHeaderPAssertedIdentity hdr );
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityCreateFrom( TolmoHeaderPAssertedIdentity source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoIdentityValue over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderPAssertedIdentityEncode( TolmoHeaderPAssertedIdentity hdr );
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderPAssertedIdentityEncodeToMessage( TolmoHeaderPAssertedIdentity hdr, TolmoMessage *msg );
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderPAssertedIdentityPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderPAssertedIdentityRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderPAssertedIdentityStore( TolmoHeaderPAssertedIdentity hdr );
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityTryRestore( KoStore store );
KO_API void tolmo___HeaderPAssertedIdentityStartup( void );
KO_API void tolmo___HeaderPAssertedIdentityShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderPAssertedIdentity tolmoHeaderPAssertedIdentityCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderPAssertedIdentityIdentityValuesLength( TolmoHeaderPAssertedIdentity hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoIdentityValue tolmoHeaderPAssertedIdentityTryDecodeIdentityValueAt( TolmoHeaderPAssertedIdentity hdr,
                                                                                KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param id shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre id (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderPAssertedIdentitySetIdentityValueAt( TolmoHeaderPAssertedIdentity *hdr, KoInt index,
                                                            TolmoIdentityValue id );
KO_API void tolmoHeaderPAssertedIdentityInsertIdentityValue( TolmoHeaderPAssertedIdentity *hdr, KoInt index,
                                                             TolmoIdentityValue id );
KO_API void tolmoHeaderPAssertedIdentityPrependIdentityValue( TolmoHeaderPAssertedIdentity *hdr,
                                                              TolmoIdentityValue id );
KO_API void tolmoHeaderPAssertedIdentityAppendIdentityValue( TolmoHeaderPAssertedIdentity *hdr, TolmoIdentityValue id );
KO_API void tolmoHeaderPAssertedIdentityDelIdentityValueAt( TolmoHeaderPAssertedIdentity *hdr, KoInt index );
KO_API void tolmoHeaderPAssertedIdentityClearIdentityValues( TolmoHeaderPAssertedIdentity *hdr );
/** @} */

KO_END_DECLS

#endif
