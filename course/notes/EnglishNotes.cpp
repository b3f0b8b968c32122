// What the English course says before each exercise: the new keys and their fingers, how to sit and
// strike, when speed counts, which aids are there and what becomes of an error. All of it follows
// the finger table, the aids and the marks of the place; a change there is a change here.
//
// Steady forms, so that tests can compare a note with those tables:
// - "E (left middle finger" or "F and G belong to the left index finger": the keys in front, by the
//   capital, the digit or the English name, then the finger; ", with the left little finger on
//   Shift" or ", on the right Shift" follows where Shift is held.
// - "the drawn hands are gone", "the clock is shown", "the key caps are your choice": an aid that
//   is off, on, or for the student to turn on.
// - "speed bonus" stands in the note of every exercise that carries one, and in no other.
// - "Backspace" stands in the note of every exercise that lets errors pass and checks them later,
//   and in no other.
#include "course/notes/NoteTables.h"

namespace keyfluent::course
{
namespace
{

using Note = std::u16string_view;

constexpr Note anagram =
    u"Here yourself choose the keys that you would particularly like to work on. To do that you "
    u"simply have to type them when KeyFluent asks you. You are limited to 10 keys.";

// Meant: the fourth exercise of lesson 10 has two blanks before "like".
constexpr Note anagramOfLesson10 =
    u"Here yourself choose the keys that you would particularly  like to work on. To do that you "
    u"simply have to type them when KeyFluent asks you. You are limited to 10 keys.";

constexpr Note freeText =
    u"You are free to type any text that suit you, so that you can check your typing speed on "
    u"texts longer than those proposed here, and continue exercising yourself on new texts. "
    u"KeyFluent measure your speed as usual, but cannot detect your mistakes(of course...).";

// In Arabic like the drill, though it stands in the English course.
constexpr Note arabicAnagram =
    u"حدد المفاتيح التي ترغب التدرب عليها بشكل خاص، ولذلك ما عليك سوى النقر عليها عندما يطلب "
    u"(كي فلونت) ذلك.\r"
    u"عشرة (10) مفاتيح كحد أقصى.";

} // namespace

// clang-format off
const ExerciseNoteTable englishExerciseNotes = {{
    // Lesson 1: Guide row
    {{
        u"Place your Fingers on the Guide Row.\r"
        u"A (left little finger), S (left ring finger), D (left middle finger), F (left index "
        u"finger); J (right index finger), K (right middle finger), L (right ring finger), "
        u"semicolon (right little finger); space bar (right thumb).\r"
        u"The key caps and the drawn hands are shown to guide you. Sit upright and take your "
        u"time: speed does not count in this lesson.",

        u"Two new keys: E (left middle finger, up from D) and I (right middle finger, up from "
        u"K).\r"
        u"The sign ڑ at the end of a line stands for Return (right little finger, over from the "
        u"semicolon).\r"
        u"Reach up, strike, and come straight home. The other fingers stay on the guide row and "
        u"keep its place for the one that travels.",

        u"No new key: the ones you have learned now form words.\r"
        u"Read a whole word before you touch its first key, then type it and the space after "
        u"it. A wrong key is refused at once: find the right one calmly and go on.\r"
        u"Let your shoulders hang loose while you type.",

        u"G (left index finger, over from F) and H (right index finger, over from J) fill the "
        u"gap in the middle of the guide row.\r"
        u"F and J usually carry a small ridge. It tells you, without a glance, that you are "
        u"home again.\r"
        u"Keep your wrists straight: only the index fingers move sideways.",

        u"Your first full lines, made of the whole guide row with E and I.\r"
        u"The drawn hands are gone here. The key caps are shown as before, but try to keep your "
        u"eyes on the model line.\r"
        u"Type at one steady pace, like slow footsteps, and breathe out whenever you press "
        u"Return.",
    }},
    // Lesson 2: Top row
    {{
        u"Up to the top row: R and T (left index finger, up from F), U and Y (right index "
        u"finger, up from J).\r"
        u"The drawn hands are shown again. Watch which finger they mark before you strike, and "
        u"let that finger alone leave the guide row.\r"
        u"Keep your elbows close to your sides.",

        u"No new key: R, T, U and Y meet the guide row in words.\r"
        u"The list is long, so spare your strength: a key needs only a tap, however hard a word "
        u"may look.\r"
        u"Do not stop at every space. Let one word follow the other as if they hung on a string.",

        u"The outer fingers climb too: Q (left little finger, up from A), W (left ring finger, "
        u"up from S), O (right ring finger, up from L) and P (right little finger, up from the "
        u"semicolon).\r"
        u"You type whole lines now. Where a long line goes on in the next row there is no "
        u"Return: simply keep typing.\r"
        u"Stretch the finger, not the arm.",

        u"Words are going to appear one by one: first imagine striking each letter, with the "
        u"help of the keyboard on the screen, then type the word at one go. Strike the keys "
        u"with as regular a rhythm as possible without getting bogged down with keys.\r"
        u"The guide row and the top row work together here.\r"
        u"Rest both feet flat on the floor.",

        u"Lines from both rows you know, and the drawn hands are gone.\r"
        u"A foretaste of what is to come: this exercise carries a speed bonus. Below 100 "
        u"seconds points are added to your mark, above 100 seconds points are taken away.\r"
        u"Do not chase it yet. An even rhythm is faster than a hurried one, and errors lower "
        u"the mark itself.",
    }},
    // Lesson 3: Top row
    {{
        u"A short review of the preceding exercises.\r"
        u"Words from the guide row and the top row come one at a time. The drawn hands are "
        u"shown again: use them for a word that trips you, then leave them alone.\r"
        u"Sit tall, with your back against the chair.",

        u"Lines of words that use both upper rows and every finger.\r"
        u"Look ahead: while your fingers finish one word, your eyes already read the next.\r"
        u"Speed does not count here, so choose a pace at which you could go on for an hour, and "
        u"hold it to the end.",

        u"F, G, R and T belong to the left index finger, and this exercise is mostly its work.\r"
        u"A finger with four keys must find home quickly. Feel for the ridge on F after each "
        u"reach, without looking down.\r"
        u"Hold your hands low and level, as if a coin lay on the back of each.",

        u"Now the other side: H, J, U and Y belong to the right index finger.\r"
        u"The way to Y is the longest of the four. Let the hand stay where it is and send out "
        u"only the finger.\r"
        u"If a line goes badly, slow down for the next one instead of pressing harder.",

        u"Your typing speed begins to enter into your score in this exercise.\r"
        u"The speed bonus compares your time with 100 seconds. The drawn hands are gone; the "
        u"counter and the clock are shown.\r"
        u"Wrong keys are typed through and counted. Each row of text is checked at its end: a "
        u"faulty one is wiped, and you type it again. Every Backspace costs five errors.\r"
        u"Stay with your own rhythm.",
    }},
    // Lesson 4: Little and ring fingers
    {{
        u"A and Q belong to the left little finger; P and the semicolon belong to the right "
        u"little finger. These words give both fingers plenty to do.\r"
        u"The drawn hands are shown again, and the counter and the clock are your choice. A "
        u"wrong key is refused at once, as it was earlier.\r"
        u"Little fingers like to lie flat: keep them curved.",

        u"Still the little fingers, now in whole lines, with A (left little finger) as the "
        u"busiest key.\r"
        u"Strike it as briefly as any other key. A finger that lingers drags the whole hand out "
        u"of place.\r"
        u"Shake out your hands between two lines whenever they feel tight.",

        u"S and W belong to the left ring finger; L and O belong to the right ring finger.\r"
        u"Ring fingers seldom move alone in daily life, so be patient with them. Lift the "
        u"finger a little before it travels, and its neighbors will not be pulled along.\r"
        u"Speed does not count yet in this exercise.",

        u"Ring fingers and little fingers take turns in these lines.\r"
        u"Before you start, tap each of the four fingers on its home key: A, S, L and the "
        u"semicolon.\r"
        u"Give each stroke the same weight. Your strong fingers should sound no louder than "
        u"your weak ones.",

        u"Whole lines for all the fingers, the weak ones above all; the drawn hands are gone.\r"
        u"A speed bonus applies again: a time below 100 seconds raises your mark, a longer one "
        u"lowers it.\r"
        u"Turn on the clock if you would like to see your time. Drop your shoulders, read "
        u"ahead, and let the line flow.",
    }},
    // Lesson 5: Bottom row
    {{
        u"A look back before the last row of letters: words from the guide row and the top row.\r"
        u"The drawn hands are shown once more. Test yourself: guess the finger first, then see "
        u"whether the picture agrees.\r"
        u"Check how you sit. Your forearms should be about level with the keyboard.",

        u"Down to the bottom row: C (left middle finger, down from D).\r"
        u"The finger folds inward and springs back. Your palm neither drops nor leans on the "
        u"table.\r"
        u"Give groups and words the same beat, and let the space bar be part of it.",

        u"N (right index finger, down from J) and V (left index finger, down from F) are new; C "
        u"returns to keep them company.\r"
        u"A reach downward is shorter than it feels, so do not push past the key.\r"
        u"Look at the model and not at your fingers: they learn best unwatched.",

        u"The bottom row in whole lines of words, with C, N and V among keys you know well.\r"
        u"In this lesson let frequent sequences such as ion, an and ing become one quick "
        u"movement each.\r"
        u"The speed bonus counts from the first key you press, so settle your hands before you "
        u"begin.",

        u"All three rows together, with a speed bonus, and the drawn hands are gone.\r"
        u"Once more your errors pass and are counted. A row of text is checked when it is full; "
        u"if anything is wrong, it is wiped and you type it again. Going back with Backspace "
        u"costs five errors each time.\r"
        u"So be sure of the key before you strike. Calm hands rarely have to repeat a row.",
    }},
    // Lesson 6: Bottom row
    {{
        u"A review of C, N and V before the last four letters arrive.\r"
        u"The drawn hands are shown again, and a wrong key is refused at once.\r"
        u"Return home after every reach downward. It is the way back that most often goes "
        u"astray.\r"
        u"Speed does not count here.",

        u"The last letters: B (left index finger, down from F), M (right index finger, down "
        u"from J), X (left ring finger, down from S) and Z (left little finger, down from A).\r"
        u"B lies farthest away. Let the whole finger stretch to it and the hand stay quiet.\r"
        u"The alphabet is now complete. Well done, and no hurry.",

        u"Lines of words in which M (right index finger, down from J) appears again and again.\r"
        u"Say each word silently as you type it. Fingers follow the voice.\r"
        u"If your neck grows stiff, raise the screen or your head, but do not bend over the "
        u"keys.",

        u"B and V belong to the left index finger and are easily mixed up: V lies nearer, B "
        u"farther toward the middle. Later Z (left little finger, down from A) joins them.\r"
        u"A speed bonus applies here. The surest way to it is a line without a single error.\r"
        u"Keep the thumb close to the space bar.",

        u"Hey, where did the keyboard go?\r"
        u"The key caps and the drawn hands are gone; the counter and the clock are shown.\r"
        u"Close your eyes for a moment and picture the three rows: you know them. A row of text "
        u"with errors is wiped at its end and typed again, and each Backspace costs five "
        u"errors.\r"
        u"The speed bonus counts here. Trust your fingers.",
    }},
    // Lesson 7: Special characters
    {{
        u"Words that use the bottom row, to warm up.\r"
        u"You have earned some help: the key caps, the drawn hands, the counter and the clock "
        u"are shown. Wrong keys are refused at once.\r"
        u"See how little you need the picture now. Look at it only when you are stuck, and sit "
        u"so that your eyes are straight before the text.",

        u"New: the comma (right middle finger, down from K), the period (right ring finger, "
        u"down from L) and the colon (right little finger, with the left little finger on "
        u"Shift).\r"
        u"For the colon press Shift first, then strike the semicolon key, then let go of both.\r"
        u"One thing after the other: haste only blurs the order.",

        u"Some punctuation rules.\r"
        u"A comma, a period, a colon or a semicolon stands right after the word, without a "
        u"space before it. A space follows the comma. After a period some typists put one space "
        u"and some two: do as the model does.\r"
        u"Let the marks keep the beat of the letters.",

        u"Capitals. For a letter of the left hand the right little finger is on Shift, for a "
        u"letter of the right hand the left little finger is on Shift.\r"
        u"Hold Shift, strike, release. Only that little finger leaves its place; the rest of "
        u"its hand stays over the guide row.\r"
        u"The counter and the clock are your choice again.",

        u"Whole sentences with capitals and punctuation, and with a speed bonus.\r"
        u"The drawn hands are gone, and the key caps are your choice: try first without them.\r"
        u"Read to the end of a phrase before you type it. A steady flow over the capitals gains "
        u"more time than a dash through the easy words.",
    }},
    // Lesson 8: Punctuation marks
    {{
        u"New: the question mark at the end of the bottom row (right little finger, with the "
        u"left little finger on Shift) and the closing parenthesis on the 0 key (right middle "
        u"finger, with the left little finger on Shift).\r"
        u"The apostrophe is the key after the semicolon: reach to it from there. The drawn "
        u"hands stay at rest for it, so rely on the lit key.\r"
        u"Take your time for these reaches: speed does not count.",

        u"Short questions, names and contractions, in lines.\r"
        u"The counter and the clock are shown. Let the time run without minding it: speed does "
        u"not count for this mark.\r"
        u"A question mark needs both hands at the same moment. Prepare Shift while the last "
        u"letter of the word is still being struck.",

        u"New: the hyphen (right little finger, up from the semicolon) and the slash (right "
        u"ring finger on the Windows keyboard, right little finger on the Macintosh keyboard).\r"
        u"This time the counter and the clock are your choice.\r"
        u"The hyphen is a long reach. Let the hand open like a fan and close again.",

        u"Hyphens and slashes inside whole lines, as one meets them in letters and lists.\r"
        u"This exercise weighs much: its standard mark is 300, and accuracy alone decides. The "
        u"counter and the clock are shown to keep you company.\r"
        u"Rest your eyes on the far wall for a few seconds before you begin.",

        anagram,
    }},
    // Lesson 9: Signs
    {{
        u"A review of the punctuation you have learned, in running text.\r"
        u"The counter and the clock are your choice, and the speed bonus is back: you gain "
        u"below 100 seconds and lose above.\r"
        u"Type a mark together with its word, as one movement, and keep your breathing slow.",

        u"New: the exclamation point (right little finger, on the right Shift). It sits above 1 "
        u"(left little finger, up from A).\r"
        u"Hold Shift on the right until the key is down, or a plain 1 appears and is refused.\r"
        u"Bring both little fingers home before you type on. In this drill speed does not count.",

        u"The exclamation point in lively lines.\r"
        u"Lively is for the words, not for the hands. Strike its key no harder than a comma.\r"
        u"If you lose the rhythm at a mark, pause for a heartbeat after it, then continue. Time "
        u"neither adds points here nor takes any away.",

        u"Sentences with all the marks so far and with a speed bonus.\r"
        u"The counter and the clock are shown, so you can follow your accuracy and your speed. "
        u"Do so at the end of a line, not in the middle of a word.\r"
        u"Lean back a little: a stiff back makes stiff fingers.",

        arabicAnagram,
    }},
    // Lesson 10: Signs
    {{
        u"A review with dashes, questions and exclamations, in lines that read like talk.\r"
        u"The speed bonus applies, on a standard mark of 200, and the counter and the clock are "
        u"shown.\r"
        u"The dash that opens a line has a space after it; a hyphen inside a word has none. Type "
        u"both with the same key and the same calm.",

        u"New: the opening parenthesis on the 9 key (right ring finger, with the left little "
        u"finger on Shift).\r"
        u"You know its partner, the closing parenthesis on the 0 key (right middle finger, with "
        u"the left little finger on Shift).\r"
        u"The counter and the clock are your choice, and time plays no part. Let your hands "
        u"move apart and together like an accordion.",

        u"Remarks in parentheses, in whole sentences.\r"
        u"Inside a pair of parentheses no space stands next to either sign, and Shift is needed "
        u"for both.\r"
        u"The counter and the clock are shown, and a speed bonus applies. Keep Shift pressed a "
        u"little longer than you think you must: half a press spoils the sign.",

        anagramOfLesson10,
        arabicAnagram,
    }},
    // Lesson 11: Numbers
    {{
        u"The first digits: 1 and 2 (left little finger, up from A), 3 (left ring finger, up "
        u"from S) and 0 (right ring finger, up from L).\r"
        u"Pass over the top row on the way and come home by the same road. The letters in each "
        u"group mark the path.\r"
        u"The counter and the clock are your choice. Sit close enough that you need not lean "
        u"forward.",

        u"The other digits: 4 (left middle finger), 5 and 6 (left index finger), 7 and 8 (right "
        u"index finger), 9 (right middle finger). Each is reached by going up over the top row.\r"
        u"Numbers cannot be guessed from their sense. Read every digit, and speak it in your "
        u"mind.\r"
        u"Speed does not count for drills such as this, so take the time you need.",

        u"The equals sign (right little finger), the plus sign (right little finger, with the "
        u"left little finger on Shift) and the asterisk on the 8 key (left little finger, on "
        u"the left Shift).\r"
        u"Only one key lies between the equals sign and 0.\r"
        u"Sums look playful, but keep them tidy: one stroke, one sign.",

        u"Letters and numbers side by side, as on an envelope. The key caps and the drawn hands "
        u"are shown.\r"
        u"Errors pass and are counted; the row of text is checked at its end, wiped if it "
        u"differs, and typed again. Each Backspace stands for five errors.\r"
        u"A speed bonus applies: slow down for digits, make up for it in the words, and keep "
        u"your head still.",

        arabicAnagram,
    }},
    // Lesson 12: Sets
    {{
        u"A tour of the whole keyboard, word by word.\r"
        u"Your errors pass, but the check comes at the end of each word. A wrong word is wiped "
        u"and you type it again; Backspace costs five errors.\r"
        u"The drawn hands are your choice now. A speed bonus applies: short words want one "
        u"single burst, then a loose hand.",

        u"The same tour in whole lines, row by row over the keyboard.\r"
        u"The check waits until the end of a row of text. One wrong letter wipes all of it, so "
        u"do not rush the last words; a Backspace costs five errors.\r"
        u"The speed bonus counts again. Turn on the drawn hands only if a finger has grown "
        u"uncertain. Let your wrists float above the table.",

        anagram,
        freeText,
        arabicAnagram,
    }},
    // Lesson 13: Shift key
    {{
        u"Capitals of the right hand: Shift is always held by the hand that does not strike.\r"
        u"Rows with errors are wiped at their end and typed again; each Backspace costs five "
        u"errors.\r"
        u"A speed bonus applies to a standard mark of 300. The drawn hands are your choice. "
        u"Think of Shift as the upbeat in music: it comes just before the note.",

        u"First the capitals of the left hand, then every letter has its turn.\r"
        u"The standard mark is 500, and there is a speed bonus: fewer than 100 seconds help "
        u"your mark, more than 100 harm it.\r"
        u"A faulty row is wiped and typed again; Backspace costs five errors. Loosen your jaw "
        u"and forehead: tension there reaches the fingers.",

        anagram,
        freeText,
        arabicAnagram,
    }},
    // Lesson 14: Revision
    {{
        u"Frequent pairs of letters: ou, er, rt, oi. Let each pair fall as one movement.\r"
        u"Errors are typed through; at its end a row that differs is wiped and typed again. "
        u"Five errors is still the price of a Backspace.\r"
        u"A speed bonus applies, and the drawn hands are your choice, though by now your own "
        u"hands know better. Start each line with a quiet breath.",

        u"Mental practice: shut your eyes and type the first line in your mind. Time starts "
        u"only with your first key. Later, let your mind stay one word ahead of your fingers.\r"
        u"The drawn hands are gone and the key caps are your choice.\r"
        u"Each row is checked at its end, wiped if need be, and typed again; Backspace costs "
        u"five errors. The speed bonus counts.",

        anagram,
        freeText,
        arabicAnagram,
    }},
    // Lesson 15: End and mouse
    {{
        u"Now the pedagogical aids have disappeared.\r"
        u"The key caps and the drawn hands are gone; only the counter and the clock are shown.\r"
        u"Type the whole passage. Errors pass and count, and Backspace costs five. At the end "
        u"your mark and the speed bonus are set; if anything is wrong, click in your text and "
        u"put it right with the delete key and the mouse.\r"
        u"Sit well: this is real work.",

        u"The last passage of the course, still with a speed bonus and a standard mark of 500. "
        u"The key caps and the drawn hands are gone.\r"
        u"Errors pass, Backspace costs five, and at the end you correct with the keyboard and "
        u"the mouse whatever is not right.\r"
        u"You need nothing but your ten fingers. Begin slowly, find your rhythm, and let it "
        u"carry you.",

        anagram,
        freeText,
        arabicAnagram,
    }},
}};
// clang-format on

} // namespace keyfluent::course
