' Class lib's list view members from a late-bound client, on a list view made of script classes:
' what the list's members tell (items, columns, SelectedItem, Sorted) works, what only a list
' window tells (item state, column widths, the typed sort) answers neutrally, as the list has no
' window (hwnd 0).
' Check, Fail and the counters come from check.inc, which the runner puts first. Wine's VBScript
' takes one name per declaration in a class, and reaches a default member through a class's
' variable only by its name (ListItems.Item(1), not ListItems(1)).


Class LvItem
    Public Text
    Public Selected
    Public Index
    Public Icon
    Public SmallIcon
    Public Visible
    Private subs
    Private Sub Class_Initialize()
        ReDim subs(9)
        Selected = False
        Visible = False
    End Sub
    Public Property Get SubItems(i)
        SubItems = subs(i)
    End Property
    Public Property Let SubItems(i, v)
        subs(i) = v
    End Property
    Public Sub EnsureVisible()
        Visible = True
    End Sub
End Class

Class LvItems
    Private items
    Private n
    Private Sub Class_Initialize()
        ReDim items(9)
        n = 0
    End Sub
    Public Property Get Count()
        Count = n
    End Property
    Public Default Property Get Item(i)
        Set Item = items(i - 1)
    End Property
    Public Function Add(Index, Key, Text, Icon, SmallIcon)
        Dim it
        Set it = New LvItem
        it.Text = Text
        it.Index = n + 1
        Set items(n) = it
        n = n + 1
        Set Add = it
    End Function
    Public Sub Clear()
        n = 0
    End Sub
End Class

Class LvHeader
    Public Text
    Public Width
    Public Alignment
    Public Key
End Class

Class LvHeaders
    Private items
    Private n
    Private Sub Class_Initialize()
        ReDim items(9)
        n = 0
    End Sub
    Public Property Get Count()
        Count = n
    End Property
    Public Default Property Get Item(i)
        Set Item = items(i - 1)
    End Property
    ' A missing argument arrives as an Error value (VarType 10).
    Public Function Add(Index, Key, Text, Width, Alignment)
        Dim h
        Set h = New LvHeader
        h.Text = Text
        h.Width = 1440
        If VarType(Width) <> 10 Then h.Width = Width
        h.Alignment = 0
        If VarType(Alignment) <> 10 Then h.Alignment = Alignment
        h.Key = ""
        If VarType(Key) <> 10 Then h.Key = Key
        Set items(n) = h
        n = n + 1
        Set Add = h
    End Function
    Public Sub Clear()
        n = 0
    End Sub
End Class

Class LvTooltip
    Public ToolText
    Public Resets
    Private Sub Class_Initialize()
        Resets = 0
    End Sub
    Public Sub Reset()
        Resets = Resets + 1
    End Sub
End Class

Class LvForm
    Public p_cTooltip
End Class

Class LvFake
    Public hwnd
    Public ListItems
    Public ColumnHeaders
    Public Sorted
    Public SortKey
    Public SortOrder
    Public MultiSelect
    Public Parent
    Public Icons
    Public SmallIcons
    Public Pointers
    Private sel
    Private Sub Class_Initialize()
        hwnd = 0
        Set ListItems = New LvItems
        Set ColumnHeaders = New LvHeaders
        Sorted = False
        SortKey = 0
        SortOrder = 0
        MultiSelect = False
        Pointers = ""
        Set sel = Nothing
    End Sub
    Public Property Get SelectedItem()
        Set SelectedItem = sel
    End Property
    Public Property Set SelectedItem(v)
        Set sel = v
    End Property
    Public Property Let MousePointer(v)
        Pointers = Pointers & v & ","
    End Property
    ' Rows of 240 twips from the top.
    Public Function HitTest(x, y)
        If y >= 0 And y < 240 * ListItems.Count Then
            Set HitTest = ListItems.Item(Int(y / 240) + 1)
        Else
            Set HitTest = Nothing
        End If
    End Function
End Class

Dim o, r, lv, lv2, it, key, frm, tip
Set o = CreateObject("velkor6.lib")
Set lv = New LvFake

' Columns from a spec.
o.vkrSetListViewHeaders lv, "<Name|2000|name;>Amount|1200;^State"
Check "vkrSetListViewHeaders", Err.Number, CLng(0)
Check "three columns", lv.ColumnHeaders.Count, 3
Check "the first column's key", lv.ColumnHeaders.Item(1).Key, "name"
Check "the second column's width", lv.ColumnHeaders.Item(2).Width, CLng(1200)
Check "the second column is right-aligned", lv.ColumnHeaders.Item(2).Alignment, 1
Check "the third column is centred", lv.ColumnHeaders.Item(3).Alignment, 2

Set it = lv.ListItems.Add(Empty, Empty, "Brie", Empty, Empty)
it.SubItems(1) = "12"
Set it = lv.ListItems.Add(Empty, Empty, "Gouda", Empty, Empty)
it.SubItems(1) = "2"
Set it = lv.ListItems.Add(Empty, Empty, "Banana", Empty, Empty)
it.SubItems(1) = "10"

' Sorting: a text column is the control's own sort; the same column again reverses it.
o.vkrSortListView lv, 0
Check "vkrSortListView of a text column", lv.Sorted, True
Check "the same column reverses", lv.SortOrder, 1
Check "the hourglass and back", lv.Pointers, "11,0,"
o.vkrSortListView lv, 1
Check "vkrSortListView of a number column", lv.Sorted, False
Check "another column starts ascending", lv.SortOrder, 0
Check "the new sort key", lv.SortKey, 1

' What only a list window tells: neutral answers.
o.vkrSetListViewStyle 0, 32, 1 : Check "vkrSetListViewStyle without a window", Err.Number, CLng(0)
r = Empty : r = o.vkrGetListViewCol(lv, 10) : Check "vkrGetListViewCol", r, CInt(0)
r = Empty : r = o.vkrSelItemCount(lv) : Check "vkrSelItemCount", r, CLng(0)
o.vkrListCheckAllItems(lv) = True : Check "vkrListCheckAllItems", Err.Number, CLng(0)
r = Empty : r = o.vkrListCheckedItems(lv) : Check "vkrListCheckedItems", r, CLng(0)
o.vkrListItemChecked(lv, 0) = True : Check "vkrListItemChecked let", Err.Number, CLng(0)
r = Empty : r = o.vkrListItemChecked(lv, 0) : Check "vkrListItemChecked", r, False
o.vkrListItemSelected(lv, 0) = True : Check "vkrListItemSelected let", Err.Number, CLng(0)
r = Empty : r = o.vkrListItemSelected(lv, 0) : Check "vkrListItemSelected", r, False
o.vkrListItemText(lv, 0, 1) = "x" : Check "vkrListItemText let", Err.Number, CLng(0)
r = Empty : r = o.vkrListItemText(lv, 0) : Check "vkrListItemText", r, ""

' Items by their members.
r = Empty : r = o.vkrListItemIndex(lv, lv.ListItems.Item(2)) : Check "vkrListItemIndex", r, CLng(1)
r = Empty : r = o.vkrListItemIndex(lv, Null) : Check "vkrListItemIndex of Null", r, CLng(-1)
r = Empty : r = o.vkrHasSelectedItem(lv) : Check "vkrHasSelectedItem without one", r, False
Set lv.SelectedItem = lv.ListItems.Item(2)
r = Empty : r = o.vkrHasSelectedItem(lv) : Check "vkrHasSelectedItem", r, True
Set r = Nothing
Set r = o.vkrSelectedItem(lv, True)
Check "vkrSelectedItem", r.Text, "Gouda"
Check "vkrSelectedItem forces the selection", lv.ListItems.Item(2).Selected, True
o.vkrListSelectItems lv, True
r = Empty : r = o.vkrListSelectedItems(lv) : Check "vkrListSelectItems and vkrListSelectedItems", r, CLng(3)

' A keystroke: the first item starting with B is selected alone and made visible.
key = 98
r = Empty : r = o.vkrSearchListItem(lv, key) : Check "vkrSearchListItem finds", r, True
Check "vkrSearchListItem consumes the key", key, CInt(0)
Check "the item found is the selected item", lv.SelectedItem.Text, "Brie"
Check "the others are deselected", lv.ListItems.Item(2).Selected, False
Check "the item found is made visible", lv.ListItems.Item(1).Visible, True
key = 32
r = Empty : r = o.vkrSearchListItem(lv, key, False) : Check "space", r, False
Check "space consumes the key", key, CInt(0)

' The tooltip of the list's form.
Set tip = New LvTooltip
Set frm = New LvForm
Set frm.p_cTooltip = tip
Set lv.Parent = frm
o.vkrShowListViewTooltip lv, 2500, 250, "none"
Check "vkrShowListViewTooltip over a sub-item", tip.ToolText, "2"
Check "the tooltip is reset", tip.Resets, 1
o.vkrShowListViewTooltip lv, 100, 5000, "none"
Check "vkrShowListViewTooltip over no item", tip.ToolText, "none"

' A copy of columns and items.
Set lv2 = New LvFake
o.vkrCopyListView lv, lv2
Check "vkrCopyListView items", lv2.ListItems.Count, 3
Check "vkrCopyListView columns", lv2.ColumnHeaders.Count, 3
Check "vkrCopyListView sub-items", lv2.ListItems.Item(3).SubItems(1), "10"

r = Empty : r = o.vkrLVWCallback(12345) : Check "vkrLVWCallback", r, CLng(12345)

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
