' The library's own dialogs drawn in real windows and answered from the keyboard: before each
' call the script starts dialog_keys (its first argument), which waits for the box by its title
' and types what a user would.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Class Pointed
    Public MousePointer
End Class

Class HostApp
    Public Path
    Public EXEName
    Public Major
    Public Minor
    Public Revision
End Class


Dim o, sh, helper, app, host, r, v, captions, pointer
Set o = CreateObject("velkor6.lib")
Set sh = CreateObject("WScript.Shell")
helper = WScript.Arguments(0)

' Starts the helper for the box titled `title` with its steps (separated by blanks, a step with
' blanks in quotes); it gives up after 20 s without the box.
Sub Answer(title, steps)
    sh.Run """" & helper & """ """ & title & """ " & steps, 0, False
End Sub

Set host = New HostApp
host.Path = o.vkrTempDir()
host.EXEName = "winedialogs"
host.Major = 1
host.Minor = 0
host.Revision = 0
Set app = o.vkrInitApp(host, "winedialogs")
app.language = 2

Answer "yn-letter", "N"
r = Empty : r = o.vkrMsgBox("Save the changes?", "The file was changed.", 4, "yn-letter")
Check "N presses No", r, CLng(7)
Answer "yn-esc", "Esc"
r = Empty : r = o.vkrMsgBox("Save the changes?", "", 4, "yn-esc")
Check "Esc presses the cancel button of yes/no (No)", r, CLng(7)
Answer "yn-enter", "Enter"
r = Empty : r = o.vkrMsgBox("Save the changes?", "", 36, "yn-enter")
Check "Enter presses the default button (Yes)", r, CLng(6)
Answer "yn-enter-no", "Enter"
r = Empty : r = o.vkrMsgBox("Save the changes?", "", 36 + 256, "yn-enter-no")
Check "Enter presses the second button when it is the default", r, CLng(7)
Answer "yn-alt", "Alt+Y"
r = Empty : r = o.vkrMsgBox("Save the changes?", "", 4, "yn-alt")
Check "Alt+Y presses Yes", r, CLng(6)
Answer "yn-close", "close"
r = Empty : r = o.vkrMsgBox("Save the changes?", "", 4, "yn-close")
Check "the close box gives 0", r, CLng(0)
Answer "rc-letter", "R"
r = Empty : r = o.vkrMsgBox("The drive is not ready.", "", 5 + 48, "rc-letter")
Check "style 5: R presses Retry", r, CLng(4)
Answer "rc-esc", "Esc"
r = Empty : r = o.vkrMsgBox("The drive is not ready.", "", 5, "rc-esc")
Check "style 5: Esc presses Cancel", r, CLng(2)
Answer "ok-space", "Space"
r = Empty : r = o.vkrMsgBox("Done.", "", 64, "ok-space")
Check "Space presses the focused default button", r, CLng(1)

app.language = 1
Answer "de-alt", "Alt+J"
r = Empty : r = o.vkrMsgBox("Speichern?", "", 4, "de-alt")
Check "German captions: Alt+J presses Ja", r, CLng(6)
app.language = 2

Answer "ext-box", "N"
r = Empty : r = o.vkrExtMsgBox("{\b Bold} and plain|6000|3000", 4, "ext-box")
Check "vkrExtMsgBox: N presses No", r, CLng(7)

captions = Array("&One", "&Two", "T&hree")
Answer "answer-h", "H"
r = Empty : r = o.vkrGetAnswer("Which one?", "Pick a number.", "answer-h", captions)
Check "vkrGetAnswer: the third button's letter", r, CInt(3)
Answer "answer-esc", "Esc"
r = Empty : r = o.vkrGetAnswer("Which one?", "", "answer-esc", captions)
Check "vkrGetAnswer: Esc gives 0", r, CInt(0)

v = "before"
Answer "input-limit", "text:0123456789 Enter"
r = Empty : r = o.vkrInputValue("08|Code", "input-limit", v)
Check "vkrInputValue: OK gives 1", r, CLng(1)
Check "vkrInputValue: at most 8 characters", v, "01234567"
v = "unchanged"
Answer "input-esc", "text:abc Esc"
r = Empty : r = o.vkrInputValue("Name", "input-esc", v, "preset")
Check "vkrInputValue: Esc gives 2", r, CLng(2)
Check "vkrInputValue: Esc leaves the value", v, "unchanged"
v = ""
Answer "input-code", "text:secret Enter"
r = Empty : r = o.vkrInputCode("Password", "input-code", v)
Check "vkrInputCode: OK gives 1", r, CLng(1)
Check "vkrInputCode: the typed code", v, "secret"

' The zoom editor cannot be shown from here: it asks its source for its type name, and the
' objects of Wine's VBScript classes have no type information. Such a source is refused.
o.vkrZoomTextBox app, host, "Notes"
r = Err.Number : Err.Clear
Check "vkrZoomTextBox refuses a source that is no control with error 5", r, CLng(5)

' vkrAsk is the system's message box.
Answer "ask", "Enter"
r = Empty : r = o.vkrAsk("Continue?", "ask")
Check "vkrAsk: Enter presses Yes", r, True
Answer "ext-ask", "Enter"
r = Empty : r = o.vkrExtAsk("Continue?", "ext-ask", 0, 0, True)
Check "vkrExtAsk: Enter presses the default No", r, False

Set pointer = New Pointed
pointer.MousePointer = 0
o.vkrShowWait(pointer) = True
Check "vkrShowWait sets the wait pointer", CLng(pointer.MousePointer), CLng(11)
o.vkrShowWait(pointer) = False
Check "vkrShowWait sets the default pointer", CLng(pointer.MousePointer), CLng(0)

Answer "velkor6.test", "Enter"
o.vkrErrorMsg 53, "File not found", "velkor6.test"
Check "vkrErrorMsg returns after OK", Err.Number, CLng(0)

o.vkrSendMessage "Working...", "status", True, 3, 10
Check "vkrSendMessage opens the status window", Err.Number, CLng(0)
o.vkrSendMessage , , , 7
Check "vkrSendMessage advances the counter", Err.Number, CLng(0)
o.vkrHideMessage
o.vkrClearMessage
Check "vkrClearMessage closes it", Err.Number, CLng(0)

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
