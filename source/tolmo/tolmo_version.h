/* Protocol name and version, as in a start line and in each Via: `SIP/2.0` (RFC 3261 section 25.1, SIP-Version). */
#ifndef TOLMO_VERSION_H
#define TOLMO_VERSION_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of a version. */
typedef struct tolmo___Version *TolmoVersion;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoVersionSort( void );
KO_API KoObj tolmoVersionObj( TolmoVersion version );
KO_API TolmoVersion tolmoVersionFrom( KoObj obj );
KO_API TolmoVersion tolmoVersionRetain( TolmoVersion version );
KO_API void tolmoVersionRelease( TolmoVersion version );
KO_API KoInt tolmoVersionCompare( TolmoVersion a, TolmoVersion b );
KO_API KoBool tolmoVersionEquals( TolmoVersion a, TolmoVersion b );
KO_API KoString tolmoVersionToString( TolmoVersion version );
KO_API TolmoVersion tolmoVersionCreateFrom( TolmoVersion source );
/** @} */

/**
 * A version of a protocol name, kept in capitals, and a protocol version, kept in small letters.
 *
 * @param protocolName, protocolVersion shared, the caller keeps its references.
 * @return new reference.
 * @pre tolmoProtocolNameOk( protocolName )
 * @pre tolmoProtocolVersionOk( protocolVersion )
 */
KO_API TolmoVersion tolmoVersionCreate( KoString protocolName, KoString protocolVersion );

/** The constant `SIP/2.0`, which all callers share; a mutator on it changes a copy. @return new reference. */
KO_API TolmoVersion tolmoVersionCreateSip20( void );

/** True when the name is `SIP`. @pre version */
KO_API KoBool tolmoVersionIsSip( TolmoVersion version );

/** True when the name is `SIP` and the version `2.0`. @pre version */
KO_API KoBool tolmoVersionIsSip20( TolmoVersion version );

/** The protocol name, in capitals. @return new reference. @pre version */
KO_API KoString tolmoVersionProtocolName( TolmoVersion version );

/** The protocol version, in small letters. @return new reference. @pre version */
KO_API KoString tolmoVersionProtocolVersion( TolmoVersion version );

/**
 * Sets the protocol name.
 *
 * @param version address of the caller's handle, which may be replaced.
 * @param protocolName shared, the caller keeps its reference; its normal form is stored.
 * @pre version
 * @pre *version
 * @pre tolmoProtocolNameOk( protocolName )
 */
KO_API void tolmoVersionSetProtocolName( TolmoVersion *version, KoString protocolName );

/**
 * Sets the protocol version.
 *
 * @param version address of the caller's handle, which may be replaced.
 * @param protocolVersion shared, the caller keeps its reference; its normal form is stored.
 * @pre version
 * @pre *version
 * @pre tolmoProtocolVersionOk( protocolVersion )
 */
KO_API void tolmoVersionSetProtocolVersion( TolmoVersion *version, KoString protocolVersion );

/** The wire text, `NAME/version`. @return new reference. @pre version */
KO_API KoString tolmo___VersionEncode( TolmoVersion version );

/**
 * Decodes exactly one version: any two tokens with a slash between them, around which whitespace may stand.
 *
 * @return new reference, or null when the text is no version or goes on behind it.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoVersion tolmo___VersionTryDecode( const KoChar *chs, KoInt length );

/** Makes the constant of this unit, at the start of the module. */
KO_API void tolmo___VersionStartup( void );
/** Drops it, at the stop of the module. */
KO_API void tolmo___VersionShutdown( void );

KO_END_DECLS

#endif
