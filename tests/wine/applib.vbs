' Class applib from a late-bound client: vkrInitApp with the host's application object
' written as a VBScript class, the settings store, column and window memory, the log, the
' placeholder paths and the language.
' Check, Fail and the counters come from check.inc, which the runner puts first.


' The host's application object, written as a VBScript class: what vkrInitApp reads.
Class HostApp
    Public Path
    Public EXEName
    Public Major
    Public Minor
    Public Revision
End Class

' A list view as the column-width members reach it: its window (none here, so every width
' reads 0) and the count of its columns.
Class Columns
    Public Property Get Count()
        Count = 3
    End Property
End Class
Class ListView
    Public hwnd
    Public ColumnHeaders
    Private Sub Class_Initialize()
        hwnd = 0
        Set ColumnHeaders = New Columns
    End Sub
End Class

Dim o, app, host, r, folder, fso
Set o = CreateObject("velkor6.lib")
Set fso = CreateObject("Scripting.FileSystemObject")
folder = o.vkrTempDir() & "velkor6-wine-applib"
If Not fso.FolderExists(folder) Then fso.CreateFolder folder

Set host = New HostApp
host.Path = folder
host.EXEName = "winehost"
host.Major = 6
host.Minor = 1
host.Revision = 23

Set app = Nothing
Set app = o.vkrInitApp(host, "winehost")
Check "vkrInitApp returns an applib", TypeName(app), "applib"
r = Empty : r = app.iniFile : Check "iniFile", LCase(r), LCase(folder & "\winehost.ini")
r = Empty : r = app.logFile : Check "logFile names the log", LCase(Right(r, 12)), "winehost.log"

app.stringValue("Wine", "Greeting") = "hello" : Check "stringValue let", Err.Number, CLng(0)
r = Empty : r = app.stringValue("Wine", "Greeting") : Check "stringValue get", r, "hello"
r = Empty : r = app.stringValue("Wine", "Missing", "fallback") : Check "stringValue default", r, "fallback"
app.longValue("Wine", "Count") = 42 : Check "longValue let", Err.Number, CLng(0)
r = Empty : r = app.longValue("Wine", "Count") : Check "longValue get", r, CLng(42)
app.boolValue("Wine", "Flag") = True : Check "boolValue let", Err.Number, CLng(0)
r = Empty : r = app.boolValue("Wine", "Flag") : Check "boolValue get", r, True
r = Empty : r = app.stringValue("Wine", "Auto", "made", True) : Check "stringValue auto-create", r, "made"
app.stringValue("Wine", "Greeting") = "" : Check "stringValue let of an empty text", Err.Number, CLng(0)
r = Empty : r = app.stringValue("Wine", "Greeting", "gone") : Check "an empty text deletes the key", r, "gone"
' The file as another program reads it: the written keys are there, the deleted one is not.
Dim settingsText
settingsText = fso.OpenTextFile(app.iniFile).ReadAll
Check "the settings file holds the auto-created key", InStr(settingsText, "Auto=made") > 0, True
Check "the settings file holds the long", InStr(settingsText, "Count=42") > 0, True
Check "the deleted key is gone from the file", InStr(settingsText, "Greeting=") = 0, True
r = Empty : r = fso.FileExists(folder & "\winehost.ini") : Check "the settings file exists", r, True

Dim view
Set view = New ListView
app.saveColWidths view, "Columns" : Check "saveColWidths", Err.Number, CLng(0)
r = Empty : r = app.stringValue("ColWidths", "Columns") : Check "saveColWidths stores a width per column", r, "0;0;0"
app.loadColWidths view, "Columns" : Check "loadColWidths", Err.Number, CLng(0)
app.saveWindowPos 0, "NoForm" : Check "saveWindowPos without a window", Err.Number, CLng(0)
app.loadWindowPos 0, "NoForm" : Check "loadWindowPos without a window", Err.Number, CLng(0)

app.logAction "started under Wine" : Check "logAction", Err.Number, CLng(0)
app.logError 5, "Invalid procedure call or argument", "winehost.Main" : Check "logError", Err.Number, CLng(0)
Dim logText
logText = ""
logText = fso.OpenTextFile(app.logFile).ReadAll()
Check "the log holds the action", InStr(logText, "started under Wine") > 0, True
Check "the log holds the error line", InStr(logText, "ERR=5 'Invalid procedure call or argument' (Source=winehost.Main)") > 0, True

r = Empty : r = app.absolutePath("%AppPath%\data.txt")
Check "absolutePath", LCase(r), LCase(folder & "\data.txt")
r = Empty : r = app.relativePath(folder & "\data.txt") : Check "relativePath", InStr(r, "data.txt") > 0, True

r = Empty : r = app.language : Check "language get", TypeName(r), "Integer"
app.language = 2 : r = Empty : r = app.language : Check "language let", r, CInt(2)

' Both editors are started and left alone; the runner ends them with the prefix.
app.editINIFile : Check "editINIFile", Err.Number, CLng(0)
app.editLOGFile : Check "editLOGFile", Err.Number, CLng(0)

' The command line: a text given, and the process's own (cscript's).
r = Empty : r = app.splitCommandLine("/db=sales -v ""C:\My Files\a.txt"" rest") : Check "splitCommandLine", r, CLng(3)
r = Empty : r = app.cmdHasParam("-DB") : Check "cmdHasParam", r, True
r = Empty : r = app.cmdParam("V") : Check "cmdParam", r, "C:\My Files\a.txt"
r = Empty : r = app.cmdParam(1, "none") : Check "cmdParam by position", r, "rest"
r = Empty : r = app.cmdParam("missing", 7) : Check "cmdParam default", r, 7
Dim params
params = Empty : params = app.cmdParams()
Check "cmdParams lists every parameter", UBound(params), CLng(2)
Check "cmdParams gives typCmdParam records", params(0).Name & "=" & params(0).value, "db=sales"
r = Empty : r = app.splitCommandLine() : Check "splitCommandLine of the process", r >= 1, True

' The class on its own, as CreateObject makes it.
Dim bare
Set bare = Nothing
Set bare = CreateObject("velkor6.applib")
Check "CreateObject velkor6.applib", TypeName(bare), "applib"

Set app = Nothing
r = Empty : r = o.vkrInitApp(Nothing, "x")
CheckError "vkrInitApp without an application object", 91, "velkor6", ""

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
