' A short tour of the library: each line is one call, its result and ByRef values follow.
' Run it with: velkor6 --typed < examples/tour.vb

' Searching with alternatives: the earliest position wins, or the first alternative listed.
vkrFindSubString("Select a, b FROM t", "from|select")
vkrFindSubString("Select a, b FROM t", "from|select", bFindFirst:=False)
' Whole words; the last character of the text never blocks a match.
vkrFindSubString("concat x", "cat", bWholeWord:=True)
vkrFindSubString("cats", "cat", bWholeWord:=True)
vkrFindLastSubString("aaaa", "aa")
vkrCountSubString("a, b, c", ",|b")
vkrCountSubStringExt("f(a, b), c", ",", sNotInSigns:="()")
vkrGetSubString("Name: Smith; Age: 42", "Name:", ";")
vkrSeparateString("key = value", "=", "", "", "")
' Replacing leaves double-quoted literals alone.
vkrReplaceInString("x = ""a"" & a", "a", "b")
vkrReplaceInStringExt("f(x) + x", "x", "y", sNotInSigns:="()")
vkrIsInSigns("say 'hi' now", "''", 6, 2)
vkrIsNumericWord("(1.5)", 2, 3)
vkrMid("abcdef", 2, 2)
vkrMid("abcdef", 2, 2) = "XYZ"

' Numbers typed by users: stray characters and grouping marks are dropped.
vkrVal("EUR 1,234.50")
vkrVal("1.234.567")
vkrCVal(5, Null)
vkrCVal(3, "42")
vkrRound(2.5, 0)
vkrRound(-2.675, 2)
vkrHexToDec("FFFFFFFF")
vkrHexToDec("x" & Chr(1) & Chr(2))
vkrHex2Dbl("&H1000000")
vkrDbl2Hex(255, 4)
vkrBruchrechnung(0.75, 0, 0)
vkrCompare(1.05, 1, 0.1)
vkrAND(7, 5)

' SQL literals for both dialects, in any locale.
vkrSQLDate(#2024-03-15 13:45:00#)
vkrSQLDate(#2024-03-15#, True)
vkrSQLFilter(Array("Name", "Smith", "Active", True, "Amount", 12.5))
vkrIsEmpty("")

' Compression: the packed text is one character per byte.
vkrGlobalVar("Deflate", "TOBEORNOTTOBEORTOBEORNOT")

' Paths in the platform's style.
vkrGetFullPath("/usr/share", "doc")

' Texts for generated files.
prfReplacePredefinedExpressions("Dear %NAME%,%TAB%%name%", Array("NAME", "Smith"))
prfPreFormatXML("<a><b>x</b><c/></a>")

' Errors are reported with their number and source: an empty alternative never stops counting.
vkrCountSubString("abc", "a|")
