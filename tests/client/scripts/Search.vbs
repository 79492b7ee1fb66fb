' A search as a script fills it. Scripts of this engine cannot hear events: that a search raises none to its caller, and
' that the service bears having no listener, is what can be seen here.
Option Explicit
Dim checks, failures, request, service, document, element, again, number
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

' Keeps the number of what is raised.
Sub Search(what)
    On Error Resume Next
    service.Search what
    number = Err.Number
End Sub

Set request = WScript.CreateObject("TVLejisCore.LejisSearchRequest")
Check "a new person block", request.personArguments.NotEmpty(), False
request.personArguments.SurName = "PUBLIC"
request.personArguments.BirthDate.Value = #2/28/1970#
request.VehicleArguments.Year.Value = 2004
request.InquiryControls.MaxIncidents = 25
request.InquiryControls.ExcludedORIIDs.Add "PA0250100"
Check "a filled person block", request.personArguments.NotEmpty(), True
Check "a filled vehicle block", request.VehicleArguments.NotEmpty(), True
Check "an empty location block", request.LocationArguments.NotEmpty(), False

Set document = request.ToXmlDocument()
Set element = document.documentElement
Check "the root", element.baseName, "LEJISIndexInquiry"
Check "its blocks", element.childNodes.length, 3
Set again = WScript.CreateObject("TVLejisCore.LejisSearchRequest")
again.FromXmlElement element
Check "the name read back", again.personArguments.SurName, "PUBLIC"
Check "the limit read back", again.InquiryControls.MaxIncidents, 25
Check "the agency read back", again.InquiryControls.ExcludedORIIDs(1), "PA0250100"

Set service = WScript.CreateObject("TVLejisCore.LejisSearchWebService")
service.URL = "no url"
service.Username = "jdoe"
Check "the user", service.Username, "jdoe"
Check "no results before a search", service.results Is Nothing, True
Search request
Check "an invalid address raises no error", number, 0
Search Nothing
Check "no request raises nothing", number, 0
Check "still no results", service.results Is Nothing, True

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
