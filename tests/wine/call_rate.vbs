' Late-bound calls per second to lib.vkrFindSubString against VBScript's own InStr on the same
' inputs. Passes when both ran; the numbers are for reading.
' Option Explicit and the shared checks come first from check.inc (see run_scripts.sh).

Const calls = 100000
Dim o, i, r, started, libSeconds, inStrSeconds, source
Set o = CreateObject("velkor6.lib")
source = "Select a, b FROM t WHERE x = 1"

started = Timer
For i = 1 To calls
    r = o.vkrFindSubString(source, "where", 1, True)
Next
libSeconds = Timer - started
If Err.Number <> 0 Or r <> 20 Then
    WScript.Echo "FAIL vkrFindSubString: error " & Err.Number & " " & Err.Description & ", result " & r
    WScript.Echo "0 passed, 1 failed"
    WScript.Quit 1
End If

started = Timer
For i = 1 To calls
    r = InStr(1, source, "where", vbTextCompare)
Next
inStrSeconds = Timer - started

If libSeconds <= 0 Then libSeconds = 0.001
If inStrSeconds <= 0 Then inStrSeconds = 0.001
WScript.Echo "lib.vkrFindSubString: " & Round(calls / libSeconds) & " calls per second"
WScript.Echo "InStr: " & Round(calls / inStrSeconds) & " calls per second"
' Wine's Round drops its second argument: two decimals by hand.
WScript.Echo "ratio vkrFindSubString / InStr: " & Int(100 * inStrSeconds / libSeconds + 0.5) / 100
WScript.Echo "1 passed, 0 failed"
WScript.Quit 0
