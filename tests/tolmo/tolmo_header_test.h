/*
 * What the tests of the typed headers share: the functions of a header type as one record, its rows, and the contract that
 * all single-value headers follow.
 */
#ifndef TOLMO_HEADER_TEST_H
#define TOLMO_HEADER_TEST_H

#include "tolmo/tolmo_test.h"

#include <initializer_list>
#include <utility>

namespace test {

template <class H>
struct HeaderType {
    std::string_view name;      // as the library writes it
    std::string_view path;      // of the unit
    std::string_view nameCheck; // what TryDecode requires
    std::string_view sortName;
    std::string_view sortCheck;
    KoSort ( *sort )();
    KoObj ( *obj )( H );
    H ( *from )( KoObj );
    H ( *retain )( H );
    void ( *release )( H );
    KoInt ( *compare )( H, H );
    KoBool ( *equals )( H, H );
    KoString ( *toString )( H );
    H ( *createFrom )( H );
    TolmoMessageHeader ( *encode )( H );
    H ( *tryDecode )( TolmoMessageHeader );
    void ( *encodeToMessage )( H, TolmoMessage * );
    H ( *tryDecodeFromMessage )( TolmoMessage );
    KoBool ( *presentInMessage )( TolmoMessage );
    void ( *removeFromMessage )( TolmoMessage * );
    KoStore ( *store )( H );
    H ( *tryRestore )( KoStore );
};

/** The record of TolmoHeaderType, in the unit tolmo_header_UNIT, with the sort TOLMO_HEADER_SORT. */
#define TEST_HEADER( Type, constant, unit, SORT, headerName )                                                          \
    {                                                                                                                  \
        headerName, "source/tolmo/tolmo_header_" unit ".cpp",                                                          \
            "tolmoMessageHeaderNameEquals( header, tolmo___Kos" #constant " )", "TOLMO_HEADER_" SORT,                  \
            "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_HEADER_" SORT, tolmoHeader##Type##Sort,                       \
            tolmoHeader##Type##Obj, tolmoHeader##Type##From, tolmoHeader##Type##Retain, tolmoHeader##Type##Release,    \
            tolmoHeader##Type##Compare, tolmoHeader##Type##Equals, tolmoHeader##Type##ToString,                        \
            tolmoHeader##Type##CreateFrom, tolmoHeader##Type##Encode, tolmoHeader##Type##TryDecode,                    \
            tolmoHeader##Type##EncodeToMessage, tolmoHeader##Type##TryDecodeFromMessage,                               \
            tolmoHeader##Type##PresentInMessage, tolmoHeader##Type##RemoveFromMessage, tolmoHeader##Type##Store,       \
            tolmoHeader##Type##TryRestore                                                                              \
    }

/** A raw header. */
inline KoRef<TolmoMessageHeader> Raw( std::string_view name, std::initializer_list<KoString> lines )
{
    auto header = Own( tolmoMessageHeaderCreate( Str( name ).Get() ) );
    for ( const KoString line : lines ) {
        tolmoMessageHeaderAppendLine( header.Address(), line );
    }
    return header;
}

/** The header of one line; null when it does not decode. */
template <class H>
KoRef<H> Decode( const HeaderType<H> &type, KoString line )
{
    return Own( type.tryDecode( Raw( type.name, { line } ).Get() ) );
}
template <class H>
KoRef<H> Decode( const HeaderType<H> &type, std::string_view line )
{
    return Decode( type, Str( line ).Get() );
}

/** The lines of a header, each with its end; "(null)" for null. */
template <class H>
std::string Encode( const HeaderType<H> &type, H hdr )
{
    if ( !hdr ) {
        return "(null)";
    }
    const auto raw = Own( type.encode( hdr ) );
    EXPECT_EQ( Take( tolmoMessageHeaderName( raw.Get() ) ), type.name );
    std::string text;
    for ( KoInt i = 0; i < tolmoMessageHeaderLinesLength( raw.Get() ); ++i ) {
        text += ( i ? "\n" : "" ) + Take( tolmoMessageHeaderLineAt( raw.Get(), i ) );
    }
    return text;
}
template <class H>
std::string Encode( const HeaderType<H> &type, const KoRef<H> &hdr )
{
    return Encode( type, hdr.Get() );
}

/** A request with the lines of a head. */
inline KoRef<TolmoMessage> Message( const std::string &lines )
{
    auto msg = Own( tolmoMessageTryDecode( Buf( "OPTIONS sip:a SIP/2.0\r\n" + lines + "\r\n" ).Get() ) );
    EXPECT_TRUE( msg ) << lines;
    return msg;
}

/** What came out of a line. */
template <class H>
std::string Recode( const HeaderType<H> &type, std::string_view line )
{
    return Encode( type, Decode( type, line ) );
}

/** The same for a line as it is received, which is not an object at any time. */
template <class H>
std::string RecodeReceived( const HeaderType<H> &type, std::string_view line )
{
    const auto msg = Message( std::string( type.name ) + ": " + std::string( line ) + "\r\n" );
    return Encode( type, Own( type.tryDecodeFromMessage( msg.Get() ) ) );
}

constexpr std::string_view null = "(null)";

/** A line, and the line that goes out again; `null` when it does not decode. */
struct Row {
    std::string_view in;
    std::string_view out;
};

/** Both ways in give the row's line, which is stable; and so is what any beginning of the line gives. */
template <class H>
void ExpectRow( const HeaderType<H> &type, const Row &row )
{
    EXPECT_EQ( Recode( type, row.in ), row.out ) << row.in;
    const bool trimmed = !row.in.empty() && row.in.front() > ' ' && row.in.back() > ' '; // as received lines are
    if ( trimmed ) {
        EXPECT_EQ( RecodeReceived( type, row.in ), row.out ) << row.in;
    }
    const auto in = Str( row.in );
    for ( KoInt length = 0; length <= koStringLength( in.Get() ); ++length ) {
        const auto begin = Own( koStringCreateFromLeading( in.Get(), length ) );
        const std::string out = Encode( type, Decode( type, begin.Get() ) );
        if ( out != null ) {
            EXPECT_EQ( Recode( type, out ), out ) << row.in << ", " << length;
        }
    }
}

template <class H>
struct Change {
    std::string_view line; // what it makes of the header
    std::function<void( H * )> apply;
};

/** A change leaves other handles alone, and keeps an object that has no other. */
template <class H>
void ExpectChanges( const HeaderType<H> &type, std::string_view line, const std::vector<Change<H>> &changes )
{
    const std::string before = Recode( type, line );
    for ( const Change<H> &change : changes ) {
        auto hdr = Decode( type, line );
        const H same = hdr.Get();
        change.apply( hdr.Address() );
        EXPECT_EQ( hdr.Get(), same ) << change.line;
        EXPECT_EQ( Encode( type, hdr ), change.line );

        auto shared = Decode( type, line );
        const auto other = KoRef<H>::Share( shared.Get() );
        change.apply( shared.Address() );
        EXPECT_NE( shared.Get(), other.Get() ) << change.line;
        EXPECT_EQ( Encode( type, shared ), change.line );
        EXPECT_EQ( Encode( type, other ), before ) << change.line;
    }
}

template <class H>
void ExpectStandardOperations( const HeaderType<H> &type, std::string_view line )
{
    const std::string path( type.path );
    const auto hdr = Decode( type, line );
    const H h = hdr.Get();
    ASSERT_TRUE( h ) << line;
    const KoObj obj = type.obj( h );
    const auto other = Str( "a string" );
    EXPECT_EQ( type.sort()->name, type.sortName );
    EXPECT_EQ( koObjSort( obj ), type.sort() );
    EXPECT_EQ( type.from( obj ), h );
    EXPECT_EQ( type.from( nullptr ), nullptr );
    EXPECT_ABORT_MESSAGE( type.from( koStringObj( other.Get() ) ), "stdfunc from", path, type.sortCheck );
    EXPECT_EQ( type.retain( h ), h );
    EXPECT_EQ( Count( h ), 2 );
    type.release( h );
    EXPECT_EQ( Count( h ), 1 );
    EXPECT_ABORT_MESSAGE( type.retain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( type.release( nullptr ), "stdfunc release", path, "obj" );
    const auto copy = Own( type.createFrom( h ) );
    EXPECT_NE( copy.Get(), h );
    EXPECT_EQ( Encode( type, copy ), Encode( type, h ) );
    EXPECT_EQ( type.compare( h, copy.Get() ), 0 );
    EXPECT_TRUE( type.equals( h, copy.Get() ) );
    EXPECT_FALSE( type.equals( h, nullptr ) );
    EXPECT_TRUE( type.equals( nullptr, nullptr ) );
    EXPECT_ABORT( type.createFrom( nullptr ), path, "source" );
    EXPECT_ABORT_MESSAGE( type.compare( nullptr, h ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( type.compare( h, nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT( type.sort()->compare( nullptr, obj ), path, "hdrA" );
    EXPECT_ABORT( type.sort()->compare( obj, nullptr ), path, "hdrB" );
    EXPECT_EQ( Take( type.toString( h ) ), Encode( type, h ) );
    EXPECT_ABORT_MESSAGE( type.toString( nullptr ), "stdfunc tostring", path, "obj" );
    if ( type.sort()->free ) {
        EXPECT_ABORT( type.sort()->free( nullptr ), path, "hdr" );
    }
}

/** The contract of a header that reads its last line: `good` decodes, `bad` doesn't. */
template <class H>
void ExpectSingleValueContract( const HeaderType<H> &type, std::string_view good, std::string_view bad )
{
    const std::string path( type.path );
    const std::string name( type.name );
    const std::string out = Recode( type, good );
    ASSERT_NE( out, null ) << good;
    ASSERT_EQ( Recode( type, bad ), null ) << bad;
    ExpectStandardOperations( type, good );

    // Only the last line counts.
    const auto goodLine = Str( good );
    const auto badLine = Str( bad );
    const auto none = Raw( name, {} );
    EXPECT_EQ( Encode( type, Own( type.tryDecode( none.Get() ) ) ), null );
    EXPECT_EQ( Encode( type, Own( type.tryDecode( Raw( name, { badLine.Get(), goodLine.Get() } ).Get() ) ) ), out );
    EXPECT_EQ( Encode( type, Own( type.tryDecode( Raw( name, { goodLine.Get(), badLine.Get() } ).Get() ) ) ), null );

    // A name is compared in its normal form.
    EXPECT_NE( Encode( type, Own( type.tryDecode( Raw( name, { goodLine.Get() } ).Get() ) ) ), null );
    EXPECT_ABORT( type.tryDecode( Raw( "X-Other", { goodLine.Get() } ).Get() ), path, type.nameCheck );
    EXPECT_ABORT( type.tryDecode( nullptr ), "source/tolmo/tolmo_message_header.cpp", "header" );
    EXPECT_ABORT( type.encode( nullptr ), path, "hdr" );

    // In a message, received and set.
    const auto hdr = Decode( type, good );
    const std::string line = name + ": " + std::string( good ) + "\r\n";
    auto msg = Message( line );
    EXPECT_TRUE( type.presentInMessage( msg.Get() ) );
    EXPECT_EQ( Encode( type, Own( type.tryDecodeFromMessage( msg.Get() ) ) ), out );
    const auto shared = KoRef<TolmoMessage>::Share( msg.Get() );
    type.removeFromMessage( msg.Address() );
    EXPECT_NE( msg.Get(), shared.Get() );
    EXPECT_TRUE( type.presentInMessage( shared.Get() ) );
    EXPECT_FALSE( type.presentInMessage( msg.Get() ) );
    EXPECT_EQ( Encode( type, Own( type.tryDecodeFromMessage( msg.Get() ) ) ), null );
    const auto without = KoRef<TolmoMessage>::Share( msg.Get() );
    type.encodeToMessage( hdr.Get(), msg.Address() );
    EXPECT_TRUE( type.presentInMessage( msg.Get() ) );
    EXPECT_FALSE( type.presentInMessage( without.Get() ) );
    EXPECT_EQ( Encode( type, Own( type.tryDecodeFromMessage( msg.Get() ) ) ), out );
    EXPECT_NE( TakeBytes( tolmoMessageEncode( msg.Get() ) ).find( "\r\n" + name + ": " + out + "\r\n" ),
               std::string::npos );
    tolmoMessageSetHeader( msg.Address(), none.Get() ); // present, though there is nothing to decode
    EXPECT_TRUE( type.presentInMessage( msg.Get() ) );
    EXPECT_EQ( Encode( type, Own( type.tryDecodeFromMessage( msg.Get() ) ) ), null );
    TolmoMessage nothing = nullptr;
    EXPECT_ABORT( type.encodeToMessage( nullptr, &nothing ), path, "hdr" );
    EXPECT_ABORT( type.encodeToMessage( hdr.Get(), nullptr ), path, "msg" );
    EXPECT_ABORT( type.encodeToMessage( hdr.Get(), &nothing ), path, "*msg" );
    EXPECT_ABORT( type.tryDecodeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( type.presentInMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( type.removeFromMessage( nullptr ), path, "msg" );
    EXPECT_ABORT( type.removeFromMessage( &nothing ), path, "*msg" );

    // In a store: the lines alone.
    auto store = Own( type.store( hdr.Get() ) );
    ASSERT_EQ( koStoreLength( store.Get() ), 1 );
    EXPECT_EQ( Take( koStoreValueAt( store.Get(), 0 ) ), out );
    EXPECT_EQ( Encode( type, Own( type.tryRestore( store.Get() ) ) ), out );
    koStoreAppendValue( store.Address(), badLine.Get() );
    EXPECT_EQ( Encode( type, Own( type.tryRestore( store.Get() ) ) ), null );
    EXPECT_EQ( Encode( type, Own( type.tryRestore( Own( koStoreCreateArray() ).Get() ) ) ), null );
    EXPECT_ABORT( type.store( nullptr ), path, "hdr" );
    EXPECT_ABORT( type.tryRestore( nullptr ), path, "store" );
}

/** What a mutator requires of its first argument. */
#define EXPECT_HANDLE_ABORTS( type, mutator, ... )                                                                     \
    do {                                                                                                               \
        auto handle = std::decay_t<decltype( ( type ).from( nullptr ) )>();                                            \
        EXPECT_ABORT( mutator( decltype ( &handle )() __VA_OPT__(, ) __VA_ARGS__ ), ( type ).path, "hdr" );            \
        EXPECT_ABORT( mutator( &handle __VA_OPT__(, ) __VA_ARGS__ ), ( type ).path, "*hdr" );                          \
    } while ( 0 )

} // namespace test

#endif
