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

// Names are compared in small letters, eight at a time. In token characters the bit 0x20 is all that tells capitals
// from small letters, and no character becomes a letter or a hyphen by it that was none.
constexpr size_t words = 3;
constexpr uint64_t smallLetters = 0x2020202020202020;
static_assert( longestKnownName == words * 8 );

struct Folded {
    uint64_t word[words];
};

constexpr uint64_t FoldedWord( std::string_view name, size_t first )
{
    uint64_t word = 0;
    for ( size_t i = first; i < first + 8 && i < name.size(); ++i ) {
        word |= static_cast<uint64_t>( static_cast<uint8_t>( name[i] ) | 0x20 ) << ( 8 * ( i - first ) );
    }
    return word;
}

consteval std::array<Folded, knownNameCount> MakeFolded()
{
    std::array<Folded, knownNameCount> folded{};
    for ( size_t id = 0; id < knownNameCount; ++id ) {
        for ( size_t w = 0; w < words; ++w ) {
            folded[id].word[w] = FoldedWord( knownNames[id], w * 8 );
        }
    }
    return folded;
}
constexpr std::array<Folded, knownNameCount> foldedNames = MakeFolded();

// An open hash table over the first word and the length. The keys are fixed, so nobody can make it slow.
constexpr size_t slots = 256;

constexpr size_t SlotOf( uint64_t firstWord, size_t length )
{
    return static_cast<size_t>( ( ( firstWord + length ) * 0x9E3779B97F4A7C15 ) >> 56 );
}

consteval std::array<uint8_t, slots> MakeSlots()
{
    std::array<uint8_t, slots> table{};
    for ( size_t id = 0; id < knownNameCount; ++id ) {
        size_t slot = SlotOf( foldedNames[id].word[0], knownNames[id].size() );
        while ( table[slot] ) {
            slot = ( slot + 1 ) % slots;
        }
        table[slot] = static_cast<uint8_t>( id + 1 );
    }
    return table;
}
constexpr std::array<uint8_t, slots> slotTable = MakeSlots();
static_assert( knownNameCount < 255 );

NameId Find( const Folded &name, size_t length )
{
    for ( size_t slot = SlotOf( name.word[0], length ); slotTable[slot]; slot = ( slot + 1 ) % slots ) {
        const size_t id = slotTable[slot] - 1u;
        if ( foldedNames[id].word[0] == name.word[0] && knownNames[id].size() == length &&
             foldedNames[id].word[1] == name.word[1] && foldedNames[id].word[2] == name.word[2] ) {
            return static_cast<NameId>( id );
        }
    }
    return unknownName;
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
    if ( length > longestKnownName ) {
        return unknownName;
    }
    Folded name{};
    for ( KoInt first = 0; first < length; first += 8 ) {
        uint64_t word = 0;
        memcpy( &word, bytes + first, sizeof word );
        const KoInt left = length - first;
        const uint64_t kept = left >= 8 ? ~uint64_t{ 0 } : ~( ~uint64_t{ 0 } << ( 8 * left ) );
        name.word[first / 8] = ( word | smallLetters ) & kept;
    }
    return Find( name, static_cast<size_t>( length ) );
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
