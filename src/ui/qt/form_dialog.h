// One modal form of the dialog logic, drawn with widgets at the positions the logic computed.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <QDialog>
#include <QRect>
#include <optional>
#include <vector>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace velkor6::qt {

class FormDialog final : public QDialog {
public:
    FormDialog(const DialogForm& form, const DialogDecision& decide);

    // Shows the form modally until the logic accepts an event, and returns that event.
    DialogEvent run();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // Esc and the close box both end here in QDialog; the logic decides about each instead.
    void reject() override {}

private:
    void addTexts(const DialogForm& form);
    void addIcon(const DialogForm& form);
    void addField(const DialogField& field);
    void addButtons(const DialogForm& form);
    void watch(QWidget* child);
    bool handleKey(const QKeyEvent& key);
    void report(DialogEvent event);
    QString fieldText() const;
    void trace() const;

    const DialogDecision& decide_;
    bool previewKeys_ = false;
    QSize designSize_;
    std::vector<QPushButton*> buttons_;
    std::vector<QRect> buttonRects_;
    QLineEdit* line_ = nullptr;
    QPlainTextEdit* editor_ = nullptr;
    QRect fieldRect_;
    std::optional<DialogEvent> result_;
};

} // namespace velkor6::qt
