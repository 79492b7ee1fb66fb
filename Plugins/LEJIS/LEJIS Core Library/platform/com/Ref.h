#pragma once

#include <wrl/client.h>

#include <type_traits>

namespace platform {

// A reference that is counted like ComPtr's and is never null, so what it refers to is used without a test.
template <typename Class>
class Ref {
public:
    explicit Ref(Class& object) : object_(&object) {}
    // Copies and no moves: what was moved from would be null.
    Ref(const Ref&) = default;
    Ref& operator=(const Ref&) = default;

    Class& operator*() const { return *object_.Get(); }
    Class* operator->() const { return object_.Get(); }
    Class* Get() const { return object_.Get(); }

    // For a place that may be null.
    template <typename Base>
    requires std::is_convertible_v<Class*, Base*>
    operator Microsoft::WRL::ComPtr<Base>() const { return Microsoft::WRL::ComPtr<Base>(object_.Get()); }

private:
    Microsoft::WRL::ComPtr<Class> object_;
};

}  // namespace platform
