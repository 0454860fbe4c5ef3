// The module context: everything that lives as long as the library is loaded.
#pragma once

#include "velkor6/export.h"
#include "velkor6/locale.h"
#include "velkor6/platform/platform.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace velkor6 {

// The list sort in progress: the column and the direction its comparers read.
struct ListSortState {
    std::int16_t column = 0;
    bool descending = false;
};

// Module-wide state of one loaded library, and the platform it runs on. Tests create their own
// modules over a fake platform so that they never share state; the front ends use one module
// over the native platform.
class VELKOR6_API Module {
public:
    Module(std::unique_ptr<Platform> platform, Locale locale);

    // A module over the native platform and the user's locale.
    static std::shared_ptr<Module> createDefault();

    Platform& platform() { return *platform_; }
    const Locale& locale() const { return locale_; }
    void setLocale(Locale locale) { locale_ = std::move(locale); }

    // The user's temporary folder, read once for the whole module; empty until first use.
    std::u16string& tempFolderCache() { return tempFolder_; }

    // Whether application logs are kept across starts; read by the library's own context.
    bool keepLogFiles() const { return keepLogFiles_; }
    void setKeepLogFiles(bool keep) { keepLogFiles_ = keep; }
    // The language of the most recently initialised or asked application context; the dialogs
    // and the members without a context use it.
    std::int16_t currentLanguage() const { return currentLanguage_; }
    void setCurrentLanguage(std::int16_t language) { currentLanguage_ = language; }
    // The library's own resource document, shared by the dialogs; filled on first use.
    std::shared_ptr<XmlDocument>& resourceDocument() { return resourceDocument_; }

    // The status window as the library last showed it; empty while none is open.
    std::optional<StatusWindow>& statusWindow() { return statusWindow_; }

private:
    std::unique_ptr<Platform> platform_;
    Locale locale_;
    std::u16string tempFolder_;
    bool keepLogFiles_ = false;
    std::int16_t currentLanguage_ = 1;
    std::shared_ptr<XmlDocument> resourceDocument_;
    std::optional<StatusWindow> statusWindow_;

public:
    // The last list sort's column and direction, kept between the sort and its comparers.
    ListSortState& listSort() { return listSort_; }

private:
    ListSortState listSort_;
};

} // namespace velkor6
