/* Stores: trees of named string values and sub-stores, or arrays of them. */
#ifndef KO_STORE_H
#define KO_STORE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of a store. */
typedef struct ko___Store *KoStore;

/** @name Sort, casts, references
 * As for strings. @{ */
KO_API KoSort koStoreSort( void );
KO_API KoStore koStoreFrom( KoObj obj );
KO_API KoObj koStoreObj( KoStore store );
KO_API KoStore koStoreRetain( KoStore store );
KO_API void koStoreRelease( KoStore store );
/** @} */

/** A new store with named entries. */
KO_API KoStore koStoreCreate( void );
/** A new store in which entries have an index. */
KO_API KoStore koStoreCreateArray( void );
KO_API KoInt koStoreLength( KoStore store );

/** @name Reading
 * Each returns a new reference, or null for what is not there, is of the other kind, or lies outside. @{ */
KO_API KoString koStoreValue( KoStore store, KoString key );
KO_API KoStore koStoreStore( KoStore store, KoString key );
KO_API KoString koStoreValueAt( KoStore store, KoInt index );
/** @} */

/** @name Changing
 * Each takes the address of the caller's handle, which may be replaced. Setting by key in an array store, and appending
 * to a named one, end the process. A sub-store is shared as it is now: later changes of it do not reach the parent. @{ */
KO_API void koStoreSetValue( KoStore *store, KoString key, KoString value );
KO_API void koStoreSetStore( KoStore *store, KoString key, KoStore value );
KO_API void koStoreAppendValue( KoStore *store, KoString value );
KO_API void koStoreAppendStore( KoStore *store, KoStore value );
/** @} */

KO_END_DECLS

#endif
