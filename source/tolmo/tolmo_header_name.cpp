/* Names of header fields: the ones that the library knows, and the normal form of all others (RFC 3261 section 7.3.3). */
#include <tolmo/tolmo_header_name.hpp>

#include <tolmo/tolmo_constant.hpp>

#include <array>

namespace tolmo {
namespace {

KoString strings[knownNameCount];

// The compact forms (RFC 3261 section 7.3.3 and the registry of header fields), by letter.
struct CompactForm {
    char letter;
    NameId name;
};
constexpr CompactForm compactForms[] = {
    { 'a', KnownName( "Accept-Contact" ) },
    { 'u', KnownName( "Allow-Events" ) },
    { 'i', KnownName( "Call-Id" ) },
    { 'm', KnownName( "Contact" ) },
    { 'e', KnownName( "Content-Encoding" ) },
    { 'l', KnownName( "Content-Length" ) },
    { 'c', KnownName( "Content-Type" ) },
    { 'o', KnownName( "Event" ) },
    { 'f', KnownName( "From" ) },
    { 'y', KnownName( "Identity" ) },
    { 'n', KnownName( "Identity-Info" ) },
    { 'r', KnownName( "Refer-To" ) },
    { 'b', KnownName( "Referred-By" ) },
    { 'j', KnownName( "Reject-Contact" ) },
    { 'd', KnownName( "Request-Disposition" ) },
    { 'x', KnownName( "Session-Expires" ) },
    { 's', KnownName( "Subject" ) },
    { 'k', KnownName( "Supported" ) },
    { 't', KnownName( "To" ) },
    { 'v', KnownName( "Via" ) },
};

consteval std::array<NameId, 32> MakeCompactTable()
{
    std::array<NameId, 32> table{};
    table.fill( unknownName );
    for ( const CompactForm &form : compactForms ) {
        table[form.letter & 0x1F] = form.name;
    }
    return table;
}
constexpr std::array<NameId, 32> compactTable = MakeCompactTable();

// A name as three words of eight bytes each, zero behind its end. Names are compared in small letters: setting the bit
// 0x20 makes them of capitals, and letters of nothing else. A hyphen comes out of a CR as well, so its bit has to be
// there from the start.
constexpr size_t words = 3;
constexpr uint64_t smallLetters = 0x2020202020202020;
static_assert( longestKnownName == words * 8 );

struct Words {
    uint64_t word[words];
    bool operator==( const Words & ) const = default;
};

template <class ByteAt>
consteval Words MakeWords( size_t length, ByteAt byteAt )
{
    Words made{};
    for ( size_t i = 0; i < length; ++i ) {
        made.word[i / 8] |= static_cast<uint64_t>( byteAt( i ) ) << ( 8 * ( i % 8 ) );
    }
    return made;
}

struct KnownWords {
    Words small;   // the name in small letters
    Words hyphens; // the bit 0x20 where it has hyphens
};

consteval std::array<KnownWords, knownNameCount> MakeKnownWords()
{
    std::array<KnownWords, knownNameCount> known{};
    for ( size_t id = 0; id < knownNameCount; ++id ) {
        const std::string_view name = knownNames[id];
        known[id].small = MakeWords( name.size(), [=]( size_t i ) { return name[i] | 0x20; } );
        known[id].hyphens = MakeWords( name.size(), [=]( size_t i ) { return name[i] == '-' ? 0x20 : 0; } );
    }
    return known;
}
constexpr std::array<KnownWords, knownNameCount> knownWords = MakeKnownWords();

/** For each length, the bytes that belong to a name. */
consteval std::array<Words, longestKnownName + 1> MakeMasks()
{
    std::array<Words, longestKnownName + 1> masks{};
    for ( size_t length = 0; length < masks.size(); ++length ) {
        masks[length] = MakeWords( length, []( size_t ) { return 0xFF; } );
    }
    return masks;
}
constexpr std::array<Words, longestKnownName + 1> masks = MakeMasks();

// A hash table in which each known name has a slot to itself, found when this is compiled: so one look tells.
constexpr int slotBits = 10;

constexpr size_t SlotOf( const Words &name, uint64_t factor )
{
    return static_cast<size_t>( ( name.word[0] + 3 * name.word[1] + 5 * name.word[2] ) * factor >> ( 64 - slotBits ) );
}

struct Slots {
    uint64_t factor = 0x9E3779B97F4A7C15;
    std::array<uint8_t, 1 << slotBits> id{}; // knownNameCount: none
};

consteval Slots MakeSlots()
{
    Slots slots;
    for ( bool alone = false; !alone; slots.factor = slots.factor * 0xD1342543DE82EF95 + 2 ) {
        alone = true;
        slots.id.fill( knownNameCount );
        for ( size_t id = 0; id < knownNameCount && alone; ++id ) {
            uint8_t &slot = slots.id[SlotOf( knownWords[id].small, slots.factor )];
            alone = slot == knownNameCount;
            slot = static_cast<uint8_t>( id );
        }
        if ( alone ) {
            return slots;
        }
    }
    return slots;
}
constexpr Slots slots = MakeSlots();
static_assert( knownNameCount < UINT8_MAX );

/** Recognises a name that is no compact form. */
NameId RecognizeLong( const uint8_t *bytes, KoInt length )
{
    Words raw;
    memcpy( &raw, bytes, sizeof raw );
    Words small;
    for ( size_t i = 0; i < words; ++i ) {
        small.word[i] = ( raw.word[i] | smallLetters ) & masks[static_cast<size_t>( length )].word[i];
    }
    const size_t id = slots.id[SlotOf( small, slots.factor )];
    if ( id == knownNameCount ) {
        return unknownName;
    }
    uint64_t difference = 0;
    for ( size_t i = 0; i < words; ++i ) {
        difference |= small.word[i] ^ knownWords[id].small.word[i];
        difference |= knownWords[id].hyphens.word[i] & ~raw.word[i];
    }
    return difference ? unknownName : static_cast<NameId>( id );
}

NameId FindCompact( uint32_t ch )
{
    return ( ch | 0x20 ) >= 'a' && ( ch | 0x20 ) <= 'z' ? compactTable[ch & 0x1F] : unknownName;
}

} // namespace

NameId RecognizeName( const uint8_t *bytes, KoInt length )
{
    if ( length <= 1 ) {
        return length == 1 ? FindCompact( bytes[0] ) : unknownName;
    }
    return length <= longestKnownName ? RecognizeLong( bytes, length ) : unknownName;
}

NameId RecognizeName( const KoChar *chs, KoInt length )
{
    uint8_t bytes[longestKnownName] = {};
    if ( length > longestKnownName ) {
        return unknownName;
    }
    for ( KoInt i = 0; i < length; ++i ) {
        bytes[i] = static_cast<uint8_t>( chs[i] );
    }
    return RecognizeName( bytes, length );
}

KoString KnownNameString( NameId id )
{
    return strings[id];
}

void StartKnownNames()
{
    for ( size_t id = 0; id < knownNameCount; ++id ) {
        Start( strings[id], knownNames[id].data() );
    }
}

void StopKnownNames()
{
    for ( KoString &string : strings ) {
        Stop( string );
    }
}

} // namespace tolmo
