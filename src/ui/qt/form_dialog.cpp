#include "ui/qt/form_dialog.h"

#include "dialogs/rtf_reader.h"
#include "ui/qt/convert.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyle>
#include <QTextBrowser>
#include <QTextStream>
#include <QTimer>

namespace velkor6::qt {
namespace {

// The character a password field shows for each one typed; the style's own is a dot.
class MaskStyle final : public QProxyStyle {
public:
    explicit MaskStyle(char16_t mask) : mask_(mask) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_LineEdit_PasswordCharacter)
            return mask_;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    char16_t mask_;
};

QStyle::StandardPixmap iconPixmap(DialogIcon icon) {
    switch (icon) {
    case DialogIcon::critical:
        return QStyle::SP_MessageBoxCritical;
    case DialogIcon::question:
        return QStyle::SP_MessageBoxQuestion;
    case DialogIcon::exclamation:
        return QStyle::SP_MessageBoxWarning;
    default:
        return QStyle::SP_MessageBoxInformation;
    }
}

void setTextColor(QWidget* w, std::uint32_t rgb) {
    QPalette p = w->palette();
    p.setColor(QPalette::WindowText, toQColor(rgb));
    p.setColor(QPalette::Text, toQColor(rgb));
    w->setPalette(p);
}

} // namespace

FormDialog::FormDialog(const DialogForm& form, const DialogDecision& decide)
    : decide_(decide), previewKeys_(form.previewKeys), designSize_(toQSize(form.clientSize)) {
    setWindowTitle(toQString(form.title));
    setModal(true);
    if (form.resizable) {
        resize(designSize_);
        setMinimumSize(toQSize(form.minimumSize));
    } else {
        setFixedSize(designSize_);
    }
    addIcon(form);
    addTexts(form);
    if (form.field)
        addField(*form.field);
    addButtons(form);
}

void FormDialog::addIcon(const DialogForm& form) {
    if (form.icon == DialogIcon::none)
        return;
    const QRect rect = toQRect(form.iconRect);
    auto* label = new QLabel(this);
    label->setGeometry(rect);
    label->setPixmap(style()
                         ->standardIcon(iconPixmap(form.icon), nullptr, this)
                         .pixmap(rect.size(), devicePixelRatio()));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void FormDialog::addTexts(const DialogForm& form) {
    for (const DialogText& text : form.texts) {
        QWidget* widget = nullptr;
        if (text.rich && form.kind == DialogForm::Kind::richMessage) {
            // The body of a rich message box scrolls when the caller's text needs more room
            // than the size chosen for it.
            auto* body = new QTextBrowser(this);
            body->setFrameShape(QFrame::NoFrame);
            body->setFocusPolicy(Qt::NoFocus);
            body->viewport()->setAutoFillBackground(false);
            body->setFont(toQFont(text.font));
            body->document()->setDocumentMargin(0);
            body->setHtml(toQString(dialogs::rtfToHtml(text.text)));
            widget = body;
        } else {
            auto* label = new QLabel(this);
            label->setFont(toQFont(text.font));
            label->setTextFormat(text.rich ? Qt::RichText : Qt::PlainText);
            label->setText(text.rich ? toQString(dialogs::rtfToHtml(text.text))
                                     : toQString(text.text));
            label->setWordWrap(text.wordWrap);
            label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            widget = label;
        }
        widget->setGeometry(toQRect(text.rect));
        if (text.font.color != 0)
            setTextColor(widget, text.font.color);
    }
}

void FormDialog::addField(const DialogField& field) {
    fieldRect_ = toQRect(field.rect);
    QWidget* widget = nullptr;
    if (field.multiLine) {
        editor_ = new QPlainTextEdit(this);
        editor_->setPlainText(toQString(field.text));
        editor_->setReadOnly(field.locked);
        editor_->setTabChangesFocus(true);
        widget = editor_;
    } else {
        line_ = new QLineEdit(this);
        line_->setMaxLength(field.maxLength > 0 ? field.maxLength : 32767);
        line_->setText(toQString(field.text));
        line_->setReadOnly(field.locked);
        if (field.passwordChar != 0) {
            auto* mask = new MaskStyle(field.passwordChar);
            mask->setParent(line_);
            line_->setStyle(mask);
            line_->setEchoMode(QLineEdit::Password);
        }
        widget = line_;
    }
    widget->setGeometry(fieldRect_);
    widget->setEnabled(field.enabled);
    widget->setToolTip(toQString(field.toolTip));
    widget->setProperty("selectAllOnFocus", field.selectAllOnFocus);
    watch(widget);
}

void FormDialog::addButtons(const DialogForm& form) {
    for (std::size_t i = 0; i < form.buttons.size(); ++i) {
        const DialogButton& b = form.buttons[i];
        auto* button = new QPushButton(toQString(b.caption), this);
        buttonRects_.push_back(toQRect(b.rect));
        button->setGeometry(buttonRects_.back());
        const auto index = static_cast<std::int32_t>(i);
        // Alt and the letter reach the button through its "&" natively, and so do clicks.
        connect(button, &QPushButton::clicked, this, [this, index] {
            DialogEvent e;
            e.kind = DialogEvent::Kind::button;
            e.button = index;
            report(std::move(e));
        });
        watch(button);
        buttons_.push_back(button);
    }
    // The default button comes first in the tab order, the others keep theirs after it.
    std::vector<QWidget*> order;
    if (line_ != nullptr)
        order.push_back(line_);
    if (editor_ != nullptr)
        order.push_back(editor_);
    const auto first = static_cast<std::size_t>(form.defaultButton);
    if (first < buttons_.size()) {
        buttons_[first]->setDefault(true);
        order.push_back(buttons_[first]);
    }
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        if (i != first)
            order.push_back(buttons_[i]);
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    // The field takes the typing; otherwise the default button has the focus.
    if (!order.empty())
        order.front()->setFocus(Qt::OtherFocusReason);
}

void FormDialog::watch(QWidget* child) {
    child->installEventFilter(this);
}

DialogEvent FormDialog::run() {
    if (qEnvironmentVariableIsSet("VELKOR6_QT_TRACE"))
        trace();
    exec();
    if (result_)
        return *result_;
    DialogEvent closed;
    closed.kind = DialogEvent::Kind::closeBox;
    return closed;
}

void FormDialog::trace() const {
    // What the form shows, for tests that see the window only from outside.
    QTextStream err(stderr);
    err << "velkor6-qt: form \"" << windowTitle() << "\" " << width() << "x" << height() << "\n";
    for (const QLabel* label : findChildren<QLabel*>())
        if (!label->text().isEmpty())
            err << "velkor6-qt: text \"" << label->text() << "\"\n";
    for (const QTextBrowser* body : findChildren<QTextBrowser*>())
        err << "velkor6-qt: rich \"" << body->toPlainText() << "\"\n";
    for (const QPushButton* button : buttons_)
        err << "velkor6-qt: button \"" << button->text() << "\"\n";
    if (line_ != nullptr)
        err << "velkor6-qt: field maxLength " << line_->maxLength() << "\n";
    err.flush();
}

QString FormDialog::fieldText() const {
    if (line_ != nullptr)
        return line_->text();
    if (editor_ != nullptr)
        return editor_->toPlainText();
    return {};
}

void FormDialog::report(DialogEvent event) {
    if (result_)
        return;
    event.text = toU16(fieldText());
    event.clientSize = toPixelSize(size());
    bool accepted = false;
    try {
        accepted = decide_(event);
    } catch (...) {
        // The logic failed; the form closes as its close box would close it.
        event = DialogEvent{};
        accepted = true;
    }
    if (!accepted)
        return;
    result_ = std::move(event);
    done(Accepted);
}

bool FormDialog::handleKey(const QKeyEvent& key) {
    const Qt::KeyboardModifiers held = key.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier |
                                                          Qt::AltModifier | Qt::MetaModifier);
    if (held != Qt::NoModifier)
        return false;
    DialogEvent e;
    const int k = key.key();
    if (k == Qt::Key_Escape) {
        e.kind = DialogEvent::Kind::escape;
    } else if (k == Qt::Key_Return || k == Qt::Key_Enter) {
        if (editor_ != nullptr && editor_->hasFocus())
            return false;
        e.kind = DialogEvent::Kind::enter;
    } else if (previewKeys_ && k >= Qt::Key_A && k <= Qt::Key_Z) {
        e.kind = DialogEvent::Kind::letter;
        e.letter = static_cast<char16_t>(u'A' + (k - Qt::Key_A));
    } else if (previewKeys_ && k == Qt::Key_Space) {
        e.kind = DialogEvent::Kind::space;
        for (std::size_t i = 0; i < buttons_.size(); ++i)
            if (buttons_[i]->hasFocus())
                e.button = static_cast<std::int32_t>(i);
    } else {
        return false;
    }
    report(std::move(e));
    return true;
}

bool FormDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent&>(*event)))
        return true;
    if (event->type() == QEvent::FocusIn && watched->property("selectAllOnFocus").toBool()) {
        // After the widget's own focus handling, which may place the cursor.
        QTimer::singleShot(0, this, [this] {
            if (line_ != nullptr)
                line_->selectAll();
            if (editor_ != nullptr)
                editor_->selectAll();
        });
    }
    return QDialog::eventFilter(watched, event);
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(*event))
        QDialog::keyPressEvent(event);
}

void FormDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    DialogEvent e;
    e.kind = DialogEvent::Kind::closeBox;
    report(std::move(e));
}

void FormDialog::resizeEvent(QResizeEvent* event) {
    // The field grows with the form; the buttons keep their distance to its bottom-right corner.
    const int dx = event->size().width() - designSize_.width();
    const int dy = event->size().height() - designSize_.height();
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->move(buttonRects_[i].topLeft() + QPoint(dx, dy));
    const QRect field = fieldRect_.adjusted(0, 0, dx, dy);
    if (editor_ != nullptr)
        editor_->setGeometry(field);
    QDialog::resizeEvent(event);
}

} // namespace velkor6::qt
