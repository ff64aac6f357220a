// What the C++ runtime needs of its surroundings, in its smallest form: memory, and an end where it
// cannot go on.
//
// The page sees a failure as an exception of its own. The state of the module is undefined from
// then on, since nothing was unwound: the page goes on with a new instance.

#include <cstddef>
#include <cstdint>
#include <new>
#include <version>

#include "WebHeap.h"
#include "WebPage.h"

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): an attribute takes no constant
#define GX_WEB_EXPORT(name) extern "C" __attribute__((export_name(name)))

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

/// How many bytes are in use.
GX_WEB_EXPORT("liveBytes") double gx_web_live_bytes() { return static_cast<double>(heap.liveBytes()); }
/// How many bytes the module may take while it runs.
GX_WEB_EXPORT("limitMemory") void gx_web_limit_memory(double bytes) { heap.setLimit(static_cast<std::size_t>(bytes)); }

extern "C" {

// Sine and cosine of angles beyond a million, which rows of a wheel never have: the height of an
// element is a whole number of pixels, and a row is less than a million times as high.

int __rem_pio2_large(double*, double*, int, int, int) { __builtin_trap(); }

// The C library's own are loops; there is an instruction for each.

void* memcpy(void* to, const void* from, std::size_t size) { return __builtin_memcpy(to, from, size); }
void* memmove(void* to, const void* from, std::size_t size) { return __builtin_memmove(to, from, size); }
void* memset(void* to, int byte, std::size_t size) { return __builtin_memset(to, byte, size); }

// Where it cannot go on it traps, without a message of its own: so the module needs no printing.

void abort() { __builtin_trap(); }
[[noreturn]] void abort_message(const char* /*format*/, ...) { __builtin_trap(); }

// Static objects live as long as the page: none is destroyed.

int __cxa_atexit(void (*)(void*), void*, void*) { return 0; }
}

_LIBCPP_BEGIN_NAMESPACE_STD
[[noreturn]] void __libcpp_verbose_abort(const char* /*format*/, ...) { __builtin_trap(); }
_LIBCPP_END_NAMESPACE_STD
