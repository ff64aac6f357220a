#pragma once

#include <vector>

#include "GalleryPage.h"

namespace gallery {

GalleryPageDescription bpmPage();
GalleryPageDescription caloriesPage();
GalleryPageDescription distancePage();
GalleryPageDescription durationPage();
GalleryPageDescription heartRatePage();
GalleryPageDescription heightPage();
GalleryPageDescription pacePage();
GalleryPageDescription speedPage();
GalleryPageDescription temperaturePage();
GalleryPageDescription weightPage();

/// The pages of all pickers, in the order in which the gallery lists them.
std::vector<GalleryPageDescription> galleryPages();

} // namespace gallery
