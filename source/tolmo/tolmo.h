/* tolmo: the syntax of SIP (RFC 3261 and its extensions). Everything. */
#ifndef TOLMO_H
#define TOLMO_H

#include <identifier/ulm.h>
#include <runtime/ko.h>
