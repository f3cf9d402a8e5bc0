/* Protocol name and version. */
#include "tolmo_test.h"

#include <tolmo/tolmo_protocol_name.h>
#include <tolmo/tolmo_protocol_version.h>

namespace {

using test::Own;
using test::Str;
using test::Take;

constexpr char path[] = "source/tolmo/tolmo_version.cpp";

class Version : public test::TolmoFixture {
protected:
    static KoRef<TolmoVersion> Create( std::string_view name, std::string_view version )
    {
        return Own( tolmoVersionCreate( Str( name ).Get(), Str( version ).Get() ) );
    }
    static KoRef<TolmoVersion> Decode( std::string_view text )
    {
        const test::Exact chs( text );
        return Own( tolmo___VersionTryDecode( chs.Chars(), chs.Length() ) );
    }
};

TEST_F( Version, Create )
{
    const auto version = Create( "sip", "2.0-B" );
    EXPECT_EQ( test::Count( version.Get() ), 1 );
    EXPECT_EQ( Take( tolmoVersionProtocolName( version.Get() ) ), "SIP" );
    EXPECT_EQ( Take( tolmoVersionProtocolVersion( version.Get() ) ), "2.0-b" );
    EXPECT_EQ( Take( tolmoVersionToString( version.Get() ) ), "SIP/2.0-b" );
    EXPECT_EQ( Take( tolmo___VersionEncode( version.Get() ) ), "SIP/2.0-b" );

    const auto good = Str( "a" );
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoVersionCreate( bad.Get(), good.Get() ), path, "tolmoProtocolNameOk( protocolName )" );
    EXPECT_ABORT( tolmoVersionCreate( good.Get(), bad.Get() ), path, "tolmoProtocolVersionOk( protocolVersion )" );
    EXPECT_ABORT( tolmoVersionCreate( bad.Get(), bad.Get() ), path, "tolmoProtocolNameOk( protocolName )" );
    EXPECT_ABORT( tolmoVersionCreate( Str( "" ).Get(), good.Get() ), path, "tolmoProtocolNameOk( protocolName )" );
    EXPECT_ABORT( tolmoVersionCreate( good.Get(), Str( "" ).Get() ), path,
                  "tolmoProtocolVersionOk( protocolVersion )" );
}

TEST_F( Version, Constant )
{
    auto constant = Own( tolmoVersionCreateSip20() );
    EXPECT_EQ( Own( tolmoVersionCreateSip20() ).Get(), constant.Get() ); // no new object
    EXPECT_EQ( Take( tolmoVersionToString( constant.Get() ) ), "SIP/2.0" );
    EXPECT_TRUE( tolmoVersionEquals( constant.Get(), Create( "sip", "2.0" ).Get() ) );

    // A mutator and a copy get an object of their own.
    const TolmoVersion shared = constant.Get();
    const auto copy = Own( tolmoVersionCreateFrom( shared ) );
    EXPECT_NE( copy.Get(), shared );
    EXPECT_EQ( test::Count( copy.Get() ), 1 );
    tolmoVersionSetProtocolVersion( constant.Address(), Str( "3.0" ).Get() );
    EXPECT_NE( constant.Get(), shared );
    EXPECT_EQ( Take( tolmoVersionToString( constant.Get() ) ), "SIP/3.0" );
    EXPECT_EQ( Take( tolmoVersionToString( Own( tolmoVersionCreateSip20() ).Get() ) ), "SIP/2.0" );
}

TEST_F( Version, Is )
{
    struct {
        const char *text;
        KoBool sip, sip20;
    } const rows[] = { { "SIP/2.0", KO_TRUE, KO_TRUE },    { "sip/2.0", KO_TRUE, KO_TRUE },
                       { "SIP/3.0", KO_TRUE, KO_FALSE },   { "SIP/2.00", KO_TRUE, KO_FALSE },
                       { "SIP/2", KO_TRUE, KO_FALSE },     { "SIPS/2.0", KO_FALSE, KO_FALSE },
                       { "HTTP/2.0", KO_FALSE, KO_FALSE }, { "ABC/1.1", KO_FALSE, KO_FALSE } };
    for ( const auto &row : rows ) {
        const auto version = Decode( row.text );
        EXPECT_EQ( tolmoVersionIsSip( version.Get() ), row.sip ) << row.text;
        EXPECT_EQ( tolmoVersionIsSip20( version.Get() ), row.sip20 ) << row.text;
    }
    EXPECT_TRUE( tolmoVersionIsSip20( Create( "Sip", "2.0" ).Get() ) ); // also one that is not the constant
    EXPECT_ABORT( tolmoVersionIsSip( nullptr ), path, "version" );
    EXPECT_ABORT( tolmoVersionIsSip20( nullptr ), path, "version" );
    EXPECT_ABORT( tolmoVersionProtocolName( nullptr ), path, "version" );
    EXPECT_ABORT( tolmoVersionProtocolVersion( nullptr ), path, "version" );
    EXPECT_ABORT( tolmo___VersionEncode( nullptr ), path, "version" );
    EXPECT_ABORT( tolmoVersionCreateFrom( nullptr ), path, "source" );
}

TEST_F( Version, Setters )
{
    auto version = Create( "SIP", "2.0" );
    const TolmoVersion object = version.Get();
    tolmoVersionSetProtocolName( version.Address(), Str( "tolmo" ).Get() );
    tolmoVersionSetProtocolVersion( version.Address(), Str( "1.X" ).Get() );
    EXPECT_EQ( version.Get(), object ); // a count of 1 keeps the object
    EXPECT_EQ( Take( tolmoVersionToString( version.Get() ) ), "TOLMO/1.x" );

    const auto other = KoRef<TolmoVersion>::Share( version.Get() );
    tolmoVersionSetProtocolName( version.Address(), Str( "a" ).Get() );
    EXPECT_EQ( other.Get(), object );
    EXPECT_NE( version.Get(), object );
    EXPECT_EQ( test::Count( object ), 1 );
    EXPECT_EQ( Take( tolmoVersionToString( other.Get() ) ), "TOLMO/1.x" );
    EXPECT_EQ( Take( tolmoVersionToString( version.Get() ) ), "A/1.x" );

    // What the object itself holds can be given to it.
    const auto held = Own( tolmoVersionProtocolName( version.Get() ) );
    tolmoVersionSetProtocolName( version.Address(), held.Get() );
    EXPECT_EQ( Take( tolmoVersionToString( version.Get() ) ), "A/1.x" );

    TolmoVersion null = nullptr;
    const auto bad = Str( "a/b" );
    EXPECT_ABORT( tolmoVersionSetProtocolName( nullptr, bad.Get() ), path, "version" );
    EXPECT_ABORT( tolmoVersionSetProtocolName( &null, bad.Get() ), path, "*version" );
    EXPECT_ABORT( tolmoVersionSetProtocolName( version.Address(), bad.Get() ), path,
                  "tolmoProtocolNameOk( protocolName )" );
    EXPECT_ABORT( tolmoVersionSetProtocolVersion( nullptr, bad.Get() ), path, "version" );
    EXPECT_ABORT( tolmoVersionSetProtocolVersion( &null, bad.Get() ), path, "*version" );
    EXPECT_ABORT( tolmoVersionSetProtocolVersion( version.Address(), bad.Get() ), path,
                  "tolmoProtocolVersionOk( protocolVersion )" );
}

TEST_F( Version, Decode )
{
    struct {
        const char *text;
        const char *encoded; // null: refused
    } const rows[] = {
        { "SIP/2.0", "SIP/2.0" },
        { "sip/2.0", "SIP/2.0" },
        { "SIP / 2.0", "SIP/2.0" },
        { "SIP\t/\t \t2.0", "SIP/2.0" },
        { "SIP/2.0B", "SIP/2.0b" },
        { "abc/1.1", "ABC/1.1" }, // any two tokens
        { "!/~", "!/~" },
        { "", nullptr },
        { "SIP", nullptr },
        { "SIP/", nullptr },
        { "SIP/ ", nullptr },
        { "/2.0", nullptr },
        { " SIP/2.0", nullptr },
        { "SIP/2.0 ", nullptr }, // nothing may stand behind it
        { "SIP/2.0/", nullptr },
        { "SIP/2.0/UDP", nullptr },
        { "SIP//2.0", nullptr },
        { "SIP 2.0", nullptr },
        { "S\u00CFP/2.0", nullptr },
        { "SIP/2.0\r", nullptr },
    };
    for ( const auto &row : rows ) {
        const auto version = Decode( row.text );
        ASSERT_EQ( version.Get() != nullptr, row.encoded != nullptr ) << row.text;
        if ( version ) {
            EXPECT_EQ( Take( tolmo___VersionEncode( version.Get() ) ), row.encoded );
            const auto again = Decode( row.encoded );
            EXPECT_EQ( tolmoVersionCompare( version.Get(), again.Get() ), 0 ) << row.text;
        }
        for ( size_t length = 0; length < std::string_view( row.text ).size(); ++length ) {
            const auto prefix = Decode( std::string_view( row.text ).substr( 0, length ) );
            static_cast<void>( prefix ); // must not read behind its end
        }
    }
    const KoChar ch = 'a';
    EXPECT_ABORT( tolmo___VersionTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___VersionTryDecode( &ch, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___VersionTryDecode( nullptr, 1 ), path, "chs || length == 0" );
    EXPECT_EQ( tolmo___VersionTryDecode( nullptr, 0 ), nullptr );
}

TEST_F( Version, Compare )
{
    const char *const ordered[] = { "A/1", "A/2", "B/0", "B/a" };
    for ( size_t i = 0; i < std::size( ordered ); ++i ) {
        for ( size_t k = 0; k < std::size( ordered ); ++k ) {
            const auto a = Decode( ordered[i] );
            const auto b = Decode( ordered[k] );
            const KoInt order = tolmoVersionCompare( a.Get(), b.Get() );
            EXPECT_EQ( order < 0, i < k );
            EXPECT_EQ( order > 0, i > k );
            EXPECT_EQ( tolmoVersionEquals( a.Get(), b.Get() ), i == k );
        }
    }
    const KoSort sort = tolmoVersionSort();
    const auto version = Decode( "A/1" );
    const KoObj obj = tolmoVersionObj( version.Get() );
    EXPECT_ABORT( sort->compare( nullptr, obj ), path, "versionA" );
    EXPECT_ABORT( sort->compare( obj, nullptr ), path, "versionB" );
    EXPECT_ABORT( sort->compare( nullptr, nullptr ), path, "versionA" );
    EXPECT_ABORT( sort->free( nullptr ), path, "version" );
}

} // namespace
