' Class lib's translucent pictures from a late-bound client: a small bitmap file written here,
' blended into a StdPicture, that picture read back through its Handle, and drawn into the file;
' the fades by name answer False for a handle that is no window.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Dim o, r, fso, shell, folder, path, stream, i, pic, again, bytes

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
Check "the file keeps its size", Len(r), 70
Check "the blended pixel", Asc(Mid(r, 55, 1)), 75
Check "the row padding", Asc(Mid(r, 61, 1)), 0
r = Empty : r = o.glbDrawSemiTransparentPicture(path, pic, 2, 2)
Check "a picture beside the target draws nothing", r, False
fso.DeleteFile path

r = Empty : r = o.vkrGlobalVar("FadeInit", 0) : Check "FadeInit without a window", r, False
r = Empty : r = o.vkrGlobalVar("FadeIn", Array(0, 100)) : Check "FadeIn without a window", r, False

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
