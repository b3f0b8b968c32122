#include "shell/forms/frmViewRecommands.h"

#include "course/Notes.h"
#include "shell/Program.h"
#include "shell/base/Twips.h"
#include "shell/platform/Fonts.h"

namespace keyfluent::shell
{
namespace
{

constexpr int formWidth = 680;
constexpr int formHeight = 560;

// A picture on a page; left below 0 stands for "centred across the window".
struct PagePicture {
    bool recommendation;
    int page;
    const char* control;
    int bitmap;
    int left; // twips
    int top;  // twips
};

constexpr int centred = -1;

constexpr PagePicture pictures[] = {
    {false, 4, "imgIcon", 109, 430, 470},          {false, 7, "imgIcon", 200, 730, 1190},
    {false, 7, "imgIcon2", 202, 730, 4790},        {false, 8, "imgIcon", 106, 730, 1190},
    {false, 9, "imgIcon", 132, 730, 2390},         {false, 9, "imgIcon2", 129, 730, 4790},
    {false, 10, "imgIcon", 135, 580, 1190},        {true, 2, "imgKeysHands", 146, centred, 1020},
    {true, 3, "imgKeysHands", 148, centred, 2040},
};

} // namespace

frmViewRecommands::frmViewRecommands(Program& program)
    : Form(program, "frmViewRecommands", {formWidth, formHeight})
{
    const bool arabic = Arabic();
    lblTitle_ = AddTitle(u"");
    lblTitle_->SetRightToLeft(true);
    lblhelp_ = AddLabel("lblhelp", {24, Pixels(600), formWidth - 48, 460}, u"", 12);
    lblhelp_->SetReading(true);
    lblB_ = AddLabel("lblB", {24, 490, formWidth - 48, 22},
                     u"تنقر مسطرة المسافات دائما بإبهام اليد اليمنى.", 10.5, true);
    lblB_->SetReading(true);
    lblB_->SetSide(Side::Centre);
    imgKeysHands_ = AddImage("imgKeysHands", {0, 0}, 146);
    imgIcon_ = AddImage("imgIcon", {0, 0}, 109);
    imgIcon2_ = AddImage("imgIcon2", {0, 0}, 109);
    constexpr int top = formHeight - 46;
    constexpr int middle = (formWidth - 115) / 2;
    next_ = AddButton("cmdNext", "lblNext", {arabic ? middle - 135 : middle + 135, top},
                      arabic ? u"التالي" : u"Next", [this] { Step(1); });
    back_ = AddButton("cmdBack", "lblBack", {arabic ? middle + 135 : middle - 135, top},
                      arabic ? u"السابق" : u"Previous", [this] { Step(-1); });
    AddButton("cmdThank", "lblThank", {middle, top}, arabic ? u"شكرا" : u"Thanks",
              [this] { Unload(); });
    ActOnClose([this] { Unload(); });
    SetUpPage();
}

std::uint8_t& frmViewRecommands::Page()
{
    return state().helpMode ? state().recommendPage : state().helpPage;
}

int frmViewRecommands::LastPage() const
{
    return const_cast<frmViewRecommands*>(this)->state().helpMode ? course::recommendationPageCount
                                                                  : course::helpPageCount;
}

void frmViewRecommands::Step(int by)
{
    const int page = Page() + by;
    if (page >= 1 && page <= LastPage()) {
        Page() = static_cast<std::uint8_t>(page);
        SetUpPage();
    }
}

void frmViewRecommands::SetUpPage()
{
    const bool recommendation = state().helpMode;
    const int page = Page();
    for (ImageControl* image : {imgKeysHands_, imgIcon_, imgIcon2_}) {
        image->hide();
    }
    for (const PagePicture& picture : pictures) {
        if (picture.recommendation != recommendation || picture.page != page) {
            continue;
        }
        auto* image = findChild<ImageControl*>(QString::fromLatin1(picture.control));
        image->SetBitmap(picture.bitmap);
        NamePicture(*image);
        image->move(picture.left == centred ? (formWidth - image->width()) / 2
                                            : Pixels(picture.left),
                    Pixels(picture.top));
        image->show();
    }
    constexpr int pageWithLine = 2;
    lblB_->setVisible(recommendation && page == pageWithLine);
    lblTitle_->SetCaption(recommendation ? course::RecommendationTitle(page)
                                         : course::HelpTitle(page));
    setWindowTitle(lblTitle_->text());
    lblhelp_->SetCaption(recommendation ? course::RecommendationText(page)
                                        : course::HelpText(page));
    lblhelp_->FitHeight();
    for (const auto& [button, visible] :
         {std::pair{next_, page < LastPage()}, std::pair{back_, page >= 2}}) {
        button.image->setVisible(visible);
        button.label->setVisible(visible);
    }
}

} // namespace keyfluent::shell
