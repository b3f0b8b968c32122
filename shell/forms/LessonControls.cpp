// The controls of the exercise's window, each in the place that the record tells.
#include "shell/forms/frmLesson.h"

#include "session/Pictures.h"
#include "session/Pointer.h"
#include "shell/base/Pictures.h"
#include "shell/base/Twips.h"
#include "shell/lesson/GaugeBar.h"
#include "shell/lesson/KeyboardView.h"
#include "shell/lesson/Narrator.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/Surface.h"
#include "shell/text/RowView.h"

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

using session::FieldName;
using session::PushPicture;
using session::TimerName;

constexpr int pauseAfterKey = 5; // milliseconds; less than between two keys of the fastest typist

} // namespace

void frmLesson::BuildFields()
{
    const QFont font = ExerciseFont(lesson_.txtOrigin.fontSize);
    txtOrigin_ = new RowView(RowView::Keep::Selection, font, this);
    txtOrigin_->setObjectName(QStringLiteral("txtOrigin"));
    txtTest_ = new RowView(RowView::Keep::End, font, this);
    txtTest_->setObjectName(QStringLiteral("txtTest"));
    if (lesson_.context.freeText) {
        txtOrigin_->setAccessibleName(Word(u"نصك", u"Your text"));
    } else {
        txtOrigin_->setAccessibleName(Word(u"النص المطلوب", u"Text to type"));
    }
    txtTest_->setAccessibleName(Word(u"ما كتبته", u"What you have typed"));
    txtOrigin_->setFocusPolicy(Qt::StrongFocus);
    txtTest_->setFocusPolicy(Qt::NoFocus);
    const QPixmap pointer = LoadBitmap(session::customPointer, devicePixelRatioF());
    for (RowView* view : {txtOrigin_, txtTest_}) {
        view->setCursor(QCursor(pointer, 1, 1));
        view->installEventFilter(this);
    }
    const int height =
        std::min(PixelsOf(lesson_.txtOrigin.box).height(), PixelsOf(lesson_.txtTest.box).height());
    txtOrigin_->FitHeight(height);
    txtTest_->FitHeight(height);
    connect(txtOrigin_, &RowView::pressed, this, [this] { PressField(FieldName::Origin); });
    connect(txtTest_, &RowView::pressed, this, [this] { PressField(FieldName::Test); });
    connect(txtOrigin_, &RowView::clicked, this, [this] {
        session::ClickOrigin(lesson_);
        AfterEvent();
    });
}

TextLabel* frmLesson::AddRecordLabel(const char* name, session::Label& label, Side side)
{
    TextLabel* widget = AddLabel(name, PixelsOf(label.box), label.caption, label.fontSize, false);
    widget->SetSide(side);
    labels_.push_back({&label, widget});
    return widget;
}

void frmLesson::BuildLabels()
{
    const Side reading = Arabic() ? Side::Right : Side::Left;
    TextLabel* title = AddRecordLabel("lblTitle", lesson_.lblTitle, Side::Centre);
    title->FitFace([](double points) { return FormFont(points, true); }, 11, 8);
    title->FitHeight(); // above the rule
    setWindowTitle(title->text());
    AddRecordLabel("Label7", lesson_.label7, Side::Centre);
    AddRecordLabel("lblTimer", lesson_.lblTimer, Side::Centre)->setFont(FormFont(12, true));
    AddRecordLabel("lblResulotion", lesson_.lblResulotion, reading);
    AddRecordLabel("lblChar", lesson_.lblChar, reading);
    // On the side of their captions.
    AddRecordLabel("lblMark", lesson_.lblMark, reading)->setFont(FormFont(9, true));
    AddRecordLabel("lblSpeed", lesson_.lblSpeed, reading)->setFont(FormFont(9, true));
    constexpr Side sides[] = {Side::Centre, Side::Right, Side::Left,
                              Side::Left,   Side::Right, Side::Centre};
    for (int number = 1; number <= session::scaleMarkCount; ++number) {
        const QByteArray name = "Label" + QByteArray::number(number);
        AddRecordLabel(name.constData(), lesson_.ScaleMark(number), sides[number - 1])
            ->setFont(FormFont(8, false));
    }
    pbMark_ = new GaugeBar(this, QColor(0x2F, 0x7F, 0x86));
    pbMark_->setObjectName(QStringLiteral("pbMark"));
    pbMark_->setAccessibleName(QString::fromStdU16String(lesson_.lblResulotion.caption).trimmed());
    pbSpeed_ = new GaugeBar(this, QColor(0xF2, 0xA5, 0x41));
    pbSpeed_->setObjectName(QStringLiteral("pbSpeed"));
    pbSpeed_->setAccessibleName(QString::fromStdU16String(lesson_.lblChar.caption).trimmed());
}

void frmLesson::BuildPictures()
{
    keyboard_ = new KeyboardView(this);
    keyboard_->setObjectName(QStringLiteral("T"));
    struct Push {
        ImageControl** control;
        const char* name;
        const session::Image* image;
        PushPicture picture;
        QString caption;
    };
    const Push pushes[] = {
        {&imgRest_, "imgRest", &lesson_.imgRest, PushPicture::Rest, Word(u"استراحة", u"Break")},
        {&imgResume_, "imgResume", &lesson_.imgResume, PushPicture::Resume,
         Word(u"متابعة", u"Resumption")},
        {&imgStop_, "imgStop", &lesson_.imgStop, PushPicture::Stop, Word(u"توقيف", u"Stop")},
    };
    for (const Push& push : pushes) {
        ImageControl* image =
            AddImage(push.name, PixelsOf(push.image->box).topLeft(), push.image->bitmap);
        image->SetKind(ImageControl::Kind::Button);
        image->setFocusPolicy(Qt::NoFocus); // all keys are the exercise's
        image->SetCaptionName(push.caption);
        connect(image, &ImageControl::hovered, this, [this, picture = push.picture] {
            session::MoveOver(lesson_, picture);
            AfterEvent();
        });
        *push.control = image;
    }
    const auto tell = [this](void (*operation)(session::Lesson&)) {
        return [this, operation] {
            operation(lesson_);
            AfterEvent();
        };
    };
    connect(imgRest_, &ImageControl::clicked, this, tell(session::ClickRest));
    connect(imgResume_, &ImageControl::clicked, this, tell(session::ClickResume));
    connect(imgStop_, &ImageControl::pressed, this, tell(session::PressStop));
    // Decoded now, so that no key waits for a hand's picture.
    constexpr int handPictures = 12;
    for (int i = 0; i < handPictures; ++i) {
        LoadBitmap(session::leftHandAtRest + lesson_.handPictureOffset + i, devicePixelRatioF());
    }
    imgLeftHand_ = AddImage("imgLeftHand", PixelsOf(lesson_.imgLeftHand.box).topLeft(),
                            lesson_.imgLeftHand.bitmap);
    imgRightHand_ = AddImage("imgRightHand", PixelsOf(lesson_.imgRightHand.box).topLeft(),
                             lesson_.imgRightHand.bitmap);
    narrator_ = std::make_unique<Narrator>(
        lesson_, Narrator::Controls{keyboard_, imgLeftHand_, imgRightHand_, new Notice(this)});
}

void frmLesson::BuildTimers()
{
    constexpr const char* names[] = {"tmrClock",  "tmrAuto",   "EraseChar",
                                     "tmrErrKey", "tmrHilite", "tmrSelection"};
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        auto* timer = new QTimer(this);
        timer->setObjectName(QString::fromLatin1(names[i]));
        timer->setTimerType(Qt::PreciseTimer);
        timer->setInterval(lesson_.timers[i].Interval());
        connect(timer, &QTimer::timeout, this, [this, i] { Tick(static_cast<TimerName>(i)); });
        timers_[i] = timer;
    }
    pause_.setSingleShot(true);
    pause_.setInterval(pauseAfterKey);
    connect(&pause_, &QTimer::timeout, this, [this] { SettleSurface(*this); });
}

} // namespace keyfluent::shell
