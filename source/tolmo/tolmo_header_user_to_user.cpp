/* The header User-to-User (RFC 7433 section 4): data that one user sends to the other. */
#include <tolmo/tolmo_header_user_to_user.h>

#include <tolmo/tolmo_item_list.hpp>

// The name is not in its normal form, in which it stands in messages.
static constexpr tolmo::NameId headerName = tolmo::KnownName( "User-To-User" );
static KoString tolmo___KosUserToUser = nullptr;

void tolmo___HeaderUserToUserStartup( void )
{
    tolmo::Start( tolmo___KosUserToUser, "User-to-User" );
}

void tolmo___HeaderUserToUserShutdown( void )
{
    tolmo::Stop( tolmo___KosUserToUser );
}

TOLMO_ITEM_LIST_TYPE( UserToUser, TOLMO_HEADER_USER_TO_USER )
TOLMO_VALUE_LIST( UserToUser, UuiValue, UuiValue, value )

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderUserToUser> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLines( lines, tolmo::skip::UuiValue, tolmoHeaderUserToUserCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( UserToUser, UserToUser )
