// The client of the fault matrix. Standard input gives it one exchange a line, "operation, address, well-behaved
// address, incident number" between tabs; each is answered by one line, "outcome, outcome of the next exchange of the
// same object, what is left behind".
#include "end_to_end/Client.h"
#include "end_to_end/SearchSink.h"
#include "support/ComCheck.h"
#include "support/LibraryUnloads.h"
#include "support/Messages.h"
#include "support/Outcome.h"
#include "wire_client/Program.h"

#include <array>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using end_to_end::SearchSink;
using Microsoft::WRL::ComPtr;
using support::Bstr;
using support::OutcomeOf;
using support::Wide;

namespace fault_matrix {
namespace {

// How long a search is left alone before its client gives it up.
constexpr unsigned kPatience = 500;

struct Order {
    std::wstring url;
    std::wstring goodUrl;
    std::wstring id;
};

struct Result {
    std::wstring outcome;
    std::wstring next;
};

using Service = ILejisSubmissionWebService;

std::wstring Submit(Service* service, ILejisIncidentIndexCard* incident) {
    ComPtr<ICollection> warnings;
    return OutcomeOf(service->SubmitIncident(incident, warnings.GetAddressOf()));
}

std::wstring SubmitAt(Service* service, const std::wstring& url, const std::wstring& id) {
    EXPECT_OK(service->put_URL(Bstr(url)));
    return Submit(service, end_to_end::NewIncident(id).Get());
}

std::wstring DeleteAt(Service* service, const std::wstring& url, const std::wstring& id) {
    EXPECT_OK(service->put_URL(Bstr(url)));
    return OutcomeOf(service->DeleteIncident(end_to_end::NewIncident(id).Get()));
}

// What the searches look for.
Result Seed(const Order& order) {
    const auto incident = end_to_end::NewIncident(order.id);
    end_to_end::Fill(incident.Get());
    return {Submit(end_to_end::NewService(order.url).Get(), incident.Get()), L"success"};
}

Result TrySubmit(const Order& order) {
    const auto service = end_to_end::NewService(order.url);
    const std::wstring outcome = SubmitAt(service.Get(), order.url, order.id);
    return {outcome, SubmitAt(service.Get(), order.goodUrl, order.id + L"-next")};
}

Result TryDelete(const Order& order) {
    const auto service = end_to_end::NewService(order.url);
    EXPECT_EQ(L"success", SubmitAt(service.Get(), order.goodUrl, order.id));
    const std::wstring outcome = DeleteAt(service.Get(), order.url, order.id);
    return {outcome, DeleteAt(service.Get(), order.goodUrl, order.id + L"-next")};
}

// A submission that is checked against the schemas of the service's description.
Result TryWsdl(const Order& order) {
    const auto service = end_to_end::NewService(order.url);
    EXPECT_OK(service->put_ValidateSchema(VARIANT_TRUE));
    const std::wstring outcome = SubmitAt(service.Get(), order.url, order.id);
    return {outcome, SubmitAt(service.Get(), order.goodUrl, order.id + L"-next")};
}

class Searching {
public:
    Searching() {
        EXPECT_OK(CoCreateInstance(__uuidof(LejisSearchWebService), nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(service_.GetAddressOf())));
        EXPECT_OK(CoCreateInstance(__uuidof(LejisSearchRequest), nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(request_.GetAddressOf())));
        ComPtr<IPersonInquiryArguments> person;
        EXPECT_OK(request_->get_personArguments(person.GetAddressOf()));
        EXPECT_OK(person->put_SurName(Bstr(L"PUBLIC")));
        EXPECT_OK(service_->put_Username(Bstr(L"jdoe")));
        sink_ = std::make_unique<SearchSink>(service_.Get());
    }

    void Begin(const std::wstring& url) {
        EXPECT_OK(service_->put_URL(Bstr(url)));
        EXPECT_OK(service_->Search(request_.Get()));
    }

    void Withdraw() { Begin(L""); }

    // Leaves the search alone, and keeps what it says nevertheless.
    void BePatient() {
        support::PumpFor(kPatience);
        early_ = sink_->TakeEvents();
    }

    // Everything since the last outcome.
    std::wstring Outcome() {
        std::vector<std::wstring> events = std::exchange(early_, {});
        for (const std::wstring& event : sink_->AwaitEvents()) events.push_back(event);
        long count = 0;
        if (sink_->Found()) {
            EXPECT_OK(sink_->Found()->get_Count(&count));
        }
        const bool found = !events.empty() && events.back() == L"SearchCompleted";
        return OutcomeOf(events) + (found ? L", cards: " + std::to_wstring(count) : L"");
    }

    std::wstring OutcomeAt(const std::wstring& url) {
        Begin(url);
        return Outcome();
    }

private:
    ComPtr<ILejisSearchWebService> service_;
    ComPtr<ILejisSearchRequest> request_;
    std::unique_ptr<SearchSink> sink_;
    std::vector<std::wstring> early_;
};

Result TrySearch(const Order& order) {
    Searching searching;
    const std::wstring outcome = searching.OutcomeAt(order.url);
    return {outcome, searching.OutcomeAt(order.goodUrl)};
}

// For servers, and platforms, that leave a search without an end.
Result TryGivingUp(const Order& order, const std::function<std::wstring(Searching&)>& giveUp) {
    Searching searching;
    searching.Begin(order.url);
    searching.BePatient();
    const std::wstring outcome = giveUp(searching);
    return {outcome, searching.OutcomeAt(order.goodUrl)};
}

// Another search takes its place.
Result TrySearchReplaced(const Order& order) {
    return TryGivingUp(order, [&](Searching& searching) { return searching.OutcomeAt(order.goodUrl); });
}

// The client replaces the search by one without an address.
Result TrySearchWithdrawn(const Order& order) {
    return TryGivingUp(order, [](Searching& searching) {
        searching.Withdraw();
        return searching.Outcome();
    });
}

const std::map<std::string, Result (*)(const Order&)> kOperations = {
    {"seed", Seed},
    {"submit", TrySubmit},
    {"delete", TryDelete},
    {"wsdl", TryWsdl},
    {"search", TrySearch},
    {"search-replaced", TrySearchReplaced},
    {"search-withdrawn", TrySearchWithdrawn},
};

std::string LeftBehind() { return support::LibraryCanUnload() == S_OK ? "nothing" : "objects of the library"; }

// "-twice" after an operation: it is tried once, with success, before the try that counts.
Result Try(const std::string& operation, const Order& order) {
    constexpr std::string_view kTwice = "-twice";
    if (!operation.ends_with(kTwice)) return kOperations.at(operation)(order);
    const auto attempt = kOperations.at(operation.substr(0, operation.size() - kTwice.size()));
    const Result first = attempt({order.url, order.goodUrl, order.id + L"-first"});
    EXPECT_EQ(first.next, first.outcome);
    return attempt(order);
}

std::string Answer(const std::string& line) {
    std::istringstream fields(line);
    std::array<std::string, 4> field;
    for (std::string& part : field) std::getline(fields, part, '\t');
    const Result result = Try(field[0], {Wide(field[1]), Wide(field[2]), Wide(field[3])});
    return support::Escaped(result.outcome) + '\t' + support::Escaped(result.next) + '\t' + LeftBehind();
}

int Serve() {
    for (std::string line; std::getline(std::cin, line);) std::cout << Answer(line) << std::endl;
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace fault_matrix

int main(int count, char** arguments) { return wire_client::Run(count, arguments, fault_matrix::Serve); }
