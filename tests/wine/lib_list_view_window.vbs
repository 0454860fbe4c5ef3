' Class lib's list-view and control members on real windows of the client's process: the list
' view (SysListView32 with check boxes), text box and button that velkor6test.ListView makes,
' reached by their window messages, and applib's column widths on the same list.
' Check, Fail and the counters come from check.inc, which the runner puts first.

Const LVS_EX_GRIDLINES = 1
Const LVS_EX_CHECKBOXES = 4
Const LVS_EX_FULLROWSELECT = 32
Const ES_NUMBER = 8192
Const BS_RIGHT = 512
Const BS_CENTER = 768

Class HostApp
    Public Path
    Public EXEName
    Public Major
    Public Minor
    Public Revision
End Class

' The cells of one column, row by row as the window shows them, through the library.
Function ColumnText(column)
    Dim i
    ColumnText = ""
    For i = 0 To lv.ListItems.Count - 1
        If i > 0 Then ColumnText = ColumnText & ","
        ColumnText = ColumnText & o.vkrListItemText(lv, i, column)
    Next
End Function

Dim o, lv, r, item
Set o = CreateObject("velkor6.lib")
Set lv = CreateObject("velkor6test.ListView")
If Err.Number <> 0 Then
    Fail "CreateObject velkor6test.ListView", "error " & Err.Number & " " & Err.Description
    WScript.Echo passed & " passed, " & failed & " failed"
    WScript.Quit failed
End If

' Three columns of 100, 80 and 60 pixels (15 twips each) and three rows.
lv.ColumnHeaders.Add , "name", "Name", 1500
lv.ColumnHeaders.Add , "amount", "Amount", 1200, 1
lv.ColumnHeaders.Add , "state", "State", 900, 2
lv.AddRow "Beta", "12", "b"
lv.AddRow "alpha", "2", "a"
lv.AddRow "Gamma", "10", "c"
Check "the list has its rows", lv.ListItems.Count, CLng(3)

' --- Selection -------------------------------------------------------------------------
lv.MultiSelect = True
r = Empty : r = o.vkrSelItemCount(lv) : Check "vkrSelItemCount with none selected", r, CLng(0)
o.vkrListItemSelected(lv, 0) = True : Check "vkrListItemSelected let", Err.Number, CLng(0)
o.vkrListItemSelected(lv, 2) = True
r = Empty : r = o.vkrSelItemCount(lv) : Check "vkrSelItemCount counts two", r, CLng(2)
Check "the first item is selected in the window", lv.ListItems(1).Selected, True
Check "the second item is not", lv.ListItems(2).Selected, False
r = Empty : r = o.vkrListItemSelected(lv, 2) : Check "vkrListItemSelected get", r, True
r = Empty : r = o.vkrListItemSelected(lv, 1) : Check "vkrListItemSelected get of another", r, False
o.vkrListItemSelected(lv, 0) = False
r = Empty : r = o.vkrSelItemCount(lv) : Check "vkrListItemSelected let False", r, CLng(1)
r = Empty : r = o.vkrListItemSelected(lv, Null) : Check "vkrListItemSelected of Null", r, False

' --- Check boxes -----------------------------------------------------------------------
r = Empty : r = o.vkrListCheckedItems(lv) : Check "vkrListCheckedItems with none checked", r, CLng(0)
o.vkrListCheckAllItems(lv) = True : Check "vkrListCheckAllItems True", Err.Number, CLng(0)
r = Empty : r = o.vkrListCheckedItems(lv) : Check "vkrListCheckedItems after checking all", r, CLng(3)
Check "the window shows the third item checked", lv.ListItems(3).Checked, True
o.vkrListItemChecked(lv, 1) = False : Check "vkrListItemChecked let", Err.Number, CLng(0)
Check "the window shows the second item unchecked", lv.ListItems(2).Checked, False
r = Empty : r = o.vkrListItemChecked(lv, 1) : Check "vkrListItemChecked get False", r, False
r = Empty : r = o.vkrListItemChecked(lv, 0) : Check "vkrListItemChecked get True", r, True
r = Empty : r = o.vkrListCheckedItems(lv) : Check "vkrListCheckedItems counts two", r, CLng(2)
' An item object stands for its place in ListItems (the list is not sorted).
r = Empty : r = o.vkrListItemChecked(lv, lv.ListItems(2)) : Check "vkrListItemChecked of an item", r, False
o.vkrListCheckAllItems(lv) = False
r = Empty : r = o.vkrListCheckedItems(lv) : Check "vkrListCheckAllItems False", r, CLng(0)
Check "the window shows the first item unchecked", lv.ListItems(1).Checked, False

' --- Cell texts ------------------------------------------------------------------------
r = Empty : r = o.vkrListItemText(lv, 1) : Check "vkrListItemText of an item", r, "alpha"
r = Empty : r = o.vkrListItemText(lv, 0, 1) : Check "vkrListItemText of a sub-item", r, "12"
o.vkrListItemText(lv, 2, 2) = "changed c" : Check "vkrListItemText let", Err.Number, CLng(0)
Check "the window holds the new sub-item text", lv.CellText(2, 2), "changed c"
Check "the item shows it as SubItems(2)", lv.ListItems(3).SubItems(2), "changed c"
o.vkrListItemText(lv, 2, 2) = "c"
r = Empty : r = o.vkrListItemText(lv, 7) : Check "vkrListItemText of no item", r, ""

' --- Item index, unsorted and sorted ---------------------------------------------------
r = Empty : r = o.vkrListItemIndex(lv, lv.ListItems(2)) : Check "vkrListItemIndex unsorted", r, CLng(1)
lv.SortKey = 0
lv.Sorted = True
Check "the control sorted its rows by text", lv.CellText(0, 0) & "," & lv.CellText(2, 0), "alpha,Gamma"
r = Empty : r = o.vkrListItemIndex(lv, lv.ListItems(3)) : Check "vkrListItemIndex sorted", r, CLng(2)
r = Empty : r = o.vkrListItemIndex(lv, lv.ListItems(2)) : Check "vkrListItemIndex sorted, Beta", r, CLng(1)

' --- Typed sort --------------------------------------------------------------------------
' A numeric column: "2" before "10" before "12", the second time the other way round.
o.vkrSortListView lv, 1 : Check "vkrSortListView numeric", Err.Number, CLng(0)
Check "a numeric column sorts by number", ColumnText(1), "2,10,12"
Check "the item texts moved with their rows", ColumnText(0), "alpha,Gamma,Beta"
Check "the sort leaves Sorted off", lv.Sorted, False
Check "the sort key is the column", lv.SortKey, CLng(1)
Check "the first sort is ascending", lv.SortOrder, CLng(0)
' Not sorted now: an item stands for its place in ListItems, wherever its row went.
r = Empty : r = o.vkrListItemIndex(lv, lv.ListItems(2)) : Check "vkrListItemIndex after an API sort", r, CLng(1)
o.vkrSortListView lv, 1
Check "the same column again sorts descending", ColumnText(1), "12,10,2"
Check "the second sort is descending", lv.SortOrder, CLng(1)
' A text column: the control's own sort.
o.vkrSortListView lv, 0
Check "a text column is sorted by the control", lv.Sorted, True
Check "a different column starts ascending", lv.SortOrder, CLng(0)
Check "the text column's order", ColumnText(0), "alpha,Beta,Gamma"

' --- Extended style and the column under x ---------------------------------------------------
o.vkrSetListViewStyle lv.hwnd, LVS_EX_GRIDLINES
Check "vkrSetListViewStyle adds a style", lv.ExtendedStyle And LVS_EX_GRIDLINES, CLng(LVS_EX_GRIDLINES)
Check "the other styles stay", lv.ExtendedStyle And LVS_EX_CHECKBOXES, CLng(LVS_EX_CHECKBOXES)
o.vkrSetListViewStyle lv.hwnd, LVS_EX_GRIDLINES, 1
Check "bAdd = 1 removes the style", lv.ExtendedStyle And LVS_EX_GRIDLINES, CLng(0)
o.vkrSetListViewStyle lv.hwnd, LVS_EX_FULLROWSELECT, True
o.vkrSetListViewStyle lv.hwnd, LVS_EX_FULLROWSELECT, False
Check "bAdd = False removes it", lv.ExtendedStyle And LVS_EX_FULLROWSELECT, CLng(0)
Check "the check boxes are still there", lv.ExtendedStyle And LVS_EX_CHECKBOXES, CLng(LVS_EX_CHECKBOXES)

r = Empty : r = o.vkrGetListViewCol(lv, 10) : Check "vkrGetListViewCol in the first column", r, 0
r = Empty : r = o.vkrGetListViewCol(lv, 100) : Check "vkrGetListViewCol on the first border", r, 1
r = Empty : r = o.vkrGetListViewCol(lv, 179) : Check "vkrGetListViewCol in the second column", r, 1
r = Empty : r = o.vkrGetListViewCol(lv, 185) : Check "vkrGetListViewCol in the third column", r, 2
r = Empty : r = o.vkrGetListViewCol(lv, 500) : Check "vkrGetListViewCol right of the last", r, 0

' --- Text box and button styles -------------------------------------------------------
Dim edit, before
edit = lv.EditHwnd
before = lv.WindowStyle(edit)
r = Empty : r = o.vkrSetNoNumbers(edit, True) : Check "vkrSetNoNumbers answers the style before", r, before
Check "vkrSetNoNumbers True sets the digits-only bit", lv.WindowStyle(edit) And ES_NUMBER, CLng(ES_NUMBER)
r = Empty : r = o.vkrSetNoNumbers(edit, False)
Check "vkrSetNoNumbers False answers the style with the bit", r And ES_NUMBER, CLng(ES_NUMBER)
Check "vkrSetNoNumbers False clears the bit", lv.WindowStyle(edit), before
Check "the button starts centred", lv.WindowStyle(lv.Button.hwnd) And BS_CENTER, CLng(BS_CENTER)
o.vkrAlignText lv.Button, BS_RIGHT : Check "vkrAlignText", Err.Number, CLng(0)
Check "vkrAlignText makes the centred button right-aligned", lv.WindowStyle(lv.Button.hwnd) And BS_CENTER, CLng(BS_RIGHT)

' --- applib's column widths on the real list ---------------------------------------------
Dim app, host, fso, folder
Set fso = CreateObject("Scripting.FileSystemObject")
folder = o.vkrTempDir() & "velkor6-wine-listview"
If Not fso.FolderExists(folder) Then fso.CreateFolder folder
Set host = New HostApp
host.Path = folder
host.EXEName = "listhost"
host.Major = 1
host.Minor = 0
host.Revision = 0
Set app = o.vkrInitApp(host, "listhost")
app.saveColWidths lv, "Columns" : Check "saveColWidths", Err.Number, CLng(0)
r = Empty : r = app.stringValue("ColWidths", "Columns") : Check "saveColWidths stores the pixels", r, "100;80;60"
lv.ColumnHeaders(1).Width = 3000
lv.ColumnHeaders(3).Width = 1500
app.loadColWidths lv, "Columns" : Check "loadColWidths", Err.Number, CLng(0)
Check "loadColWidths restores the first column", lv.ColumnHeaders(1).Width, CLng(1500)
Check "loadColWidths restores the third column", lv.ColumnHeaders(3).Width, CLng(900)
app.stringValue("ColWidths", "Columns") = "50;wide;70"
app.loadColWidths lv, "Columns"
Check "a stored width sets its column", lv.ColumnHeaders(1).Width, CLng(750)
Check "an entry that is no number leaves its column", lv.ColumnHeaders(2).Width, CLng(1200)
Check "the next entry still counts", lv.ColumnHeaders(3).Width, CLng(1050)
Set app = Nothing
fso.DeleteFolder folder, True

Set lv = Nothing
WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
