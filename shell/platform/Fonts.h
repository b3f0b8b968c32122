// The faces of the program. They are embedded, so that it looks the same on every machine and
// Arabic is never empty boxes. Sizes are told in points and become whole pixels at 96 to the inch,
// whatever the desktop's own scaling of fonts, as the layout of the windows is fixed; sizes that
// nothing can be read in, below 1 pixel or beyond 600, become these.
#pragma once

#include <QFont>

namespace keyfluent::shell
{

// Makes the embedded faces known to the toolkit; once, before the first window.
void LoadFonts();

// Captions and key caps, Arabic ones too.
QFont FormFont(double points, bool bold);

// The rows of an exercise, bold: an Arabic face and then a Latin one.
QFont ExerciseFont(int points);

// The texts of the diploma.
QFont DiplomaFont(double points, bool bold);

} // namespace keyfluent::shell
