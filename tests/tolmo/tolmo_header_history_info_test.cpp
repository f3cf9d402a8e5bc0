/* The header History-Info. */
#include "tolmo_value_list_test.h"

namespace {

using test::Strings;

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( HistoryInfo, HistoryInfo, HistoryInfo, ClearHistoryInfos )
    static constexpr char header[] = "History-Info";
    static constexpr char sort[] = "TOLMO_HEADER_HISTORY_INFO";
    static constexpr char path[] = "source/tolmo/tolmo_header_history_info.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosHistoryInfo )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_history_info.cpp";
    static constexpr char value[] = "hi";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a>;index=1;x=\",\"", "\"B, b\" <sip:b,c>;index=1.1;rc=1",
                                             "\"\" <sip:c>;index=2" };
    static constexpr char otherSpelling[] = "<sip:a> ;X = \",\" ; Index=1";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderHistoryInfo, ValueList, Member );

KoRef<TolmoHeaderHistoryInfo> Decode( const Strings &lines )
{
    return test::Own( tolmoHeaderHistoryInfoTryDecode( test::RawHeader( Member::header, lines ).Get() ) );
}

Strings Items( const Strings &lines )
{
    const auto hdr = Decode( lines );
    return hdr ? test::TakeLines( tolmoHeaderHistoryInfoEncode( hdr.Get() ) ) : Strings{ "(null)" };
}

class HeaderHistoryInfo : public test::TolmoFixture {};

TEST_F( HeaderHistoryInfo, Rows )
{
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "<sip:a>;index=1 , <sip:b>;index=1.1", { "<sip:a>;index=1", "<sip:b>;index=1.1" } },
        { "A <sip:a> , B <sip:b>;x", { "A <sip:a> ", "B <sip:b>;x" } }, // no value takes these: there is no index
        { "\"A, B\" <sip:a?Reason=SIP%3Bcause%3D302>;index=1",
          { "\"A, B\" <sip:a?Reason=SIP%3Bcause%3D302>;index=1" } },
        { "sip:a;index=1", null }, // no bare address
        { "<sip:a>;index=1 ", null },
        { "<sip:a>;index=", null },
        { "<sip:a>;", null },
        { "<>;index=1", null },
        { "*", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

// What the grammar of the list takes need not decode.
TEST_F( HeaderHistoryInfo, ItemsThatDoNotDecode )
{
    const auto hdr = Decode( { "<sip:a>,<sip:b>;index=01, <sip:c>;index=1" } );
    ASSERT_EQ( tolmoHeaderHistoryInfoHistoryInfosLength( hdr.Get() ), 3 );
    EXPECT_TRUE( test::IsNull( tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( hdr.Get(), 0 ) ) );
    EXPECT_TRUE( test::IsNull( tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( hdr.Get(), 1 ) ) );
    EXPECT_FALSE( test::IsNull( tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( hdr.Get(), 2 ) ) );
}

} // namespace
