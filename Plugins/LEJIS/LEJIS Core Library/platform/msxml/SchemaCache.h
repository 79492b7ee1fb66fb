// A set of XML schemas to check documents against.
#pragma once

#include "platform/msxml/MsXml.h"

#include <optional>
#include <string>

namespace platform::msxml {

class SchemaCache {
public:
    SchemaCache();

    // Loads the schema at `location`. Throws when it cannot be loaded or is not a schema.
    void Add(const std::wstring& namespaceUri, const std::wstring& location);

    // Parses and checks the text. Returns nothing when it is valid, and otherwise the reason, which may be empty.
    // Elements of namespaces without a schema are not checked.
    std::optional<std::wstring> FindFault(const std::wstring& xml) const;

private:
    bool Contains(const std::wstring& namespaceUri) const;
    std::optional<std::wstring> FindFaultInBody(const Document& document) const;

    Microsoft::WRL::ComPtr<IXMLDOMSchemaCollection2> schemas_;
};

}  // namespace platform::msxml
