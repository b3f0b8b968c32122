#include "tests/fuzz/ConsoleGrammar.h"

#include <algorithm>
#include <random>
#include <vector>

namespace keyfluent::fuzz
{
namespace
{

// A command and its arguments, each a kind of argument below.
constexpr std::string_view commands[] = {
    "now $seconds",
    "wait $time",
    "date $date",
    "random $part $part $part",
    "capslock $switch",
    "events",
    "set $textfield $string",
    "set $truthfield $truth",
    "set $numberfield $small",
    "set $numberfield $number",
    "set optKeyCaps $truth",
    "set arabicExercise $truth",
    "get $textfield",
    "get $truthfield",
    "get $numberfield",
    "record $record",
    "setrecord $record $mark $mark $mark $mark $mark $mark $mark $mark $mark $mark",
    "rows $keyboard $lesson $exercise",
    "lessonname $lesson",
    "lessonnote $lesson",
    "exercisenote $lesson $exercise $language",
    "helptext $lesson",
    "recommendation $exercise",
    "stopnote $exercise",
    "special $lesson $exercise $language",
    "free $string",
    "options",
    "turn $aid",
    "validkey $key $byte $shift $caps",
    "capof $key",
    "checkslate $lesson $exercise $language",
    "speedbonus $lesson $exercise $language",
    "standardmark $lesson $exercise $language",
    "passingmark $lesson",
    "recordbase",
    "lessonsum $small",
    "arabictotal $record",
    "englishtotal $record",
    "passed",
    "result",
    "isnewstudent $string",
    "loadstudent",
    "savestudent",
    "loadprefs",
    "openprefs",
    "saveprefs $truth $keyboard $string $number $number $truth",
    "suggest",
    "welcome",
    "bye",
    "diploma",
    "name $string",
    "lesson $lesson",
    "keyboard $layout",
    "synchronise",
    "next",
    "back",
    "menu",
    "choose $lesson $exercise $language",
    "chooser",
    "leave $answer",
    "open",
    "open",
    "open",
    "activate",
    "key $key",
    "key $key",
    "up $key",
    "mouse $pressed",
    "click $clicked",
    "move $passed",
    "lostfocus",
    "edit $string $small",
    "enter",
    "is open",
    "row $small",
    "state",
    "field $field",
    "label $label",
    "gauge $gauge",
    "cap $small",
    "caps",
    "image $image",
    "button $button",
    "timer $timer",
};

struct Kind {
    std::string_view name;
    std::vector<std::string_view> words;
};

// Kinds of arguments that are one of a few words.
const std::vector<Kind>& Kinds()
{
    static const std::vector<Kind> kinds = {
        {"switch", {"on", "off"}},
        {"truth", {"true", "false"}},
        {"language", {"ar", "en"}},
        {"layout", {"win", "mac"}},
        {"keyboard", {"192", "0", "192", "0", "7", "-1"}},
        {"shift", {"shift", "noshift"}},
        {"caps", {"caps", "nocaps"}},
        {"answer", {"yes", "no", "cancel"}},
        {"aid", {"optKeyCaps", "optHands", "optCounter", "optClock", "optSound"}},
        {"date", {"01-31-2026", "02-29-2024", "12-31-9999", "02-30-2026", "1-1-1"}},
        {"pressed", {"txtOrigin", "txtTest", "imgStop"}},
        {"clicked", {"txtOrigin", "imgRest", "imgResume"}},
        {"passed", {"imgRest", "imgResume", "imgStop", "form"}},
        {"field", {"txtOrigin", "txtTest"}},
        {"gauge", {"pbMark", "pbSpeed"}},
        {"button", {"imgNext", "imgBack", "imgDuplicate"}},
        {"image", {"imgLeftHand", "imgRightHand", "imgRest", "imgResume", "imgStop"}},
        {"timer", {"tmrClock", "tmrAuto", "EraseChar", "tmrErrKey", "tmrHilite", "tmrSelection"}},
        {"label",
         {"Label1", "Label6", "Label7", "lblTitle", "lblMark", "lblSpeed", "lblTimer", "lblChar",
          "lblResulotion", "Shape1"}},
        {"textfield",
         {"studentName", "studentNameCopy", "lessonNoteText", "freeTextChars", "blankText"}},
        {"truthfield",
         {"arabicInterface",
          "arabicExercise",
          "sessionRun",
          "colouredHands",
          "optKeyCaps",
          "optHands",
          "optCounter",
          "optClock",
          "optSound",
          "helpMode",
          "leaveNoSave",
          "leaveConfirmed",
          "inExercise",
          "arabicAnagram",
          "englishAnagram",
          "freeText",
          "anagramLanguage",
          "loggedOut",
          "quitting",
          "courseDoneArabicWin",
          "courseDoneEnglishMac"}},
        {"numberfield",
         {"keyboardKind", "exerciseNo", "lessonNo", "lastLessonWin", "lastLessonMac",
          "reachedLessonMac", "reachedLessonWin", "trueKeyColour", "errKeyColour", "fontSize",
          "stopCount", "exerciseMark", "accuracyMark", "speedBonus", "recommendPage", "helpPage",
          "gradeArabicWin", "gradeEnglishMac"}},
        {"part", {"0", "0.5", "0.999999", "0.125", "0.25", "0.7"}},
        {"seconds", {"0", "86399.999", "36000", "86340", "0.001"}},
    };
    return kinds;
}

constexpr std::string_view stringParts[] = {
    "a",    "F",   " ", "; l",  "\\r\\n", "\\\"",    "\\u0000", "\\ud83d",
    "ش",    "ا",   "ڑ", "لا",   "١",      "\\u200f", "/",       "..",
    "\\\\", "\\t", "*", "name", "20",     "🙂",    "%s",      "aaaaaaaaaaaaaaaaaaaa",
};

class Writer
{
public:
    explicit Writer(unsigned seed) : random_(seed) {}

    std::size_t Draw(std::size_t end) { return random_() % end; }
    int Number(int low, int high) // both included
    {
        return low + static_cast<int>(Draw(static_cast<std::size_t>(high - low) + 1));
    }

    std::string Line()
    {
        const std::string_view shape = commands[Draw(std::size(commands))];
        std::string line;
        for (std::size_t at = 0; at < shape.size();) {
            if (shape[at] != '$') {
                line += shape[at++];
                continue;
            }
            const std::size_t end = std::min(shape.find(' ', at), shape.size());
            line += Argument(shape.substr(at + 1, end - at - 1));
            at = end;
        }
        return line;
    }

    std::string AnyArgument()
    {
        const Kind& kind = Kinds()[Draw(Kinds().size())];
        constexpr std::string_view others[] = {"key",  "number", "small",
                                               "mark", "lesson", "string"};
        return Draw(3) == 0 ? Argument(kind.name) : Argument(others[Draw(std::size(others))]);
    }

private:
    std::string Argument(std::string_view kind)
    {
        for (const Kind& known : Kinds()) {
            if (known.name == kind) {
                return std::string(known.words[Draw(known.words.size())]);
            }
        }
        return kind == "string" ? String() : std::to_string(NumberOf(kind));
    }

    long NumberOf(std::string_view kind)
    {
        constexpr long extremes[] = {0,     1,      -1,    255,        256,
                                     32767, -32768, 65535, 2147483647, -2147483648};
        if (kind == "lesson") {
            return Draw(20) == 0 ? Number(-1, 17) : Number(1, 15);
        }
        if (kind == "exercise") {
            return Draw(20) == 0 ? Number(-1, 11) : Number(1, 5);
        }
        if (kind == "record") {
            return Draw(20) == 0 ? Number(0, 33) : Number(1, 31);
        }
        if (kind == "time") {
            constexpr int times[] = {0, 20, 60, 90, 500, 1000, 5000, 60000};
            return times[Draw(std::size(times))];
        }
        if (kind == "key") {
            constexpr int often[] = {8, 13, 16, 17, 20, 27, 32, 186, 192};
            return Draw(3) == 0 ? often[Draw(std::size(often))] : Number(32, 226);
        }
        if (kind == "mark") {
            return Draw(10) == 0 ? extremes[Draw(8)] : Number(0, 300);
        }
        if (kind == "byte") {
            return Number(0, 255);
        }
        return kind == "small" ? Number(0, 120) : extremes[Draw(std::size(extremes))];
    }

    std::string String()
    {
        std::string text = "\"";
        for (std::size_t parts = Draw(5); parts > 0; --parts) {
            text += stringParts[Draw(std::size(stringParts))];
        }
        return text + "\"";
    }

    std::mt19937 random_;
};

using Lines = std::vector<std::string>;

Lines LinesOf(std::string_view script)
{
    Lines lines;
    while (!script.empty()) {
        const std::size_t end = std::min(script.find('\n'), script.size());
        lines.emplace_back(script.substr(0, end));
        script.remove_prefix(std::min(end + 1, script.size()));
    }
    return lines;
}

void ChangeArgument(Writer& writer, std::string& line)
{
    std::vector<std::size_t> blanks;
    for (std::size_t at = line.find(' '); at != std::string::npos; at = line.find(' ', at + 1)) {
        blanks.push_back(at);
    }
    if (blanks.empty()) {
        line = writer.Line();
        return;
    }
    const std::size_t start = blanks[writer.Draw(blanks.size())] + 1;
    const std::size_t end = std::min(line.find(' ', start), line.size());
    line.replace(start, end - start, writer.AnyArgument());
}

// A student types for a while.
Lines Typing(Writer& writer)
{
    Lines lines;
    for (int keys = writer.Number(1, 12); keys > 0; --keys) {
        constexpr int row[] = {65, 83, 68, 70, 74, 75, 76, 186, 32, 13};
        lines.push_back("key " + std::to_string(row[writer.Draw(std::size(row))]));
        if (writer.Draw(3) == 0) {
            lines.push_back("wait " + std::to_string(writer.Number(0, 300)));
        }
    }
    return lines;
}

void Change(Writer& writer, Lines& lines)
{
    const std::size_t at = writer.Draw(lines.size() + 1);
    const auto place = lines.begin() + static_cast<std::ptrdiff_t>(at);
    const auto kind = at == lines.size() ? writer.Draw(4) : writer.Draw(10);
    switch (kind) {
    case 0:
    case 1:
    case 2:
        lines.insert(place, writer.Line());
        break;
    case 3: {
        const Lines typing = Typing(writer);
        lines.insert(place, typing.begin(), typing.end());
        break;
    }
    case 4:
    case 5:
        ChangeArgument(writer, *place);
        break;
    case 6:
        *place = writer.Line();
        break;
    case 7: {
        const std::string line = *place;
        lines.insert(place, writer.Draw(8) + 1, line);
        break;
    }
    case 8:
        std::swap(*place, lines[writer.Draw(lines.size())]);
        break;
    default:
        lines.erase(place);
    }
}

} // namespace

std::string ChangedScript(std::string_view script, unsigned seed)
{
    Writer writer(seed);
    Lines lines = LinesOf(script);
    Change(writer, lines);
    std::string changed;
    for (const std::string& line : lines) {
        changed += line + "\n";
    }
    return changed;
}

} // namespace keyfluent::fuzz
