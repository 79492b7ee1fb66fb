' cscript //nologo submit.vbs URL
' Submits one incident to LEJIS and says what became of it.
' Ends with 0: taken, 1: refused, trying again does not help, 2: try again later.
Option Explicit

Const tvTransientError = -1550879440
Const tvFatalError = -1550879439

Dim service, warnings, warning

Set service = CreateObject("TVLejisCore.LejisSubmissionWebService")
service.URL = WScript.Arguments(0)

On Error Resume Next
Set warnings = service.SubmitIncident(Burglary())
Select Case Err.Number
    Case 0
    Case tvTransientError
        WScript.Echo "Not sent, try again later: " & Err.Description
        WScript.Quit 2
    Case Else
        ' tvFatalError, or a mistake in this script: neither gets better by itself.
        WScript.Echo "Refused: " & Err.Description
        WScript.Quit 1
End Select
On Error GoTo 0

WScript.Echo "Submitted with " & warnings.Count & " warning(s)."
For Each warning In warnings
    WScript.Echo "Warning: " & warning
Next

Function Burglary()
    Dim incident, victim, television
    Set incident = CreateObject("TVLejisCore.LejisIncidentIndexCard")
    incident.OrganizationName = "Harlow Police Department"
    incident.OrganizationORI = "PA0250100"
    incident.ActivityID = "2007-000123"
    incident.SubmittedDate.Value = Now
    incident.ActivityDateTime.Value = #3/9/2007 2:05:00 PM#
    incident.ChargeNCICCode = "2202"
    incident.ChargeDescriptionText = "Burglary, forced entry, residence"
    ' The parts of an incident are there from the beginning and are filled in place.
    incident.Location.StreetNumber.Value = 12
    incident.Location.StreetName = "HARBOUR"
    incident.Location.StreetType = "RD"
    incident.Location.City = "HARLOW"
    incident.Location.State = "PA"
    incident.Location.ZIP = "170991234"

    Set victim = CreateObject("TVLejisCore.LejisPersonIndexCard")
    victim.GivenName = "JOHN"
    victim.SurName = "PUBLIC"
    victim.Involvement = "VICTIM"
    victim.BirthDate.Value = #1/31/1970#
    victim.RaceNCIC = "X"
    incident.PersonIndexCards.Add victim

    Set television = CreateObject("TVLejisCore.LejisPropertyIndexCard")
    television.Category = "TELEVISION"
    television.Make = "NORTHWIND"
    television.SerialID = "NW14-88213-K"
    incident.PropertyIndexCards.Add television
    Set Burglary = incident
End Function
