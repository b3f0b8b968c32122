#include "shell/base/Form.h"

#include "context/SessionContext.h"
#include "course/PictureWords.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/platform/Fonts.h"
#include "shell/platform/TextConversion.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <iterator>
#include <utility>

namespace keyfluent::shell
{
namespace
{

constexpr int titleRule = Pixels(405);
constexpr int flashInterval = 100; // milliseconds
constexpr int flashTicks = 3;
constexpr int outOfSight = Pixels(6000); // beyond the right edge

bool IsReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// A piece of the background, its height a multiple of the stripes' period.
QImage Stripes()
{
    constexpr QRgb rows[] = {qRgb(244, 244, 244), qRgb(255, 255, 255), qRgb(243, 243, 243),
                             qRgb(238, 238, 238)};
    QImage piece(512, 64, QImage::Format_RGB32);
    for (int y = 0; y < piece.height(); ++y) {
        std::fill_n(reinterpret_cast<QRgb*>(piece.scanLine(y)), piece.width(),
                    rows[static_cast<std::size_t>(y) % std::size(rows)]);
    }
    return piece;
}

} // namespace

Form::Form(Program& program, const char* name, QSize size)
    : QWidget(program.Backdrop(), Qt::Dialog | Qt::FramelessWindowHint), program_(program),
      arabic_(program.State().arabicInterface)
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(arabic_ ? QStringLiteral("كي فلونت") : QStringLiteral("KeyFluent"));
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFont(FormFont(10, false));
    setLayoutDirection(Qt::LeftToRight); // places are told and never mirrored by the toolkit
    setFixedSize(size);
    btnTimer_.setObjectName(QStringLiteral("btnTimer"));
    btnTimer_.setTimerType(Qt::PreciseTimer);
    btnTimer_.setInterval(flashInterval);
    connect(&btnTimer_, &QTimer::timeout, this, &Form::TickFlash);
}

Form::~Form() = default;

context::SessionContext& Form::state()
{
    return program_.State();
}

void Form::Exec()
{
    CentreOnScreen();
    // A button has the focus only when the keyboard has led to it.
    if (focusWidget() == nullptr) {
        setFocus();
    }
    show();
    activateWindow();
    if (!unloaded_) {
        loop_.exec();
    }
    hide();
}

Continuation Form::TakeContinuation()
{
    return std::exchange(continuation_, {});
}

void Form::Unload(Continuation after)
{
    if (unloaded_) {
        return;
    }
    unloaded_ = true;
    btnTimer_.stop();
    continuation_ = std::move(after);
    hide();
    loop_.quit();
}

void Form::Abandon()
{
    Unload();
    continuation_ = {};
}

void Form::ShowAbove(std::unique_ptr<Form> form)
{
    program_.ShowModal(std::move(form));
}

void Form::CentreOnScreen()
{
    const QWidget* backdrop = program_.Backdrop();
    const QScreen* screen =
        backdrop != nullptr ? backdrop->screen() : QGuiApplication::primaryScreen();
    QRect place(QPoint(), size());
    place.moveCenter(screen->geometry().center());
    move(place.topLeft());
}

TextLabel* Form::AddLabel(const char* name, const QRect& place, std::u16string_view caption,
                          double points, bool bold)
{
    auto* label = new TextLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(FormFont(points, bold));
    label->setGeometry(place);
    label->SetReading(arabic_);
    label->SetCaption(caption);
    return label;
}

TextLabel* Form::AddTitle(std::u16string_view caption, const char* name)
{
    constexpr int margin = 12;
    TextLabel* title =
        AddLabel(name, {margin, 1, width() - 2 * margin, titleRule - 2}, caption, 11, true);
    title->SetSide(Side::Centre);
    setWindowTitle(title->text());
    return title;
}

ImageControl* Form::AddImage(const char* name, QPoint place, int bitmap)
{
    auto* image = new ImageControl(this);
    image->setObjectName(QString::fromLatin1(name));
    image->SetBitmap(bitmap);
    image->move(place);
    NamePicture(*image);
    return image;
}

void Form::NamePicture(ImageControl& image)
{
    image.setAccessibleName(ToQString(course::PictureWords(image.Bitmap(), arabic_)));
}

void Form::NameWindow(std::u16string_view name)
{
    setAccessibleName(ToQString(name));
}

Form::Button Form::AddButton(const char* imageName, const char* labelName, QPoint place,
                             std::u16string_view caption, std::function<void()> handler)
{
    Button button;
    button.image = AddImage(imageName, place, faceOut);
    button.image->SetKind(ImageControl::Kind::Button);
    button.label = AddLabel(labelName, button.image->geometry(), caption, 10, true);
    button.label->SetSide(Side::Centre);
    button.image->SetCaptionName(button.label->text());
    const std::size_t entry = buttons_.size();
    buttons_.push_back({button, std::move(handler)});
    connect(button.image, &ImageControl::clicked, this,
            [this, entry] { buttons_[entry].handler(); });
    connect(button.image, &ImageControl::hovered, this,
            [this, image = button.image] { LightButton(*image); });
    return button;
}

void Form::MoveButton(const Button& button, QPoint place)
{
    button.image->move(place);
    button.label->setGeometry(button.image->geometry());
}

int Form::EntryOf(const Button& button) const
{
    const auto found =
        std::find_if(buttons_.begin(), buttons_.end(), [&button](const ButtonEntry& entry) {
            return entry.button.image == button.image;
        });
    return static_cast<int>(found - buttons_.begin());
}

QPushButton* Form::AddCommand(const char* name, int entry)
{
    auto* command = new QPushButton(this);
    command->setObjectName(QString::fromLatin1(name));
    command->setAccessibleName(
        buttons_[static_cast<std::size_t>(entry)].button.label->text().simplified());
    command->setFocusPolicy(Qt::NoFocus);
    command->move(width() + outOfSight, 0);
    command->hide();
    connect(command, &QPushButton::clicked, this, [this, entry] { StartFlash(entry); });
    return command;
}

void Form::FlashOnReturn(const Button& button)
{
    command2_ = AddCommand("Command2", EntryOf(button));
}

void Form::FlashOnEscape(const Button& button)
{
    escapeEntry_ = EntryOf(button);
    command1_ = AddCommand("Command1", escapeEntry_);
}

void Form::LightButton(ImageControl& image)
{
    for (ButtonEntry& entry : buttons_) {
        if (entry.button.image == &image && !entry.lit) {
            image.SetBitmap(faceIn);
            entry.lit = true;
        }
    }
}

// There is no leave event: a lit button goes dark when the pointer next moves over the bare window.
void Form::PutOutButtons()
{
    const bool anyLit = std::any_of(buttons_.begin(), buttons_.end(),
                                    [](const ButtonEntry& entry) { return entry.lit; });
    if (!anyLit) {
        return;
    }
    for (ButtonEntry& entry : buttons_) {
        entry.button.image->SetBitmap(faceOut);
        entry.lit = false;
    }
}

void Form::StartFlash(int entry)
{
    flashing_ = entry;
    flashCount_ = 0;
    if (!btnTimer_.isActive()) {
        btnTimer_.start();
    }
}

void Form::TickFlash()
{
    ButtonEntry& entry = buttons_[static_cast<std::size_t>(flashing_)];
    ++flashCount_;
    entry.button.image->SetBitmap(flashCount_ == 1 ? faceOut : faceIn);
    if (flashCount_ < flashTicks) {
        return;
    }
    flashCount_ = 0;
    entry.button.image->SetBitmap(faceOut);
    btnTimer_.stop();
    entry.handler();
}

bool Form::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate && !unloaded_) {
        Activated();
    }
    return handled;
}

void Form::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (striped_) {
        for (const QRect& part : event->region()) {
            PaintStripes(painter, part);
        }
        PaintFrame(painter, rect(), Qt::black);
        painter.fillRect(0, titleRule, width(), 1, Qt::black);
    }
    PaintExtra(painter);
}

void Form::mouseMoveEvent(QMouseEvent*)
{
    PutOutButtons();
}

void Form::mousePressEvent(QMouseEvent* event)
{
    down_ = event->button() == Qt::LeftButton;
    if (closing_ == Closing::Press) {
        Unload();
    }
}

void Form::mouseReleaseEvent(QMouseEvent* event)
{
    const bool clicked = std::exchange(down_, false) && event->button() == Qt::LeftButton &&
                         rect().contains(event->position().toPoint());
    if (clicked && closing_ == Closing::Click) {
        Unload();
    }
}

// A key that is held down from the window before must not act here: repeats count for nothing.
void Form::keyPressEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        return;
    }
    if (IsReturn(*event) && command2_ != nullptr) {
        command2_->click();
    } else if (event->key() == Qt::Key_Escape && command1_ != nullptr) {
        command1_->click();
    } else if (event->key() == Qt::Key_Space && closing_ != Closing::Buttons) {
        Unload();
    } else {
        KeyReached(*event);
    }
}

void Form::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (unloaded_) {
        return;
    }
    if (onClose_) {
        onClose_();
    } else if (escapeEntry_ >= 0) {
        buttons_[static_cast<std::size_t>(escapeEntry_)].handler();
    } else if (buttons_.size() == 1) {
        buttons_.front().handler();
    } else {
        Unload();
    }
}

// By copies of a picture: the toolkit hands a fill with a pattern to threads of its own, and waking
// them costs more than the fill.
void PaintStripes(QPainter& painter, const QRect& place)
{
    static const QImage stripes = Stripes();
    QRect part = QRect(QPoint(), stripes.size());
    for (part.moveTop(place.top() - place.top() % stripes.height()); part.top() <= place.bottom();
         part.translate(0, part.height())) {
        for (part.moveLeft(place.left()); part.left() <= place.right();
             part.translate(part.width(), 0)) {
            const QRect shown = part & place;
            painter.drawImage(shown.topLeft(), stripes, shown.translated(-part.topLeft()));
        }
    }
}

// Not as an outline: its pen would lie askew on the pixels of a dense screen.
void PaintFrame(QPainter& painter, const QRect& place, const QColor& colour)
{
    painter.fillRect(place.left(), place.top(), place.width(), 1, colour);
    painter.fillRect(place.left(), place.bottom(), place.width(), 1, colour);
    painter.fillRect(place.left(), place.top(), 1, place.height(), colour);
    painter.fillRect(place.right(), place.top(), 1, place.height(), colour);
}

} // namespace keyfluent::shell
