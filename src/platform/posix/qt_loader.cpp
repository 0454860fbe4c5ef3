#include "platform/posix/qt_loader.h"

#include "platform/posix/library_folder.h"
#include "platform/posix/qt_library.h"
#include "platform/posix/utf8_path.h"

#include <cstdlib>
#include <dlfcn.h>

namespace velkor6::posix {
namespace {

struct LibraryCloser {
    void operator()(void* handle) const { ::dlclose(handle); }
};

using EntryPoint = DialogHost* (*)();
using ControlEntryPoint = ControlWindow* (*)(std::int32_t);
using Library = std::unique_ptr<void, LibraryCloser>;

// The Qt library when this process has loaded it already: linked by a program that wraps its
// widgets, or loaded for a dialog. RTLD_NOLOAD only finds it, so asking never loads Qt.
Library loadedQtLibrary() {
    if (void* linked = ::dlopen(qtLibraryName, RTLD_NOW | RTLD_NOLOAD))
        return Library(linked);
    for (const std::string& file : qtLibraryCandidates(nativePath(libraryFolder())))
        if (void* loaded = ::dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD))
            return Library(loaded);
    return nullptr;
}

class QtOnFirstUse final : public DialogHost {
public:
    explicit QtOnFirstUse(std::function<std::unique_ptr<DialogHost>()> fallback)
        : fallback_(std::move(fallback)) {}

    DialogEvent showModal(const DialogForm& form, const DialogDecision& decide) override {
        return host().showModal(form, decide);
    }
    PixelSize measureText(std::u16string_view text, const DialogFont& font,
                          std::int32_t wrapWidth) override {
        return host().measureText(text, font, wrapWidth);
    }
    void showStatus(const StatusWindow& window) override { host().showStatus(window); }
    // Without a host there is no status window to hide or close and no toolkit to serve.
    void hideStatus() override {
        if (host_)
            host_->hideStatus();
    }
    void closeStatus() override {
        if (host_)
            host_->closeStatus();
    }
    void serveEvents() override {
        if (host_)
            host_->serveEvents();
    }
    std::vector<std::u16string> chooseFiles(const FileDialogRequest& request) override {
        return host().chooseFiles(request);
    }
    std::u16string chooseFolder(const FolderDialogRequest& request) override {
        return host().chooseFolder(request);
    }

private:
    DialogHost& host() {
        if (!host_)
            host_ = loadQtDialogHost();
        if (!host_)
            host_ = fallback_();
        return *host_;
    }

    std::function<std::unique_ptr<DialogHost>()> fallback_;
    std::unique_ptr<DialogHost> host_;
};

} // namespace

std::vector<std::string> qtLibraryCandidates(const std::string& ownFolder) {
    std::vector<std::string> files;
    if (!ownFolder.empty()) {
        files.push_back(ownFolder + "/" + qtLibraryName);
        files.push_back(ownFolder + "/../" + installLibDir + "/" + qtLibraryName);
    }
    files.push_back(std::string(installFullLibDir) + "/" + qtLibraryName);
    return files;
}

std::unique_ptr<DialogHost> loadQtDialogHost() {
    const char* display = std::getenv("DISPLAY");
    if (display == nullptr || *display == '\0')
        return nullptr;
    // A program that links the Qt library has its own copy found first: one Qt library a process.
    std::vector<std::string> files{qtLibraryName};
    for (std::string& file : qtLibraryCandidates(nativePath(libraryFolder())))
        files.push_back(std::move(file));
    for (const std::string& file : files) {
        const int mode = file == qtLibraryName ? RTLD_NOLOAD : RTLD_LOCAL;
        // Qt cannot be unloaded once it has run, so the library stays whatever the handle does.
        const Library library(::dlopen(file.c_str(), RTLD_NOW | mode | RTLD_NODELETE));
        if (!library)
            continue;
        const auto entry =
            reinterpret_cast<EntryPoint>(::dlsym(library.get(), "velkor6_qt_dialog_host"));
        if (entry == nullptr)
            return nullptr;
        return std::unique_ptr<DialogHost>(entry());
    }
    return nullptr;
}

} // namespace velkor6::posix

namespace velkor6::posix {

std::shared_ptr<ControlWindow> qtControlWindow(WindowHandle handle) {
    const Library library = loadedQtLibrary();
    if (!library)
        return nullptr;
    const auto entry =
        reinterpret_cast<ControlEntryPoint>(::dlsym(library.get(), "velkor6_qt_control_window"));
    // The library stays loaded after our reference goes: it was loaded before we asked.
    return entry == nullptr ? nullptr : std::shared_ptr<ControlWindow>(entry(handle));
}

std::unique_ptr<DialogHost> qtOnFirstUse(std::function<std::unique_ptr<DialogHost>()> fallback) {
    return std::make_unique<QtOnFirstUse>(std::move(fallback));
}

} // namespace velkor6::posix
