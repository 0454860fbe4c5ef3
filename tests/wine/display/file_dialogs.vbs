' The system's file dialogs and folder chooser as the library shows them, answered from the
' keyboard by dialog_keys (the first argument), which waits for each window by its title.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Dim o, sh, fso, helper, shots, folder, r

Set o = CreateObject("velkor6.lib")
Set sh = CreateObject("WScript.Shell")
Set fso = CreateObject("Scripting.FileSystemObject")
helper = WScript.Arguments(0)
shots = ""
If WScript.Arguments.Count > 1 Then shots = WScript.Arguments(1)

' A screenshot step named so, when the runner takes screenshots (--shots); else nothing.
Function Shot(name)
    Shot = ""
    If shots <> "" Then Shot = """shot:" & shots & "\" & name & ".ready"" "
End Function

' What each call returned, for the log.
Sub Note(what)
    WScript.Echo what & ": [" & r & "]"
End Sub

Sub Answer(title, steps)
    sh.Run """" & helper & """ """ & title & """ " & steps, 0, False
End Sub

folder = o.vkrTempDir() & "velkor6-file-dialogs\"
If fso.FolderExists(folder) Then fso.DeleteFolder Left(folder, Len(folder) - 1), True
fso.CreateFolder folder
fso.CreateFolder folder & "sub"
fso.CreateTextFile(folder & "a.txt", True).Close
fso.CreateTextFile(folder & "b.txt", True).Close
Const OFN_ALLOWMULTISELECT = 512, OFN_FILEMUSTEXIST = 4096, BIF_EDITBOX = 16

Answer "fd-open", Shot("file-open") & "text:a.txt Enter"
r = Empty : r = o.vkrFileDialog(False, "fd-open", "Texts (*.TXT)|*.TXT|All|*.*", folder, OFN_FILEMUSTEXIST)
Note "vkrFileDialog"
Check "the open dialog returns the typed file", r, folder & "a.txt"

Answer "fd-save", "text:report Enter"
r = Empty : r = o.vkrFileDialog(True, "fd-save", "Texts|*.txt", folder, 0, "txt")
Note "vkrFileDialog"
Check "the save dialog adds the default extension", r, folder & "report.txt"

Answer "fd-cancel", "Esc"
r = Empty : r = o.vkrFileDialog(False, "fd-cancel", "", folder)
Note "vkrFileDialog"
Check "Esc cancels the file dialog", r, ""

Answer "fd-multi", """text:\""a.txt\"" \""b.txt\"""" Enter"
r = Empty : r = o.vkrFileDialog(False, "fd-multi", "", folder, OFN_ALLOWMULTISELECT)
Note "vkrFileDialog"
Check "several files come back joined by |", r, folder & "a.txt|" & folder & "b.txt"

Answer "fd-folder", "text:sub Enter"
r = Empty : r = o.vkrChoosePath("fd-folder", folder, 65 + BIF_EDITBOX)
Note "vkrChoosePath"
Check "the chooser returns the typed folder", r, folder & "sub"

Answer "fd-new", Shot("folder-chooser") & "text:made Enter"
r = Empty : r = o.vkrChoosePath("fd-new", folder)
Note "vkrChoosePath"
Check "a name typed into the chooser becomes a new folder", r, folder & "made"
Check "the new folder exists", fso.FolderExists(folder & "made"), True

' Below a file no folder can be made: the library's error box, then the chooser again.
' The first helper's last key, sent as real input after the error box is gone, reaches the
' chooser that opened again.
Answer "fd-fail", "text:a.txt\x Enter wait:5000 Esc"
Answer "velkor6.vkrChoosePath", Shot("folder-error") & "Enter"
r = Empty : r = o.vkrChoosePath("fd-fail", folder)
Note "vkrChoosePath"
Check "a folder that cannot be made ends in the error box and a cancelled chooser", r, ""

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
