// Characters of UTF-8 markup. What is not valid throws NotPlain.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lejis::plain {

// What a byte may be in markup.
inline constexpr uint8_t kNameStart = 1;
inline constexpr uint8_t kNamePart = 2;
// Ends a run of characters that need no look.
inline constexpr uint8_t kSpecial = 4;
inline constexpr uint8_t kBlank = 8;

consteval std::array<uint8_t, 256> Classes() {
    std::array<uint8_t, 256> classes{};
    for (size_t byte = 0; byte < classes.size(); ++byte) {
        const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_';
        const bool isDigit = byte >= '0' && byte <= '9';
        if (isLetter) classes[byte] |= kNameStart;
        if (isLetter || isDigit || byte == '-' || byte == '.') classes[byte] |= kNamePart;
        if (byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n') classes[byte] |= kBlank;
        if (byte < ' ' || byte >= 0x80) classes[byte] |= kSpecial;
    }
    for (const char byte : {'<', '&', ']', '"', '\''}) classes[static_cast<uint8_t>(byte)] |= kSpecial;
    return classes;
}

inline constexpr std::array<uint8_t, 256> kClasses = Classes();

constexpr bool IsAscii(char byte) { return static_cast<uint8_t>(byte) < 0x80; }
inline bool IsOf(uint8_t what, char byte) { return (kClasses[static_cast<uint8_t>(byte)] & what) != 0; }

struct Character {
    char32_t value;
    // The number of bytes that the character takes in the markup.
    size_t length;
};

// Decodes the character at the beginning of `bytes`, which is a reference or is not ASCII.
Character Decode(std::string_view bytes);

void Append(std::wstring& text, char32_t character);
void AppendAscii(std::wstring& text, std::string_view ascii);

}  // namespace lejis::plain
