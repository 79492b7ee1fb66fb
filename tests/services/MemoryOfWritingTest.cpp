// The memory that formatting and writing an incident leaves allocated. Small pieces that each incident leaves would
// scatter over the heap and slow a night's batch down more and more.
#include "checking/LejisIncidentFormatter.h"
#include "model/LejisSubmissionDocument.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "services/RequestEnvelope.h"
#include "support/WineVersion.h"

#include <gtest/gtest.h>

#include <array>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;

platform::Ref<LejisIncidentIndexCard> IncidentWithMeasures() {
    auto person = platform::Create<LejisPersonIndexCard>();
    person->Height->Set(short{510});
    person->Weight->Set(short{180});
    auto incident = platform::Create<LejisIncidentIndexCard>();
    incident->PersonIndexCards->AddObject(person->Dispatch());
    return incident;
}

void FormatAndWrite(const LejisIncidentIndexCard& incident) {
    const auto document = platform::Create<LejisSubmissionDocument>();
    document->Add(platform::Create<LejisIncidentFormatter>()->Shape(incident));
    EXPECT_NE(L"", msxml::Markup(WrapInEnvelope(msxml::Root(document->ToDocument()))));
}

size_t BytesInUse() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    EXPECT_LE(count, heaps.size());
    size_t bytes = 0;
    for (DWORD index = 0; index < count; ++index) {
        HeapLock(heaps[index]);
        for (PROCESS_HEAP_ENTRY block{}; HeapWalk(heaps[index], &block);) {
            if (block.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += block.cbData;
        }
        HeapUnlock(heaps[index]);
    }
    return bytes;
}

TEST(MemoryOfWriting, IsGivenBack) {
    // Wine 10 lists small blocks by the group, so that one block more can count thousands of bytes.
    const size_t times = support::WineVersion() >= 10 ? 16'000 : 100;
    const auto incident = IncidentWithMeasures();
    for (size_t time = 0; time < times; ++time) FormatAndWrite(*incident);
    const size_t before = BytesInUse();
    for (size_t time = 0; time < times; ++time) FormatAndWrite(*incident);
    // A little for what goes on beside; one namespace is eighty bytes.
    EXPECT_LT(BytesInUse(), before + 20 * times);
}

}  // namespace
}  // namespace lejis
