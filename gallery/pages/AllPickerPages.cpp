#include "AllPickerPages.h"

#include "HeartPages.h"
#include "MovementPages.h"
#include "QuantityPages.h"

namespace gallery {

std::vector<PickerPageDescription> allPickerPages() {
    return {distancePage(),    durationPage(), pacePage(),   speedPage(),    heartRatePage(),
            temperaturePage(), weightPage(),   heightPage(), caloriesPage(), bpmPage()};
}

} // namespace gallery
