// What the pictures of the windows show, in words, for a person who cannot see them.
#pragma once

#include <string_view>

namespace keyfluent::course
{

// In the language of the interface, whatever language a picture's own letters are in. "" for a
// number that is no picture to look at: hands, check boxes, faces of buttons with a caption.
std::u16string_view PictureWords(int bitmap, bool arabic);

} // namespace keyfluent::course
