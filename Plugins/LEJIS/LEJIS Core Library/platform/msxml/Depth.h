// How deep what a client hands in may be nested.
#pragma once

#include "platform/msxml/MsXml.h"

namespace msxml {

// A little more than MSXML parses (some 256), so that what it has parsed is never refused for its depth. A tree that a
// client builds by itself can be deeper; MSXML then runs out of stack when it takes a text, copies or moves elements.
inline constexpr int kMaximumDepth = 260;

// Raises the error of what is nested that deep or deeper, for those who count by themselves.
[[noreturn]] void RaiseTooDeep();

// Raises when elements are nested in the node that deep or deeper.
void RequireBoundedDepth(const Node& node);

}  // namespace msxml
