/* Reference-counted objects: the head of every object, its sort, and what works on objects of every sort. */
#ifndef KO_OBJECT_H
#define KO_OBJECT_H

#include <runtime/ko_base.h>

KO_BEGIN_DECLS

typedef struct ko___String *KoString;
typedef struct ko___ModuleObject *KoModule;

/** The head of every object. What stands behind it belongs to the object's sort. */
struct ko___Obj {
    const struct ko___Sort *sort;
    int32_t count;      /* references; negative for a constant, which is neither counted nor freed */
    int32_t blockClass; /* the size class that the block goes back to, see ko_memory */
};

/** Handle of an object. A handle variable owns one reference; null means that there is no object. */
typedef struct ko___Obj *KoObj;

/** Releases what an object holds. The memory of the object itself is the runtime's business. */
typedef void ( *KoSortFree )( KoObj obj );
/** Compares two objects of the sort: negative, 0 or positive. */
typedef KoInt ( *KoSortCompare )( KoObj a, KoObj b );
/** A new string with the text of the object. */
typedef KoString ( *KoSortToString )( KoObj obj );

/** The class record of objects: one static constant for a type. Each of the three functions may be null. */
struct ko___Sort {
    intptr_t frame[10]; /* 1 (a sort), 0, -1, 1 in the place of a count, six zeros */
    KoModule module;
    const char *name;
    KoSortFree free;
    KoSortCompare compare;
    KoSortToString toString;
    intptr_t reserved[5];
};

/** Handle of a sort record. */
typedef const struct ko___Sort *KoSort;

/** The initialiser of a sort record. */
#define KO_SORT( module, name, free, compare, toString )                                                               \
    {                                                                                                                  \
        { 1, 0, -1, 1, 0, 0, 0, 0, 0, 0 }, module, name, free, compare, toString,                                      \
        {                                                                                                              \
            0, 0, 0, 0, 0                                                                                              \
        }                                                                                                              \
    }

/** The count of a constant: an object that all threads share, that is never counted, never unique and never freed. */
#define KO_COUNT_CONSTANT INT32_MIN

/**
 * A new object with a count of 1, filled with zeros behind its head.
 *
 * @param size Size of the whole object in bytes, its head included.
 * @param sort The sort of the object.
 * @return new reference; never null (out of memory ends the process).
 * @pre size >= (KoInt)sizeof( struct ko___Obj )
 * @pre sort
 */
KO_API KoObj ko___ObjCreate( KoInt size, KoSort sort );

/** ko___ObjCreate without the zeros, for code that sets every field at once. */
KO_API KoObj ko___ObjCreateUncleared( KoInt size, KoSort sort );

/** Ends an object whose count has fallen to 0: calls the free function of its sort, then gives the memory back. */
KO_API void ko___ObjFree( KoObj obj );

/**
 * Makes an object a constant for the rest of the process: from now on it is neither counted nor freed, and copy on
 * write always copies it. For the few values that all threads touch all the time.
 *
 * @param obj The caller's one reference is taken over. Its count must be 1.
 */
KO_API void ko___ObjMakeConstant( KoObj obj );

/** How many objects live in the process, constants aside. Meant for tests; takes a lock. */
KO_API KoInt ko___ObjLiveCount( void );

/** The sort of an object. @pre obj */
KO_API KoSort koObjSort( KoObj obj );

/** Adds a reference and returns the object. @pre obj */
KO_API KoObj koObjRetain( KoObj obj );

/** Drops a reference; the last one ends the object. @pre obj */
KO_API void koObjRelease( KoObj obj );

/**
 * Compares two objects: negative, 0 or positive, a total order. Two objects of one sort compare by the function of
 * their sort; objects of a sort without one by identity, then by address. Objects of two sorts order by the sorts'
 * names, then by the sorts' addresses. Null comes before every object and equals null.
 *
 * @param a, b shared, the caller keeps its references; may be null.
 */
KO_API KoInt koObjCompare( KoObj a, KoObj b );

/**
 * The text of an object, by the function of its sort; `<NAME>` with the sort's name where it has none.
 *
 * @return new reference.
 * @pre obj
 */
KO_API KoString koObjToString( KoObj obj );

/** koObjRetain without a check, to be compiled into its caller. Constants are not counted. */
static inline KoObj ko___Retain( KoObj obj )
{
    if ( __atomic_load_n( &obj->count, __ATOMIC_RELAXED ) >= 0 ) {
        __atomic_fetch_add( &obj->count, 1, __ATOMIC_SEQ_CST );
    }
    return obj;
}

/**
 * koObjRelease without a check, to be compiled into its caller. Who sees a count of 1 holds the only reference, and
 * needs no atomic operation to drop it.
 */
static inline void ko___Release( KoObj obj )
{
    const int32_t count = __atomic_load_n( &obj->count, __ATOMIC_ACQUIRE );
    if ( count == 1 || ( count > 1 && __atomic_fetch_sub( &obj->count, 1, __ATOMIC_SEQ_CST ) == 1 ) ) {
        ko___ObjFree( obj );
    }
}

/** True when the caller's reference is the only one, so that the object may be changed in place. */
static inline KoBool ko___IsUnique( KoObj obj )
{
    return __atomic_load_n( &obj->count, __ATOMIC_ACQUIRE ) == 1;
}

KO_END_DECLS

#endif
