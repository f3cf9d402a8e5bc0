/* The header Date (RFC 3261 section 20.17). */
#include <tolmo/tolmo_header_date.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_scalar.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderDate {
    ko___Obj head;
    KoTime tm;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderDate::tm>;
static_assert( tolmo::namesAllFields<tolmo___HeaderDate, AllFields> );

TOLMO_FREE( HeaderDate, hdr, AllFields )
TOLMO_COMPARE( HeaderDate, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Date )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_DATE = TOLMO_SORT( "TOLMO_HEADER_DATE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderDate, TOLMO_HEADER_DATE )
TOLMO_CREATE_FROM( HeaderDate, AllFields )
TOLMO_HEADER_NAME( Date, Date, "Date" )

namespace {

KoRef<TolmoHeaderDate> Create( KoRef<KoTime> tm )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderDate>( &tolmo___sort_TOLMO_HEADER_DATE );
    hdr.Get()->tm = tm.Leak();
    return hdr;
}

} // namespace

TolmoHeaderDate tolmoHeaderDateCreate( KoTime tm )
{
    KO_REQUIRE( tm );
    return Create( tolmo::Share( tm ) ).Leak();
}

TolmoHeaderDate tolmoHeaderDateCreateFromCurrentTime( void )
{
    return Create( tolmo::Adopt( koTimeNow() ) ).Leak();
}

KoTime tolmoHeaderDateTime( TolmoHeaderDate hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->tm );
}

void tolmoHeaderDateSetTime( TolmoHeaderDate *hdr, KoTime tm )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tm );
    tolmo::MakeUnique( hdr, tolmoHeaderDateCreateFrom );
    tolmo::Store( ( *hdr )->tm, tolmo::Share( tm ) );
}

namespace {

/** The name of a number, of names of three letters each that count from `first`; null where there is none. */
KoRef<KoString> NameOf( KoInt number, std::string_view names, KoInt first )
{
    const auto count = static_cast<KoInt>( names.size() / 3 );
    const bool there = number >= first && number < first + count;
    return there ? tolmo::FromCstr( names.data() + ( number - first ) * 3, 3 ) : KoRef<KoString>();
}

} // namespace

// The fields go out as they are. A time that is not valid has no weekday, and none is written; one without a month ends the
// process, because there is no name of it to format.
TolmoMessageHeader tolmoHeaderDateEncode( TolmoHeaderDate hdr )
{
    KO_REQUIRE( hdr );
    const KoTime tm = hdr->tm;
    auto line = NameOf( koTimeWeekday( tm ), skip::wkdayNames, 0 );
    if ( !line ) {
        line = tolmo::Adopt( koStringCreate() );
    }
    const auto month = NameOf( koTimeMonth( tm ), skip::monthNames, 1 );
    koStringAppendFormatCstr( line.Address(), ", %02i %s %04i %02i:%02i:%02i GMT", -1, koTimeDay( tm ), month.Get(),
                              koTimeYear( tm ), koTimeHour( tm ), koTimeMinute( tm ), koTimeSecond( tm ) );
    return tolmo::OneLineHeader( headerName, std::move( line ) );
}

namespace {

/** Takes a run of exactly so many digits. */
bool TakeDigits( tolmo::Walk &w, KoInt count, KoInt &value )
{
    if ( !w.Need( skip::Digits ) || w.Last().length != count ) {
        return false;
    }
    value = tolmo::TryDecodeNumber( w.Last().chs, count, INT64_MAX );
    return true;
}

// wkday "," SP 2DIGIT SP month SP 4DIGIT SP 2DIGIT ":" 2DIGIT ":" 2DIGIT SP "GMT"
// Case, blanks and widths are exact. Which numbers form a date and a time is for the runtime to say, and the weekday has to
// be the right one.
KoRef<TolmoHeaderDate> DecodeLine( tolmo::Text line )
{
    static constexpr KoChar zone[] = { ' ', 'G', 'M', 'T' };
    tolmo::Walk w( line );
    KoInt weekday, day, month, year, hour, minute, second;
    if ( !w.Need( skip::Wkday, &weekday ) || !w.Need( skip::Char, ',' ) || !w.Need( skip::Char, ' ' ) ||
         !TakeDigits( w, 2, day ) || !w.Need( skip::Char, ' ' ) || !w.Need( skip::Month, &month ) ||
         !w.Need( skip::Char, ' ' ) || !TakeDigits( w, 4, year ) || !w.Need( skip::Char, ' ' ) ||
         !TakeDigits( w, 2, hour ) || !w.Need( skip::Char, ':' ) || !TakeDigits( w, 2, minute ) ||
         !w.Need( skip::Char, ':' ) || !TakeDigits( w, 2, second ) ||
         !w.Need( skip::Chars, zone, static_cast<KoInt>( std::size( zone ) ) ) || !w.AtEnd() ) {
        return {};
    }
    auto tm = tolmo::Adopt( koTimeCreate() );
    koTimeSetDay( tm.Address(), day );
    koTimeSetMonth( tm.Address(), month );
    koTimeSetYear( tm.Address(), year );
    koTimeSetHour( tm.Address(), hour );
    koTimeSetMinute( tm.Address(), minute );
    koTimeSetSecond( tm.Address(), second );
    const bool good = koTimeValid( tm.Get() ) && koTimeWeekday( tm.Get() ) == weekday;
    return good ? Create( std::move( tm ) ) : KoRef<TolmoHeaderDate>();
}

KoRef<TolmoHeaderDate> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Date, Date )
