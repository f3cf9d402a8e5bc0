/* The header P-Preferred-Identity. */
#include "tolmo_value_list_test.h"

namespace {

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( PPreferredIdentity, IdentityValue, IdentityValue, ClearIdentityValues )
    static constexpr char header[] = "P-Preferred-Identity";
    static constexpr char sort[] = "TOLMO_HEADER_P_PREFERRED_IDENTITY";
    static constexpr char path[] = "source/tolmo/tolmo_header_p_preferred_identity.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosPPreferredIdentity )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_identity_value.cpp";
    static constexpr char value[] = "id";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a>", "\"B, b\" <sip:b,c;x=y>", "\"\" <tel:+1>" };
    static constexpr char otherSpelling[] = "sip:a";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderPPreferredIdentity, ValueList, Member );

KoRef<TolmoHeaderPPreferredIdentity> Decode( const test::Strings &lines )
{
    const auto header = test::RawHeader( Member::header, lines );
    return KoRef<TolmoHeaderPPreferredIdentity>::Adopt( tolmoHeaderPPreferredIdentityTryDecode( header.Get() ) );
}

test::Strings Items( const test::Strings &lines )
{
    const auto hdr = Decode( lines );
    return test::TakeLines( hdr ? tolmoHeaderPPreferredIdentityEncode( hdr.Get() ) : nullptr );
}

class HeaderPPreferredIdentity : public test::TolmoFixture {};

TEST_F( HeaderPPreferredIdentity, Rows )
{
    using test::Strings;
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "\"Cullen Jennings\" <sip:fluffy@cisco.com>, tel:+14085264000",
          { "\"Cullen Jennings\" <sip:fluffy@cisco.com>", "tel:+14085264000" } },
        { "sip:a", { "sip:a" } },
        { "sip:a,sip:b", { "sip:a,sip:b" } }, // in a bare address a comma is a character like others
        { "sip:a ,sip:b", { "sip:a", "sip:b" } },
        { "<sip:a> , <sip:b>", { "<sip:a> ", "<sip:b>" } },
        { "<sip:a>;x=1", null }, // no parameters, in neither form
        { "sip:a;x=1", null },
        { "<sip:a>,<sip:b>;x", null },
        { "sip:a ", null },
        { "*", null },
        { "<>", null },
        { "Alice sip:a", null },
        { "<sip:a> <sip:b>", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

} // namespace
