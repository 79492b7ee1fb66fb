#include "platform/TextBlock.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <random>
#include <string>
#include <vector>

namespace platform {
namespace {

using Texts = std::vector<std::wstring>;

constexpr size_t kTexts = 3;
using Block = TextBlock<kTexts>;

void Fill(Block& block, const Texts& texts) {
    for (size_t index = 0; index < kTexts; ++index) block.Set(index, texts[index]);
}

Texts TextsOf(const Block& block) {
    Texts texts;
    for (size_t index = 0; index < kTexts; ++index) texts.emplace_back(block.View(index));
    return texts;
}

size_t BytesOf(const Block& block) { return _msize(const_cast<wchar_t*>(block.View(0).data())); }

TEST(TextBlock, BeginsWithEmptyTexts) { EXPECT_EQ((Texts{L"", L"", L""}), TextsOf(Block())); }

TEST(TextBlock, HoldsTextsSetInAnyOrder) {
    Block block;
    block.Set(2, L"last");
    block.Set(0, L"first");
    EXPECT_EQ((Texts{L"first", L"", L"last"}), TextsOf(block));
    block.Set(1, L"middle");
    EXPECT_EQ((Texts{L"first", L"middle", L"last"}), TextsOf(block));
}

TEST(TextBlock, ReplacesATextByOneOfAnyLength) {
    Block block;
    Fill(block, {L"one", L"two", L"three"});
    for (const size_t length : {0, 1, 3, 4, 120, 121, 5000, 2, 0, 100'000}) {
        const std::wstring text(length, L'x');
        block.Set(1, text);
        EXPECT_EQ((Texts{L"one", text, L"three"}), TextsOf(block)) << length;
    }
}

TEST(TextBlock, KeepsNullCharacters) {
    const std::wstring text(L"\0a\0b\0", 5);
    Block block;
    Fill(block, {text, std::wstring(1, L'\0'), text});
    EXPECT_EQ((Texts{text, std::wstring(1, L'\0'), text}), TextsOf(block));
}

TEST(TextBlock, EmptiesATextByOneWithoutCharacters) {
    Block block;
    Fill(block, {L"one", L"two", L"three"});
    block.Set(1, {});
    EXPECT_EQ((Texts{L"one", L"", L"three"}), TextsOf(block));
}

struct Own {
    const char* name;
    size_t from;
    size_t begin;
    size_t length;
    size_t to;
};

void PrintTo(const Own& row, std::ostream* out) { *out << row.name; }

class OwnText : public testing::TestWithParam<Own> {
protected:
    // Sets one text to a part of another, or of itself.
    void Expect(Block& block, Texts texts) const {
        const auto& [name, from, begin, length, to] = GetParam();
        block.Set(to, block.View(from).substr(begin, length));
        texts[to] = texts[from].substr(begin, length);
        EXPECT_EQ(texts, TextsOf(block));
    }
};

TEST_P(OwnText, IsTakenWhereThereIsRoom) {
    Block block;
    const Texts texts{L"abcdefgh", L"12", L"ABCDEFGHIJKL"};
    Fill(block, texts);
    Expect(block, texts);
}

TEST_P(OwnText, IsTakenWhereThereIsNone) {
    Block block;
    const Texts texts{L"abcdefgh", L"12", L"ABCDEFGHIJKL"};
    Fill(block, texts);
    block.Fit();
    Expect(block, texts);
}

INSTANTIATE_TEST_SUITE_P(All, OwnText,
                         testing::Values(Own{"Itself", 0, 0, 8, 0}, Own{"ItsBeginning", 0, 0, 5, 0},
                                         Own{"ItsEnd", 0, 3, 5, 0}, Own{"ItsMiddle", 2, 2, 7, 2},
                                         Own{"LongerOneBefore", 0, 0, 8, 1}, Own{"LongerOneBehind", 2, 0, 12, 1},
                                         Own{"LongerByFewBehind", 2, 0, 12, 0}, Own{"ShorterOneBefore", 1, 0, 2, 2},
                                         Own{"ShorterOneBehind", 1, 0, 2, 0}, Own{"PartBehind", 2, 1, 6, 0},
                                         Own{"EndOfTheBlock", 2, 4, 8, 0}, Own{"BeginningOfTheBlock", 0, 0, 3, 2}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TextBlock, ForgetsAllTexts) {
    Block block;
    Fill(block, {L"one", L"two", L"three"});
    block.Clear();
    EXPECT_EQ((Texts{L"", L"", L""}), TextsOf(block));
    block.Set(1, L"new");
    EXPECT_EQ((Texts{L"", L"new", L""}), TextsOf(block));
}

TEST(TextBlock, GivesBackWhatItsTextsDoNotNeed) {
    Block block;
    Fill(block, {L"one", std::wstring(1000, L'x'), L"three"});
    block.Set(1, L"two");
    block.Fit();
    EXPECT_EQ(11 * sizeof(wchar_t), BytesOf(block));
    EXPECT_EQ((Texts{L"one", L"two", L"three"}), TextsOf(block));
    block.Fit();
    EXPECT_EQ((Texts{L"one", L"two", L"three"}), TextsOf(block));
}

TEST(TextBlock, NeedsNoMemoryForEmptyTexts) {
    Block block;
    Fill(block, {L"one", L"two", L"three"});
    block.Clear();
    EXPECT_NE(nullptr, block.View(0).data());
    block.Fit();
    EXPECT_EQ(nullptr, block.View(0).data());
    EXPECT_EQ((Texts{L"", L"", L""}), TextsOf(block));
    block.Set(2, L"new");
    EXPECT_EQ((Texts{L"", L"", L"new"}), TextsOf(block));
}

TEST(TextBlock, StaysAsItIsWhenMemoryIsShort) {
    Block block;
    Fill(block, {L"one", L"two", L"three"});
    // Of these characters none is looked at.
    const std::wstring_view endless(L"x", size_t{1} << 30);
    EXPECT_THROW(block.Set(1, endless), std::bad_alloc);
    EXPECT_THROW(block.Set(1, endless.substr(1)), std::bad_alloc);
    EXPECT_EQ((Texts{L"one", L"two", L"three"}), TextsOf(block));
}

TEST(TextBlock, IsLikeAsManyTextsThroughAnyChanges) {
    std::mt19937 random(20261121);
    const auto below = [&](size_t end) { return random() % end; };
    Block block;
    Texts texts(kTexts);
    for (int change = 0; change < 20'000; ++change) {
        const size_t to = below(kTexts);
        const size_t from = below(kTexts);
        const size_t begin = below(texts[from].size() + 1);
        const size_t length = below(texts[from].size() + 1);
        switch (below(8)) {
            case 0:
                block.Fit();
                break;
            case 1:
            case 2:
            case 3:
                block.Set(to, block.View(from).substr(begin, length));
                texts[to] = std::wstring(texts[from].substr(begin, length));
                break;
            default:
                texts[to] = std::wstring(below(below(90) + 1), static_cast<wchar_t>(L'a' + below(26)));
                block.Set(to, texts[to]);
        }
        ASSERT_EQ(texts, TextsOf(block)) << "change " << change;
    }
}

}  // namespace
}  // namespace platform
