#include "tests/shell/forms/LessonKeys.h"

#include "context/Text.h"
#include "shell/forms/frmLesson.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWindow>

#include <span>
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

// Keys in the order of their places, from the place of the first one. A blank among the letters
// stands for a key that gives no single one.
struct KeyRow {
    std::u16string_view plain;
    std::u16string_view shifted;
    quint32 firstPlace;
};

using KeyRows = std::span<const KeyRow>;

constexpr KeyRow englishRows[] = {
    {u"1234567890-=", u"!@#$%^&*()_+", 2},
    {u"qwertyuiop[]", u"QWERTYUIOP{}", 16},
    {u"asdfghjkl;'`", u"ASDFGHJKL:\"~", 30},
    {u"\\zxcvbnm,./", u"|ZXCVBNM<>?", 43},
};
constexpr KeyRow arabicWindowsRows[] = {
    {u"1234567890-=", u"!@#$%^&*)(_+", 2},
    {u"ضصثقفغعهخحجد", u"     إ ÷×؛<>", 16},
    {u"شسيبلاتنمكطذ", u"     أـ،/:\"", 30},
    {u"\\ئءؤر ىةوزظ", u"|     آ  .؟", 43},
};
constexpr KeyRow arabicMacintoshRows[] = {
    {u"1234567890-=", u"!@#$%^&*)( +", 2},
    {u"ضصثقفغعهخحجة", u"", 16},
    {u"شسيبلاتنمك؛", u"  ى  آ   :\"", 30},
    {u"\\ظطذدزرو،./", u"|  ئءأإؤ><؟", 43},
};

KeyRows RowsOf(const QWidget& window)
{
    const context::SessionContext& state = static_cast<const frmLesson&>(window).Record().context;
    if (!state.arabicExercise) {
        return englishRows;
    }
    return state.keyboardKind == 0 ? KeyRows(arabicMacintoshRows) : KeyRows(arabicWindowsRows);
}

constexpr quint32 placeOfReturn = 28;
constexpr quint32 placeOfShift = 42;
constexpr quint32 placeOfSpace = 57;

// As the desktop brings it: the place stands in the native scan code, eight above.
void SendKey(QWidget& window, QEvent::Type type, int key, quint32 place)
{
    QKeyEvent event(type, key, Qt::NoModifier, place + 8, 0, 0);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
}

void PressKeyOf(QWidget& window, char16_t character)
{
    if (character == context::lineEndMark) {
        return PressPlace(window, Qt::Key_Return, placeOfReturn);
    }
    if (character == u' ') {
        return PressPlace(window, Qt::Key_Space, placeOfSpace);
    }
    for (const KeyRow& row : RowsOf(window)) {
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

void PressDown(QWidget& lessonWindow, int key, unsigned int place)
{
    SendKey(lessonWindow, QEvent::KeyPress, key, place);
}

void LetGo(QWidget& lessonWindow, int key, unsigned int place)
{
    SendKey(lessonWindow, QEvent::KeyRelease, key, place);
}

void PressPlace(QWidget& lessonWindow, int key, unsigned int place)
{
    const QPointer<QWidget> window(&lessonWindow);
    PressDown(lessonWindow, key, place);
    if (window != nullptr) {
        LetGo(lessonWindow, key, place);
    }
}

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
    constexpr quint32 placeOfQ = 16;
    constexpr quint32 placeOfP = 25;
    const char16_t expected = Expected(lessonWindow);
    const bool isQ = expected == u'q' || expected == u'ض';
    PressPlace(lessonWindow, 0, isQ ? placeOfP : placeOfQ);
}

} // namespace keyfluent::shell
