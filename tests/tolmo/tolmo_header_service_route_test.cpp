/* The header Service-Route. */
#include "tolmo_value_list_test.h"

namespace {

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( ServiceRoute, Route, Route, ClearRoutes )
    static constexpr char header[] = "Service-Route";
    static constexpr char sort[] = "TOLMO_HEADER_SERVICE_ROUTE";
    static constexpr char path[] = "source/tolmo/tolmo_header_service_route.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosServiceRoute )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_route.cpp";
    static constexpr char value[] = "route";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a;lr>;x=\",\"", "\"B, b\" <sip:b,c>;y", "\"\" <sip:c>;z=[::1]" };
    static constexpr char otherSpelling[] = "<sip:a;lr> ;X = \",\"";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderServiceRoute, ValueList, Member );

KoRef<TolmoHeaderServiceRoute> Decode( const test::Strings &lines )
{
    const auto header = test::RawHeader( Member::header, lines );
    return KoRef<TolmoHeaderServiceRoute>::Adopt( tolmoHeaderServiceRouteTryDecode( header.Get() ) );
}

test::Strings Items( const test::Strings &lines )
{
    const auto hdr = Decode( lines );
    return test::TakeLines( hdr ? tolmoHeaderServiceRouteEncode( hdr.Get() ) : nullptr );
}

class HeaderServiceRoute : public test::TolmoFixture {};

TEST_F( HeaderServiceRoute, Rows )
{
    using test::Strings;
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "<sip:a> , <sip:b>", { "<sip:a> ", "<sip:b>" } }, // the blank behind a bracket belongs to the item
        { "<sip:a> ", { "<sip:a> " } },
        { "<sip:a>\t,\t<sip:b>;x , <sip:c>", { "<sip:a>\t", "<sip:b>;x", "<sip:c>" } },
        { "<sip:a>;x ", null }, // behind a parameter no blank does
        { " <sip:a>", { " <sip:a>" } },
        { "\"A, B\" <sip:a,b>;c=\"d, e\",<sip:c>", { "\"A, B\" <sip:a,b>;c=\"d, e\"", "<sip:c>" } },
        { "Alice <sip:a>,Bob <sip:b>", { "Alice <sip:a>", "Bob <sip:b>" } },
        { "sip:a", null }, // no bare address
        { "sip:a;lr", null },
        { "<sip:a>,sip:b", null },
        { "*", null },
        { "<>", null },
        { "<sip:a>;x=", null },
        { "<sip:a>;", null },
        { "<sip:a><sip:b>", null },
        { "<sip:a> <sip:b>", null },
        { "\"A <sip:a>", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

} // namespace
