// Elements and documents as text.
#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace platform::msxml {

// The element as XML text that stands alone, with the declarations that it has from its ancestors.
std::wstring Markup(const Element& element);

// A document of this library's own as it is sent: its xml, without an XML declaration, in a time that grows no faster
// than the document. An MSXML may write characters as references.
std::wstring Markup(const Document& document);

}  // namespace platform::msxml
