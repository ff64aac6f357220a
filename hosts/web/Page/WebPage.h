#pragma once

#include <cstdint>

/// What the module asks of the page: the imports of the WebAssembly module.
///
/// Plain C functions, called synchronously. Natively, the program that uses the host defines them,
/// as the tests do.
///
/// - The page acts on a notice after the module has returned. So no call comes back into the module
///   meanwhile, but the one of `text` that makes room for a title (`gx_page_row_title`).
/// - The text buffer holds another text then, so a function takes its own out of it first.
///
/// Texts are UTF-8 without an end mark. Lengths are CSS pixels, which are the points of floor 1.

#if defined(__wasm__)
#define GX_PAGE_IMPORT(name) __attribute__((import_module("page"), import_name(name)))
#else
#define GX_PAGE_IMPORT(name)
#endif

extern "C" {

/// Writes the advance width and the line height of a text to `size`.
///
/// `font` is a number that the page gave a font of its own, `fontSize` the size to take it in.
GX_PAGE_IMPORT("measureText")
void gx_page_measure_text(std::int32_t font, double fontSize, const char* text, std::int32_t length, double* size);

// Drawing. Transforms are a scale and a translation. `element` is not named: the page has called
// for the drawing itself.

/// Fills a rectangle. `shape` is a `gx::web::WebShape`.
GX_PAGE_IMPORT("fillRect")
void gx_page_fill_rect(std::int32_t shape, double x, double y, double width, double height, double cornerRadius, double alpha);
/// Draws one line of text with its line box at (x, y). `isRow` is 1 for a row of a column, and
/// `home` tells apart the columns that it may belong to: where it would stand if it were not drawn
/// as a part of a cylinder.
GX_PAGE_IMPORT("drawText")
void gx_page_draw_text(std::int32_t isRow, std::int32_t font, double fontSize, const char* text, std::int32_t length, double scaleX,
                       double scaleY, double x, double y, double alpha, double home);
/// Draws a picture of the page's, known by its handle.
GX_PAGE_IMPORT("drawImage")
void gx_page_draw_image(std::int32_t image, double scaleX, double scaleY, double x, double y, double width, double height, double alpha,
                        double home);

/// No memory is left for so many bytes. The page throws an exception; it does not return.
GX_PAGE_IMPORT("outOfMemory")
void gx_page_out_of_memory(double bytes);

// Notices of an element

/// Something has changed on screen: a frame is needed.
GX_PAGE_IMPORT("needsFrame")
void gx_page_needs_frame(std::int32_t element);
/// A row has passed the selection indicator in a gesture of the user.
GX_PAGE_IMPORT("didPassRow")
void gx_page_did_pass_row(std::int32_t element);
/// The user has selected something. The page reads the values afterwards.
GX_PAGE_IMPORT("didChange")
void gx_page_did_change(std::int32_t element);

// Queries of an element whose columns are the application's

/// Puts the title of a row into the text buffer, by a call of `text`. Returns its length; −1 for
/// none.
GX_PAGE_IMPORT("rowTitle")
std::int32_t gx_page_row_title(std::int32_t element, std::int32_t component, double row);
}
