// Font families through fontconfig, loaded when they are first asked for: programs that never
// list fonts do not load it and its libraries.
#include "platform/posix/services.h"
#include "platform/posix/utf8_path.h"

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>
#include <memory>

namespace velkor6::posix {
namespace {

struct LibraryClose {
    void operator()(void* handle) const { ::dlclose(handle); }
};

class FontconfigFonts final : public Fonts {
public:
    std::vector<std::u16string> families() override {
        if (!load())
            return {};
        // A configuration of our own, released after the listing: the process-wide one would
        // outlive us, and other users of fontconfig in the process keep theirs.
        std::unique_ptr<FcConfig, void (*)(FcConfig*)> config(initLoadConfigAndFonts_(),
                                                              configDestroy_);
        if (!config)
            return {};
        std::unique_ptr<FcPattern, void (*)(FcPattern*)> pattern(patternCreate_(), patternDestroy_);
        std::unique_ptr<FcObjectSet, void (*)(FcObjectSet*)> objects(
            objectSetBuild_(FC_FAMILY, static_cast<char*>(nullptr)), objectSetDestroy_);
        if (!pattern || !objects)
            return {};
        std::unique_ptr<FcFontSet, void (*)(FcFontSet*)> set(
            fontList_(config.get(), pattern.get(), objects.get()), fontSetDestroy_);
        std::vector<std::u16string> names;
        if (!set)
            return names;
        for (int i = 0; i < set->nfont; ++i) {
            FcChar8* family = nullptr;
            // The first name of a family is its own; the others are translations.
            if (patternGetString_(set->fonts[i], FC_FAMILY, 0, &family) == FcResultMatch &&
                family != nullptr)
                names.push_back(fromNative(reinterpret_cast<const char*>(family)));
        }
        return names;
    }

private:
    template <class Fn>
    bool symbol(Fn& fn, const char* name) {
        fn = reinterpret_cast<Fn>(::dlsym(library_.get(), name));
        return fn != nullptr;
    }

    bool load() {
        if (library_)
            return patternCreate_ != nullptr;
        // Kept in memory after the close: other users of fontconfig in the process may have
        // loaded it too.
        library_.reset(::dlopen("libfontconfig.so.1", RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
        if (!library_)
            return false;
        if (symbol(patternDestroy_, "FcPatternDestroy") &&
            symbol(objectSetBuild_, "FcObjectSetBuild") &&
            symbol(objectSetDestroy_, "FcObjectSetDestroy") && symbol(fontList_, "FcFontList") &&
            symbol(fontSetDestroy_, "FcFontSetDestroy") &&
            symbol(patternGetString_, "FcPatternGetString") &&
            symbol(initLoadConfigAndFonts_, "FcInitLoadConfigAndFonts") &&
            symbol(configDestroy_, "FcConfigDestroy") && symbol(patternCreate_, "FcPatternCreate"))
            return true;
        patternCreate_ = nullptr;
        return false;
    }

    std::unique_ptr<void, LibraryClose> library_;
    FcConfig* (*initLoadConfigAndFonts_)() = nullptr;
    void (*configDestroy_)(FcConfig*) = nullptr;
    FcPattern* (*patternCreate_)() = nullptr;
    void (*patternDestroy_)(FcPattern*) = nullptr;
    FcObjectSet* (*objectSetBuild_)(const char*, ...) = nullptr;
    void (*objectSetDestroy_)(FcObjectSet*) = nullptr;
    FcFontSet* (*fontList_)(FcConfig*, FcPattern*, FcObjectSet*) = nullptr;
    void (*fontSetDestroy_)(FcFontSet*) = nullptr;
    FcResult (*patternGetString_)(const FcPattern*, const char*, int, FcChar8**) = nullptr;
};

} // namespace

std::unique_ptr<Fonts> createFonts() {
    return std::make_unique<FontconfigFonts>();
}

} // namespace velkor6::posix
