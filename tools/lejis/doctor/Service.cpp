#include "doctor/Service.h"

#include "doctor/SampleRequest.h"
#include "foundation/Constants.h"

#include <iterator>

namespace lejis_client {
namespace {

// Of an address on the LEJIS host that this program is made for; the library may be made for another one.
template <std::size_t size>
constexpr const wchar_t* PathOf(const wchar_t (&address)[size]) {
    return address + std::size(L"http://" LEJIS_HOST) - 1;
}

constexpr Service kSubmission = {
    .name = L"submission service",
    .option = L"--url",
    .operation = L"submitRmsIndex",
    .actionPath = PathOf(lejis::Constants::kSubmitAction),
    .sample = SampleSubmission,
    .server = L"Submission server",
    .description = L"Submission WSDL",
    .host = L"Submission host",
    .schemas = L"Submission schemas",
};

constexpr Service kSearch = {
    .name = L"search service",
    .option = L"--search-url",
    .operation = L"searchIndex",
    .actionPath = PathOf(lejis::Constants::kSearchAction),
    .sample = SampleSearch,
    .server = L"Search server",
    .description = L"Search WSDL",
    .host = L"Search host",
    .schemas = L"Search schemas",
};

}  // namespace

const Service& ServiceOf(ServiceKind kind) { return kind == ServiceKind::kSearch ? kSearch : kSubmission; }

const Service& OtherService(ServiceKind kind) { return kind == ServiceKind::kSearch ? kSubmission : kSearch; }

}  // namespace lejis_client
