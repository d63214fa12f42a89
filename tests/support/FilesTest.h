// A test with a temporary folder.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace tw::test {

class FilesTest : public testing::Test {
  protected:
    FilesTest() {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::path(testing::TempDir()) /
                 ("tunwright_" + std::string(info->test_suite_name()) + "_" + info->name());
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        folder = std::filesystem::canonical(folder);
    }
    ~FilesTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string File(const std::string& name) const { return (folder / name).string(); }
    void Put(const std::string& name, std::string_view text) const {
        std::ofstream(File(name), std::ios::binary) << text;
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(File(name), std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
    // Returns the permission bits of a file.
    unsigned Mode(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(File(name).c_str(), &status), 0) << name;
        return status.st_mode & 0777U;
    }
    int Files() const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder),
                                              std::filesystem::directory_iterator()));
    }

    std::filesystem::path folder;
};

}  // namespace tw::test
