/* The eight token sets. */
#include "tolmo_test.h"

#include <random>

namespace {

using test::Str;
using test::Strings;
using test::TakeLines;
using test::TakeStrings;

class TokenSets : public test::TolmoFixture {
protected:
    using Obj = KoRef<KoObj>;
};

/** The operations of a set, for any of them. */
struct Set {
    const char *name;
    const char *path;
    const char *validator; // the expression of the abort
    const char *argument;  // the one of null, in the unit of the validator
    const char *validatorPath;
    bool folds;
    char separator;
    KoBool ( *ok )( KoString word );
    KoString ( *normalize )( KoString word ); // may be null
    KoObj ( *create )();
    KoObj ( *createFrom )( KoObj source );
    KoBool ( *equals )( KoObj a, KoObj b );
    KoInt ( *compare )( KoObj a, KoObj b );
    KoInt ( *length )( KoObj hdr );
    KoString ( *at )( KoObj hdr, KoInt index );
    KoVector ( *vector )( KoObj hdr );
    KoBool ( *has )( KoObj hdr, KoString word );
    void ( *set )( KoObj *hdr, KoString word );
    void ( *del )( KoObj *hdr, KoString word );
    void ( *setVector )( KoObj *hdr, KoVector vec );
    void ( *clear )( KoObj *hdr );
    TolmoMessageHeader ( *encode )( KoObj hdr );
    KoObj ( *tryDecode )( TolmoMessageHeader header );
    KoSort sort;
};

#define HANDLE( Type, hdr ) reinterpret_cast<TolmoHeader##Type>( hdr )
#define ADDRESS( Type, hdr ) reinterpret_cast<TolmoHeader##Type *>( hdr )
#define OBJ( Type, hdr ) tolmoHeader##Type##Obj( hdr )
#define SET( Type, name, file, Item, item, itemFile, folds, separator, normalize )                                     \
    {                                                                                                                  \
        name, "source/tolmo/tolmo_header_" file ".cpp", "tolmo" #Item "Ok( " #item " )", #item,                        \
            "source/tolmo/tolmo_" itemFile ".cpp", folds, separator, tolmo##Item##Ok, normalize,                       \
            [] { return OBJ( Type, tolmoHeader##Type##Create() ); },                                                   \
            []( KoObj source ) { return OBJ( Type, tolmoHeader##Type##CreateFrom( HANDLE( Type, source ) ) ); },       \
            []( KoObj a, KoObj b ) { return tolmoHeader##Type##Equals( HANDLE( Type, a ), HANDLE( Type, b ) ); },      \
            []( KoObj a, KoObj b ) { return tolmoHeader##Type##Compare( HANDLE( Type, a ), HANDLE( Type, b ) ); },     \
            []( KoObj hdr ) { return tolmoHeader##Type##Item##sLength( HANDLE( Type, hdr ) ); },                       \
            []( KoObj hdr, KoInt index ) { return tolmoHeader##Type##Item##At( HANDLE( Type, hdr ), index ); },        \
            []( KoObj hdr ) { return tolmoHeader##Type##Item##sVector( HANDLE( Type, hdr ) ); },                       \
            []( KoObj hdr, KoString word ) { return tolmoHeader##Type##Has##Item( HANDLE( Type, hdr ), word ); },      \
            []( KoObj *hdr, KoString word ) { tolmoHeader##Type##Set##Item( ADDRESS( Type, hdr ), word ); },           \
            []( KoObj *hdr, KoString word ) { tolmoHeader##Type##Del##Item( ADDRESS( Type, hdr ), word ); },           \
            []( KoObj *hdr, KoVector vec ) { tolmoHeader##Type##Set##Item##sVector( ADDRESS( Type, hdr ), vec ); },    \
            []( KoObj *hdr ) { tolmoHeader##Type##Clear##Item##s( ADDRESS( Type, hdr ) ); },                           \
            []( KoObj hdr ) { return tolmoHeader##Type##Encode( HANDLE( Type, hdr ) ); },                              \
            []( TolmoMessageHeader header ) { return OBJ( Type, tolmoHeader##Type##TryDecode( header ) ); },           \
            tolmoHeader##Type##Sort()                                                                                  \
    }

const std::vector<Set> &Sets()
{
    // clang-format off
    static const std::vector<Set> sets{
        SET( Allow, "Allow", "allow", Method, method, "method", false, ',', nullptr ),
        SET( AllowEvents, "Allow-Events", "allow_events", EventType, eventType, "event_type", false, ',', nullptr ),
        SET( InReplyTo, "In-Reply-To", "in_reply_to", CallId, callId, "call_id", false, ',', nullptr ),
        SET( Privacy, "Privacy", "privacy", PrivValue, privValue, "priv_value", true, ';', tolmoPrivValueNormalize ),
        SET( ProxyRequire, "Proxy-Require", "proxy_require", OptionTag, optionTag, "option_tag", true, ',', tolmoOptionTagNormalize ),
        SET( Require, "Require", "require", OptionTag, optionTag, "option_tag", true, ',', tolmoOptionTagNormalize ),
        SET( Supported, "Supported", "supported", OptionTag, optionTag, "option_tag", true, ',', tolmoOptionTagNormalize ),
        SET( Unsupported, "Unsupported", "unsupported", OptionTag, optionTag, "option_tag", true, ',', tolmoOptionTagNormalize ),
    };
    // clang-format on
    return sets;
}

const Set &SetOf( std::string_view name )
{
    for ( const Set &set : Sets() ) {
        if ( set.name == name ) {
            return set;
        }
    }
    ADD_FAILURE() << name;
    return Sets()[0];
}

KoObj Decode( const Set &set, const Strings &lines )
{
    return set.tryDecode( test::RawHeader( set.name, lines ).Get() );
}

/** A text with the separator of a set in the place of each comma. */
std::string Separated( const Set &set, std::string text )
{
    for ( char &ch : text ) {
        ch = ch == ',' ? set.separator : ch;
    }
    return text;
}

/* Decoding and encoding. */

struct Row {
    Strings lines;
    std::string words; // as printed; "(null)": does not decode
};

// Commas stand for the separator of the set.
const Row rows[] = {
    { { "a" }, "a" },
    { { "a,b,c" }, "a,b,c" },
    { { "c,b,a" }, "c,b,a" }, // the order of the first time
    { { "a , b\t,\t c" }, "a,b,c" },
    { { "a", "b,c" }, "a,b,c" }, // all lines, printed on one
    { { "a,b", "b,c,a" }, "a,b,c" },
    { { "a,a,a" }, "a" },
    { { "" }, "" }, // an empty line is no fault
    { { "", "" }, "" },
    { { "", "a", "" }, "a" },
    { { "a", "", "b" }, "a,b" },
    { {}, "(null)" }, // but no line is
    { { "a," }, "(null)" },
    { { ",a" }, "(null)" },
    { { "a,,b" }, "(null)" },
    { { "," }, "(null)" },
    { { "a " }, "(null)" }, // a line of a message has been trimmed
    { { " a" }, "(null)" },
    { { " " }, "(null)" },
    { { "a b" }, "(null)" },
    { { "a", "b," }, "(null)" }, // one bad line voids all
    { { "a,", "b" }, "(null)" },
    { { "\u00DF" }, "(null)" },
    { { "a,\u00DF" }, "(null)" },
    { { "a,b\n" }, "(null)" },
    { { "a=b" }, "(null)" },
};

TEST_F( TokenSets, Rows )
{
    for ( const Set &set : Sets() ) {
        for ( const auto &[lines, words] : rows ) {
            Strings separated;
            for ( const auto &line : lines ) {
                separated.push_back( Separated( set, line ) );
            }
            const auto hdr = Obj::Adopt( Decode( set, separated ) );
            const std::string shown = set.name + ( ": " + testing::PrintToString( separated ) );
            ASSERT_EQ( static_cast<bool>( hdr ), words != "(null)" ) << shown;
            if ( hdr ) {
                EXPECT_EQ( TakeLines( set.encode( hdr.Get() ) ),
                           words.empty() ? Strings() : Strings{ Separated( set, words ) } )
                    << shown;
            }
        }
    }
}

struct MemberRow {
    const char *name;
    std::string line;
    Strings words; // { "(null)" }: does not decode
};

const MemberRow memberRows[] = {
    { "Allow", "INVITE,invite", { "INVITE", "invite" } }, // case matters
    { "Allow", "INVITE;ACK", { "(null)" } },
    { "Allow", "*", { "*" } },
    { "Allow-Events", "presence.winfo,Presence", { "presence.winfo", "Presence" } },
    { "Allow-Events", "presence.", { "(null)" } },
    { "Allow-Events", ".winfo", { "(null)" } },
    { "Allow-Events", "presence;id=1", { "(null)" } },
    { "In-Reply-To", "a@B,a@b,A", { "a@B", "a@b", "A" } },
    { "In-Reply-To", "a@,b", { "(null)" } },
    { "In-Reply-To", "<a>{b}@\"c\"", { "<a>{b}@\"c\"" } },
    { "Privacy", "id;HEADER;Id", { "id", "header" } },
    { "Privacy", "id,header", { "(null)" } }, // semicolons alone
    { "Privacy", "id ; header", { "id", "header" } },
    { "Require", "100rel,100REL", { "100rel" } }, // case folds
    { "Require", "Foo;bar", { "(null)" } },
    { "Proxy-Require", "Foo,fOO", { "foo" } },
    { "Supported", "Path , GRUU", { "path", "gruu" } },
    { "Unsupported", "Foo,fOO", { "foo" } },
};

TEST_F( TokenSets, MemberRows )
{
    for ( const auto &[name, line, words] : memberRows ) {
        const Set &set = SetOf( name );
        const auto hdr = Obj::Adopt( Decode( set, { line } ) );
        EXPECT_EQ( hdr ? TakeStrings( set.vector( hdr.Get() ) ) : Strings{ "(null)" }, words ) << name << ": " << line;
    }
}

// What is decoded is in the normal form of the words, and valid.
TEST_F( TokenSets, DecodedWordsAreNormal )
{
    for ( const Set &set : Sets() ) {
        const auto hdr = Obj::Adopt( Decode( set, { "aB-.!%*_+`'~Z" } ) );
        const auto word = test::Own( set.at( hdr.Get(), 0 ) );
        EXPECT_TRUE( set.ok( word.Get() ) ) << set.name;
        if ( set.normalize ) {
            EXPECT_EQ( test::Text( word ), test::Take( set.normalize( Str( "aB-.!%*_+`'~Z" ).Get() ) ) ) << set.name;
        } else {
            EXPECT_EQ( test::Text( word ), "aB-.!%*_+`'~Z" ) << set.name;
        }
        EXPECT_EQ( set.normalize != nullptr, set.folds );
    }
}

// An empty set vanishes from the wire, and stays in the message.
TEST_F( TokenSets, EmptySet )
{
    auto msg = test::Received( "Supported:\r\nX-Other: a\r\n" );
    const auto hdr = test::Own( tolmoHeaderSupportedTryDecodeFromMessage( msg.Get() ) );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( tolmoHeaderSupportedOptionTagsLength( hdr.Get() ), 0 );
    tolmoHeaderSupportedEncodeToMessage( hdr.Get(), msg.Address() );
    EXPECT_EQ( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ),
               test::TakeBytes( tolmoMessageEncode( test::Received( "X-Other: a\r\n" ).Get() ) ) );
    EXPECT_TRUE( tolmoHeaderSupportedPresentInMessage( msg.Get() ) );
    EXPECT_EQ( tolmoHeaderSupportedTryDecodeFromMessage( msg.Get() ), nullptr );
}

/* Reading and changing. */

TEST_F( TokenSets, Words )
{
    for ( const Set &set : Sets() ) {
        auto hdr = Obj::Adopt( set.create() );
        EXPECT_EQ( set.length( hdr.Get() ), 0 );
        EXPECT_FALSE( set.has( hdr.Get(), Str( "b" ).Get() ) );
        set.del( hdr.Address(), Str( "b" ).Get() ); // no fault
        for ( const char *word : { "b", "A", "c", "a", "b" } ) {
            set.set( hdr.Address(), Str( word ).Get() );
        }
        const Strings words = set.folds ? Strings{ "b", "a", "c" } : Strings{ "b", "A", "c", "a" };
        EXPECT_EQ( TakeStrings( set.vector( hdr.Get() ) ), words ) << set.name;
        EXPECT_EQ( set.length( hdr.Get() ), static_cast<KoInt>( words.size() ) );
        for ( size_t i = 0; i < words.size(); ++i ) {
            EXPECT_EQ( test::Take( set.at( hdr.Get(), static_cast<KoInt>( i ) ) ), words[i] ) << set.name;
        }
        EXPECT_TRUE( set.has( hdr.Get(), Str( "A" ).Get() ) );
        EXPECT_TRUE( set.has( hdr.Get(), Str( "c" ).Get() ) );
        EXPECT_EQ( set.has( hdr.Get(), Str( "C" ).Get() ), set.folds ) << set.name;
        set.del( hdr.Address(), Str( "C" ).Get() );
        EXPECT_EQ( set.has( hdr.Get(), Str( "c" ).Get() ), !set.folds ) << set.name;
        // Removed and set again: the last place.
        set.del( hdr.Address(), Str( "b" ).Get() );
        set.set( hdr.Address(), Str( "b" ).Get() );
        EXPECT_EQ( test::Take( set.at( hdr.Get(), set.length( hdr.Get() ) - 1 ) ), "b" ) << set.name;
        // A word of the set itself goes in.
        set.set( hdr.Address(), test::Own( set.at( hdr.Get(), 0 ) ).Get() );
        set.clear( hdr.Address() );
        EXPECT_EQ( set.length( hdr.Get() ), 0 );
        set.clear( hdr.Address() );
    }
}

// The argument's own string is left alone, and kept where nothing has to be folded.
TEST_F( TokenSets, Argument )
{
    for ( const Set &set : Sets() ) {
        auto hdr = Obj::Adopt( set.create() );
        auto word = Str( "aB" );
        set.set( hdr.Address(), word.Get() );
        EXPECT_EQ( test::Text( word ), "aB" ) << set.name;
        EXPECT_EQ( test::Own( set.at( hdr.Get(), 0 ) ).Get() == word.Get(), !set.folds ) << set.name;
        koStringAppendChar( word.Address(), 'x' ); // copies
        EXPECT_EQ( test::Take( set.at( hdr.Get(), 0 ) ), set.folds ? "ab" : "aB" ) << set.name;
    }
}

TEST_F( TokenSets, CopyOnWrite )
{
    for ( const Set &set : Sets() ) {
        auto hdr = Obj::Adopt( Decode( set, { Separated( set, "a,b" ) } ) );
        const KoObj alone = hdr.Get();
        set.set( hdr.Address(), Str( "c" ).Get() );
        set.del( hdr.Address(), Str( "c" ).Get() );
        EXPECT_EQ( hdr.Get(), alone ) << set.name;

        const auto words = KoRef<KoVector>::Adopt( set.vector( hdr.Get() ) );
        const std::function<void( KoObj * )> changes[] = {
            [&]( KoObj *address ) { set.set( address, Str( "c" ).Get() ); },
            [&]( KoObj *address ) { set.set( address, Str( "a" ).Get() ); }, // changes nothing, and copies all the same
            [&]( KoObj *address ) { set.del( address, Str( "a" ).Get() ); },
            [&]( KoObj *address ) { set.clear( address ); },
            [&]( KoObj *address ) { set.setVector( address, words.Get() ); },
        };
        for ( const auto &change : changes ) {
            auto copy = Obj::Share( hdr.Get() );
            change( copy.Address() );
            EXPECT_NE( copy.Get(), hdr.Get() ) << set.name;
            EXPECT_EQ( TakeStrings( set.vector( hdr.Get() ) ), ( Strings{ "a", "b" } ) ) << set.name;
        }
        // CreateFrom shares the words until one of the two changes.
        auto copy = Obj::Adopt( set.createFrom( hdr.Get() ) );
        EXPECT_TRUE( set.equals( copy.Get(), hdr.Get() ) );
        set.del( copy.Address(), Str( "a" ).Get() );
        EXPECT_EQ( TakeStrings( set.vector( hdr.Get() ) ), ( Strings{ "a", "b" } ) ) << set.name;
        EXPECT_EQ( TakeStrings( set.vector( copy.Get() ) ), ( Strings{ "b" } ) ) << set.name;
    }
}

TEST_F( TokenSets, SetVector )
{
    for ( const Set &set : Sets() ) {
        auto hdr = Obj::Adopt( Decode( set, { "x" } ) );
        auto vec = KoRef<KoVector>::Adopt( koVectorCreate() );
        for ( const char *word : { "b", "A", "b", "a" } ) {
            koVectorAppendString( vec.Address(), Str( word ).Get() );
        }
        // Any object counts by its text.
        const auto maxForwards = test::Own( tolmoHeaderMaxForwardsCreate( 70 ) );
        koVectorAppendObj( vec.Address(), tolmoHeaderMaxForwardsObj( maxForwards.Get() ) );
        set.setVector( hdr.Address(), vec.Get() );
        EXPECT_EQ( TakeStrings( set.vector( hdr.Get() ) ),
                   set.folds ? ( Strings{ "b", "a", "70" } ) : ( Strings{ "b", "A", "a", "70" } ) )
            << set.name;
        // Its own words.
        set.setVector( hdr.Address(), KoRef<KoVector>::Adopt( set.vector( hdr.Get() ) ).Get() );
        EXPECT_EQ( test::Take( set.at( hdr.Get(), 0 ) ), "b" ) << set.name;
        // The header itself, whose text is one word.
        auto own = Obj::Adopt( Decode( set, { "w" } ) );
        auto self = KoRef<KoVector>::Adopt( koVectorCreate() );
        koVectorAppendObj( self.Address(), own.Get() );
        set.setVector( own.Address(), self.Get() );
        EXPECT_EQ( TakeStrings( set.vector( own.Get() ) ), Strings{ "w" } ) << set.name;
        set.setVector( hdr.Address(), KoRef<KoVector>::Adopt( koVectorCreate() ).Get() );
        EXPECT_EQ( set.length( hdr.Get() ), 0 );
    }
}

// Sets: neither order nor repetition counts, and case only where it matters.
TEST_F( TokenSets, Compare )
{
    for ( const Set &set : Sets() ) {
        const auto of = [&]( const char *words ) { return Obj::Adopt( Decode( set, { Separated( set, words ) } ) ); };
        EXPECT_TRUE( set.equals( of( "a,b,c" ).Get(), of( "c,b,a,b" ).Get() ) ) << set.name;
        EXPECT_EQ( set.equals( of( "a,b" ).Get(), of( "A,B" ).Get() ), set.folds ) << set.name;
        EXPECT_FALSE( set.equals( of( "a,b" ).Get(), of( "a" ).Get() ) ) << set.name;
        EXPECT_GT( set.compare( of( "b,a" ).Get(), of( "a" ).Get() ), 0 ) << set.name;
        EXPECT_LT( set.compare( of( "a,b" ).Get(), of( "c,a" ).Get() ), 0 ) << set.name;
        EXPECT_GT( set.compare( of( "a" ).Get(), Obj::Adopt( set.create() ).Get() ), 0 ) << set.name;
    }
}

// Six of the eight have string forms.
#define STRING_FORMS( Type, Item )                                                                                     \
    {                                                                                                                  \
        auto hdr = test::Own( tolmoHeader##Type##Create() );                                                           \
        static const uint16_t wide[] = { 'w', 'x', 0 };                                                                \
        tolmoHeader##Type##Set##Item##Cstr( hdr.Address(), "abc", -1 );                                                \
        tolmoHeader##Type##Set##Item##Cstr( hdr.Address(), "abc", 2 );                                                 \
        tolmoHeader##Type##Set##Item##Wcstr( hdr.Address(), wide, -1 );                                                \
        tolmoHeader##Type##Set##Item##Wcstr( hdr.Address(), wide, 1 );                                                 \
        EXPECT_EQ( TakeStrings( tolmoHeader##Type##Item##sVector( hdr.Get() ) ),                                       \
                   ( Strings{ "abc", "ab", "wx", "w" } ) );                                                            \
        EXPECT_TRUE( tolmoHeader##Type##Has##Item##Cstr( hdr.Get(), "abcd", 3 ) );                                     \
        EXPECT_FALSE( tolmoHeader##Type##Has##Item##Cstr( hdr.Get(), "abcd", -1 ) );                                   \
        EXPECT_TRUE( tolmoHeader##Type##Has##Item##Wcstr( hdr.Get(), wide, 1 ) );                                      \
        tolmoHeader##Type##Del##Item##Cstr( hdr.Address(), "ab", -1 );                                                 \
        tolmoHeader##Type##Del##Item##Wcstr( hdr.Address(), wide, -1 );                                                \
        EXPECT_EQ( TakeStrings( tolmoHeader##Type##Item##sVector( hdr.Get() ) ), ( Strings{ "abc", "w" } ) );          \
    }

TEST_F( TokenSets, StringForms ){ STRING_FORMS( Allow, Method ) STRING_FORMS( AllowEvents, EventType )
                                      STRING_FORMS( Privacy, PrivValue ) STRING_FORMS( ProxyRequire, OptionTag )
                                          STRING_FORMS( Require, OptionTag ) STRING_FORMS( Supported, OptionTag ) }

/* Aborts. */

TEST_F( TokenSets, Aborts )
{
    for ( const Set &set : Sets() ) {
        auto hdr = Obj::Adopt( Decode( set, { "a" } ) );
        KoObj none = nullptr;
        const auto bad = Str( "a b" );
        EXPECT_ABORT( set.length( nullptr ), set.path, "hdr" );
        EXPECT_ABORT( set.at( nullptr, 0 ), set.path, "hdr" );
        EXPECT_ABORT( set.vector( nullptr ), set.path, "hdr" );
        for ( const KoInt index : { -1, 1 } ) {
            EXPECT_ABORT( set.at( hdr.Get(), index ), "source/runtime/ko_dict.cpp",
                          "index >= 0 && index < koDictLength( d )" );
        }
        EXPECT_ABORT( set.has( nullptr, nullptr ), set.path, "hdr" );
        EXPECT_ABORT( set.has( hdr.Get(), nullptr ), set.validatorPath, set.argument );
        EXPECT_ABORT( set.has( hdr.Get(), bad.Get() ), set.path, set.validator ); // it does not answer false
        EXPECT_ABORT( set.has( hdr.Get(), Str( "" ).Get() ), set.path, set.validator );
        for ( const auto change : { set.set, set.del } ) {
            EXPECT_ABORT( change( nullptr, nullptr ), set.path, "hdr" );
            EXPECT_ABORT( change( &none, nullptr ), set.path, "*hdr" );
            EXPECT_ABORT( change( hdr.Address(), nullptr ), set.validatorPath, set.argument );
            EXPECT_ABORT( change( hdr.Address(), bad.Get() ), set.path, set.validator );
        }
        EXPECT_ABORT( set.setVector( nullptr, nullptr ), set.path, "hdr" );
        EXPECT_ABORT( set.setVector( &none, nullptr ), set.path, "*hdr" );
        EXPECT_ABORT( set.setVector( hdr.Address(), nullptr ), set.path, "vec" );
        auto vec = KoRef<KoVector>::Adopt( koVectorCreate() );
        koVectorAppendString( vec.Address(), Str( "a" ).Get() );
        koVectorAppendString( vec.Address(), bad.Get() );
        EXPECT_ABORT( set.setVector( hdr.Address(), vec.Get() ), set.path, set.validator );
        EXPECT_ABORT( set.clear( nullptr ), set.path, "hdr" );
        EXPECT_ABORT( set.clear( &none ), set.path, "*hdr" );
        EXPECT_ABORT( set.sort->free( nullptr ), set.path, "hdr" );
        EXPECT_ABORT( set.sort->compare( nullptr, hdr.Get() ), set.path, "hdrA" );
        EXPECT_ABORT( set.sort->compare( hdr.Get(), nullptr ), set.path, "hdrB" );
    }
}

/* Generated values. */

TEST_F( TokenSets, Generated )
{
    std::mt19937 random( 1 );
    for ( const Set &set : Sets() ) {
        for ( int i = 0; i < 300; ++i ) {
            auto hdr = Obj::Adopt( set.create() );
            for ( auto count = random() % 20; count > 0; --count ) {
                std::string word;
                for ( auto length = 1 + random() % 3; length > 0; --length ) {
                    word += "abABz0-_"[random() % 8];
                }
                if ( random() % 4 ) {
                    set.set( hdr.Address(), Str( word ).Get() );
                } else {
                    set.del( hdr.Address(), Str( word ).Get() );
                }
            }
            const Strings words = TakeStrings( set.vector( hdr.Get() ) );
            if ( words.empty() ) {
                continue;
            }
            const auto encoded = test::Own( set.encode( hdr.Get() ) );
            auto decoded = Obj::Adopt( set.tryDecode( encoded.Get() ) );
            ASSERT_TRUE( decoded ) << set.name;
            EXPECT_TRUE( set.equals( decoded.Get(), hdr.Get() ) );
            EXPECT_EQ( TakeStrings( set.vector( decoded.Get() ) ), words ); // in the same order
            const auto other = Obj::Share( decoded.Get() );
            set.del( decoded.Address(), Str( words[random() % words.size()] ).Get() );
            EXPECT_EQ( TakeStrings( set.vector( other.Get() ) ), words );
            EXPECT_FALSE( set.equals( decoded.Get(), other.Get() ) );
        }
    }
}

TEST_F( TokenSets, Huge )
{
    for ( const Set &set : Sets() ) {
        std::string line = "w0";
        for ( int i = 1; i < 100000; ++i ) {
            line += set.separator;
            line += 'w' + std::to_string( i );
        }
        const auto hdr = Obj::Adopt( Decode( set, { line, line } ) ); // the second line adds nothing
        ASSERT_TRUE( hdr ) << set.name;
        EXPECT_EQ( set.length( hdr.Get() ), 100000 );
        EXPECT_EQ( TakeLines( set.encode( hdr.Get() ) ), Strings{ line } );
        line += set.separator;
        EXPECT_EQ( Decode( set, { line } ), nullptr );
    }
}

} // namespace
