// A folder for one test's files, gone when the test ends.
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <unistd.h>
#include <zlib.h>

namespace jogeon::market {

class ScratchFolder {
public:
    ScratchFolder() {
        static std::atomic<int> count = 0;
        path_ = std::filesystem::temp_directory_path() /
                ("jogeon-market-" + std::to_string(getpid()) + "-" + std::to_string(++count));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    std::filesystem::path Write(std::string_view name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return path_ / name;
    }

    std::filesystem::path WriteGzipped(std::string_view name, std::string_view bytes) const {
        const gzFile file = gzopen((path_ / name).c_str(), "wb");
        EXPECT_EQ(gzwrite(file, bytes.data(), static_cast<unsigned>(bytes.size())),
                  static_cast<int>(bytes.size()));
        gzclose(file);
        return path_ / name;
    }

    std::string Read(std::string_view name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.insert(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path path_;
};

}  // namespace jogeon::market
