// What --help prints.
#pragma once

namespace lejis_client {

inline constexpr wchar_t kGeneralHelp[] =
    LR"(lejis checks incidents, submits them to LEJIS and withdraws them, through the
registered TVLejisCore.

  lejis check FILE...               says what LEJIS would be sent; sends nothing
  lejis submit FILE... --url URL    submits incidents
  lejis delete FILE... --url URL    withdraws incidents
  lejis COMMAND --help              tells more
  lejis --version                   names the TVLejisCore that is used

A FILE is one incident card in XML, or a pattern such as incidents\*.xml.

Exit codes: 0 all done; 1 something was refused or could not be read; 2 something
has to be tried again later; 64 the command line makes no sense.
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

}  // namespace lejis_client
