#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace support {

TemporaryFolder::TemporaryFolder() {
    static int made = 0;
    const std::wstring name = L"lejis-test-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++made);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
    EXPECT_TRUE(std::filesystem::create_directories(folder));
    path_ = folder.wstring();
}

TemporaryFolder::~TemporaryFolder() { std::filesystem::remove_all(path_); }

std::wstring TemporaryFolder::Write(const std::wstring& name, const std::string& content) const {
    const std::filesystem::path file = std::filesystem::path(path_) / name;
    std::ofstream(file, std::ios::binary) << content;
    return file.wstring();
}

bool TemporaryFolder::Holds(const std::wstring& name) const {
    return std::filesystem::exists(std::filesystem::path(path_) / name);
}

}  // namespace support
