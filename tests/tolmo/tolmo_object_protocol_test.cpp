/* What all types of objects have in common. A type that is added is one line of the table. */
#include "tolmo_test.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

namespace {

using test::Own;
using test::Str;

/** The operations of a type over handles of objects, and a source of objects. */
struct Type {
    std::string name; // `HeaderVia`
    KoObj ( *create )();
    KoSort ( *sort )( void );
    KoObj ( *obj )( KoObj );
    KoObj ( *from )( KoObj );
    KoObj ( *retain )( KoObj );
    void ( *release )( KoObj );
    KoInt ( *compare )( KoObj, KoObj );
    KoBool ( *equals )( KoObj, KoObj );
    KoString ( *toString )( KoObj );
    KoObj ( *createFrom )( KoObj ); // null: objects of the type are not copied
};

template <class Handle>
KoObj Obj( Handle handle )
{
    return reinterpret_cast<KoObj>( handle );
}

/** A value from its text. */
template <class Handle>
KoObj Decode( Handle ( *tryDecode )( const KoChar *, KoInt ), std::string_view text )
{
    const test::Exact chs( text );
    return Obj( tryDecode( chs.Chars(), chs.Length() ) );
}

/** A header from the text of its one line. Its name is made of the words of the type's. */
template <class Handle>
KoObj DecodeHeader( std::string_view type, Handle ( *tryDecode )( TolmoMessageHeader ), std::string_view line )
{
    std::string name;
    for ( const char ch : type ) {
        if ( !name.empty() && ch >= 'A' && ch <= 'Z' ) {
            name += '-';
        }
        name += ch;
    }
    auto header = Own( tolmoMessageHeaderCreate( Str( name ).Get() ) );
    tolmoMessageHeaderAppendLine( header.Address(), Str( line ).Get() );
    return Obj( tryDecode( header.Get() ) );
}

#define HANDLE( T, x ) reinterpret_cast<Tolmo##T>( x )
#define OPERATIONS( T, created, copied )                                                                                  \
    Type                                                                                                                  \
    {                                                                                                                     \
#T, []() -> KoObj { return created; }, tolmo##T##Sort, []( KoObj x ) { return tolmo##T##Obj( HANDLE( T, x ) ); },       \
            []( KoObj x ) { return Obj( tolmo##T##From( x ) ); },                                                      \
            []( KoObj x ) { return Obj( tolmo##T##Retain( HANDLE( T, x ) ) ); },                                       \
            []( KoObj x ) { tolmo##T##Release( HANDLE( T, x ) ); },                                                    \
            []( KoObj a, KoObj b ) { return tolmo##T##Compare( HANDLE( T, a ), HANDLE( T, b ) ); },                    \
            []( KoObj a, KoObj b ) { return tolmo##T##Equals( HANDLE( T, a ), HANDLE( T, b ) ); },                     \
            []( KoObj x ) { return tolmo##T##ToString( HANDLE( T, x ) ); }, copied \
    }
#define COPIED( T ) []( KoObj x ) { return Obj( tolmo##T##CreateFrom( HANDLE( T, x ) ) ); }
#define OBJECT( T, created ) OPERATIONS( T, Obj( created ), COPIED( T ) )
#define MUTABLE( T, created ) OPERATIONS( T, Obj( created ), nullptr )
#define VALUE( T, text ) OPERATIONS( T, Decode( tolmo___##T##TryDecode, text ), COPIED( T ) )
#define HEADER( T, line )                                                                                              \
    OPERATIONS( Header##T, DecodeHeader( #T, tolmoHeader##T##TryDecode, line ), COPIED( Header##T ) )

const Type types[] = {
    VALUE( Accept, "text/plain;q=0.5;a=b" ),
    VALUE( AcceptEncoding, "gzip;q=0.5" ),
    VALUE( AlertInfo, "<http://a/b>;x=y" ),
    VALUE( CallInfo, "<http://a/b>;purpose=icon" ),
    VALUE( Contact, "\"A\" <sip:a@b>;q=0.5;expires=60;x" ),
    VALUE( Diversion, "<sip:a@b>;reason=unknown;counter=1" ),
    VALUE( ErrorInfo, "<http://a/b>;x=y" ),
    VALUE( GenericParam, "a=\"b\"" ),
    VALUE( GenericParams, ";a=b;c" ),
    VALUE( HistoryInfo, "<sip:a@b>;index=1.1;x" ),
    VALUE( IdentityValue, "\"A\" <sip:a@b>" ),
    VALUE( InfoPackageType, "pack;a=b" ),
    OBJECT( Message, tolmoMessageCreateResponse( Own( tolmoVersionCreateSip20() ).Get(), 200 ) ),
    OBJECT( MessageFragment, tolmoMessageFragmentCreate() ),
    OBJECT( MessageHeader, tolmoMessageHeaderCreateCstr( "Via", -1 ) ),
    MUTABLE( MessageStreamDecoder, tolmoMessageStreamDecoderCreate() ),
    VALUE( Reason, "SIP;cause=200;text=\"OK\"" ),
    VALUE( Route, "\"A\" <sip:a;lr>;x=y" ),
    VALUE( UuiValue, "ab01;encoding=hex;purpose=x" ),
    VALUE( Version, "tolmo/1.1" ),
    VALUE( Via, "SIP/2.0/UDP host:5060;branch=z9hG4bK1;x=y" ),
    VALUE( WarningValue, "301 host \"text\"" ),
    OBJECT( HeaderAccept, tolmoHeaderAcceptCreate() ), // no line with a value decodes
    HEADER( AcceptEncoding, "gzip" ),
    HEADER( AcceptResourcePriority, "q735.1" ),
    HEADER( AlertInfo, "<http://a/b>" ),
    HEADER( Allow, "INVITE, ACK" ),
    HEADER( AllowEvents, "presence" ),
    HEADER( CallId, "a@b" ),
    HEADER( CallInfo, "<http://a/b>" ),
    HEADER( Contact, "<sip:a@b>" ),
    HEADER( ContentDisposition, "session;handling=optional;x" ),
    OBJECT( HeaderContentEncoding, tolmoHeaderContentEncodingCreate() ), // no line decodes
    HEADER( Cseq, "1 INVITE" ),
    HEADER( Date, "Sat, 13 Nov 2010 23:29:00 GMT" ),
    HEADER( Diversion, "<sip:a@b>" ),
    HEADER( ErrorInfo, "<http://a/b>" ),
    HEADER( Event, "presence;id=1;x" ),
    HEADER( Expires, "60" ),
    HEADER( From, "\"A\" <sip:a@b>;tag=1;x" ),
    HEADER( HistoryInfo, "<sip:a@b>;index=1" ),
    HEADER( InReplyTo, "a@b" ),
    HEADER( InfoPackage, "pack" ),
    HEADER( MaxForwards, "70" ),
    HEADER( MinExpires, "60" ),
    HEADER( MinSe, "60;x" ),
    HEADER( Organization, "A B" ),
    HEADER( PAssertedIdentity, "<sip:a@b>" ),
    HEADER( PCalledPartyId, "<sip:a@b>;x" ),
    HEADER( PEarlyMedia, "supported" ),
    HEADER( PPreferredIdentity, "<sip:a@b>" ),
    HEADER( Priority, "urgent" ),
    HEADER( Privacy, "id" ),
    HEADER( ProxyRequire, "100rel" ),
    HEADER( Rack, "1 2 INVITE" ),
    HEADER( Reason, "SIP;cause=200" ),
    HEADER( RecordRoute, "<sip:a;lr>" ),
    HEADER( RecvInfo, "pack" ),
    HEADER( ReferTo, "<sip:a@b>;x" ),
    HEADER( ReferredBy, "<sip:a@b>;x" ),
    HEADER( RemotePartyId, "<sip:a@b>;x" ),
    HEADER( Replaces, "a@b;to-tag=1;from-tag=2" ),
    HEADER( ReplyTo, "<sip:a@b>;x" ),
    HEADER( Require, "100rel" ),
    HEADER( ResourcePriority, "q735.1" ),
    HEADER( RetryAfter, "60 (comment);duration=5" ),
    HEADER( Route, "<sip:a;lr>" ),
    HEADER( Rseq, "1" ),
    HEADER( Server, "a/1 b" ),
    HEADER( ServiceRoute, "<sip:a;lr>" ),
    HEADER( SessionExpires, "90;refresher=uac;x" ),
    HEADER( SessionId, "0123456789abcdef0123456789abcdef;remote=00000000000000000000000000000000" ),
    HEADER( Subject, "A B" ),
    HEADER( SubscriptionState, "active;expires=60;x" ),
    HEADER( Supported, "100rel" ),
    HEADER( Timestamp, "1.5 2.5" ),
    HEADER( To, "\"A\" <sip:a@b>;tag=1;x" ),
    HEADER( Unsupported, "100rel" ),
    HEADER( UserAgent, "a/1 b" ),
    HEADER( UserToUser, "ab01" ),
    HEADER( Via, "SIP/2.0/UDP host" ),
    HEADER( Warning, "301 host \"text\"" ),
};

/** The functions that a sort lacks: free (f), compare (c), to-string (s). All other sorts have all three. */
const std::map<std::string, std::string> missing = {
    { "TOLMO_DIVERSION", "cs" },
    { "TOLMO_HEADER_EXPIRES", "f" },
    { "TOLMO_HEADER_MAX_FORWARDS", "f" },
    { "TOLMO_HEADER_MIN_EXPIRES", "f" },
    { "TOLMO_HISTORY_INFO", "s" },
    { "TOLMO_IDENTITY_VALUE", "s" },
    { "TOLMO_MESSAGE", "cs" },
    { "TOLMO_MESSAGE_FRAGMENT", "cs" },
    { "TOLMO_MESSAGE_HEADER", "s" },
    { "TOLMO_MESSAGE_STREAM_DECODER", "cs" },
    { "TOLMO_REASON", "cs" },
    { "TOLMO_ROUTE", "s" },
    { "TOLMO_WARNING_VALUE", "s" },
};

/** The words of a type's name, with an underscore in front of each. */
std::string Words( const std::string &name, int ( *change )( int ) )
{
    std::string words;
    for ( const char ch : name ) {
        if ( ch >= 'A' && ch <= 'Z' ) {
            words += '_';
        }
        words += static_cast<char>( change( ch ) );
    }
    return words;
}
std::string SortName( const Type &type )
{
    return "TOLMO" + Words( type.name, toupper );
}
std::string Path( const Type &type )
{
    return "source/tolmo/tolmo" + Words( type.name, tolower ) + ".cpp";
}
bool Lacks( const Type &type, char function )
{
    const auto found = missing.find( SortName( type ) );
    return found != missing.end() && found->second.find( function ) != std::string::npos;
}

/** Two objects of one text differ in this one type: its method compares by the string object. */
bool TwinsDiffer( const Type &type )
{
    return Lacks( type, 'c' ) || type.name == "HeaderRack";
}
/** Copies differ from their source in this one type: they lack its parameters, and cannot be written without them. */
bool CopiesLackParams( const Type &type )
{
    return type.name == "HeaderSubscriptionState";
}

class ObjectProtocol : public test::TolmoFixture {};

/** Every type that a header of the library declares stands in the table, and no other. */
TEST_F( ObjectProtocol, TheTableIsWhole )
{
    std::set<std::string> declared;
    const std::string begin = "KoSort tolmo";
    const std::string end = "Sort( void )";
    for ( const auto &entry : std::filesystem::directory_iterator( TEST_DATA "/../source/tolmo" ) ) {
        std::ifstream file( entry.path() );
        for ( std::string line; entry.path().extension() == ".h" && std::getline( file, line ); ) {
            const size_t name = line.find( begin );
            if ( name != std::string::npos && line.find( end ) != std::string::npos ) {
                declared.insert( line.substr( name + begin.size(), line.find( end ) - name - begin.size() ) );
            }
        }
    }
    std::set<std::string> tested;
    for ( const Type &type : types ) {
        EXPECT_TRUE( tested.insert( type.name ).second ) << type.name;
    }
    EXPECT_EQ( tested, declared );
    EXPECT_EQ( tested.size(), 82u );
}

TEST_F( ObjectProtocol, SortRecord )
{
    std::set<KoSort> sorts;
    for ( const Type &type : types ) {
        const KoSort sort = type.sort();
        EXPECT_TRUE( sorts.insert( sort ).second ) << type.name;
        intptr_t words[20];
        static_assert( sizeof *sort == sizeof words );
        memcpy( words, sort, sizeof words );
        const intptr_t frame[] = { 1, 0, -1, 1, 0, 0, 0, 0, 0, 0 };
        EXPECT_EQ( memcmp( words, frame, sizeof frame ), 0 ) << type.name;
        EXPECT_EQ( words[10], reinterpret_cast<intptr_t>( &tolmo___module ) ) << type.name;
        EXPECT_EQ( reinterpret_cast<const char *>( words[11] ), SortName( type ) );
        EXPECT_EQ( words[12] == 0, Lacks( type, 'f' ) ) << type.name;
        EXPECT_EQ( words[13] == 0, Lacks( type, 'c' ) ) << type.name;
        EXPECT_EQ( words[14] == 0, Lacks( type, 's' ) ) << type.name;
        for ( size_t i = 15; i < 20; ++i ) {
            EXPECT_EQ( words[i], 0 ) << type.name;
        }
    }
}

TEST_F( ObjectProtocol, TheSamplesAreGood )
{
    for ( const Type &type : types ) {
        EXPECT_FALSE( test::IsNull( type.create() ) ) << type.name;
    }
}

TEST_F( ObjectProtocol, Handles )
{
    for ( const Type &type : types ) {
        const auto object = Own( type.create() );
        const KoObj x = object.Get();
        EXPECT_EQ( koObjSort( x ), type.sort() ) << type.name;
        EXPECT_EQ( test::Count( x ), 1 ) << type.name;
        EXPECT_EQ( type.obj( x ), x );
        EXPECT_EQ( type.obj( nullptr ), nullptr );
        EXPECT_EQ( type.from( x ), x );
        EXPECT_EQ( type.from( nullptr ), nullptr );
        EXPECT_EQ( test::Count( x ), 1 ) << type.name; // casts take no reference
        EXPECT_EQ( type.retain( x ), x );
        EXPECT_EQ( test::Count( x ), 2 );
        type.release( x );
        EXPECT_EQ( test::Count( x ), 1 );

        const auto other = Str( "x" );
        const std::string path = Path( type );
        EXPECT_ABORT_MESSAGE( type.from( koStringObj( other.Get() ) ), "stdfunc from", path,
                              "!obj || koObjSort(obj)==&tolmo___sort_" + SortName( type ) );
        EXPECT_ABORT_MESSAGE( type.retain( nullptr ), "stdfunc retain", path, "obj" );
        EXPECT_ABORT_MESSAGE( type.release( nullptr ), "stdfunc release", path, "obj" );
        EXPECT_ABORT_MESSAGE( type.compare( nullptr, x ), "stdfunc compare a", path, "objA" );
        EXPECT_ABORT_MESSAGE( type.compare( x, nullptr ), "stdfunc compare b", path, "objB" );
        EXPECT_ABORT_MESSAGE( type.compare( nullptr, nullptr ), "stdfunc compare a", path, "objA" );
        EXPECT_ABORT_MESSAGE( type.toString( nullptr ), "stdfunc tostring", path, "obj" );
        if ( type.createFrom ) {
            EXPECT_ABORT( type.createFrom( nullptr ), path, "source" );
        }
    }
}

TEST_F( ObjectProtocol, CompareAndToString )
{
    for ( const Type &type : types ) {
        const auto object = Own( type.create() );
        const auto twin = Own( type.create() );
        EXPECT_EQ( type.compare( object.Get(), object.Get() ), 0 ) << type.name;
        EXPECT_TRUE( type.equals( object.Get(), object.Get() ) ) << type.name;
        // Without a function of its own a sort compares by identity.
        EXPECT_EQ( type.equals( object.Get(), twin.Get() ), !TwinsDiffer( type ) ) << type.name;
        EXPECT_EQ( type.compare( object.Get(), twin.Get() ) == 0, !TwinsDiffer( type ) ) << type.name;
        // Equals has no abort of its own, and takes what the runtime takes.
        EXPECT_TRUE( type.equals( nullptr, nullptr ) );
        EXPECT_FALSE( type.equals( object.Get(), nullptr ) );
        EXPECT_FALSE( type.equals( nullptr, object.Get() ) );

        const std::string text = test::Take( type.toString( object.Get() ) );
        EXPECT_EQ( text == "<" + SortName( type ) + ">", Lacks( type, 's' ) ) << type.name;
        EXPECT_EQ( text, test::Take( type.toString( twin.Get() ) ) );
        EXPECT_EQ( test::Count( object.Get() ), 1 ) << type.name;
    }
}

TEST_F( ObjectProtocol, CreateFrom )
{
    for ( const Type &type : types ) {
        if ( !type.createFrom ) {
            EXPECT_EQ( type.name, "MessageStreamDecoder" );
            continue;
        }
        auto source = Own( type.create() );
        const std::string text = test::Take( type.toString( source.Get() ) );
        const auto copy = Own( type.createFrom( source.Get() ) );
        EXPECT_NE( copy.Get(), source.Get() );
        EXPECT_EQ( koObjSort( copy.Get() ), type.sort() );
        EXPECT_EQ( test::Count( copy.Get() ), 1 );
        EXPECT_EQ( test::Count( source.Get() ), 1 );
        EXPECT_EQ( type.equals( copy.Get(), source.Get() ), !Lacks( type, 'c' ) && !CopiesLackParams( type ) )
            << type.name;
        source = {}; // the copy stands by itself
        if ( !CopiesLackParams( type ) ) {
            EXPECT_EQ( test::Take( type.toString( copy.Get() ) ), text ) << type.name;
        }
    }
}

/** The functions of a sort know their sort, and refuse null. */
TEST_F( ObjectProtocol, SortFunctions )
{
    for ( const Type &type : types ) {
        const KoSort sort = type.sort();
        const auto object = Own( type.create() );
        const auto string = Str( "x" );
        const KoObj other = koStringObj( string.Get() );
        const std::string path = Path( type );
        const std::string isSort = "!obj || koObjSort(obj)==&tolmo___sort_" + SortName( type );
        if ( sort->free ) {
            EXPECT_ABORT_MESSAGE( sort->free( other ), "stdfunc from", path, isSort );
            const auto ending = test::RunInChild( [&] { sort->free( nullptr ); } );
            EXPECT_TRUE( ending.aborted && ending.line.find( path + ":" ) == 0 ) << type.name << ending.line;
        }
        if ( sort->compare ) {
            EXPECT_ABORT_MESSAGE( sort->compare( other, object.Get() ), "stdfunc from", path, isSort );
            EXPECT_ABORT_MESSAGE( sort->compare( object.Get(), other ), "stdfunc from", path, isSort );
            const auto first = test::RunInChild( [&] { sort->compare( nullptr, object.Get() ); } );
            const auto second = test::RunInChild( [&] { sort->compare( object.Get(), nullptr ); } );
            const auto both = test::RunInChild( [&] { sort->compare( nullptr, nullptr ); } );
            EXPECT_TRUE( first.aborted && first.line.find( path + ":" ) == 0 ) << type.name << first.line;
            EXPECT_TRUE( second.aborted && second.line.find( path + ":" ) == 0 ) << type.name << second.line;
            EXPECT_NE( first.line, second.line ) << type.name;
            EXPECT_EQ( first.line, both.line ) << type.name;
        }
    }
}

/** An ended object holds all ones where it held an object, so that whoever uses it later ends at once. */
TEST_F( ObjectProtocol, Poison )
{
    // The block must outlive the free function: under a sort without one, it goes back by itself.
    static const ko___Sort ended = KO_SORT( &tolmo___module, "ENDED", nullptr, nullptr, nullptr );
    size_t poisoned = 0;
    for ( const Type &type : types ) {
        if ( !type.sort()->free ) {
            continue;
        }
        const KoObj object = type.create();
        intptr_t field = 0; // the first field
        memcpy( &field, object + 1, sizeof field );
        type.sort()->free( object );
        intptr_t after = 0;
        memcpy( &after, object + 1, sizeof after );
        constexpr intptr_t noPointer = 1 << 16; // numbers of the samples are smaller
        if ( field > noPointer ) {
            EXPECT_EQ( after, -1 ) << type.name;
            ++poisoned;
        } else if ( field != 0 ) {
            EXPECT_EQ( after, field ) << type.name; // a number stays
        }
        object->sort = &ended;
        koObjRelease( object );
    }
    EXPECT_GT( poisoned, 60u );
}

} // namespace
