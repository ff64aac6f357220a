// A file of any content is refused with a reason, or is a workout that is written as it was read.

#include <cstddef>
#include <cstdint>

#include "GalleryWorkoutFile.h"

using gallery::GalleryWorkout;
using gallery::GalleryWorkoutFile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string error;
    const auto workout = GalleryWorkoutFile::workoutOfText(std::string(data, data + size), error);
    if (!workout) {
        if (error.empty()) __builtin_trap();
        return 0;
    }
    const auto again = GalleryWorkoutFile::workoutOfText(GalleryWorkoutFile::textOfWorkout(*workout), error);
    if (!again || !(*again == *workout)) __builtin_trap();
    return 0;
}
