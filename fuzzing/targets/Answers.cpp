// Answers to searches, changed in their structure, their characters and their bytes: what a client learns must not
// depend on whether the library reads an answer from its bytes or from MSXML's document.
#include "engine/Finding.h"
#include "services/PlainReading.h"
#include "support/Printing.h"
#include "targets/Targets.h"
#include "unit_support/BothReadings.h"
#include "unit_support/PlainReadingSwitch.h"
#include "world/Documents.h"
#include "world/World.h"
#include "xml/Mutation.h"

#include <algorithm>
#include <cstdio>

using namespace std::string_literals;

namespace fuzzing {
namespace {

const std::string kPieces[] = {
    "\0"s,
    "\x01",
    "\x0B",
    "\x1F",
    "\x7F",
    "\t",
    "\r",
    "\n",
    " ",
    "  ",
    "\xC0\x80",
    "\xC1\xA1",
    "\x80",
    "\xC3",
    "\xC3\x9F",
    "\xE2\x82",
    "\xFF",
    "\xFE",
    "\xED\xA0\x80",
    "\xEF\xBF\xBE",
    "\xEF\xBB\xBF",
    "\xF4\x90\x80\x80",
    "\xF0\x9F\x98\x80",
    "<",
    ">",
    "&",
    "]]>",
    "'",
    "\"",
    "/",
    "=",
    ":",
    "&#32;",
    "&#10;",
    "&#x110000;",
    "&#x20AC;",
    "&quot;",
    "&nbsp;",
    "&lt",
    "<x/>",
    "<j:ID>1</j:ID>",
    "<!---->",
    "<?x?>",
    "<![CDATA[]]>",
    "<!DOCTYPE x>",
    " xmlns=''",
    " xmlns='http://www.it.ojp.gov/jxdm/3.0.3'",
    " xmlns:j='urn:k'",
    " a='1'",
    " a='1' a='2'",
    " xml:space='preserve'",
    " j:a='1'",
    " z:a='1'",
    "</soap:Body>",
    "<soap:Body>",
    "</j:CaveatText><j:CaveatText>",
};

constexpr const wchar_t* kContentTypes[] = {L"text/xml", L"application/soap+xml", L"text/html", L""};
constexpr long kOtherStatuses[] = {202, 403, 500, 502};

void ChangeBytes(std::string& bytes, Case& input) {
    const size_t at = input.Below(bytes.size() + 1);
    switch (input.Below(5)) {
        case 0:
            bytes.insert(at, input.Pick(kPieces));
            break;
        case 1:
            bytes.erase(at, 1 + input.Below(3));
            break;
        case 2:
            if (at < bytes.size()) bytes[at] = static_cast<char>(input.Bits());
            break;
        case 3:
            // Where attributes stand.
            bytes.insert(std::min(bytes.find('>', at), bytes.size()), input.Pick(kPieces));
            break;
        default:
            // Beside a tag, where most pieces mean something.
            bytes.insert(std::min(bytes.find('<', at), bytes.size()), input.Pick(kPieces));
    }
}

support::Script AnyScript(std::string bytes, Case& input) {
    for (uint32_t left = input.Below(3); left > 0; --left) ChangeBytes(bytes, input);
    if (input.OneIn(20)) bytes.resize(input.Below(bytes.size() + 1));
    support::Script script;
    // As MSXML takes it from the bytes, whatever they are.
    script.responseText = support::Wide(bytes);
    script.responseBody = std::move(bytes);
    script.status = input.OneIn(20) ? input.Pick(kOtherStatuses) : 200;
    if (input.OneIn(10)) script.contentType = input.Pick(kContentTypes);
    return script;
}

bool IsReadPlainly(const support::Script& script) {
    const support::PlainReadingSwitch on(true);
    const support::ScriptedHttp http(script);
    return lejis::TryPlainReading(platform::HttpRequest::Create()) != nullptr;
}

class AnswersTarget final : public Target {
public:
    // So that it shows when hardly any answer is read plainly.
    ~AnswersTarget() override { std::printf("answers: %lu of %lu were read from their bytes\n", plain_, all_); }

    void Run(Case& input) override {
        const World world(input);
        const std::string answer = support::Utf8(AnyAnswer(input));
        // To bend an answer costs more than to read one, so each is bent once and changed a few times.
        for (uint32_t left = 1 + input.Below(16); left > 0; --left) Compare(AnyScript(answer, input), input);
    }

private:
    void Compare(const support::Script& script, Case& input) {
        PardonMeasures(script.responseText, input);
        input.Trace(
            [&] { return std::to_wstring(script.status) + L" " + script.contentType + L"\n" + script.responseText; });
        const bool isPlain = IsReadPlainly(script);
        ++all_;
        plain_ += isPlain ? 1 : 0;
        // What is not read plainly is read from the document; now and then that is looked at as well.
        if (!isPlain && !input.OneIn(16)) return;
        const support::ObservedSearch plain = support::ObserveSearchWith(script, true);
        const support::ObservedSearch document = support::ObserveSearchWith(script, false);
        input.Trace([&] { return Shown(L"from its bytes:", plain) + Shown(L"from its document:", document); });
        if (!plain.SameAs(document)) throw Finding{"a client can tell which way an answer was read"};
    }

    static std::wstring Shown(std::wstring text, const support::ObservedSearch& seen) {
        for (const std::wstring& event : seen.events) text += L"\n" + event;
        return text + L"\n" + seen.results + L"\n";
    }

    unsigned long plain_ = 0;
    unsigned long all_ = 0;
};

}  // namespace

std::unique_ptr<Target> CreateAnswers() { return std::make_unique<AnswersTarget>(); }

}  // namespace fuzzing
