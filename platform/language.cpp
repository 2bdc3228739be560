#include "platform/language.h"

#include <algorithm>
#include <exception>

#include "base/decimal.h"
#include "platform/app_frame.h"
#include "ui/controls.h"
#include "ui/form.h"

namespace {

constexpr std::wstring_view kLanguageExtension = L".lng";

/// The key of the i-th of the texts of a list, such as ComboBox1.Items[0].Caption.
std::wstring KeyOf(const TComponent& component, const wchar_t* list, std::size_t i) {
    return component.Name() + L'.' + list + L'[' + DecimalText(static_cast<std::int64_t>(i)) + L"].Caption";
}

}  // namespace

TLanguage::TLanguage(const TSystem& system, std::wstring moduleName)
    : FSystem(system), FModuleName(std::move(moduleName)) {
    ScanFolder(ProgramFolder(system) + L"Language");
}

TLanguage::TLanguage(const TSystem& system, std::wstring moduleName, const std::wstring& folder)
    : TLanguage(system, std::move(moduleName)) {
    ScanFolder(folder);
}

void TLanguage::ScanFolder(const std::wstring& folder) {
    FFolder = folder;
    if (FFolder.ends_with(L'\\')) FFolder.pop_back();
    for (const std::wstring& file : FSystem.Files.List(FFolder, L"*.lng")) {
        FFileNames.push_back(file.substr(0, file.size() - kLanguageExtension.size()));
        FIndex = static_cast<int>(FFileNames.size()) - 1;
        LoadLanguage(FFileNames.back());
        const std::wstring& name = FFileNames[static_cast<std::size_t>(FIndex)];
        FDisplayNames.push_back(ReadString(L"Main", L"DisplayName", name));
    }
}

void TLanguage::LoadLanguage(const std::wstring& name) {
    if (!TryLoad(name)) (void)TryLoad(L"English");
}

bool TLanguage::TryLoad(const std::wstring& name) {
    // Only names of files that were found go into a path: the name comes from a file of the user's and may be
    // anything, "..\x" too.
    const auto found =
        std::ranges::find_if(FFileNames, [&](const auto& file) { return SameText(file, name); });
    if (found == FFileNames.end()) return false;
    if (!FIni.LoadFromFile(FSystem, FFolder + L'\\' + name + std::wstring(kLanguageExtension))) return false;
    FIndex = static_cast<int>(found - FFileNames.begin());
    FModuleStrings = FIni.ReadSectionValues(FModuleName + L"_M");
    return true;
}

void TLanguage::Translate(TForm& form) const {
    try {
        TranslateTexts(form);
    } catch (const std::exception&) {
        // A window with some of its texts in English is better than none.
    }
}

void TLanguage::TranslateTexts(TForm& form) const {
    if (form.Name().empty()) return;
    const std::wstring section = FModuleName + L'_' + form.Name();
    const auto translateCaption = [&](TControl& control) {
        control.SetCaption(FIni.ReadString(section, control.Name() + L".Caption", control.Caption()));
    };
    translateCaption(form);
    for (const auto& component : form.Components()) {
        switch (component->Kind()) {
            case TComponentKind::Label:
            case TComponentKind::Button:
            case TComponentKind::GroupBox:
            case TComponentKind::CheckBox:
            case TComponentKind::RadioButton:
            case TComponentKind::TabSheet:
                translateCaption(static_cast<TControl&>(*component));
                break;
            case TComponentKind::ComboBox: {
                auto& box = static_cast<TComboBox&>(*component);
                for (std::size_t i = 0; i < box.Items().size(); ++i)
                    box.SetItem(i, FIni.ReadString(section, KeyOf(box, L"Items", i), box.Items()[i]));
                break;
            }
            case TComponentKind::ListView: {
                auto& list = static_cast<TListView&>(*component);
                for (std::size_t i = 0; i < list.Columns().size(); ++i)
                    list.SetColumn(i,
                                   FIni.ReadString(section, KeyOf(list, L"Columns", i), list.Columns()[i]));
                break;
            }
            default:
                break;  // keeps its designed text
        }
    }
}
