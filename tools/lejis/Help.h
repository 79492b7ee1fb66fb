// What --help prints.
#pragma once

namespace lejis_client {

inline constexpr wchar_t kGeneralHelp[] =
    LR"(lejis checks incidents, submits them to LEJIS, withdraws them and searches for
them, through the registered TVLejisCore.

  lejis check FILE...               says what LEJIS would be sent; sends nothing
  lejis submit FILE... --url URL    submits incidents
  lejis delete FILE... --url URL    withdraws incidents
  lejis search CRITERION... --user JNETID --url URL
                                    searches for incidents
  lejis COMMAND --help              tells more
  lejis --version                   names the TVLejisCore that is used

A FILE is one incident card in XML, or a pattern such as incidents\*.xml.

Exit codes: 0 all done; 1 something was refused or could not be read; 2 something
has to be tried again later; 64 the command line makes no sense; 130 Ctrl-C ended
a search.
)";

inline constexpr wchar_t kCheckHelp[] =
    LR"(lejis check FILE...

Shapes each incident to the limits of LEJIS and checks the result. Nothing is sent.

  ! marks an error: LEJIS would not get the incident until it is corrected.
  • marks a warning: what would be shortened, replaced or left out.

Exit codes: 0 all are fit for submission; 1 at least one is not, or is no incident.
)";

inline constexpr wchar_t kSubmitHelp[] =
    LR"(lejis submit FILE... --url URL [--validate-schema]

Submits each incident to LEJIS. An incident that LEJIS has already is replaced.

  --url URL           address of the submission service of the LEJIS Interface
  --validate-schema   check each request against the service's own schema first

  ! marks why an incident was not submitted; lejis check tells all its errors.
  • marks a warning: what was shortened, replaced or left out.

Exit codes: 0 all submitted; 1 something was refused; 2 something has to be tried
again later.
)";

inline constexpr wchar_t kDeleteHelp[] =
    LR"(lejis delete FILE... --url URL
lejis delete --ori ORI --id ID --submitted YYYY-MM-DD [--organization NAME] --url URL

Withdraws incidents from LEJIS. Of a file only the identifiers are used.

  --ori ORI               the agency's ORI
  --id ID                 the agency's incident number
  --submitted YYYY-MM-DD  the day on which the incident was submitted
  --organization NAME     the agency's name
  --url URL               address of the submission service of the LEJIS Interface

Exit codes: 0 all withdrawn; 1 something was refused; 2 something has to be tried
again later.
)";

inline constexpr wchar_t kSearchHelp[] =
    LR"(lejis search CRITERION... --user JNETID --url URL [OPTION...]

Searches LEJIS for incidents to which all criteria apply.

  Person     --surname --given --middle --dob YYYY-MM-DD --ssn --licence
             --licence-state --sex --race --height --weight
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
  --xml               print the incident cards as one XML document
  --wait SECONDS      how long to wait for the answer, once the search is sent;
                      120 if left out

Exit codes: 0 found, or nothing found; 1 LEJIS refused the search or the user; 2 the
network or the server failed, or no answer came in time; 130 Ctrl-C ended it.
)";

}  // namespace lejis_client
