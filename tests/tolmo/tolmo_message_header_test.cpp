/* Raw headers: a name and its lines. */
#include "tolmo_test.h"

#include <functional>

namespace {

using test::Own;
using test::Str;
using test::Take;
using test::Text;

constexpr char path[] = "source/tolmo/tolmo_message_header.cpp";

class MessageHeader : public test::TolmoFixture {
protected:
    static KoRef<TolmoMessageHeader> Create( std::string_view name, const std::vector<std::string> &lines = {} )
    {
        auto header = Own( tolmoMessageHeaderCreate( Str( name ).Get() ) );
        for ( const std::string &line : lines ) {
            tolmoMessageHeaderAppendLine( header.Address(), Str( line ).Get() );
        }
        return header;
    }
    static std::string Lines( const KoRef<TolmoMessageHeader> &header )
    {
        std::string all;
        for ( KoInt i = 0; i < tolmoMessageHeaderLinesLength( header.Get() ); ++i ) {
            all += Take( tolmoMessageHeaderLineAt( header.Get(), i ) ) + "|";
        }
        return all;
    }
    static std::string Name( const KoRef<TolmoMessageHeader> &header )
    {
        return Take( tolmoMessageHeaderName( header.Get() ) );
    }
};

TEST_F( MessageHeader, NameOk )
{
    for ( const char *good : { "Via", "a", "%", "-", "!%'*+-._`~", "0", "X-\x60~" } ) {
        EXPECT_TRUE( tolmoMessageHeaderNameOk( Str( good ).Get() ) ) << good;
    }
    for ( const char *bad :
          { "",   "a b", " a", "a ", "a:", ":",  "a\t", "(",  "\"a\"",  "a/b",     "a@b",   "a#",
            "a&", "a$",  "a=", "a?", "a^", "a{", "a|",  "a}", "\u00E9", "a\u00E9", "a\x7F", "a\n" } ) {
        EXPECT_FALSE( tolmoMessageHeaderNameOk( Str( bad ).Get() ) ) << bad;
    }
    EXPECT_FALSE( tolmoMessageHeaderNameOk( Str( std::string_view( "a\0", 2 ) ).Get() ) );
    EXPECT_ABORT( tolmoMessageHeaderNameOk( nullptr ), path, "name" );
    EXPECT_ABORT( tolmoMessageHeaderNameNormalize( Str( "a b" ).Get() ), path, "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderNameNormalize( Str( "" ).Get() ), path, "tolmoMessageHeaderNameOk( name )" );
}

TEST_F( MessageHeader, LineOk )
{
    for ( const char *good : { "", " ", "a", " a ", "\r", "\n", "\n\r", "a\nb\rc", "\x01\x7F\t", "\u4E2D", "\r\r" } ) {
        EXPECT_TRUE( tolmoMessageHeaderLineOk( Str( good ).Get() ) ) << good;
    }
    EXPECT_TRUE( tolmoMessageHeaderLineOk( Str( std::string_view( "\r\0\n", 3 ) ).Get() ) );
    for ( const char *bad : { "\r\n", "a\r\nb", "a\r\n", "\r\na", "\r\r\n", "a\r\n b" } ) {
        EXPECT_FALSE( tolmoMessageHeaderLineOk( Str( bad ).Get() ) ) << bad;
    }
    EXPECT_ABORT( tolmoMessageHeaderLineOk( nullptr ), path, "value" );
}

TEST_F( MessageHeader, Create )
{
    const auto header = Create( "V" );
    EXPECT_EQ( Name( header ), "Via" );
    EXPECT_EQ( tolmoMessageHeaderLinesLength( header.Get() ), 0 );
    EXPECT_EQ( tolmoMessageHeaderLastLine( header.Get() ), nullptr );
    EXPECT_EQ( test::Count( header.Get() ), 1 );
    EXPECT_EQ( Name( Own( tolmoMessageHeaderCreateCstr( "x-abc", -1 ) ) ), "X-Abc" );
    EXPECT_EQ( Name( Own( tolmoMessageHeaderCreateCstr( "x-abc", 1 ) ) ), "Session-Expires" ); // `x`
    const uint16_t wide[] = { 'v', 'i', 'a', 0 };
    EXPECT_EQ( Name( Own( tolmoMessageHeaderCreateWcstr( wide, -1 ) ) ), "Via" );
    EXPECT_EQ( Name( Own( tolmoMessageHeaderCreateWcstr( wide, 2 ) ) ), "Vi" );
    EXPECT_ABORT( tolmoMessageHeaderCreate( Str( "a b" ).Get() ), path, "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderCreate( nullptr ), path, "name" );
    EXPECT_ABORT( tolmoMessageHeaderCreateCstr( "", -1 ), path, "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderCreateWcstr( wide, 0 ), path, "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderName( nullptr ), path, "header" );
}

TEST_F( MessageHeader, SetName )
{
    auto header = Create( "Via", { "x" } );
    const TolmoMessageHeader object = header.Get();
    tolmoMessageHeaderSetName( header.Address(), Str( "max-FORWARDS" ).Get() );
    EXPECT_EQ( header.Get(), object );
    EXPECT_EQ( Name( header ), "Max-Forwards" );
    tolmoMessageHeaderSetNameCstr( header.Address(), "f", -1 );
    EXPECT_EQ( Name( header ), "From" );
    const uint16_t wide[] = { 't', 'o' };
    tolmoMessageHeaderSetNameWcstr( header.Address(), wide, 2 );
    EXPECT_EQ( Name( header ), "To" );
    EXPECT_EQ( Lines( header ), "x|" );

    const auto other = KoRef<TolmoMessageHeader>::Share( header.Get() );
    tolmoMessageHeaderSetName( header.Address(), Str( "a" ).Get() );
    EXPECT_EQ( Name( other ), "To" );
    EXPECT_EQ( Name( header ), "Accept-Contact" );
    EXPECT_EQ( test::Count( other.Get() ), 1 );

    TolmoMessageHeader null = nullptr;
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoMessageHeaderSetName( nullptr, bad.Get() ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderSetName( &null, bad.Get() ), path, "*header" );
    EXPECT_ABORT( tolmoMessageHeaderSetName( header.Address(), bad.Get() ), path, "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderSetNameCstr( nullptr, "a", -1 ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderSetNameWcstr( header.Address(), wide, 0 ), path,
                  "tolmoMessageHeaderNameOk( name )" );
}

TEST_F( MessageHeader, NameEquals )
{
    const auto header = Create( "Via" );
    const uint16_t wide[] = { 'V', 0 };
    EXPECT_TRUE( tolmoMessageHeaderNameEquals( header.Get(), Str( "v" ).Get() ) );
    EXPECT_TRUE( tolmoMessageHeaderNameEquals( header.Get(), Str( "VIA" ).Get() ) );
    EXPECT_FALSE( tolmoMessageHeaderNameEquals( header.Get(), Str( "Vi" ).Get() ) );
    EXPECT_FALSE( tolmoMessageHeaderNameEquals( header.Get(), Str( "To" ).Get() ) );
    EXPECT_TRUE( tolmoMessageHeaderNameEqualsCstr( header.Get(), "via", -1 ) );
    EXPECT_FALSE( tolmoMessageHeaderNameEqualsCstr( header.Get(), "via", 2 ) );
    EXPECT_TRUE( tolmoMessageHeaderNameEqualsWcstr( header.Get(), wide, -1 ) );
    EXPECT_ABORT( tolmoMessageHeaderNameEquals( nullptr, Str( "" ).Get() ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderNameEquals( header.Get(), Str( "" ).Get() ), path,
                  "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderNameEqualsCstr( header.Get(), "a b", -1 ), path,
                  "tolmoMessageHeaderNameOk( name )" );
}

TEST_F( MessageHeader, LinesVector )
{
    auto header = Create( "To", { "a" } );
    auto lines = Own( koVectorCreate() );
    koVectorAppendString( lines.Address(), Str( "x" ).Get() );
    koVectorAppendString( lines.Address(), Str( "y\nz" ).Get() );
    tolmoMessageHeaderSetLinesVector( header.Address(), lines.Get() );
    EXPECT_EQ( Own( tolmoMessageHeaderLinesVector( header.Get() ) ).Get(), lines.Get() ); // shared, not copied
    EXPECT_EQ( Lines( header ), "x|y\nz|" );
    koVectorAppendString( lines.Address(), Str( "later" ).Get() ); // copies, since it is shared
    EXPECT_EQ( Lines( header ), "x|y\nz|" );
    auto got = Own( tolmoMessageHeaderLinesVector( header.Get() ) );
    koVectorClear( got.Address() );
    EXPECT_EQ( Lines( header ), "x|y\nz|" );
    // The header on its side leaves the caller's vector alone.
    tolmoMessageHeaderSetLinesVector( header.Address(), lines.Get() );
    tolmoMessageHeaderDelLineAt( header.Address(), 0 );
    EXPECT_EQ( koVectorLength( lines.Get() ), 3 );
    EXPECT_EQ( Lines( header ), "y\nz|later|" );
    // Its own vector, and an empty one.
    tolmoMessageHeaderSetLinesVector( header.Address(), Own( tolmoMessageHeaderLinesVector( header.Get() ) ).Get() );
    EXPECT_EQ( Lines( header ), "y\nz|later|" );
    tolmoMessageHeaderSetLinesVector( header.Address(), Own( koVectorCreate() ).Get() );
    EXPECT_EQ( Lines( header ), "" );

    const auto other = KoRef<TolmoMessageHeader>::Share( header.Get() );
    tolmoMessageHeaderSetLinesVector( header.Address(), lines.Get() );
    EXPECT_EQ( Lines( other ), "" );

    TolmoMessageHeader null = nullptr;
    auto mixed = Own( koVectorCreate() );
    koVectorAppendString( mixed.Address(), Str( "bad\r\n" ).Get() );
    koVectorAppendObj( mixed.Address(), koVectorObj( lines.Get() ) );
    auto bad = Own( koVectorCreate() );
    koVectorAppendString( bad.Address(), Str( "good" ).Get() );
    koVectorAppendString( bad.Address(), Str( "bad\r\n" ).Get() );
    EXPECT_ABORT( tolmoMessageHeaderSetLinesVector( nullptr, nullptr ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderSetLinesVector( &null, nullptr ), path, "*header" );
    EXPECT_ABORT( tolmoMessageHeaderSetLinesVector( header.Address(), nullptr ), path, "lines" );
    EXPECT_ABORT( tolmoMessageHeaderSetLinesVector( header.Address(), mixed.Get() ), path,
                  "koVectorContainsOnly( lines, koStringSort() )" );
    EXPECT_ABORT( tolmoMessageHeaderSetLinesVector( header.Address(), bad.Get() ), path,
                  "tolmoMessageHeaderLineOk( line )" );
    EXPECT_ABORT( tolmoMessageHeaderLinesVector( nullptr ), path, "header" );
}

TEST_F( MessageHeader, Lines )
{
    auto header = Create( "To", { "a", "", "c" } );
    EXPECT_EQ( tolmoMessageHeaderLinesLength( header.Get() ), 3 );
    EXPECT_EQ( Take( tolmoMessageHeaderLastLine( header.Get() ) ), "c" );
    EXPECT_EQ( Take( tolmoMessageHeaderLineAt( header.Get(), 1 ) ), "" );
    tolmoMessageHeaderSetLineAt( header.Address(), 1, Str( "b" ).Get() );
    EXPECT_EQ( Lines( header ), "a|b|c|" );
    tolmoMessageHeaderDelLineAt( header.Address(), 0 );
    tolmoMessageHeaderDelLineAt( header.Address(), 1 );
    EXPECT_EQ( Lines( header ), "b|" );
    // The line that it holds already, with the last reference.
    tolmoMessageHeaderSetLineAt( header.Address(), 0, Own( tolmoMessageHeaderLineAt( header.Get(), 0 ) ).Get() );
    EXPECT_EQ( Lines( header ), "b|" );
    // A line is a snapshot: the caller's string can go on to change.
    auto line = Str( "x" );
    tolmoMessageHeaderAppendLine( header.Address(), line.Get() );
    koStringAppendChar( line.Address(), 'y' );
    EXPECT_EQ( Lines( header ), "b|x|" );
    // Two halves of a line end can stand in two lines.
    tolmoMessageHeaderAppendLine( header.Address(), Str( "\r" ).Get() );
    tolmoMessageHeaderAppendLine( header.Address(), Str( "\n" ).Get() );
    EXPECT_EQ( Lines( header ), "b|x|\r|\n|" );

    EXPECT_ABORT( tolmoMessageHeaderLinesLength( nullptr ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderLineAt( nullptr, 0 ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderLastLine( nullptr ), path, "header" );
    // An index outside is the runtime's business.
    for ( const KoInt index : { KoInt{ -1 }, KoInt{ 4 }, KoInt{ INT64_MAX }, KoInt{ INT64_MIN } } ) {
        const auto line0 = Str( "x" );
        EXPECT_TRUE( test::RunInChild( [&] { tolmoMessageHeaderLineAt( header.Get(), index ); } ).aborted );
        EXPECT_TRUE( test::RunInChild( [&] { tolmoMessageHeaderDelLineAt( header.Address(), index ); } ).aborted );
        EXPECT_TRUE(
            test::RunInChild( [&] { tolmoMessageHeaderSetLineAt( header.Address(), index, line0.Get() ); } ).aborted );
    }
}

/** All twelve forms of appending and replacing, on a header of one line that somebody else holds, too. */
TEST_F( MessageHeader, LineForms )
{
    const uint16_t wide[] = { 'w', 0x4E2D, 0 };
    const uint16_t wideFormat[] = { '<', '%', 's', '>', '%', 'i', 0 };
    const auto format = Str( "%s-%i" );
    const auto argument = Str( "arg" );
    using Mutator = std::function<void( TolmoMessageHeader * )>;
    const struct {
        Mutator mutate;
        const char *lines;
    } rows[] = {
        { [&]( auto h ) { tolmoMessageHeaderAppendLine( h, argument.Get() ); }, "old|arg|" },
        { []( auto h ) { tolmoMessageHeaderAppendLineCstr( h, "text", -1 ); }, "old|text|" },
        { []( auto h ) { tolmoMessageHeaderAppendLineCstr( h, "text", 2 ); }, "old|te|" },
        { []( auto h ) { tolmoMessageHeaderAppendLineCstr( h, nullptr, 0 ); }, "old||" },
        { [&]( auto h ) { tolmoMessageHeaderAppendLineWcstr( h, wide, -1 ); }, "old|w\u4E2D|" },
        { [&]( auto h ) { tolmoMessageHeaderAppendLineWcstr( h, wide, 1 ); }, "old|w|" },
        { [&]( auto h ) { tolmoMessageHeaderAppendLineFormat( h, format.Get(), argument.Get(), KoInt{ -7 } ); },
          "old|arg--7|" },
        { [&]( auto h ) { tolmoMessageHeaderAppendLineFormatCstr( h, "%i", -1, KoInt{ INT64_MAX } ); },
          "old|9223372036854775807|" },
        { [&]( auto h ) { tolmoMessageHeaderAppendLineFormatCstr( h, "%~s", -1, koStringRetain( argument.Get() ) ); },
          "old|arg|" },
        { [&]( auto h ) { tolmoMessageHeaderAppendLineFormatWcstr( h, wideFormat, -1, argument.Get(), KoInt{ 1 } ); },
          "old|<arg>1|" },
        { [&]( auto h ) { tolmoMessageHeaderSetLineAt( h, 0, argument.Get() ); }, "arg|" },
        { []( auto h ) { tolmoMessageHeaderSetLineAtCstr( h, 0, "text", -1 ); }, "text|" },
        { [&]( auto h ) { tolmoMessageHeaderSetLineAtWcstr( h, 0, wide, -1 ); }, "w\u4E2D|" },
        { [&]( auto h ) { tolmoMessageHeaderSetLineAtFormat( h, 0, format.Get(), argument.Get(), KoInt{ 0 } ); },
          "arg-0|" },
        { [&]( auto h ) { tolmoMessageHeaderSetLineAtFormatCstr( h, 0, "%s!", -1, argument.Get() ); }, "arg!|" },
        { [&]( auto h ) { tolmoMessageHeaderSetLineAtFormatWcstr( h, 0, wideFormat, 4, argument.Get() ); }, "<arg>|" },
        { []( auto h ) { tolmoMessageHeaderDelLineAt( h, 0 ); }, "" },
    };
    for ( const auto &row : rows ) {
        auto header = Create( "To", { "old" } );
        const TolmoMessageHeader object = header.Get();
        row.mutate( header.Address() );
        EXPECT_EQ( header.Get(), object );
        EXPECT_EQ( Lines( header ), row.lines );

        auto shared = Create( "To", { "old" } );
        const auto other = KoRef<TolmoMessageHeader>::Share( shared.Get() );
        row.mutate( shared.Address() );
        EXPECT_NE( shared.Get(), other.Get() );
        EXPECT_EQ( test::Count( other.Get() ), 1 );
        EXPECT_EQ( Lines( other ), "old|" ) << row.lines;
        EXPECT_EQ( Lines( shared ), row.lines );
        EXPECT_EQ( Name( shared ), "To" );

        TolmoMessageHeader null = nullptr;
        EXPECT_ABORT( row.mutate( nullptr ), path, "header" );
        EXPECT_ABORT( row.mutate( &null ), path, "*header" );
    }
}

TEST_F( MessageHeader, BadLines )
{
    const uint16_t wide[] = { '\r', '\n', 0 };
    auto header = Create( "To", { "old" } );
    const auto bad = Str( "a\r\nb" );
    const char lineOk[] = "tolmoMessageHeaderLineOk( value )";
    TolmoMessageHeader *const h = header.Address();
    EXPECT_ABORT( tolmoMessageHeaderAppendLine( h, bad.Get() ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderAppendLine( h, nullptr ), path, "value" );
    EXPECT_ABORT( tolmoMessageHeaderAppendLineCstr( h, "\r\n", -1 ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderAppendLineWcstr( h, wide, -1 ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderAppendLineFormat( h, bad.Get() ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderAppendLineFormatCstr( h, "%s", -1, bad.Get() ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderAppendLineFormatWcstr( h, wide, -1 ), path, lineOk );
    // The line is looked at before the index.
    EXPECT_ABORT( tolmoMessageHeaderSetLineAt( h, 99, bad.Get() ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderSetLineAtCstr( h, 99, "\r\n", -1 ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderSetLineAtWcstr( h, 99, wide, -1 ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderSetLineAtFormat( h, 99, bad.Get() ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderSetLineAtFormatCstr( h, 99, "%s", -1, bad.Get() ), path, lineOk );
    EXPECT_ABORT( tolmoMessageHeaderSetLineAtFormatWcstr( h, 99, wide, -1 ), path, lineOk );
}

TEST_F( MessageHeader, Compare )
{
    const auto equals = []( const KoRef<TolmoMessageHeader> &a, const KoRef<TolmoMessageHeader> &b ) {
        return tolmoMessageHeaderEquals( a.Get(), b.Get() ) != 0;
    };
    EXPECT_TRUE( equals( Create( "v", { "a" } ), Create( "VIA", { "a" } ) ) );
    EXPECT_FALSE( equals( Create( "v", { "a", "b" } ), Create( "v", { "b", "a" } ) ) ); // the order of lines counts
    EXPECT_FALSE( equals( Create( "v", { "a" } ), Create( "v", { "a", "a" } ) ) );
    EXPECT_LT( tolmoMessageHeaderCompare( Create( "a-b", { "z" } ).Get(), Create( "b-b", { "a" } ).Get() ), 0 );
    EXPECT_GT( tolmoMessageHeaderCompare( Create( "v", { "b" } ).Get(), Create( "v", { "a", "z" } ).Get() ), 0 );
    const KoSort sort = tolmoMessageHeaderSort();
    const auto header = Create( "v" );
    const KoObj obj = tolmoMessageHeaderObj( header.Get() );
    EXPECT_ABORT( sort->compare( nullptr, obj ), path, "thisObj" );
    EXPECT_ABORT( sort->compare( obj, nullptr ), path, "thatObj" );
    EXPECT_ABORT( sort->compare( nullptr, nullptr ), path, "thisObj" );
    EXPECT_ABORT( sort->free( nullptr ), path, "thisObj" );
    const auto string = Str( "x" );
    EXPECT_ABORT_MESSAGE( sort->compare( obj, koStringObj( string.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_MESSAGE_HEADER" );
    EXPECT_EQ( Take( tolmoMessageHeaderToString( header.Get() ) ), "<TOLMO_MESSAGE_HEADER>" );
}

TEST_F( MessageHeader, CreateFrom )
{
    const auto header = Create( "To", { "a" } );
    auto copy = Own( tolmoMessageHeaderCreateFrom( header.Get() ) );
    EXPECT_TRUE( tolmoMessageHeaderEquals( copy.Get(), header.Get() ) );
    EXPECT_EQ( Own( tolmoMessageHeaderLinesVector( copy.Get() ) ).Get(),
               Own( tolmoMessageHeaderLinesVector( header.Get() ) ).Get() );
    tolmoMessageHeaderAppendLineCstr( copy.Address(), "b", -1 ); // the vector is shared, so it is copied
    EXPECT_EQ( Lines( header ), "a|" );
    EXPECT_EQ( Lines( copy ), "a|b|" );
}

TEST_F( MessageHeader, Store )
{
    const auto name = Str( "name" );
    const auto lines = Str( "lines" );
    for ( const auto &header : { std::vector<std::string>{}, { "" }, { "a", "b\n", "a" } } ) {
        const auto stored = Create( "x-Y", header );
        const auto store = Own( tolmoMessageHeaderStore( stored.Get() ) );
        EXPECT_EQ( koStoreLength( store.Get() ), 2 );
        EXPECT_EQ( Take( koStoreValue( store.Get(), name.Get() ) ), "X-Y" );
        const auto array = Own( koStoreStore( store.Get(), lines.Get() ) );
        ASSERT_EQ( koStoreLength( array.Get() ), static_cast<KoInt>( header.size() ) );
        const auto alone = Own( tolmoMessageHeaderStoreLines( stored.Get() ) );
        for ( size_t i = 0; i < header.size(); ++i ) {
            EXPECT_EQ( Take( koStoreValueAt( array.Get(), static_cast<KoInt>( i ) ) ), header[i] );
            EXPECT_EQ( Take( koStoreValueAt( alone.Get(), static_cast<KoInt>( i ) ) ), header[i] );
        }
        EXPECT_EQ( koStoreLength( alone.Get() ), koStoreLength( array.Get() ) );
        EXPECT_TRUE(
            tolmoMessageHeaderEquals( Own( tolmoMessageHeaderTryRestore( store.Get() ) ).Get(), stored.Get() ) );
        EXPECT_TRUE( tolmoMessageHeaderEquals(
            Own( tolmoMessageHeaderRestoreLinesCstr( "X-y", -1, alone.Get() ) ).Get(), stored.Get() ) );
    }
    EXPECT_ABORT( tolmoMessageHeaderStore( nullptr ), path, "header" );
    EXPECT_ABORT( tolmoMessageHeaderStoreLines( nullptr ), path, "header" );
}

TEST_F( MessageHeader, TryRestore )
{
    const auto name = Str( "name" );
    const auto lines = Str( "lines" );
    auto array = Own( koStoreCreateArray() );
    koStoreAppendValue( array.Address(), Str( "a" ).Get() );
    koStoreAppendValue( array.Address(), Str( "bad\r\n" ).Get() );       // dropped in silence
    koStoreAppendStore( array.Address(), Own( koStoreCreate() ).Get() ); // likewise: no string
    koStoreAppendValue( array.Address(), Str( "b" ).Get() );
    auto store = Own( koStoreCreate() );
    EXPECT_EQ( tolmoMessageHeaderTryRestore( store.Get() ), nullptr ); // neither
    koStoreSetStore( store.Address(), lines.Get(), array.Get() );
    EXPECT_EQ( tolmoMessageHeaderTryRestore( store.Get() ), nullptr ); // no name
    koStoreSetValue( store.Address(), name.Get(), Str( "a b" ).Get() );
    EXPECT_EQ( tolmoMessageHeaderTryRestore( store.Get() ), nullptr ); // a bad one
    koStoreSetValue( store.Address(), name.Get(), Str( "" ).Get() );
    EXPECT_EQ( tolmoMessageHeaderTryRestore( store.Get() ), nullptr );
    koStoreSetValue( store.Address(), name.Get(), Str( "v" ).Get() );
    const auto header = Own( tolmoMessageHeaderTryRestore( store.Get() ) );
    EXPECT_EQ( Name( header ), "Via" );
    EXPECT_EQ( Lines( header ), "a|b|" );

    auto noLines = Own( koStoreCreate() );
    koStoreSetValue( noLines.Address(), name.Get(), Str( "a b" ).Get() );
    EXPECT_EQ( tolmoMessageHeaderTryRestore( noLines.Get() ), nullptr ); // the name is looked at first
    koStoreSetValue( noLines.Address(), name.Get(), Str( "v" ).Get() );
    EXPECT_ABORT( tolmoMessageHeaderTryRestore( noLines.Get() ), path, "store" ); // meant: a missing key is a fault
    koStoreSetValue( noLines.Address(), lines.Get(), Str( "text" ).Get() );
    EXPECT_ABORT( tolmoMessageHeaderTryRestore( noLines.Get() ), path, "store" );
    // A "name" that is a store is no name.
    auto nested = Own( koStoreCreate() );
    koStoreSetStore( nested.Address(), name.Get(), array.Get() );
    EXPECT_EQ( tolmoMessageHeaderTryRestore( nested.Get() ), nullptr );
    // Lines with names instead of places hold no line that counts.
    auto named = Own( koStoreCreate() );
    koStoreSetValue( named.Address(), name.Get(), Str( "v" ).Get() );
    koStoreSetStore( named.Address(), lines.Get(), store.Get() );
    EXPECT_EQ( Lines( Own( tolmoMessageHeaderTryRestore( named.Get() ) ) ), "" );
    EXPECT_ABORT( tolmoMessageHeaderTryRestore( nullptr ), path, "store" );

    const uint16_t wide[] = { 't', 0 };
    EXPECT_EQ( Lines( Own( tolmoMessageHeaderRestoreLines( Str( "t" ).Get(), array.Get() ) ) ), "a|b|" );
    EXPECT_EQ( Name( Own( tolmoMessageHeaderRestoreLinesWcstr( wide, -1, array.Get() ) ) ), "To" );
    EXPECT_EQ( Lines( Own( tolmoMessageHeaderRestoreLinesCstr( "t", -1, Own( koStoreCreateArray() ).Get() ) ) ), "" );
    EXPECT_ABORT( tolmoMessageHeaderRestoreLines( Str( "a b" ).Get(), nullptr ), path,
                  "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderRestoreLines( Str( "a" ).Get(), nullptr ), path, "store" );
    EXPECT_ABORT( tolmoMessageHeaderRestoreLinesCstr( "", -1, array.Get() ), path, "tolmoMessageHeaderNameOk( name )" );
    EXPECT_ABORT( tolmoMessageHeaderRestoreLinesWcstr( wide, -1, nullptr ), path, "store" );
}

TEST_F( MessageHeader, Large )
{
    auto header = Create( "v" );
    const auto line = Str( "x" );
    for ( int i = 0; i < 300000; ++i ) {
        tolmoMessageHeaderAppendLine( header.Address(), line.Get() );
    }
    const auto store = Own( tolmoMessageHeaderStore( header.Get() ) );
    const auto restored = Own( tolmoMessageHeaderTryRestore( store.Get() ) );
    EXPECT_TRUE( tolmoMessageHeaderEquals( restored.Get(), header.Get() ) );
}

} // namespace
