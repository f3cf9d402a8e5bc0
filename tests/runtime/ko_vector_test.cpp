/* Vectors: a model, a row for each rule, and the cost of changes at the ends. */
#include "test.h"

#include <deque>
#include <random>

namespace {

using test::Str;
using test::Take;
using test::Text;

constexpr const char *path = "source/runtime/ko_vector.cpp";

using Vector = KoRef<KoVector>;
using Texts = std::vector<std::string>;

Vector Of( const Texts &texts )
{
    auto v = Vector::Adopt( koVectorCreate() );
    for ( const std::string &text : texts ) {
        koVectorAppendString( v.Address(), Str( text ).Get() );
    }
    return v;
}

std::string At( KoVector v, KoInt index )
{
    return Take( koStringFrom( koVectorObjAt( v, index ) ) );
}

Texts All( const Vector &v )
{
    Texts texts;
    for ( KoInt i = 0; i < koVectorLength( v.Get() ); ++i ) {
        texts.push_back( At( v.Get(), i ) );
    }
    return texts;
}

KoInt Order( const Texts &a, const Texts &b )
{
    const KoInt order = koObjCompare( koVectorObj( Of( a ).Get() ), koVectorObj( Of( b ).Get() ) );
    return order < 0 ? -1 : order > 0;
}

class VectorTest : public test::Fixture {};

// --- Sort, casts, references

TEST_F( VectorTest, CastsChangeNoCount )
{
    const Vector v = Of( { "a" } );
    EXPECT_EQ( koVectorFrom( koVectorObj( v.Get() ) ), v.Get() );
    EXPECT_EQ( koObjSort( koVectorObj( v.Get() ) ), koVectorSort() );
    EXPECT_EQ( test::Count( v.Get() ), 1 );
    EXPECT_EQ( koVectorFrom( nullptr ), nullptr );
    EXPECT_EQ( koVectorObj( nullptr ), nullptr );
    EXPECT_ABORT( koVectorFrom( koStringObj( Str( "a" ).Get() ) ), path, "!obj || koObjSort( obj ) == koVectorSort()" );
    EXPECT_STREQ( koVectorSort()->name, "KO_VECTOR" );
    EXPECT_EQ( koVectorSort()->module, koModule() );
}

TEST_F( VectorTest, RetainAndReleaseCount )
{
    const Vector v = Of( { "a" } );
    EXPECT_EQ( koVectorRetain( v.Get() ), v.Get() );
    EXPECT_EQ( test::Count( v.Get() ), 2 );
    koVectorRelease( v.Get() );
    EXPECT_EQ( test::Count( v.Get() ), 1 );
    EXPECT_ABORT( koVectorRetain( nullptr ), path, "object" );
    EXPECT_ABORT( koVectorRelease( nullptr ), path, "object" );
}

// --- Creation and reading

TEST_F( VectorTest, TheEmptyVectorIsOneConstant )
{
    const Vector a = Of( {} );
    const Vector b = Of( {} );
    EXPECT_EQ( a.Get(), b.Get() );
    EXPECT_EQ( koVectorLength( a.Get() ), 0 );
    for ( int i = 0; i < 3; ++i ) {
        koVectorRelease( a.Get() );
    }
    EXPECT_EQ( koVectorLength( b.Get() ), 0 ) << "releases do not reach a constant";
}

TEST_F( VectorTest, AnElementComesWithAReference )
{
    const auto s = Str( "a" );
    auto v = Vector::Adopt( koVectorCreate() );
    koVectorAppendString( v.Address(), s.Get() );
    EXPECT_EQ( test::Count( s.Get() ), 2 );
    const auto element = KoRef<KoObj>::Adopt( koVectorObjAt( v.Get(), 0 ) );
    EXPECT_EQ( element.Get(), koStringObj( s.Get() ) );
    EXPECT_EQ( test::Count( s.Get() ), 3 );
}

TEST_F( VectorTest, ContainsOnly )
{
    auto v = Vector::Adopt( koVectorCreate() );
    EXPECT_TRUE( koVectorContainsOnly( v.Get(), koStringSort() ) ) << "an empty one holds nothing else";
    EXPECT_TRUE( koVectorContainsOnly( v.Get(), koBufferSort() ) );
    koVectorAppendString( v.Address(), Str( "a" ).Get() );
    koVectorAppendString( v.Address(), Str( "b" ).Get() );
    EXPECT_TRUE( koVectorContainsOnly( v.Get(), koStringSort() ) );
    EXPECT_FALSE( koVectorContainsOnly( v.Get(), koBufferSort() ) );
    koVectorAppendObj( v.Address(), koBufferObj( test::Buf( "x" ).Get() ) );
    EXPECT_FALSE( koVectorContainsOnly( v.Get(), koStringSort() ) );
    EXPECT_EQ( koVectorContainsOnly( v.Get(), koBufferSort() ), KO_FALSE );
}

TEST_F( VectorTest, Text )
{
    EXPECT_EQ( Take( koVectorToString( Of( {} ).Get() ) ), "[]" );
    EXPECT_EQ( Take( koVectorToString( Of( { "" } ).Get() ) ), "[]" ) << "the text of an empty string is empty";
    EXPECT_EQ( Take( koVectorToString( Of( { "a" } ).Get() ) ), "[a]" );
    EXPECT_EQ( Take( koVectorToString( Of( { "a", "", "b, c" } ).Get() ) ), "[a, , b, c]" );
    EXPECT_EQ( Take( koObjToString( koVectorObj( Of( { "ä", "€" } ).Get() ) ) ), "[ä, €]" );
    Vector outer = Of( { "x" } );
    koVectorAppendObj( outer.Address(), koVectorObj( Of( { "y", "z" } ).Get() ) );
    EXPECT_EQ( Take( koVectorToString( outer.Get() ) ), "[x, [y, z]]" );
}

TEST_F( VectorTest, OrderIsLexicographic )
{
    EXPECT_EQ( Order( {}, {} ), 0 );
    EXPECT_EQ( Order( {}, { "" } ), -1 ) << "a proper prefix is less";
    EXPECT_EQ( Order( { "a" }, { "a", "a" } ), -1 );
    EXPECT_EQ( Order( { "b" }, { "a", "a" } ), 1 );
    EXPECT_EQ( Order( { "a", "b" }, { "a", "b" } ), 0 );
    EXPECT_EQ( Order( { "a", "b" }, { "a", "c" } ), -1 );
    EXPECT_EQ( Order( { "a", "c" }, { "a", "b", "x" } ), 1 );
}

// --- Changing

TEST_F( VectorTest, Changes )
{
    Vector v = Of( { "a", "b", "c" } );
    koVectorPrependString( v.Address(), Str( "0" ).Get() );
    EXPECT_EQ( All( v ), ( Texts{ "0", "a", "b", "c" } ) );
    koVectorInsertString( v.Address(), 2, Str( "x" ).Get() );
    EXPECT_EQ( All( v ), ( Texts{ "0", "a", "x", "b", "c" } ) );
    koVectorInsertString( v.Address(), 5, Str( "end" ).Get() );
    EXPECT_EQ( All( v ), ( Texts{ "0", "a", "x", "b", "c", "end" } ) );
    koVectorInsertString( v.Address(), 0, Str( "begin" ).Get() );
    EXPECT_EQ( All( v ), ( Texts{ "begin", "0", "a", "x", "b", "c", "end" } ) );
    koVectorSetStringAt( v.Address(), 3, Str( "y" ).Get() );
    EXPECT_EQ( All( v ), ( Texts{ "begin", "0", "a", "y", "b", "c", "end" } ) );
    koVectorDelAt( v.Address(), 6 );
    koVectorDelAt( v.Address(), 0 );
    EXPECT_EQ( All( v ), ( Texts{ "0", "a", "y", "b", "c" } ) );
    koVectorDelLeading( v.Address(), 0 );
    EXPECT_EQ( koVectorLength( v.Get() ), 5 );
    koVectorDelLeading( v.Address(), 2 );
    EXPECT_EQ( All( v ), ( Texts{ "y", "b", "c" } ) );
    koVectorDelLeading( v.Address(), -1 );
    EXPECT_EQ( All( v ), Texts{} );
    koVectorClear( v.Address() );
    EXPECT_EQ( koVectorLength( v.Get() ), 0 );
    koVectorAppendString( v.Address(), Str( "again" ).Get() );
    EXPECT_EQ( All( v ), Texts{ "again" } );
}

TEST_F( VectorTest, AChangeOfASharedVectorCopies )
{
    struct Change {
        const char *name;
        void ( *make )( KoVector *v );
    };
    const Change changes[] = {
        { "append", []( KoVector *v ) { koVectorAppendString( v, Str( "x" ).Get() ); } },
        { "append object", []( KoVector *v ) { koVectorAppendObj( v, koStringObj( Str( "x" ).Get() ) ); } },
        { "prepend", []( KoVector *v ) { koVectorPrependString( v, Str( "x" ).Get() ); } },
        { "insert", []( KoVector *v ) { koVectorInsertString( v, 1, Str( "x" ).Get() ); } },
        { "set", []( KoVector *v ) { koVectorSetStringAt( v, 1, Str( "x" ).Get() ); } },
        { "delete", []( KoVector *v ) { koVectorDelAt( v, 1 ); } },
        { "delete leading", []( KoVector *v ) { koVectorDelLeading( v, 1 ); } },
        { "clear", []( KoVector *v ) { koVectorClear( v ); } },
    };
    for ( const Change &change : changes ) {
        const Vector kept = Of( { "a", "b", "c" } );
        Vector v = Vector::Share( kept.Get() );
        change.make( v.Address() );
        EXPECT_NE( v.Get(), kept.Get() ) << change.name;
        EXPECT_EQ( All( kept ), ( Texts{ "a", "b", "c" } ) ) << change.name;
        EXPECT_NE( All( v ), All( kept ) ) << change.name;
        EXPECT_EQ( test::Count( kept.Get() ), 1 ) << change.name;
    }
}

TEST_F( VectorTest, AChangeOfAUniqueVectorStays )
{
    Vector v = Of( { "a", "b", "c" } );
    const KoVector earlier = v.Get();
    koVectorSetStringAt( v.Address(), 1, Str( "x" ).Get() );
    koVectorDelAt( v.Address(), 2 );
    koVectorInsertString( v.Address(), 1, Str( "y" ).Get() );
    EXPECT_EQ( v.Get(), earlier );
    const KoVector shared = koVectorRetain( v.Get() );
    koVectorDelLeading( v.Address(), 0 );
    EXPECT_EQ( v.Get(), shared ) << "nothing to remove, nothing to copy";
    koVectorRelease( shared );
}

TEST_F( VectorTest, AnElementMayBeReplacedByItself )
{
    const auto s = Str( "a" );
    auto v = Vector::Adopt( koVectorCreate() );
    koVectorAppendString( v.Address(), s.Get() );
    koVectorSetStringAt( v.Address(), 0, s.Get() );
    EXPECT_EQ( test::Count( s.Get() ), 2 );
    Vector lent = Of( { "only reference" } );
    const KoObj element = koVectorObjAt( lent.Get(), 0 );
    koObjRelease( element );
    koVectorSetStringAt( lent.Address(), 0, koStringFrom( element ) );
    EXPECT_EQ( All( lent ), Texts{ "only reference" } );
}

TEST_F( VectorTest, AVectorMayBePutIntoItself )
{
    Vector v = Of( { "a" } );
    koVectorAppendObj( v.Address(), koVectorObj( v.Get() ) );
    EXPECT_EQ( Take( koVectorToString( v.Get() ) ), "[a, [a]]" );
}

TEST_F( VectorTest, RandomChangesAgreeWithAModel )
{
    std::mt19937 random( 1 );
    const auto below = [&]( size_t n ) { return static_cast<size_t>( random() % n ); };
    for ( int run = 0; run < 200; ++run ) {
        std::deque<std::string> model;
        auto v = Vector::Adopt( koVectorCreate() );
        std::deque<std::string> keptModel;
        auto kept = Vector::Share( v.Get() );
        const size_t most = 1 + below( 40 );
        for ( int step = 0; step < 400; ++step ) {
            const std::string text = std::to_string( random() );
            const size_t n = model.size();
            size_t what = below( 10 );
            if ( n > most ) {
                what = 4 + below( 3 );
            }
            switch ( what ) {
            case 0:
            case 1:
                koVectorAppendString( v.Address(), Str( text ).Get() );
                model.push_back( text );
                break;
            case 2:
                koVectorPrependString( v.Address(), Str( text ).Get() );
                model.push_front( text );
                break;
            case 3: {
                const size_t at = below( n + 1 );
                koVectorInsertString( v.Address(), static_cast<KoInt>( at ), Str( text ).Get() );
                model.insert( model.begin() + static_cast<ptrdiff_t>( at ), text );
                break;
            }
            case 4:
            case 5:
                if ( n > 0 ) {
                    const size_t at = below( n );
                    koVectorDelAt( v.Address(), static_cast<KoInt>( at ) );
                    model.erase( model.begin() + static_cast<ptrdiff_t>( at ) );
                }
                break;
            case 6: {
                const size_t count = below( n + 1 );
                koVectorDelLeading( v.Address(), static_cast<KoInt>( count ) );
                model.erase( model.begin(), model.begin() + static_cast<ptrdiff_t>( count ) );
                break;
            }
            case 7:
                if ( n > 0 ) {
                    const size_t at = below( n );
                    koVectorSetStringAt( v.Address(), static_cast<KoInt>( at ), Str( text ).Get() );
                    model[at] = text;
                }
                break;
            case 8:
                kept = Vector::Share( v.Get() );
                keptModel = model;
                break;
            default:
                if ( below( 30 ) == 0 ) {
                    koVectorClear( v.Address() );
                    model.clear();
                }
            }
            ASSERT_EQ( koVectorLength( v.Get() ), static_cast<KoInt>( model.size() ) );
        }
        ASSERT_EQ( All( v ), Texts( model.begin(), model.end() ) );
        ASSERT_EQ( All( kept ), Texts( keptModel.begin(), keptModel.end() ) );
    }
}

// A change that moved the other elements would need some 10^11 steps here: the test would run into its time limit.
TEST_F( VectorTest, ChangesAtTheEndsDoNotMoveTheRest )
{
    const auto s = Str( "x" );
    auto v = Vector::Adopt( koVectorCreate() );
    constexpr KoInt count = 1000000;
    for ( KoInt i = 0; i < count / 2; ++i ) {
        koVectorAppendString( v.Address(), s.Get() );
        koVectorPrependString( v.Address(), s.Get() );
    }
    for ( KoInt i = 0; i < count; ++i ) { // a queue
        koVectorAppendString( v.Address(), s.Get() );
        koVectorDelAt( v.Address(), 0 );
    }
    for ( KoInt i = 0; i < count / 4; ++i ) { // one place
        koVectorInsertString( v.Address(), count / 2, s.Get() );
        koVectorDelAt( v.Address(), count / 2 - 1 );
        koVectorInsertString( v.Address(), count / 2, s.Get() );
    }
    EXPECT_EQ( koVectorLength( v.Get() ), count + count / 4 );
    while ( koVectorLength( v.Get() ) > 0 ) {
        koVectorDelAt( v.Address(), 0 );
    }
    EXPECT_EQ( test::Count( s.Get() ), 1 );
}

TEST_F( VectorTest, Preconditions )
{
    const char *const inside = "index >= 0 && index < koVectorLength( v )";
    const char *const insideOwn = "index >= 0 && index < koVectorLength( *v )";
    const char *const place = "index >= 0 && index <= koVectorLength( *v )";
    const char *const count = "count >= -1 && count <= koVectorLength( *v )";
    Vector owned = Of( { "a", "b" } );
    const auto string = Str( "s" );
    KoString s = string.Get();
    KoVector *v = owned.Address();
    KoVector null = nullptr;
    EXPECT_ABORT( koVectorLength( nullptr ), path, "v" );
    EXPECT_ABORT( koVectorObjAt( nullptr, 5 ), path, "v" );
    EXPECT_ABORT( koVectorObjAt( *v, -1 ), path, inside );
    EXPECT_ABORT( koVectorObjAt( *v, 2 ), path, inside );
    EXPECT_ABORT( koVectorObjAt( *v, INT64_MIN ), path, inside );
    EXPECT_ABORT( koVectorContainsOnly( nullptr, nullptr ), path, "v" );
    EXPECT_ABORT( koVectorContainsOnly( *v, nullptr ), path, "sort" );
    EXPECT_ABORT( koVectorToString( nullptr ), path, "v" );
    EXPECT_ABORT( koVectorAppendString( nullptr, s ), path, "v" );
    EXPECT_ABORT( koVectorAppendString( &null, s ), path, "*v" );
    EXPECT_ABORT( koVectorAppendString( v, nullptr ), path, "s" );
    EXPECT_ABORT( koVectorAppendObj( nullptr, koStringObj( s ) ), path, "v" );
    EXPECT_ABORT( koVectorAppendObj( &null, koStringObj( s ) ), path, "*v" );
    EXPECT_ABORT( koVectorAppendObj( v, nullptr ), path, "obj" );
    EXPECT_ABORT( koVectorPrependString( nullptr, s ), path, "v" );
    EXPECT_ABORT( koVectorPrependString( &null, s ), path, "*v" );
    EXPECT_ABORT( koVectorPrependString( v, nullptr ), path, "s" );
    EXPECT_ABORT( koVectorInsertString( nullptr, 0, s ), path, "v" );
    EXPECT_ABORT( koVectorInsertString( &null, 0, s ), path, "*v" );
    EXPECT_ABORT( koVectorInsertString( v, 3, nullptr ), path, place );
    EXPECT_ABORT( koVectorInsertString( v, -1, s ), path, place );
    EXPECT_ABORT( koVectorInsertString( v, 2, nullptr ), path, "s" );
    EXPECT_ABORT( ko___VectorInsertTaken( nullptr, 0, koStringObj( s ) ), path, "v" );
    EXPECT_ABORT( ko___VectorInsertTaken( &null, 0, koStringObj( s ) ), path, "*v" );
    EXPECT_ABORT( ko___VectorInsertTaken( v, 3, nullptr ), path, place );
    EXPECT_ABORT( ko___VectorInsertTaken( v, -1, koStringObj( s ) ), path, place );
    EXPECT_ABORT( ko___VectorInsertTaken( v, 2, nullptr ), path, "taken" );
    EXPECT_ABORT( koVectorSetStringAt( nullptr, 0, s ), path, "v" );
    EXPECT_ABORT( koVectorSetStringAt( &null, 0, s ), path, "*v" );
    EXPECT_ABORT( koVectorSetStringAt( v, 2, nullptr ), path, insideOwn );
    EXPECT_ABORT( koVectorSetStringAt( v, -1, s ), path, insideOwn );
    EXPECT_ABORT( koVectorSetStringAt( v, 0, nullptr ), path, "s" );
    EXPECT_ABORT( koVectorDelAt( nullptr, 0 ), path, "v" );
    EXPECT_ABORT( koVectorDelAt( &null, 0 ), path, "*v" );
    EXPECT_ABORT( koVectorDelAt( v, 2 ), path, insideOwn );
    EXPECT_ABORT( koVectorDelAt( v, -1 ), path, insideOwn );
    EXPECT_ABORT( koVectorDelLeading( nullptr, 0 ), path, "v" );
    EXPECT_ABORT( koVectorDelLeading( &null, 0 ), path, "*v" );
    EXPECT_ABORT( koVectorDelLeading( v, 3 ), path, count );
    EXPECT_ABORT( koVectorDelLeading( v, -2 ), path, count );
    EXPECT_ABORT( koVectorClear( nullptr ), path, "v" );
    EXPECT_ABORT( koVectorClear( &null ), path, "*v" );
}

} // namespace
