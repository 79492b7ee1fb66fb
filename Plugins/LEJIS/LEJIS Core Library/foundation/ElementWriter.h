// Writes the children of one element in the order of the calls, one line a child.
#pragma once

#include "foundation/OutputDocument.h"
#include "platform/msxml/MsXml.h"

#include <string_view>

namespace lejis {

class ElementWriter {
public:
    // A new, unattached element. The namespace of each name is that of its prefix in Constants.
    ElementWriter(const OutputDocument& document, std::wstring_view qualifiedName);

    // A text child, written even when its text is empty.
    void Text(std::wstring_view name, std::wstring_view value);
    // A text child, left out when its text is empty; blanks are a text.
    void OptionalText(std::wstring_view name, std::wstring_view value);
    void Boolean(std::wstring_view name, bool flag);

    // A child that holds j:ID.
    void Id(std::wstring_view name, std::wstring_view identifier);
    void OptionalId(std::wstring_view name, std::wstring_view identifier);
    // A child that holds j:ID and the code of the state that gave it; left out unless both are there.
    void OptionalJurisdictionId(std::wstring_view name, std::wstring_view identifier, std::wstring_view state);

    // A text child, left out when empty, whose value is in the NCIC unit, which the attribute says.
    void OptionalMeasure(std::wstring_view name, std::wstring_view value, std::wstring_view unitAttribute);

    // A child built elsewhere, or by another writer.
    void Child(const msxml::Element& child);
    void Child(const ElementWriter& child) { Child(child.Element()); }

    const OutputDocument& Document() const& { return document_; }
    const OutputDocument& Document() const&& = delete;
    const msxml::Element& Element() const& { return element_; }
    const msxml::Element& Element() const&& = delete;

private:
    OutputDocument document_;
    msxml::Element element_;
};

}  // namespace lejis
