#include "ui/qt/qt_host.h"

#include "ui/qt/convert.h"
#include "ui/qt/file_dialog.h"
#include "ui/qt/form_dialog.h"

#include <QCoreApplication>
#include <QFontMetrics>

namespace velkor6::qt {

DialogEvent QtDialogHost::showModal(const DialogForm& form, const DialogDecision& decide) {
    FormDialog dialog(form, decide);
    return dialog.run();
}

PixelSize QtDialogHost::measureText(std::u16string_view text, const DialogFont& font,
                                    std::int32_t wrapWidth) {
    const QFontMetrics metrics(toQFont(font));
    if (text.empty())
        return PixelSize{0, metrics.height()};
    constexpr int unbounded = 1 << 20;
    int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextExpandTabs;
    if (wrapWidth > 0)
        flags |= Qt::TextWordWrap;
    const QRect bounds = metrics.boundingRect(
        QRect(0, 0, wrapWidth > 0 ? wrapWidth : unbounded, unbounded), flags, toQString(text));
    return PixelSize{bounds.width(), bounds.height()};
}

void QtDialogHost::showStatus(const StatusWindow& window) {
    if (!status_)
        status_ = std::make_unique<StatusWidget>();
    status_->apply(window);
}

void QtDialogHost::hideStatus() {
    if (status_)
        status_->hide();
}

void QtDialogHost::closeStatus() {
    status_.reset();
}

void QtDialogHost::serveEvents() {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

std::vector<std::u16string> QtDialogHost::chooseFiles(const FileDialogRequest& request) {
    return runFileDialog(request);
}

std::u16string QtDialogHost::chooseFolder(const FolderDialogRequest& request) {
    return runFolderDialog(request);
}

} // namespace velkor6::qt
