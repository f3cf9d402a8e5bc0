/* The header Organization (RFC 3261 section 20.25). */
#ifndef TOLMO_HEADER_ORGANIZATION_H
#define TOLMO_HEADER_ORGANIZATION_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Organization header. */
typedef struct tolmo___HeaderOrganization *TolmoHeaderOrganization;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderOrganizationSort( void );
KO_API KoObj tolmoHeaderOrganizationObj( TolmoHeaderOrganization hdr );
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationFrom( KoObj obj );
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationRetain( TolmoHeaderOrganization hdr );
KO_API void tolmoHeaderOrganizationRelease( TolmoHeaderOrganization hdr );
KO_API KoInt tolmoHeaderOrganizationCompare( TolmoHeaderOrganization a, TolmoHeaderOrganization b );
KO_API KoBool tolmoHeaderOrganizationEquals( TolmoHeaderOrganization a, TolmoHeaderOrganization b );
KO_API KoString tolmoHeaderOrganizationToString( TolmoHeaderOrganization hdr );
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationCreateFrom( TolmoHeaderOrganization source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderOrganizationEncode( TolmoHeaderOrganization hdr );
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderOrganizationEncodeToMessage( TolmoHeaderOrganization hdr, TolmoMessage *msg );
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderOrganizationPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderOrganizationRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderOrganizationStore( TolmoHeaderOrganization hdr );
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationTryRestore( KoStore store );
KO_API void tolmo___HeaderOrganizationStartup( void );
KO_API void tolmo___HeaderOrganizationShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param organization shared, the caller keeps its reference; its normal form is stored.
 * @return new reference.
 * @pre organization
 * @pre tolmoOrganizationOk( organization ): "organization invalid"
 */
KO_API TolmoHeaderOrganization tolmoHeaderOrganizationCreate( KoString organization );

/** The organization, in normal form. @return new reference. @pre hdr */
KO_API KoString tolmoHeaderOrganizationOrganization( TolmoHeaderOrganization hdr );

/**
 * Sets the organization.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param organization shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr
 * @pre *hdr
 * @pre organization
 * @pre tolmoOrganizationOk( organization ): "organization invalid"
 */
KO_API void tolmoHeaderOrganizationSetOrganization( TolmoHeaderOrganization *hdr, KoString organization );

KO_END_DECLS

#endif
