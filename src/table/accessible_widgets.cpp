#include "table/accessible_widgets.h"

#include "table/picture_box.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace quillet
{

namespace
{

class AccessiblePicture : public QAccessibleWidget
{
public:
    explicit AccessiblePicture(PictureBox& box)
        : QAccessibleWidget(&box, box.isCheckable() ? QAccessible::CheckBox : QAccessible::Button),
          m_box(box)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = m_box.isCheckable();
        state.checked = m_box.isChecked();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList(action()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        // A hand takes seconds, and the reader that asked waits for its answer.
        if (name == action())
            QMetaObject::invokeMethod(&m_box, &PictureBox::activate, Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }

private:
    [[nodiscard]] QString action() const
    {
        return m_box.isCheckable() ? toggleAction() : pressAction();
    }

    PictureBox& m_box;
};

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

class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(QWidget& link) : QAccessibleWidget(&link, QAccessible::Link) {}

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            QMetaObject::invokeMethod(widget(), "clicked", Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }
};

// How a widget is presented, kept as a property of it.
constexpr const char* presentation = "presentation to readers";
constexpr int hidden = 1;
constexpr int link = 2;

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    if (auto* box = qobject_cast<PictureBox*>(object);
        box != nullptr && box->property(presentation).isNull())
        return new AccessiblePicture(*box);
    auto* widget = qobject_cast<QWidget*>(object);
    const int kind = widget == nullptr ? 0 : widget->property(presentation).toInt();
    if (kind == hidden)
        return new HiddenWidget(*widget);
    return kind == link ? new AccessibleLink(*widget) : nullptr;
}

} // namespace

void installAccessibleWidgets()
{
    QAccessible::installFactory(makeAccessible);
}

void hideFromReaders(QWidget& widget)
{
    widget.setProperty(presentation, hidden);
}

void presentAsLink(QWidget& widget)
{
    widget.setProperty(presentation, link);
}

} // namespace quillet
