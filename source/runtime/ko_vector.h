/* Vectors: sequences of objects by index. */
#ifndef KO_VECTOR_H
#define KO_VECTOR_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** @name Sort, casts, references
 * @{ */

/** The sort of vectors. */
KO_API KoSort koVectorSort( void );

/**
 * Casts an object to a vector. Changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 * @pre !obj || koObjSort( obj ) == koVectorSort()
 */
KO_API KoVector koVectorFrom( KoObj obj );

/**
 * Casts a vector to an object. Changes no count.
 *
 * @param v shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 */
KO_API KoObj koVectorObj( KoVector v );

/**
 * Adds a reference.
 *
 * @param v shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre v
 */
KO_API KoVector koVectorRetain( KoVector v );

/**
 * Drops a reference; the last one ends the vector.
 *
 * @param v taken over.
 * @pre v
 */
KO_API void koVectorRelease( KoVector v );

/** @} */

/** @name Creation and reading
 * @{ */

/**
 * An empty vector.
 *
 * @return new reference.
 */
KO_API KoVector koVectorCreate( void );

/**
 * The number of elements.
 *
 * @param v shared, the caller keeps its reference.
 * @pre v
 */
KO_API KoInt koVectorLength( KoVector v );

/**
 * An element.
 *
 * @param v shared, the caller keeps its reference.
 * @param index Its index.
 * @return new reference.
 * @pre v
 * @pre index >= 0 && index < koVectorLength( v )
 */
KO_API KoObj koVectorObjAt( KoVector v, KoInt index );

/**
 * Tells whether all elements are of a sort: so are those of an empty vector.
 *
 * @param v shared, the caller keeps its reference.
 * @param sort The sort.
 * @pre v
 * @pre sort
 */
KO_API KoBool koVectorContainsOnly( KoVector v, KoSort sort );

/**
 * The elements' texts joined by a comma and a blank, in square brackets: `[a, b]`, `[]`.
 *
 * @param v shared, the caller keeps its reference.
 * @return new reference.
 * @pre v
 */
KO_API KoString koVectorToString( KoVector v );

/** @} */

/** @name Changing
 * Changes at both ends, and runs of changes near one place, are amortised constant time on a vector that is not shared;
 * others are linear.
 * @{ */

/**
 * Adds a string at the end.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param s shared, the caller keeps its reference.
 * @pre v
 * @pre *v
 * @pre s
 */
KO_API void koVectorAppendString( KoVector *v, KoString s );

/**
 * Adds an object at the end.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param obj shared, the caller keeps its reference.
 * @pre v
 * @pre *v
 * @pre obj
 */
KO_API void koVectorAppendObj( KoVector *v, KoObj obj );

/**
 * Adds a string at the front.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param s shared, the caller keeps its reference.
 * @pre v
 * @pre *v
 * @pre s
 */
KO_API void koVectorPrependString( KoVector *v, KoString s );

/**
 * Inserts a string.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param index The index that the string will have.
 * @param s shared, the caller keeps its reference.
 * @pre v
 * @pre *v
 * @pre index >= 0 && index <= koVectorLength( *v )
 * @pre s
 */
KO_API void koVectorInsertString( KoVector *v, KoInt index, KoString s );

/**
 * Replaces an element by a string.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param index The index of the element.
 * @param s shared, the caller keeps its reference.
 * @pre v
 * @pre *v
 * @pre index >= 0 && index < koVectorLength( *v )
 * @pre s
 */
KO_API void koVectorSetStringAt( KoVector *v, KoInt index, KoString s );

/**
 * Inserts an object whose reference the caller gives away: what a fresh object needs no counting for.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param index 0 to the length.
 * @param taken taken over.
 * @pre v
 * @pre *v
 * @pre index >= 0 && index <= koVectorLength( *v )
 * @pre taken
 */
KO_API void ko___VectorInsertTaken( KoVector *v, KoInt index, KoObj taken );

/**
 * Removes an element.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param index The index of the element.
 * @pre v
 * @pre *v
 * @pre index >= 0 && index < koVectorLength( *v )
 */
KO_API void koVectorDelAt( KoVector *v, KoInt index );

/**
 * Removes the first elements.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @param count How many, or -1 for all.
 * @pre v
 * @pre *v
 * @pre count >= -1 && count <= koVectorLength( *v )
 */
KO_API void koVectorDelLeading( KoVector *v, KoInt count );

/**
 * Removes all elements.
 *
 * @param v address of the caller's handle, which may be replaced.
 * @pre v
 * @pre *v
 */
KO_API void koVectorClear( KoVector *v );

/** @} */

KO_END_DECLS

#endif
