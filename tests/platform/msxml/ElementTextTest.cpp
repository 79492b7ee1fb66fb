#include "platform/msxml/ElementText.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <ostream>

namespace platform::msxml {
namespace {

struct Case {
    const char* name;
    const wchar_t* xml;
    bool isLeaf = true;
};

void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

class LeafTextOf : public testing::TestWithParam<Case> {};

TEST_P(LeafTextOf, IsWhatMsxmlSaysOfALeaf) {
    for (const VARIANT_BOOL preserved : {VARIANT_FALSE, VARIANT_TRUE}) {
        const Document document = CreateDocument();
        ASSERT_OK(document->put_preserveWhiteSpace(preserved));
        ASSERT_TRUE(LoadXml(document, GetParam().xml));
        const Element root = Root(document);
        const auto text = LeafText(root, FirstChild(root));
        ASSERT_EQ(GetParam().isLeaf, text.has_value());
        if (text) {
            EXPECT_EQ(Text(root), *text);
        }
    }
}

constexpr Case kCases[] = {
    {"Word", L"<r>word</r>"},
    {"Words", L"<r>one two three</r>"},
    {"Empty", L"<r/>"},
    {"EmptyPair", L"<r></r>"},
    {"Blank", L"<r> </r>"},
    {"OuterBlanks", L"<r>  word  </r>"},
    {"LeadingBlank", L"<r> word</r>"},
    {"TrailingBlank", L"<r>word </r>"},
    {"InnerBlanks", L"<r>one  two</r>"},
    {"Tab", L"<r>one\ttwo</r>"},
    {"Lines", L"<r>one\r\ntwo\n</r>"},
    {"CharacterReference", L"<r>one&#13;two</r>"},
    {"Entities", L"<r>&lt;&amp;&gt;</r>"},
    {"NoBreakSpace", L"<r>\x00A0word\x00A0</r>"},
    {"IdeographicSpace", L"<r>\x3000word</r>"},
    {"BeyondTheBasicPlane", L"<r>\xD83D\xDE00</r>"},
    {"CData", L"<r><![CDATA[ <word> ]]></r>", false},
    {"TextAndCData", L"<r>one<![CDATA[two]]></r>", false},
    {"CommentFirst", L"<r><!-- one -->two</r>", false},
    {"CommentOnly", L"<r><!-- one --></r>", false},
    {"CommentLast", L"<r>one<!-- two --></r>", false},
    {"InstructionOnly", L"<r><?one two?></r>", false},
    {"ElementOnly", L"<r><a>one</a></r>", false},
    {"Mixed", L"<r>one<a>two</a>three</r>", false},
    {"Preserved", L"<r xml:space='preserve'> one </r>"},
};

INSTANTIATE_TEST_SUITE_P(All, LeafTextOf, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace platform::msxml
