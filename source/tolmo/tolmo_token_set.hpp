/*
 * Token sets: headers whose words have neither order nor repetition that means anything.
 *
 * A unit names its words, how it keeps them, and its grammar; the macros below make the operations of that:
 *
 *     TOLMO_TOKEN_SET_CREATE( Require, TOLMO_HEADER_REQUIRE )
 *     TOLMO_TOKEN_SET_READING( Require, OptionTag )
 *     TOLMO_TOKEN_SET_CHANGING( Require, OptionTag, optionTag, tolmo::Folded )
 *     TOLMO_TOKEN_SET_CSTR_FORMS( Require, OptionTag )
 *     TOLMO_TOKEN_SET_CODING( Require, tolmo::skip::OptionTag, tolmo::skip::Comma, ',', tolmo::Folded )
 *
 * The words are a dictionary, `words`, each under itself.
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

/** Create. */
#define TOLMO_TOKEN_SET_CREATE( Type, SORT )                                                                           \
    TolmoHeader##Type tolmoHeader##Type##Create( void )                                                                \
    {                                                                                                                  \
        auto hdr = tolmo::CreateObject<tolmo___Header##Type>( &tolmo___sort_##SORT );                                  \
        hdr.Get()->words = koDictCreate();                                                                             \
        return hdr.Leak();                                                                                             \
    }

/** ItemsLength, ItemAt and ItemsVector. */
#define TOLMO_TOKEN_SET_READING( Type, Item )                                                                          \
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
    }

/**
 * HasItem, SetItem, DelItem, SetItemsVector and ClearItems. `Kept` is how words are kept and looked up. The vector's
 * objects count by their text; a text that is no word ends the process with the set partly built.
 */
#define TOLMO_TOKEN_SET_CHANGING( Type, Item, item, Kept )                                                             \
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

/** Encode and Decode: a word and what stands between two of them, as skip functions; the separator that is printed. */
#define TOLMO_TOKEN_SET_CODING( Type, skipWord, skipSeparator, separator, Kept )                                       \
    TolmoMessageHeader tolmoHeader##Type##Encode( TolmoHeader##Type hdr )                                              \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return tolmo::WordsHeader( headerName, hdr->words, separator );                                                \
    }                                                                                                                  \
    namespace {                                                                                                        \
    KoRef<TolmoHeader##Type> Decode( const tolmo::Lines &lines )                                                       \
    {                                                                                                                  \
        auto hdr = tolmo::Adopt( tolmoHeader##Type##Create() );                                                        \
        const bool good = tolmo::CutToSet<Kept>( lines, skipSeparator, skipWord, hdr.Get()->words );                   \
        return good ? std::move( hdr ) : KoRef<TolmoHeader##Type>();                                                   \
    }                                                                                                                  \
    }

#endif
