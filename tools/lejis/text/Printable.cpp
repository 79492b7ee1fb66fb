#include "text/Printable.h"

#include <algorithm>

namespace lejis_client {
namespace {

bool IsControl(wchar_t character) { return character < L' ' || (character >= 0x7F && character < 0xA0); }

}  // namespace

std::wstring Printable(std::wstring text) {
    std::replace_if(text.begin(), text.end(), IsControl, L' ');
    return text;
}

}  // namespace lejis_client
