// The report for people: a line for each incident, what is to be said about it below, and a summary.
#pragma once

#include "report/Report.h"

namespace lejis_client {

class TextReport final : public Report {
public:
    TextReport(const Command& command, const std::vector<std::wstring>& names);

    void Finish() override;

private:
    void Tell(const std::wstring& name, const Outcome& outcome) override;
    std::wstring Status(const Outcome& outcome) const;

    std::size_t total_;
    std::size_t nameWidth_ = 0;
};

}  // namespace lejis_client
