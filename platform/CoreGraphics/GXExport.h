#pragma once

/// Marks what a shared library exports: the public classes and functions.
///
/// All other symbols are hidden, so they are neither part of the binary interface nor in the way of
/// an application's own. In a static library the mark changes nothing.
#if defined(__wasm__) || defined(_WIN32)
#define GX_EXPORT
#else
#define GX_EXPORT __attribute__((visibility("default")))
#endif
