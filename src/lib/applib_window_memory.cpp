// Window positions and list-view column widths remembered in the settings file: the `applib`
// members and their rows.
#include "controls/list_view.h"
#include "core/convert.h"
#include "lib/applib_members.h"
#include "velkor6/applib.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6 {
namespace {

std::int32_t toPixels(std::int32_t twips, std::int32_t twipsPerPixel) {
    if (twipsPerPixel == 0)
        return twips;
    return static_cast<std::int32_t>(
        roundHalfEven(static_cast<double>(twips) / static_cast<double>(twipsPerPixel)));
}

// The rectangle moved (not shrunk) so that it does not pass the area's right or bottom edge,
// then so that it does not start before its left or top edge.
WindowRect keptInside(WindowRect r, const WindowRect& area) {
    const auto shift = [&r](std::int32_t dx, std::int32_t dy) {
        r.left += dx;
        r.right += dx;
        r.top += dy;
        r.bottom += dy;
    };
    if (r.right > area.right)
        shift(area.right - r.right, 0);
    if (r.bottom > area.bottom)
        shift(0, area.bottom - r.bottom);
    if (r.left < area.left)
        shift(area.left - r.left, 0);
    if (r.top < area.top)
        shift(0, area.top - r.top);
    return r;
}

} // namespace

void applib::saveColWidths(const ObjectRef& oListView, std::u16string_view sPropName,
                           std::int32_t) {
    const controls::ListView view(oListView, module_->platform().windowManager.get(), locale());
    const std::int32_t last = view.columnCount() - 1;
    std::u16string widths;
    for (std::int32_t i = 0; i <= last; ++i) {
        if (i > 0)
            widths += u';';
        widths += fromUtf8(std::to_string(view.columnWidth(i)));
    }
    stringValueLet(u"ColWidths", sPropName, widths);
}

void applib::loadColWidths(const ObjectRef& oListView, std::u16string_view sPropName, std::int32_t,
                           std::u16string_view) {
    const std::u16string stored = stringValue(u"ColWidths", sPropName);
    if (stored.empty())
        return;
    const controls::ListView view(oListView, module_->platform().windowManager.get(), locale());
    std::int32_t column = 0;
    std::size_t start = 0;
    while (start <= stored.size()) {
        const std::size_t end = std::min(stored.find(u';', start), stored.size());
        const Variant part(stored.substr(start, end - start));
        // A hand-edited entry that is no number leaves its column as it is.
        if (isNumeric(part, locale())) {
            try {
                view.setColumnWidth(column, toLong(part, locale()));
            } catch (const VbError&) {
            }
        }
        ++column;
        start = end + 1;
    }
}

void applib::saveWindowPos(std::int32_t hwnd, std::u16string_view formname) {
    WindowManager* windows = module_->platform().windowManager.get();
    if (windows == nullptr)
        return;
    const std::uint32_t style = windows->style(hwnd);
    if ((style & winstyle::maximize) != 0) {
        boolValueLet(formname, u"Maximized", true);
        boolValueLet(formname, u"Minimized", false);
        return;
    }
    if ((style & winstyle::minimize) != 0) {
        boolValueLet(formname, u"Maximized", false);
        boolValueLet(formname, u"Minimized", true);
        return;
    }
    WindowRect r = windows->windowRect(hwnd).value_or(WindowRect{});
    if (const WindowHandle parent = windows->parent(hwnd); parent != 0) {
        const WindowRect p = windows->windowRect(parent).value_or(WindowRect{});
        r = {r.left - p.left, r.top - p.top, r.right - p.left, r.bottom - p.top};
    }
    const TwipsPerPixel tpp = windows->twipsPerPixel();
    boolValueLet(formname, u"Maximized", false);
    boolValueLet(formname, u"Minimized", false);
    longValueLet(formname, u"Left", r.left * tpp.x);
    longValueLet(formname, u"Top", r.top * tpp.y);
    longValueLet(formname, u"Width", r.width() * tpp.x);
    longValueLet(formname, u"Height", r.height() * tpp.y);
}

void applib::loadWindowPos(std::int32_t hwnd, std::u16string_view formname, bool ignoresize) {
    WindowManager* windows = module_->platform().windowManager.get();
    if (windows == nullptr)
        return;
    const std::int32_t left = longValue(formname, u"Left");
    const std::int32_t top = longValue(formname, u"Top");
    const std::int32_t width = longValue(formname, u"Width");
    const std::int32_t height = longValue(formname, u"Height");
    // A window saved maximised or minimised has no rectangle of its own; its state is restored
    // all the same.
    if (left >= 1 || top >= 1 || width >= 1 || height >= 1) {
        const TwipsPerPixel tpp = windows->twipsPerPixel();
        WindowRect r;
        r.left = toPixels(left, tpp.x);
        r.top = toPixels(top, tpp.y);
        r.right = r.left + toPixels(width, tpp.x);
        r.bottom = r.top + toPixels(height, tpp.y);

        const auto area = windows->workArea(r.left, r.top + r.height() / 2);
        r = keptInside(
            r, area.value_or(WindowRect{0, 0, windows->screenWidth(), windows->screenHeight()}));
        // A child's position was saved relative to its parent's outer rectangle, while the
        // window manager places it in the parent's client area, inside a 2-pixel border.
        if ((windows->style(hwnd) & winstyle::child) != 0) {
            constexpr std::int32_t parentBorder = 2;
            r.left -= parentBorder;
            r.top -= parentBorder;
        }
        std::uint32_t flags = swp::noZOrder | swp::noRedraw | swp::noActivate;
        if (ignoresize)
            flags |= swp::noSize;
        windows->setPosition(hwnd, 0, r.left, r.top, r.width(), r.height(), flags);
    }
    if (boolValue(formname, u"Maximized", false))
        windows->show(hwnd, showcmd::maximize);
    else if (boolValue(formname, u"Minimized", false))
        windows->show(hwnd, showcmd::minimize);
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

using T = VarType;

constexpr std::int32_t currentUserKey = -2147483647;

} // namespace

void addWindowMemoryMembers(Table<applib>& t) {
    t.push_back(
        {5,
         u"loadColWidths",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"sPropName", T::String),
          optional(u"lRegKey", T::Long, currentUserKey), optional(u"sRegSubKey", T::String, u"")},
         T::Empty,
         [](applib& a, Args& r) -> Variant {
             a.loadColWidths(r[0].object(), r.str(1), r.i32(2), r.str(3));
             return {};
         },
         u"Restores the column widths stored under sPropName in section ColWidths.",
         u"The widths are pixels separated by \";\", from the first column on; an entry "
         u"that is no number leaves its column alone. lRegKey and sRegSubKey are not "
         u"used."});
    t.push_back({6,
                 u"saveColWidths",
                 CallKind::Method,
                 {required(u"oListView", T::Object), required(u"sPropName", T::String),
                  optional(u"lRegKey", T::Long, currentUserKey)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.saveColWidths(r[0].object(), r.str(1), r.i32(2));
                     return {};
                 },
                 u"Stores the list view's column widths under sPropName in section ColWidths.",
                 u"lRegKey is not used: the widths always go to the settings file."});
    t.push_back({7,
                 u"loadWindowPos",
                 CallKind::Method,
                 {required(u"hwnd", T::Long), required(u"formname", T::String),
                  optional(u"ignoresize", T::Boolean, false)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.loadWindowPos(r.i32(0), r.str(1), r.b(2));
                     return {};
                 },
                 u"Moves the window to the rectangle stored in section formname and restores "
                 u"its maximised or minimised state.",
                 u"The rectangle is kept inside the work area of the nearest monitor. With "
                 u"ignoresize only the position is restored. Nothing moves when no rectangle "
                 u"was stored."});
    t.push_back({8,
                 u"saveWindowPos",
                 CallKind::Method,
                 {required(u"hwnd", T::Long), required(u"formname", T::String)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.saveWindowPos(r.i32(0), r.str(1));
                     return {};
                 },
                 u"Stores the window's state and, unless it is maximised or minimised, its "
                 u"rectangle in twips in section formname.",
                 u"Keys Maximized, Minimized, Left, Top, Width, Height. A window with a parent "
                 u"is stored relative to the parent."});
}

} // namespace velkor6::dispatch
