/* The header Error-Info. */
#include "tolmo_value_list_test.h"

namespace {

using test::Strings;

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( ErrorInfo, ErrorInfo, ErrorInfo, ClearErrorInfos )
    static constexpr char header[] = "Error-Info";
    static constexpr char sort[] = "TOLMO_HEADER_ERROR_INFO";
    static constexpr char path[] = "source/tolmo/tolmo_header_error_info.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosErrorInfo )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_error_info.cpp";
    static constexpr char value[] = "errorInfo";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a,b>;x=\",\"", "<urn:b;c>;y", "<sip:c>;z=[::1]" };
    static constexpr char otherSpelling[] = "<sip:a,b> ; X = \",\"";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderErrorInfo, ValueList, Member );

KoRef<TolmoHeaderErrorInfo> Decode( const Strings &lines )
{
    return test::Own( tolmoHeaderErrorInfoTryDecode( test::RawHeader( Member::header, lines ).Get() ) );
}

Strings Items( const Strings &lines )
{
    const auto hdr = Decode( lines );
    return hdr ? test::TakeLines( tolmoHeaderErrorInfoEncode( hdr.Get() ) ) : Strings{ "(null)" };
}

class HeaderErrorInfo : public test::TolmoFixture {};

TEST_F( HeaderErrorInfo, Rows )
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
        { "<sip:a>;x ", null },   // behind a parameter no blank does
        { "sip:a", null },        // the brackets are required
        { "\"\" <sip:a>", null }, // there is no display name
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
