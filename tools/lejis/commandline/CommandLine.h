// What the user asks for.
#pragma once

#include "commandline/Command.h"
#include "search/SearchOption.h"

#include <optional>
#include <string>
#include <vector>

namespace lejis_client {

struct CommandLine {
    // Raises a UsageError.
    static CommandLine Parse(std::vector<std::wstring> arguments);
    // For a command line that makes no sense too.
    static bool AsksForJson(const std::vector<std::wstring>& arguments);

    // Whether an incident is named by its identifiers instead of a file.
    bool NamesIncident() const { return ori || id || submitted || organization; }

    // Null when help or the version is wanted and no command was named.
    const Command* command = nullptr;
    bool help = false;
    bool version = false;
    bool validateSchema = false;
    bool xml = false;
    bool csv = false;
    bool recurse = false;
    bool quiet = false;
    bool verbose = false;
    // Whether to send by a library that is made for no true LEJIS.
    bool force = false;
    // Whether the answer is for a program.
    bool json = false;
    std::optional<std::wstring> url;
    std::optional<std::wstring> searchUrl;
    std::optional<std::wstring> ori;
    std::optional<std::wstring> id;
    std::optional<std::wstring> submitted;
    std::optional<std::wstring> organization;
    std::optional<std::wstring> user;
    std::optional<std::wstring> wait;
    std::optional<std::wstring> ledger;
    std::optional<std::wstring> jobs;
    std::optional<std::wstring> retry;
    std::optional<std::wstring> stopAfter;
    std::optional<std::wstring> rate;
    std::optional<std::wstring> timeout;
    SearchValues search;
    std::vector<std::wstring> files;

private:
    // What comes after the command.
    void TakeArguments(const std::vector<std::wstring>& arguments);
};

}  // namespace lejis_client
