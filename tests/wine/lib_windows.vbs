' Class lib's window members from a late-bound client: another process's window (the helper
' program named by VELKOR6_WINDOW_HELPER) found by class and caption and waited for until it
' vanishes; the caller's forms found by name; the shape, metric and input members answer.
' Check, Fail and the counters come from check.inc, which the runner puts first.


' The caller's forms: Count and a default member indexed from 0, each form with a Name.
Class Form
    Public Name
    Public Enabled
End Class

Dim o, r, shell, helper, hwnd, forms, main, found, size
Set o = CreateObject("velkor6.lib")
Set shell = CreateObject("WScript.Shell")
helper = "Z:" & Replace(shell.Environment("PROCESS")("VELKOR6_WINDOW_HELPER"), "/", "\")

Set main = New Form
main.Name = "frmMain"
main.Enabled = True

' No window of the class before the helper starts.
r = Empty : r = o.vkrFindWindow(-1, "VelkorTestWindow", "*") : Check "no helper window yet", r, CLng(0)
shell.Run """" & helper & """ 4000", 0, False
r = Empty : r = o.vkrWaitForClassStarted("VelkorTestWindow", "velkor6 helper", 20, main)
Check "vkrWaitForClassStarted sees the helper's window", r, True
Check "the parent form is enabled again", main.Enabled, True
hwnd = Empty : hwnd = o.vkrFindWindow(-1, "VelkorTestWindow", "velkor6 helper")
Check "vkrFindWindow by class and caption", hwnd <> 0, True
r = Empty : r = o.vkrFindWindow(-1, "VelkorTestWindow", "velkor6 h?lper")
Check "vkrFindWindow with a pattern", r, hwnd
r = Empty : r = o.vkrFindWindow(-1, "VelkorTestWindow", "VELKOR6 HELPER")
Check "vkrFindWindow compares with case", r, CLng(0)
r = Empty : r = o.vkrFindWindow(hwnd, "VelkorTestWindow", "*", True)
Check "vkrFindWindow finds no second one", r, CLng(0)

' The shape, z-order and metric members on the helper's window: each answers without an error.
Set size = Nothing
o.vkrGetInternalFormSize hwnd, size
Check "vkrGetInternalFormSize gives a SIZE record", TypeName(size) <> "Nothing", True
Check "vkrGetInternalFormSize CX in twips", size.CX, CLng(300 * 15)
Check "vkrGetInternalFormSize CY in twips", size.CY, CLng(200 * 15)
o.vkrTopMost hwnd : Check "vkrTopMost", Err.Number, CLng(0)
o.vkrOpenTopMost hwnd, True : Check "vkrOpenTopMost", Err.Number, CLng(0)
o.vkrOpenApplicationTopMost hwnd, 0, True : Check "vkrOpenApplicationTopMost", Err.Number, CLng(0)
o.vkrApplicationTopMost hwnd, hwnd : Check "vkrApplicationTopMost", Err.Number, CLng(0)
o.vkrRoundWindow hwnd, 10, 10 : Check "vkrRoundWindow", Err.Number, CLng(0)
o.vkrWindowShadow 0 : Check "vkrWindowShadow", Err.Number, CLng(0)
o.vkrClipCursor hwnd : Check "vkrClipCursor", Err.Number, CLng(0)
o.vkrClipCursor : Check "vkrClipCursor released", Err.Number, CLng(0)
r = Empty : r = o.vkrGetFrameSize(0) : Check "vkrGetFrameSize", r >= 0, True
r = Empty : r = o.vkrGetMenuHeight() : Check "vkrGetMenuHeight", r > 0, True
r = Empty : r = o.vkrGetScreenWidth() : Check "vkrGetScreenWidth", r > 0, True
r = Empty : r = o.vkrGetScreenHeight() : Check "vkrGetScreenHeight", r > 0, True
r = Empty : r = o.vkrIsKeyDown(27) : Check "vkrIsKeyDown", r, False
r = Empty : r = o.vkrIsMouseButtonDown(4) : Check "vkrIsMouseButtonDown", r, False
o.vkrWait 50 : Check "vkrWait", Err.Number, CLng(0)
o.vkrWait 10, False : Check "vkrWait passive", Err.Number, CLng(0)

r = Empty : r = o.vkrWaitForClassFinished("VelkorTestWindow", "velkor6 helper", 20, main)
Check "vkrWaitForClassFinished sees the window vanish", r, True
r = Empty : r = o.vkrFindWindow(-1, "VelkorTestWindow", "*") : Check "the helper window is gone", r, CLng(0)
Check "the parent form is enabled after the wait", main.Enabled, True

Set forms = New ObjectPair
Dim splash
Set splash = New Form
splash.Name = "frmSplash"
forms.SetItem 0, splash
forms.SetItem 1, main
found = "untouched"
r = Empty : r = o.vkrIsFormOpen(forms, "FRMMAIN", found)
Check "vkrIsFormOpen by name in any case", r, True
Check "vkrIsFormOpen gives the form", found Is main, True
found = "untouched"
r = Empty : r = o.vkrIsFormOpen(forms, "frmOther", found)
Check "vkrIsFormOpen for a form not loaded", r, False
Check "vkrIsFormOpen leaves oForm alone", found, "untouched"

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
