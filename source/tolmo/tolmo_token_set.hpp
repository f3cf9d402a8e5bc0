/*
 * Token sets: headers whose words have neither order nor repetition that means anything.
 *
 * A unit names its words, how it keeps and separates them, and its string forms. The name of the words is that of their
 * validator and of their skip function:
 *
 *     TOLMO_HEADER_NAME( Require, Require, "Require" )
 *     TOLMO_TOKEN_SET_TYPE( Require, TOLMO_HEADER_REQUIRE )
 *     TOLMO_TOKEN_SET( Require, OptionTag, optionTag, tolmo::Folded, tolmo::skip::Comma, ',' )
 *     TOLMO_TOKEN_SET_CSTR_FORMS( Require, OptionTag )
 *     TOLMO_HEADER_OPERATIONS( Require, Require )
 */
#ifndef TOLMO_TOKEN_SET_HPP
#define TOLMO_TOKEN_SET_HPP

#include <runtime/ko_dict.hpp>
#include <tolmo/tolmo_item_list.hpp>
#include <tolmo/tolmo_joined_header.hpp>
#include <tolmo/tolmo_scalar.hpp>

namespace tolmo {

/** How a set keeps its words: as they stand. */
struct AsTheyStand {
    static KoRef<KoString> Keep( KoString word ) { return Share( word ); }
    static KoRef<KoString> Keep( Text word ) { return word.Copy(); }
};

/** How a set keeps its words: in their normal form, small letters. The words are tokens, and so ASCII. */
struct Folded {
    static KoRef<KoString> Keep( KoString word ) { return Adopt( Lowered( word ) ); }
    static KoRef<KoString> Keep( Text word ) { return word.CopyLowered(); }
};

/** A raw header with the words of a set on one line. */
inline TolmoMessageHeader WordsHeader( NameId name, KoDict words, KoChar separator )
{
    return JoinedHeader( name, koDictLength( words ), separator,
                         [=]( KoInt i ) { return ko::Entries( words )[i].key; } );
}

/** Cuts all lines into a set. False when a line holds anything else, or without a line. */
template <class Kept, class Separator, class Word>
bool CutToSet( const Lines &lines, Separator separator, Word word, KoDict &words )
{
    return !lines.Empty() && CutItems( lines, separator, word, [&]( Text text ) {
        const auto kept = Kept::Keep( text );
        koDictSetStringKey( &words, kept.Get(), koStringObj( kept.Get() ) );
    } );
}

} // namespace tolmo

/**
 * The type of a token set, which has one field: `words`, a dictionary of the words, each under itself. With its sort,
 * which compares word by word, its standard operations, and tolmoHeaderXCreate, an empty set.
 */
#define TOLMO_TOKEN_SET_TYPE( Type, SORT )                                                                             \
    struct tolmo___Header##Type {                                                                                      \
        ko___Obj head;                                                                                                 \
        KoDict words;                                                                                                  \
    };                                                                                                                 \
    namespace {                                                                                                        \
    using AllFields = tolmo::Fields<&tolmo___Header##Type::words>;                                                     \
    static_assert( tolmo::namesAllFields<tolmo___Header##Type, AllFields> );                                           \
    TOLMO_FREE( Header##Type, hdr, AllFields )                                                                         \
    TOLMO_COMPARE( Header##Type, hdrA, hdrB, AllFields )                                                               \
    TOLMO_HEADER_TO_STRING( Type )                                                                                     \
    }                                                                                                                  \
    static const ko___Sort tolmo___sort_##SORT = TOLMO_SORT( #SORT, Free, Compare, ToString );                         \
    TOLMO_STANDARD_OPERATIONS( Header##Type, SORT )                                                                    \
    TOLMO_CREATE_FROM( Header##Type, AllFields )                                                                       \
    TolmoHeader##Type tolmoHeader##Type##Create( void )                                                                \
    {                                                                                                                  \
        auto hdr = tolmo::CreateObject<tolmo___Header##Type>( &tolmo___sort_##SORT );                                  \
        hdr.Get()->words = koDictCreate();                                                                             \
        return hdr.Leak();                                                                                             \
    }

/**
 * ItemsLength, ItemAt and ItemsVector; HasItem, SetItem, DelItem, SetItemsVector and ClearItems; Encode and Decode.
 * `item` is the name of a word argument, `Kept` is how words are kept and looked up, `skipSeparator` and `separator`
 * are what is read and printed between two of them. The vector's objects count by their text; a text that is no word
 * ends the process with the set partly built.
 */
#define TOLMO_TOKEN_SET( Type, Item, item, Kept, skipSeparator, separator )                                            \
    KoInt tolmoHeader##Type##Item##sLength( TolmoHeader##Type hdr )                                                    \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return koDictLength( hdr->words );                                                                             \
    }                                                                                                                  \
    KoString tolmoHeader##Type##Item##At( TolmoHeader##Type hdr, KoInt index )                                         \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return koDictKeyAt( hdr->words, index );                                                                       \
    }                                                                                                                  \
    KoVector tolmoHeader##Type##Item##sVector( TolmoHeader##Type hdr )                                                 \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return koDictKeysVector( hdr->words );                                                                         \
    }                                                                                                                  \
    KoBool tolmoHeader##Type##Has##Item( TolmoHeader##Type hdr, KoString item )                                        \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        return koDictHasStringKey( hdr->words, Kept::Keep( item ).Get() );                                             \
    }                                                                                                                  \
    void tolmoHeader##Type##Set##Item( TolmoHeader##Type *hdr, KoString item )                                         \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        const auto kept = Kept::Keep( item );                                                                          \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koDictSetStringKey( &( *hdr )->words, kept.Get(), koStringObj( kept.Get() ) );                                 \
    }                                                                                                                  \
    void tolmoHeader##Type##Del##Item( TolmoHeader##Type *hdr, KoString item )                                         \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        const auto kept = Kept::Keep( item );                                                                          \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koDictDelStringKey( &( *hdr )->words, kept.Get() );                                                            \
    }                                                                                                                  \
    void tolmoHeader##Type##Set##Item##sVector( TolmoHeader##Type *hdr, KoVector vec )                                 \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( vec );                                                                                             \
        tolmoHeader##Type##Clear##Item##s( hdr );                                                                      \
        const KoInt length = koVectorLength( vec );                                                                    \
        for ( KoInt i = 0; i < length; ++i ) {                                                                         \
            const auto object = tolmo::Adopt( koVectorObjAt( vec, i ) );                                               \
            tolmoHeader##Type##Set##Item( hdr, tolmo::Adopt( koObjToString( object.Get() ) ).Get() );                  \
        }                                                                                                              \
    }                                                                                                                  \
    void tolmoHeader##Type##Clear##Item##s( TolmoHeader##Type *hdr )                                                   \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koDictClear( &( *hdr )->words );                                                                               \
    }                                                                                                                  \
    TolmoMessageHeader tolmoHeader##Type##Encode( TolmoHeader##Type hdr )                                              \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return tolmo::WordsHeader( headerName, hdr->words, separator );                                                \
    }                                                                                                                  \
    namespace {                                                                                                        \
    KoRef<TolmoHeader##Type> Decode( const tolmo::Lines &lines )                                                       \
    {                                                                                                                  \
        auto hdr = tolmo::Adopt( tolmoHeader##Type##Create() );                                                        \
        const bool good = tolmo::CutToSet<Kept>( lines, skipSeparator, tolmo::skip::Item, hdr.Get()->words );          \
        return good ? std::move( hdr ) : KoRef<TolmoHeader##Type>();                                                   \
    }                                                                                                                  \
    }

/** The Cstr and Wcstr forms of HasItem, SetItem and DelItem. */
#define TOLMO_TOKEN_SET_CSTR_FORMS( Type, Item )                                                                       \
    KoBool tolmoHeader##Type##Has##Item##Cstr( TolmoHeader##Type hdr, const char *chs, KoInt length )                  \
    {                                                                                                                  \
        return tolmoHeader##Type##Has##Item( hdr, tolmo::FromCstr( chs, length ).Get() );                              \
    }                                                                                                                  \
    KoBool tolmoHeader##Type##Has##Item##Wcstr( TolmoHeader##Type hdr, const uint16_t *chs, KoInt length )             \
    {                                                                                                                  \
        return tolmoHeader##Type##Has##Item( hdr, tolmo::FromWcstr( chs, length ).Get() );                             \
    }                                                                                                                  \
    void tolmoHeader##Type##Set##Item##Cstr( TolmoHeader##Type *hdr, const char *chs, KoInt length )                   \
    {                                                                                                                  \
        tolmoHeader##Type##Set##Item( hdr, tolmo::FromCstr( chs, length ).Get() );                                     \
    }                                                                                                                  \
    void tolmoHeader##Type##Set##Item##Wcstr( TolmoHeader##Type *hdr, const uint16_t *chs, KoInt length )              \
    {                                                                                                                  \
        tolmoHeader##Type##Set##Item( hdr, tolmo::FromWcstr( chs, length ).Get() );                                    \
    }                                                                                                                  \
    void tolmoHeader##Type##Del##Item##Cstr( TolmoHeader##Type *hdr, const char *chs, KoInt length )                   \
    {                                                                                                                  \
        tolmoHeader##Type##Del##Item( hdr, tolmo::FromCstr( chs, length ).Get() );                                     \
    }                                                                                                                  \
    void tolmoHeader##Type##Del##Item##Wcstr( TolmoHeader##Type *hdr, const uint16_t *chs, KoInt length )              \
    {                                                                                                                  \
        tolmoHeader##Type##Del##Item( hdr, tolmo::FromWcstr( chs, length ).Get() );                                    \
    }

#endif
