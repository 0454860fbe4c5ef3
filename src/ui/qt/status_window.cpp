#include "ui/qt/status_window.h"

#include "dialogs/rtf_reader.h"
#include "ui/qt/convert.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QWindow>
#include <algorithm>

namespace velkor6::qt {

StatusWidget::StatusWidget()
    : QWidget(nullptr, Qt::Dialog), message_(new QLabel(this)), counter_(new QProgressBar(this)) {
    message_->setTextFormat(Qt::RichText);
    message_->setWordWrap(true);
    message_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    counter_->setTextVisible(false);
    counter_->hide();
    // It reports progress; the caller's windows keep the keyboard.
    setAttribute(Qt::WA_ShowWithoutActivating);
}

StatusWidget::~StatusWidget() = default;

void StatusWidget::apply(const StatusWindow& window) {
    setWindowTitle(toQString(window.title));
    if (window.topMost != topMost_) {
        topMost_ = window.topMost;
        // Changing the flags of a shown window hides it; it is shown again below.
        setWindowFlag(Qt::WindowStaysOnTopHint, topMost_);
    }
    setFixedSize(toQSize(window.clientSize));
    message_->setFont(toQFont(window.message.font));
    message_->setText(toQString(dialogs::rtfToHtml(window.message.text)));
    message_->setGeometry(toQRect(window.message.rect));
    counter_->setGeometry(toQRect(window.counterRect));
    counter_->setRange(0, std::max(window.counterMax, 0));
    counter_->setValue(std::clamp(window.counterValue, 0, std::max(window.counterMax, 0)));
    counter_->setVisible(window.counterVisible);
    if (window.owner != owner_) {
        owner_ = window.owner;
        // The owner is another toolkit's window, known by its X11 id only.
        if (!windowHandle())
            create();
        std::unique_ptr<QWindow> foreign;
        if (owner_ != 0)
            foreign.reset(QWindow::fromWinId(static_cast<WId>(owner_)));
        windowHandle()->setTransientParent(foreign.get());
        ownerWindow_ = std::move(foreign);
    }
    show();
    // A caller often shows the window and then works without serving events; the window must
    // show its contents all the same, so it is painted now, once the server has shown it.
    QElapsedTimer waited;
    waited.start();
    while (!windowHandle()->isExposed() && waited.elapsed() < 500)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    repaint();
}

} // namespace velkor6::qt
