/*
 * The torture tests of RFC 4475 and RFC 5118 at three levels: does the message decode, which of its typed headers decode,
 * what does the RFC ask for. docs/verdicts.md is made of this, of tests/verdicts.tsv and of the manifest of the corpus:
 *
 *     TOLMO_WRITE_VERDICTS=docs/verdicts.md tolmo_verdicts_test
 */
#include "corpus.h"
#include "tolmo_test.h"

#include <cstdlib>
#include <map>

namespace {

using test::Buf;
using test::Own;

class VerdictsTest : public test::TolmoFixture {};

struct Types {
    int present = 0;
    test::Strings undecoded; // names of headers, and of lists with their item
};

/** The name as it stands in a message; the list of types has one that is not in normal form. */
std::string Shown( const char *name )
{
    return std::string_view( name ) == "User-to-User" ? "User-To-User" : name;
}

/** All typed headers of a message, with all the items of the lists. */
Types Decode( TolmoMessage msg )
{
    Types types;
#define TOLMO_HEADER( Type, name )                                                                                     \
    if ( tolmoHeader##Type##PresentInMessage( msg ) ) {                                                                \
        ++types.present;                                                                                               \
        if ( !Own( tolmoHeader##Type##TryDecodeFromMessage( msg ) ) ) {                                                \
            types.undecoded.push_back( Shown( name ) );                                                                \
        }                                                                                                              \
    }
#include <tolmo/tolmo_headers.def>
#undef TOLMO_HEADER

#define LIST( Type, name, Item )                                                                                       \
    if ( const auto hdr = Own( tolmoHeader##Type##TryDecodeFromMessage( msg ) ) ) {                                    \
        for ( KoInt i = 0; i < tolmoHeader##Type##Item##sLength( hdr.Get() ); ++i ) {                                  \
            if ( !Own( tolmoHeader##Type##TryDecode##Item##At( hdr.Get(), i ) ) ) {                                    \
                types.undecoded.push_back( std::string( name ) + ", item " + std::to_string( i ) );                    \
            }                                                                                                          \
        }                                                                                                              \
    }
    LIST( Accept, "Accept", Accept )
    LIST( AcceptEncoding, "Accept-Encoding", AcceptEncoding )
    LIST( AlertInfo, "Alert-Info", AlertInfo )
    LIST( CallInfo, "Call-Info", CallInfo )
    LIST( Contact, "Contact", Contact )
    LIST( Diversion, "Diversion", Diversion )
    LIST( ErrorInfo, "Error-Info", ErrorInfo )
    LIST( HistoryInfo, "History-Info", HistoryInfo )
    LIST( PAssertedIdentity, "P-Asserted-Identity", IdentityValue )
    LIST( PPreferredIdentity, "P-Preferred-Identity", IdentityValue )
    LIST( Reason, "Reason", Reason )
    LIST( RecordRoute, "Record-Route", Route )
    LIST( RecvInfo, "Recv-Info", InfoPackageType )
    LIST( Route, "Route", Route )
    LIST( ServiceRoute, "Service-Route", Route )
    LIST( UserToUser, "User-To-User", UuiValue )
    LIST( Via, "Via", Via )
    LIST( Warning, "Warning", Warning )
#undef LIST
    return types;
}

const char *const introduction = //
    R"(# Verdicts on the torture tests

What the library says of the messages of RFC 4475 and RFC 5118 that `tests/corpus` holds, at three levels: whether the
message decodes as a datagram, which of its typed headers do not, and what the RFC asks of an element that gets it.
The library is a decoder of syntax: what a transaction, a dialog or an application has to refuse, it decodes. And it
decodes each part by itself: a message may be good and a header in it null, which tells the caller what to answer.

Made by `tests/tolmo/tolmo_verdicts_test.cpp`, with the reasons of `tests/verdicts.tsv`; the test fails when a verdict
changes.

)";

/** What tests/verdicts.tsv tells of a file: a row `path`, `message` or the name of a header, the text. */
using Reasons = std::map<std::string, std::map<std::string, std::string>>;

std::string Document()
{
    Reasons reasons;
    for ( const auto &row : test::ReadRows( TEST_DATA "/verdicts.tsv" ) ) {
        reasons[row.at( 0 )][row.at( 1 )] = row.at( 2 );
    }
    std::string text = introduction;
    text += "| Message | The RFC's point | What the RFC asks for | Message decodes | Typed headers that decode | Null, "
            "and why |\n";
    text += "|---|---|---|---|---|---|\n";
    for ( const auto &row : test::ReadRows( TEST_CORPUS "/MANIFEST.tsv" ) ) {
        const std::string &path = row.at( 0 );
        if ( path.rfind( "rfc", 0 ) != 0 ) {
            continue;
        }
        auto why = reasons[path];
        const auto take = [&]( const std::string &of ) {
            const std::string reason = why[of];
            EXPECT_NE( reason, "" ) << path << ": no reason for " << of;
            why.erase( of );
            return reason;
        };
        const auto msg = Own( tolmoMessageTryDecode( Buf( test::ReadFile( TEST_CORPUS "/" + path ) ).Get() ) );
        text += "| `" + path + "` (" + row.at( 1 ) + ") | " + row.at( 3 ) + " | " + take( "asked" ) + " | ";
        if ( !msg ) {
            text += "no: " + take( "message" ) + " | | |\n";
        } else {
            const Types types = Decode( msg.Get() );
            int good = types.present;
            std::string null;
            for ( const std::string &name : types.undecoded ) {
                good -= name.find( ',' ) == std::string::npos;
                null += ( null.empty() ? "" : "; " ) + name + ": " + take( name );
            }
            text +=
                "yes | " + std::to_string( good ) + " of " + std::to_string( types.present ) + " | " + null + " |\n";
        }
        for ( const auto &[of, reason] : why ) {
            ADD_FAILURE() << path << ": a reason for " << of << ", which decodes";
        }
        reasons.erase( path );
    }
    for ( const auto &[path, of] : reasons ) {
        ADD_FAILURE() << path << ": is not in the corpus";
    }
    return text;
}

TEST_F( VerdictsTest, TheDocumentIsCurrent )
{
    const std::string document = Document();
    if ( const char *const path = std::getenv( "TOLMO_WRITE_VERDICTS" ) ) {
        std::ofstream( path, std::ios::binary ) << document;
        return;
    }
    EXPECT_EQ( test::ReadFile( TEST_DATA "/../docs/verdicts.md" ), document );
}

} // namespace
