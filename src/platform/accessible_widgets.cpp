#include "platform/accessible_widgets.h"

#include <QAccessibleWidget>

namespace quillet
{

namespace
{

// The property of a widget that holds its role.
constexpr const char* presentation = "presentation to readers";

class HiddenWidget : public QAccessibleWidget
{
public:
    explicit HiddenWidget(QWidget& widget) : QAccessibleWidget(&widget, QAccessible::NoRole) {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        return state;
    }
};

// A widget with a single action.
class AccessibleActor : public QAccessibleWidget
{
public:
    AccessibleActor(QWidget& widget, QAccessible::Role role) : QAccessibleWidget(&widget, role) {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = role() == QAccessible::CheckBox;
        state.checked = state.checkable && widget()->property("checked").toBool();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList(action()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        const char* member = role() == QAccessible::Link ? "clicked" : "activate";
        // A hand takes seconds, and the reader waits until this returns.
        if (name == action())
            QMetaObject::invokeMethod(widget(), member, Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }

private:
    [[nodiscard]] QString action() const
    {
        return role() == QAccessible::CheckBox ? toggleAction() : pressAction();
    }
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant presented = widget == nullptr ? QVariant() : widget->property(presentation);
    if (presented.isNull())
        return nullptr;
    const auto role = static_cast<QAccessible::Role>(presented.toInt());
    if (role == QAccessible::NoRole)
        return new HiddenWidget(*widget);
    if (role == QAccessible::Notification)
        return new QAccessibleWidget(widget, role);
    return new AccessibleActor(*widget, role);
}

} // namespace

void presentAs(QWidget& widget, QAccessible::Role role)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    Q_UNUSED(installed)
    widget.setProperty(presentation, static_cast<int>(role));
}

} // namespace quillet
