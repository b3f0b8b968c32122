// The preferences: what outlives a session.
#pragma once

#include "shell/base/Form.h"

#include <QColor>

class QLineEdit;

namespace keyfluent::shell
{

class frmPrefs : public Form
{
    Q_OBJECT

public:
    explicit frmPrefs(Program& program);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Box {
        ImageControl* image = nullptr;
        TextLabel* label = nullptr;
    };

    // A colour on show; a press picks another.
    struct Swatch {
        QWidget* widget = nullptr;
        QColor colour;
    };

    Box AddBox(const char* imageName, const char* labelName, int top, const char16_t* caption,
               bool ticked);
    void AddSwatch(Swatch& swatch, const char* name, const char* labelName, int top,
                   const char16_t* caption, std::int32_t colour);
    void PickColour(Swatch& swatch);
    void SetColour(Swatch& swatch, const QColor& colour);
    void Confirm();

    Box interface_;
    Box system_;
    Box hand_;
    Swatch hilite_;
    Swatch warn_;
    QLineEdit* txtSize_ = nullptr;
};

} // namespace keyfluent::shell
