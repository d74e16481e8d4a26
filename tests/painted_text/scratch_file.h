// A file for one test.
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

/// The place of a file in an empty folder, which is removed at the end.
struct ScratchFile {
    explicit ScratchFile(const char* name) : path(folder / name)
    {
        std::filesystem::create_directory(folder);
    }
    ~ScratchFile() { std::filesystem::remove_all(folder); }
    void write(const std::string& bytes) const { std::ofstream(path, std::ios::binary) << bytes; }

    const std::filesystem::path folder = testing::TempDir() + "r7-painted-text-" + std::to_string(::getpid());
    const std::filesystem::path path;
};

} // namespace r7
