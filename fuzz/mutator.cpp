/*
 * Changes: sequences of mutators on handles that share objects. What a mutator is told to change has changed, all else
 * stands as it stood, and no other handle sees any of it.
 *
 * The first line of the input makes the choices, the others are what is decoded: values, header lines, and headers of a
 * message. A setter gets what another object of the type has in that field, so that no call breaks a precondition.
 */
#include "rules.hpp"

#include <algorithm>
#include <map>
#include <optional>

namespace fuzz {
namespace {

using Texts = std::vector<std::string>;

struct Handle {
    KoRef<KoObj> object;
    Texts fields;
    Texts items;
};

// Getters that a mutator of another name may change: their Parts overlap.
bool MayFollow( const Type &type, const char *getter )
{
    static const std::map<std::string, std::vector<std::string>> followers = {
        { "Version", { "IsSip", "IsSip20" } },
        // One setter clears what the other has set.
        { "Via", { "RportNumeric", "HasRport", "HasRportEmpty", "HasRportNumeric" } },
        // All three work on one slot.
        { "HistoryInfo", { "Rc", "Mp", "Np", "HasRc", "HasMp", "HasNp" } },
        { "HeaderPriority",
          { "PriorityValue", "IsEmergency", "IsUrgent", "IsNormal", "IsNonUrgent", "IsPsapCallback" } },
        // A copy has lost its parameters.
        { "HeaderSubscriptionState", { "GenericParams" } },
    };
    const auto row = followers.find( type.name );
    return row != followers.end() && std::find( row->second.begin(), row->second.end(), getter ) != row->second.end();
}

// The two flags of a contact are written where they stand: all holders of the object see it.
bool WritesThrough( const Type &type, const Field &field )
{
    return type.name == "Contact" && std::string_view( field.name ).substr( 0, 3 ) == "Sip" && !field.del;
}

// The handles of one type: the first ones are what was decoded, and are never changed.
class Objects {
public:
    Objects( const Type &typeOfAll, const Items *itemsOfAll ) : type( typeOfAll ), items( itemsOfAll ) {}

    void Add( KoRef<KoObj> object )
    {
        handles.push_back( { std::move( object ), {}, {} } );
        Note( handles.back() );
        ++sources;
    }

    // Runs the choices. Behind each, checks the changed handle and those that had the same object; at the end, all.
    void Run( Choices choices )
    {
        if ( handles.empty() ) {
            return;
        }
        for ( size_t i = 0, count = handles.size(); i < count; ++i ) {
            Share( i );
        }
        while ( choices.Left() ) {
            const size_t acted = sources + choices.Below( handles.size() - sources );
            const size_t from = choices.Below( handles.size() );
            const size_t what = choices.Below( 8 );
            const KoObj object = handles[acted].object.Get();
            if ( what == 0 && handles.size() < 10 ) {
                Share( acted );
            } else if ( items && what < 6 ) {
                ChangeItems( handles[acted], handles[from].object.Get(), choices );
            } else {
                ChangeField( handles[acted], handles[from].object.Get(), choices );
            }
            CheckHandle( handles[acted] );
            for ( const Handle &handle : handles ) {
                if ( handle.object.Get() == object ) {
                    CheckHandle( handle );
                }
            }
        }
        for ( const Handle &handle : handles ) {
            CheckHandle( handle );
        }
    }

    [[nodiscard]] const std::vector<Handle> &Handles() const { return handles; }

private:
    void Note( Handle &handle )
    {
        handle.fields = Snapshot( type, handle.object.Get() );
        handle.items = items ? ItemTexts( *items, handle.object.Get() ) : Texts();
    }

    void Share( size_t index )
    {
        const Handle &handle = handles[index];
        handles.push_back( { KoRef<KoObj>::Share( handle.object.Get() ), handle.fields, handle.items } );
    }

    void CheckHandle( const Handle &handle )
    {
        CHECK_SAME( Joined( Snapshot( type, handle.object.Get() ) ), Joined( handle.fields ) );
        if ( items ) {
            CHECK_SAME( Joined( ItemTexts( *items, handle.object.Get() ) ), Joined( handle.items ) );
        }
    }

    // Copy on write: a shared object is left to the others, an own one stays where it is.
    template <class Call>
    void Change( Handle &handle, Call call )
    {
        const KoObj before = handle.object.Get();
        const bool unique = ko___IsUnique( before ) != KO_FALSE;
        call( handle.object.Address() );
        CHECK_TELL( unique == ( handle.object.Get() == before ), type.name );
    }

    void ChangeField( Handle &handle, KoObj from, Choices &choices )
    {
        const size_t which = choices.Byte();
        const size_t count = type.fields.size() + type.acts.size();
        if ( count == 0 ) {
            return;
        }
        if ( which % count >= type.fields.size() ) {
            const Act &act = type.acts[which % count - type.fields.size()];
            Change( handle, [&]( KoObj *x ) { act.run( x ); } );
            Note( handle );
            return;
        }
        const size_t index = which % count;
        const Field &field = type.fields[index];
        const std::string wanted = field.get( from );
        if ( field.set && WritesThrough( type, field ) ) {
            const KoObj object = handle.object.Get();
            field.set( handle.object.Address(), from );
            CHECK( handle.object.Get() == object );
            for ( Handle &each : handles ) {
                if ( each.object.Get() == object ) {
                    each.fields[index] = std::string( field.name ) + "=" + wanted;
                }
            }
        } else if ( field.del && choices.Below( 2 ) ) {
            Change( handle, [&]( KoObj *x ) { field.del( x ); } );
            const std::string now = field.get( handle.object.Get() );
            CHECK_TELL( now == "(null)" || now == "-1", field.name );
            Expect( handle, field.name, now, "false" );
        } else if ( field.set && wanted != "(null)" && wanted != "-1" ) {
            Change( handle, [&]( KoObj *x ) { CHECK( field.set( x, from ) ); } );
            CHECK_SAME( field.get( handle.object.Get() ), wanted );
            if ( items ) { // all items at once
                handle.items = ItemTexts( *items, from );
                handle.fields = Snapshot( type, from );
                return;
            }
            Expect( handle, field.name, wanted, "true" );
        }
    }

    // Notes what a handle has to tell now: the field, whether it is there, and what may follow.
    void Expect( Handle &handle, const std::string &name, const std::string &now, const char *has )
    {
        for ( size_t i = 0; i < type.fields.size(); ++i ) {
            const Field &field = type.fields[i];
            if ( name == field.name ) {
                handle.fields[i] = name + "=" + now;
            } else if ( "Has" + name == field.name ) {
                handle.fields[i] = "Has" + name + "=" + has;
            } else if ( MayFollow( type, field.name ) ) {
                handle.fields[i] = std::string( field.name ) + "=" + field.get( handle.object.Get() );
            }
        }
    }

    void ChangeItems( Handle &handle, KoObj from, Choices &choices )
    {
        const size_t operation = choices.Below( items->set ? 3 : 6 );
        Texts expected = handle.items;
        const KoInt length = items->length( from );
        const size_t place = choices.Below( expected.size() + 1 );
        const auto at = expected.begin() + static_cast<std::ptrdiff_t>( place );
        const KoInt index = length > 0 ? static_cast<KoInt>( choices.Byte() ) % length : 0;
        const auto item = Own( length > 0 ? items->item( from, index ) : nullptr );
        const std::string text = item ? items->text( item.Get() ) : "";
        if ( operation == 0 && choices.Below( 4 ) == 0 ) {
            Change( handle, [&]( KoObj *x ) { items->clear( x ); } );
            expected.clear();
        } else if ( items->set && item ) {
            const auto there = std::find( expected.begin(), expected.end(), text );
            CHECK( items->has( handle.object.Get(), item.Get() ) == ( there != expected.end() ) );
            if ( operation == 1 ) {
                Change( handle, [&]( KoObj *x ) { items->remove( x, item.Get() ); } );
                if ( there != expected.end() ) {
                    expected.erase( there );
                }
            } else {
                Change( handle, [&]( KoObj *x ) { items->add( x, item.Get() ); } );
                if ( there == expected.end() ) {
                    expected.push_back( text );
                }
            }
        } else if ( !items->set && operation == 1 && place < expected.size() ) {
            Change( handle, [&]( KoObj *x ) { items->delAt( x, static_cast<KoInt>( place ) ); } );
            expected.erase( at );
        } else if ( !items->set && item ) {
            Change( handle, [&]( KoObj *x ) {
                switch ( operation ) {
                case 2:
                    items->append( x, item.Get() );
                    expected.push_back( text );
                    break;
                case 3:
                    items->prepend( x, item.Get() );
                    expected.insert( expected.begin(), text );
                    break;
                case 4:
                    if ( place < expected.size() ) {
                        items->setAt( x, static_cast<KoInt>( place ), item.Get() );
                        *at = text;
                        break;
                    }
                    [[fallthrough]];
                default:
                    items->insert( x, static_cast<KoInt>( place ), item.Get() );
                    expected.insert( at, text );
                }
            } );
        }
        CHECK_SAME( Joined( ItemTexts( *items, handle.object.Get() ) ), Joined( expected ) );
        Note( handle );
    }

    const Type &type;
    const Items *items;
    std::vector<Handle> handles;
    size_t sources = 0;
};

// A copy of a Subscription-State may have no parameters, and then does not encode.
bool Encodes( const Type &type, KoObj object )
{
    return !type.params || Own( type.params( object ) );
}

void RunValues( const Value &type, const std::vector<Exact> &texts, const Choices &choices )
{
    Objects objects( type, nullptr );
    for ( const Exact &text : texts ) {
        if ( auto value = Own( type.decode( text.Chars(), text.Length() ) ) ) {
            objects.Add( std::move( value ) );
        }
    }
    objects.Run( choices );
    for ( const Handle &handle : objects.Handles() ) {
        const std::string printed = Take( type.encode( handle.object.Get() ) );
        const Exact chars( printed );
        const auto again = Own( type.decode( chars.Chars(), chars.Length() ) );
        if ( PrintsDecodable( type, handle.object.Get() ) ) {
            CHECK_TELL( again, printed );
            CHECK_SAME( Take( type.encode( again.Get() ) ), printed );
        }
    }
}

void RunHeaders( const Header &type, const std::vector<std::string_view> &lines, const Choices &choices )
{
    Objects objects( type, type.items.exist ? &type.items : nullptr );
    for ( size_t i = 1; i < lines.size(); ++i ) {
        auto raw = Own( tolmoMessageHeaderCreateCstr( type.literal.c_str(), -1 ) );
        const auto line = Str( lines[i] );
        if ( tolmoMessageHeaderLineOk( line.Get() ) ) {
            tolmoMessageHeaderAppendLine( raw.Address(), line.Get() );
            if ( auto hdr = Own( type.decode( raw.Get() ) ) ) {
                objects.Add( std::move( hdr ) );
            }
        }
    }
    objects.Run( choices );
    for ( const Handle &handle : objects.Handles() ) {
        if ( Encodes( type, handle.object.Get() ) && PrintsDecodable( type, handle.object.Get() ) ) {
            const auto printed = Own( type.encode( handle.object.Get() ) );
            if ( tolmoMessageHeaderLinesLength( printed.Get() ) > 0 ) {
                const auto again = Own( type.decode( printed.Get() ) );
                CHECK_TELL( !again ||
                                tolmoMessageHeaderEquals( Own( type.encode( again.Get() ) ).Get(), printed.Get() ),
                            type.name );
            }
        }
    }
}

// A message in the words of Describe.
struct Model {
    std::string start;
    std::vector<std::pair<std::string, Texts>> headers;
    std::optional<std::string> body;

    [[nodiscard]] std::string Text() const
    {
        std::string text = start;
        for ( const auto &[name, lines] : headers ) {
            text += name + "\n";
            for ( const std::string &line : lines ) {
                text += name + ": " + line + "\r\n";
            }
        }
        return text + "\n" + body.value_or( "(null)" );
    }

    Texts *Lines( const std::string &name )
    {
        for ( auto &[each, lines] : headers ) {
            if ( each == name ) {
                return &lines;
            }
        }
        return nullptr;
    }
};

struct MessageHandle {
    KoRef<TolmoMessage> msg;
    Model model;
};

void ChangeMessage( MessageHandle &handle, std::string_view line, size_t operation )
{
    TolmoMessage *const msg = handle.msg.Address();
    Model &model = handle.model;
    const auto version = Own( tolmoVersionCreateSip20() );
    const size_t colon = line.find( ':' );
    const auto name = Str( line.substr( 0, colon ) );
    const auto text = Str( colon == std::string_view::npos ? "" : line.substr( colon + 1 ) );
    const bool isHeader = tolmoMessageHeaderNameOk( name.Get() ) && tolmoMessageHeaderLineOk( text.Get() );
    const std::string normal = isHeader ? Take( tolmoMessageHeaderNameNormalize( name.Get() ) ) : "";
    switch ( operation ) {
    case 0:
    case 1:
        if ( isHeader ) { // a line more, or the only line
            auto header = Own( operation == 0 ? tolmoMessageHeader( *msg, name.Get() ) : nullptr );
            if ( !header ) {
                header = Own( tolmoMessageHeaderCreate( name.Get() ) );
            }
            tolmoMessageHeaderAppendLine( header.Address(), text.Get() );
            tolmoMessageSetHeader( msg, header.Get() );
            Texts *const lines = model.Lines( normal );
            if ( lines && operation == 0 ) {
                lines->push_back( Text( text.Get() ) );
            } else if ( lines ) {
                *lines = { Text( text.Get() ) };
            } else {
                model.headers.push_back( { normal, { Text( text.Get() ) } } );
            }
        }
        break;
    case 2:
        if ( isHeader ) {
            tolmoMessageDelHeader( msg, name.Get() );
            std::erase_if( model.headers, [&]( const auto &each ) { return each.first == normal; } );
        }
        break;
    case 3:
        tolmoMessageSetBody( msg, Buf( line ).Get() );
        model.body = line;
        break;
    case 4:
        tolmoMessageDelBody( msg );
        model.body.reset();
        break;
    case 5:
        if ( tolmoMethodOk( name.Get() ) && tolmoIriOk( text.Get() ) ) {
            tolmoMessageSetRequest( msg, version.Get(), name.Get(), text.Get() );
            model.start = Text( name.Get() ) + "\n" + Text( text.Get() ) + "\n-1\n(null)\nSIP/2.0\n";
        }
        break;
    case 6:
        tolmoMessageSetResponseWithReasonPhrase( msg, version.Get(), 100 + static_cast<KoInt>( line.size() % 900 ),
                                                 text.Get() );
        model.start =
            "(null)\n(null)\n" + std::to_string( 100 + line.size() % 900 ) + "\n" + Text( text.Get() ) + "\nSIP/2.0\n";
        break;
    default:
        for ( const Header &type : All().headers ) { // what is there goes out as it came in, or in normal form
            const auto hdr = Own( type.fromMessage( *msg ) );
            const auto printed = Own( hdr ? type.encode( hdr.Get() ) : nullptr );
            if ( printed && tolmoMessageHeaderLinesLength( printed.Get() ) == 1 ) {
                type.toMessage( hdr.Get(), msg );
                const auto header = Own( tolmoMessageHeaderCreateCstr( type.literal.c_str(), -1 ) );
                *model.Lines( Take( tolmoMessageHeaderName( header.Get() ) ) ) = { Take(
                    tolmoMessageHeaderLastLine( printed.Get() ) ) };
            }
        }
    }
}

void RunMessages( const std::vector<std::string_view> &lines, Choices choices )
{
    std::vector<MessageHandle> handles( 1 );
    const auto version = Own( tolmoVersionCreateSip20() );
    handles[0].msg = Own( tolmoMessageCreateRequest( version.Get(), Str( "INFO" ).Get(), Str( "sip:a@b" ).Get() ) );
    handles[0].model.start = "INFO\nsip:a@b\n-1\n(null)\nSIP/2.0\n";
    while ( choices.Left() ) {
        const size_t acted = choices.Below( handles.size() );
        const size_t operation = choices.Below( 9 );
        if ( operation == 8 && handles.size() < 6 ) {
            handles.push_back( { KoRef<TolmoMessage>::Share( handles[acted].msg.Get() ), handles[acted].model } );
        } else {
            ChangeMessage( handles[acted], lines[choices.Below( lines.size() )], operation );
        }
        for ( const MessageHandle &each : handles ) {
            CHECK_SAME( Describe( each.msg.Get(), true ), each.model.Text() );
        }
    }
    for ( const MessageHandle &each : handles ) {
        const auto again = Own( tolmoMessageTryDecode( Own( tolmoMessageEncode( each.msg.Get() ) ).Get() ) );
        CHECK( again );
    }
}

} // namespace

void MutatorTarget( std::string_view input )
{
    const std::vector<std::string_view> lines = Lines( input, 8 );
    Choices choices( lines[0].substr( 0, 64 ) );
    std::vector<Exact> texts;
    for ( size_t i = 1; i < lines.size(); ++i ) {
        texts.emplace_back( lines[i] );
    }
    switch ( choices.Below( 4 ) ) { // one kind at a time: most of the work goes into what the lines decode to
    case 0:
        for ( const Value &type : All().values ) {
            RunValues( type, texts, choices );
        }
        break;
    case 1:
        RunMessages( lines, choices );
        break;
    default:
        for ( const Header &type : All().headers ) {
            RunHeaders( type, lines, choices );
        }
    }
}

} // namespace fuzz
