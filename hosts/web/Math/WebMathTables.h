#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace gx::web {

/// The tables of the C library's `exp` and `log`, computed when the module starts.
///
/// They are 6 KiB that no compression makes smaller, a twentieth of the download; this is 1 KiB of
/// code and numbers. Every bit is the same, so `exp` and `log` return what they do on a desktop.
///
/// The types have the layout of the C library's own, whose objects they stand for.
struct WebMathTables {
    static constexpr std::size_t intervals = 128;

    struct Exp {
        /// As the C library has them: what it needs besides, chiefly its polynomials.
        std::array<double, 14> coefficients = {0x1.71547652b82fep+7,
                                               0x1.8p+52,
                                               -0x1.62e42fefa0000p-8,
                                               -0x1.cf79abc9e3b3ap-47,
                                               0x1.ffffffffffdbdp-2,
                                               0x1.555555555543cp-3,
                                               0x1.55555cf172b91p-5,
                                               0x1.1111167a4d017p-7,
                                               0x1.8p+45,
                                               0x1.62e42fefa39efp-1,
                                               0x1.ebfbdff82c424p-3,
                                               0x1.c6b08d70cf4b5p-5,
                                               0x1.3b2abd24650ccp-7,
                                               0x1.5d7e09b4e3a84p-10};
        /// For each interval how far 2^(i/128) is off its double, as a share, and that double's
        /// bits, less those that i adds to an exponent.
        struct Entry {
            double tail = 0;
            std::uint64_t bits = 0;
        };
        std::array<Entry, intervals> entries = {};

        void compute();
    };

    struct Log {
        std::array<double, 18> coefficients = {0x1.62e42fefa3800p-1,  0x1.ef35793c76730p-45, -0x1.0000000000001p-1, 0x1.555555551305bp-2,
                                               -0x1.fffffffeb4590p-3, 0x1.999b324f10111p-3,  -0x1.55575e506c89fp-3, -0x1.0p-1,
                                               0x1.5555555555577p-2,  -0x1.ffffffffffdcbp-3, 0x1.999999995dd0cp-3,  -0x1.55555556745a7p-3,
                                               0x1.24924a344de30p-3,  -0x1.fffffa4423d65p-4, 0x1.c7184282ad6cap-4,  -0x1.999eb43b068ffp-4,
                                               0x1.78182f7afd085p-4,  -0x1.5521375d145cdp-4};
        /// For a number c near the middle of each interval 1/c, and the logarithm of c.
        struct Entry {
            double inverse = 0;
            double logarithm = 0;
        };
        std::array<Entry, intervals> entries = {};
        /// c in two parts, whose sum is exact to 106 bits.
        struct Centre {
            double high = 0;
            double low = 0;
        };
        std::array<Centre, intervals> centres = {};

        void compute();
    };
};

} // namespace gx::web
