// The notes as texts: the rows that are fixed word for word, their size and their paragraphs, and
// that none repeats another.
#include "CourseFixtures.h"

#include "context/Text.h"
#include "course/Lessons.h"
#include "course/Notes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace keyfluent::course::fixtures
{
namespace
{

std::u16string_view NoteAt(const Place& place)
{
    return ExerciseNote(place.lesson, place.exercise, place.arabic);
}

std::vector<std::u16string_view> Paragraphs(std::u16string_view text)
{
    std::vector<std::u16string_view> paragraphs;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(u'\r', at), text.size());
        paragraphs.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return paragraphs;
}

struct Telling {
    int lesson;
    int exercise;
    std::u16string_view english;
    std::u16string_view arabic;
};

TEST(NoteTexts, TheTellingRowsStandAsFirstParagraphs)
{
    const Telling rows[] = {
        {1, 1, u"Place your Fingers on the Guide Row.",
         u"ضع يديك على صف الاستراحة، اليد اليمنى على المفاتيح ك م ن ت، اليد اليسرى على المفاتيح "
         u"ش س ي ب،"},
        {2, 4,
         u"Words are going to appear one by one: first imagine striking each letter, with the help "
         u"of the keyboard on the screen, then type the word at one go. Strike the keys with as "
         u"regular a rhythm as possible without getting bogged down with keys.",
         u"ستظهر الكلمات الواحدة تلو الأخرى، أمعن النظر في البداية بطريقة طبع كل حرف وذلك "
         u"بالاستعانة بجدول المفاتيح المرسوم على الشاشة، وبعد ذلك عليك طبع الكلمة دفعة واحدة "
         u"وبوتيرة سريعة ومنتظمة."},
        {3, 1, u"A short review of the preceding exercises.", u"مراجعة سريعة للدروس السابقة."},
        {7, 3, u"Some punctuation rules.", u"تمرين إضافي أخير للحرف (ة)."},
        {15, 1, u"Now the pedagogical aids have disappeared.",
         u"تختفي وسائل العون التعليمي من هذا التمرين. وإنك تجد نفسك في ظروف عمل حقيقي."},
    };
    for (const Telling& row : rows) {
        for (const bool arabic : {false, true}) {
            const Place place{arabic, row.lesson, row.exercise};
            EXPECT_EQ(context::ToUtf8(Paragraphs(NoteAt(place)).front()),
                      context::ToUtf8(arabic ? row.arabic : row.english))
                << Name(place);
        }
    }
}

TEST(NoteTexts, TheArabicDhalIsToldOnBothKeyboards)
{
    const std::u16string_view note = NoteAt({true, 5, 1});
    EXPECT_NE(note.find(u"تحت صف الارتكاز في لوحة مفاتيح الماكنتوش"), std::u16string_view::npos);
    EXPECT_NE(note.find(u"فوق الصف العلوي في لوحة مفاتيح النوافذ"), std::u16string_view::npos);
}

constexpr std::u16string_view anagram =
    u"Here yourself choose the keys that you would particularly like to work on. To do that you "
    u"simply have to type them when KeyFluent asks you. You are limited to 10 keys.";
// Meant: two blanks before "like".
constexpr std::u16string_view anagramOfLesson10 =
    u"Here yourself choose the keys that you would particularly  like to work on. To do that you "
    u"simply have to type them when KeyFluent asks you. You are limited to 10 keys.";
constexpr std::u16string_view freeText =
    u"You are free to type any text that suit you, so that you can check your typing speed on "
    u"texts longer than those proposed here, and continue exercising yourself on new texts. "
    u"KeyFluent measure your speed as usual, but cannot detect your mistakes(of course...).";
constexpr std::u16string_view arabicAnagram =
    u"حدد المفاتيح التي ترغب التدرب عليها بشكل خاص، ولذلك ما عليك سوى النقر عليها عندما يطلب (كي "
    u"فلونت) ذلك.\rعشرة (10) مفاتيح كحد أقصى.";

TEST(NoteTexts, TheSeventeenSpecialNotesStandWordForWord)
{
    const std::pair<std::u16string_view, std::vector<std::pair<int, int>>> notes[] = {
        {anagram, {{8, 5}, {12, 3}, {13, 3}, {14, 3}, {15, 3}}},
        {anagramOfLesson10, {{10, 4}}},
        {freeText, {{12, 4}, {13, 4}, {14, 4}, {15, 4}}},
        {arabicAnagram, {{9, 5}, {10, 5}, {11, 5}, {12, 5}, {13, 5}, {14, 5}, {15, 5}}},
    };
    int special = 0;
    for (const auto& [text, places] : notes) {
        for (const auto& [lesson, exercise] : places) {
            EXPECT_TRUE(IsSpecialExercise(lesson, exercise, false));
            EXPECT_EQ(context::ToUtf8(ExerciseNote(lesson, exercise, false)), context::ToUtf8(text))
                << lesson << "." << exercise;
            ++special;
        }
    }
    EXPECT_EQ(special, 17);
}

TEST(NoteTexts, EveryPlaceHasANoteThatTheDialogHasRoomFor)
{
    EXPECT_EQ(AllPlaces().size(), 150u);
    for (const Place& place : AllPlaces()) {
        const std::u16string_view note = NoteAt(place);
        EXPECT_GE(note.size(), 120u) << Name(place);
        EXPECT_LE(note.size(), 420u) << Name(place);
        EXPECT_LE(Paragraphs(note).size(), 4u) << Name(place);
    }
}

// One CR between paragraphs, none at the ends, no line feed, no blank where a line breaks.
void ExpectCleanParagraphs(std::u16string_view text, const std::string& where)
{
    EXPECT_EQ(text.find(u'\n'), std::u16string_view::npos) << where;
    EXPECT_EQ(text.find(u'\t'), std::u16string_view::npos) << where;
    for (const std::u16string_view paragraph : Paragraphs(text)) {
        EXPECT_FALSE(paragraph.empty()) << where;
        EXPECT_EQ(paragraph, context::TrimBlanks(paragraph)) << where;
    }
}

TEST(NoteTexts, ParagraphsOfNotesAreDividedByASingleReturn)
{
    for (const Place& place : AllPlaces()) {
        ExpectCleanParagraphs(NoteAt(place), Name(place));
    }
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        ExpectCleanParagraphs(LessonNote(lesson), "lesson " + std::to_string(lesson));
    }
}

TEST(NoteTexts, EveryParagraphEndsAsASentenceDoes)
{
    for (const Place& place : TextPlaces()) {
        const std::vector<std::u16string_view> paragraphs = Paragraphs(NoteAt(place));
        for (std::size_t i = 0; i < paragraphs.size(); ++i) {
            // Meant: the first paragraph of the first Arabic note ends in a comma.
            const bool isGiven = place == Place{true, 1, 1} && i == 0;
            EXPECT_TRUE(isGiven || std::u16string_view(u".?!؟").find(paragraphs[i].back()) !=
                                       std::u16string_view::npos)
                << Name(place) << ": " << context::ToUtf8(paragraphs[i]);
        }
    }
}

TEST(NoteTexts, LessonNotesBeginAsTheyShould)
{
    const std::pair<int, std::u16string_view> beginnings[] = {
        {1, u"سيقوم هذا الدرس بتمرينك على وضع أصابعك بشكل سليم على الصف الأوسط من لوحة"},
        {4, u"تمارين للخنصرين والبنصرين:"},
        {7, u"سنتعرض في هذا الدرس إلى تمرين الأصابع على طباعة الأحرف التالية: (ة)، (أ)، و(ء)."},
        {12, u"يتابع هذا الدرس تدريبك على استخدام لوحة المفاتيح بشكل سليم عن طريق تدريبك على"},
        {15, u"يعطي هذا الدرس عددا من التمارين التي تضم النصوص التي يجب عليك طباعتها."},
    };
    for (const auto& [lesson, beginning] : beginnings) {
        EXPECT_TRUE(LessonNote(lesson).starts_with(beginning)) << lesson;
    }
    EXPECT_NE(LessonNote(1).find(u"ليس للسرعة أي أثر في علامات هذه التمارين"),
              std::u16string_view::npos);
    EXPECT_NE(LessonNote(15).find(u"تختفي وسائل العون كلها ما عدا عداد السرعة"),
              std::u16string_view::npos);
    EXPECT_NE(LessonNote(15).find(u"الفأرة"), std::u16string_view::npos);
}

TEST(NoteTexts, LessonNotesAreInArabicAndOfOneSize)
{
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        const std::u16string_view note = LessonNote(lesson);
        EXPECT_GE(note.size(), 300u) << lesson;
        EXPECT_LE(note.size(), 560u) << lesson;
        EXPECT_TRUE(IsArabicLetter(note.front())) << lesson;
    }
}

// Sentences of four words or more, with the signs at their ends cut off.
std::vector<std::u16string> SentencesIn(std::u16string_view text)
{
    std::vector<std::u16string> sentences(1);
    for (const char16_t character : text) {
        if (std::u16string_view(u".!?؟\r").find(character) != std::u16string_view::npos) {
            sentences.emplace_back();
        } else {
            sentences.back() += character;
        }
    }
    std::erase_if(sentences,
                  [](const std::u16string& sentence) { return WordsIn(sentence).size() < 4; });
    for (std::u16string& sentence : sentences) {
        sentence = std::u16string(context::TrimBlanks(sentence));
    }
    return sentences;
}

TEST(NoteTexts, NoSentenceStandsInTwoNotesOrPages)
{
    std::vector<std::pair<std::string, std::u16string_view>> texts;
    for (const Place& place : TextPlaces()) {
        texts.emplace_back(Name(place), NoteAt(place));
    }
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        texts.emplace_back("lesson " + std::to_string(lesson), LessonNote(lesson));
    }
    for (int page = 1; page <= helpPageCount; ++page) {
        texts.emplace_back("help page " + std::to_string(page), HelpText(page));
    }
    for (int page = 1; page <= recommendationPageCount; ++page) {
        texts.emplace_back("recommendation " + std::to_string(page), RecommendationText(page));
    }
    std::map<std::u16string, std::string> seen;
    for (const auto& [where, text] : texts) {
        for (const std::u16string& sentence : SentencesIn(text)) {
            const auto [first, isNew] = seen.emplace(sentence, where);
            EXPECT_TRUE(isNew) << context::ToUtf8(sentence) << " in " << first->second << " and "
                               << where;
        }
    }
}

} // namespace
} // namespace keyfluent::course::fixtures
