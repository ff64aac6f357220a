// Included first in every file of the browser's module, for its size. Both macros are libc++'s own.
#pragma once

/// Where the standard library would throw, the module traps: without a message, which would bring
/// its text along.
#define _LIBCPP_VERBOSE_ABORT(...) __builtin_trap()

// Strings are compiled here, for size and together with what calls them: those that lie compiled in
// the library are larger.
#define _LIBCPP___STRING_EXTERN_TEMPLATE_LISTS_H
#define _LIBCPP_STRING_V1_EXTERN_TEMPLATE_LIST(function, character)
#define _LIBCPP_STRING_UNSTABLE_EXTERN_TEMPLATE_LIST(function, character)
