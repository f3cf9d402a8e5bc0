/* The header Proxy-Require (RFC 3261 section 20.29). */
#ifndef TOLMO_HEADER_PROXY_REQUIRE_H
#define TOLMO_HEADER_PROXY_REQUIRE_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Proxy-Require header. */
typedef struct tolmo___HeaderProxyRequire *TolmoHeaderProxyRequire;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderProxyRequireSort( void );
KO_API KoObj tolmoHeaderProxyRequireObj( TolmoHeaderProxyRequire hdr );
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireFrom( KoObj obj );
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireRetain( TolmoHeaderProxyRequire hdr );
KO_API void tolmoHeaderProxyRequireRelease( TolmoHeaderProxyRequire hdr );
KO_API KoInt tolmoHeaderProxyRequireCompare( TolmoHeaderProxyRequire a, TolmoHeaderProxyRequire b );
KO_API KoBool tolmoHeaderProxyRequireEquals( TolmoHeaderProxyRequire a, TolmoHeaderProxyRequire b );
KO_API KoString tolmoHeaderProxyRequireToString( TolmoHeaderProxyRequire hdr );
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireCreateFrom( TolmoHeaderProxyRequire source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of option tags over all lines, printed on one line; without a line there is no header, and
 * an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderProxyRequireEncode( TolmoHeaderProxyRequire hdr );
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderProxyRequireEncodeToMessage( TolmoHeaderProxyRequire hdr, TolmoMessage *msg );
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderProxyRequirePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderProxyRequireRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderProxyRequireStore( TolmoHeaderProxyRequire hdr );
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireTryRestore( KoStore store );
KO_API void tolmo___HeaderProxyRequireStartup( void );
KO_API void tolmo___HeaderProxyRequireShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderProxyRequire tolmoHeaderProxyRequireCreate( void );

/** @name Reading
 * The words stand in the order of their first setting, in small letters. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderProxyRequireOptionTagsLength( TolmoHeaderProxyRequire hdr );
KO_API KoString tolmoHeaderProxyRequireOptionTagAt( TolmoHeaderProxyRequire hdr, KoInt index );
KO_API KoVector tolmoHeaderProxyRequireOptionTagsVector( TolmoHeaderProxyRequire hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set, in any case of its letters. What is no option tag ends the process.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API KoBool tolmoHeaderProxyRequireHasOptionTag( TolmoHeaderProxyRequire hdr, KoString optionTag );
KO_API KoBool tolmoHeaderProxyRequireHasOptionTagCstr( TolmoHeaderProxyRequire hdr, const char *chs, KoInt length );
KO_API KoBool tolmoHeaderProxyRequireHasOptionTagWcstr( TolmoHeaderProxyRequire hdr, const uint16_t *chs,
                                                        KoInt length );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param optionTag shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoOptionTagOk( optionTag ) @{ */
KO_API void tolmoHeaderProxyRequireSetOptionTag( TolmoHeaderProxyRequire *hdr, KoString optionTag );
KO_API void tolmoHeaderProxyRequireSetOptionTagCstr( TolmoHeaderProxyRequire *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderProxyRequireSetOptionTagWcstr( TolmoHeaderProxyRequire *hdr, const uint16_t *chs, KoInt length );
KO_API void tolmoHeaderProxyRequireDelOptionTag( TolmoHeaderProxyRequire *hdr, KoString optionTag );
KO_API void tolmoHeaderProxyRequireDelOptionTagCstr( TolmoHeaderProxyRequire *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderProxyRequireDelOptionTagWcstr( TolmoHeaderProxyRequire *hdr, const uint16_t *chs, KoInt length );
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
KO_API void tolmoHeaderProxyRequireSetOptionTagsVector( TolmoHeaderProxyRequire *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderProxyRequireClearOptionTags( TolmoHeaderProxyRequire *hdr );

KO_END_DECLS

#endif
