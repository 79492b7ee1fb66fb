// Small services that the whole library shares; others of the same namespace stand in deferred/ and checking/.
#pragma once

#include "platform/msxml/MsXml.h"

#include <comutil.h>

#include <string>

namespace platform {
class Exchange;
}

namespace lejis::LejisUtils {

// The text of the first node that the expression selects relative to the element, else `otherwise` as it is. Raises
// "elem cannot be Nothing" without an element.
_variant_t GetChildText(const msxml::Element& element, const std::wstring& xpath, const _variant_t& otherwise);

// Raises "elem cannot be Nothing" without an element.
void RequireElement(const msxml::Element& element);

// What a client passed as element to be read. Raises "elem cannot be Nothing" without an element, and declares the
// prefixes for queries on its document.
msxml::Element ElementToRead(IDispatch* client);

// Declares the prefixes of Constants for the document's queries.
void SetSelectionNamespaces(const msxml::Document& document);

// Whether trying again may help after this HTTP status or WinINet error number.
bool IsTransientStatus(long status);

// What a failed exchange means to a records clerk.
std::wstring GetNetworkErrorMessage(const platform::Exchange& exchange);

// Whether the user's flag "DebugLejis" is on. Read anew each time, so that it can be switched while the suite runs.
bool DebugFlagIsOn();

// Writes the document into the suite's diagnostics folder when the user's flag "DebugLejis" is on. Raises when it
// cannot be written.
void SaveDebugDocument(const msxml::Document& document, const std::wstring& fileName);

}  // namespace lejis::LejisUtils
