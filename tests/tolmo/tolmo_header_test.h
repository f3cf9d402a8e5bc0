/* What the tests of single-value headers share: the functions of a type as one record, rows, changes. */
#ifndef TOLMO_HEADER_TEST_H
#define TOLMO_HEADER_TEST_H

#include "tolmo_test.h"

namespace test {

template <class H>
struct HeaderType {
    std::string name; // as the library writes it
    std::string path; // of the unit
    KoSort ( *sort )();
    KoObj ( *obj )( H );
    KoInt ( *compare )( H, H );
    KoBool ( *equals )( H, H );
    TolmoMessageHeader ( *encode )( H );
    H ( *tryDecode )( TolmoMessageHeader );
    H ( *tryDecodeFromMessage )( TolmoMessage );
};

/** The record of TolmoHeaderType, in the unit tolmo_header_UNIT. */
#define TEST_HEADER( Type, unit, headerName )                                                                          \
    {                                                                                                                  \
        headerName, "source/tolmo/tolmo_header_" unit ".cpp", tolmoHeader##Type##Sort, tolmoHeader##Type##Obj,         \
            tolmoHeader##Type##Compare, tolmoHeader##Type##Equals, tolmoHeader##Type##Encode,                          \
            tolmoHeader##Type##TryDecode, tolmoHeader##Type##TryDecodeFromMessage                                      \
    }

/** The header of one line; null when it does not decode. */
template <class H>
KoRef<H> Decode( const HeaderType<H> &type, std::string_view line )
{
    return Own( type.tryDecode( RawHeader( type.name, { std::string( line ) } ).Get() ) );
}

/** The line of a header; "(null)" for null. */
template <class H>
std::string Encode( const HeaderType<H> &type, const KoRef<H> &hdr )
{
    if ( !hdr ) {
        return "(null)";
    }
    const Strings lines = TakeLines( type.encode( hdr.Get() ) );
    EXPECT_EQ( lines.size(), 1u );
    return lines.front();
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
    const auto msg = Received( type.name + ": " + std::string( line ) + "\r\n" );
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
    for ( size_t length = 0; length <= row.in.size(); ++length ) { // U+FFFD where a character is cut
        const std::string out = Recode( type, row.in.substr( 0, length ) );
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

/** What stands in the sort, and that only the last line counts: `good` decodes, `bad` does not. */
template <class H>
void ExpectSingleValue( const HeaderType<H> &type, const std::string &good, const std::string &bad )
{
    const auto decode = [&]( const Strings &lines ) {
        return Encode( type, Own( type.tryDecode( RawHeader( type.name, lines ).Get() ) ) );
    };
    const std::string out = Recode( type, good );
    ASSERT_NE( out, null );
    EXPECT_EQ( decode( { bad, good } ), out );
    EXPECT_EQ( decode( { good, bad } ), null );
    const auto msg = Received( type.name + ": " + bad + "\r\nX: y\r\n" + type.name + ": " + good + "\r\n" );
    EXPECT_EQ( Encode( type, Own( type.tryDecodeFromMessage( msg.Get() ) ) ), out );

    const auto hdr = Decode( type, good );
    const KoSort sort = type.sort();
    EXPECT_ABORT( sort->compare( nullptr, type.obj( hdr.Get() ) ), type.path, "hdrA" );
    EXPECT_ABORT( sort->compare( type.obj( hdr.Get() ), nullptr ), type.path, "hdrB" );
    EXPECT_ABORT( sort->free( nullptr ), type.path, "hdr" );
}

/** What a mutator requires of its first argument. */
#define EXPECT_HANDLE_ABORTS( type, mutator, ... )                                                                     \
    do {                                                                                                               \
        auto handle = std::decay_t<decltype( ( type ).tryDecode( nullptr ) )>();                                       \
        EXPECT_ABORT( mutator( decltype ( &handle )() __VA_OPT__(, ) __VA_ARGS__ ), ( type ).path, "hdr" );            \
        EXPECT_ABORT( mutator( &handle __VA_OPT__(, ) __VA_ARGS__ ), ( type ).path, "*hdr" );                          \
    } while ( 0 )

} // namespace test

#endif
