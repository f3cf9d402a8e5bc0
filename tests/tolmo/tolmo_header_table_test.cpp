/* Messages of many headers that are set and deleted in any order, against a plain list. */
#include "tolmo_test.h"

#include <algorithm>
#include <random>

namespace {

using test::Own;
using test::Received;
using test::Str;
using test::Strings;
using test::TakeBytes;

class HeaderTableTest : public test::TolmoFixture {};

struct Model {
    struct Header {
        std::string name;
        std::string value;
    };
    std::vector<Header> headers;

    auto Find( const std::string &name )
    {
        return std::find_if( headers.begin(), headers.end(), [&]( const Header &h ) { return h.name == name; } );
    }

    [[nodiscard]] std::string Lines() const
    {
        std::string lines;
        for ( const Header &header : headers ) {
            lines += header.name + ": " + header.value + "\r\n";
        }
        return lines;
    }
};

void Delete( KoRef<TolmoMessage> &msg, Model &model, const std::string &name )
{
    tolmoMessageDelHeader( msg.Address(), Str( name ).Get() );
    if ( const auto found = model.Find( name ); found != model.headers.end() ) {
        model.headers.erase( found );
    }
}

void Set( KoRef<TolmoMessage> &msg, Model &model, const std::string &name, const std::string &value )
{
    tolmoMessageSetHeader( msg.Address(), test::RawHeader( name, { value } ).Get() );
    if ( const auto found = model.Find( name ); found != model.headers.end() ) {
        found->value = value;
    } else {
        model.headers.push_back( { name, value } );
    }
}

void ExpectSame( const KoRef<TolmoMessage> &msg, Model &model )
{
    ASSERT_EQ( TakeBytes( tolmoMessageEncode( msg.Get() ) ),
               "OPTIONS sip:a SIP/2.0\r\n" + model.Lines() + "Content-Length: 0\r\n\r\n" );
    const auto headers = Own( tolmoMessageHeadersVector( msg.Get() ) );
    ASSERT_EQ( koVectorLength( headers.Get() ), static_cast<KoInt>( model.headers.size() ) );
    for ( int i = 0; i < 120; ++i ) {
        const std::string name = "N" + std::to_string( i );
        ASSERT_EQ( tolmoMessageHasHeader( msg.Get(), Str( name ).Get() ) != 0,
                   model.Find( name ) != model.headers.end() )
            << name;
    }
}

TEST_F( HeaderTableTest, SettingAndDeletingInAnyOrder )
{
    for ( unsigned seed = 0; seed < 40; ++seed ) {
        std::mt19937 random( seed );
        Model model;
        for ( unsigned i = 0; i < 10 + seed * 2; ++i ) { // tables with an index, and without
            model.headers.push_back( { i == 3 ? "Via" : "N" + std::to_string( i ), "r" } );
        }
        auto msg = Received( model.Lines() );
        KoRef<TolmoMessage> copy;
        Model copied;
        for ( unsigned step = 0; step < 300; ++step ) {
            const std::string name = random() % 20 ? "N" + std::to_string( random() % 120 ) : "Via";
            if ( random() % 3 != 0 ) {
                Delete( msg, model, name );
            } else {
                Set( msg, model, name, std::to_string( step ) );
            }
            if ( step % 50 == 10 ) {
                copy = KoRef<TolmoMessage>::Share( msg.Get() );
                copied = model;
            }
            if ( step % 10 == 0 ) {
                ASSERT_NO_FATAL_FAILURE( ExpectSame( msg, model ) ) << seed;
            }
        }
        ASSERT_NO_FATAL_FAILURE( ExpectSame( copy, copied ) ) << seed;
    }
}

TEST_F( HeaderTableTest, DeletingAll )
{
    for ( const bool backwards : { false, true } ) {
        Model model;
        for ( int i = 0; i < 100; ++i ) {
            model.headers.push_back( { "N" + std::to_string( i ), "r" } );
        }
        auto msg = Received( model.Lines() );
        for ( int i = 0; i < 100; ++i ) {
            Delete( msg, model, "N" + std::to_string( backwards ? 99 - i : i ) );
            ASSERT_NO_FATAL_FAILURE( ExpectSame( msg, model ) );
        }
        Set( msg, model, "N5", "again" );
        ASSERT_NO_FATAL_FAILURE( ExpectSame( msg, model ) );
    }
}

} // namespace
