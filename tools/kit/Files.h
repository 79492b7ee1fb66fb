#pragma once

#include <string>

namespace kit {

// Both raise a std::runtime_error that names the file.
std::string ContentOf(const std::wstring& path);
void Write(const std::wstring& path, const std::string& content);

bool Exists(const std::wstring& path);

// The folder of this program, without a backslash at its end.
std::wstring OwnFolder();

}  // namespace kit
