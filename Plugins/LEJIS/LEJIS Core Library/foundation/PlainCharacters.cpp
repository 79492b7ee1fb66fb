#include "foundation/PlainCharacters.h"

#include "foundation/NotPlain.h"

#include <utility>

namespace lejis::plain {
namespace {

constexpr std::pair<std::string_view, char32_t> kNamed[] = {
    {"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}};

// "&#x10FFFF;" and no longer.
constexpr size_t kLongestReference = 10;

char32_t Required(char32_t character) {
    const bool isAllowed = character == '\t' || character == '\n' || character == '\r' ||
                           (character >= 0x20 && character <= 0xD7FF) || (character >= 0xE000 && character <= 0xFFFD) ||
                           (character >= 0x10000 && character <= 0x10FFFF);
    if (!isAllowed) GiveUp();
    return character;
}

char32_t Number(std::string_view digits, char32_t base) {
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    char32_t number = 0;
    for (const char digit : digits) {
        const size_t place = kDigits.substr(0, base == 10 ? 10 : kDigits.size()).find(digit);
        if (place == std::string_view::npos) GiveUp();
        number = number * base + static_cast<char32_t>(place < 16 ? place : place - 6);
    }
    // A reference without digits is not a character either.
    return Required(number);
}

Character DecodeUtf8(std::string_view bytes) {
    constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<uint8_t>(bytes.front());
    const size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (lead < 0xC0 || lead >= 0xF8 || bytes.size() < length) GiveUp();
    char32_t value = lead & (0x7Fu >> length);
    for (const char byte : bytes.substr(1, length - 1)) {
        if ((byte & 0xC0) != 0x80) GiveUp();
        value = value << 6 | (byte & 0x3F);
    }
    if (value < kLeast[length]) GiveUp();
    return {Required(value), length};
}

Character DecodeReference(std::string_view bytes) {
    for (const auto& [reference, character] : kNamed) {
        if (bytes.starts_with(reference)) return {character, reference.size()};
    }
    const size_t end = bytes.substr(0, kLongestReference).find(';');
    if (end == std::string_view::npos || !bytes.starts_with("&#")) GiveUp();
    const bool isHexadecimal = bytes.starts_with("&#x");
    const size_t begin = isHexadecimal ? 3 : 2;
    return {Number(bytes.substr(begin, end - begin), isHexadecimal ? 16 : 10), end + 1};
}

}  // namespace

Character Decode(std::string_view bytes) { return bytes.front() == '&' ? DecodeReference(bytes) : DecodeUtf8(bytes); }

void Append(std::wstring& text, char32_t character) {
    const bool isPair = character >= 0x10000;
    const wchar_t units[] = {static_cast<wchar_t>(isPair ? 0xD7C0 + (character >> 10) : character),
                             static_cast<wchar_t>(0xDC00 + (character & 0x3FF))};
    text.append(units, isPair ? 2 : 1);
}

void AppendAscii(std::wstring& text, std::string_view ascii) {
    const size_t begin = text.size();
    text.resize(begin + ascii.size());
    wchar_t* to = text.data() + begin;
    for (const char character : ascii) *to++ = static_cast<wchar_t>(character);
}

}  // namespace lejis::plain
