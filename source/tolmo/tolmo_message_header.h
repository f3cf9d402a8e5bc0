/* One header field of a message in raw form: a name, and a line of text for each time it stands in the message. */
#ifndef TOLMO_MESSAGE_HEADER_H
#define TOLMO_MESSAGE_HEADER_H

#include <runtime/ko_store.h>
#include <runtime/ko_vector.h>

KO_BEGIN_DECLS

/** Handle of a raw header. */
typedef struct tolmo___MessageHeader *TolmoMessageHeader;

/** @name Standard operations
 * See docs/objects.md. The sort has no to-string function. @{ */
KO_API KoSort tolmoMessageHeaderSort( void );
KO_API KoObj tolmoMessageHeaderObj( TolmoMessageHeader header );
KO_API TolmoMessageHeader tolmoMessageHeaderFrom( KoObj obj );
KO_API TolmoMessageHeader tolmoMessageHeaderRetain( TolmoMessageHeader header );
KO_API void tolmoMessageHeaderRelease( TolmoMessageHeader header );
KO_API KoInt tolmoMessageHeaderCompare( TolmoMessageHeader a, TolmoMessageHeader b );
KO_API KoBool tolmoMessageHeaderEquals( TolmoMessageHeader a, TolmoMessageHeader b );
KO_API KoString tolmoMessageHeaderToString( TolmoMessageHeader header );
KO_API TolmoMessageHeader tolmoMessageHeaderCreateFrom( TolmoMessageHeader source );
/** @} */

/** True when a string is a name of a header field: a token (RFC 3261 section 7.3.1). @pre name */
KO_API KoBool tolmoMessageHeaderNameOk( KoString name );

/**
 * The normal form of a name, which is also what goes out on the wire: a compact form (RFC 3261 section 7.3.3) becomes
 * the full name, each word between hyphens gets a capital first letter, all other letters are small. `v` and `VIA` give
 * `Via`, `call-id` gives `Call-Id`, `WWW-Authenticate` gives `Www-Authenticate`.
 *
 * @param name shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoMessageHeaderNameOk( name )
 */
KO_API KoString tolmoMessageHeaderNameNormalize( KoString name );

/** True when a string can be a line: the two characters CR LF do not stand in it. Nothing else is asked. @pre value */
KO_API KoBool tolmoMessageHeaderLineOk( KoString value );

/** @name Creation
 * A new header without lines. The name is shared, the caller keeps its reference; the normal form is stored.
 * @return new reference.
 * @pre tolmoMessageHeaderNameOk( name ) @{ */
KO_API TolmoMessageHeader tolmoMessageHeaderCreate( KoString name );
KO_API TolmoMessageHeader tolmoMessageHeaderCreateCstr( const char *chs, KoInt length );
KO_API TolmoMessageHeader tolmoMessageHeaderCreateWcstr( const uint16_t *chs, KoInt length );
/** @} */

/** The name, in its normal form. @return new reference. @pre header */
KO_API KoString tolmoMessageHeaderName( TolmoMessageHeader header );

/** @name Renaming
 * Replaces the name by the normal form of another one.
 * @param header address of the caller's handle, which may be replaced.
 * @pre header
 * @pre *header
 * @pre tolmoMessageHeaderNameOk( name ) @{ */
KO_API void tolmoMessageHeaderSetName( TolmoMessageHeader *header, KoString name );
KO_API void tolmoMessageHeaderSetNameCstr( TolmoMessageHeader *header, const char *chs, KoInt length );
KO_API void tolmoMessageHeaderSetNameWcstr( TolmoMessageHeader *header, const uint16_t *chs, KoInt length );
/** @} */

/** @name Comparison of the name
 * True when the header's name equals the normal form of another one.
 * @pre header
 * @pre tolmoMessageHeaderNameOk( name ) @{ */
KO_API KoBool tolmoMessageHeaderNameEquals( TolmoMessageHeader header, KoString name );
KO_API KoBool tolmoMessageHeaderNameEqualsCstr( TolmoMessageHeader header, const char *chs, KoInt length );
KO_API KoBool tolmoMessageHeaderNameEqualsWcstr( TolmoMessageHeader header, const uint16_t *chs, KoInt length );
/** @} */

/** The lines: a vector of strings. @return new reference. @pre header */
KO_API KoVector tolmoMessageHeaderLinesVector( TolmoMessageHeader header );

/**
 * Replaces all lines by the strings of a vector.
 *
 * @param header address of the caller's handle, which may be replaced.
 * @param lines shared, the caller keeps its reference; its later changes do not reach the header.
 * @pre header
 * @pre *header
 * @pre lines
 * @pre koVectorContainsOnly( lines, koStringSort() )
 * @pre tolmoMessageHeaderLineOk( line ) for each of them
 */
KO_API void tolmoMessageHeaderSetLinesVector( TolmoMessageHeader *header, KoVector lines );

/** The number of lines. @pre header */
KO_API KoInt tolmoMessageHeaderLinesLength( TolmoMessageHeader header );

/** A line. @return new reference. @pre header @pre the index is inside the vector (the runtime's) */
KO_API KoString tolmoMessageHeaderLineAt( TolmoMessageHeader header, KoInt index );

/** The last line. @return new reference, or null when there are no lines. @pre header */
KO_API KoString tolmoMessageHeaderLastLine( TolmoMessageHeader header );

/** @name Appending a line
 * Adds a line at the end. The format forms take the directives of koStringCreateFromFormatCstr.
 * @param header address of the caller's handle, which may be replaced.
 * @param value shared, the caller keeps its reference.
 * @pre header
 * @pre *header
 * @pre tolmoMessageHeaderLineOk( value ) @{ */
KO_API void tolmoMessageHeaderAppendLine( TolmoMessageHeader *header, KoString value );
KO_API void tolmoMessageHeaderAppendLineCstr( TolmoMessageHeader *header, const char *chs, KoInt length );
KO_API void tolmoMessageHeaderAppendLineWcstr( TolmoMessageHeader *header, const uint16_t *chs, KoInt length );
KO_API void tolmoMessageHeaderAppendLineFormat( TolmoMessageHeader *header, KoString format, ... );
KO_API void tolmoMessageHeaderAppendLineFormatCstr( TolmoMessageHeader *header, const char *format, KoInt length, ... );
KO_API void tolmoMessageHeaderAppendLineFormatWcstr( TolmoMessageHeader *header, const uint16_t *format, KoInt length,
                                                     ... );
/** @} */

/** @name Replacing a line
 * @param header address of the caller's handle, which may be replaced.
 * @param value shared, the caller keeps its reference.
 * @pre header
 * @pre *header
 * @pre tolmoMessageHeaderLineOk( value )
 * @pre the index is inside the vector (the runtime's) @{ */
KO_API void tolmoMessageHeaderSetLineAt( TolmoMessageHeader *header, KoInt index, KoString value );
KO_API void tolmoMessageHeaderSetLineAtCstr( TolmoMessageHeader *header, KoInt index, const char *chs, KoInt length );
KO_API void tolmoMessageHeaderSetLineAtWcstr( TolmoMessageHeader *header, KoInt index, const uint16_t *chs,
                                              KoInt length );
KO_API void tolmoMessageHeaderSetLineAtFormat( TolmoMessageHeader *header, KoInt index, KoString format, ... );
KO_API void tolmoMessageHeaderSetLineAtFormatCstr( TolmoMessageHeader *header, KoInt index, const char *format,
                                                   KoInt length, ... );
KO_API void tolmoMessageHeaderSetLineAtFormatWcstr( TolmoMessageHeader *header, KoInt index, const uint16_t *format,
                                                    KoInt length, ... );
/** @} */

/**
 * Removes a line.
 *
 * @param header address of the caller's handle, which may be replaced.
 * @pre header
 * @pre *header
 * @pre the index is inside the vector (the runtime's)
 */
KO_API void tolmoMessageHeaderDelLineAt( TolmoMessageHeader *header, KoInt index );

/** The whole header as a store: "name", a string, and "lines", an array of strings. @return new reference. @pre header */
KO_API KoStore tolmoMessageHeaderStore( TolmoMessageHeader header );

/** The lines alone, as an array store. @return new reference. @pre header */
KO_API KoStore tolmoMessageHeaderStoreLines( TolmoMessageHeader header );

/**
 * A header from what tolmoMessageHeaderStore gave. A store with a good name has to have its lines: a missing "lines" is
 * no bad data but ends the process.
 *
 * @return new reference; null when "name" is missing or no name.
 * @pre store
 */
KO_API TolmoMessageHeader tolmoMessageHeaderTryRestore( KoStore store );

/** @name Restoring lines
 * A header from a name and what tolmoMessageHeaderStoreLines gave. An entry that is no string, or no line, is left out.
 * @return new reference.
 * @pre tolmoMessageHeaderNameOk( name )
 * @pre store @{ */
KO_API TolmoMessageHeader tolmoMessageHeaderRestoreLines( KoString name, KoStore store );
KO_API TolmoMessageHeader tolmoMessageHeaderRestoreLinesCstr( const char *chs, KoInt length, KoStore store );
KO_API TolmoMessageHeader tolmoMessageHeaderRestoreLinesWcstr( const uint16_t *chs, KoInt length, KoStore store );
/** @} */

/** Makes the constants of this unit, at the start of the module. */
KO_API void tolmo___MessageHeaderStartup( void );
/** Drops them, at the stop of the module. */
KO_API void tolmo___MessageHeaderShutdown( void );

KO_END_DECLS

#endif
