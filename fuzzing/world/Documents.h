// DOM documents and elements to hand in.
#pragma once

#include "engine/Case.h"
#include "platform/msxml/MsXml.h"

#include <string>

namespace fuzzing {

// Takes in the XML files of the folder.
void LoadDocuments(const std::string& folder);

// Heights and weights are written with an attribute that has a namespace; Wine keeps such a one's namespace for ever.
void PardonMeasures(const std::wstring& text, Case& one);

// An element of a copy of one of these.
msxml::Element AnyElement(Case& one);
// A new one, empty or a copy of one of these.
msxml::Document AnyDocument(Case& one);
// All of them.
const std::vector<std::wstring>& DocumentTexts();

// An element of this document, the root the likeliest; null for a document without one.
msxml::Element AnyElementOf(const msxml::Document& document, Case& one);

}  // namespace fuzzing
