// A folder for one test's files, gone when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <zlib.h>

#include "tests/screen/support/condition_files.h"

namespace jogeon::market {

class ScratchFolder {
public:
    std::filesystem::path operator/(std::string_view name) const { return folder_.Path() / name; }

    std::filesystem::path Write(std::string_view name, std::string_view bytes) const {
        std::ofstream(*this / name, std::ios::binary) << bytes;
        return folder_.Path() / name;
    }

    std::filesystem::path WriteGzipped(std::string_view name, std::string_view bytes) const {
        const gzFile file = gzopen((*this / name).c_str(), "wb");
        EXPECT_EQ(gzwrite(file, bytes.data(), static_cast<unsigned>(bytes.size())),
                  static_cast<int>(bytes.size()));
        gzclose(file);
        return folder_.Path() / name;
    }

    std::string Read(std::string_view name) const { return test::ReadBytes(*this / name); }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
            names.insert(entry.path().filename().string());
        return names;
    }

private:
    test::TempFolder folder_;
};

}  // namespace jogeon::market
