// Windows and screen: finding and waiting for any program's windows, z-order, shape, frame and
// screen metrics, key and button state; the `lib` members and their rows in the member table.
#include "lib/lib_members.h"
#include "velkor6/record_object.h"
#include "windows/find_window.h"
#include "windows/forms.h"
#include "windows/screen.h"
#include "windows/waits.h"
#include "windows/z_order.h"

#include <exception>
#include <memory>

namespace velkor6 {
namespace {

// Runs f over the window manager; the neutral result when there is none or f fails.
template <class F, class R>
R overWindows(Module& m, F f, R neutral) {
    WindowManager* windows = m.platform().windowManager.get();
    if (windows == nullptr)
        return neutral;
    try {
        return f(*windows);
    } catch (const std::exception&) {
        return neutral;
    }
}

} // namespace

std::int32_t lib::vkrFindWindow(std::int32_t lTopHwnd, std::u16string_view lpClassName,
                                std::u16string_view lpClassCaption, bool bFindNext) {
    return overWindows(
        module(),
        [&](WindowManager& w) {
            return windows::findWindow(w, lTopHwnd, lpClassName, lpClassCaption, bFindNext);
        },
        0);
}

bool lib::vkrWaitForClassStarted(std::u16string_view sClassName, std::u16string_view sClassCaption,
                                 std::int32_t lMaxSeconds, const ObjectRef& ParentForm) {
    Platform& p = module().platform();
    if (!p.windowManager || !p.clock || !p.ui)
        return false;
    return windows::waitForClassStarted({*p.clock, *p.ui, *p.windowManager}, sClassName,
                                        sClassCaption, lMaxSeconds, ParentForm);
}

bool lib::vkrWaitForClassFinished(std::u16string_view sClassName, std::u16string_view sClassCaption,
                                  std::int32_t lMaxSeconds, const ObjectRef& ParentForm) {
    Platform& p = module().platform();
    if (!p.windowManager || !p.clock || !p.ui)
        return false;
    return windows::waitForClassFinished({*p.clock, *p.ui, *p.windowManager}, sClassName,
                                         sClassCaption, lMaxSeconds, ParentForm);
}

void lib::vkrWait(std::int32_t lMilliSeconds, bool bIsActive) {
    Platform& p = module().platform();
    if (!p.clock || !p.ui)
        return;
    try {
        windows::pause(*p.clock, *p.ui, lMilliSeconds, bIsActive);
    } catch (const std::exception&) {
    }
}

void lib::vkrTopMost(std::int32_t lTopMost) {
    overWindows(
        module(),
        [&](WindowManager& w) {
            windows::topMost(w, lTopMost);
            return 0;
        },
        0);
}

void lib::vkrOpenTopMost(std::int32_t lTopMost, bool bCenter) {
    overWindows(
        module(),
        [&](WindowManager& w) {
            windows::openTopMost(w, lTopMost, bCenter);
            return 0;
        },
        0);
}

void lib::vkrOpenApplicationTopMost(std::int32_t lTopMost, std::int32_t lAppHwnd, bool bCenter) {
    overWindows(
        module(),
        [&](WindowManager& w) {
            windows::openApplicationTopMost(w, lTopMost, lAppHwnd, bCenter);
            return 0;
        },
        0);
}

void lib::vkrApplicationTopMost(std::int32_t lhWndClient, std::int32_t lHWndParent) {
    overWindows(
        module(),
        [&](WindowManager& w) {
            windows::applicationTopMost(w, lhWndClient, lHWndParent);
            return 0;
        },
        0);
}

bool lib::vkrIsFormOpen(const ObjectRef& oForms, std::u16string_view strFormName, Variant* oForm) {
    if (!oForms)
        return false;
    try {
        ObjectRef form = windows::findOpenForm(*oForms, strFormName, locale());
        if (!form)
            return false;
        if (oForm != nullptr)
            *oForm = Variant(std::move(form));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void lib::vkrRoundWindow(std::int32_t hwnd, std::int32_t lX, std::int32_t lY, std::int32_t lXOffset,
                         std::int32_t lYOffset) {
    overWindows(
        module(),
        [&](WindowManager& w) {
            windows::roundWindow(w, hwnd, lX, lY, lXOffset, lYOffset);
            return 0;
        },
        0);
}

void lib::vkrWindowShadow(std::int32_t hwnd) {
    overWindows(
        module(), [&](WindowManager& w) { return w.addClassDropShadow(hwnd); }, false);
}

void lib::vkrClipCursor(std::int32_t hwnd, std::int32_t hSecondWnd) {
    overWindows(
        module(),
        [&](WindowManager& w) {
            windows::clipCursor(w, hwnd, hSecondWnd);
            return 0;
        },
        0);
}

std::int32_t lib::vkrGetFrameSize(std::int32_t lHwnd) {
    return overWindows(
        module(), [&](WindowManager& w) { return windows::frameSize(w, lHwnd); }, 0);
}

std::int32_t lib::vkrGetMenuHeight() {
    return overWindows(
        module(), [](WindowManager& w) { return windows::menuHeight(w); }, 0);
}

std::int32_t lib::vkrGetScreenHeight() {
    return overWindows(
        module(), [](WindowManager& w) { return w.screenHeight(); }, 0);
}

std::int32_t lib::vkrGetScreenWidth() {
    return overWindows(
        module(), [](WindowManager& w) { return w.screenWidth(); }, 0);
}

void lib::vkrGetInternalFormSize(std::int32_t lHwnd, SIZE& tSize) {
    const auto size = overWindows(
        module(), [&](WindowManager& w) { return windows::internalSize(w, lHwnd); },
        std::optional<windows::TwipsSize>());
    if (size)
        tSize = {size->cx, size->cy};
}

bool lib::vkrIsKeyDown(std::int32_t lKey) {
    InputState* input = module().platform().input.get();
    return input != nullptr && windows::isKeyDown(*input, lKey);
}

bool lib::vkrIsMouseButtonDown(std::int16_t lButton) {
    InputState* input = module().platform().input.get();
    return input != nullptr && windows::isMouseButtonDown(*input, lButton);
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

using T = VarType;

constexpr std::u16string_view sizeType = u"SIZE";

ObjectRef objectOf(const Variant& v) {
    return v.isObject() ? v.object() : ObjectRef();
}

// The caller's SIZE record, or a new one put in the slot when it holds anything else.
std::shared_ptr<RecordObject> sizeRecord(Variant& slot, const Locale& loc) {
    std::shared_ptr<RecordObject> record;
    if (slot.isObject())
        record = std::dynamic_pointer_cast<RecordObject>(slot.object());
    if (!record || record->typeName() != sizeType) {
        record = std::make_shared<RecordObject>(
            std::u16string(sizeType),
            std::vector<RecordObject::Field>{{u"CX", Variant(std::int32_t{0})},
                                             {u"CY", Variant(std::int32_t{0})}},
            loc);
        slot = Variant(ObjectRef(record));
    }
    return record;
}

} // namespace

void addWindowMembers(Table<lib>& t) {
    // --- Window lookup, waiting and z-order ---------------------------------------------
    t.push_back(
        {80,
         u"vkrFindWindow",
         CallKind::Method,
         {required(u"lTopHwnd", T::Long), required(u"lpClassName", T::String),
          required(u"lpClassCaption", T::String), optional(u"bFindNext", T::Boolean, false)},
         T::Long,
         [](lib& l, Args& a) -> Variant {
             return l.vkrFindWindow(a.i32(0), a.str(1), a.str(2), a.b(3));
         },
         u"The handle of the first window of any program whose class name and caption match "
         u"the patterns (Like, case-sensitive), or 0.",
         u"Depth first from lTopHwnd (-1: the top of the desktop), a window before its "
         u"children; with bFindNext the search begins after lTopHwnd. X11: the handle is the X "
         u"window id, the class is the class part of WM_CLASS, the caption _NET_WM_NAME or else "
         u"WM_NAME; window-manager frames have no class and match only the class pattern \"*\" "
         u"together with an empty caption; without a display: 0."});
    t.push_back(
        {81,
         u"vkrWaitForClassStarted",
         CallKind::Method,
         {required(u"sClassName", T::String), required(u"sClassCaption", T::String),
          optional(u"lMaxSeconds", T::Long, std::int32_t{300}),
          optional(u"ParentForm", T::Object, Variant::nothing())},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             return l.vkrWaitForClassStarted(a.str(0), a.str(1), a.i32(2), objectOf(a[3]));
         },
         u"Waits until a window matching the patterns exists; false after lMaxSeconds.",
         u"Looks every 500 ms, serving the user interface meanwhile; the first look comes after "
         u"the first pause. The deadline is rounded to a whole second: with 0 seconds the wait "
         u"ends at once when the clock is in the first half of a second. A deadline past "
         u"midnight is never reached. ParentForm is disabled meanwhile and always enabled "
         u"afterwards. X11: the events of the library's own display connection are served; "
         u"without a display: false once the deadline has passed."});
    t.push_back(
        {82,
         u"vkrWaitForClassFinished",
         CallKind::Method,
         {required(u"sClassName", T::String), required(u"sClassCaption", T::String),
          optional(u"lMaxSeconds", T::Long, std::int32_t{300}),
          optional(u"ParentForm", T::Object, Variant::nothing())},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             return l.vkrWaitForClassFinished(a.str(0), a.str(1), a.i32(2), objectOf(a[3]));
         },
         u"Waits until no window matches the patterns; false after lMaxSeconds.",
         u"Between looks it spins, without serving the user interface, to the whole second "
         u"nearest to now + 0.1 s; the window counts as gone when two looks in a row miss it. "
         u"Deadline and ParentForm as in vkrWaitForClassStarted. X11 as there; without a "
         u"display no window exists, so the answer is True."});
    t.push_back({83,
                 u"vkrWait",
                 CallKind::Method,
                 {required(u"lMilliSeconds", T::Long), optional(u"bIsActive", T::Boolean, true)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrWait(a.i32(0), a.b(1));
                     return {};
                 },
                 u"Pauses lMilliSeconds; active (the default) serves the user interface "
                 u"meanwhile, passive sleeps.",
                 u"The active pause is a busy loop until the clock, compared in single "
                 u"precision, passes the start plus the pause: 0 ms lasts until the clock moves "
                 u"on. A pause over midnight ends as any other. X11: the active pause serves the "
                 u"library's display connection and the toolkit hooked into it."});
    t.push_back(
        {84,
         u"vkrTopMost",
         CallKind::Method,
         {required(u"lTopMost", T::Long)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrTopMost(a.i32(0));
             return {};
         },
         u"Keeps the window above all normal windows, without activating, moving or sizing it.",
         u"Nothing for handle 0. X11: asks the window manager for _NET_WM_STATE_ABOVE (set "
         u"directly on a window not yet mapped) and raises the window; without a window manager "
         u"it is only raised once, and the next window raised covers it."});
    t.push_back(
        {85,
         u"vkrOpenTopMost",
         CallKind::Method,
         {required(u"lTopMost", T::Long), optional(u"bCenter", T::Boolean, false)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrOpenTopMost(a.i32(0), a.b(1));
             return {};
         },
         u"Centres the window (when bCenter), shows it and makes it top-most.",
         u"Centred: x = (screen width - window width) \\ 2, y = (screen height - title button - "
         u"sizing frame - window height) \\ 2, rounded down. X11: shown means mapped (and "
         u"de-iconified); title and frame are the window's own frame extents, 0 without a "
         u"window manager; top-most as in vkrTopMost."});
    t.push_back(
        {86,
         u"vkrOpenApplicationTopMost",
         CallKind::Method,
         {required(u"lTopMost", T::Long), required(u"lAppHwnd", T::Long),
          optional(u"bCenter", T::Boolean, false)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrOpenApplicationTopMost(a.i32(0), a.i32(1), a.b(2));
             return {};
         },
         u"Centres (when bCenter) and shows the window and makes lAppHwnd its owner, so that it "
         u"stays above that window only.",
         u"Nothing unless both handles are given. X11: the owner is set as WM_TRANSIENT_FOR; "
         u"keeping it above the owner is the window manager's work (none without one)."});
    t.push_back({87,
                 u"vkrApplicationTopMost",
                 CallKind::Method,
                 {required(u"lhWndClient", T::Long), optional(u"lHWndParent", T::Long, 0)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrApplicationTopMost(a.i32(0), a.i32(1));
                     return {};
                 },
                 u"Makes lHWndParent (or the foreground window) the owner of lhWndClient; when "
                 u"that is no other window, makes the client top-most.",
                 u"X11: the foreground window is _NET_ACTIVE_WINDOW, else the window with the "
                 u"input focus; owner and top-most as in vkrOpenApplicationTopMost and "
                 u"vkrTopMost."});
    t.push_back(
        {88,
         u"vkrIsFormOpen",
         CallKind::Method,
         {required(u"oForms", T::Object), required(u"strFormName", T::String),
          optionalOutput(u"oForm", T::Variant, Variant::missing())},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             return l.vkrIsFormOpen(objectOf(a[0]), a.str(1), a[2].isMissing() ? nullptr : &a[2]);
         },
         u"True when a form of the collection oForms has the Name strFormName (any letter "
         u"case); oForm then receives it.",
         u"Items 0 to Count - 1 are read through the collection's default member; the first "
         u"match wins. oForm is left alone when no form matches. Same on every system."});

    // --- Window shape, screen metrics and input state -----------------------------------
    t.push_back(
        {89,
         u"vkrRoundWindow",
         CallKind::Method,
         {required(u"hwnd", T::Long), required(u"lX", T::Long), required(u"lY", T::Long),
          optional(u"lXOffset", T::Long, 0), optional(u"lYOffset", T::Long, 0)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrRoundWindow(a.i32(0), a.i32(1), a.i32(2), a.i32(3), a.i32(4));
             return {};
         },
         u"Cuts the window to a rectangle with rounded corners (corner ellipse lX by lY), inset "
         u"by the offsets on every side.",
         u"lX and lY 0 give a plain rectangle. X11: a bounding shape (Shape extension) of the "
         u"window itself, measured from its outer rectangle including the frame extents; a "
         u"window manager's frame keeps its own shape."});
    t.push_back(
        {90,
         u"vkrWindowShadow",
         CallKind::Method,
         {required(u"hwnd", T::Long)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrWindowShadow(a.i32(0));
             return {};
         },
         u"Adds the drop-shadow bit to the class of the window: it and later windows of its "
         u"class get a shadow.",
         u"Never removed. X11: does nothing; shadows are the compositor's choice and X11 has no "
         u"window classes to carry the bit."});
    t.push_back(
        {91,
         u"vkrClipCursor",
         CallKind::Method,
         {optional(u"hwnd", T::Long, 0), optional(u"hSecondWnd", T::Long, 0)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrClipCursor(a.i32(0), a.i32(1));
             return {};
         },
         u"Confines the mouse cursor to the client area of hwnd, narrowed to its overlap with "
         u"hSecondWnd's; hwnd 0 releases it.",
         u"Two windows that do not overlap give an empty or inverted area, which the system "
         u"interprets. X11: an active pointer grab confined to an input-only window over the "
         u"area (at least 1 by 1 pixel); while it lasts other programs get no pointer events. It "
         u"ends with the next call or with the calling process, and fails while another program "
         u"holds a grab."});
    t.push_back({92,
                 u"vkrGetFrameSize",
                 CallKind::Method,
                 {required(u"lHwnd", T::Long)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrGetFrameSize(a.i32(0)); },
                 u"The frame height in pixels: the dialog frame for a window with a caption, the "
                 u"sizing frame for a border alone and for handle 0, else 0.",
                 u"X11: the window's _NET_FRAME_EXTENTS: a frame with a title counts as a "
                 u"caption, its bottom extent is the frame; handle 0 asks the active window; 0 "
                 u"without a window manager or display."});
    t.push_back({93,
                 u"vkrGetMenuHeight",
                 CallKind::Method,
                 {},
                 T::Long,
                 [](lib& l, Args&) -> Variant { return l.vkrGetMenuHeight(); },
                 u"A title-bar button's height plus a sizing frame, in pixels (not the menu "
                 u"bar's height).",
                 u"X11: the active window's title height (top frame extent less the bottom one) "
                 u"plus its bottom frame extent; 0 without a window manager or display."});
    t.push_back({94,
                 u"vkrGetScreenHeight",
                 CallKind::Method,
                 {},
                 T::Long,
                 [](lib& l, Args&) -> Variant { return l.vkrGetScreenHeight(); },
                 u"The primary screen's height in pixels.",
                 u"X11: the default screen's height; 0 without a display."});
    t.push_back({95,
                 u"vkrGetScreenWidth",
                 CallKind::Method,
                 {},
                 T::Long,
                 [](lib& l, Args&) -> Variant { return l.vkrGetScreenWidth(); },
                 u"The primary screen's width in pixels.",
                 u"X11: the default screen's width; 0 without a display."});
    t.push_back(
        {96,
         u"vkrGetInternalFormSize",
         CallKind::Method,
         {required(u"lHwnd", T::Long), output(u"tSize", T::Variant)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             if (a.i32(0) == 0)
                 return {};
             auto record = sizeRecord(a[1], l.locale());
             SIZE size{record->field(u"CX")->longValue(), record->field(u"CY")->longValue()};
             l.vkrGetInternalFormSize(a.i32(0), size);
             *record->field(u"CX") = Variant(size.CX);
             *record->field(u"CY") = Variant(size.CY);
             return {};
         },
         u"The client area of the window in twips into the SIZE record tSize (CX, CY).",
         u"Pixels times the screen's twips per pixel (15 at 96 dots per inch). tSize is left "
         u"alone for handle 0, and keeps its values for a handle that is no window; one passed "
         u"in is filled in place. X11: the window's own size (frames lie outside it)."});
    t.push_back({97,
                 u"vkrIsKeyDown",
                 CallKind::Method,
                 {required(u"lKey", T::Long)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrIsKeyDown(a.i32(0)); },
                 u"True when the key (a virtual-key code) is down now.",
                 u"The key state is asked twice; the second answer counts, so an earlier press "
                 u"does not. X11: the virtual key is mapped to its key symbols and the keyboard "
                 u"read with XQueryKeymap, the mouse buttons (1, 2, 4) with XQueryPointer; keys "
                 u"without an X equivalent read as up; without a display: False."});
    t.push_back(
        {98,
         u"vkrIsMouseButtonDown",
         CallKind::Method,
         {required(u"lButton", T::Integer)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant { return l.vkrIsMouseButtonDown(a.i16(0)); },
         u"True when the mouse button (1 left, 2 right, 4 middle) is down.",
         u"Left and right follow the user's swap. The middle button is read as key code 3 "
         u"(Cancel), not as the middle button, on every system; any other number is read as a "
         u"key code. One query: on Windows a press since the last query counts too. X11: the "
         u"swap is the pointer mapping, key code 3 is the Cancel key; without a display: "
         u"False."});
}

} // namespace velkor6::dispatch
