#include "Judge.h"

#include "Files.h"
#include "text/Utf8.h"
#include "text/WindowsText.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <regex>
#include <stdexcept>

namespace kit {
namespace {

using Json = nlohmann::json;

constexpr DWORD kScriptSucceeded = 7;
constexpr wchar_t kSays[] = L"says ";

Result Failure(std::string seen, const Ended& ended) { return {kFailed, std::move(seen), {}, ended.output}; }

std::string CodeText(const Ended& ended) {
    if (ended.code < 0x10000) return "ended with code " + std::to_string(ended.code);
    return "ended with code " + lejis_client::Utf8(lejis_client::Hexadecimal(static_cast<HRESULT>(ended.code)));
}

// Nothing for a program that ended by itself.
std::optional<Result> BrokenOff(const Ended& ended) {
    if (ended.startError) {
        return Failure("cannot be started: " + lejis_client::Utf8(lejis_client::SystemMessage(ended.startError)),
                       ended);
    }
    if (!ended.withinItsTime) {
        return Failure("did not end within " + std::to_string(static_cast<int>(ended.seconds)) + " s", ended);
    }
    return {};
}

std::string TextOf(const Json& failures) {
    std::string text;
    for (const Json& failure : failures) text += failure.at("failure").get<std::string>() + "\n";
    return text;
}

struct Count {
    int run = 0;
    int skipped = 0;
    std::vector<FailedTest> failed;
};

void CountTest(const Json& test, Count& count) {
    if (test.at("status") != "RUN") return;
    if (test.at("result") == "SKIPPED") {
        ++count.skipped;
        return;
    }
    ++count.run;
    if (!test.contains("failures")) return;
    count.failed.push_back({test.at("classname").get<std::string>() + "." + test.at("name").get<std::string>(),
                            TextOf(test.at("failures"))});
}

Count CountTests(const Json& results) {
    Count count;
    for (const Json& suite : results.at("testsuites")) {
        for (const Json& test : suite.at("testsuite")) CountTest(test, count);
    }
    return count;
}

Result JudgeCount(const Count& count, const Ended& ended) {
    const std::string skipped = count.skipped ? ", " + std::to_string(count.skipped) + " skipped" : "";
    const std::string total = std::to_string(count.run);
    if (!count.failed.empty()) {
        const std::string seen = std::to_string(count.failed.size()) + " of " + total + " tests failed" + skipped;
        return {kFailed, seen, count.failed};
    }
    if (ended.code != 0) return Failure(CodeText(ended) + " after its tests", ended);
    if (count.run == 0) return Failure("ran no test", ended);
    return {kPassed, total + " tests passed" + skipped};
}

Result JudgeTests(const Ended& ended, const std::wstring& resultsPath) {
    if (!Exists(resultsPath)) return Failure(CodeText(ended) + " and left no results", ended);
    try {
        return JudgeCount(CountTests(Json::parse(ContentOf(resultsPath))), ended);
    } catch (const Json::exception&) {
        return Failure(CodeText(ended) + " and left results that cannot be read", ended);
    }
}

Result JudgeScript(const std::wstring& bits, const Ended& ended) {
    static const std::regex kMarker(R"(END OF SCRIPT (\d+) checks on (\w+)\s*$)");
    std::smatch marker;
    if (!std::regex_search(ended.output, marker, kMarker))
        return Failure(CodeText(ended) + " without its end mark", ended);
    const std::string processor = bits == L"x64" ? "AMD64" : "x86";
    if (marker[2] != processor) return Failure("ran on " + marker[2].str() + ", not on " + processor, ended);
    if (marker[1] == "0") return Failure(CodeText(ended) + ", but made no check", ended);
    if (ended.code != kScriptSucceeded) return Failure(CodeText(ended), ended);
    return {kPassed, marker[1].str() + " checks passed"};
}

Result JudgeCode(const Ended& ended) {
    if (ended.code != 0) return Failure(CodeText(ended), ended);
    return {kPassed, "ended with code 0"};
}

Result JudgeText(const std::string& expected, const Ended& ended) {
    if (ended.code != 0) return Failure(CodeText(ended), ended);
    if (ended.output.find(expected) == std::string::npos) return Failure("did not say \"" + expected + "\"", ended);
    return {kPassed, "said \"" + expected + "\""};
}

Result JudgeEnded(const std::wstring& judge, const std::wstring& bits, const Ended& ended,
                  const std::wstring& resultsPath) {
    if (judge == L"tests") return JudgeTests(ended, resultsPath);
    if (judge == L"script") return JudgeScript(bits, ended);
    if (judge == L"code 0") return JudgeCode(ended);
    if (judge.starts_with(kSays)) return JudgeText(lejis_client::Utf8(judge.substr(std::size(kSays) - 1)), ended);
    throw std::runtime_error("The kit knows no judge " + lejis_client::Utf8(judge));
}

}  // namespace

Result Judge(const std::wstring& judge, const std::wstring& bits, const Ended& ended, const std::wstring& resultsPath) {
    Result result = BrokenOff(ended).value_or(Result{});
    if (result.status.empty()) result = JudgeEnded(judge, bits, ended, resultsPath);
    result.seconds = ended.seconds;
    return result;
}

}  // namespace kit
