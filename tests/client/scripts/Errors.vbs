' What Err tells after each kind of mistake.
Option Explicit
Const InvalidArgument = -2147220987
Const ObjectRequired = 424
Dim checks, failures, card, small, longs, when_, manager, validator, persons, common, result
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

' Err of the statement before, and then none.
Sub CheckError(name, number, description)
    Dim seenNumber, seenText
    seenNumber = Err.Number
    seenText = Err.Description
    Err.Clear
    Check name & ", number", seenNumber, number
    If description <> "" Then Check name & ", text", seenText, description
End Sub

' What the validator says to a wrong kind of object; the number is that of the script's own type mismatch or the platform's.
Sub CheckRefusal(name)
    Dim seenNumber, seenText, seenSource
    seenNumber = Err.Number
    seenText = Err.Description
    seenSource = Err.Source
    Err.Clear
    Check name & " is refused", seenNumber = 13 Or seenNumber = -2147352571, True
    Check name & ", text", seenText, "Type mismatch"
    Check name & ", source", seenSource, "TVLejisCore.LejisIncidentValidator"
End Sub

Set card = WScript.CreateObject("TVLejisCore.LejisVehicleIndexCard")
Set small = WScript.CreateObject("TVLejisCore.NullableInteger")
Set longs = WScript.CreateObject("TVLejisCore.NullableLong")
Set when_ = WScript.CreateObject("TVLejisCore.NullableDate")
Set manager = WScript.CreateObject("TVLejisCore.FutureManager")
Set validator = WScript.CreateObject("TVLejisCore.LejisIncidentValidator")
Set common = WScript.CreateObject("TVLejisCore.LejisCommon")
Set persons = WScript.CreateObject("TVLejisCore.LejisIncidentIndexCard").PersonIndexCards

On Error Resume Next
card.FromXmlElement Nothing
CheckError "no element", InvalidArgument, "elem cannot be Nothing"
manager.InvokeLater Nothing
CheckError "no runnable", InvalidArgument, "runnable cannot be Nothing"
Set result = card.ToXmlElement(Nothing)
CheckError "no document", ObjectRequired, "Object required"
result = validator.Validate(Nothing)
CheckError "no incident", ObjectRequired, "Object required"
result = validator.Validate(card)
CheckRefusal "a card of another kind"
result = validator.Validate("text")
CheckRefusal "a text for a card"
result = validator.Validate(Null)
CheckRefusal "Null for a card"
result = Empty
result = validator.Validate(result)
CheckRefusal "an empty variable for a card"

small.Value = "12"
CheckError "a text for an integer", InvalidArgument, "Cannot assign 'String'  to NullableInteger"
longs.Value = True
CheckError "a truth for a long", InvalidArgument, "Cannot assign 'Boolean'  to NullableLong"
when_.Value = "hello"
CheckError "a text that is no date", InvalidArgument, "Not a valid date."
when_.Value = 5
CheckError "a number for a date", InvalidArgument, "Cannot assign 'Integer'  to NullableDate"
when_.Value = Empty
CheckError "Empty for a date", InvalidArgument, "Cannot assign 'Empty'  to NullableDate"
result = "12"
small.Value = result
CheckError "a variable that holds a text", InvalidArgument, "Cannot assign 'String'  to NullableInteger"

result = persons.Item(0)
Check "item 0 is refused", Err.Number <> 0, True
Check "item 0, text", Err.Description, "There is no item 0: the collection holds 0."
Err.Clear
persons.Remove 1
Check "removal of no item, text", Err.Description, "There is no item 1: the collection holds 0."
Err.Clear

card.Nickname = "x"
CheckError "an unknown member", 438, ""
result = common.LejisFormatDate()
CheckError "a missing argument", 450, ""
result = common.LejisFormatDate("tomorrow, perhaps")
Check "a text that is no date is refused", Err.Number <> 0, True
Err.Clear
card.Make = "FORD"
CheckError "no mistake", 0, ""
Check "the object works afterwards", card.Make, "FORD"

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
