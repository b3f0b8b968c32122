#include "progress/Preferences.h"

#include "progress/RecordFile.h"
#include "tests/core/ProgressSupport.h"

#include <random>
#include <tuple>

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;
namespace fs = std::filesystem;

constexpr const char* fileName = "KeyFluent Preference.prf";

auto Values(const Preferences& preferences)
{
    return std::tuple<bool, int, int, int, int, bool>(
        preferences.arabicInterface, preferences.keyboardKind, preferences.fontSize,
        preferences.trueKeyColour, preferences.errKeyColour, preferences.colouredHands);
}
auto Values(const SessionContext& context)
{
    return std::tuple<bool, int, int, int, int, bool>(context.arabicInterface, context.keyboardKind,
                                                      context.fontSize, context.trueKeyColour,
                                                      context.errKeyColour, context.colouredHands);
}
using Tuple = std::tuple<bool, int, int, int, int, bool>;

// The fields in front of the reserved ones, by hand: interface, keyboard, size, colours, hands.
constexpr const char* defaultFields = "FFFF C0000000 0E000000 00000000 FF000000 FFFF";
constexpr const char* otherFields = "0000 00000000 11000000 A1B2C300 0102FF00 0000";
const Tuple defaultValues{true, 192, 14, 0, 255, true};
const Tuple otherValues{false, 0, 17, 0xC3B2A1, 0xFF0201, false};

// Fields and then the reserved number and texts, which the default record fills.
Bytes Record(const char* fields, const char* reservedNumber, std::uint8_t reservedText)
{
    Bytes record = FromHex(std::string(fields) + reservedNumber);
    record.resize(22 + 255 + 255, reservedText);
    return record;
}
Bytes DefaultRecord()
{
    return Record(defaultFields, "FFFF", 0x20);
}

struct WithFile {
    TemporaryFolder folder;
    fs::path path;
    SessionContext context;

    WithFile() : path(folder / fileName), context(ContextIn(folder)) {}
    explicit WithFile(const Bytes& bytes) : WithFile() { WriteBytes(path, bytes); }
};

// The values that the first bytes of a file give, worked out from the bytes by themselves.
Tuple ValuesOf(Bytes bytes)
{
    bytes.resize(std::max<std::size_t>(bytes.size(), 532));
    const auto number = [&](std::size_t at) {
        return static_cast<int>(bytes[at] + 0x100U * bytes[at + 1] + 0x10000U * bytes[at + 2] +
                                0x1000000U * bytes[at + 3]);
    };
    return {(bytes[0] | bytes[1]) != 0,  number(2), number(6), number(10), number(14),
            (bytes[18] | bytes[19]) != 0};
}

Bytes Patterned(std::size_t length)
{
    Bytes bytes(length);
    for (std::size_t i = 0; i < length; ++i) {
        bytes[i] = static_cast<std::uint8_t>((11 * i + 3) % 253);
    }
    return bytes;
}

TEST(Preferences, TheFileStandsInTheProgramsFolder)
{
    SessionContext context;
    context.appFolder = u"/برنامج x";
    EXPECT_EQ(PreferencesPath(context), "/برنامج x/KeyFluent Preference.prf");
}

TEST(Preferences, ARecordHoldsItsFieldsWithoutGapsAndZerosBehind)
{
    Preferences preferences;
    preferences.keyboardKind = 0;
    preferences.fontSize = 17;
    preferences.trueKeyColour = 0xC3B2A1;
    preferences.errKeyColour = 0xFF0201;
    const PreferencesRecord record = EncodePreferences(preferences);
    EXPECT_EQ(Bytes(record.begin(), record.end()), Record(otherFields, "0000", 0));
    EXPECT_EQ(record.size(), 532U);
    const PreferencesRecord defaults = EncodePreferences(DefaultPreferences());
    EXPECT_EQ(Bytes(defaults.begin(), defaults.end()), Record(defaultFields, "0000", 0));
}

TEST(Preferences, TheDefaultRecordHasItsReservedTextsBlank)
{
    EXPECT_EQ(Values(DefaultPreferences()), defaultValues);
    const PreferencesRecord record = DefaultPreferencesRecord();
    EXPECT_EQ(Bytes(record.begin(), record.end()), DefaultRecord());
}

TEST(Preferences, LoadingTakesTheSixFieldsAndLeavesTheFileAlone)
{
    WithFile file(Record(otherFields, "1234", 0x7F));
    file.context.arabicInterface = true;
    file.context.colouredHands = true;
    file.context.keyboardKind = 192;
    LoadPreferences(file.context);
    EXPECT_EQ(Values(file.context), otherValues);
    EXPECT_EQ(ReadBytes(file.path), Record(otherFields, "1234", 0x7F));
}

TEST(Preferences, LoadingWithoutAFileGivesZerosAndLeavesAnEmptyFile)
{
    WithFile file;
    file.context.arabicInterface = true;
    file.context.keyboardKind = 192;
    file.context.fontSize = 12;
    file.context.trueKeyColour = 1;
    file.context.errKeyColour = 2;
    file.context.colouredHands = true;
    LoadPreferences(file.context);
    EXPECT_EQ(Values(file.context), (Tuple{false, 0, 0, 0, 0, false}));
    EXPECT_EQ(fs::file_size(file.path), 0U);
    EXPECT_EQ(file.folder.Everything(), (std::vector<std::string>{fileName}));
}

TEST(Preferences, AFileOfAnyLengthIsLoadedAsItStands)
{
    for (std::size_t length = 0; length <= 600; ++length) {
        WithFile file(Patterned(length));
        LoadPreferences(file.context);
        ASSERT_EQ(Values(file.context), ValuesOf(Patterned(length))) << length;
        ASSERT_EQ(ReadBytes(file.path), Patterned(length)) << length;
    }
}

TEST(Preferences, OpeningTheDialogOnUpTo266BytesWritesTheDefaultRecord)
{
    for (std::size_t length = 0; length <= 266; ++length) {
        WithFile file(Patterned(length));
        ASSERT_EQ(Values(OpenPreferences(file.context)), defaultValues) << length;
        ASSERT_EQ(ReadBytes(file.path), DefaultRecord()) << length;
    }
}

TEST(Preferences, OpeningTheDialogOn267BytesOrMoreReadsTheRecord)
{
    for (std::size_t length = 267; length <= 600; ++length) {
        WithFile file(Patterned(length));
        ASSERT_EQ(Values(OpenPreferences(file.context)), ValuesOf(Patterned(length))) << length;
        ASSERT_EQ(ReadBytes(file.path), Patterned(length)) << length;
    }
    for (const std::size_t length : {797, 798, 799, 1064, 5000}) {
        WithFile file(Patterned(length));
        EXPECT_EQ(Values(OpenPreferences(file.context)), ValuesOf(Patterned(length))) << length;
    }
}

TEST(Preferences, OpeningTheDialogDoesNotTouchTheContext)
{
    WithFile file;
    file.context.fontSize = 11;
    EXPECT_EQ(Values(OpenPreferences(file.context)), defaultValues);
    EXPECT_EQ(Values(file.context), (Tuple{false, 0, 11, 0, 0, false}));
    // Closed without confirming, the default record takes effect at the next start.
    LoadPreferences(file.context);
    EXPECT_EQ(Values(file.context), defaultValues);
}

TEST(Preferences, ConfirmingWritesARecordWithZerosInItsReservedFields)
{
    WithFile file(DefaultRecord());
    SavePreferences(file.context, {.arabicInterface = false,
                                   .keyboardKind = 0,
                                   .size = u"17",
                                   .trueKeyColour = 0xC3B2A1,
                                   .errKeyColour = 0xFF0201,
                                   .colouredHands = false});
    EXPECT_EQ(ReadBytes(file.path), Record(otherFields, "0000", 0));
    EXPECT_EQ(Values(file.context), otherValues);
    SavePreferences(file.context, {.arabicInterface = true,
                                   .keyboardKind = 192,
                                   .size = u"14",
                                   .trueKeyColour = 0,
                                   .errKeyColour = 255,
                                   .colouredHands = true});
    EXPECT_EQ(ReadBytes(file.path), Record(defaultFields, "0000", 0));
    EXPECT_EQ(Values(file.context), defaultValues);
}

TEST(Preferences, ConfirmingKeepsTheBytesBehindTheRecord)
{
    WithFile file(Patterned(600));
    SavePreferences(file.context, {.size = u"14"});
    const Bytes bytes = ReadBytes(file.path);
    ASSERT_EQ(bytes.size(), 600U);
    const Bytes before = Patterned(600);
    EXPECT_TRUE(std::equal(bytes.begin() + 532, bytes.end(), before.begin() + 532));
}

TEST(Preferences, AKeyboardThatIsNotTheMacintoshsIsSavedAsWindows)
{
    for (const std::int32_t kind : {192, 1, 7, -1}) {
        WithFile file;
        SavePreferences(file.context, {.keyboardKind = kind});
        EXPECT_EQ(file.context.keyboardKind, 192);
        EXPECT_EQ(ReadBytes(file.path)[2], 0xC0);
    }
    WithFile file;
    SavePreferences(file.context, {.keyboardKind = 0});
    EXPECT_EQ(file.context.keyboardKind, 0);
    EXPECT_EQ(ReadBytes(file.path)[2], 0);
}

TEST(Preferences, TheSavedSizeIsTheNumberOfTheLeadingDigitsBetween1And20)
{
    struct Row {
        std::u16string text;
        int size;
    };
    const Row rows[] = {
        {u"0", 1},
        {u"1", 1},
        {u"2", 2},
        {u"19", 19},
        {u"20", 20},
        {u"21", 20},
        {u"", 1},
        {u"007", 7},
        {u"100", 20},
        {u"12pt", 12},
        {u"9.9", 9},
        {u"x12", 1},
        {u"-5", 1},
        {u" 12", 1},
        {u"\u0661", 1},
        {u"12\u0663", 12},
        {u"/", 1},
        {u":", 1},
        {u"1 9", 1},
        {std::u16string(1000, u'9'), 20},
        {u"4294967297", 20},
        {std::u16string(1000, u'0') + u"8", 8},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FontSizeOf(row.text), row.size) << Shown(row.text);
        WithFile file;
        SavePreferences(file.context, {.size = row.text});
        EXPECT_EQ(file.context.fontSize, row.size) << Shown(row.text);
        EXPECT_EQ(ReadBytes(file.path)[6], row.size) << Shown(row.text);
    }
}

TEST(Preferences, TheSizeFieldTakesDigitsAndBackspaceAlone)
{
    const std::u16string_view taken = u"0123456789\b";
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        ASSERT_EQ(SizeFieldTakes(character), taken.find(character) != taken.npos) << code;
    }
}

TEST(Preferences, EveryNumberButZeroIsTrueInAFile)
{
    for (const char* const raw : {"FFFF", "0100", "0001", "0080", "FF7F", "6400"}) {
        Bytes bytes = Record(otherFields, "0000", 0);
        const Bytes number = FromHex(raw);
        std::ranges::copy(number, bytes.begin());
        std::ranges::copy(number, bytes.begin() + 18);
        WithFile file(bytes);
        LoadPreferences(file.context);
        EXPECT_EQ(Values(file.context), (Tuple{true, 0, 17, 0xC3B2A1, 0xFF0201, true})) << raw;
        EXPECT_EQ(file.context.arabicInterface.Raw(), -1) << raw;
    }
}

TEST(Preferences, NoFieldIsRangeChecked)
{
    for (int byte = 0; byte < 256; ++byte) {
        const Bytes bytes(532, static_cast<std::uint8_t>(byte));
        WithFile file(bytes);
        LoadPreferences(file.context);
        EXPECT_EQ(Values(file.context), ValuesOf(bytes)) << byte;
        EXPECT_EQ(Values(OpenPreferences(file.context)), ValuesOf(bytes)) << byte;
    }
    std::mt19937 generator(7);
    for (int round = 0; round < 300; ++round) {
        Bytes bytes(generator() % 601);
        std::ranges::generate(bytes, [&] { return static_cast<std::uint8_t>(generator()); });
        WithFile file(bytes);
        LoadPreferences(file.context);
        EXPECT_EQ(Values(file.context), ValuesOf(bytes));
    }
}

// Every use of a file that cannot be used ends the program with a report that names it.
void ExpectRefused(const WithFile& file, const std::string& reason)
{
    SessionContext context = file.context;
    const std::string messages[] = {FatalMessage([&] { LoadPreferences(context); }),
                                    FatalMessage([&] { OpenPreferences(context); }),
                                    FatalMessage([&] { SavePreferences(context, {}); })};
    for (const std::string& message : messages) {
        EXPECT_NE(message.find(Quoted(file.path.string())), std::string::npos) << message;
        EXPECT_NE(message.find(reason), std::string::npos) << message;
    }
    EXPECT_EQ(Values(context), Values(file.context));
}

TEST(Preferences, AFileThatCannotBeUsedEndsTheProgramWithAReport)
{
    WithFile folderInstead;
    fs::create_directory(folderInstead.path);
    ExpectRefused(folderInstead, "Is a directory");

    WithFile loop;
    fs::create_symlink(fileName, loop.path);
    ExpectRefused(loop, "Too many levels of symbolic links");

    WithFile nowhere;
    nowhere.path = nowhere.folder / "missing" / fileName;
    nowhere.context.appFolder += u"/missing";
    ExpectRefused(nowhere, "No such file or directory");

    WithFile notAFolder;
    WriteBytes(notAFolder.folder / "file", Bytes(1));
    notAFolder.path = notAFolder.folder / "file" / fileName;
    notAFolder.context.appFolder += u"/file";
    ExpectRefused(notAFolder, "Not a directory");
}

TEST(Preferences, AFullDiskEndsTheProgramWithAReportAndTheContextStays)
{
    ASSERT_TRUE(fs::is_character_file("/dev/full"));
    WithFile file;
    fs::create_symlink("/dev/full", file.path);
    file.context.fontSize = 11;
    const std::string opened = FatalMessage([&] { OpenPreferences(file.context); });
    const std::string saved = FatalMessage([&] { SavePreferences(file.context, {.size = u"9"}); });
    EXPECT_NE(opened.find("No space left on device"), std::string::npos) << opened;
    EXPECT_NE(saved.find("No space left on device"), std::string::npos) << saved;
    EXPECT_EQ(file.context.fontSize, 11);
}

} // namespace
} // namespace keyfluent::progress
