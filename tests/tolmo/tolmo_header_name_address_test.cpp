/* The headers P-Called-Party-Id, Remote-Party-Id, Reply-To, Refer-To and Referred-By. */
#include "tolmo_header_party_test.h"

namespace {

using test::Own;
using test::Str;

const test::PartyType<TolmoHeaderPCalledPartyId> pCalledPartyId =
    TEST_PARTY( PCalledPartyId, "p_called_party_id", "P-Called-Party-Id" );
const test::PartyType<TolmoHeaderRemotePartyId> remotePartyId =
    TEST_PARTY( RemotePartyId, "remote_party_id", "Remote-Party-Id" );
const test::PartyType<TolmoHeaderReplyTo> replyTo = TEST_PARTY( ReplyTo, "reply_to", "Reply-To" );
const test::PartyType<TolmoHeaderReferTo> referTo = TEST_PARTY( ReferTo, "refer_to", "Refer-To" );
const test::PartyType<TolmoHeaderReferredBy> referredBy = TEST_PARTY( ReferredBy, "referred_by", "Referred-By" );

class NameAddress : public test::TolmoFixture {
protected:
    /** Asks the same of all but Refer-To, which alone reads some lines twice. */
    template <class Ask>
    void Once( Ask ask )
    {
        const auto named = [&]( const auto &type ) {
            SCOPED_TRACE( type.name );
            ask( type );
        };
        named( pCalledPartyId );
        named( remotePartyId );
        named( replyTo );
        named( referredBy );
    }

    template <class Ask>
    void All( Ask ask )
    {
        Once( ask );
        SCOPED_TRACE( referTo.name );
        ask( referTo );
    }
};

TEST_F( NameAddress, SingleValue )
{
    All( []( const auto &type ) { test::ExpectSingleValue( type, "Alice <sip:a@b>;x=1", "Alice sip:a" ); } );
}

TEST_F( NameAddress, CompactName )
{
    EXPECT_EQ( test::Encode( referTo, Own( tolmoHeaderReferToTryDecodeFromMessage(
                                          test::Received( "r: sip:a\r\nb: sip:b\r\n" ).Get() ) ) ),
               "<sip:a>" );
    EXPECT_EQ( test::Encode( referredBy, Own( tolmoHeaderReferredByTryDecodeFromMessage(
                                             test::Received( "r: sip:a\r\nb: sip:b\r\n" ).Get() ) ) ),
               "<sip:b>" );
}

TEST_F( NameAddress, Rows )
{
    All( []( const auto &type ) {
        for ( const test::Row &row : test::partyRows ) {
            test::ExpectRow( type, row );
        }
        test::ExpectRow( type, { "<sip:a>;x;tag=1;epid=2", "<sip:a>;x;tag=1;epid=2" } ); // nothing is lifted
    } );
}

// Lines that Refer-To reads twice, and what becomes of them there; all others refuse them.
const test::Row retried[] = {
    { "sip:a@b;method=INVITE?x=y", "<sip:a@b;method=INVITE?x=y>" },
    { "sip:a@b;", "<sip:a@b;>" },
    { "sip:a@b;x;", "<sip:a@b;x;>" },
    { "sip:a@b;;x", "<sip:a@b;;x>" },
    { "sip:a@b;x=?y;z=1", "<sip:a@b;x=?y;z=1>" },
    { "sip:a@b;x?y ;z=1", "<sip:a@b;x?y>;z=1" }, // the address ends at the blank
    { "sip:a@b;x=a@c", "<sip:a@b;x=a@c>" },
    { "sip:a@b;x?y ;z=1 ", test::null },
    { "sip:a@b;x?y z", test::null },
    { "sip:a@b;x?y;z=\"q\"", test::null },
    { "sip:a@b;x?y>", test::null },
};

TEST_F( NameAddress, ReadTwice )
{
    for ( const test::Row &row : retried ) {
        test::ExpectRow( referTo, row );
        Once( [&]( const auto &type ) { test::ExpectRow( type, { row.in, test::null } ); } );
    }
    const test::Row once[] = {
        { "sip:a@b?Replaces=x;y", "<sip:a@b?Replaces=x>;y" }, // good at once: `;y` moves out of the address
        { "sip:a@b;x=\"?\"", "<sip:a@b>;x=\"?\"" },
        { "<sip:a@b>;method=INVITE?x=y", test::null }, // in brackets there is nothing to read in another way
        { "A <sip:a@b>;x=?", test::null },
        { "<sip:a@b>;", test::null },
        { "a@b;x?y", test::null }, // no address at all
        { ";x?y", test::null },
    };
    All( [&]( const auto &type ) {
        for ( const test::Row &row : once ) {
            test::ExpectRow( type, row );
        }
    } );
}

TEST_F( NameAddress, Fields )
{
    All( []( const auto &type ) { test::ExpectPartyFields( type ); } );
}

TEST_F( NameAddress, Order )
{
    All( []( const auto &type ) {
        test::ExpectAscending( type, { "<sip:A@b>", "<sip:a@b>", "<sip:a@b>;x=1", "\"\" <sip:a@b>", "A <sip:a@b>",
                                       "A <sip:a@b>;x=1", "B <sip:a@b>", "<sip:b@b>" } );
        EXPECT_TRUE( type.equals( test::Decode( type, "Alice <sip:a>;x;y=A" ).Get(),
                                  test::Decode( type, "\"Alice\" <sip:a>;y=a;X" ).Get() ) );
    } );
    test::ExpectAscending( referredBy, { "<sip:a>", "<sip:a>;x=1", "<sip:a>;cid=\"a@b\"", "<sip:a>;cid=\"a@b\";x=1",
                                         "<sip:a>;cid=\"b@b\"", "\"\" <sip:a>" } );
}

TEST_F( NameAddress, Generated )
{
    All( []( const auto &type ) {
        test::Generator generate( 2 );
        for ( int i = 0; i < 500; ++i ) {
            test::ExpectRoundTrip( type, generate.Party( type ) );
        }
    } );
    test::Generator generate( 3 );
    for ( int i = 0; i < 500; ++i ) {
        auto hdr = generate.Party( referredBy );
        tolmoHeaderReferredBySetCid( hdr.Address(), Str( "a" + std::to_string( i ) + "@b" ).Get() );
        test::ExpectRoundTrip( referredBy, hdr );
    }
}

/* The cid of Referred-By. */

const test::Row cidRows[] = {
    { "<sip:a>;cid=\"a.b@c\"", "<sip:a>;cid=\"a.b@c\"" },
    { "sip:a;x;CID = \"a@b\" ;y", "<sip:a>;cid=\"a@b\";x;y" }, // first, in small letters
    { "<sip:a>;cid=\"a@b_c\"", "<sip:a>;cid=\"a@b_c\"" },      // a dot-atom, though no host
    { "<sip:a>;cid=\"a@[::1]\"", "<sip:a>;cid=\"a@[::1]\"" },  // a host, though no dot-atom
    { "<sip:a>;cid=\"a@b.\"", "<sip:a>;cid=\"a@b.\"" },        // the host is the longer one
    { "<sip:a>;cid=\"a@b\";cid=\"c@d\"", "<sip:a>;cid=\"c@d\"" },
    { "<sip:a>;cid=\"a@b\"x", test::null }, // a good value, and then a semicolon has to follow
    { "<sip:a>;cid=\"a@b\" ", test::null },
    // What is no cid is a generic parameter, if it is one.
    { "<sip:a>;cid=a", "<sip:a>;cid=a" },
    { "<sip:a>;cid=a@b", test::null }, // and no token has an at-sign
    { "<sip:a>;cid", "<sip:a>;cid" },
    { "<sip:a>;cidx=\"a@b\"", "<sip:a>;cidx=\"a@b\"" },
    { "<sip:a>;x;cid=\" a@b\"", "<sip:a>;x;cid=\" a@b\"" }, // no blank inside the quotes
    { "<sip:a>;cid=\"a@b \"", "<sip:a>;cid=\"a@b \"" },
    { "<sip:a>;cid=\"a\"", "<sip:a>;cid=\"a\"" },
    { "<sip:a>;cid=\"a@\"", "<sip:a>;cid=\"a@\"" },
    { "<sip:a>;cid=\"\"", "<sip:a>;cid=\"\"" },
    { "<sip:a>;cid=\"a@b", test::null },
    { "<sip:a>;cid=", test::null },
    { "<sip:a>;cid=\"a@b\";cid=x", "<sip:a>;cid=\"a@b\"" }, // hidden
    { "<sip:a>;cid=x;y;cid=\"a@b\"", "<sip:a>;cid=\"a@b\";y" },
};

TEST_F( NameAddress, CidRows )
{
    for ( const test::Row &row : cidRows ) {
        test::ExpectRow( referredBy, row );
    }
    test::ExpectRow( replyTo,
                     { "<sip:a>;x;cid=\"a@b\"", "<sip:a>;x;cid=\"a@b\"" } ); // elsewhere it is one of the others
}

// An escape makes the value no cid, so the parameter stays where it is; it goes out without the escape, which makes it a cid
// for the next reader.
TEST_F( NameAddress, EscapedCid )
{
    const auto hdr = test::Decode( referredBy, "<sip:a>;x;cid=\"a\\@b\"" );
    EXPECT_FALSE( tolmoHeaderReferredByHasCid( hdr.Get() ) );
    EXPECT_EQ( test::Take( tolmoHeaderReferredByToString( hdr.Get() ) ), "<sip:a>;x;cid=\"a@b\"" );
    const auto again = test::Decode( referredBy, "<sip:a>;x;cid=\"a@b\"" );
    EXPECT_TRUE( tolmoHeaderReferredByHasCid( again.Get() ) );
}

TEST_F( NameAddress, Cid )
{
    using H = TolmoHeaderReferredBy;
    auto hdr = test::Decode( referredBy, "<sip:a>;x;cid=\"A.b@c\"" );
    EXPECT_TRUE( tolmoHeaderReferredByHasCid( hdr.Get() ) );
    EXPECT_EQ( test::Take( tolmoHeaderReferredByCid( hdr.Get() ) ), "A.b@c" ); // without the quotes
    EXPECT_FALSE(
        tolmoGenericParamsHasParamCstr( Own( tolmoHeaderReferredByGenericParams( hdr.Get() ) ).Get(), "cid", -1 ) );

    hdr = test::Decode( referredBy, "<sip:a>;cid=x" );
    EXPECT_FALSE( tolmoHeaderReferredByHasCid( hdr.Get() ) );
    EXPECT_EQ( tolmoHeaderReferredByCid( hdr.Get() ), nullptr );
    EXPECT_TRUE(
        tolmoGenericParamsHasParamCstr( Own( tolmoHeaderReferredByGenericParams( hdr.Get() ) ).Get(), "cid", -1 ) );

    // What a field hides, shows again.
    tolmoHeaderReferredBySetCid( hdr.Address(), Str( "a@b" ).Get() );
    EXPECT_EQ( test::Encode( referredBy, hdr ), "<sip:a>;cid=\"a@b\"" );
    tolmoHeaderReferredByDelCid( hdr.Address() );
    EXPECT_EQ( test::Encode( referredBy, hdr ), "<sip:a>;cid=x" );

    test::ExpectChanges<H>(
        referredBy, "\"A\" <sip:a>;cid=\"a@b\";x",
        { { "\"A\" <sip:a>;cid=\"c@d\";x", []( H *h ) { tolmoHeaderReferredBySetCid( h, Str( "c@d" ).Get() ); } },
          { "\"A\" <sip:a>;x", []( H *h ) { tolmoHeaderReferredByDelCid( h ); } },
          { "\"A\" <sip:a>;cid=\"a@b\";x",
            []( H *h ) { tolmoHeaderReferredBySetCid( h, Own( tolmoHeaderReferredByCid( *h ) ).Get() ); } } } );
    test::ExpectChanges<H>( referredBy, "<sip:a>",
                            { { "<sip:a>", []( H *h ) { tolmoHeaderReferredByDelCid( h ); } } } );

    const std::string &path = referredBy.path;
    EXPECT_ABORT( tolmoHeaderReferredByHasCid( nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderReferredByCid( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( referredBy, tolmoHeaderReferredBySetCid, nullptr );
    for ( const std::string_view bad : { "", "a", "a@", "@b", "\"a@b\"", "a@b c" } ) {
        EXPECT_ABORT( tolmoHeaderReferredBySetCid( hdr.Address(), Str( bad ).Get() ), path,
                      "tolmoSipCleanMsgIdOk( cid )" );
    }
    EXPECT_HANDLE_ABORTS( referredBy, tolmoHeaderReferredByDelCid );
}

} // namespace
