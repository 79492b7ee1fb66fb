' The holders of dates and numbers, by variables, literals and the default member.
Option Explicit
Dim checks, failures, when_, number, small, common, person, variable
checks = 0
failures = 0

Sub Check(name, actual, expected)
    checks = checks + 1
    If actual = expected Then Exit Sub
    failures = failures + 1
    WScript.Echo "FAILED " & name & ": expected " & expected & ", got " & actual
End Sub

Set when_ = WScript.CreateObject("TVLejisCore.NullableDate")
Set small = WScript.CreateObject("TVLejisCore.NullableInteger")
Set number = WScript.CreateObject("TVLejisCore.NullableLong")
Set common = WScript.CreateObject("TVLejisCore.LejisCommon")

Check "a new date", IsNull(when_.Value), True
Check "a new integer", IsNull(small.Value), True
Check "a new long", IsNull(number.Value), True

when_.Value = "2007-03-09"
Check "a date from a text", when_.Value, #3/9/2007#
Check "the type of a date", VarType(when_.Value), vbDate
variable = #3/10/2007 2:05:00 PM#
when_.Value = variable
Check "a date from a variable", when_.Value, #3/10/2007 2:05:00 PM#
when_.Value = Null
Check "a date set to Null", IsNull(when_.Value), True

small.Value = 2.5
Check "a half goes to the even neighbour below", small.Value, 2
small.Value = 3.5
Check "a half goes to the even neighbour above", small.Value, 4
Check "the type of an integer", VarType(small.Value), vbInteger
small.Value = 40000
Check "a number out of range", small.Value, 0
variable = 17
small.Value = variable
variable = 18
Check "the value of a variable as it was", small.Value, 17

number.Value = 100000
Check "a long", number.Value, 100000
Check "the type of a long", VarType(number.Value), vbLong
Check "the default member", number & "", "100000"
variable = Null
number.Value = variable
Check "a variable that holds Null", IsNull(number.Value), True

Set person = WScript.CreateObject("TVLejisCore.LejisPersonIndexCard")
person.Weight.Value = 180
Check "the holder of a card is its own", person.Weight.Value, 180
Check "the date text", common.LejisFormatDate(#3/9/2007 2:05:00 PM#), "2007-03-09"
Check "the time text", common.LejisFormatTime(#3/9/2007 2:05:00 PM#), "14:05:00"
variable = #1/2/1970#
Check "the date text of a variable", common.LejisFormatDate(variable), "1970-01-02"

WScript.Echo "END OF SCRIPT " & checks & " checks on " & _
    WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings("%PROCESSOR_ARCHITECTURE%")
If failures = 0 Then WScript.Quit 7
WScript.Quit 1
