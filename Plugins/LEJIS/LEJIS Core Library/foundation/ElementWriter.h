// Writes elements for a document.
#pragma once

#include "foundation/ElementName.h"
#include "platform/msxml/MsXml.h"
#include "platform/Text.h"

#include <memory>
#include <vector>

namespace lejis {

// A document that elements are written for. Copies are for the same document.
class OutputDocument {
public:
    // A client's document may be of any MSXML, so it makes each element itself.
    OutputDocument(const msxml::Document& clients) : document_(clients) {}
    // A new and empty document of this library's own. It takes copies of elements that were parsed elsewhere.
    static OutputDocument Create();

    operator const msxml::Document&() const& { return document_; }
    operator const msxml::Document&() const&& = delete;
    const msxml::Document& Get() const& { return document_; }
    const msxml::Document& Get() const&& = delete;

    // A new, unattached element with an attribute for the NCIC unit of its value. Both are in the GJXDM namespace. One
    // element name always has the same attribute.
    msxml::Element CreateMeasure(const QualifiedName& name, const QualifiedName& unitAttribute) const;

private:
    struct Pattern {
        QualifiedName name;
        msxml::Element element;
    };

    msxml::Document document_;
    // Elements to be copied, parsed at their first use; null for a client's document.
    std::shared_ptr<std::vector<Pattern>> patterns_;
};

// Writes the children of one element in the order of the calls, one line a child.
class ElementWriter {
public:
    // A new, unattached element.
    ElementWriter(const OutputDocument& document, const QualifiedName& name);

    // A text child, written even when its text is empty.
    void Text(const QualifiedName& name, const platform::TextArgument& value);
    // A text child, left out when its text is empty. Blanks are a text.
    void OptionalText(const QualifiedName& name, const platform::TextArgument& value);
    void Boolean(const QualifiedName& name, bool flag);

    // A child that holds j:ID.
    void Id(const QualifiedName& name, const platform::TextArgument& identifier);
    void OptionalId(const QualifiedName& name, const platform::TextArgument& identifier);
    // A child that holds j:ID and the code of the state that issued it. The optional child is left out unless it has
    // both.
    void JurisdictionId(const QualifiedName& name, const platform::TextArgument& identifier,
                        const platform::TextArgument& state);
    void OptionalJurisdictionId(const QualifiedName& name, const platform::TextArgument& identifier,
                                const platform::TextArgument& state);

    // A text child, left out when empty, with the attribute for the NCIC unit of its value.
    void OptionalMeasure(const QualifiedName& name, const platform::TextArgument& value,
                         const QualifiedName& unitAttribute);

    // A child that was built elsewhere or by another writer.
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
