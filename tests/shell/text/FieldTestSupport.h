// What the tests of the text fields share: the exercise font, texts, pictures of fields and a
// record of what was painted.
#pragma once

#include "session/Controls.h"
#include "shell/text/TextCanvas.h"

#include "tests/shell/FailOnWarning.h"

#include <QApplication>
#include <QFontDatabase>
#include <QImage>
#include <QPaintEvent>
#include <QWidget>

#include <random>
#include <string>

namespace keyfluent::shell
{

// The faces by name, as the system has them. A test of pixels means nothing with other faces, so
// their absence fails it.
inline QFont ExerciseTestFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("Noto Naskh Arabic"), QStringLiteral("DejaVu Sans")});
    font.setBold(true);
    return font;
}

inline bool HasTestFaces()
{
    const QStringList families = QFontDatabase::families();
    return families.contains(QStringLiteral("Noto Naskh Arabic")) &&
           families.contains(QStringLiteral("DejaVu Sans"));
}

inline session::TextField MakeField(std::u16string_view text, bool rightToLeft, int start = 0,
                                    int length = 0)
{
    session::TextField field;
    field.SetText(text);
    field.Select(start, length);
    field.rightToLeft = rightToLeft;
    return field;
}

inline const std::u16string latinRow = u"asdf jkl; The quick (13) ";
inline const std::u16string arabicRow =
    u"\u0643\u062A\u0628 \u0627\u0644\u062A\u0644\u0645\u064A\u0630 \u0648\u0644\u0627 "
    u"\u064A\u0631\u0649 123 (\u0642\u0644\u0645) ";
inline const std::u16string vowelledRow =
    u"\u0645\u064F\u062F\u064E\u0631\u0651\u0650\u0633\u064C \u0625\u0644\u0649 "
    u"\u0622\u062E\u0650\u0631\u0691";

// Lines of about 50 letters that end with the Return mark and CR LF.
inline std::u16string Passage(bool rightToLeft, int lines)
{
    std::u16string text;
    for (int line = 0; line < lines; ++line) {
        text += line == 0 ? u"" : u"\u0691\r\n";
        for (int word = 0; word < 8; ++word) {
            text += rightToLeft ? u"\u0648\u0644\u062F\u0627\u062A " : u"words ";
        }
        text += rightToLeft ? u"\u0642\u0644\u0645" : u"end.";
    }
    return text;
}

inline QImage Picture(QWidget& widget, double ratio = 1)
{
    QImage image(widget.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

// The pixels outside of region are the same in both pictures, which are of ratio 1.
inline bool SameOutside(const QImage& one, const QImage& other, const QRegion& region)
{
    if (one.size() != other.size()) {
        return false;
    }
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y) && !region.contains(QPoint(x, y))) {
                return false;
            }
        }
    }
    return true;
}

// What a shown widget is asked to paint from here on. It also keeps the picture that those paints
// alone would leave on a screen.
class PaintLog : public QObject
{
public:
    explicit PaintLog(QWidget& widget) : widget_(widget), screen_(Picture(widget))
    {
        QApplication::processEvents();
        widget_.installEventFilter(this);
    }

    // Waits for what is due; the region painted since the last call.
    QRegion Take()
    {
        QApplication::processEvents();
        const QRegion painted = painted_;
        painted_ = {};
        if (!painted.isEmpty()) {
            widget_.removeEventFilter(this);
            widget_.render(&screen_, painted.boundingRect().topLeft(), painted);
            widget_.installEventFilter(this);
        }
        return painted;
    }
    const QImage& Screen() const { return screen_; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &widget_ && event->type() == QEvent::Paint) {
            painted_ += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

private:
    QWidget& widget_;
    QImage screen_;
    QRegion painted_;
};

inline std::string Describe(const QRegion& region)
{
    std::string text;
    for (const QRect& rect : region) {
        text += "[" + std::to_string(rect.x()) + "," + std::to_string(rect.y()) + " " +
                std::to_string(rect.width()) + "x" + std::to_string(rect.height()) + "]";
    }
    return text;
}

} // namespace keyfluent::shell
