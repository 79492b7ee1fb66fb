#include "foundation/ElementReader.h"

#include "foundation/QueryPrefixes.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace lejis {
namespace {

using support::ParseElement;

// A path in both its meanings.
struct Path {
    template <size_t kSize>
    consteval Path(const wchar_t (&text)[kSize]) : xpath(text), path(text) {}

    const wchar_t* xpath;
    ElementPath path;
};

struct PathCase {
    const char* name;
    const wchar_t* xml;
    Path path;
    // Null where the path selects nothing.
    const wchar_t* text;
};

void PrintTo(const PathCase& row, std::ostream* out) { *out << row.name; }

class ElementReaderPaths : public testing::TestWithParam<PathCase> {};

TEST_P(ElementReaderPaths, SelectWhatXPathSelects) {
    const msxml::Element element = ParseElement(GetParam().xml);
    LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
    const _variant_t byXPath = LejisUtils::GetChildText(element, GetParam().path.xpath, support::Null());
    const ElementReader reader(element);
    const auto read = reader.TextIfAny(GetParam().path.path);
    if (GetParam().text) {
        EXPECT_EQ(GetParam().text, read);
        EXPECT_EQ(_variant_t(GetParam().text), byXPath);
    } else {
        EXPECT_EQ(std::nullopt, read);
        EXPECT_EQ(VT_NULL, V_VT(&byXPath));
    }
}

constexpr PathCase kPathCases[] = {
    {"Child", L"<r><j:a>1</j:a></r>", L"j:a", L"1"},
    {"MissingChild", L"<r><j:a>1</j:a></r>", L"j:b", nullptr},
    {"EmptyChild", L"<r><j:a/></r>", L"j:a", L""},
    {"FirstOfSeveral", L"<r><j:a>1</j:a><j:a>2</j:a></r>", L"j:a", L"1"},
    {"EmptyFirstOfSeveral", L"<r><j:a/><j:a>2</j:a></r>", L"j:a", L""},
    {"OtherNamespace", L"<r><ext:a>1</ext:a><j:a>2</j:a></r>", L"j:a", L"2"},
    {"OtherNamespaceOnly", L"<r><ext:a>1</ext:a></r>", L"j:a", nullptr},
    {"NoNamespace", L"<r><a>1</a></r>", L"j:a", nullptr},
    {"OtherPrefix", L"<r><x:a xmlns:x='http://www.it.ojp.gov/jxdm/3.0.3'>1</x:a></r>", L"j:a", L"1"},
    {"DefaultNamespace", L"<r><a xmlns='http://www.it.ojp.gov/jxdm/3.0.3'>1</a></r>", L"j:a", L"1"},
    {"InquiryAsService", L"<r><inq:a>1</inq:a></r>", L"lejis:a", L"1"},
    {"ServiceAsInquiry", L"<r><lejis:a>1</lejis:a></r>", L"inq:a", L"1"},
    {"LetterCase", L"<r><j:A>1</j:A></r>", L"j:a", nullptr},
    {"DottedName", L"<r><j:a.b>1</j:a.b></r>", L"j:a.b", L"1"},
    {"NotDeeper", L"<r><j:b><j:a>1</j:a></j:b></r>", L"j:a", nullptr},
    {"NotTheElementItself", L"<j:a>1</j:a>", L"j:a", nullptr},
    {"Descendants", L"<r><j:a>1<j:b>2</j:b>3</j:a></r>", L"j:a", L"123"},
    {"Comments", L"<r><!-- j:a --><j:a>1<!-- 2 -->3</j:a></r>", L"j:a", L"13"},
    {"Instructions", L"<r><?j a?><j:a>1<?j a?>2</j:a></r>", L"j:a", L"12"},
    {"CData", L"<r><![CDATA[<j:a>0</j:a>]]><j:a><![CDATA[<1>]]></j:a></r>", L"j:a", L"<1>"},
    {"TextBetween", L"<r> x <j:b/> y <j:a>1</j:a></r>", L"j:a", L"1"},
    {"Attribute", L"<r j:a='1'/>", L"j:a", nullptr},
    {"Grandchild", L"<r><j:a><j:b>1</j:b></j:a></r>", L"j:a/j:b", L"1"},
    {"GrandchildOfASecondParent", L"<r><j:a><j:c>1</j:c></j:a><j:a><j:b>2</j:b></j:a></r>", L"j:a/j:b", L"2"},
    {"FirstGrandchildOfAll", L"<r><j:a/><j:a><j:b>1</j:b><j:b>2</j:b></j:a><j:a><j:b>3</j:b></j:a></r>", L"j:a/j:b",
     L"1"},
    {"GrandchildOfAnotherParent", L"<r><ext:a><j:b>1</j:b></ext:a></r>", L"j:a/j:b", nullptr},
    {"GrandchildTooDeep", L"<r><j:a><j:c><j:b>1</j:b></j:c></j:a></r>", L"j:a/j:b", nullptr},
    {"GrandchildWithoutParent", L"<r><j:b>1</j:b></r>", L"j:a/j:b", nullptr},
    {"ThreeSteps", L"<r><j:a><j:b/></j:a><j:a><j:b/><j:b><j:c>1</j:c></j:b></j:a></r>", L"j:a/j:b/j:c", L"1"},
};

INSTANTIATE_TEST_SUITE_P(All, ElementReaderPaths, testing::ValuesIn(kPathCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ElementReader, ReadsAMissingElementAsAnEmptyText) {
    const ElementReader reader(ParseElement(L"<r><j:a>1</j:a><j:b/></r>"));
    EXPECT_EQ(L"1", reader.Text(L"j:a"));
    EXPECT_EQ(L"", reader.Text(L"j:b"));
    EXPECT_EQ(L"", reader.Text(L"j:c"));
    EXPECT_EQ(L"", reader.Text(L"j:c/j:d"));
}

TEST(ElementReader, FindsTheFirstChildOrAllInDocumentOrder) {
    const ElementReader reader(ParseElement(L"<r><j:a>1</j:a><ext:a>2</ext:a><j:a>3</j:a><j:b><j:a>4</j:a></j:b></r>"));
    EXPECT_EQ(L"1", reader.Child(L"j:a")->Text());
    EXPECT_EQ(L"4", reader.Child(L"j:b/j:a")->Text());
    EXPECT_FALSE(reader.Child(L"j:c"));
    const auto children = reader.Children(L"j:a");
    ASSERT_EQ(2u, children.size());
    EXPECT_EQ(L"1", children[0].Text());
    EXPECT_EQ(L"3", children[1].Text());
    EXPECT_TRUE(reader.Children(L"j:c").empty());
}

TEST(ElementReader, FindsWhatIsInAChild) {
    const ElementReader reader(
        ParseElement(L"<r><j:a><j:b>1</j:b></j:a><j:a><j:b>2</j:b><j:c/></j:a><j:b>3</j:b></r>"));
    const auto children = reader.Children(L"j:a");
    ASSERT_EQ(2u, children.size());
    EXPECT_EQ(L"1", children[0].Text(L"j:b"));
    EXPECT_EQ(std::nullopt, children[0].TextIfAny(L"j:c"));
    EXPECT_EQ(L"2", children[1].Text(L"j:b"));
    EXPECT_EQ(L"", children[1].TextIfAny(L"j:c"));
}

TEST(ElementReader, HasNoChildrenInAnEmptyElement) {
    const ElementReader reader(ParseElement(L"<r/>"));
    EXPECT_FALSE(reader.Child(L"j:a"));
    EXPECT_TRUE(reader.Children(L"j:a").empty());
    EXPECT_EQ(L"", reader.Text());
}

TEST(ElementReader, KeepsItsTextsWhileThereIsAReaderOfTheTree) {
    std::optional<ElementReader> child;
    std::wstring_view text;
    {
        const ElementReader reader(ParseElement(L"<r><j:a>of the parent</j:a><j:b/></r>"));
        text = reader.Text(L"j:a");
        child = reader.Child(L"j:b");
    }
    EXPECT_EQ(L"of the parent", text);
}

TEST(ElementReader, PassesOverElementsInOtherNamespacesWithAllThatIsInThem) {
    const ElementReader reader(
        ParseElement(L"<r><x><j:a>1</j:a></x><y xmlns='urn:y'><j:a>2</j:a></y><j:a>3</j:a></r>"));
    EXPECT_EQ(L"3", reader.Text(L"j:a"));
    EXPECT_EQ(1u, reader.Children(L"j:a").size());
}

TEST(ElementReader, TakesTheTextsOfSuchElementsForThatOfTheirParent) {
    const ElementReader reader(
        ParseElement(L"<r><j:a>1<x>2</x></j:a><j:b><x>3</x></j:b><j:c><x>4</x><j:d>5</j:d></j:c></r>"));
    EXPECT_EQ(L"12", reader.Text(L"j:a"));
    EXPECT_EQ(L"3", reader.Text(L"j:b"));
    EXPECT_EQ(L"45", reader.Text(L"j:c"));
    EXPECT_EQ(L"5", reader.Text(L"j:c/j:d"));
}

TEST(ElementReader, ComparesWholeNames) {
    // Names that agree in their length, their last character and the one in the middle.
    const ElementReader reader(ParseElement(L"<r><j:Nume>1</j:Nume><j:Name>2</j:Name></r>"));
    EXPECT_EQ(L"2", reader.Text(L"j:Name"));
}

}  // namespace
}  // namespace lejis
