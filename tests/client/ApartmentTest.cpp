// Objects made from a multi-threaded apartment, where the client holds proxies: the registered type library makes them.
#include "client/Client.h"
#include "client/LateBound.h"
#include "support/Messages.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>

namespace client {
namespace {

using support::Bstr;

// Runs the work in a thread of the multi-threaded apartment, while this thread dispatches its messages.
void RunInMultiThreadedApartment(const std::function<void()>& work) {
    std::atomic<bool> over = false;
    std::thread thread([&] {
        EXPECT_OK(CoInitializeEx(nullptr, COINIT_MULTITHREADED));
        work();
        CoUninitialize();
        over = true;
    });
    EXPECT_TRUE(support::PumpUntil([&] { return over.load(); }));
    thread.join();
}

// Prints the failures to standard error, which EXPECT_EXIT shows.
void ReportFailures() {
    const testing::TestResult& result = *testing::UnitTest::GetInstance()->current_test_info()->result();
    for (int index = 0; index < result.total_part_count(); ++index) {
        if (result.GetTestPartResult(index).failed())
            std::fprintf(stderr, "%s\n", result.GetTestPartResult(index).message());
    }
}

// The same in a process of its own, which fails with the work: Wine never releases a class object that it made for
// such a thread, and the library would be in use for the rest of this process.
void InMultiThreadedApartment(const std::function<void()>& work) {
    EXPECT_EXIT(
        {
            RunInMultiThreadedApartment(work);
            ReportFailures();
            std::_Exit(testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
        },
        testing::ExitedWithCode(EXIT_SUCCESS), "");
}

bool IsProxy(IUnknown* object) {
    ComPtr<IClientSecurity> proxyManager;
    return SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(proxyManager.GetAddressOf())));
}

TEST(MultiThreadedApartmentDeathTest, GetsAProxyThatKeepsProperties) {
    InMultiThreadedApartment([] {
        const auto card = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
        BSTR text = nullptr;
        VARIANT_BOOL caution = VARIANT_FALSE;
        ASSERT_NE(nullptr, card);
        EXPECT_TRUE(IsProxy(card.Get()));
        EXPECT_OK(card->put_GivenName(Bstr(L"JOHN")));
        EXPECT_OK(card->put_CautionIndicator(VARIANT_TRUE));
        EXPECT_OK(card->get_GivenName(&text));
        EXPECT_EQ(L"JOHN", support::Take(text));
        EXPECT_OK(card->get_CautionIndicator(&caution));
        EXPECT_EQ(VARIANT_TRUE, caution);
    });
}

TEST(MultiThreadedApartmentDeathTest, ReachesTheObjectsOfAnObject) {
    InMultiThreadedApartment([] {
        const auto card = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
        ASSERT_NE(nullptr, card);
        ComPtr<ILejisStreetAddress> address;
        ComPtr<INullableInteger> height;
        _variant_t value;
        ASSERT_OK(card->get_address(address.GetAddressOf()));
        EXPECT_OK(address->put_City(Bstr(L"SPRINGFIELD")));
        ASSERT_OK(card->get_Height(height.GetAddressOf()));
        EXPECT_OK(height->put_Value(_variant_t(short{510})));
        EXPECT_OK(height->get_Value(&value));
        EXPECT_EQ(_variant_t(short{510}), value);
    });
}

TEST(MultiThreadedApartmentDeathTest, FillsAndReadsCollections) {
    InMultiThreadedApartment([] {
        const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
        ASSERT_NE(nullptr, incident);
        const auto person = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
        ComPtr<ICollection> persons;
        VARIANT_BOOL caution = VARIANT_FALSE;
        long count = 0;
        ASSERT_OK(incident->get_PersonIndexCards(persons.GetAddressOf()));
        ASSERT_OK(person->put_CautionIndicator(VARIANT_TRUE));
        EXPECT_OK(persons->Add(_variant_t(static_cast<IDispatch*>(person.Get()))));
        EXPECT_OK(persons->get_Count(&count));
        EXPECT_EQ(1, count);
        EXPECT_OK(incident->HasCaution(&caution));
        EXPECT_EQ(VARIANT_TRUE, caution) << "the card in the collection is the one that was given";
    });
}

TEST(MultiThreadedApartmentDeathTest, PassesCardsToTheValidator) {
    InMultiThreadedApartment([] {
        const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
        const auto validator = Create<LejisIncidentValidator, ILejisIncidentValidator>();
        ASSERT_NE(nullptr, validator);
        ComPtr<ICollection> errors;
        VARIANT_BOOL found = VARIANT_FALSE;
        _variant_t first;
        EXPECT_OK(validator->Validate(incident.Get(), &found));
        EXPECT_EQ(VARIANT_TRUE, found);
        ASSERT_OK(validator->get_Errors(errors.GetAddressOf()));
        EXPECT_OK(errors->get_Item(1, &first));
        EXPECT_EQ(_variant_t(L"ID is required."), first);
    });
}

TEST(MultiThreadedApartmentDeathTest, LearnsOfErrors) {
    InMultiThreadedApartment([] {
        const LateBound date = CreateLateBound(L"NullableDate");
        const auto manager = Create<FutureManager, IFutureManager>();
        ASSERT_NE(nullptr, manager);
        EXPECT_TRUE(RaisedBy(date.Put(L"Value", L"hello"), kInvalidArgument, L"Not a valid date."));
        // The error object of a call through the table does not travel between apartments under Wine, its number does.
        EXPECT_EQ(kInvalidArgument, manager->InvokeLater(nullptr));
    });
}

// The document belongs to the client's apartment, and the library writes into it and reads it through proxies.
TEST(MultiThreadedApartmentDeathTest, GivesAndTakesXml) {
    InMultiThreadedApartment([] {
        const support::Document document = support::NewDocument();
        const auto person = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
        const auto copy = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
        ASSERT_NE(nullptr, copy);
        ComPtr<INullableInteger> height;
        ComPtr<IDispatch> written;
        support::Element element;
        ComPtr<IXMLDOMNode> root;
        BSTR surname = nullptr;
        EXPECT_OK(person->put_SurName(Bstr(L"PUBLIC")));
        // A measure has an attribute.
        ASSERT_OK(person->get_Height(height.GetAddressOf()));
        EXPECT_OK(height->put_Value(_variant_t(short{510})));
        ASSERT_OK(person->ToXmlElement(document.Get(), written.GetAddressOf()));
        ASSERT_OK(written.As(&element));
        EXPECT_OK(document->appendChild(element.Get(), root.GetAddressOf()));
        ASSERT_OK(copy->FromXmlElement(element.Get()));
        EXPECT_OK(copy->get_SurName(&surname));
        EXPECT_EQ(L"PUBLIC", support::Take(surname));
        _variant_t value;
        ASSERT_OK(copy->get_Height(height.ReleaseAndGetAddressOf()));
        EXPECT_OK(height->get_Value(&value));
        EXPECT_EQ(_variant_t(short{510}), value);
    });
}

TEST(MultiThreadedApartmentDeathTest, GivesAndTakesEnvelopes) {
    InMultiThreadedApartment([] {
        const support::Document document = support::NewDocument();
        const auto envelope = Create<SOAPEnvelope, ISOAPEnvelope>();
        ASSERT_NE(nullptr, envelope);
        ComPtr<IDispatch> written;
        EXPECT_OK(envelope->put_Username(Bstr(L"jdoe")));
        EXPECT_OK(envelope->put_Body(Bstr(L"<a/>")));
        ASSERT_OK(envelope->ToXmlElement(document.Get(), written.GetAddressOf()));
        EXPECT_TRUE(support::SameXml(written.Get(),
                                     L"<soap:Envelope><soap:Header><wsse:Security><wsse:UsernameToken>"
                                     L"<wsse:Username>jdoe</wsse:Username></wsse:UsernameToken></wsse:Security>"
                                     L"</soap:Header><soap:Body>&lt;a/&gt;</soap:Body></soap:Envelope>"));
        const support::Document answer = support::Parse(
            L"<soap:Envelope><soap:Body><soap:Fault><faultstring>Not today.</faultstring></soap:Fault></soap:Body>"
            L"</soap:Envelope>");
        BSTR message = nullptr;
        ASSERT_OK(envelope->FromXmlDocument(answer.Get()));
        EXPECT_OK(envelope->FaultMessage(&message));
        EXPECT_EQ(L"Not today.", support::Take(message));
    });
}

}  // namespace
}  // namespace client
