/* The header Unsupported (RFC 3261 section 20.40). */
#ifndef TOLMO_HEADER_UNSUPPORTED_H
#define TOLMO_HEADER_UNSUPPORTED_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Unsupported header. */
typedef struct tolmo___HeaderUnsupported *TolmoHeaderUnsupported;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderUnsupportedSort( void );
KO_API KoObj tolmoHeaderUnsupportedObj( TolmoHeaderUnsupported hdr );
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedFrom( KoObj obj );
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedRetain( TolmoHeaderUnsupported hdr );
KO_API void tolmoHeaderUnsupportedRelease( TolmoHeaderUnsupported hdr );
KO_API KoInt tolmoHeaderUnsupportedCompare( TolmoHeaderUnsupported a, TolmoHeaderUnsupported b );
KO_API KoBool tolmoHeaderUnsupportedEquals( TolmoHeaderUnsupported a, TolmoHeaderUnsupported b );
KO_API KoString tolmoHeaderUnsupportedToString( TolmoHeaderUnsupported hdr );
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedCreateFrom( TolmoHeaderUnsupported source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of option tags over all lines, printed on one line; without a line there is no header, and
 * an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderUnsupportedEncode( TolmoHeaderUnsupported hdr );
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderUnsupportedEncodeToMessage( TolmoHeaderUnsupported hdr, TolmoMessage *msg );
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderUnsupportedPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderUnsupportedRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderUnsupportedStore( TolmoHeaderUnsupported hdr );
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedTryRestore( KoStore store );
KO_API void tolmo___HeaderUnsupportedStartup( void );
KO_API void tolmo___HeaderUnsupportedShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderUnsupported tolmoHeaderUnsupportedCreate( void );

/** @name Reading
 * The words stand in the order of their first setting, in small letters. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderUnsupportedOptionTagsLength( TolmoHeaderUnsupported hdr );
KO_API KoString tolmoHeaderUnsupportedOptionTagAt( TolmoHeaderUnsupported hdr, KoInt index );
KO_API KoVector tolmoHeaderUnsupportedOptionTagsVector( TolmoHeaderUnsupported hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set, in any case of its letters. What is no option tag ends the process.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API KoBool tolmoHeaderUnsupportedHasOptionTag( TolmoHeaderUnsupported hdr, KoString optionTag );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API void tolmoHeaderUnsupportedSetOptionTag( TolmoHeaderUnsupported *hdr, KoString optionTag );
KO_API void tolmoHeaderUnsupportedDelOptionTag( TolmoHeaderUnsupported *hdr, KoString optionTag );
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
KO_API void tolmoHeaderUnsupportedSetOptionTagsVector( TolmoHeaderUnsupported *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderUnsupportedClearOptionTags( TolmoHeaderUnsupported *hdr );

KO_END_DECLS

#endif
