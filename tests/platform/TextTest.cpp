#include "platform/Text.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <oleauto.h>

namespace platform {
namespace {

using support::Utf8;

// A null character in the middle of a text, which a BSTR may hold.
constexpr std::wstring_view kWithNull(L"a\0b", 3);

struct Change {
    const wchar_t* before;
    const wchar_t* after;
};

TEST(Text, TreatsNoTextAsAnEmptyOne) {
    EXPECT_EQ(L"", CopyText(nullptr));
    EXPECT_EQ(L"", TakeText(nullptr));
    _bstr_t empty = ToBstr(L"");
    ASSERT_NE(nullptr, empty.GetBSTR());
    EXPECT_EQ(0u, empty.length());
}

TEST(Text, KeepsNullCharactersBothWays) {
    const _bstr_t text = ToBstr(kWithNull);
    EXPECT_EQ(3u, text.length());
    EXPECT_EQ(kWithNull, CopyText(text));
    EXPECT_EQ(kWithNull, TakeText(SysAllocStringLen(kWithNull.data(), 3)));
}

TEST(Text, JoinsParts) {
    EXPECT_EQ(L"", Join({}));
    EXPECT_EQ(L"JOHN Q", Join({L"JOHN", L" ", L"", std::wstring(L"Q")}));
    EXPECT_EQ(std::wstring(L"xa\0by", 5), Join({L"x", kWithNull, L"y"}));
}

TEST(Text, IsMadeFromUtf8) {
    EXPECT_EQ(L"", FromUtf8(""));
    EXPECT_EQ(L"JOHN", FromUtf8("JOHN"));
    EXPECT_EQ(kWithNull, FromUtf8(std::string_view("a\0b", 3)));
    EXPECT_EQ(L"M\xFC \x4E2D \xD83D\xDE00", FromUtf8("M\xC3\xBC \xE4\xB8\xAD \xF0\x9F\x98\x80"));
    EXPECT_EQ(L"a\xFFFDz", FromUtf8("a\xC3z"));
}

TEST(Text, LeavesACopiedTextToItsOwner) {
    const _bstr_t text = ToBstr(L"JOHN");
    EXPECT_EQ(L"JOHN", CopyText(text));
    EXPECT_STREQ(L"JOHN", text);
}

TEST(Text, TrimsBlanksAtTheEndsAndNoOtherWhiteSpace) {
    constexpr Change kChanges[] = {
        {L"", L""},
        {L"   ", L""},
        {L"  a b  ", L"a b"},
        {L"a", L"a"},
        {L" \ta\r\n ", L"\ta\r\n"},
        {L"\x00A0 ", L"\x00A0"},
    };
    for (const Change& change : kChanges) EXPECT_EQ(change.after, TrimBlanks(change.before)) << Utf8(change.before);
}

TEST(Text, IsBlankWithoutAnythingElse) {
    for (const wchar_t* text : {L"", L" ", L"   "}) EXPECT_TRUE(IsBlank(text)) << Utf8(text);
    for (const wchar_t* text : {L"a", L" \t ", L"\r\n", L"\x00A0"}) EXPECT_FALSE(IsBlank(text)) << Utf8(text);
}

TEST(Text, ComparesIgnoringCase) {
    EXPECT_TRUE(EqualIgnoringCase(L"", L""));
    EXPECT_TRUE(EqualIgnoringCase(L"ErrorNumber", L"ERRORNUMBER"));
    EXPECT_TRUE(EqualIgnoringCase(L"\x00E9t\x00E9", L"\x00C9T\x00C9"));
    EXPECT_FALSE(EqualIgnoringCase(L"Yield", L"Yields"));
    EXPECT_FALSE(EqualIgnoringCase(L"Yields", L"Yield"));
    EXPECT_FALSE(EqualIgnoringCase(L"Yield", L"Field"));
}

TEST(Text, WritesWordsInProperCase) {
    constexpr Change kChanges[] = {
        {L"", L""},
        {L"SUSPECT", L"Suspect"},
        {L"witness", L"Witness"},
        {L"PERSON OF INTEREST", L"Person Of Interest"},
        {L"  two  blanks ", L"  Two  Blanks "},
        {L"A\tB\nC", L"A\tB\nC"},
        {L"x\ty\nz", L"X\tY\nZ"},
        {L"A\r\nB", L"A\r\nB"},
        {L"A\x00A0"
         L"B C\x2003"
         L"D",
         L"A\x00A0"
         L"b C\x2003"
         L"d"},
        {L"A\vB C\fD E\x0085"
         L"F",
         L"A\vb C\fd E\x0085"
         L"f"},
        {L"CO-DEFENDANT O'BRIEN", L"Co-defendant O'brien"},
        {L"2ND SUSPECT", L"2nd Suspect"},
        {L"\x00C9LAN", L"\x00C9lan"},
        {L"\x00E9LAN", L"\x00C9lan"},
    };
    for (const Change& change : kChanges) EXPECT_EQ(change.after, ProperCase(change.before)) << Utf8(change.before);
}

}  // namespace
}  // namespace platform
