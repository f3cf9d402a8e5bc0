/* Vectors: sequences of objects by index. */
#ifndef KO_VECTOR_H
#define KO_VECTOR_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** @name Sort, casts, references
 * As for strings. @{ */
KO_API KoSort koVectorSort( void );
KO_API KoVector koVectorFrom( KoObj obj );
KO_API KoObj koVectorObj( KoVector v );
KO_API KoVector koVectorRetain( KoVector v );
KO_API void koVectorRelease( KoVector v );
/** @} */

/** @name Creation and reading @{ */
/** @return new reference. */
KO_API KoVector koVectorCreate( void );
KO_API KoInt koVectorLength( KoVector v );
/** @return new reference. @pre v @pre index >= 0 && index < koVectorLength( v ) */
KO_API KoObj koVectorObjAt( KoVector v, KoInt index );
/** True when all elements are of the sort; true for the empty vector. */
KO_API KoBool koVectorContainsOnly( KoVector v, KoSort sort );
/** `[`, the texts of the elements joined by `, `, `]`. @return new reference. */
KO_API KoString koVectorToString( KoVector v );
/** @} */

/** @name Changing
 * Each takes the address of the caller's handle, which may be replaced. What goes in is shared; the caller keeps its
 * reference. Changes at either end, and runs of changes near one place, are amortised constant time. An index outside
 * the vector ends the process. @{ */
KO_API void koVectorAppendString( KoVector *v, KoString s );
KO_API void koVectorAppendObj( KoVector *v, KoObj obj );
KO_API void koVectorPrependString( KoVector *v, KoString s );
/** Inserts before the index, 0 to the length. */
KO_API void koVectorInsertString( KoVector *v, KoInt index, KoString s );
KO_API void koVectorSetStringAt( KoVector *v, KoInt index, KoString s );
KO_API void koVectorDelAt( KoVector *v, KoInt index );
KO_API void koVectorDelLeading( KoVector *v, KoInt count );
KO_API void koVectorClear( KoVector *v );
/** @} */

KO_END_DECLS

#endif
