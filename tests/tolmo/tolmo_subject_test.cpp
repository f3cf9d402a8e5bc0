/* Subject and Organization: one kind of text. */
#include "test.h"

#include <tolmo/tolmo_organization.h>
#include <tolmo/tolmo_subject.h>

namespace {

using test::Str;
using test::Text;
using namespace std::string_view_literals;

class FreeText : public test::Fixture {};

struct Row {
    std::string_view text;
    std::string_view normal; // "(null)": refused
};

const Row rows[] = { { "", "" }, // empty and blank are fine, unlike in all other elements
                     { " \t ", "" },
                     { "A", "A" },
                     { "\tA  B ", "A B" },
                     { "A\tB", "A B" },
                     { "  Bo\u00DF \u4E2D\u6587\t ", "Bo\u00DF \u4E2D\u6587" },
                     { "\"<,;>\\", "\"<,;>\\" }, // all but controls
                     { "\u0080\u00A0", "\u0080\u00A0" },
                     { "\U0010FFFF", "\U0010FFFF" },
                     { "A\x7F", "(null)" },
                     { "\x7F", "(null)" },
                     { " \x01", "(null)" },
                     { "A\nB", "(null)" }, // a lone line feed is no fold
                     { "A \r\n B", "(null)" },
                     { "A \0"sv, "(null)" },
                     { "\x0B", "(null)" } };

TEST_F( FreeText, Rows )
{
    for ( const auto &[text, normal] : rows ) {
        const auto s = Str( text );
        EXPECT_EQ( tolmoSubjectOk( s.Get() ), normal != "(null)" ) << text;
        EXPECT_EQ( tolmoOrganizationOk( s.Get() ), normal != "(null)" ) << text;
        if ( normal == "(null)" ) {
            EXPECT_ABORT_MESSAGE( tolmoSubjectNormalize( s.Get() ), "subject invalid", "source/tolmo/tolmo_subject.cpp",
                                  "tolmoSubjectOk( subject )" );
            EXPECT_ABORT_MESSAGE( tolmoOrganizationNormalize( s.Get() ), "organization invalid",
                                  "source/tolmo/tolmo_organization.cpp", "tolmoOrganizationOk( organization )" );
        } else {
            EXPECT_EQ( test::Take( tolmoSubjectNormalize( s.Get() ) ), normal );
            EXPECT_EQ( test::Take( tolmoOrganizationNormalize( s.Get() ) ), normal );
            EXPECT_EQ( Text( s ), text ); // the argument stays
        }
    }
}

TEST_F( FreeText, Null )
{
    EXPECT_ABORT( tolmoSubjectOk( nullptr ), "source/tolmo/tolmo_subject.cpp", "subject" );
    EXPECT_ABORT( tolmoSubjectNormalize( nullptr ), "source/tolmo/tolmo_subject.cpp", "subject" );
    EXPECT_ABORT( tolmoOrganizationOk( nullptr ), "source/tolmo/tolmo_organization.cpp", "organization" );
    EXPECT_ABORT( tolmoOrganizationNormalize( nullptr ), "source/tolmo/tolmo_organization.cpp", "organization" );
}

TEST_F( FreeText, Huge )
{
    std::string text;
    std::string normal;
    for ( int i = 0; i < 100000; ++i ) {
        text += " \tword";
        normal += i ? " word" : "word";
    }
    EXPECT_TRUE( tolmoSubjectOk( Str( text ).Get() ) );
    EXPECT_EQ( test::Take( tolmoSubjectNormalize( Str( text ).Get() ) ), normal );
}

} // namespace
