#include "course/Notes.h"

#include "context/Text.h"
#include "course/Lessons.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace keyfluent::course
{
namespace
{

std::string Shown(std::u16string_view text)
{
    return context::ToUtf8(text);
}

bool HasArabic(std::u16string_view text)
{
    return text.find_first_of(u"ابتدرسعفقكلمنهوي") != std::u16string_view::npos;
}

std::string FirstParagraph(std::u16string_view note)
{
    return Shown(note.substr(0, note.find(u'\r')));
}

TEST(Notes, TenNotesFollowAStop)
{
    const std::string notes[] = {
        "ما الفائدة إذن من المجهود الذي بذلته "
        "زن أورتشارد"
        " ؟",
        "أتيت ... رأيت ..."
        "\r"
        "ولكني لم أنتصر ...",
        "لا تتكاسل، فلقد بدأت بالكاد بتحقيق بعض التقدم ...",
        "نذكرك أن إيقاف التمرين قبل نهايته لا يؤثر على النتيجة التي سبق"
        "\r"
        "تسجيلها.",
        "بكل سرعة ..."
        "\r"
        "فما زال لدي الكثير من العمل ...",
        "ماذا ؟"
        "\r"
        "ألم تذهب بعد لشرب الشاي في الغرفة المجاورة؟",
        "قد بدأت تشنجات الأصابع ...",
        "ماذا ؟"
        "\r"
        "ألم يعجبك هذا التمرين ؟",
        "هل بإمكانك القول للشخص المزعج الذي يحدث كل هذه الضوضاء"
        "\r"
        "أني أود التركيز على عملي بكل هدوء ...",
        "حذار! إنك تفرط باستخدام الأمر (توقيف)...",
    };
    ASSERT_EQ(std::size(notes), std::size_t{stopNoteCount});
    for (int number = 1; number <= stopNoteCount; ++number) {
        EXPECT_EQ(Shown(StopNoteText(number)), notes[number - 1]) << number;
    }
}

TEST(Notes, OtherNumbersHaveNoNoteAfterAStop)
{
    for (const int number : {-1, 0, 11, 255}) {
        EXPECT_EQ(StopNoteText(number), u"") << number;
    }
}

TEST(Notes, EachLessonHasAnArabicNoteOfItsOwn)
{
    std::set<std::u16string_view> notes;
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        EXPECT_TRUE(HasArabic(LessonNote(lesson))) << lesson;
        EXPECT_EQ(LessonNote(lesson).find(u'\n'), std::u16string_view::npos) << lesson;
        notes.insert(LessonNote(lesson));
    }
    EXPECT_EQ(notes.size(), std::size_t{lessonCount});
}

TEST(Notes, LessonNotesBeginAsTheyAreKnown)
{
    const std::pair<int, std::string> beginnings[] = {
        {1, "سيقوم هذا الدرس بتمرينك على وضع أصابعك بشكل سليم على الصف الأوسط من لوحة"},
        {4, "تمارين للخنصرين والبنصرين:"},
        {7, "سنتعرض في هذا الدرس إلى تمرين الأصابع على طباعة الأحرف التالية: (ة)، (أ)، و(ء)."},
        {12, "يتابع هذا الدرس تدريبك على استخدام لوحة المفاتيح بشكل سليم عن طريق تدريبك على"},
        {15, "يعطي هذا الدرس عددا من التمارين التي تضم النصوص التي يجب عليك طباعتها."},
    };
    for (const auto& [lesson, beginning] : beginnings) {
        EXPECT_EQ(Shown(LessonNote(lesson)).substr(0, beginning.size()), beginning) << lesson;
    }
}

TEST(Notes, ALessonOutsideTheCourseHasNoNote)
{
    for (const int lesson : {-1, 0, 16, 255}) {
        EXPECT_EQ(LessonNote(lesson), u"") << lesson;
    }
}

TEST(Notes, TheHeadingOverALessonsNoteIsArabicButForTheName)
{
    EXPECT_EQ(Shown(LessonNoteTitle(1, false)), "الدرس رقم: (1 ) Guide Row");
    EXPECT_EQ(Shown(LessonNoteTitle(15, false)), "الدرس رقم: (15 ) End & Mouse");
    EXPECT_EQ(Shown(LessonNoteTitle(4, true)), "الدرس رقم: (4 ) خنصر وبنصر");
}

TEST(Notes, EveryExerciseOfBothLanguagesHasANote)
{
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        for (int exercise = 1; exercise <= exerciseCount; ++exercise) {
            for (const bool arabic : {false, true}) {
                const std::u16string_view note = ExerciseNote(lesson, exercise, arabic);
                EXPECT_FALSE(note.empty()) << lesson << "." << exercise;
                EXPECT_EQ(note.find(u'\n'), std::u16string_view::npos) << lesson << "." << exercise;
            }
            EXPECT_TRUE(HasArabic(ExerciseNote(lesson, exercise, true)))
                << lesson << "." << exercise;
            EXPECT_EQ(HasArabic(ExerciseNote(lesson, exercise, false)),
                      SpecialKindOf(lesson, exercise, false) == SpecialKind::ArabicAnagram)
                << lesson << "." << exercise;
        }
    }
}

struct Opening {
    int lesson;
    int exercise;
    bool arabic;
    std::string paragraph;
};

TEST(Notes, ExerciseNotesOpenWithTheirKnownParagraphs)
{
    const Opening openings[] = {
        {1, 1, false, "Place your Fingers on the Guide Row."},
        {1, 1, true,
         "ضع يديك على صف الاستراحة، اليد اليمنى على المفاتيح ك م ن ت، اليد اليسرى على المفاتيح ش س "
         "ي ب،"},
        {2, 4, false,
         "Words are going to appear one by one: first imagine striking each letter, with the help "
         "of the keyboard on the screen, then type the word at one go. Strike the keys with as "
         "regular a rhythm as possible without getting bogged down with keys."},
        {2, 4, true,
         "ستظهر الكلمات الواحدة تلو الأخرى، أمعن النظر في البداية بطريقة طبع كل حرف وذلك "
         "بالاستعانة بجدول المفاتيح المرسوم على الشاشة، وبعد ذلك عليك طبع الكلمة دفعة واحدة وبوتيرة "
         "سريعة ومنتظمة."},
        {3, 1, false, "A short review of the preceding exercises."},
        {3, 1, true, "مراجعة سريعة للدروس السابقة."},
        {7, 3, false, "Some punctuation rules."},
        {7, 3, true, "تمرين إضافي أخير للحرف (ة)."},
        {15, 1, false, "Now the pedagogical aids have disappeared."},
        {15, 1, true,
         "تختفي وسائل العون التعليمي من هذا التمرين. وإنك تجد نفسك في ظروف عمل حقيقي."},
    };
    for (const Opening& opening : openings) {
        EXPECT_EQ(FirstParagraph(ExerciseNote(opening.lesson, opening.exercise, opening.arabic)),
                  opening.paragraph)
            << opening.lesson << "." << opening.exercise;
    }
}

TEST(Notes, TheStudentIsToldWhereSpeedBeginsAndWhereTheKeyboardGoes)
{
    EXPECT_NE(Shown(ExerciseNote(3, 5, false))
                  .find("Your typing speed begins to enter into your score in this exercise."),
              std::string::npos);
    EXPECT_NE(Shown(ExerciseNote(6, 5, false)).find("Hey, where did the keyboard go?"),
              std::string::npos);
}

TEST(Notes, SpecialExercisesAreExplainedInTheLanguageOfTheirDrill)
{
    const std::string anagram =
        "Here yourself choose the keys that you would particularly like to work on. To do that you "
        "simply have to type them when KeyFluent asks you. You are limited to 10 keys.";
    const std::string freeText =
        "You are free to type any text that suit you, so that you can check your typing speed on "
        "texts longer than those proposed here, and continue exercising yourself on new texts. "
        "KeyFluent measure your speed as usual, but cannot detect your mistakes(of course...).";
    const std::string arabicAnagram =
        "حدد المفاتيح التي ترغب التدرب عليها بشكل خاص، ولذلك ما عليك سوى النقر عليها عندما يطلب (كي "
        "فلونت) ذلك."
        "\r"
        "عشرة (10) مفاتيح كحد أقصى.";
    for (const int lesson : {8, 12, 13, 14, 15}) {
        const int exercise = lesson == 8 ? 5 : 3;
        EXPECT_EQ(Shown(ExerciseNote(lesson, exercise, false)), anagram) << lesson;
    }
    for (const int lesson : {12, 13, 14, 15}) {
        EXPECT_EQ(Shown(ExerciseNote(lesson, 4, false)), freeText) << lesson;
    }
    for (const int lesson : {9, 10, 11, 12, 13, 14, 15}) {
        EXPECT_EQ(Shown(ExerciseNote(lesson, 5, false)), arabicAnagram) << lesson;
    }
}

TEST(Notes, TheAnagramOfLessonTenHasTwoBlanksInOnePlace)
{
    EXPECT_EQ(Shown(ExerciseNote(10, 4, false)),
              "Here yourself choose the keys that you would particularly  like to work on. To do "
              "that you simply have to type them when KeyFluent asks you. You are limited to 10 "
              "keys.");
}

TEST(Notes, AnExerciseOutsideTheCourseHasNoNote)
{
    for (const bool arabic : {false, true}) {
        for (const auto& [lesson, exercise] :
             {std::pair(1, 6), std::pair(1, 0), std::pair(0, 1), std::pair(16, 1), std::pair(-1, 1),
              std::pair(15, -1), std::pair(15, 255)}) {
            EXPECT_EQ(ExerciseNote(lesson, exercise, arabic), u"") << lesson << "." << exercise;
        }
    }
}

TEST(Notes, HelpPagesAreHeadedByNumberAndTitle)
{
    const std::string titles[] = {"المبادئ",
                                  "طريقة الاستعمال",
                                  "قائمة أوامر الدروس",
                                  "اختيار التمرين",
                                  "تنفيذ التمرين (أ)",
                                  "تنفيذ التمرين (ب)",
                                  "استراحة / متابعة",
                                  "توقيف",
                                  "التالي/السابق",
                                  "تكرار",
                                  "إيقاف"};
    for (int page = 1; page <= helpPageCount; ++page) {
        EXPECT_EQ(Shown(HelpTitle(page)), std::to_string(page) + " - " + titles[page - 1]);
        EXPECT_TRUE(HasArabic(HelpText(page))) << page;
        EXPECT_EQ(HelpText(page).find(u'\n'), std::u16string_view::npos) << page;
    }
}

TEST(Notes, HelpPagesLeaveRoomAboveForTheirPictures)
{
    for (const int page : {7, 9, 10}) {
        EXPECT_EQ(HelpText(page).substr(0, 2), u"\r\r") << page;
    }
    EXPECT_NE(HelpText(5).find(u"الرمز ڑ يعني يجب عليك ضغط مفتاح الإدخال"),
              std::u16string_view::npos);
}

TEST(Notes, RecommendationPagesAreHeadedByNumberAndTitle)
{
    const std::string titles[] = {"طريقة العمل",  "المفاتيح والأصابع", "وضعية الأصابع",
                                  "نقر المفاتيح", "وضعية الجلوس",      "التمرين الذهني"};
    for (int page = 1; page <= recommendationPageCount; ++page) {
        EXPECT_EQ(Shown(RecommendationTitle(page)),
                  std::to_string(page) + " - " + titles[page - 1]);
        EXPECT_TRUE(HasArabic(RecommendationText(page))) << page;
        EXPECT_EQ(RecommendationText(page).find(u'\n'), std::u16string_view::npos) << page;
    }
}

TEST(Notes, PagesThatDoNotExistAreEmpty)
{
    for (const int page : {-1, 0, 12, 255}) {
        EXPECT_EQ(HelpText(page), u"") << page;
        EXPECT_EQ(HelpTitle(page), u"") << page;
    }
    for (const int page : {-1, 0, 7, 255}) {
        EXPECT_EQ(RecommendationText(page), u"") << page;
        EXPECT_EQ(RecommendationTitle(page), u"") << page;
    }
}

} // namespace
} // namespace keyfluent::course
