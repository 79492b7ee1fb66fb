' cscript //nologo search.vbs URL USER SURNAME
' Searches LEJIS for a person and lists the incidents found.
' Ends with 0: answered, 1: refused, trying again does not help, 2: try again later.
Option Explicit

Dim service, request, exitCode

Set service = CreateObject("TVLejisCore.LejisSearchWebService")
WScript.ConnectObject service, "service_"
service.URL = WScript.Arguments(0)
service.Username = WScript.Arguments(1)

Set request = CreateObject("TVLejisCore.LejisSearchRequest")
request.personArguments.SurName = WScript.Arguments(2)
request.InquiryControls.MaxIncidents = 50

' Search raises nothing and returns at once. Exactly one of the events below follows, from the message loop, which
' runs while the script sleeps.
service.Search request
Do While IsEmpty(exitCode)
    WScript.Sleep 50
Loop
WScript.Quit exitCode

Sub service_SearchCompleted(results)
    Dim incident, person
    WScript.Echo results.Count & " incident(s) found."
    For Each incident In results
        WScript.Echo incident.OrganizationORI & " " & incident.ActivityID & " " & incident.ChargeDescriptionText
        For Each person In incident.PersonIndexCards
            WScript.Echo "    " & person.GivenName & " " & person.SurName & " (" & person.Involvement & ")"
        Next
    Next
    exitCode = 0
End Sub

Sub service_NetworkError(reasonMessage)
    WScript.Echo "No answer, try again later: " & reasonMessage
    exitCode = 2
End Sub

Sub service_ConfigurationError(reasonMessage)
    WScript.Echo "Not set up correctly, tell the administrator: " & reasonMessage
    exitCode = 1
End Sub

Sub service_ServiceError(reasonMessage)
    WScript.Echo "Refused: " & reasonMessage
    exitCode = 1
End Sub
