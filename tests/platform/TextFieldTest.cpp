#include "platform/TextField.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <random>
#include <string>
#include <vector>

namespace platform {
namespace {

using Texts = std::vector<std::wstring>;

struct Card {
    TextBlock block;
    TextField one{block};
    TextField two{block};
    TextField three{block};
    // The number follows the fields and is not one of them.
    uint32_t number = 4711;
};

constexpr size_t kTexts = 3;
constexpr TextField Card::*kFields[kTexts] = {&Card::one, &Card::two, &Card::three};

void Fill(Card& card, const Texts& texts) {
    for (size_t index = 0; index < kTexts; ++index) card.*kFields[index] = texts[index];
}

Texts TextsOf(const Card& card) {
    EXPECT_EQ(4711u, card.number);
    return {card.one, card.two, card.three};
}

// Where the text lies, until a field of the card is set.
std::wstring_view Within(const TextField& field) { return TextArgument(field).View(); }

size_t BytesOf(const Card& card) { return _msize(const_cast<wchar_t*>(Within(card.one).data())); }

TEST(TextField, BeginsWithEmptyTexts) { EXPECT_EQ((Texts{L"", L"", L""}), TextsOf(Card())); }

TEST(TextField, HoldsTextsSetInAnyOrder) {
    Card card;
    card.three = L"last";
    card.one = L"first";
    EXPECT_EQ((Texts{L"first", L"", L"last"}), TextsOf(card));
    card.two = L"middle";
    EXPECT_EQ((Texts{L"first", L"middle", L"last"}), TextsOf(card));
}

TEST(TextField, ReplacesATextByOneOfAnyLength) {
    Card card;
    Fill(card, {L"one", L"two", L"three"});
    for (const size_t length : {0, 1, 3, 4, 120, 121, 5000, 2, 0, 100'000}) {
        const std::wstring text(length, L'x');
        card.two = text;
        EXPECT_EQ((Texts{L"one", text, L"three"}), TextsOf(card)) << length;
    }
}

TEST(TextField, KeepsNullCharacters) {
    const std::wstring text(L"\0a\0b\0", 5);
    Card card;
    Fill(card, {text, std::wstring(1, L'\0'), text});
    EXPECT_EQ((Texts{text, std::wstring(1, L'\0'), text}), TextsOf(card));
}

TEST(TextField, EmptiesATextByOneWithoutCharacters) {
    Card card;
    Fill(card, {L"one", L"two", L"three"});
    card.two = std::wstring_view();
    EXPECT_EQ((Texts{L"one", L"", L"three"}), TextsOf(card));
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
    void Expect(Card& card, Texts texts) const {
        const auto& [name, from, begin, length, to] = GetParam();
        card.*kFields[to] = Within(card.*kFields[from]).substr(begin, length);
        texts[to] = texts[from].substr(begin, length);
        EXPECT_EQ(texts, TextsOf(card));
    }
};

TEST_P(OwnText, CanBeAssignedWhenTheBlockHasRoom) {
    Card card;
    const Texts texts{L"abcdefgh", L"12", L"ABCDEFGHIJKL"};
    Fill(card, texts);
    Expect(card, texts);
}

TEST_P(OwnText, CanBeAssignedWhenTheBlockIsFull) {
    Card card;
    const Texts texts{L"abcdefgh", L"12", L"ABCDEFGHIJKL"};
    Fill(card, texts);
    card.block.Fit();
    Expect(card, texts);
}

INSTANTIATE_TEST_SUITE_P(All, OwnText,
                         testing::Values(Own{"Itself", 0, 0, 8, 0}, Own{"ItsBeginning", 0, 0, 5, 0},
                                         Own{"ItsEnd", 0, 3, 5, 0}, Own{"ItsMiddle", 2, 2, 7, 2},
                                         Own{"LongerOneBefore", 0, 0, 8, 1}, Own{"LongerOneBehind", 2, 0, 12, 1},
                                         Own{"LongerByFewBehind", 2, 0, 12, 0}, Own{"ShorterOneBefore", 1, 0, 2, 2},
                                         Own{"ShorterOneBehind", 1, 0, 2, 0}, Own{"PartBehind", 2, 1, 6, 0},
                                         Own{"EndOfTheBlock", 2, 4, 8, 0}, Own{"BeginningOfTheBlock", 0, 0, 3, 2}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TextField, IsAssignedFromAnother) {
    Card card;
    Fill(card, {L"one", L"two", L"three"});
    Card other;
    other.two = card.three;
    card.one = card.three;
    card.three = card.three;
    EXPECT_EQ((Texts{L"three", L"two", L"three"}), TextsOf(card));
    EXPECT_EQ((Texts{L"", L"three", L""}), TextsOf(other));
    EXPECT_EQ(card.one, other.two);
    EXPECT_NE(card.one, card.two);
}

TEST(TextField, KnowsItsLength) {
    Card card;
    EXPECT_TRUE(card.two.empty());
    card.two = L"two";
    EXPECT_FALSE(card.two.empty());
    EXPECT_EQ(3u, card.two.size());
}

TEST(TextField, GivesCopiesThatOutliveItsCard) {
    std::wstring copy;
    {
        Card card;
        card.two = L"two";
        copy = card.two;
        card.one = std::wstring(2000, L'x');
    }
    EXPECT_EQ(L"two", copy);
}

TEST(TextField, MustStandBesideTheOtherFields) {
    struct Apart {
        TextBlock block;
        TextField one{block};
        uint32_t number = 0;
        TextField two{block};
    };
    EXPECT_THROW(Apart(), std::logic_error);
}

TEST(TextField, ForgetsAllTexts) {
    Card card;
    Fill(card, {L"one", L"two", L"three"});
    card.block.Clear();
    EXPECT_EQ((Texts{L"", L"", L""}), TextsOf(card));
    card.two = L"new";
    EXPECT_EQ((Texts{L"", L"new", L""}), TextsOf(card));
}

TEST(TextField, GivesBackWhatItsTextsDoNotNeed) {
    Card card;
    Fill(card, {L"one", std::wstring(1000, L'x'), L"three"});
    card.two = L"two";
    card.block.Fit();
    EXPECT_EQ(11 * sizeof(wchar_t), BytesOf(card));
    EXPECT_EQ((Texts{L"one", L"two", L"three"}), TextsOf(card));
    card.block.Fit();
    EXPECT_EQ((Texts{L"one", L"two", L"three"}), TextsOf(card));
}

TEST(TextField, NeedsNoMemoryForEmptyTexts) {
    Card card;
    Fill(card, {L"one", L"two", L"three"});
    card.block.Clear();
    EXPECT_NE(nullptr, Within(card.one).data());
    card.block.Fit();
    EXPECT_EQ(nullptr, Within(card.one).data());
    EXPECT_EQ((Texts{L"", L"", L""}), TextsOf(card));
    card.three = L"new";
    EXPECT_EQ((Texts{L"", L"", L"new"}), TextsOf(card));
}

TEST(TextField, StaysAsItIsWhenMemoryIsShort) {
    Card card;
    Fill(card, {L"one", L"two", L"three"});
    // The field must not look at any of these characters.
    const std::wstring_view endless(L"x", size_t{1} << 30);
    EXPECT_THROW(card.two = endless, std::bad_alloc);
    EXPECT_THROW(card.two = endless.substr(1), std::bad_alloc);
    EXPECT_EQ((Texts{L"one", L"two", L"three"}), TextsOf(card));
}

TEST(TextField, IsLikeAsManyTextsThroughAnyChanges) {
    std::mt19937 random(20261121);
    const auto below = [&](size_t end) { return random() % end; };
    Card card;
    Texts texts(kTexts);
    for (int change = 0; change < 20'000; ++change) {
        const size_t to = below(kTexts);
        const size_t from = below(kTexts);
        const size_t begin = below(texts[from].size() + 1);
        const size_t length = below(texts[from].size() + 1);
        switch (below(8)) {
            case 0:
                card.block.Fit();
                break;
            case 1:
            case 2:
            case 3:
                card.*kFields[to] = Within(card.*kFields[from]).substr(begin, length);
                texts[to] = std::wstring(texts[from].substr(begin, length));
                break;
            default:
                texts[to] = std::wstring(below(below(90) + 1), static_cast<wchar_t>(L'a' + below(26)));
                card.*kFields[to] = texts[to];
        }
        ASSERT_EQ(texts, TextsOf(card)) << "change " << change;
    }
}

}  // namespace
}  // namespace platform
