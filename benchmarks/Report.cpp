#include "Report.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace benchmarks {
namespace {

const char* Verdict(const Figure& figure) {
    if (!figure.target) return "";
    return figure.Holds() ? "holds" : "MISSED";
}

std::string Target(const Figure& figure) {
    if (!figure.target) return "";
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", *figure.target);
    return text;
}

constexpr int kBitness = sizeof(void*) * 8;

}  // namespace

void PrintHeading() {
    std::printf("x%s: medians of the ratios of at least %d rounds, work and floor in turn\n\n",
                kBitness == 32 ? "86" : "64", kRounds);
    std::printf("%-62s %-44s %8s %15s %7s\n", "work", "floor", "ratio", "lowest-highest", "target");
}

void Print(const Figure& figure) {
    std::printf("%-62s %-44s %8.3f %7.3f-%-7.3f %7s %s\n", figure.work.c_str(), figure.floor.c_str(), figure.ratio,
                figure.lowest, figure.highest, Target(figure).c_str(), Verdict(figure));
    std::fflush(stdout);
}

void WriteJson(const std::vector<Figure>& figures, const std::string& path) {
    std::ofstream file(path);
    file << "{\"bits\": " << kBitness << ", \"figures\": [";
    const char* separator = "\n";
    for (const Figure& figure : figures) {
        file << separator << "  {\"work\": \"" << figure.work << "\", \"floor\": \"" << figure.floor
             << "\", \"workMedian\": " << figure.workMedian << ", \"floorMedian\": " << figure.floorMedian
             << ", \"ratio\": " << figure.ratio << ", \"lowest\": " << figure.lowest
             << ", \"highest\": " << figure.highest;
        if (figure.target) file << ", \"target\": " << *figure.target;
        file << ", \"holds\": " << (figure.Holds() ? "true" : "false") << "}";
        separator = ",\n";
    }
    file << "\n]}\n";
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace benchmarks
