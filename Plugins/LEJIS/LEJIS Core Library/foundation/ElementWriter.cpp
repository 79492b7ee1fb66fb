#include "foundation/ElementWriter.h"

#include "foundation/NodeFactory.h"
#include "platform/msxml/Node.h"

namespace lejis {

ElementWriter::ElementWriter(const OutputDocument& document, const QualifiedName& name)
    : document_(document), element_(NodeFactory::CreateQualifiedElement(document, name.Text(), name.NamespaceUri())) {}

void ElementWriter::Text(const QualifiedName& name, std::wstring_view value) {
    Child(NodeFactory::CreateTextElement(document_, name.Text(), value, name.NamespaceUri()));
}

void ElementWriter::OptionalText(const QualifiedName& name, std::wstring_view value) {
    if (!value.empty()) Text(name, value);
}

void ElementWriter::Boolean(const QualifiedName& name, bool flag) {
    Child(NodeFactory::CreateBooleanElement(document_, name.Text(), flag, name.NamespaceUri()));
}

void ElementWriter::Id(const QualifiedName& name, std::wstring_view identifier) {
    Child(NodeFactory::CreateIdElement(document_, name.Text(), identifier));
}

void ElementWriter::OptionalId(const QualifiedName& name, std::wstring_view identifier) {
    if (!identifier.empty()) Id(name, identifier);
}

void ElementWriter::JurisdictionId(const QualifiedName& name, std::wstring_view identifier, std::wstring_view state) {
    Child(NodeFactory::CreateJurisdictionIdElement(document_, name.Text(), identifier, state));
}

void ElementWriter::OptionalJurisdictionId(const QualifiedName& name, std::wstring_view identifier,
                                           std::wstring_view state) {
    if (!identifier.empty() && !state.empty()) JurisdictionId(name, identifier, state);
}

void ElementWriter::OptionalMeasure(const QualifiedName& name, std::wstring_view value,
                                    const QualifiedName& unitAttribute) {
    if (value.empty()) return;
    const msxml::Element element = document_.CreateMeasure(name, unitAttribute);
    msxml::SetText(element, value);
    Child(element);
}

void ElementWriter::Child(const msxml::Element& child) { msxml::Append(element_, child); }

}  // namespace lejis
