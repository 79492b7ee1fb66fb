#include "Report.h"

#include "Machine.h"
#include "System.h"
#include "Table.h"
#include "text/UtcTime.h"
#include "text/Utf8.h"
#include "Version.h"

#include <algorithm>

namespace kit {
namespace {

using lejis_client::Utf8;

Json JsonOf(const Trial& trial) {
    const Result& result = trial.result;
    Json run = {{"name", Utf8(trial.run.name)},        {"bits", Utf8(trial.run.bits)}, {"status", result.status},
                {"expectedUnderWine", trial.run.wine}, {"seen", result.seen},          {"seconds", result.seconds},
                {"failedTests", Json::array()},        {"output", result.output}};
    for (const FailedTest& test : result.failedTests) {
        run["failedTests"].push_back({{"name", test.name}, {"text", test.text}});
    }
    return run;
}

std::string_view StatusOf(const std::vector<const Trial*>& trials, bool somethingByHand) {
    const auto has = [&](std::string_view status) {
        return std::any_of(trials.begin(), trials.end(),
                           [&](const Trial* trial) { return trial->result.status == status; });
    };
    if (has(kFailed)) return kFailed;
    if (!has(kPassed)) return kNotRun;
    return has(kNotRun) || somethingByHand ? kInPart : kPassed;
}

Json JsonOf(const Row& point, const std::vector<Trial>& trials) {
    std::vector<const Trial*> own;
    Json seen = Json::array();
    for (const std::wstring& name : ListOf(point.at("runs"))) {
        for (const Trial& trial : trials) {
            if (trial.run.name != name) continue;
            own.push_back(&trial);
            seen.push_back(Utf8(trial.run.bits + L" " + name) + ": " + trial.result.seen);
        }
    }
    const std::wstring& byHand = point.at("by hand");
    return {{"number", std::stoi(point.at("number"))},
            {"title", Utf8(point.at("title"))},
            {"status", StatusOf(own, byHand != L"-")},
            {"expectedUnderWine", Utf8(point.at("wine"))},
            {"seen", seen},
            {"byHand", byHand == L"-" ? Json() : Json(Utf8(byHand))}};
}

Json CountsOf(const Json& entries) {
    Json counts = Json::object();
    for (const std::string_view status : {kPassed, kFailed, kInPart, kNotRun}) {
        counts[std::string(status)] =
            std::count_if(entries.begin(), entries.end(), [&](const Json& entry) { return entry["status"] == status; });
    }
    return counts;
}

}  // namespace

Json ReportOf(const Settings& settings, const std::vector<Trial>& trials, const std::string& started) {
    Json report = {{"kit", PUBLIC_VERSION},
                   {"started", started},
                   {"ended", lejis_client::UtcNow()},
                   {"simulator", settings.simulator.empty() ? Json() : Json(Utf8(settings.simulator))},
                   {"underWine", !WineVersion().empty()},
                   {"machine", Json::array()}};
    for (const auto& [name, text] : DescribeMachine()) report["machine"].push_back({{"name", name}, {"text", text}});
    report["points"] = Json::array();
    for (const Row& point : ReadTable(settings.folder + L"\\rows.tsv"))
        report["points"].push_back(JsonOf(point, trials));
    report["runs"] = Json::array();
    for (const Trial& trial : trials) report["runs"].push_back(JsonOf(trial));
    report["counts"] = {{"points", CountsOf(report["points"])}, {"runs", CountsOf(report["runs"])}};
    return report;
}

// Programs write in code pages of their own; what is no UTF-8 becomes U+FFFD.
std::string TextOf(const Json& report) { return report.dump(2, ' ', true, Json::error_handler_t::replace) + "\n"; }

bool IsGood(const Json& report) {
    return std::none_of(report["runs"].begin(), report["runs"].end(), [&](const Json& run) {
        return run["status"] == kFailed && !(report["underWine"] == true && run["expectedUnderWine"] == kFailed);
    });
}

}  // namespace kit
