// Row views on show, for the tests of the row view and of its painting.
#pragma once

#include "shell/text/RowView.h"

#include "tests/shell/text/FieldTestSupport.h"

namespace keyfluent::shell
{

// A shown view in a window of its own.
struct Stage {
    Stage(RowView::Keep keep, QSize size) : view(keep, ExerciseTestFont(), &window)
    {
        window.resize(size + QSize(20, 20));
        view.setGeometry(10, 10, size.width(), size.height());
        window.show();
        QApplication::processEvents();
    }

    QWidget window;
    RowView view;
};

inline constexpr QSize rowSize(627, 31);
inline constexpr QSize passageSize(627, 157);

// The same field as a view shows it that has never shown anything else.
inline QImage FreshPicture(const session::TextField& field, const RowView& like, RowView::Keep keep)
{
    RowView view(keep, ExerciseTestFont());
    view.resize(like.size());
    view.Show(field);
    return Picture(view);
}

} // namespace keyfluent::shell
