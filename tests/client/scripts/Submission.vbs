' A submission that cannot be sent: what the client learns, and that the service goes on working.
Option Explicit
Const TransientError = -1550879440
Const FatalError = -1550879439
Dim checks, failures, service, incident, warnings, number, description
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

' Keeps what Err tells of the submission.
Sub Submit()
    On Error Resume Next
    Set warnings = service.SubmitIncident(incident)
    number = Err.Number
    description = Err.Description
End Sub

Sub Withdraw()
    On Error Resume Next
    service.DeleteIncident incident
    number = Err.Number
    description = Err.Description
End Sub

Set service = WScript.CreateObject("TVLejisCore.LejisSubmissionWebService")
Set incident = WScript.CreateObject("TVLejisCore.LejisIncidentIndexCard")
Check "the address of a new service", service.URL, ""
Check "the schema check of a new service", service.ValidateSchema, False
service.Timeout = 30
Check "the time limit is kept", service.Timeout, 30

Submit
Check "an incomplete incident, number", number, FatalError
Check "an incomplete incident, text", description, "ID is required."

incident.ActivityID = "2007-0042"
incident.OrganizationORI = "PA0123456"
incident.OrganizationName = "SPRINGFIELD PD"
incident.SubmittedDate.Value = #3/10/2007#
Submit
Check "no address, number", number, TransientError
Check "no address, text", description, "Invalid URL ''"
Withdraw
Check "no address for a deletion, number", number, TransientError
Check "no address for a deletion, text", description, "Invalid URL ''"

service.URL = "no address"
Submit
Check "an invalid address, number", number, TransientError
Check "an invalid address, text", description, "Invalid URL 'no address'"

Set incident = Nothing
Submit
Check "no incident, number", number, 424
Check "no incident, text", description, "Object required"

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
