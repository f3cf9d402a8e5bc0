/* The header Call-Info. */
#include "tolmo_value_list_test.h"

namespace {

using test::Strings;

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( CallInfo, CallInfo, CallInfo, ClearCallInfos )
    static constexpr char header[] = "Call-Info";
    static constexpr char sort[] = "TOLMO_HEADER_CALL_INFO";
    static constexpr char path[] = "source/tolmo/tolmo_header_call_info.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosCallInfo )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_call_info.cpp";
    static constexpr char value[] = "callInfo";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a,b>;purpose=icon;x=\",\"", "<urn:b;c>;y", "<sip:c>;z=[::1]" };
    static constexpr char otherSpelling[] = "<sip:a,b> ; X = \",\" ; Purpose=Icon";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderCallInfo, ValueList, Member );

KoRef<TolmoHeaderCallInfo> Decode( const Strings &lines )
{
    return test::Own( tolmoHeaderCallInfoTryDecode( test::RawHeader( Member::header, lines ).Get() ) );
}

Strings Items( const Strings &lines )
{
    const auto hdr = Decode( lines );
    return hdr ? test::TakeLines( tolmoHeaderCallInfoEncode( hdr.Get() ) ) : Strings{ "(null)" };
}

class HeaderCallInfo : public test::TolmoFixture {};

TEST_F( HeaderCallInfo, Rows )
{
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "<sip:a> , <sip:b>", { "<sip:a> ", "<sip:b>" } }, // the blank behind a bracket belongs to the item
        { " <sip:a>", { " <sip:a>" } },
        { "<sip:a>\t,\t<sip:b>;x , <sip:c>", { "<sip:a>\t", "<sip:b>;x", "<sip:c>" } },
        { "<sip:a>;x=\"b, c\",<sip:d>", { "<sip:a>;x=\"b, c\"", "<sip:d>" } },
        { "<sip:a>;x ", null },    // behind a parameter no blank does
        { "sip:a", null },         // the brackets are required
        { "\"A\" <sip:a>", null }, // there is no display name
        { "<sip:a>,sip:b", null },
        { "<>", null },
        { "<sip:a>;", null },
        { "<sip:a>;x=", null },
        { "<sip:a> <sip:b>", null },
        { "*", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

} // namespace
