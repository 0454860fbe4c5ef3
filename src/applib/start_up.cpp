// Creation and initialisation of an application context, and the names of its two files.
#include "applib/host_app.h"
#include "applib/profile_file.h"
#include "files/file_io.h"
#include "files/paths.h"
#include "velkor6/applib.h"
#include "velkor6/enums.h"

namespace velkor6 {

applib::applib(std::shared_ptr<Module> module)
    : module_(std::move(module)),
      profile_(std::make_unique<app::ProfileFile>(module_->platform())) {}

applib::~applib() = default;

SettingsFiles& applib::settingsFiles() {
    if (SettingsFiles* system = module_->platform().settingsFiles.get())
        return *system;
    return *profile_;
}

void applib::init(const HostApp& app, std::u16string_view appName) {
    appName_ = appName;
    appPath_ = app.path;
    exeName_ = app.exeName;
    version_ = app::versionText(app);
    dataFolder_ = app.path;
    iniFile();
    logFile();
    language();

    Module& m = *module_;
    // Only the library's own context decides; the others follow its choice.
    if (appName_ == u"velkor6")
        m.setKeepLogFiles(boolValue(u"Application", u"KeepLogFiles", false, false));
    if (!m.keepLogFiles())
        m.platform().fileSystem->writeFile(logFile_, {});

    logAction(u"velkor6.applib for application '" + appName_ + u"' initalized (exe=" + exeName_ +
              u", version=" + version_ + u", inifile=" + iniFile_ + u", logfile=" + logFile_ +
              u", append=" + (m.keepLogFiles() ? u"yes" : u"no") + u")");
}

} // namespace velkor6
