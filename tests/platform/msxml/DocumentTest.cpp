#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"

#include "model/LejisVehicleIndexCard.h"
#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/PlayedDocument.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace platform::msxml {
namespace {

using support::Raises;
using support::SameXml;

constexpr wchar_t kWithDoctype[] = L"<!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;</r>";

std::wstring TemporaryPath(const wchar_t* name) {
    wchar_t folder[MAX_PATH + 1];
    EXPECT_NE(0u, GetTempPathW(ARRAYSIZE(folder), folder));
    return std::wstring(folder) + name;
}

TEST(Document, IsEmptyAndLoadsAtOnceWhenNew) {
    const Document document = CreateDocument();
    VARIANT_BOOL flag = VARIANT_TRUE;
    EXPECT_OK(document->get_async(&flag));
    EXPECT_EQ(VARIANT_FALSE, flag);
    EXPECT_OK(document->get_resolveExternals(&flag));
    EXPECT_EQ(VARIANT_FALSE, flag);
    EXPECT_EQ(nullptr, Root(document).Get());
    EXPECT_FALSE(HasDoctype(document));
}

TEST(Document, LoadsTextAndReplacesWhatItHeld) {
    const Document document = CreateDocument();
    EXPECT_TRUE(LoadXml(document, L"<a>1</a>"));
    EXPECT_TRUE(LoadXml(document, L"<b>2</b>"));
    EXPECT_TRUE(SameXml(document.Get(), L"<b>2</b>"));
}

TEST(Document, IsEmptyAfterTextThatDoesNotParse) {
    const Document document = CreateDocument();
    for (const wchar_t* text : {L"", L"no XML", L"<a>", L"<a>&</a>", L"<a></b>", L"<a/><b/>", L"<a>\x0001</a>"}) {
        ASSERT_TRUE(LoadXml(document, L"<before/>"));
        EXPECT_FALSE(LoadXml(document, text)) << support::Utf8(text);
        EXPECT_EQ(nullptr, Root(document).Get()) << support::Utf8(text);
    }
}

TEST(Document, RefusesADoctypeAndIsEmptyThen) {
    const Document document = CreateDocument();
    for (const wchar_t* text : {kWithDoctype, L"<!DOCTYPE r><r/>", L"<!DOCTYPE r SYSTEM 'file:///r.dtd'><r/>"}) {
        EXPECT_FALSE(LoadXml(document, text)) << support::Utf8(text);
        EXPECT_EQ(nullptr, Root(document).Get()) << support::Utf8(text);
    }
    EXPECT_TRUE(LoadXml(document, L"<after/>"));
}

TEST(Document, LoadsACopyAndLeavesTheOriginal) {
    const Document original = CreateDocument();
    ASSERT_TRUE(LoadXml(original, L"<a><b>1</b></a>"));
    const Document copy = CreateDocument();
    ASSERT_TRUE(LoadXml(copy, L"<before/>"));
    EXPECT_TRUE(LoadCopy(copy, original));
    SetText(Root(original), L"changed");
    EXPECT_TRUE(SameXml(copy.Get(), L"<a><b>1</b></a>"));
}

TEST(Document, LoadsNoCopyOfNothing) {
    EXPECT_FALSE(LoadCopy(CreateDocument(), nullptr));
    const Document copy = CreateDocument();
    EXPECT_FALSE(LoadCopy(copy, CreateDocument()));
    EXPECT_EQ(nullptr, Root(copy).Get());
}

TEST(Document, LoadsNoCopyOfADocumentWithADoctype) {
    const Document original = CreateDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    // By the DOM itself: an implementation that refuses the DOCTYPE leaves the document empty, which is no copy either.
    EXPECT_OK(original->loadXML(support::Bstr(kWithDoctype), &loaded));
    const Document copy = CreateDocument();
    EXPECT_FALSE(LoadCopy(copy, original));
    EXPECT_EQ(nullptr, Root(copy).Get());
}

TEST(Document, SaysAsMarkupWhatItsXmlSays) {
    for (const wchar_t* text : {
             L"<r/>",
             L"<soap:Envelope><soap:Body><lejis:a j:b='&lt;&quot;1&quot;&amp;'>x</lejis:a></soap:Body></soap:Envelope>",
             L"<r a='M\xFCller'>\x4E2D\x0416\xD83D\xDE00</r>",
             L"<r>&amp;lt; ]]&gt; &#13;&#10;&#9; and blanks  </r>",
             L"<r><a> </a><a/>mixed<a>content</a></r>",
         }) {
        const Document document = support::Parse(text);
        const Document read = CreateDocument();
        ASSERT_OK(read->put_preserveWhiteSpace(VARIANT_TRUE));
        ASSERT_TRUE(LoadXml(read, Markup(document))) << support::Utf8(text);
        EXPECT_TRUE(SameXml(read.Get(), text));
    }
    EXPECT_EQ(L"", Markup(CreateDocument()));
}

TEST(Document, SaysTextsAsMarkupWithoutXmlDeclarationOrLayout) {
    const Document document = CreateDocument();
    const Element root = CreateElement(document, L"r", L"");
    AppendRoot(document, root);
    Append(root, CreateElement(document, L"a", L""));
    const std::wstring markup = Markup(document);
    EXPECT_EQ(L"<r><a/></r>", markup.substr(0, markup.find_last_of(L'>') + 1)) << support::Utf8(markup);
}

TEST(Document, SaysItsXmlWhenItCannotBeWrittenToAStream) {
    // A text cut off within a character, which a Windows MSXML finds in the middle of its writing.
    const std::wstring xml = L"<r>\xD83D</r>";
    EXPECT_EQ(xml, Markup(Document(platform::Create<support::PlayedDocument>("<r>", E_FAIL, xml))));
}

TEST(Document, SaysNoByteOrderMark) {
    for (const char* written : {"\xEF\xBB\xBF<r>\xC3\xBC</r>\r\n", "<r>\xC3\xBC</r>\r\n"}) {
        EXPECT_EQ(L"<r>\xFC</r>\r\n", Markup(Document(platform::Create<support::PlayedDocument>(written, S_OK))));
    }
}

TEST(Document, WritesAFileAndReplacesIt) {
    const std::wstring path = TemporaryPath(L"TVLejisCore document test.xml");
    for (const wchar_t* text : {L"<r>first and longer \x4E2D</r>", L"<r>2</r>"}) {
        const Document document = CreateDocument();
        ASSERT_TRUE(LoadXml(document, text));
        Save(document, path);
        VARIANT_BOOL loaded = VARIANT_FALSE;
        const Document read = CreateDocument();
        EXPECT_OK(read->load(_variant_t(path.c_str()), &loaded));
        EXPECT_TRUE(SameXml(read.Get(), text));
    }
    DeleteFileW(path.c_str());
}

TEST(Document, SaysWhichFileItCannotWrite) {
    const Document document = CreateDocument();
    ASSERT_TRUE(LoadXml(document, L"<r/>"));
    const std::wstring path = TemporaryPath(L"no such folder\\file.xml");
    try {
        Save(document, path);
        FAIL() << "nothing was raised";
    } catch (const platform::ComError& error) {
        const std::wstring expected = L"Cannot write '" + path + L"': ";
        EXPECT_TRUE(error.Description().starts_with(expected)) << support::Utf8(error.Description());
        EXPECT_GT(error.Description().size(), expected.size());
    }
}

TEST(Document, SaysWhatThePlatformSaysOfAFileThatCannotBeWritten) {
    const auto document = platform::Create<support::PlayedDocument>("", E_FAIL);
    document->description = L"The disk is full.";
    EXPECT_TRUE(Raises(E_FAIL, L"The disk is full.", [&] { Save(Document(document.Get()), L"C:\\x.xml"); }));
}

TEST(Document, IsTakenFromClients) {
    const Document document = CreateDocument();
    EXPECT_EQ(document.Get(), DocumentFrom(document.Get()).Get());
    EXPECT_EQ(document.Get(), DocumentFrom(ToClient(document).Get()).Get());
    ASSERT_TRUE(LoadXml(document, L"<r/>"));
    EXPECT_TRUE(SameXml(ElementToRead(ToClient(Root(document)).Get()).Get(), L"<r/>"));
}

TEST(Document, IsNotTakenFromNothingOrSomethingElse) {
    const Document document = CreateDocument();
    const auto card = platform::Create<lejis::LejisVehicleIndexCard>();
    EXPECT_TRUE(Raises(support::kObjectRequired, L"Object required", [] { DocumentFrom(nullptr); }));
    EXPECT_TRUE(Raises(support::kObjectRequired, L"Object required", [] { ElementToRead(nullptr); }));
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] { DocumentFrom(card->Dispatch()); }));
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] { ElementToRead(document.Get()); }));
}

TEST(Document, ReportsWhetherItsLastLoadFailed) {
    const Document document = CreateDocument();
    EXPECT_FALSE(LoadXml(document, L"<a>"));
    EXPECT_NE(0, LastParseError(document).code);
    EXPECT_TRUE(LoadXml(document, L"<a/>"));
    EXPECT_EQ(0, LastParseError(document).code);
    EXPECT_EQ(L"", LastParseError(document).reason);
}

}  // namespace
}  // namespace platform::msxml
