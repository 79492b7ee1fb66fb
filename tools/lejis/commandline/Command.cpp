#include "commandline/Command.h"

#include <limits>

namespace lejis_client {
namespace {

constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

constexpr Command kCommands[] = {
    {.name = L"check",
     .action = kCheckFiles,
     .usage = L"FILE...",
     .otherUsage = nullptr,
     .summary = L"says what LEJIS would not take; sends nothing",
     .operand = Operand::kFile,
     .leastOperands = 1,
     .mostOperands = kAnyNumber,
     .operation = &kCheck,
     .about = LR"(Shapes each incident to the limits of LEJIS and checks the result. Nothing is sent.

  ! marks an error: LEJIS would not get the incident until it is corrected.
  • marks a warning: what would be shortened, replaced or left out. One that begins
    with a line number names what is not read of the file: an element or attribute
    that the library does not know there, often a misspelt one, or a value that is no
    date, number or flag. It does not make an incident unfit; correct it all the
    same, or LEJIS will not get it.
)",
     .notes = L"",
     .examples = LR"(  lejis check incident.xml
  lejis check incidents\*.xml
  lejis check incidents\*.xml --json > checked.json
)",
     .exitCodes = L"0 all are fit for submission; 1 at least one is not, or is not an incident; 2 one could not be "
                  L"checked to the end, try again; 3 both; 130 Ctrl-C ended it."},

    {.name = L"show",
     .action = kShowRequest,
     .usage = L"FILE",
     .otherUsage = nullptr,
     .summary = L"prints the request that would be sent",
     .operand = Operand::kFile,
     .leastOperands = 1,
     .mostOperands = 1,
     .operation = nullptr,
     .about = LR"(Prints the request that lejis submit would send for an incident: the SOAP envelope
with the incident within the limits of LEJIS. Nothing is sent. The line breaks between
the elements are for reading; the request itself has none. Its encoding is UTF-8.

Errors and warnings, as lejis check tells them, go to the standard error.
)",
     .notes = L"",
     .examples = LR"(  lejis show incident.xml
  lejis show incident.xml > request.xml
)",
     .exitCodes = L"0 this would be sent; 1 it would be refused first, or is not an incident; 130 Ctrl-C ended it."},

    {.name = L"submit",
     .action = kSubmitFiles,
     .usage = L"FILE... --url URL",
     .otherUsage = nullptr,
     .summary = L"submits incidents",
     .operand = Operand::kFile,
     .leastOperands = 1,
     .mostOperands = kAnyNumber,
     .operation = &kSubmit,
     .about = LR"(Submits each incident to LEJIS. An incident that LEJIS has already is replaced.
)",
     .notes = LR"(Each incident ends as

  submitted   LEJIS has it. • marks what was shortened, replaced or left out; with a
              line number, what was not read of the file.
  refused     LEJIS or the checks said no; lejis check tells all errors.
  not sent    Nothing reached LEJIS.
  unknown     It was sent, and nobody knows what LEJIS made of it. Send it again:
              LEJIS knows an incident by agency and number. Or look it up.

Ctrl-C ends the run when the incidents under way are done; a second one, at once.
)",
     .examples = LR"(  lejis submit incident.xml ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis submit incidents --recurse --jobs 4 --retry 5 --ledger night.ledger ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis ledger night.ledger
)",
     .exitCodes = L"0 all submitted; 1 something was refused or could not be read; 2 something "
                  L"is to be tried again, or is unknown; 3 both; 130 Ctrl-C ended it."},

    {.name = L"delete",
     .action = kDeleteIncidents,
     .usage = L"FILE... --url URL",
     .otherUsage = L"--ori ORI --id ID --submitted YYYY-MM-DD --url URL",
     .summary = L"withdraws incidents",
     .operand = Operand::kFile,
     .leastOperands = 0,
     .mostOperands = kAnyNumber,
     .operation = &kDelete,
     .about = LR"(Withdraws incidents from LEJIS. Of a file only the agency's ORI and name, the incident
number and the date of submission are used.
)",
     .notes = LR"(Ctrl-C ends the run when the incidents under way are done; a second one, at once.
)",
     .examples = LR"(  lejis delete incident.xml ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis delete --ori PA0990100 --id 2024-000123 --submitted 2024-03-09 ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
)",
     .exitCodes = L"0 all withdrawn; 1 something was refused or could not be read; 2 something "
                  L"is to be tried again, or is unknown; 3 both; 130 Ctrl-C ended it."},

    {.name = L"search",
     .action = kSearchIndex,
     .usage = L"CRITERION... --user JNETID --url URL",
     .otherUsage = nullptr,
     .summary = L"searches for incidents",
     .operand = Operand::kNone,
     .leastOperands = 0,
     .mostOperands = 0,
     .operation = nullptr,
     .about = LR"(Searches LEJIS for incidents to which all criteria apply. States, sex and race are
NCIC codes; a height is written in feet and inches, as 510, a weight in pounds. LEJIS
wants a serial number for property.
)",
     .notes = L"",
     .examples = LR"(  lejis search --surname PUBLIC --dob 1970-01-31 --user jdoe ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/search
  lejis search --plate ABC1234 --plate-state PA --max 10 --json --user jdoe ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/search
)",
     .exitCodes = L"0 found, or nothing found; 1 LEJIS refused the search or the user; 2 the "
                  L"network or the server failed, or no answer came in time; 130 Ctrl-C ended it."},

    {.name = L"ledger",
     .action = kSumUpLedger,
     .usage = L"FILE",
     .otherUsage = nullptr,
     .summary = L"sums up what became of submitted incidents",
     .operand = Operand::kFile,
     .leastOperands = 1,
     .mostOperands = 1,
     .operation = nullptr,
     .about = LR"(Sums up the ledger of lejis submit --ledger or lejis delete --ledger: how many tries
there were, what became of each incident in the end, and what did not go through,
grouped by message.
)",
     .notes = L"",
     .examples = LR"(  lejis ledger night.ledger
)",
     .exitCodes = L"as of the runs together. 0 all went through; 1 something was refused; 2 "
                  L"something is to be tried again, or is unknown; 3 both."},

    {.name = L"doctor",
     .action = kDiagnose,
     .usage = L"[--url URL]",
     .otherUsage = nullptr,
     .summary = L"finds out why submissions and searches fail",
     .operand = Operand::kNone,
     .leastOperands = 0,
     .mostOperands = 0,
     .operation = nullptr,
     .about = LR"(Looks at everything on the road to LEJIS and says what to do about what is wrong. It
sends no incident and changes nothing. Looked at are

  - the library: is it registered, for which programs, in which version; can every
    class be created; for which LEJIS host is it made
  - the variables of the environment that stand in for options, and whether they count
  - the proxy that this user's programs go through
  - with --url: the submission service. Can its server be reached, is its WSDL that of
    a submission service and of the library's LEJIS host, does a sample request pass
    its schemas, and does a spoilt one fail them
  - with --search-url: the search service likewise
  - the debug dumps: are they on for this user, where do they go, are any left
)",
     .notes = LR"(Each line begins with ok, warning, failed or skipped; the line below says what to do.
)",
     .examples = LR"(  lejis doctor
  lejis doctor --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
)",
     .exitCodes = L"0 nothing has failed, though there may be warnings; 1 something has failed that does not "
                  L"pass by itself; 2 something has failed that may pass: the network, the server, or a time limit; "
                  L"3 both; 130 Ctrl-C ended it."},

    {.name = L"completion",
     .action = kPrintCompletion,
     .usage = L"SHELL",
     .otherUsage = nullptr,
     .summary = L"prints completion for bash or PowerShell",
     .operand = Operand::kShell,
     .leastOperands = 1,
     .mostOperands = 1,
     .operation = nullptr,
     .about = LR"(Prints a script with which a shell completes the commands and options of lejis when
Tab is pressed. SHELL is bash or powershell; the command prompt has no such scripts.

  PowerShell: put this line into the file that $PROFILE names.

      lejis completion powershell | Out-String | Invoke-Expression

  bash: put this line into ~/.bashrc.

      source <(lejis completion bash)
)",
     .notes = L"",
     .examples = LR"(  lejis completion powershell
  lejis completion bash > lejis-completion.bash
)",
     .exitCodes = L"0 printed."},

    {.name = L"help",
     .action = kPrintHelp,
     .usage = L"[COMMAND]",
     .otherUsage = nullptr,
     .summary = L"tells more, with examples",
     .operand = Operand::kCommand,
     .leastOperands = 0,
     .mostOperands = 1,
     .operation = nullptr,
     .about = LR"(Prints the help of a command, as lejis COMMAND --help does, or the general one.
)",
     .notes = L"",
     .examples = LR"(  lejis help submit
  lejis help
)",
     .exitCodes = L"0 printed."},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(std::wstring_view name) {
    for (const Command& command : kCommands) {
        if (command.name == name) return &command;
    }
    return nullptr;
}

std::vector<std::wstring_view> CommandNames() {
    std::vector<std::wstring_view> names;
    for (const Command& command : kCommands) names.push_back(command.name);
    return names;
}

}  // namespace lejis_client
