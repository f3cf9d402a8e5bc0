/* Punycode (RFC 3492): the ASCII form of a label, without its prefix. */
#ifndef WEN_PUNYCODE_HPP
#define WEN_PUNYCODE_HPP

#include <runtime/ko_base.h>

namespace wen {

/**
 * Encodes a label. The time is the product of its length and the number of its different characters.
 *
 * @param out Room for `room` characters, of which none stands behind the label's form.
 * @return The number of characters; -1 when they are more than `room`.
 */
int PunycodeEncode( const KoChar *chs, int length, KoChar *out, int room );

/**
 * Decodes a label. The time is at most the square of its length.
 *
 * @param out Room for `length` characters, which is enough.
 * @return The number of characters; -1 when the text is no Punycode of code points.
 */
int PunycodeDecode( const KoChar *chs, int length, KoChar *out );

} // namespace wen

#endif
