// Replays corpus files through a fuzz target without libFuzzer: every file of every folder
// named on the command line (or the files named) goes to LLVMFuzzerTestOneInput once, in
// name order. A finding aborts, so the test fails on the input that caused it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        const fs::path arg = argv[i];
        if (fs::is_directory(arg)) {
            for (const auto& entry : fs::directory_iterator(arg))
                if (entry.is_regular_file())
                    inputs.push_back(entry.path());
        } else if (fs::is_regular_file(arg)) {
            inputs.push_back(arg);
        } else {
            std::fprintf(stderr, "no such corpus file or folder: %s\n", argv[i]);
            return 2;
        }
    }
    std::sort(inputs.begin(), inputs.end());
    if (inputs.empty()) {
        std::fprintf(stderr, "no corpus files given\n");
        return 2;
    }
    for (const fs::path& p : inputs) {
        std::ifstream in(p, std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(in),
                                      std::istreambuf_iterator<char>()};
        std::fprintf(stderr, "replay %s (%zu bytes)\n", p.string().c_str(), bytes.size());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("replayed %zu inputs\n", inputs.size());
    return 0;
}
