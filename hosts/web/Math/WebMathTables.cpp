#include "WebMathTables.h"

#include <cstring>

namespace gx::web {

namespace {

constexpr std::size_t intervals = WebMathTables::intervals;

double doubleOfBits(std::uint64_t bits) {
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

std::uint64_t bitsOfDouble(double number) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

struct Halves {
    double high;
    double low;
};

/// A number in two halves, whose products with other halves are exact.
Halves halvesOf(double number) {
    constexpr double splitter = 0x1p27 + 1;
    const double scaled = number * splitter;
    const double high = scaled - (scaled - number);
    return {high, number - high};
}

/// a − b·c without rounding, if b·c is so close to a that a double can hold the difference.
double exactDifference(double a, double b, double c) {
    const double product = b * c;
    const Halves left = halvesOf(b);
    const Halves right = halvesOf(c);
    const double rest = ((left.high * right.high - product) + left.high * right.low + left.low * right.high) + left.low * right.low;
    return (a - product) - rest;
}

/// A number from 1 up to 2 with 159 binary places, the lowest 32 of them first.
using LongNumber = std::array<std::uint32_t, 5>;

/// 2^(1/128), rounded down.
constexpr LongNumber root = {0x01f60261, 0xb6e6fd20, 0x25335719, 0xd999ab6c, 0x80b1ed4f};

LongNumber product(const LongNumber& left, const LongNumber& right) {
    std::array<std::uint32_t, 10> sum = {};
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < right.size(); ++j) {
            carry += static_cast<std::uint64_t>(left[i]) * right[j] + sum[i + j];
            sum[i + j] = static_cast<std::uint32_t>(carry);
            carry >>= 32U;
        }
        sum[i + right.size()] = static_cast<std::uint32_t>(carry);
    }
    LongNumber result = {};
    for (std::size_t i = 0; i < result.size(); ++i) result[i] = (sum[i + 5] << 1U) | (sum[i + 4] >> 31U);
    return result;
}

/// How far the inverse of each centre is from that of the interval's middle, in units of its last
/// place. The C library's authors have searched them, so that the logarithms are close to numbers
/// with few digits.
constexpr std::array<std::int32_t, intervals> searchedOffsets = {
    -23142382,  -57643754,  -234334839, -124664804, 19045012,   -123323398, -501163255, 342479926,  -234593306, 57421184,   513617488,
    -240891478, 85169741,   28659150,   284053799,  342563057,  -68420459,  -346144712, -90113766,  -464022980, 285342708,  -489548825,
    376054848,  47397812,   -423637851, -260988534, 336107021,  448241578,  154177355,  447893384,  241227555,  -420636714, -218426730,
    -96876684,  -205835218, -368178198, -345128710, -510284502, 481763731,  209336112,  429336310,  15489329,   442353177,  -417834330,
    73183371,   515232680,  507984536,  83787275,   330409952,  151596684,  377744204,  198302857,  214798271,  -345957716, 356163107,
    215510022,  -229897960, -131709726, 215213618,  -464519207, -332821996, 385780520,  -400344786, 256208139,  478356527,  345720337,
    128466877,  217515751,  -162048343, 295127580,  -235892775, -69369347,  93666841,   -272860130, 91915174,   29018059,   258893229,
    386009280,  -241633007, 68399381,   386341370,  408940642,  65060217,   -120872168, 189498853,  -32395328,  -49955913,  154042178,
    -346113480, 148348366,  -396488327, -427431396, 107119491,  -500798201, 212184347,  305888811,  -330297730, -91422864,  6707636,
    273897542,  -512931067, -500150233, 485589437,  -280752730, 106848032,  30953893,   -291342514, -408884927, 149302919,  -107851081,
    225432558,  460497078,  -452391632, -490679353, 508304210,  493208081,  336502878,  526975298,  -457361038, -312310462, -365194252,
    -421357131, 362015322,  310793228,  -441535439, -69145545,  -528727990, 433364383};

} // namespace

void WebMathTables::Exp::compute() {
    LongNumber power = {0, 0, 0, 0, 0x80000000};
    for (std::size_t i = 0; i < intervals; ++i) {
        const std::uint64_t leading = (static_cast<std::uint64_t>(power[4]) << 32U) | power[3];
        // What 53 bits leave over: the next 64, which are negative if that rounds up, and the rest.
        const auto next = static_cast<std::int64_t>((leading << 53U) | (static_cast<std::uint64_t>(power[2]) << 21U) | (power[1] >> 11U));
        const auto last = static_cast<double>((static_cast<std::uint64_t>(power[1] & 0x7ffU) << 32U) | power[0]) * 0x1p-43;
        const double rounded = static_cast<double>((leading >> 11U) + (next < 0 ? 1U : 0U)) * 0x1p-52;
        const auto over = static_cast<double>(next);
        const double further = static_cast<double>(next - static_cast<std::int64_t>(over)) + last;

        const double share = over / rounded;
        entries[i].tail = (share + (exactDifference(over, share, rounded) + further) / rounded) * 0x1p-116;
        entries[i].bits = bitsOfDouble(rounded) - (static_cast<std::uint64_t>(i) << 45U);
        power = product(power, root);
    }
}

void WebMathTables::Log::compute() {
    // The first interval begins at 0.6875, and 128 of them make a doubling.
    constexpr std::uint64_t first = 0x3fe6000000000000;
    for (std::size_t i = 0; i < intervals; ++i) {
        const double middle = doubleOfBits(first + (static_cast<std::uint64_t>(2 * i + 1) << 44U));
        const double inverse = doubleOfBits(bitsOfDouble(1 / middle) + static_cast<std::uint64_t>(std::int64_t{searchedOffsets[i]}));
        const double centre = 1 / inverse;
        centres[i] = {centre, exactDifference(1, inverse, centre) / inverse};

        // ln c = 2 (s + s³/3 + s⁵/5 + …), where s is at most a sixth.
        const double s = (centre - 1) / (centre + 1);
        double sum = 0;
        for (int odd = 21; odd > 0; odd -= 2) sum = sum * s * s + 1.0 / odd;
        // The sum rounds it to 43 binary places, which the searched centres need at most.
        constexpr double rounding = 0x1.8p9;
        entries[i] = {inverse, (2 * s * sum + rounding) - rounding};
    }
}

} // namespace gx::web
