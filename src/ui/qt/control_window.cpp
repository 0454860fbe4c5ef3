#include "ui/qt/control_window.h"

#include "ui/qt/list_view_model.h"
#include "ui/qt/vb_value.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QTextEdit>
#include <QTreeWidget>

namespace velkor6::qt {
namespace {

constexpr char styleProperty[] = "_velkor6_style";
constexpr char digitsValidatorName[] = "_velkor6_digits";
// LVIS_FOCUSED: the current item.
constexpr std::uint32_t focusedState = 1;
// LVSCW_AUTOSIZE and LVSCW_AUTOSIZE_USEHEADER.
constexpr std::int32_t autoSize = -1;
constexpr std::int32_t autoSizeUseHeader = -2;

bool digitsOnly(const QLineEdit& edit) {
    const QValidator* validator = edit.validator();
    return validator != nullptr && validator->objectName() == QLatin1String(digitsValidatorName);
}

void setDigitsOnly(QLineEdit& edit, bool on) {
    if (on == digitsOnly(edit))
        return;
    if (on) {
        auto* validator =
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), &edit);
        validator->setObjectName(QLatin1String(digitsValidatorName));
        edit.setValidator(validator);
    } else {
        const QValidator* ours = edit.validator();
        edit.setValidator(nullptr);
        delete ours;
    }
}

// A push button's text alignment lives in its style sheet; ours replaces only our own rule.
void setButtonAlignment(QPushButton& button, std::uint32_t bits) {
    const char* align = "center";
    if (bits == wstyle::bsLeft)
        align = "left";
    else if (bits == wstyle::bsRight)
        align = "right";
    QString sheet = button.styleSheet();
    static const QRegularExpression rule(QStringLiteral("\\s*text-align:\\s*[a-z]+;"));
    sheet.remove(rule);
    sheet += QStringLiteral(" text-align: %1;").arg(QLatin1String(align));
    button.setStyleSheet(sheet.trimmed());
}

// The bits a widget shows of itself; all others are kept as they were written.
std::uint32_t derivedBits(const QWidget& widget) {
    std::uint32_t bits = wstyle::visible | wstyle::disabled | wstyle::child;
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr)
        bits |= wstyle::esReadOnly | wstyle::esPassword | wstyle::esNumber;
    else if (qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
             qobject_cast<const QTextEdit*>(&widget) != nullptr)
        bits |= wstyle::esReadOnly | wstyle::esMultiline;
    return bits;
}

class WidgetWindow final : public ControlWindow {
public:
    explicit WidgetWindow(QWidget* widget) : widget_(widget) {}

    std::uint32_t style() override {
        QWidget* w = widget_.data();
        if (w == nullptr)
            return 0;
        std::uint32_t style = w->property(styleProperty).toUInt() & ~derivedBits(*w);
        if (!w->isHidden())
            style |= wstyle::visible;
        if (!w->isEnabled())
            style |= wstyle::disabled;
        if (!w->isWindow())
            style |= wstyle::child;
        if (const auto* edit = qobject_cast<const QLineEdit*>(w)) {
            if (edit->isReadOnly())
                style |= wstyle::esReadOnly;
            if (edit->echoMode() == QLineEdit::Password)
                style |= wstyle::esPassword;
            if (digitsOnly(*edit))
                style |= wstyle::esNumber;
        } else if (const auto* plain = qobject_cast<const QPlainTextEdit*>(w)) {
            style |= wstyle::esMultiline | (plain->isReadOnly() ? wstyle::esReadOnly : 0);
        } else if (const auto* rich = qobject_cast<const QTextEdit*>(w)) {
            style |= wstyle::esMultiline | (rich->isReadOnly() ? wstyle::esReadOnly : 0);
        }
        return style;
    }

    // As SetWindowLong: the bits that only change a window when it is made (visible, disabled,
    // read-only) are not applied; the digits-only edit and the button's alignment are.
    std::uint32_t setStyle(std::uint32_t style) override {
        QWidget* w = widget_.data();
        if (w == nullptr)
            return 0;
        const std::uint32_t previous = this->style();
        w->setProperty(styleProperty, style);
        if (auto* edit = qobject_cast<QLineEdit*>(w))
            setDigitsOnly(*edit, (style & wstyle::esNumber) != 0);
        else if (auto* button = qobject_cast<QPushButton*>(w))
            setButtonAlignment(*button, style & wstyle::bsCenter);
        return previous;
    }

    std::int32_t findItem(std::u16string_view text, std::int32_t start) override {
        QTreeWidget* t = tree();
        if (t == nullptr)
            return -1;
        const QString wanted = toQString(text);
        for (int i = std::max(start + 1, 0); i < t->topLevelItemCount(); ++i)
            if (t->topLevelItem(i)->text(0).compare(wanted, Qt::CaseInsensitive) == 0)
                return i;
        return -1;
    }

    std::u16string itemText(std::int32_t index, std::int32_t subItem) override {
        QTreeWidgetItem* i = item(index);
        if (i == nullptr || subItem < 0 || subItem >= i->treeWidget()->columnCount())
            return {};
        return text(i->text(subItem)).string();
    }

    bool setItemText(std::int32_t index, std::int32_t subItem, std::u16string_view s) override {
        QTreeWidgetItem* i = item(index);
        if (i == nullptr || subItem < 0 || subItem >= i->treeWidget()->columnCount())
            return false;
        i->setText(subItem, toQString(s));
        return true;
    }

    std::uint32_t itemState(std::int32_t index, std::uint32_t mask) override {
        QTreeWidgetItem* i = item(index);
        if (i == nullptr)
            return 0;
        std::uint32_t state = 0;
        if (i->isSelected())
            state |= lvis::selected;
        if (i->treeWidget()->currentItem() == i)
            state |= focusedState;
        const QVariant check = i->data(0, Qt::CheckStateRole);
        if (check.isValid())
            state |= check.toInt() == Qt::Checked ? lvis::checked : lvis::unchecked;
        return state & mask;
    }

    bool setItemState(std::int32_t index, std::uint32_t state, std::uint32_t mask) override {
        QTreeWidget* t = tree();
        if (t == nullptr)
            return false;
        if (index == -1) {
            for (int i = 0; i < t->topLevelItemCount(); ++i)
                apply(*t->topLevelItem(i), state, mask);
            return true;
        }
        QTreeWidgetItem* i = item(index);
        if (i == nullptr)
            return false;
        apply(*i, state, mask);
        return true;
    }

    std::int32_t itemCount() override {
        QTreeWidget* t = tree();
        return t == nullptr ? 0 : t->topLevelItemCount();
    }

    std::int32_t selectedCount() override {
        QTreeWidget* t = tree();
        if (t == nullptr)
            return 0;
        std::int32_t count = 0;
        for (int i = 0; i < t->topLevelItemCount(); ++i)
            count += t->topLevelItem(i)->isSelected() ? 1 : 0;
        return count;
    }

    std::int32_t columnWidth(std::int32_t column) override {
        QTreeWidget* t = tree();
        if (t == nullptr || column < 0 || column >= t->columnCount())
            return 0;
        return t->columnWidth(column);
    }

    bool setColumnWidth(std::int32_t column, std::int32_t width) override {
        QTreeWidget* t = tree();
        if (t == nullptr || column < 0 || column >= t->columnCount())
            return false;
        if (width == autoSize) {
            t->resizeColumnToContents(column);
        } else if (width == autoSizeUseHeader) {
            t->resizeColumnToContents(column);
            t->setColumnWidth(
                column, std::max(t->columnWidth(column), t->header()->sectionSizeHint(column)));
        } else if (width >= 0) {
            t->setColumnWidth(column, width);
        } else {
            return false;
        }
        return true;
    }

    std::uint32_t extendedStyle() override {
        QTreeWidget* t = tree();
        return t == nullptr ? 0 : listview::extendedStyle(*t);
    }

    void setExtendedStyle(std::uint32_t style) override {
        if (QTreeWidget* t = tree())
            listview::setExtendedStyle(*t, style);
    }

    std::int32_t horizontalScroll() override {
        QTreeWidget* t = tree();
        return t == nullptr ? 0 : t->horizontalScrollBar()->value();
    }

    bool sortItems(const std::function<int(std::int32_t, std::int32_t)>& compare) override {
        QTreeWidget* t = tree();
        if (t == nullptr)
            return false;
        const std::vector<int> order = listview::mergeOrder(
            t->topLevelItemCount(), [&](int a, int b) { return compare(a, b) > 0; });
        // The comparer may have closed the list.
        if ((t = tree()) == nullptr)
            return false;
        listview::reorder(*t, order);
        return true;
    }

    bool setBackgroundImage(std::u16string_view pictureFile) override {
        QTreeWidget* t = tree();
        if (t == nullptr)
            return false;
        const QPixmap picture(toQString(pictureFile));
        if (picture.isNull())
            return false;
        QPalette palette = t->palette();
        palette.setBrush(QPalette::Base, QBrush(picture));
        t->setPalette(palette);
        return true;
    }

private:
    QTreeWidget* tree() const { return qobject_cast<QTreeWidget*>(widget_.data()); }

    QTreeWidgetItem* item(std::int32_t index) const {
        QTreeWidget* t = tree();
        if (t == nullptr || index < 0 || index >= t->topLevelItemCount())
            return nullptr;
        return t->topLevelItem(index);
    }

    static void apply(QTreeWidgetItem& i, std::uint32_t state, std::uint32_t mask) {
        if ((mask & lvis::selected) != 0)
            i.setSelected((state & lvis::selected) != 0);
        if ((mask & focusedState) != 0 && (state & focusedState) != 0)
            i.treeWidget()->setCurrentItem(&i, 0, QItemSelectionModel::NoUpdate);
        if ((mask & lvis::stateImageMask) != 0) {
            switch ((state & lvis::stateImageMask) >> 12) {
            case 0:
                i.setData(0, Qt::CheckStateRole, QVariant());
                break;
            case 1:
                i.setCheckState(0, Qt::Unchecked);
                break;
            default:
                i.setCheckState(0, Qt::Checked);
                break;
            }
        }
    }

    QPointer<QWidget> widget_;
};

} // namespace

std::unique_ptr<ControlWindow> controlWindowOf(QWidget* widget) {
    return std::make_unique<WidgetWindow>(widget);
}

} // namespace velkor6::qt
