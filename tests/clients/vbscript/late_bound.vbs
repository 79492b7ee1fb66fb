' late_bound.vbs SERVICES: tells of each step that a script takes. Ends with 0 when all have been taken, else with 1.
Option Explicit
Const InvalidArgument = -2147220987
Const BadIndex = -2147352565
Const Transient = -1550879440
Const Fatal = -1550879439
Const Unexpected = -2147221404

Dim services, failed
services = WScript.Arguments(0)
failed = 0

On Error Resume Next
CreateAll
Tell "create"
Properties
Tell "properties"
Numbers
Tell "numbers"
Dates
Tell "dates"
Nulls
Tell "null"
Collections
Tell "collections"
Errors
Tell "errors"
Xml
Tell "xml"
Submit
Tell "submit"
TransientFailure
Tell "transient"
Refusal
Tell "refused"
Withdraw
Tell "withdraw"
If failed > 0 Then WScript.Quit 1
WScript.Quit 0

' What became of the step before.
Sub Tell(name)
    If Err.Number = 0 Then
        WScript.Echo name & ": ok"
    Else
        failed = failed + 1
        WScript.Echo name & ": FAILED: " & Err.Number & " " & Err.Description
        Err.Clear
    End If
End Sub

Sub Same(expected, actual)
    If VarType(expected) = VarType(actual) Then
        If expected = actual Then Exit Sub
    End If
    Err.Raise Unexpected, "late_bound.vbs", "'" & expected & "' was expected, '" & actual & "' came"
End Sub

' seenNumber and seenText are those of Err.
Sub Raised(number, beginning, seenNumber, seenText)
    Same number, seenNumber
    Same beginning, Left(seenText, Len(beginning))
End Sub

Function Create(name)
    Set Create = CreateObject("TVLejisCore." & name)
End Function

Sub CreateAll()
    Dim common
    Set common = Create("LejisCommon")
    Same "", Create("LejisIncidentIndexCard").ActivityID
    Same 0, CInt(Create("LejisSubmissionDocument").IncidentIndexCards.Count)
    Same "", Create("LejisSearchRequest").personArguments.SurName
    Same "2007-03-09", common.LejisFormatDate(#3/9/2007#)
    Same "14:05:00", common.LejisFormatTime(#3/9/2007 2:05:00 PM#)
End Sub

Sub Properties()
    Dim person, name
    Set person = Create("LejisPersonIndexCard")
    ' Wine has no ChrW.
    name = "M" & Chr(220) & "LLER"
    person.SurName = name
    person.CautionIndicator = True
    person.address.City = "HARLOW"
    Same name, person.SurName
    Same True, person.CautionIndicator
    Same "HARLOW", person.address.City
End Sub

Sub Numbers()
    Dim person, controls
    Set person = Create("LejisPersonIndexCard")
    Set controls = Create("LejisInquiryControls")
    person.Height.Value = 510
    person.address.StreetNumber.Value = 123456
    controls.MaxIncidents = 50
    Same 510, person.Height.Value
    Same 123456, person.address.StreetNumber.Value
    Same CLng(50), controls.MaxIncidents
End Sub

Sub Dates()
    Dim person
    Set person = Create("LejisPersonIndexCard")
    person.BirthDate.Value = #1/31/1970#
    Same #1/31/1970#, person.BirthDate.Value
    person.BirthDate.Value = "2007-03-09"
    Same #3/9/2007#, person.BirthDate.Value
End Sub

Sub Nulls()
    Dim person
    Set person = Create("LejisPersonIndexCard")
    Same True, IsNull(person.Weight.Value)
    person.Weight.Value = 180
    Same False, IsNull(person.Weight.Value)
    person.Weight.Value = Null
    Same True, IsNull(person.Weight.Value)
End Sub

Sub Collections()
    Dim persons, person, name, names, number, text, item
    Set persons = Create("LejisIncidentIndexCard").PersonIndexCards
    For Each name In Array("A", "B", "C")
        Set person = Create("LejisPersonIndexCard")
        person.SurName = name
        persons.Add person
    Next
    persons.Remove 2
    Same 2, CInt(persons.Count)
    Same "C", persons(2).SurName
    For Each person In persons
        names = names & person.SurName
    Next
    Same "AC", names
    On Error Resume Next
    Set item = persons.Item(3)
    number = Err.Number
    text = Err.Description
    On Error GoTo 0
    Raised BadIndex, "There is no item 3: the collection holds 2.", number, text
End Sub

Sub Errors()
    Dim birth, number, text
    Set birth = Create("NullableDate")
    On Error Resume Next
    birth.Value = "hello"
    number = Err.Number
    text = Err.Description
    On Error GoTo 0
    Raised InvalidArgument, "Not a valid date.", number, text
End Sub

Sub Xml()
    Dim document, person, copy, envelope, read
    Set document = WScript.CreateObject("MSXML2.DOMDocument.6.0")
    Set person = Create("LejisPersonIndexCard")
    Set copy = Create("LejisPersonIndexCard")
    person.SurName = "PUBLIC"
    person.Height.Value = 510
    copy.FromXmlElement person.ToXmlElement(document)
    Same "PUBLIC", copy.SurName
    Same 510, copy.Height.Value
    Set envelope = Create("SOAPEnvelope")
    Set read = Create("SOAPEnvelope")
    envelope.Body = "text"
    read.FromXmlElement envelope.ToXmlElement(document)
    Same True, InStr(read.Body, ">text<") > 0
End Sub

Function Incident()
    Dim person
    Set Incident = Create("LejisIncidentIndexCard")
    Incident.OrganizationName = "Harlow Police Department"
    Incident.OrganizationORI = "PA0250100"
    Incident.ActivityID = "2007-000123"
    Incident.SubmittedDate.Value = #3/10/2007#
    Set person = Create("LejisPersonIndexCard")
    person.SurName = "PUBLIC"
    person.Involvement = "VICTIM"
    person.RaceNCIC = "X"
    Incident.PersonIndexCards.Add person
End Function

Function Submission(url)
    Set Submission = Create("LejisSubmissionWebService")
    Submission.URL = url
End Function

Sub Submit()
    Dim warnings
    Set warnings = Submission(services & "/submission").SubmitIncident(Incident())
    Same 1, CInt(warnings.Count)
    Same True, InStr(warnings(1), "'X' is not a valid NCIC race code") > 0
End Sub

Sub TransientFailure()
    Dim service, warnings, number, text
    ' Nobody listens at this port.
    Set service = Submission("http://127.0.0.1:1/submission")
    On Error Resume Next
    Set warnings = service.SubmitIncident(Incident())
    number = Err.Number
    text = Err.Description
    On Error GoTo 0
    Raised Transient, "The LEJIS Interface service is down.", number, text
End Sub

Sub Refusal()
    Dim service, warnings, number, text
    Set service = Submission(services & "/submission")
    On Error Resume Next
    Set warnings = service.SubmitIncident(Create("LejisIncidentIndexCard"))
    number = Err.Number
    text = Err.Description
    On Error GoTo 0
    Raised Fatal, "ID is required.", number, text
End Sub

Sub Withdraw()
    Submission(services & "/submission").DeleteIncident Incident()
End Sub
