' Walking over a collection, also while it grows, and taking items out.
Option Explicit
Dim checks, failures, persons, person, names, item
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

Function NewPerson(name)
    Set NewPerson = WScript.CreateObject("TVLejisCore.LejisPersonIndexCard")
    NewPerson.SurName = name
End Function

Set persons = WScript.CreateObject("TVLejisCore.LejisIncidentIndexCard").PersonIndexCards
Check "the count of a new collection", persons.Count, 0
For Each person In persons
    Check "an item of an empty collection", "there", "not there"
Next

persons.Add NewPerson("A")
persons.Add NewPerson("B")
persons.Add NewPerson("C")
names = ""
For Each person In persons
    names = names & person.SurName
Next
Check "the items in their order", names, "ABC"

names = ""
For Each person In persons
    names = names & person.SurName
    If person.SurName = "B" Then persons.Add NewPerson("D")
Next
Check "an item added on the way", names, "ABCD"

names = ""
For Each person In persons
    For Each item In persons
        names = names & item.SurName
    Next
Next
Check "a walk inside of a walk", names, "ABCDABCDABCDABCD"

persons.Remove 2
Check "the count after a removal", persons.Count, 3
Check "the item after the removed one", persons(2).SurName, "C"
item = 3
Check "an index in a variable", persons.Item(item).SurName, "D"
Check "an index as a text", persons.Item("1").SurName, "A"

persons.Add "a text"
persons.Add 5
persons.Add Null
Check "a text as an item", persons(4), "a text"
Check "a number as an item", persons(5), 5
Check "Null as an item", IsNull(persons(6)), True

persons(1).SurName = "Z"
Check "an item is the object itself", persons(1).SurName, "Z"
While persons.Count > 0
    persons.Remove 1
Wend
Check "the count at the end", persons.Count, 0

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
