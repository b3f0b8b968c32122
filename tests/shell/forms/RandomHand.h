// A hand that does anything at any moment: it presses keys, clicks, scrolls, resizes windows, takes
// the front from the program and asks windows to close, all by a seed, for as long as the program
// lives. What it may not do is wait for an answer: windows that it opens are its own next target.
#pragma once

#include "tests/shell/forms/FormsHarness.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <random>
#include <vector>

namespace keyfluent::shell
{

class RandomHand
{
public:
    explicit RandomHand(std::uint32_t seed);
    ~RandomHand();

    // Begins with start, sends so many events and ends the program if it has not ended by itself.
    // Returns when all its windows have gone. Answers how many events were sent: fewer where the
    // program ended.
    int Play(World& world, int events, const std::function<void()>& start);

    // A number from 0 up to below end.
    int Draw(int end) { return static_cast<int>(random_() % static_cast<std::uint32_t>(end)); }

    // The names of all windows that were on top.
    const QSet<QString>& Met() const { return met_; }
    // What the last events were, for a report. The seed alone does not bring them back: they fall
    // into a clock that runs.
    QString LastEvents() const { return log_.join(QLatin1Char('\n')); }

private:
    struct Act {
        int share; // of 1000
        const char* name;
        void (RandomHand::*act)(QWidget& window);
    };

    void Step();
    void ActOn(QWidget& window);
    void ActOnLesson(QWidget& window);
    void Note(const QWidget& window, const char* act);
    QPoint AnyPlace(QWidget& window);
    Qt::KeyboardModifiers AnyModifiers();

    void ClickSomewhere(QWidget& window);
    void PressOnly(QWidget& window);
    void ReleaseOnly(QWidget& window);
    void DoubleClick(QWidget& window);
    void Move(QWidget& window);
    void Scroll(QWidget& window);
    void PressKey(QWidget& window);
    void SendPlace(QWidget& window);
    void TypeText(QWidget& window);
    void Compose(QWidget& window);
    void FillClipboard(QWidget& window);
    void Resize(QWidget& window);
    void ChangeState(QWidget& window);
    void TakeTheFront(QWidget& window);
    void Close(QWidget& window);
    void ChooseItem(QWidget& window);
    void ChangeTheWorld(QWidget& window);
    void LetTimePass(QWidget& window);

    std::mt19937 random_;
    World* world_ = nullptr;
    QObject* context_ = nullptr; // of the steps that are to come
    QWidget outsider_;
    int left_ = 0;
    int sent_ = 0;
    std::vector<QPointer<QWidget>> acting_; // windows whose events have not returned
    int pause_ = 0;                         // before the next event, in milliseconds
    int idle_ = 0;
    QSet<QString> met_;
    QStringList log_;
};

} // namespace keyfluent::shell
