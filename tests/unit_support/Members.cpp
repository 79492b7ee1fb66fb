#include "unit_support/Members.h"

#include "platform/com/LateBound.h"
#include "platform/Text.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <algorithm>

namespace support {

std::wstring TextMember(IDispatch* object, const wchar_t* name) {
    const _variant_t value = platform::GetMember(object, name);
    EXPECT_EQ(VT_BSTR, V_VT(&value)) << Utf8(name);
    return V_VT(&value) == VT_BSTR ? platform::CopyText(V_BSTR(&value)) : std::wstring();
}

std::wstring FillingOf(const wchar_t* name) { return std::wstring(L" text of ") + name + L" "; }

void FillTexts(IDispatch* object, const Names& names) {
    for (const wchar_t* name : names) platform::PutMember(object, name, _variant_t(FillingOf(name).c_str()));
}

void ExpectEmptyTexts(IDispatch* object, const Names& names) {
    for (const wchar_t* name : names) EXPECT_EQ(L"", TextMember(object, name)) << Utf8(name);
}

void ExpectTextFields(IDispatch* object, const Names& names) {
    ExpectEmptyTexts(object, names);
    FillTexts(object, names);
    for (const wchar_t* name : names) EXPECT_EQ(FillingOf(name), TextMember(object, name)) << Utf8(name);
    _variant_t noText;
    V_VT(&noText) = VT_BSTR;
    V_BSTR(&noText) = nullptr;
    for (const wchar_t* name : names) platform::PutMember(object, name, noText);
    ExpectEmptyTexts(object, names);
}

void ExpectFlagField(IDispatch* object, const wchar_t* name) {
    EXPECT_EQ(_variant_t(false), platform::GetMember(object, name));
    for (const VARIANT_BOOL given : {VARIANT_TRUE, VARIANT_FALSE, VARIANT_BOOL{1}}) {
        _variant_t value(false);
        V_BOOL(&value) = given;
        platform::PutMember(object, name, value);
        EXPECT_EQ(_variant_t(given != VARIANT_FALSE), platform::GetMember(object, name)) << given;
    }
}

testing::AssertionResult MembersInOrder(IDispatch* object, const Names& names) {
    std::vector<DISPID> numbers;
    for (const wchar_t* name : names) {
        auto* writable = const_cast<LPOLESTR>(name);
        DISPID number = DISPID_UNKNOWN;
        const HRESULT result = object->GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, &number);
        if (FAILED(result)) return testing::AssertionFailure() << "no member " << Utf8(name);
        numbers.push_back(number);
    }
    const auto wrong = std::is_sorted_until(numbers.begin(), numbers.end(), std::less_equal<>());
    if (wrong == numbers.end()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << Utf8(names[static_cast<size_t>(wrong - numbers.begin())])
                                       << " does not follow the member before it";
}

std::vector<std::wstring> Texts(const platform::Collection& collection) {
    std::vector<std::wstring> texts;
    for (long index = 1; index <= static_cast<long>(collection.Count()); ++index) {
        const _variant_t& item = collection.Item(index);
        EXPECT_EQ(VT_BSTR, V_VT(&item)) << "item " << index;
        texts.push_back(V_VT(&item) == VT_BSTR ? platform::CopyText(V_BSTR(&item)) : std::wstring());
    }
    return texts;
}

}  // namespace support
