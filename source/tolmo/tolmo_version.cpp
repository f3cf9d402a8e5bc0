/* Protocol name and version, as in a start line and in each Via: `SIP/2.0` (RFC 3261 section 25.1, SIP-Version). */
#include <tolmo/tolmo_version.h>

#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_protocol_name.h>
#include <tolmo/tolmo_protocol_version.h>
#include <tolmo/tolmo_skip.hpp>
#include <tolmo/tolmo_version.hpp>

namespace skip = tolmo::skip;

struct tolmo___Version {
    ko___Obj head;
    KoString protocolName;
    KoString protocolVersion;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___Version::protocolName, &tolmo___Version::protocolVersion>;
static_assert( tolmo::namesAllFields<tolmo___Version, AllFields> );

TOLMO_FREE( Version, version, AllFields )
TOLMO_COMPARE( Version, versionA, versionB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___VersionEncode( tolmoVersionFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_VERSION = TOLMO_SORT( "TOLMO_VERSION", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( Version, TOLMO_VERSION )
TOLMO_CREATE_FROM( Version, AllFields )

namespace {

constexpr KoChar sip[] = { 'S', 'I', 'P' };
constexpr KoChar twoZero[] = { '2', '.', '0' };

KoString kosSip = nullptr;
KoString kosTwoZero = nullptr;
KoString kosSip20 = nullptr; // the wire text of the constant
TolmoVersion sip20 = nullptr;

// The constant lives as long as the process, so that a caller may hold it beyond the stop of the module.
TolmoVersion keptSip20 = nullptr;

} // namespace

void tolmo___VersionStartup( void )
{
    tolmo::Start( kosSip, "SIP" );
    tolmo::Start( kosTwoZero, "2.0" );
    tolmo::Start( kosSip20, "SIP/2.0" );
    if ( !keptSip20 ) {
        keptSip20 = tolmo::CreateObject<tolmo___Version>( tolmoVersionSort() ).Leak();
        keptSip20->protocolName = tolmo::Retained( kosSip );
        keptSip20->protocolVersion = tolmo::Retained( kosTwoZero );
        ko___ObjMakeConstant( tolmoVersionObj( keptSip20 ) );
    }
    sip20 = keptSip20;
}

void tolmo___VersionShutdown( void )
{
    tolmo::FreeField( sip20 );
    tolmo::Stop( kosSip20 );
    tolmo::Stop( kosTwoZero );
    tolmo::Stop( kosSip );
}

TolmoVersion tolmoVersionCreate( KoString protocolName, KoString protocolVersion )
{
    KO_REQUIRE( tolmoProtocolNameOk( protocolName ) );
    KO_REQUIRE( tolmoProtocolVersionOk( protocolVersion ) );
    auto version = tolmo::CreateObject<tolmo___Version>( &tolmo___sort_TOLMO_VERSION );
    version.Get()->protocolName = tolmoProtocolNameNormalize( protocolName );
    version.Get()->protocolVersion = tolmoProtocolVersionNormalize( protocolVersion );
    return version.Leak();
}

TolmoVersion tolmoVersionCreateSip20( void )
{
    return tolmo::Retained( sip20 );
}

KoBool tolmoVersionIsSip( TolmoVersion version )
{
    KO_REQUIRE( version );
    return koStringEqualsChars( version->protocolName, sip, std::size( sip ) );
}

KoBool tolmoVersionIsSip20( TolmoVersion version )
{
    KO_REQUIRE( version );
    return version == sip20 || ( koStringEqualsChars( version->protocolName, sip, std::size( sip ) ) &&
                                 koStringEqualsChars( version->protocolVersion, twoZero, std::size( twoZero ) ) );
}

KoString tolmoVersionProtocolName( TolmoVersion version )
{
    KO_REQUIRE( version );
    return tolmo::Retained( version->protocolName );
}

KoString tolmoVersionProtocolVersion( TolmoVersion version )
{
    KO_REQUIRE( version );
    return tolmo::Retained( version->protocolVersion );
}

void tolmoVersionSetProtocolName( TolmoVersion *version, KoString protocolName )
{
    KO_REQUIRE_HANDLE( version );
    KO_REQUIRE( tolmoProtocolNameOk( protocolName ) );
    tolmo::MakeUnique( version, tolmoVersionCreateFrom );
    tolmo::Store( ( *version )->protocolName, tolmo::Adopt( tolmoProtocolNameNormalize( protocolName ) ) );
}

void tolmoVersionSetProtocolVersion( TolmoVersion *version, KoString protocolVersion )
{
    KO_REQUIRE_HANDLE( version );
    KO_REQUIRE( tolmoProtocolVersionOk( protocolVersion ) );
    tolmo::MakeUnique( version, tolmoVersionCreateFrom );
    tolmo::Store( ( *version )->protocolVersion, tolmo::Adopt( tolmoProtocolVersionNormalize( protocolVersion ) ) );
}

KoString tolmo___VersionEncode( TolmoVersion version )
{
    KO_REQUIRE( version );
    if ( version == sip20 ) {
        return tolmo::Retained( kosSip20 ); // what nearly every message carries costs nothing
    }
    return koStringCreateFromFormatCstr( "%s/%s", -1, version->protocolName, version->protocolVersion );
}

// SIP-Version = protocol-name SLASH protocol-version
[[gnu::noinline]] static KoRef<TolmoVersion> TakeAnyVersion( tolmo::Walk &w )
{
    if ( !w.Need( skip::ProtocolName ) ) {
        return {};
    }
    const tolmo::Text name = w.Last();
    if ( !w.Need( skip::Slash ) || !w.Need( skip::ProtocolVersion ) ) {
        return {};
    }
    const tolmo::Text number = w.Last();
    return tolmo::Adopt( tolmoVersionCreate( name.Copy().Get(), number.Copy().Get() ) );
}

KoRef<TolmoVersion> tolmo::TakeVersion( Walk &w )
{
    // What nearly every text holds needs neither a close look nor a new object.
    return w.Need( skip::Sip20 ) ? Share( sip20 ) : TakeAnyVersion( w );
}

TolmoVersion tolmo___VersionTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    auto version = tolmo::TakeVersion( w );
    return w.AtEnd() ? version.Leak() : nullptr;
}
