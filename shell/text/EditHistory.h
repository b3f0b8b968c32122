// What can be undone in a field, step by step.
#pragma once

#include "shell/text/TextCanvas.h"

#include <vector>

namespace keyfluent::shell
{

class EditHistory
{
public:
    // Letters typed one behind the other, and letters erased one after the other, are one step up
    // to the next line end or the next Close. What was undone can then be redone no more.
    void Record(const TextChange& change);
    // Whatever comes next is a step of its own.
    void Close() { open_ = false; }
    void Clear();

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }

    // The change that takes a step back, or does it again. Only where it can be done.
    TextChange Undo();
    TextChange Redo();

private:
    bool Join(const TextChange& change);

    std::vector<TextChange> steps_;
    std::size_t done_ = 0; // steps that stand in the text; those behind have been undone
    bool open_ = false;    // the last step may grow
};

} // namespace keyfluent::shell
