#include "tests/shell/forms/FitCheck.h"

#include "shell/base/ImageControl.h"
#include "shell/base/TextLabel.h"

#include <QBitmap>
#include <QImage>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>

namespace keyfluent::shell
{
namespace
{

constexpr QSize smallestScreen(800, 600);

// By itself: whether the window around it is shown plays no part.
bool Shows(const QWidget& control)
{
    return !control.isHidden();
}

QRegion Rendered(const TextLabel& label)
{
    QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const_cast<TextLabel&>(label).render(&painter, {}, {}, QWidget::RenderFlags());
    painter.end();
    return QRegion(QBitmap::fromImage(image.createAlphaMask()));
}

int PixelsOf(const QRegion& region)
{
    int pixels = 0;
    for (const QRect& rect : region) {
        pixels += rect.width() * rect.height();
    }
    return pixels;
}

// With more room above and below, as much must be painted as without.
bool IsCutOff(TextLabel& label)
{
    constexpr int more = 400;
    const QSize size = label.size();
    const int painted = PixelsOf(Rendered(label));
    label.resize(size.width(), size.height() + more);
    const int whole = PixelsOf(Rendered(label));
    label.resize(size);
    return painted != whole || label.NeededSize(size.width()).width() > size.width();
}

// The picture that a caption stands on: its button, which has the same place.
const ImageControl* ButtonOf(const TextLabel& label, const QList<ImageControl*>& pictures)
{
    for (const ImageControl* picture : pictures) {
        if (picture->geometry() == label.geometry()) {
            return picture;
        }
    }
    return nullptr;
}

class Check
{
public:
    Check(QWidget& window, const QByteArray& mayCover)
        : window_(window), mayCover_(mayCover), labels_(window.findChildren<TextLabel*>()),
          pictures_(window.findChildren<ImageControl*>()),
          fields_(window.findChildren<QLineEdit*>())
    {
        const auto hidden = [](const QWidget* control) { return !Shows(*control); };
        labels_.removeIf(hidden);
        pictures_.removeIf(hidden);
    }

    QByteArray Run()
    {
        if (window_.width() > smallestScreen.width() ||
            window_.height() > smallestScreen.height()) {
            Fault("the window", "is larger than the smallest screen");
        }
        for (TextLabel* label : labels_) {
            CheckRoom(*label);
        }
        for (qsizetype i = 0; i < labels_.size(); ++i) {
            CheckNeighbours(i);
        }
        for (const ImageControl* picture : pictures_) {
            if (!window_.rect().contains(picture->geometry())) {
                Fault(Name(*picture), "reaches out of the window");
            }
        }
        return faults_;
    }

private:
    static QByteArray Name(const QWidget& control) { return control.objectName().toLatin1(); }

    void Fault(const QByteArray& control, const QByteArray& text)
    {
        faults_ += control + ' ' + text + '\n';
    }

    void CheckRoom(TextLabel& label)
    {
        constexpr int edge = 5; // of a button's face
        if (IsCutOff(label)) {
            Fault(Name(label), "is cut off: " + label.text().toUtf8());
        }
        const QRect ink = InkOf(label).boundingRect();
        if (ink.isEmpty()) {
            return;
        }
        if (!window_.rect().adjusted(2, 1, -2, -2).contains(ink)) {
            Fault(Name(label), "reaches out of the window");
        }
        const ImageControl* button = ButtonOf(label, pictures_);
        if (button != nullptr &&
            !button->geometry().adjusted(edge, edge, -edge, -edge).contains(ink)) {
            Fault(Name(label), "is larger than its button: " + label.text().toUtf8());
        }
    }

    void CheckNeighbours(qsizetype index)
    {
        const TextLabel& label = *labels_[index];
        const QRegion ink = InkOf(label);
        for (qsizetype i = index + 1; i < labels_.size(); ++i) {
            if (ink.intersects(InkOf(*labels_[i]))) {
                Fault(Name(label), "stands on " + Name(*labels_[i]));
            }
        }
        const ImageControl* own = ButtonOf(label, pictures_);
        for (const ImageControl* picture : pictures_) {
            if (picture != own && Name(label) != mayCover_ && ink.intersects(picture->geometry())) {
                Fault(Name(label), "stands on " + Name(*picture));
            }
        }
        for (const QLineEdit* field : fields_) {
            if (ink.intersects(field->geometry())) {
                Fault(Name(label), "stands on " + Name(*field));
            }
        }
    }

    QWidget& window_;
    const QByteArray& mayCover_;
    QList<TextLabel*> labels_;
    QList<ImageControl*> pictures_;
    QList<QLineEdit*> fields_;
    QByteArray faults_;
};

} // namespace

QRegion InkOf(const TextLabel& label)
{
    return Rendered(label).translated(label.pos());
}

QByteArray FaultsOfFit(QWidget& window, const QByteArray& mayCover)
{
    return Check(window, mayCover).Run();
}

} // namespace keyfluent::shell
