// Writes the children of one element in the order of the calls, one line a child.
#pragma once

#include "foundation/OutputDocument.h"
#include "foundation/QualifiedName.h"
#include "platform/msxml/MsXml.h"
#include "platform/Text.h"

namespace lejis {

class ElementWriter {
public:
    // A new, unattached element.
    ElementWriter(const OutputDocument& document, const QualifiedName& name);

    // A text child, written even when its text is empty.
    void Text(const QualifiedName& name, const platform::TextArgument& value);
    // A text child, left out when its text is empty; blanks are a text.
    void OptionalText(const QualifiedName& name, const platform::TextArgument& value);
    void Boolean(const QualifiedName& name, bool flag);

    // A child that holds j:ID.
    void Id(const QualifiedName& name, const platform::TextArgument& identifier);
    void OptionalId(const QualifiedName& name, const platform::TextArgument& identifier);
    // A child that holds j:ID and the code of the state that gave it; the optional one is left out unless both are
    // there.
    void JurisdictionId(const QualifiedName& name, const platform::TextArgument& identifier,
                        const platform::TextArgument& state);
    void OptionalJurisdictionId(const QualifiedName& name, const platform::TextArgument& identifier,
                                const platform::TextArgument& state);

    // A text child, left out when empty, whose value is in the NCIC unit, which the attribute says.
    void OptionalMeasure(const QualifiedName& name, const platform::TextArgument& value,
                         const QualifiedName& unitAttribute);

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
