#include "foundation/ElementTree.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "support/DeepXml.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::ParseElement;
using support::Raises;

constexpr wchar_t kTooDeep[] = L"The XML is nested too deep: 260 levels or more";

// <r> with elements nested in it.
msxml::Element Deep(int depth, const wchar_t* namespaceUri = Constants::kJxdmNamespace) {
    const msxml::Element root = ParseElement(L"<r/>");
    support::NestIn(root.Get(), depth, namespaceUri);
    return root;
}

TEST(ElementTree, NumbersElementsInDocumentOrder) {
    const ElementTree tree(ParseElement(L"<r><j:a><j:b>1</j:b><j:c/></j:a><!-- --><x><j:b/></x><ext:d>2</ext:d></r>"));
    EXPECT_EQ(5u, tree.EndOf(0));
    EXPECT_TRUE(tree.HasName(1, L"j:a"));
    EXPECT_EQ(4u, tree.EndOf(1));
    EXPECT_TRUE(tree.HasName(2, L"j:b"));
    EXPECT_EQ(3u, tree.EndOf(2));
    EXPECT_TRUE(tree.HasName(3, L"j:c"));
    EXPECT_TRUE(tree.HasName(4, L"ext:d"));
    EXPECT_EQ(5u, tree.EndOf(4));
    EXPECT_FALSE(tree.HasName(4, L"j:d"));
    EXPECT_FALSE(tree.HasName(4, L"ext:e"));
}

TEST(ElementTree, HasTheTextsThatMsxmlGives) {
    const msxml::Element root =
        ParseElement(L"<r> <j:a>1<!-- 2 -->3</j:a><j:a><![CDATA[<4>]]></j:a><j:a>5<j:b>6</j:b><x>7</x></j:a></r>");
    const ElementTree tree(root);
    EXPECT_EQ(msxml::Text(root), tree.TextOf(0));
    EXPECT_EQ(L"13", tree.TextOf(1));
    EXPECT_EQ(L"<4>", tree.TextOf(2));
    EXPECT_EQ(L"567", tree.TextOf(3));
    EXPECT_EQ(L"6", tree.TextOf(4));
}

TEST(ElementTree, KeepsTheTextsOfParentsThatWereAskedFor) {
    const ElementTree tree(ParseElement(L"<r><j:a><j:b>1</j:b></j:a></r>"));
    const std::wstring_view first = tree.TextOf(0);
    for (int time = 0; time < 100; ++time) EXPECT_EQ(L"1", tree.TextOf(1));
    EXPECT_EQ(L"1", first);
}

TEST(ElementTree, KeepsNamesAndTextsOfLargeElements) {
    std::wstring xml = L"<r>";
    for (int number = 0; number < 2000; ++number) xml += L"<j:a><ext:b>" + std::to_wstring(number) + L"</ext:b></j:a>";
    const ElementTree tree(ParseElement(xml + L"</r>"));
    ASSERT_EQ(4001u, tree.EndOf(0));
    for (size_t number = 0; number < 2000; ++number) {
        EXPECT_TRUE(tree.HasName(2 * number + 1, L"j:a"));
        EXPECT_EQ(std::to_wstring(number), tree.TextOf(2 * number + 2));
        EXPECT_EQ(std::to_wstring(number), tree.TextOf(2 * number + 1));
    }
}

TEST(ElementTree, IsTakenFromWhatIsNotTooDeep) {
    EXPECT_EQ(static_cast<size_t>(msxml::kMaximumDepth), ElementTree(Deep(msxml::kMaximumDepth - 1)).EndOf(0));
    for (const int depth : {msxml::kMaximumDepth, support::kVeryDeep}) {
        EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { ElementTree tree(Deep(depth)); }));
    }
}

TEST(ElementTree, IsTakenWhateverIsInElementsThatAreLeftOut) {
    const ElementTree tree(Deep(support::kVeryDeep, L""));
    EXPECT_EQ(1u, tree.EndOf(0));
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { tree.TextOf(0); }));
}

}  // namespace
}  // namespace lejis
