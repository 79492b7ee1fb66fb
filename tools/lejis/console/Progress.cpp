#include "console/Progress.h"

#include "console/Console.h"
#include "text/Duration.h"
#include "text/Layout.h"

#include <algorithm>
#include <cwchar>

namespace lejis_client {
namespace {

// So many results can be counted by eye.
constexpr std::size_t kFew = 3;
constexpr std::size_t kConsoleWidth = 79;
constexpr std::size_t kBarWidth = 20;

std::wstring Bar(std::size_t done, std::size_t total) {
    const std::size_t full = kBarWidth * done / total;
    return L"[" + std::wstring(full, L'#') + std::wstring(kBarWidth - full, L'.') + L"]";
}

std::wstring Pace(std::size_t tried, std::size_t left, ULONGLONG milliseconds) {
    if (tried == 0 || milliseconds == 0) return {};
    const double rate = static_cast<double>(tried) / Seconds(milliseconds);
    const auto seconds = static_cast<unsigned>(static_cast<double>(left) / rate + 0.5);
    wchar_t text[60];
    std::swprintf(text, std::size(text), L"  %.1f/s, %u:%02u left", rate, seconds / 60, seconds % 60);
    return text;
}

}  // namespace

Progress::Progress(std::size_t total) : total_(total), start_(GetTickCount64()) {}

bool Progress::HasBar() const { return total_ > kFew && Console::Errors().IsInteractive(); }

void Progress::Begin(const std::wstring& name) {
    name_ = name;
    Show();
}

void Progress::Show() const {
    if (!HasBar()) return;
    Console::Errors().Write(L"\r" + ProgressLine(done_, tried_, total_, GetTickCount64() - start_, name_));
}

void Progress::Hide() const {
    if (HasBar()) Console::Errors().Write(L"\r" + std::wstring(kConsoleWidth, L' ') + L"\r");
}

void Progress::End(bool wasTried) {
    ++done_;
    if (wasTried) ++tried_;
    Hide();
}

std::wstring Progress::Number() const {
    if (total_ <= kFew || HasBar()) return {};
    const std::wstring total = std::to_wstring(total_);
    return L"[" + PaddedLeft(std::to_wstring(done_), total.size()) + L"/" + total + L"] ";
}

std::wstring ProgressLine(std::size_t done, std::size_t tried, std::size_t total, ULONGLONG milliseconds,
                          const std::wstring& name) {
    const std::wstring line = Bar(done, total) + L" " + std::to_wstring(done) + L"/" + std::to_wstring(total) +
                              Pace(tried, total - done, milliseconds) + L"  " + name;
    return PaddedRight(line.substr(0, kConsoleWidth), kConsoleWidth);
}

}  // namespace lejis_client
