/* The tables, filled from the rows that make_types.py makes. */
#include "tables.hpp"

#include <algorithm>
#include <map>
#include <set>
#include <type_traits>

namespace fuzz {
namespace {

template <class Handle>
Handle As( KoObj x )
{
    return reinterpret_cast<Handle>( x );
}

std::string Show( KoInt value )
{
    return std::to_string( value );
}
std::string Show( KoBool value )
{
    return value ? "true" : "false";
}
std::string Show( KoString value )
{
    return Take( value );
}
template <class Handle>
std::string Show( Handle value )
{
    const auto owned = Own( value );
    return value ? Take( koObjToString( Obj( value ) ) ) : "(null)";
}

// Sets what another object of the type has in a field.
template <class Handle, class V>
bool Transplant( KoObj *x, void ( *set )( Handle *, V ), V value )
{
    if constexpr ( std::is_same_v<V, KoInt> ) {
        if ( value == -1 ) {
            return false;
        }
    } else if constexpr ( std::is_pointer_v<V> ) {
        if ( !value ) {
            return false;
        }
    }
    Handle handle = As<Handle>( *x );
    set( &handle, value );
    *x = Obj( handle );
    if constexpr ( std::is_pointer_v<V> ) {
        koObjRelease( Obj( value ) );
    }
    return true;
}

// Calls a mutator with the caller's handle in its type.
template <class Handle, class Change>
void Mutate( KoObj *x, Change change )
{
    Handle handle = As<Handle>( *x );
    change( &handle );
    *x = Obj( handle );
}

template <class Get>
void AddParams( Type &type, Get get )
{
    if constexpr ( std::is_same_v<decltype( get( KoObj() ) ), TolmoGenericParams> ) {
        type.params = get;
    }
}

#define MUTATOR( Handle, call ) []( KoObj *x ) { Mutate<Handle>( x, []( Handle *handle ) { call( handle ); } ); }

Tables Make()
{
    Tables tables;
    Value value;
    Header header;
    Type *type = nullptr;

#define SKIP( function ) tables.skips.push_back( { #function, function } );
#define SKIP_CHAR( function ) tables.skipsOfChar.push_back( { #function, function } );
#define SKIP_CHARS( function ) tables.skipsOfChars.push_back( { #function, function } );
#define SKIP_WORD( function ) tables.skipsOfWord.push_back( { #function, function } );
#define VALIDATOR( Name ) tables.validators.push_back( { #Name, tolmo##Name##Ok, tolmo___Skip##Name } );
#define NORMALIZER( Name ) tables.normalizers.push_back( { #Name, tolmo##Name##Ok, tolmo##Name##Normalize } );

#define BEGIN_TYPE( variable, Name )                                                                                   \
    type = &( variable );                                                                                              \
    type->name = #Name;                                                                                                \
    type->sort = tolmo##Name##Sort;                                                                                    \
    type->toString = []( KoObj x ) { return tolmo##Name##ToString( As<Tolmo##Name>( x ) ); };                          \
    type->createFrom = []( KoObj x ) { return Obj( tolmo##Name##CreateFrom( As<Tolmo##Name>( x ) ) ); };

#define FIELD( Name, Get, set, del )                                                                                   \
    type->fields.push_back(                                                                                            \
        { #Get, []( KoObj x ) { return Show( tolmo##Name##Get( As<Tolmo##Name>( x ) ) ); }, set, del } );              \
    AddParams( *type, []( KoObj x ) { return tolmo##Name##Get( As<Tolmo##Name>( x ) ); } );
#define SET( Name, Get )                                                                                               \
    []( KoObj *x, KoObj from ) {                                                                                       \
        return Transplant( x, tolmo##Name##Set##Get, tolmo##Name##Get( As<Tolmo##Name>( from ) ) );                    \
    }
#define DEL( Name, Get ) MUTATOR( Tolmo##Name, tolmo##Name##Del##Get )
#define ACT_WITH( Name, Operation, ... )                                                                               \
    type->acts.push_back( { #Operation "( " #__VA_ARGS__ " )", []( KoObj *x ) {                                        \
                               Mutate<Tolmo##Name>(                                                                    \
                                   x, []( Tolmo##Name *handle ) { tolmo##Name##Operation( handle, __VA_ARGS__ ); } );  \
                           } } );
#define ACT( Name, Operation ) type->acts.push_back( { #Operation, MUTATOR( Tolmo##Name, tolmo##Name##Operation ) } );

#define BEGIN_VALUE( Name )                                                                                            \
    value = Value();                                                                                                   \
    BEGIN_TYPE( value, Name )                                                                                          \
    value.decode = []( const KoChar *chs, KoInt length ) { return Obj( tolmo___##Name##TryDecode( chs, length ) ); };  \
    value.encode = []( KoObj x ) { return tolmo___##Name##Encode( As<Tolmo##Name>( x ) ); };
#define END_VALUE( Name ) tables.values.push_back( value );

#define BEGIN_HEADER( Name, text )                                                                                     \
    header = Header();                                                                                                 \
    BEGIN_TYPE( header, Name )                                                                                         \
    header.literal = text;                                                                                             \
    header.encode = []( KoObj x ) { return tolmo##Name##Encode( As<Tolmo##Name>( x ) ); };                             \
    header.decode = []( TolmoMessageHeader raw ) { return Obj( tolmo##Name##TryDecode( raw ) ); };                     \
    header.toMessage = []( KoObj x, TolmoMessage *msg ) {                                                              \
        tolmo##Name##EncodeToMessage( As<Tolmo##Name>( x ), msg );                                                     \
    };                                                                                                                 \
    header.fromMessage = []( TolmoMessage msg ) { return Obj( tolmo##Name##TryDecodeFromMessage( msg ) ); };           \
    header.present = []( TolmoMessage msg ) { return tolmo##Name##PresentInMessage( msg ) != KO_FALSE; };              \
    header.removeFrom = []( TolmoMessage *msg ) { tolmo##Name##RemoveFromMessage( msg ); };                            \
    header.store = []( KoObj x ) { return tolmo##Name##Store( As<Tolmo##Name>( x ) ); };                               \
    header.restore = []( KoStore store ) { return Obj( tolmo##Name##TryRestore( store ) ); };
#define END_HEADER( Name ) tables.headers.push_back( header );

#define ITEM_MUTATOR( Name, Item, operation )                                                                          \
    []( KoObj *x, KoObj item ) {                                                                                       \
        Mutate<Tolmo##Name>( x, [&]( Tolmo##Name *hdr ) { tolmo##Name##operation( hdr, As<Item>( item ) ); } );        \
    }
#define PLACE_MUTATOR( Name, Item, operation )                                                                         \
    []( KoObj *x, KoInt index, KoObj item ) {                                                                          \
        Mutate<Tolmo##Name>( x, [&]( Tolmo##Name *hdr ) { tolmo##Name##operation( hdr, index, As<Item>( item ) ); } ); \
    }
#define LIST( Name, Word, Item, clearIt )                                                                              \
    header.items.exist = true;                                                                                         \
    header.items.length = []( KoObj x ) { return tolmo##Name##Word##sLength( As<Tolmo##Name>( x ) ); };                \
    header.items.setAt = PLACE_MUTATOR( Name, Item, Set##Word##At );                                                   \
    header.items.insert = PLACE_MUTATOR( Name, Item, Insert##Word );                                                   \
    header.items.prepend = ITEM_MUTATOR( Name, Item, Prepend##Word );                                                  \
    header.items.append = ITEM_MUTATOR( Name, Item, Append##Word );                                                    \
    header.items.delAt = []( KoObj *x, KoInt index ) {                                                                 \
        Mutate<Tolmo##Name>( x, [&]( Tolmo##Name *hdr ) { tolmo##Name##Del##Word##At( hdr, index ); } );               \
    };                                                                                                                 \
    header.items.clear = MUTATOR( Tolmo##Name, clearIt );
#define VALUE_LIST( Name, Word, Val, clearIt )                                                                         \
    LIST( Name, Word, Tolmo##Val, clearIt )                                                                            \
    header.items.item = []( KoObj x, KoInt index ) {                                                                   \
        return Obj( tolmo##Name##TryDecode##Word##At( As<Tolmo##Name>( x ), index ) );                                 \
    };                                                                                                                 \
    header.items.text = []( KoObj item ) { return Take( tolmo___##Val##Encode( As<Tolmo##Val>( item ) ) ); };          \
    header.items.at = []( KoObj x, KoInt index ) {                                                                     \
        const auto raw = Own( tolmo##Name##Encode( As<Tolmo##Name>( x ) ) );                                           \
        return Take( tolmoMessageHeaderLineAt( raw.Get(), index ) );                                                   \
    };
#define TOKEN_LIST( Name, Word, clearIt )                                                                              \
    LIST( Name, Word, KoString, clearIt )                                                                              \
    TOKENS( Name, Word )
#define TOKENS( Name, Word )                                                                                           \
    header.items.item = []( KoObj x, KoInt index ) {                                                                   \
        return Obj( tolmo##Name##Word##At( As<Tolmo##Name>( x ), index ) );                                            \
    };                                                                                                                 \
    header.items.text = []( KoObj item ) { return Text( As<KoString>( item ) ); };                                     \
    header.items.at = []( KoObj x, KoInt index ) {                                                                     \
        return Take( tolmo##Name##Word##At( As<Tolmo##Name>( x ), index ) );                                           \
    };
#define TOKEN_SET( Name, Word )                                                                                        \
    header.items.exist = header.items.set = true;                                                                      \
    header.items.length = []( KoObj x ) { return tolmo##Name##Word##sLength( As<Tolmo##Name>( x ) ); };                \
    header.items.has = []( KoObj x, KoObj item ) {                                                                     \
        return tolmo##Name##Has##Word( As<Tolmo##Name>( x ), As<KoString>( item ) ) != KO_FALSE;                       \
    };                                                                                                                 \
    header.items.add = ITEM_MUTATOR( Name, KoString, Set##Word );                                                      \
    header.items.remove = ITEM_MUTATOR( Name, KoString, Del##Word );                                                   \
    header.items.clear = MUTATOR( Tolmo##Name, tolmo##Name##Clear##Word##s );                                          \
    TOKENS( Name, Word )

#include "types.inc"

    return tables;
}

} // namespace

const Tables &All()
{
    static const Tables tables = Make();
    return tables;
}

std::vector<std::string> Snapshot( const Type &type, KoObj x )
{
    std::vector<std::string> texts;
    for ( const Field &field : type.fields ) {
        texts.push_back( std::string( field.name ) + "=" + field.get( x ) );
    }
    return texts;
}

std::string Joined( const std::vector<std::string> &texts )
{
    std::string joined;
    for ( const std::string &text : texts ) {
        joined += text + "\n";
    }
    return joined;
}

std::vector<std::string> ItemTexts( const Items &items, KoObj hdr )
{
    std::vector<std::string> texts;
    for ( KoInt i = 0; i < items.length( hdr ); ++i ) {
        texts.push_back( items.at( hdr, i ) );
    }
    return texts;
}

namespace {

// The parameters that a type lifts into fields; null when there are none. Replaces prints its generic parameters whole,
// and hides none.
const std::vector<const char *> *Lifted( const Type &type )
{
    static const std::map<std::string, std::vector<const char *>> lifted = {
        { "Via", { "ttl", "maddr", "received", "rport", "branch" } },
        { "Contact", { "q", "expires", "rc", "mp", "np", "+sip.instance", "+sip.src", "+sip.srs" } },
        { "HistoryInfo", { "index", "rc", "mp", "np" } },
        { "Diversion", { "reason", "counter", "limit", "privacy", "screen" } },
        { "Accept", { "q" } },
        { "AcceptEncoding", { "q" } },
        { "CallInfo", { "purpose" } },
        { "Reason", { "cause", "text" } },
        { "UuiValue", { "encoding", "purpose", "content" } },
        { "HeaderFrom", { "tag", "epid" } },
        { "HeaderTo", { "tag", "epid" } },
        { "HeaderReferredBy", { "cid" } },
        { "HeaderSessionExpires", { "refresher" } },
        { "HeaderRetryAfter", { "duration" } },
        { "HeaderSubscriptionState", { "reason", "expires", "retry-after" } },
        { "HeaderSessionId", { "remote" } },
        { "HeaderEvent", { "id" } },
        { "HeaderContentDisposition", { "handling" } },
    };
    const auto row = lifted.find( type.name );
    return row == lifted.end() ? nullptr : &row->second;
}

} // namespace

bool HidesParams( const Type &type, KoObj x )
{
    const std::vector<const char *> *const lifted = Lifted( type );
    const auto params = Own( type.params ? type.params( x ) : nullptr );
    return lifted && params && std::any_of( lifted->begin(), lifted->end(), [&]( const char *name ) {
               return tolmoGenericParamsHasParamCstr( params.Get(), name, -1 ) != KO_FALSE;
           } );
}

bool PrintsNamesOnce( const Type &type, const std::string &printed )
{
    std::set<std::string> names;
    bool quoted = false;
    bool bracketed = false;
    for ( size_t i = 0; Lifted( type ) && i < printed.size(); ++i ) {
        const char c = printed[i];
        if ( quoted && c == '\\' ) {
            ++i;
        } else if ( c == '"' && !bracketed ) {
            quoted = !quoted;
        } else if ( !quoted && ( c == '<' || c == '>' ) ) {
            bracketed = c == '<';
        } else if ( c == ';' && !quoted && !bracketed &&
                    !names.insert( printed.substr( i, printed.find_first_of( ";=", i + 1 ) - i ) ).second ) {
            return false;
        }
    }
    return true;
}

} // namespace fuzz
