// Texts in the registry.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace platform {

// The text of a value; nothing when the key or the value is missing or holds no text.
std::optional<std::wstring> ReadRegistryText(HKEY root, const std::wstring& key, const std::wstring& value);

// Writes a text, and makes the keys on the way. An empty `value` names the key's default value. Throws on failure.
void WriteRegistryText(HKEY root, const std::wstring& key, const std::wstring& value, const std::wstring& text);

// Deletes a key with everything below it. A missing key is not a failure. Throws on failure.
void DeleteRegistryTree(HKEY root, const std::wstring& key);

}  // namespace platform
