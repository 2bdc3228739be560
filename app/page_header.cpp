#include "app/page_header.h"

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
    FForm.Find<TImage>(kImage)->SetPicture(item.Picture());
    FForm.Find(kTitle)->SetCaption(item.Caption());
    for (const TCategoryGroupRow& group : CategoryTable())
        for (const TCategoryItemRow& row : group.Items)
            if (row.Tag == item.Tag()) FForm.Find(kText)->SetCaption(FCaptions[row.About]);
    FForm.Find(kPanel)->SetCaption(FForm.Find(kTitle)->Caption() + L"\n" + FForm.Find(kText)->Caption());
}

void TPageHeader::HeightChanged(int height) {
    FForm.Find(kText)->SetVisible(height >= kRoomForAll);
    FForm.Find(kPanel)->SetVisible(height >= kRoomForTitle);
}
