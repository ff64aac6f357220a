// What the C++ runtime needs of its surroundings, in its smallest form: memory, and an end where it
// cannot go on.
//
// The page sees a failure as an exception of its own. The state of the module is undefined from
// then on, since nothing was unwound: the page goes on with a new instance.

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <version>

#include "WebHeap.h"
#include "WebMath.h"
#include "WebMathTables.h"
#include "WebPage.h"

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): an attribute takes no constant
#define GX_WEB_EXPORT(name) extern "C" __attribute__((export_name(name)))

// The tables of `exp` and `log`, under the C library's own names.
extern "C" {
gx::web::WebMathTables::Exp __exp_data;
gx::web::WebMathTables::Log __log_data;
}

namespace {

using gx::web::WebHeap;

void* growMemory(std::size_t bytes) {
    const std::size_t before = __builtin_wasm_memory_grow(0, bytes / WebHeap::pageSize);
    if (before == SIZE_MAX) return nullptr;
    return reinterpret_cast<void*>(before * WebHeap::pageSize); // NOLINT
}

// Works before any constructor has run.
constinit WebHeap heap(growMemory);

void* allocate(std::size_t size) {
    void* pointer = heap.allocate(size);
    if (!pointer) {
        gx_page_out_of_memory(static_cast<double>(size));
        __builtin_trap();
    }
    return pointer;
}

/// Before any other constructor may compute something.
__attribute__((constructor(101))) void computeTables() {
    __exp_data.compute();
    __log_data.compute();
}

} // namespace

// Memory. No type here needs more than the usual alignment.

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return heap.allocate(size); }
void operator delete(void* pointer) noexcept { heap.release(pointer); }
void operator delete[](void* pointer) noexcept { heap.release(pointer); }
void operator delete(void* pointer, std::size_t) noexcept { heap.release(pointer); }
void operator delete[](void* pointer, std::size_t) noexcept { heap.release(pointer); }
void operator delete(void* pointer, const std::nothrow_t&) noexcept { heap.release(pointer); }
// Where the alignment is known only when it runs: else the C library's allocator would come along.
void operator delete(void* pointer, std::align_val_t) noexcept { heap.release(pointer); }
void operator delete(void* pointer, std::size_t, std::align_val_t) noexcept { heap.release(pointer); }

/// How many bytes are in use.
GX_WEB_EXPORT("liveBytes") double gx_web_live_bytes() { return static_cast<double>(heap.liveBytes()); }
/// How many bytes the module may take while it runs.
GX_WEB_EXPORT("limitMemory") void gx_web_limit_memory(double bytes) { heap.setLimit(static_cast<std::size_t>(bytes)); }

// Numbers as text. The linker gives these the calls to `std::to_string`, which has a table of all
// pairs of digits and code for each length.

std::string textOfLong(long long number) __asm__("__wrap__ZNSt3__29to_stringEx");
std::string textOfInt(int number) __asm__("__wrap__ZNSt3__29to_stringEi");

std::string textOfLong(long long number) {
    // Filled from its end. NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
    std::array<char, 20> digits;
    char* begin = digits.data() + digits.size();
    auto left = static_cast<unsigned long long>(number);
    if (number < 0) left = 0 - left;
    do {
        *--begin = static_cast<char>('0' + left % 10);
        left /= 10;
    } while (left != 0);
    if (number < 0) *--begin = '-';
    return {begin, digits.data() + digits.size()};
}

std::string textOfInt(int number) { return textOfLong(number); }

extern "C" {

// For sine and cosine, whose names for it these are.

int __rem_pio2(double angle, double* rest) {
    const auto reduced = gx::web::WebMath::reducedAngle(angle);
    rest[0] = reduced.rest[0];
    rest[1] = reduced.rest[1];
    return reduced.quarters;
}

double hypot(double x, double y) { return gx::web::WebMath::hypot(x, y); }
double atan2(double y, double x) { return gx::web::WebMath::atan2(y, x); }
double round(double number) { return gx::web::WebMath::round(number); }

// The C library's own are loops; there is an instruction for each.

void* memcpy(void* to, const void* from, std::size_t size) { return __builtin_memcpy(to, from, size); }
void* memmove(void* to, const void* from, std::size_t size) { return __builtin_memmove(to, from, size); }
void* memset(void* to, int byte, std::size_t size) { return __builtin_memset(to, byte, size); }

// The C library's own look at several bytes at once, which is more code; texts here are short.

void* memchr(const void* text, int byte, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(text);
    for (std::size_t i = 0; i < size; ++i) {
        if (bytes[i] == static_cast<unsigned char>(byte)) return const_cast<unsigned char*>(bytes + i);
    }
    return nullptr;
}

std::size_t strlen(const char* text) {
    std::size_t length = 0;
    while (text[length] != 0) ++length;
    return length;
}

// Where it cannot go on it traps, without a message of its own: so the module needs no printing.

void abort() { __builtin_trap(); }
[[noreturn]] void abort_message(const char* /*format*/, ...) { __builtin_trap(); }

// Static objects live as long as the page: none is destroyed.

int __cxa_atexit(void (*)(void*), void*, void*) { return 0; }
}

_LIBCPP_BEGIN_NAMESPACE_STD
[[noreturn]] void __libcpp_verbose_abort(const char* /*format*/, ...) { __builtin_trap(); }
_LIBCPP_END_NAMESPACE_STD
