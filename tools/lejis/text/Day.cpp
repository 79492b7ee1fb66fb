#include "text/Day.h"

#include <chrono>

namespace lejis_client {
namespace {

constexpr std::wstring_view kForm = L"0000-00-00";

bool HasForm(const std::wstring& text) {
    if (text.size() != kForm.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool digit = text[i] >= L'0' && text[i] <= L'9';
        if (kForm[i] == L'0' ? !digit : text[i] != kForm[i]) return false;
    }
    return true;
}

}  // namespace

std::optional<DATE> ParseDay(const std::wstring& text) {
    using namespace std::chrono;
    if (!HasForm(text)) return std::nullopt;
    const auto number = [&](std::size_t start, std::size_t length) { return std::stoi(text.substr(start, length)); };
    const year_month_day day(year(number(0, 4)), month(static_cast<unsigned>(number(5, 2))),
                             std::chrono::day(static_cast<unsigned>(number(8, 2))));
    // The platform knows no day before the year 100.
    if (!day.ok() || day.year() < year(100)) return std::nullopt;
    constexpr sys_days kDayZero = year(1899) / December / 30;
    return static_cast<DATE>((sys_days(day) - kDayZero).count());
}

}  // namespace lejis_client
