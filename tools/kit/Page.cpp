#include "Page.h"

namespace kit {
namespace {

const char* const kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>TVLejisCore: what only Windows can prove</title>
<style>
body { font: 16px/1.5 "Segoe UI", sans-serif; color: #1b1f24; max-width: 72em; margin: 0 auto; padding: 1em 1.5em 4em; }
table { border-collapse: collapse; margin: 1em 0; width: 100%; }
th, td { border: 1px solid #d0d7de; padding: .35em .7em; text-align: left; vertical-align: top; }
th { background: #f3f5f7; }
pre { font: 14px/1.45 Consolas, monospace; background: #f3f5f7; padding: .8em 1em; overflow-x: auto; white-space: pre-wrap; }
.passed { color: #116329; } .failed { color: #a40e26; } .in-part, .not-run { color: #5b5200; }
.status { font-weight: 600; white-space: nowrap; }
.status small { display: block; font-weight: 400; }
.name, .time { white-space: nowrap; } .time { text-align: right; }
.what { width: 30%; } table.facts { width: auto; }
</style>
</head>
<body>
)";

std::string Escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        switch (character) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                result += character;
        }
    }
    return result;
}

std::string Text(const Json& value) { return Escaped(value.get<std::string>()); }

// Under Wine also whether the status is the one that its tables expect there.
std::string Status(const Json& entry, bool underWine) {
    std::string style = entry["status"];
    if (const size_t blank = style.find(' '); blank != std::string::npos) style[blank] = '-';
    std::string cell = "<td class=\"status " + style + "\">" + Text(entry["status"]);
    if (underWine && entry["status"] != entry["expectedUnderWine"]) {
        cell += "<small>expected under Wine: " + Text(entry["expectedUnderWine"]) + "</small>";
    } else if (underWine && entry["status"] == kFailed) {
        cell += "<small>as always under Wine</small>";
    }
    return cell + "</td>";
}

std::string Lines(const Json& texts) {
    std::string lines;
    for (const Json& text : texts) lines += (lines.empty() ? "" : "<br>") + Text(text);
    return lines;
}

// "2007-03-09T14:05:00.000Z" to the second.
std::string Moment(const Json& time) {
    const std::string text = time.get<std::string>();
    return Escaped(text.substr(0, 10) + " " + text.substr(11, 8));
}

// Leaves out counts of 0.
std::string Counts(const Json& counts) {
    std::string text;
    for (const auto& [status, count] : counts.items()) {
        if (count != 0) text += (text.empty() ? "" : ", ") + std::to_string(count.get<int>()) + " " + status;
    }
    return text;
}

std::string Summary(const Json& report) {
    const Json& counts = report["counts"];
    return "<p>" + std::to_string(report["points"].size()) + " points: " + Counts(counts["points"]) + ".<br>\n" +
           std::to_string(report["runs"].size()) + " runs: " + Counts(counts["runs"]) + ".<br>\n" +
           (report["simulator"].is_null() ? "No simulator was named: what needs one was not run."
                                          : "Simulator: <code>" + Text(report["simulator"]) + "</code>.") +
           "<br>\nFrom " + Moment(report["started"]) + " to " + Moment(report["ended"]) + " (UTC), version " +
           Text(report["kit"]) + ".</p>\n" +
           (report["underWine"] == true ? "<p><strong>This is Wine, not Windows.</strong> It proves none of this.</p>\n"
                                        : "");
}

std::string Points(const Json& report) {
    std::string rows;
    for (const Json& point : report["points"]) {
        std::string seen = Lines(point["seen"]);
        if (!point["byHand"].is_null()) seen += (seen.empty() ? "" : "<br>") + ("By hand: " + Text(point["byHand"]));
        rows += "<tr><td>" + std::to_string(point["number"].get<int>()) + "</td><td>" + Text(point["title"]) + "</td>" +
                Status(point, report["underWine"]) + "<td>" + seen + "</td></tr>\n";
    }
    return "<h2>Only Windows can prove</h2>\n<table>\n"
           "<tr><th></th><th class=\"what\">What</th><th>Status</th><th>Seen</th></tr>\n" +
           rows + "</table>\n";
}

std::string Machine(const Json& report) {
    std::string rows;
    for (const Json& fact : report["machine"]) {
        rows += "<tr><td>" + Text(fact["name"]) + "</td><td>" + Text(fact["text"]) + "</td></tr>\n";
    }
    return "<h2>This machine</h2>\n<table class=\"facts\">\n" + rows + "</table>\n";
}

std::string NameOf(const Json& run) { return Text(run["bits"]) + " " + Text(run["name"]); }

std::string Seconds(const Json& run) {
    if (run["status"] == kNotRun) return "";
    return std::to_string(static_cast<int>(run["seconds"].get<double>() + 0.5)) + " s";
}

std::string Runs(const Json& report) {
    std::string rows;
    for (const Json& run : report["runs"]) {
        rows += "<tr><td class=\"name\">" + NameOf(run) + "</td>" + Status(run, report["underWine"]) + "<td>" +
                Text(run["seen"]) + "</td><td class=\"time\">" + Seconds(run) + "</td></tr>\n";
    }
    return "<h2>Runs</h2>\n<table>\n<tr><th>Run</th><th>Status</th><th>Seen</th><th>Time</th></tr>\n" + rows +
           "</table>\n";
}

std::string Failures(const Json& report) {
    std::string text;
    for (const Json& run : report["runs"]) {
        if (run["status"] != kFailed) continue;
        text += "<h3>" + NameOf(run) + ": " + Text(run["seen"]) + "</h3>\n";
        for (const Json& test : run["failedTests"]) {
            text += "<h4>" + Text(test["name"]) + "</h4>\n<pre>" + Text(test["text"]) + "</pre>\n";
        }
        if (run["output"] != "") {
            text += "<pre>" + Text(run["output"]) + "</pre>\n";
        } else if (run["failedTests"].empty()) {
            text += "<p>It printed nothing.</p>\n";
        }
    }
    return text.empty() ? "" : "<h2>What failed</h2>\n" + text;
}

}  // namespace

std::string PageOf(const Json& report) {
    // Through its text, so that the page holds nothing but UTF-8.
    const Json clean = Json::parse(TextOf(report));
    return kHead + ("<h1>TVLejisCore: what only Windows can prove</h1>\n" + Summary(clean)) + Points(clean) +
           Machine(clean) + Runs(clean) + Failures(clean) + "</body>\n</html>\n";
}

}  // namespace kit
