/* The header In-Reply-To (RFC 3261 section 20.21). */
#ifndef TOLMO_HEADER_IN_REPLY_TO_H
#define TOLMO_HEADER_IN_REPLY_TO_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an In-Reply-To header. */
typedef struct tolmo___HeaderInReplyTo *TolmoHeaderInReplyTo;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderInReplyToSort( void );
KO_API KoObj tolmoHeaderInReplyToObj( TolmoHeaderInReplyTo hdr );
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToFrom( KoObj obj );
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToRetain( TolmoHeaderInReplyTo hdr );
KO_API void tolmoHeaderInReplyToRelease( TolmoHeaderInReplyTo hdr );
KO_API KoInt tolmoHeaderInReplyToCompare( TolmoHeaderInReplyTo a, TolmoHeaderInReplyTo b );
KO_API KoBool tolmoHeaderInReplyToEquals( TolmoHeaderInReplyTo a, TolmoHeaderInReplyTo b );
KO_API KoString tolmoHeaderInReplyToToString( TolmoHeaderInReplyTo hdr );
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToCreateFrom( TolmoHeaderInReplyTo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of call identifiers over all lines, printed on one line; without a line there is no
 * header, and an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderInReplyToEncode( TolmoHeaderInReplyTo hdr );
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderInReplyToEncodeToMessage( TolmoHeaderInReplyTo hdr, TolmoMessage *msg );
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderInReplyToPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderInReplyToRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderInReplyToStore( TolmoHeaderInReplyTo hdr );
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToTryRestore( KoStore store );
KO_API void tolmo___HeaderInReplyToStartup( void );
KO_API void tolmo___HeaderInReplyToShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderInReplyTo tolmoHeaderInReplyToCreate( void );

/** @name Reading
 * The words stand in the order of their first setting. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderInReplyToCallIdsLength( TolmoHeaderInReplyTo hdr );
KO_API KoString tolmoHeaderInReplyToCallIdAt( TolmoHeaderInReplyTo hdr, KoInt index );
KO_API KoVector tolmoHeaderInReplyToCallIdsVector( TolmoHeaderInReplyTo hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set; case matters. What is no call identifier ends the process.
 * @param callId shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoCallIdOk( callId ) @{ */
KO_API KoBool tolmoHeaderInReplyToHasCallId( TolmoHeaderInReplyTo hdr, KoString callId );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param callId shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoCallIdOk( callId ) @{ */
KO_API void tolmoHeaderInReplyToSetCallId( TolmoHeaderInReplyTo *hdr, KoString callId );
KO_API void tolmoHeaderInReplyToDelCallId( TolmoHeaderInReplyTo *hdr, KoString callId );
/** @} */

/**
 * Replaces the set by the text forms of the objects of a vector. A text that is no call identifier ends the process
 * midway.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param vec shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre vec
 * @pre tolmoCallIdOk( callId ) for each of them
 */
KO_API void tolmoHeaderInReplyToSetCallIdsVector( TolmoHeaderInReplyTo *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderInReplyToClearCallIds( TolmoHeaderInReplyTo *hdr );

KO_END_DECLS

#endif
