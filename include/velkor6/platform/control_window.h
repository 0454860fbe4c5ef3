// A control window of the caller's process (list view, text box, button) as the control helpers
// reach it by its handle: what a Win32 program does with the control's window messages and window
// styles, as typed operations. On Windows it is the control's window itself; in a Qt program it is
// the widget that velkor6::qt::wrap made known; the fake platform scripts one.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace velkor6 {

// List-view item state bits (LVIS_...): the selection bit and the state image in bits 12 to 15.
namespace lvis {
inline constexpr std::uint32_t selected = 2;
inline constexpr std::uint32_t stateImageMask = 0xF000;
inline constexpr std::uint32_t unchecked = 0x1000; // state image 1
inline constexpr std::uint32_t checked = 0x2000;   // state image 2
} // namespace lvis

class VELKOR6_API ControlWindow {
public:
    virtual ~ControlWindow() = default;

    // --- Window style (GWL_STYLE) ----------------------------------------------------------
    virtual std::uint32_t style() = 0;
    // Writes the style word and answers the previous one.
    virtual std::uint32_t setStyle(std::uint32_t style) = 0;

    // --- List view; a window that is no list view answers 0, "" or -1 and changes nothing ---
    // LVM_FINDITEM with LVFI_STRING (exact, not case-sensitive) searching from start + 1; -1 for
    // none.
    virtual std::int32_t findItem(std::u16string_view text, std::int32_t start) = 0;
    // LVM_GETITEMTEXT: the text of a cell; subItem 0 is the item's own text.
    virtual std::u16string itemText(std::int32_t item, std::int32_t subItem) = 0;
    virtual bool setItemText(std::int32_t item, std::int32_t subItem, std::u16string_view text) = 0;
    // LVM_GETITEMSTATE: the item's state bits within mask.
    virtual std::uint32_t itemState(std::int32_t item, std::uint32_t mask) = 0;
    // LVM_SETITEMSTATE; item -1 stands for every item.
    virtual bool setItemState(std::int32_t item, std::uint32_t state, std::uint32_t mask) = 0;
    // LVM_GETITEMCOUNT and LVM_GETSELECTEDCOUNT.
    virtual std::int32_t itemCount() = 0;
    virtual std::int32_t selectedCount() = 0;
    // LVM_GETCOLUMNWIDTH / LVM_SETCOLUMNWIDTH in pixels; the first column is 0.
    virtual std::int32_t columnWidth(std::int32_t column) = 0;
    virtual bool setColumnWidth(std::int32_t column, std::int32_t width) = 0;
    // LVM_GETEXTENDEDLISTVIEWSTYLE / LVM_SETEXTENDEDLISTVIEWSTYLE.
    virtual std::uint32_t extendedStyle() = 0;
    virtual void setExtendedStyle(std::uint32_t style) = 0;
    // The horizontal scroll position in pixels (GetScrollPos, SB_HORZ).
    virtual std::int32_t horizontalScroll() = 0;
    // LVM_SORTITEMS. compare gets two items by their index before the sort and answers with the
    // comparers' 0/1/2 scale: 0 the first comes first, 1 equal, 2 the first comes after. The sort
    // only ever asks whether the answer is above 0 (the second goes first), so it stays a
    // well-defined order whatever the comparer says.
    virtual bool sortItems(const std::function<int(std::int32_t, std::int32_t)>& compare) = 0;
    // LVM_SETBKCOLOR with "none" then LVM_SETBKIMAGE with the picture file.
    virtual bool setBackgroundImage(std::u16string_view pictureFile) = 0;
};

} // namespace velkor6
