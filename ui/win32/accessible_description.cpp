#include "ui/win32/accessible_description.h"

#include <oleacc.h>

#include <utility>

namespace {

constexpr CLSID kService{// CLSID_AccPropServices
                         0xB5F8350B,
                         0x0548,
                         0x48B1,
                         {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr IID kServiceInterface{// IID_IAccPropServices
                                0x6E26E776,
                                0x04F0,
                                0x495D,
                                {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr MSAAPROPID kDescription{// PROPID_ACC_DESCRIPTION
                                  0x4D48DFE4,
                                  0xBD3F,
                                  0x491F,
                                  {0xA6, 0x48, 0x49, 0x2D, 0x6F, 0x20, 0xC5, 0x88}};
constexpr MSAAPROPID kRole{// PROPID_ACC_ROLE
                           0xCB905FF2,
                           0x7BD1,
                           0x4C05,
                           {0xB3, 0xC8, 0xE6, 0xC2, 0x41, 0x36, 0x4D, 0x70}};
constexpr MSAAPROPID kName{// PROPID_ACC_NAME
                           0x608D3DF8,
                           0x8128,
                           0x4AA7,
                           {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};
constexpr auto kClient = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

TAccessibleDescriptions::~TAccessibleDescriptions() {
    if (FService != nullptr) FService->Release();
    if (SUCCEEDED(FInitialised)) CoUninitialize();
}

IAccPropServices* TAccessibleDescriptions::Service() {
    if (!FIsAsked) {
        FIsAsked = true;
        FInitialised = CoInitialize(nullptr);
        if (FAILED(CoCreateInstance(kService, nullptr, CLSCTX_INPROC_SERVER, kServiceInterface,
                                    reinterpret_cast<void**>(&FService))))
            FService = nullptr;
    }
    return FService;
}

void TAccessibleDescriptions::Tell(HWND window, const TSpoken& spoken) {
    if (spoken == TSpoken() && !FTold.contains(window)) return;
    IAccPropServices* service = Service();
    if (service == nullptr) return;
    TSpoken& told = FTold[window];
    const auto tell = [&](const MSAAPROPID& property, std::wstring& before, const std::wstring& now) {
        if (now == before) return;
        before = now;
        if (now.empty())
            service->ClearHwndProps(window, kClient, CHILDID_SELF, &property, 1);
        else
            service->SetHwndPropStr(window, kClient, CHILDID_SELF, property, now.c_str());
    };
    tell(kName, told.Name, spoken.Name);
    tell(kDescription, told.Description, spoken.Description);
    if (!spoken.IsAlert || std::exchange(told.IsAlert, true)) return;
    VARIANT role{};
    role.vt = VT_I4;
    role.lVal = ROLE_SYSTEM_ALERT;
    service->SetHwndProp(window, kClient, CHILDID_SELF, kRole, role);
}

void TAccessibleDescriptions::Change(HWND window, const TSpoken& spoken) {
    if (FTold.contains(window)) Tell(window, spoken);
    NotifyWinEvent(EVENT_OBJECT_DESCRIPTIONCHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

void TAccessibleDescriptions::Forget(HWND window) {
    const MSAAPROPID all[] = {kName, kDescription, kRole};
    if (FTold.erase(window) != 0)
        FService->ClearHwndProps(window, kClient, CHILDID_SELF, all, static_cast<int>(std::size(all)));
}
