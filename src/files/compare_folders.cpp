#include "files/compare_folders.h"

#include "core/convert.h"
#include "core/format.h"
#include "files/dir_listing.h"
#include "files/folders.h"
#include "files/paths.h"

namespace velkor6::files {
namespace {

constexpr std::int32_t yesNoInformation = 68;

std::u16string forwardSlashes(std::u16string_view path) {
    std::u16string s(path);
    for (char16_t& c : s) {
        if (c == u'\\')
            c = u'/';
    }
    return s;
}

// The caller's splash form; a form that fails to answer counts as not visible.
class SplashForm {
public:
    explicit SplashForm(const ObjectRef& form, const Locale& loc) : form_(form), loc_(loc) {}
    SplashForm(const SplashForm&) = delete;
    SplashForm& operator=(const SplashForm&) = delete;
    ~SplashForm() { showAgain(); }

    void hideOnce() {
        if (hidden_ || !form_)
            return;
        try {
            if (toBoolean(form_->call(u"Visible", CallKind::PropertyGet, {}), loc_)) {
                form_->call(u"Hide", CallKind::Method, {});
                hidden_ = true;
            }
        } catch (const std::exception&) {
        }
    }

    void showAgain() {
        if (!hidden_)
            return;
        hidden_ = false;
        try {
            form_->call(u"Show", CallKind::Method, {});
        } catch (const std::exception&) {
        }
    }

private:
    const ObjectRef& form_;
    const Locale& loc_;
    bool hidden_ = false;
};

} // namespace

bool compareFiles(FileSystem& fs, std::u16string_view name, std::u16string_view source,
                  std::u16string_view target) {
    const PathStyle style = fs.pathStyle();
    const std::u16string from = getFullPath(source, name, style);
    const std::u16string to = getFullPath(target, name, style);
    if (const auto targetStatus = fs.status(to)) {
        const auto sourceStatus = fs.status(from);
        if (!sourceStatus)
            return false;
        if (sourceStatus->lastModified.serial > targetStatus->lastModified.serial)
            return fs.copyFile(from, to, true);
        return true;
    }
    if (fs.isFile(from))
        return fs.copyFile(from, to, true);
    return true;
}

std::u16string newerFileQuestion(std::u16string_view name, std::u16string_view targetDate,
                                 std::u16string_view sourceDate, std::u16string_view sourcePath,
                                 std::u16string_view targetFolder) {
    // "\n" stands in these texts as the two characters backslash and n, and is shown so.
    std::u16string q = u"Die Datei '";
    q += name;
    q += u"' aus dem Installationsverzeichnis ist neuer als die bei Ihnen aktuell verwendete "
         u"Datei.";
    q += u"\\n\\nMöchten Sie die Datei vom ";
    q += targetDate;
    q += u" mit der Originaldatei vom ";
    q += sourceDate;
    q += u" überschreiben?\\n\\nWenn Sie 'Nein' wählen, ";
    q += u"sollten Sie die Datei '";
    q += forwardSlashes(sourcePath);
    q += u"' umbenennen, löschen oder mit der Datei aus Ihrem Anwendungsverzeichnis '";
    q += forwardSlashes(targetFolder);
    q += u"' ersetzen, ";
    q += u"da Sie sonst bei jedem Programmstart diese Meldung erhalten werden.\\n\\nBeachten Sie "
         u"dabei, dass Sie hierfür ";
    q += u"Administratorrechte brauchen werden.";
    return q;
}

bool compareFolders(FileSystem& fs, const MessageBoxFunction& ask, DialogHost& host,
                    const Locale& loc, std::u16string_view source, std::u16string_view target,
                    std::u16string_view mask, const ObjectRef& splash) {
    const PathStyle style = fs.pathStyle();
    if (getFullPath(source, u"", style) == getFullPath(target, u"", style))
        return true;
    if (!fs.isDirectory(source))
        return false;
    if (!fs.isDirectory(target))
        makeDir(fs, target);
    if (!fs.isDirectory(target))
        return false;

    SplashForm form(splash, loc);
    for (const std::u16string& name : listNormalFiles(fs, getFullPath(source, mask, style))) {
        const std::u16string from = getFullPath(source, name, style);
        const std::u16string to = getFullPath(target, name, style);
        const auto targetStatus = fs.status(to);
        if (!targetStatus) {
            fs.copyFile(from, to, true);
        } else if (const auto sourceStatus = fs.status(from);
                   sourceStatus &&
                   sourceStatus->lastModified.serial > targetStatus->lastModified.serial) {
            form.hideOnce();
            const std::u16string question = newerFileQuestion(
                name, formatGeneralDate(targetStatus->lastModified, loc),
                formatGeneralDate(sourceStatus->lastModified, loc), fs.fullPath(from), target);
            if (ask(question, u"Dateivergleich", yesNoInformation) == dlgresult::yes)
                fs.copyFile(from, to, true);
        }
        host.serveEvents();
    }
    form.showAgain();
    return true;
}

} // namespace velkor6::files
