// How assistive technology sees the windows and their picture controls.
#include "shell/base/Form.h"
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
            state.readOnly = Control().IsFixed();
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

// Its name is its title, or what stands for one where nothing is written on top of it.
class FormAccess : public QAccessibleWidget
{
public:
    explicit FormAccess(Form* form) : QAccessibleWidget(form, QAccessible::Dialog) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = widget()->isModal();
        return state;
    }

    // Where a press anywhere on the window closes it, there is no button to do so.
    QStringList actionNames() const override
    {
        return Window().ClosesWhenPressed() ? QStringList{pressAction()} : QStringList();
    }

    // Posted for the same reason as a control's press.
    void doAction(const QString& name) override
    {
        if (name == pressAction() && Window().ClosesWhenPressed()) {
            QMetaObject::invokeMethod(widget(), &QWidget::close, Qt::QueuedConnection);
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    Form& Window() const { return *static_cast<Form*>(widget()); }
};

// Of the program's own windows the main one alone is no dialog.
bool IsMainWindow(const QString& className, const QWidget* widget)
{
    return widget != nullptr && widget->windowType() == Qt::Window &&
           className.startsWith(QLatin1String("keyfluent::"));
}

QAccessibleInterface* MakeAccess(const QString& className, QObject* object)
{
    if (auto* control = qobject_cast<ImageControl*>(object)) {
        return new ImageControlAccess(control);
    }
    if (auto* form = qobject_cast<Form*>(object)) {
        return new FormAccess(form);
    }
    auto* widget = qobject_cast<QWidget*>(object);
    return IsMainWindow(className, widget) ? new QAccessibleWidget(widget, QAccessible::Window)
                                           : nullptr;
}

} // namespace

void InstallControlAccess()
{
    QAccessible::installFactory(MakeAccess);
}

} // namespace keyfluent::shell
