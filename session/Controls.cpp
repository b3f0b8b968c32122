#include "session/Controls.h"

#include <algorithm>

namespace keyfluent::session
{

void TextField::SetText(std::u16string_view text)
{
    text_.assign(text);
    Select(0, 0);
}

void TextField::Append(std::u16string_view more)
{
    text_.append(more);
    Select(0, 0);
}

void TextField::RemoveLast(int units)
{
    text_.resize(static_cast<std::size_t>(std::max(Size() - units, 0)));
    Select(0, 0);
}

void TextField::Replace(int position, int removed, std::u16string_view inserted)
{
    const int at = std::clamp(position, 0, Size());
    const int count = std::clamp(removed, 0, Size() - at);
    text_.replace(static_cast<std::size_t>(at), static_cast<std::size_t>(count), inserted);
    Select(at + static_cast<int>(inserted.size()), 0);
}

void TextField::Select(int start, int length)
{
    selectionStart_ = std::clamp(start, 0, Size());
    selectionLength_ = std::clamp(length, 0, Size() - selectionStart_);
}

std::u16string_view TextField::SelectedText() const
{
    return std::u16string_view(text_).substr(static_cast<std::size_t>(selectionStart_),
                                             static_cast<std::size_t>(selectionLength_));
}

} // namespace keyfluent::session
