// What both holders of numbers have in common; the numbers that each takes stand in the tests of their own.
#include "foundation/NullableNumber.h"
#include "platform/com/LateBound.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

#include <limits>

namespace lejis {
namespace {

template <typename Holder>
class NullableNumbers : public testing::Test {
protected:
    using Number = std::decay_t<decltype(*std::declval<Holder>().Number())>;
    static constexpr Number kSmallest = std::numeric_limits<Number>::min();
    static constexpr Number kGreatest = std::numeric_limits<Number>::max();

    platform::Ref<Holder> holder_ = platform::Create<Holder>();
};

using Holders = testing::Types<NullableInteger, NullableLong>;

class HolderNames {
public:
    template <typename Holder>
    static std::string GetName(int) {
        return std::is_same_v<Holder, NullableInteger> ? "NullableInteger" : "NullableLong";
    }
};

TYPED_TEST_SUITE(NullableNumbers, Holders, HolderNames);

TYPED_TEST(NullableNumbers, AreNullWhenNew) {
    _variant_t value(7L);
    EXPECT_OK(this->holder_->get_Value(&value));
    EXPECT_EQ(VT_NULL, V_VT(&value));
    EXPECT_EQ(E_POINTER, this->holder_->get_Value(nullptr));
}

TYPED_TEST(NullableNumbers, AreEmptiedByNull) {
    EXPECT_OK(this->holder_->put_Value(_variant_t(5L)));
    EXPECT_OK(this->holder_->put_Value(support::Null()));
    EXPECT_EQ(std::nullopt, this->holder_->Number());
}

TYPED_TEST(NullableNumbers, BecomeZeroWhateverTheyHeldBeforeANumberOutOfRange) {
    constexpr double kTooGreat = TestFixture::kGreatest + 1.0;
    EXPECT_OK(this->holder_->put_Value(_variant_t(5L)));
    EXPECT_EQ(S_OK, this->holder_->put_Value(_variant_t(kTooGreat)));
    EXPECT_EQ(typename TestFixture::Number{0}, this->holder_->Number());
}

TYPED_TEST(NullableNumbers, TakeWhatScriptsPassByReference) {
    _variant_t number(2.5);
    _variant_t reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &number;
    EXPECT_OK(this->holder_->put_Value(reference));
    EXPECT_EQ(typename TestFixture::Number{2}, this->holder_->Number());
    number = support::Null();
    EXPECT_OK(this->holder_->put_Value(reference));
    EXPECT_EQ(std::nullopt, this->holder_->Number());
}

TYPED_TEST(NullableNumbers, HaveValueAsTheirDefaultMember) {
    platform::PutMember(this->holder_->Dispatch(), L"Value", 42L);
    DISPPARAMS none{};
    _variant_t value;
    EXPECT_OK(this->holder_->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value,
                                    nullptr, nullptr));
    EXPECT_EQ(_variant_t(typename TestFixture::Number{42}), value);
}

TYPED_TEST(NullableNumbers, AreWrittenInDecimalDigits) {
    EXPECT_EQ(L"", NumberText(*this->holder_));
    for (const auto number : {TestFixture::kSmallest, typename TestFixture::Number{0}, TestFixture::kGreatest}) {
        this->holder_->Set(number);
        EXPECT_EQ(std::to_wstring(number), NumberText(*this->holder_));
    }
}

}  // namespace
}  // namespace lejis
