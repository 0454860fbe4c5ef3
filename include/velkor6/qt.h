// Qt widgets as the controls the library's members take: a wrapped widget answers the names of
// the VB control it stands for, so that a Qt program hands its QTreeWidget to vkrSortListView as
// a VB program hands its ListView. Link velkor6::qt (libvelkor6-qt.so) beside velkor6::velkor6.
//
// What each widget presents (names are not case-sensitive; sizes and positions are twips, one
// pixel being 15 twips):
// - QTreeWidget: a ListView in report view. ListItems (Count, Item(index or key), Add(Index,
//   Key, Text), Clear, Remove) with items that have Text, SubItems(i), Selected, Checked, Index,
//   Key, Tag and EnsureVisible; ColumnHeaders (Count, Item, Add(Index, Key, Text, Width,
//   Alignment), Clear, Remove) whose headers have Text, Width, Alignment (0 left, 1 right,
//   2 centre), Key, Tag, Left, Index and SubItemIndex; Sorted, SortKey, SortOrder, MultiSelect,
//   Checkboxes, SelectedItem and HitTest(x, y). Sorted = True orders the items by the text of
//   column SortKey, not case-sensitive, descending when SortOrder is 1. A column added without
//   a width is 1440 twips wide; keys of items, columns and tabs are not case-sensitive. A tree
//   widget has no image lists: Icons and SmallIcons read Nothing, an item's Icon and SmallIcon
//   Empty, and giving an item a picture raises 35613.
// - QListWidget and QComboBox: a ListBox and a ComboBox (AddItem, RemoveItem, Clear, ListCount,
//   ListIndex, NewIndex, ItemData(i), List(i), Text; a QListWidget also Selected(i) and
//   MultiSelect: 0 single, 1 simple, 2 extended).
// - QTabBar and QTabWidget: a TabStrip (Tabs with Count, Item, Add(Index, Key, Caption), Clear,
//   Remove; tabs with Caption, Index, Key, Tag, Selected; SelectedItem).
// - QLineEdit, QPlainTextEdit and QTextEdit: a TextBox (Text, SelStart, SelLength, SelText,
//   Locked, MaxLength for a QLineEdit). Line breaks are Qt's single "\n"; positions count them
//   as one character.
// - QPushButton: a CommandButton (Caption); QCheckBox and QRadioButton: Value and Caption.
// - Every widget: hwnd, Name (the objectName), Visible, Enabled, ToolTipText, Tag, MousePointer
//   (VB's numbers: 0 default, 11 hourglass, 7 and 9 the sizing arrows, ...), Left, Top, Width,
//   Height, SetFocus, Refresh, Parent (the top-level window), Container (the parent widget),
//   Caption, Index and Controls. Controls lists the named descendants (objectName not empty and
//   not Qt's own "qt_..."); Controls(name) or Controls(i) (from 0) gives one, and a widget's own
//   name works as a member: form.call(u"txtName", ...). Widgets that share one objectName and
//   carry an int property "Index" form a control array: the name then gives the array (Count,
//   LBound, UBound, Item(index)) and name(index) one element.
//
// Errors as VB's controls raise them: an unknown member 438; an index or key out of range in a
// collection of items, columns or tabs 35600, an unknown key 35601, a key given twice 35602; a
// list index out of range 381 (380 for ListIndex, 5 for AddItem and RemoveItem; List(i) past the
// end reads ""); a value out of a property's range 380; a control name that the form does not
// have 730, Controls(i) past the end 9, an element a control array lacks 340, Index of a control
// outside an array 343; assigning a read-only property 383; a widget (or item, column or tab)
// that no longer exists -2147417848.
//
// Window handles and the library's window messages. Each wrapped widget gets a handle of its own,
// counted from 0x60000000 (X11 resource ids stay below 0x20000000, so the two never meet); hwnd
// answers it. Members that send list-view messages or change window styles (vkrSetListViewStyle,
// vkrListItemChecked, vkrSetNoNumbers, vkrAlignText, applib's column widths, ...) take such a
// handle: the library asks its window manager for the control window behind it, which looks in
// libvelkor6-qt.so when that library is already loaded in the process (it never loads Qt itself).
// There a QTreeWidget answers the list-view messages (item state: selected bit 2, checked as
// state image 2, unchecked as 1; LVS_EX_CHECKBOXES shows the item check boxes,
// LVS_EX_FULLROWSELECT selects whole rows, LVS_EX_HEADERDRAGDROP lets the columns move; column
// widths in pixels), a QLineEdit takes ES_NUMBER (8192) as a digits-only validator and a
// QPushButton BS_LEFT, BS_RIGHT and BS_CENTER as its text alignment. The handles live while the
// widget does; they are the process's own and mean nothing to other programs.
#pragma once

#include "velkor6/variant.h"

#include <cstdint>

class QWidget;

#if defined(_WIN32)
#define VELKOR6_QT_API
#else
#define VELKOR6_QT_API __attribute__((visibility("default")))
#endif

namespace velkor6::qt {

// The widget as the VB control it stands for (see above); Nothing for a null widget. A
// QApplication must exist. The object holds the widget weakly: once the widget is gone its
// members raise -2147417848.
VELKOR6_QT_API ObjectRef wrap(QWidget* widget);

// The handle the widget answers as hwnd, given now if it has none yet; 0 for a null widget.
VELKOR6_QT_API std::int32_t windowHandle(QWidget* widget);

// The widget behind a handle of windowHandle; nullptr for one that is unknown or whose widget
// is gone.
VELKOR6_QT_API QWidget* widgetOf(std::int32_t handle);

} // namespace velkor6::qt
