/* The header Replaces (RFC 3891 section 6.1). */
#ifndef TOLMO_HEADER_REPLACES_H
#define TOLMO_HEADER_REPLACES_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Replaces header. */
typedef struct tolmo___HeaderReplaces *TolmoHeaderReplaces;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderReplacesSort( void );
KO_API KoObj tolmoHeaderReplacesObj( TolmoHeaderReplaces hdr );
KO_API TolmoHeaderReplaces tolmoHeaderReplacesFrom( KoObj obj );
KO_API TolmoHeaderReplaces tolmoHeaderReplacesRetain( TolmoHeaderReplaces hdr );
KO_API void tolmoHeaderReplacesRelease( TolmoHeaderReplaces hdr );
KO_API KoInt tolmoHeaderReplacesCompare( TolmoHeaderReplaces a, TolmoHeaderReplaces b );
KO_API KoBool tolmoHeaderReplacesEquals( TolmoHeaderReplaces a, TolmoHeaderReplaces b );
KO_API KoString tolmoHeaderReplacesToString( TolmoHeaderReplaces hdr );
KO_API TolmoHeaderReplaces tolmoHeaderReplacesCreateFrom( TolmoHeaderReplaces source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts. Without a line, tolmoHeaderReplacesTryDecode,
 * tolmoHeaderReplacesTryDecodeFromMessage and tolmoHeaderReplacesTryRestore end the process. A field hides no generic
 * parameter of its name: both go out. @{ */
KO_API TolmoMessageHeader tolmoHeaderReplacesEncode( TolmoHeaderReplaces hdr );
KO_API TolmoHeaderReplaces tolmoHeaderReplacesTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderReplacesEncodeToMessage( TolmoHeaderReplaces hdr, TolmoMessage *msg );
KO_API TolmoHeaderReplaces tolmoHeaderReplacesTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderReplacesPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderReplacesRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderReplacesStore( TolmoHeaderReplaces hdr );
KO_API TolmoHeaderReplaces tolmoHeaderReplacesTryRestore( KoStore store );
KO_API void tolmo___HeaderReplacesStartup( void );
KO_API void tolmo___HeaderReplacesShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @param callId shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoCallIdOk( callId )
 */
KO_API TolmoHeaderReplaces tolmoHeaderReplacesCreate( KoString callId );

/** @name Call identifier
 * Always there. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param callId shared, the caller keeps its reference.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoCallIdOk( callId ) @{ */
KO_API KoString tolmoHeaderReplacesCallId( TolmoHeaderReplaces hdr );
KO_API void tolmoHeaderReplacesSetCallId( TolmoHeaderReplaces *hdr, KoString callId );
/** @} */

/** @name Parameter from-tag
 * Optional. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param fromTag shared, the caller keeps its reference.
 * @pre hdr, for a change then *hdr
 * @pre tolmoTagOk( fromTag ) @{ */
KO_API KoBool tolmoHeaderReplacesHasFromTag( TolmoHeaderReplaces hdr );
KO_API KoString tolmoHeaderReplacesFromTag( TolmoHeaderReplaces hdr );
KO_API void tolmoHeaderReplacesSetFromTag( TolmoHeaderReplaces *hdr, KoString fromTag );
KO_API void tolmoHeaderReplacesDelFromTag( TolmoHeaderReplaces *hdr );
/** @} */

/** @name Parameter to-tag
 * Optional. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param toTag shared, the caller keeps its reference.
 * @pre hdr, for a change then *hdr
 * @pre tolmoTagOk( toTag ) @{ */
KO_API KoBool tolmoHeaderReplacesHasToTag( TolmoHeaderReplaces hdr );
KO_API KoString tolmoHeaderReplacesToTag( TolmoHeaderReplaces hdr );
KO_API void tolmoHeaderReplacesSetToTag( TolmoHeaderReplaces *hdr, KoString toTag );
KO_API void tolmoHeaderReplacesDelToTag( TolmoHeaderReplaces *hdr );
/** @} */

/** @name Parameter early-only
 * A flag, without a value on the wire.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr @{ */
KO_API KoBool tolmoHeaderReplacesEarlyOnly( TolmoHeaderReplaces hdr );
KO_API void tolmoHeaderReplacesSetEarlyOnly( TolmoHeaderReplaces *hdr, KoBool earlyOnly );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderReplacesGenericParams( TolmoHeaderReplaces hdr );
KO_API void tolmoHeaderReplacesSetGenericParams( TolmoHeaderReplaces *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
