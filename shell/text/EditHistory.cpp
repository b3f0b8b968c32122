#include "shell/text/EditHistory.h"

namespace keyfluent::shell
{
namespace
{

bool HasLineEnd(const std::u16string& text)
{
    return text.find_first_of(u"\r\n\u2028\u2029") != std::u16string::npos;
}

int Length(const std::u16string& text)
{
    return static_cast<int>(text.size());
}

} // namespace

void EditHistory::Record(const TextChange& change)
{
    steps_.resize(done_);
    const bool breaks = HasLineEnd(change.inserted) || HasLineEnd(change.removed);
    if (!breaks && open_ && Join(change)) {
        return;
    }
    steps_.push_back(change);
    ++done_;
    open_ = !breaks;
}

bool EditHistory::Join(const TextChange& change)
{
    if (steps_.empty()) {
        return false;
    }
    TextChange& last = steps_.back();
    if (change.removed.empty() && !last.inserted.empty() &&
        change.position == last.position + Length(last.inserted)) {
        last.inserted += change.inserted;
        return true;
    }
    if (!change.inserted.empty() || !last.inserted.empty()) {
        return false;
    }
    if (change.position + Length(change.removed) == last.position) {
        last.position = change.position;
        last.removed.insert(0, change.removed);
        return true;
    }
    if (change.position == last.position) {
        last.removed += change.removed;
        return true;
    }
    return false;
}

void EditHistory::Clear()
{
    steps_.clear();
    done_ = 0;
    open_ = false;
}

TextChange EditHistory::Undo()
{
    open_ = false;
    const TextChange& step = steps_[--done_];
    return {step.position, step.inserted, step.removed};
}

TextChange EditHistory::Redo()
{
    open_ = false;
    return steps_[done_++];
}

} // namespace keyfluent::shell
