' Class lib's list box, tab strip and field members from a late-bound client, over controls
' made of VBScript classes: each is an IDispatch object answering the members a control has.
' Check, Fail and the counters come from check.inc, which the runner puts first. Wine's VBScript
' takes one name per Public or Private line of a class, and calls no default member of an object
' held in a class's variable: the elements of a control array are read with .Item(i).

' A multi-select list box whose items carry the flags 1, 2, 4 and 5; item 1 is selected.
Class FlagList
    Private data
    Private marks
    Public ListIndex
    Public NewIndex
    Private Sub Class_Initialize()
        ReDim data(3)
        ReDim marks(3)
        data(0) = 1 : data(1) = 2 : data(2) = 4 : data(3) = 5
        marks(0) = False : marks(1) = True : marks(2) = False : marks(3) = False
        ListIndex = -1
        NewIndex = 3
    End Sub
    Public Property Get ListCount()
        ListCount = 4
    End Property
    Public Property Get ItemData(i)
        ItemData = data(i)
    End Property
    Public Property Let ItemData(i, v)
        data(i) = v
    End Property
    Public Property Get Selected(i)
        Selected = marks(i)
    End Property
    Public Property Let Selected(i, v)
        marks(i) = v
    End Property
    ' The selection as text, "1 0 1 1".
    Public Function Marked()
        Dim i
        Marked = ""
        For i = 0 To 3
            If marks(i) Then Marked = Marked & "1" Else Marked = Marked & "0"
            If i < 3 Then Marked = Marked & " "
        Next
    End Function
End Class

' Any control: the properties the members read and write.
Class Ctl
    Public Name
    Public Index
    Public Visible
    Public Enabled
    Public Value
    Public Text
    Public SelStart
    Public SelLength
    Public ToolTipText
    Public Container
    Public Parent
    Public hWnd
    Public Left
    Public Top
    Public MousePointer
    Public focused
    Public refreshed
    Private Sub Class_Initialize()
        Visible = True
        Enabled = True
        focused = 0
        refreshed = 0
    End Sub
    Public Sub SetFocus()
        focused = focused + 1
    End Sub
    Public Sub Refresh()
        refreshed = refreshed + 1
    End Sub
End Class

' A control without an Index: no element of a control array.
Class Lone
    Public Name
    Public Container
    Public Parent
End Class

' A control array of three elements, 1 to 3.
Class CtlArray
    Private items
    Private Sub Class_Initialize()
        ReDim items(3)
        Dim i
        For i = 1 To 3
            Set items(i) = New Ctl
            items(i).Index = i
            items(i).Value = False
        Next
    End Sub
    Public Property Get LBound()
        LBound = 1
    End Property
    Public Property Get UBound()
        UBound = 3
    End Property
    Public Default Property Get Item(i)
        Set Item = items(i)
    End Property
End Class


' A form with a container array fraTab, an option group optKind and its Controls, in twips.
Class Frm
    Public Name
    Public fraTab
    Public optKind
    Public Controls
    Public ScaleMode
    Private Sub Class_Initialize()
        Name = "frmMain"
        ScaleMode = 1
        Set fraTab = New CtlArray
        Set optKind = New CtlArray
        Set Controls = New ObjectPair
    End Sub
End Class

Class TabCount
    Public Count
End Class
Class TabStrip
    Public Tabs
    Public SelectedItem
    Public Parent
End Class

' A grid of three columns of 1000, 2000 and 1500 twips.
Class FlexGrid
    Private widths
    Public Cols
    Public Width
    Public BorderStyle
    Public Container
    Private Sub Class_Initialize()
        ReDim widths(2)
        widths(0) = 1000 : widths(1) = 2000 : widths(2) = 1500
        Cols = 3
        Width = 6000
        BorderStyle = 0
    End Sub
    Public Property Get ColWidth(i)
        ColWidth = widths(i)
    End Property
    Public Property Let ColWidth(i, v)
        widths(i) = v
    End Property
End Class

Class PicBox
    Public Align
    Public Width
    Public Height
End Class

Dim o, r, list, form, strip, field, panel, plain, element, box, inner, grid, c
Set o = CreateObject("velkor6.lib")

' --- Bit-flag list boxes -----------------------------------------------------------------
Set list = New FlagList
r = Empty : r = o.vkrListBoxItemSum(list) : Check "vkrListBoxItemSum of the selected item", r, CLng(2)
o.vkrListBoxItemSum(list) = 5 : Check "vkrListBoxItemSum let", Err.Number, CLng(0)
Check "vkrListBoxItemSum let selects the flags 1, 4 and 5", list.Marked(), "1 0 1 1"
r = Empty : r = o.vkrListBoxItemSum(list) : Check "vkrListBoxItemSum combines", r, CLng(5)
o.vkrListBoxData(list) = 99 : Check "vkrListBoxData let", Err.Number, CLng(0)
Check "vkrListBoxData let writes the item added last", list.ItemData(3), CLng(99)
r = Empty : r = o.vkrListBoxData(list, 0) : Check "vkrListBoxData of an item", r, CLng(1)
r = Empty : r = o.vkrListBoxData(list) : Check "vkrListBoxData without a current item", r, CLng(0)
r = Empty : r = o.vkrSelectListBoxItem(list, 4) : Check "vkrSelectListBoxItem finds 4", r, True
Check "vkrSelectListBoxItem sets ListIndex", list.ListIndex, CLng(2)
r = Empty : r = o.vkrListBoxData(list) : Check "vkrListBoxData of ListIndex", r, CLng(4)
r = Empty : r = o.vkrSelectListBoxItem(list, 3) : Check "vkrSelectListBoxItem misses 3", r, False

' --- Tab strips and option groups -----------------------------------------------------------
Set form = New Frm
Set strip = New TabStrip
Set strip.Tabs = New TabCount
strip.Tabs.Count = 3
Set strip.SelectedItem = New Ctl
strip.SelectedItem.Index = 2
Set strip.Parent = form
o.vkrOnTabClick strip, "fraTab" : Check "vkrOnTabClick", Err.Number, CLng(0)
Check "vkrOnTabClick hides container 1", form.fraTab.Item(1).Visible, False
Check "vkrOnTabClick shows container 2", form.fraTab.Item(2).Visible, True
Check "vkrOnTabClick hides container 3", form.fraTab.Item(3).Visible, False

r = Empty : r = o.vkrGetOptionIndex(form, "optKind") : Check "vkrGetOptionIndex with none set", r, -1
form.optKind.Item(3).Value = True
r = Empty : r = o.vkrGetOptionIndex(form, "optKind") : Check "vkrGetOptionIndex", r, 3

' --- Text selection, focus, control arrays --------------------------------------------------
Set field = New Ctl
field.Text = "Hello"
field.SelStart = 2
field.SelLength = 0
field.ToolTipText = "Your name"
Set panel = New Ctl
panel.Text = ""
r = Empty : r = o.vkrIsSelected(field) : Check "vkrIsSelected before", r, False
o.vkrSelectField field, False, panel : Check "vkrSelectField", Err.Number, CLng(0)
Check "vkrSelectField selects from 0", field.SelStart, CLng(0)
Check "vkrSelectField selects the whole text", field.SelLength, CLng(5)
Check "vkrSelectField shows the tip", panel.Text, "Your name"
r = Empty : r = o.vkrIsSelected(field) : Check "vkrIsSelected after", r, True

field.Visible = False
o.vkrSetFocus field : Check "vkrSetFocus on a hidden field", field.focused, 0
field.Visible = True
o.vkrSetFocus field : Check "vkrSetFocus", field.focused, 1

Set element = form.fraTab.Item(2)
element.Name = "fraTab"
Set plain = New Lone
plain.Name = "cmdOK"
Set plain.Container = Nothing
Set plain.Parent = form
form.Controls.SetItem 0, plain
form.Controls.SetItem 1, element
r = Empty : r = o.vkrHasIndex(element) : Check "vkrHasIndex of an element", r, True
r = Empty : r = o.vkrHasIndex(plain) : Check "vkrHasIndex of a single control", r, False
r = Empty : r = o.vkrIsControl(form, "CMDOK") : Check "vkrIsControl by name", r, True
r = Empty : r = o.vkrIsControl(form, "fraTab", 2) : Check "vkrIsControl with the index", r, True
r = Empty : r = o.vkrIsControl(form, "fraTab", 1) : Check "vkrIsControl, other index", r, False
Set c = Nothing
Set c = o.vkrGetContainer(plain) : Check "vkrGetContainer falls back to Parent", c.Name, "frmMain"

' --- Window styles, columns and the splitter -----------------------------------------------
r = Empty : r = o.vkrSetNoNumbers(0, True) : Check "vkrSetNoNumbers without a window", r, CLng(0)
Set c = New Ctl
c.hWnd = 0
o.vkrAlignText c, 512 : Check "vkrAlignText without a window", Err.Number, CLng(0)

Set grid = New FlexGrid
Set grid.Container = form
o.vkrResizeGridCol grid, 1 : Check "vkrResizeGridCol", Err.Number, CLng(0)
Check "vkrResizeGridCol fills the free width", grid.ColWidth(1), CLng(3500)
o.vkrResizeGridCol grid, 2, 800
Check "vkrResizeGridCol with a width", grid.ColWidth(2), CLng(800)

Set box = New PicBox
box.Align = 3
box.Width = 3000
box.Height = 2000
Set inner = New Ctl
inner.Left = 0
inner.Top = 0
inner.MousePointer = 0
o.vkrCheckMouseMove inner, box, 2950, 100 : Check "vkrCheckMouseMove", Err.Number, CLng(0)
Check "vkrCheckMouseMove over the grip", inner.MousePointer, 9
o.vkrCheckMouseMove inner, box, 1000, 100
Check "vkrCheckMouseMove beside the grip", inner.MousePointer, 0
o.vkrCheckMouseDown inner, box, 2950, 100, 90 : Check "vkrCheckMouseDown", Err.Number, CLng(0)
Check "vkrCheckMouseDown in the grip", inner.MousePointer, 9

WScript.Echo passed & " passed, " & failed & " failed"
WScript.Quit failed
