/*
 * Resource identifiers, domain names and addresses: their laws of conversion, and addresses against the C library.
 */
#include "fuzz.hpp"

#include <algorithm>
#include <arpa/inet.h>
#include <cstring>

namespace fuzz {
namespace {

bool IsAscii( const std::string &text )
{
    return std::all_of( text.begin(), text.end(),
                        []( char byte ) { return static_cast<unsigned char>( byte ) < 0x80; } );
}

void CheckIri( KoString s, const Exact &text )
{
    const bool whole = text.Length() > 0 && ulm___SkipIri( text.Chars(), text.Length() ) == text.Length();
    CHECK( ( ulmGensValidatePart( 0, s ) != KO_FALSE ) == whole );
    CHECK( ( tolmoIriOk( s ) != KO_FALSE ) == whole );
    const auto iri = Own( ulmTryConvertFromUri( s ) );
    CHECK( ( iri.Get() != nullptr ) == whole );
    KoString taken = nullptr;
    const KoInt length = ulm___TakeIri( text.Chars(), text.Length(), &taken );
    const auto prefix = Own( taken );
    CHECK( length == ulm___SkipIri( text.Chars(), text.Length() ) );
    CHECK( ( length > 0 ) == ( prefix.Get() != nullptr ) );
    if ( whole ) {
        CHECK_SAME( Text( prefix.Get() ), Text( iri.Get() ) );
    }
    if ( !whole ) {
        return;
    }
    for ( const KoString each : { s, iri.Get() } ) {
        CHECK( ulmGensValidatePart( 0, each ) );
        const auto uri = Own( ulmTryConvertToUri( each ) );
        CHECK( uri && IsAscii( Text( uri.Get() ) ) && ulmGensValidatePart( 0, uri.Get() ) );
        CHECK_SAME( Take( ulmTryConvertToUri( uri.Get() ) ), Text( uri.Get() ) );
        const auto back = Own( ulmTryConvertFromUri( uri.Get() ) );
        CHECK( back && ulmGensValidatePart( 0, back.Get() ) );
        if ( each == iri.Get() ) {
            CHECK_SAME( Text( back.Get() ), Text( each ) );
        }
    }
}

void CheckDomain( KoString s )
{
    const std::string name = Text( s );
    const bool ok = wenDnsIdnaDomainNameOk( s ) != KO_FALSE;
    CHECK( ok == ( tolmoHostOk( s ) != KO_FALSE ) );
    const auto ascii = Own( wenDnsIdnaDomainNameToAscii( s ) );
    const auto unicode = Own( wenDnsIdnaDomainNameToUnicode( s ) );
    if ( !ok ) {
        CHECK_SAME( Text( ascii.Get() ), name );
        CHECK_SAME( Text( unicode.Get() ), name );
        return;
    }
    const Exact chars( ascii.Get() );
    CHECK( chars.Length() > 0 && tolmo___SkipHost( chars.Chars(), chars.Length() ) == chars.Length() );
    CHECK_SAME( Take( wenDnsIdnaDomainNameToAscii( ascii.Get() ) ), Text( ascii.Get() ) );
    CHECK( wenDnsIdnaDomainNameOk( unicode.Get() ) );
    CHECK_SAME( Take( wenDnsIdnaDomainNameToUnicode( unicode.Get() ) ), Text( unicode.Get() ) );
    if ( IsAscii( name ) ) {
        CHECK_SAME( Lower( Take( wenDnsIdnaDomainNameToAscii( unicode.Get() ) ) ), Lower( name ) );
    }
}

void CheckAddress( const std::string &name, const Exact &text )
{
    const auto address = Own( wenAddressTryCreateFromChars( text.Chars(), text.Length() ) );
    const bool skips = ulm___SkipIpV4Address( text.Chars(), text.Length() ) == text.Length() ||
                       ulm___SkipIpV6Address( text.Chars(), text.Length() ) == text.Length();
    CHECK( ( address.Get() != nullptr ) == ( text.Length() > 0 && skips ) );
    unsigned char bytes[16];
    const bool noZero = name.find( '\0' ) == std::string::npos;
    const int family = noZero && inet_pton( AF_INET, name.c_str(), bytes ) == 1    ? AF_INET
                       : noZero && inet_pton( AF_INET6, name.c_str(), bytes ) == 1 ? AF_INET6
                                                                                   : 0;
    CHECK( ( address.Get() != nullptr ) == ( family != 0 ) );
    if ( address ) {
        const std::string printed = Take( wenAddressToStringShrink( address.Get() ) );
        unsigned char again[16];
        CHECK( inet_pton( family, printed.c_str(), again ) == 1 );
        CHECK( std::memcmp( bytes, again, family == AF_INET ? 4 : 16 ) == 0 );
        const Exact printedChars( printed );
        const auto same = Own( wenAddressTryCreateFromChars( printedChars.Chars(), printedChars.Length() ) );
        CHECK( same && koObjCompare( Obj( same.Get() ), Obj( address.Get() ) ) == 0 );
        CHECK_SAME( Take( wenAddressToStringShrink( same.Get() ) ), printed );
    }
}

} // namespace

void IriTarget( std::string_view input )
{
    const auto s = Str( input );
    const Exact text( s.Get() );
    CheckIri( s.Get(), text );
    CheckDomain( s.Get() );
    CheckAddress( Text( s.Get() ), text );
}

} // namespace fuzz
