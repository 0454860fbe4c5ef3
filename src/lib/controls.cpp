// List boxes, tab strips and fields of the caller's forms: the `lib` members and their rows in
// the member table.
#include "controls/control_access.h"
#include "controls/fields.h"
#include "controls/grid.h"
#include "controls/list_box.h"
#include "controls/splitter.h"
#include "controls/tab_strip.h"
#include "controls/window_styles.h"
#include "core/convert.h"
#include "lib/lib_members.h"
#include "windows/screen.h"

#include <exception>

namespace velkor6 {
namespace {

// Runs f on the control; the neutral result when there is none or f fails.
template <class F, class R>
R onControl(const ObjectRef& control, F f, R neutral) {
    if (!control)
        return neutral;
    try {
        return f(*control);
    } catch (const std::exception&) {
        return neutral;
    }
}

// The control window of a handle, or nullptr without a window manager or such a window.
std::shared_ptr<ControlWindow> controlWindowOf(Module& m, std::int32_t handle) {
    WindowManager* windows = m.platform().windowManager.get();
    return windows != nullptr ? windows->controlWindow(handle) : nullptr;
}

} // namespace

std::int32_t lib::vkrListBoxItemSum(const ObjectRef& oList) {
    return onControl(
        oList, [&](Object& list) { return controls::selectedFlags(list, locale()); }, 0);
}

void lib::vkrListBoxItemSumLet(const ObjectRef& oList, std::int32_t value) {
    onControl(
        oList,
        [&](Object& list) {
            controls::selectFlags(list, value, locale());
            return 0;
        },
        0);
}

std::int32_t lib::vkrListBoxData(const ObjectRef& oControl, std::int16_t iIndex) {
    return onControl(
        oControl, [&](Object& list) { return controls::readItemData(list, iIndex, locale()); }, 0);
}

void lib::vkrListBoxDataLet(const ObjectRef& oControl, std::int16_t iIndex, std::int32_t value) {
    onControl(
        oControl,
        [&](Object& list) {
            controls::writeItemData(list, iIndex, value, locale());
            return 0;
        },
        0);
}

bool lib::vkrSelectListBoxItem(const ObjectRef& oControl, std::int32_t lValue) {
    return onControl(
        oControl, [&](Object& list) { return controls::selectItemData(list, lValue, locale()); },
        false);
}

void lib::vkrOnTabClick(const ObjectRef& oTabControl, std::u16string_view sContainerName) {
    onControl(
        oTabControl,
        [&](Object& strip) {
            controls::showSelectedContainer(strip, sContainerName, locale());
            return 0;
        },
        0);
}

std::int16_t lib::vkrGetOptionIndex(const ObjectRef& oForm, std::u16string_view sOptionGroup) {
    return onControl(
        oForm,
        [&](Object& form) {
            return toInteger(Variant(controls::checkedOption(form, sOptionGroup, locale())),
                             locale());
        },
        std::int16_t{-1});
}

bool lib::vkrIsSelected(const ObjectRef& oControl) {
    return onControl(
        oControl, [&](Object& field) { return controls::isWholeTextSelected(field, locale()); },
        false);
}

void lib::vkrSelectField(const ObjectRef& oCtrl, bool bChangeSelection,
                         const ObjectRef& StatusPanel) {
    onControl(
        oCtrl,
        [&](Object& field) {
            controls::selectWholeText(field, bChangeSelection, locale());
            return 0;
        },
        0);
    // A field without a text selection (a check box) still shows its tip.
    onControl(
        StatusPanel,
        [&](Object& panel) {
            if (oCtrl)
                controls::showTip(*oCtrl, panel);
            return 0;
        },
        0);
}

bool lib::vkrHasIndex(const ObjectRef& oCtrl) {
    return onControl(
        oCtrl, [](Object& control) { return controls::hasIndex(control); }, false);
}

bool lib::vkrIsControl(const ObjectRef& oContainer, std::u16string_view sCtlName,
                       std::int16_t iIndex) {
    return onControl(
        oContainer,
        [&](Object& container) {
            return controls::containsControl(container, sCtlName, iIndex, locale());
        },
        false);
}

ObjectRef lib::vkrGetContainer(const ObjectRef& oControl) {
    return onControl(
        oControl, [](Object& control) { return controls::containerOf(control); }, ObjectRef());
}

void lib::vkrSetFocus(const ObjectRef& oCtrl) {
    onControl(
        oCtrl, [&](Object& control) { return controls::focusIfUsable(control, locale()); }, false);
}

std::int32_t lib::vkrSetNoNumbers(std::int32_t lHwnd, bool bFlag) {
    try {
        const auto window = controlWindowOf(module(), lHwnd);
        if (!window)
            return 0;
        return static_cast<std::int32_t>(controls::setDigitsOnly(*window, bFlag));
    } catch (const std::exception&) {
        return 0;
    }
}

void lib::vkrAlignText(const ObjectRef& oButton, std::int32_t Alignment) {
    onControl(
        oButton,
        [&](Object& button) {
            const auto window =
                controlWindowOf(module(), toLong(controls::get(button, u"hWnd"), locale()));
            if (!window)
                return 0;
            controls::alignButtonText(*window, static_cast<std::uint32_t>(Alignment));
            // The button draws its text anew only when told.
            controls::invokeMethod(button, u"Refresh");
            return 0;
        },
        0);
}

void lib::vkrResizeGridCol(const ObjectRef& oGridControl, std::int32_t lVarCol,
                           std::int32_t lNewWidth) {
    WindowManager* windows = module().platform().windowManager.get();
    const std::int32_t twipsPerPixel = windows != nullptr ? windows->twipsPerPixel().x : 15;
    onControl(
        oGridControl,
        [&](Object& grid) {
            controls::resizeColumn(grid, lVarCol, lNewWidth, twipsPerPixel, locale());
            return 0;
        },
        0);
}

void lib::vkrCheckMouseMove(const ObjectRef& oControl, const ObjectRef& oPicBox, float x, float y,
                            std::int16_t iDiff) {
    if (!oControl || !oPicBox)
        return;
    try {
        const controls::SplitterGeometry g = controls::readSplitter(*oControl, *oPicBox, locale());
        InputState* input = module().platform().input.get();
        if (splitterDrag_ && splitterDrag_->pictureBox.lock() == oPicBox && input != nullptr &&
            windows::isMouseButtonDown(*input, 1)) {
            splitterDrag_->from =
                controls::followDrag(*oPicBox, g.align, splitterDrag_->from,
                                     controls::dragCoordinate(g.align, x, y), iDiff, locale());
            return;
        }
        splitterDrag_.reset();
        controls::let(*oControl, u"MousePointer",
                      {Variant(controls::splitterPointer(g, x, y, iDiff))});
    } catch (const std::exception&) {
    }
}

void lib::vkrCheckMouseDown(const ObjectRef& oControl, const ObjectRef& oPicBox, float x, float y,
                            std::int16_t iDiff) {
    splitterDrag_.reset();
    if (!oControl || !oPicBox)
        return;
    try {
        const controls::SplitterGeometry g = controls::readSplitter(*oControl, *oPicBox, locale());
        const std::int16_t pointer = controls::splitterPointer(g, x, y, iDiff);
        if (pointer == controls::pointer::normal)
            return;
        controls::let(*oControl, u"MousePointer", {Variant(pointer)});
        splitterDrag_ = SplitterDrag{oPicBox, controls::dragCoordinate(g.align, x, y)};
    } catch (const std::exception&) {
    }
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

using T = VarType;

ObjectRef objectOf(const Variant& v) {
    return v.isObject() ? v.object() : ObjectRef();
}

constexpr std::u16string_view controlArrayRoute =
    u"The control array X of a form is the form's property X read without arguments; it answers "
    u"LBound, UBound and Item(i), and Item raises for an element that does not exist.";

} // namespace

void addControlMembers(Table<lib>& t) {
    t.push_back({140,
                 u"vkrListBoxItemSum",
                 CallKind::PropertyGet,
                 {required(u"oList", T::Object)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrListBoxItemSum(objectOf(a[0])); },
                 u"The bitwise Or of the ItemData of the selected items of a multi-select list "
                 u"box.",
                 u"Items 0 to ListCount - 1, read through Selected(i) and ItemData(i). Items "
                 u"with the flags 1, 2 and 4 of which 1 and 4 are selected give 5. 0 for Nothing "
                 u"or a control without these members."});
    t.push_back(
        {140,
         u"vkrListBoxItemSum",
         CallKind::PropertyLet,
         {required(u"oList", T::Object), required(u"value", T::Long)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrListBoxItemSumLet(objectOf(a[0]), a.i32(1));
             return {};
         },
         u"Selects the items whose ItemData bits all lie in the value and clears the selection "
         u"of every other item.",
         u"Selected(i) = vkrAND(value, ItemData(i)) for i = 0 to ListCount - 1: with the flags "
         u"1, 2, 4 and 5, the value 5 selects 1, 4 and 5 only. An item whose ItemData is 0 is "
         u"always selected. Errors stop the loop and are not raised."});
    t.push_back(
        {141,
         u"vkrListBoxData",
         CallKind::PropertyGet,
         {required(u"oControl", T::Object), optional(u"iIndex", T::Integer, std::int16_t{-1})},
         T::Long,
         [](lib& l, Args& a) -> Variant { return l.vkrListBoxData(objectOf(a[0]), a.i16(1)); },
         u"The ItemData of item iIndex of a list or combo box, or of the current ListIndex "
         u"when iIndex is -1.",
         u"0 when no item is current, for an index out of range and for Nothing."});
    t.push_back({141,
                 u"vkrListBoxData",
                 CallKind::PropertyLet,
                 {required(u"oControl", T::Object),
                  optional(u"iIndex", T::Integer, std::int16_t{-1}), required(u"value", T::Long)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrListBoxDataLet(objectOf(a[0]), a.i16(1), a.i32(2));
                     return {};
                 },
                 u"Writes the ItemData of item iIndex; with -1, of the item added last (NewIndex).",
                 u"With iIndex -1 and NewIndex -1 (nothing added since the list was cleared) the "
                 u"current ListIndex is written, and nothing when that is -1 as well. Example: "
                 u"lst.AddItem \"Red\": o.vkrListBoxData(lst) = 255. Errors are not raised."});
    t.push_back({142,
                 u"vkrSelectListBoxItem",
                 CallKind::Method,
                 {required(u"oControl", T::Object), required(u"lValue", T::Long)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrSelectListBoxItem(objectOf(a[0]), a.i32(1));
                 },
                 u"Makes the first item whose ItemData equals lValue the current one (ListIndex); "
                 u"true when there is one.",
                 u"False, with ListIndex unchanged, when no item has the value."});
    t.push_back(
        {143,
         u"vkrOnTabClick",
         CallKind::Method,
         {required(u"oTabControl", T::Object), required(u"sContainerName", T::String)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrOnTabClick(objectOf(a[0]), a.str(1));
             return {};
         },
         u"Shows the container of the selected tab: element i of the control array "
         u"sContainerName on the tab strip's Parent is Visible when tab i is selected, hidden "
         u"otherwise.",
         std::u16string(u"The selected tab is SelectedItem.Index, 0 when it cannot be read (all "
                        u"containers are hidden then); i runs from 1 to Tabs.Count. A missing "
                        u"element is passed over. ") +
             std::u16string(controlArrayRoute) +
             u" Example: three tabs, the second selected: fraTab(2) visible, fraTab(1) and "
             u"fraTab(3) hidden."});
    t.push_back(
        {144,
         u"vkrGetOptionIndex",
         CallKind::Method,
         {required(u"oForm", T::Object), required(u"sOptionGroup", T::String)},
         T::Integer,
         [](lib& l, Args& a) -> Variant { return l.vkrGetOptionIndex(objectOf(a[0]), a.str(1)); },
         u"The index of the first element of the control array sOptionGroup on the form "
         u"whose Value is True; -1 when none is.",
         std::u16string(u"Elements are looked at from LBound to UBound; missing ones are "
                        u"passed over. -1 also when the form has no such control "
                        u"array. ") +
             std::u16string(controlArrayRoute)});
    t.push_back({145,
                 u"vkrIsSelected",
                 CallKind::Method,
                 {required(u"oControl", T::Object)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrIsSelected(objectOf(a[0])); },
                 u"True when the whole Text of the text box is selected: SelStart 0 and "
                 u"SelLength the length of Text.",
                 u"An empty text box with the caret at 0 counts as selected. False for Nothing or "
                 u"a control without these members."});
    t.push_back(
        {146,
         u"vkrSelectField",
         CallKind::Method,
         {required(u"oCtrl", T::Object), optional(u"bChangeSelection", T::Boolean, false),
          optional(u"StatusPanel", T::Object, Variant::nothing())},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrSelectField(objectOf(a[0]), a.b(1), objectOf(a[2]));
             return {};
         },
         u"Selects the field's whole text (SelStart 0, SelLength the length of Text); a status "
         u"panel given shows the field's ToolTipText.",
         u"Without bChangeSelection a field where the user has selected part of the text "
         u"already (SelLength > 0) keeps that selection; with it the whole text is selected in "
         u"any case. The panel's Text is set even for a control that has no text selection."});
    t.push_back({147,
                 u"vkrHasIndex",
                 CallKind::Method,
                 {required(u"oCtrl", T::Object)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrHasIndex(objectOf(a[0])); },
                 u"True when the control is an element of a control array: reading its Index "
                 u"succeeds.",
                 u"False for Nothing."});
    t.push_back({148,
                 u"vkrIsControl",
                 CallKind::Method,
                 {required(u"oContainer", T::Object), required(u"sCtlName", T::String),
                  optional(u"iIndex", T::Integer, std::int16_t{-1})},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrIsControl(objectOf(a[0]), a.str(1), a.i16(2));
                 },
                 u"True when the container's Controls hold a control named sCtlName and, for "
                 u"iIndex >= 0, the element iIndex of that control array.",
                 u"Controls is read through Count and its default member from 0; names compare "
                 u"in any letter case. A control whose Index cannot be read is no element."});
    t.push_back({149,
                 u"vkrGetContainer",
                 CallKind::Method,
                 {required(u"oControl", T::Object)},
                 T::Object,
                 [](lib& l, Args& a) -> Variant { return l.vkrGetContainer(objectOf(a[0])); },
                 u"The control's Container, or its Parent when it has none.",
                 u"Nothing when neither can be read."});
    t.push_back({150,
                 u"vkrSetFocus",
                 CallKind::Method,
                 {required(u"oCtrl", T::Object)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrSetFocus(objectOf(a[0]));
                     return {};
                 },
                 u"Gives the control the focus (SetFocus) when it is set, Visible and Enabled.",
                 u"A hidden or disabled control and any error leave the focus where it is."});
    t.push_back(
        {151,
         u"vkrSetNoNumbers",
         CallKind::Method,
         {required(u"lHwnd", T::Long), required(u"bFlag", T::Boolean)},
         T::Long,
         [](lib& l, Args& a) -> Variant { return l.vkrSetNoNumbers(a.i32(0), a.b(1)); },
         u"Sets (bFlag True) or clears the digits-only style bit (8192) of the edit window and "
         u"answers its previous style.",
         u"The other style bits stay; clearing it on a plain edit leaves the style as it is. 0, "
         u"changing nothing, for a handle that is no control window of the caller's."});
    t.push_back({152,
                 u"vkrAlignText",
                 CallKind::Method,
                 {required(u"oButton", T::Object), required(u"Alignment", T::Long)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrAlignText(objectOf(a[0]), a.i32(1));
                     return {};
                 },
                 u"Aligns the button's text: its window style (through hWnd) gets (style And Not "
                 u"BS_CENTER) Or Alignment.",
                 u"Alignment is one of ButtonStyleConsts: BS_LEFT 256, BS_RIGHT 512, BS_CENTER "
                 u"768, BS_TOP 1024. Only the horizontal bits are cleared first, so BS_TOP, once "
                 u"added, stays. BS_RIGHT on a centred button gives a right-aligned one. The "
                 u"button's Refresh is called afterwards."});
    t.push_back(
        {153,
         u"vkrResizeGridCol",
         CallKind::Method,
         {required(u"oGridControl", T::Object), required(u"lVarCol", T::Long),
          optional(u"lNewWidth", T::Long, -1)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrResizeGridCol(objectOf(a[0]), a.i32(1), a.i32(2));
             return {};
         },
         u"Widens column lVarCol of a grid or list view to fill the control's width, or gives "
         u"it the width lNewWidth when that is 0 or more.",
         u"A grid has Cols and ColWidth(i) in twips, columns from 0; a control answering "
         u"ColumnHeaders is a list view, columns from 1, widths in its container's scale. The "
         u"free width is the control's Width (turned into twips with the container's ScaleMode "
         u"and ScaleX) less 4 pixels of frame when BorderStyle is not 0, less the widths of all "
         u"other columns; no room is left for a scroll bar. When that is not positive the "
         u"column keeps its width."});
    t.push_back(
        {154,
         u"vkrCheckMouseMove",
         CallKind::Method,
         {required(u"oControl", T::Object), required(u"oPicBox", T::Object),
          required(u"x", T::Single), required(u"y", T::Single),
          optional(u"iDiff", T::Integer, std::int16_t{90})},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrCheckMouseMove(objectOf(a[0]), objectOf(a[1]), a.f32(2), a.f32(3), a.i16(4));
             return {};
         },
         u"Sets the MousePointer of oControl to 9 (west-east) or 7 (north-south) over the grip "
         u"of the splitter oPicBox, else to 0.",
         u"oPicBox is a picture box docked to the form (Align 1 top, 2 bottom, 3 left, 4 right) "
         u"holding oControl; x and y are oControl's coordinates as its MouseMove event gives "
         u"them. The grip is the strip iDiff wide along the box's inner edge: Align 3: x >= "
         u"box Width - control Left - iDiff; Align 4: x < iDiff - control Left; Align 1: y >= "
         u"box Height - control Top - iDiff; Align 2: y < iDiff - control Top. During a drag "
         u"that vkrCheckMouseDown started on the same box, while the left mouse button is down, "
         u"the box's Width (Align 3, 4) or Height (1, 2) follows the mouse instead, never below "
         u"iDiff; the first move with the button up ends the drag."});
    t.push_back(
        {155,
         u"vkrCheckMouseDown",
         CallKind::Method,
         {required(u"oControl", T::Object), required(u"oPicBox", T::Object),
          required(u"x", T::Single), required(u"y", T::Single),
          optional(u"iDiff", T::Integer, std::int16_t{90})},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrCheckMouseDown(objectOf(a[0]), objectOf(a[1]), a.f32(2), a.f32(3), a.i16(4));
             return {};
         },
         u"Starts a splitter drag when the press lies in the grip zone of vkrCheckMouseMove.",
         u"The library object remembers the box and the press point and sets the pointer as "
         u"vkrCheckMouseMove would; later vkrCheckMouseMove calls resize the box. A press "
         u"outside the zone forgets any drag and changes nothing."});
}

} // namespace velkor6::dispatch
