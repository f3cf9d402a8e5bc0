/* The header Accept-Encoding. */
#include "tolmo_value_list_test.h"

namespace {

using test::Strings;

struct Member {
    TEST_VALUE_LIST_FUNCTIONS( AcceptEncoding, AcceptEncoding, AcceptEncoding, ClearAcceptEncodings )
    static constexpr char header[] = "Accept-Encoding";
    static constexpr char sort[] = "TOLMO_HEADER_ACCEPT_ENCODING";
    static constexpr char path[] = "source/tolmo/tolmo_header_accept_encoding.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosAcceptEncoding )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_accept_encoding.cpp";
    static constexpr char value[] = "acceptEncoding";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "gzip;x=\",\"", "identity;q=0.500", "*" };
    static constexpr char otherSpelling[] = "GZip ; X = \",\"";
};
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderAcceptEncoding, ValueList, Member );

KoRef<TolmoHeaderAcceptEncoding> Decode( const Strings &lines )
{
    return test::Own( tolmoHeaderAcceptEncodingTryDecode( test::RawHeader( Member::header, lines ).Get() ) );
}

Strings Items( const Strings &lines )
{
    const auto hdr = Decode( lines );
    return hdr ? test::TakeLines( tolmoHeaderAcceptEncodingEncode( hdr.Get() ) ) : Strings{ "(null)" };
}

class HeaderAcceptEncoding : public test::TolmoFixture {};

TEST_F( HeaderAcceptEncoding, Rows )
{
    const Strings null{ "(null)" };
    const struct {
        std::string line;
        Strings items;
    } rows[] = {
        { "gzip , deflate", { "gzip", "deflate" } },
        { "gzip;q=1 ;x,*;q=0", { "gzip;q=1 ;x", "*;q=0" } },
        { "gzip;x=\"a, b\",c", { "gzip;x=\"a, b\"", "c" } },
        { "gzip;q=1.5", { "gzip;q=1.5" } }, // no value takes this
        { "gzip ", null },
        { " gzip", null },
        { "gzip;", null },
        { "gzip;q=", null },
        { "gzip deflate", null },
        { "\"gzip\"", null },
        { "gz\u00EFp", null },
    };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Items( { row.line } ), row.items ) << row.line;
    }
}

// What the grammar of the list takes need not decode.
TEST_F( HeaderAcceptEncoding, ItemThatDoesNotDecode )
{
    const auto hdr = Decode( { "gzip;q=1.5" } );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptEncodingTryDecodeAcceptEncodingAt( hdr.Get(), 0 ) ) );
}

} // namespace
