' An event that needs no server: a search at an invalid address raises ConfigurationError.
Option Explicit
Dim service, checks, failures, patience
checks = 0
failures = 0

Sub service_ConfigurationError(reasonMessage)
    checks = checks + 1
    If reasonMessage = "Invalid URL 'no url'." Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED the message: " & reasonMessage
End Sub

Set service = CreateObject("TVLejisCore.LejisSearchWebService")
WScript.ConnectObject service, "service_"
service.URL = "no url"
service.Username = "jdoe"
service.Search CreateObject("TVLejisCore.LejisSearchRequest")
For patience = 1 To 100
    If checks = 0 Then WScript.Sleep 50
Next

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 And checks = 1 Then WScript.Quit 7
WScript.Quit 1
