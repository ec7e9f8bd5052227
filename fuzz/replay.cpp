#include <iterator>
#include <vector>

#include "FuzzTarget.h"

// Runs a target on files, without libFuzzer. usage: replay_<target> FILE-OR-FOLDER...
int main(int argumentCount, char **arguments)
{
    const auto run = [](const std::filesystem::path &path) {
        std::ifstream file(path, std::ios::binary);
        const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
        std::printf("%s\n", path.c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size());
    };
    for (int i = 1; i < argumentCount; ++i) {
        if (!std::filesystem::is_directory(arguments[i]))
            run(arguments[i]);
        else
            for (const auto &entry : std::filesystem::directory_iterator(arguments[i]))
                run(entry.path());
    }
}
