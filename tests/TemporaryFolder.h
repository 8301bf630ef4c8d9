#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

namespace Pelmora
{

/// A new folder that goes with this object.
class TemporaryFolder
{
public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("pelmora-" + std::to_string(std::random_device()())))
    {
        std::filesystem::create_directory(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::filesystem::path path(const std::filesystem::path& name) const { return path_ / name; }
    /// In the ANSI code page, as the library takes it.
    std::string name(const std::string& ansi) const { return path_.string() + "/" + ansi; }

    static void write(const std::filesystem::path& file, const std::string& bytes)
    {
        std::ofstream(file, std::ios::binary) << bytes;
    }
    static std::string read(const std::filesystem::path& file)
    {
        std::ostringstream content;
        content << std::ifstream(file, std::ios::binary).rdbuf();
        return content.str();
    }

private:
    std::filesystem::path path_;
};

} // namespace Pelmora
