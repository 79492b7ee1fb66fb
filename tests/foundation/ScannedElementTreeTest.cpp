// A tree that is scanned is the tree that a walk over MSXML's document fills.
#include "foundation/ElementReader.h"
#include "foundation/ElementTree.h"
#include "foundation/NotPlain.h"
#include "foundation/PlainMarkup.h"
#include "platform/msxml/Document.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

struct TreeRow {
    const char* name;
    const wchar_t* content;
};

void PrintTo(const TreeRow& row, std::ostream* out) { *out << row.name; }

constexpr ElementName kNames[] = {L"j:a", L"j:b", L"j:c", L"ext:a", L"ext:b", L"lejis:a", L"card:b", L"soap:c"};

std::wstring InRoot(const std::wstring& content) {
    std::wstring root = L"<j:r";
    for (const Constants::Prefix& prefix : Constants::kPrefixes) {
        root.append(L" xmlns:").append(prefix.name).append(L"='").append(prefix.uri).append(L"'");
    }
    return root + L">" + content + L"</j:r>";
}

// As the document of an answer is loaded, which keeps no blanks around texts.
msxml::Element LoadedElement(const std::wstring& text) {
    const msxml::Document document = msxml::CreateDocument();
    EXPECT_TRUE(msxml::LoadXml(document, text));
    return msxml::Root(document);
}

// The text, or none where only MSXML's document has it.
std::optional<std::wstring> Text(const ElementTree& tree, size_t number) {
    try {
        return std::wstring(tree.TextOf(number));
    } catch (const NotPlain&) {
        return std::nullopt;
    }
}

class ScannedElementTree : public testing::TestWithParam<TreeRow> {};

TEST_P(ScannedElementTree, IsTheTreeOfAWalk) {
    const std::wstring text = InRoot(GetParam().content);
    const std::string bytes = support::Utf8(text);
    const ElementTree walked(LoadedElement(text));
    ElementTree scanned;
    PlainMarkup markup(bytes);
    scanned.Take(markup);
    markup.RequireEnd();
    // An element may hold such ones alone.
    const bool hasUnknownElements = text.find(L"<x>") != std::wstring::npos;
    ASSERT_EQ(walked.EndOf(0), scanned.EndOf(0));
    for (size_t number = 0; number < walked.EndOf(0); ++number) {
        EXPECT_EQ(walked.EndOf(number), scanned.EndOf(number)) << number;
        for (const ElementName& name : kNames) {
            // The root of a walk has no name.
            EXPECT_TRUE(number == 0 || walked.HasName(number, name) == scanned.HasName(number, name)) << number;
        }
        const auto scannedText = Text(scanned, number);
        const bool isParent = scanned.EndOf(number) > number + 1;
        EXPECT_TRUE(scannedText || isParent || hasUnknownElements) << number;
        EXPECT_FALSE(scannedText && isParent) << number;
        EXPECT_EQ(scannedText.value_or(std::wstring(walked.TextOf(number))), walked.TextOf(number)) << number;
    }
}

constexpr TreeRow kTreeRows[] = {
    {"Empty", L""},
    {"Leaf", L"<j:a>1</j:a>"},
    {"EmptyLeaves", L"<j:a/><j:b></j:b>"},
    {"Siblings", L"<j:a>1</j:a><j:b>2</j:b><ext:a>3</ext:a><j:a>4</j:a>"},
    {"Nested", L"<j:a><j:b><j:c>1</j:c><ext:b/></j:b></j:a><j:c>2</j:c>"},
    {"Indented", L"\r\n\t<j:a>\n\t\t<j:b>1</j:b>\n\t</j:a>\n  <j:c>2</j:c>\n"},
    {"UnknownElements", L"<x><j:a>1</j:a></x><j:b>2<y/></j:b><k:a xmlns:k='urn:k'><j:c>3</j:c></k:a><j:c>4</j:c>"},
    {"OnlyUnknownElements", L"<j:a><x>1</x></j:a>"},
    {"OtherPrefixes", L"<p:a xmlns:p='http://www.it.ojp.gov/jxdm/3.0.3'>1</p:a><inq:a>2</inq:a>"},
    {"DefaultNamespace", L"<a xmlns='http://www.it.ojp.gov/jxdm/3.0.3'>1<b/><c xmlns=''><j:a/></c></a><a>2</a><x></x>"},
    {"PrefixesDeclaredAnew",
     L"<j:a xmlns:j='urn:k'><j:b/></j:a><j:b xmlns:ext='http://www.it.ojp.gov/jxdm/3.0.3'>"
     L"<ext:c>1</ext:c></j:b><ext:b>2</ext:b>"},
    {"Attributes", L"<j:a j:b='1' c=\"2\">3</j:a><j:b d='&amp;'/>"},
    {"References", L"<j:a>&lt;&gt;&amp;&quot;&apos;&#65;&#x20AC;&#x1F600;</j:a>"},
    {"BeyondAscii", L"<j:a>Stra\x00DF\x0065 \x20AC \xD83D\xDE00\xFFFD</j:a><j:b>\x0085\x00A0</j:b><j:c>\x2028</j:c>"},
    {"Quotes", L"<j:a>O'Brien \"x\" > ] ]]</j:a>"},
    {"MixedText", L"1<j:a>2</j:a>3<j:b>4</j:b>5"},
    {"BlanksAround", L"<j:a> 1</j:a><j:b>1 </j:b><j:c> 1 </j:c>"},
    {"BlanksInside", L"<j:a>1 2</j:a><j:b>1  2</j:b><j:c>1   2    3</j:c>"},
    {"BlanksAlone", L"<j:a> </j:a><j:b>  </j:b><j:c>\t</j:c><ext:a>\n</ext:a><ext:b>\r\n \r\n</ext:b>"},
    {"Tabs", L"<j:a>1\t2</j:a><j:b>\t1</j:b><j:c>1\t</j:c>"},
    {"Lines", L"<j:a>1\n2</j:a><j:b>1\r\n2\r3</j:b><j:c>\r\n1\r\n</j:c>"},
    {"ReferencesToBlanks", L"<j:a>&#32;</j:a><j:b>&#32;1&#32;</j:b><j:c>1&#32;&#32;2</j:c><ext:a> &#32; </ext:a>"},
    {"ReferencesToLines", L"<j:a>1&#13;&#10;2</j:a><j:b>&#10;</j:b><j:c>1&#9;2&#xD;</j:c>"},
    {"BlanksAndReferences", L"<j:a> &lt; </j:a><j:b>&amp; &amp;</j:b><j:c>&amp;  &amp;</j:c><ext:a>1 &#65; </ext:a>"},
    {"BlanksBesideCharactersBeyondAscii", L"<j:a> \x00DF </j:a><j:b>\x00A0 \x00A0</j:b><j:c>\x3000  1</j:c>"},
};

INSTANTIATE_TEST_SUITE_P(Rows, ScannedElementTree, testing::ValuesIn(kTreeRows),
                         [](const auto& row) { return std::string(row.param.name); });

// Long texts arrive in pieces inside of some parsers.
TEST(ScannedElementTreeTexts, AreThoseOfMsxmlHoweverLong) {
    for (const size_t length : {size_t{299}, size_t{300}, size_t{301}, size_t{4096}, size_t{70000}}) {
        for (const wchar_t* piece : {L"x", L"x ", L"x  ", L"\x20AC", L"x\r\n", L"&amp;", L"&#65; "}) {
            std::wstring content;
            while (content.size() < length) content += piece;
            const std::wstring text = InRoot(L"<j:a>" + content + L"</j:a>");
            const std::string bytes = support::Utf8(text);
            ElementTree scanned;
            PlainMarkup markup(bytes);
            scanned.Take(markup);
            EXPECT_EQ(ElementTree(LoadedElement(text)).TextOf(1), scanned.TextOf(1)) << length;
        }
    }
}

TEST(ScannedElementTreeTexts, AreAskedOfMsxmlAFewTimes) {
    const std::string bytes = support::Utf8(InRoot(L"<j:a> 1</j:a>"));
    ElementTree scanned;
    PlainMarkup markup(bytes);
    scanned.Take(markup);
    const std::wstring_view first = scanned.TextOf(1);
    for (int time = 1; time < 8; ++time) EXPECT_EQ(L"1", scanned.TextOf(1));
    EXPECT_EQ(L"1", first);
    EXPECT_THROW(scanned.TextOf(1), NotPlain);
}

TEST(ScannedElementTreeTexts, ReplaceThoseBefore) {
    const std::string many = support::Utf8(InRoot(L"<j:a> 1</j:a><j:b><j:c>2</j:c></j:b>"));
    const std::string few = support::Utf8(InRoot(L"<ext:a>3</ext:a>"));
    ElementTree scanned;
    for (const std::string* bytes : {&many, &few}) {
        PlainMarkup markup(*bytes);
        scanned.Take(markup);
    }
    EXPECT_EQ(2u, scanned.EndOf(0));
    EXPECT_TRUE(scanned.HasName(1, L"ext:a"));
    EXPECT_EQ(L"3", scanned.TextOf(1));
}

}  // namespace
}  // namespace lejis
