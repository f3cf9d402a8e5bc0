/* One item of a Contact header: an address and the parameters of a contact (RFC 3261 section 20.10). */
#ifndef TOLMO_CONTACT_H
#define TOLMO_CONTACT_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a contact. The `*` of a Contact header is none: see tolmo_header_contact.h. */
typedef struct tolmo___Contact *TolmoContact;

/** @name Standard operations
 * See docs/objects.md. Two contacts that differ in the flags +sip.src and +sip.srs alone are equal. @{ */
KO_API KoSort tolmoContactSort( void );
KO_API KoObj tolmoContactObj( TolmoContact contact );
KO_API TolmoContact tolmoContactFrom( KoObj obj );
KO_API TolmoContact tolmoContactRetain( TolmoContact contact );
KO_API void tolmoContactRelease( TolmoContact contact );
KO_API KoInt tolmoContactCompare( TolmoContact a, TolmoContact b );
KO_API KoBool tolmoContactEquals( TolmoContact a, TolmoContact b );
KO_API KoString tolmoContactToString( TolmoContact contact );
KO_API TolmoContact tolmoContactCreateFrom( TolmoContact source );
/** @} */

/**
 * An address without a display name and without parameters.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoContact tolmoContactCreate( KoString iri );

/** @name Address
 * Always there: an IRI, of any scheme. The getter returns a new reference; what the setter gets is shared, the caller keeps
 * its reference.
 * @param contact for the setter: address of the caller's handle, which may be replaced.
 * @pre contact, for the setter then *contact
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoContactIri( TolmoContact contact );
KO_API void tolmoContactSetIri( TolmoContact *contact, KoString iri );
/** @} */

/** @name Display name
 * Optional, without quotes and escapes; may be present and empty. It is stored as it is given: the setter shares it, the
 * caller keeps its reference. The getter returns a new reference, or null.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoContactHasDisplayName( TolmoContact contact );
KO_API KoString tolmoContactDisplayName( TolmoContact contact );
KO_API void tolmoContactSetDisplayName( TolmoContact *contact, KoString displayName );
KO_API void tolmoContactDelDisplayName( TolmoContact *contact );
/** @} */

/** @name Parameter q
 * Optional: the preference in thousandths, 0 to 1000; -1 when absent.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoQvalueOk( qvalue ) @{ */
KO_API KoBool tolmoContactHasQvalue( TolmoContact contact );
KO_API KoInt tolmoContactQvalue( TolmoContact contact );
KO_API void tolmoContactSetQvalue( TolmoContact *contact, KoInt qvalue );
KO_API void tolmoContactDelQvalue( TolmoContact *contact );
/** @} */

/** @name Parameter expires
 * Optional: the lifetime in seconds; -1 when absent.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoDeltaSecondsOk( expires ) @{ */
KO_API KoBool tolmoContactHasExpires( TolmoContact contact );
KO_API KoInt tolmoContactExpires( TolmoContact contact );
KO_API void tolmoContactSetExpires( TolmoContact *contact, KoInt expires );
KO_API void tolmoContactDelExpires( TolmoContact *contact );
/** @} */

/** @name Parameter rc (RFC 7044)
 * Optional: a History-Info index, a text of numbers and dots that is not read as a number. The setter shares it, the caller
 * keeps its reference. The getter returns a new reference, or null.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoHistoryInfoIndexOk( rc ) @{ */
KO_API KoBool tolmoContactHasRc( TolmoContact contact );
KO_API KoString tolmoContactRc( TolmoContact contact );
KO_API void tolmoContactSetRc( TolmoContact *contact, KoString rc );
KO_API void tolmoContactDelRc( TolmoContact *contact );
/** @} */

/** @name Parameter mp (RFC 7044)
 * Optional: a History-Info index, a text of numbers and dots that is not read as a number. The setter shares it, the caller
 * keeps its reference. The getter returns a new reference, or null.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoHistoryInfoIndexOk( mp ) @{ */
KO_API KoBool tolmoContactHasMp( TolmoContact contact );
KO_API KoString tolmoContactMp( TolmoContact contact );
KO_API void tolmoContactSetMp( TolmoContact *contact, KoString mp );
KO_API void tolmoContactDelMp( TolmoContact *contact );
/** @} */

/** @name Parameter np (RFC 7044)
 * Optional: a History-Info index, a text of numbers and dots that is not read as a number. The setter shares it, the caller
 * keeps its reference. The getter returns a new reference, or null.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoHistoryInfoIndexOk( np ) @{ */
KO_API KoBool tolmoContactHasNp( TolmoContact contact );
KO_API KoString tolmoContactNp( TolmoContact contact );
KO_API void tolmoContactSetNp( TolmoContact *contact, KoString np );
KO_API void tolmoContactDelNp( TolmoContact *contact );
/** @} */

/** @name Parameter +sip.instance (RFC 5626)
 * Optional: the instance in its angle brackets, without the quotes that stand around it on the wire. The setter shares it,
 * the caller keeps its reference. The getter returns a new reference, or null.
 * @param contact for a setter: address of the caller's handle, which may be replaced.
 * @pre contact, for a setter then *contact
 * @pre tolmoSipInstanceOk( sipInstance ) @{ */
KO_API KoBool tolmoContactHasSipInstance( TolmoContact contact );
KO_API KoString tolmoContactSipInstance( TolmoContact contact );
KO_API void tolmoContactSetSipInstance( TolmoContact *contact, KoString sipInstance );
KO_API void tolmoContactDelSipInstance( TolmoContact *contact );
/** @} */

/** @name Flags +sip.src and +sip.srs (RFC 7866)
 * Parameters without a value. Any number but 0 sets a flag.
 *
 * Unlike all other setters these two make no copy: they write into the contact itself, so that all who share it see the
 * change. Callers have to see to it that no other thread uses the contact meanwhile.
 * @param contact for a setter: address of the caller's handle, which stays.
 * @pre contact, for a setter then *contact @{ */
KO_API KoBool tolmoContactSipSrc( TolmoContact contact );
KO_API void tolmoContactSetSipSrc( TolmoContact *contact, KoBool sipSrc );
KO_API KoBool tolmoContactSipSrs( TolmoContact contact );
KO_API void tolmoContactSetSipSrs( TolmoContact *contact, KoBool sipSrs );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference; what the setter
 * gets is shared, the caller keeps its reference.
 * @param contact for the setter: address of the caller's handle, which may be replaced.
 * @pre contact, for the setter then *contact
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoContactGenericParams( TolmoContact contact );
KO_API void tolmoContactSetGenericParams( TolmoContact *contact, TolmoGenericParams genericParams );
/** @} */

/** The wire text, always in angle brackets; the parameters that have a field come first, in the order of this file, and hide
 * those of their name among the others. @return new reference. @pre contact */
KO_API KoString tolmo___ContactEncode( TolmoContact contact );

/**
 * Decodes exactly one item: `[ display-name ] "<" URI ">"`, or a bare URI, which ends at the first semicolon; then the
 * parameters.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoContact tolmo___ContactTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
