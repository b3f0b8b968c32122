#include "shell/platform/TextConversion.h"

#include "tests/shell/FailOnWarning.h"

#include <string>

namespace keyfluent::shell
{

using namespace std::string_view_literals;

class TextConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarning(); }

    void EveryUnitPassesBothWaysAtEveryPlace()
    {
        std::u16string text;
        for (int unit = 0; unit <= 0xFFFF; ++unit) {
            const auto character = static_cast<char16_t>(unit);
            const std::u16string alone(1, character);
            QCOMPARE(ToQString(alone).size(), 1);
            QCOMPARE(ToQString(alone).front().unicode(), character);
            QVERIFY(FromQString(ToQString(alone)) == alone);
            text += character;
        }
        QCOMPARE(ToQString(text).size(), 0x10000);
        QVERIFY(FromQString(ToQString(text)) == text);
    }

    void EmptyTextIsEmpty()
    {
        QCOMPARE(ToQString(u""), QString());
        QCOMPARE(ToQString(std::u16string_view()), QString());
        QVERIFY(FromQString(QString()).empty());
        QCOMPARE(LabelText(u""), QString());
    }

    void PartOfATextIsTakenAlone()
    {
        QCOMPARE(ToQString(u"درس 12"sv.substr(0, 3)), QStringLiteral("درس"));
    }

    void LabelBreaksItsLinesAtLineFeeds()
    {
        QCOMPARE(LabelText(u"one\rtwo"), QStringLiteral("one\ntwo"));
        QCOMPARE(LabelText(u"one\r\ntwo"), QStringLiteral("one\ntwo"));
        QCOMPARE(LabelText(u"one\ntwo"), QStringLiteral("one\ntwo"));
        QCOMPARE(LabelText(u"\r\rone\r\r\n\n\r"), QStringLiteral("\n\none\n\n\n\n"));
        QCOMPARE(LabelText(u"سطر\rآخر"), QStringLiteral("سطر\nآخر"));
    }
};

} // namespace keyfluent::shell

KEYFLUENT_TEST_MAIN(keyfluent::shell::TextConversionTest)

#include "TextConversionTest.moc"
