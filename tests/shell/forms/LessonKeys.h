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

// The key of a place, as the kernel numbers places; key is the toolkit's name for it, 0 for none.
void PressDown(QWidget& lessonWindow, int key, unsigned int place);
void LetGo(QWidget& lessonWindow, int key, unsigned int place);
void PressPlace(QWidget& lessonWindow, int key, unsigned int place);

} // namespace keyfluent::shell
