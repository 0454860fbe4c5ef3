// Call by name and compression: the `lib` members and their rows in the member table.
#include "core/collection.h"
#include "core/convert.h"
#include "core/text.h"
#include "lib/lib_members.h"
#include "lzw/global_var.h"
#include "velkor6/vb_error.h"
#include "windows/fade.h"

#include <algorithm>
#include <optional>

namespace velkor6 {
namespace {

bool isFontList(std::u16string_view name) {
    return textEqual(name, u"GetFontList", Compare::Text);
}

[[noreturn]] void unknownName(std::u16string_view member) {
    throw VbError(vberr::noSuchMember, VbError::describe(vberr::noSuchMember),
                  u"velkor6." + std::u16string(member));
}

// Sorted as text, each family once; the vertical variants ("@" names) of East Asian fonts are
// no families of their own.
std::vector<std::u16string> fontFamilies(Module& m) {
    std::vector<std::u16string> names = m.platform().fonts->families();
    std::erase_if(names, [](const std::u16string& n) { return n.empty() || n.front() == u'@'; });
    std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) {
        const int c = compareStrings(a, b, Compare::Text);
        return c != 0 ? c < 0 : a < b;
    });
    names.erase(
        std::unique(names.begin(), names.end(),
                    [](const auto& a, const auto& b) { return textEqual(a, b, Compare::Text); }),
        names.end());
    return names;
}

constexpr std::int32_t defaultFadeMilliseconds = 500;

// The opacity a fade name leads to: FadeIn to opaque, FadeOut and FadeInit to transparent.
std::optional<double> fadeTarget(std::u16string_view name) {
    if (textEqual(name, u"FadeIn", Compare::Text))
        return 1.0;
    if (textEqual(name, u"FadeOut", Compare::Text) || textEqual(name, u"FadeInit", Compare::Text))
        return 0.0;
    return std::nullopt;
}

struct FadeArguments {
    WindowHandle window = 0;
    std::int32_t milliseconds = defaultFadeMilliseconds;
};

// vParam is the window handle, or an array of the handle and the duration in milliseconds.
FadeArguments fadeArguments(const Variant& vParam, const Locale& locale) {
    if (vParam.isMissing())
        throw VbError(vberr::argumentNotOptional);
    FadeArguments a;
    if (!vParam.isArray()) {
        a.window = toLong(vParam, locale);
        return a;
    }
    const VariantArray& items = vParam.array();
    if (items.bounds.size() != 1 || items.items.empty() || items.items.size() > 2)
        throw VbError(vberr::invalidCall);
    a.window = toLong(items.items[0], locale);
    if (items.items.size() == 2)
        a.milliseconds = std::max(0, toLong(items.items[1], locale));
    return a;
}

bool fadeWindow(Module& m, std::u16string_view name, double target, const Variant& vParam,
                const Locale& locale) {
    FadeArguments a = fadeArguments(vParam, locale);
    if (textEqual(name, u"FadeInit", Compare::Text))
        a.milliseconds = 0;
    Platform& p = m.platform();
    if (!p.windowManager || !p.clock || !p.ui)
        return false;
    return windows::fade(*p.clock, *p.ui, *p.windowManager, a.window, target, a.milliseconds);
}

Variant stringArray(std::vector<std::u16string> items) {
    VariantArray a;
    a.element = VarType::String;
    for (auto& item : items)
        a.items.emplace_back(std::move(item));
    a.bounds = {ArrayBound{0, static_cast<std::int32_t>(a.items.size())}};
    return Variant(std::move(a));
}

} // namespace

Variant lib::vkrGlobalVar(std::u16string_view sName, const Variant& vParam) {
    if (isFontList(sName))
        return stringArray(fontFamilies(module()));
    if (const std::optional<double> target = fadeTarget(sName))
        return Variant(fadeWindow(module(), sName, *target, vParam, locale()));
    return lzw::callGlobalVar(sName, vParam, locale());
}

Variant lib::vkrGlobalObj(std::u16string_view sName, const Variant&) {
    if (!isFontList(sName))
        unknownName(u"vkrGlobalObj");
    auto fonts = std::make_shared<Collection>();
    for (std::u16string& name : fontFamilies(module())) {
        const Variant key(name);
        fonts->add(Variant(std::move(name)), key);
    }
    return Variant(ObjectRef(std::move(fonts)));
}

Variant lib::vkrProperty(std::u16string_view sName) {
    if (!isFontList(sName))
        unknownName(u"vkrProperty");
    return stringArray(fontFamilies(module()));
}

} // namespace velkor6

namespace velkor6::dispatch {

void addCallByNameMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {22,
         u"vkrGlobalVar",
         CallKind::Method,
         {required(u"sName", T::String), optional(u"vParam", T::Variant, Variant::missing())},
         T::Variant,
         [](lib& l, Args& a) -> Variant { return l.vkrGlobalVar(a.str(0), a[1]); },
         u"Calls the library function sName with vParam: \"Deflate\" compresses a text, "
         u"\"Inflate\" and \"InflateStrict\" decompress it; \"GetFontList\" gives the "
         u"installed font families; \"FadeOut\", \"FadeIn\" and \"FadeInit\" fade a "
         u"window. The name may be in any letter case.",
         u"Compressed texts hold one character per byte (its ANSI code): 9-bit LZW codes, a "
         u"dictionary of 512 entries that starts over with a clear code whenever it is full, and "
         u"an end code. Characters without an ANSI code are compressed as \"?\".\n\n"
         u"\"Inflate\" is the library's established decoder, kept unchanged for existing callers. "
         u"After each clear code the compressor "
         u"stores, at entry 258, the string that overflowed the full dictionary, but \"Inflate\" "
         u"stores a single character there. Whenever a compressed text uses code 258 after a "
         u"clear code, which long or repetitive texts do, \"Inflate\" returns a different text "
         u"than was compressed.\n\n"
         u"\"InflateStrict\" decodes every text that \"Deflate\" writes back to the original: "
         u"after a clear code, entry 258 is the string decoded just before the clear code "
         u"followed by the first character of the next string (or of the string itself when the "
         u"next code is 258). Where no code 258 follows a clear code, both give the same text.\n\n"
         u"The empty text compresses to Chr(3) & Chr(2), a clear code followed directly by the "
         u"end code; both decoders return \"\" for it.\n\n"
         u"A text whose first code is not the clear code decompresses to \"\". A text too short to "
         u"hold the clear code and one more code raises error 9 (Subscript out of range); "
         u"\"InflateStrict\" also raises error 9 for a text \"Deflate\" cannot have written (a "
         u"code not yet defined, a full dictionary without a clear code, no end code). A damaged "
         u"text that would decompress to more than 2^30 characters raises error 14 (Out of "
         u"string space). A missing vParam raises error 449.\n\n"
         u"\"GetFontList\" ignores vParam and returns the names of the installed font "
         u"families as a String array (lower bound 0; UBound -1 when there are none), sorted "
         u"as text (letter case ignored), each once; names beginning with \"@\" (vertical "
         u"variants) are left out. On Windows the families EnumFontFamiliesExW lists for every "
         u"character set on the screen; on Linux the first family name of each font fontconfig "
         u"knows (an empty list when fontconfig is not installed).\n\n"
         u"\"FadeOut\", \"FadeIn\" and \"FadeInit\" change how opaque a top-level window "
         u"is drawn. vParam is the window handle (hWnd), or an array of the handle and the "
         u"duration in milliseconds (default 500; a negative duration counts as 0). "
         u"\"FadeOut\" goes from the window's present opacity to transparent, \"FadeIn\" to "
         u"opaque, and \"FadeInit\" makes it transparent at once (the duration is ignored), so "
         u"that a form made transparent before it is shown appears without a flash and then "
         u"fades in. A fade takes one step per 20 ms, ceil(duration / 20) steps in all (at most "
         u"1000: longer fades take longer steps), with "
         u"the opacity going evenly from the start to the end value, which the last step "
         u"reaches exactly; before every pause the program's pending events are served (as "
         u"DoEvents), so its forms stay responsive. A faded-out window stays loaded, shown and "
         u"clickable where the system allows: hide or unload it afterwards. The result is True "
         u"when the opacity was set, False when the handle is no window or the window system "
         u"cannot change it (then nothing waits). On Windows the window becomes a layered "
         u"window (WS_EX_LAYERED) with a constant alpha of round(opacity x 255) "
         u"(SetLayeredWindowAttributes with LWA_ALPHA); it stays layered after \"FadeIn\". On "
         u"Linux the property _NET_WM_WINDOW_OPACITY (CARDINAL, round(opacity x 4294967295)) is "
         u"set on the window and on the window manager's frame around it, and removed at full "
         u"opacity; a compositing window manager draws it, without one the window looks "
         u"unchanged. A missing vParam raises error 449, an array of other than one or two "
         u"elements error 5, a handle or duration that is no number error 13. Example: "
         u"vkrGlobalVar \"FadeInit\", Me.hWnd: Me.Show: vkrGlobalVar \"FadeIn\", "
         u"Array(Me.hWnd, 300).\n\n"
         u"A name other than these raises error 438 with the source "
         u"\"velkor6.vkrGlobalVar\"."});
    t.push_back(
        {110,
         u"vkrGlobalObj",
         CallKind::Method,
         {required(u"sName", T::String), optional(u"vParam", T::Variant, Variant::missing())},
         T::Object,
         [](lib& l, Args& a) -> Variant { return l.vkrGlobalObj(a.str(0), a[1]); },
         u"Calls the library function sName that returns an object: \"GetFontList\" gives the "
         u"installed font families as a Collection.",
         u"The Collection holds the names of vkrGlobalVar(\"GetFontList\"), in the same order, "
         u"each under its own name as key, so that oFonts(\"Arial\") is \"Arial\" in any "
         u"letter case, oFonts(1) is the first and a family that is not installed raises error "
         u"5 from the Collection. vParam is not used. The name may be in any letter case; any "
         u"other name raises error 438 with the source \"velkor6.vkrGlobalObj\"."});
    t.push_back(
        {111,
         u"vkrProperty",
         CallKind::PropertyGet,
         {required(u"sName", T::String)},
         T::Variant,
         [](lib& l, Args& a) -> Variant { return l.vkrProperty(a.str(0)); },
         u"Reads the library property sName: \"GetFontList\" gives the installed font families "
         u"as a String array.",
         u"The same array as vkrGlobalVar(\"GetFontList\"). The name may be in any letter case; "
         u"any other name raises error 438 with the source \"velkor6.vkrProperty\"."});
}

} // namespace velkor6::dispatch
