// A preferences file of any content and any length, read at the start, shown in the dialog, used by
// an exercise and saved again. The first four bytes are what the dialog is left with; the rest is
// the file.
#include "context/FatalError.h"
#include "context/Text.h"
#include "headless/Console.h"
#include "progress/Preferences.h"
#include "tests/fuzz/Folder.h"
#include "tests/fuzz/Target.h"

#include <algorithm>
#include <string>

namespace keyfluent::fuzz
{
namespace
{

using progress::Preferences;

constexpr std::size_t headSize = 4;
constexpr std::size_t recordSize = 532;
constexpr std::size_t mostOfNoRecord = 266; // half a record is none
constexpr std::string_view fileName = "KeyFluent Preference.prf";

progress::PreferencesRecord RecordOf(const Bytes& file)
{
    progress::PreferencesRecord record{};
    std::copy_n(file.begin(), std::min(file.size(), record.size()), record.begin());
    return record;
}

bool Same(const Preferences& one, const Preferences& other)
{
    return one.arabicInterface == other.arabicInterface && one.keyboardKind == other.keyboardKind &&
           one.fontSize == other.fontSize && one.trueKeyColour == other.trueKeyColour &&
           one.errKeyColour == other.errKeyColour && one.colouredHands == other.colouredHands;
}

Preferences Installed(const context::SessionContext& context)
{
    Preferences preferences;
    preferences.arabicInterface = context.arabicInterface;
    preferences.keyboardKind = context.keyboardKind;
    preferences.fontSize = context.fontSize;
    preferences.trueKeyColour = context.trueKeyColour;
    preferences.errKeyColour = context.errKeyColour;
    preferences.colouredHands = context.colouredHands;
    return preferences;
}

// The text of the size field: up to six characters, digits and others.
std::u16string SizeText(std::uint8_t draw)
{
    static constexpr std::u16string_view characters = u"0123456789 -x";
    std::u16string text;
    for (int i = 0; i < draw % 7; ++i) {
        text += characters[static_cast<std::size_t>(draw * (i + 1) + i) % characters.size()];
    }
    return text;
}

progress::PreferencesForm Form(std::span<const std::uint8_t> head)
{
    return {.arabicInterface = (head[0] & 1) != 0,
            .keyboardKind = head[1],
            .size = SizeText(head[2]),
            .trueKeyColour = head[3] * 0x10101,
            .errKeyColour = head[3] << 16,
            .colouredHands = (head[0] & 2) != 0};
}

void ReadFile(const Folder& folder, context::SessionContext& context, const Bytes& file)
{
    folder.Write(fileName, file);
    progress::LoadPreferences(context);
    Require(folder.Read(fileName) == file, "the start only reads");
    Require(Same(Installed(context), progress::DecodePreferences(RecordOf(file))),
            "the preferences are the file's bytes, and zero beyond its end");
}

void ShowFile(const Folder& folder, const context::SessionContext& context, const Bytes& file)
{
    const Preferences shown = progress::OpenPreferences(context);
    if (file.size() > mostOfNoRecord) {
        Require(folder.Read(fileName) == file, "the dialog leaves a record as it is");
        Require(Same(shown, Installed(context)), "the dialog shows the file's record");
    } else {
        Require(RecordOf(folder.Read(fileName)) == progress::DefaultPreferencesRecord(),
                "a file without a record is given the default one");
        Require(Same(shown, progress::DefaultPreferences()), "the dialog shows the default record");
    }
}

// Whatever the values are, an exercise can be opened with them and typed in.
void UseThem(const Folder& folder, const context::SessionContext& context)
{
    headless::Console console(folder.Path().string());
    console.Context() = context;
    console.Context().lessonNo = 1;
    console.Context().exerciseNo = 1;
    for (const char* line : {"options", "open", "key 65", "key 70", "wait 200", "key 16", "up 16",
                             "caps", "field txtOrigin", "image imgLeftHand", "menu", "chooser"}) {
        console.Execute(line);
    }
}

void SaveFile(const Folder& folder, context::SessionContext& context,
              const progress::PreferencesForm& form)
{
    const Bytes before = folder.Read(fileName);
    progress::SavePreferences(context, form);
    const Bytes after = folder.Read(fileName);
    Require(after.size() == std::max(before.size(), recordSize), "the file keeps its length");
    Require(context.fontSize >= 1 && context.fontSize <= 20, "the size has its limits");
    Require(context.keyboardKind == 0 || context.keyboardKind == 192, "there are two keyboards");
    context::SessionContext again;
    again.appFolder = context.appFolder;
    progress::LoadPreferences(again);
    Require(Same(Installed(again), Installed(context)), "what is saved is what is loaded");
}

} // namespace
} // namespace keyfluent::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace keyfluent;
    using namespace keyfluent::fuzz;
    static const Folder folder;
    if (size < headSize) {
        return 0;
    }
    const std::span<const std::uint8_t> input(data, size);
    const auto rest = input.subspan(headSize);
    const Bytes file(rest.begin(), rest.end());
    context::SessionContext context;
    context.appFolder = context::FromUtf8(folder.Path().string());
    ReadFile(folder, context, file);
    ShowFile(folder, context, file);
    UseThem(folder, context);
    SaveFile(folder, context, Form(input.first(headSize)));
    folder.RequireOnlyOwnFiles();
    return 0;
}
