// What every window says in both languages, written down by itself: an English and an Arabic column
// for each control. CR is written \n. The student and the place are those of PlaceStudent.
#pragma once

namespace keyfluent::shell
{

struct CaptionRow {
    const char* form;
    const char* control;
    const char16_t* english;
    const char16_t* arabic;
};

extern const CaptionRow captionRows[];
extern const int captionRowCount;

// Of the main window.
extern const CaptionRow menuRows[];
extern const int menuRowCount;

} // namespace keyfluent::shell
