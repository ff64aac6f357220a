// A file of any content is rejected with a reason, or is a workout that is written as it was read.

#include <cstddef>
#include <cstdint>

#include "WorkoutFile.h"

using gallery::Workout;
using gallery::WorkoutFile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string error;
    const auto workout = WorkoutFile::workoutOfText(std::string(data, data + size), error);
    if (!workout) {
        if (error.empty()) __builtin_trap();
        return 0;
    }
    const auto again = WorkoutFile::workoutOfText(WorkoutFile::textOfWorkout(*workout), error);
    if (!again || !(*again == *workout)) __builtin_trap();
    return 0;
}
