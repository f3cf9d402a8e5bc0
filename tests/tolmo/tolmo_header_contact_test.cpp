/* The header Contact. */
#include "tolmo_value_list_test.h"

namespace {

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( Contact, Contact, Contact, Clear )
    static constexpr char header[] = "Contact";
    static constexpr char sort[] = "TOLMO_HEADER_CONTACT";
    static constexpr char path[] = "source/tolmo/tolmo_header_contact.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosContact )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_contact.cpp";
    static constexpr char value[] = "contact";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a>;q=0.500;x=\",\"", "\"B, b\" <sip:b,c>;expires=60",
                                             "\"\" <sip:c>;+sip.instance=\"<i>\"" };
    static constexpr char otherSpelling[] = "sip:a ;q=0.5;X=\",\"";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderContact, ValueList, Member );

KoRef<TolmoHeaderContact> Decode( const test::Strings &lines )
{
    const auto header = test::RawHeader( Member::header, lines );
    return KoRef<TolmoHeaderContact>::Adopt( tolmoHeaderContactTryDecode( header.Get() ) );
}

test::Strings Items( const test::Strings &lines )
{
    const auto hdr = Decode( lines );
    return test::TakeLines( hdr ? tolmoHeaderContactEncode( hdr.Get() ) : nullptr );
}

bool IsStar( const KoRef<TolmoHeaderContact> &hdr )
{
    return tolmoHeaderContactIsStarForm( hdr.Get() );
}

class HeaderContact : public test::TolmoFixture {};

TEST_F( HeaderContact, Rows )
{
    using test::Strings;
    const Strings null{ "(null)" };
    const struct {
        Strings lines;
        Strings items;
    } rows[] = {
        { { "sip:a;q=1 , sip:b" }, { "sip:a;q=1", "sip:b" } },
        { { "sip:a,sip:b" }, { "sip:a,sip:b" } },               // in a bare address a comma is a character like others
        { { "<sip:a> , <sip:b>" }, { "<sip:a> ", "<sip:b>" } }, // the blank behind a bracket belongs to the item
        { { "\"A, B\" <sip:a,b>;c=\"d, e\",<sip:c>" }, { "\"A, B\" <sip:a,b>;c=\"d, e\"", "<sip:c>" } },
        { { "Alice <sip:a>,Bob <sip:b>" }, { "Alice <sip:a>", "Bob <sip:b>" } },
        { { "<sip:a>;q=1.5" }, { "<sip:a>;q=1.5" } }, // for the list it is a parameter like others
        { { "<sip:a>;x " }, null },
        { { "sip:a " }, null },
        { { "Alice sip:a" }, null },
        { { "<>" }, null },
        { { "<sip:a>;x=" }, null },
        { { "<sip:a> <sip:b>" }, null },

        // the star, which has to stand alone
        { { "*" }, { "*" } },
        { { " *\t" }, { "*" } },
        { { "*", "" }, { "*" } },
        { { "*", "", "" }, { "*" } },
        { { "*,<sip:a>" }, null },
        { { "*;q=1" }, null },
        { { "**" }, null },
        { { "*,*" }, null },
        { { "*", "<sip:a>" }, null },
        { { "*", "*" }, null },
        { { "*", "", " " }, null },
        { { "<sip:a>,*" }, null },
        { { "<sip:a>", "*" }, null },
        { { "", "*" }, null },        // on another line than the first one it is no contact
        { { "*foo <sip:a>" }, null }, // the first line has begun with a star
        { { "", "*foo <sip:a>" }, { "*foo <sip:a>" } },
        { { "<sip:b>, *foo <sip:a>" }, { "<sip:b>", "*foo <sip:a>" } },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( row.lines ), row.items ) << testing::PrintToString( row.lines );
        const auto hdr = Decode( row.lines );
        if ( hdr ) {
            const bool star = row.items == Strings{ "*" };
            EXPECT_EQ( tolmoHeaderContactIsStarForm( hdr.Get() ), star );
            EXPECT_EQ( tolmoHeaderContactContactsLength( hdr.Get() ),
                       star ? 0 : static_cast<KoInt>( row.items.size() ) );
        }
    }
}

TEST_F( HeaderContact, ItemThatDoesNotDecode )
{
    const auto hdr = Decode( { "<sip:a>;q=1.5, <sip:b>" } );
    EXPECT_EQ( tolmoHeaderContactTryDecodeContactAt( hdr.Get(), 0 ), nullptr );
    const auto contact = KoRef<TolmoContact>::Adopt( tolmoHeaderContactTryDecodeContactAt( hdr.Get(), 1 ) );
    EXPECT_EQ( test::Take( tolmo___ContactEncode( contact.Get() ) ), "<sip:b>" );
}

TEST_F( HeaderContact, SetStarForm )
{
    auto hdr = Decode( { "<sip:a>,<sip:b>" } );
    const TolmoHeaderContact object = hdr.Get();
    auto shared = KoRef<TolmoHeaderContact>::Share( hdr.Get() );
    tolmoHeaderContactSetStarForm( shared.Address(), 256 );
    EXPECT_EQ( tolmoHeaderContactIsStarForm( shared.Get() ), KO_TRUE ); // whatever is not 0
    EXPECT_EQ( tolmoHeaderContactContactsLength( shared.Get() ), 0 );
    EXPECT_EQ( test::Take( tolmoHeaderContactToString( shared.Get() ) ), "*" );
    EXPECT_FALSE( IsStar( hdr ) );
    EXPECT_EQ( tolmoHeaderContactContactsLength( hdr.Get() ), 2 );

    tolmoHeaderContactSetStarForm( hdr.Address(), KO_FALSE ); // takes the items away all the same
    EXPECT_EQ( hdr.Get(), object );
    EXPECT_FALSE( IsStar( hdr ) );
    EXPECT_EQ( tolmoHeaderContactContactsLength( hdr.Get() ), 0 );
    EXPECT_EQ( test::Take( tolmoHeaderContactToString( hdr.Get() ) ), "" );

    // Equal, though they encode differently; a copy has the form of its source.
    EXPECT_TRUE( tolmoHeaderContactEquals( hdr.Get(), shared.Get() ) );
    const auto copy = KoRef<TolmoHeaderContact>::Adopt( tolmoHeaderContactCreateFrom( shared.Get() ) );
    EXPECT_TRUE( IsStar( copy ) );
    EXPECT_FALSE( IsStar( KoRef<TolmoHeaderContact>::Adopt( tolmoHeaderContactCreate() ) ) );

    TolmoHeaderContact none = nullptr;
    EXPECT_ABORT( tolmoHeaderContactIsStarForm( nullptr ), Member::path, "hdr" );
    EXPECT_ABORT( tolmoHeaderContactSetStarForm( nullptr, KO_TRUE ), Member::path, "hdr" );
    EXPECT_ABORT( tolmoHeaderContactSetStarForm( &none, KO_TRUE ), Member::path, "*hdr" );
}

TEST_F( HeaderContact, WhatEndsTheStarForm )
{
    const auto star = Decode( { "*" } );
    const auto contact = test::DecodeWith( tolmo___ContactTryDecode, "<sip:a>" );
    const std::function<void( TolmoHeaderContact * )> changes[] = {
        [&]( auto *hdr ) { tolmoHeaderContactAppendContact( hdr, contact.Get() ); },
        [&]( auto *hdr ) { tolmoHeaderContactPrependContact( hdr, contact.Get() ); },
        [&]( auto *hdr ) { tolmoHeaderContactInsertContact( hdr, 0, contact.Get() ); },
    };
    for ( const auto &change : changes ) {
        auto hdr = KoRef<TolmoHeaderContact>::Share( star.Get() );
        change( hdr.Address() );
        EXPECT_FALSE( IsStar( hdr ) );
        EXPECT_EQ( test::Take( tolmoHeaderContactToString( hdr.Get() ) ), "<sip:a>" );
        EXPECT_TRUE( IsStar( star ) );
    }
    auto cleared = KoRef<TolmoHeaderContact>::Share( star.Get() );
    tolmoHeaderContactClear( cleared.Address() );
    EXPECT_FALSE( IsStar( cleared ) );
    EXPECT_EQ( test::Take( tolmoHeaderContactToString( cleared.Get() ) ), "" );

    // There is no item to remove or to replace.
    auto hdr = KoRef<TolmoHeaderContact>::Share( star.Get() );
    EXPECT_ABORT( tolmoHeaderContactDelContactAt( hdr.Address(), 0 ), "source/runtime/ko_vector.cpp",
                  "index >= 0 && index < koVectorLength( *v )" );
    EXPECT_ABORT( tolmoHeaderContactSetContactAt( hdr.Address(), 0, contact.Get() ), "source/runtime/ko_vector.cpp",
                  "index >= 0 && index < koVectorLength( *v )" );
}

TEST_F( HeaderContact, StarInMessageAndStore )
{
    auto msg = test::Received( "m: *\r\n" );
    const auto received = KoRef<TolmoHeaderContact>::Adopt( tolmoHeaderContactTryDecodeFromMessage( msg.Get() ) );
    EXPECT_TRUE( IsStar( received ) );
    tolmoHeaderContactRemoveFromMessage( msg.Address() );
    tolmoHeaderContactEncodeToMessage( received.Get(), msg.Address() );
    EXPECT_NE( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ).find( "\r\nContact: *\r\n" ), std::string::npos );
    const auto store = KoRef<KoStore>::Adopt( tolmoHeaderContactStore( received.Get() ) );
    EXPECT_TRUE( IsStar( KoRef<TolmoHeaderContact>::Adopt( tolmoHeaderContactTryRestore( store.Get() ) ) ) );
}

} // namespace
