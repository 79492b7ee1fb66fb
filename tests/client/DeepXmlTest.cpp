// XML nested 100,000 deep, handed to everything that takes XML, on a thread with a quarter of the usual stack.
#include "client/Client.h"
#include "client/LateBound.h"
#include "client/Members.h"
#include "support/DeepXml.h"

#include <gtest/gtest.h>

#include <process.h>

namespace client {
namespace {

using support::kVeryDeep;

constexpr unsigned kSmallStack = 256 * 1024;

constexpr wchar_t kTooDeep[] = L"The XML is nested too deep: 260 levels or more";

unsigned __stdcall RunInApartment(void* work) {
    EXPECT_OK(OleInitialize(nullptr));
    (*static_cast<const std::function<void()>*>(work))();
    OleUninitialize();
    return 0;
}

void OnASmallStack(const std::function<void()>& work) {
    const auto thread = reinterpret_cast<HANDLE>(_beginthreadex(nullptr, kSmallStack, RunInApartment,
                                                                const_cast<std::function<void()>*>(&work),
                                                                STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr));
    ASSERT_NE(nullptr, thread);
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(thread, 60000));
    CloseHandle(thread);
}

support::Element RootOf(const support::Document& document) {
    support::Element root;
    EXPECT_OK(document->get_documentElement(root.GetAddressOf()));
    return root;
}

VARIANT Argument(IDispatch* object) {
    VARIANT argument{};
    V_VT(&argument) = VT_DISPATCH;
    V_DISPATCH(&argument) = object;
    return argument;
}

// The parts of an envelope, by the queries that find them.
LateBound ReadEnvelope(const support::Document& document) {
    const LateBound envelope = CreateLateBound(L"SOAPEnvelope");
    EXPECT_TRUE(Done(envelope.Call(L"FromXmlDocument", {_variant_t(static_cast<IDispatch*>(document.Get()))})));
    return envelope;
}

std::wstring Repeated(const std::wstring& text, int times) {
    std::wstring all;
    for (int time = 0; time < times; ++time) all += text;
    return all;
}

void NestBelow(const support::Document& document, const wchar_t* path) {
    ComPtr<IXMLDOMNode> node;
    ASSERT_EQ(S_OK, document->selectSingleNode(_bstr_t(path), node.GetAddressOf()));
    support::NestIn(node.Get(), kVeryDeep);
}

TEST(DeepXml, IsRefusedByEveryReader) {
    OnASmallStack([] {
        const support::Document document = support::Parse(L"<r/>");
        const support::Element root = RootOf(document);
        support::NestIn(root.Get(), kVeryDeep);
        int readers = 0;
        ForEachMember([&](const ClassRow& row, IUnknown* object, const Member& member) {
            const bool readsDocument = member.name == L"FromXmlDocument";
            if (member.name != L"FromXmlElement" && !readsDocument) return;
            ++readers;
            IDispatch* const argument = readsDocument ? static_cast<IDispatch*>(document.Get()) : root.Get();
            const HRESULT result = CallDirectly(object, member, {Argument(argument)});
            EXPECT_TRUE(support::FailedWith(result, kInvalidArgument, kTooDeep)) << support::Utf8(row.name);
        });
        EXPECT_GE(readers, 15);
    });
}

TEST(DeepXml, InAnIncidentOfAnAnswerIsReadAsDeepAsItParsesAndRefusedBeyond) {
    OnASmallStack([] {
        const support::Document document = support::Parse(
            L"<lejis:LEJISIndexInquiryResponse><lejis:RMSIncidentIndexCard><card:LejisIndexUid/>"
            L"<j:SubmissionSubmitter.Organization/>" +
            Repeated(L"<j:a>", 250) + Repeated(L"</j:a>", 250) +
            L"</lejis:RMSIncidentIndexCard></lejis:LEJISIndexInquiryResponse>");
        const LateBound response = CreateLateBound(L"LejisInquiryResponse");
        const _variant_t argument(static_cast<IDispatch*>(document.Get()));
        EXPECT_TRUE(Done(response.Call(L"FromXmlDocument", {argument})));
        ComPtr<IXMLDOMNode> innermost;
        ASSERT_EQ(S_OK,
                  document->selectSingleNode(_bstr_t(L"//*[local-name() = 'a' and not(*)]"), innermost.GetAddressOf()));
        support::NestIn(innermost.Get(), kVeryDeep, L"http://www.it.ojp.gov/jxdm/3.0.3");
        EXPECT_TRUE(RaisedBy(response.Call(L"FromXmlDocument", {argument}), kInvalidArgument, kTooDeep));
    });
}

TEST(DeepXml, ThatGrowsAfterItWasReadChangesNothingThatWasRead) {
    OnASmallStack([] {
        const support::Document document = support::Parse(
            L"<soap:Envelope><soap:Body><soap:Fault><faultcode/><faultstring>x</faultstring></soap:Fault></soap:Body>"
            L"</soap:Envelope>");
        const LateBound envelope = ReadEnvelope(document);
        NestBelow(document, L"//faultstring");
        EXPECT_TRUE(Done(envelope.Call(L"IsFault")));
        EXPECT_TRUE(Done(envelope.Call(L"FaultCode")));
        const auto message = envelope.Call(L"FaultMessage");
        EXPECT_TRUE(Done(message));
        EXPECT_EQ(_variant_t(L"x"), message.value);
        EXPECT_TRUE(Done(envelope.Get(L"Body")));
        EXPECT_TRUE(Done(envelope.Call(L"BodyXml")));
    });
}

TEST(DeepXml, InABodyThatIsSetIsABodyThatDoesNotParse) {
    OnASmallStack([] {
        const LateBound envelope = CreateLateBound(L"SOAPEnvelope");
        EXPECT_TRUE(Done(envelope.Put(L"Body", _variant_t(support::Nested(kVeryDeep).c_str()))));
        EXPECT_TRUE(Done(envelope.Call(L"BodyXml")));
        EXPECT_TRUE(RaisedBy(envelope.Call(L"IsFault"), static_cast<long>(0x800A01A8), L"Object required"));
    });
}

TEST(DeepXml, InTheDocumentThatIsWrittenToHarmsNothing) {
    OnASmallStack([] {
        const support::Document document = support::Parse(L"<r/>");
        support::NestIn(RootOf(document).Get(), kVeryDeep);
        const LateBound vehicle = CreateLateBound(L"LejisVehicleIndexCard");
        EXPECT_TRUE(Done(vehicle.Call(L"ToXmlElement", {_variant_t(static_cast<IDispatch*>(document.Get()))})));
    });
}

}  // namespace
}  // namespace client
