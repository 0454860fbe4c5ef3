#include "ui/qt/widget_object.h"

#include "ui/qt/widget_registry.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTreeWidget>
#include <algorithm>
#include <array>
#include <vector>

namespace velkor6::qt {
namespace {

constexpr char tagProperty[] = "_velkor6_tag";
constexpr char pointerProperty[] = "_velkor6_mousepointer";
// VB's Index of a control in a control array; the program sets it on the widget.
constexpr char indexProperty[] = "Index";
constexpr std::int32_t noArrayElement = 340;

// VB's MousePointer numbers and Qt's shapes; 0 is the widget's own cursor.
constexpr std::array<std::pair<int, Qt::CursorShape>, 15> pointers{{
    {1, Qt::ArrowCursor},
    {2, Qt::CrossCursor},
    {3, Qt::IBeamCursor},
    {4, Qt::ArrowCursor},
    {5, Qt::SizeAllCursor},
    {6, Qt::SizeBDiagCursor},
    {7, Qt::SizeVerCursor},
    {8, Qt::SizeFDiagCursor},
    {9, Qt::SizeHorCursor},
    {10, Qt::UpArrowCursor},
    {11, Qt::WaitCursor},
    {12, Qt::ForbiddenCursor},
    {13, Qt::BusyCursor},
    {14, Qt::WhatsThisCursor},
    {15, Qt::SizeAllCursor},
}};

void setMousePointer(QWidget& w, int pointer) {
    if (pointer == 0) {
        w.unsetCursor();
    } else {
        const auto it =
            std::ranges::find(pointers, pointer, &std::pair<int, Qt::CursorShape>::first);
        if (it == pointers.end() && pointer != 99)
            raise(ctlerr::invalidPropertyValue);
        if (it != pointers.end())
            w.setCursor(it->second);
    }
    w.setProperty(pointerProperty, pointer);
}

bool ownedByQt(const QWidget& w) {
    return w.objectName().startsWith(QLatin1String("qt_"));
}

// Qt's own widgets between a control and the one it sits on (a tab page's stack, a scroll
// area's viewport) are no containers of the program's.
QWidget* containerOf(const QWidget& w) {
    QWidget* parent = w.parentWidget();
    while (parent != nullptr && ownedByQt(*parent) && !parent->isWindow())
        parent = parent->parentWidget();
    return parent;
}

// The named widgets on a form or in a container, as VB lists its Controls; those of other
// windows (a dialog the form owns) are not among them.
std::vector<QWidget*> namedControls(const QWidget& container) {
    std::vector<QWidget*> controls;
    for (QWidget* child : container.findChildren<QWidget*>())
        if (!child->objectName().isEmpty() && !ownedByQt(*child) &&
            child->window() == container.window())
            controls.push_back(child);
    return controls;
}

std::vector<QWidget*> controlsNamed(const QWidget& container, const QString& name) {
    std::vector<QWidget*> found;
    for (QWidget* child : namedControls(container))
        if (child->objectName().compare(name, Qt::CaseInsensitive) == 0)
            found.push_back(child);
    return found;
}

bool inArray(const QWidget& w) {
    return w.property(indexProperty).isValid();
}

// The widgets of one name that carry an Index, by Index.
class ControlArray final : public Object {
public:
    explicit ControlArray(std::vector<QWidget*> elements) {
        std::ranges::sort(elements, {},
                          [](QWidget* w) { return w->property(indexProperty).toInt(); });
        for (QWidget* w : elements)
            elements_.emplace_back(w);
    }

    std::u16string typeName() const override { return u"Object"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const MemberCall c{name, kind, args};
        if (c.named(u"Count")) {
            c.readOnly();
            return static_cast<std::int32_t>(live().size());
        }
        if (c.named(u"LBound") || c.named(u"UBound")) {
            c.readOnly();
            const std::vector<QWidget*> all = live();
            if (all.empty())
                return std::int32_t{0};
            return all[c.named(u"LBound") ? 0 : all.size() - 1]->property(indexProperty).toInt();
        }
        if (c.named(u"Item") || name.empty()) {
            c.readOnly();
            return element(toInt(c.arg(0)));
        }
        raise(vberr::noSuchMember);
    }

    Variant element(std::int32_t index) const {
        for (QWidget* w : live())
            if (w->property(indexProperty).toInt() == index)
                return wrapped(w);
        raise(noArrayElement);
    }

private:
    std::vector<QWidget*> live() const {
        std::vector<QWidget*> all;
        for (const QPointer<QWidget>& w : elements_)
            if (!w.isNull())
                all.push_back(w.data());
        return all;
    }

    std::vector<QPointer<QWidget>> elements_;
};

// One control or the array of that name; 730 when the container has none.
Variant controlNamed(const QWidget& container, const QString& name) {
    std::vector<QWidget*> found = controlsNamed(container, name);
    if (found.empty())
        raise(ctlerr::controlNotFound);
    if (found.size() == 1 && !inArray(*found.front()))
        return wrapped(found.front());
    std::erase_if(found, [](QWidget* w) { return !inArray(*w); });
    return ObjectRef(std::make_shared<ControlArray>(std::move(found)));
}

class Controls final : public Object {
public:
    explicit Controls(QWidget* container) : container_(container) {}

    std::u16string typeName() const override { return u"Object"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const MemberCall c{name, kind, args};
        QWidget* container = container_.data();
        if (container == nullptr)
            raise(ctlerr::disconnected);
        if (c.named(u"Count")) {
            c.readOnly();
            return static_cast<std::int32_t>(namedControls(*container).size());
        }
        if (c.named(u"Item") || name.empty()) {
            c.readOnly();
            const Variant& which = c.arg(0);
            if (which.isString()) {
                Variant control = controlNamed(*container, toQString(which.string()));
                if (c.has(1))
                    return toObject(control).call(u"Item", CallKind::PropertyGet,
                                                  args.subspan(1, 1));
                return control;
            }
            const std::vector<QWidget*> all = namedControls(*container);
            const std::int32_t index = toInt(which);
            if (index < 0 || index >= static_cast<std::int32_t>(all.size()))
                raise(vberr::subscriptOutOfRange);
            return wrapped(all[static_cast<std::size_t>(index)]);
        }
        raise(vberr::noSuchMember);
    }

private:
    QPointer<QWidget> container_;
};

QString caption(const QWidget& w) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&w))
        return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&w))
        return label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&w))
        return group->title();
    return w.windowTitle();
}

void setCaption(QWidget& w, const QString& text) {
    if (auto* button = qobject_cast<QAbstractButton*>(&w))
        button->setText(text);
    else if (auto* label = qobject_cast<QLabel*>(&w))
        label->setText(text);
    else if (auto* group = qobject_cast<QGroupBox*>(&w))
        group->setTitle(text);
    else
        w.setWindowTitle(text);
}

// Position and size in twips: the frame's for a window, the geometry within the container
// otherwise.
std::optional<Variant> geometryMember(QWidget& w, const MemberCall& c) {
    const QRect r = w.isWindow() ? w.frameGeometry() : w.geometry();
    int value = 0;
    if (c.named(u"Left"))
        value = r.x();
    else if (c.named(u"Top"))
        value = r.y();
    else if (c.named(u"Width"))
        value = r.width();
    else if (c.named(u"Height"))
        value = r.height();
    else
        return std::nullopt;
    if (!c.writes())
        return value * twipsPerPixel;
    const int pixels = pixelsOf(toInt(c.value()));
    if (c.named(u"Left"))
        w.move(pixels, w.y());
    else if (c.named(u"Top"))
        w.move(w.x(), pixels);
    else if (pixels < 0)
        raise(ctlerr::invalidPropertyValue);
    else if (c.named(u"Width"))
        w.resize(pixels - (r.width() - w.width()), w.height());
    else
        w.resize(w.width(), pixels - (r.height() - w.height()));
    return Variant();
}

// The members every widget answers.
std::optional<Variant> commonMember(QWidget& w, const MemberCall& c) {
    if (c.named(u"hwnd")) {
        c.readOnly();
        return handleOfWidget(&w);
    }
    if (c.named(u"Name")) {
        c.readOnly();
        return text(w.objectName());
    }
    if (c.named(u"Visible")) {
        if (c.writes())
            w.setVisible(toBool(c.value()));
        return c.writes() ? Variant() : Variant(!w.isHidden());
    }
    if (c.named(u"Enabled")) {
        if (c.writes())
            w.setEnabled(toBool(c.value()));
        return c.writes() ? Variant() : Variant(w.isEnabled());
    }
    if (c.named(u"ToolTipText")) {
        if (c.writes())
            w.setToolTip(toText(c.value()));
        return c.writes() ? Variant() : text(w.toolTip());
    }
    if (c.named(u"Tag")) {
        if (c.writes())
            w.setProperty(tagProperty, toText(c.value()));
        return c.writes() ? Variant() : text(w.property(tagProperty).toString());
    }
    if (c.named(u"Caption")) {
        if (c.writes())
            setCaption(w, toText(c.value()));
        return c.writes() ? Variant() : text(caption(w));
    }
    if (c.named(u"MousePointer")) {
        if (c.writes()) {
            setMousePointer(w, toInt(c.value()));
            return Variant();
        }
        return static_cast<std::int16_t>(
            w.testAttribute(Qt::WA_SetCursor) ? w.property(pointerProperty).toInt() : 0);
    }
    if (std::optional<Variant> geometry = geometryMember(w, c))
        return geometry;
    if (c.named(u"SetFocus")) {
        w.setFocus(Qt::OtherFocusReason);
        return Variant();
    }
    if (c.named(u"Refresh")) {
        w.update();
        return Variant();
    }
    if (c.named(u"Parent")) {
        c.readOnly();
        if (!w.isWindow())
            return wrapped(w.window());
        return wrapped(w.parentWidget() == nullptr ? nullptr : w.parentWidget()->window());
    }
    if (c.named(u"Container")) {
        c.readOnly();
        return wrapped(containerOf(w));
    }
    if (c.named(u"Index")) {
        c.readOnly();
        if (!inArray(w))
            raise(ctlerr::notAnArray);
        return static_cast<std::int16_t>(w.property(indexProperty).toInt());
    }
    if (c.named(u"Controls")) {
        c.readOnly();
        return ObjectRef(std::make_shared<Controls>(&w));
    }
    if (c.named(u"Value")) {
        // A check box's 0, 1 or 2 (grayed), an option button's Boolean, a button's click.
        if (auto* check = qobject_cast<QCheckBox*>(&w)) {
            if (!c.writes())
                return static_cast<std::int16_t>(check->checkState() == Qt::Checked            ? 1
                                                 : check->checkState() == Qt::PartiallyChecked ? 2
                                                                                               : 0);
            const std::int32_t v = toInt(c.value());
            if (v < 0 || v > 2)
                raise(ctlerr::invalidPropertyValue);
            check->setCheckState(v == 1   ? Qt::Checked
                                 : v == 2 ? Qt::PartiallyChecked
                                          : Qt::Unchecked);
            return Variant();
        }
        if (auto* radio = qobject_cast<QRadioButton*>(&w)) {
            if (c.writes())
                radio->setChecked(toBool(c.value()));
            return c.writes() ? Variant() : Variant(radio->isChecked());
        }
        if (auto* button = qobject_cast<QPushButton*>(&w)) {
            if (c.writes() && toBool(c.value()))
                button->click();
            return c.writes() ? Variant() : Variant(false);
        }
    }
    return std::nullopt;
}

// QLineEdit, QPlainTextEdit and QTextEdit as a TextBox.
class TextBox final : public WidgetObject {
public:
    explicit TextBox(QWidget* w) : WidgetObject(w, u"TextBox") {}

protected:
    std::optional<Variant> member(QWidget& w, const MemberCall& c) override {
        if (auto* edit = qobject_cast<QLineEdit*>(&w))
            return lineEdit(*edit, c);
        if (auto* plain = qobject_cast<QPlainTextEdit*>(&w))
            return document(w, plain->textCursor(), c, plain->isReadOnly());
        if (auto* rich = qobject_cast<QTextEdit*>(&w))
            return document(w, rich->textCursor(), c, rich->isReadOnly());
        return std::nullopt;
    }

private:
    static std::optional<Variant> lineEdit(QLineEdit& edit, const MemberCall& c) {
        const int length = static_cast<int>(edit.text().size());
        const int start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
        if (c.named(u"Text")) {
            if (c.writes())
                edit.setText(toText(c.value()));
            return c.writes() ? Variant() : text(edit.text());
        }
        if (c.named(u"SelStart")) {
            if (!c.writes())
                return start;
            edit.setCursorPosition(std::min(nonNegative(c.value()), length));
            return Variant();
        }
        if (c.named(u"SelLength")) {
            if (!c.writes())
                return static_cast<std::int32_t>(edit.selectedText().size());
            edit.setSelection(start, std::min(nonNegative(c.value()), length - start));
            return Variant();
        }
        if (c.named(u"SelText")) {
            if (c.writes())
                edit.insert(toText(c.value()));
            return c.writes() ? Variant() : text(edit.selectedText());
        }
        if (c.named(u"Locked")) {
            if (c.writes())
                edit.setReadOnly(toBool(c.value()));
            return c.writes() ? Variant() : Variant(edit.isReadOnly());
        }
        if (c.named(u"MaxLength")) {
            // VB's 0 is "no limit", Qt's default limit.
            constexpr int unlimited = 32767;
            if (c.writes()) {
                const int max = nonNegative(c.value());
                edit.setMaxLength(max == 0 ? unlimited : max);
                return Variant();
            }
            return edit.maxLength() == unlimited ? 0 : edit.maxLength();
        }
        return std::nullopt;
    }

    static std::optional<Variant> document(QWidget& w, QTextCursor cursor, const MemberCall& c,
                                           bool readOnly) {
        auto* plain = qobject_cast<QPlainTextEdit*>(&w);
        auto* rich = qobject_cast<QTextEdit*>(&w);
        const auto content = [&] { return plain ? plain->toPlainText() : rich->toPlainText(); };
        const auto apply = [&](const QTextCursor& changed) {
            if (plain)
                plain->setTextCursor(changed);
            else
                rich->setTextCursor(changed);
        };
        const int length = static_cast<int>(content().size());
        const int start = cursor.selectionStart();
        if (c.named(u"Text")) {
            if (!c.writes())
                return text(content());
            const QString s = toText(c.value()).replace(QLatin1String("\r\n"), QLatin1String("\n"));
            if (plain)
                plain->setPlainText(s);
            else
                rich->setPlainText(s);
            return Variant();
        }
        if (c.named(u"SelStart")) {
            if (!c.writes())
                return start;
            cursor.setPosition(std::min(nonNegative(c.value()), length));
            apply(cursor);
            return Variant();
        }
        if (c.named(u"SelLength")) {
            if (!c.writes())
                return cursor.selectionEnd() - start;
            cursor.setPosition(start);
            cursor.setPosition(start + std::min(nonNegative(c.value()), length - start),
                               QTextCursor::KeepAnchor);
            apply(cursor);
            return Variant();
        }
        if (c.named(u"SelText")) {
            if (!c.writes())
                return text(cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n'));
            cursor.insertText(toText(c.value()));
            apply(cursor);
            return Variant();
        }
        if (c.named(u"Locked")) {
            if (!c.writes())
                return Variant(readOnly);
            if (plain)
                plain->setReadOnly(toBool(c.value()));
            else
                rich->setReadOnly(toBool(c.value()));
            return Variant();
        }
        return std::nullopt;
    }

    static int nonNegative(const Variant& v) {
        const std::int32_t n = toInt(v);
        if (n < 0)
            raise(ctlerr::invalidPropertyValue);
        return n;
    }
};

std::u16string typeNameOf(const QWidget& w) {
    if (qobject_cast<const QPushButton*>(&w))
        return u"CommandButton";
    if (qobject_cast<const QCheckBox*>(&w))
        return u"CheckBox";
    if (qobject_cast<const QRadioButton*>(&w))
        return u"OptionButton";
    if (qobject_cast<const QLabel*>(&w))
        return u"Label";
    if (w.isWindow())
        return u"Form";
    if (qobject_cast<const QGroupBox*>(&w) || qobject_cast<const QFrame*>(&w))
        return u"Frame";
    return u"PictureBox";
}

} // namespace

WidgetObject::WidgetObject(QWidget* widget, std::u16string typeName)
    : widget_(widget), typeName_(std::move(typeName)) {
    handleOfWidget(widget);
}

std::optional<Variant> WidgetObject::member(QWidget&, const MemberCall&) {
    return std::nullopt;
}

Variant WidgetObject::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    QWidget* w = widget_.data();
    if (w == nullptr)
        raise(ctlerr::disconnected);
    const MemberCall c{name, kind, args};
    if (std::optional<Variant> result = member(*w, c))
        return std::move(*result);
    if (std::optional<Variant> result = commonMember(*w, c))
        return std::move(*result);
    // A form's controls are members of the form: frm.txtName, frm.optGroup(2).
    if (!c.writes() && !name.empty() && !controlsNamed(*w, toQString(name)).empty()) {
        Variant control = controlNamed(*w, toQString(name));
        if (c.has(0) && dynamic_cast<ControlArray*>(control.object().get()) != nullptr)
            return static_cast<ControlArray&>(*control.object()).element(toInt(c.arg(0)));
        return control;
    }
    raise(vberr::noSuchMember);
}

Variant wrapped(QWidget* widget) {
    if (widget == nullptr)
        return Variant::nothing();
    if (auto* tree = qobject_cast<QTreeWidget*>(widget))
        return wrapListView(tree);
    if (auto* list = qobject_cast<QListWidget*>(widget))
        return wrapListBox(list);
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return wrapComboBox(combo);
    if (qobject_cast<QTabWidget*>(widget) || qobject_cast<QTabBar*>(widget))
        return wrapTabStrip(widget);
    if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget) ||
        qobject_cast<QTextEdit*>(widget))
        return ObjectRef(std::make_shared<TextBox>(widget));
    return ObjectRef(std::make_shared<WidgetObject>(widget, typeNameOf(*widget)));
}

} // namespace velkor6::qt
