// XML as a tree that can be bent into anything, well-formed or not.
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>
#include <utility>
#include <vector>

namespace fuzzing {

struct Tree {
    // An element by its name; anything else by an empty name, `text` being its markup as it stands.
    std::wstring name;
    std::wstring text;
    std::vector<std::pair<std::wstring, std::wstring>> attributes;
    std::vector<Tree> children;

    bool IsElement() const { return !name.empty(); }
};

Tree ToTree(const msxml::Document& document);
std::wstring ToText(const Tree& tree);
std::wstring Escaped(const std::wstring& text);

size_t SizeOf(const Tree& tree);
// How many levels of elements.
size_t DepthOf(const Tree& tree);

}  // namespace fuzzing
