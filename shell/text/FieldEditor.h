// The text field that the student edits: a plain editor with mouse selection, cut, copy, paste and
// undo. Each edit is told as one replacement in the string's positions, so that a record which does
// the same holds the same text. A line end is CR LF, whatever was pasted; erasing it takes both.
//
// It is drawn as RowView is, so that a field keeps its looks when it becomes editable, and it lays
// out only the lines at hand: a stock editor lays a whole paragraph out anew at each key, which in
// thirty thousand characters without a line end takes longer than the keys of a fast typist.
#pragma once

#include "session/Controls.h"
#include "shell/text/EditHistory.h"
#include "shell/text/EditorKeys.h"
#include "shell/text/TextCanvas.h"

#include <QBasicTimer>
#include <QClipboard>
#include <QWidget>

namespace keyfluent::shell
{

class FieldEditor : public QWidget
{
    Q_OBJECT

public:
    // What the Return key does.
    enum class Return {
        EndsLine,  // puts a line end in the place of the selection
        IsReported // nothing but returnPressed()
    };
    // What does not fit any more is left out of what is inserted.
    static constexpr int mostUnits = 65535;

    explicit FieldEditor(const QFont& font, QWidget* parent = nullptr);

    void SetReturn(Return what) { return_ = what; }
    // Input methods and dead keys; off at first.
    void AllowInputMethod(bool allowed);
    bool ReadOnly() const { return readOnly_; }

    // Text, selection, font size, direction and whether it may be edited; place, visibility and
    // pointer are the window's. A change of the text is a step that can be undone, but where the
    // field could not be edited before or can't be now it ends what can be undone. Tells nothing.
    void Show(const session::TextField& field);

    // As the student does it: told by edited() and selected().
    void Edit(int position, int removed, std::u16string_view inserted);
    void Select(int anchor, int caret);
    void Do(const KeyDeed& what);

    TextCanvas& Canvas() { return canvas_; }

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

signals:
    // removed units have gone from position on and inserted stands there; the caret is behind it.
    void edited(int position, int removed, const std::u16string& inserted);
    void selected(int start, int length);
    void returnPressed();
    // A mouse button has gone down, and was let go above the field.
    void pressed(Qt::MouseButton button);
    void clicked(Qt::MouseButton button);
    void focusLost();

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    // What a drag of the mouse selects by.
    enum class Grain { Letter, Word, Paragraph };

    bool Apply(const TextChange& change, int caret);
    void ReplaceSelection(std::u16string_view inserted);
    void MoveCaret(Move move, bool extend);
    void Erase(Move move);
    void UndoOrRedo(bool undo);
    void Copy(QClipboard::Mode mode) const;
    void Paste(QClipboard::Mode mode);
    void TellSelection();
    void KeepCaretSeen();
    void RestartBlinking();
    void UpdateDamage();

    bool InputMethodOn() const { return inputMethodAllowed_ && !readOnly_; }
    void ShowComposed(const QString& text, int caret);
    void DropComposed();
    void CommitComposed();

    std::pair<int, int> GrainAround(int position) const;
    void DragTo(QPointF point);

    mutable TextCanvas canvas_; // lays lines out when it is asked for them
    EditHistory history_;
    Return return_ = Return::EndsLine;
    bool readOnly_ = true;
    bool inputMethodAllowed_ = false;

    // Last told by selected(), or shown.
    int toldStart_ = 0;
    int toldLength_ = 0;
    double wantedX_ = -1; // of a run of vertical steps; below 0 outside of one

    // Text that an input method composes stands in the canvas alone, from here on.
    int composedStart_ = 0;
    int composedLength_ = 0;

    Grain grain_ = Grain::Letter;
    std::pair<int, int> grainStart_; // where the drag began
    bool dragging_ = false;
    QPointF dragPoint_;
    qint64 lastDoubleClick_ = -1; // milliseconds of the event's clock
    QPointF doubleClickPoint_;
    int wheelAngle_ = 0;

    QBasicTimer blinkTimer_;
    QBasicTimer scrollTimer_; // while a drag is above or below the field
    bool blinkOn_ = true;
};

} // namespace keyfluent::shell
