/* The basic types, the preconditions and the abort of the ko runtime. */
#ifndef KO_BASE_H
#define KO_BASE_H

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>

#if defined( __cplusplus )
#define KO_BEGIN_DECLS extern "C" {
#define KO_END_DECLS }
#else
#define KO_BEGIN_DECLS
#define KO_END_DECLS
#endif

/** Marks a function or an object that a library of this system exports. */
#define KO_API __attribute__( ( visibility( "default" ) ) )

/** Lengths, indexes, offsets and numbers. -1 is absent, not found or, as a length argument, up to the end. */
typedef int64_t KoInt;
/** A truth value; what the libraries return is always KO_FALSE or KO_TRUE. */
typedef int32_t KoBool;
/** A Unicode code point. */
typedef int32_t KoChar;

#define KO_FALSE ( (KoBool)0 )
#define KO_TRUE ( (KoBool)1 )

#define KO_CHAR_LINE_FEED ( (KoChar)0x0A )
#define KO_CHAR_CARRIAGE_RETURN ( (KoChar)0x0D )

/** True when `ch` is a code point: 0 to 0x10FFFF. */
#define KO_CHAR_OK( ch ) ( ( ch ) >= 0 && ( ch ) <= 0x10FFFF )

KO_BEGIN_DECLS

/**
 * Ends the process: writes one line to standard error, `message: path:line: expression` (without the message and its
 * colon when `message` is null), and calls abort(). Does not return and allocates nothing.
 *
 * @param message What went wrong, or null.
 * @param path The source path of the violated precondition.
 * @param line The line there.
 * @param expression The text of the violated expression.
 */
KO_API void ko___Abort( const char *message, const char *path, KoInt line, const char *expression )
    __attribute__( ( noreturn, cold ) );

/** The smaller of two numbers. */
KO_API KoInt koIntMin( KoInt a, KoInt b );

/** The larger of two numbers. */
KO_API KoInt koIntMax( KoInt a, KoInt b );

/**
 * Allocates a block for `count` elements of `size` bytes. Never null: the process ends when memory is exhausted (the
 * message is "out of memory"), also when the product overflows. The block is not cleared; a block of 0 bytes is valid.
 *
 * @pre count >= 0
 * @pre size >= 0
 * @return A block for koMemFree.
 */
KO_API void *koMemAllocN( KoInt count, KoInt size );

/** Gives a block of koMemAllocN back. Null is allowed. */
KO_API void koMemFree( void *block );

KO_END_DECLS

/**
 * Ends the process unless `expression` holds. The text of the expression reaches the reader of the abort line, blanks
 * included; so it stands on one line, directly in the function whose precondition it is.
 */
#define KO_REQUIRE( expression ) KO_REQUIRE_AS( expression, #expression )

/** KO_REQUIRE with another text than the expression's own. */
#define KO_REQUIRE_AS( expression, text ) KO_REQUIRE_MESSAGE( expression, NULL, text )

/** KO_REQUIRE_AS with a message in front. */
#define KO_REQUIRE_MESSAGE( expression, message, text )                                                                \
    ( __builtin_expect( !!( expression ), 1 ) ? (void)0 : ko___Abort( message, __FILE__, __LINE__, text ) )

/** The precondition of every mutator: neither the address of the handle nor the handle is null, in this order. */
#define KO_REQUIRE_HANDLE( address )                                                                                   \
    do {                                                                                                               \
        KO_REQUIRE_AS( address, #address );                                                                            \
        KO_REQUIRE_AS( *( address ), "*" #address );                                                                   \
    } while ( 0 )

#endif
