/* The header Subject (RFC 3261 section 20.36). */
#ifndef TOLMO_HEADER_SUBJECT_H
#define TOLMO_HEADER_SUBJECT_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Subject header. */
typedef struct tolmo___HeaderSubject *TolmoHeaderSubject;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderSubjectSort( void );
KO_API KoObj tolmoHeaderSubjectObj( TolmoHeaderSubject hdr );
KO_API TolmoHeaderSubject tolmoHeaderSubjectFrom( KoObj obj );
KO_API TolmoHeaderSubject tolmoHeaderSubjectRetain( TolmoHeaderSubject hdr );
KO_API void tolmoHeaderSubjectRelease( TolmoHeaderSubject hdr );
KO_API KoInt tolmoHeaderSubjectCompare( TolmoHeaderSubject a, TolmoHeaderSubject b );
KO_API KoBool tolmoHeaderSubjectEquals( TolmoHeaderSubject a, TolmoHeaderSubject b );
KO_API KoString tolmoHeaderSubjectToString( TolmoHeaderSubject hdr );
KO_API TolmoHeaderSubject tolmoHeaderSubjectCreateFrom( TolmoHeaderSubject source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderSubjectEncode( TolmoHeaderSubject hdr );
KO_API TolmoHeaderSubject tolmoHeaderSubjectTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderSubjectEncodeToMessage( TolmoHeaderSubject hdr, TolmoMessage *msg );
KO_API TolmoHeaderSubject tolmoHeaderSubjectTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderSubjectPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderSubjectRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderSubjectStore( TolmoHeaderSubject hdr );
KO_API TolmoHeaderSubject tolmoHeaderSubjectTryRestore( KoStore store );
KO_API void tolmo___HeaderSubjectStartup( void );
KO_API void tolmo___HeaderSubjectShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param subject shared, the caller keeps its reference; its normal form is stored.
 * @return new reference.
 * @pre subject
 * @pre tolmoSubjectOk( subject ): "subject invalid"
 */
KO_API TolmoHeaderSubject tolmoHeaderSubjectCreate( KoString subject );

/** The subject, in normal form. @return new reference. @pre hdr */
KO_API KoString tolmoHeaderSubjectSubject( TolmoHeaderSubject hdr );

/**
 * Sets the subject.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param subject shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr
 * @pre *hdr
 * @pre subject
 * @pre tolmoSubjectOk( subject ): "subject invalid"
 */
KO_API void tolmoHeaderSubjectSetSubject( TolmoHeaderSubject *hdr, KoString subject );

KO_END_DECLS

#endif
