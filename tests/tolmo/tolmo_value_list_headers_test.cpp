/* Headers that are lists of values: Accept, Accept-Encoding, Alert-Info, Call-Info, Diversion, Error-Info, History-Info. */
#include "tolmo_type_test.h"

namespace {

using test::Own;
using test::Str;
using Lines = std::vector<std::string>;

/** The functions of a list header, as members of a structure, and three items in the form that encoders write. */
#define TEST_VALUE_LIST_FUNCTIONS( Type, unit )                                                                        \
    TEST_STANDARD_FUNCTIONS( Header##Type )                                                                            \
    using Value = Tolmo##Type;                                                                                         \
    static constexpr auto Create = tolmoHeader##Type##Create;                                                          \
    static constexpr auto Encode = tolmoHeader##Type##Encode;                                                          \
    static constexpr auto TryDecode = tolmoHeader##Type##TryDecode;                                                    \
    static constexpr auto EncodeToMessage = tolmoHeader##Type##EncodeToMessage;                                        \
    static constexpr auto TryDecodeFromMessage = tolmoHeader##Type##TryDecodeFromMessage;                              \
    static constexpr auto PresentInMessage = tolmoHeader##Type##PresentInMessage;                                      \
    static constexpr auto RemoveFromMessage = tolmoHeader##Type##RemoveFromMessage;                                    \
    static constexpr auto Store = tolmoHeader##Type##Store;                                                            \
    static constexpr auto TryRestore = tolmoHeader##Type##TryRestore;                                                  \
    static constexpr auto Length = tolmoHeader##Type##Type##sLength;                                                   \
    static constexpr auto TryDecodeAt = tolmoHeader##Type##TryDecode##Type##At;                                        \
    static constexpr auto SetAt = tolmoHeader##Type##Set##Type##At;                                                    \
    static constexpr auto Insert = tolmoHeader##Type##Insert##Type;                                                    \
    static constexpr auto Prepend = tolmoHeader##Type##Prepend##Type;                                                  \
    static constexpr auto Append = tolmoHeader##Type##Append##Type;                                                    \
    static constexpr auto DelAt = tolmoHeader##Type##Del##Type##At;                                                    \
    static constexpr auto Clear = tolmoHeader##Type##Clear##Type##s;                                                   \
    static constexpr auto EncodeValue = tolmo___##Type##Encode;                                                        \
    static constexpr auto TryDecodeValue = tolmo___##Type##TryDecode;                                                  \
    static constexpr char path[] = "source/tolmo/tolmo_header_" unit ".cpp";                                           \
    static constexpr char valuePath[] = "source/tolmo/tolmo_" unit ".cpp";                                             \
    static constexpr char otherName[] = "tolmoMessageHeaderNameEquals( header, tolmo___Kos" #Type " )";

struct Accept {
    TEST_VALUE_LIST_FUNCTIONS( Accept, "accept" )
    static constexpr char sort[] = "TOLMO_HEADER_ACCEPT";
    static constexpr char name[] = "Accept";
    static constexpr char handle[] = "accept";
    static constexpr const char *items[] = { "text/plain", "text/*;q=0.500", "*/*;x=1" };
};

struct AcceptEncoding {
    TEST_VALUE_LIST_FUNCTIONS( AcceptEncoding, "accept_encoding" )
    static constexpr char sort[] = "TOLMO_HEADER_ACCEPT_ENCODING";
    static constexpr char name[] = "Accept-Encoding";
    static constexpr char handle[] = "acceptEncoding";
    static constexpr const char *items[] = { "gzip", "identity;q=0.500;x=\"a,b\"", "*" };
};

struct AlertInfo {
    TEST_VALUE_LIST_FUNCTIONS( AlertInfo, "alert_info" )
    static constexpr char sort[] = "TOLMO_HEADER_ALERT_INFO";
    static constexpr char name[] = "Alert-Info";
    static constexpr char handle[] = "alertInfo";
    static constexpr const char *items[] = { "<sip:a>", "<sip:b,c;d>;x=\"a,b\"", "<urn:c>;x" };
};

struct CallInfo {
    TEST_VALUE_LIST_FUNCTIONS( CallInfo, "call_info" )
    static constexpr char sort[] = "TOLMO_HEADER_CALL_INFO";
    static constexpr char name[] = "Call-Info";
    static constexpr char handle[] = "callInfo";
    static constexpr const char *items[] = { "<sip:a>", "<sip:b,c;d>;purpose=icon;x=\"a,b\"", "<urn:c>;x" };
};

struct Diversion {
    TEST_VALUE_LIST_FUNCTIONS( Diversion, "diversion" )
    static constexpr char sort[] = "TOLMO_HEADER_DIVERSION";
    static constexpr char name[] = "Diversion";
    static constexpr char handle[] = "diversion";
    static constexpr const char *items[] = { "<sip:a>", "\"A, B\" <sip:b,c;d>;counter=1;x=\"a,b\"",
                                             "<tel:c>;reason=r" };
};

struct ErrorInfo {
    TEST_VALUE_LIST_FUNCTIONS( ErrorInfo, "error_info" )
    static constexpr char sort[] = "TOLMO_HEADER_ERROR_INFO";
    static constexpr char name[] = "Error-Info";
    static constexpr char handle[] = "errorInfo";
    static constexpr const char *items[] = { "<sip:a>", "<sip:b,c;d>;x=\"a,b\"", "<urn:c>;x" };
};

struct HistoryInfo {
    TEST_VALUE_LIST_FUNCTIONS( HistoryInfo, "history_info" )
    static constexpr char sort[] = "TOLMO_HEADER_HISTORY_INFO";
    static constexpr char name[] = "History-Info";
    static constexpr char handle[] = "hi";
    static constexpr const char *items[] = { "<sip:a>;index=1", "\"A, B\" <sip:b,c;d>;index=1.1;rc=1;x=\"a,b\"",
                                             "<tel:c>;index=2" };
};

template <class Type>
using Ref = KoRef<typename Type::Handle>;

template <class Type>
KoRef<typename Type::Value> Value( std::string_view text )
{
    return test::DecodeWith( Type::TryDecodeValue, text );
}

/** A list with the first `count` items of a type. */
template <class Type>
Ref<Type> List( size_t count )
{
    auto hdr = Own( Type::Create() );
    for ( size_t i = 0; i < count; ++i ) {
        Type::Append( hdr.Address(), Value<Type>( Type::items[i] ).Get() );
    }
    return hdr;
}

/** The items of a list, as its raw header has them. */
template <class Type>
Lines Items( const Ref<Type> &hdr )
{
    return test::LinesOf( Own( Type::Encode( hdr.Get() ) ).Get() );
}

template <class Type>
Ref<Type> DecodeLines( const Lines &lines )
{
    return Own( Type::TryDecode( test::NewHeader( Type::name, lines ).Get() ) );
}

/** Lines with the items of a type in the places of A, B and C. */
template <class Type>
Lines Filled( const Lines &lines )
{
    Lines filled;
    for ( const auto &line : lines ) {
        filled.emplace_back();
        for ( const char ch : line ) {
            if ( ch >= 'A' && ch <= 'C' ) {
                filled.back() += Type::items[ch - 'A'];
            } else {
                filled.back() += ch;
            }
        }
    }
    return filled;
}

/** A request with a raw header of the type. */
template <class Type>
KoRef<TolmoMessage> RequestWith( const Lines &lines )
{
    auto msg = test::ReceivedRequest( "" );
    tolmoMessageSetHeader( msg.Address(), test::NewHeader( Type::name, lines ).Get() );
    return msg;
}

/** A request as it is received, with lines of the type among others: what stands behind the name. */
template <class Type>
KoRef<TolmoMessage> Received( const Lines &lines )
{
    std::string text;
    for ( const auto &line : Filled<Type>( lines ) ) {
        text += Type::name;
        text += line;
        text += "\r\nSubject: x\r\n";
    }
    return test::ReceivedRequest( text );
}

struct Names {
    template <class Type>
    static std::string GetName( int )
    {
        return Type::sort;
    }
};

// What all lists share, the decoder of lines aside.

template <class Type>
class ValueList : public test::TolmoFixture {
};

using AllLists = testing::Types<Accept, AcceptEncoding, AlertInfo, CallInfo, Diversion, ErrorInfo, HistoryInfo>;
TYPED_TEST_SUITE( ValueList, AllLists, Names );

TYPED_TEST( ValueList, StandardOperations )
{
    const auto hdr = List<TypeParam>( 3 );
    test::ExpectStandardOperations<TypeParam>( hdr.Get(), TypeParam::sort, TypeParam::path, "hdr", "hdrA", "hdrB" );
}

TYPED_TEST( ValueList, Create )
{
    const auto hdr = Own( TypeParam::Create() );
    EXPECT_EQ( TypeParam::Length( hdr.Get() ), 0 );
    const auto header = Own( TypeParam::Encode( hdr.Get() ) );
    EXPECT_EQ( test::NameOf( header.Get() ), TypeParam::name );
    EXPECT_EQ( test::LinesOf( header.Get() ), Lines() );
}

TYPED_TEST( ValueList, Changing )
{
    const std::string a = TypeParam::items[0];
    const std::string b = TypeParam::items[1];
    const std::string c = TypeParam::items[2];
    auto hdr = Own( TypeParam::Create() );
    const auto object = hdr.Get();
    TypeParam::Append( hdr.Address(), Value<TypeParam>( b ).Get() );
    TypeParam::Prepend( hdr.Address(), Value<TypeParam>( a ).Get() );
    TypeParam::Insert( hdr.Address(), 2, Value<TypeParam>( a ).Get() ); // at the length: behind all
    TypeParam::Insert( hdr.Address(), 0, Value<TypeParam>( c ).Get() );
    EXPECT_EQ( Items<TypeParam>( hdr ), ( Lines{ c, a, b, a } ) );
    TypeParam::SetAt( hdr.Address(), 3, Value<TypeParam>( c ).Get() );
    TypeParam::DelAt( hdr.Address(), 0 );
    EXPECT_EQ( Items<TypeParam>( hdr ), ( Lines{ a, b, c } ) );
    EXPECT_EQ( TypeParam::Length( hdr.Get() ), 3 );
    EXPECT_EQ( hdr.Get(), object ); // the only holder: no copy
    TypeParam::Clear( hdr.Address() );
    EXPECT_EQ( Items<TypeParam>( hdr ), Lines() );
    EXPECT_EQ( hdr.Get(), object );
}

TYPED_TEST( ValueList, TryDecodeAt )
{
    const auto hdr = List<TypeParam>( 3 );
    for ( KoInt i = 0; i < 3; ++i ) {
        const auto value = Own( TypeParam::TryDecodeAt( hdr.Get(), i ) );
        EXPECT_EQ( test::Take( TypeParam::EncodeValue( value.Get() ) ), TypeParam::items[i] );
    }
    EXPECT_NE( Own( TypeParam::TryDecodeAt( hdr.Get(), 0 ) ).Get(),
               Own( TypeParam::TryDecodeAt( hdr.Get(), 1 ) ).Get() );
}

TYPED_TEST( ValueList, CopyOnWrite )
{
    using List = Ref<TypeParam>;
    const auto value = Value<TypeParam>( TypeParam::items[0] );
    const std::function<void( List & )> changes[] = {
        [&]( List &list ) { TypeParam::SetAt( list.Address(), 1, value.Get() ); },
        [&]( List &list ) { TypeParam::Insert( list.Address(), 1, value.Get() ); },
        [&]( List &list ) { TypeParam::Prepend( list.Address(), value.Get() ); },
        [&]( List &list ) { TypeParam::Append( list.Address(), value.Get() ); },
        [&]( List &list ) { TypeParam::DelAt( list.Address(), 0 ); },
        [&]( List &list ) { TypeParam::Clear( list.Address() ); }
    };
    for ( const auto &change : changes ) {
        const auto hdr = ::List<TypeParam>( 3 );
        const auto earlier = Items<TypeParam>( hdr );
        auto shared = List::Share( hdr.Get() );
        change( shared );
        EXPECT_NE( shared.Get(), hdr.Get() );
        EXPECT_NE( Items<TypeParam>( shared ), earlier );
        EXPECT_EQ( Items<TypeParam>( hdr ), earlier );
        // A raw header that was made before has its lines still.
        auto changed = List::Share( hdr.Get() );
        const auto header = Own( TypeParam::Encode( hdr.Get() ) );
        change( changed );
        EXPECT_EQ( test::LinesOf( header.Get() ), earlier );
    }
}

TYPED_TEST( ValueList, Compare )
{
    const auto less = []( const Ref<TypeParam> &a, const Ref<TypeParam> &b ) {
        return TypeParam::Compare( a.Get(), b.Get() ) < 0 && TypeParam::Compare( b.Get(), a.Get() ) > 0;
    };
    EXPECT_TRUE( TypeParam::Equals( List<TypeParam>( 3 ).Get(), List<TypeParam>( 3 ).Get() ) );
    EXPECT_TRUE( less( List<TypeParam>( 0 ), List<TypeParam>( 1 ) ) );
    EXPECT_TRUE( less( List<TypeParam>( 2 ), List<TypeParam>( 3 ) ) );
    auto turned = List<TypeParam>( 0 ); // the order counts
    TypeParam::Append( turned.Address(), Value<TypeParam>( TypeParam::items[1] ).Get() );
    TypeParam::Append( turned.Address(), Value<TypeParam>( TypeParam::items[0] ).Get() );
    EXPECT_FALSE( TypeParam::Equals( turned.Get(), List<TypeParam>( 2 ).Get() ) );
}

TYPED_TEST( ValueList, ToString )
{
    EXPECT_EQ( test::Take( TypeParam::ToString( List<TypeParam>( 0 ).Get() ) ), "" );
    EXPECT_EQ( test::Take( TypeParam::ToString( List<TypeParam>( 1 ).Get() ) ), TypeParam::items[0] );
    EXPECT_EQ( test::Take( TypeParam::ToString( List<TypeParam>( 2 ).Get() ) ), Filled<TypeParam>( { "[A, B]" } )[0] );
}

TYPED_TEST( ValueList, Messages )
{
    auto msg = test::ReceivedRequest( "" );
    EXPECT_FALSE( TypeParam::PresentInMessage( msg.Get() ) );
    EXPECT_TRUE( test::IsNull( TypeParam::TryDecodeFromMessage( msg.Get() ) ) );
    const auto earlier = KoRef<TolmoMessage>::Share( msg.Get() );
    TypeParam::EncodeToMessage( List<TypeParam>( 2 ).Get(), msg.Address() );
    EXPECT_TRUE( TypeParam::PresentInMessage( msg.Get() ) );
    EXPECT_FALSE( TypeParam::PresentInMessage( earlier.Get() ) ); // which another one holds
    const auto header = Own( tolmoMessageHeaderCstr( msg.Get(), TypeParam::name, -1 ) );
    EXPECT_EQ( test::LinesOf( header.Get() ), ( Lines{ TypeParam::items[0], TypeParam::items[1] } ) );

    // A list without items is in the message, but is not decoded.
    TypeParam::EncodeToMessage( List<TypeParam>( 0 ).Get(), msg.Address() );
    EXPECT_TRUE( TypeParam::PresentInMessage( msg.Get() ) );
    EXPECT_TRUE( test::IsNull( TypeParam::TryDecodeFromMessage( msg.Get() ) ) );

    const auto with = KoRef<TolmoMessage>::Share( msg.Get() );
    TypeParam::RemoveFromMessage( msg.Address() );
    EXPECT_FALSE( TypeParam::PresentInMessage( msg.Get() ) );
    EXPECT_TRUE( TypeParam::PresentInMessage( with.Get() ) );
    TypeParam::RemoveFromMessage( msg.Address() ); // what is not there, too
}

TYPED_TEST( ValueList, NoLines )
{
    EXPECT_FALSE( DecodeLines<TypeParam>( {} ) );
    const auto store = Own( TypeParam::Store( List<TypeParam>( 0 ).Get() ) );
    EXPECT_TRUE( test::IsNull( TypeParam::TryRestore( store.Get() ) ) );
}

TYPED_TEST( ValueList, EmptyLines )
{
    for ( const Lines &lines : { Lines{ "" }, Lines{ "", "" } } ) {
        const auto hdr = DecodeLines<TypeParam>( lines );
        ASSERT_TRUE( hdr );
        EXPECT_EQ( TypeParam::Length( hdr.Get() ), 0 );
        const auto fromMessage = Own( TypeParam::TryDecodeFromMessage( RequestWith<TypeParam>( lines ).Get() ) );
        ASSERT_TRUE( fromMessage );
        EXPECT_EQ( TypeParam::Length( fromMessage.Get() ), 0 );
    }
    const auto hdr = Own( TypeParam::TryDecodeFromMessage( Received<TypeParam>( { ":" } ).Get() ) );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( TypeParam::Length( hdr.Get() ), 0 );
    EXPECT_FALSE( DecodeLines<TypeParam>( { " " } ) );
    EXPECT_FALSE( DecodeLines<TypeParam>( { "," } ) );
}

TYPED_TEST( ValueList, Preconditions )
{
    const char *const path = TypeParam::path;
    auto hdr = List<TypeParam>( 2 );
    const auto value = Value<TypeParam>( TypeParam::items[0] );
    typename TypeParam::Handle none = nullptr;
    TolmoMessage noMessage = nullptr;
    auto msg = test::ReceivedRequest( "" );
    const auto other = test::NewHeader( "Subject", {} );

    EXPECT_ABORT( TypeParam::Encode( nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::TryDecode( other.Get() ), path, TypeParam::otherName );
    EXPECT_ABORT( TypeParam::EncodeToMessage( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::EncodeToMessage( hdr.Get(), nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::EncodeToMessage( hdr.Get(), &noMessage ), path, "*msg" );
    EXPECT_ABORT( TypeParam::TryDecodeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::PresentInMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::RemoveFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::RemoveFromMessage( &noMessage ), path, "*msg" );
    EXPECT_ABORT( TypeParam::Store( nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::TryRestore( nullptr ), path, "store" );

    EXPECT_ABORT( TypeParam::Length( nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::TryDecodeAt( nullptr, 0 ), path, "hdr" );
    EXPECT_ABORT( TypeParam::SetAt( nullptr, 0, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::SetAt( &none, 0, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Insert( nullptr, 0, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Insert( &none, 0, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Prepend( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Prepend( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Append( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Append( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::DelAt( nullptr, 0 ), path, "hdr" );
    EXPECT_ABORT( TypeParam::DelAt( &none, 0 ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Clear( nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Clear( &none ), path, "*hdr" );

    // The value is the encoder's to test.
    EXPECT_ABORT( TypeParam::SetAt( hdr.Address(), 9, nullptr ), TypeParam::valuePath, TypeParam::handle );
    EXPECT_ABORT( TypeParam::Insert( hdr.Address(), 9, nullptr ), TypeParam::valuePath, TypeParam::handle );
    EXPECT_ABORT( TypeParam::Prepend( hdr.Address(), nullptr ), TypeParam::valuePath, TypeParam::handle );
    EXPECT_ABORT( TypeParam::Append( hdr.Address(), nullptr ), TypeParam::valuePath, TypeParam::handle );

    // The index is the runtime's.
    const char vector[] = "source/runtime/ko_vector.cpp";
    for ( const KoInt index : { -1, 2 } ) {
        EXPECT_ABORT( TypeParam::TryDecodeAt( hdr.Get(), index ), vector, "index >= 0 && index < koVectorLength( v )" );
        EXPECT_ABORT( TypeParam::SetAt( hdr.Address(), index, value.Get() ), vector,
                      "index >= 0 && index < koVectorLength( *v )" );
        EXPECT_ABORT( TypeParam::DelAt( hdr.Address(), index ), vector, "index >= 0 && index < koVectorLength( *v )" );
    }
    EXPECT_ABORT( TypeParam::Insert( hdr.Address(), -1, value.Get() ), vector,
                  "index >= 0 && index <= koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::Insert( hdr.Address(), 3, value.Get() ), vector,
                  "index >= 0 && index <= koVectorLength( *v )" );
}

// The decoder of lines, of all lists but Accept.

template <class Type>
class ValueListLines : public test::TolmoFixture {
};

using DecodingLists = testing::Types<AcceptEncoding, AlertInfo, CallInfo, Diversion, ErrorInfo, HistoryInfo>;
TYPED_TEST_SUITE( ValueListLines, DecodingLists, Names );

TYPED_TEST( ValueListLines, Rows )
{
    // A, B and C stand for the items of the type.
    const struct {
        Lines lines;
        Lines items;
    } good[] = { { { "A" }, { "A" } },
                 { { "A,B" }, { "A", "B" } },
                 { { "A,\t B" }, { "A", "B" } }, // whitespace behind a comma is none of the items'
                 { { "A,B", "C" }, { "A", "B", "C" } },
                 { { "", "A", "", "B,C", "" }, { "A", "B", "C" } }, // an empty line adds nothing
                 { { "A", "A", "A,A" }, { "A", "A", "A", "A" } },
                 { { "A ; X = y , C" }, { "A ; X = y", "C" } } }; // as it came in
    for ( const auto &row : good ) {
        const auto lines = Filled<TypeParam>( row.lines );
        const auto hdr = DecodeLines<TypeParam>( lines );
        ASSERT_TRUE( hdr ) << testing::PrintToString( lines );
        EXPECT_EQ( Items<TypeParam>( hdr ), Filled<TypeParam>( row.items ) ); // each on a line of its own
        EXPECT_EQ( TypeParam::Length( hdr.Get() ), static_cast<KoInt>( row.items.size() ) );
        const auto fromMessage = Own( TypeParam::TryDecodeFromMessage( RequestWith<TypeParam>( lines ).Get() ) );
        EXPECT_TRUE( TypeParam::Equals( fromMessage.Get(), hdr.Get() ) );
        const auto store = Own( TypeParam::Store( hdr.Get() ) );
        EXPECT_TRUE( TypeParam::Equals( Own( TypeParam::TryRestore( store.Get() ) ).Get(), hdr.Get() ) );
    }
    const Lines bad[] = { { "A," },     { ",A" },   { "A,,B" },   { "A, ,B" },  { "A;" },      { "A;x " },
                          { " ," },     { "A,B," }, { "\u00FC" }, { "A", "," }, { "A,", "B" }, { "A", "B;x=" },
                          { "A;x=\"" }, { "(" },    { "A x" },    { "A;x (y)" } };
    for ( const auto &row : bad ) {
        const auto lines = Filled<TypeParam>( row );
        EXPECT_FALSE( DecodeLines<TypeParam>( lines ) ) << testing::PrintToString( lines );
        EXPECT_TRUE( test::IsNull( TypeParam::TryDecodeFromMessage( RequestWith<TypeParam>( lines ).Get() ) ) );
    }
}

TYPED_TEST( ValueListLines, Received )
{
    const auto hdr =
        Own( TypeParam::TryDecodeFromMessage( Received<TypeParam>( { ": A,\r\n B ", ":", " : A" } ).Get() ) );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( Items<TypeParam>( hdr ), Filled<TypeParam>( { "A", "B", "A" } ) );
    const auto bad = Received<TypeParam>( { ": A", ": A," } );
    EXPECT_TRUE( TypeParam::PresentInMessage( bad.Get() ) );
    EXPECT_TRUE( test::IsNull( TypeParam::TryDecodeFromMessage( bad.Get() ) ) );
}

// Spelling counts: items are compared as they came in.
TYPED_TEST( ValueListLines, ComparesTexts )
{
    const auto one = []( const Lines &lines ) { return DecodeLines<TypeParam>( Filled<TypeParam>( lines ) ); };
    EXPECT_TRUE( TypeParam::Equals( one( { "A;x" } ).Get(), one( { "", "A;x" } ).Get() ) );
    EXPECT_FALSE( TypeParam::Equals( one( { "A;x" } ).Get(), one( { "A ;x" } ).Get() ) );
    EXPECT_FALSE( TypeParam::Equals( one( { "A;x" } ).Get(), one( { "A;X" } ).Get() ) );
}

TYPED_TEST( ValueListLines, Huge )
{
    std::string line = TypeParam::items[1];
    for ( int i = 1; i < 20000; ++i ) {
        line += ", ";
        line += TypeParam::items[1];
    }
    const auto hdr = DecodeLines<TypeParam>( { line, line } );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( TypeParam::Length( hdr.Get() ), 40000 );
    EXPECT_FALSE( DecodeLines<TypeParam>( { line, line + "," } ) );
}

// One by one.

class ValueLists : public test::TolmoFixture {};

// The decoder refuses each line that holds an item, also those of the encoder: that is meant.
TEST_F( ValueLists, AcceptRefusesItsOwnLines )
{
    for ( const char *const line :
          { "text/plain", "text/plain;q=1", "*/*", "*/*;a", "a/b;x;y", "a/b,c/d", "a/b;x,;x", ",", "x" } ) {
        EXPECT_FALSE( DecodeLines<Accept>( { line } ) ) << line;
        EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryDecodeFromMessage( RequestWith<Accept>( { line } ).Get() ) ) );
        EXPECT_FALSE( DecodeLines<Accept>( { "", line } ) ) << line;
    }
    const auto hdr = List<Accept>( 3 );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryDecode( Own( tolmoHeaderAcceptEncode( hdr.Get() ) ).Get() ) ) );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptTryRestore( Own( tolmoHeaderAcceptStore( hdr.Get() ) ).Get() ) ) );
}

// Only the grammar of the list tests an item; the value's decoder may refuse what it took.
TEST_F( ValueLists, ItemsThatDoNotDecode )
{
    const auto history = DecodeLines<HistoryInfo>( { "<sip:a>,<sip:b>;index=01, <sip:c>;index=1" } );
    ASSERT_TRUE( history );
    EXPECT_TRUE( test::IsNull( tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( history.Get(), 0 ) ) );
    EXPECT_TRUE( test::IsNull( tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( history.Get(), 1 ) ) );
    EXPECT_FALSE( test::IsNull( tolmoHeaderHistoryInfoTryDecodeHistoryInfoAt( history.Get(), 2 ) ) );
    const auto diversion = DecodeLines<Diversion>( { "<sip:a>;counter=123" } );
    ASSERT_TRUE( diversion );
    EXPECT_TRUE( test::IsNull( tolmoHeaderDiversionTryDecodeDiversionAt( diversion.Get(), 0 ) ) );
    const auto encoding = DecodeLines<AcceptEncoding>( { "gzip;q=1.5" } );
    ASSERT_TRUE( encoding );
    EXPECT_TRUE( test::IsNull( tolmoHeaderAcceptEncodingTryDecodeAcceptEncodingAt( encoding.Get(), 0 ) ) );
}

TEST_F( ValueLists, AddressesAreBracketed )
{
    EXPECT_FALSE( DecodeLines<AlertInfo>( { "sip:a" } ) );
    EXPECT_FALSE( DecodeLines<AlertInfo>( { "A <sip:a>" } ) );
    EXPECT_FALSE( DecodeLines<CallInfo>( { "\"A\" <sip:a>" } ) );
    EXPECT_FALSE( DecodeLines<ErrorInfo>( { "sip:a;x" } ) );
    EXPECT_FALSE( DecodeLines<HistoryInfo>( { "sip:a;index=1" } ) );
    EXPECT_FALSE( DecodeLines<Diversion>( { "sip:a" } ) ); // which the value's decoder takes
    // The blank behind a bracket is the item's.
    EXPECT_EQ( Items<Diversion>( DecodeLines<Diversion>( { "<sip:a> , <sip:b>" } ) ),
               ( Lines{ "<sip:a> ", "<sip:b>" } ) );
    EXPECT_EQ( Items<AlertInfo>( DecodeLines<AlertInfo>( { "<sip:a> , <sip:b>" } ) ),
               ( Lines{ "<sip:a> ", "<sip:b>" } ) );
}

// A word in quotes that looks like another diversion goes out as one.
TEST_F( ValueLists, DiversionPrintsWordsRaw )
{
    const auto received = DecodeLines<Diversion>( { "<sip:a>;reason=\"x, <sip:evil>;counter=9\"" } );
    ASSERT_EQ( tolmoHeaderDiversionDiversionsLength( received.Get() ), 1 );
    auto hdr = List<Diversion>( 0 );
    tolmoHeaderDiversionAppendDiversion( hdr.Address(),
                                         Own( tolmoHeaderDiversionTryDecodeDiversionAt( received.Get(), 0 ) ).Get() );
    EXPECT_EQ( Items<Diversion>( hdr ), Lines{ "<sip:a>;reason=x, <sip:evil>;counter=9" } );
}

// A word with a line end is stored, and is found when the header is encoded. A lone CR or LF ends no line.
TEST_F( ValueLists, DiversionTestsLines )
{
    const char header[] = "source/tolmo/tolmo_message_header.cpp";
    auto diversion = Value<Diversion>( "<sip:a>" );
    tolmoDiversionSetScreen( diversion.Address(), Str( "a\r\nevil: x" ).Get() );
    auto hdr = List<Diversion>( 2 );
    tolmoHeaderDiversionAppendDiversion( hdr.Address(), diversion.Get() );
    EXPECT_EQ( tolmoHeaderDiversionDiversionsLength( hdr.Get() ), 3 );
    auto msg = test::ReceivedRequest( "" );
    EXPECT_ABORT( tolmoHeaderDiversionEncode( hdr.Get() ), header, "tolmoMessageHeaderLineOk( value )" );
    EXPECT_ABORT( tolmoHeaderDiversionEncodeToMessage( hdr.Get(), msg.Address() ), header,
                  "tolmoMessageHeaderLineOk( value )" );
    EXPECT_ABORT( tolmoHeaderDiversionStore( hdr.Get() ), header, "tolmoMessageHeaderLineOk( value )" );
    EXPECT_ABORT( tolmoHeaderDiversionToString( hdr.Get() ), header, "tolmoMessageHeaderLineOk( value )" );

    tolmoDiversionSetScreen( diversion.Address(), Str( "\n\r" ).Get() );
    tolmoHeaderDiversionSetDiversionAt( hdr.Address(), 2, diversion.Get() );
    EXPECT_EQ( Items<Diversion>( hdr )[2], "<sip:a>;screen=\n\r" );
}

} // namespace
