/* The header Require (RFC 3261 section 20.32). */
#ifndef TOLMO_HEADER_REQUIRE_H
#define TOLMO_HEADER_REQUIRE_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Require header. */
typedef struct tolmo___HeaderRequire *TolmoHeaderRequire;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderRequireSort( void );
KO_API KoObj tolmoHeaderRequireObj( TolmoHeaderRequire hdr );
KO_API TolmoHeaderRequire tolmoHeaderRequireFrom( KoObj obj );
KO_API TolmoHeaderRequire tolmoHeaderRequireRetain( TolmoHeaderRequire hdr );
KO_API void tolmoHeaderRequireRelease( TolmoHeaderRequire hdr );
KO_API KoInt tolmoHeaderRequireCompare( TolmoHeaderRequire a, TolmoHeaderRequire b );
KO_API KoBool tolmoHeaderRequireEquals( TolmoHeaderRequire a, TolmoHeaderRequire b );
KO_API KoString tolmoHeaderRequireToString( TolmoHeaderRequire hdr );
KO_API TolmoHeaderRequire tolmoHeaderRequireCreateFrom( TolmoHeaderRequire source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of option tags over all lines, printed on one line; without a line there is no header, and
 * an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderRequireEncode( TolmoHeaderRequire hdr );
KO_API TolmoHeaderRequire tolmoHeaderRequireTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRequireEncodeToMessage( TolmoHeaderRequire hdr, TolmoMessage *msg );
KO_API TolmoHeaderRequire tolmoHeaderRequireTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRequirePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRequireRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRequireStore( TolmoHeaderRequire hdr );
KO_API TolmoHeaderRequire tolmoHeaderRequireTryRestore( KoStore store );
KO_API void tolmo___HeaderRequireStartup( void );
KO_API void tolmo___HeaderRequireShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderRequire tolmoHeaderRequireCreate( void );

/** @name Reading
 * The words stand in the order of their first setting, in small letters. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderRequireOptionTagsLength( TolmoHeaderRequire hdr );
KO_API KoString tolmoHeaderRequireOptionTagAt( TolmoHeaderRequire hdr, KoInt index );
KO_API KoVector tolmoHeaderRequireOptionTagsVector( TolmoHeaderRequire hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set, in any case of its letters. What is no option tag ends the process.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API KoBool tolmoHeaderRequireHasOptionTag( TolmoHeaderRequire hdr, KoString optionTag );
KO_API KoBool tolmoHeaderRequireHasOptionTagCstr( TolmoHeaderRequire hdr, const char *chs, KoInt length );
KO_API KoBool tolmoHeaderRequireHasOptionTagWcstr( TolmoHeaderRequire hdr, const uint16_t *chs, KoInt length );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API void tolmoHeaderRequireSetOptionTag( TolmoHeaderRequire *hdr, KoString optionTag );
KO_API void tolmoHeaderRequireSetOptionTagCstr( TolmoHeaderRequire *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderRequireSetOptionTagWcstr( TolmoHeaderRequire *hdr, const uint16_t *chs, KoInt length );
KO_API void tolmoHeaderRequireDelOptionTag( TolmoHeaderRequire *hdr, KoString optionTag );
KO_API void tolmoHeaderRequireDelOptionTagCstr( TolmoHeaderRequire *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderRequireDelOptionTagWcstr( TolmoHeaderRequire *hdr, const uint16_t *chs, KoInt length );
/** @} */

/**
 * Replaces the set by the text forms of the objects of a vector. A text that is no option tag ends the process midway.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param vec shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre vec
 * @pre tolmoOptionTagOk( optionTag ) for each of them
 */
KO_API void tolmoHeaderRequireSetOptionTagsVector( TolmoHeaderRequire *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderRequireClearOptionTags( TolmoHeaderRequire *hdr );

KO_END_DECLS

#endif
