// Any value into any member of any class, as the type library lists them.
#include "com/Calls.h"
#include "targets/Targets.h"
#include "world/Creation.h"
#include "world/World.h"

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

// What waits, or asks a user, costs as much as hundreds of other calls.
bool IsSlow(const PublicClass& one) { return one.name == L"TestSearch"; }

class ValuesTarget final : public Target {
public:
    void Run(Case& one) override {
        World world(one);
        const PublicClass& first = AnyCreatable(one);
        if (IsSlow(first) && !one.OneIn(50)) return;
        ComPtr<IUnknown> object = CreateObject(first.id);
        const PublicClass* itsClass = &first;
        one.Trace([&] { return L"create " + first.name; });
        for (uint32_t calls = 1 + one.Below(5); calls > 0; --calls) {
            world.See(object);
            const PublicInterface& itsInterface = *itsClass->interfaces[one.Below(itsClass->interfaces.size())];
            const ComPtr<IUnknown> result =
                CallAny(object.Get(), itsInterface, one.Pick(itsInterface.members), one, world.Any());
            // From an object to what it holds.
            const PublicClass* const classOfResult = ClassOf(result.Get());
            if (!classOfResult || one.OneIn(3)) continue;
            world.See(result);
            object = result;
            itsClass = classOfResult;
        }
    }
};

}  // namespace

std::unique_ptr<Target> CreateValues() { return std::make_unique<ValuesTarget>(); }

}  // namespace fuzzing
