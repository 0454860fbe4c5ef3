// Class `applib`: the context of one host application (its name, folder and version, its
// settings file and log, its language). Each member's body sits beside its row of the member table
// in one src/lib file per family; through that table the members are reachable by name (CLI, COM).
#pragma once

#include "velkor6/export.h"
#include "velkor6/module.h"
#include "velkor6/records.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

namespace app {
class ProfileFile;
}

// What the library reads of a host's application object.
struct HostApp {
    std::u16string path;    // folder of the running program, without a trailing separator
    std::u16string exeName; // file name without its extension
    std::int16_t major = 0;
    std::int16_t minor = 0;
    std::int16_t revision = 0;
};

class VELKOR6_API applib {
public:
    // A context for "globals" that touches no file until it is used; lib::vkrInitApp makes
    // initialised ones.
    explicit applib(std::shared_ptr<Module> module);
    ~applib();
    applib(const applib&) = delete;
    applib& operator=(const applib&) = delete;

    Module& module() { return *module_; }
    const Locale& locale() const { return module_->locale(); }

    const std::u16string& appName() const { return appName_; }
    const std::u16string& appPath() const { return appPath_; }
    const std::u16string& exeName() const { return exeName_; }
    // "6.01.0023" for version 6, 1, 23.
    const std::u16string& version() const { return version_; }
    // The folder of the settings file: the application path, or the "ostrak" folder.
    const std::u16string& dataFolder() const { return dataFolder_; }

    // --- Settings store ------------------------------------------------------------------
    std::u16string iniFile();
    std::u16string stringValue(std::u16string_view section, std::u16string_view propname,
                               std::u16string_view defaultValue = {}, bool bAutoCreate = false);
    void stringValueLet(std::u16string_view section, std::u16string_view propname,
                        std::u16string_view value);
    std::int32_t longValue(std::u16string_view section, std::u16string_view propname,
                           std::int32_t defaultValue = 0, bool bAutoCreate = false);
    void longValueLet(std::u16string_view section, std::u16string_view propname,
                      std::int32_t value);
    bool boolValue(std::u16string_view section, std::u16string_view propname,
                   bool defaultValue = false, bool bAutoCreate = false);
    void boolValueLet(std::u16string_view section, std::u16string_view propname, bool value);
    // Column widths always go to the settings file; lRegKey and sRegSubKey are not used.
    void loadColWidths(const ObjectRef& oListView, std::u16string_view sPropName,
                       std::int32_t lRegKey = -2147483647, std::u16string_view sRegSubKey = {});
    void saveColWidths(const ObjectRef& oListView, std::u16string_view sPropName,
                       std::int32_t lRegKey = -2147483647);
    void loadWindowPos(std::int32_t hwnd, std::u16string_view formname, bool ignoresize = false);
    void saveWindowPos(std::int32_t hwnd, std::u16string_view formname);

    // --- Log -----------------------------------------------------------------------------
    std::u16string logFile();
    void logAction(std::u16string_view sMessage);
    void logError(std::int32_t lError, std::u16string_view sErrDesc, std::u16string_view sErrSrc,
                  bool bShowMsgBox = false);

    // --- Path placeholders and editing -----------------------------------------------------
    std::u16string relativePath(std::u16string_view sFilename);
    std::u16string absolutePath(std::u16string_view sFilename);
    void editINIFile();
    void editLOGFile();

    // --- Language and resources ----------------------------------------------------------
    std::int16_t language();
    void languageLet(std::int16_t value);
    // "langid;name;extension" of each language whose resource library is on disk, as a String
    // array (lower bound 0).
    VariantArray getLanguagesList();
    // The resource lResID of type sResType in the application's resource library for its
    // language, as text; "" when there is none.
    std::u16string loadRes(std::int32_t lResID, std::u16string_view sResType);

    // --- Form captions and the language chooser -------------------------------------------
    // Captions the form and its controls from the captions document (XML text or a file path)
    // in the context's language; returns how many were set.
    std::int32_t loadFormCaption(const ObjectRef& oForm, std::u16string_view sCaptions,
                                 std::u16string_view sFormName = {});
    // The language the user chose (stored as the context's language); 0 when cancelled.
    std::int16_t chooseLanguage();

    // --- Command line --------------------------------------------------------------------
    // Reads vCommandLine (the arguments alone, as VB's Command$ gives them) or, when it is
    // missing, the process's own command line without the program's name, and keeps its
    // parameters; returns their count. The other members read the process's command line
    // first if nothing has been read yet.
    std::int32_t splitCommandLine(const Variant& vCommandLine = Variant::missing());
    // Whether a switch of that name (any letter case, with or without its "/", "-" or "--")
    // was given.
    bool cmdHasParam(std::u16string_view sName);
    // Every parameter in command-line order; positional ones have the name "".
    std::vector<typCmdParam> cmdParams();
    // The value of the last switch named vName (a text), or of the vName-th positional
    // parameter (a number, from 1); vDefault when there is none.
    Variant cmdParam(const Variant& vName, const Variant& vDefault = u"");

private:
    friend class lib;

    const std::vector<typCmdParam>& commandParams();

    // Start-up for the host application: identity, settings file, log file, language,
    // KeepLogFiles, the emptied log and its first line.
    void init(const HostApp& app, std::u16string_view appName);
    // The system's settings-file functions where the platform has them, else our own.
    SettingsFiles& settingsFiles();

    std::shared_ptr<Module> module_;
    std::u16string iniFile_;
    std::u16string logFile_;
    std::u16string appName_ = u"globals";
    std::u16string appPath_;
    std::u16string exeName_;
    std::u16string version_;
    std::u16string dataFolder_;
    std::int16_t language_ = 1;
    std::shared_ptr<XmlDocument> resources_; // created and filled on first use
    std::u16string resourceLibrary_;         // found once, then kept
    std::unique_ptr<app::ProfileFile> profile_;
    std::optional<std::vector<typCmdParam>> commandLine_; // read on first use
};

} // namespace velkor6
