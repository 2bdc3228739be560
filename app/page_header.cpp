#include "app/page_header.h"

#include "settings/page_table.h"
#include "settings/rights.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kHeaderPanel = L"Panel_Header";
constexpr const wchar_t* kHeaderImage = L"Image_Header";
constexpr const wchar_t* kHeaderTitle = L"Label_Header_Title";
constexpr const wchar_t* kHeaderText = L"Label_Header_Text";

// The least heights of the window, in dots of 96 per inch, that leave the pages enough room below the header.
constexpr int kRoomForHeader = 490;
constexpr int kRoomForHeaderTitle = 470;

}  // namespace

TControlDesign TPageHeader::Design() {
    return Header(
        kHeaderPanel,
        Row(Image(kHeaderImage, L"general"),
            Stack(CardLabel(kHeaderTitle, L"Quilltune", 1, TTextLook::Heading),
                  CardLabel(kHeaderText, L"Settings of Windows, page by page", 1, TTextLook::Quiet))));
}

void TPageHeader::Show(const TCategoryItem& item) {
    const TForm& form = FContext.Form;
    form.Find<TImage>(kHeaderImage)->SetPicture(item.Picture());
    form.Find(kHeaderTitle)->SetCaption(item.Caption());
    std::wstring text;
    for (const TPageDefinition* page : PageDefinitions())
        if (page->Tag == item.Tag()) text = RightsLine(FContext, *page);
    for (const TCategoryGroupRow& group : CategoryTable())
        for (const TCategoryItemRow& row : group.Items)
            if (text.empty() && row.Tag == item.Tag()) text = FContext.Captions[row.About];
    form.Find(kHeaderText)->SetCaption(text);
    form.Find(kHeaderPanel)->SetCaption(item.Caption() + L"\n" + text);
}

void TPageHeader::HeightChanged(int height) const {
    FContext.Form.Find(kHeaderText)->SetVisible(height >= kRoomForHeader);
    FContext.Form.Find(kHeaderPanel)->SetVisible(height >= kRoomForHeaderTitle);
}
