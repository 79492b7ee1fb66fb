#include "foundation/OutputDocument.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

namespace lejis {
namespace {

constexpr wchar_t kUnit[] = L"ncic";

// A made attribute costs more than the rest of its element, and not every MSXML gives the memory of its namespace back;
// one that was parsed has neither fault.
msxml::Element ParsedMeasure(const QualifiedName& name, const QualifiedName& unitAttribute) {
    const msxml::Document document = msxml::CreateDocument();
    // In another element, so that the copies do not carry the declaration that all around them has as well.
    msxml::LoadXml(document, platform::Join({L"<patterns xmlns:j='", Constants::kJxdmNamespace, L"'><", name.Text(),
                                             L" ", unitAttribute.Text(), L"='", kUnit, L"'/></patterns>"}));
    return msxml::ChildElements(msxml::Root(document)).front();
}

}  // namespace

OutputDocument OutputDocument::Create() {
    OutputDocument own(msxml::CreateDocument());
    own.patterns_ = std::make_shared<std::vector<Pattern>>();
    return own;
}

msxml::Element OutputDocument::CreateMeasure(const QualifiedName& name, const QualifiedName& unitAttribute) const {
    if (!patterns_) {
        const msxml::Element element = msxml::CreateElement(document_, name.Text(), name.NamespaceUri());
        msxml::SetAttribute(document_, element, unitAttribute.Text(), unitAttribute.NamespaceUri(), kUnit);
        return element;
    }
    for (const Pattern& pattern : *patterns_) {
        if (pattern.name.Text() == name.Text()) return msxml::Copy(pattern.element);
    }
    patterns_->push_back({name, ParsedMeasure(name, unitAttribute)});
    return msxml::Copy(patterns_->back().element);
}

}  // namespace lejis
