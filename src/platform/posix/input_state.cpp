#include "platform/posix/services.h"
#include "platform/posix/x_display.h"

#include <X11/XKBlib.h>
#include <X11/keysym.h>
#include <array>
#include <utility>

namespace velkor6::posix {
namespace {

constexpr std::int16_t downBit = std::int16_t(0x8000);

// The X key symbols of a Windows virtual-key code (the US layout's meaning for the punctuation
// keys); none for codes without an X equivalent.
std::array<KeySym, 2> keySymsOf(std::int32_t vk) {
    if (vk >= '0' && vk <= '9')
        return {static_cast<KeySym>(XK_0 + (vk - '0')), NoSymbol};
    if (vk >= 'A' && vk <= 'Z')
        return {static_cast<KeySym>(XK_a + (vk - 'A')), NoSymbol};
    if (vk >= 0x60 && vk <= 0x69)
        return {static_cast<KeySym>(XK_KP_0 + (vk - 0x60)), NoSymbol};
    if (vk >= 0x70 && vk <= 0x87)
        return {static_cast<KeySym>(XK_F1 + (vk - 0x70)), NoSymbol};
    switch (vk) {
    case 0x03:
        return {XK_Cancel, XK_Break};
    case 0x08:
        return {XK_BackSpace, NoSymbol};
    case 0x09:
        return {XK_Tab, XK_ISO_Left_Tab};
    case 0x0C:
        return {XK_Clear, XK_KP_Begin};
    case 0x0D:
        return {XK_Return, XK_KP_Enter};
    case 0x10:
        return {XK_Shift_L, XK_Shift_R};
    case 0x11:
        return {XK_Control_L, XK_Control_R};
    case 0x12:
        return {XK_Alt_L, XK_Alt_R};
    case 0x13:
        return {XK_Pause, NoSymbol};
    case 0x14:
        return {XK_Caps_Lock, NoSymbol};
    case 0x1B:
        return {XK_Escape, NoSymbol};
    case 0x20:
        return {XK_space, NoSymbol};
    case 0x21:
        return {XK_Prior, NoSymbol};
    case 0x22:
        return {XK_Next, NoSymbol};
    case 0x23:
        return {XK_End, NoSymbol};
    case 0x24:
        return {XK_Home, NoSymbol};
    case 0x25:
        return {XK_Left, NoSymbol};
    case 0x26:
        return {XK_Up, NoSymbol};
    case 0x27:
        return {XK_Right, NoSymbol};
    case 0x28:
        return {XK_Down, NoSymbol};
    case 0x2C:
        return {XK_Print, NoSymbol};
    case 0x2D:
        return {XK_Insert, NoSymbol};
    case 0x2E:
        return {XK_Delete, NoSymbol};
    case 0x5B:
        return {XK_Super_L, NoSymbol};
    case 0x5C:
        return {XK_Super_R, NoSymbol};
    case 0x5D:
        return {XK_Menu, NoSymbol};
    case 0x6A:
        return {XK_KP_Multiply, NoSymbol};
    case 0x6B:
        return {XK_KP_Add, NoSymbol};
    case 0x6D:
        return {XK_KP_Subtract, NoSymbol};
    case 0x6E:
        return {XK_KP_Decimal, NoSymbol};
    case 0x6F:
        return {XK_KP_Divide, NoSymbol};
    case 0x90:
        return {XK_Num_Lock, NoSymbol};
    case 0x91:
        return {XK_Scroll_Lock, NoSymbol};
    case 0xA0:
        return {XK_Shift_L, NoSymbol};
    case 0xA1:
        return {XK_Shift_R, NoSymbol};
    case 0xA2:
        return {XK_Control_L, NoSymbol};
    case 0xA3:
        return {XK_Control_R, NoSymbol};
    case 0xA4:
        return {XK_Alt_L, NoSymbol};
    case 0xA5:
        return {XK_Alt_R, XK_ISO_Level3_Shift};
    case 0xBA:
        return {XK_semicolon, NoSymbol};
    case 0xBB:
        return {XK_equal, NoSymbol};
    case 0xBC:
        return {XK_comma, NoSymbol};
    case 0xBD:
        return {XK_minus, NoSymbol};
    case 0xBE:
        return {XK_period, NoSymbol};
    case 0xBF:
        return {XK_slash, NoSymbol};
    case 0xC0:
        return {XK_grave, NoSymbol};
    case 0xDB:
        return {XK_bracketleft, NoSymbol};
    case 0xDC:
        return {XK_backslash, NoSymbol};
    case 0xDD:
        return {XK_bracketright, NoSymbol};
    case 0xDE:
        return {XK_apostrophe, NoSymbol};
    default:
        return {NoSymbol, NoSymbol};
    }
}

// Keys and buttons of the X server. X keeps no "pressed since the last query" note, so only the
// down bit is ever set. Without a display nothing reads as down.
class X11InputState final : public InputState {
public:
    explicit X11InputState(std::shared_ptr<XConnection> x) : x_(std::move(x)) {}

    std::int16_t asyncKeyState(std::int32_t virtualKey) override {
        Display* d = x_->display();
        if (d == nullptr)
            return 0;
        // The physical left, right and middle buttons, as Windows reports them whatever the
        // user's swap: the logical button each one is mapped to is what X reports.
        if (virtualKey == 1 || virtualKey == 2 || virtualKey == 4) {
            const int physical = virtualKey == 1 ? 1 : virtualKey == 2 ? 3 : 2;
            return buttonDown(d, logicalButton(d, physical)) ? downBit : 0;
        }
        char keys[32] = {};
        XQueryKeymap(d, keys);
        for (const KeySym sym : keySymsOf(virtualKey)) {
            if (sym == NoSymbol)
                continue;
            const KeyCode code = XKeysymToKeycode(d, sym);
            if (code != 0 && (keys[code / 8] & (1 << (code % 8))) != 0)
                return downBit;
        }
        return 0;
    }

    bool mouseButtonsSwapped() override {
        Display* d = x_->display();
        return d != nullptr && logicalButton(d, 1) == 3;
    }

private:
    static int logicalButton(Display* d, int physical) {
        unsigned char map[32] = {};
        const int n = XGetPointerMapping(d, map, sizeof map);
        return physical <= n ? map[physical - 1] : physical;
    }

    static bool buttonDown(Display* d, int button) {
        Window root = None, child = None;
        int rootX = 0, rootY = 0, x = 0, y = 0;
        unsigned int mask = 0;
        XQueryPointer(d, DefaultRootWindow(d), &root, &child, &rootX, &rootY, &x, &y, &mask);
        switch (button) {
        case 1:
            return (mask & Button1Mask) != 0;
        case 2:
            return (mask & Button2Mask) != 0;
        case 3:
            return (mask & Button3Mask) != 0;
        case 4:
            return (mask & Button4Mask) != 0;
        case 5:
            return (mask & Button5Mask) != 0;
        default:
            return false;
        }
    }

    std::shared_ptr<XConnection> x_;
};

} // namespace

std::unique_ptr<InputState> createInputState(std::shared_ptr<XConnection> x) {
    return std::make_unique<X11InputState>(std::move(x));
}

} // namespace velkor6::posix
