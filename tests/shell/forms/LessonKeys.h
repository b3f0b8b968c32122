// Typing in the exercise window: keys by their places on the keyboard.
#pragma once

class QWidget;

namespace keyfluent::shell
{

// Presses and releases the key of the expected character, so many times or to the end. Both stop
// when the exercise has ended and when its review begins.
void TypeRight(QWidget& lessonWindow, int keys);
void TypeToTheEnd(QWidget& lessonWindow);

// A key that is wrong for the expected character, whatever that is: "q", or "p" where "q" is right.
void TypeWrong(QWidget& lessonWindow);

} // namespace keyfluent::shell
