' The formatter's warnings and the validator's errors.
Option Explicit
Dim checks, failures, incident, person, formatter, validator, copy, warning, texts, result, refused
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

Set incident = WScript.CreateObject("TVLejisCore.LejisIncidentIndexCard")
Set formatter = WScript.CreateObject("TVLejisCore.LejisIncidentFormatter")
Set validator = WScript.CreateObject("TVLejisCore.LejisIncidentValidator")

Check "errors before a validation", validator.HasErrors, False
Check "an empty incident has errors", validator.Validate(incident), True
Check "the count of errors", validator.Errors.Count, 4
Check "the first error", validator.Errors(1), "ID is required."
Check "the second error", validator.Errors(2), "Submission date is missing."
Check "the third error", validator.Errors(3), _
    "Agency ORI number cannot be blank. Check Agency settings in Administration."
Check "the fourth error", validator.Errors(4), _
    "'' is not a valid ORI number. An ORI number must be 9 characters long. Check Agency settings in Administration."

On Error Resume Next
result = validator.Validate(Nothing)
refused = Err.Number <> 0
On Error Goto 0
Check "no incident is refused", refused, True
Check "a refusal empties the list", validator.Errors.Count, 0
Check "no errors after a refusal", validator.HasErrors, False

incident.ActivityID = "2007-0042"
incident.OrganizationORI = "PA0123456"
incident.OrganizationName = "SPRINGFIELD PD"
incident.SubmittedDate.Value = #3/10/2007#
Check "a complete incident has none", validator.Validate(incident), False
Check "the list is emptied", validator.Errors.Count, 0

Set copy = formatter.Format(incident)
Check "a clean incident gets no warning", formatter.HasWarnings, False
Check "the copy is another object", copy Is incident, False
Check "the copy holds the same", copy.ActivityID, "2007-0042"

Set person = WScript.CreateObject("TVLejisCore.LejisPersonIndexCard")
person.GivenName = "JOHN"
person.MiddleName = "Q"
person.SurName = "PUBLIC"
person.Involvement = "VICTIM"
person.RaceNCIC = "X"
person.Weight.Value = 1000
incident.PersonIndexCards.Add person
incident.Location.ZIP = "123456789"

Set copy = formatter.Format(incident)
texts = ""
For Each warning In formatter.Warnings
    texts = texts & Left(warning, 40) & "|"
Next
Check "the warnings", texts, "Main record: 9-digit ZIP code '123456789|JOHN Q PUBLIC (Victim): 'X' is not a val|" & _
    "JOHN Q PUBLIC (Victim): The specified we|"
Check "the shortened code", copy.Location.ZIP, "12345"
Check "the race of the copy", copy.PersonIndexCards(1).RaceNCIC, "U"
Check "the weight of the copy", IsNull(copy.PersonIndexCards(1).Weight.Value), True
Check "the incident itself", incident.Location.ZIP, "123456789"
Check "the person itself", person.RaceNCIC, "X"
Check "the unshaped incident is refused", validator.Validate(incident), True
Check "the shaped copy passes", validator.Validate(copy), False

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
