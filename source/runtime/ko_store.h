/* Stores: trees of named string values and sub-stores, or arrays of them. */
#ifndef KO_STORE_H
#define KO_STORE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of a store. */
typedef struct ko___Store *KoStore;

/** @name Sort, casts, references
 * @{ */

/** The sort of stores. */
KO_API KoSort koStoreSort( void );

/**
 * Casts an object to a store. Changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 * @pre !obj || koObjSort( obj ) == koStoreSort()
 */
KO_API KoStore koStoreFrom( KoObj obj );

/**
 * Casts a store to an object. Changes no count.
 *
 * @param store shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 */
KO_API KoObj koStoreObj( KoStore store );

/**
 * Adds a reference.
 *
 * @param store shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre store
 */
KO_API KoStore koStoreRetain( KoStore store );

/**
 * Drops a reference; the last one ends the store.
 *
 * @param store taken over.
 * @pre store
 */
KO_API void koStoreRelease( KoStore store );

/** @} */

/** @name Creation and reading
 * @{ */

/**
 * An empty store with named entries.
 *
 * @return new reference.
 */
KO_API KoStore koStoreCreate( void );

/**
 * An empty store in which entries have an index.
 *
 * @return new reference.
 */
KO_API KoStore koStoreCreateArray( void );

/**
 * The number of entries.
 *
 * @param store shared, the caller keeps its reference.
 * @pre store
 */
KO_API KoInt koStoreLength( KoStore store );

/**
 * The string value of a key.
 *
 * @param store shared, the caller keeps its reference.
 * @param key shared, the caller keeps its reference.
 * @return new reference; null when there is no such entry, when it is a sub-store, and in an array.
 * @pre store
 * @pre key
 */
KO_API KoString koStoreValue( KoStore store, KoString key );

/**
 * The sub-store of a key.
 *
 * @param store shared, the caller keeps its reference.
 * @param key shared, the caller keeps its reference.
 * @return new reference; null when there is no such entry, when it is a string value, and in an array.
 * @pre store
 * @pre key
 */
KO_API KoStore koStoreStore( KoStore store, KoString key );

/**
 * The string value at an index.
 *
 * @param store shared, the caller keeps its reference.
 * @param index Any number.
 * @return new reference; null outside the array, when the entry is a sub-store, and in a store with names.
 * @pre store
 */
KO_API KoString koStoreValueAt( KoStore store, KoInt index );

/** @} */

/** @name Changing
 * A sub-store goes in as it is: later changes of it do not reach the store that it was put into.
 * @{ */

/**
 * Sets a string value by its key, in a store with names.
 *
 * @param store address of the caller's handle, which may be replaced.
 * @param key shared, the caller keeps its reference.
 * @param value shared, the caller keeps its reference.
 * @pre store
 * @pre *store
 * @pre key
 * @pre value
 * @pre ( *store )->names
 */
KO_API void koStoreSetValue( KoStore *store, KoString key, KoString value );

/**
 * Sets a sub-store by its key, in a store with names.
 *
 * @param store address of the caller's handle, which may be replaced.
 * @param key shared, the caller keeps its reference.
 * @param value shared, the caller keeps its reference.
 * @pre store
 * @pre *store
 * @pre key
 * @pre value
 * @pre ( *store )->names
 */
KO_API void koStoreSetStore( KoStore *store, KoString key, KoStore value );

/**
 * Appends a string value to an array.
 *
 * @param store address of the caller's handle, which may be replaced.
 * @param value shared, the caller keeps its reference.
 * @pre store
 * @pre *store
 * @pre value
 * @pre ( *store )->items
 */
KO_API void koStoreAppendValue( KoStore *store, KoString value );

/**
 * Appends a sub-store to an array.
 *
 * @param store address of the caller's handle, which may be replaced.
 * @param value shared, the caller keeps its reference.
 * @pre store
 * @pre *store
 * @pre value
 * @pre ( *store )->items
 */
KO_API void koStoreAppendStore( KoStore *store, KoStore value );

/** @} */

KO_END_DECLS

#endif
