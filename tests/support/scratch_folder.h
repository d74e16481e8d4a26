// A folder for the files of one test.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace r7 {

inline std::string bytes_of(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// An empty folder, which is removed at the end with all that is in it.
struct ScratchFolder {
    ScratchFolder() { std::filesystem::create_directory(folder); }
    ~ScratchFolder() { std::filesystem::remove_all(folder); }
    void write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    const std::filesystem::path folder = testing::TempDir() + "r7-test-" + std::to_string(::getpid());
};

} // namespace r7
