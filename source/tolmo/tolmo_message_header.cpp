/* One header field of a message in raw form: a name, and a line of text for each time it stands in the message. */
#include <tolmo/tolmo_message_header.hpp>

#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_header_name.hpp>
#include <tolmo/tolmo_scalar.hpp>

namespace skip = tolmo::skip;

namespace {

using AllFields = tolmo::Fields<&tolmo___MessageHeader::name, &tolmo___MessageHeader::lines>;
static_assert( tolmo::namesAllFields<tolmo___MessageHeader, AllFields> );

TOLMO_FREE( MessageHeader, thisObj, AllFields )
TOLMO_COMPARE( MessageHeader, thisObj, thatObj, AllFields )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_MESSAGE_HEADER = TOLMO_SORT( "TOLMO_MESSAGE_HEADER", Free, Compare, nullptr );
TOLMO_STANDARD_OPERATIONS( MessageHeader, TOLMO_MESSAGE_HEADER )
TOLMO_CREATE_FROM( MessageHeader, AllFields )

namespace {

// The keys of the store.
KoString kosName = nullptr;
KoString kosLines = nullptr;

} // namespace

void tolmo___MessageHeaderStartup( void )
{
    tolmo::Start( kosName, "name" );
    tolmo::Start( kosLines, "lines" );
    tolmo::StartKnownNames();
}

void tolmo___MessageHeaderShutdown( void )
{
    tolmo::Stop( kosName );
    tolmo::Stop( kosLines );
    tolmo::StopKnownNames();
}

KoBool tolmoMessageHeaderNameOk( KoString name )
{
    KO_REQUIRE( name );
    return tolmo::IsWhole( name, skip::MessageHeaderName );
}

KoString tolmoMessageHeaderNameNormalize( KoString name )
{
    KO_REQUIRE( tolmoMessageHeaderNameOk( name ) );
    const tolmo::NameId known = tolmo::RecognizeName( ko::Chars( name ), name->length );
    if ( known != tolmo::unknownName ) {
        return tolmo::Retained( tolmo::KnownNameString( known ) );
    }
    const KoString normal = koStringCreateFromCharsCopy( ko::Chars( name ), name->length );
    tolmo::CapitalizeName( ko::Chars( normal ), normal->length );
    return normal;
}

KoBool tolmoMessageHeaderLineOk( KoString value )
{
    KO_REQUIRE( value );
    static constexpr KoChar lineEnd[] = { KO_CHAR_CARRIAGE_RETURN, KO_CHAR_LINE_FEED };
    return koStringFindChars( value, 0, lineEnd, std::size( lineEnd ) ) == -1;
}

KoRef<TolmoMessageHeader> tolmo::CreateMessageHeader( KoRef<KoString> name, KoRef<KoVector> lines )
{
    auto header = CreateObject<tolmo___MessageHeader>( &tolmo___sort_TOLMO_MESSAGE_HEADER );
    header.Get()->name = name.Leak();
    header.Get()->lines = lines.Leak();
    return header;
}

void tolmo::AppendLine( TolmoMessageHeader header, KoRef<KoString> value )
{
    KO_REQUIRE_AS( tolmoMessageHeaderLineOk( value.Get() ), "tolmoMessageHeaderLineOk( value )" );
    AppendString( header->lines, std::move( value ) );
}

TolmoMessageHeader tolmoMessageHeaderCreate( KoString name )
{
    KO_REQUIRE( tolmoMessageHeaderNameOk( name ) );
    return tolmo::CreateMessageHeader( tolmo::Adopt( tolmoMessageHeaderNameNormalize( name ) ),
                                       tolmo::Adopt( koVectorCreate() ) )
        .Leak();
}

TolmoMessageHeader tolmoMessageHeaderCreateCstr( const char *chs, KoInt length )
{
    return tolmoMessageHeaderCreate( tolmo::FromCstr( chs, length ).Get() );
}

TolmoMessageHeader tolmoMessageHeaderCreateWcstr( const uint16_t *chs, KoInt length )
{
    return tolmoMessageHeaderCreate( tolmo::FromWcstr( chs, length ).Get() );
}

KoString tolmoMessageHeaderName( TolmoMessageHeader header )
{
    KO_REQUIRE( header );
    return tolmo::Retained( header->name );
}

void tolmoMessageHeaderSetName( TolmoMessageHeader *header, KoString name )
{
    KO_REQUIRE_HANDLE( header );
    KO_REQUIRE( tolmoMessageHeaderNameOk( name ) );
    tolmo::MakeUnique( header, tolmoMessageHeaderCreateFrom );
    tolmo::Store( ( *header )->name, tolmo::Adopt( tolmoMessageHeaderNameNormalize( name ) ) );
}

void tolmoMessageHeaderSetNameCstr( TolmoMessageHeader *header, const char *chs, KoInt length )
{
    tolmoMessageHeaderSetName( header, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageHeaderSetNameWcstr( TolmoMessageHeader *header, const uint16_t *chs, KoInt length )
{
    tolmoMessageHeaderSetName( header, tolmo::FromWcstr( chs, length ).Get() );
}

KoBool tolmoMessageHeaderNameEquals( TolmoMessageHeader header, KoString name )
{
    KO_REQUIRE( header );
    KO_REQUIRE( tolmoMessageHeaderNameOk( name ) );
    return koStringEquals( header->name, tolmo::Adopt( tolmoMessageHeaderNameNormalize( name ) ).Get() );
}

KoBool tolmoMessageHeaderNameEqualsCstr( TolmoMessageHeader header, const char *chs, KoInt length )
{
    return tolmoMessageHeaderNameEquals( header, tolmo::FromCstr( chs, length ).Get() );
}

KoBool tolmoMessageHeaderNameEqualsWcstr( TolmoMessageHeader header, const uint16_t *chs, KoInt length )
{
    return tolmoMessageHeaderNameEquals( header, tolmo::FromWcstr( chs, length ).Get() );
}

KoVector tolmoMessageHeaderLinesVector( TolmoMessageHeader header )
{
    KO_REQUIRE( header );
    return tolmo::Retained( header->lines );
}

void tolmoMessageHeaderSetLinesVector( TolmoMessageHeader *header, KoVector lines )
{
    KO_REQUIRE_HANDLE( header );
    KO_REQUIRE( lines );
    KO_REQUIRE( koVectorContainsOnly( lines, koStringSort() ) );
    const KoInt length = koVectorLength( lines );
    for ( KoInt i = 0; i < length; ++i ) {
        const auto line = tolmo::StringAt( lines, i );
        KO_REQUIRE_AS( tolmoMessageHeaderLineOk( line.Get() ), "tolmoMessageHeaderLineOk( line )" );
    }
    tolmo::MakeUnique( header, tolmoMessageHeaderCreateFrom );
    tolmo::Store( ( *header )->lines, tolmo::Share( lines ) );
}

KoInt tolmoMessageHeaderLinesLength( TolmoMessageHeader header )
{
    KO_REQUIRE( header );
    return koVectorLength( header->lines );
}

KoString tolmoMessageHeaderLineAt( TolmoMessageHeader header, KoInt index )
{
    KO_REQUIRE( header );
    return tolmo::StringAt( header->lines, index ).Leak();
}

KoString tolmoMessageHeaderLastLine( TolmoMessageHeader header )
{
    KO_REQUIRE( header );
    const KoInt length = koVectorLength( header->lines );
    return length > 0 ? tolmo::StringAt( header->lines, length - 1 ).Leak() : nullptr;
}

void tolmoMessageHeaderAppendLine( TolmoMessageHeader *header, KoString value )
{
    KO_REQUIRE_HANDLE( header );
    KO_REQUIRE( tolmoMessageHeaderLineOk( value ) );
    tolmo::MakeUnique( header, tolmoMessageHeaderCreateFrom );
    koVectorAppendString( &( *header )->lines, value );
}

void tolmoMessageHeaderAppendLineCstr( TolmoMessageHeader *header, const char *chs, KoInt length )
{
    tolmoMessageHeaderAppendLine( header, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageHeaderAppendLineWcstr( TolmoMessageHeader *header, const uint16_t *chs, KoInt length )
{
    tolmoMessageHeaderAppendLine( header, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmoMessageHeaderAppendLineFormat( TolmoMessageHeader *header, KoString format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    const auto value = tolmo::Adopt( koStringCreateFromFormatArgList( format, arguments ) );
    va_end( arguments );
    tolmoMessageHeaderAppendLine( header, value.Get() );
}

void tolmoMessageHeaderAppendLineFormatCstr( TolmoMessageHeader *header, const char *format, KoInt length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    const auto value = tolmo::Adopt( koStringCreateFromFormatCstrArgList( format, length, arguments ) );
    va_end( arguments );
    tolmoMessageHeaderAppendLine( header, value.Get() );
}

void tolmoMessageHeaderAppendLineFormatWcstr( TolmoMessageHeader *header, const uint16_t *format, KoInt length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    const auto value = tolmo::Adopt( koStringCreateFromFormatWcstrArgList( format, length, arguments ) );
    va_end( arguments );
    tolmoMessageHeaderAppendLine( header, value.Get() );
}

void tolmoMessageHeaderSetLineAt( TolmoMessageHeader *header, KoInt index, KoString value )
{
    KO_REQUIRE_HANDLE( header );
    KO_REQUIRE( tolmoMessageHeaderLineOk( value ) );
    tolmo::MakeUnique( header, tolmoMessageHeaderCreateFrom );
    koVectorSetStringAt( &( *header )->lines, index, value );
}

void tolmoMessageHeaderSetLineAtCstr( TolmoMessageHeader *header, KoInt index, const char *chs, KoInt length )
{
    tolmoMessageHeaderSetLineAt( header, index, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageHeaderSetLineAtWcstr( TolmoMessageHeader *header, KoInt index, const uint16_t *chs, KoInt length )
{
    tolmoMessageHeaderSetLineAt( header, index, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmoMessageHeaderSetLineAtFormat( TolmoMessageHeader *header, KoInt index, KoString format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    const auto value = tolmo::Adopt( koStringCreateFromFormatArgList( format, arguments ) );
    va_end( arguments );
    tolmoMessageHeaderSetLineAt( header, index, value.Get() );
}

void tolmoMessageHeaderSetLineAtFormatCstr( TolmoMessageHeader *header, KoInt index, const char *format, KoInt length,
                                            ... )
{
    va_list arguments;
    va_start( arguments, length );
    const auto value = tolmo::Adopt( koStringCreateFromFormatCstrArgList( format, length, arguments ) );
    va_end( arguments );
    tolmoMessageHeaderSetLineAt( header, index, value.Get() );
}

void tolmoMessageHeaderSetLineAtFormatWcstr( TolmoMessageHeader *header, KoInt index, const uint16_t *format,
                                             KoInt length, ... )
{
    va_list arguments;
    va_start( arguments, length );
    const auto value = tolmo::Adopt( koStringCreateFromFormatWcstrArgList( format, length, arguments ) );
    va_end( arguments );
    tolmoMessageHeaderSetLineAt( header, index, value.Get() );
}

void tolmoMessageHeaderDelLineAt( TolmoMessageHeader *header, KoInt index )
{
    KO_REQUIRE_HANDLE( header );
    tolmo::MakeUnique( header, tolmoMessageHeaderCreateFrom );
    koVectorDelAt( &( *header )->lines, index );
}

KoStore tolmoMessageHeaderStore( TolmoMessageHeader header )
{
    KO_REQUIRE( header );
    auto store = tolmo::Adopt( koStoreCreate() );
    koStoreSetValue( store.Address(), kosName, header->name );
    koStoreSetStore( store.Address(), kosLines, tolmo::Adopt( tolmoMessageHeaderStoreLines( header ) ).Get() );
    return store.Leak();
}

KoStore tolmoMessageHeaderStoreLines( TolmoMessageHeader header )
{
    KO_REQUIRE( header );
    auto store = tolmo::Adopt( koStoreCreateArray() );
    const KoInt length = koVectorLength( header->lines );
    for ( KoInt i = 0; i < length; ++i ) {
        koStoreAppendValue( store.Address(), tolmo::StringAt( header->lines, i ).Get() );
    }
    return store.Leak();
}

TolmoMessageHeader tolmoMessageHeaderTryRestore( KoStore store )
{
    KO_REQUIRE( store );
    const auto name = tolmo::Adopt( koStoreValue( store, kosName ) );
    if ( !name || !tolmoMessageHeaderNameOk( name.Get() ) ) {
        return nullptr;
    }
    return tolmoMessageHeaderRestoreLines( name.Get(), tolmo::Adopt( koStoreStore( store, kosLines ) ).Get() );
}

TolmoMessageHeader tolmoMessageHeaderRestoreLines( KoString name, KoStore store )
{
    KO_REQUIRE( tolmoMessageHeaderNameOk( name ) );
    KO_REQUIRE( store );
    auto header = tolmo::Adopt( tolmoMessageHeaderCreate( name ) );
    const KoInt length = koStoreLength( store );
    for ( KoInt i = 0; i < length; ++i ) {
        const auto line = tolmo::Adopt( koStoreValueAt( store, i ) );
        if ( line && tolmoMessageHeaderLineOk( line.Get() ) ) {
            koVectorAppendString( &header.Get()->lines, line.Get() );
        }
    }
    return header.Leak();
}

TolmoMessageHeader tolmoMessageHeaderRestoreLinesCstr( const char *chs, KoInt length, KoStore store )
{
    return tolmoMessageHeaderRestoreLines( tolmo::FromCstr( chs, length ).Get(), store );
}

TolmoMessageHeader tolmoMessageHeaderRestoreLinesWcstr( const uint16_t *chs, KoInt length, KoStore store )
{
    return tolmoMessageHeaderRestoreLines( tolmo::FromWcstr( chs, length ).Get(), store );
}
