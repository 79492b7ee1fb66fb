#include "submission/OperationKind.h"

#include "submission/CheckOperation.h"
#include "submission/DeleteOperation.h"
#include "submission/SubmitOperation.h"

namespace lejis_client {
namespace {

template <typename ThatOperation>
std::unique_ptr<Operation> Make(const ServiceSettings& service) {
    return std::make_unique<ThatOperation>(service);
}

std::unique_ptr<Operation> MakeCheck(const ServiceSettings&) { return std::make_unique<CheckOperation>(); }

}  // namespace

const OperationKind kCheck = {.name = L"check",
                              .success = L"fit for submission",
                              .sends = false,
                              .tellsLosses = true,
                              .adviceOnUnknown = L"",
                              .make = MakeCheck};

const OperationKind kSubmit = {
    .name = L"submit",
    .success = L"submitted",
    .sends = true,
    .tellsLosses = true,
    .adviceOnUnknown =
        L"LEJIS may have it or not: send it again, LEJIS knows an incident by agency and number, or "
        L"look it up.",
    .make = Make<SubmitOperation>};

const OperationKind kDelete = {
    .name = L"delete",
    .success = L"withdrawn",
    .sends = true,
    .tellsLosses = false,
    .adviceOnUnknown =
        L"LEJIS may have it still or not: withdraw it again, LEJIS knows an incident by agency and "
        L"number, or look it up.",
    .make = Make<DeleteOperation>};

}  // namespace lejis_client
