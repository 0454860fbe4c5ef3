' Shows the language chooser once in German and once in English for a screenshot, with three
' resource libraries on disk; dialog_keys (the first argument) asks for the picture when the
' chooser is up, then closes it with Esc, which leaves the language as it was.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Class HostApp
    Public Path
    Public EXEName
    Public Major
    Public Minor
    Public Revision
End Class

Dim o, sh, fso, helper, shots, app, host, r, folder, code, language, suffix
Set o = CreateObject("velkor6.lib")
Set sh = CreateObject("WScript.Shell")
Set fso = CreateObject("Scripting.FileSystemObject")
helper = WScript.Arguments(0)
shots = WScript.Arguments(1)

folder = o.vkrTempDir() & "velkor6-chooser"
If Not fso.FolderExists(folder) Then fso.CreateFolder folder
For Each code In Array("DE", "EN", "FR")
    fso.CreateTextFile(folder & "\Res" & code & ".dll", True).Write "MZ"
Next
Set host = New HostApp
host.Path = folder
host.EXEName = "winechooser"
host.Major = 1
host.Minor = 0
host.Revision = 0
Set app = o.vkrInitApp(host, "winechooser")
app.stringValue("Application", "ResourceDLL") = folder & "\Res%L.dll"

For Each language In Array(1, 2)
    app.language = language
    If language = 1 Then suffix = "-de" Else suffix = "-en"
    If language = 1 Then r = "Sprache" Else r = "Language"
    sh.Run """" & helper & """ """ & r & """ ""shot:" & shots & "\language-chooser" & suffix & _
           ".ready"" Esc", 0, False
    r = Empty : r = app.chooseLanguage()
    Check "chooser closed with Esc" & suffix, r, CInt(0)
    r = Empty : r = app.language
    Check "language kept" & suffix, r, CInt(language)
Next

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
