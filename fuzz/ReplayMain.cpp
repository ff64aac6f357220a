// Runs a fuzz target over all files of a folder, without libFuzzer: replay FOLDER

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", arguments[0]);
        return 2;
    }
    int files = 0;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1], error)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> content{std::istreambuf_iterator<char>(file), {}};
        const std::vector<std::uint8_t> bytes(content.begin(), content.end());
        if (!file) {
            std::fprintf(stderr, "cannot read %s\n", entry.path().c_str());
            return 1;
        }
        // Named before it runs, so that the last one named is the one that fails.
        std::printf("%s\n", entry.path().filename().c_str());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
        ++files;
    }
    if (files == 0) std::fprintf(stderr, "no files in %s\n", arguments[1]);
    return files == 0 ? 1 : 0;
}
