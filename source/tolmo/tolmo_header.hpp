/*
 * The family of the typed headers: what all sixty share.
 *
 * A unit tells its fields and its type as every other type does, then its name, its `Create`, its `Encode`, and one
 * function `Decode`, over the last line or over all lines of a raw header. One macro makes the rest of the contract:
 *
 *     TOLMO_HEADER_NAME( MaxForwards, MaxForwards, "Max-Forwards" )
 *     ... Create, accessors, Encode, Decode ...
 *     TOLMO_HEADER_OPERATIONS( MaxForwards, MaxForwards )
 */
#ifndef TOLMO_HEADER_HPP
#define TOLMO_HEADER_HPP

#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_header_table.hpp>
#include <tolmo/tolmo_message.hpp>
#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_wide.hpp>

namespace tolmo {

/** The lines of a raw header: of an object, or as they were received. Lent by what they are made of. */
class Lines {
public:
    explicit Lines( TolmoMessageHeader header ) : strings( header->lines ) {}
    Lines( HeaderTable *table, const HeaderEntry &entry )
        : strings( entry.isObject ? entry.header->lines : nullptr ), decoded( table->decoded ), received( entry.lines )
    {
    }

    /** True when there is no line. What was received has at least one. */
    [[nodiscard]] bool Empty() const { return strings && koVectorLength( strings ) == 0; }

    /** Gives the lines in order to a function, as long as it returns true. True when it always did. */
    template <class Take>
    bool ForEach( Take take ) const
    {
        if ( strings ) {
            const KoInt length = koVectorLength( strings );
            KoInt i = 0;
            while ( i < length && take( Text( LentStringAt( strings, i ) ) ) ) {
                ++i;
            }
            return i == length;
        }
        return decoded->ForEach( received, [&]( const RawLine &line ) {
            const Wide wide( decoded->Text() + line.offset, line.length );
            return take( wide.Text() );
        } );
    }

    /** Gives the last line, which has to be there, to a function, and returns what that returns. */
    template <class Take>
    auto WithLast( Take take ) const
    {
        if ( strings ) {
            return take( Text( LentStringAt( strings, koVectorLength( strings ) - 1 ) ) );
        }
        const RawLine &line = decoded->Lines()[received.last];
        const Wide wide( decoded->Text() + line.offset, line.length );
        return take( wide.Text() );
    }

private:
    KoVector strings; // null: as received
    DecodedHead *decoded = nullptr;
    RawLines received = {};
};

/** A raw header without lines. */
inline KoRef<TolmoMessageHeader> NewHeader( NameId name )
{
    return CreateMessageHeader( Share( KnownNameString( name ) ), Adopt( koVectorCreate() ) );
}

/** A raw header with one line. */
inline TolmoMessageHeader OneLineHeader( NameId name, KoRef<KoString> line )
{
    auto header = NewHeader( name );
    AppendLine( header.Get(), std::move( line ) );
    return header.Leak();
}

/** The text of a typed header, from its fresh raw form: nothing, its one line, or the vector of its lines. */
inline KoString LinesToString( KoRef<TolmoMessageHeader> header )
{
    const KoVector lines = header.Get()->lines;
    switch ( koVectorLength( lines ) ) {
    case 0:
        return koStringCreate();
    case 1:
        return StringAt( lines, 0 ).Leak();
    default:
        return koVectorToString( lines );
    }
}

/** True when a raw header is the one of a type. The names of those that are nearly always given are one object. */
inline bool IsHeader( TolmoMessageHeader header, NameId name, KoString constant )
{
    return ( header && header->name == KnownNameString( name ) ) || tolmoMessageHeaderNameEquals( header, constant );
}

/** What a single-value header is decoded with: its last line; a raw header without lines gives null. */
template <class DecodeLine>
auto DecodeLastLine( const Lines &lines, DecodeLine decodeLine )
{
    return lines.Empty() ? decltype( decodeLine( Text() ) )() : lines.WithLast( decodeLine );
}

} // namespace tolmo

/**
 * The name of a header: the constant tolmo___KosCONSTANT with the unit's start and stop, and `headerName`, by which raw
 * headers are found. A unit with more constants writes its start and its stop out.
 */
#define TOLMO_HEADER_NAME( Type, Constant, name )                                                                      \
    static constexpr tolmo::NameId headerName = tolmo::KnownName( name );                                              \
    static KoString tolmo___Kos##Constant = nullptr;                                                                   \
    void tolmo___Header##Type##Startup( void )                                                                         \
    {                                                                                                                  \
        tolmo::Start( tolmo___Kos##Constant, name );                                                                   \
    }                                                                                                                  \
    void tolmo___Header##Type##Shutdown( void )                                                                        \
    {                                                                                                                  \
        tolmo::Stop( tolmo___Kos##Constant );                                                                          \
    }

/** The to-string function of a header's sort: the lines of its raw form. */
#define TOLMO_HEADER_TO_STRING( Type )                                                                                 \
    KoString ToString( KoObj obj )                                                                                     \
    {                                                                                                                  \
        return tolmo::LinesToString( tolmo::Adopt( tolmoHeader##Type##Encode( tolmoHeader##Type##From( obj ) ) ) );    \
    }

/**
 * The rest of a header's contract, over its `tolmoHeaderXEncode` and its function `Decode( lines )`: TryDecode,
 * EncodeToMessage, PresentInMessage, RemoveFromMessage, Store, TryRestore. What a store without a line gives is up to
 * `Decode`.
 */
#define TOLMO_HEADER_OPERATIONS_BUT_DECODING_FROM_MESSAGE( Type, Constant )                                            \
    TolmoHeader##Type tolmoHeader##Type##TryDecode( TolmoMessageHeader header )                                        \
    {                                                                                                                  \
        KO_REQUIRE_AS( tolmo::IsHeader( header, headerName, tolmo___Kos##Constant ),                                   \
                       "tolmoMessageHeaderNameEquals( header, tolmo___Kos" #Constant " )" );                           \
        return Decode( tolmo::Lines( header ) ).Leak();                                                                \
    }                                                                                                                  \
    void tolmoHeader##Type##EncodeToMessage( TolmoHeader##Type hdr, TolmoMessage *msg )                                \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        KO_REQUIRE_HANDLE( msg );                                                                                      \
        tolmo::SetHeader( msg, tolmo::Adopt( tolmoHeader##Type##Encode( hdr ) ) );                                     \
    }                                                                                                                  \
    KoBool tolmoHeader##Type##PresentInMessage( TolmoMessage msg )                                                     \
    {                                                                                                                  \
        KO_REQUIRE( msg );                                                                                             \
        return tolmo::FindEntry( msg->fragment->headers, headerName ) != nullptr;                                      \
    }                                                                                                                  \
    void tolmoHeader##Type##RemoveFromMessage( TolmoMessage *msg )                                                     \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( msg );                                                                                      \
        tolmoMessageDelHeader( msg, tolmo___Kos##Constant );                                                           \
    }                                                                                                                  \
    KoStore tolmoHeader##Type##Store( TolmoHeader##Type hdr )                                                          \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        const auto header = tolmo::Adopt( tolmoHeader##Type##Encode( hdr ) );                                          \
        return tolmoMessageHeaderStoreLines( header.Get() );                                                           \
    }                                                                                                                  \
    TolmoHeader##Type tolmoHeader##Type##TryRestore( KoStore store )                                                   \
    {                                                                                                                  \
        KO_REQUIRE( store );                                                                                           \
        const auto header = tolmo::Adopt( tolmoMessageHeaderRestoreLines( tolmo___Kos##Constant, store ) );            \
        return Decode( tolmo::Lines( header.Get() ) ).Leak();                                                          \
    }

/** TryDecodeFromMessage alone. A header that is in the message without a line is present, but is not decoded. */
#define TOLMO_HEADER_DECODING_FROM_MESSAGE( Type )                                                                     \
    TolmoHeader##Type tolmoHeader##Type##TryDecodeFromMessage( TolmoMessage msg )                                      \
    {                                                                                                                  \
        KO_REQUIRE( msg );                                                                                             \
        const tolmo::HeaderEntry *const entry = tolmo::FindEntry( msg->fragment->headers, headerName );                \
        if ( !entry ) {                                                                                                \
            return nullptr;                                                                                            \
        }                                                                                                              \
        const tolmo::Lines lines( msg->fragment->headers, *entry );                                                    \
        return lines.Empty() ? nullptr : Decode( lines ).Leak();                                                       \
    }

/** All of them. */
#define TOLMO_HEADER_OPERATIONS( Type, Constant )                                                                      \
    TOLMO_HEADER_OPERATIONS_BUT_DECODING_FROM_MESSAGE( Type, Constant )                                                \
    TOLMO_HEADER_DECODING_FROM_MESSAGE( Type )

#endif
