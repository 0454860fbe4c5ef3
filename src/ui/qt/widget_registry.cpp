#include "ui/qt/widget_registry.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>
#include <unordered_map>

namespace velkor6::qt {
namespace {

constexpr char registryName[] = "velkor6-widget-handles";
constexpr char handleProperty[] = "_velkor6_handle";

// A child of the application object, so it lives as long as Qt does and every process has one.
// A widget's destruction takes its entry out.
class Registry final : public QObject {
public:
    explicit Registry(QObject* application) : QObject(application) {
        setObjectName(QLatin1String(registryName));
    }

    std::int32_t add(QWidget* widget) {
        // A handle from an earlier application object means nothing to this one.
        const QVariant known = widget->property(handleProperty);
        if (known.isValid() && find(known.toInt()) == widget)
            return known.toInt();
        const std::int32_t handle = next_++;
        widgets_.emplace(handle, widget);
        widget->setProperty(handleProperty, handle);
        connect(widget, &QObject::destroyed, this, [this, handle] { widgets_.erase(handle); });
        return handle;
    }

    QWidget* find(std::int32_t handle) const {
        const auto it = widgets_.find(handle);
        return it == widgets_.end() ? nullptr : it->second.data();
    }

private:
    std::int32_t next_ = firstWidgetHandle;
    std::unordered_map<std::int32_t, QPointer<QWidget>> widgets_;
};

Registry* registry(bool create) {
    QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr)
        return nullptr;
    // Found by name and checked by type: without moc, findChild cannot tell our class apart.
    auto* found = dynamic_cast<Registry*>(
        application->findChild<QObject*>(QLatin1String(registryName), Qt::FindDirectChildrenOnly));
    if (found == nullptr && create)
        found = new Registry(application);
    return found;
}

} // namespace

std::int32_t handleOfWidget(QWidget* widget) {
    if (widget == nullptr)
        return 0;
    Registry* handles = registry(true);
    return handles == nullptr ? 0 : handles->add(widget);
}

QWidget* widgetOfHandle(std::int32_t handle) {
    if (handle < firstWidgetHandle)
        return nullptr;
    const Registry* handles = registry(false);
    return handles == nullptr ? nullptr : handles->find(handle);
}

} // namespace velkor6::qt
