' Class lib's translucent pictures from a late-bound client: a small bitmap file written here,
' blended into a StdPicture, that picture read back through its Handle, and drawn into the file;
' the fades by name answer False for a handle that is no window. Class applib's form captions on
' a form written as VBScript classes, and the language chooser with no language on disk.
' Check, Fail and the counters come from check.inc, which the runner puts first.

' A form and its controls as loadFormCaption reaches them: Name, Caption or Text, Index for
' array elements, and the Controls collection (Count, Item from 0).
Class Control
    Public Name
    Public Caption
End Class
Class TextBox
    Public Name
    Public Text
End Class
Class Form
    Public Name
    Public Caption
    Public Controls
End Class
Class HostApp
    Public Path
    Public EXEName
    Public Major
    Public Minor
    Public Revision
End Class

Dim o, r, fso, shell, folder, path, stream, i, pic, again, bytes, frm, cmd, txt, host, app, doc

Set o = CreateObject("velkor6.lib")
Set fso = CreateObject("Scripting.FileSystemObject")
Set shell = CreateObject("WScript.Shell")
folder = shell.ExpandEnvironmentStrings("%TEMP%")
path = fso.BuildPath(folder, "velkor6-pictures-" & fso.GetTempName() & ".bmp")

' 2 by 2 pixels at 24 bits, each channel 100; rows of 8 bytes (6 and 2 of padding). Only bytes
' below 128, which every ANSI code page writes unchanged.
bytes = Array(66, 77, 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0, 0, _
              1, 0, 24, 0, 0, 0, 0, 0, 16, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)
Set stream = fso.CreateTextFile(path, True, False)
For i = 0 To UBound(bytes)
    stream.Write Chr(bytes(i))
Next
For i = 1 To 2
    stream.Write String(6, Chr(100)) & String(2, Chr(0))
Next
stream.Close

' Half over black: every channel (100 + 0 + 1) \ 2 = 50.
Set pic = Nothing
Set pic = o.vkrGetSemiTransparentPicture(path, 50, 0)
Check "vkrGetSemiTransparentPicture gives a picture", Err.Number = 0 And Not (pic Is Nothing), True
r = Empty : r = pic.Type : Check "the picture is a bitmap", r, CInt(1)
r = Empty : r = pic.Width : Check "its width in HiMetric", r, CLng(53)
' The StdPicture goes back in through its Handle; a region of one pixel.
Set again = Nothing
Set again = o.vkrGetSemiTransparentPicture(pic, 0, 0, 1, 1, 1, 1)
r = Empty : r = again.Height : Check "a region of the picture", r, CLng(26)
o.vkrGetSemiTransparentPicture path, 50, 0, 5, 5
CheckError "a region outside the picture", 5, "velkor6.vkrGetSemiTransparentPicture", _
    "Invalid procedure call or argument"
o.vkrGetSemiTransparentPicture fso.BuildPath(folder, "no-such-picture.bmp")
CheckError "a missing file", 53, "velkor6.vkrGetSemiTransparentPicture", "File not found"

' The picture of 50s drawn half through over the file's 100s: (50 + 100 + 1) \ 2 = 75.
r = Empty : r = o.glbDrawSemiTransparentPicture(path, pic, 0, 0, 50)
Check "glbDrawSemiTransparentPicture into a file", r, True
Set stream = fso.OpenTextFile(path, 1, False, 0)
r = stream.ReadAll
stream.Close
Check "the file keeps its size", Len(r), CLng(70)
Check "the blended pixel", Asc(Mid(r, 55, 1)), 75
Check "the row padding", Asc(Mid(r, 61, 1)), 0
r = Empty : r = o.glbDrawSemiTransparentPicture(path, pic, 2, 2)
Check "a picture beside the target draws nothing", r, False
fso.DeleteFile path

r = Empty : r = o.vkrGlobalVar("FadeInit", 0) : Check "FadeInit without a window", r, False
r = Empty : r = o.vkrGlobalVar("FadeIn", Array(0, 100)) : Check "FadeIn without a window", r, False

' Captions in English, the text box's from the German fallback; a control the form lacks.
Set frm = New Form
frm.Name = "frmMain"
Set frm.Controls = New ObjectPair
Set cmd = New Control
cmd.Name = "cmdOK"
Set txt = New TextBox
txt.Name = "txtNote"
frm.Controls.SetItem 0, cmd
frm.Controls.SetItem 1, txt
doc = "<resources>" & _
    "<item form='frmMain' name='frmMain' langid='2' text='Customers'/>" & _
    "<item form='frmMain' name='cmdOK' langid='2' text='&amp;Save'/>" & _
    "<item form='frmMain' name='txtNote' langid='1' text='Notiz'/>" & _
    "<item form='frmMain' name='cmdGone' langid='2' text='Gone'/></resources>"
Set host = New HostApp
host.Path = folder
host.EXEName = "winecaptions"
host.Major = 1
host.Minor = 0
host.Revision = 0
Set app = o.vkrInitApp(host, "winecaptions")
app.language = 2
r = Empty : r = app.loadFormCaption(frm, doc) : Check "loadFormCaption counts", r, CLng(3)
Check "the form's caption", frm.Caption, "Customers"
Check "a button's caption", cmd.Caption, "&Save"
Check "a text box's text from the fallback", txt.Text, "Notiz"
r = Empty : r = app.loadFormCaption(frm, "<resources") : Check "a broken document", r, CLng(0)
' No ResourceDLL setting: no language on disk, nothing shown.
r = Empty : r = app.chooseLanguage() : Check "chooseLanguage without languages", r, CInt(0)
r = Empty : r = app.language : Check "the language stays", r, CInt(2)

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
