/* The header Supported (RFC 3261 section 20.37). */
#ifndef TOLMO_HEADER_SUPPORTED_H
#define TOLMO_HEADER_SUPPORTED_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Supported header. */
typedef struct tolmo___HeaderSupported *TolmoHeaderSupported;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderSupportedSort( void );
KO_API KoObj tolmoHeaderSupportedObj( TolmoHeaderSupported hdr );
KO_API TolmoHeaderSupported tolmoHeaderSupportedFrom( KoObj obj );
KO_API TolmoHeaderSupported tolmoHeaderSupportedRetain( TolmoHeaderSupported hdr );
KO_API void tolmoHeaderSupportedRelease( TolmoHeaderSupported hdr );
KO_API KoInt tolmoHeaderSupportedCompare( TolmoHeaderSupported a, TolmoHeaderSupported b );
KO_API KoBool tolmoHeaderSupportedEquals( TolmoHeaderSupported a, TolmoHeaderSupported b );
KO_API KoString tolmoHeaderSupportedToString( TolmoHeaderSupported hdr );
KO_API TolmoHeaderSupported tolmoHeaderSupportedCreateFrom( TolmoHeaderSupported source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of option tags over all lines, printed on one line; without a line there is no header, and
 * an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderSupportedEncode( TolmoHeaderSupported hdr );
KO_API TolmoHeaderSupported tolmoHeaderSupportedTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderSupportedEncodeToMessage( TolmoHeaderSupported hdr, TolmoMessage *msg );
KO_API TolmoHeaderSupported tolmoHeaderSupportedTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderSupportedPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderSupportedRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderSupportedStore( TolmoHeaderSupported hdr );
KO_API TolmoHeaderSupported tolmoHeaderSupportedTryRestore( KoStore store );
KO_API void tolmo___HeaderSupportedStartup( void );
KO_API void tolmo___HeaderSupportedShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderSupported tolmoHeaderSupportedCreate( void );

/** @name Reading
 * The words stand in the order of their first setting, in small letters. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderSupportedOptionTagsLength( TolmoHeaderSupported hdr );
KO_API KoString tolmoHeaderSupportedOptionTagAt( TolmoHeaderSupported hdr, KoInt index );
KO_API KoVector tolmoHeaderSupportedOptionTagsVector( TolmoHeaderSupported hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set, in any case of its letters. What is no option tag ends the process.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API KoBool tolmoHeaderSupportedHasOptionTag( TolmoHeaderSupported hdr, KoString optionTag );
KO_API KoBool tolmoHeaderSupportedHasOptionTagCstr( TolmoHeaderSupported hdr, const char *chs, KoInt length );
KO_API KoBool tolmoHeaderSupportedHasOptionTagWcstr( TolmoHeaderSupported hdr, const uint16_t *chs, KoInt length );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API void tolmoHeaderSupportedSetOptionTag( TolmoHeaderSupported *hdr, KoString optionTag );
KO_API void tolmoHeaderSupportedSetOptionTagCstr( TolmoHeaderSupported *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderSupportedSetOptionTagWcstr( TolmoHeaderSupported *hdr, const uint16_t *chs, KoInt length );
KO_API void tolmoHeaderSupportedDelOptionTag( TolmoHeaderSupported *hdr, KoString optionTag );
KO_API void tolmoHeaderSupportedDelOptionTagCstr( TolmoHeaderSupported *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderSupportedDelOptionTagWcstr( TolmoHeaderSupported *hdr, const uint16_t *chs, KoInt length );
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
KO_API void tolmoHeaderSupportedSetOptionTagsVector( TolmoHeaderSupported *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderSupportedClearOptionTags( TolmoHeaderSupported *hdr );

KO_END_DECLS

#endif
