#include "platform/accessible_picture.h"

#include "platform/picture_box.h"

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
        // What the keyboard cannot reach lies beneath another picture.
        state.invisible = state.invisible || m_box.focusPolicy() == Qt::NoFocus;
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

QAccessibleInterface* makeAccessiblePicture(const QString&, QObject* object)
{
    auto* box = qobject_cast<PictureBox*>(object);
    return box == nullptr ? nullptr : new AccessiblePicture(*box);
}

} // namespace

void installAccessiblePictures()
{
    QAccessible::installFactory(makeAccessiblePicture);
}

} // namespace quillet
