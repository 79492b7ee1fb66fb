// A folder for the length of one test.
#pragma once

#include <string>

namespace support {

class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // The path has no backslash at its end.
    const std::wstring& Path() const { return path_; }

    // Writes a file into the folder and returns its path.
    std::wstring Write(const std::wstring& name, const std::string& content) const;

    bool Holds(const std::wstring& name) const;

private:
    std::wstring path_;
};

}  // namespace support
