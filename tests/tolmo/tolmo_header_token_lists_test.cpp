/* The four token lists: three of one kind, and Content-Encoding. */
#include "tolmo_test.h"

#include <random>

namespace {

using test::Own;
using test::Str;
using test::Strings;
using test::TakeLines;
using test::TakeStrings;

class TokenLists : public test::TolmoFixture {
protected:
    using Obj = KoRef<KoObj>;
};

/** The operations of a list, for any of them. */
struct List {
    const char *name;
    const char *path;
    const char *validator; // the expression of the abort
    const char *argument;  // the one of null, in the unit of the validator
    const char *validatorPath;
    KoObj ( *create )();
    KoObj ( *createFrom )( KoObj source );
    KoBool ( *equals )( KoObj a, KoObj b );
    KoInt ( *compare )( KoObj a, KoObj b );
    KoInt ( *length )( KoObj hdr );
    KoString ( *at )( KoObj hdr, KoInt index );
    void ( *setAt )( KoObj *hdr, KoInt index, KoString item );
    void ( *insert )( KoObj *hdr, KoInt index, KoString item );
    void ( *prepend )( KoObj *hdr, KoString item );
    void ( *append )( KoObj *hdr, KoString item );
    void ( *delAt )( KoObj *hdr, KoInt index );
    void ( *clear )( KoObj *hdr );
    TolmoMessageHeader ( *encode )( KoObj hdr );
    KoObj ( *tryDecode )( TolmoMessageHeader header );
    KoSort sort;
};

#define HANDLE( Type, hdr ) reinterpret_cast<TolmoHeader##Type>( hdr )
#define ADDRESS( Type, hdr ) reinterpret_cast<TolmoHeader##Type *>( hdr )
#define OBJ( Type, hdr ) tolmoHeader##Type##Obj( hdr )
#define LIST( Type, name, file, Item, item, itemFile )                                                                 \
    {                                                                                                                  \
        name, "source/tolmo/tolmo_header_" file ".cpp", "tolmo" #Item "Ok( " #item " )", #item,                        \
            "source/tolmo/tolmo_" itemFile ".cpp", [] { return OBJ( Type, tolmoHeader##Type##Create() ); },            \
            []( KoObj source ) { return OBJ( Type, tolmoHeader##Type##CreateFrom( HANDLE( Type, source ) ) ); },       \
            []( KoObj a, KoObj b ) { return tolmoHeader##Type##Equals( HANDLE( Type, a ), HANDLE( Type, b ) ); },      \
            []( KoObj a, KoObj b ) { return tolmoHeader##Type##Compare( HANDLE( Type, a ), HANDLE( Type, b ) ); },     \
            []( KoObj hdr ) { return tolmoHeader##Type##Item##sLength( HANDLE( Type, hdr ) ); },                       \
            []( KoObj hdr, KoInt index ) { return tolmoHeader##Type##Item##At( HANDLE( Type, hdr ), index ); },        \
            []( KoObj *hdr, KoInt index, KoString value ) {                                                            \
                tolmoHeader##Type##Set##Item##At( ADDRESS( Type, hdr ), index, value );                                \
            },                                                                                                         \
            []( KoObj *hdr, KoInt index, KoString value ) {                                                            \
                tolmoHeader##Type##Insert##Item( ADDRESS( Type, hdr ), index, value );                                 \
            },                                                                                                         \
            []( KoObj *hdr, KoString value ) { tolmoHeader##Type##Prepend##Item( ADDRESS( Type, hdr ), value ); },     \
            []( KoObj *hdr, KoString value ) { tolmoHeader##Type##Append##Item( ADDRESS( Type, hdr ), value ); },      \
            []( KoObj *hdr, KoInt index ) { tolmoHeader##Type##Del##Item##At( ADDRESS( Type, hdr ), index ); },        \
            []( KoObj *hdr ) { tolmoHeader##Type##Clear##Item##s( ADDRESS( Type, hdr ) ); },                           \
            []( KoObj hdr ) { return tolmoHeader##Type##Encode( HANDLE( Type, hdr ) ); },                              \
            []( TolmoMessageHeader header ) { return OBJ( Type, tolmoHeader##Type##TryDecode( header ) ); },           \
            tolmoHeader##Type##Sort()                                                                                  \
    }

const std::vector<List> &Lists()
{
    static const std::vector<List> lists{
        LIST( AcceptResourcePriority, "Accept-Resource-Priority", "accept_resource_priority", Rvalue, rvalue,
              "rvalue" ),
        LIST( ResourcePriority, "Resource-Priority", "resource_priority", Rvalue, rvalue, "rvalue" ),
        LIST( PEarlyMedia, "P-Early-Media", "p_early_media", EmParam, emParam, "em_param" ),
        LIST( ContentEncoding, "Content-Encoding", "content_encoding", ContentCoding, contentCoding, "content_coding" ),
    };
    return lists;
}
const List &acceptResourcePriority = Lists()[0];
const List &resourcePriority = Lists()[1];
const List &pEarlyMedia = Lists()[2];
const List &contentEncoding = Lists()[3];

KoObj Decode( const List &list, const Strings &lines )
{
    return list.tryDecode( test::RawHeader( list.name, lines ).Get() );
}

Strings Items( const List &list, KoObj hdr )
{
    if ( !hdr ) {
        return { "(null)" };
    }
    Strings items;
    for ( KoInt i = 0; i < list.length( hdr ); ++i ) {
        items.push_back( test::Take( list.at( hdr, i ) ) );
    }
    return items;
}

/** A list with these items. */
KoRef<KoObj> With( const List &list, const Strings &items )
{
    auto hdr = Own( list.create() );
    for ( const auto &item : items ) {
        list.append( hdr.Address(), Str( item ).Get() );
    }
    return hdr;
}

/* Decoding and encoding of the three. */

struct Row {
    const List &list;
    Strings lines;
    Strings items; // { "(null)" }: does not decode
};

const Row rows[] = {
    { resourcePriority, { "q735.1" }, { "q735.1" } },
    { resourcePriority, { "q735.1,wps.0" }, { "q735.1", "wps.0" } },
    { resourcePriority, { "q735.1\t, wps.0" }, { "q735.1", "wps.0" } },
    { resourcePriority, { "b.1", "a.1,b.1" }, { "b.1", "a.1", "b.1" } }, // repeats stay, and case
    { resourcePriority, { "DSN.Flash" }, { "DSN.Flash" } },
    { resourcePriority, { "q735" }, { "(null)" } }, // a namespace, a dot and a priority
    { resourcePriority, { "q735." }, { "(null)" } },
    { resourcePriority, { ".1" }, { "(null)" } },
    { resourcePriority, { "a.b.c" }, { "(null)" } },
    { resourcePriority, { "a.b;c" }, { "(null)" } },
    { resourcePriority, {}, {} }, // the two differ
    { resourcePriority, { "" }, {} },
    { resourcePriority, { "a.1", "", "b.1" }, { "a.1", "b.1" } },
    { resourcePriority, { "a.1," }, { "(null)" } },
    { resourcePriority, { ",a.1" }, { "(null)" } },
    { resourcePriority, { "a.1,,b.1" }, { "(null)" } },
    { resourcePriority, { "a.1 " }, { "(null)" } },
    { resourcePriority, { " " }, { "(null)" } },
    { resourcePriority, { "a.1", "b" }, { "(null)" } }, // one bad line voids all

    { acceptResourcePriority, { "q735.1, wps.0" }, { "q735.1", "wps.0" } },
    { acceptResourcePriority, { "b.1", "a.1,b.1" }, { "b.1", "a.1", "b.1" } },
    { acceptResourcePriority, { "q735" }, { "(null)" } },
    { acceptResourcePriority, {}, { "(null)" } }, // the two differ
    { acceptResourcePriority, { "" }, {} },
    { acceptResourcePriority, { "a.1," }, { "(null)" } },

    { pEarlyMedia, { "supported" }, { "supported" } },
    { pEarlyMedia, { "SendRecv,gated", "gated" }, { "SendRecv", "gated", "gated" } },
    { pEarlyMedia, { "a.b" }, { "a.b" } },
    { pEarlyMedia, {}, {} },
    { pEarlyMedia, { "" }, {} },
    { pEarlyMedia, { "a;b" }, { "(null)" } },
    { pEarlyMedia, { "a, " }, { "(null)" } },
    { pEarlyMedia, { "a", "\u00DF" }, { "(null)" } },
};

TEST_F( TokenLists, Rows )
{
    for ( const auto &[list, lines, items] : rows ) {
        const auto hdr = Obj::Adopt( Decode( list, lines ) );
        const std::string shown = list.name + ( ": " + testing::PrintToString( lines ) );
        EXPECT_EQ( Items( list, hdr.Get() ), items ) << shown;
        if ( hdr ) {
            EXPECT_EQ( TakeLines( list.encode( hdr.Get() ) ), items ) << shown; // a line for each item
        }
    }
}

/* Reading and changing, of all four. */

TEST_F( TokenLists, Changing )
{
    for ( const List &list : Lists() ) {
        auto hdr = Obj::Adopt( list.create() );
        const KoObj alone = hdr.Get();
        EXPECT_EQ( list.length( hdr.Get() ), 0 );
        list.append( hdr.Address(), Str( "b.B" ).Get() );
        list.prepend( hdr.Address(), Str( "a.A" ).Get() );
        list.insert( hdr.Address(), 1, Str( "x.X" ).Get() );
        list.insert( hdr.Address(), 3, Str( "a.A" ).Get() ); // at the end; repeats stay
        EXPECT_EQ( Items( list, hdr.Get() ), ( Strings{ "a.A", "x.X", "b.B", "a.A" } ) ) << list.name;
        list.setAt( hdr.Address(), 3, Str( "c.c" ).Get() );
        list.delAt( hdr.Address(), 0 );
        EXPECT_EQ( Items( list, hdr.Get() ), ( Strings{ "x.X", "b.B", "c.c" } ) ) << list.name;
        // An item of the list goes in once more.
        list.append( hdr.Address(), Own( list.at( hdr.Get(), 0 ) ).Get() );
        EXPECT_EQ( Items( list, hdr.Get() ).back(), "x.X" ) << list.name;
        EXPECT_EQ( hdr.Get(), alone ) << list.name;
        list.clear( hdr.Address() );
        EXPECT_EQ( list.length( hdr.Get() ), 0 );
    }
}

// Items are kept as they stand; the list does not see a later change of the caller's string.
TEST_F( TokenLists, Argument )
{
    for ( const List &list : Lists() ) {
        auto hdr = Obj::Adopt( list.create() );
        auto item = Str( "A.b" );
        list.append( hdr.Address(), item.Get() );
        EXPECT_EQ( Own( list.at( hdr.Get(), 0 ) ).Get(), item.Get() ) << list.name;
        koStringAppendChar( item.Address(), ' ' );
        EXPECT_EQ( Items( list, hdr.Get() ), Strings{ "A.b" } ) << list.name;
    }
}

TEST_F( TokenLists, CopyOnWrite )
{
    for ( const List &list : Lists() ) {
        const auto hdr = With( list, { "a.a", "b.b" } );
        const auto item = Str( "c.c" );
        const std::function<void( KoObj * )> changes[] = {
            [&]( KoObj *address ) { list.setAt( address, 0, item.Get() ); },
            [&]( KoObj *address ) { list.insert( address, 0, item.Get() ); },
            [&]( KoObj *address ) { list.prepend( address, item.Get() ); },
            [&]( KoObj *address ) { list.append( address, item.Get() ); },
            [&]( KoObj *address ) { list.delAt( address, 0 ); },
            [&]( KoObj *address ) { list.clear( address ); },
        };
        for ( const auto &change : changes ) {
            auto copy = Obj::Share( hdr.Get() );
            change( copy.Address() );
            EXPECT_NE( copy.Get(), hdr.Get() ) << list.name;
            EXPECT_EQ( Items( list, hdr.Get() ), ( Strings{ "a.a", "b.b" } ) ) << list.name;
            EXPECT_NE( Items( list, copy.Get() ), ( Strings{ "a.a", "b.b" } ) ) << list.name;
            auto second = Obj::Adopt( list.createFrom( hdr.Get() ) );
            change( second.Address() );
            EXPECT_EQ( Items( list, hdr.Get() ), ( Strings{ "a.a", "b.b" } ) ) << list.name;
        }
    }
}

// What has been encoded does not change with the header, nor the header with that.
TEST_F( TokenLists, EncodedIsASnapshot )
{
    for ( const List &list : Lists() ) {
        auto hdr = With( list, { "a.a" } );
        auto encoded = Own( list.encode( hdr.Get() ) );
        list.append( hdr.Address(), Str( "b.b" ).Get() );
        EXPECT_EQ( TakeStrings( tolmoMessageHeaderLinesVector( encoded.Get() ) ), Strings{ "a.a" } ) << list.name;
        tolmoMessageHeaderAppendLine( encoded.Address(), Str( "x" ).Get() );
        EXPECT_EQ( Items( list, hdr.Get() ), ( Strings{ "a.a", "b.b" } ) ) << list.name;
    }
}

// Lists: order, repetition and case count.
TEST_F( TokenLists, Compare )
{
    for ( const List &list : Lists() ) {
        const auto hdr = With( list, { "a.a", "b.b" } );
        EXPECT_TRUE( list.equals( hdr.Get(), With( list, { "a.a", "b.b" } ).Get() ) ) << list.name;
        for ( const Strings &other :
              { Strings{ "b.b", "a.a" }, { "a.a", "b.b", "b.b" }, { "A.a", "b.b" }, { "a.a" }, {} } ) {
            EXPECT_FALSE( list.equals( hdr.Get(), With( list, other ).Get() ) ) << list.name;
        }
        EXPECT_GT( list.compare( hdr.Get(), With( list, { "a.a" } ).Get() ), 0 ) << list.name;
        EXPECT_LT( list.compare( hdr.Get(), With( list, { "a.b" } ).Get() ), 0 ) << list.name;
    }
}

TEST_F( TokenLists, Aborts )
{
    for ( const List &list : Lists() ) {
        auto hdr = With( list, { "a.a" } );
        KoObj none = nullptr;
        const auto good = Str( "b.b" );
        EXPECT_ABORT( list.length( nullptr ), list.path, "hdr" );
        EXPECT_ABORT( list.at( nullptr, 0 ), list.path, "hdr" );
        EXPECT_ABORT( list.setAt( nullptr, 0, nullptr ), list.path, "hdr" );
        EXPECT_ABORT( list.setAt( &none, 0, nullptr ), list.path, "*hdr" );
        EXPECT_ABORT( list.insert( nullptr, 0, nullptr ), list.path, "hdr" );
        EXPECT_ABORT( list.insert( &none, 0, nullptr ), list.path, "*hdr" );
        EXPECT_ABORT( list.setAt( hdr.Address(), 0, nullptr ), list.validatorPath, list.argument );
        EXPECT_ABORT( list.insert( hdr.Address(), 0, nullptr ), list.validatorPath, list.argument );
        EXPECT_ABORT( list.delAt( nullptr, 0 ), list.path, "hdr" );
        EXPECT_ABORT( list.delAt( &none, 0 ), list.path, "*hdr" );
        EXPECT_ABORT( list.clear( nullptr ), list.path, "hdr" );
        EXPECT_ABORT( list.clear( &none ), list.path, "*hdr" );
        for ( const auto add : { list.prepend, list.append } ) {
            EXPECT_ABORT( add( nullptr, nullptr ), list.path, "hdr" );
            EXPECT_ABORT( add( &none, nullptr ), list.path, "*hdr" );
            EXPECT_ABORT( add( hdr.Address(), nullptr ), list.validatorPath, list.argument );
        }
        // A bad word: in the header's unit, but for Content-Encoding, where the normaliser tests it.
        const char *const path = &list == &contentEncoding ? list.validatorPath : list.path;
        for ( const auto &bad : { Str( "" ), Str( "a.a,b.b" ), Str( "a.b " ), Str( "a.\u00DF" ) } ) {
            EXPECT_ABORT( list.setAt( hdr.Address(), 0, bad.Get() ), path, list.validator );
            EXPECT_ABORT( list.insert( hdr.Address(), 0, bad.Get() ), path, list.validator );
            EXPECT_ABORT( list.prepend( hdr.Address(), bad.Get() ), path, list.validator );
            EXPECT_ABORT( list.append( hdr.Address(), bad.Get() ), path, list.validator );
            EXPECT_ABORT( list.setAt( hdr.Address(), 7, bad.Get() ), path, list.validator ); // in front of the index
        }
        // The index is the runtime's.
        const char *const runtime = "source/runtime/ko_vector.cpp";
        for ( const KoInt index : { -1, 1 } ) {
            EXPECT_ABORT( list.at( hdr.Get(), index ), runtime, "index >= 0 && index < koVectorLength( v )" );
            EXPECT_ABORT( list.setAt( hdr.Address(), index, good.Get() ), runtime,
                          "index >= 0 && index < koVectorLength( *v )" );
            EXPECT_ABORT( list.delAt( hdr.Address(), index ), runtime, "index >= 0 && index < koVectorLength( *v )" );
        }
        for ( const KoInt index : { -1, 2 } ) {
            EXPECT_ABORT( list.insert( hdr.Address(), index, good.Get() ), runtime,
                          "index >= 0 && index <= koVectorLength( *v )" );
        }
        EXPECT_ABORT( list.sort->free( nullptr ), list.path, "hdr" );
        EXPECT_ABORT( list.sort->compare( nullptr, hdr.Get() ), list.path, "hdrA" );
        EXPECT_ABORT( list.sort->compare( hdr.Get(), nullptr ), list.path, "hdrB" );
    }
}

/* Content-Encoding. */

// Only a raw header without lines decodes; this is meant.
TEST_F( TokenLists, ContentEncodingDecodesNoLine )
{
    for ( const Strings &lines : { Strings{ "gzip" }, { "" }, { "gzip, deflate" }, { "", "" }, { "," }, { "*" } } ) {
        EXPECT_EQ( Decode( contentEncoding, lines ), nullptr ) << testing::PrintToString( lines );
    }
    const auto empty = Obj::Adopt( Decode( contentEncoding, {} ) );
    EXPECT_EQ( Items( contentEncoding, empty.Get() ), Strings() );

    // Also through a message and a store.
    auto msg = test::Received( "Content-Encoding: gzip\r\n" );
    EXPECT_TRUE( tolmoHeaderContentEncodingPresentInMessage( msg.Get() ) );
    EXPECT_EQ( tolmoHeaderContentEncodingTryDecodeFromMessage( msg.Get() ), nullptr );
    EXPECT_EQ( tolmoHeaderContentEncodingTryDecodeFromMessage( test::Received( "e: gzip\r\n" ).Get() ), nullptr );
    const auto hdr = With( contentEncoding, { "gzip" } );
    const auto store = Own( tolmoHeaderContentEncodingStore( tolmoHeaderContentEncodingFrom( hdr.Get() ) ) );
    EXPECT_EQ( tolmoHeaderContentEncodingTryRestore( store.Get() ), nullptr );
}

TEST_F( TokenLists, ContentEncodingPrintsOneLine )
{
    EXPECT_EQ( TakeLines( contentEncoding.encode( With( contentEncoding, { "gzip", "Deflate", "gzip" } ).Get() ) ),
               Strings{ "gzip,Deflate,gzip" } );
    EXPECT_EQ( TakeLines( contentEncoding.encode( With( contentEncoding, { "*" } ).Get() ) ), Strings{ "*" } );
    EXPECT_EQ( TakeLines( contentEncoding.encode( With( contentEncoding, {} ).Get() ) ), Strings() );
}

// Small letters in one place alone.
TEST_F( TokenLists, ContentEncodingCase )
{
    auto hdr = Own( tolmoHeaderContentEncodingCreate() );
    const auto word = Str( "GZIP" );
    tolmoHeaderContentEncodingAppendContentCoding( hdr.Address(), word.Get() );
    tolmoHeaderContentEncodingPrependContentCoding( hdr.Address(), word.Get() );
    tolmoHeaderContentEncodingInsertContentCoding( hdr.Address(), 1, word.Get() );
    EXPECT_EQ( TakeStrings( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) ),
               ( Strings{ "GZIP", "GZIP", "GZIP" } ) );
    tolmoHeaderContentEncodingSetContentCodingAt( hdr.Address(), 1, word.Get() );
    EXPECT_EQ( TakeStrings( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) ),
               ( Strings{ "GZIP", "gzip", "GZIP" } ) );
    EXPECT_EQ( test::Text( word ), "GZIP" );

    const auto vec = Own( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) );
    auto other = Own( tolmoHeaderContentEncodingCreate() );
    tolmoHeaderContentEncodingSetContentCodingsVector( other.Address(), vec.Get() );
    EXPECT_TRUE( tolmoHeaderContentEncodingEquals( hdr.Get(), other.Get() ) );
}

TEST_F( TokenLists, ContentEncodingVector )
{
    auto hdr = Own( tolmoHeaderContentEncodingCreate() );
    tolmoHeaderContentEncodingAppendContentCoding( hdr.Address(), Str( "a" ).Get() );
    // The vector is the header's own: a change of the header leaves it alone.
    const auto vec = Own( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) );
    EXPECT_EQ( Own( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) ).Get(), vec.Get() );
    tolmoHeaderContentEncodingAppendContentCoding( hdr.Address(), Str( "b" ).Get() );
    EXPECT_EQ( koVectorLength( vec.Get() ), 1 );

    // Its own vector goes in.
    tolmoHeaderContentEncodingSetContentCodingsVector(
        hdr.Address(), Own( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) ).Get() );
    EXPECT_EQ( TakeStrings( tolmoHeaderContentEncodingContentCodingsVector( hdr.Get() ) ), ( Strings{ "a", "b" } ) );

    auto copy = KoRef<TolmoHeaderContentEncoding>::Share( hdr.Get() );
    tolmoHeaderContentEncodingSetContentCodingsVector( copy.Address(), vec.Get() );
    EXPECT_EQ( tolmoHeaderContentEncodingContentCodingsLength( copy.Get() ), 1 );
    EXPECT_EQ( tolmoHeaderContentEncodingContentCodingsLength( hdr.Get() ), 2 );
    tolmoHeaderContentEncodingSetContentCodingsVector( copy.Address(), Own( koVectorCreate() ).Get() );
    EXPECT_EQ( tolmoHeaderContentEncodingContentCodingsLength( copy.Get() ), 0 );
}

TEST_F( TokenLists, ContentEncodingAborts )
{
    const char *const path = contentEncoding.path;
    auto hdr = Own( tolmoHeaderContentEncodingCreate() );
    TolmoHeaderContentEncoding none = nullptr;
    EXPECT_ABORT( tolmoHeaderContentEncodingContentCodingsVector( nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderContentEncodingSetContentCodingsVector( nullptr, nullptr ), path, "hdr" );
    EXPECT_ABORT( tolmoHeaderContentEncodingSetContentCodingsVector( &none, nullptr ), path, "*hdr" );
    EXPECT_ABORT( tolmoHeaderContentEncodingSetContentCodingsVector( hdr.Address(), nullptr ), path, "vec" );
    auto vec = Own( koVectorCreate() );
    koVectorAppendString( vec.Address(), Str( "gzip" ).Get() );
    koVectorAppendString( vec.Address(), Str( "a b" ).Get() );
    EXPECT_ABORT( tolmoHeaderContentEncodingSetContentCodingsVector( hdr.Address(), vec.Get() ),
                  contentEncoding.validatorPath, contentEncoding.validator );
    // Strings alone, unlike the sets.
    auto objects = Own( koVectorCreate() );
    koVectorAppendObj( objects.Address(), tolmoHeaderContentEncodingObj( hdr.Get() ) );
    EXPECT_ABORT( tolmoHeaderContentEncodingSetContentCodingsVector( hdr.Address(), objects.Get() ),
                  "source/runtime/ko_string.cpp", "!obj || koObjSort( obj ) == koStringSort()" );
}

/* Generated values. */

TEST_F( TokenLists, Generated )
{
    std::mt19937 random( 1 );
    for ( const List &list : Lists() ) {
        for ( int i = 0; i < 300; ++i ) {
            auto hdr = Obj::Adopt( list.create() );
            for ( auto count = random() % 20; count > 0; --count ) {
                std::string word{ "abABz0-_"[random() % 8], '.', "abABz0-_"[random() % 8] };
                const auto index = static_cast<KoInt>( random() % static_cast<size_t>( list.length( hdr.Get() ) + 1 ) );
                list.insert( hdr.Address(), index, Str( word ).Get() );
            }
            const auto encoded = Own( list.encode( hdr.Get() ) );
            if ( &list == &contentEncoding ) {
                EXPECT_EQ( tolmoMessageHeaderLinesLength( encoded.Get() ), list.length( hdr.Get() ) > 0 );
                continue;
            }
            if ( list.length( hdr.Get() ) == 0 ) {
                continue;
            }
            auto decoded = Obj::Adopt( list.tryDecode( encoded.Get() ) );
            ASSERT_TRUE( decoded ) << list.name;
            EXPECT_TRUE( list.equals( decoded.Get(), hdr.Get() ) );
            const Strings items = Items( list, hdr.Get() );
            EXPECT_EQ( TakeLines( list.encode( decoded.Get() ) ), items );
            const auto other = Obj::Share( decoded.Get() );
            list.delAt( decoded.Address(), 0 );
            EXPECT_EQ( Items( list, other.Get() ), items );
            EXPECT_FALSE( list.equals( decoded.Get(), other.Get() ) );
        }
    }
}

TEST_F( TokenLists, Huge )
{
    std::string line = "a.0";
    for ( int i = 1; i < 100000; ++i ) {
        line += ",a." + std::to_string( i );
    }
    for ( const List *list : { &resourcePriority, &acceptResourcePriority, &pEarlyMedia } ) {
        const auto hdr = Obj::Adopt( Decode( *list, { line } ) );
        ASSERT_TRUE( hdr ) << list->name;
        EXPECT_EQ( list->length( hdr.Get() ), 100000 );
        EXPECT_EQ( TakeLines( list->encode( hdr.Get() ) ).size(), 100000U );
        EXPECT_EQ( Decode( *list, { line + "," } ), nullptr );
    }
}

} // namespace
