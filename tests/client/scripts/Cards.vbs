' Fills an incident with its cards as a script does, and looks at what they write.
Option Explicit
Dim checks, failures, incident, person, vehicle, item, doc, root, copy
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

Function NewObject(name)
    Set NewObject = WScript.CreateObject("TVLejisCore." & name)
End Function

Function TextAt(path)
    Dim node
    Set node = root.selectSingleNode(path)
    If node Is Nothing Then TextAt = "(none)" Else TextAt = node.text
End Function

Set incident = NewObject("LejisIncidentIndexCard")
incident.OrganizationName = "SPRINGFIELD PD"
incident.OrganizationORI = "PA0123456"
incident.ActivityID = "2007-0042"
incident.SubmittedDate.Value = #3/10/2007#
incident.ActivityDateTime.Value = "2007-03-09 14:05:00"
incident.Location.City = "SPRINGFIELD"
incident.Location.StreetNumber.Value = 12

Set person = NewObject("LejisPersonIndexCard")
person.GivenName = "JOHN"
person.SurName = "PUBLIC"
person.address.ZIP = "12345"
person.BirthDate.Value = #1/31/1970#
person.Height.Value = 510
person.CautionIndicator = True
incident.PersonIndexCards.Add person

Set vehicle = NewObject("LejisVehicleIndexCard")
vehicle.Make = "FORD"
vehicle.Year.Value = 2004
incident.VehicleIndexCards.Add vehicle

Set item = NewObject("LejisPropertyIndexCard")
item.Category = "BICYCLE"
incident.PropertyIndexCards.Add item

Check "a name in another case", person.GIVENNAME, "JOHN"
Check "the caution of a card", incident.HasCaution, True
Check "the caution of the incident itself", incident.CautionIndicator, False
Check "the person in its collection", incident.PersonIndexCards.Item(1).SurName, "PUBLIC"
Check "the default member of a collection", incident.PersonIndexCards(1).SurName, "PUBLIC"

Set doc = WScript.CreateObject("MSXML2.DOMDocument.6.0")
doc.setProperty "SelectionNamespaces", "xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3' " & _
    "xmlns:card='http://lejis.example/lejis/jxdm/1.0/card' xmlns:ext='http://lejis.example/lejis/jxdm/1.0/card/extra'"
Set root = incident.ToXmlElement(doc)
Check "the root", root.baseName, "RMSIncidentIndexCard"
Check "the root is not attached", doc.documentElement Is Nothing, True
Check "the name", TextAt("card:RMSPersonIndexCards//j:PersonGivenName"), "JOHN"
Check "the date of birth", TextAt("card:RMSPersonIndexCards//j:PersonBirthDate"), "1970-01-31"
Check "the model year", TextAt("card:RMSVehicleIndexCards//j:VehicleModelYearDate"), "2004"
Check "the kind of property", TextAt("card:RMSPropertyIndexCards//j:PropertyTypeText"), "BICYCLE"
Check "the time of the incident", TextAt(".//j:ActivityTime"), "14:05:00"
Check "the flag of the incident", TextAt("ext:CautionIndicatorFlag"), "true"

Set copy = NewObject("LejisIncidentIndexCard")
copy.FromXmlElement root
Check "the identifier read back", copy.ActivityID, "2007-0042"
Check "the persons read back", copy.PersonIndexCards.Count, 1
Check "the height read back", copy.PersonIndexCards(1).Height.Value, 510
Check "the date read back", copy.SubmittedDate.Value, #3/10/2007#

item.LoadDefaults
Check "a card that was emptied", item.Category, ""

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
