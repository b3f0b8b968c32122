// The preferences: the settings of the installation, shared by all its students. They stand in one
// record of 532 bytes in the file "KeyFluent Preference.prf" in the program's folder; only the
// preferences dialog writes them. Every operation on the file throws context::FatalError when it
// cannot be opened, read, written or closed.
#pragma once

#include "context/SessionContext.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace keyfluent::progress
{

// No field is range-checked: a file's values are taken as they stand.
struct Preferences {
    context::Boolean16 arabicInterface;
    std::int32_t keyboardKind = 0;
    std::int32_t fontSize = 0;      // in points
    std::int32_t trueKeyColour = 0; // 24 bits, red in the lowest byte
    std::int32_t errKeyColour = 0;
    context::Boolean16 colouredHands;
};

using PreferencesRecord = std::array<std::uint8_t, 532>;

// The reserved bytes are not looked at, and are written as zeros.
Preferences DecodePreferences(const PreferencesRecord& record);
PreferencesRecord EncodePreferences(const Preferences& preferences);

// An Arabic interface, the Windows keyboard, 14 points, black, red, coloured hands.
Preferences DefaultPreferences();
// The same as a record, its reserved texts filled with blanks.
PreferencesRecord DefaultPreferencesRecord();

// In UTF-8.
std::string PreferencesPath(const context::SessionContext& context);

// At the start of the program: puts the record into the context. A missing file is made, empty;
// what a file lacks reads as zero. Meant: the defaults play no part here.
void LoadPreferences(context::SessionContext& context);

// As the dialog opens: the record that it shows. Into a file of up to 266 bytes (no record,
// rounded) the default record is written first. The context stays as it is.
Preferences OpenPreferences(const context::SessionContext& context);

// What the dialog holds when it is confirmed.
struct PreferencesForm {
    bool arabicInterface = false;
    std::int32_t keyboardKind = 0; // 0 for the Macintosh keyboard, any other for Windows
    std::u16string size{};         // the text of the size field
    std::int32_t trueKeyColour = 0;
    std::int32_t errKeyColour = 0;
    bool colouredHands = false;
};

// Writes the record, then puts it into the context.
void SavePreferences(context::SessionContext& context, const PreferencesForm& form);

// The font size that a text of the size field gives: the number of its leading digits, 0 without
// one, brought into 1 to 20.
std::int32_t FontSizeOf(std::u16string_view text);

// Whether the size field takes a typed character: a digit 0 to 9 or Backspace (U+0008).
bool SizeFieldTakes(char16_t character);

} // namespace keyfluent::progress
