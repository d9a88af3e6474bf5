' Lists, default members, for-each loops, errors and the object counter, as scripts write them.
' Ends with "passed", which a script that an error stopped does not.
Option Explicit

Dim checks, failures
checks = 0
failures = 0

Sub Check(what, actual, expected)
  checks = checks + 1
  If actual = expected Then Exit Sub
  failures = failures + 1
  WScript.Echo "FAILED " & what & ": expected " & expected & ", got " & actual
End Sub

Function Create(name)
  Set Create = CreateObject("PraxenHelper." & name)
End Function

' The names of all pairs of variables: two loops over the same list at once.
Function Pairs(list)
  Dim outer, inner
  For Each outer In list
    For Each inner In list
      Pairs = Pairs & outer.Name & inner.Name & " "
    Next
  Next
End Function

Sub CheckLists
  Dim program, variable, names
  Set program = Create("Program")
  program.Name = "Main"
  program.Variables.Add1 "a", "real"
  program.Variables.Add1 "b", "bool"
  Check "default member", program.Variables(2).Name, "b"
  Check "item", program.variables.item(1).TypeName, "real"
  Check "count", program.Variables.Count, 2
  Check "pairs", Pairs(program.Variables), "aa ab ba bb "
  Check "pairs again", Pairs(program.Variables), "aa ab ba bb "
  Check "position", program.Variables.FindNr("b"), 2
  Check "no such name", program.Variables.Find("B") Is Nothing, True
  For Each variable In program.Variables
    program.Variables.Remove 1
    names = names & variable.Name
  Next
  Check "removed while walking", names & program.Variables.Count, "ab0"
  program.Variables.Add Nothing
  Check "nothing in a list", program.Variables(1) Is Nothing, True
  Set program.Variables = Nothing
  Check "no list", program.Variables Is Nothing, True
  Set program.Variables = Create("Variables")
  Check "another list", program.Variables.Count, 0
End Sub

Sub CheckConversions
  Dim message, node, block
  Set message = Create("ErrorMsg")
  message.ErrorNo = "12"
  Check "number from text", message.ErrorNo, 12
  message.Message = 3
  Check "text from number", message.Message, "3"
  Check "kind", message.IsErrorMsg, True
  Set node = Create("GraphNode")
  node.X = 1
  Check "double", node.X / 2, 0.5
  Set block = Create("FunctionBlock")
  block.AspectObject = False
  Check "boolean", block.AspectObject, False
End Sub

' The error of the statement just before: its number, and its description when it is the library's.
Sub CheckError(what, number, description)
  Dim found, told
  found = Err.Number
  told = Err.Description
  Err.Clear
  Check what, found, number
  If description <> "" Then Check what & ", described", told, description
End Sub

Sub CheckErrors
  Dim program, text, factory
  Set program = Create("Program")
  Set factory = Create("ObjectFactory")
  On Error Resume Next
  text = program.Serialize
  CheckError "required fields", &H80040259, "Required fields empty"
  factory.DeserializeProgram ""
  CheckError "invalid XML", &H8004025B, ""
  Set text = program.Variables(1)
  CheckError "subscript", &H8002000B, "Subscript out of range"
  program.Variables.Add program
  CheckError "wrong class", 13, ""
  program.Variables.Add 5
  CheckError "no object", 13, ""
  program.Variables.Remove "x"
  CheckError "no number", 13, ""
  program.Variables.Add1 "a"
  CheckError "missing argument", 449, ""
  program.Variables.Add1 "a", "b", "c"
  CheckError "surplus argument", 450, ""
  program.Nonsense = 1
  CheckError "no such member", 438, ""
  program.Variables.Count = 1
  CheckError "read only", 438, ""
  Set program = CreateObject("PraxenHelper.ICodeBlock")
  CheckError "not creatable", 429, ""
End Sub

Dim maintenance, before
Set maintenance = Create("maintenance")
before = maintenance.NrOfObjects
CheckLists
CheckConversions
CheckErrors
Check "objects left", maintenance.NrOfObjects - before, 0
maintenance.IncludeCRLFInXML = False
Check "line breaks", maintenance.IncludeCRLFInXML, False
maintenance.IncludeCRLFInXML = True

WScript.Echo checks & " checks, " & failures & " failures"
If failures = 0 Then WScript.Echo "passed"
