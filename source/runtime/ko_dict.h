/* Dictionaries: maps from strings to objects that keep the order of first setting. */
#ifndef KO_DICT_H
#define KO_DICT_H

#include <runtime/ko_vector.h>

KO_BEGIN_DECLS

/** Handle of a dictionary. */
typedef struct ko___Dict *KoDict;

/** @name Sort, casts, references
 * As for strings. @{ */
KO_API KoSort koDictSort( void );
KO_API KoDict koDictFrom( KoObj obj );
KO_API KoObj koDictObj( KoDict d );
KO_API KoDict koDictRetain( KoDict d );
KO_API void koDictRelease( KoDict d );
/** @} */

/** @name Creation and reading
 * Positions are those of first setting. Keys may come from the network: lookup has no attackable worst case. @{ */
KO_API KoDict koDictCreate( void );
KO_API KoInt koDictLength( KoDict d );
KO_API KoBool koDictHasStringKey( KoDict d, KoString key );
/** @return new reference, or null. */
KO_API KoObj koDictStringKey( KoDict d, KoString key );
/** @return new reference. An index outside the dictionary ends the process. */
KO_API KoString koDictKeyAt( KoDict d, KoInt index );
KO_API KoObj koDictValueAt( KoDict d, KoInt index );
/** @return new reference: a new vector in position order. */
KO_API KoVector koDictKeysVector( KoDict d );
KO_API KoVector koDictValuesVector( KoDict d );
/** @} */

/** @name Changing
 * Each takes the address of the caller's handle, which may be replaced. Keys and values are shared. @{ */
/** Replacing a value keeps the entry's place. */
KO_API void koDictSetStringKey( KoDict *d, KoString key, KoObj value );
/** A missing key is no fault. */
KO_API void koDictDelStringKey( KoDict *d, KoString key );
KO_API void koDictClear( KoDict *d );
/** @} */

/**
 * The keyed hash by which a dictionary finds keys. It differs from process to process, so that nobody can choose keys
 * that collide; all 64 bits are good.
 *
 * @param chs The characters; may be null when `length` is 0.
 * @pre chs || length == 0
 * @pre length >= 0
 */
KO_API KoInt ko___CharsHash( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
