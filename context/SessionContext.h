// The application-wide state. One instance serves the whole process; every window reads and writes
// its fields directly, so a field's comment says who may change it and what its values mean.
#pragma once

#include "context/Boolean16.h"
#include "context/StudentTable.h"

#include <cstdint>
#include <string>

namespace keyfluent::context
{

struct SessionContext {
    // Folder of the program, without a separator at its end; every file path starts from it.
    std::u16string appFolder;

    // The signed-in student; empty while nobody is signed in.
    std::u16string studentName;
    // Written at each change of the name and never read.
    std::u16string studentNameCopy;

    // 192 is the Windows keyboard, 0 the Macintosh keyboard.
    std::int32_t keyboardKind = 0;

    std::uint8_t exerciseNo = 0; // 1 to 5
    std::uint8_t lessonNo = 0;   // 1 to 15
    // The lesson last open on each keyboard, to return to when the keyboard changes.
    std::uint8_t lastLessonWin = 0;
    std::uint8_t lastLessonMac = 0;
    // The highest lesson open on each keyboard, 1 to 15 (0 from an empty student file).
    std::uint8_t reachedLessonMac = 0;
    std::uint8_t reachedLessonWin = 0;

    Boolean16 arabicInterface;
    Boolean16 arabicExercise;
    // True once an exercise has been opened since the last sign-in.
    Boolean16 sessionRun;

    // 24 bits, red in the lowest byte.
    std::int32_t trueKeyColour = 0;
    std::int32_t errKeyColour = 0;
    // Point size of the exercise text; below 1 the design's size is shown.
    std::int32_t fontSize = 0;
    Boolean16 colouredHands;

    // Exercises stopped since the start of the program, whoever stopped them.
    std::int32_t stopCount = 0;
    std::u16string lessonNoteText;

    // The five aids in force.
    Boolean16 optKeyCaps;
    Boolean16 optHands;
    Boolean16 optCounter;
    Boolean16 optClock;
    Boolean16 optSound;

    // Results of the last evaluated exercise.
    std::int32_t exerciseMark = 0;
    std::int32_t accuracyMark = 0;
    std::int16_t speedBonus = 0;

    std::uint8_t recommendPage = 0; // 1 to 6
    std::uint8_t helpPage = 0;      // 1 to 11
    Boolean16 helpMode;             // true: the viewer shows recommendations, false: help

    // The last answer on leaving was No; Yes leaves it as it stands.
    Boolean16 leaveNoSave;
    // The last answer on leaving was Yes or No, not Cancel.
    Boolean16 leaveConfirmed;
    // False when an exercise opens, true once it has ended; written and never read.
    Boolean16 inExercise;

    // At most one of the three is true.
    Boolean16 arabicAnagram;
    Boolean16 englishAnagram;
    Boolean16 freeText;
    // The letters that the student chose for an anagram.
    std::u16string freeTextChars;
    Boolean16 anagramLanguage; // true: Arabic letters

    Boolean16 loggedOut; // a log-out has happened since the start
    Boolean16 quitting;  // the leave under way ends the program

    Boolean16 courseDoneArabicMac;
    Boolean16 courseDoneEnglishMac;
    Boolean16 courseDoneArabicWin;
    Boolean16 courseDoneEnglishWin;
    // 0 none, else 1 (the best), 4, 3, 2.
    std::uint8_t gradeArabicMac = 0;
    std::uint8_t gradeEnglishMac = 0;
    std::uint8_t gradeArabicWin = 0;
    std::uint8_t gradeEnglishWin = 0;

    // Held for the whole process and overwritten at each sign-in.
    StudentTable studentTable;

    // Meant: never assigned. Several texts are built around it and it contributes nothing.
    std::u16string blankText;
};

} // namespace keyfluent::context
