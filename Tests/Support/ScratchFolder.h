// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace lodestar
{

/// The permissions of a file or a folder.
inline unsigned modeOf(const std::filesystem::path& path)
{
    return static_cast<unsigned>(std::filesystem::status(path).permissions());
}

/// An empty folder that goes away with its owner, in memory where that can be had: thousands of saves would wait for
/// the disk.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        const std::filesystem::path memory = "/dev/shm";
        const bool inMemory = std::filesystem::is_directory(memory);
        std::string name = (inMemory ? memory : std::filesystem::temp_directory_path()) / "lodestar-XXXXXX";
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no scratch folder");
        }
        m_path = name;
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::string file(const std::string& name) const { return m_path / name; }
    std::string read(const std::string& name) const
    {
        std::ifstream stream(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

private:
    std::filesystem::path m_path;
};

} // namespace lodestar
