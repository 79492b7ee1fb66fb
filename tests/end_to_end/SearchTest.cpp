// Searches of the simulator's index, over the wire and through the registered library.
#include "end_to_end/EndToEndTest.h"
#include "end_to_end/SearchSink.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::Bstr;

namespace end_to_end {
namespace {

class Search : public EndToEndTest {
protected:
    Search() {
        EXPECT_OK(CoCreateInstance(__uuidof(LejisSearchWebService), nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(search.GetAddressOf())));
        EXPECT_OK(CoCreateInstance(__uuidof(LejisSearchRequest), nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(request.GetAddressOf())));
        EXPECT_OK(request->get_personArguments(person.GetAddressOf()));
        EXPECT_OK(search->put_URL(Bstr(SearchUrl())));
        EXPECT_OK(search->put_Username(Bstr(L"jdoe")));
        sink = std::make_unique<SearchSink>(search.Get());
        SubmitTwo();
    }

    void SubmitTwo() {
        ComPtr<ICollection> warnings;
        const auto full = NewIncident(L"2007-1");
        Fill(full.Get());
        EXPECT_OK(service->SubmitIncident(full.Get(), warnings.ReleaseAndGetAddressOf()));
        EXPECT_OK(service->SubmitIncident(NewIncident(L"2007-2").Get(), warnings.ReleaseAndGetAddressOf()));
    }

    std::vector<std::wstring> Outcome() {
        EXPECT_OK(search->Search(request.Get()));
        return sink->AwaitEvents();
    }

    // The incident numbers of the cards found, walked as For Each does.
    std::vector<std::wstring> FoundIds() {
        std::vector<std::wstring> ids;
        ComPtr<IUnknown> unknown;
        ComPtr<IEnumVARIANT> walk;
        EXPECT_OK(sink->Found()->get__NewEnum(unknown.GetAddressOf()));
        EXPECT_OK(unknown.As(&walk));
        for (_variant_t item; walk->Next(1, item.GetAddress(), nullptr) == S_OK;) {
            ComPtr<ILejisIncidentIndexCard> card;
            BSTR id = nullptr;
            EXPECT_OK(V_DISPATCH(&item)->QueryInterface(IID_PPV_ARGS(card.GetAddressOf())));
            EXPECT_OK(card->get_ActivityID(&id));
            ids.push_back(support::Take(id));
        }
        return ids;
    }

    ComPtr<ILejisSearchWebService> search;
    ComPtr<ILejisSearchRequest> request;
    ComPtr<IPersonInquiryArguments> person;
    std::unique_ptr<SearchSink> sink;
};

using Events = std::vector<std::wstring>;

TEST_F(Search, FindsAPersonByTheBeginningOfTheName) {
    EXPECT_OK(person->put_SurName(Bstr(L"pub")));
    EXPECT_EQ(Events{L"SearchCompleted"}, Outcome());
    EXPECT_EQ(std::vector<std::wstring>{L"2007-1"}, FoundIds());
}

TEST_F(Search, FindsNothing) {
    EXPECT_OK(person->put_SurName(Bstr(L"NOBODY")));
    EXPECT_EQ(Events{L"SearchCompleted"}, Outcome());
    EXPECT_EQ(std::vector<std::wstring>{}, FoundIds());
}

TEST_F(Search, PassesTheSchemaCheck) {
    EXPECT_OK(search->put_ValidateSchema(VARIANT_TRUE));
    EXPECT_OK(person->put_SurName(Bstr(L"ROE")));
    EXPECT_EQ(Events{L"SearchCompleted"}, Outcome());
    EXPECT_EQ(1u, Occurrences(Get("/control/exchanges"), "search?wsdl\""));
}

TEST_F(Search, ThatAsksForNothingIsTooBroad) {
    const Events events = Outcome();
    ASSERT_EQ(1u, events.size());
    EXPECT_TRUE(events[0].starts_with(L"ServiceError: The LEJIS core server could not handle your search request. "));
}

TEST_F(Search, OfAnUnknownUserIsAConfigurationError) {
    EXPECT_OK(search->put_Username(Bstr(L"unknown1")));
    EXPECT_OK(person->put_SurName(Bstr(L"ROE")));
    EXPECT_EQ(Events{L"ConfigurationError: Your JNET User ID is not known to LEJIS; ask your JNET administrator"},
              Outcome());
}

// What only a search can be answered; the rest is in the fault matrix.
struct Fault {
    const char* name;
    const char* fault;
    std::wstring beginning;
};

const Fault kFaults[] = {
    {"BadCard", R"({"target": "search", "kind": "bad-card"})",
     L"ServiceError: Internal error in web service code: elem cannot be Nothing"},
    {"DeepCards", R"({"target": "search", "kind": "deep-cards"})",
     L"ServiceError: The LEJIS core server could not handle your search request. "},
    {"CountWithoutCards", R"({"target": "search", "kind": "count-without-cards", "count": 5})",
     L"ServiceError: The LEJIS core server could not handle your search request. "},
    {"ManyCards", R"({"target": "search", "kind": "cards", "count": 200})", L"SearchCompleted"},
};

class SearchFault : public Search, public testing::WithParamInterface<Fault> {};

TEST_P(SearchFault, GivesOneEventAndTheNextSearchSucceeds) {
    Play(GetParam().fault);
    EXPECT_OK(person->put_SurName(Bstr(L"ROE")));
    const Events events = Outcome();
    ASSERT_EQ(1u, events.size());
    EXPECT_TRUE(events[0].starts_with(GetParam().beginning)) << support::Utf8(events[0]);
    StopFaults();
    EXPECT_EQ(Events{L"SearchCompleted"}, Outcome());
    EXPECT_EQ(std::vector<std::wstring>{L"2007-1"}, FoundIds());
}

INSTANTIATE_TEST_SUITE_P(Server, SearchFault, testing::ValuesIn(kFaults),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace end_to_end
