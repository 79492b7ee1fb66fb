#include "foundation/ElementWriter.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "platform/msxml/Node.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::Reparsed;
using support::SameXml;

constexpr wchar_t kHeight[] = L"<j:PersonHeightMeasure j:personHeightUnitCode='ncic'/>";
constexpr wchar_t kWeight[] = L"<j:PersonWeightMeasure j:personWeightUnitCode='ncic'/>";

msxml::Element Height(const OutputDocument& document) {
    return document.CreateMeasure(L"j:PersonHeightMeasure", L"j:personHeightUnitCode");
}

msxml::Element Weight(const OutputDocument& document) {
    return document.CreateMeasure(L"j:PersonWeightMeasure", L"j:personWeightUnitCode");
}

msxml::Node OnlyAttribute(const msxml::Element& element) {
    return msxml::SelectNode(element, L"@*[local-name() = 'personHeightUnitCode']");
}

TEST(OutputDocument, IsTheClientsOrEmpty) {
    const msxml::Document clients = support::NewDocument();
    const OutputDocument given(clients);
    const OutputDocument own = OutputDocument::Create();
    EXPECT_EQ(clients.Get(), given.Get().Get());
    EXPECT_EQ(nullptr, msxml::Root(own).Get());
}

TEST(OutputDocument, MakesMeasuresOfBothKindsAgainAndAgain) {
    for (const OutputDocument& document : {OutputDocument(support::NewDocument()), OutputDocument::Create()}) {
        for (int time = 0; time < 3; ++time) {
            EXPECT_TRUE(SameXml(Reparsed(Height(document).Get()).Get(), kHeight));
            EXPECT_TRUE(SameXml(Reparsed(Weight(document).Get()).Get(), kWeight));
        }
    }
}

TEST(OutputDocument, MakesMeasuresThatHaveNothingInCommon) {
    for (const OutputDocument& document : {OutputDocument(support::NewDocument()), OutputDocument::Create()}) {
        const msxml::Element first = Height(document);
        const msxml::Element second = Height(OutputDocument(document));
        msxml::SetText(first, L"510");
        msxml::Append(second, msxml::CreateElement(document, L"x", L""));
        EXPECT_TRUE(SameXml(Reparsed(first.Get()).Get(),
                            L"<j:PersonHeightMeasure j:personHeightUnitCode='ncic'>510</j:PersonHeightMeasure>"));
        EXPECT_TRUE(SameXml(Reparsed(Height(document).Get()).Get(), kHeight));
    }
}

TEST(OutputDocument, WritesTheUnitWithThePrefixOfGjxdm) {
    for (const OutputDocument& document : {OutputDocument(support::NewDocument()), OutputDocument::Create()}) {
        EXPECT_NE(std::wstring::npos, msxml::Markup(Height(document)).find(L" j:personHeightUnitCode="));
        EXPECT_NE(std::wstring::npos, msxml::Markup(Weight(document)).find(L" j:personWeightUnitCode="));
    }
}

TEST(OutputDocument, TakesItsMeasuresIn) {
    const OutputDocument document = OutputDocument::Create();
    msxml::AppendRoot(document, Height(document));
    EXPECT_TRUE(SameXml(document.Get().Get(), kHeight));
    const msxml::Node attribute = OnlyAttribute(msxml::Root(document));
    ASSERT_NE(nullptr, attribute.Get());
    EXPECT_EQ(Constants::kJxdmNamespace, msxml::NamespaceUri(attribute));
}

TEST(OutputDocument, KeepsNoMeasureThatWasWritten) {
    const OutputDocument document = OutputDocument::Create();
    const msxml::Element height = Height(document);
    msxml::SetText(height, L"510");
    EXPECT_EQ(L"", msxml::Text(Height(document)));
}

}  // namespace
}  // namespace lejis
