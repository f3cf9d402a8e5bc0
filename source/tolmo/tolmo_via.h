/* One item of a Via header: the sent protocol, the sent-by address, the parameters (RFC 3261 section 20.42, RFC 3581). */
#ifndef TOLMO_VIA_H
#define TOLMO_VIA_H

#include <address/wen.h>
#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_version.h>

KO_BEGIN_DECLS

/** Handle of a via. */
typedef struct tolmo___Via *TolmoVia;

/** @name Standard operations
 * See docs/objects.md. Two vias that differ in `rport` alone are equal. @{ */
KO_API KoSort tolmoViaSort( void );
KO_API KoObj tolmoViaObj( TolmoVia via );
KO_API TolmoVia tolmoViaFrom( KoObj obj );
KO_API TolmoVia tolmoViaRetain( TolmoVia via );
KO_API void tolmoViaRelease( TolmoVia via );
KO_API KoInt tolmoViaCompare( TolmoVia a, TolmoVia b );
KO_API KoBool tolmoViaEquals( TolmoVia a, TolmoVia b );
KO_API KoString tolmoViaToString( TolmoVia via );
KO_API TolmoVia tolmoViaCreateFrom( TolmoVia source );
/** @} */

/** @name Creation
 * Without parameters. What goes in is shared, the caller keeps its references; of the transport the normal form is
 * stored.
 * @return new reference.
 * @pre version
 * @pre tolmoTransportOk( transport )
 * @pre tolmoHostOk( host )
 * @pre tolmoPortOk( port ) @{ */
KO_API TolmoVia tolmoViaCreate( TolmoVersion version, KoString transport, KoString host );
KO_API TolmoVia tolmoViaCreateWithPort( TolmoVersion version, KoString transport, KoString host, KoInt port );
/** @} */

/** @name Version, transport, host
 * Always there. The transport is in small letters here and in capitals on the wire; the host is in its Unicode form.
 * Getters return a new reference; what a setter gets is shared, the caller keeps its reference.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre version; tolmoTransportOk( transport ); tolmoHostOk( host ) @{ */
KO_API TolmoVersion tolmoViaVersion( TolmoVia via );
KO_API void tolmoViaSetVersion( TolmoVia *via, TolmoVersion version );
KO_API KoString tolmoViaTransport( TolmoVia via );
KO_API void tolmoViaSetTransport( TolmoVia *via, KoString transport );
KO_API KoString tolmoViaHost( TolmoVia via );
KO_API void tolmoViaSetHost( TolmoVia *via, KoString host );
/** @} */

/** @name Port
 * Optional; -1 when absent.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre tolmoPortOk( port ) @{ */
KO_API KoBool tolmoViaHasPort( TolmoVia via );
KO_API KoInt tolmoViaPort( TolmoVia via );
KO_API void tolmoViaSetPort( TolmoVia *via, KoInt port );
KO_API void tolmoViaDelPort( TolmoVia *via );
/** @} */

/** @name Parameter ttl
 * Optional, 0 to 255; -1 when absent.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre tolmoTtlOk( ttl ) @{ */
KO_API KoBool tolmoViaHasTtl( TolmoVia via );
KO_API KoInt tolmoViaTtl( TolmoVia via );
KO_API void tolmoViaSetTtl( TolmoVia *via, KoInt ttl );
KO_API void tolmoViaDelTtl( TolmoVia *via );
/** @} */

/** @name Parameter maddr
 * Optional: a host in its Unicode form. The getter returns a new reference, or null.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre tolmoHostOk( host ) @{ */
KO_API KoBool tolmoViaHasMaddr( TolmoVia via );
KO_API KoString tolmoViaMaddr( TolmoVia via );
KO_API void tolmoViaSetMaddr( TolmoVia *via, KoString maddr );
KO_API void tolmoViaDelMaddr( TolmoVia *via );
/** @} */

/** @name Parameter received
 * Optional: an address. The getter returns a new reference, or null.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre received @{ */
KO_API KoBool tolmoViaHasReceived( TolmoVia via );
KO_API WenAddress tolmoViaReceived( TolmoVia via );
KO_API void tolmoViaSetReceived( TolmoVia *via, WenAddress received );
KO_API void tolmoViaDelReceived( TolmoVia *via );
/** @} */

/** @name Parameter rport (RFC 3581)
 * Either without a value, as a request asks for it, or with the port that a response tells. Setting one form takes the
 * other one away.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre tolmoPortOk( rport ) @{ */
KO_API KoBool tolmoViaHasRport( TolmoVia via );
KO_API KoBool tolmoViaHasRportEmpty( TolmoVia via );
KO_API KoBool tolmoViaHasRportNumeric( TolmoVia via );
/** The port, -1 when the numeric form is absent. */
KO_API KoInt tolmoViaRportNumeric( TolmoVia via );
KO_API void tolmoViaSetRportEmpty( TolmoVia *via );
KO_API void tolmoViaSetRportNumeric( TolmoVia *via, KoInt rport );
KO_API void tolmoViaDelRport( TolmoVia *via );
/** @} */

/** @name Parameter branch
 * Optional: a token in its case, with no test of the magic cookie. The getter returns a new reference, or null.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre tolmoBranchOk( branch ) @{ */
KO_API KoBool tolmoViaHasBranch( TolmoVia via );
KO_API KoString tolmoViaBranch( TolmoVia via );
KO_API void tolmoViaSetBranch( TolmoVia *via, KoString branch );
KO_API void tolmoViaDelBranch( TolmoVia *via );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param via for a setter: address of the caller's handle, which may be replaced.
 * @pre via, for a setter then *via
 * @pre params @{ */
KO_API TolmoGenericParams tolmoViaGenericParams( TolmoVia via );
KO_API void tolmoViaSetGenericParams( TolmoVia *via, TolmoGenericParams params );
/** @} */

/** The wire text; the parameters that have a field come first, in the order of this file. @return new reference.
 * @pre via */
KO_API KoString tolmo___ViaEncode( TolmoVia via );

/**
 * Decodes exactly one item.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoVia tolmo___ViaTryDecode( const KoChar *chs, KoInt length );

/** Makes the constants of this unit, at the start of the module. */
KO_API void tolmo___ViaStartup( void );
/** Drops them, at the stop of the module. */
KO_API void tolmo___ViaShutdown( void );

KO_END_DECLS

#endif
