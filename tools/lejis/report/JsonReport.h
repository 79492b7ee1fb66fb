// The report for programs: one JSON document at the end.
#pragma once

#include "report/Report.h"
#include "text/Json.h"

namespace lejis_client {

class JsonReport final : public Report {
public:
    JsonReport(const Command& command, std::size_t total) : Report(command, total) {}

    void Finish() override;

private:
    void Tell(const std::wstring& name, const Outcome& outcome) override;

    Json incidents_ = Json::array();
};

}  // namespace lejis_client
