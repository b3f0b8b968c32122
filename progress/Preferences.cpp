#include "progress/Preferences.h"

#include "context/Arithmetic.h"
#include "context/Text.h"
#include "progress/Keyboards.h"
#include "progress/RecordFile.h"

#include <algorithm>

namespace keyfluent::progress
{
namespace
{

using context::Boolean16;
using context::SessionContext;

// Where the fields stand in the record, without gaps.
constexpr std::size_t arabicInterfaceAt = 0;
constexpr std::size_t keyboardKindAt = 2;
constexpr std::size_t fontSizeAt = 6;
constexpr std::size_t trueKeyColourAt = 10;
constexpr std::size_t errKeyColourAt = 14;
constexpr std::size_t colouredHandsAt = 18;
constexpr std::size_t reservedNumberAt = 20;
constexpr std::size_t reservedTextsAt = 22; // two of 255 bytes, up to the end

PreferencesRecord ReadRecord(RecordFile& file)
{
    PreferencesRecord record{};
    file.Read(0, record);
    return record;
}

// Whole records by rounding, half of one to none.
bool HoldsRecord(const RecordFile& file)
{
    const auto length = static_cast<double>(file.Length());
    return context::RoundHalfEven(length / static_cast<double>(PreferencesRecord{}.size())) > 0;
}

void Install(SessionContext& context, const Preferences& preferences)
{
    context.arabicInterface = preferences.arabicInterface;
    context.keyboardKind = preferences.keyboardKind;
    context.trueKeyColour = preferences.trueKeyColour;
    context.errKeyColour = preferences.errKeyColour;
    context.fontSize = preferences.fontSize;
    context.colouredHands = preferences.colouredHands;
}

bool IsDigit(char16_t character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

Preferences DecodePreferences(const PreferencesRecord& record)
{
    Preferences preferences;
    preferences.arabicInterface = Boolean16::FromRaw(GetInt16(record, arabicInterfaceAt));
    preferences.keyboardKind = GetInt32(record, keyboardKindAt);
    preferences.fontSize = GetInt32(record, fontSizeAt);
    preferences.trueKeyColour = GetInt32(record, trueKeyColourAt);
    preferences.errKeyColour = GetInt32(record, errKeyColourAt);
    preferences.colouredHands = Boolean16::FromRaw(GetInt16(record, colouredHandsAt));
    return preferences;
}

PreferencesRecord EncodePreferences(const Preferences& preferences)
{
    PreferencesRecord record{};
    PutInt16(record, arabicInterfaceAt, preferences.arabicInterface.Raw());
    PutInt32(record, keyboardKindAt, preferences.keyboardKind);
    PutInt32(record, fontSizeAt, preferences.fontSize);
    PutInt32(record, trueKeyColourAt, preferences.trueKeyColour);
    PutInt32(record, errKeyColourAt, preferences.errKeyColour);
    PutInt16(record, colouredHandsAt, preferences.colouredHands.Raw());
    return record;
}

Preferences DefaultPreferences()
{
    Preferences preferences;
    preferences.arabicInterface = true;
    preferences.keyboardKind = context::windowsKeyboard;
    preferences.fontSize = 14;
    preferences.trueKeyColour = 0x000000;
    preferences.errKeyColour = 0x0000FF;
    preferences.colouredHands = true;
    return preferences;
}

PreferencesRecord DefaultPreferencesRecord()
{
    PreferencesRecord record = EncodePreferences(DefaultPreferences());
    PutInt16(record, reservedNumberAt, -1);
    std::fill(record.begin() + reservedTextsAt, record.end(), std::uint8_t{' '});
    return record;
}

std::string PreferencesPath(const SessionContext& context)
{
    return context::ToUtf8(context.appFolder) + "/KeyFluent Preference.prf";
}

void LoadPreferences(SessionContext& context)
{
    RecordFile file(PreferencesPath(context));
    const PreferencesRecord record = ReadRecord(file);
    file.Close();
    Install(context, DecodePreferences(record));
}

Preferences OpenPreferences(const SessionContext& context)
{
    RecordFile file(PreferencesPath(context));
    PreferencesRecord record = DefaultPreferencesRecord();
    if (HoldsRecord(file)) {
        record = ReadRecord(file);
    } else {
        file.Write(0, record);
    }
    file.Close();
    return DecodePreferences(record);
}

void SavePreferences(SessionContext& context, const PreferencesForm& form)
{
    RecordFile file(PreferencesPath(context));
    Preferences preferences;
    preferences.arabicInterface = form.arabicInterface;
    preferences.keyboardKind = form.keyboardKind == context::macintoshKeyboard
                                   ? context::macintoshKeyboard
                                   : context::windowsKeyboard;
    preferences.fontSize = FontSizeOf(form.size);
    preferences.trueKeyColour = form.trueKeyColour;
    preferences.errKeyColour = form.errKeyColour;
    preferences.colouredHands = form.colouredHands;
    file.Write(0, EncodePreferences(preferences));
    file.Close();
    Install(context, preferences);
}

std::int32_t FontSizeOf(std::u16string_view text)
{
    constexpr std::int32_t largest = 20;
    std::int32_t size = 0;
    for (const char16_t character : text) {
        if (!IsDigit(character)) {
            break;
        }
        // Held at a number above the limit, so that no length of digits overflows.
        size = std::min(size * 10 + (character - u'0'), largest + 1);
    }
    return std::clamp(size, 1, largest);
}

bool SizeFieldTakes(char16_t character)
{
    constexpr char16_t backspace = 8;
    return IsDigit(character) || character == backspace;
}

} // namespace keyfluent::progress
