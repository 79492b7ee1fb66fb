// DOM documents and elements to hand in.
#pragma once

#include "engine/Case.h"
#include "platform/msxml/MsXml.h"

#include <string>

namespace fuzzing {

// Takes in the XML files of the folder.
void LoadDocuments(const std::string& folder);

// Pardons the leaks of a text with a height or weight: their elements have an attribute in a namespace, and Wine never
// frees the namespace of such an attribute.
void PardonMeasures(const std::wstring& text, Case& input);

// An element of a copy of one of these.
msxml::Element AnyElement(Case& input);
// A new one, empty or a copy of one of these.
msxml::Document AnyDocument(Case& input);
// All of them.
const std::vector<std::wstring>& DocumentTexts();

// An element of this document, the root the likeliest; null for a document without one.
msxml::Element AnyElementOf(const msxml::Document& document, Case& input);

}  // namespace fuzzing
