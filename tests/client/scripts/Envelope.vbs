' Reading a SOAP answer, with a fault and without, and writing an envelope.
Option Explicit
Const Soap = "xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'"
Dim checks, failures, envelope, doc, root, number, isFault
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

Function Parsed(body)
    Set Parsed = WScript.CreateObject("MSXML2.DOMDocument.6.0")
    Parsed.async = False
    If Not Parsed.loadXML("<soap:Envelope " & Soap & ">" & body & "</soap:Envelope>") Then WScript.Quit 1
End Function

Set envelope = WScript.CreateObject("TVLejisCore.SOAPEnvelope")
Check "a new body", envelope.Body, ""

envelope.FromXmlDocument Parsed("<soap:Body><soap:Fault><faultcode>soap:Server</faultcode>" & _
    "<faultstring>x &amp; y</faultstring></soap:Fault></soap:Body>")
Check "a fault", envelope.IsFault, True
Check "its code", envelope.FaultCode, "soap:Server"
Check "its text", envelope.FaultMessage, "x & y"
Check "the body begins with its tag", Left(envelope.Body, 10), "<soap:Body"
Check "the body as a document", envelope.BodyXml.documentElement.baseName, "Body"

envelope.Username = "clerk"
envelope.FromXmlElement Parsed("<soap:Body><answer/></soap:Body>").documentElement
Check "no fault", envelope.IsFault, False
Check "no code", envelope.FaultCode, ""
Check "no text", envelope.FaultMessage, ""
Check "the user name is not read", envelope.Username, ""

envelope.FromXmlDocument Parsed("")
Check "an envelope without a body", envelope.Body, ""
On Error Resume Next
isFault = envelope.IsFault
number = Err.Number
On Error GoTo 0
Check "a question for a fault without a body", number, 424

Set doc = WScript.CreateObject("MSXML2.DOMDocument.6.0")
envelope.Username = "clerk"
envelope.Body = "<b/>"
Set root = envelope.ToXmlElement(doc)
Check "the written root", root.baseName, "Envelope"
Check "the written parts", root.childNodes.length, 2
Check "the written user name", root.firstChild.text, "clerk"
Check "markup is written as text", root.lastChild.text, "<b/>"
envelope.Username = ""
Check "no user, no header", envelope.ToXmlElement(doc).childNodes.length, 1

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
