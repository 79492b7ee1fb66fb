#include "submission/ResultWords.h"

namespace lejis_client {

std::wstring WordOf(const OperationKind& operation, Result result) {
    switch (result) {
        case Result::Refused:
            return L"refused";
        case Result::NotSent:
            return operation.sends ? L"not sent" : L"unreadable";
        case Result::Unknown:
            return L"unknown";
        case Result::LeftOut:
            return std::wstring(operation.success) + L" before";
        case Result::Done:
            break;
    }
    return operation.success;
}

}  // namespace lejis_client
