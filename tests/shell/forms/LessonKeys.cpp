#include "tests/shell/forms/LessonKeys.h"

#include "context/Text.h"
#include "shell/forms/frmLesson.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWindow>

#include <string_view>

namespace keyfluent::shell
{
namespace
{

char16_t Expected(const QWidget& window)
{
    const auto selected = static_cast<const frmLesson&>(window).Record().txtOrigin.SelectedText();
    return selected.empty() ? u'\0' : selected.front();
}

bool Runs(const QPointer<QWidget>& window)
{
    if (window == nullptr) {
        return false;
    }
    const session::Lesson& record = static_cast<const frmLesson&>(*window).Record();
    return !record.unloaded && !record.reviewMode;
}

// Keys in the order of their places, from the place of the first one: of the Latin keyboard, and of
// the Arabic one on Windows.
struct KeyRow {
    std::u16string_view plain;
    std::u16string_view shifted;
    quint32 firstPlace;
};

constexpr KeyRow keyRows[] = {
    {u"1234567890-=", u"!@#$%^&*()_+", 2},
    {u"qwertyuiop[]", u"QWERTYUIOP{}", 16},
    {u"asdfghjkl;'`", u"ASDFGHJKL:\"~", 30},
    {u"\\zxcvbnm,./", u"|ZXCVBNM<>?", 43},
    {u" ", u"", 57},
    {u"ضصثقفغعهخحجد", u"", 16},
    {u"شسيبلاتنمكطذ", u"", 30},
    {u"ئءؤر", u"", 44},
    {u"ىةوزظ", u"", 49},
};
constexpr quint32 placeOfReturn = 28;
constexpr quint32 placeOfShift = 42;

// As the desktop brings it: the place stands in the native scan code, eight above.
void SendKey(QWidget& window, QEvent::Type type, int key, quint32 place)
{
    QKeyEvent event(type, key, Qt::NoModifier, place + 8, 0, 0);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
}

void PressPlace(QWidget& window, int key, quint32 place)
{
    SendKey(window, QEvent::KeyPress, key, place);
    SendKey(window, QEvent::KeyRelease, key, place);
}

void PressKeyOf(QWidget& window, char16_t character)
{
    if (character == context::lineEndMark) {
        return PressPlace(window, Qt::Key_Return, placeOfReturn);
    }
    for (const KeyRow& row : keyRows) {
        const std::size_t plain = row.plain.find(character);
        const std::size_t shifted = row.shifted.find(character);
        if (plain != row.plain.npos) {
            return PressPlace(window, 0, row.firstPlace + static_cast<quint32>(plain));
        }
        if (shifted != row.shifted.npos) {
            SendKey(window, QEvent::KeyPress, Qt::Key_Shift, placeOfShift);
            PressPlace(window, 0, row.firstPlace + static_cast<quint32>(shifted));
            return SendKey(window, QEvent::KeyRelease, Qt::Key_Shift, placeOfShift);
        }
    }
    qFatal("No key for the character %04x", character);
}

} // namespace

void TypeRight(QWidget& lessonWindow, int keys)
{
    const QPointer<QWidget> window(&lessonWindow);
    for (int i = 0; i < keys && Runs(window); ++i) {
        PressKeyOf(*window, Expected(*window));
    }
}

void TypeToTheEnd(QWidget& lessonWindow)
{
    constexpr int longest = 3000; // keys; no exercise has as many
    TypeRight(lessonWindow, longest);
}

void TypeWrong(QWidget& lessonWindow)
{
    PressKeyOf(lessonWindow, Expected(lessonWindow) == u'q' ? u'p' : u'q');
}

} // namespace keyfluent::shell
