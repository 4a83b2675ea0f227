// Runs a fuzz target on files that are known already, where there is no fuzzer: fuzz_replay TARGET FOLDER
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "support/fuzz_target.h"

static void replay(FuzzTarget target, const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    std::fprintf(stderr, "%s\n", file.c_str());  // the last one printed is the one that failed
    target(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

int main(int argc, char* argv[]) {
    const auto target = argc == 3 ? fuzzTargets().find(argv[1]) : fuzzTargets().end();
    if (target == fuzzTargets().end()) return EXIT_FAILURE;
    int replayed = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[2])) {
        replay(target->second, entry.path());
        ++replayed;
    }
    return replayed > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
