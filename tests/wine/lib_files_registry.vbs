' Class lib from a late-bound client on Windows: paths and files, folders and special folders,
' and registry reading, against the real file system and registry.
' Check, Fail and the counters come from check.inc, which the runner puts first.


Const HKCU = &H80000001

Dim o, r, fso, shell, temp, folder, other, info
Set o = CreateObject("velkor6.lib")
Set fso = CreateObject("Scripting.FileSystemObject")
Set shell = CreateObject("WScript.Shell")

' --- Paths and files -------------------------------------------------------------------------
temp = Empty : temp = o.vkrTempDir() : Check "vkrTempDir is the temporary folder", fso.FolderExists(temp), True
r = Empty : r = o.vkrSystemDir() : Check "vkrSystemDir", fso.FolderExists(r), True
folder = temp & "velkor6-wine-files"
other = folder & "\copy"
If fso.FolderExists(folder) Then fso.DeleteFolder folder, True
r = Empty : r = o.prfMakeDir(folder) : Check "prfMakeDir", r, True
r = Empty : r = o.prfMakeDir(other) : Check "prfMakeDir again", r, True
r = Empty : r = o.vkrPathExists(folder) : Check "vkrPathExists", r, True
r = Empty : r = o.vkrGetFullPath(folder, "a.txt") : Check "vkrGetFullPath", r, folder & "\a.txt"

o.vkrFileStream(folder & "\a.txt") = "first line" & vbCrLf : Check "vkrFileStream let", Err.Number, CLng(0)
' The let adds CR LF; the get gives the bytes as they are.
r = Empty : r = o.vkrFileStream(folder & "\a.txt") : Check "vkrFileStream get", r, "first line" & vbCrLf & vbCrLf
r = Empty : r = o.prfTextStream(folder & "\a.txt") : Check "prfTextStream", r, "first line" & vbCrLf & vbCrLf
r = Empty : r = o.prfPreFormatXML("<a><b/></a>") : Check "prfPreFormatXML", r, "<a>" & vbCrLf & vbTab & "<b/>" & vbCrLf & "</a>"
r = "x%TAB%%K%" : o.prfReplacePredefinedExpressions r, Array("K", "v") : Check "prfReplacePredefinedExpressions", r, "x" & vbTab & "v"
r = Empty : r = o.vkrFileExists(folder & "\a.txt") : Check "vkrFileExists", r, True
r = Empty : r = o.vkrFileExists(folder & "\none.txt") : Check "vkrFileExists missing", r, False
r = Empty : r = o.vkrCheckAttributes(folder & "\a.txt", 32) : Check "vkrCheckAttributes", TypeName(r), "Boolean"
r = Empty : r = o.vkrFindFile("a.txt", temp) : Check "vkrFindFile", LCase(r), LCase(folder & "\a.txt")

r = Empty : r = o.vkrGetAbsolutePath("C:\data\reports\list.txt", "..\forms\x.frm") : Check "vkrGetAbsolutePath", r, "C:\data\forms\x.frm"
r = Empty : r = o.vkrGetRelativePath("C:\data\reports\list.txt", "C:\data\forms\x.frm") : Check "vkrGetRelativePath", r, "..\forms\x.frm"

info = Empty
r = Empty : r = o.vkrSeparateFile("C:\data\reports\may.txt", info) : Check "vkrSeparateFile", r, True
Check "vkrSeparateFile fills the record", info.lpDrive & "|" & info.lpPath & "|" & info.lpFileName & "|" & info.lpExt, "C|C:\data\reports\|may|txt"

o.vkrChangeToPath folder & "\a.txt" : Check "vkrChangeToPath", LCase(shell.CurrentDirectory), LCase(folder)
r = Empty : r = o.prfChangeDir(temp) : Check "prfChangeDir", r, True

' --- Folders, special folders and file comparison ------------------------------------------
r = Empty : r = o.prfGetSpecialFolder(26) : Check "prfGetSpecialFolder application data", fso.FolderExists(r), True
fso.CopyFile folder & "\a.txt", other & "\a.txt"
r = Empty : r = o.prfCompareFiles("a.txt", folder, other) : Check "prfCompareFiles", r, True
r = Empty : r = o.prfCompareFolders(folder, other, "*.txt") : Check "prfCompareFolders", r, True
r = Empty : r = o.prfGetFileList(folder, "*.txt") : Check "prfGetFileList", IsArray(r), True
Check "prfGetFileList lists the file", LCase(r(LBound(r))) & (UBound(r) - LBound(r)), "a.txt0"
r = Empty : r = o.prfIsAdmin() : Check "prfIsAdmin", TypeName(r), "Boolean"

' --- Registry reading -----------------------------------------------------------------------
shell.RegWrite "HKCU\Software\velkor6-wine\Name", "Wine", "REG_SZ"
shell.RegWrite "HKCU\Software\velkor6-wine\Count", 42, "REG_DWORD"
shell.RegWrite "HKCU\Software\velkor6-wine\Sub1\x", "1", "REG_SZ"
shell.RegWrite "HKCU\Software\velkor6-wine\Sub2\x", "2", "REG_SZ"
r = Empty : r = o.regGetString(HKCU, "Software\velkor6-wine", "Name") : Check "regGetString", r, "Wine"
r = Empty : r = o.regGetString(HKCU, "Software\velkor6-wine", "Nope", "dflt") : Check "regGetString default", r, "dflt"
r = Empty : r = o.regGetLong(HKCU, "Software\velkor6-wine", "Count") : Check "regGetLong", r, CLng(42)
r = Empty : r = o.regGetValue(HKCU, "Software\velkor6-wine", "Name") : Check "regGetValue", r, "Wine"
r = Empty : r = o.regSubKeyCount(HKCU, "Software\velkor6-wine") : Check "regSubKeyCount counts the key and its sub-keys", r, CLng(3)
Dim keys
keys = Array()
o.regFindKeys HKCU, "Software\velkor6-wine", keys : Check "regFindKeys", keys, Array("Sub1", "Sub2")
shell.RegDelete "HKCU\Software\velkor6-wine\Sub1\"
shell.RegDelete "HKCU\Software\velkor6-wine\Sub2\"
shell.RegDelete "HKCU\Software\velkor6-wine\"

fso.DeleteFolder folder, True

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
