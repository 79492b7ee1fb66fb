#include "apartments/Address.h"

#include "support/Printing.h"

#include <cstdlib>

namespace apartments {
namespace {

std::wstring Service(const wchar_t* name) {
    return support::Wide(std::getenv("LEJIS_SIMULATOR_URL")) + L"/lejis-core-Rev01/services/" + name;
}

}  // namespace

std::wstring SearchAddress() { return Service(L"search"); }
std::wstring SubmissionAddress() { return Service(L"submission"); }

}  // namespace apartments
