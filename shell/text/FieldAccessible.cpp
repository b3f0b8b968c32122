#include "shell/text/FieldAccessible.h"

#include "shell/platform/TextConversion.h"
#include "shell/text/FieldEditor.h"
#include "shell/text/RowView.h"

#include <QAccessibleWidget>

namespace keyfluent::shell
{
namespace
{

class FieldAccessible : public QAccessibleWidget,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface
{
public:
    explicit FieldAccessible(RowView* view)
        : QAccessibleWidget(view, QAccessible::EditableText), canvas_(view->Canvas()), view_(view)
    {
    }
    explicit FieldAccessible(FieldEditor* editor)
        : QAccessibleWidget(editor, QAccessible::EditableText), canvas_(editor->Canvas()),
          editor_(editor)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface) {
            return static_cast<QAccessibleTextInterface*>(this);
        }
        if (type == QAccessible::EditableTextInterface && Editable()) {
            return static_cast<QAccessibleEditableTextInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiLine = true;
        state.selectableText = editor_ != nullptr;
        state.editable = Editable();
        state.readOnly = !Editable();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? ToQString(canvas_.Text())
                                          : QAccessibleWidget::text(kind);
    }

    void setText(QAccessible::Text kind, const QString& text) override
    {
        if (kind == QAccessible::Value && Editable()) {
            replaceText(0, canvas_.Size(), text);
        }
    }

    // Text.
    void selection(int index, int* start, int* end) const override
    {
        *start = index == 0 ? canvas_.SelectionStart() : 0;
        *end = index == 0 ? canvas_.SelectionEnd() : 0;
    }
    int selectionCount() const override { return canvas_.HasSelection() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    void setSelection(int, int start, int end) override
    {
        if (editor_) {
            editor_->Select(start, end);
        }
    }

    int cursorPosition() const override { return editor_ ? canvas_.Caret() : view_->Caret(); }
    void setCursorPosition(int position) override { setSelection(0, position, position); }

    QString text(int start, int end) const override
    {
        const int size = canvas_.Size();
        const int from = std::clamp(start, 0, size);
        const int to = std::clamp(end < 0 ? size : end, from, size);
        return ToQString(
            std::u16string_view(canvas_.Text())
                .substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from)));
    }
    int characterCount() const override { return canvas_.Size(); }

    QRect characterRect(int offset) const override
    {
        const QRect letter = canvas_.LetterRect(offset);
        return letter.isEmpty() ? letter
                                : QRect(widget()->mapToGlobal(letter.topLeft()), letter.size());
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        return canvas_.PositionAt(widget()->mapFromGlobal(QPointF(point)));
    }
    void scrollToSubstring(int start, int) override
    {
        canvas_.Follow(start, 0);
        widget()->update(canvas_.TakeDamage());
    }

    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = canvas_.Size();
        return QString();
    }

    // Editable text.
    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override
    {
        if (editor_) {
            editor_->Edit(start, end - start, FromQString(text));
        }
    }

private:
    bool Editable() const { return editor_ && !editor_->ReadOnly(); }

    TextCanvas& canvas_;
    RowView* view_ = nullptr;       // a field that only shows,
    FieldEditor* editor_ = nullptr; // or one that the student edits
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    if (auto* view = qobject_cast<RowView*>(object)) {
        return new FieldAccessible(view);
    }
    if (auto* editor = qobject_cast<FieldEditor*>(object)) {
        return new FieldAccessible(editor);
    }
    return nullptr;
}

std::unique_ptr<QAccessibleEvent> TextEventOf(QWidget* field, const TextChange& change)
{
    const QString removed = ToQString(change.removed);
    const QString inserted = ToQString(change.inserted);
    if (inserted.isEmpty()) {
        return std::make_unique<QAccessibleTextRemoveEvent>(field, change.position, removed);
    }
    if (removed.isEmpty()) {
        return std::make_unique<QAccessibleTextInsertEvent>(field, change.position, inserted);
    }
    return std::make_unique<QAccessibleTextUpdateEvent>(field, change.position, removed, inserted);
}

} // namespace

void InstallFieldAccessibility()
{
    QAccessible::installFactory(MakeInterface);
}

std::vector<std::unique_ptr<QAccessibleEvent>> EventsOf(QWidget* field, const TextChange& change,
                                                        const TextCanvas& canvas, int caret)
{
    std::vector<std::unique_ptr<QAccessibleEvent>> events;
    if (!change.Empty()) {
        events.push_back(TextEventOf(field, change));
    }
    auto selection = std::make_unique<QAccessibleTextSelectionEvent>(field, canvas.SelectionStart(),
                                                                     canvas.SelectionEnd());
    selection->setCursorPosition(caret);
    events.push_back(std::move(selection));
    return events;
}

void TellAssistants(QWidget* field, const TextChange& change, const TextCanvas& canvas, int caret)
{
    if (QAccessible::isActive()) {
        for (const auto& event : EventsOf(field, change, canvas, caret)) {
            QAccessible::updateAccessibility(event.get());
        }
    }
}

} // namespace keyfluent::shell
