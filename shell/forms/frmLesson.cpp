#include "shell/forms/frmLesson.h"

#include "keyboard/KeyCodes.h"
#include "session/Keystrokes.h"
#include "session/Loading.h"
#include "session/Pointer.h"
#include "session/Review.h"
#include "session/Selection.h"
#include "session/Ticks.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/forms/frmBlack.h"
#include "shell/forms/frmNotAllowed.h"
#include "shell/forms/frmResult.h"
#include "shell/forms/frmStopNote.h"
#include "shell/lesson/GaugeBar.h"
#include "shell/lesson/KeyboardView.h"
#include "shell/lesson/Narrator.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/KeyMap.h"
#include "shell/platform/Surface.h"
#include "shell/text/FieldEditor.h"
#include "shell/text/RowView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace keyfluent::shell
{
namespace
{

using session::FieldName;
using session::TimerName;

constexpr int ruleUnderTitle = Pixels(404);
constexpr int ruleWithoutCounter = Pixels(7680);

} // namespace

frmLesson::frmLesson(Program& program)
    : Form(program, "frmLesson", {Pixels(session::lessonWidth), Pixels(session::lessonHeight)}),
      lesson_(program.State(), program.Machine(), window_)
{
    FillWindow();
    session::Load(lesson_);
    BuildLabels();
    BuildPictures();
    BuildFields();
    BuildTimers();
    ActOnClose([this] {
        session::PressStop(lesson_);
        AfterEvent();
    });
    if (frmBlack* backdrop = program.MainWindow()) {
        backdrop->ShowStepButtons(lesson_.imgBackShown, lesson_.imgNextShown,
                                  lesson_.imgDuplicateShown);
    }
    program.World().refreshKeyboard();
    session::Activate(lesson_);
    AfterEvent();
}

// Here and not as the record ends: the end itself may still sound.
frmLesson::~frmLesson()
{
    program().World().restSounds();
}

void frmLesson::FillWindow()
{
    window_.paintBackground = [this] { update(); };
    window_.focusOrigin = [this] { FocusOrigin(); };
    // The model text is drawn without a caret, and the copy shows one in the review alone, where
    // the editor has its own.
    window_.hideCaret = [](FieldName) {};
    window_.showCaret = [](FieldName) {};
    window_.unload = [this] {
        for (QTimer* timer : timers_) {
            timer->stop();
        }
    };
    window_.showResult = [this] {
        next_ = [&program = program()] { return std::make_unique<frmResult>(program); };
    };
    window_.showStopNote = [this](int note) {
        next_ = [&program = program(), note] {
            return std::make_unique<frmStopNote>(program, note);
        };
    };
    window_.showNotAllowed = [this] { ShowAbove(std::make_unique<frmNotAllowed>(program())); };
}

// A name for those who cannot see the control.
QString frmLesson::Word(const char16_t* arabic, const char16_t* english) const
{
    return QString::fromUtf16(Arabic() ? arabic : english);
}

void frmLesson::AfterEvent()
{
    if (lesson_.unloaded) {
        Unload(std::exchange(next_, {}));
        return;
    }
    SyncTimers();
    Refresh();
}

void frmLesson::SyncTimers()
{
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        const session::Timer& record = lesson_.timers[i];
        if (!record.Enabled()) {
            timers_[i]->stop();
        } else if (record.Starts() != startsSeen_[i]) {
            timers_[i]->start();
            startsSeen_[i] = record.Starts();
        }
    }
}

void frmLesson::Tick(TimerName timer)
{
    const bool shutKeysOut = timer == TimerName::ErrKey || timer == TimerName::EraseChar;
    session::Tick(lesson_, timer);
    if (shutKeysOut && !lesson_.unloaded && !lesson_.TimerOf(timer).Enabled()) {
        RepeatHeldShift();
    }
    AfterEvent();
}

// A Shift that went down while keys were shut out has been lost, and this desktop does not repeat
// a held Shift: so it is told once more.
void frmLesson::RepeatHeldShift()
{
    if (!heldShifts_.empty() && !lesson_.shiftDown) {
        session::KeyDown(lesson_, keyboard::keyShift);
    }
}

void frmLesson::Refresh()
{
    RefreshFields();
    keyboard_->Show(lesson_.caps);
    RefreshPicture(*imgLeftHand_, lesson_.imgLeftHand);
    RefreshPicture(*imgRightHand_, lesson_.imgRightHand);
    RefreshPicture(*imgRest_, lesson_.imgRest);
    RefreshPicture(*imgResume_, lesson_.imgResume);
    RefreshPicture(*imgStop_, lesson_.imgStop);
    pbMark_->Show(lesson_.pbMark);
    pbSpeed_->Show(lesson_.pbSpeed);
    RefreshLabels();
    narrator_->Tell();
}

void frmLesson::RefreshFields()
{
    session::TextField* editable = session::EditableField(lesson_);
    if (editable != nullptr && editor_ == nullptr) {
        ReplaceByEditor(*editable);
    }
    const auto show = [](RowView* view, const session::TextField& field) {
        if (view != nullptr) {
            view->setGeometry(PixelsOf(field.box));
            view->setVisible(field.visible);
            view->Show(field);
        }
    };
    show(txtOrigin_, lesson_.txtOrigin);
    show(txtTest_, lesson_.txtTest);
    if (editor_ != nullptr) {
        editor_->setGeometry(PixelsOf(editable->box));
        editor_->Show(*editable);
        editor_->show();
    }
}

void frmLesson::RefreshLabels()
{
    for (const RecordLabel& label : labels_) {
        label.widget->SetCaption(label.record->caption);
        label.widget->SetRightToLeft(label.record->rightToLeft);
        label.widget->setVisible(label.record->visible);
    }
}

void frmLesson::RefreshPicture(ImageControl& control, const session::Image& image)
{
    control.SetBitmap(image.bitmap);
    control.setEnabled(image.enabled);
    control.setVisible(image.visible);
}

// The view is in the middle of the event that has led here, so it goes when that is over. It must
// not be met twice by then: neither by its name nor on the screen.
void frmLesson::ReplaceByEditor(session::TextField& field)
{
    editor_ = MakeEditor(field);
    RowView*& view = &field == &lesson_.txtTest ? txtTest_ : txtOrigin_;
    editor_->setObjectName(view->objectName());
    editor_->setAccessibleName(view->accessibleName());
    view->setObjectName(QString());
    view->hide();
    std::exchange(view, nullptr)->deleteLater();
}

FieldEditor* frmLesson::MakeEditor(session::TextField& field)
{
    auto* editor = new FieldEditor(ExerciseFont(field.fontSize), this);
    editor->AllowInputMethod(true);
    editor->installEventFilter(this);
    connect(editor, &FieldEditor::edited, this,
            [this, &field](int position, int removed, const std::u16string& inserted) {
                session::EditField(field, position, removed, inserted);
            });
    connect(editor, &FieldEditor::selected, this, [this, &field](int start, int length) {
        field.Select(start, length);
        if (txtOrigin_ != nullptr) {
            txtOrigin_->BringIntoView(start); // the model scrolls with the copy
        }
    });
    if (&field == &lesson_.txtTest) {
        editor->SetReturn(FieldEditor::Return::IsReported);
        connect(editor, &FieldEditor::returnPressed, this, [this] {
            session::PressEnterInReview(lesson_);
            AfterEvent();
        });
    }
    return editor;
}

void frmLesson::FocusOrigin()
{
    QWidget* field = lesson_.context.freeText && editor_ != nullptr ? static_cast<QWidget*>(editor_)
                                                                    : txtOrigin_;
    if (field != nullptr && !field->hasFocus()) {
        field->setFocus(Qt::OtherFocusReason);
    }
}

void frmLesson::Activated()
{
    if (lesson_.unloaded) {
        return;
    }
    program().World().refreshKeyboard();
    session::Activate(lesson_);
    AfterEvent();
}

void frmLesson::PaintExtra(QPainter& painter)
{
    painter.fillRect(0, ruleUnderTitle, width(), 1, Qt::black);
    if (lesson_.shape1.visible) {
        PaintFrame(painter, PixelsOf(lesson_.shape1.box), QColor(0x6B, 0x7F, 0x8C));
    } else {
        painter.fillRect(0, ruleWithoutCounter, width(), 1, Qt::black);
    }
}

void frmLesson::mouseMoveEvent(QMouseEvent*)
{
    session::MoveOverForm(lesson_);
    AfterEvent();
}

void frmLesson::showEvent(QShowEvent* event)
{
    Form::showEvent(event);
    windowHandle()->installEventFilter(this);
}

bool frmLesson::event(QEvent* event)
{
    const bool handled = Form::event(event);
    if (event->type() == QEvent::UpdateRequest && std::exchange(answering_, false)) {
        pause_.start();
    }
    return handled;
}

bool frmLesson::PressField(FieldName field)
{
    const bool answered = session::PressField(lesson_, field);
    AfterEvent();
    return answered;
}

// The window sees every key before any control, shortcut or menu of the toolkit does.
bool frmLesson::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == windowHandle()) {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            event->accept();
            return true;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return HandleKey(static_cast<QKeyEvent&>(*event));
        case QEvent::Expose:
            if (!lesson_.unloaded && windowHandle()->isExposed()) {
                session::BackgroundDrawn(lesson_);
            }
            return false;
        default:
            return false;
        }
    }
    if (watched == txtOrigin_ && event->type() == QEvent::FocusOut && !lesson_.unloaded) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            session::OriginLostFocus(lesson_);
        }
        return false;
    }
    if (editor_ != nullptr && watched == editor_ && event->type() == QEvent::MouseButtonPress) {
        const bool origin = session::EditableField(lesson_) == &lesson_.txtOrigin;
        return PressField(origin ? FieldName::Origin : FieldName::Test);
    }
    return Form::eventFilter(watched, event);
}

void frmLesson::NoteShift(const QKeyEvent& event, bool down)
{
    if (down) {
        heldShifts_.insert(event.nativeScanCode());
    } else {
        heldShifts_.erase(event.nativeScanCode());
    }
}

bool frmLesson::HandleKey(QKeyEvent& event)
{
    if (lesson_.unloaded) {
        return true;
    }
    const std::uint16_t code = KeyNumber(event, lesson_.context.arabicExercise);
    const bool down = event.type() == QEvent::KeyPress;
    if (code == keyboard::keyShift && !event.isAutoRepeat()) {
        NoteShift(event, down);
    }
    if (down) {
        return PressKey(event);
    }
    if (!event.isAutoRepeat()) {
        session::KeyUp(lesson_, code);
        AfterEvent();
    }
    return true;
}

// What is left of a key goes on only to the field that the student edits.
bool frmLesson::PressKey(QKeyEvent& event)
{
    const std::uint16_t code = KeyNumber(event, lesson_.context.arabicExercise);
    const bool hadReview = session::Reviewing(lesson_);
    answering_ = true;
    const std::uint16_t left = session::KeyDown(lesson_, code);
    AfterEvent();
    const bool goesOn = left != 0 && !lesson_.unloaded && editor_ != nullptr &&
                        (hadReview || lesson_.context.freeText) && editor_->hasFocus();
    return !goesOn;
}

} // namespace keyfluent::shell
