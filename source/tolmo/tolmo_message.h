/* A complete SIP request or response (RFC 3261 section 7): a fragment that has a start line. */
#ifndef TOLMO_MESSAGE_H
#define TOLMO_MESSAGE_H

#include <tolmo/tolmo_message_fragment.h>

KO_BEGIN_DECLS

/** Handle of a message. */
typedef struct tolmo___Message *TolmoMessage;

/** @name Standard operations
 * See docs/objects.md. The sort has neither a compare nor a to-string function. @{ */
KO_API KoSort tolmoMessageSort( void );
KO_API KoObj tolmoMessageObj( TolmoMessage msg );
KO_API TolmoMessage tolmoMessageFrom( KoObj obj );
KO_API TolmoMessage tolmoMessageRetain( TolmoMessage msg );
KO_API void tolmoMessageRelease( TolmoMessage msg );
KO_API KoInt tolmoMessageCompare( TolmoMessage a, TolmoMessage b );
KO_API KoBool tolmoMessageEquals( TolmoMessage a, TolmoMessage b );
KO_API KoString tolmoMessageToString( TolmoMessage msg );
KO_API TolmoMessage tolmoMessageCreateFrom( TolmoMessage source );
/** @} */

/**
 * A message over a fragment.
 *
 * @param fragment shared, the caller keeps its reference; its later changes do not reach the message.
 * @return new reference.
 * @pre fragment
 * @pre tolmoMessageFragmentIsRequest( fragment ) || tolmoMessageFragmentIsResponse( fragment )
 */
KO_API TolmoMessage tolmoMessageCreate( TolmoMessageFragment fragment );

/** @name A new request or response
 * As the creators of a fragment. @return new reference. @{ */
KO_API TolmoMessage tolmoMessageCreateRequest( TolmoVersion version, KoString method, KoString iri );
KO_API TolmoMessage tolmoMessageCreateRequestCstr( TolmoVersion version, const char *chs, KoInt length, KoString iri );
KO_API TolmoMessage tolmoMessageCreateRequestWcstr( TolmoVersion version, const uint16_t *chs, KoInt length,
                                                    KoString iri );
KO_API TolmoMessage tolmoMessageCreateResponse( TolmoVersion version, KoInt sc );
KO_API TolmoMessage tolmoMessageCreateResponseWithReasonPhrase( TolmoVersion version, KoInt sc, KoString reasonPhrase );
KO_API TolmoMessage tolmoMessageCreateResponseWithReasonPhraseCstr( TolmoVersion version, KoInt sc, const char *chs,
                                                                    KoInt length );
KO_API TolmoMessage tolmoMessageCreateResponseWithReasonPhraseWcstr( TolmoVersion version, KoInt sc,
                                                                     const uint16_t *chs, KoInt length );
/** @} */

/** The fragment: changes of it go through copy on write and do not reach the message. @return new reference. @pre msg */
KO_API TolmoMessageFragment tolmoMessageFragment( TolmoMessage msg );

/** @name Reading
 * As the operations of the same name of a fragment. @pre msg @{ */
KO_API KoBool tolmoMessageIsRequest( TolmoMessage msg );
KO_API KoBool tolmoMessageIsResponse( TolmoMessage msg );
KO_API KoString tolmoMessageRequestMethod( TolmoMessage msg );
KO_API KoString tolmoMessageRequestIri( TolmoMessage msg );
KO_API KoInt tolmoMessageResponseStatusCode( TolmoMessage msg );
KO_API KoString tolmoMessageResponseReasonPhrase( TolmoMessage msg );
KO_API TolmoVersion tolmoMessageVersion( TolmoMessage msg );
KO_API KoVector tolmoMessageHeadersVector( TolmoMessage msg );
KO_API KoBool tolmoMessageHasHeader( TolmoMessage msg, KoString name );
KO_API KoBool tolmoMessageHasHeaderCstr( TolmoMessage msg, const char *chs, KoInt length );
KO_API KoBool tolmoMessageHasHeaderWcstr( TolmoMessage msg, const uint16_t *chs, KoInt length );
KO_API TolmoMessageHeader tolmoMessageHeader( TolmoMessage msg, KoString name );
KO_API TolmoMessageHeader tolmoMessageHeaderCstr( TolmoMessage msg, const char *chs, KoInt length );
KO_API TolmoMessageHeader tolmoMessageHeaderWcstr( TolmoMessage msg, const uint16_t *chs, KoInt length );
KO_API KoBuffer tolmoMessageBody( TolmoMessage msg );
KO_API KoBool tolmoMessageHasBody( TolmoMessage msg );
KO_API KoBuffer tolmoMessageEncode( TolmoMessage msg );
/** @} */

/** @name Changing
 * As the operations of the same name of a fragment.
 * @param msg address of the caller's handle, which may be replaced.
 * @pre msg
 * @pre *msg @{ */
KO_API void tolmoMessageSetRequest( TolmoMessage *msg, TolmoVersion version, KoString method, KoString iri );
KO_API void tolmoMessageSetRequestCstr( TolmoMessage *msg, TolmoVersion version, const char *chs, KoInt length,
                                        KoString iri );
KO_API void tolmoMessageSetRequestWcstr( TolmoMessage *msg, TolmoVersion version, const uint16_t *chs, KoInt length,
                                         KoString iri );
KO_API void tolmoMessageSetRequestMethod( TolmoMessage *msg, KoString method );
KO_API void tolmoMessageSetRequestMethodCstr( TolmoMessage *msg, const char *chs, KoInt length );
KO_API void tolmoMessageSetRequestMethodWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageSetRequestIri( TolmoMessage *msg, KoString iri );
KO_API void tolmoMessageSetRequestIriCstr( TolmoMessage *msg, const char *chs, KoInt length );
KO_API void tolmoMessageSetRequestIriWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageSetResponse( TolmoMessage *msg, TolmoVersion version, KoInt sc );
KO_API void tolmoMessageSetResponseWithReasonPhrase( TolmoMessage *msg, TolmoVersion version, KoInt sc,
                                                     KoString reasonPhrase );
KO_API void tolmoMessageSetResponseWithReasonPhraseCstr( TolmoMessage *msg, TolmoVersion version, KoInt sc,
                                                         const char *chs, KoInt length );
KO_API void tolmoMessageSetResponseWithReasonPhraseWcstr( TolmoMessage *msg, TolmoVersion version, KoInt sc,
                                                          const uint16_t *chs, KoInt length );
KO_API void tolmoMessageSetResponseStatusCode( TolmoMessage *msg, KoInt sc, KoBool adjustReasonPhrase );
KO_API void tolmoMessageSetResponseReasonPhrase( TolmoMessage *msg, KoString reasonPhrase );
KO_API void tolmoMessageSetResponseReasonPhraseCstr( TolmoMessage *msg, const char *chs, KoInt length );
KO_API void tolmoMessageSetResponseReasonPhraseWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageSetVersion( TolmoMessage *msg, TolmoVersion version );
KO_API void tolmoMessageSetHeader( TolmoMessage *msg, TolmoMessageHeader header );
KO_API void tolmoMessageDelHeader( TolmoMessage *msg, KoString name );
KO_API void tolmoMessageDelHeaderCstr( TolmoMessage *msg, const char *chs, KoInt length );
KO_API void tolmoMessageDelHeaderWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageSetBody( TolmoMessage *msg, KoBuffer body );
KO_API void tolmoMessageDelBody( TolmoMessage *msg );
/** @} */

/**
 * Decodes a message that came as a whole, as in a datagram: tolmoMessageFragmentTryDecode, and a start line is needed.
 * No header is.
 *
 * @param buf shared, the caller keeps its reference.
 * @return new reference, or null.
 * @pre buf
 */
KO_API TolmoMessage tolmoMessageTryDecode( KoBuffer buf );

KO_END_DECLS

#endif
