#include "GalleryPages.h"

namespace gallery {

std::vector<GalleryPageDescription> galleryPages() {
    return {distancePage(),    durationPage(), pacePage(),   speedPage(),    heartRatePage(),
            temperaturePage(), weightPage(),   heightPage(), caloriesPage(), bpmPage()};
}

} // namespace gallery
