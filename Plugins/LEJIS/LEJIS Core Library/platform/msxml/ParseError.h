#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace msxml {

// Why a text did not parse or is not valid. Not every MSXML gives a reason; it is empty then.
struct ParseError {
    long code;
    std::wstring reason;
};

ParseError Read(IXMLDOMParseError* error);

// The outcome of the document's last load.
ParseError LastParseError(const Document& document);

}  // namespace msxml
