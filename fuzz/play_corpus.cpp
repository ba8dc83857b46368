// SPDX-License-Identifier: MIT
//
//   fuzz-SUBJECT FILE...
//
// Runs a fuzz target without libFuzzer, so that every compiler can build it and every test run plays its corpus: on each file, and on
// the beginnings of each file, since a log or a table that was cut off is the damage that a power cut leaves.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
    constexpr std::size_t kBeginnings = 16;
    // An empty input is no null pointer.
    const std::uint8_t nothing = 0;
    LLVMFuzzerTestOneInput(&nothing, 0);
    for (int i = 1; i < count; ++i) {
        std::ifstream in(arguments[i], std::ios::binary);
        const std::vector<char> content{std::istreambuf_iterator<char>(in), {}};
        if (!in.good() || content.empty()) {
            std::fprintf(stderr, "%s cannot be read or is empty\n", arguments[i]);
            return 1;
        }
        for (std::size_t part = 1; part <= kBeginnings; ++part) {
            // A copy of exactly this length, so that a sanitizer sees a read beyond its end.
            const std::vector<std::uint8_t> beginning(content.begin(),
                                                      content.begin() + static_cast<std::ptrdiff_t>(content.size() * part / kBeginnings));
            LLVMFuzzerTestOneInput(beginning.empty() ? &nothing : beginning.data(), beginning.size());
        }
    }
    return 0;
}
