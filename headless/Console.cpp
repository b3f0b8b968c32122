#include "headless/Console.h"

#include "context/Text.h"
#include "headless/Commands.h"
#include "headless/Json.h"

#include <map>

namespace keyfluent::headless
{
namespace
{

const std::map<std::string, Command, std::less<>> commands = {
    {"now", Commands::Now},
    {"wait", Commands::Wait},
    {"date", Commands::Date},
    {"random", Commands::Random},
    {"capslock", Commands::CapsLock},
    {"events", Commands::Events},
    {"set", Commands::Set},
    {"get", Commands::Get},
    {"record", Commands::Record},
    {"setrecord", Commands::SetRecord},
    {"rows", Commands::Rows},
    {"lessonname", Commands::LessonName},
    {"lessonnote", Commands::LessonNote},
    {"exercisenote", Commands::ExerciseNote},
    {"helptext", Commands::HelpText},
    {"recommendation", Commands::Recommendation},
    {"stopnote", Commands::StopNote},
    {"special", Commands::Special},
    {"free", Commands::Free},
    {"options", Commands::Options},
    {"turn", Commands::Turn},
    {"validkey", Commands::ValidKey},
    {"capof", Commands::CapOf},
    {"checkslate", Commands::ChecksLate},
    {"speedbonus", Commands::SpeedBonus},
    {"standardmark", Commands::StandardMark},
    {"passingmark", Commands::PassingMark},
    {"recordbase", Commands::RecordBase},
    {"lessonsum", Commands::LessonSum},
    {"arabictotal", Commands::ArabicTotal},
    {"englishtotal", Commands::EnglishTotal},
    {"passed", Commands::Passed},
    {"result", Commands::Result},
    {"isnewstudent", Commands::IsNewStudent},
    {"loadstudent", Commands::LoadStudent},
    {"savestudent", Commands::SaveStudent},
    {"loadprefs", Commands::LoadPrefs},
    {"openprefs", Commands::OpenPrefs},
    {"saveprefs", Commands::SavePrefs},
    {"suggest", Commands::Suggest},
    {"welcome", Commands::Welcome},
    {"bye", Commands::Bye},
    {"diploma", Commands::Diploma},
    {"name", Commands::Name},
    {"lesson", Commands::Lesson},
    {"keyboard", Commands::Keyboard},
    {"synchronise", Commands::Synchronise},
    {"next", Commands::Next},
    {"back", Commands::Back},
    {"menu", Commands::Menu},
    {"choose", Commands::Choose},
    {"chooser", Commands::Chooser},
    {"leave", Commands::Leave},
    {"open", Commands::Open},
    {"activate", Commands::Activate},
    {"key", Commands::Key},
    {"up", Commands::Up},
    {"mouse", Commands::Mouse},
    {"click", Commands::Click},
    {"move", Commands::Move},
    {"lostfocus", Commands::LostFocus},
    {"edit", Commands::Edit},
    {"enter", Commands::Enter},
    {"is", Commands::Is},
    {"row", Commands::Row},
    {"state", Commands::State},
    {"field", Commands::Field},
    {"label", Commands::Label},
    {"gauge", Commands::Gauge},
    {"cap", Commands::Cap},
    {"caps", Commands::Caps},
    {"image", Commands::Image},
    {"button", Commands::Button},
    {"timer", Commands::Timer},
};

bool IsSkipped(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string_view::npos || line[first] == '#';
}

} // namespace

std::string Commands::Text(std::u16string_view text)
{
    return Quoted(text) + "\n";
}

int Commands::Byte(const Arguments& arguments, int index)
{
    return static_cast<int>(arguments.Integer(index, 0, 255));
}

Console::Console(std::string_view appFolder)
{
    context_.appFolder = context::FromUtf8(appFolder);
    context_.lessonNo = 1;
    context_.exerciseNo = 1;
    context_.keyboardKind = 192;
    context_.fontSize = 12;
    context_.errKeyColour = 255;
}

std::string Console::Execute(std::string_view line)
{
    if (IsSkipped(line)) {
        return {};
    }
    const Arguments arguments(line);
    const auto command = commands.find(arguments.Command());
    if (command == commands.end()) {
        throw UsageError("there is no command " + arguments.Command());
    }
    return command->second(*this, arguments);
}

session::Lesson& Console::OpenLesson()
{
    if (!machine_.HasLesson()) {
        throw UsageError("no lesson is open");
    }
    return machine_.Lesson();
}

} // namespace keyfluent::headless
