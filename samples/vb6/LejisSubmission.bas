Attribute VB_Name = "LejisSubmission"
' Submitting to LEJIS. Needs a reference to "Talvex Core LEJIS Support" (TVLejisCore).
Option Explicit

Public Enum SubmissionOutcome
    soSubmitted
    soTryAgainLater
    soRefused
End Enum

' Submits one incident and waits for the answer; the suite works on meanwhile. messages gets the warnings, or why the
' incident was not taken, in words that are meant for the user.
Public Function SubmitIncident(ByVal incident As TVLejisCore.LejisIncidentIndexCard, ByVal url As String, _
                               ByVal messages As VBA.Collection) As SubmissionOutcome
    Dim service As TVLejisCore.LejisSubmissionWebService
    Dim warning As Variant

    On Error GoTo NotTaken
    Set service = New TVLejisCore.LejisSubmissionWebService
    service.URL = url
    For Each warning In service.SubmitIncident(incident)
        messages.Add warning
    Next
    SubmitIncident = soSubmitted
    Exit Function

NotTaken:
    messages.Add Err.Description
    Select Case Err.Number
        Case tvTransientError
            SubmitIncident = soTryAgainLater
        Case Else
            ' tvFatalError, or an argument that is wrong: neither gets better by itself.
            SubmitIncident = soRefused
    End Select
End Function

' Withdraws an incident; the agency, the incident's number and its submission date are enough.
Public Sub WithdrawIncident(ByVal ori As String, ByVal incidentNumber As String, ByVal submitted As Date, _
                            ByVal url As String)
    Dim incident As New TVLejisCore.LejisIncidentIndexCard
    Dim service As New TVLejisCore.LejisSubmissionWebService

    incident.OrganizationORI = ori
    incident.ActivityID = incidentNumber
    incident.SubmittedDate.Value = submitted
    service.URL = url
    ' Raises tvTransientError or tvFatalError to the caller.
    service.DeleteIncident incident
End Sub

Public Function Burglary() As TVLejisCore.LejisIncidentIndexCard
    Dim incident As New TVLejisCore.LejisIncidentIndexCard
    Dim victim As New TVLejisCore.LejisPersonIndexCard
    Dim television As New TVLejisCore.LejisPropertyIndexCard

    incident.OrganizationName = "Harlow Police Department"
    incident.OrganizationORI = "PA0250100"
    incident.ActivityID = "2007-000123"
    incident.SubmittedDate.Value = Now
    incident.ActivityDateTime.Value = #3/9/2007 2:05:00 PM#
    incident.ChargeNCICCode = "2202"
    ' The parts of an incident are there from the beginning and are filled in place.
    With incident.Location
        .StreetNumber.Value = 12
        .StreetName = "HARBOUR"
        .StreetType = "RD"
        .City = "HARLOW"
        .State = "PA"
        .ZIP = "17099"
    End With

    victim.GivenName = "JOHN"
    victim.SurName = "PUBLIC"
    victim.Involvement = "VICTIM"
    victim.BirthDate.Value = #1/31/1970#
    victim.Height.Value = 510
    incident.PersonIndexCards.Add victim

    television.Category = "TELEVISION"
    television.Make = "NORTHWIND"
    television.SerialID = "NW14-88213-K"
    incident.PropertyIndexCards.Add television

    Set Burglary = incident
End Function
