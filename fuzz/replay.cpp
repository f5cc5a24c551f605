// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fuzzinput.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

void replay(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
}

} // namespace

/** Plays the files of the folders that it is given; 1 when there are none. */
int main(int argc, char **argv)
{
    int played = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &entry : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (entry.is_regular_file()) {
                replay(entry.path());
                ++played;
            }
        }
    }
    std::printf("%d inputs played\n", played);
    return played > 0 ? 0 : 1;
}
