// The VB control a widget stands for: the members every widget answers, and the base of the
// wrappers of the widgets that are more than a form or container.
#pragma once

#include "ui/qt/vb_value.h"
#include "velkor6/variant.h"

#include <QPointer>
#include <QWidget>
#include <optional>
#include <string>

class QComboBox;
class QListWidget;
class QTreeWidget;

namespace velkor6::qt {

class WidgetObject : public Object {
public:
    WidgetObject(QWidget* widget, std::u16string typeName);

    std::u16string typeName() const override { return typeName_; }
    // The wrapper's own members first, then those of every widget, then a named child control
    // (a form's controls are its members); anything else raises 438.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) final;

protected:
    // The members of this kind of widget; nullopt for a name it does not have.
    virtual std::optional<Variant> member(QWidget& widget, const MemberCall& call);

private:
    QPointer<QWidget> widget_;
    std::u16string typeName_;
};

// The wrapper that fits the widget's class (see velkor6/qt.h); Nothing for null.
Variant wrapped(QWidget* widget);

// The wrappers of the widgets with members of their own.
ObjectRef wrapListView(QTreeWidget* tree);
ObjectRef wrapListBox(QListWidget* list);
ObjectRef wrapComboBox(QComboBox* combo);
ObjectRef wrapTabStrip(QWidget* tabs);

} // namespace velkor6::qt
