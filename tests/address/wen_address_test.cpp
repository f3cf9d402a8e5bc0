/* Tests of IP addresses: the parser against rows and inet_pton, the text form against RFC 5952. */
#include <address/wen.h>

#include "test.h"

#include <arpa/inet.h>

#include <cstring>
#include <optional>
#include <random>

namespace {

using test::Exact;
using test::Str;
using test::Take;

constexpr const char *path = "source/address/wen_address.cpp";

class WenAddress : public test::Fixture {};

using Address = KoRef<::WenAddress>;

Address Create( std::string_view text )
{
    const Exact chs( text );
    return Address::Adopt( wenAddressTryCreateFromChars( chs.Chars(), chs.Length() ) );
}

/** The shortest text of the address that a text tells, or "(null)". */
std::string Shrink( std::string_view text )
{
    const Address address = Create( text );
    return address ? Take( wenAddressToStringShrink( address.Get() ) ) : "(null)";
}

struct SkipRow {
    const char *text;
    KoInt length;
};

/** What stands at the start is an address, what stands behind it changes nothing; cut shorter it may still be one. */
template <class Skip>
void SweepPrefixes( std::string_view text, Skip skip, KoInt expected )
{
    const auto whole = Str( text );
    for ( KoInt count = 0; count <= koStringLength( whole.Get() ); ++count ) {
        const Exact chs( whole.Get(), count );
        const KoInt taken = skip( chs.Chars(), count );
        EXPECT_GE( taken, 0 );
        EXPECT_LE( taken, count );
        if ( count == koStringLength( whole.Get() ) ) {
            EXPECT_EQ( taken, expected ) << text;
        }
        if ( taken > 0 ) { // what is taken is an address, and is taken again
            EXPECT_EQ( skip( chs.Chars(), taken ), taken ) << text;
            EXPECT_TRUE( Address::Adopt( wenAddressTryCreateFromChars( chs.Chars(), taken ) ) ) << text;
        }
    }
}

TEST_F( WenAddress, SkipsIpV4 )
{
    static const SkipRow rows[] = {
        { "", 0 },
        { "1.2.3.4", 7 },
        { "0.0.0.0", 7 },
        { "255.255.255.255", 15 },
        { "192.0.2.1:5060", 9 },
        { "1.2.3.4.5", 7 },
        { "1.2.3.4x", 7 },
        { "1.2.3.4.", 7 },
        { "1.2.3.256", 0 },  // a run of digits is a number or it is none: not 1.2.3.25
        { "1.2.3.2555", 0 }, // four digits
        { "256.2.3.4", 0 },
        { "1.2.3.04", 0 }, // a leading zero: octal to some
        { "1.2.3.00", 0 },
        { "01.2.3.4", 0 },
        { "001.2.3.4", 0 },
        { "1.2.3", 0 },
        { "1.2.3.", 0 },
        { "1..3.4", 0 },
        { ".1.2.3.4", 0 },
        { " 1.2.3.4", 0 },
        { "1.2.3.-4", 0 },
        { "+1.2.3.4", 0 },
        { "1.2.3.a", 0 },
        { "0x1.2.3.4", 0 },
        { "16909060", 0 },
        { "::1", 0 },
        { "[1.2.3.4]", 0 },
        { "\u0661.2.3.4", 0 }, // a digit, but none of ASCII
    };
    for ( const SkipRow &row : rows ) {
        SweepPrefixes( row.text, wen___SkipIpV4Address, row.length );
    }
}

TEST_F( WenAddress, SkipsIpV6 )
{
    static const SkipRow rows[] = {
        { "", 0 },
        { "::", 2 },
        { "::1", 3 },
        { "1::", 3 },
        { "::1]", 3 },
        { "::1%25e", 3 }, // a zone does not belong to it
        { "::1%e", 3 },
        { "::1/64", 3 },
        { "1:2:3:4:5:6:7:8", 15 },
        { "1:2:3:4:5:6:7:8:9", 15 },
        { "1:2:3:4:5:6:7:8:", 15 },
        { "1:2:3:4:5:6:7:8::", 15 },
        { "1:2:3:4:5:6:7::", 15 }, // one group of zeros
        { "::2:3:4:5:6:7:8", 15 },
        { "1::3:4:5:6:7:8", 14 },
        { "::1:2:3:4:5:6:7:8", 15 }, // `::` must stand for a group: the last is left out
        { "1::2:3:4:5:6:7:8", 14 },
        { "1:2:3:4:5:6:7::8", 15 },
        { "FFFF:abcd:EF01:2345:6789:ABCD:ef01:2345", 39 },
        { "2001:db8::1", 11 },
        { "2001:0db8:0000:0000:0000:0000:0000:0001", 39 },
        { "1:2:3", 0 },
        { "1:2:3:4:5:6:7", 0 },
        { "1:2:3:4:5:6:7:", 0 },
        { "1:2:3:4:5:6:7:g", 0 },
        { "1:2:3:4:5:6:7:12345", 0 }, // five digits are no group, and not one of four with something behind it
        { "::12345", 2 },
        { "::1:12345", 3 },
        { "12345::", 0 },
        { "1::2::3", 4 }, // one `::` only
        { "1:::2", 3 },
        { ":::", 2 },
        { ":", 0 },
        { ":1", 0 },
        { ":1::", 0 },
        { "1:", 0 },
        { "::1:", 3 },
        { "1::2:", 4 },
        { "::g", 2 },
        { "[::1]", 0 },
        { " ::1", 0 },
        { "1.2.3.4", 0 },
        { "::1.2.3.4", 9 },
        { "::ffff:192.0.2.1", 16 },
        { "::1.2.3.4:5", 9 }, // nothing may follow the embedded address
        { "::1.2.3.4.5", 9 },
        { "::1.2.3", 3 },
        { "::1.2.3.256", 3 },
        { "::1.2.3.04", 3 },
        { "1:2:3:4:5:6:1.2.3.4", 19 },
        { "1:2:3:4:5:1.2.3.4", 0 },      // seven groups
        { "1:2:3:4:5:6:7:1.2.3.4", 15 }, // the eighth group is 1
        { "1:2:3:4:5::1.2.3.4", 18 },
        { "1:2:3:4:5:6::1.2.3.4", 14 }, // no room for two groups: 1:2:3:4:5:6::1
        { "::2:3:4:5:6:1.2.3.4", 19 },
        { "::1:2:3:4:5:6:1.2.3.4", 15 },
        { "1.2.3.4::", 0 },
        { "::1.2.3.4::", 9 },
        { "\uFF1A\uFF1A1", 0 },
    };
    for ( const SkipRow &row : rows ) {
        SweepPrefixes( row.text, wen___SkipIpV6Address, row.length );
    }
}

TEST_F( WenAddress, SkipsInConstantTime )
{
    const std::string digits( 1'000'000, '1' );
    const Exact run( digits );
    EXPECT_EQ( wen___SkipIpV4Address( run.Chars(), run.Length() ), 0 );
    EXPECT_EQ( wen___SkipIpV6Address( run.Chars(), run.Length() ), 0 );
    const Exact colons( std::string( 1'000'000, ':' ) );
    EXPECT_EQ( wen___SkipIpV6Address( colons.Chars(), colons.Length() ), 2 );
}

TEST_F( WenAddress, RefusesWhatIsNoWholeAddress )
{
    for ( const char *const text : { "", "1.2.3", "1.2.3.4 ", " 1.2.3.4", "1.2.3.4.5", "1.2.3.256", "1.2.3.04", "::1%1",
                                     "[::1]", "::1]", "1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:9", "1::2::3", "host", ":" } ) {
        EXPECT_FALSE( Create( text ) ) << text;
    }
    EXPECT_EQ( wenAddressTryCreateFromChars( nullptr, 0 ), nullptr );
    EXPECT_ABORT( wenAddressTryCreateFromChars( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( wenAddressTryCreateFromChars( nullptr, 1 ), path, "chs || length == 0" );
}

// RFC 5952, sections 1 to 5, and RFC 4291, section 2.2.
TEST_F( WenAddress, Shrinks )
{
    static const struct {
        const char *text;
        const char *shortest;
    } rows[] = {
        { "1.2.3.4", "1.2.3.4" },
        { "0.0.0.0", "0.0.0.0" },
        { "255.255.255.255", "255.255.255.255" },
        { "10.20.100.200", "10.20.100.200" },
        { "2001:db8:0:0:1:0:0:1", "2001:db8::1:0:0:1" }, // two runs of one length: the first
        { "2001:0db8:0:0:1:0:0:1", "2001:db8::1:0:0:1" },
        { "2001:db8::1:0:0:1", "2001:db8::1:0:0:1" },
        { "2001:db8::0:1:0:0:1", "2001:db8::1:0:0:1" },
        { "2001:0db8::1:0:0:1", "2001:db8::1:0:0:1" },
        { "2001:db8:0:0:1::1", "2001:db8::1:0:0:1" },
        { "2001:db8:0000:0:1::1", "2001:db8::1:0:0:1" },
        { "2001:DB8:0:0:1::1", "2001:db8::1:0:0:1" },
        { "2001:db8:aaaa:bbbb:cccc:dddd:eeee:0001", "2001:db8:aaaa:bbbb:cccc:dddd:eeee:1" },
        { "2001:db8:aaaa:bbbb:cccc:dddd::1", "2001:db8:aaaa:bbbb:cccc:dddd:0:1" }, // one group is not shortened
        { "2001:db8:0:0:0::1", "2001:db8::1" },
        { "2001:db8:0:1:1:1:1:1", "2001:db8:0:1:1:1:1:1" },
        { "2001:db8::1:1:1:1:1", "2001:db8:0:1:1:1:1:1" },
        { "2001:0:0:1:0:0:0:1", "2001:0:0:1::1" }, // the longest
        { "2001:db8:0:0:1:0:0:0", "2001:db8:0:0:1::" },
        { "0:0:0:1:0:0:0:0", "0:0:0:1::" },
        { "0:0:0:0:1:0:0:0", "::1:0:0:0" },
        { "0:1:0:1:0:1:0:1", "0:1:0:1:0:1:0:1" },
        { "1:0:0:0:0:0:0:0", "1::" },
        { "0:0:0:0:0:0:0:1", "::1" },
        { "0:0:0:0:0:0:0:0", "::" },
        { "0:0:1:2:3:4:5:6", "::1:2:3:4:5:6" },
        { "1:2:3:4:5:6:0:0", "1:2:3:4:5:6::" },
        { "1:2:3:4:5:6:7::", "1:2:3:4:5:6:7:0" },
        { "FF01:0:0:0:0:0:0:101", "ff01::101" },
        { "2001:DB8:0:0:8:800:200C:417A", "2001:db8::8:800:200c:417a" },
        { "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff", "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff" },
        { "::FFFF:129.144.52.38", "::ffff:129.144.52.38" },
        { "::ffff:c000:201", "::ffff:192.0.2.1" }, // an IPv4-mapped address in any spelling
        { "0:0:0:0:0:ffff:0:0", "::ffff:0.0.0.0" },
        { "::13.1.68.3", "::d01:4403" }, // IPv4-compatible is gone (RFC 4291): hexadecimal
        { "::ffff:0:192.0.2.1", "::ffff:0:c000:201" },
        { "64:ff9b::192.0.2.33", "64:ff9b::c000:221" },
        { "1:2:3:4:5:6:1.2.3.4", "1:2:3:4:5:6:102:304" },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Shrink( row.text ), row.shortest ) << row.text;
        EXPECT_EQ( Shrink( row.shortest ), row.shortest );
        const Address address = Create( row.text );
        EXPECT_EQ( Take( koObjToString( wenAddressObj( address.Get() ) ) ), row.shortest );
    }
    EXPECT_ABORT( wenAddressToStringShrink( nullptr ), path, "address" );
}

/** The text with which the system's own reader of addresses agrees, where the rules are the same. */
std::optional<std::array<uint8_t, 16>> PresentationToNetwork( int family, const std::string &text )
{
    std::array<uint8_t, 16> bytes{};
    return inet_pton( family, text.c_str(), bytes.data() ) == 1 ? std::optional( bytes ) : std::nullopt;
}

std::string RandomText( std::mt19937 &random, std::string_view alphabet, size_t limit )
{
    std::string text( random() % ( limit + 1 ), ' ' );
    for ( char &ch : text ) {
        ch = alphabet[random() % alphabet.size()];
    }
    return text;
}

/** Groups, colons and now and then an embedded address: mostly addresses, or nearly. */
std::string RandomIpV6( std::mt19937 &random )
{
    static const char *const pieces[] = { "0",  "1",   "00", "0000", "ab",  "FFFF",    "12345",     "2001",   "db8",
                                          "::", ":::", ":",  "g",    "256", "1.2.3.4", "1.2.3.256", "0.0.0.0" };
    std::string text;
    for ( auto count = random() % 10; count > 0; --count ) {
        text += pieces[random() % std::size( pieces )];
        text += random() % 8 ? ":" : "";
    }
    if ( random() % 3 && !text.empty() && text.back() == ':' ) {
        text.pop_back();
    }
    return text;
}

TEST_F( WenAddress, AgreesWithInetPton )
{
    std::mt19937 random( 1 );
    int addresses = 0;
    for ( int i = 0; i < 200'000; ++i ) {
        std::string text;
        switch ( i % 4 ) {
        case 0:
            text = RandomText( random, "0125.", 15 );
            break;
        case 1:
            text = RandomText( random, "01aF:", 20 );
            break;
        default:
            text = RandomIpV6( random );
        }
        const int family = text.find( ':' ) == std::string::npos ? AF_INET : AF_INET6;
        const auto bytes = PresentationToNetwork( family, text );
        const std::string shortest = Shrink( text );
        ASSERT_EQ( shortest != "(null)", bytes.has_value() ) << text;
        if ( bytes ) {
            ++addresses;
            ASSERT_EQ( PresentationToNetwork( family, shortest ), bytes ) << text << " " << shortest;
        }
    }
    EXPECT_GT( addresses, 5000 );
}

TEST_F( WenAddress, TextsOfRandomAddressesAreTheSystems )
{
    std::mt19937 random( 2 );
    for ( int i = 0; i < 50'000; ++i ) {
        uint8_t bytes[16];
        for ( int group = 0; group < 8; ++group ) {
            const unsigned value = random() % 2 ? 0 : random() % 3 ? random() % 0x10000 : random() % 16;
            bytes[2 * group] = static_cast<uint8_t>( value >> 8 );
            bytes[2 * group + 1] = static_cast<uint8_t>( value );
        }
        bytes[0] |= 0x20; // the system writes IPv4-compatible addresses in dotted form
        char text[INET6_ADDRSTRLEN];
        ASSERT_NE( inet_ntop( AF_INET6, bytes, text, sizeof text ), nullptr );
        ASSERT_EQ( Shrink( text ), text );
    }
}

TEST_F( WenAddress, Orders )
{
    static const char *const ascending[] = { "0.0.0.0",   "1.2.3.4",         "1.2.3.5", "2.0.0.0",
                                             "128.0.0.0", "255.255.255.255", "::",      "::1",
                                             "::1:0:0",   "::ffff:1.2.3.4",  "1::",     "8000::" };
    for ( size_t i = 0; i < std::size( ascending ); ++i ) {
        for ( size_t k = 0; k < std::size( ascending ); ++k ) {
            const Address a = Create( ascending[i] );
            const Address b = Create( ascending[k] );
            const KoInt order = koObjCompare( wenAddressObj( a.Get() ), wenAddressObj( b.Get() ) );
            EXPECT_EQ( order < 0, i < k ) << ascending[i] << " " << ascending[k];
            EXPECT_EQ( order == 0, i == k ) << ascending[i] << " " << ascending[k];
        }
    }
}

TEST_F( WenAddress, IsAnObject )
{
    const Address address = Create( "192.0.2.1" );
    const KoObj obj = wenAddressObj( address.Get() );
    EXPECT_EQ( koObjSort( obj ), wenAddressSort() );
    EXPECT_STREQ( wenAddressSort()->name, "WEN_ADDRESS" );
    EXPECT_EQ( wenAddressSort()->module, wenModule() );
    EXPECT_EQ( wenAddressFrom( obj ), address.Get() );
    EXPECT_EQ( wenAddressFrom( nullptr ), nullptr );
    EXPECT_EQ( wenAddressObj( nullptr ), nullptr );
    EXPECT_EQ( test::Count( address.Get() ), 1 );
    EXPECT_EQ( wenAddressRetain( address.Get() ), address.Get() );
    EXPECT_EQ( test::Count( address.Get() ), 2 );
    wenAddressRelease( address.Get() );
    EXPECT_EQ( test::Count( address.Get() ), 1 );
    const auto string = Str( "1.2.3.4" );
    EXPECT_ABORT( wenAddressFrom( koStringObj( string.Get() ) ), path, "!obj || koObjSort( obj ) == wenAddressSort()" );
    EXPECT_ABORT( wenAddressRetain( nullptr ), path, "object" );
    EXPECT_ABORT( wenAddressRelease( nullptr ), path, "object" );
}

TEST_F( WenAddress, Module )
{
    const KoModule module = wenModule();
    EXPECT_EQ( module, wenModule() );
    EXPECT_STREQ( module->record->name, "wen" );
    EXPECT_STREQ( module->record->description, "Addresses" );
    EXPECT_STREQ( module->record->needs, "ko" );
    EXPECT_TRUE( koModuleStart( module ) );
    EXPECT_TRUE( koModuleStart( module ) );
    koModuleStop( module );
    koModuleStop( module );
}

} // namespace
