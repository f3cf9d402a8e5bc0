/* The header Priority (RFC 3261 section 20.26). */
#ifndef TOLMO_HEADER_PRIORITY_H
#define TOLMO_HEADER_PRIORITY_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Priority header. */
typedef struct tolmo___HeaderPriority *TolmoHeaderPriority;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderPrioritySort( void );
KO_API KoObj tolmoHeaderPriorityObj( TolmoHeaderPriority hdr );
KO_API TolmoHeaderPriority tolmoHeaderPriorityFrom( KoObj obj );
KO_API TolmoHeaderPriority tolmoHeaderPriorityRetain( TolmoHeaderPriority hdr );
KO_API void tolmoHeaderPriorityRelease( TolmoHeaderPriority hdr );
KO_API KoInt tolmoHeaderPriorityCompare( TolmoHeaderPriority a, TolmoHeaderPriority b );
KO_API KoBool tolmoHeaderPriorityEquals( TolmoHeaderPriority a, TolmoHeaderPriority b );
KO_API KoString tolmoHeaderPriorityToString( TolmoHeaderPriority hdr );
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreateFrom( TolmoHeaderPriority source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderPriorityEncode( TolmoHeaderPriority hdr );
KO_API TolmoHeaderPriority tolmoHeaderPriorityTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderPriorityEncodeToMessage( TolmoHeaderPriority hdr, TolmoMessage *msg );
KO_API TolmoHeaderPriority tolmoHeaderPriorityTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderPriorityPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderPriorityRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderPriorityStore( TolmoHeaderPriority hdr );
KO_API TolmoHeaderPriority tolmoHeaderPriorityTryRestore( KoStore store );
KO_API void tolmo___HeaderPriorityStartup( void );
KO_API void tolmo___HeaderPriorityShutdown( void );
/** @} */

/** @name Creation
 * A new header: of any token, or of one of the values that are known by name. The token is shared, the caller keeps its
 * reference; its normal form is stored.
 * @return new reference.
 * @pre tolmoPriorityValueOk( priorityValue ) @{ */
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreate( KoString priorityValue );
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreateEmergency( void );
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreateUrgent( void );
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreateNormal( void );
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreateNonUrgent( void );
KO_API TolmoHeaderPriority tolmoHeaderPriorityCreatePsapCallback( void );
/** @} */

/** @name Value
 * Always there: a token in small letters. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param priorityValue shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoPriorityValueOk( priorityValue ) @{ */
KO_API KoString tolmoHeaderPriorityPriorityValue( TolmoHeaderPriority hdr );
KO_API void tolmoHeaderPrioritySetPriorityValue( TolmoHeaderPriority *hdr, KoString priorityValue );
KO_API void tolmoHeaderPrioritySetEmergency( TolmoHeaderPriority *hdr );
KO_API void tolmoHeaderPrioritySetUrgent( TolmoHeaderPriority *hdr );
KO_API void tolmoHeaderPrioritySetNormal( TolmoHeaderPriority *hdr );
KO_API void tolmoHeaderPrioritySetNonUrgent( TolmoHeaderPriority *hdr );
KO_API void tolmoHeaderPrioritySetPsapCallback( TolmoHeaderPriority *hdr );
/** @} */

/** @name Known values
 * True when the value is `emergency`, `urgent`, `normal`, `non-urgent`, `psap-callback`. There is no test for a null
 * handle: it must not be given. @{ */
KO_API KoBool tolmoHeaderPriorityIsEmergency( TolmoHeaderPriority hdr );
KO_API KoBool tolmoHeaderPriorityIsUrgent( TolmoHeaderPriority hdr );
KO_API KoBool tolmoHeaderPriorityIsNormal( TolmoHeaderPriority hdr );
KO_API KoBool tolmoHeaderPriorityIsNonUrgent( TolmoHeaderPriority hdr );
KO_API KoBool tolmoHeaderPriorityIsPsapCallback( TolmoHeaderPriority hdr );
/** @} */

KO_END_DECLS

#endif
