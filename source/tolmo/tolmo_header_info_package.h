/* The header Info-Package (RFC 6086 section 9). */
#ifndef TOLMO_HEADER_INFO_PACKAGE_H
#define TOLMO_HEADER_INFO_PACKAGE_H

#include <tolmo/tolmo_info_package_type.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Info-Package header. */
typedef struct tolmo___HeaderInfoPackage *TolmoHeaderInfoPackage;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderInfoPackageSort( void );
KO_API KoObj tolmoHeaderInfoPackageObj( TolmoHeaderInfoPackage hdr );
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageFrom( KoObj obj );
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageRetain( TolmoHeaderInfoPackage hdr );
KO_API void tolmoHeaderInfoPackageRelease( TolmoHeaderInfoPackage hdr );
KO_API KoInt tolmoHeaderInfoPackageCompare( TolmoHeaderInfoPackage a, TolmoHeaderInfoPackage b );
KO_API KoBool tolmoHeaderInfoPackageEquals( TolmoHeaderInfoPackage a, TolmoHeaderInfoPackage b );
KO_API KoString tolmoHeaderInfoPackageToString( TolmoHeaderInfoPackage hdr );
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageCreateFrom( TolmoHeaderInfoPackage source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderInfoPackageEncode( TolmoHeaderInfoPackage hdr );
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderInfoPackageEncodeToMessage( TolmoHeaderInfoPackage hdr, TolmoMessage *msg );
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderInfoPackagePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderInfoPackageRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderInfoPackageStore( TolmoHeaderInfoPackage hdr );
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageTryRestore( KoStore store );
KO_API void tolmo___HeaderInfoPackageStartup( void );
KO_API void tolmo___HeaderInfoPackageShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param infoPackageType shared, the caller keeps its reference.
 * @return new reference.
 * @pre infoPackageType
 */
KO_API TolmoHeaderInfoPackage tolmoHeaderInfoPackageCreate( TolmoInfoPackageType infoPackageType );

/** @name Package
 * Always there. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param type shared, the caller keeps its reference.
 * @pre hdr, for a setter then *hdr
 * @pre type @{ */
KO_API TolmoInfoPackageType tolmoHeaderInfoPackageType( TolmoHeaderInfoPackage hdr );
KO_API void tolmoHeaderInfoPackageSetType( TolmoHeaderInfoPackage *hdr, TolmoInfoPackageType type );
/** @} */

KO_END_DECLS

#endif
