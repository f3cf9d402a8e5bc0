/*
 * What holds for every value list, as a suite over the type of the header. A member tells its functions, its names and
 * three items, and instantiates the suite; its own rows stand in its own file:
 *
 *     struct Member {
 *         TEST_VALUE_LIST_FUNCTIONS( Route, Route, Route, ClearRoutes )
 *         static constexpr char header[] = "Route";
 *         static constexpr char sort[] = "TOLMO_HEADER_ROUTE";
 *         static constexpr char path[] = "source/tolmo/tolmo_header_route.cpp";
 *         static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosRoute )";
 *         static constexpr char valuePath[] = "source/tolmo/tolmo_route.cpp";
 *         static constexpr char value[] = "route";
 *         static constexpr bool emptyWithoutLines = false;
 *         static constexpr const char *items[] = { "<sip:a>;x=\",\"", "<sip:b>;y", "\"C\" <sip:c>;z" };
 *         static constexpr char otherSpelling[] = "<sip:a> ;X=\",\""; // of the first item
 *     };
 *     INSTANTIATE_TYPED_TEST_SUITE_P( HeaderRoute, ValueList, Member );
 */
#ifndef TOLMO_VALUE_LIST_TEST_H
#define TOLMO_VALUE_LIST_TEST_H

#include "tolmo_type_test.h"

#include <random>

/** The functions of a value list, and those of its values. */
#define TEST_VALUE_LIST_FUNCTIONS( Type, Item, ValueType, ClearFunction )                                              \
    TEST_STANDARD_FUNCTIONS( Header##Type )                                                                            \
    using Value = Tolmo##ValueType;                                                                                    \
    static constexpr auto DecodeValue = tolmo___##ValueType##TryDecode;                                                \
    static constexpr auto EncodeValue = tolmo___##ValueType##Encode;                                                   \
    static constexpr auto Create = tolmoHeader##Type##Create;                                                          \
    static constexpr auto Encode = tolmoHeader##Type##Encode;                                                          \
    static constexpr auto TryDecode = tolmoHeader##Type##TryDecode;                                                    \
    static constexpr auto EncodeToMessage = tolmoHeader##Type##EncodeToMessage;                                        \
    static constexpr auto TryDecodeFromMessage = tolmoHeader##Type##TryDecodeFromMessage;                              \
    static constexpr auto PresentInMessage = tolmoHeader##Type##PresentInMessage;                                      \
    static constexpr auto RemoveFromMessage = tolmoHeader##Type##RemoveFromMessage;                                    \
    static constexpr auto Store = tolmoHeader##Type##Store;                                                            \
    static constexpr auto TryRestore = tolmoHeader##Type##TryRestore;                                                  \
    static constexpr auto Length = tolmoHeader##Type##Item##sLength;                                                   \
    static constexpr auto TryDecodeAt = tolmoHeader##Type##TryDecode##Item##At;                                        \
    static constexpr auto SetAt = tolmoHeader##Type##Set##Item##At;                                                    \
    static constexpr auto Insert = tolmoHeader##Type##Insert##Item;                                                    \
    static constexpr auto Prepend = tolmoHeader##Type##Prepend##Item;                                                  \
    static constexpr auto Append = tolmoHeader##Type##Append##Item;                                                    \
    static constexpr auto DelAt = tolmoHeader##Type##Del##Item##At;                                                    \
    static constexpr auto Clear = tolmoHeader##Type##ClearFunction;

/** A member's list. */
template <class Member>
using ListOf = KoRef<typename Member::Handle>;

template <class Member>
class ValueList : public test::TolmoFixture {
protected:
    static constexpr char vector[] = "source/runtime/ko_vector.cpp";

    // Not inline: g++ 12 knows their lengths then, and wrongly warns of an overflow where strings are joined.
    [[gnu::noinline]] static std::string Item( size_t i ) { return Member::items[i]; }
    [[gnu::noinline]] static std::string HeaderName() { return Member::header; }

    static ListOf<Member> Decode( const test::Strings &lines )
    {
        return ListOf<Member>::Adopt( Member::TryDecode( test::RawHeader( Member::header, lines ).Get() ) );
    }

    static ListOf<Member> TryDecodeFrom( const KoRef<TolmoMessage> &msg )
    {
        return ListOf<Member>::Adopt( Member::TryDecodeFromMessage( msg.Get() ) );
    }

    /** The lines that a list goes out with; "(null)" for null. */
    static test::Strings LinesOf( const ListOf<Member> &hdr )
    {
        return hdr ? test::LinesOf( KoRef<TolmoMessageHeader>::Adopt( Member::Encode( hdr.Get() ) ).Get() )
                   : test::Strings{ "(null)" };
    }

    static KoRef<typename Member::Value> ValueOf( std::string_view item )
    {
        return test::DecodeWith( Member::DecodeValue, item );
    }
};

TYPED_TEST_SUITE_P( ValueList );

TYPED_TEST_P( ValueList, StandardOperations )
{
    const auto hdr = this->Decode( { this->Item( 0 ), this->Item( 1 ) } );
    test::ExpectStandardOperations<TypeParam>( hdr.Get(), TypeParam::sort, TypeParam::path, "hdr", "hdrA", "hdrB" );
    const auto empty = ListOf<TypeParam>::Adopt( TypeParam::Create() );
    EXPECT_EQ( TypeParam::Length( empty.Get() ), 0 );
    EXPECT_EQ( test::Take( TypeParam::ToString( empty.Get() ) ), "" );
    EXPECT_EQ( test::Take( TypeParam::ToString( this->Decode( { this->Item( 1 ) } ).Get() ) ), this->Item( 1 ) );
    EXPECT_EQ( test::Take( TypeParam::ToString( hdr.Get() ) ), "[" + this->Item( 0 ) + ", " + this->Item( 1 ) + "]" );
}

TYPED_TEST_P( ValueList, Lines )
{
    const std::string a = this->Item( 0 );
    const std::string b = this->Item( 1 );
    const std::string c = this->Item( 2 );
    const struct {
        test::Strings lines;
        test::Strings items; // { "(null)" }: refused
    } rows[] = { { { a }, { a } },
                 { { a + "," + b }, { a, b } },
                 { { a + ", \t" + b + "," + c }, { a, b, c } }, // blanks behind a comma are of no item
                 { { a, b + "," + c }, { a, b, c } },           // between lines no comma is expected
                 { { "" }, {} },                                // an empty line is an empty list
                 { { "", a, "", "", b, "" }, { a, b } },
                 { { a, a }, { a, a } },
                 { { "," }, { "(null)" } }, // there are no empty items
                 { { " " }, { "(null)" } },
                 { { a + "," }, { "(null)" } },
                 { { a + ", " }, { "(null)" } },
                 { { "," + a }, { "(null)" } },
                 { { a + ",," + b }, { "(null)" } },
                 { { a + ", ," + b }, { "(null)" } },
                 { { a + "," + b + "," }, { "(null)" } },
                 { { a, "," + b }, { "(null)" } },
                 { { a + ",", b }, { "(null)" } },
                 { { a, "," }, { "(null)" } }, // one bad line fails them all
                 { { "\x01", a }, { "(null)" } },
                 { { a + "\x01" }, { "(null)" } } };
    for ( const auto &row : rows ) {
        const auto hdr = this->Decode( row.lines );
        EXPECT_EQ( this->LinesOf( hdr ), row.items ) << testing::PrintToString( row.lines );
        // As it is received, the same.
        std::string received;
        for ( const auto &line : row.lines ) {
            received += this->HeaderName() + ":" + line + "\r\n";
        }
        const auto msg = test::Received( received );
        const bool trimmed = row.lines.back().empty() || row.lines.back().back() != ' ';
        ASSERT_TRUE( msg ) << received;
        if ( trimmed ) { // a message trims its lines
            const auto decoded = this->TryDecodeFrom( msg );
            EXPECT_EQ( this->LinesOf( decoded ), row.items ) << received;
        }
    }
    EXPECT_EQ( static_cast<bool>( this->Decode( {} ) ), TypeParam::emptyWithoutLines );
    const auto raw = KoRef<TolmoMessageHeader>::Adopt( TypeParam::Encode( this->Decode( { a } ).Get() ) );
    EXPECT_EQ( test::NameOf( raw.Get() ), TypeParam::header );
}

TYPED_TEST_P( ValueList, EveryPrefixOfALine )
{
    const auto line = test::Str( this->Item( 0 ) + ", " + this->Item( 1 ) + "," + this->Item( 2 ) );
    for ( KoInt length = 0; length <= koStringLength( line.Get() ); ++length ) {
        const auto prefix = KoRef<KoString>::Adopt( koStringCreateFromLeading( line.Get(), length ) );
        const auto hdr = this->Decode( { test::Text( prefix ) } );
        if ( !hdr ) {
            continue;
        }
        // What is accepted is made of pieces of the text, and decodes to itself.
        const auto lines = this->LinesOf( hdr );
        for ( const auto &item : lines ) {
            EXPECT_NE( test::Text( prefix ).find( item ), std::string::npos );
        }
        EXPECT_TRUE( lines.empty() || TypeParam::Equals( this->Decode( lines ).Get(), hdr.Get() ) );
    }
}

TYPED_TEST_P( ValueList, Values )
{
    const auto hdr = this->Decode( { this->Item( 0 ) + "," + this->Item( 1 ), this->Item( 2 ) } );
    ASSERT_EQ( TypeParam::Length( hdr.Get() ), 3 );
    for ( KoInt i = 0; i < 3; ++i ) {
        const auto value = KoRef<typename TypeParam::Value>::Adopt( TypeParam::TryDecodeAt( hdr.Get(), i ) );
        ASSERT_TRUE( value );
        EXPECT_EQ( test::Count( value.Get() ), 1 ); // nothing is kept
        EXPECT_EQ( test::Take( TypeParam::EncodeValue( value.Get() ) ), this->Item( static_cast<size_t>( i ) ) );
    }
    EXPECT_ABORT( TypeParam::TryDecodeAt( nullptr, 0 ), TypeParam::path, "hdr" );
    EXPECT_ABORT( TypeParam::TryDecodeAt( hdr.Get(), -1 ), this->vector, "index >= 0 && index < koVectorLength( v )" );
    EXPECT_ABORT( TypeParam::TryDecodeAt( hdr.Get(), 3 ), this->vector, "index >= 0 && index < koVectorLength( v )" );
    EXPECT_ABORT( TypeParam::TryDecodeAt( this->Decode( { "" } ).Get(), 0 ), this->vector,
                  "index >= 0 && index < koVectorLength( v )" );
    EXPECT_ABORT( TypeParam::Length( nullptr ), TypeParam::path, "hdr" );
}

TYPED_TEST_P( ValueList, Changes )
{
    const std::string a = this->Item( 0 );
    const std::string b = this->Item( 1 );
    const std::string c = this->Item( 2 );
    const auto valueA = this->ValueOf( a );
    const auto valueB = this->ValueOf( b );
    const auto valueC = this->ValueOf( c );

    auto hdr = ListOf<TypeParam>::Adopt( TypeParam::Create() );
    const auto object = hdr.Get();
    TypeParam::Append( hdr.Address(), valueB.Get() );
    EXPECT_EQ( this->LinesOf( hdr ), test::Strings{ b } );
    TypeParam::Prepend( hdr.Address(), valueA.Get() );
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ a, b } ) );
    TypeParam::Insert( hdr.Address(), 1, valueC.Get() );
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ a, c, b } ) );
    TypeParam::Insert( hdr.Address(), 3, valueA.Get() ); // behind the last one
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ a, c, b, a } ) );
    TypeParam::SetAt( hdr.Address(), 0, valueB.Get() );
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ b, c, b, a } ) );
    TypeParam::DelAt( hdr.Address(), 1 );
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ b, b, a } ) );
    EXPECT_EQ( hdr.Get(), object );              // the only holder: no copy
    EXPECT_EQ( test::Count( valueA.Get() ), 1 ); // the list holds texts only

    // A raw header that has been made of it stays as it is.
    const auto raw = KoRef<TolmoMessageHeader>::Adopt( TypeParam::Encode( hdr.Get() ) );
    const struct {
        std::function<void( typename TypeParam::Handle * )> change;
        test::Strings items;
    } rows[] = { { [&]( auto *h ) { TypeParam::Append( h, valueC.Get() ); }, { b, b, a, c } },
                 { [&]( auto *h ) { TypeParam::Prepend( h, valueC.Get() ); }, { c, b, b, a } },
                 { [&]( auto *h ) { TypeParam::Insert( h, 2, valueC.Get() ); }, { b, b, c, a } },
                 { [&]( auto *h ) { TypeParam::SetAt( h, 2, valueC.Get() ); }, { b, b, c } },
                 { [&]( auto *h ) { TypeParam::DelAt( h, 0 ); }, { b, a } },
                 { [&]( auto *h ) { TypeParam::Clear( h ); }, {} } };
    for ( const auto &row : rows ) {
        auto shared = ListOf<TypeParam>::Share( hdr.Get() );
        row.change( shared.Address() );
        EXPECT_NE( shared.Get(), hdr.Get() );
        EXPECT_EQ( this->LinesOf( shared ), row.items );
        EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ b, b, a } ) );
        EXPECT_EQ( test::LinesOf( raw.Get() ), ( test::Strings{ b, b, a } ) );
    }

    // And the other way round: what is made of the raw header does not reach the list.
    auto appended = KoRef<TolmoMessageHeader>::Adopt( TypeParam::Encode( hdr.Get() ) );
    tolmoMessageHeaderAppendLine( appended.Address(), test::Str( c ).Get() );
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ b, b, a } ) );

    TypeParam::Clear( hdr.Address() );
    EXPECT_EQ( hdr.Get(), object );
    EXPECT_EQ( TypeParam::Length( hdr.Get() ), 0 );
}

TYPED_TEST_P( ValueList, ChangesAsInAModel )
{
    std::mt19937 random( 54 );
    auto hdr = ListOf<TypeParam>::Adopt( TypeParam::Create() );
    test::Strings model;
    for ( int step = 0; step < 3000; ++step ) {
        const auto old = ListOf<TypeParam>::Share( random() % 4 == 0 ? hdr.Get() : nullptr );
        const auto oldModel = model;
        const auto item = this->Item( random() % 3 );
        const auto value = this->ValueOf( item );
        const auto at = static_cast<long>( random() % ( model.size() + 1 ) );
        const auto index = static_cast<KoInt>( at );
        const bool inside = at < static_cast<long>( model.size() );
        switch ( random() % 12 ) {
        case 0:
        case 1:
            TypeParam::Append( hdr.Address(), value.Get() );
            model.push_back( item );
            break;
        case 2:
        case 3:
            TypeParam::Prepend( hdr.Address(), value.Get() );
            model.insert( model.begin(), item );
            break;
        case 4:
        case 5:
            TypeParam::Insert( hdr.Address(), index, value.Get() );
            model.insert( model.begin() + at, item );
            break;
        case 6:
            if ( step % 7 == 0 ) {
                TypeParam::Clear( hdr.Address() );
                model.clear();
            }
            break;
        case 7:
        case 8:
            if ( inside ) {
                TypeParam::SetAt( hdr.Address(), index, value.Get() );
                model[static_cast<size_t>( at )] = item;
            }
            break;
        default:
            if ( inside ) {
                TypeParam::DelAt( hdr.Address(), index );
                model.erase( model.begin() + at );
            }
            break;
        }
        ASSERT_EQ( this->LinesOf( hdr ), model );
        if ( old ) {
            ASSERT_EQ( this->LinesOf( old ), oldModel );
        }
    }
}

TYPED_TEST_P( ValueList, ChangeAborts )
{
    const char *const path = TypeParam::path;
    const auto value = this->ValueOf( this->Item( 0 ) );
    auto hdr = this->Decode( { this->Item( 0 ) } );
    typename TypeParam::Handle none = nullptr;
    EXPECT_ABORT( TypeParam::SetAt( nullptr, 9, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::SetAt( &none, 9, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::SetAt( hdr.Address(), 9, nullptr ), TypeParam::valuePath, TypeParam::value );
    EXPECT_ABORT( TypeParam::SetAt( hdr.Address(), 1, value.Get() ), this->vector,
                  "index >= 0 && index < koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::SetAt( hdr.Address(), -1, value.Get() ), this->vector,
                  "index >= 0 && index < koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::Insert( nullptr, 9, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Insert( &none, 9, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Insert( hdr.Address(), 9, nullptr ), TypeParam::valuePath, TypeParam::value );
    EXPECT_ABORT( TypeParam::Insert( hdr.Address(), 2, value.Get() ), this->vector,
                  "index >= 0 && index <= koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::Insert( hdr.Address(), -1, value.Get() ), this->vector,
                  "index >= 0 && index <= koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::Prepend( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Prepend( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Prepend( hdr.Address(), nullptr ), TypeParam::valuePath, TypeParam::value );
    EXPECT_ABORT( TypeParam::Append( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Append( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::Append( hdr.Address(), nullptr ), TypeParam::valuePath, TypeParam::value );
    EXPECT_ABORT( TypeParam::DelAt( nullptr, 9 ), path, "hdr" );
    EXPECT_ABORT( TypeParam::DelAt( &none, 9 ), path, "*hdr" );
    EXPECT_ABORT( TypeParam::DelAt( hdr.Address(), 1 ), this->vector, "index >= 0 && index < koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::DelAt( hdr.Address(), -1 ), this->vector, "index >= 0 && index < koVectorLength( *v )" );
    EXPECT_ABORT( TypeParam::Clear( nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::Clear( &none ), path, "*hdr" );
}

TYPED_TEST_P( ValueList, Compare )
{
    const std::string a = this->Item( 0 );
    const std::string b = this->Item( 1 );
    const auto order = [&]( const test::Strings &x, const test::Strings &y ) {
        return TypeParam::Compare( this->Decode( x ).Get(), this->Decode( y ).Get() );
    };
    const auto textOrder = koObjCompare( koStringObj( test::Str( a ).Get() ), koStringObj( test::Str( b ).Get() ) );
    ASSERT_NE( textOrder, 0 );
    EXPECT_EQ( order( { a, b }, { a + "," + b } ), 0 ); // how the items stood on lines does not matter
    EXPECT_EQ( order( { a }, { b } ) < 0, textOrder < 0 );
    EXPECT_EQ( order( { b }, { a } ) < 0, textOrder > 0 );
    EXPECT_NE( order( { a, b }, { b, a } ), 0 );
    EXPECT_LT( order( { a }, { a, b } ), 0 );
    EXPECT_LT( order( { "" }, { a } ), 0 );
}

TYPED_TEST_P( ValueList, TextsCount )
{
    // The text of an item is kept as it is, and no value is made of it before somebody asks.
    const auto hdr = this->Decode( { TypeParam::otherSpelling } );
    ASSERT_TRUE( hdr );
    EXPECT_EQ( this->LinesOf( hdr ), test::Strings{ TypeParam::otherSpelling } );
    const auto value = KoRef<typename TypeParam::Value>::Adopt( TypeParam::TryDecodeAt( hdr.Get(), 0 ) );
    ASSERT_TRUE( value );
    EXPECT_EQ( test::Take( TypeParam::EncodeValue( value.Get() ) ), this->Item( 0 ) );
    EXPECT_FALSE( TypeParam::Equals( hdr.Get(), this->Decode( { this->Item( 0 ) } ).Get() ) );
}

TYPED_TEST_P( ValueList, OtherName )
{
    EXPECT_ABORT( TypeParam::TryDecode( test::RawHeader( "X-Other", { this->Item( 0 ) } ).Get() ), TypeParam::path,
                  TypeParam::isHeader );
    EXPECT_ABORT( TypeParam::TryDecode( nullptr ), "source/tolmo/tolmo_message_header.cpp", "header" );
    EXPECT_ABORT( TypeParam::Encode( nullptr ), TypeParam::path, "hdr" );
    // Another spelling of the name is the same name.
    std::string shout = this->HeaderName();
    for ( char &ch : shout ) {
        ch = static_cast<char>( std::toupper( static_cast<unsigned char>( ch ) ) );
    }
    const auto header = test::RawHeader( shout, { this->Item( 0 ) } );
    const auto hdr = ListOf<TypeParam>::Adopt( TypeParam::TryDecode( header.Get() ) );
    EXPECT_EQ( TypeParam::Length( hdr.Get() ), 1 );
}

TYPED_TEST_P( ValueList, InMessage )
{
    const std::string name = this->HeaderName();
    const std::string a = this->Item( 0 );
    const std::string b = this->Item( 1 );
    const std::string c = this->Item( 2 );
    auto msg = test::Received( "X-A: 1\r\n" + name + ": " + a + ", " + b + "\r\nX-B: 2\r\n" + name + ":" + c + "\r\n" );
    EXPECT_TRUE( TypeParam::PresentInMessage( msg.Get() ) );
    auto hdr = this->TryDecodeFrom( msg );
    EXPECT_EQ( this->LinesOf( hdr ), ( test::Strings{ a, b, c } ) );

    // Back into a message that others share: whole, in its place, a line for each item.
    const auto other = KoRef<TolmoMessage>::Share( msg.Get() );
    TypeParam::DelAt( hdr.Address(), 0 );
    TypeParam::EncodeToMessage( hdr.Get(), msg.Address() );
    EXPECT_NE( msg.Get(), other.Get() );
    EXPECT_EQ( this->LinesOf( this->TryDecodeFrom( msg ) ), ( test::Strings{ b, c } ) );
    EXPECT_EQ( this->LinesOf( this->TryDecodeFrom( other ) ), ( test::Strings{ a, b, c } ) );
    const auto bytes = test::TakeBytes( tolmoMessageEncode( msg.Get() ) );
    EXPECT_NE( bytes.find( "X-A: 1\r\n" + name + ": " + b + "\r\n" + name + ": " + c + "\r\nX-B: 2\r\n" ),
               std::string::npos )
        << bytes;

    // A later change of the typed header does not reach the message.
    TypeParam::Clear( hdr.Address() );
    EXPECT_EQ( this->LinesOf( this->TryDecodeFrom( msg ) ), ( test::Strings{ b, c } ) );

    // An empty list vanishes from the wire, but it is there; its decoder is not asked.
    TypeParam::EncodeToMessage( hdr.Get(), msg.Address() );
    EXPECT_TRUE( TypeParam::PresentInMessage( msg.Get() ) );
    EXPECT_FALSE( this->TryDecodeFrom( msg ) );
    EXPECT_EQ( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ).find( name ), std::string::npos );

    TypeParam::RemoveFromMessage( msg.Address() );
    EXPECT_FALSE( TypeParam::PresentInMessage( msg.Get() ) );
    EXPECT_FALSE( this->TryDecodeFrom( msg ) );
    TypeParam::RemoveFromMessage( msg.Address() ); // what is not there, too
    EXPECT_TRUE( TypeParam::PresentInMessage( other.Get() ) );

    // Present does not promise that it decodes.
    const auto bad = test::Received( name + ": ,\r\n" );
    EXPECT_TRUE( TypeParam::PresentInMessage( bad.Get() ) );
    EXPECT_FALSE( this->TryDecodeFrom( bad ) );

    const char *const path = TypeParam::path;
    TolmoMessage none = nullptr;
    EXPECT_ABORT( TypeParam::EncodeToMessage( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( TypeParam::EncodeToMessage( hdr.Get(), nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::EncodeToMessage( hdr.Get(), &none ), path, "*msg" );
    EXPECT_ABORT( TypeParam::TryDecodeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::PresentInMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::RemoveFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( TypeParam::RemoveFromMessage( &none ), path, "*msg" );
}

TYPED_TEST_P( ValueList, InStore )
{
    const auto hdr = this->Decode( { this->Item( 0 ) + "," + this->Item( 1 ) } );
    auto store = KoRef<KoStore>::Adopt( TypeParam::Store( hdr.Get() ) );
    EXPECT_EQ( koStoreLength( store.Get() ), 2 ); // the lines, without the name
    EXPECT_EQ( test::Take( koStoreValueAt( store.Get(), 1 ) ), this->Item( 1 ) );
    EXPECT_TRUE(
        TypeParam::Equals( ListOf<TypeParam>::Adopt( TypeParam::TryRestore( store.Get() ) ).Get(), hdr.Get() ) );
    koStoreAppendValue( store.Address(), test::Str( this->Item( 2 ) + "," + this->Item( 2 ) ).Get() );
    EXPECT_EQ( TypeParam::Length( ListOf<TypeParam>::Adopt( TypeParam::TryRestore( store.Get() ) ).Get() ), 4 );
    koStoreAppendValue( store.Address(), test::Str( "," ).Get() );
    EXPECT_FALSE( ListOf<TypeParam>::Adopt( TypeParam::TryRestore( store.Get() ) ) );

    // A store without a line does reach the decoder.
    const auto empty = ListOf<TypeParam>::Adopt( TypeParam::Create() );
    const auto emptyStore = KoRef<KoStore>::Adopt( TypeParam::Store( empty.Get() ) );
    EXPECT_EQ( koStoreLength( emptyStore.Get() ), 0 );
    const auto restored = ListOf<TypeParam>::Adopt( TypeParam::TryRestore( emptyStore.Get() ) );
    EXPECT_EQ( static_cast<bool>( restored ), TypeParam::emptyWithoutLines );

    EXPECT_ABORT( TypeParam::Store( nullptr ), TypeParam::path, "hdr" );
    EXPECT_ABORT( TypeParam::TryRestore( nullptr ), TypeParam::path, "store" );
}

TYPED_TEST_P( ValueList, Huge )
{
    constexpr int count = 100000;
    std::string line;
    auto header = test::RawHeader( TypeParam::header, {} );
    const auto item = test::Str( this->Item( 0 ) );
    for ( int i = 0; i < count; ++i ) {
        line += ( i ? ", " : "" ) + this->Item( 0 );
        tolmoMessageHeaderAppendLine( header.Address(), item.Get() );
    }
    auto oneLine = this->Decode( { line } );
    const auto manyLines = ListOf<TypeParam>::Adopt( TypeParam::TryDecode( header.Get() ) );
    ASSERT_EQ( TypeParam::Length( oneLine.Get() ), count );
    EXPECT_TRUE( TypeParam::Equals( oneLine.Get(), manyLines.Get() ) );
    const auto value = this->ValueOf( this->Item( 1 ) );
    for ( int i = 0; i < count; ++i ) {
        TypeParam::DelAt( oneLine.Address(), 0 );
        TypeParam::Prepend( oneLine.Address(), value.Get() );
        TypeParam::Append( oneLine.Address(), value.Get() );
    }
    EXPECT_EQ( TypeParam::Length( oneLine.Get() ), 2 * count );
    EXPECT_FALSE( this->Decode( { line + "," } ) );
}

REGISTER_TYPED_TEST_SUITE_P( ValueList, StandardOperations, Lines, EveryPrefixOfALine, Values, Changes,
                             ChangesAsInAModel, ChangeAborts, Compare, TextsCount, OtherName, InMessage, InStore,
                             Huge );

#endif
