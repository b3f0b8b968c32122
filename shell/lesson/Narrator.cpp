#include "shell/lesson/Narrator.h"

#include "session/AidWords.h"
#include "shell/platform/TextConversion.h"

#include <QAccessibleWidget>

#include <utility>

namespace keyfluent::shell
{
namespace
{

// Setting a name tells of it, so an old one is left alone.
void SetName(QWidget& control, const QString& name)
{
    if (name != control.accessibleName()) {
        control.setAccessibleName(name);
    }
}

QAccessibleInterface* MakeAccess(const QString&, QObject* object)
{
    auto* notice = qobject_cast<Notice*>(object);
    return notice != nullptr ? new QAccessibleWidget(notice, QAccessible::Notification) : nullptr;
}

} // namespace

Notice::Notice(QWidget* parent) : QWidget(parent)
{
    QAccessible::installFactory(MakeAccess); // again does nothing
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
    hide();
}

void Notice::Say(const QString& words)
{
    SetName(*this, words);
    const bool wasShown = !isHidden();
    setVisible(!words.isEmpty());
    if (wasShown && !words.isEmpty()) {
        QAccessibleEvent comes(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&comes);
    }
}

Narrator::Narrator(const session::Lesson& lesson, const Controls& controls)
    : lesson_(lesson), controls_(controls)
{
    NameControls();
    QAccessible::installActivationObserver(this);
}

Narrator::~Narrator()
{
    QAccessible::removeActivationObserver(this);
}

void Narrator::Tell()
{
    if (QAccessible::isActive()) {
        Speak();
    }
}

void Narrator::accessibilityActiveChanged(bool active)
{
    if (active) {
        Speak();
    }
}

void Narrator::NameControls() const
{
    SetName(*controls_.keyboard, ToQString(session::KeyboardWords(lesson_)));
    SetName(*controls_.leftHand, ToQString(session::HandWords(lesson_, session::Hand::Left)));
    SetName(*controls_.rightHand, ToQString(session::HandWords(lesson_, session::Hand::Right)));
}

// A letter may be the same as the one before it, and after a wrong key the same one is expected
// again: both are said once more.
void Narrator::Speak()
{
    if (lesson_.unloaded) {
        return;
    }
    NameControls();
    const QString words = ToQString(session::Announcement(lesson_));
    const std::array<int, 3> at{lesson_.currentRow, lesson_.caretPos, lesson_.errorCount};
    const bool elsewhere = std::exchange(saidAt_, at) != at;
    if (std::exchange(said_, words) != words || elsewhere) {
        controls_.notice->Say(words);
    }
}

} // namespace keyfluent::shell
