#include "submission/ResultWords.h"

namespace lejis_client {

std::wstring WordOf(const Command& command, Result result) {
    switch (result) {
        case Result::Refused:
            return L"refused";
        case Result::NotSent:
            return command.submits ? L"not sent" : L"unreadable";
        case Result::Unknown:
            return L"unknown";
        case Result::LeftOut:
            return std::wstring(command.success) + L" before";
        case Result::Done:
            break;
    }
    return command.success;
}

}  // namespace lejis_client
