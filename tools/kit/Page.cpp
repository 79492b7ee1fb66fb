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
        cell += " (expected under Wine: " + Text(entry["expectedUnderWine"]) + ")";
    } else if (underWine && entry["status"] == kFailed) {
        cell += " (as always under Wine)";
    }
    return cell + "</td>";
}

std::string Lines(const Json& texts) {
    std::string lines;
    for (const Json& text : texts) lines += (lines.empty() ? "" : "<br>") + Text(text);
    return lines;
}

std::string Summary(const Json& report) {
    std::string text = "<p>";
    for (const auto& [status, count] : report["counts"]["points"].items()) {
        text += (text == "<p>" ? "" : ", ") + std::to_string(count.get<int>()) + " " + status;
    }
    return text + " of " + std::to_string(report["points"].size()) + " points. " +
           (report["simulator"].is_null() ? "No simulator was named: what needs one was not run."
                                          : "Simulator: <code>" + Text(report["simulator"]) + "</code>.") +
           " " + Text(report["started"]) + " to " + Text(report["ended"]) + ", version " + Text(report["kit"]) +
           ".</p>\n" +
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
    return "<h2>Only Windows can prove</h2>\n<table>\n<tr><th></th><th>What</th><th>Status</th><th>Seen</th></tr>\n" +
           rows + "</table>\n";
}

std::string Machine(const Json& report) {
    std::string rows;
    for (const Json& fact : report["machine"]) {
        rows += "<tr><td>" + Text(fact["name"]) + "</td><td>" + Text(fact["text"]) + "</td></tr>\n";
    }
    return "<h2>This machine</h2>\n<table>\n" + rows + "</table>\n";
}

std::string NameOf(const Json& run) { return Text(run["bits"]) + " " + Text(run["name"]); }

std::string Runs(const Json& report) {
    std::string rows;
    for (const Json& run : report["runs"]) {
        const std::string seconds = std::to_string(static_cast<int>(run["seconds"].get<double>() + 0.5));
        rows += "<tr><td>" + NameOf(run) + "</td>" + Status(run, report["underWine"]) + "<td>" + Text(run["seen"]) +
                "</td><td>" + seconds + " s</td></tr>\n";
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
        if (run["output"] != "") text += "<pre>" + Text(run["output"]) + "</pre>\n";
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
