#include "platform/msxml/Node.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "support/ComCheck.h"
#include "support/DeepXml.h"
#include "unit_support/CountingElement.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace platform::msxml {
namespace {

using support::Nested;
using support::NestIn;
using support::Raises;

constexpr wchar_t kTooDeep[] = L"The XML is nested too deep: 260 levels or more";

// A document of one element with `depth` others nested in it.
Document Deep(int depth) {
    const Document document = support::Parse(L"<r/>");
    NestIn(Root(document).Get(), depth);
    return document;
}

TEST(Depth, IsCountedBelowTheNode) {
    const Document document = Deep(kMaximumDepth - 1);
    EXPECT_NO_THROW(RequireBoundedDepth(Root(document)));
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { RequireBoundedDepth(document); }));
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { RequireBoundedDepth(Root(Deep(kMaximumDepth))); }));
}

TEST(Depth, IsThatOfTheDeepestBranch) {
    const Document document = support::Parse(L"<r><x/><y><z/></y><w/></r>");
    NestIn(SelectNode(document, L"r/y/z").Get(), kMaximumDepth);
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { RequireBoundedDepth(document); }));
    EXPECT_NO_THROW(RequireBoundedDepth(SelectNode(document, L"r/w")));
}

// An MSXML that refuses queries, as one might refuse a path of so many steps.
Node WithoutQueries(const Node& node, int& calls) {
    return Node(platform::Create<support::CountingElement>(node.Get(), calls).Get());
}

TEST(Depth, IsCountedByAWalkWhereTheQueryFails) {
    int calls = 0;
    EXPECT_NO_THROW(RequireBoundedDepth(WithoutQueries(Root(Deep(kMaximumDepth - 1)), calls)));
    EXPECT_GT(calls, kMaximumDepth);
    for (const int depth : {kMaximumDepth, kMaximumDepth + 1, support::kVeryDeep}) {
        EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] {
            RequireBoundedDepth(WithoutQueries(Root(Deep(depth)), calls));
        })) << depth;
    }
}

TEST(Depth, LeavesNoDescriptionOfARefusedQueryForALaterFailure) {
    int calls = 0;
    const Document document = Deep(1);
    ComPtr<ICreateErrorInfo> creation;
    ComPtr<IErrorInfo> information;
    ASSERT_OK(CreateErrorInfo(creation.GetAddressOf()));
    ASSERT_OK(creation.As(&information));
    const Node refusing = WithoutQueries(document, calls);
    SetErrorInfo(0, information.Get());
    EXPECT_NO_THROW(RequireBoundedDepth(refusing));
    EXPECT_EQ(S_FALSE, GetErrorInfo(0, information.ReleaseAndGetAddressOf()));
}

TEST(Depth, IsThatOfTheDeepestBranchAlsoByAWalk) {
    int calls = 0;
    const Document document = support::Parse(L"<r>text<x/><!-- --><y>text<z/>text<v/></y><w/>text</r>");
    EXPECT_NO_THROW(RequireBoundedDepth(WithoutQueries(document, calls)));
    NestIn(SelectNode(document, L"r/y/z").Get(), kMaximumDepth - 4);
    EXPECT_NO_THROW(RequireBoundedDepth(WithoutQueries(document, calls)));
    NestIn(SelectNode(document, L"r/y/v").Get(), kMaximumDepth - 3);
    EXPECT_TRUE(
        Raises(support::kInvalidArgument, kTooDeep, [&] { RequireBoundedDepth(WithoutQueries(document, calls)); }));
    EXPECT_NO_THROW(RequireBoundedDepth(WithoutQueries(SelectNode(document, L"r/w"), calls)));
}

TEST(Depth, OfWhatTheParserTakesIsAllowed) {
    int parsed = 0;
    for (int depth = 250; depth < kMaximumDepth + 10; ++depth) {
        const Document document = CreateDocument();
        if (!LoadXml(document, Nested(depth))) break;
        parsed = depth;
        EXPECT_NO_THROW(RequireBoundedDepth(document)) << depth;
    }
    EXPECT_GE(parsed, 250);
}

TEST(Depth, OfAHundredThousandIsMeasuredToo) {
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [] { RequireBoundedDepth(Deep(support::kVeryDeep)); }));
}

TEST(Depth, IsRefusedInElementsThatAreReadAndInMarkup) {
    const Document document = Deep(support::kVeryDeep);
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { ElementToRead(Root(document).Get()); }));
    EXPECT_TRUE(Raises(support::kInvalidArgument, kTooDeep, [&] { Markup(Root(document)); }));
}

TEST(Depth, OfTextIsLimitedByTheParser) {
    const Document document = CreateDocument();
    EXPECT_FALSE(LoadXml(document, Nested(support::kVeryDeep)));
    EXPECT_EQ(nullptr, Root(document).Get());
}

}  // namespace
}  // namespace platform::msxml
