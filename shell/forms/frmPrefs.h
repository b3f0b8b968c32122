// The preferences: what outlives a session.
#pragma once

#include "shell/base/Form.h"

#include <cstdint>

class QLineEdit;

namespace keyfluent::shell
{

class ColourSwatch;

class frmPrefs : public Form
{
    Q_OBJECT

public:
    explicit frmPrefs(Program& program);

private:
    struct Box {
        ImageControl* image = nullptr;
        TextLabel* label = nullptr;
    };

    Box AddBox(const char* imageName, const char* labelName, int top, const char16_t* caption,
               bool ticked);
    ColourSwatch* AddSwatch(const char* name, const char* labelName, int top,
                            const char16_t* caption, std::int32_t colour);
    void AddSizeField(int top, std::int32_t size);
    void Confirm();

    Box interface_;
    Box system_;
    Box hand_;
    ColourSwatch* lblHilite_ = nullptr;
    ColourSwatch* lblWarn_ = nullptr;
    QLineEdit* txtSize_ = nullptr;
};

} // namespace keyfluent::shell
