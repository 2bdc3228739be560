#include "app/page_header.h"

#include "settings/page_table.h"
#include "settings/rights.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kPanel = L"Panel_Header";
constexpr const wchar_t* kImage = L"Image_Header";
constexpr const wchar_t* kTitle = L"Label_Header_Title";
constexpr const wchar_t* kText = L"Label_Header_Text";

// The least heights of the window, in dots of 96 per inch, that leave the pages enough room below the header.
constexpr int kRoomForAll = 490;
constexpr int kRoomForTitle = 470;

}  // namespace

TControlDesign TPageHeader::Design() {
    return Header(kPanel,
                  Row(Image(kImage, L"general"),
                      Stack(CardLabel(kTitle, L"Quilltune", 1, TTextLook::Heading),
                            CardLabel(kText, L"Settings of Windows, page by page", 1, TTextLook::Quiet))));
}

void TPageHeader::Show(const TCategoryItem& item) {
    const TForm& form = FContext.Form;
    form.Find<TImage>(kImage)->SetPicture(item.Picture());
    form.Find(kTitle)->SetCaption(item.Caption());
    std::wstring text;
    for (const TPageDefinition* page : PageDefinitions())
        if (page->Tag == item.Tag()) text = RightsLine(FContext, *page);
    for (const TCategoryGroupRow& group : CategoryTable())
        for (const TCategoryItemRow& row : group.Items)
            if (text.empty() && row.Tag == item.Tag()) text = FContext.Captions[row.About];
    form.Find(kText)->SetCaption(text);
    form.Find(kPanel)->SetCaption(item.Caption() + L"\n" + text);
}

void TPageHeader::HeightChanged(int height) const {
    FContext.Form.Find(kText)->SetVisible(height >= kRoomForAll);
    FContext.Form.Find(kPanel)->SetVisible(height >= kRoomForTitle);
}
