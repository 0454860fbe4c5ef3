// Control windows of this process through their window messages. The wide (W) messages are
// used throughout: texts then come and go exactly, whatever code page the window was made with.
#include "platform/win32/control_window.h"

#include "platform/win32/wide.h"

#include <algorithm>
#include <commctrl.h>
#include <exception>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace velkor6::win32 {
namespace {

// LVM_GETITEMTEXT fills at most this many characters, the terminating zero included.
constexpr int textBufferSize = 4096;

WPARAM itemParam(std::int32_t item) {
    // -1 (every item, or "from the start") must reach the control as all bits set.
    return static_cast<WPARAM>(static_cast<INT_PTR>(item));
}

// What the sort callback needs: the comparer and the index each item had before the sort.
struct SortContext {
    const std::function<int(std::int32_t, std::int32_t)>* compare = nullptr;
    std::unordered_map<LPARAM, std::int32_t> indexOf;
    // The comparer's first exception; the sort runs to its end without the comparer then and
    // the exception goes to the caller once the list is whole again.
    std::exception_ptr failure;
};

int CALLBACK compareItems(LPARAM first, LPARAM second, LPARAM context) {
    auto& sort = *reinterpret_cast<SortContext*>(context);
    if (sort.failure)
        return 0;
    const auto a = sort.indexOf.find(first);
    const auto b = sort.indexOf.find(second);
    if (a == sort.indexOf.end() || b == sort.indexOf.end())
        return 0;
    try {
        // The comparer's 0/1/2 goes to the control unchanged: it only tests for above 0.
        return (*sort.compare)(a->second, b->second);
    } catch (...) {
        // No exception may cross the control's frames.
        sort.failure = std::current_exception();
        return 0;
    }
}

class Win32ControlWindow final : public ControlWindow {
public:
    explicit Win32ControlWindow(HWND window) : window_(window) {}

    std::uint32_t style() override {
        return static_cast<std::uint32_t>(GetWindowLongW(window_, GWL_STYLE));
    }
    std::uint32_t setStyle(std::uint32_t style) override {
        return static_cast<std::uint32_t>(
            SetWindowLongW(window_, GWL_STYLE, static_cast<LONG>(style)));
    }

    std::int32_t findItem(std::u16string_view text, std::int32_t start) override {
        std::wstring wanted = wide(text);
        LVFINDINFOW find{};
        find.flags = LVFI_STRING;
        find.psz = wanted.c_str();
        const auto found =
            static_cast<std::int32_t>(send(LVM_FINDITEMW, itemParam(start), toParam(&find)));
        // A window that does not know the message answers 0, which is no item of an empty list.
        return found >= 0 && found < itemCount() ? found : -1;
    }

    std::u16string itemText(std::int32_t item, std::int32_t subItem) override {
        std::vector<wchar_t> buffer(textBufferSize);
        LVITEMW cell{};
        cell.iSubItem = subItem;
        cell.pszText = buffer.data();
        cell.cchTextMax = textBufferSize;
        const auto length =
            static_cast<int>(send(LVM_GETITEMTEXTW, itemParam(item), toParam(&cell)));
        if (length <= 0 || cell.pszText == nullptr || cell.pszText == LPSTR_TEXTCALLBACKW)
            return {};
        // The control may point pszText at a text of its own instead of filling the buffer.
        return fromWide(std::wstring_view(cell.pszText, std::min(length, textBufferSize - 1)));
    }

    bool setItemText(std::int32_t item, std::int32_t subItem, std::u16string_view text) override {
        std::wstring value = wide(text);
        LVITEMW cell{};
        cell.iSubItem = subItem;
        cell.pszText = value.data();
        return send(LVM_SETITEMTEXTW, itemParam(item), toParam(&cell)) != 0;
    }

    std::uint32_t itemState(std::int32_t item, std::uint32_t mask) override {
        return static_cast<std::uint32_t>(send(LVM_GETITEMSTATE, itemParam(item), mask));
    }

    bool setItemState(std::int32_t item, std::uint32_t state, std::uint32_t mask) override {
        LVITEMW change{};
        change.state = state;
        change.stateMask = mask;
        return send(LVM_SETITEMSTATE, itemParam(item), toParam(&change)) != 0;
    }

    std::int32_t itemCount() override { return static_cast<std::int32_t>(send(LVM_GETITEMCOUNT)); }
    std::int32_t selectedCount() override {
        return static_cast<std::int32_t>(send(LVM_GETSELECTEDCOUNT));
    }

    std::int32_t columnWidth(std::int32_t column) override {
        return static_cast<std::int32_t>(send(LVM_GETCOLUMNWIDTH, itemParam(column)));
    }
    bool setColumnWidth(std::int32_t column, std::int32_t width) override {
        // The width travels in the low word, signed (the automatic widths are -1 and -2).
        return send(LVM_SETCOLUMNWIDTH, itemParam(column),
                    MAKELPARAM(static_cast<WORD>(width), 0)) != 0;
    }

    std::uint32_t extendedStyle() override {
        return static_cast<std::uint32_t>(send(LVM_GETEXTENDEDLISTVIEWSTYLE));
    }
    void setExtendedStyle(std::uint32_t style) override {
        // Mask 0: every bit is set as given.
        send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style));
    }

    std::int32_t horizontalScroll() override { return GetScrollPos(window_, SB_HORZ); }

    bool sortItems(const std::function<int(std::int32_t, std::int32_t)>& compare) override;

    bool setBackgroundImage(std::u16string_view pictureFile) override {
        send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(CLR_NONE));
        std::wstring file = wide(pictureFile);
        LVBKIMAGEW image{};
        image.ulFlags = LVBKIF_SOURCE_URL;
        image.pszImage = file.data();
        return send(LVM_SETBKIMAGEW, 0, toParam(&image)) != 0;
    }

private:
    template <class T>
    static LPARAM toParam(T* p) {
        return reinterpret_cast<LPARAM>(p);
    }
    LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) {
        return SendMessageW(window_, message, w, l);
    }

    LPARAM itemData(std::int32_t item) {
        LVITEMW data{};
        data.mask = LVIF_PARAM;
        data.iItem = item;
        return send(LVM_GETITEMW, 0, toParam(&data)) ? data.lParam : 0;
    }
    void setItemData(std::int32_t item, LPARAM value) {
        LVITEMW data{};
        data.mask = LVIF_PARAM;
        data.iItem = item;
        data.lParam = value;
        send(LVM_SETITEMW, 0, toParam(&data));
    }

    HWND window_;
};

// LVM_SORTITEMS hands the callback the items' lParams, not their places. Each item's lParam
// names its place before the sort when they are all distinct, which they are in lists that keep
// an object per item (the owner's data pointer), and then they are left alone: changing them
// would notify the owner of every item. Lists that leave them equal (0 when nobody set them)
// get their places as lParams for the sort, and their own values back afterwards.
bool Win32ControlWindow::sortItems(const std::function<int(std::int32_t, std::int32_t)>& compare) {
    const std::int32_t count = itemCount();
    std::vector<LPARAM> original(static_cast<std::size_t>(count));
    SortContext sort;
    sort.compare = &compare;
    bool distinct = true;
    for (std::int32_t i = 0; i < count; ++i) {
        original[i] = itemData(i);
        distinct = sort.indexOf.emplace(original[i], i).second && distinct;
    }
    if (!distinct) {
        sort.indexOf.clear();
        for (std::int32_t i = 0; i < count; ++i) {
            setItemData(i, static_cast<LPARAM>(i));
            sort.indexOf.emplace(static_cast<LPARAM>(i), i);
        }
    }
    const bool sorted =
        send(LVM_SORTITEMS, toParam(&sort), reinterpret_cast<LPARAM>(&compareItems)) != 0;
    if (!distinct) {
        // Each item's lParam now tells where it stood before; its own value stood there too.
        for (std::int32_t i = 0; i < count; ++i) {
            const LPARAM before = itemData(i);
            if (before >= 0 && before < count)
                setItemData(i, original[static_cast<std::size_t>(before)]);
        }
    }
    if (sort.failure)
        std::rethrow_exception(sort.failure);
    return sorted;
}

} // namespace

std::shared_ptr<ControlWindow> openControlWindow(HWND window) {
    DWORD process = 0;
    if (!IsWindow(window) || GetWindowThreadProcessId(window, &process) == 0 ||
        process != GetCurrentProcessId())
        return nullptr;
    return std::make_shared<Win32ControlWindow>(window);
}

} // namespace velkor6::win32
