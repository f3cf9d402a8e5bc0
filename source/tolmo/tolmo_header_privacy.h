/* The header Privacy (RFC 3323 section 4.2). */
#ifndef TOLMO_HEADER_PRIVACY_H
#define TOLMO_HEADER_PRIVACY_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Privacy header. */
typedef struct tolmo___HeaderPrivacy *TolmoHeaderPrivacy;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderPrivacySort( void );
KO_API KoObj tolmoHeaderPrivacyObj( TolmoHeaderPrivacy hdr );
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyFrom( KoObj obj );
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyRetain( TolmoHeaderPrivacy hdr );
KO_API void tolmoHeaderPrivacyRelease( TolmoHeaderPrivacy hdr );
KO_API KoInt tolmoHeaderPrivacyCompare( TolmoHeaderPrivacy a, TolmoHeaderPrivacy b );
KO_API KoBool tolmoHeaderPrivacyEquals( TolmoHeaderPrivacy a, TolmoHeaderPrivacy b );
KO_API KoString tolmoHeaderPrivacyToString( TolmoHeaderPrivacy hdr );
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyCreateFrom( TolmoHeaderPrivacy source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of privacy types over all lines, between semicolons, printed on one line; without a line
 * there is no header, and an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderPrivacyEncode( TolmoHeaderPrivacy hdr );
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderPrivacyEncodeToMessage( TolmoHeaderPrivacy hdr, TolmoMessage *msg );
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderPrivacyPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderPrivacyRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderPrivacyStore( TolmoHeaderPrivacy hdr );
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyTryRestore( KoStore store );
KO_API void tolmo___HeaderPrivacyStartup( void );
KO_API void tolmo___HeaderPrivacyShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderPrivacy tolmoHeaderPrivacyCreate( void );

/** @name Reading
 * The words stand in the order of their first setting, in small letters. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderPrivacyPrivValuesLength( TolmoHeaderPrivacy hdr );
KO_API KoString tolmoHeaderPrivacyPrivValueAt( TolmoHeaderPrivacy hdr, KoInt index );
KO_API KoVector tolmoHeaderPrivacyPrivValuesVector( TolmoHeaderPrivacy hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set, in any case of its letters. What is no privacy type ends the process.
 * @param privValue shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoPrivValueOk( privValue ) @{ */
KO_API KoBool tolmoHeaderPrivacyHasPrivValue( TolmoHeaderPrivacy hdr, KoString privValue );
KO_API KoBool tolmoHeaderPrivacyHasPrivValueCstr( TolmoHeaderPrivacy hdr, const char *chs, KoInt length );
KO_API KoBool tolmoHeaderPrivacyHasPrivValueWcstr( TolmoHeaderPrivacy hdr, const uint16_t *chs, KoInt length );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param privValue shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoPrivValueOk( privValue ) @{ */
KO_API void tolmoHeaderPrivacySetPrivValue( TolmoHeaderPrivacy *hdr, KoString privValue );
KO_API void tolmoHeaderPrivacySetPrivValueCstr( TolmoHeaderPrivacy *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderPrivacySetPrivValueWcstr( TolmoHeaderPrivacy *hdr, const uint16_t *chs, KoInt length );
KO_API void tolmoHeaderPrivacyDelPrivValue( TolmoHeaderPrivacy *hdr, KoString privValue );
KO_API void tolmoHeaderPrivacyDelPrivValueCstr( TolmoHeaderPrivacy *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderPrivacyDelPrivValueWcstr( TolmoHeaderPrivacy *hdr, const uint16_t *chs, KoInt length );
/** @} */

/**
 * Replaces the set by the text forms of the objects of a vector. A text that is no privacy type ends the process
 * midway.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param vec shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre vec
 * @pre tolmoPrivValueOk( privValue ) for each of them
 */
KO_API void tolmoHeaderPrivacySetPrivValuesVector( TolmoHeaderPrivacy *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderPrivacyClearPrivValues( TolmoHeaderPrivacy *hdr );

KO_END_DECLS

#endif
