#include "progress/Leaving.h"

#include "progress/StudentFile.h"
#include "tests/core/ProgressSupport.h"

namespace keyfluent::progress
{
namespace
{

using namespace support;
using context::SessionContext;

struct WithStudent {
    TemporaryFolder folder;
    SessionContext context;

    WithStudent() : context(ContextIn(folder, u"Ali")) { IsNewStudent(context); }
    std::vector<std::string> Files() const { return folder.Everything(); }
};

const std::vector<std::string> noFile = {"Students"};
const std::vector<std::string> oneFile = {"Students", "Students/Ali.W"};

TEST(Leaving, YesSavesAndSignsTheStudentOut)
{
    WithStudent student;
    student.context.studentTable.Record(17)[0] = 88;
    LeaveYes(student.context);
    EXPECT_EQ(student.Files(), oneFile);
    EXPECT_TRUE(student.context.leaveConfirmed);
    EXPECT_FALSE(student.context.leaveNoSave);
    EXPECT_TRUE(student.context.studentName.empty());

    SessionContext again = ContextIn(student.folder, u"Ali");
    EXPECT_FALSE(IsNewStudent(again));
    LoadStudent(again);
    EXPECT_EQ(again.studentTable.Record(17)[0], 88);
}

TEST(Leaving, YesLeavesTheAnswerBeforeAsItStands)
{
    WithStudent student;
    student.context.leaveNoSave = true;
    LeaveYes(student.context);
    EXPECT_TRUE(student.context.leaveNoSave);
}

TEST(Leaving, NoSavesNothingAndLeavesNoTraceOfANewStudent)
{
    WithStudent student;
    LeaveNo(student.context);
    EXPECT_EQ(student.Files(), noFile);
    EXPECT_TRUE(student.context.leaveConfirmed);
    EXPECT_TRUE(student.context.leaveNoSave);
    EXPECT_TRUE(student.context.studentName.empty());
}

TEST(Leaving, CancelKeepsTheStudentAndClearsBothAnswers)
{
    WithStudent student;
    student.context.leaveConfirmed = true;
    student.context.leaveNoSave = true;
    LeaveCancel(student.context);
    EXPECT_EQ(student.Files(), noFile);
    EXPECT_FALSE(student.context.leaveConfirmed);
    EXPECT_FALSE(student.context.leaveNoSave);
    EXPECT_EQ(Shown(student.context.studentName), "Ali");
}

TEST(Leaving, WhileQuittingTheNameStaysForTheFarewell)
{
    WithStudent student;
    EXPECT_TRUE(BeginQuit(student.context));
    LeaveYes(student.context);
    EXPECT_EQ(Shown(student.context.studentName), "Ali");
    EXPECT_EQ(student.Files(), oneFile);
    LeaveNo(student.context);
    EXPECT_EQ(Shown(student.context.studentName), "Ali");
}

TEST(Leaving, NobodyIsAskedWhenNobodyIsSignedIn)
{
    SessionContext context;
    EXPECT_FALSE(BeginQuit(context));
    EXPECT_TRUE(context.quitting);
}

TEST(Leaving, ACancelledQuitKeepsQuittingUntilTheNextLogout)
{
    WithStudent student;
    BeginQuit(student.context);
    LeaveCancel(student.context);
    EXPECT_TRUE(student.context.quitting);
    BeginLogout(student.context);
    EXPECT_FALSE(student.context.quitting);
}

TEST(Leaving, ALogoutCountsOnlyIfItIsConfirmed)
{
    WithStudent student;
    BeginLogout(student.context);
    LeaveCancel(student.context);
    EXPECT_FALSE(ConfirmLogout(student.context));
    EXPECT_FALSE(student.context.loggedOut);
    LeaveNo(student.context);
    EXPECT_TRUE(ConfirmLogout(student.context));
    EXPECT_TRUE(student.context.loggedOut);
    LeaveCancel(student.context);
    EXPECT_FALSE(ConfirmLogout(student.context));
    EXPECT_TRUE(student.context.loggedOut);
}

TEST(Leaving, ALogoutKeepsTheTableInMemory)
{
    WithStudent student;
    student.context.studentTable.Record(1)[1] = 100;
    LeaveNo(student.context);
    EXPECT_EQ(student.context.studentTable.Record(1)[1], 100);
}

TEST(Leaving, ASaveThatFailsEndsTheProgramBeforeTheNameIsEmptied)
{
    WithStudent student;
    std::filesystem::create_directory(student.folder / "Students/Ali.W");
    EXPECT_THROW(LeaveYes(student.context), context::FatalError);
    EXPECT_EQ(Shown(student.context.studentName), "Ali");
}

} // namespace
} // namespace keyfluent::progress
