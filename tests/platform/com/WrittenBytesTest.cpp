#include "platform/com/WrittenBytes.h"

#include "support/ComCheck.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;

TEST(WrittenBytes, AreAllThatWasWritten) {
    const auto stream = Create<WrittenBytes>();
    EXPECT_EQ("", stream->All());
    ULONG written = 0;
    EXPECT_OK(stream->Write("ab\0c", 4, &written));
    EXPECT_EQ(4u, written);
    EXPECT_OK(stream->Write("", 0, &written));
    EXPECT_EQ(0u, written);
    EXPECT_OK(stream->Write("de", 2, nullptr));
    EXPECT_EQ(std::string("ab\0cde", 6), stream->All());
}

TEST(WrittenBytes, AreNotTakenFromNowhere) {
    const auto stream = Create<WrittenBytes>();
    ULONG written = 1;
    EXPECT_EQ(STG_E_INVALIDPOINTER, stream->Write(nullptr, 1, &written));
    EXPECT_EQ(0u, written);
    EXPECT_EQ("", stream->All());
}

TEST(WrittenBytes, AreAStreamToWriteToAlone) {
    const ComPtr<IUnknown> object = Create<WrittenBytes>();
    ComPtr<IStream> stream;
    ComPtr<ISequentialStream> sequential;
    ASSERT_OK(object.As(&stream));
    ASSERT_OK(object.As(&sequential));
    char byte = 0;
    STATSTG state{};
    ComPtr<IStream> other;
    EXPECT_EQ(E_NOTIMPL, stream->Read(&byte, 1, nullptr));
    EXPECT_EQ(E_NOTIMPL, stream->Seek({}, STREAM_SEEK_SET, nullptr));
    EXPECT_EQ(E_NOTIMPL, stream->CopyTo(stream.Get(), {}, nullptr, nullptr));
    EXPECT_EQ(E_NOTIMPL, stream->Revert());
    EXPECT_EQ(E_NOTIMPL, stream->LockRegion({}, {}, 0));
    EXPECT_EQ(E_NOTIMPL, stream->UnlockRegion({}, {}, 0));
    EXPECT_EQ(E_NOTIMPL, stream->Stat(&state, STATFLAG_NONAME));
    EXPECT_EQ(E_NOTIMPL, stream->Clone(other.GetAddressOf()));
    // What a writer does before and after its writing.
    EXPECT_OK(stream->SetSize({}));
    EXPECT_OK(stream->Commit(STGC_DEFAULT));
}

}  // namespace
}  // namespace platform
