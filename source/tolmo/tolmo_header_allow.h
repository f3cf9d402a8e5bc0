/* The header Allow (RFC 3261 section 20.5). */
#ifndef TOLMO_HEADER_ALLOW_H
#define TOLMO_HEADER_ALLOW_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Allow header. */
typedef struct tolmo___HeaderAllow *TolmoHeaderAllow;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderAllowSort( void );
KO_API KoObj tolmoHeaderAllowObj( TolmoHeaderAllow hdr );
KO_API TolmoHeaderAllow tolmoHeaderAllowFrom( KoObj obj );
KO_API TolmoHeaderAllow tolmoHeaderAllowRetain( TolmoHeaderAllow hdr );
KO_API void tolmoHeaderAllowRelease( TolmoHeaderAllow hdr );
KO_API KoInt tolmoHeaderAllowCompare( TolmoHeaderAllow a, TolmoHeaderAllow b );
KO_API KoBool tolmoHeaderAllowEquals( TolmoHeaderAllow a, TolmoHeaderAllow b );
KO_API KoString tolmoHeaderAllowToString( TolmoHeaderAllow hdr );
KO_API TolmoHeaderAllow tolmoHeaderAllowCreateFrom( TolmoHeaderAllow source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of methods over all lines, printed on one line; without a line there is no header, and an
 * empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderAllowEncode( TolmoHeaderAllow hdr );
KO_API TolmoHeaderAllow tolmoHeaderAllowTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderAllowEncodeToMessage( TolmoHeaderAllow hdr, TolmoMessage *msg );
KO_API TolmoHeaderAllow tolmoHeaderAllowTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderAllowPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderAllowRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderAllowStore( TolmoHeaderAllow hdr );
KO_API TolmoHeaderAllow tolmoHeaderAllowTryRestore( KoStore store );
KO_API void tolmo___HeaderAllowStartup( void );
KO_API void tolmo___HeaderAllowShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderAllow tolmoHeaderAllowCreate( void );

/** @name Reading
 * The words stand in the order of their first setting. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderAllowMethodsLength( TolmoHeaderAllow hdr );
KO_API KoString tolmoHeaderAllowMethodAt( TolmoHeaderAllow hdr, KoInt index );
KO_API KoVector tolmoHeaderAllowMethodsVector( TolmoHeaderAllow hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set; case matters. What is no method ends the process.
 * @param method shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoMethodOk( method ) @{ */
KO_API KoBool tolmoHeaderAllowHasMethod( TolmoHeaderAllow hdr, KoString method );
KO_API KoBool tolmoHeaderAllowHasMethodCstr( TolmoHeaderAllow hdr, const char *chs, KoInt length );
KO_API KoBool tolmoHeaderAllowHasMethodWcstr( TolmoHeaderAllow hdr, const uint16_t *chs, KoInt length );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param method shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoMethodOk( method ) @{ */
KO_API void tolmoHeaderAllowSetMethod( TolmoHeaderAllow *hdr, KoString method );
KO_API void tolmoHeaderAllowSetMethodCstr( TolmoHeaderAllow *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderAllowSetMethodWcstr( TolmoHeaderAllow *hdr, const uint16_t *chs, KoInt length );
KO_API void tolmoHeaderAllowDelMethod( TolmoHeaderAllow *hdr, KoString method );
KO_API void tolmoHeaderAllowDelMethodCstr( TolmoHeaderAllow *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderAllowDelMethodWcstr( TolmoHeaderAllow *hdr, const uint16_t *chs, KoInt length );
/** @} */

/**
 * Replaces the set by the text forms of the objects of a vector. A text that is no method ends the process midway.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param vec shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre vec
 * @pre tolmoMethodOk( method ) for each of them
 */
KO_API void tolmoHeaderAllowSetMethodsVector( TolmoHeaderAllow *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderAllowClearMethods( TolmoHeaderAllow *hdr );

KO_END_DECLS

#endif
