#include "console/command.h"

#include <algorithm>
#include <utility>

#include "base/decimal.h"
#include "platform/suite_language.h"
#include "platform/text.h"

namespace {

/// The message does not become longer with the number of settings.
constexpr std::size_t kMostNamed = 8;

}  // namespace

TTask::TTask(TSystem& system, std::optional<std::wstring> language, TConsole& console)
    : System(system),
      Console(console),
      Texts([this]() -> const TLanguage& { return Language(); }),
      Release(RunningRelease(system)),
      FLanguageName(std::move(language)) {}

const TLanguage& TTask::Language() const {
    if (FLanguage) return *FLanguage;
    FLanguage = OpenLanguages(System, TAppFrame(System));
    FLanguage->LoadLanguage(FLanguageName ? *FLanguageName : GetSuiteLanguage(System));
    return *FLanguage;
}

const TCaptions& TTask::Captions() const {
    if (!FCaptions) FCaptions.emplace().Load(Language());
    return *FCaptions;
}

TCatalogue& TTask::Catalogue() {
    if (!FCatalogue) FCatalogue.emplace(System, HasCaptions ? &Language() : nullptr, Release);
    return *FCatalogue;
}

const TSetting& TTask::Setting(const std::wstring& id) {
    if (const TSetting* setting = Catalogue().Find(id)) return *setting;
    std::vector<std::wstring> known;
    std::vector<const TSetting*> holding;
    for (const TSetting* setting : Catalogue().Settings()) {
        known.push_back(setting->Id);
        if (!id.empty() && FindText(setting->Id, id) != std::wstring::npos) holding.push_back(setting);
    }
    if (holding.empty()) throw Unknown(TText::UnknownSetting, id, known);
    if (holding.size() == 1) return *holding.front();
    std::wstring names;
    for (std::size_t i = 0; i < std::min(holding.size(), kMostNamed); ++i)
        names += (i == 0 ? L"" : L", ") + holding[i]->Id;
    if (holding.size() > kMostNamed) names += L", \u2026";
    throw TWrongUsage{Texts(TText::ManySettings,
                            {id, DecimalText(static_cast<std::int64_t>(holding.size())), std::move(names)})};
}

void TTask::Print(const TValue& value) const {
    if (Json) return Console.Print(JsonOf(value));
    for (const std::wstring& line : LinesOf(value)) Console.Print(line);
}

void TTask::Fail(const std::wstring& message) {
    FFailed = true;
    Console.Complain(L"qtune: " + message);
}

void TTask::Need(TRestart restart) {
    if (restart <= std::exchange(FRestart, std::max(FRestart, restart))) return;
    Console.Complain(
        L"qtune: " +
        Texts[restart == TRestart::Windows ? TText::RestartNeeded : TText::ExplorerRestartNeeded]);
}

TExitStatus TTask::Status() const {
    if (FFailed) return TExitStatus::Failed;
    return FRestart == TRestart::Windows ? TExitStatus::Restart : TExitStatus::Done;
}
