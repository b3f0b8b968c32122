// The window in which one exercise is typed. It tells the exercise's record of keys, clicks and the
// passing of time, and shows afterwards what the record holds; it decides nothing.
#pragma once

#include "session/Lesson.h"
#include "shell/base/Form.h"

#include <QTimer>

#include <array>
#include <set>

class QKeyEvent;

namespace keyfluent::shell
{

class FieldEditor;
class GaugeBar;
class KeyboardView;
class Narrator;
class RowView;

class frmLesson : public Form
{
    Q_OBJECT

public:
    explicit frmLesson(Program& program);
    ~frmLesson() override;

    const session::Lesson& Record() const { return lesson_; }

    // Every key of the window comes here first. True when the key goes no further.
    bool HandleKey(QKeyEvent& event);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void Activated() override;
    void PaintExtra(QPainter& painter) override;

private:
    void FillWindow();
    QString Word(const char16_t* arabic, const char16_t* english) const;
    void BuildFields();
    void BuildLabels();
    void BuildPictures();
    void BuildTimers();
    TextLabel* AddRecordLabel(const char* name, session::Label& label, Side side);

    // After each thing that the record was told.
    void AfterEvent();
    void SyncTimers();
    void Refresh();
    void RefreshFields();
    void ReplaceByEditor(session::TextField& field);
    void RefreshLabels();
    void RefreshPicture(ImageControl& control, const session::Image& image);
    void Tick(session::TimerName timer);
    void RepeatHeldShift();

    bool PressKey(QKeyEvent& event);
    void NoteShift(const QKeyEvent& event, bool down);
    bool PressField(session::FieldName field);
    FieldEditor* MakeEditor(session::TextField& field);
    void FocusOrigin();

    struct RecordLabel {
        const session::Label* record;
        TextLabel* widget;
    };

    session::LessonWindow window_;
    session::Lesson lesson_;
    Continuation next_;
    RowView* txtOrigin_ = nullptr; // null where the editor stands in its place, as below
    RowView* txtTest_ = nullptr;
    FieldEditor* editor_ = nullptr; // of the field that the student may edit; made when needed
    KeyboardView* keyboard_ = nullptr;
    GaugeBar* pbMark_ = nullptr;
    GaugeBar* pbSpeed_ = nullptr;
    ImageControl* imgRest_ = nullptr;
    ImageControl* imgResume_ = nullptr;
    ImageControl* imgStop_ = nullptr;
    ImageControl* imgLeftHand_ = nullptr;
    ImageControl* imgRightHand_ = nullptr;
    std::unique_ptr<Narrator> narrator_;
    std::vector<RecordLabel> labels_;
    std::array<QTimer*, session::timerCount> timers_{};
    std::array<std::uint32_t, session::timerCount> startsSeen_{};
    // After a key is answered: the surface settles before the next one.
    QTimer pause_;
    bool answering_ = false;
    std::set<quint32> heldShifts_; // places of the Shift keys that are down
};

} // namespace keyfluent::shell
