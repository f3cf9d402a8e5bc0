/* Punycode (RFC 3492): the ASCII form of a label, without its prefix. */
#include <address/wen_punycode.hpp>

#include <cstring>

namespace wen {
namespace {

// The parameters of RFC 3492, section 5.
constexpr int64_t base = 36;
constexpr int64_t tMin = 1;
constexpr int64_t tMax = 26;
constexpr int64_t skew = 38;
constexpr int64_t damp = 700;
constexpr int64_t initialBias = 72;
constexpr KoChar initialN = 0x80;
constexpr KoChar lastChar = 0x10FFFF;

/** The next bias (section 6.1). `points` is the number of characters so far, the new one included. */
int64_t Adapt( int64_t delta, int64_t points, bool first )
{
    delta /= first ? damp : 2;
    delta += delta / points;
    int64_t k = 0;
    for ( ; delta > ( base - tMin ) * tMax / 2; k += base ) {
        delta /= base - tMin;
    }
    return k + ( base - tMin + 1 ) * delta / ( delta + skew );
}

int64_t Threshold( int64_t k, int64_t bias )
{
    return k <= bias + tMin ? tMin : k >= bias + tMax ? tMax : k - bias;
}

KoChar Digit( int64_t value )
{
    return static_cast<KoChar>( value < 26 ? 'a' + value : '0' + value - 26 );
}

/** The value of a digit, or -1. */
int64_t DigitValue( KoChar ch )
{
    if ( ch >= '0' && ch <= '9' ) {
        return ch - '0' + 26;
    }
    const KoChar small = ch | 0x20;
    return small >= 'a' && small <= 'z' ? small - 'a' : -1;
}

} // namespace

int PunycodeEncode( const KoChar *chs, int length, KoChar *out, int room )
{
    int written = 0;
    const auto put = [&]( KoChar ch ) {
        if ( written < room ) {
            out[written] = ch;
        }
        return ++written <= room;
    };
    for ( int i = 0; i < length; ++i ) {
        if ( chs[i] < initialN && !put( chs[i] ) ) {
            return -1;
        }
    }
    const int basic = written;
    if ( basic > 0 && !put( '-' ) ) {
        return -1;
    }
    KoChar n = initialN;
    int64_t delta = 0;
    int64_t bias = initialBias;
    for ( int handled = basic; handled < length; ) {
        KoChar next = lastChar;
        for ( int i = 0; i < length; ++i ) {
            next = chs[i] >= n && chs[i] < next ? chs[i] : next;
        }
        delta += static_cast<int64_t>( next - n ) * ( handled + 1 );
        for ( int i = 0; i < length; ++i ) {
            delta += chs[i] < next;
            if ( chs[i] != next ) {
                continue;
            }
            int64_t q = delta;
            for ( int64_t k = base;; k += base ) {
                const int64_t t = Threshold( k, bias );
                if ( q < t ) {
                    break;
                }
                if ( !put( Digit( t + ( q - t ) % ( base - t ) ) ) ) {
                    return -1;
                }
                q = ( q - t ) / ( base - t );
            }
            if ( !put( Digit( q ) ) ) {
                return -1;
            }
            bias = Adapt( delta, handled + 1, handled == basic );
            delta = 0;
            ++handled;
        }
        ++delta;
        n = next + 1;
    }
    return written;
}

int PunycodeDecode( const KoChar *chs, int length, KoChar *out )
{
    int basic = 0; // up to the last delimiter
    for ( int i = 0; i < length; ++i ) {
        basic = chs[i] == '-' ? i : basic;
    }
    for ( int i = 0; i < basic; ++i ) {
        if ( chs[i] < 0 || chs[i] >= initialN ) {
            return -1;
        }
        out[i] = chs[i];
    }
    int count = basic;
    int64_t n = initialN;
    int64_t place = 0;
    int64_t bias = initialBias;
    for ( int at = basic > 0 ? basic + 1 : 0; at < length; ) {
        const int64_t before = place;
        int64_t weight = 1;
        for ( int64_t k = base;; k += base ) {
            const int64_t digit = at < length ? DigitValue( chs[at++] ) : -1;
            // No sequence of digits may lead further than to the last code point at the last place.
            if ( digit < 0 || digit * weight > static_cast<int64_t>( lastChar + 1 ) * ( count + 1 ) ) {
                return -1;
            }
            place += digit * weight;
            const int64_t t = Threshold( k, bias );
            if ( digit < t ) {
                break;
            }
            weight *= base - t;
        }
        ++count;
        bias = Adapt( place - before, count, before == 0 );
        n += place / count;
        place %= count;
        if ( n > lastChar ) {
            return -1;
        }
        memmove( out + place + 1, out + place, static_cast<size_t>( count - 1 - place ) * sizeof( KoChar ) );
        out[place++] = static_cast<KoChar>( n );
    }
    return count;
}

} // namespace wen
