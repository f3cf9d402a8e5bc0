/* Dictionaries: maps from strings to objects that keep the order of first setting. */
#ifndef KO_DICT_H
#define KO_DICT_H

#include <runtime/ko_vector.h>

KO_BEGIN_DECLS

/** Handle of a dictionary. */
typedef struct ko___Dict *KoDict;

/** @name Sort, casts, references
 * @{ */

/** The sort of dictionaries. */
KO_API KoSort koDictSort( void );

/**
 * Casts an object to a dictionary. Changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 * @pre !obj || koObjSort( obj ) == koDictSort()
 */
KO_API KoDict koDictFrom( KoObj obj );

/**
 * Casts a dictionary to an object. Changes no count.
 *
 * @param d shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 */
KO_API KoObj koDictObj( KoDict d );

/**
 * Adds a reference.
 *
 * @param d shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre d
 */
KO_API KoDict koDictRetain( KoDict d );

/**
 * Drops a reference; the last one ends the dictionary.
 *
 * @param d taken over.
 * @pre d
 */
KO_API void koDictRelease( KoDict d );

/** @} */

/** @name Creation and reading
 * An entry has a position: entries stand in the order in which their keys were first set. Keys may come from the
 * network: no choice of them makes lookup slow. Two dictionaries compare by their entries in the order of their keys,
 * so that they are equal whatever their positions: the first key that differs decides, or the first value.
 * @{ */

/**
 * An empty dictionary.
 *
 * @return new reference.
 */
KO_API KoDict koDictCreate( void );

/**
 * The number of entries.
 *
 * @param d shared, the caller keeps its reference.
 * @pre d
 */
KO_API KoInt koDictLength( KoDict d );

/**
 * Tells whether there is an entry with a key.
 *
 * @param d shared, the caller keeps its reference.
 * @param key shared, the caller keeps its reference.
 * @pre d
 * @pre key
 */
KO_API KoBool koDictHasStringKey( KoDict d, KoString key );

/**
 * The value of a key.
 *
 * @param d shared, the caller keeps its reference.
 * @param key shared, the caller keeps its reference.
 * @return new reference; null when there is no such entry.
 * @pre d
 * @pre key
 */
KO_API KoObj koDictStringKey( KoDict d, KoString key );

/**
 * The key at a position.
 *
 * @param d shared, the caller keeps its reference.
 * @param index The position.
 * @return new reference.
 * @pre d
 * @pre index >= 0 && index < koDictLength( d )
 */
KO_API KoString koDictKeyAt( KoDict d, KoInt index );

/**
 * The value at a position.
 *
 * @param d shared, the caller keeps its reference.
 * @param index The position.
 * @return new reference.
 * @pre d
 * @pre index >= 0 && index < koDictLength( d )
 */
KO_API KoObj koDictValueAt( KoDict d, KoInt index );

/**
 * The keys in the order of their positions.
 *
 * @param d shared, the caller keeps its reference.
 * @return new reference.
 * @pre d
 */
KO_API KoVector koDictKeysVector( KoDict d );

/**
 * The values in the order of their positions.
 *
 * @param d shared, the caller keeps its reference.
 * @return new reference.
 * @pre d
 */
KO_API KoVector koDictValuesVector( KoDict d );

/** @} */

/** @name Changing
 * @{ */

/**
 * Sets the value of a key. A new key gets the last position; a key that is there keeps its own. Amortised constant time
 * on a dictionary that is not shared.
 *
 * @param d address of the caller's handle, which may be replaced.
 * @param key shared, the caller keeps its reference. The caller may change its string later: that copies it.
 * @param value shared, the caller keeps its reference.
 * @pre d
 * @pre *d
 * @pre key
 * @pre value
 */
KO_API void koDictSetStringKey( KoDict *d, KoString key, KoObj value );

/**
 * Removes an entry; a key that is not there is no fault. Amortised constant time for the first and the last entry of a
 * dictionary that is not shared, else linear.
 *
 * @param d address of the caller's handle, which may be replaced.
 * @param key shared, the caller keeps its reference.
 * @pre d
 * @pre *d
 * @pre key
 */
KO_API void koDictDelStringKey( KoDict *d, KoString key );

/**
 * Removes all entries.
 *
 * @param d address of the caller's handle, which may be replaced.
 * @pre d
 * @pre *d
 */
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
