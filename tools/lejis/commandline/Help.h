// What --help prints.
#pragma once

namespace lejis_client {

inline constexpr wchar_t kGeneralHelp[] =
    LR"(lejis checks incidents, submits them to LEJIS, withdraws them and searches for
them, through the registered TVLejisCore.

  lejis check FILE...               says what LEJIS would not take; sends nothing
  lejis show FILE                   prints the request that would be sent
  lejis submit FILE... --url URL    submits incidents
  lejis delete FILE... --url URL    withdraws incidents
  lejis search CRITERION... --user JNETID --url URL
                                    searches for incidents
  lejis ledger FILE                 sums up what became of submitted incidents
  lejis doctor [--url URL]          looks for what stands in the way of all this
  lejis help COMMAND                tells more, with examples
  lejis --version                   names this program and the library that it uses

With every command:

  --json                            print one JSON document, for programs

A FILE is one incident card in XML (docs/incident-format.md tells its elements), a
pattern such as incidents\*.xml, @LIST for the names in a text file, or - for standard
input; with --recurse it may be a folder. A URL is the address of a service of the
LEJIS Interface; ask who looks after it. A value may follow its option after a blank or
an equals sign; what follows -- is a FILE. With --quiet (-q) only what did not go
through is told, with --verbose (-v) every try. What is left out is taken from the
environment: LEJIS_URL, LEJIS_SEARCH_URL and LEJIS_USER.

The first steps, from an incident in a file to the index:

  lejis doctor --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis check incident.xml
  lejis submit incident.xml ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission

Exit codes:

    0   all done
    1   something was refused, could not be read, or the library is not there; or the
        doctor found what does not pass by itself: the same again would end the same
    2   something is to be tried again, or nobody knows what LEJIS made of it
    3   both of these in one run
   64   the command line makes no sense
  130   Ctrl-C ended it
)";

inline constexpr wchar_t kCheckHelp[] =
    LR"(lejis check FILE... [--recurse] [--jobs N] [--json]

Shapes each incident to the limits of LEJIS and checks the result. Nothing is sent.

  ! marks an error: LEJIS would not get the incident until it is corrected.
  • marks a warning: what would be shortened, replaced or left out. One that begins
    with a line number names what is not read of the file: an element or attribute
    that the library does not know there, often a misspelt one, or a value that is no
    date, number or flag. It does not make an incident unfit; correct it all the
    same, or LEJIS will not get it.

Examples:

  lejis check incident.xml
  lejis check incidents\*.xml
  lejis check incidents\*.xml --json > checked.json

Exit codes: 0 all are fit for submission; 1 at least one is not, or is no incident.
)";

inline constexpr wchar_t kShowHelp[] =
    LR"(lejis show FILE [--json]

Prints the request that lejis submit would send for an incident: the SOAP envelope
with the incident within the limits of LEJIS. Nothing is sent. The line breaks between
the elements are for reading; the request itself has none. Its encoding is UTF-8.

Errors and warnings, as lejis check tells them, go to the standard error.

  --json              print one JSON document, for programs

Examples:

  lejis show incident.xml
  lejis show incident.xml > request.xml

Exit codes: 0 this would be sent; 1 it would be refused first, or is no incident.
)";

inline constexpr wchar_t kSubmitHelp[] =
    LR"(lejis submit FILE... --url URL [OPTION...]

Submits each incident to LEJIS. An incident that LEJIS has already is replaced.

  --url URL           address of the submission service of the LEJIS Interface
  --validate-schema   check each request against the service's own schema first
  --ledger FILE       write down what became of each incident, and leave out what
                      an earlier run with this ledger has submitted
  --recurse           take the files in the folders below too
  --jobs N            submit N incidents at a time, up to 32; 1 if left out
  --retry N           try up to N times again what may pass, with growing pauses
  --stop-after N      stop when the network or the server has failed N times in a
                      row; 10 if left out
  --rate N            begin no more than N a second
  --timeout SECONDS   how long to wait for LEJIS with one incident; 300 if left out
  --force             send also by a library that is made for lejis.example, which
                      otherwise talks to this machine alone
  --json              print one JSON object a line, for programs

Each incident ends as

  submitted   LEJIS has it. • marks what was shortened, replaced or left out; with a
              line number, what was not read of the file.
  refused     LEJIS or the checks said no; lejis check tells all errors.
  not sent    Nothing reached LEJIS.
  unknown     It was sent, and nobody knows what LEJIS made of it. Send it again:
              LEJIS knows an incident by agency and number. Or look it up.

Ctrl-C ends the run when the incidents under way are done; a second one, at once.

Examples:

  lejis submit incident.xml ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis submit incidents --recurse --jobs 4 --retry 5 --ledger night.ledger ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis ledger night.ledger

Exit codes: 0 all submitted; 1 something was refused or could not be read; 2 something
is to be tried again, or is unknown; 3 both; 130 Ctrl-C ended it.
)";

inline constexpr wchar_t kDeleteHelp[] =
    LR"(lejis delete FILE... --url URL [OPTION...]
lejis delete --ori ORI --id ID --submitted YYYY-MM-DD [--organization NAME]
             --url URL [--force] [--json]

Withdraws incidents from LEJIS. Of a file only the identifiers are used.

  --ori ORI               the agency's ORI
  --id ID                 the agency's incident number
  --submitted YYYY-MM-DD  the day on which the incident was submitted
  --organization NAME     the agency's name
  --url URL               address of the submission service of the LEJIS Interface
  --force                 send also by a library that is made for lejis.example,
                          which otherwise talks to this machine alone
  --json                  print one JSON object a line, for programs

  --ledger, --recurse, --jobs, --retry, --stop-after, --rate and --timeout are those of
  lejis submit.

Examples:

  lejis delete incident.xml ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis delete --ori PA0990100 --id 2024-000123 --submitted 2024-03-09 ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission

Exit codes: 0 all withdrawn; 1 something was refused or could not be read; 2 something
is to be tried again, or is unknown; 3 both; 130 Ctrl-C ended it.
)";

inline constexpr wchar_t kLedgerHelp[] =
    LR"(lejis ledger FILE [--json]

Sums up the ledger of lejis submit --ledger or lejis delete --ledger: how many tries
there were, what became of each incident in the end, and what did not go through,
grouped by message.

Example:

  lejis ledger night.ledger

Exit codes: as of the runs together. 0 all went through; 1 something was refused; 2
something is to be tried again, or is unknown; 3 both.
)";

inline constexpr wchar_t kSearchHelp[] =
    LR"(lejis search CRITERION... --user JNETID --url URL [OPTION...]

Searches LEJIS for incidents to which all criteria apply.

  Person     --surname --given --middle --dob YYYY-MM-DD --ssn --license
             --license-state --sex --race --height --weight
  Vehicle    --vin --plate --plate-state --vehicle-make --vehicle-model
             --vehicle-year --vehicle-style --vehicle-color
  Property   --serial --property-category --property-make --property-model
  Place      --street-full --street --city --state --zip
  Words      --text

Each takes a value. States, sex and race are NCIC codes; a height is written in feet
and inches, as 510, a weight in pounds. LEJIS wants a serial number for property.

  --user JNETID       the JNET User ID of the user who searches
  --url URL           address of the search service of the LEJIS Interface
  --max N             get no more than N incidents
  --exclude-ori ORI   leave an agency out; may be given more than once
  --validate-schema   check the request against the service's own schema first
  --force             send also by a library that is made for lejis.example, which
                      otherwise talks to this machine alone
  --xml               print the incident cards as one XML document
  --csv               print a table for spreadsheets, one row a person
  --json              print what was found as one JSON document
  --wait SECONDS      how long to wait for the answer, once the search is sent;
                      120 if left out

Examples:

  lejis search --surname PUBLIC --dob 1970-01-31 --user jdoe ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/search
  lejis search --plate ABC1234 --plate-state PA --max 10 --json --user jdoe ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/search

Exit codes: 0 found, or nothing found; 1 LEJIS refused the search or the user; 2 the
network or the server failed, or no answer came in time; 130 Ctrl-C ended it.
)";

inline constexpr wchar_t kDoctorHelp[] =
    LR"(lejis doctor [--url URL] [--search-url URL] [--timeout SECONDS] [--json]

Looks at everything on the road to LEJIS and says what to do about what is wrong. It
sends no incident and changes nothing. Looked at are

  - the library: is it registered, for which programs, in which version; can every
    class be created; for which LEJIS host is it made
  - the proxy that this user's programs go through
  - with --url: the submission service. Can its server be reached, is its WSDL that of
    a submission service and of the library's LEJIS host, does a sample request pass
    its schemas, and does a spoilt one fail them
  - with --search-url: the search service likewise
  - the debug dumps: are they on for this user, where do they go, are any left

  --url URL           address of the submission service of the LEJIS Interface
  --search-url URL    address of the search service of the LEJIS Interface
  --timeout SECONDS   how long to wait for what each line tells; 10 if left out
  --json              print one JSON document, for programs

Each line begins with ok, warning, failed or skipped; the line below says what to do.

Examples:

  lejis doctor
  lejis doctor --url http://lejis-interface:8080/lejis-core-Rev01/services/submission

Exit codes: 0 nothing has failed, though there may be warnings; 1 something has
failed that does not pass by itself; 2 something has failed that may pass: the
network, the server, or a time limit; 3 both.
)";

}  // namespace lejis_client
