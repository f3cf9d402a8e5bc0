/* A message that may be incomplete: headers, with or without a start line, with or without a body. */
#ifndef TOLMO_MESSAGE_FRAGMENT_H
#define TOLMO_MESSAGE_FRAGMENT_H

#include <runtime/ko_buffer.h>
#include <tolmo/tolmo_message_header.h>
#include <tolmo/tolmo_status_code.h>
#include <tolmo/tolmo_version.h>

KO_BEGIN_DECLS

/** Handle of a fragment. */
typedef struct tolmo___MessageFragment *TolmoMessageFragment;

/** @name Standard operations
 * See docs/objects.md. The sort has neither a compare nor a to-string function. @{ */
KO_API KoSort tolmoMessageFragmentSort( void );
KO_API KoObj tolmoMessageFragmentObj( TolmoMessageFragment frag );
KO_API TolmoMessageFragment tolmoMessageFragmentFrom( KoObj obj );
KO_API TolmoMessageFragment tolmoMessageFragmentRetain( TolmoMessageFragment frag );
KO_API void tolmoMessageFragmentRelease( TolmoMessageFragment frag );
KO_API KoInt tolmoMessageFragmentCompare( TolmoMessageFragment a, TolmoMessageFragment b );
KO_API KoBool tolmoMessageFragmentEquals( TolmoMessageFragment a, TolmoMessageFragment b );
KO_API KoString tolmoMessageFragmentToString( TolmoMessageFragment frag );
KO_API TolmoMessageFragment tolmoMessageFragmentCreateFrom( TolmoMessageFragment source );
/** @} */

/** A new fragment that is neither request nor response, without headers and body. @return new reference. */
KO_API TolmoMessageFragment tolmoMessageFragmentCreate( void );

/** @name A new request
 * What goes in is shared, the caller keeps its references.
 * @return new reference.
 * @pre version
 * @pre tolmoMethodOk( method )
 * @pre tolmoIriOk( iri ) @{ */
KO_API TolmoMessageFragment tolmoMessageFragmentCreateRequest( TolmoVersion version, KoString method, KoString iri );
KO_API TolmoMessageFragment tolmoMessageFragmentCreateRequestCstr( TolmoVersion version, const char *chs, KoInt length,
                                                                   KoString iri );
KO_API TolmoMessageFragment tolmoMessageFragmentCreateRequestWcstr( TolmoVersion version, const uint16_t *chs,
                                                                    KoInt length, KoString iri );
/** @} */

/** @name A new response
 * Without a phrase it gets tolmoStatusCodeReasonPhrase( sc ). What goes in is shared, the caller keeps its references.
 * @return new reference.
 * @pre version
 * @pre tolmoStatusCodeOk( sc )
 * @pre tolmoReasonPhraseOk( reasonPhrase ) @{ */
KO_API TolmoMessageFragment tolmoMessageFragmentCreateResponse( TolmoVersion version, KoInt sc );
KO_API TolmoMessageFragment tolmoMessageFragmentCreateResponseWithReasonPhrase( TolmoVersion version, KoInt sc,
                                                                                KoString reasonPhrase );
KO_API TolmoMessageFragment tolmoMessageFragmentCreateResponseWithReasonPhraseCstr( TolmoVersion version, KoInt sc,
                                                                                    const char *chs, KoInt length );
KO_API TolmoMessageFragment tolmoMessageFragmentCreateResponseWithReasonPhraseWcstr( TolmoVersion version, KoInt sc,
                                                                                     const uint16_t *chs,
                                                                                     KoInt length );
/** @} */

/** @name State
 * It follows from the start-line fields: no version is neither; a method, an IRI and a version are a request; a status
 * code and a phrase are a response. @pre frag @{ */
KO_API KoBool tolmoMessageFragmentIsNeitherRequestNorResponse( TolmoMessageFragment frag );
KO_API KoBool tolmoMessageFragmentIsRequest( TolmoMessageFragment frag );
KO_API KoBool tolmoMessageFragmentIsResponse( TolmoMessageFragment frag );
/** @} */

/** @name Changing the state
 * Headers and body stay. Allowed in every state.
 * @param frag address of the caller's handle, which may be replaced.
 * @pre frag
 * @pre *frag
 * @pre version
 * @pre as for the creators @{ */
KO_API void tolmoMessageFragmentSetNeitherRequestNorResponse( TolmoMessageFragment *frag );
KO_API void tolmoMessageFragmentSetRequest( TolmoMessageFragment *frag, TolmoVersion version, KoString method,
                                            KoString iri );
KO_API void tolmoMessageFragmentSetRequestCstr( TolmoMessageFragment *frag, TolmoVersion version, const char *chs,
                                                KoInt length, KoString iri );
KO_API void tolmoMessageFragmentSetRequestWcstr( TolmoMessageFragment *frag, TolmoVersion version, const uint16_t *chs,
                                                 KoInt length, KoString iri );
KO_API void tolmoMessageFragmentSetResponse( TolmoMessageFragment *frag, TolmoVersion version, KoInt sc );
KO_API void tolmoMessageFragmentSetResponseWithReasonPhrase( TolmoMessageFragment *frag, TolmoVersion version, KoInt sc,
                                                             KoString reasonPhrase );
KO_API void tolmoMessageFragmentSetResponseWithReasonPhraseCstr( TolmoMessageFragment *frag, TolmoVersion version,
                                                                 KoInt sc, const char *chs, KoInt length );
KO_API void tolmoMessageFragmentSetResponseWithReasonPhraseWcstr( TolmoMessageFragment *frag, TolmoVersion version,
                                                                  KoInt sc, const uint16_t *chs, KoInt length );
/** @} */

/** @name Start-line fields
 * Getters return a new reference, or null where the field is absent; the status code by value, or
 * TOLMO_STATUS_CODE_INVALID. @pre frag @{ */
KO_API KoString tolmoMessageFragmentRequestMethod( TolmoMessageFragment frag );
KO_API KoString tolmoMessageFragmentRequestIri( TolmoMessageFragment frag );
KO_API KoInt tolmoMessageFragmentResponseStatusCode( TolmoMessageFragment frag );
KO_API KoString tolmoMessageFragmentResponseReasonPhrase( TolmoMessageFragment frag );
KO_API TolmoVersion tolmoMessageFragmentVersion( TolmoMessageFragment frag );
KO_API KoBool tolmoMessageFragmentHasVersion( TolmoMessageFragment frag );
/** @} */

/** @name Changing one start-line field
 * Only where the field has a value, so that the state stays as it is (the IRI's setter asks for the method). With
 * `adjustReasonPhrase` the phrase becomes the default one of the code, without it it stays.
 * @param frag address of the caller's handle, which may be replaced.
 * @pre frag
 * @pre *frag
 * @pre tolmoMethodOk( method ), tolmoIriOk( iri ), tolmoStatusCodeOk( sc ), tolmoReasonPhraseOk( reasonPhrase ), version
 * @pre (*frag)->requestMethod for method and IRI, (*frag)->responseStatusCode != TOLMO_STATUS_CODE_INVALID,
 *      (*frag)->responseReasonPhrase, (*frag)->version @{ */
KO_API void tolmoMessageFragmentSetRequestMethod( TolmoMessageFragment *frag, KoString method );
KO_API void tolmoMessageFragmentSetRequestMethodCstr( TolmoMessageFragment *frag, const char *chs, KoInt length );
KO_API void tolmoMessageFragmentSetRequestMethodWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageFragmentSetRequestIri( TolmoMessageFragment *frag, KoString iri );
KO_API void tolmoMessageFragmentSetRequestIriCstr( TolmoMessageFragment *frag, const char *chs, KoInt length );
KO_API void tolmoMessageFragmentSetRequestIriWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageFragmentSetResponseStatusCode( TolmoMessageFragment *frag, KoInt sc,
                                                       KoBool adjustReasonPhrase );
KO_API void tolmoMessageFragmentSetResponseReasonPhrase( TolmoMessageFragment *frag, KoString reasonPhrase );
KO_API void tolmoMessageFragmentSetResponseReasonPhraseCstr( TolmoMessageFragment *frag, const char *chs,
                                                             KoInt length );
KO_API void tolmoMessageFragmentSetResponseReasonPhraseWcstr( TolmoMessageFragment *frag, const uint16_t *chs,
                                                              KoInt length );
KO_API void tolmoMessageFragmentSetVersion( TolmoMessageFragment *frag, TolmoVersion version );
/** @} */

/** @name Headers
 * By name: in any case, also by the compact form. A name that is no name ends the process, also in a query.
 * @pre frag
 * @pre tolmoMessageHeaderNameOk( name ) @{ */
/** All headers, in the order in which they are written. @return new reference: a vector of TolmoMessageHeader. */
KO_API KoVector tolmoMessageFragmentHeadersVector( TolmoMessageFragment frag );
KO_API KoBool tolmoMessageFragmentHasHeader( TolmoMessageFragment frag, KoString name );
KO_API KoBool tolmoMessageFragmentHasHeaderCstr( TolmoMessageFragment frag, const char *chs, KoInt length );
KO_API KoBool tolmoMessageFragmentHasHeaderWcstr( TolmoMessageFragment frag, const uint16_t *chs, KoInt length );
/** The header of a name. @return new reference, or null. */
KO_API TolmoMessageHeader tolmoMessageFragmentHeader( TolmoMessageFragment frag, KoString name );
KO_API TolmoMessageHeader tolmoMessageFragmentHeaderCstr( TolmoMessageFragment frag, const char *chs, KoInt length );
KO_API TolmoMessageHeader tolmoMessageFragmentHeaderWcstr( TolmoMessageFragment frag, const uint16_t *chs,
                                                           KoInt length );
/** The header `Content-Length`. @return new reference, or null. */
KO_API TolmoMessageHeader tolmoMessageFragmentHeaderContentLength( TolmoMessageFragment frag );
/** @} */

/** @name Changing headers
 * @param frag address of the caller's handle, which may be replaced.
 * @pre frag
 * @pre *frag @{ */
/** Sets a header under its own name: an older one of that name is replaced whole, in its place. The header is shared;
 * the caller's later changes of it do not reach the fragment. @pre header */
KO_API void tolmoMessageFragmentSetHeader( TolmoMessageFragment *frag, TolmoMessageHeader header );
/** Removes a header; a missing name is no fault. @pre tolmoMessageHeaderNameOk( name ) */
KO_API void tolmoMessageFragmentDelHeader( TolmoMessageFragment *frag, KoString name );
KO_API void tolmoMessageFragmentDelHeaderCstr( TolmoMessageFragment *frag, const char *chs, KoInt length );
KO_API void tolmoMessageFragmentDelHeaderWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length );
/** Removes all headers. */
KO_API void tolmoMessageFragmentClearHeaders( TolmoMessageFragment *frag );
/** @} */

/** @name Body
 * An empty buffer is a body. @{ */
/** @return new reference, or null. @pre frag */
KO_API KoBuffer tolmoMessageFragmentBody( TolmoMessageFragment frag );
/** @pre frag */
KO_API KoBool tolmoMessageFragmentHasBody( TolmoMessageFragment frag );
/** @param body shared, the caller keeps its reference. @pre frag @pre *frag @pre body */
KO_API void tolmoMessageFragmentSetBody( TolmoMessageFragment *frag, KoBuffer body );
/** @pre frag @pre *frag */
KO_API void tolmoMessageFragmentDelBody( TolmoMessageFragment *frag );
/** @} */

/**
 * Decodes a whole message or a block of headers (RFC 3261 section 7). The head ends at the first empty line, or with the
 * bytes. `Content-Length` is obeyed where there is one: bytes behind the body are dropped, a short body fails, and a
 * length of 0 means no body. A head of 2 GiB or more fails.
 *
 * @param buf shared, the caller keeps its reference; the fragment has copies of its own.
 * @return new reference, or null.
 * @pre buf
 */
KO_API TolmoMessageFragment tolmoMessageFragmentTryDecode( KoBuffer buf );

/**
 * Decodes a start line and header lines that no body follows.
 *
 * @param buf shared, the caller keeps its reference.
 * @param contentLength Receives the value of the header `Content-Length`, -1 without one; it is -1 or the value also
 *     when the result is null. May be null: then the header's value is not looked at.
 * @return new reference, or null.
 * @pre buf
 */
KO_API TolmoMessageFragment tolmoMessageFragmentTryDecodeHeaders( KoBuffer buf, KoInt *contentLength );

/**
 * The bytes of a fragment: its start line if it has one, its headers in their order with the names in normal form, one
 * physical line for each line, exactly one `Content-Length` with the true length of the body (in the place of the stored
 * one, else last), an empty line, the body.
 *
 * @return new reference.
 * @pre frag
 */
KO_API KoBuffer tolmoMessageFragmentEncode( TolmoMessageFragment frag );

/** Makes the constant of this unit, at the start of the module. */
KO_API void tolmo___MessageFragmentStartup( void );
/** Drops it, at the stop of the module. */
KO_API void tolmo___MessageFragmentShutdown( void );

KO_END_DECLS

#endif
