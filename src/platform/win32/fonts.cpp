#include "platform/win32/services.h"
#include "platform/win32/wide.h"

#include <memory>
#include <type_traits>
#include <vector>
#include <windows.h>

namespace velkor6::win32 {
namespace {

struct ScreenDcRelease {
    void operator()(HDC dc) const { ReleaseDC(nullptr, dc); }
};

int CALLBACK addFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names) {
    reinterpret_cast<std::vector<std::u16string>*>(names)->push_back(fromWide(font->lfFaceName));
    return 1;
}

class GdiFonts final : public Fonts {
public:
    std::vector<std::u16string> families() override {
        std::vector<std::u16string> names;
        std::unique_ptr<std::remove_pointer_t<HDC>, ScreenDcRelease> dc(GetDC(nullptr));
        if (!dc)
            return names;
        LOGFONTW all = {};
        all.lfCharSet =
            DEFAULT_CHARSET; // every character set, with an empty face name: every family
        EnumFontFamiliesExW(dc.get(), &all, addFamily, reinterpret_cast<LPARAM>(&names), 0);
        return names;
    }
};

} // namespace

std::unique_ptr<Fonts> createFonts() {
    return std::make_unique<GdiFonts>();
}

} // namespace velkor6::win32
