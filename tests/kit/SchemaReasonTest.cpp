// A parse that validates says what the schemas refuse.
#include "end_to_end/EndToEndTest.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace kit_tests {
namespace {

using SchemaReason = end_to_end::EndToEndTest;

TEST_F(SchemaReason, IsASentence) {
    constexpr std::wstring_view kBeginning = L"Schema validation error: ";
    end_to_end::Play(R"({"kind": "wrong-schema", "target": "wsdl"})");
    EXPECT_OK(service->put_ValidateSchema(VARIANT_TRUE));
    ComPtr<ICollection> warnings;
    const HRESULT result = service->SubmitIncident(end_to_end::NewIncident().Get(), warnings.GetAddressOf());
    EXPECT_EQ(tvFatalError, result);
    const std::wstring description = support::TakeError(result).description;
    const size_t place = description.find(kBeginning);
    ASSERT_NE(std::wstring::npos, place) << support::Utf8(description);
    const std::wstring reason = description.substr(place + kBeginning.size());
    // Wine gives none.
    EXPECT_FALSE(reason.empty() || reason.starts_with(L" (Line ")) << support::Utf8(description);
}

}  // namespace
}  // namespace kit_tests
