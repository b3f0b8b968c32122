// How assistive technology sees the picture controls.
#include "shell/base/ImageControl.h"

#include <QAccessibleWidget>

namespace keyfluent::shell
{
namespace
{

class ImageControlAccess : public QAccessibleWidget
{
public:
    explicit ImageControlAccess(ImageControl* control) : QAccessibleWidget(control) {}

    QAccessible::Role role() const override
    {
        switch (Control().ControlKind()) {
        case ImageControl::Kind::Button:
            return QAccessible::PushButton;
        case ImageControl::Kind::CheckBox:
            return QAccessible::CheckBox;
        case ImageControl::Kind::Picture:
            break;
        }
        return QAccessible::Graphic;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (Control().ControlKind() == ImageControl::Kind::CheckBox) {
            state.checkable = true;
            state.checked = Control().IsChecked();
        }
        return state;
    }

    QStringList actionNames() const override
    {
        if (Control().ControlKind() == ImageControl::Kind::Picture || !Control().isEnabled()) {
            return {};
        }
        return {pressAction()};
    }

    // Posted, so that the caller gets its answer before a window that the press opens is gone.
    void doAction(const QString& name) override
    {
        if (name == pressAction()) {
            QMetaObject::invokeMethod(
                widget(), [control = &Control()] { control->Press(); }, Qt::QueuedConnection);
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    ImageControl& Control() const { return *static_cast<ImageControl*>(widget()); }
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object)
{
    auto* control = qobject_cast<ImageControl*>(object);
    return control != nullptr ? new ImageControlAccess(control) : nullptr;
}

} // namespace

void InstallControlAccess()
{
    QAccessible::installFactory(MakeAccess);
}

} // namespace keyfluent::shell
