/* The header Recv-Info (RFC 6086 section 9). */
#ifndef TOLMO_HEADER_RECV_INFO_H
#define TOLMO_HEADER_RECV_INFO_H

#include <tolmo/tolmo_info_package_type.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Recv-Info header. */
typedef struct tolmo___HeaderRecvInfo *TolmoHeaderRecvInfo;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderRecvInfoSort( void );
KO_API KoObj tolmoHeaderRecvInfoObj( TolmoHeaderRecvInfo hdr );
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoFrom( KoObj obj );
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoRetain( TolmoHeaderRecvInfo hdr );
KO_API void tolmoHeaderRecvInfoRelease( TolmoHeaderRecvInfo hdr );
KO_API KoInt tolmoHeaderRecvInfoCompare( TolmoHeaderRecvInfo a, TolmoHeaderRecvInfo b );
KO_API KoBool tolmoHeaderRecvInfoEquals( TolmoHeaderRecvInfo a, TolmoHeaderRecvInfo b );
KO_API KoString tolmoHeaderRecvInfoToString( TolmoHeaderRecvInfo hdr );
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoCreateFrom( TolmoHeaderRecvInfo source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoInfoPackageType over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderRecvInfoEncode( TolmoHeaderRecvInfo hdr );
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRecvInfoEncodeToMessage( TolmoHeaderRecvInfo hdr, TolmoMessage *msg );
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRecvInfoPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRecvInfoRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRecvInfoStore( TolmoHeaderRecvInfo hdr );
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoTryRestore( KoStore store );
KO_API void tolmo___HeaderRecvInfoStartup( void );
KO_API void tolmo___HeaderRecvInfoShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderRecvInfo tolmoHeaderRecvInfoCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderRecvInfoInfoPackageTypesLength( TolmoHeaderRecvInfo hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoInfoPackageType tolmoHeaderRecvInfoTryDecodeInfoPackageTypeAt( TolmoHeaderRecvInfo hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param type shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre type (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderRecvInfoSetInfoPackageTypeAt( TolmoHeaderRecvInfo *hdr, KoInt index, TolmoInfoPackageType type );
KO_API void tolmoHeaderRecvInfoInsertInfoPackageType( TolmoHeaderRecvInfo *hdr, KoInt index,
                                                      TolmoInfoPackageType type );
KO_API void tolmoHeaderRecvInfoPrependInfoPackageType( TolmoHeaderRecvInfo *hdr, TolmoInfoPackageType type );
KO_API void tolmoHeaderRecvInfoAppendInfoPackageType( TolmoHeaderRecvInfo *hdr, TolmoInfoPackageType type );
KO_API void tolmoHeaderRecvInfoDelInfoPackageTypeAt( TolmoHeaderRecvInfo *hdr, KoInt index );
KO_API void tolmoHeaderRecvInfoClearInfoPackageTypes( TolmoHeaderRecvInfo *hdr );
/** @} */

KO_END_DECLS

#endif
