// Any value into any member of any class, as the type library lists them.
#include "com/Calls.h"
#include "targets/Targets.h"
#include "world/Creation.h"
#include "world/World.h"

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

// What waits, or asks a user, costs as much as hundreds of other calls.
bool IsSlow(const PublicClass& itsClass) { return itsClass.name == L"TestSearch"; }

class ValuesTarget final : public Target {
public:
    void Run(Case& input) override {
        World world(input);
        const PublicClass& first = AnyCreatable(input);
        if (IsSlow(first) && !input.OneIn(50)) return;
        ComPtr<IUnknown> object = CreateObject(first.id);
        const PublicClass* itsClass = &first;
        input.Trace([&] { return L"create " + first.name; });
        for (uint32_t calls = 1 + input.Below(5); calls > 0; --calls) {
            world.See(object);
            const PublicInterface& itsInterface = *itsClass->interfaces[input.Below(itsClass->interfaces.size())];
            const ComPtr<IUnknown> result =
                CallAny(object.Get(), itsInterface, input.Pick(itsInterface.members), input, world.Any());
            // From an object to what it holds.
            const PublicClass* const classOfResult = ClassOf(result.Get());
            if (!classOfResult || input.OneIn(3)) continue;
            world.See(result);
            object = result;
            itsClass = classOfResult;
        }
    }
};

}  // namespace

std::unique_ptr<Target> CreateValues() { return std::make_unique<ValuesTarget>(); }

}  // namespace fuzzing
