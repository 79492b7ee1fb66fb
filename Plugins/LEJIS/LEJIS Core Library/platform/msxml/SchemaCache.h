// A set of XML schemas to check documents against.
#pragma once

#include "platform/msxml/MsXml.h"

#include <optional>
#include <string>

namespace msxml {

class SchemaCache {
public:
    SchemaCache();

    // Loads the schema at `location`. Raises when it cannot be loaded or is no schema.
    void Add(const std::wstring& namespaceUri, const std::wstring& location);

    // Parses the text and checks it: nothing when it is valid, else the reason, which may be empty. Elements of
    // namespaces without a schema are not checked.
    std::optional<std::wstring> FindFault(const std::wstring& xml) const;

private:
    bool Contains(const std::wstring& namespaceUri) const;
    std::optional<std::wstring> FindFaultInBody(const Document& document) const;

    Microsoft::WRL::ComPtr<IXMLDOMSchemaCollection2> schemas_;
};

}  // namespace msxml
