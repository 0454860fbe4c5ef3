// List view helpers: sorting, headers, item state, keystroke search, tooltips and copies of the
// caller's list views; the `lib` members and their rows in the member table.
#include "controls/list_view.h"

#include "controls/list_background.h"
#include "controls/list_copy.h"
#include "controls/list_headers.h"
#include "controls/list_items.h"
#include "controls/list_search.h"
#include "controls/list_sort.h"
#include "controls/list_tooltip.h"
#include "core/convert.h"
#include "lib/lib_members.h"
#include "windows/picture_blend.h"
#include "windows/picture_object.h"

#include <exception>

namespace velkor6 {
namespace {

// The list view members trap their errors: a failed call gives the neutral result.
template <class F, class R>
R trapped(F f, R neutral) {
    try {
        return f();
    } catch (const std::exception&) {
        return neutral;
    }
}

controls::ListView listView(Module& m, const ObjectRef& control) {
    return controls::ListView(control, m.platform().windowManager.get(), m.locale());
}

// Runs f on the list's window and the item's window index; the neutral result when the list has
// no window or the reference stands for no item.
template <class F, class R>
R onItem(Module& m, const ObjectRef& control, const Variant& item, F f, R neutral) {
    return trapped(
        [&] {
            const controls::ListView view = listView(m, control);
            const std::shared_ptr<ControlWindow> window = view.window();
            if (window == nullptr)
                return neutral;
            const auto index = controls::referencedItem(view, item);
            if (!index)
                return neutral;
            return f(*window, *index);
        },
        neutral);
}

// Only True itself (-1) adds a style: 1 is a number, not True.
bool exactlyTrue(const Variant& v) {
    if (v.type() == VarType::Boolean)
        return v.boolean();
    return v.isNumber() && toDouble(v, Locale::englishUS()) == -1.0;
}

} // namespace

void lib::vkrSortListView(const ObjectRef& oListView, std::int16_t iSortCol) {
    // The hourglass stays for the whole sort and goes whatever happens in it.
    vkrShowWaitLet(oListView, true);
    struct WaitOff {
        lib& owner;
        const ObjectRef& list;
        ~WaitOff() { owner.vkrShowWaitLet(list, false); }
    } waitOff{*this, oListView};
    trapped(
        [&] {
            controls::sortListView(listView(module(), oListView), iSortCol, module().listSort());
            return true;
        },
        false);
}

void lib::vkrSetListViewHeaders(const ObjectRef& oListView, std::u16string_view sHeaders,
                                bool bClearListItems) {
    trapped(
        [&] {
            controls::setHeaders(listView(module(), oListView), sHeaders, bClearListItems);
            return true;
        },
        false);
}

void lib::vkrSetListViewStyle(std::int32_t hCtrl, std::int32_t lStyle, const Variant& bAdd) {
    trapped(
        [&] {
            WindowManager* windows = module().platform().windowManager.get();
            const auto window = windows != nullptr ? windows->controlWindow(hCtrl) : nullptr;
            if (!window)
                return false;
            const std::uint32_t style = window->extendedStyle();
            const auto bits = static_cast<std::uint32_t>(lStyle);
            window->setExtendedStyle(exactlyTrue(bAdd) ? style | bits : style & ~bits);
            return true;
        },
        false);
}

std::int16_t lib::vkrGetListViewCol(const ObjectRef& oListView, std::int32_t lXPosInPixel) {
    return trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            const std::shared_ptr<ControlWindow> window = view.window();
            if (window == nullptr)
                return std::int16_t{0};
            return controls::columnAt(*window, view.columnCount(), lXPosInPixel);
        },
        std::int16_t{0});
}

bool lib::vkrHasSelectedItem(const ObjectRef& oListView) {
    return trapped([&] { return listView(module(), oListView).selectedItem() != nullptr; }, false);
}

ObjectRef lib::vkrSelectedItem(const ObjectRef& oListView, bool bForceSelection) {
    return trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            ObjectRef item = view.selectedItem();
            if (!item || controls::itemIndex(view, Variant(item)) == -1)
                return ObjectRef();
            if (bForceSelection)
                view.setSelected(*item, true);
            return item;
        },
        ObjectRef());
}

std::int32_t lib::vkrSelItemCount(const ObjectRef& oListView) {
    return trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            const std::shared_ptr<ControlWindow> window = view.window();
            return window != nullptr ? window->selectedCount() : 0;
        },
        0);
}

void lib::vkrListCheckAllItemsLet(const ObjectRef& oListView, bool value) {
    trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            if (const std::shared_ptr<ControlWindow> window = view.window())
                controls::checkAll(*window, value);
            return true;
        },
        false);
}

std::int32_t lib::vkrListCheckedItems(const ObjectRef& oListView) {
    return trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            const std::shared_ptr<ControlWindow> window = view.window();
            return window != nullptr ? controls::checkedCount(*window) : 0;
        },
        0);
}

std::int32_t lib::vkrListItemIndex(const ObjectRef& oListView, const Variant& oItem) {
    return trapped([&] { return controls::itemIndex(listView(module(), oListView), oItem); }, -1);
}

bool lib::vkrListItemChecked(const ObjectRef& oListView, const Variant& oItem) {
    return onItem(
        module(), oListView, oItem,
        [](ControlWindow& w, std::int32_t i) { return controls::itemChecked(w, i); }, false);
}

void lib::vkrListItemCheckedLet(const ObjectRef& oListView, const Variant& oItem, bool value) {
    onItem(
        module(), oListView, oItem,
        [&](ControlWindow& w, std::int32_t i) {
            controls::setItemChecked(w, i, value);
            return true;
        },
        false);
}

bool lib::vkrListItemSelected(const ObjectRef& oListView, const Variant& oItem) {
    return onItem(
        module(), oListView, oItem,
        [](ControlWindow& w, std::int32_t i) { return controls::itemSelected(w, i); }, false);
}

void lib::vkrListItemSelectedLet(const ObjectRef& oListView, const Variant& oItem, bool value) {
    onItem(
        module(), oListView, oItem,
        [&](ControlWindow& w, std::int32_t i) {
            controls::setItemSelected(w, i, value);
            return true;
        },
        false);
}

std::u16string lib::vkrListItemText(const ObjectRef& oListView, const Variant& oItem,
                                    std::int16_t iSubItem) {
    return onItem(
        module(), oListView, oItem,
        [&](ControlWindow& w, std::int32_t i) { return controls::cellText(w, i, iSubItem); },
        std::u16string());
}

void lib::vkrListItemTextLet(const ObjectRef& oListView, const Variant& oItem,
                             std::int16_t iSubItem, std::u16string_view value) {
    onItem(
        module(), oListView, oItem,
        [&](ControlWindow& w, std::int32_t i) { return w.setItemText(i, iSubItem, value); }, false);
}

std::int32_t lib::vkrListSelectedItems(const ObjectRef& oListView) {
    return trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            std::int32_t selected = 0;
            const std::int32_t count = view.itemCount();
            for (std::int32_t i = 1; i <= count; ++i) {
                if (view.selected(*view.item(i)))
                    ++selected;
            }
            return selected;
        },
        0);
}

void lib::vkrListSelectItems(const ObjectRef& oListView, bool bSelect) {
    trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            const std::int32_t count = view.itemCount();
            for (std::int32_t i = 1; i <= count; ++i)
                view.setSelected(*view.item(i), bSelect);
            return true;
        },
        false);
}

bool lib::vkrSearchListItem(const ObjectRef& oListView, std::int16_t& KeyAscii,
                            bool bDeselectBefore) {
    return trapped(
        [&] {
            const Clock* clock = module().platform().clock.get();
            const double now = clock != nullptr ? clock->secondsSinceMidnight() : 0.0;
            controls::KeystrokeSearch state{listSearchText_, listSearchDeadline_};
            // The state is kept even when the search fails half-way: the key was typed.
            struct Keep {
                controls::KeystrokeSearch& from;
                lib& to;
                ~Keep() {
                    to.listSearchText_ = from.text;
                    to.listSearchDeadline_ = from.deadline;
                }
            } keep{state, *this};
            return controls::searchListItem(listView(module(), oListView), state, now, KeyAscii,
                                            bDeselectBefore);
        },
        false);
}

void lib::vkrShowListViewTooltip(const ObjectRef& oListView, float x, float y,
                                 const Variant& sDefaultTooltip) {
    trapped(
        [&] {
            controls::TooltipTarget last{tooltipShown_, tooltipList_, tooltipItem_};
            controls::showTooltip(listView(module(), oListView), x, y, sDefaultTooltip, last);
            tooltipShown_ = last.shown;
            tooltipList_ = last.list;
            tooltipItem_ = last.item;
            return true;
        },
        false);
}

void lib::vkrCopyListView(const ObjectRef& oSource, const ObjectRef& oTarget) {
    trapped(
        [&] {
            controls::copyListView(listView(module(), oSource), listView(module(), oTarget));
            return true;
        },
        false);
}

void lib::vkrCopyImageIntoListView(const ObjectRef& oForm, const ObjectRef& oListView,
                                   std::int16_t iTransparency) {
    constexpr std::u16string_view member = u"vkrCopyImageIntoListView";
    trapped(
        [&] {
            const controls::ListView view = listView(module(), oListView);
            if (!oForm)
                return false;
            // The list reads its background from this file for as long as it shows it, so the
            // file stays; an earlier one is replaced.
            const std::u16string file = vkrGetFullPath(vkrTempDir(), u"~LVWBACKIMG.BMP");
            if (vkrFileExists(file))
                module().platform().fileSystem->remove(file);
            const Variant formPicture = oForm->call(u"Picture", CallKind::PropertyGet, {});
            const RgbImage picture = windows::picturePixels(module(), formPicture, member);
            const controls::PixelArea area = controls::areaOnForm(
                *oForm, view.control(), module().platform().windowManager->twipsPerPixel().x,
                locale());
            const std::optional<RgbImage> part =
                windows::cutOut(picture, area.left, area.top, area.width, area.height);
            if (!part)
                return false;
            windows::saveBmp(
                module(), file,
                windows::overColour(*part, windows::colourOfLong(16777215), iTransparency), member);
            const std::shared_ptr<ControlWindow> window = view.window();
            return window != nullptr && window->setBackgroundImage(file);
        },
        false);
}

std::int32_t lib::vkrLVWCallback(std::int32_t pfn) {
    return pfn;
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

using T = VarType;

ObjectRef objectArg(const Variant& v) {
    return v.isObject() ? v.object() : ObjectRef();
}

} // namespace

void addListViewMembers(Table<lib>& t) {
    t.push_back(
        {120,
         u"vkrSortListView",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"iSortCol", T::Integer)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrSortListView(objectArg(a[0]), a.i16(1));
             return {};
         },
         u"Sorts the list by column iSortCol (0 the items' own text, n their SubItems(n)), typed "
         u"by the column's first non-empty cell: date, number or text. Sorting the column of "
         u"the last sort again reverses the order.",
         u"SortKey equal to iSortCol flips SortOrder (0 ascending, 1 descending); another column "
         u"becomes SortKey with SortOrder 0. A text column is sorted by the control itself "
         u"(Sorted = True). A number or date column sets Sorted = False and is sorted through "
         u"the list's window: each cell is converted once, numbers rounded to whole numbers "
         u"(CLng), dates to their serial; a cell that does not convert counts as 0. So \"12\", "
         u"\"2\", \"10\" sort as 2, 10, 12, and \"n/a\" sorts with 0. The comparers answer 0 "
         u"(first item first), 1 (equal) or 2 (first item after) and the sort only asks whether "
         u"the second goes first, so equal cells may change places. The column and direction are "
         u"kept library-wide for the comparers. Only the first filled cell in the current order "
         u"decides the type: once an ascending sort has put a cell that is no number first, the "
         u"next sort of that column is a text sort. oListView's MousePointer shows the hourglass "
         u"during the call. Without a window behind hwnd a number or date column is left "
         u"unsorted."});
    t.push_back(
        {121,
         u"vkrSetListViewHeaders",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"sHeaders", T::String),
          optional(u"bClearListItems", T::Boolean, false)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrSetListViewHeaders(objectArg(a[0]), a.str(1), a.b(2));
             return {};
         },
         u"Replaces the list's columns by those of a spec: columns separated by \";\", each "
         u"\"text|width|key\" with an optional alignment prefix on the text.",
         u"\"<\" left, \">\" right, \"^\" centre; without a prefix the column is left-aligned and "
         u"the text kept whole. A column with one field gets the default width; with three "
         u"fields the key is the third trimmed of blanks and the width the second as a whole "
         u"number; with two (or more than three) only the width. A column whose width is no "
         u"number is left out and the next one takes its place. An empty spec gives one empty "
         u"column. bClearListItems clears the items first. Example: "
         u"\"<Name|2000|name;>Amount|1200;^State\" gives Name (left, 2000, key name), Amount "
         u"(right, 1200) and State (centred, default width)."});
    t.push_back(
        {122,
         u"vkrSetListViewStyle",
         CallKind::Method,
         {required(u"hCtrl", T::Long), required(u"lStyle", T::Long),
          optional(u"bAdd", T::Variant, true)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrSetListViewStyle(a.i32(0), a.i32(1), a[2]);
             return {};
         },
         u"Adds the extended list-view styles lStyle (ListViewExStyleConsts) to the list window "
         u"hCtrl when bAdd is True, otherwise removes them.",
         u"Only True itself (-1) adds: bAdd = 1 removes the style. Nothing for a handle that is "
         u"no list of this process."});
    t.push_back(
        {123,
         u"vkrGetListViewCol",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"lXPosInPixel", T::Long)},
         T::Integer,
         [](lib& l, Args& a) -> Variant { return l.vkrGetListViewCol(objectArg(a[0]), a.i32(1)); },
         u"The 0-based column under the horizontal position lXPosInPixel (client pixels).",
         u"The column widths are summed from minus the horizontal scroll position; the first "
         u"column whose right edge lies beyond the position is the answer. Right of the last "
         u"column, and without a window, the answer is 0, as for the first column."});
    t.push_back({124,
                 u"vkrHasSelectedItem",
                 CallKind::Method,
                 {required(u"oListView", T::Object)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrHasSelectedItem(objectArg(a[0])); },
                 u"True when the list's SelectedItem is set.",
                 u""});
    t.push_back(
        {125,
         u"vkrSelectedItem",
         CallKind::Method,
         {required(u"oListView", T::Object), optional(u"bForceSelection", T::Boolean, false)},
         T::Object,
         [](lib& l, Args& a) -> Variant {
             return Variant(l.vkrSelectedItem(objectArg(a[0]), a.b(1)));
         },
         u"The list's SelectedItem when vkrListItemIndex finds it, else Nothing.",
         u"With bForceSelection the item is also given Selected = True, so that a focused but "
         u"not highlighted item becomes highlighted."});
    t.push_back({126,
                 u"vkrSelItemCount",
                 CallKind::Method,
                 {required(u"oListView", T::Object)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrSelItemCount(objectArg(a[0])); },
                 u"The number of selected items, as the list's window counts them.",
                 u"0 without a window."});
    t.push_back({127,
                 u"vkrListCheckAllItems",
                 CallKind::PropertyLet,
                 {required(u"oListView", T::Object), required(u"value", T::Boolean)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrListCheckAllItemsLet(objectArg(a[0]), a.b(1));
                     return {};
                 },
                 u"Checks (True) or unchecks every item of the list at once.",
                 u"One state change for all items: state image 2 (8192) or 1 (4096), mask 61440. "
                 u"Write-only."});
    t.push_back({128,
                 u"vkrListCheckedItems",
                 CallKind::Method,
                 {required(u"oListView", T::Object)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrListCheckedItems(objectArg(a[0])); },
                 u"The number of checked items.",
                 u"An item counts when its state bits from 12 up are exactly state image 2 "
                 u"(8192). 0 without a window."});
    t.push_back(
        {129,
         u"vkrListItemIndex",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"oItem", T::Variant)},
         T::Long,
         [](lib& l, Args& a) -> Variant { return l.vkrListItemIndex(objectArg(a[0]), a[1]); },
         u"The 0-based index of a list item in the list's window; -1 when it is not found.",
         u"In a Sorted list the first item with the same text (not case-sensitive) is found "
         u"through the window, so of items with equal texts the first is answered; otherwise "
         u"the item's Index - 1. A text stands for the item with that text and is found in a "
         u"Sorted list only. A number, Null and anything else give -1."});
    t.push_back(
        {130,
         u"vkrListItemChecked",
         CallKind::PropertyGet,
         {required(u"oListView", T::Object), required(u"oItem", T::Variant)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant { return l.vkrListItemChecked(objectArg(a[0]), a[1]); },
         u"Whether the item's check box is checked.",
         u"oItem is a list item (found as by vkrListItemIndex) or a number, the 0-based index "
         u"itself. True when the state bits from 12 up include 8192 (state image 2). Null, an "
         u"item not found and a negative number give False, and a let changes nothing for them: "
         u"index -1 would stand for every item."});
    t.push_back({130,
                 u"vkrListItemChecked",
                 CallKind::PropertyLet,
                 {required(u"oListView", T::Object), required(u"oItem", T::Variant),
                  required(u"value", T::Boolean)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrListItemCheckedLet(objectArg(a[0]), a[1], a.b(2));
                     return {};
                 },
                 u"Checks or unchecks the item: state image 2 (8192) or 1 (4096), mask 61440.",
                 u"oItem as for the get."});
    t.push_back(
        {131,
         u"vkrListItemSelected",
         CallKind::PropertyGet,
         {required(u"oListView", T::Object), required(u"oItem", T::Variant)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant { return l.vkrListItemSelected(objectArg(a[0]), a[1]); },
         u"Whether the item is selected (state bit 2).",
         u"oItem as for vkrListItemChecked."});
    t.push_back({131,
                 u"vkrListItemSelected",
                 CallKind::PropertyLet,
                 {required(u"oListView", T::Object), required(u"oItem", T::Variant),
                  required(u"value", T::Boolean)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrListItemSelectedLet(objectArg(a[0]), a[1], a.b(2));
                     return {};
                 },
                 u"Selects or deselects the item (state 2 or 0, mask 2).",
                 u"oItem as for vkrListItemChecked."});
    t.push_back(
        {132,
         u"vkrListItemText",
         CallKind::PropertyGet,
         {required(u"oListView", T::Object), required(u"oItem", T::Variant),
          optional(u"iSubItem", T::Integer, std::int16_t{0})},
         T::String,
         [](lib& l, Args& a) -> Variant {
             return l.vkrListItemText(objectArg(a[0]), a[1], a.i16(2));
         },
         u"The text of the item's cell iSubItem (0 the item's own text), read from the list's "
         u"window.",
         u"At most 4095 characters. oItem as for vkrListItemChecked; \"\" when it stands for no "
         u"item."});
    t.push_back(
        {132,
         u"vkrListItemText",
         CallKind::PropertyLet,
         {required(u"oListView", T::Object), required(u"oItem", T::Variant),
          optional(u"iSubItem", T::Integer, std::int16_t{0}), required(u"value", T::String)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrListItemTextLet(objectArg(a[0]), a[1], a.i16(2), a.str(3));
             return {};
         },
         u"Writes the text of the item's cell iSubItem through the list's window.",
         u"oItem as for vkrListItemChecked."});
    t.push_back({133,
                 u"vkrListSelectedItems",
                 CallKind::Method,
                 {required(u"oListView", T::Object)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrListSelectedItems(objectArg(a[0])); },
                 u"The number of items whose Selected is True, counted through ListItems.",
                 u"Needs no window, unlike vkrSelItemCount."});
    t.push_back({134,
                 u"vkrListSelectItems",
                 CallKind::Method,
                 {required(u"oListView", T::Object), required(u"bSelect", T::Boolean)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrListSelectItems(objectArg(a[0]), a.b(1));
                     return {};
                 },
                 u"Sets Selected of every item to bSelect, through ListItems.",
                 u""});
    t.push_back(
        {135,
         u"vkrSearchListItem",
         CallKind::Method,
         {required(u"oListView", T::Object), output(u"KeyAscii", T::Integer),
          optional(u"bDeselectBefore", T::Boolean, true)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             std::int16_t key = a.i16(1);
             const bool found = l.vkrSearchListItem(objectArg(a[0]), key, a.b(2));
             a[1] = Variant(key);
             return found;
         },
         u"Finds an item by the keys typed into the list (call it from KeyPress): True and "
         u"KeyAscii 0 when an item was found and selected.",
         u"Keys typed within a second of each other make up one search text (upper case); a key "
         u"after a longer pause starts a new one (the time is seconds since midnight, so a "
         u"search typed across midnight goes on). The first item whose upper-cased Text fits "
         u"text & \"*\" (Like), or whose vkrVal equals vkrVal of that pattern, matches: with "
         u"letters only both are 0, so the first item whose text holds no number matches before "
         u"a later item starting with the letters; with digits an item of the same number value "
         u"matches. Then the sub-items of all columns are tried with the pattern; then both "
         u"again with \"*\" in front (contains). A match becomes SelectedItem, the other items "
         u"are deselected first when bDeselectBefore, and it is selected and made visible. No "
         u"match: False, KeyAscii and the selection unchanged. Space (32) toggles the selected "
         u"item's Selected in a MultiSelect list, selects it otherwise, sets KeyAscii 0 and "
         u"answers False. The search state belongs to the lib object."});
    t.push_back(
        {136,
         u"vkrShowListViewTooltip",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"x", T::Single), required(u"y", T::Single),
          optional(u"sDefaultTooltip", T::Variant, u"")},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrShowListViewTooltip(objectArg(a[0]), a.f32(1), a.f32(2), a[3]);
             return {};
         },
         u"Sets the tooltip of the list's form (Parent.p_cTooltip.ToolText) to the text of the "
         u"cell under x, y (call it from MouseMove, same units), or to sDefaultTooltip over no "
         u"item.",
         u"The item is the list's HitTest(x, y), the column the header whose span of summed "
         u"Widths holds x: its Text for the first column, its SubItems otherwise; right of the "
         u"last column the default text is shown. The tooltip's Reset is called before the text "
         u"whenever the mouse reaches another item than at the last call of this lib object (or "
         u"another list, or leaves the items), so that the tip shows afresh; moving within one "
         u"item only changes the text. MultiSelect lists are treated like the others."});
    t.push_back(
        {137,
         u"vkrCopyListView",
         CallKind::Method,
         {required(u"oSource", T::Object), required(u"oTarget", T::Object)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrCopyListView(objectArg(a[0]), objectArg(a[1]));
             return {};
         },
         u"Makes oTarget a copy of oSource: its columns (Text, Width, Alignment), image lists "
         u"and items with Text, Icon, SmallIcon and all SubItems.",
         u"The target's items and columns are cleared first. Icons and SmallIcons are copied "
         u"when the source has them; an icon index of 0 or Empty is left out. The copy stops at "
         u"the first error, keeping what it made."});
    t.push_back(
        {139,
         u"vkrCopyImageIntoListView",
         CallKind::Method,
         {required(u"oForm", T::Object), required(u"oListView", T::Object),
          optional(u"iTransparency", T::Integer, std::int16_t{50})},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrCopyImageIntoListView(objectArg(a[0]), objectArg(a[1]), a.i16(2));
             return {};
         },
         u"Shows the part of oForm's Picture that lies under the list as the list's background, "
         u"blended over white with iTransparency percent (as vkrGetSemiTransparentPicture).",
         u"The list's Left, Top, Width and Height are read in the form's ScaleMode and turned "
         u"into pixels (vbPixels as they stand, other modes through the form's ScaleX and "
         u"ScaleY). The blend is saved as \"~LVWBACKIMG.BMP\" in vkrTempDir, replacing an "
         u"earlier file, and stays there because the list reads it while it shows it; the list's "
         u"background colour becomes none and the file its background image. The list is not "
         u"emptied or refilled to repaint it: setting the image repaints it. Errors are trapped: "
         u"a form without a bitmap Picture, a list outside the picture or a list without a window "
         u"change nothing more. Example: vkrCopyImageIntoListView Me, lvwData, 70"});
    t.push_back({138,
                 u"vkrLVWCallback",
                 CallKind::Method,
                 {required(u"pfn", T::Long)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrLVWCallback(a.i32(0)); },
                 u"Returns pfn unchanged: turns a routine's address (AddressOf) into a number.",
                 u""});
}

} // namespace velkor6::dispatch
