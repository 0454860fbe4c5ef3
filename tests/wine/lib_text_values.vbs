' Class lib from a late-bound client: the text, number, SQL and call-by-name members, and how
' calls cross the boundary (omitted optionals, ByRef arguments, errors, arrays, types).
' Check, Fail and the counters come from check.inc, which the runner puts first.

'  A collection of the caller's own, as the library reaches it: Count and Remove.
Class Bag3
    Private n
    Private Sub Class_Initialize()
        n = 3
    End Sub
    Public Property Get Count()
        Count = n
    End Property
    Public Sub Remove(index)
        If index < 1 Or index > n Then Err.Raise 9
        n = n - 1
    End Sub
End Class

Dim o, r, s1, s2, s3, n1, n2, arr
Set o = CreateObject("velkor6.lib")
Check "CreateObject velkor6.lib", TypeName(o), "lib"
Set o = Nothing
Set o = CreateObject("velkor6.lib.1")
Check "the versioned ProgID", TypeName(o), "lib"

' --- Substring search, count and replace ---------------------------------------------------
r = Empty : r = o.vkrFindSubString("Select a, b FROM t", "from|select") : Check "vkrFindSubString first", r, CInt(1)
s1 = "unchanged"
r = Empty : r = o.vkrFindSubString("Select a, b FROM t", "from|select", 1, True, False, False, s1)
Check "vkrFindSubString listed", r, CInt(13)
Check "vkrFindSubString ByRef sFound", s1, "from"
' A gap in the arguments leaves that optional at its default.
r = Empty : r = o.vkrFindSubString("aXa", "x", , False) : Check "vkrFindSubString gap", r, CInt(0)
r = Empty : r = o.vkrFindSubString("aXa", "x", , True) : Check "vkrFindSubString ignore case", r, CInt(2)
r = Empty : r = o.vkrFindLastSubString("abcabc", "bc") : Check "vkrFindLastSubString", r, CInt(5)
r = Empty : r = o.vkrHasSubString("Hello World", "WORLD") : Check "vkrHasSubString", r, CInt(-1)
r = Empty : r = o.vkrHasSubString("Hello World", "WORLD", 1, False) : Check "vkrHasSubString case", r, CInt(0)
r = Empty : r = o.vkrCountSubString("a-a-a", "a") : Check "vkrCountSubString", r, CInt(3)
r = Empty : r = o.vkrCountSubStringExt("x 'x' x", "x", 1, True, "''") : Check "vkrCountSubStringExt", r, CInt(2)
r = Empty : r = o.vkrGetSubString("key=[value];", "[", "]") : Check "vkrGetSubString", r, "value"
s1 = "" : s2 = "" : s3 = ""
o.vkrSeparateString "name = value", "=", s1, s2, s3
Check "vkrSeparateString trims the parts", s1 & "|" & s2 & "|" & s3, "name|=|value"
r = Empty : r = o.vkrReplaceInString("one two one", "one", "1") : Check "vkrReplaceInString", r, "1 two 1"
r = Empty : r = o.vkrReplaceInStringExt("a1 b2 a1", "a1", "X") : Check "vkrReplaceInStringExt", r, "X b2 X"
s1 = "a 'b' c" : s2 = "''" : n1 = 4 : n2 = 1
r = Empty : r = o.vkrIsInSigns(s1, s2, n1, n2) : Check "vkrIsInSigns", r, True
s1 = "ab 123 cd" : n1 = 4 : n2 = 3
r = Empty : r = o.vkrIsNumericWord(s1, n1, n2) : Check "vkrIsNumericWord", r, True
Check "vkrIsNumericWord keeps its ByRef Integer", TypeName(n1), "Integer"
s1 = "abcdef"
r = Empty : r = o.vkrMid(s1, 2, 3) : Check "vkrMid get", r, "bcd"
o.vkrMid(s1, 2, 3) = "XYZ" : Check "vkrMid let writes the ByRef source", s1, "aXYZef"

' --- Number parsing and conversion ---------------------------------------------------------
r = Empty : r = o.vkrVal("12.5 kg") : Check "vkrVal", r, CDbl(12.5)
r = Empty : r = o.vkrCVal(3, "42") : Check "vkrCVal Long", r, CLng(42)
r = Empty : r = o.vkrCVal(8, Null) : Check "vkrCVal Null gives the type's default", r, ""
r = Empty : r = o.vkrRound(2.345, 2) : Check "vkrRound", r, CDbl(2.35)
s1 = "FF"
r = Empty : r = o.vkrHexToDec(s1) : Check "vkrHexToDec", r, CLng(255)
r = Empty : r = o.vkrHex2Dbl("1000000000") : Check "vkrHex2Dbl", r, CDbl(68719476736)
r = Empty : r = o.vkrDbl2Hex(4294967296, 12) : Check "vkrDbl2Hex", r, "000100000000"
r = Empty : r = o.vkrDbl2Hex(1E+20) : CheckError "vkrDbl2Hex overflow", 6, "velkor6", ""
n1 = 0 : n2 = 0
o.vkrBruchrechnung 0.75, n1, n2 : Check "vkrBruchrechnung", n1 & "/" & n2, "3/4"
Check "vkrBruchrechnung ByRef Long", TypeName(n1), "Long"
r = Empty : r = o.vkrCompare(1.0, 1.05, 0.1) : Check "vkrCompare", r, True
r = Empty : r = o.vkrAND(6, 4) : Check "vkrAND", r, True
r = Empty : r = o.vkrAND(6, 1) : Check "vkrAND none", r, False

' --- SQL literals and value helpers ---------------------------------------------------------
r = Empty : r = o.vkrSQLDate(DateSerial(2024, 3, 15)) : Check "vkrSQLDate", r, "#2024/03/15#"
r = Empty : r = o.vkrSQLDouble(1234.5) : Check "vkrSQLDouble", r, "1234.5"
arr = Array("Name", "Smith")
r = Empty : r = o.vkrSQLFilter(arr) : Check "vkrSQLFilter", Len(r) > 0, True
r = Empty : r = o.vkrGetNotNullValue(Null) : Check "vkrGetNotNullValue", IsEmpty(r), True
r = Empty : r = o.vkrIsEmpty("") : Check "vkrIsEmpty", r, True
arr = Array(1, "two", 3)
r = Empty : r = o.vkrIsInList("two", arr) : Check "vkrIsInList", r, True
r = Empty : r = o.vkrArrayHasData(arr) : Check "vkrArrayHasData", r, True
arr = Array("pear", "apple", "fig")
o.vkrBubbleSort arr : Check "vkrBubbleSort sorts the caller's array", arr, Array("apple", "fig", "pear")
Dim bag
Set bag = New Bag3
o.vkrClearCollection bag : Check "vkrClearCollection empties the caller's collection", bag.Count, 0
o.vkrClearCollection bag, True : Check "vkrClearCollection sets it to Nothing", bag Is Nothing, True

' --- Call by name and compression ----------------------------------------------------------
Dim packed
packed = Empty : packed = o.vkrGlobalVar("Deflate", "abcabcabcabc")
r = Empty : r = o.vkrGlobalVar("INFLATE", packed) : Check "vkrGlobalVar Deflate and Inflate", r, "abcabcabcabc"

r = Empty : r = o.vkrGlobalVar("GetFontList") : Check "vkrGlobalVar GetFontList gives an array", IsArray(r) And LBound(r) = 0, True
Dim fontSet, fontCount
fontCount = UBound(r) + 1
Set fontSet = Nothing
Set fontSet = o.vkrGlobalObj("GetFontList") : Check "vkrGlobalObj GetFontList gives a Collection", fontSet.Count, fontCount
r = Empty : r = o.vkrProperty("getfontlist") : Check "vkrProperty GetFontList", UBound(r) + 1, fontCount
Set fontSet = o.vkrGlobalObj("Deflate")
CheckError "vkrGlobalObj of a name it does not know", 438, "velkor6.vkrGlobalObj", ""

' --- Brackets and expressions --------------------------------------------------------------
Dim rest, fname, fargs
r = Empty : r = o.vkrExtractBrackets("Sum(a * (b + 1)) + c") : Check "vkrExtractBrackets", r, "a * (b + 1)"
r = Empty : r = o.vkrExtractBrackets("(a)", "(", 1)
CheckError "vkrExtractBrackets with a broken pair", 5, "velkor6", ""
rest = ""
r = Empty : r = o.vkrExtractExpression("f(a, b), 'x,y', 3", ",", "()|[]|{}", True, rest) : Check "vkrExtractExpression", r, "f(a, b)"
Check "vkrExtractExpression gives the rest", rest, "'x,y', 3"
r = Empty : r = o.vkrPhraseWithoutBrackets("Customer (inactive) list") : Check "vkrPhraseWithoutBrackets", r, "Customer list"
fname = "" : fargs = Empty
r = Empty : r = o.vkrSeparateFunction("IIf(a > 1, 'x, y', Max(b, c))", fname, fargs) : Check "vkrSeparateFunction", r, True
Check "vkrSeparateFunction gives the name", fname, "IIf"
Check "vkrSeparateFunction gives the arguments", fargs, Array("a > 1", "'x, y'", "Max(b, c)")
r = Empty : r = o.vkrReplaceDecimalChars("x = 1.234,5 AND c = '2,5'", ",") : Check "vkrReplaceDecimalChars", r, "x = 1234.5 AND c = '2,5'"
r = Empty : r = o.vkrResConv("&Ja <1>") : Check "vkrResConv to XML", r, "&amp;Ja &lt;1&gt;"
r = Empty : r = o.vkrResConv("&amp;Ja&#10;", False) : Check "vkrResConv back", r, "&Ja" & vbLf

' --- Number codes and value scrambling -----------------------------------------------------
r = Empty : r = o.vkrLng2Str(-2147483648) : Check "vkrLng2Str of the smallest Long", r, "-ZIK0ZK"
r = Empty : r = o.vkrStr2Lng("-zik0zk") : Check "vkrStr2Lng", r, CLng("-2147483648")
r = Empty : r = o.vkrStr2Lng("1 2")
CheckError "vkrStr2Lng of no code", 13, "velkor6", "Type mismatch"
r = Empty : r = o.vkrStr2Lng("ZIK0ZK")
CheckError "vkrStr2Lng beyond a Long", 6, "velkor6", "Overflow"
Dim secret, plain
plain = "Geheim; =x " & Chr(13) & Chr(10)
secret = Empty : secret = o.vkrEncryptedValue(plain)
Check "vkrEncryptedValue writes no ; or =", InStr(secret, ";") + InStr(secret, "=") + InStr(secret, " "), CLng(0)
r = Empty : r = o.vkrDecryptedValue(secret) : Check "vkrDecryptedValue", r, plain
r = Empty : r = o.vkrDecryptedValue("Geheim")
CheckError "vkrDecryptedValue of a text typed in", -2147221504, "velkor6.vkrDecryptedValue", ""

' --- How calls cross the boundary ------------------------------------------------------------
r = Empty : r = o.vkrNoSuchMember(1)
CheckError "an unknown member", 438, "Microsoft VBScript runtime error", ""
r = Empty : r = o.vkrFindSubString("only one")
CheckError "a missing argument", 449, "velkor6", "Argument not optional"
r = Empty : r = o.vkrAND(1, 2, 3)
CheckError "too many arguments", 450, "velkor6", ""
r = Empty : r = o.vkrAND("x", 2)
CheckError "an argument of the wrong type", 13, "velkor6", "Type mismatch"
r = Empty : r = o.vkrFindSubString("a", "a", 40000)
CheckError "an Integer argument that overflows", 6, "velkor6", "Overflow"
r = Empty : r = o.vkrFindSubString("x", "x", "2") : Check "text read as a number", r, CInt(0)
r = Empty : r = o.VKRFINDSUBSTRING("abc", "C") : Check "names in any letter case", r, CInt(3)

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
