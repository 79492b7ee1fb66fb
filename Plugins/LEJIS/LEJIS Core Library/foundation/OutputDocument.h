// A document that elements are written for.
#pragma once

#include "foundation/QualifiedName.h"
#include "platform/msxml/MsXml.h"

#include <memory>
#include <vector>

namespace lejis {

// Copies are for the same document.
class OutputDocument {
public:
    // A client's, which may be of any MSXML: it makes everything that is written for it, each time anew.
    OutputDocument(const msxml::Document& clients) : document_(clients) {}
    // A new and empty one of this library's own. It takes in copies of what has been parsed elsewhere.
    static OutputDocument Create();

    operator const msxml::Document&() const& { return document_; }
    operator const msxml::Document&() const&& = delete;
    const msxml::Document& Get() const& { return document_; }
    const msxml::Document& Get() const&& = delete;

    // A new, unattached element with an attribute that says that its value is in the NCIC unit; both are in the GJXDM
    // namespace. An element has one such attribute, always the same.
    msxml::Element CreateMeasure(const QualifiedName& name, const QualifiedName& unitAttribute) const;

private:
    struct Pattern {
        QualifiedName name;
        msxml::Element element;
    };

    msxml::Document document_;
    // Elements to be copied, parsed when they are wanted first; null for a client's document.
    std::shared_ptr<std::vector<Pattern>> patterns_;
};

}  // namespace lejis
