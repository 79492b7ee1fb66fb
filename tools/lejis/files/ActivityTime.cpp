#include "files/ActivityTime.h"

#include "files/Quoted.h"
#include "platform/Conversions.h"

namespace lejis_client {

void ActivityTime::Set(const FormatRow& row, int line, std::wstring_view value) {
    (row.content == Content::kActivityDate ? date_ : time_) = {row.path, line, std::wstring(value)};
}

std::optional<Loss> ActivityTime::FindLoss() const {
    if (date_.value.empty() && time_.value.empty()) return std::nullopt;
    if (time_.value.empty()) {
        if (platform::ParseDate(date_.value)) return std::nullopt;
        return Loss{date_.line, date_.Text() + L" is not read: it is not a date."};
    }
    if (date_.value.empty()) {
        const bool isRead = platform::ParseDate(time_.value).has_value();
        return Loss{time_.line, time_.Text() + (isRead ? L" is read as a time of 1899-12-30: there is no date."
                                                       : L" is not read: it is not a time.")};
    }
    if (platform::ParseDate(date_.value + L' ' + time_.value)) return std::nullopt;
    return Loss{date_.line, date_.Text() + L" and " + time_.Text() + L" are not read: they are not a date and a time."};
}

std::wstring ActivityTime::Half::Text() const { return std::wstring(name) + L' ' + Quoted(value); }

}  // namespace lejis_client
