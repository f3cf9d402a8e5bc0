/* The header Diversion. */
#include "tolmo_value_list_test.h"

namespace {

using test::Strings;

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( Diversion, Diversion, Diversion, ClearDiversions )
    static constexpr char header[] = "Diversion";
    static constexpr char sort[] = "TOLMO_HEADER_DIVERSION";
    static constexpr char path[] = "source/tolmo/tolmo_header_diversion.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosDiversion )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_diversion.cpp";
    static constexpr char value[] = "diversion";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a>;x=\",\"", "\"B, b\" <sip:b,c>;reason=r;counter=1",
                                             "\"\" <tel:c>" };
    static constexpr char otherSpelling[] = "<sip:a> ;X = \",\"";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderDiversion, ValueList, Member );

KoRef<TolmoHeaderDiversion> Decode( const Strings &lines )
{
    return test::Own( tolmoHeaderDiversionTryDecode( test::RawHeader( Member::header, lines ).Get() ) );
}

Strings Items( const Strings &lines )
{
    const auto hdr = Decode( lines );
    return hdr ? test::TakeLines( tolmoHeaderDiversionEncode( hdr.Get() ) ) : Strings{ "(null)" };
}

class HeaderDiversion : public test::TolmoFixture {};

TEST_F( HeaderDiversion, Rows )
{
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "<sip:a> , <sip:b>", { "<sip:a> ", "<sip:b>" } }, // the blank behind a bracket belongs to the item
        { "<sip:a>;reason=\"x, <sip:evil>;counter=9\"", { "<sip:a>;reason=\"x, <sip:evil>;counter=9\"" } },
        { "A <sip:a>;counter=123", { "A <sip:a>;counter=123" } }, // no value takes this
        { "sip:a", null },                                        // no bare address, which a value takes
        { "<sip:a>;reason=", null },
        { "<sip:a>;x ", null },
        { "<sip:a>;", null },
        { "<>", null },
        { "*", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

// What the grammar of the list takes need not decode.
TEST_F( HeaderDiversion, ItemThatDoesNotDecode )
{
    const auto hdr = Decode( { "<sip:a>;counter=123" } );
    EXPECT_TRUE( test::IsNull( tolmoHeaderDiversionTryDecodeDiversionAt( hdr.Get(), 0 ) ) );
}

// A word in quotes that looks like another diversion goes out as one.
TEST_F( HeaderDiversion, PrintsWordsRaw )
{
    auto hdr = Decode( { "<sip:a>;reason=\"x, <sip:evil>;counter=9\"" } );
    const auto diversion = test::Own( tolmoHeaderDiversionTryDecodeDiversionAt( hdr.Get(), 0 ) );
    tolmoHeaderDiversionSetDiversionAt( hdr.Address(), 0, diversion.Get() );
    const auto lines = test::TakeLines( tolmoHeaderDiversionEncode( hdr.Get() ) );
    EXPECT_EQ( lines, Strings{ "<sip:a>;reason=x, <sip:evil>;counter=9" } );
    EXPECT_EQ( Items( lines ), ( Strings{ "<sip:a>;reason=x", "<sip:evil>;counter=9" } ) );
}

// A word with a line end is stored, and is found when the header is encoded. A lone CR or LF ends no line.
TEST_F( HeaderDiversion, TestsLines )
{
    auto diversion = test::Own( tolmoDiversionCreate( test::Str( "sip:a" ).Get() ) );
    tolmoDiversionSetScreen( diversion.Address(), test::Str( "a\r\nevil: x" ).Get() );
    auto hdr = Decode( { "<sip:b>" } );
    tolmoHeaderDiversionAppendDiversion( hdr.Address(), diversion.Get() );
    EXPECT_EQ( tolmoHeaderDiversionDiversionsLength( hdr.Get() ), 2 );
    auto msg = test::Received( "" );
    const char path[] = "source/tolmo/tolmo_message_header.cpp";
    const char expression[] = "tolmoMessageHeaderLineOk( value )";
    EXPECT_ABORT( tolmoHeaderDiversionEncode( hdr.Get() ), path, expression );
    EXPECT_ABORT( tolmoHeaderDiversionEncodeToMessage( hdr.Get(), msg.Address() ), path, expression );
    EXPECT_ABORT( tolmoHeaderDiversionStore( hdr.Get() ), path, expression );
    EXPECT_ABORT( tolmoHeaderDiversionToString( hdr.Get() ), path, expression );

    tolmoDiversionSetScreen( diversion.Address(), test::Str( "\n\r" ).Get() );
    tolmoHeaderDiversionSetDiversionAt( hdr.Address(), 1, diversion.Get() );
    EXPECT_EQ( test::TakeLines( tolmoHeaderDiversionEncode( hdr.Get() ) )[1], "<sip:a>;screen=\n\r" );
}

} // namespace
