#include "files/Wildcard.h"

#include "files/FoldedName.h"

#include <vector>

namespace lejis_client {
namespace {

// At place N: whether the pattern, as far as it was read, matches the first N characters of the name.
using Matches = std::vector<bool>;

// Whether a character of the pattern can stand for nothing at this place of the name.
bool CanBeEmpty(wchar_t character, std::wstring_view rest) {
    if (character == L'*') return true;
    if (character == L'?') return rest.empty() || rest.front() == L'.';
    return character == L'.' && rest.empty();
}

Matches WithOneMore(wchar_t character, std::wstring_view name, const Matches& before) {
    Matches after(before.size());
    for (std::size_t length = 0; length <= name.size(); ++length) {
        if (before[length] && CanBeEmpty(character, name.substr(length))) after[length] = true;
        if (length == 0) continue;
        if (character == L'*') {
            if (after[length - 1]) after[length] = true;
        } else if (before[length - 1] && (character == L'?' || character == name[length - 1])) {
            after[length] = true;
        }
    }
    return after;
}

}  // namespace

bool MatchesWildcard(std::wstring_view name, std::wstring_view pattern) {
    const std::wstring foldedName = FoldedName(name);
    Matches matches(foldedName.size() + 1);
    matches.front() = true;
    for (const wchar_t character : FoldedName(pattern)) matches = WithOneMore(character, foldedName, matches);
    return matches.back();
}

}  // namespace lejis_client
