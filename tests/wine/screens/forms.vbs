' Shows every form of the library once in German and once in English for a screenshot:
' dialog_keys (the first argument) asks for the picture when the box is up, waits until it is
' taken (in the folder of the second argument), then closes the box with Esc.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Class HostApp
    Public Path
    Public EXEName
    Public Major
    Public Minor
    Public Revision
End Class


Dim o, sh, helper, shots, app, host, r, v, captions, language, suffix
Set o = CreateObject("velkor6.lib")
Set sh = CreateObject("WScript.Shell")
helper = WScript.Arguments(0)
shots = WScript.Arguments(1)

Sub Shoot(title, name, wait)
    sh.Run """" & helper & """ """ & title & """ ""shot:" & shots & "\" & name & suffix & _
           ".ready"" Esc", 0, wait
End Sub

Set host = New HostApp
host.Path = o.vkrTempDir()
host.EXEName = "wineshots"
host.Major = 1
host.Minor = 0
host.Revision = 0
Set app = o.vkrInitApp(host, "wineshots")

For Each language In Array(1, 2)
    app.language = language
    If language = 1 Then suffix = "-de" Else suffix = "-en"

    Shoot "Speichern", "msgbox-yesnocancel", False
    r = o.vkrMsgBox("Sollen die " & Chr(196) & "nderungen gespeichert werden?", _
                    "Die Datei ""Kunden.txt"" wurde seit dem letzten Speichern ge" & Chr(228) & _
                    "ndert.", 3 + 32, "Speichern")
    Check "msgbox yes/no/cancel" & suffix, r, CLng(2)
    Shoot "Laufwerk", "msgbox-abortretryignore", False
    r = o.vkrMsgBox("Das Laufwerk ist nicht bereit.", "", 2 + 16, "Laufwerk")
    Check "msgbox abort/retry/ignore" & suffix, r, CLng(5)
    Shoot "Hinweis", "msgbox-okcancel", False
    r = o.vkrMsgBox("Der Import ist fertig.", "Es wurden 1.234 S" & Chr(228) & "tze gelesen, " & _
                    "davon 12 mit Fehlern; die fehlerhaften S" & Chr(228) & "tze stehen im " & _
                    "Protokoll, das nach dem Schlie" & Chr(223) & "en dieses Fensters angezeigt " & _
                    "wird.", 1 + 64, "Hinweis", 4, 12, True)
    Check "msgbox ok/cancel" & suffix, r, CLng(2)
    Shoot "velkor6.Import", "errormsg", False
    o.vkrErrorMsg -2147221504, "Die Datei wurde nicht gefunden.", "velkor6.Import"
    Shoot "Rich", "extmsgbox", False
    r = o.vkrExtMsgBox("\b Fett\b0  und \i kursiv\i0 , \par zweite Zeile|6000|2500", 4 + 48, "Rich")
    Check "extmsgbox" & suffix, r, CLng(7)
    captions = Array("&Eins", "&Zwei", "&Drei")
    Shoot "Auswahl", "getanswer", False
    r = o.vkrGetAnswer("Welche Variante?", "Die Auswahl gilt f" & Chr(252) & "r alle Kunden.", _
                       "Auswahl", captions)
    Check "getanswer" & suffix, r, CInt(0)
    v = ""
    Shoot "Eingabe", "inputvalue", False
    r = o.vkrInputValue("08|Kundennummer", "Eingabe", v, "K-1234")
    Check "inputvalue" & suffix, r, CLng(2)
    Shoot "Kennwort", "inputcode", False
    r = o.vkrInputCode("Kennwort", "Kennwort", v, "geheim")
    Check "inputcode" & suffix, r, CLng(2)
    o.vkrSendMessage "Bitte warten: \b Kunden\b0  werden gelesen...", "Status", True, 40, 100
    Shoot "Status", "status", True
    o.vkrClearMessage
    Check "status" & suffix, Err.Number, CLng(0)
Next

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
