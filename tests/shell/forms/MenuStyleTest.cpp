// How menus look in both languages: from which side they read, and what shows beside an item.
#include "shell/forms/frmBlack.h"

#include "tests/shell/forms/FormMakers.h"

#include <QAction>
#include <QMenu>

namespace keyfluent::shell
{

class MenuStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void ItemsBeginAtTheSideOfTheirLanguage_data();
    void ItemsBeginAtTheSideOfTheirLanguage();
    void SignsAtTheEndOfAnItemStandAtItsEnd_data();
    void SignsAtTheEndOfAnItemStandAtItsEnd();
    void OnlyTheCheckedItemHasATick_data();
    void OnlyTheCheckedItemHasATick();
};

namespace
{

constexpr int tickColumn = 20; // pixels at the side where an item begins

void AddLanguages()
{
    QTest::addColumn<bool>("arabic");
    QTest::newRow("English") << false;
    QTest::newRow("Arabic") << true;
}

// A menu as it opens, and the dark pixels of its items.
class OpenMenu
{
public:
    OpenMenu(bool arabic, const char* name) : world_(arabic), arabic_(arabic)
    {
        PlaceStudent(world_);
        world_.program().EnterAsKnownStudent();
        menu_ = world_.program().MainWindow()->findChild<QMenu*>(QString::fromLatin1(name));
        menu_->ensurePolished();
        menu_->adjustSize();
        shot_ = menu_->grab().toImage();
    }

    // The box around all that is drawn for an item. Beside its tick, or in the tick's column.
    QRect InkOf(const char* item, bool ofTick) const
    {
        const QAction* action = menu_->findChild<QAction*>(QString::fromLatin1(item));
        const QRect line =
            menu_->actionGeometry(const_cast<QAction*>(action)).adjusted(4, 2, -4, -2);
        QRect part = line;
        if (ofTick) {
            part.setWidth(tickColumn);
            if (arabic_) {
                part.moveRight(line.right());
            }
        } else {
            part.adjust(arabic_ ? 0 : tickColumn, 0, arabic_ ? -tickColumn : 0, 0);
        }
        QRect ink;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (qGray(shot_.pixel(x, y)) < 200) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    int Width() const { return menu_->width(); }

    // The dark pixels of a column of an item, from the highest to the lowest.
    int HeightAt(const QRect& ink, int x) const
    {
        int top = ink.bottom() + 1;
        int bottom = top;
        for (int y = ink.top(); y <= ink.bottom(); ++y) {
            if (qGray(shot_.pixel(x, y)) < 200) {
                top = std::min(top, y);
                bottom = y + 1;
            }
        }
        return bottom - top;
    }

private:
    World world_;
    bool arabic_;
    QMenu* menu_ = nullptr;
    QImage shot_;
};

} // namespace

void MenuStyleTest::ItemsBeginAtTheSideOfTheirLanguage_data()
{
    AddLanguages();
}

void MenuStyleTest::ItemsBeginAtTheSideOfTheirLanguage()
{
    QFETCH(bool, arabic);
    const OpenMenu menu(arabic, "mnuLessons");
    QSet<int> begins;
    QSet<int> ends;
    for (const char* item : {"mnuLesson1", "mnuLesson4", "mnuLesson8", "mnuLesson13"}) {
        const QRect ink = menu.InkOf(item, false);
        begins << (arabic ? menu.Width() - ink.right() : ink.left()) / 3;
        ends << (arabic ? menu.Width() - ink.left() : ink.right()) / 3;
    }
    QVERIFY2(begins.size() <= 2, "not under one another"); // figures begin with a little air
    QCOMPARE(ends.size(), 4);
}

void MenuStyleTest::SignsAtTheEndOfAnItemStandAtItsEnd_data()
{
    AddLanguages();
}

void MenuStyleTest::SignsAtTheEndOfAnItemStandAtItsEnd()
{
    QFETCH(bool, arabic);
    const OpenMenu menu(arabic, "mnuFile");
    const QRect ink = menu.InkOf("mnuFilePrefs", false);
    constexpr int highestDot = 3;
    for (int i = 0; i < 6; ++i) {
        const int x = arabic ? ink.left() + i : ink.right() - i;
        QVERIFY2(menu.HeightAt(ink, x) <= highestDot, "no dots at the end");
    }
}

void MenuStyleTest::OnlyTheCheckedItemHasATick_data()
{
    AddLanguages();
}

void MenuStyleTest::OnlyTheCheckedItemHasATick()
{
    QFETCH(bool, arabic);
    const OpenMenu menu(arabic, "mnuLessons");
    for (int lesson = 1; lesson <= 15; ++lesson) {
        const QByteArray item = "mnuLesson" + QByteArray::number(lesson);
        QCOMPARE(!menu.InkOf(item.constData(), true).isEmpty(), lesson == 4);
    }
}

} // namespace keyfluent::shell

KEYFLUENT_FORMS_TEST_MAIN(keyfluent::shell::MenuStyleTest)

#include "MenuStyleTest.moc"
