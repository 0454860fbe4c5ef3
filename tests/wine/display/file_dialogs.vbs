' The system's file dialogs and folder chooser as the library shows them, answered from the
' keyboard by dialog_keys (the first argument), which waits for each window by its title.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Dim o, sh, fso, helper, folder, r

Set o = CreateObject("velkor6.lib")
Set sh = CreateObject("WScript.Shell")
Set fso = CreateObject("Scripting.FileSystemObject")
helper = WScript.Arguments(0)

Sub Answer(title, steps)
    sh.Run """" & helper & """ """ & title & """ " & steps, 0, False
End Sub

' As Answer, but the helper starts looking only after `ms` milliseconds, for a window that opens
' again under the title of one answered before.
Sub AnswerLater(title, steps, ms)
    Dim script, file
    script = folder & "later-" & ms & ".vbs"
    Set file = fso.CreateTextFile(script, True)
    file.WriteLine "WScript.Sleep " & ms
    file.WriteLine "CreateObject(""WScript.Shell"").Run """ & Replace("""" & helper & """ """ & _
        title & """ " & steps, """", """""") & """, 0, False"
    file.Close
    sh.Run "cscript //nologo """ & script & """", 0, False
End Sub

folder = o.vkrTempDir() & "velkor6-file-dialogs\"
If fso.FolderExists(folder) Then fso.DeleteFolder Left(folder, Len(folder) - 1), True
fso.CreateFolder folder
fso.CreateFolder folder & "sub"
fso.CreateTextFile(folder & "a.txt", True).Close
fso.CreateTextFile(folder & "b.txt", True).Close
Const OFN_ALLOWMULTISELECT = 512, OFN_FILEMUSTEXIST = 4096, BIF_EDITBOX = 16

Answer "fd-open", "text:a.txt Enter"
r = Empty : r = o.vkrFileDialog(False, "fd-open", "Texts (*.TXT)|*.TXT|All|*.*", folder, OFN_FILEMUSTEXIST)
Check "the open dialog returns the typed file", r, folder & "a.txt"

Answer "fd-save", "text:report Enter"
r = Empty : r = o.vkrFileDialog(True, "fd-save", "Texts|*.txt", folder, 0, "txt")
Check "the save dialog adds the default extension", r, folder & "report.txt"

Answer "fd-cancel", "Esc"
r = Empty : r = o.vkrFileDialog(False, "fd-cancel", "", folder)
Check "Esc cancels the file dialog", r, ""

Answer "fd-multi", """text:\""a.txt\"" \""b.txt\"""" Enter"
r = Empty : r = o.vkrFileDialog(False, "fd-multi", "", folder, OFN_ALLOWMULTISELECT)
Check "several files come back joined by |", r, folder & "a.txt|" & folder & "b.txt"

Answer "fd-folder", "text:sub Enter"
r = Empty : r = o.vkrChoosePath("fd-folder", folder, 65 + BIF_EDITBOX)
Check "the chooser returns the typed folder", r, folder & "sub"

Answer "fd-new", "text:made Enter"
r = Empty : r = o.vkrChoosePath("fd-new", folder)
Check "a name typed into the chooser becomes a new folder", r, folder & "made"
Check "the new folder exists", fso.FolderExists(folder & "made"), True

' Below a file no folder can be made: the library's error box, then the chooser again.
Answer "fd-fail", "text:a.txt\x Enter"
Answer "velkor6.vkrChoosePath", "Enter"
AnswerLater "fd-fail", "Esc", 6000
r = Empty : r = o.vkrChoosePath("fd-fail", folder)
Check "a folder that cannot be made ends in the error box and a cancelled chooser", r, ""

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
