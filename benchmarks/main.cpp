// benchmarks [--json FILE] [SECTION...]
// Prints what the library's work costs, as ratios to what the platform needs for the same in the same run, with the
// targets. The exit code is 1 when a target is missed.
#include "FirstObjectProcess.h"
#include "PeakMemoryProcess.h"
#include "Report.h"
#include "Sections.h"

#include "platform/ComError.h"

#include <ole2.h>
#include <windows.h>

#include <cstdio>
#include <exception>
#include <string_view>

namespace benchmarks {
namespace {

struct Section {
    std::string_view name;
    std::vector<Figure> (*measure)();
};

constexpr Section kSections[] = {
    {"reading", Reading},
    {"reading-more", ReadingMore},
    {"completing", Completing},
    {"completing-more", CompletingMore},
    {"completing-blanks", CompletingBlanks},
    {"peak-memory", PeakMemory},
    {"walking", WalkingCards},
    {"held-bytes", HeldBytes},
    {"submission", Submission},
    {"many-persons", ManyPersons},
    {"ncic-lookup", NcicLookup},
    {"waiting", Waiting},
    {"first-object", FirstObject},
};

struct Arguments {
    std::string json;
    std::vector<std::string_view> sections;

    bool Wants(const Section& section) const {
        if (sections.empty()) return true;
        for (const std::string_view wanted : sections) {
            if (wanted == section.name) return true;
        }
        return false;
    }
};

Arguments Read(int count, char** texts) {
    Arguments arguments;
    for (int index = 1; index < count; ++index) {
        const std::string_view text = texts[index];
        if (text == "--json" && index + 1 < count) {
            arguments.json = texts[++index];
        } else {
            arguments.sections.push_back(text);
        }
    }
    return arguments;
}

int Run(const Arguments& arguments) {
    std::vector<Figure> figures;
    PrintHeading();
    for (const Section& section : kSections) {
        if (!arguments.Wants(section)) continue;
        for (const Figure& figure : section.measure()) {
            Print(figure);
            figures.push_back(figure);
        }
    }
    if (!arguments.json.empty()) WriteJson(figures, arguments.json);
    size_t missed = 0;
    for (const Figure& figure : figures) missed += figure.Holds() ? 0 : 1;
    std::printf("\n%zu figures, %zu missed their target\n", figures.size(), missed);
    return missed == 0 && !figures.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace benchmarks

int main(int count, char** texts) {
    if (FAILED(OleInitialize(nullptr))) return EXIT_FAILURE;
    if (const auto code = benchmarks::FirstObjectCode(count, texts)) return *code;
    if (const auto code = benchmarks::PeakMemoryCode(count, texts)) return *code;
    int code = EXIT_FAILURE;
    try {
        code = benchmarks::Run(benchmarks::Read(count, texts));
    } catch (const platform::ComError& error) {
        std::fprintf(stderr, "%ls\n", error.Description().c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    OleUninitialize();
    return code;
}
