/* The wen library: IP addresses and international domain names. */
#ifndef WEN_H
#define WEN_H

#include <address/wen_address.h>
#include <address/wen_dns.h>
#include <runtime/ko_module.h>

KO_BEGIN_DECLS

/** The module of the library. It needs ko. @return The module, which is a constant. */
KO_API KoModule wenModule( void );

KO_END_DECLS

#endif
