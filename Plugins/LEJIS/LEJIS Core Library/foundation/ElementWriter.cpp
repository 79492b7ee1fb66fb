#include "foundation/ElementWriter.h"

#include "foundation/NodeFactory.h"
#include "platform/msxml/Node.h"

namespace lejis {

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
