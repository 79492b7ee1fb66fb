// What clients learn of a failure, by the road of early binding and by that of late binding: the same.
#include "client/Client.h"
#include "client/LateBound.h"
#include "client/Members.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace client {
namespace {

constexpr long kObjectRequired = static_cast<long>(0x800A01A8);

struct Fault {
    const wchar_t* className;
    const wchar_t* member;
    INVOKEKIND kind;
    std::vector<_variant_t> arguments;
    long number;
    std::wstring description;
};

void PrintTo(const Fault& fault, std::ostream* out) {
    *out << support::Utf8(fault.className) << "." << support::Utf8(fault.member) << ": "
         << support::Utf8(fault.description);
}

std::vector<Fault> Faults() {
    const _variant_t nothing(static_cast<IDispatch*>(nullptr));
    return {
        {L"LejisVehicleIndexCard",
         L"FromXmlElement",
         INVOKE_FUNC,
         {nothing},
         kInvalidArgument,
         L"elem cannot be Nothing"},
        {L"LejisIncidentIndexCard",
         L"FromXmlElement",
         INVOKE_FUNC,
         {nothing},
         kInvalidArgument,
         L"elem cannot be Nothing"},
        {L"LejisStreetAddress", L"ToXmlElement", INVOKE_FUNC, {nothing}, kObjectRequired, L"Object required"},
        {L"NullableInteger",
         L"Value",
         INVOKE_PROPERTYPUT,
         {L"12"},
         kInvalidArgument,
         L"Cannot assign 'String'  to NullableInteger"},
        {L"NullableLong",
         L"Value",
         INVOKE_PROPERTYPUT,
         {true},
         kInvalidArgument,
         L"Cannot assign 'Boolean'  to NullableLong"},
        {L"NullableLong",
         L"Value",
         INVOKE_PROPERTYPUT,
         {nothing},
         kInvalidArgument,
         L"Cannot assign 'Nothing'  to NullableLong"},
        {L"NullableDate",
         L"Value",
         INVOKE_PROPERTYPUT,
         {_variant_t(short{5})},
         kInvalidArgument,
         L"Cannot assign 'Integer'  to NullableDate"},
        {L"NullableDate",
         L"Value",
         INVOKE_PROPERTYPUT,
         {_variant_t()},
         kInvalidArgument,
         L"Cannot assign 'Empty'  to NullableDate"},
        {L"NullableDate", L"Value", INVOKE_PROPERTYPUT, {L"hello"}, kInvalidArgument, L"Not a valid date."},
        {L"Future", L"Execute", INVOKE_FUNC, {nothing, nothing}, kInvalidArgument, L"runnable cannot be Nothing"},
        {L"FutureManager", L"InvokeLater", INVOKE_FUNC, {nothing}, kInvalidArgument, L"runnable cannot be Nothing"},
        {L"LejisIncidentValidator", L"Validate", INVOKE_FUNC, {nothing}, kObjectRequired, L"Object required"},
        {L"LejisIncidentFormatter", L"Format", INVOKE_FUNC, {nothing}, kObjectRequired, L"Object required"},
        {L"LejisSubmissionWebService", L"DeleteIncident", INVOKE_FUNC, {nothing}, kObjectRequired, L"Object required"},
        {L"SOAPEnvelope", L"IsFault", INVOKE_FUNC, {}, kObjectRequired, L"Object required"},
        {L"SOAPEnvelope", L"FromXmlElement", INVOKE_FUNC, {nothing}, kObjectRequired, L"Object required"},
        {L"LejisSubmissionWebService",
         L"SubmitIncident",
         INVOKE_FUNC,
         {_variant_t(CreateByName(L"LejisIncidentIndexCard").Get())},
         tvFatalError,
         L"ID is required."},
        {L"LejisSubmissionWebService",
         L"DeleteIncident",
         INVOKE_FUNC,
         {_variant_t(CreateByName(L"LejisIncidentIndexCard").Get())},
         tvTransientError,
         L"Invalid URL ''"},
    };
}

// Tests are listed before COM is there for them, so the rows are made when they run.
TEST(ErrorInfo, AfterAFailureByNameHoldsNumberTextAndSource) {
    for (const Fault& fault : Faults()) {
        const LateBound object = CreateLateBound(fault.className);
        const bool puts = fault.kind == INVOKE_PROPERTYPUT;
        const Outcome outcome =
            puts ? object.Put(fault.member, fault.arguments[0]) : object.Call(fault.member, fault.arguments);
        EXPECT_TRUE(RaisedBy(outcome, fault.number, fault.description)) << testing::PrintToString(fault);
        EXPECT_EQ(ProgIdOf(fault.className), outcome.source) << testing::PrintToString(fault);
    }
}

TEST(ErrorInfo, AfterAFailureThroughTheTableHoldsNumberTextAndSource) {
    for (const Fault& fault : Faults()) {
        const auto row = std::find_if(CreatableClasses().begin(), CreatableClasses().end(),
                                      [&](const ClassRow& one) { return std::wstring(one.name) == fault.className; });
        const std::vector<Member> members = MembersOf(row->defaultInterface);
        const auto member = std::find_if(members.begin(), members.end(), [&](const Member& one) {
            return one.name == fault.member && one.kind == fault.kind;
        });
        ASSERT_NE(members.end(), member);
        LONG_PTR result = 0;
        VARIANT receiver{};
        V_VT(&receiver) = VT_BYREF | VT_UI1;
        V_BYREF(&receiver) = &result;
        std::vector<VARIANT> arguments(fault.arguments.begin(), fault.arguments.end());
        if (arguments.size() < member->parameters.size()) arguments.push_back(receiver);

        ComPtr<IUnknown> object;
        ASSERT_OK(CreateByName(fault.className)
                      ->QueryInterface(row->defaultInterface, reinterpret_cast<void**>(object.GetAddressOf())));
        const support::ErrorSeen seen = support::TakeError(CallDirectly(object.Get(), *member, arguments));
        EXPECT_EQ(support::Hexadecimal(fault.number), support::Hexadecimal(seen.number))
            << testing::PrintToString(fault);
        EXPECT_EQ(fault.description, seen.description);
        EXPECT_EQ(ProgIdOf(fault.className), seen.source);
    }
}

TEST(ErrorInfo, IsNotThatOfAnEarlierFailure) {
    const auto card = Create<LejisVehicleIndexCard, ILejisVehicleIndexCard>();
    ComPtr<ICollection> warnings;
    const auto formatter = Create<LejisIncidentFormatter, ILejisIncidentFormatter>();
    ASSERT_OK(formatter->get_Warnings(warnings.GetAddressOf()));
    EXPECT_TRUE(FAILED(card->FromXmlElement(nullptr)));
    const support::ErrorSeen second = support::TakeError(warnings->Remove(1));
    EXPECT_EQ(L"There is no item 1: the collection holds 0.", second.description);
    EXPECT_EQ(L"TVLejisCore.Collection", second.source);
}

TEST(ErrorInfo, NamesTheInterfaceSupportOfEveryInterface) {
    for (const ClassRow& row : CreatableClasses()) {
        ComPtr<ISupportErrorInfo> support;
        ASSERT_OK(CreateByName(row.name).As(&support));
        for (const IID& iid : InterfacesOf(row.id)) EXPECT_EQ(S_OK, support->InterfaceSupportsErrorInfo(iid));
        EXPECT_EQ(S_FALSE, support->InterfaceSupportsErrorInfo(__uuidof(ITypeLib))) << support::Utf8(row.name);
    }
}

TEST(ErrorInfo, KeepsTheTextOfTheXmlParserWhenItRefuses) {
    const auto submission = Create<LejisSubmissionDocument, ILejisSubmissionDocument>();
    const support::ErrorSeen seen = [&] {
        ComPtr<IDispatch> document;
        ComPtr<IDispatch> second;
        EXPECT_OK(submission->ToXmlDocument(document.GetAddressOf()));
        // The document has its root already.
        return support::TakeError(submission->ToXmlElement(document.Get(), second.GetAddressOf()));
    }();
    EXPECT_TRUE(FAILED(seen.number));
    EXPECT_NE(L"", seen.description);
}

}  // namespace
}  // namespace client
