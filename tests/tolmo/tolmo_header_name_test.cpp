/* Names of header fields: the known ones, the compact forms, and the normal form of all others. */
#include "head_reference.h"

#include <tolmo/tolmo_header_name.hpp>

#include <random>

namespace {

using reference::NormalName;
using test::Own;
using test::Str;
using test::Text;

class HeaderName : public test::TolmoFixture {
protected:
    static KoRef<KoString> Normalize( std::string_view name )
    {
        return Own( tolmoMessageHeaderNameNormalize( Str( name ).Get() ) );
    }
    /** Each letter small or a capital, by chance. */
    std::string AnyCase( std::string name )
    {
        for ( char &c : name ) {
            c = ( random() & 1 ) ? reference::Raised( std::string( 1, c ) )[0]
                                 : reference::Lowered( std::string( 1, c ) )[0];
        }
        return name;
    }

    std::mt19937 random{ 99 };
};

constexpr char tokens[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789!%'*+-._`~";

TEST_F( HeaderName, KnownNamesAreTheirOwnNormalForm )
{
    for ( const std::string_view known : tolmo::knownNames ) {
        const std::string name( known );
        EXPECT_EQ( NormalName( name ), name );
        const auto constant = Normalize( name );
        EXPECT_EQ( Text( constant ), name );
        // In every spelling it is one string, which is not made anew.
        for ( int i = 0; i < 20; ++i ) {
            const std::string spelled = AnyCase( name );
            EXPECT_EQ( Normalize( spelled ).Get(), constant.Get() ) << spelled;
        }
        EXPECT_EQ( Normalize( reference::Raised( name ) ).Get(), constant.Get() ) << name;
    }
}

TEST_F( HeaderName, EveryNameOfOneCharacter )
{
    for ( const char c : std::string_view( tokens ) ) {
        const std::string name( 1, c );
        EXPECT_EQ( Text( Normalize( name ) ), NormalName( name ) );
    }
    EXPECT_EQ( reference::CompactForms().size(), 20u );
    for ( const auto &[compact, name] : reference::CompactForms() ) {
        EXPECT_EQ( Text( Normalize( compact ) ), name );
        EXPECT_EQ( Text( Normalize( reference::Raised( compact ) ) ), name );
        EXPECT_EQ( Normalize( compact ).Get(), Normalize( name ).Get() );
    }
}

TEST_F( HeaderName, Rows )
{
    const struct {
        const char *name, *normal;
    } rows[] = {
        { "CSEQ", "Cseq" },
        { "CSeq", "Cseq" },
        { "call-id", "Call-Id" },
        { "WWW-Authenticate", "Www-Authenticate" },
        { "MIME-Version", "Mime-Version" },
        { "V", "Via" },
        { "v", "Via" },
        { "VIA", "Via" },
        { "I", "Call-Id" },
        { "j", "Reject-Contact" }, // not in the case of a table, but by the rule
        { "z", "Z" },
        { "w", "W" },
        { "Foo--bar", "Foo--Bar" },
        { "foo--BAR-", "Foo--Bar-" },
        { "-a", "-A" },
        { "-", "-" },
        { "--a", "--A" },
        { "x_y", "X_y" },
        { "X_Y", "X_y" },
        { "a.b", "A.b" },
        { "1a-2B", "1a-2b" },
        { "!a", "!a" },
        { "`A~Z", "`a~z" },
        { "vi", "Vi" },
        { "User-to-User", "User-To-User" }, // the constant of the typed header is spelled so, and found all the same
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Text( Normalize( row.name ) ), row.normal );
        EXPECT_EQ( NormalName( row.name ), row.normal );
    }
}

TEST_F( HeaderName, RandomNames )
{
    for ( int i = 0; i < 100000; ++i ) {
        std::string name;
        for ( size_t length = 1 + random() % ( i % 10 ? 12 : 60 ); length > 0; --length ) {
            name += random() % 5 ? tokens[random() % ( sizeof tokens - 1 )] : '-';
        }
        ASSERT_EQ( Text( Normalize( name ) ), NormalName( name ) ) << name;
    }
}

/** One character more, less or other than a known name is another name. */
TEST_F( HeaderName, NeighboursOfKnownNames )
{
    for ( const std::string_view known : tolmo::knownNames ) {
        for ( size_t at = 0; at <= known.size(); ++at ) {
            if ( at > 0 ) {
                const std::string name( known.substr( 0, at ) );
                EXPECT_EQ( Text( Normalize( name ) ), NormalName( name ) );
            }
            for ( const char c : { '-', 'a', 'Z', '_', '\'', '~', '.' } ) {
                std::string name( known );
                name.insert( at, 1, c );
                EXPECT_EQ( Text( Normalize( name ) ), NormalName( name ) );
                if ( at < known.size() ) {
                    name = known;
                    name[at] = c;
                    EXPECT_EQ( Text( Normalize( name ) ), NormalName( name ) );
                    name.erase( at, 1 );
                    EXPECT_EQ( Text( Normalize( name ) ), NormalName( name ) );
                }
            }
        }
    }
}

/** The bytes of a message take another way to the same names. */
TEST_F( HeaderName, OnReceivedBytes )
{
    std::string lines;
    std::vector<std::string> names;
    const auto add = [&]( const std::string &name ) {
        names.push_back( name );
        lines += name + ":" + std::to_string( names.size() ) + "\r\n";
    };
    for ( const std::string_view known : tolmo::knownNames ) {
        add( AnyCase( std::string( known ) ) );
        add( AnyCase( std::string( known ) + "x" ) );
        add( AnyCase( std::string( known.substr( 1 ) ) ) );
    }
    for ( const char c : std::string_view( tokens ) ) {
        add( std::string( 1, c ) );
    }
    const auto frag = Own( tolmoMessageFragmentTryDecodeHeaders( test::Buf( lines ).Get(), nullptr ) );
    ASSERT_TRUE( frag );
    reference::Message expected;
    for ( size_t i = 0; i < names.size(); ++i ) {
        reference::DecodeHeader( expected, names[i] + ":" + std::to_string( i + 1 ) );
    }
    EXPECT_EQ( reference::Dump( frag.Get() ), reference::Dump( expected ) );
}

TEST_F( HeaderName, TheArgumentStaysAsItIs )
{
    auto name = Str( "x-FOO" );
    const auto normal = Own( tolmoMessageHeaderNameNormalize( name.Get() ) );
    EXPECT_EQ( Text( name ), "x-FOO" );
    EXPECT_EQ( Text( normal ), "X-Foo" );
    // A caller who changes what it got changes no constant.
    auto via = Normalize( "v" );
    koStringAppendChar( via.Address(), '!' );
    EXPECT_EQ( Text( Normalize( "v" ) ), "Via" );
}

} // namespace
