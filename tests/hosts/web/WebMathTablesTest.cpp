#include "WebMathTables.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>

namespace gx::web {
namespace {

/// FNV-1a of all bytes: one number that another program can compute of the C library's own table.
template <class Table>
std::uint64_t hashOf(const Table& table) {
    std::array<unsigned char, sizeof(Table)> bytes = {};
    std::memcpy(bytes.data(), &table, sizeof(Table));
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const unsigned char byte : bytes) hash = (hash ^ byte) * 0x100000001b3;
    return hash;
}

std::uint64_t bitsOf(double number) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

template <class Table>
Table computed() {
    Table table;
    table.compute();
    return table;
}

// The expected numbers were read from the object files of wasi-libc's exp and log.

TEST(WebMathTables, ExponentialsAreThoseOfTheLibraryToTheBit) {
    const auto table = computed<WebMathTables::Exp>();
    EXPECT_EQ(sizeof table, 2160U);
    EXPECT_EQ(bitsOf(table.entries[0].tail), 0U);
    EXPECT_EQ(table.entries[0].bits, 0x3ff0000000000000U);
    EXPECT_EQ(bitsOf(table.entries[1].tail), 0x3c9b3b4f1a88bf6eU);
    EXPECT_EQ(table.entries[1].bits, 0x3feff63da9fb3335U);
    EXPECT_EQ(bitsOf(table.entries[2].tail), 0xbc7160139cd8dc5dU);
    EXPECT_EQ(table.entries[2].bits, 0x3fefec9a3e778061U);
    EXPECT_EQ(hashOf(table), 0x932a18475d53459bU);
}

TEST(WebMathTables, LogarithmsAreThoseOfTheLibraryToTheBit) {
    const auto table = computed<WebMathTables::Log>();
    EXPECT_EQ(sizeof table, 4240U);
    EXPECT_EQ(table.entries[0].inverse, 0x1.734f0c3e0de9fp+0);
    EXPECT_EQ(table.entries[0].logarithm, -0x1.7cc7f79e69000p-2);
    EXPECT_EQ(table.entries[127].inverse, 0x1.756cadbd6130cp-1);
    EXPECT_EQ(table.entries[127].logarithm, 0x1.432eee32fe000p-2);
    EXPECT_EQ(hashOf(table), 0x0b5a6a2a36bb3d50U);
}

} // namespace
} // namespace gx::web
