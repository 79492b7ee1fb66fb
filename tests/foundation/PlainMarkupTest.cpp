// What the scanner reads, it reads as MSXML does; whatever leaves a doubt, it gives up.
#include "foundation/NotPlain.h"
#include "foundation/PlainMarkup.h"

#include "platform/msxml/Document.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;

namespace lejis {
namespace {

// Where a construct can stand.
struct Place {
    const char* name;
    std::string before;
    std::string after;
};

const std::string kBegin = "<j:a xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3'";

const Place kContent[] = {
    {"InALeaf", kBegin + ">", "</j:a>"},
    {"InATextBefore", kBegin + ">text", "</j:a>"},
    {"InATextAfter", kBegin + ">", "text</j:a>"},
    {"BeforeAChild", kBegin + ">", "<j:b/></j:a>"},
    {"BetweenChildren", kBegin + "><j:b/>", "<j:c>1</j:c></j:a>"},
    {"AfterAChild", kBegin + "><j:b>1</j:b>", "</j:a>"},
    {"DeepInside", kBegin + "><j:b><j:c>", "</j:c></j:b></j:a>"},
    {"InAnUnknownElement", kBegin + "><x><y>", "</y></x></j:a>"},
};
const Place kValues[] = {
    {"InAValue", kBegin + " b='", "'/>"},
    {"InAValueInDoubleQuotes", kBegin + " b=\"", "\"/>"},
    {"InAValueInside", kBegin + "><x b='text", "text'>1</x></j:a>"},
};
const Place kTags[] = {
    {"InTheRootsTag", kBegin + " ", ">1</j:a>"},
    {"InAnEmptyTag", kBegin + "><j:b ", "/></j:a>"},
    {"InAChildsTag", kBegin + "><j:b>1</j:b><j:b ", "> 1 </j:b></j:a>"},
    {"InAnUnknownElementsTag", kBegin + "><x ", "><j:c/></x></j:a>"},
};
const Place kDocument[] = {
    {"Document", "", ""},
};

struct Construct {
    const char* name;
    std::string text;
};

std::wstring Shown(const PlainMarkup& markup) {
    std::wstring text;
    markup.AppendText(text, false);
    return text;
}

// Scans all of it.
void Scan(const std::string& bytes) {
    PlainMarkup markup(bytes);
    markup.Skip();
    markup.RequireEnd();
}

bool IsPlain(const std::string& bytes) {
    try {
        Scan(bytes);
        return true;
    } catch (const NotPlain&) {
        return false;
    }
}

bool MsxmlReads(const std::string& bytes) { return msxml::LoadXml(msxml::CreateDocument(), support::Wide(bytes)); }

template <size_t kPlaces, size_t kConstructs>
void ExpectIn(const Place (&places)[kPlaces], const Construct (&constructs)[kConstructs], bool isPlain) {
    for (const Place& place : places) {
        for (const Construct& one : constructs) {
            const std::string bytes = place.before + one.text + place.after;
            EXPECT_EQ(isPlain, IsPlain(bytes)) << one.name << " " << place.name << ": " << bytes.substr(0, 300);
            EXPECT_TRUE(!isPlain || MsxmlReads(bytes)) << one.name << " " << place.name;
        }
    }
}

const Construct kReadContent[] = {
    {"Nothing", ""},
    {"Text", "text"},
    {"Blanks", " \t\r\n "},
    {"Quotes", "'\""},
    {"Brackets", "[[]] ]>[0]"},
    {"GreaterThan", "a > b"},
    {"NamedReferences", "&lt;&gt;&amp;&quot;&apos;"},
    {"NumberedReferences", "&#65;&#x41;&#x10FFFF;&#9;&#xA;&#xd;&#xFFFD;"},
    {"TwoBytes", "\xC3\x9F\xC2\x80\xDF\xBF"},
    {"ThreeBytes", "\xE2\x82\xAC\xE0\xA0\x80\xEF\xBF\xBD\xED\x9F\xBF\xEE\x80\x80"},
    {"FourBytes", "\xF0\x9F\x98\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
    {"ByteOrderMarkInside", "a\xEF\xBB\xBFz"},
    {"Delete", "\x7F"},
    {"LongText", std::string(size_t{1} << 19, 'x')},
};

TEST(PlainMarkup, ReadsPlainContent) { ExpectIn(kContent, kReadContent, true); }

const Construct kReadElements[] = {
    {"Empty", "<j:b/>"},
    {"EmptyWithBlank", "<j:b />"},
    {"Pair", "<j:b></j:b>"},
    {"BlankInEndTag", "<j:b>1</j:b \n>"},
    {"AllNameCharacters", "<_a.b-c9_Z/>"},
    {"Attributes", "<b c='1' d=\"2\"\n\te='' j:f='&lt;>\"' j:g=\"'\"/>"},
    {"OwnDeclaration", "<k:b xmlns:k='urn:k' k:c='1'><k:d/></k:b>"},
    {"DeclarationAfterUse", "<k:b k:c='1' xmlns:k='urn:k'/>"},
    {"DefaultDeclaration", "<b xmlns='urn:k'><c xmlns=''/></b>"},
    {"PrefixDeclaredAnew", "<j:b xmlns:j='urn:k'><j:c/></j:b>"},
    {"SameLocalNames", "<b c='1' j:c='2'/>"},
    {"DollarInUri", "<b xmlns:k='http://a.b/c?d=$e#f'/>"},
};

TEST(PlainMarkup, ReadsPlainElements) { ExpectIn(kContent, kReadElements, true); }

const Construct kReadDocuments[] = {
    {"Alone", "<a/>"},
    {"ByteOrderMark", "\xEF\xBB\xBF<a/>"},
    {"BlanksAround", "\r\n\t <a/> \r\n"},
    {"DeclarationWithEncoding", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>"},
    {"DeclarationInLowerCase", "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<a/>\r\n"},
    {"DeclarationInSingleQuotes", "<?xml version='1.0' encoding='UTF-8'?><a/>"},
    {"DeclarationInSingleQuotesAndLowerCase", "<?xml version='1.0' encoding='utf-8'?><a/>"},
    {"DeclarationWithoutEncoding", "<?xml version=\"1.0\"?><a/>"},
    {"DeclarationInSingleQuotesWithoutEncoding", "<?xml version='1.0'?> <a/>"},
    {"ByteOrderMarkAndDeclaration", "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>"},
};

TEST(PlainMarkup, ReadsPlainDocuments) { ExpectIn(kDocument, kReadDocuments, true); }

const Construct kRefusedContent[] = {
    {"Comment", "<!-- -->"},
    {"ProcessingInstruction", "<?pi x?>"},
    {"Declaration", "<?xml version='1.0'?>"},
    {"CharacterData", "<![CDATA[x]]>"},
    {"Doctype", "<!DOCTYPE x>"},
    {"EndOfCharacterData", "]]>"},
    {"Ampersand", "a & b"},
    {"UnknownReference", "&nbsp;"},
    {"ReferenceWithoutEnd", "&lt"},
    {"ReferenceInUpperCase", "&LT;"},
    {"EmptyReference", "&;"},
    {"EmptyNumber", "&#;"},
    {"EmptyHexadecimalNumber", "&#x;"},
    {"HexadecimalMarkInUpperCase", "&#X41;"},
    {"SignedNumber", "&#-65;"},
    {"LetterInANumber", "&#4A;"},
    {"LetterInAHexadecimalNumber", "&#x4G;"},
    {"BlankInANumber", "&# 65;"},
    {"NullReference", "&#0;"},
    {"ControlReference", "&#x1F;"},
    {"SurrogateReference", "&#xD800;"},
    {"LastSurrogateReference", "&#xDFFF;"},
    {"NoncharacterReference", "&#xFFFE;"},
    {"ReferenceBeyondUnicode", "&#x110000;"},
    {"ReferenceThatOverflows", "&#x100000041;"},
    {"Null", "\0"s},
    {"Control", "\x01"},
    {"VerticalTab", "\x0B"},
    {"Escape", "\x1B"},
    {"LastControl", "\x1F"},
    {"ContinuationAlone", "\x80"},
    {"Latin1",
     "Stra\xDF"
     "e"},
    {"LeadWithoutContinuation", "\xC3"},
    {"LeadBeforeLead", "\xC3\xC3\x9F"},
    {"ThreeBytesCutOff", "\xE2\x82"},
    {"FourBytesCutOff", "\xF0\x9F\x98"},
    {"OverlongNull", "\xC0\x80"},
    {"OverlongTwoBytes", "\xC1\xBF"},
    {"OverlongThreeBytes", "\xE0\x9F\xBF"},
    {"OverlongFourBytes", "\xF0\x8F\xBF\xBF"},
    {"Surrogate", "\xED\xA0\x80"},
    {"LastSurrogate", "\xED\xBF\xBF"},
    {"Noncharacter", "\xEF\xBF\xBE"},
    {"LastNoncharacter", "\xEF\xBF\xBF"},
    {"BeyondUnicode", "\xF4\x90\x80\x80"},
    {"FiveBytes", "\xF8\x88\x80\x80\x80"},
    {"NoUtf8", "\xFF\xFE"},
    {"LongText", std::string((size_t{1} << 20) + 1, 'x')},
};

TEST(PlainMarkup, GivesUpContentThatIsNotPlain) {
    ExpectIn(kContent, kRefusedContent, false);
    ExpectIn(kValues, kRefusedContent, false);
}

const Construct kRefusedElements[] = {
    {"NoName", "<>"},
    {"NoNameInEndTag", "</>"},
    {"BlankBeforeName", "< b/>"},
    {"DigitFirst", "<1b/>"},
    {"NameBeyondAscii", "<b\xC3\x9F/>"},
    {"NameBeginsBeyondAscii", "<\xC3\x9F/>"},
    {"EmptyPrefix", "<:b/>"},
    {"EmptyLocalName", "<j:/>"},
    {"TwoColons", "<j:b:c/>"},
    {"DigitAfterColon", "<j:1/>"},
    {"LongName", "<" + std::string(1001, 'b') + "/>"},
    {"UndeclaredPrefix", "<z:b/>"},
    {"PrefixDeclaredElsewhere", "<b xmlns:z='urn:z'/><z:b/>"},
    {"PrefixOfXml", "<xml:b/>"},
    {"PrefixOfDeclarations", "<xmlns:b/>"},
    {"EndTagOfAnother", "<b></c>"},
    {"EndTagThatIsLonger", "<b></bb>"},
    {"EndTagThatIsShorter", "<bb></b>"},
    {"EndTagOfAnotherPrefix", "<b xmlns:k='http://www.it.ojp.gov/jxdm/3.0.3'><j:c></k:c></b>"},
    {"EndTagInAnotherCase", "<b></B>"},
    {"AttributeInEndTag", "<b></b c='1'>"},
    {"BlankInEndTag", "<b></ b>"},
    {"NoEndTag", "<b>"},
    {"EndTagTooMany", "<b></b></b>"},
    {"SlashBeforeBlank", "<b/ >"},
    {"TagWithinTag", "<b<c/>/>"},
    {"BytesCutOff", "<b c='1"},
};

TEST(PlainMarkup, GivesUpElementsThatAreNotPlain) { ExpectIn(kContent, kRefusedElements, false); }

const Construct kRefusedAttributes[] = {
    {"NoValue", "b"},
    {"NoQuotes", "b=1"},
    {"BlankBeforeEquals", "b ='1'"},
    {"BlankAfterEquals", "b= '1'"},
    {"OtherQuoteAtTheEnd", "b='1\""},
    {"LessThanInValue", "b='<'"},
    {"NoBlankBetween", "b='1'c='2'"},
    {"Twice", "b='1' c='2' b='3'"},
    {"TwiceByTwoPrefixes",
     "xmlns:k='http://www.it.ojp.gov/jxdm/3.0.3' xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3' j:b='1' k:b='2'"},
    {"DeclaredTwice", "xmlns:k='urn:k' xmlns:k='urn:k'"},
    {"DefaultDeclaredTwice", "xmlns='urn:k' xmlns='urn:k'"},
    {"UndeclaredPrefix", "z:b='1'"},
    {"NameBeyondAscii", "b\xC3\x9F='1'"},
    {"DigitFirst", "1b='1'"},
    {"TwoColons", "j:b:c='1'"},
    {"Space", "xml:space='preserve'"},
    {"Language", "xml:lang='en'"},
    {"Identifier", "xml:id='b'"},
    {"Base", "xml:base='http://b/'"},
    {"XmlDeclared", "xmlns:xml='http://www.w3.org/XML/1998/namespace'"},
    {"XmlDeclaredByAnother", "xmlns:k='http://www.w3.org/XML/1998/namespace'"},
    {"XmlnsDeclared", "xmlns:xmlns='urn:k'"},
    {"XmlnsDeclaredByAnother", "xmlns:k='http://www.w3.org/2000/xmlns/'"},
    {"Undeclared", "xmlns:k=''"},
    {"ReferenceInUri", "xmlns:k='urn:a&amp;b'"},
    {"BlankInUri", "xmlns:k='urn: k'"},
    {"BlankAtTheEndOfUri", "xmlns:k='urn:k '"},
    {"LineInUri", "xmlns:k='urn:\nk'"},
    {"UriBeyondAscii", "xmlns:k='urn:\xC3\x9F'"},
    {"MicrosoftsDataTypes", "xmlns:dt='urn:schemas-microsoft-com:datatypes' dt:dt='number'"},
    {"LongValue", "b='" + std::string((size_t{1} << 20) + 1, 'x') + "'"},
};

TEST(PlainMarkup, GivesUpAttributesThatAreNotPlain) { ExpectIn(kTags, kRefusedAttributes, false); }

const Construct kRefusedDocuments[] = {
    {"Nothing", ""},
    {"ByteOrderMarkAlone", "\xEF\xBB\xBF"},
    {"Blank", " "},
    {"Text", "It works!"},
    {"TwoByteOrderMarks", "\xEF\xBB\xBF\xEF\xBB\xBF<a/>"},
    {"ByteOrderMarkAfterBlank", " \xEF\xBB\xBF<a/>"},
    {"HalfAByteOrderMark", "\xEF\xBB<a/>"},
    {"Utf16", "\xFF\xFE<\0a\0/\0>\0"s},
    {"Utf16WithoutMark", "<\0a\0/\0>\0"s},
    {"BlankBeforeDeclaration", " <?xml version='1.0'?><a/>"},
    {"TwoDeclarations", "<?xml version='1.0'?><?xml version='1.0'?><a/>"},
    {"DeclarationAlone", "<?xml version='1.0'?>"},
    {"Version11", "<?xml version='1.1'?><a/>"},
    {"Version10WithoutQuotes", "<?xml version=1.0?><a/>"},
    {"OtherEncoding", "<?xml version='1.0' encoding='ISO-8859-1'?><a/>"},
    {"EncodingUtf16", "<?xml version='1.0' encoding='UTF-16'?><a/>"},
    {"EncodingUtf8WithoutHyphen", "<?xml version='1.0' encoding='UTF8'?><a/>"},
    {"EncodingWithoutVersion", "<?xml encoding='UTF-8'?><a/>"},
    {"Standalone", "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><a/>"},
    {"DeclarationInUpperCase", "<?XML version='1.0'?><a/>"},
    {"DeclarationCutOff", "<?xml version='1.0'><a/>"},
    {"Doctype", "<!DOCTYPE a><a/>"},
    {"DoctypeWithEntity", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"},
    {"CommentBefore", "<!-- --><a/>"},
    {"CommentAfter", "<a/><!-- -->"},
    {"InstructionBefore", "<?pi?><a/>"},
    {"InstructionAfter", "<a/><?pi?>"},
    {"TextBefore", "x<a/>"},
    {"TextAfter", "<a/>x"},
    {"NullAfter", "<a/>\0"s},
    {"ReferenceAfter", "<a/>&#32;"},
    {"TwoRoots", "<a/><a/>"},
    {"EndTagAfter", "<a/></a>"},
    {"OnlyEndTag", "</a>"},
    {"CutOffInTag", "<a"},
    {"CutOffInEndTag", "<a></a"},
    {"CutOffInText", "<a>text"},
    {"CutOffInReference", "<a>&am"},
    {"CutOffInCharacter", "<a>\xE2\x82"},
    {"CutOffAfterLessThan", "<a><"},
};

TEST(PlainMarkup, GivesUpDocumentsThatAreNotPlain) { ExpectIn(kDocument, kRefusedDocuments, false); }

std::string Nested(int depth) {
    std::string text;
    for (int level = 0; level < depth; ++level) text += "<a>";
    for (int level = 0; level < depth; ++level) text += "</a>";
    return text;
}

TEST(PlainMarkup, GivesUpWhatIsNestedDeep) {
    EXPECT_TRUE(IsPlain(Nested(200)));
    EXPECT_TRUE(MsxmlReads(Nested(200)));
    EXPECT_FALSE(IsPlain(Nested(201)));
    EXPECT_FALSE(IsPlain(Nested(100000)));
}

std::string Repeated(const std::string& before, int times, const std::string& after) {
    std::string text;
    for (int number = 1; number <= times; ++number) text += before + std::to_string(number) + after;
    return text;
}

TEST(PlainMarkup, GivesUpManyAttributesAndDeclarations) {
    EXPECT_TRUE(IsPlain("<a" + Repeated(" b", 50, "='1'") + "/>"));
    EXPECT_FALSE(IsPlain("<a" + Repeated(" b", 51, "='1'") + "/>"));
    const std::string inside = Repeated("<a", 10, Repeated(" xmlns:b", 10, "='urn:b'") + ">");
    const std::string ends = "</a10></a9></a8></a7></a6></a5></a4></a3></a2></a1>";
    EXPECT_TRUE(IsPlain(inside + ends));
    EXPECT_FALSE(IsPlain("<a xmlns:b='urn:b'>" + inside + ends + "</a>"));
    EXPECT_TRUE(IsPlain("<a>" + Repeated("<a xmlns:b", 1000, "='urn:b'/>") + "</a>"));
}

TEST(PlainMarkup, ReadsAsMuchAsItsBounds) {
    const std::string longest(size_t{1} << 20, 'x');
    EXPECT_TRUE(IsPlain("<a>" + longest + "</a>"));
    EXPECT_FALSE(IsPlain("<a>" + longest + "x</a>"));
    EXPECT_TRUE(IsPlain("<a b='" + longest + "'/>"));
    EXPECT_TRUE(IsPlain("<" + std::string(1000, 'b') + "/>"));
}

TEST(PlainMarkup, GivesUpEveryBeginningOfAnAnswer) {
    const std::string whole =
        "\xEF\xBB\xBF<?xml version='1.0'?>\n<j:a xmlns:j='urn:j'><b c=\"1\">&lt;\xE2\x82\xAC</b><j:d/></j:a>";
    EXPECT_TRUE(IsPlain(whole));
    for (size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(IsPlain(whole.substr(0, length))) << length;
    }
}

TEST(PlainMarkup, StepsThroughChildren) {
    const std::string bytes = kBegin + "> <b>1</b><j:c><j:d/></j:c>2</j:a>";
    PlainMarkup markup(bytes);
    EXPECT_TRUE(markup.Is(L"j:a"));
    ASSERT_TRUE(markup.NextChild());
    EXPECT_EQ("b", markup.LocalName());
    EXPECT_EQ(std::nullopt, markup.Namespace());
    EXPECT_FALSE(markup.NextChild());
    EXPECT_EQ(L"1", Shown(markup));
    ASSERT_TRUE(markup.NextChild());
    EXPECT_TRUE(markup.Is(L"j:c"));
    EXPECT_FALSE(markup.Is(L"ext:c"));
    markup.Skip();
    EXPECT_TRUE(markup.Is(L"j:a"));
    EXPECT_FALSE(markup.NextChild());
    EXPECT_EQ(L"2", Shown(markup));
    markup.RequireEnd();
    EXPECT_THROW(markup.NextChild(), NotPlain);
}

}  // namespace
}  // namespace lejis
