// Tells assistive technology what an exercise shows: the lit key, the fingers, and what there is to
// say after each event. It costs nothing while no assistive technology is in use.
#pragma once

#include "session/Lesson.h"

#include <QAccessible>
#include <QWidget>

#include <array>

namespace keyfluent::shell
{

// What is said: a control of no size and no looks. Screen readers speak a notification when it
// comes, wherever the keyboard is, and they do not speak a change of any other control's name.
class Notice : public QWidget
{
    Q_OBJECT

public:
    explicit Notice(QWidget* parent);

    // Says the words, also if they are those that were said last; without words there is no notice.
    void Say(const QString& words);
};

class Narrator : private QAccessible::ActivationObserver
{
public:
    // The controls that get the words of what they show as their names, and what is said.
    struct Controls {
        QWidget* keyboard;
        QWidget* leftHand;
        QWidget* rightHand;
        Notice* notice;
    };

    // Lesson and controls outlive the narrator, or it is not called any more.
    Narrator(const session::Lesson& lesson, const Controls& controls);
    ~Narrator();
    Narrator(const Narrator&) = delete;
    Narrator& operator=(const Narrator&) = delete;

    // After each event.
    void Tell();

private:
    // Assistive technology may come in the middle of an exercise.
    void accessibilityActiveChanged(bool active) override;

    void NameControls() const;
    void Speak();

    const session::Lesson& lesson_;
    const Controls controls_;
    QString said_;
    std::array<int, 3> saidAt_{}; // row, position and number of errors
};

} // namespace keyfluent::shell
