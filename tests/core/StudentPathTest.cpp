#include "progress/StudentPath.h"

#include "progress/StudentFile.h"
#include "tests/core/ProgressSupport.h"

#include <cerrno>
#include <csignal>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace keyfluent::progress
{
namespace
{

using namespace support;
using namespace std::string_literals;
using context::SessionContext;
namespace fs = std::filesystem;

// Without the right of a superuser to pass over the permissions of files; an ordinary user has none
// and loses nothing.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
    {
        EXPECT_EQ(syscall(SYS_capget, &header_, before_), 0);
        __user_cap_data_struct now[2] = {before_[0], before_[1]};
        now[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
        EXPECT_EQ(syscall(SYS_capset, &header_, now), 0);
    }
    ~WithoutPrivileges() { EXPECT_EQ(syscall(SYS_capset, &header_, before_), 0); }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

private:
    __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct before_[2] = {};
};

// No file of the process may grow beyond so many bytes.
class WithFileSizeLimit
{
public:
    explicit WithFileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
        const rlimit limit{bytes, before_.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~WithFileSizeLimit()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before_), 0);
        std::signal(SIGXFSZ, handler_);
    }
    WithFileSizeLimit(const WithFileSizeLimit&) = delete;
    WithFileSizeLimit& operator=(const WithFileSizeLimit&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int);
};

std::string LoadFailure(SessionContext context)
{
    return FatalMessage([&] { LoadStudent(context); });
}
std::string SaveFailure(SessionContext context)
{
    return FatalMessage([&] { SaveStudent(context); });
}

// A student whom the file system refuses: known at the sign-in, and loading and saving end the
// program with a report that names the file and the reason.
void ExpectRefused(SessionContext context, const std::string& file, const std::string& reason)
{
    EXPECT_FALSE(IsNewStudent(context)) << file;
    for (const std::string& message : {LoadFailure(context), SaveFailure(context)}) {
        EXPECT_NE(message.find(file), std::string::npos) << message;
        EXPECT_NE(message.find(reason), std::string::npos) << message;
    }
}

// The new student is set up, saved, found again, and stands in exactly that file.
void ExpectKeptAs(const TemporaryFolder& folder, std::u16string name, const std::string& file)
{
    SessionContext context = ContextIn(folder, std::move(name));
    EXPECT_TRUE(IsNewStudent(context)) << file;
    SaveStudent(context);
    EXPECT_FALSE(IsNewStudent(context)) << file;
    LoadStudent(context);
    EXPECT_EQ(context.reachedLessonMac, 1);
    EXPECT_EQ(folder.Everything(), (std::vector<std::string>{"Students", "Students/" + file}));
}

TEST(StudentPath, TheFileIsTheNameWithItsEndingBelowTheStudentsFolder)
{
    SessionContext context;
    context.appFolder = u"/برنامج x";
    context.studentName = u"Ali Ben";
    EXPECT_EQ(UsableStudentPath(context), "/برنامج x/Students/Ali Ben.W");
}

TEST(StudentPath, NamesAreTakenAsTypedAndEncodedInUtf8)
{
    ExpectKeptAs({}, u"Ali", "Ali.W");
    ExpectKeptAs({}, u"علي", "\xD8\xB9\xD9\x84\xD9\x8A.W");
    ExpectKeptAs({}, u"*", "*.W");
    ExpectKeptAs({}, u"a\\b:?\"<>|", "a\\b:?\"<>|.W");
    ExpectKeptAs({}, u".", "..W");
    ExpectKeptAs({}, u"..", "...W");
    ExpectKeptAs({}, u"", ".W");
    ExpectKeptAs({}, u"   ", "   .W");
    ExpectKeptAs({}, u"a\r\n\tb", "a\r\n\tb.W");
    ExpectKeptAs({}, u"<b>%s$HOME`x`;", "<b>%s$HOME`x`;.W");
}

TEST(StudentPath, RightToLeftMarksArePartOfTheName)
{
    ExpectKeptAs({}, u"\u200Fعلي", "\xE2\x80\x8F\xD8\xB9\xD9\x84\xD9\x8A.W");
    ExpectKeptAs({}, u"\u202Eevil\u202C",
                 "\xE2\x80\xAE"
                 "evil\xE2\x80\xAC.W");
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    ASSERT_TRUE(IsNewStudent(context));
    SaveStudent(context);
    context.studentName = u"Ali\u200F";
    EXPECT_TRUE(IsNewStudent(context));
}

TEST(StudentPath, LongestNamesFitAFileName)
{
    std::u16string arabic(60, u'ع');
    std::u16string threeBytes(60, u'\u4E2D');
    std::u16string pairs;
    std::string expected;
    for (int i = 0; i < 60; ++i) {
        pairs += u"\U00020000";
        expected += "\xF0\xA0\x80\x80";
    }
    EXPECT_EQ(pairs.size(), 120U);
    EXPECT_EQ(expected.size(), 240U);
    ExpectKeptAs({}, pairs, expected + ".W");
    ExpectKeptAs({}, pairs.substr(0, 60), expected.substr(0, 120) + ".W");
    ExpectKeptAs({}, arabic, Shown(arabic) + ".W");
    ExpectKeptAs({}, threeBytes, Shown(threeBytes) + ".W");
}

TEST(StudentPath, ANameTooLongForAFileNameIsRefused)
{
    const TemporaryFolder folder;
    ExpectKeptAs({}, std::u16string(253, u'a'), std::string(253, 'a') + ".W");
    ExpectRefused(ContextIn(folder, std::u16string(254, u'a')), "aaaa.W", "File name too long");
    ExpectRefused(ContextIn(folder, std::u16string(100000, u'a')), "aaaa.W", "File name too long");
}

TEST(StudentPath, HalfACharacterBecomesTheReplacementCharacter)
{
    ExpectKeptAs({}, std::u16string(u"a") + char16_t{0xD800}, "a\xEF\xBF\xBD.W");
}

TEST(StudentPath, NamesThatDifferInCaseAreTwoStudentsWhereTheFileSystemTellsThemApart)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    ASSERT_TRUE(IsNewStudent(context));
    SaveStudent(context);
    context.studentName = u"ali";
    EXPECT_EQ(IsNewStudent(context), !fs::exists(folder / "Students/ali.W"));
}

TEST(StudentPath, ANameWithASlashOrAZeroCharacterNeverReachesAnotherFolder)
{
    const TemporaryFolder outer;
    fs::create_directories(outer / "app/Students/sub");
    WriteBytes(outer / "victim.W", Bytes(3, 7));
    WriteBytes(outer / "app/victim.W", Bytes(3, 7));
    const auto before = outer.Everything();
    SessionContext context;
    context.appFolder = context::FromUtf8((outer / "app").string());
    const std::u16string names[] = {
        u"/",  u"a/b",    u"sub/x", u"../victim",  u"./x",          u"../../victim", u"missing/x",
        u"x/", u"/etc/x", u"\0"s,   u"victim\0x"s, u"../victim\0"s, u"a\0/b"s};
    for (const std::u16string& name : names) {
        context.studentName = name;
        ExpectRefused(context, ".W", "holds no slash and no zero character");
        EXPECT_EQ(outer.Everything(), before) << Shown(name);
        EXPECT_EQ(ReadBytes(outer / "victim.W"), Bytes(3, 7));
        EXPECT_EQ(ReadBytes(outer / "app/victim.W"), Bytes(3, 7));
    }
}

TEST(StudentPath, AZeroCharacterInTheProgramsFolderIsRefused)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    context.appFolder += u"/x\0y"s;
    ExpectRefused(context, "/x?y/Students/Ali.W", "no zero character");
    EXPECT_TRUE(folder.Everything().empty());
}

TEST(StudentPath, ARefusedNameMakesNoFolder)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"a/b");
    EXPECT_FALSE(IsNewStudent(context));
    EXPECT_TRUE(folder.Everything().empty());
}

TEST(StudentPath, LoadingAndSavingMakeNoFolder)
{
    const TemporaryFolder folder;
    const SessionContext context = ContextIn(folder, u"Ali");
    EXPECT_NE(LoadFailure(context).find("No such file or directory"), std::string::npos);
    EXPECT_NE(SaveFailure(context).find("No such file or directory"), std::string::npos);
    EXPECT_TRUE(folder.Everything().empty());
}

TEST(StudentPath, AMissingProgramFolderIsRefused)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    context.appFolder += u"/missing";
    ExpectRefused(context, "missing/Students/Ali.W", "No such file or directory");
    EXPECT_TRUE(folder.Everything().empty());
}

TEST(StudentPath, AStudentsFolderThatIsAFileIsRefused)
{
    const TemporaryFolder folder;
    WriteBytes(folder / "Students", Bytes(5, 1));
    ExpectRefused(ContextIn(folder, u"Ali"), "Students/Ali.W", "Not a directory");
    EXPECT_EQ(ReadBytes(folder / "Students"), Bytes(5, 1));
}

TEST(StudentPath, AStudentsFolderThatIsALinkToNowhereIsRefused)
{
    const TemporaryFolder folder;
    fs::create_symlink(folder / "nowhere", folder / "Students");
    ExpectRefused(ContextIn(folder, u"Ali"), "Students/Ali.W", "No such file or directory");
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST(StudentPath, AStudentsFolderThatLinksToItselfIsRefused)
{
    const TemporaryFolder folder;
    fs::create_symlink("Students", folder / "Students");
    ExpectRefused(ContextIn(folder, u"Ali"), "Students/Ali.W", "Too many levels of symbolic links");
}

TEST(StudentPath, AStudentsFolderThatMayNotBeMadeIsRefused)
{
    const TemporaryFolder folder;
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    {
        const WithoutPrivileges now;
        SessionContext context = ContextIn(folder, u"Ali");
        EXPECT_FALSE(IsNewStudent(context));
        EXPECT_TRUE(folder.Everything().empty());
    }
    fs::permissions(folder.Path(), fs::perms::owner_all);
}

TEST(StudentPath, AReadOnlyFolderTakesANewStudentAndRefusesToSave)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "Students");
    fs::permissions(folder / "Students", fs::perms::owner_read | fs::perms::owner_exec);
    {
        const WithoutPrivileges now;
        SessionContext context = ContextIn(folder, u"Ali");
        EXPECT_TRUE(IsNewStudent(context));
        EXPECT_NE(SaveFailure(context).find("Permission denied"), std::string::npos);
        EXPECT_NE(LoadFailure(context).find("Permission denied"), std::string::npos);
    }
    fs::permissions(folder / "Students", fs::perms::owner_all);
}

TEST(StudentPath, AFileThatMayNotBeReadOrWrittenIsRefused)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "Students");
    WriteBytes(folder / "Students/Ali.W", Bytes(620));
    for (const fs::perms rights : {fs::perms::none, fs::perms::owner_read}) {
        fs::permissions(folder / "Students/Ali.W", rights);
        const WithoutPrivileges now;
        ExpectRefused(ContextIn(folder, u"Ali"), "Students/Ali.W", "Permission denied");
    }
}

TEST(StudentPath, AFolderInTheFilesPlaceIsRefused)
{
    const TemporaryFolder folder;
    fs::create_directories(folder / "Students/Ali.W");
    ExpectRefused(ContextIn(folder, u"Ali"), "Students/Ali.W", "Is a directory");
}

TEST(StudentPath, APipeInTheFilesPlaceIsRefusedWithoutWaiting)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "Students");
    ASSERT_EQ(mkfifo((folder / "Students/Ali.W").c_str(), 0600), 0);
    ExpectRefused(ContextIn(folder, u"Ali"), "Students/Ali.W", "Illegal seek");
}

TEST(StudentPath, AFullDiskEndsTheProgramWithAReport)
{
    const TemporaryFolder folder;
    ASSERT_TRUE(fs::is_character_file("/dev/full"));
    fs::create_directory(folder / "Students");
    fs::create_symlink("/dev/full", folder / "Students/Ali.W");
    const SessionContext context = ContextIn(folder, u"Ali");
    const std::string message = SaveFailure(context);
    EXPECT_NE(message.find("Students/Ali.W"), std::string::npos) << message;
    EXPECT_NE(message.find("No space left on device"), std::string::npos) << message;
}

TEST(StudentPath, AnInterruptionOfAnEarlierCallIsNoneOfThisOne)
{
    const TemporaryFolder folder;
    SessionContext context = ContextIn(folder, u"Ali");
    ASSERT_TRUE(IsNewStudent(context));
    SaveStudent(context);
    errno = EINTR; // a call that succeeds leaves it as it is
    EXPECT_FALSE(IsNewStudent(context));
}

TEST(StudentPath, AFileThatMayNotGrowKeepsTheRecordsThatFit)
{
    for (const std::size_t limit : {0, 1, 19, 20, 310, 619, 620}) {
        const TemporaryFolder folder;
        SessionContext context = ContextIn(folder, u"Ali");
        ASSERT_TRUE(IsNewStudent(context));
        context.studentTable.Record(31).fill(0x0102);
        std::string message;
        {
            const WithFileSizeLimit now(limit);
            message = SaveFailure(context);
        }
        EXPECT_EQ(message.empty(), limit == 620) << limit;
        EXPECT_EQ(message.find("File too large") == std::string::npos, limit == 620) << message;
        EXPECT_EQ(fs::file_size(folder / "Students/Ali.W"), limit);
    }
}

} // namespace
} // namespace keyfluent::progress
