/* The header Min-SE (RFC 4028 section 5). */
#ifndef TOLMO_HEADER_MIN_SE_H
#define TOLMO_HEADER_MIN_SE_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Min-SE header. */
typedef struct tolmo___HeaderMinSe *TolmoHeaderMinSe;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderMinSeSort( void );
KO_API KoObj tolmoHeaderMinSeObj( TolmoHeaderMinSe hdr );
KO_API TolmoHeaderMinSe tolmoHeaderMinSeFrom( KoObj obj );
KO_API TolmoHeaderMinSe tolmoHeaderMinSeRetain( TolmoHeaderMinSe hdr );
KO_API void tolmoHeaderMinSeRelease( TolmoHeaderMinSe hdr );
KO_API KoInt tolmoHeaderMinSeCompare( TolmoHeaderMinSe a, TolmoHeaderMinSe b );
KO_API KoBool tolmoHeaderMinSeEquals( TolmoHeaderMinSe a, TolmoHeaderMinSe b );
KO_API KoString tolmoHeaderMinSeToString( TolmoHeaderMinSe hdr );
KO_API TolmoHeaderMinSe tolmoHeaderMinSeCreateFrom( TolmoHeaderMinSe source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. What stands
 * behind the parameters, without a semicolon, is ignored. @{ */
KO_API TolmoMessageHeader tolmoHeaderMinSeEncode( TolmoHeaderMinSe hdr );
KO_API TolmoHeaderMinSe tolmoHeaderMinSeTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderMinSeEncodeToMessage( TolmoHeaderMinSe hdr, TolmoMessage *msg );
KO_API TolmoHeaderMinSe tolmoHeaderMinSeTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderMinSePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderMinSeRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderMinSeStore( TolmoHeaderMinSe hdr );
KO_API TolmoHeaderMinSe tolmoHeaderMinSeTryRestore( KoStore store );
KO_API void tolmo___HeaderMinSeStartup( void );
KO_API void tolmo___HeaderMinSeShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @return new reference.
 * @pre tolmoDeltaSecondsOk( deltaSeconds )
 */
KO_API TolmoHeaderMinSe tolmoHeaderMinSeCreate( KoInt deltaSeconds );

/** @name Seconds
 * Always there.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDeltaSecondsOk( deltaSeconds ) @{ */
KO_API KoInt tolmoHeaderMinSeDeltaSeconds( TolmoHeaderMinSe hdr );
KO_API void tolmoHeaderMinSeSetDeltaSeconds( TolmoHeaderMinSe *hdr, KoInt deltaSeconds );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderMinSeGenericParams( TolmoHeaderMinSe hdr );
KO_API void tolmoHeaderMinSeSetGenericParams( TolmoHeaderMinSe *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
