#include "platform/msxml/Node.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace platform::msxml {
namespace {

using support::NewDocument;
using support::ParseElement;
using support::Reparsed;
using support::SameXml;

std::wstring QualifiedName(const Node& node) {
    BSTR name = nullptr;
    EXPECT_OK(node->get_nodeName(&name));
    return support::Take(name);
}

std::wstring WithPlainLineEnds(std::wstring text) {
    std::erase(text, L'\r');
    return text;
}

// The text as it comes back from the XML of an element that it was put into.
std::wstring Reloaded(const std::wstring& text) {
    const Document document = NewDocument();
    const Element element = CreateElement(document, L"r", L"");
    SetText(element, text);
    Append(document, element);
    const Document loaded = NewDocument();
    EXPECT_OK(loaded->put_preserveWhiteSpace(VARIANT_TRUE));
    EXPECT_TRUE(LoadXml(loaded, Xml(element)));
    return std::wstring(Text(Root(loaded)));
}

TEST(Node, CreatesElementsWithPrefixAndNamespace) {
    const Document document = NewDocument();
    const Element element = CreateElement(document, L"p:name", L"urn:p");
    EXPECT_EQ(L"p:name", QualifiedName(element));
    EXPECT_EQ(L"name", LocalName(element));
    EXPECT_EQ(L"urn:p", NamespaceUri(element));
    EXPECT_EQ(nullptr, Root(document).Get());
}

TEST(Node, IsCopiedWithAllThatItHoldsAndUnattached) {
    const Element original = ParseElement(L"<j:a j:b='1'><j:c>2</j:c>3</j:a>");
    const Element copy = Copy(original);
    SetText(original, L"changed");
    EXPECT_TRUE(SameXml(Reparsed(copy.Get()).Get(), L"<j:a j:b='1'><j:c>2</j:c>3</j:a>"));
    Append(NewDocument(), copy);
}

TEST(Node, BelongsToTheDocumentThatMadeIt) {
    const Document document = NewDocument();
    const Element element = CreateElement(document, L"r", L"");
    Append(OwnerDocument(element), element);
    EXPECT_TRUE(SameXml(document.Get(), L"<r/>"));
}

TEST(Node, CreatesAttributesWithPrefixAndNamespace) {
    const Document document = NewDocument();
    const Element element = CreateElement(document, L"j:a", L"http://www.it.ojp.gov/jxdm/3.0.3");
    SetAttribute(document, element, L"j:unit", L"http://www.it.ojp.gov/jxdm/3.0.3", L"ncic");
    EXPECT_TRUE(SameXml(Reparsed(element.Get()).Get(), L"<j:a j:unit='ncic'/>"));
}

TEST(Node, ReadsAttributesThatMayBeMissing) {
    const Element element = ParseElement(L"<a name='value' empty=''/>");
    EXPECT_EQ(L"value", Attribute(element, L"name"));
    EXPECT_EQ(L"", Attribute(element, L"empty"));
    EXPECT_EQ(std::nullopt, Attribute(element, L"missing"));
}

TEST(Node, EscapesWhatTextsHold) {
    for (const std::wstring text : {L"a < b & c > d", L"]]>", L"\"quoted\" 'text'", L"&amp;", L"\x00E9\x4E2D"}) {
        EXPECT_EQ(text, Reloaded(text)) << support::Utf8(text);
    }
}

TEST(Node, KeepsCharactersBeyondTheFirstPlane) {
    const std::wstring pair = L"a\xD83D\xDE94z";
    EXPECT_EQ(pair, Reloaded(pair));
}

TEST(Node, KeepsTheLinesOfATextApart) {
    EXPECT_EQ(L"one\ntwo\n\nfour", WithPlainLineEnds(Reloaded(L"one\r\ntwo\r\n\r\nfour")));
}

TEST(Node, AppendsAfterTheLastChildAndMovesAnAttachedNode) {
    const Element from = ParseElement(L"<from><moved/><stays/></from>");
    const Element to = ParseElement(L"<to><first/></to>");
    Append(to, ChildElements(from).front());
    EXPECT_TRUE(SameXml(to.Get(), L"<to><first/><moved/></to>"));
    EXPECT_TRUE(SameXml(from.Get(), L"<from><stays/></from>"));
}

TEST(Node, ReadsTheTextOfAllDescendants) {
    EXPECT_EQ(L"abc", Text(ParseElement(L"<r>a<b>b</b>c</r>")));
    EXPECT_EQ(L"a<x> & b", Text(ParseElement(L"<r><![CDATA[a<x> & b]]></r>")));
    EXPECT_EQ(L"ab", Text(ParseElement(L"<r>a<!-- comment -->b</r>")));
    EXPECT_EQ(L"ab", Text(ParseElement(L"<r>a<?instruction data?>b</r>")));
    EXPECT_EQ(L"", Text(ParseElement(L"<r/>")));
}

TEST(Node, SelectsTheFirstNodeOrAll) {
    const Element root = ParseElement(L"<r><a>1</a><b>2</b><a>3</a></r>");
    EXPECT_EQ(L"1", Text(SelectNode(root, L"a")));
    EXPECT_EQ(nullptr, SelectNode(root, L"c").Get());
    const std::vector<Node> all = SelectNodes(root, L"a");
    ASSERT_EQ(2u, all.size());
    EXPECT_EQ(L"3", Text(all[1]));
    EXPECT_TRUE(SelectNodes(root, L"c").empty());
}

TEST(Node, RaisesForABadExpression) {
    const Element root = ParseElement(L"<r/>");
    for (const wchar_t* expression : {L"a[", L"undeclared:a", L""}) {
        EXPECT_THROW(SelectNode(root, expression), platform::ComError) << support::Utf8(expression);
        EXPECT_THROW(SelectNodes(root, expression), platform::ComError) << support::Utf8(expression);
    }
}

TEST(Node, ListsElementChildrenAlone) {
    const Element root = ParseElement(L"<r>text<a><deeper/></a><!-- b --><?c d?><![CDATA[e]]><j:f/> </r>");
    const std::vector<Element> children = ChildElements(root);
    ASSERT_EQ(2u, children.size());
    EXPECT_EQ(L"a", LocalName(children[0]));
    EXPECT_EQ(L"f", LocalName(children[1]));
    EXPECT_EQ(L"http://www.it.ojp.gov/jxdm/3.0.3", NamespaceUri(children[1]));
    EXPECT_TRUE(ChildElements(ParseElement(L"<r/>")).empty());
}

TEST(Node, WritesMarkupWithTheDeclarationsOfAncestors) {
    const Document document = NewDocument();
    ASSERT_TRUE(LoadXml(document,
                        L"<s:e xmlns:s='urn:s' xmlns='urn:default' xmlns:d='urn:deep'><s:b><c d:x='1'>"
                        L"<d:y/></c></s:b></s:e>"));
    const std::wstring markup = Markup(ChildElements(Root(document)).front());
    const Document alone = NewDocument();
    ASSERT_TRUE(LoadXml(alone, markup)) << support::Utf8(markup);
    EXPECT_TRUE(SameXml(alone.Get(),
                        L"<s:b xmlns:s='urn:s'><c xmlns='urn:default' xmlns:d='urn:deep' d:x='1'><d:y/>"
                        L"</c></s:b>"));
}

TEST(Node, LeavesTheElementWhereItIsWhenWritingMarkup) {
    const Element root = ParseElement(L"<r><a>1</a></r>");
    EXPECT_NE(std::wstring::npos, Markup(ChildElements(root).front()).find(L">1</a>"));
    EXPECT_TRUE(SameXml(root.Get(), L"<r><a>1</a></r>"));
}

}  // namespace
}  // namespace platform::msxml
