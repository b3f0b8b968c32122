#include "shell/text/EditHistory.h"

#include "tests/shell/FailOnWarning.h"

namespace keyfluent::shell
{
namespace
{

TextChange Typed(int position, const char16_t* text)
{
    return {position, u"", text};
}
TextChange Erased(int position, const char16_t* text)
{
    return {position, text, u""};
}

bool Same(const TextChange& change, int position, const char16_t* removed, const char16_t* inserted)
{
    return change.position == position && change.removed == removed && change.inserted == inserted;
}

} // namespace

class EditHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void NothingCanBeUndoneAtFirst()
    {
        const EditHistory history;
        QVERIFY(!history.CanUndo());
        QVERIFY(!history.CanRedo());
    }

    void TypedLettersAreOneStep()
    {
        EditHistory history;
        history.Record(Typed(4, u"a"));
        history.Record(Typed(5, u"b"));
        history.Record(Typed(6, u"cd"));
        QVERIFY(Same(history.Undo(), 4, u"abcd", u""));
        QVERIFY(!history.CanUndo());
        QVERIFY(Same(history.Redo(), 4, u"", u"abcd"));
        QVERIFY(!history.CanRedo());
    }

    void LettersTypedElsewhereAreAnotherStep()
    {
        EditHistory history;
        history.Record(Typed(4, u"a"));
        history.Record(Typed(4, u"b"));
        QVERIFY(Same(history.Undo(), 4, u"b", u""));
        QVERIFY(Same(history.Undo(), 4, u"a", u""));
    }

    void LettersErasedOnEitherSideAreOneStep()
    {
        EditHistory history;
        history.Record(Erased(5, u"f"));
        history.Record(Erased(4, u"e"));
        history.Record(Erased(4, u"g"));
        QVERIFY(Same(history.Undo(), 4, u"", u"efg"));
        QVERIFY(!history.CanUndo());
    }

    void TypingAndErasingAreTwoSteps()
    {
        EditHistory history;
        history.Record(Typed(0, u"ab"));
        history.Record(Erased(1, u"b"));
        QVERIFY(Same(history.Undo(), 1, u"", u"b"));
        QVERIFY(Same(history.Undo(), 0, u"ab", u""));
    }

    void TypingOverASelectionIsOneStep()
    {
        EditHistory history;
        history.Record({2, u"old", u"n"});
        history.Record(Typed(3, u"ew"));
        QVERIFY(Same(history.Undo(), 2, u"new", u"old"));
        QVERIFY(!history.CanUndo());
    }

    void ALineEndIsAStepOfItsOwn()
    {
        EditHistory history;
        history.Record(Typed(0, u"a"));
        history.Record(Typed(1, u"\r\n"));
        history.Record(Typed(3, u"b"));
        QVERIFY(Same(history.Undo(), 3, u"b", u""));
        QVERIFY(Same(history.Undo(), 1, u"\r\n", u""));
        QVERIFY(Same(history.Undo(), 0, u"a", u""));
    }

    void AClosedStepDoesNotGrow()
    {
        EditHistory history;
        history.Record(Typed(0, u"a"));
        history.Close();
        history.Record(Typed(1, u"b"));
        QVERIFY(Same(history.Undo(), 1, u"b", u""));
    }

    void AnUndoneStepDoesNotGrow()
    {
        EditHistory history;
        history.Record(Typed(0, u"a"));
        history.Record({1, u"", u"\r\n"});
        history.Undo();
        history.Record(Typed(1, u"b"));
        QVERIFY(Same(history.Undo(), 1, u"b", u""));
        QVERIFY(history.CanUndo());
    }

    void ANewEditEndsWhatCanBeRedone()
    {
        EditHistory history;
        history.Record(Typed(0, u"a"));
        history.Undo();
        QVERIFY(history.CanRedo());
        history.Record(Typed(0, u"b"));
        QVERIFY(!history.CanRedo());
        QVERIFY(Same(history.Undo(), 0, u"b", u""));
        QVERIFY(!history.CanUndo());
    }

    void AClearedHistoryHasNoSteps()
    {
        EditHistory history;
        history.Record(Typed(0, u"a"));
        history.Clear();
        QVERIFY(!history.CanUndo());
        history.Record(Typed(1, u"b"));
        QVERIFY(Same(history.Undo(), 1, u"b", u""));
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::EditHistoryTest)

#include "EditHistoryTest.moc"
