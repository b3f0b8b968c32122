// Prints what the charts are made from, as JSON: the caps with their places and their texts, and
// the fingers of each character, all on a Windows keyboard. So a chart can never tell a child other
// than what the program itself shows during an exercise.
//
// usage: keyfluent-table-dump OUT_FILE
//
// {"caps": [{"left", "top", "width", "height", "sign", "arabic", "english", "englishShift"}...],
//  "fingers": {"arabic": {CHARACTER: {"left", "right", "shiftCap"}...}, "english": {...}},
//  "lineEnd": CHARACTER}
//
// Lengths are twips. The sign is drawn in place of the text where it is not empty. A hand at rest
// is
// "", a finger its English name; shiftCap is -1 where no Shift is held.
#include "context/KeyboardKind.h"
#include "context/Text.h"
#include "keyboard/Fingers.h"
#include "keyboard/KeyCaps.h"
#include "keyboard/Layouts.h"

#include <array>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace
{

using namespace keyfluent;

using Texts = std::array<std::u16string_view, keyboard::capCount>;

constexpr std::string_view fingerNames[] = {"", "thumb", "index", "middle", "ring", "little"};

std::string Quoted(std::string_view utf8)
{
    std::string quoted = "\"";
    for (char c : utf8) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            constexpr std::string_view digits = "0123456789abcdef";
            quoted += "\\u00";
            quoted += digits[static_cast<unsigned char>(c) >> 4];
            quoted += digits[static_cast<unsigned char>(c) & 15];
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

std::string Quoted(std::u16string_view text)
{
    return Quoted(context::ToUtf8(text));
}

// The texts that the caps hold once the layout is written on them.
Texts TextsOf(bool arabic, bool shifted)
{
    Texts texts;
    for (std::size_t cap = 0; cap < texts.size(); ++cap) {
        texts[cap] = keyboard::CapDesigns()[cap].designText;
    }
    keyboard::WriteCapTexts(context::windowsKeyboard, shifted, arabic, texts);
    return texts;
}

void PrintCaps(std::ostream& out)
{
    const Texts arabic = TextsOf(true, false);
    const Texts english = TextsOf(false, false);
    const Texts englishShift = TextsOf(false, true);
    const auto& designs = keyboard::CapDesigns();
    out << "\"caps\": [";
    for (std::size_t cap = 0; cap < designs.size(); ++cap) {
        const keyboard::CapDesign& design = designs[cap];
        out << (cap == 0 ? "\n" : ",\n") << "{\"left\": " << design.left
            << ", \"top\": " << design.top << ", \"width\": " << design.width
            << ", \"height\": " << design.height
            << ", \"sign\": " << Quoted(keyboard::PictureOnCap(static_cast<int>(cap)))
            << ", \"arabic\": " << Quoted(arabic[cap]) << ", \"english\": " << Quoted(english[cap])
            << ", \"englishShift\": " << Quoted(englishShift[cap]) << "}";
    }
    out << "\n]";
}

void PrintFingers(std::ostream& out, bool arabicExercise)
{
    std::set<std::u16string> characters{u" ", std::u16string(1, context::lineEndMark)};
    for (const bool arabic : {false, true}) {
        for (const bool shifted : {false, true}) {
            for (const std::u16string_view text : TextsOf(arabic, shifted)) {
                if (text.size() == 1) {
                    characters.emplace(text);
                }
            }
        }
    }
    std::string_view between = "\n";
    for (const std::u16string& character : characters) {
        const keyboard::Fingers fingers =
            keyboard::FingersOf(character, context::windowsKeyboard, arabicExercise);
        out << between << Quoted(character)
            << ": {\"left\": " << Quoted(fingerNames[static_cast<std::size_t>(fingers.left)])
            << ", \"right\": " << Quoted(fingerNames[static_cast<std::size_t>(fingers.right)])
            << ", \"shiftCap\": " << fingers.shiftCap << "}";
        between = ",\n";
    }
}

void Print(std::ostream& out)
{
    out << "{";
    PrintCaps(out);
    out << ",\n\"fingers\": {\"arabic\": {";
    PrintFingers(out, true);
    out << "\n}, \"english\": {";
    PrintFingers(out, false);
    out << "\n}},\n\"lineEnd\": " << Quoted(std::u16string_view(&context::lineEndMark, 1)) << "}\n";
}

// A file that stays as it is keeps its time, so that nothing is drawn anew without need.
bool HoldsAlready(const char* path, const std::string& text)
{
    std::ifstream in(path, std::ios::binary);
    return in && std::string(std::istreambuf_iterator<char>(in), {}) == text;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::cerr << "usage: keyfluent-table-dump OUT_FILE\n";
        return 2;
    }
    std::ostringstream text;
    Print(text);
    if (HoldsAlready(arguments[1], text.str())) {
        return 0;
    }
    std::ofstream out(arguments[1], std::ios::binary);
    out << text.str();
    out.close();
    if (!out) {
        std::cerr << arguments[1] << ": can't be written\n";
        return 1;
    }
    return 0;
}
