/* The ten headers with one scalar value. */
#include "tolmo_test.h"

#include <algorithm>
#include <random>

namespace {

using test::Str;
using test::Strings;
using test::TakeLines;

class HeaderScalars : public test::TolmoFixture {
protected:
    using Obj = KoRef<KoObj>;
};

/* The headers that hold a string. */

struct StringHeader {
    const char *name;
    const char *path;
    const char *validator; // the expression of the abort
    KoObj ( *create )( KoString value );
    KoString ( *get )( KoObj hdr );
    void ( *set )( KoObj *hdr, KoString value );
    TolmoMessageHeader ( *encode )( KoObj hdr );
    KoObj ( *tryDecode )( TolmoMessageHeader header );
    KoBool ( *equals )( KoObj a, KoObj b );
    KoInt ( *compare )( KoObj a, KoObj b );
};

#define STRING_HEADER( Type, name, file, Scalar, scalar )                                                              \
    const StringHeader headerOf##Type = {                                                                              \
        name,                                                                                                          \
        "source/tolmo/tolmo_header_" file ".cpp",                                                                      \
        "tolmo" #Scalar "Ok( " #scalar " )",                                                                           \
        []( KoString value ) { return tolmoHeader##Type##Obj( tolmoHeader##Type##Create( value ) ); },                 \
        []( KoObj hdr ) { return tolmoHeader##Type##Scalar( tolmoHeader##Type##From( hdr ) ); },                       \
        []( KoObj *hdr, KoString value ) {                                                                             \
            tolmoHeader##Type##Set##Scalar( reinterpret_cast<TolmoHeader##Type *>( hdr ), value );                     \
        },                                                                                                             \
        []( KoObj hdr ) { return tolmoHeader##Type##Encode( tolmoHeader##Type##From( hdr ) ); },                       \
        []( TolmoMessageHeader header ) { return tolmoHeader##Type##Obj( tolmoHeader##Type##TryDecode( header ) ); },  \
        []( KoObj a, KoObj b ) {                                                                                       \
            return tolmoHeader##Type##Equals( tolmoHeader##Type##From( a ), tolmoHeader##Type##From( b ) );            \
        },                                                                                                             \
        []( KoObj a, KoObj b ) {                                                                                       \
            return tolmoHeader##Type##Compare( tolmoHeader##Type##From( a ), tolmoHeader##Type##From( b ) );           \
        }                                                                                                              \
    }

STRING_HEADER( CallId, "Call-Id", "call_id", CallId, callId );
STRING_HEADER( Organization, "Organization", "organization", Organization, organization );
STRING_HEADER( Server, "Server", "server", Server, server );
STRING_HEADER( Subject, "Subject", "subject", Subject, subject );
STRING_HEADER( Timestamp, "Timestamp", "timestamp", TimestampValue, timestampValue );
STRING_HEADER( UserAgent, "User-Agent", "user_agent", UserAgent, userAgent );

struct StringRow {
    const StringHeader &header;
    Strings lines;
    std::string value; // "(null)": does not decode
};

// Values that begin like a number, with a comment and so on are rows of the scalars; here is what the header does to them.
const StringRow stringRows[] = {
    { headerOfCallId, { "a@b" }, "a@b" },
    { headerOfCallId, { "aB-1" }, "aB-1" }, // as it stands
    { headerOfCallId, { "" }, "(null)" },
    { headerOfCallId, { "a@" }, "(null)" },
    { headerOfCallId, { "a@b@c" }, "(null)" },
    { headerOfCallId, { " a" }, "(null)" }, // the line is not trimmed here
    { headerOfCallId, { "a " }, "(null)" },
    { headerOfCallId, { "a, b" }, "(null)" }, // no list
    { headerOfCallId, { "\u00DF" }, "(null)" },
    { headerOfCallId, { "a", "b" }, "b" }, // the last line counts
    { headerOfCallId, { "@", "b" }, "b" },
    { headerOfCallId, { "a", "@" }, "(null)" },
    { headerOfCallId, { "a", "" }, "(null)" },

    { headerOfServer, { "A/1.0" }, "A/1.0" },
    { headerOfServer, { "A / 1.0  (b \\) c)" }, "A / 1.0  (b \\) c)" }, // as it stands
    { headerOfServer, { "(a)" }, "(a)" },
    { headerOfServer, { "(a) " }, "(a) " }, // a comment brings its whitespace with it
    { headerOfServer, { "" }, "(null)" },
    { headerOfServer, { "A " }, "(null)" },
    { headerOfServer, { "A,B" }, "(null)" },
    { headerOfServer, { "(a" }, "(null)" },
    { headerOfServer, { "A", "B" }, "B" },
    { headerOfServer, { "A", "/" }, "(null)" },

    { headerOfUserAgent, { "A/1.0" }, "A/1.0" },
    { headerOfUserAgent, { "A / 1.0  (b \\) c)" }, "A / 1.0  (b \\) c)" },
    { headerOfUserAgent, { "" }, "(null)" },
    { headerOfUserAgent, { "A " }, "(null)" },
    { headerOfUserAgent, { "A,B" }, "(null)" },
    { headerOfUserAgent, { "A", "B" }, "B" },
    { headerOfUserAgent, { "A", "/" }, "(null)" },

    { headerOfTimestamp, { "54" }, "54" },
    { headerOfTimestamp, { "054.10  0.2" }, "054.10  0.2" }, // as it stands
    { headerOfTimestamp, { "54." }, "54." },
    { headerOfTimestamp, { "54 " }, "54 " }, // the delay behind the whitespace may have no digit
    { headerOfTimestamp, { "1 ." }, "1 ." },
    { headerOfTimestamp, { ".5" }, "(null)" },
    { headerOfTimestamp, { "-1" }, "(null)" },
    { headerOfTimestamp, { "1 2 3" }, "(null)" },
    { headerOfTimestamp, { "" }, "(null)" },
    { headerOfTimestamp, { "1", "2" }, "2" },
    { headerOfTimestamp, { "1", "x" }, "(null)" },

    { headerOfSubject, { "A b" }, "A b" },
    { headerOfSubject, { "\tA  \tB " }, "A B" }, // folded
    { headerOfSubject, { "" }, "" },             // unlike with the headers above
    { headerOfSubject, { " \t" }, "" },
    { headerOfSubject, { "A, \u00DF; \"" }, "A, \u00DF; \"" },
    { headerOfSubject, { "A\nB" }, "(null)" },
    { headerOfSubject, { "\x7F" }, "(null)" },
    { headerOfSubject, { "A", "" }, "" },
    { headerOfSubject, { "\x01", "B" }, "B" },
    { headerOfSubject, { "B", "\x01" }, "(null)" },

    { headerOfOrganization, { "A b" }, "A b" },
    { headerOfOrganization, { "\tA  \tB " }, "A B" },
    { headerOfOrganization, { "" }, "" },
    { headerOfOrganization, { " \t" }, "" },
    { headerOfOrganization, { "A\nB" }, "(null)" },
    { headerOfOrganization, { "A", "B" }, "B" },
    { headerOfOrganization, { "B", "\x01" }, "(null)" },
};

TEST_F( HeaderScalars, StringRows )
{
    for ( const auto &[header, lines, value] : stringRows ) {
        const auto hdr = Obj::Adopt( header.tryDecode( test::RawHeader( header.name, lines ).Get() ) );
        EXPECT_EQ( hdr ? test::Take( header.get( hdr.Get() ) ) : "(null)", value )
            << header.name << ": " << lines.back();
        if ( hdr ) {
            EXPECT_EQ( TakeLines( header.encode( hdr.Get() ) ), Strings{ value } );
        }
    }
}

// The field of the four is the argument itself; that of the two its normal form.
TEST_F( HeaderScalars, StringStored )
{
    for ( const auto *header : { &headerOfCallId, &headerOfServer, &headerOfTimestamp, &headerOfUserAgent } ) {
        const auto value = Str( "1" );
        const auto hdr = Obj::Adopt( header->create( value.Get() ) );
        EXPECT_EQ( test::Own( header->get( hdr.Get() ) ).Get(), value.Get() ) << header->name;
        EXPECT_EQ( test::Count( value.Get() ), 2 );
    }
    for ( const auto *header : { &headerOfOrganization, &headerOfSubject } ) {
        auto hdr = Obj::Adopt( header->create( Str( "  A \t B " ).Get() ) );
        EXPECT_EQ( test::Take( header->get( hdr.Get() ) ), "A B" ) << header->name;
        header->set( hdr.Address(), Str( " C\t\tD" ).Get() );
        EXPECT_EQ( test::Take( header->get( hdr.Get() ) ), "C D" ) << header->name;
    }
}

// What is good for all of them.
TEST_F( HeaderScalars, StringSet )
{
    for ( const auto *header : { &headerOfCallId, &headerOfServer, &headerOfTimestamp, &headerOfUserAgent,
                                 &headerOfOrganization, &headerOfSubject } ) {
        auto hdr = Obj::Adopt( header->create( Str( "1" ).Get() ) );
        const KoObj alone = hdr.Get();
        header->set( hdr.Address(), Str( "2" ).Get() );
        EXPECT_EQ( hdr.Get(), alone ) << header->name;
        // Its own value goes in again.
        header->set( hdr.Address(), test::Own( header->get( hdr.Get() ) ).Get() );
        EXPECT_EQ( test::Take( header->get( hdr.Get() ) ), "2" ) << header->name;

        const auto other = Obj::Share( hdr.Get() );
        header->set( hdr.Address(), Str( "3" ).Get() );
        EXPECT_NE( hdr.Get(), other.Get() ) << header->name;
        EXPECT_EQ( test::Take( header->get( other.Get() ) ), "2" ) << header->name;
        EXPECT_EQ( test::Take( header->get( hdr.Get() ) ), "3" ) << header->name;

        EXPECT_FALSE( header->equals( hdr.Get(), other.Get() ) ) << header->name;
        EXPECT_GT( header->compare( hdr.Get(), other.Get() ), 0 ) << header->name;
        EXPECT_LT( header->compare( other.Get(), hdr.Get() ), 0 ) << header->name;
        const auto equal = Obj::Adopt( header->create( Str( "3" ).Get() ) );
        EXPECT_TRUE( header->equals( hdr.Get(), equal.Get() ) ) << header->name;
    }
}

// Lines are widened in blocks, which may reach into what stands behind them, and long ones elsewhere than short ones.
TEST_F( HeaderScalars, LinesOfEveryLength )
{
    for ( size_t length = 1; length <= 300; ++length ) {
        const std::string ascii( length, 'a' );
        for ( const std::string &value : { ascii, ascii + "\u00E9", "\u00E9" + ascii } ) {
            for ( const std::string behind : { "", "X: b\r\n", "X: \u00E9\r\n" } ) {
                const auto msg = test::Received( "Subject: " + value + "\r\n" + behind );
                const auto subject = test::Own( tolmoHeaderSubjectTryDecodeFromMessage( msg.Get() ) );
                ASSERT_TRUE( subject ) << value;
                ASSERT_EQ( test::Take( tolmoHeaderSubjectSubject( subject.Get() ) ), value ) << behind;
            }
        }
    }
}

TEST_F( HeaderScalars, StringAborts )
{
    for ( const auto *header : { &headerOfCallId, &headerOfServer, &headerOfTimestamp, &headerOfUserAgent } ) {
        auto hdr = Obj::Adopt( header->create( Str( "1" ).Get() ) );
        KoObj none = nullptr;
        EXPECT_ABORT( header->create( Str( "" ).Get() ), header->path, header->validator );
        EXPECT_ABORT( header->create( Str( "," ).Get() ), header->path, header->validator );
        EXPECT_ABORT( header->get( nullptr ), header->path, "hdr" );
        EXPECT_ABORT( header->set( nullptr, nullptr ), header->path, "hdr" );
        EXPECT_ABORT( header->set( &none, nullptr ), header->path, "*hdr" );
        EXPECT_ABORT( header->set( hdr.Address(), Str( "," ).Get() ), header->path, header->validator );
    }
    EXPECT_ABORT( tolmoHeaderCallIdCreate( nullptr ), "source/tolmo/tolmo_call_id.cpp", "callId" );
    EXPECT_ABORT( tolmoHeaderServerCreate( nullptr ), "source/tolmo/tolmo_server.cpp", "server" );
    EXPECT_ABORT( tolmoHeaderTimestampCreate( nullptr ), "source/tolmo/tolmo_timestamp_value.cpp", "timestampValue" );
    EXPECT_ABORT( tolmoHeaderUserAgentCreate( nullptr ), "source/tolmo/tolmo_user_agent.cpp", "userAgent" );
}

// These test for null alone; the rest is the normaliser's.
TEST_F( HeaderScalars, FreeTextAborts )
{
    const auto bad = Str( "\x01" );
    KoObj none = nullptr;
    auto subject = Obj::Adopt( headerOfSubject.create( Str( "" ).Get() ) );
    EXPECT_ABORT( headerOfSubject.create( nullptr ), headerOfSubject.path, "subject" );
    EXPECT_ABORT_MESSAGE( headerOfSubject.create( bad.Get() ), "subject invalid", "source/tolmo/tolmo_subject.cpp",
                          "tolmoSubjectOk( subject )" );
    EXPECT_ABORT( headerOfSubject.get( nullptr ), headerOfSubject.path, "hdr" );
    EXPECT_ABORT( headerOfSubject.set( nullptr, nullptr ), headerOfSubject.path, "hdr" );
    EXPECT_ABORT( headerOfSubject.set( &none, nullptr ), headerOfSubject.path, "*hdr" );
    EXPECT_ABORT( headerOfSubject.set( subject.Address(), nullptr ), headerOfSubject.path, "subject" );
    EXPECT_ABORT_MESSAGE( headerOfSubject.set( subject.Address(), bad.Get() ), "subject invalid",
                          "source/tolmo/tolmo_subject.cpp", "tolmoSubjectOk( subject )" );

    auto organization = Obj::Adopt( headerOfOrganization.create( Str( "" ).Get() ) );
    EXPECT_ABORT( headerOfOrganization.create( nullptr ), headerOfOrganization.path, "organization" );
    EXPECT_ABORT_MESSAGE( headerOfOrganization.create( bad.Get() ), "organization invalid",
                          "source/tolmo/tolmo_organization.cpp", "tolmoOrganizationOk( organization )" );
    EXPECT_ABORT( headerOfOrganization.get( nullptr ), headerOfOrganization.path, "hdr" );
    EXPECT_ABORT( headerOfOrganization.set( nullptr, nullptr ), headerOfOrganization.path, "hdr" );
    EXPECT_ABORT( headerOfOrganization.set( &none, nullptr ), headerOfOrganization.path, "*hdr" );
    EXPECT_ABORT( headerOfOrganization.set( organization.Address(), nullptr ), headerOfOrganization.path,
                  "organization" );
    EXPECT_ABORT_MESSAGE( headerOfOrganization.set( organization.Address(), bad.Get() ), "organization invalid",
                          "source/tolmo/tolmo_organization.cpp", "tolmoOrganizationOk( organization )" );
}

TEST_F( HeaderScalars, Huge )
{
    std::string comment = "(";
    std::string words;
    for ( int i = 0; i < 100000; ++i ) {
        comment += "\\)(a)";
        words += i ? "  word" : "word";
    }
    comment += ")";
    const auto server = Obj::Adopt( headerOfServer.tryDecode( test::RawHeader( "Server", { comment } ).Get() ) );
    ASSERT_TRUE( server );
    EXPECT_EQ( TakeLines( headerOfServer.encode( server.Get() ) ), Strings{ comment } );
    comment.pop_back();
    EXPECT_EQ( headerOfServer.tryDecode( test::RawHeader( "Server", { comment } ).Get() ), nullptr );
    const auto subject = Obj::Adopt( headerOfSubject.tryDecode( test::RawHeader( "Subject", { words } ).Get() ) );
    EXPECT_EQ( koStringLength( test::Own( headerOfSubject.get( subject.Get() ) ).Get() ), 100000 * 5 - 1 );
}

// What decodes equals what its encoding decodes to, and encodes the same.
TEST_F( HeaderScalars, GeneratedStrings )
{
    std::mt19937 random( 1 );
    const std::string_view alphabet[] = { "a", "B", "1", ".", " ", "\t", "/", "(", ")", "\\", "@", "-", "\u00DF", "," };
    for ( const auto *header : { &headerOfCallId, &headerOfServer, &headerOfTimestamp, &headerOfUserAgent,
                                 &headerOfOrganization, &headerOfSubject } ) {
        int decoded = 0;
        for ( int i = 0; i < 20000; ++i ) {
            std::string line;
            for ( auto length = random() % 8; length > 0; --length ) {
                line += alphabet[random() % std::size( alphabet )];
            }
            const auto hdr = Obj::Adopt( header->tryDecode( test::RawHeader( header->name, { line } ).Get() ) );
            if ( hdr ) {
                ++decoded;
                const auto encoded = test::Own( header->encode( hdr.Get() ) );
                const auto again = Obj::Adopt( header->tryDecode( encoded.Get() ) );
                ASSERT_TRUE( again ) << header->name << ": " << line;
                EXPECT_TRUE( header->equals( hdr.Get(), again.Get() ) ) << header->name << ": " << line;
            }
        }
        EXPECT_GT( decoded, 100 ) << header->name;
    }
}

/* The headers that hold a number. */

struct NumberHeader {
    const char *name;
    const char *path;
    const char *validator;
    KoObj ( *create )( KoInt value );
    KoInt ( *get )( KoObj hdr );
    void ( *set )( KoObj *hdr, KoInt value );
    TolmoMessageHeader ( *encode )( KoObj hdr );
    KoObj ( *tryDecode )( TolmoMessageHeader header );
    KoInt ( *compare )( KoObj a, KoObj b );
    KoSort ( *sort )();
};

#define NUMBER_HEADER( Type, name, file, Scalar, scalar )                                                              \
    const NumberHeader headerOf##Type = {                                                                              \
        name,                                                                                                          \
        "source/tolmo/tolmo_header_" file ".cpp",                                                                      \
        "tolmo" #Scalar "Ok( " #scalar " )",                                                                           \
        []( KoInt value ) { return tolmoHeader##Type##Obj( tolmoHeader##Type##Create( value ) ); },                    \
        []( KoObj hdr ) { return tolmoHeader##Type##Scalar( tolmoHeader##Type##From( hdr ) ); },                       \
        []( KoObj *hdr, KoInt value ) {                                                                                \
            tolmoHeader##Type##Set##Scalar( reinterpret_cast<TolmoHeader##Type *>( hdr ), value );                     \
        },                                                                                                             \
        []( KoObj hdr ) { return tolmoHeader##Type##Encode( tolmoHeader##Type##From( hdr ) ); },                       \
        []( TolmoMessageHeader header ) { return tolmoHeader##Type##Obj( tolmoHeader##Type##TryDecode( header ) ); },  \
        []( KoObj a, KoObj b ) {                                                                                       \
            return tolmoHeader##Type##Compare( tolmoHeader##Type##From( a ), tolmoHeader##Type##From( b ) );           \
        },                                                                                                             \
        tolmoHeader##Type##Sort                                                                                        \
    }

NUMBER_HEADER( Expires, "Expires", "expires", DeltaSeconds, deltaSeconds );
NUMBER_HEADER( MaxForwards, "Max-Forwards", "max_forwards", MaxForwards, maxForwards );
NUMBER_HEADER( MinExpires, "Min-Expires", "min_expires", DeltaSeconds, deltaSeconds );
NUMBER_HEADER( Rseq, "Rseq", "rseq", ResponseNum, responseNum );
const NumberHeader *const numberHeaders[] = { &headerOfExpires, &headerOfMaxForwards, &headerOfMinExpires,
                                              &headerOfRseq };

struct NumberRow {
    const NumberHeader &header;
    Strings lines;
    KoInt value; // -1: does not decode
};

const NumberRow numberRows[] = {
    { headerOfMaxForwards, { "0" }, 0 },
    { headerOfMaxForwards, { "255" }, 255 },
    { headerOfMaxForwards, { "256" }, -1 },
    { headerOfMaxForwards, { "-0" }, 0 }, // a sign passes in front of zero
    { headerOfMaxForwards, { "-1" }, -1 },
    { headerOfMaxForwards, { "+1" }, -1 },
    { headerOfMaxForwards, { "0070" }, 70 },
    { headerOfMaxForwards, { "70 " }, -1 },
    { headerOfMaxForwards, { " 70" }, -1 },
    { headerOfMaxForwards, { "70,70" }, -1 },
    { headerOfMaxForwards, { "70 (hops)" }, -1 },
    { headerOfMaxForwards, { "" }, -1 },
    { headerOfMaxForwards, { "\u0661" }, -1 }, // a digit, but not ours
    { headerOfMaxForwards, { "9223372036854775808" }, -1 },
    { headerOfMaxForwards, { "18446744073709551686" }, -1 }, // 70 and 2^64
    { headerOfMaxForwards, { "abc", "10" }, 10 },            // the last line counts
    { headerOfMaxForwards, { "10", "abc" }, -1 },

    { headerOfExpires, { "0" }, 0 },
    { headerOfExpires, { "-0" }, 0 },
    { headerOfExpires, { "-1" }, -1 },
    { headerOfExpires, { "00060" }, 60 },
    { headerOfExpires, { "9223372036854775807" }, INT64_MAX },
    { headerOfExpires, { "9223372036854775808" }, -1 },
    { headerOfExpires, { "60 " }, -1 },
    { headerOfExpires, { "60;x" }, -1 },
    { headerOfExpires, { "Thu, 01 Dec 1994 16:00:00 GMT" }, -1 },
    { headerOfExpires, { "" }, -1 },
    { headerOfExpires, { "x", "60" }, 60 },
    { headerOfExpires, { "60", "" }, -1 },

    { headerOfMinExpires, { "-0" }, 0 },
    { headerOfMinExpires, { "-1" }, -1 },
    { headerOfMinExpires, { "9223372036854775807" }, INT64_MAX },
    { headerOfMinExpires, { "9223372036854775808" }, -1 },
    { headerOfMinExpires, { "60 " }, -1 },
    { headerOfMinExpires, { "" }, -1 },
    { headerOfMinExpires, { "x", "60" }, 60 },
    { headerOfMinExpires, { "60", "x" }, -1 },

    { headerOfRseq, { "0" }, -1 },
    { headerOfRseq, { "1" }, 1 },
    { headerOfRseq, { "4294967295" }, 4294967295 },
    { headerOfRseq, { "4294967296" }, -1 },
    { headerOfRseq, { "-0" }, -1 }, // digits alone
    { headerOfRseq, { "-1" }, -1 },
    { headerOfRseq, { "+1" }, -1 },
    { headerOfRseq, { "00000000000000000000001" }, 1 },
    { headerOfRseq, { "9223372036854775808" }, -1 },
    { headerOfRseq, { "18446744073709551617" }, -1 }, // 1 and 2^64
    { headerOfRseq, { "1 " }, -1 },
    { headerOfRseq, { "1x" }, -1 },
    { headerOfRseq, { "" }, -1 },
    { headerOfRseq, { "0", "7" }, 7 },
    { headerOfRseq, { "7", "0" }, -1 },
};

TEST_F( HeaderScalars, NumberRows )
{
    for ( const auto &[header, lines, value] : numberRows ) {
        const auto hdr = Obj::Adopt( header.tryDecode( test::RawHeader( header.name, lines ).Get() ) );
        EXPECT_EQ( hdr ? header.get( hdr.Get() ) : -1, value ) << header.name << ": " << lines.back();
        if ( hdr ) {
            EXPECT_EQ( TakeLines( header.encode( hdr.Get() ) ), Strings{ std::to_string( value ) } );
        }
    }
}

TEST_F( HeaderScalars, NumberSet )
{
    for ( const auto *header : numberHeaders ) {
        auto hdr = Obj::Adopt( header->create( 1 ) );
        const KoObj alone = hdr.Get();
        header->set( hdr.Address(), 9 );
        EXPECT_EQ( hdr.Get(), alone ) << header->name;
        const auto other = Obj::Share( hdr.Get() );
        header->set( hdr.Address(), 10 );
        EXPECT_NE( hdr.Get(), other.Get() ) << header->name;
        EXPECT_EQ( header->get( other.Get() ), 9 ) << header->name;
        EXPECT_EQ( header->get( hdr.Get() ), 10 ) << header->name;
        EXPECT_EQ( header->compare( other.Get(), hdr.Get() ), -1 ) << header->name; // by number, not by text
        EXPECT_EQ( header->compare( hdr.Get(), other.Get() ), 1 ) << header->name;
        EXPECT_EQ( header->compare( hdr.Get(), Obj::Adopt( header->create( 10 ) ).Get() ), 0 ) << header->name;
    }
}

TEST_F( HeaderScalars, NumberAborts )
{
    for ( const auto *header : numberHeaders ) {
        auto hdr = Obj::Adopt( header->create( 1 ) );
        KoObj none = nullptr;
        EXPECT_ABORT( header->create( -1 ), header->path, header->validator );
        EXPECT_ABORT( header->get( nullptr ), header->path, "hdr" );
        EXPECT_ABORT( header->set( nullptr, -1 ), header->path, "hdr" );
        EXPECT_ABORT( header->set( &none, -1 ), header->path, "*hdr" );
        EXPECT_ABORT( header->set( hdr.Address(), -1 ), header->path, header->validator );
    }
    EXPECT_ABORT( headerOfMaxForwards.create( 256 ), headerOfMaxForwards.path, headerOfMaxForwards.validator );
    EXPECT_ABORT( headerOfRseq.create( 0 ), headerOfRseq.path, headerOfRseq.validator );
    EXPECT_ABORT( headerOfRseq.create( 4294967296 ), headerOfRseq.path, headerOfRseq.validator );
    EXPECT_EQ( headerOfExpires.get( Obj::Adopt( headerOfExpires.create( INT64_MAX ) ).Get() ), INT64_MAX );
}

// Numbers alone need no free function; the one of Rseq is there nevertheless.
TEST_F( HeaderScalars, NumberSorts )
{
    EXPECT_EQ( headerOfExpires.sort()->free, nullptr );
    EXPECT_EQ( headerOfMaxForwards.sort()->free, nullptr );
    EXPECT_EQ( headerOfMinExpires.sort()->free, nullptr );
    ASSERT_NE( headerOfRseq.sort()->free, nullptr );
    EXPECT_ABORT( headerOfRseq.sort()->free( nullptr ), headerOfRseq.path, "hdr" );
    for ( const auto *header : numberHeaders ) {
        const auto hdr = Obj::Adopt( header->create( 1 ) );
        EXPECT_ABORT( header->sort()->compare( nullptr, hdr.Get() ), header->path, "hdrA" );
        EXPECT_ABORT( header->sort()->compare( hdr.Get(), nullptr ), header->path, "hdrB" );
    }
}

TEST_F( HeaderScalars, GeneratedNumbers )
{
    std::mt19937_64 random( 1 );
    for ( const auto *header : numberHeaders ) {
        const KoInt largest = header == &headerOfMaxForwards ? 255 : header == &headerOfRseq ? UINT32_MAX : INT64_MAX;
        for ( int i = 0; i < 500; ++i ) {
            // Of all sizes, not only large ones.
            const KoInt value = std::max<KoInt>( 1, static_cast<KoInt>( random() >> ( 1 + random() % 63 ) ) % largest );
            const auto hdr = Obj::Adopt( header->create( value ) );
            const auto encoded = test::Own( header->encode( hdr.Get() ) );
            const auto decoded = Obj::Adopt( header->tryDecode( encoded.Get() ) );
            ASSERT_TRUE( decoded ) << header->name << ": " << value;
            EXPECT_EQ( header->get( decoded.Get() ), value );
            EXPECT_EQ( header->compare( decoded.Get(), hdr.Get() ), 0 );
        }
    }
}

} // namespace
