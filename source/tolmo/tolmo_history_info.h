/* One entry of a History-Info header: a target, its index, and the index that it comes from (RFC 7044 section 5). */
#ifndef TOLMO_HISTORY_INFO_H
#define TOLMO_HISTORY_INFO_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of an entry of a history. */
typedef struct tolmo___HistoryInfo *TolmoHistoryInfo;

/** @name Standard operations
 * See docs/objects.md. Entries have no text of their own: `ToString` does not give the wire text. @{ */
KO_API KoSort tolmoHistoryInfoSort( void );
KO_API KoObj tolmoHistoryInfoObj( TolmoHistoryInfo hi );
KO_API TolmoHistoryInfo tolmoHistoryInfoFrom( KoObj obj );
KO_API TolmoHistoryInfo tolmoHistoryInfoRetain( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoRelease( TolmoHistoryInfo hi );
KO_API KoInt tolmoHistoryInfoCompare( TolmoHistoryInfo a, TolmoHistoryInfo b );
KO_API KoBool tolmoHistoryInfoEquals( TolmoHistoryInfo a, TolmoHistoryInfo b );
KO_API KoString tolmoHistoryInfoToString( TolmoHistoryInfo hi );
KO_API TolmoHistoryInfo tolmoHistoryInfoCreateFrom( TolmoHistoryInfo source );
/** @} */

/**
 * An entry without display name, back reference and parameters. What goes in is shared, the caller keeps its
 * references.
 *
 * @return new reference.
 * @pre tolmoIriOk( iri )
 * @pre tolmoHistoryInfoIndexOk( index )
 */
KO_API TolmoHistoryInfo tolmoHistoryInfoCreate( KoString iri, KoString index );

/** @name Address
 * Always there. The getter returns a new reference; what the setter gets is shared, the caller keeps its reference.
 * @param hi for a setter: address of the caller's handle, which may be replaced.
 * @pre hi, for a setter then *hi
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoHistoryInfoIri( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetIri( TolmoHistoryInfo *hi, KoString iri );
/** @} */

/** @name Index
 * Always there: the place of the entry in the tree of targets. The getter returns a new reference; what the setter gets
 * is shared, the caller keeps its reference.
 * @param hi for a setter: address of the caller's handle, which may be replaced.
 * @pre hi, for a setter then *hi
 * @pre tolmoHistoryInfoIndexOk( index ) @{ */
KO_API KoString tolmoHistoryInfoIndex( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetIndex( TolmoHistoryInfo *hi, KoString index );
/** @} */

/** @name Display name
 * Optional; may be empty, goes out in quotes. The getter returns a new reference, or null; what the setter gets is
 * shared, the caller keeps its reference.
 * @param hi for a setter: address of the caller's handle, which may be replaced.
 * @pre hi, for a setter then *hi
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoHistoryInfoHasDisplayName( TolmoHistoryInfo hi );
KO_API KoString tolmoHistoryInfoDisplayName( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetDisplayName( TolmoHistoryInfo *hi, KoString displayName );
KO_API void tolmoHistoryInfoDelDisplayName( TolmoHistoryInfo *hi );
/** @} */

/** @name Back reference
 * Optional: the index of the entry that this one comes from by a change of the address (`rc`), by a mapping to another
 * user (`mp`), or without a change (`np`). There is one slot for the three: their accessors are different names of the
 * same operations, the last one that is decoded or set is held, and goes out as `rc`. The getter returns a new
 * reference, or null; what the setter gets is shared, the caller keeps its reference.
 * @param hi for a setter: address of the caller's handle, which may be replaced.
 * @pre hi, for a setter then *hi
 * @pre tolmoHistoryInfoIndexOk( rc ) @{ */
KO_API KoBool tolmoHistoryInfoHasRc( TolmoHistoryInfo hi );
KO_API KoString tolmoHistoryInfoRc( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetRc( TolmoHistoryInfo *hi, KoString rc );
KO_API void tolmoHistoryInfoDelRc( TolmoHistoryInfo *hi );
KO_API KoBool tolmoHistoryInfoHasMp( TolmoHistoryInfo hi );
KO_API KoString tolmoHistoryInfoMp( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetMp( TolmoHistoryInfo *hi, KoString mp );
KO_API void tolmoHistoryInfoDelMp( TolmoHistoryInfo *hi );
KO_API KoBool tolmoHistoryInfoHasNp( TolmoHistoryInfo hi );
KO_API KoString tolmoHistoryInfoNp( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetNp( TolmoHistoryInfo *hi, KoString np );
KO_API void tolmoHistoryInfoDelNp( TolmoHistoryInfo *hi );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference; what
 * the setter gets is shared, the caller keeps its reference.
 * @param hi for a setter: address of the caller's handle, which may be replaced.
 * @pre hi, for a setter then *hi
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHistoryInfoGenericParams( TolmoHistoryInfo hi );
KO_API void tolmoHistoryInfoSetGenericParams( TolmoHistoryInfo *hi, TolmoGenericParams genericParams );
/** @} */

/** The wire text: the address, the index, the back reference, then all other parameters. @return new reference.
 * @pre hi */
KO_API KoString tolmo___HistoryInfoEncode( TolmoHistoryInfo hi );

/**
 * Decodes exactly one entry. The angle brackets and an index are required.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoHistoryInfo tolmo___HistoryInfoTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
