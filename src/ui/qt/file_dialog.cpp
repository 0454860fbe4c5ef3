#include "ui/qt/file_dialog.h"

#include "ui/qt/convert.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <cstdio>
#include <cstdlib>

namespace velkor6::qt {
namespace {

// With VELKOR6_QT_TRACE set, what the dialog shows goes to standard error, for the UI tests.
void trace(const QString& line) {
    if (std::getenv("VELKOR6_QT_TRACE") != nullptr)
        std::fprintf(stderr, "velkor6-qt: %s\n", line.toUtf8().constData());
}

// "Text files" with "*.txt;*.log" as Qt writes a filter; the pattern list in parentheses is hidden
// from the user, so the description shows exactly as the caller wrote it.
QString nameFilter(const FileFilter& filter) {
    QString patterns = toQString(filter.pattern);
    patterns.replace(u';', u' ');
    return toQString(filter.description) + QStringLiteral(" (") + patterns + u')';
}

void setCommonOptions(QFileDialog& dialog, const std::u16string& title, const QString& fallback,
                      const std::u16string& startFolder) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setWindowTitle(title.empty() ? fallback : toQString(title));
    dialog.setDirectory(toQString(startFolder));
    // Patterns match as the Windows dialogs match them, whatever the letter case.
    dialog.setFilter(dialog.filter() & ~QDir::CaseSensitive);
}

// The folder chooser: a name typed into its name field that is no folder yet is handed back
// (the library makes it) when new folders are allowed, and Qt's own "Create New Folder" puts a
// name there to be typed over, so that every new folder is made, and fails, the same way.
class FolderChooser final : public QFileDialog {
public:
    explicit FolderChooser(const FolderDialogRequest& request)
        : allowNewFolder_(request.allowNewFolder) {
        setCommonOptions(*this, request.title, QStringLiteral("Browse for Folder"),
                         request.startFolder);
        setFileMode(QFileDialog::Directory);
        setOption(QFileDialog::ShowDirsOnly);
        name_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const auto newFolder = [this] {
            if (name_ == nullptr)
                return;
            name_->setText(QStringLiteral("New Folder"));
            name_->setFocus();
            name_->selectAll();
        };
        if (auto* button = findChild<QToolButton*>(QStringLiteral("newFolderButton"))) {
            QObject::disconnect(button, &QToolButton::clicked, nullptr, nullptr);
            if (allowNewFolder_ && name_ != nullptr)
                QObject::connect(button, &QToolButton::clicked, this, newFolder);
            else
                button->hide();
        }
        if (auto* action = findChild<QAction*>(QStringLiteral("qt_new_folder_action"))) {
            QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
            if (allowNewFolder_ && name_ != nullptr)
                QObject::connect(action, &QAction::triggered, this, newFolder);
            else
                action->setVisible(false);
        }
        // Qt greys the accept button out for a name that is no folder yet; a new one is allowed.
        auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        QPushButton* choose =
            buttons != nullptr ? buttons->button(QDialogButtonBox::Open) : nullptr;
        if (allowNewFolder_ && name_ != nullptr && choose != nullptr)
            QObject::connect(name_, &QLineEdit::textChanged, choose, [this, choose] {
                if (!name_->text().trimmed().isEmpty())
                    choose->setEnabled(true);
            });
        trace(QStringLiteral("folder chooser \"%1\" in \"%2\"%3")
                  .arg(windowTitle(), directory().absolutePath(),
                       allowNewFolder_ ? QStringLiteral(" new folders") : QString()));
    }

    QString chosen() const { return chosen_; }

    void accept() override {
        const QString typed = name_ != nullptr ? name_->text().trimmed() : QString();
        const QString path =
            typed.isEmpty() ? directory().absolutePath() : directory().absoluteFilePath(typed);
        if (allowNewFolder_ && !typed.isEmpty() && !QFileInfo::exists(path)) {
            chosen_ = QDir::cleanPath(path);
            QFileDialog::done(QDialog::Accepted);
            return;
        }
        QFileDialog::accept();
        if (result() == QDialog::Accepted) {
            const QStringList files = selectedFiles();
            chosen_ = files.isEmpty() ? path : files.first();
        }
    }

private:
    bool allowNewFolder_;
    QLineEdit* name_ = nullptr;
    QString chosen_;
};

} // namespace

std::vector<std::u16string> runFileDialog(const FileDialogRequest& request) {
    QFileDialog dialog;
    setCommonOptions(dialog, request.title,
                     request.save ? QStringLiteral("Save As") : QStringLiteral("Open"),
                     request.startFolder);
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (request.multiSelect)
        dialog.setFileMode(QFileDialog::ExistingFiles);
    else if (request.fileMustExist)
        dialog.setFileMode(QFileDialog::ExistingFile);
    else
        dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    QStringList filters;
    for (const FileFilter& filter : request.filters)
        filters << nameFilter(filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(request.filterIndex));
    }
    if (!request.defaultExtension.empty())
        dialog.setDefaultSuffix(toQString(request.defaultExtension));
    if (!request.fileName.empty())
        dialog.selectFile(toQString(request.fileName));
    trace(QStringLiteral("file dialog \"%1\" in \"%2\" filters \"%3\"")
              .arg(dialog.windowTitle(), dialog.directory().absolutePath(),
                   filters.join(QStringLiteral("\" \""))));
    std::vector<std::u16string> paths;
    if (dialog.exec() != QDialog::Accepted)
        return paths;
    for (const QString& file : dialog.selectedFiles())
        paths.push_back(toU16(QDir::toNativeSeparators(file)));
    return paths;
}

std::u16string runFolderDialog(const FolderDialogRequest& request) {
    FolderChooser chooser(request);
    if (chooser.exec() != QDialog::Accepted)
        return {};
    return toU16(QDir::toNativeSeparators(chooser.chosen()));
}

} // namespace velkor6::qt
