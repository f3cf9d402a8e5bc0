/* IP addresses: IPv4, and IPv6 of RFC 4291; their text of RFC 5952. */
#include <address/wen_address.h>

#include <address/wen_module.hpp>
#include <runtime/ko_inner.hpp>

/** The first `size` bytes hold the address: 4 for IPv4, 16 for IPv6. */
struct wen___Address {
    struct ko___Obj head;
    int32_t size;
    uint8_t bytes[16];
};

namespace wen {
namespace {

constexpr int32_t ipV4Size = 4;
constexpr int32_t ipV6Size = 16;
constexpr int ipV6Groups = 8;

/** The value of a hexadecimal digit, or -1. */
int HexValue( KoChar ch )
{
    if ( ch >= '0' && ch <= '9' ) {
        return ch - '0';
    }
    const KoChar small = ch | 0x20;
    return small >= 'a' && small <= 'f' ? small - 'a' + 10 : -1;
}

/** Reads a number up to 255 without a leading zero. The number of its digits, or 0. */
inline KoInt ReadByte( const KoChar *chs, KoInt length, uint8_t *byte )
{
    const auto digit = [chs]( KoInt i ) { return static_cast<unsigned>( chs[i] ) - '0'; };
    if ( length == 0 || digit( 0 ) > 9 ) {
        return 0;
    }
    unsigned value = digit( 0 );
    KoInt count = 1;
    for ( ; count < length && digit( count ) <= 9; ++count ) {
        const bool leadingZero = value == 0;
        value = value * 10 + digit( count );
        if ( leadingZero || value > 255 ) {
            return 0;
        }
    }
    *byte = static_cast<uint8_t>( value );
    return count;
}

/** Reads one to four hexadecimal digits. Their number, or 0. */
inline KoInt ReadGroup( const KoChar *chs, KoInt length, uint16_t *group )
{
    int value = 0;
    KoInt count = 0;
    for ( ; count < length; ++count ) {
        const int digit = HexValue( chs[count] );
        if ( digit < 0 ) {
            break;
        }
        if ( count == 4 ) {
            return 0;
        }
        value = value << 4 | digit;
    }
    *group = static_cast<uint16_t>( value );
    return count;
}

/** Reads an IPv4 address into four bytes. The number of characters, or 0. */
KoInt ReadIpV4( const KoChar *chs, KoInt length, uint8_t *bytes )
{
    KoInt at = 0;
    for ( int i = 0; i < ipV4Size; ++i ) {
        if ( i > 0 ) {
            if ( at == length || chs[at] != '.' ) {
                return 0;
            }
            ++at;
        }
        const KoInt count = ReadByte( chs + at, length - at, bytes + i );
        if ( count == 0 ) {
            return 0;
        }
        at += count;
    }
    return at;
}

/** False when no IPv6 address begins a text: none has its first colon behind more than four characters. */
bool MayBeginIpV6( const KoChar *chs, KoInt length )
{
    for ( KoInt i = 0; i < length && i <= 4; ++i ) {
        if ( chs[i] == ':' ) {
            return true;
        }
    }
    return false;
}

/** The groups of an IPv6 address as far as they are read. */
struct IpV6Reader {
    const KoChar *chs;
    KoInt length;
    KoInt at = 0;
    KoInt end = 0; // behind the last place at which an address was complete
    uint16_t groups[ipV6Groups] = {};
    int count = 0;
    int gap = -1; // number of groups in front of `::`, or -1

    [[nodiscard]] bool Colon( KoInt place ) const { return place < length && chs[place] == ':'; }

    /** How many groups there is room for: `::` stands for one or more. */
    [[nodiscard]] int Room() const { return ipV6Groups - count - ( gap >= 0 ); }

    void TakeGap()
    {
        gap = count;
        at += 2;
        end = at;
    }

    void Take( KoInt characters )
    {
        at += characters;
        if ( gap >= 0 || count == ipV6Groups ) {
            end = at;
        }
    }

    /** An IPv4 address in the place of the last two groups. */
    bool TakeIpV4()
    {
        uint8_t bytes[ipV4Size];
        const bool place = gap >= 0 ? Room() >= 2 : Room() == 2;
        const KoInt taken = place ? ReadIpV4( chs + at, length - at, bytes ) : 0;
        if ( taken == 0 ) {
            return false;
        }
        groups[count++] = static_cast<uint16_t>( bytes[0] << 8 | bytes[1] );
        groups[count++] = static_cast<uint16_t>( bytes[2] << 8 | bytes[3] );
        Take( taken );
        return true;
    }

    bool TakeGroup()
    {
        const KoInt taken = ReadGroup( chs + at, length - at, groups + count );
        if ( taken == 0 ) {
            return false;
        }
        ++count;
        Take( taken );
        return true;
    }

    /** Reads the longest prefix that is an address; `end` tells how long it is. */
    void Read()
    {
        if ( Colon( 0 ) && Colon( 1 ) ) {
            TakeGap();
        }
        while ( Room() > 0 && !TakeIpV4() && TakeGroup() && Colon( at ) ) {
            if ( gap < 0 && count < ipV6Groups && Colon( at + 1 ) ) {
                TakeGap();
            } else {
                ++at;
            }
        }
    }

    /** The bytes of an address that was read to the end of the text. */
    void Write( uint8_t *bytes ) const
    {
        const int zeros = ipV6Groups - count;
        memset( bytes, 0, ipV6Size );
        for ( int i = 0; i < count; ++i ) {
            const int place = gap >= 0 && i >= gap ? i + zeros : i;
            bytes[2 * place] = static_cast<uint8_t>( groups[i] >> 8 );
            bytes[2 * place + 1] = static_cast<uint8_t>( groups[i] );
        }
    }
};

/** Collects the text of an address. */
struct Text {
    KoChar chs[40]; // no text is longer than eight groups of four digits and the colons between them
    KoInt length = 0;

    void Add( char ch ) { chs[length++] = ch; }

    void Add( const char *text )
    {
        for ( ; *text; ++text ) {
            Add( *text );
        }
    }

    void AddNumber( unsigned value, unsigned base )
    {
        char digits[5];
        int count = 0;
        do {
            digits[count++] = "0123456789abcdef"[value % base];
            value /= base;
        } while ( value );
        while ( count > 0 ) {
            Add( digits[--count] );
        }
    }

    void AddIpV4( const uint8_t *bytes )
    {
        for ( int i = 0; i < ipV4Size; ++i ) {
            if ( i > 0 ) {
                Add( '.' );
            }
            AddNumber( bytes[i], 10 );
        }
    }

    /** Groups with colons between them. */
    void AddGroups( const uint8_t *bytes, int begin, int end )
    {
        for ( int i = begin; i < end; ++i ) {
            if ( i > begin ) {
                Add( ':' );
            }
            AddNumber( static_cast<unsigned>( bytes[2 * i] << 8 | bytes[2 * i + 1] ), 16 );
        }
    }

    void AddIpV6( const uint8_t *bytes )
    {
        static constexpr uint8_t mapped[12] = { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF };
        if ( memcmp( bytes, mapped, sizeof mapped ) == 0 ) {
            Add( "::ffff:" );
            AddIpV4( bytes + sizeof mapped );
            return;
        }
        int zerosBegin = 0;
        int zerosCount = 1; // a single zero group is not worth a `::`
        for ( int i = 0, run = 0; i < ipV6Groups; ++i ) {
            run = bytes[2 * i] == 0 && bytes[2 * i + 1] == 0 ? run + 1 : 0;
            if ( run > zerosCount ) {
                zerosCount = run;
                zerosBegin = i + 1 - run;
            }
        }
        if ( zerosCount == 1 ) {
            AddGroups( bytes, 0, ipV6Groups );
            return;
        }
        AddGroups( bytes, 0, zerosBegin );
        Add( "::" );
        AddGroups( bytes, zerosBegin + zerosCount, ipV6Groups );
    }
};

KoString ToString( KoObj obj )
{
    const auto address = reinterpret_cast<WenAddress>( obj );
    Text text;
    if ( address->size == ipV4Size ) {
        text.AddIpV4( address->bytes );
    } else {
        text.AddIpV6( address->bytes );
    }
    return koStringCreateFromCharsCopy( text.chs, text.length );
}

KoInt Compare( KoObj a, KoObj b )
{
    const auto left = reinterpret_cast<WenAddress>( a );
    const auto right = reinterpret_cast<WenAddress>( b );
    return left->size != right->size ? left->size - right->size
                                     : memcmp( left->bytes, right->bytes, static_cast<size_t>( left->size ) );
}

const ko___Sort sort = KO_SORT( &module, "WEN_ADDRESS", nullptr, Compare, ToString );

} // namespace
} // namespace wen

KO_TYPE_OPERATIONS( WenAddress, wenAddress, wen::sort )

WenAddress wenAddressTryCreateFromChars( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    uint8_t bytes[wen::ipV6Size];
    int32_t size = wen::ipV4Size;
    if ( length == 0 || wen::ReadIpV4( chs, length, bytes ) != length ) {
        wen::IpV6Reader reader{ chs, length };
        reader.Read();
        if ( reader.end == 0 || reader.end != length ) {
            return nullptr;
        }
        reader.Write( bytes );
        size = wen::ipV6Size;
    }
    const auto address = reinterpret_cast<WenAddress>( ko___ObjCreate( sizeof( wen___Address ), &wen::sort ) );
    address->size = size;
    memcpy( address->bytes, bytes, static_cast<size_t>( size ) );
    return address;
}

KoString wenAddressToStringShrink( WenAddress address )
{
    KO_REQUIRE( address );
    return wen::ToString( wenAddressObj( address ) );
}

KoInt wen___SkipIpV4Address( const KoChar *chs, KoInt length )
{
    uint8_t bytes[wen::ipV4Size];
    return wen::ReadIpV4( chs, length, bytes );
}

KoInt wen___SkipIpV6Address( const KoChar *chs, KoInt length )
{
    if ( !wen::MayBeginIpV6( chs, length ) ) {
        return 0;
    }
    wen::IpV6Reader reader{ chs, length };
    reader.Read();
    return reader.end;
}
