#include "foundation/ElementWriter.h"

#include "foundation/Constants.h"
#include "foundation/NodeFactory.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

namespace lejis {
namespace {

constexpr wchar_t kUnit[] = L"ncic";

// To make an attribute costs more than the rest of its element, and not every MSXML frees the memory of the attribute's
// namespace. A parsed attribute has neither fault.
msxml::Element ParsedMeasure(const QualifiedName& name, const QualifiedName& unitAttribute) {
    const msxml::Document document = msxml::CreateDocument();
    // The element stands in another one, so that its copies do not repeat the namespace declaration of their document.
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
        msxml::Element element = msxml::CreateElement(document_, name.Text(), name.NamespaceUri());
        msxml::SetAttribute(document_, element, unitAttribute.Text(), unitAttribute.NamespaceUri(), kUnit);
        return element;
    }
    for (const Pattern& pattern : *patterns_) {
        if (pattern.name.Text() == name.Text()) return msxml::Copy(pattern.element);
    }
    patterns_->push_back({name, ParsedMeasure(name, unitAttribute)});
    return msxml::Copy(patterns_->back().element);
}

ElementWriter::ElementWriter(const OutputDocument& document, const QualifiedName& name)
    : document_(document), element_(NodeFactory::CreateQualifiedElement(document, name.Text(), name.NamespaceUri())) {}

void ElementWriter::Text(const QualifiedName& name, const platform::TextArgument& value) {
    Child(NodeFactory::CreateTextElement(document_, name.Text(), value.View(), name.NamespaceUri()));
}

void ElementWriter::OptionalText(const QualifiedName& name, const platform::TextArgument& value) {
    if (!value.View().empty()) Text(name, value);
}

void ElementWriter::Boolean(const QualifiedName& name, bool flag) {
    Child(NodeFactory::CreateBooleanElement(document_, name.Text(), flag, name.NamespaceUri()));
}

void ElementWriter::Id(const QualifiedName& name, const platform::TextArgument& identifier) {
    Child(NodeFactory::CreateIdElement(document_, name.Text(), identifier.View()));
}

void ElementWriter::OptionalId(const QualifiedName& name, const platform::TextArgument& identifier) {
    if (!identifier.View().empty()) Id(name, identifier);
}

void ElementWriter::JurisdictionId(const QualifiedName& name, const platform::TextArgument& identifier,
                                   const platform::TextArgument& state) {
    Child(NodeFactory::CreateJurisdictionIdElement(document_, name.Text(), identifier.View(), state.View()));
}

void ElementWriter::OptionalJurisdictionId(const QualifiedName& name, const platform::TextArgument& identifier,
                                           const platform::TextArgument& state) {
    if (!identifier.View().empty() && !state.View().empty()) JurisdictionId(name, identifier, state);
}

void ElementWriter::OptionalMeasure(const QualifiedName& name, const platform::TextArgument& value,
                                    const QualifiedName& unitAttribute) {
    if (value.View().empty()) return;
    const msxml::Element element = document_.CreateMeasure(name, unitAttribute);
    msxml::SetText(element, value.View());
    Child(element);
}

void ElementWriter::Child(const msxml::Element& child) { msxml::Append(element_, child); }

}  // namespace lejis
