/* The header P-Asserted-Identity. */
#include "tolmo_value_list_test.h"

namespace {

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( PAssertedIdentity, IdentityValue, IdentityValue, ClearIdentityValues )
    static constexpr char header[] = "P-Asserted-Identity";
    static constexpr char sort[] = "TOLMO_HEADER_P_ASSERTED_IDENTITY";
    static constexpr char path[] = "source/tolmo/tolmo_header_p_asserted_identity.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosPAssertedIdentity )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_identity_value.cpp";
    static constexpr char value[] = "id";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "<sip:a>", "\"B, b\" <sip:b,c;x=y>", "\"\" <tel:+1>" };
    static constexpr char otherSpelling[] = "sip:a";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderPAssertedIdentity, ValueList, Member );

KoRef<TolmoHeaderPAssertedIdentity> Decode( const test::Strings &lines )
{
    const auto header = test::RawHeader( Member::header, lines );
    return KoRef<TolmoHeaderPAssertedIdentity>::Adopt( tolmoHeaderPAssertedIdentityTryDecode( header.Get() ) );
}

test::Strings Items( const test::Strings &lines )
{
    const auto hdr = Decode( lines );
    return test::TakeLines( hdr ? tolmoHeaderPAssertedIdentityEncode( hdr.Get() ) : nullptr );
}

class HeaderPAssertedIdentity : public test::TolmoFixture {};

TEST_F( HeaderPAssertedIdentity, Rows )
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
