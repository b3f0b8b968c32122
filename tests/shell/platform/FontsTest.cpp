// The embedded faces, on a machine that has no others.
#include "shell/platform/Fonts.h"

#include "keyboard/KeyCaps.h"
#include "keyboard/Layouts.h"
#include "shell/platform/TextConversion.h"
#include "tests/shell/FailOnWarning.h"

#include <QFile>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTextLayout>

#include <limits>

namespace keyfluent::shell
{
namespace
{

// The faces that the text is drawn with, by name and style; "missing" where one has no such glyph.
QSet<QString> FacesOf(const QFont& font, const QString& text)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QSet<QString> faces;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont face = run.rawFont();
        faces += face.familyName() + QLatin1Char('/') + face.styleName();
        if (run.glyphIndexes().contains(0)) {
            faces += QStringLiteral("missing");
        }
    }
    return faces;
}

// All that the caps and the texts of the course are written with.
QString AllCharacters()
{
    QString all = QStringLiteral("\u0691 0123456789");
    for (const keyboard::CharacterKey& key : keyboard::characterKeys) {
        for (const auto text : {key.english, key.englishShift, key.arabicWindows,
                                key.arabicWindowsShift, key.arabicMac, key.arabicMacShift}) {
            all += ToQString(text);
        }
    }
    return all;
}

QString AllPictures()
{
    QString all;
    for (int cap = 0; cap < keyboard::capCount; ++cap) {
        all += ToQString(keyboard::PictureOnCap(cap));
    }
    return all;
}

} // namespace

class FontsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        FailOnWarning();
        QVERIFY(!QFontDatabase::families().contains(QStringLiteral("Amiri")));
        LoadFonts();
    }

    void init() { FailOnWarning(); }

    void AllThreeFacesAreThere()
    {
        for (const char* family : {"Noto Naskh Arabic", "DejaVu Sans Condensed", "Amiri"}) {
            QVERIFY2(QFontDatabase::families().contains(QLatin1String(family)), family);
        }
    }

    void EachFontIsDrawnWithItsFaces()
    {
        const QString latin = QStringLiteral("Lesson abc");
        const QString arabic = QStringLiteral("درس");
        const auto only = [](const char* face) { return QSet<QString>{QString::fromLatin1(face)}; };
        QCOMPARE(FacesOf(FormFont(9, false), latin), only("DejaVu Sans Condensed/Condensed"));
        QCOMPARE(FacesOf(FormFont(9, true), latin), only("DejaVu Sans Condensed/Condensed Bold"));
        QCOMPARE(FacesOf(FormFont(9, true), arabic), only("DejaVu Sans Condensed/Condensed Bold"));
        QCOMPARE(FacesOf(ExerciseFont(14), arabic), only("Noto Naskh Arabic/Bold"));
        QCOMPARE(FacesOf(ExerciseFont(14), QStringLiteral("abc")),
                 only("DejaVu Sans Condensed/Condensed Bold"));
        for (const QString& text : {latin, arabic}) {
            QCOMPARE(FacesOf(DiplomaFont(20, false), text), only("Amiri/Regular"));
            QCOMPARE(FacesOf(DiplomaFont(20, true), text), only("Amiri/Bold"));
        }
    }

    void NoCharacterOfTheProgramIsAnEmptyBox()
    {
        const QFont fonts[] = {FormFont(9, false), FormFont(9, true), ExerciseFont(14),
                               DiplomaFont(20, false), DiplomaFont(20, true)};
        for (const QFont& font : fonts) {
            for (const QChar character : AllCharacters()) {
                const QSet<QString> faces = FacesOf(font, QString(character));
                QVERIFY2(!faces.contains(QStringLiteral("missing")),
                         qPrintable(QString::number(character.unicode(), 16)));
            }
        }
        QVERIFY(!AllPictures().isEmpty());
        QVERIFY(!FacesOf(FormFont(9.75, true), AllPictures()).contains(QStringLiteral("missing")));
    }

    // Otherwise the letter of the Return mark would break the joining beside it.
    void ReturnMarkIsOfTheFaceOfTheRow()
    {
        QCOMPARE(FacesOf(ExerciseFont(14), QStringLiteral("\u0633\u0691")),
                 QSet<QString>{QStringLiteral("Noto Naskh Arabic/Bold")});
    }

    void MissingCharacterIsTold()
    {
        QVERIFY(FacesOf(ExerciseFont(14), QStringLiteral("\u4E00"))
                    .contains(QStringLiteral("missing")));
    }

    void PointsBecomePixelsAtNinetySixToTheInch()
    {
        const struct {
            double points;
            int pixels;
        } sizes[] = {{6, 8},   {8, 11},  {8.25, 11}, {9, 12},  {9.75, 13}, {10, 13}, {11, 15},
                     {12, 16}, {13, 17}, {14, 19},   {18, 24}, {20, 27},   {1, 1}};
        for (const auto& size : sizes) {
            QCOMPARE(FormFont(size.points, false).pixelSize(), size.pixels);
            QCOMPARE(DiplomaFont(size.points, true).pixelSize(), size.pixels);
            if (size.points == static_cast<int>(size.points)) {
                QCOMPARE(ExerciseFont(static_cast<int>(size.points)).pixelSize(), size.pixels);
            }
        }
    }

    void StrangeSizesCanBeDrawn()
    {
        using Limits = std::numeric_limits<int>;
        for (const int points : {0, -1, Limits::min()}) {
            QCOMPARE(ExerciseFont(points).pixelSize(), 1);
        }
        for (const int points : {451, 65536, Limits::max()}) {
            QCOMPARE(ExerciseFont(points).pixelSize(), 600);
        }
        QVERIFY(!FacesOf(ExerciseFont(Limits::max()), QStringLiteral("درس"))
                     .contains(QStringLiteral("missing")));
    }

    // A row's width must not depend on the desktop's settings: here every letter is to be fitted to
    // whole pixels, which the program's fonts are not.
    void DesktopsHintingChangesNoWidth()
    {
        const QString text = QStringLiteral("iiiiiiiiii");
        QFont fitted = FormFont(9, false);
        fitted.setHintingPreference(QFont::PreferDefaultHinting);
        const qreal desktops = QFontMetricsF(fitted).horizontalAdvance(text);
        QCOMPARE(desktops, std::floor(desktops));
        const qreal small = QFontMetricsF(FormFont(9, false)).horizontalAdvance(text);
        const qreal large = QFontMetricsF(FormFont(90, false)).horizontalAdvance(text);
        QVERIFY2(qAbs(large - 10 * small) < 1, qPrintable(QString::number(large - 10 * small)));
    }
};

} // namespace keyfluent::shell

int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("fonts.conf")));
    if (!settings.open(QIODevice::WriteOnly)) {
        return 1;
    }
    settings.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
                   "<cachedir>" +
                   folder.path().toUtf8() +
                   "</cachedir><match target=\"pattern\"><edit name=\"hintstyle\" mode=\"assign\">"
                   "<const>hintfull</const></edit></match></fontconfig>");
    settings.close();
    qputenv("FONTCONFIG_FILE", settings.fileName().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    keyfluent::shell::FontsTest test;
    return keyfluent::shell::RunTests(test, argc, argv);
}

#include "FontsTest.moc"
