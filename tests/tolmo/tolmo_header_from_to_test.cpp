/* The headers From and To, which are twins: everything here is asked of both. */
#include "tolmo_header_party_test.h"

namespace {

using test::Own;
using test::Str;

template <class H>
struct TaggedType : test::PartyType<H> {
    KoBool ( *hasTag )( H );
    KoString ( *tag )( H );
    void ( *setTag )( H *, KoString );
    void ( *delTag )( H * );
    KoBool ( *hasEpid )( H );
    KoString ( *epid )( H );
    void ( *setEpid )( H *, KoString );
    void ( *delEpid )( H * );
};

#define TAGGED( Type, unit )                                                                                           \
    {                                                                                                                  \
        TEST_PARTY( Type, unit, #Type ), tolmoHeader##Type##HasTag, tolmoHeader##Type##Tag, tolmoHeader##Type##SetTag, \
            tolmoHeader##Type##DelTag, tolmoHeader##Type##HasEpid, tolmoHeader##Type##Epid,                            \
            tolmoHeader##Type##SetEpid, tolmoHeader##Type##DelEpid                                                     \
    }

const TaggedType<TolmoHeaderFrom> from = TAGGED( From, "from" );
const TaggedType<TolmoHeaderTo> to = TAGGED( To, "to" );

class FromTo : public test::TolmoFixture {
protected:
    /** Asks the same of both. */
    template <class Ask>
    void Both( Ask ask )
    {
        {
            SCOPED_TRACE( "From" );
            ask( from );
        }
        SCOPED_TRACE( "To" );
        ask( to );
    }
};

TEST_F( FromTo, SingleValue )
{
    Both( []( const auto &type ) { test::ExpectSingleValue( type, "Alice <sip:a@b>;tag=1", "Alice sip:a" ); } );
}

TEST_F( FromTo, CompactName )
{
    EXPECT_EQ( test::Encode( from, Own( tolmoHeaderFromTryDecodeFromMessage(
                                       test::Received( "f: <sip:a>;tag=1\r\nt: <sip:b>\r\n" ).Get() ) ) ),
               "<sip:a>;tag=1" );
    EXPECT_EQ( test::Encode( to, Own( tolmoHeaderToTryDecodeFromMessage(
                                     test::Received( "f: <sip:a>;tag=1\r\nt: <sip:b>\r\n" ).Get() ) ) ),
               "<sip:b>" );
}

const test::Row rows[] = {
    { "<sip:a>;tag=1", "<sip:a>;tag=1" },
    { "sip:a?x;tag=1", "<sip:a?x>;tag=1" }, // of the header, not of the address
    { "<sip:a;tag=1>", "<sip:a;tag=1>" },
    { "<sip:a> ;tag=1", "<sip:a>;tag=1" },
    { "<sip:a>;TaG = aB", "<sip:a>;tag=aB" },
    { "<sip:a>;x;epid=2;y;tag=1", "<sip:a>;tag=1;epid=2;x;y" }, // the fields come first, in their order
    { "<sip:a>;tag=1;tag=2", "<sip:a>;tag=2" },
    { "<sip:a>;epid=1;EPID=2", "<sip:a>;epid=2" },
    { "<sip:a>;epid=0123456789abcdef", "<sip:a>;epid=0123456789abcdef" },
    { "<sip:a>;epid=0123456789abcdefg", test::null }, // 16 are a good value, and then a semicolon has to follow
    { "<sip:a>;tag=1x y", test::null },
    { "<sip:a>;tag=1@b", test::null },
    { "<sip:a>;tag=1 ", test::null },
    // What is no tag is a generic parameter.
    { "<sip:a>;tag", "<sip:a>;tag" },
    { "<sip:a>;x;tag=\"1\"", "<sip:a>;x;tag=\"1\"" },
    { "<sip:a>;tag=[::1]", "<sip:a>;tag=[::1]" },
    { "<sip:a>;tagx=1", "<sip:a>;tagx=1" },
    { "<sip:a>;epid", "<sip:a>;epid" },
    { "<sip:a>;epid=\"1\"", "<sip:a>;epid=\"1\"" },
    { "<sip:a>;epidx=1", "<sip:a>;epidx=1" },
    { "<sip:a>;tag=", test::null },
    // One that did not fit is hidden while there is one that did.
    { "<sip:a>;tag=a;tag=\"b\"", "<sip:a>;tag=a" },
    { "<sip:a>;tag=\"b\";x;tag=a", "<sip:a>;tag=a;x" },
    { "<sip:a>;epid;epid=1;x", "<sip:a>;epid=1;x" },
};

TEST_F( FromTo, Rows )
{
    Both( []( const auto &type ) {
        for ( const test::Row &row : test::partyRows ) {
            test::ExpectRow( type, row );
        }
        for ( const test::Row &row : rows ) {
            test::ExpectRow( type, row );
        }
    } );
}

TEST_F( FromTo, Fields )
{
    Both( []( const auto &type ) { test::ExpectPartyFields( type ); } );
}

template <class H>
void ExpectTagAndEpid( const TaggedType<H> &type )
{
    const auto decode = [&]( std::string_view line ) { return test::Decode( type, line ); };
    const auto params = [&]( H hdr ) {
        return test::Take( tolmo___GenericParamsEncode( Own( type.genericParams( hdr ) ).Get() ) );
    };

    auto hdr = decode( "<sip:a>;TAG=Ab;epid=c;x" );
    EXPECT_TRUE( type.hasTag( hdr.Get() ) );
    EXPECT_EQ( test::Take( type.tag( hdr.Get() ) ), "Ab" );
    EXPECT_TRUE( type.hasEpid( hdr.Get() ) );
    EXPECT_EQ( test::Take( type.epid( hdr.Get() ) ), "c" );
    EXPECT_EQ( params( hdr.Get() ), ";x" );
    for ( const std::string_view line : { "<sip:a>", "<sip:a>;tag;epid", "<sip:a>;tag=\"x\";epid=\"y\"",
                                          "<sip:a>;tagx=1;epidx=1", "<sip:a;tag=1;epid=1>" } ) {
        hdr = decode( line );
        EXPECT_FALSE( type.hasTag( hdr.Get() ) ) << line;
        EXPECT_EQ( type.tag( hdr.Get() ), nullptr ) << line;
        EXPECT_FALSE( type.hasEpid( hdr.Get() ) ) << line;
        EXPECT_EQ( type.epid( hdr.Get() ), nullptr ) << line;
    }

    // A hidden parameter stays where it is, also when the header is encoded.
    hdr = decode( "<sip:a>;x;tag=\"b\";tag=a;epid=1;epid" );
    EXPECT_EQ( test::Encode( type, hdr ), "<sip:a>;tag=a;epid=1;x" );
    EXPECT_EQ( params( hdr.Get() ), ";x;tag=\"b\";epid" );
    type.delTag( hdr.Address() );
    EXPECT_EQ( test::Encode( type, hdr ), "<sip:a>;epid=1;x;tag=\"b\"" );
    type.delEpid( hdr.Address() );
    EXPECT_EQ( test::Encode( type, hdr ), "<sip:a>;x;tag=\"b\";epid" );

    test::ExpectChanges<H>(
        type, "<sip:a>;tag=1;epid=2;x",
        { { "<sip:a>;tag=A;epid=2;x", [&]( H *h ) { type.setTag( h, Str( "A" ).Get() ); } },
          { "<sip:a>;tag=1;epid=A;x", [&]( H *h ) { type.setEpid( h, Str( "A" ).Get() ); } },
          { "<sip:a>;epid=2;x", [&]( H *h ) { type.delTag( h ); } },
          { "<sip:a>;tag=1;x", [&]( H *h ) { type.delEpid( h ); } },
          { "<sip:a>;tag=1;epid=2;x", [&]( H *h ) { type.setTag( h, Own( type.tag( *h ) ).Get() ); } },
          // Nobody looks for the two names in parameters that are set.
          { "<sip:a>;tag=1;epid=2;y",
            [&]( H *h ) { type.setGenericParams( h, test::Params( ";tag=3;y;epid=4" ).Get() ); } } } );
    test::ExpectChanges<H>( type, "<sip:a>",
                            { { "<sip:a>;tag=A", [&]( H *h ) { type.setTag( h, Str( "A" ).Get() ); } },
                              { "<sip:a>;epid=A", [&]( H *h ) { type.setEpid( h, Str( "A" ).Get() ); } },
                              { "<sip:a>", [&]( H *h ) { type.delTag( h ); } },
                              { "<sip:a>", [&]( H *h ) { type.delEpid( h ); } },
                              { "<sip:a>;x;tag=3;epid=4", [&]( H *h ) {
                                   type.setGenericParams( h, test::Params( ";x;tag=3;epid=4" ).Get() );
                               } } } );

    EXPECT_ABORT( type.hasTag( nullptr ), type.path, "hdr" );
    EXPECT_ABORT( type.tag( nullptr ), type.path, "hdr" );
    EXPECT_HANDLE_ABORTS( type, type.setTag, nullptr );
    for ( const std::string_view bad : { "", "a b", "a;b", "\"a\"" } ) {
        EXPECT_ABORT( type.setTag( hdr.Address(), Str( bad ).Get() ), type.path, "tolmoTagOk( tag )" );
        EXPECT_ABORT( type.setEpid( hdr.Address(), Str( bad ).Get() ), type.path, "tolmoEpidOk( epid )" );
    }
    EXPECT_HANDLE_ABORTS( type, type.delTag );
    EXPECT_ABORT( type.hasEpid( nullptr ), type.path, "hdr" );
    EXPECT_ABORT( type.epid( nullptr ), type.path, "hdr" );
    EXPECT_HANDLE_ABORTS( type, type.setEpid, nullptr );
    EXPECT_ABORT( type.setEpid( hdr.Address(), Str( "0123456789abcdefg" ).Get() ), type.path, "tolmoEpidOk( epid )" );
    EXPECT_HANDLE_ABORTS( type, type.delEpid );
}

TEST_F( FromTo, TagAndEpid )
{
    Both( []( const auto &type ) { ExpectTagAndEpid( type ); } );
}

TEST_F( FromTo, OfEachOther )
{
    for ( const std::string_view line : { "<sip:a>", "\"\" <sip:a>", "\"Alice\" <sip:b%C3%BC>;tag=1;epid=2;x=\"y\"",
                                          "<sip:a>;tag;epid=\"x\"", "<sip:a>;tag=\"x\";tag=1" } ) {
        const auto hdrFrom = test::Decode( from, line );
        const auto hdrTo = test::Decode( to, line );
        const auto newTo = Own( tolmoHeaderToCreateFromHeaderFrom( hdrFrom.Get() ) );
        const auto newFrom = Own( tolmoHeaderFromCreateFromHeaderTo( hdrTo.Get() ) );
        EXPECT_TRUE( tolmoHeaderToEquals( newTo.Get(), hdrTo.Get() ) ) << line;
        EXPECT_TRUE( tolmoHeaderFromEquals( newFrom.Get(), hdrFrom.Get() ) ) << line;
        EXPECT_EQ( test::Encode( to, newTo ), test::Encode( from, hdrFrom ) );
    }
    // The parameters are shared, and neither reaches the other.
    const auto hdrTo = test::Decode( to, "<sip:a>;tag=1;x" );
    auto hdrFrom = Own( tolmoHeaderFromCreateFromHeaderTo( hdrTo.Get() ) );
    EXPECT_EQ( test::Take( tolmoHeaderFromTag( hdrFrom.Get() ) ), "1" );
    auto params = Own( tolmoHeaderFromGenericParams( hdrFrom.Get() ) );
    EXPECT_EQ( Own( tolmoHeaderToGenericParams( hdrTo.Get() ) ).Get(), params.Get() );
    tolmoGenericParamsDelParamCstr( params.Address(), "x", -1 );
    tolmoHeaderFromSetGenericParams( hdrFrom.Address(), params.Get() );
    tolmoHeaderFromDelTag( hdrFrom.Address() );
    EXPECT_EQ( test::Encode( from, hdrFrom ), "<sip:a>" );
    EXPECT_EQ( test::Encode( to, hdrTo ), "<sip:a>;tag=1;x" );

    EXPECT_ABORT( tolmoHeaderFromCreateFromHeaderTo( nullptr ), from.path, "hdrTo" );
    EXPECT_ABORT( tolmoHeaderToCreateFromHeaderFrom( nullptr ), to.path, "hdrFrom" );
}

TEST_F( FromTo, Order )
{
    Both( []( const auto &type ) {
        // Address, display name, tag, end-point identifier, parameters; what is absent comes first.
        test::ExpectAscending( type,
                               { "<sip:A@b>", "<sip:a@b>", "<sip:a@b>;x=1", "<sip:a@b>;epid=1", "<sip:a@b>;epid=1;x=1",
                                 "<sip:a@b>;epid=2", "<sip:a@b>;tag=1", "<sip:a@b>;tag=1;epid=1", "<sip:a@b>;tag=2",
                                 "<sip:a@b>;tag=B", "<sip:a@b>;tag=b", "\"\" <sip:a@b>", "A <sip:a@b>",
                                 "A <sip:a@b>;tag=1", "B <sip:a@b>", "<sip:b@b>" } );
        const auto equal = [&]( std::string_view a, std::string_view b ) {
            return type.equals( test::Decode( type, a ).Get(), test::Decode( type, b ).Get() );
        };
        EXPECT_TRUE( equal( "Alice <sip:a>;x;y=A;tag=1", "\"Alice\" <sip:a>;TAG=1;y=a;X" ) );
        EXPECT_TRUE( equal( "sip:a;x", "<sip:a>;x" ) );
        EXPECT_FALSE( equal( "<sip:a>", "<sip:a:5060>" ) ); // text, not what it means
    } );
}

TEST_F( FromTo, Generated )
{
    Both( []( const auto &type ) {
        test::Generator generate( 1 );
        for ( int i = 0; i < 1000; ++i ) {
            auto hdr = generate.Party( type );
            if ( generate.Chance() ) {
                type.setTag( hdr.Address(), Str( generate.Token() ).Get() );
            }
            if ( generate.Chance() ) {
                type.setEpid( hdr.Address(), Str( generate.Token() ).Get() );
            }
            test::ExpectRoundTrip( type, hdr );
        }
    } );
}

TEST_F( FromTo, Huge )
{
    std::string line = "\"" + std::string( 10000, 'n' ) + "\" <sip:" + std::string( 10000, 'a' ) +
                       ">;tag=" + std::string( 10000, 't' );
    for ( int i = 0; i < 2000; ++i ) {
        line += ";p" + std::to_string( i ) + "=v";
    }
    Both( [&]( const auto &type ) {
        EXPECT_EQ( test::Recode( type, line ), line );
        EXPECT_EQ( test::RecodeReceived( type, line ), line );
    } );
}

} // namespace
