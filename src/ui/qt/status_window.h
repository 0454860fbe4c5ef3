// The library's one status window: a centred rich message and a progress bar, not modal.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <QWidget>
#include <memory>

class QLabel;
class QProgressBar;
class QWindow;

namespace velkor6::qt {

class StatusWidget final : public QWidget {
public:
    StatusWidget();
    ~StatusWidget() override;
    // Shows the window as described.
    void apply(const StatusWindow& window);

private:
    QLabel* message_;
    QProgressBar* counter_;
    std::intptr_t owner_ = 0;
    std::unique_ptr<QWindow> ownerWindow_;
    bool topMost_ = false;
};

} // namespace velkor6::qt
